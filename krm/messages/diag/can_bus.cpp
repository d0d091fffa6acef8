#include "krm/messages/diag/can_bus.h"

#include "krm/framework/dump.h"

template class CKRMList<CKRMCCommandCanBusCategoryInfo>;
template class CKRMList<CKRMCCommandCanBusCategoryListData>;

namespace {

/// Writes the lines of a message whose list `Data` holds the ECUs of a CAN bus.
void WriteCanBusEcus(const krm::MessageLines& line, CKRMList<CKRMCCommandCanBusCategoryInfo>& ecus) {
    line.ForEach(ecus, [](const auto& itemLine, auto& ecu) {
        itemLine("[%s] Data[%d].m_ulEcuId=%d", ecu.m_ulEcuId);
        itemLine("[%s] Data[%d].m_ulEcuNameId=%d", ecu.m_ulEcuNameId);
        itemLine("[%s] Data[%d].m_strEcuName=%s", ecu.m_strEcuName);
        itemLine("[%s] Data[%d].m_ulCategoryId=%d", ecu.m_ulCategoryId);
        itemLine("[%s] Data[%d].m_uchHistPidSupport=%d", ecu.m_uchHistPidSupport);
    });
}

}  // namespace

void CKRMCGetCanBusCategoryListCmdAdaptDataRcv::Dump(const krm::MessageLines& line) {
    WriteCanBusEcus(line, Data);
}

void CKRMCGetCanBusCheckListCmdAdaptDataSnd::Dump(const krm::MessageLines& line) {
    WriteCanBusEcus(line, Data);
}

void CKRMCGetCanBusCheckListCmdAdaptDataRcv::Dump(const krm::MessageLines& line) {
    line.ForEach(Info, [](const auto& itemLine, auto& result) {
        itemLine.ForEach(result.Data, [](const auto& ecuLine, auto& ecu) {
            ecuLine("[%s] Info[%d].Data[%d].m_ulEcuId=%d", ecu.m_ulEcuId);
            ecuLine("[%s] Info[%d].Data[%d].m_ulEcuNameId=%d", ecu.m_ulEcuNameId);
            ecuLine("[%s] Info[%d].Data[%d].m_strEcuName=%s", ecu.m_strEcuName);
            ecuLine("[%s] Info[%d].Data[%d].m_ulCategoryId=%d", ecu.m_ulCategoryId);
            ecuLine("[%s] Info[%d].Data[%d].m_uchHistPidSupport=%d", ecu.m_uchHistPidSupport);
        });
    });
    line.ForEach(Hist, [](const auto& itemLine, auto& result) {
        itemLine.ForEach(result.Data, [](const auto& ecuLine, auto& ecu) {
            ecuLine("[%s] Hist[%d].Data[%d].m_ulEcuId=%d", ecu.m_ulEcuId);
            ecuLine("[%s] Hist[%d].Data[%d].m_ulEcuNameId=%d", ecu.m_ulEcuNameId);
            ecuLine("[%s] Hist[%d].Data[%d].m_strEcuName=%s", ecu.m_strEcuName);
            ecuLine("[%s] Hist[%d].Data[%d].m_ulCategoryId=%d", ecu.m_ulCategoryId);
            ecuLine("[%s] Hist[%d].Data[%d].m_uchHistPidSupport=%d", ecu.m_uchHistPidSupport);
        });
    });
}

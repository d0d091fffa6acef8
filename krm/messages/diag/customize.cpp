#include "krm/messages/diag/customize.h"

#include "krm/framework/dump.h"

template class CKRMList<CKRMCCommandCancelCodeData>;
template class CKRMList<CKRMCCommandCancelCodeCategoryInfo>;
template class CKRMList<CKRMCCommandOnBoardMonitorInfo>;
template class CKRMList<CKRMCCommandCustomizeName>;
template class CKRMList<CKRMCCommandCustomizeItemValue>;
template class CKRMList<CKRMCCommandCustomizeItemData>;
template class CKRMList<CKRMCCommandCustomizeItemSetData>;
template class CKRMList<CKRMCCommandCustomizeItemResult>;
template class CKRMList<CKRMCCommandCanBusCategoryInfo>;
template class CKRMList<CKRMCCommandCanBusCategoryListData>;

namespace {

/// The bytes of a customisation value as the log shows them: two lower-case hexadecimal digits each, in list order.
CKRMString HexOf(const CKRMList<unsigned char>& bytes) {
    CKRMString text;
    for (const unsigned char byte : bytes) {
        CKRMString digits;
        digits.Format("%02x", byte);
        text += digits;
    }
    return text;
}

/// Writes the lines of a message whose list `Data` holds the ECUs of a CAN bus.
template <class Lines>
void WriteCanBusEcus(const Lines& line, CKRMList<CKRMCCommandCanBusCategoryInfo>& ecus) {
    line.ForEach(ecus, [](const auto& itemLine, auto& ecu) {
        itemLine("[%s] Data[%d].m_ulEcuId=%d", ecu.m_ulEcuId);
        itemLine("[%s] Data[%d].m_ulEcuNameId=%d", ecu.m_ulEcuNameId);
        itemLine("[%s] Data[%d].m_strEcuName=%s", ecu.m_strEcuName);
        itemLine("[%s] Data[%d].m_ulCategoryId=%d", ecu.m_ulCategoryId);
        itemLine("[%s] Data[%d].m_uchHistPidSupport=%d", ecu.m_uchHistPidSupport);
    });
}

}  // namespace

CKRMCCommandCancelCodeData::~CKRMCCommandCancelCodeData() = default;

void CKRMCCommandCancelCodeData::Dump(const krm::RecordLines& line) {
    line("%s.m_uchKind=%d", m_uchKind);
    line("%s.m_uchStatus=%d", m_uchStatus);
    line("%s.m_ulCode=%d", m_ulCode);
    line("%s.m_strCode=%s", m_strCode);
    line("%s.m_ulExplanationId=%d", m_ulExplanationId);
    line("%s.m_strExplanation=%s", m_strExplanation);
    line("%s.m_bTripCount=%d", m_bTripCount);
    line("%s.m_cTripCount", m_cTripCount);
    line("%s.m_bTimeCount=%d", m_bTimeCount);
    line("%s.m_cTimeCount", m_cTimeCount);
    line("%s.m_bTripGroup=%d", m_bTripGroup);
    line("%s.m_cTripGroup", m_cTripGroup);
    line("%s.m_bOccurrenceCount=%d", m_bOccurrenceCount);
    line("%s.m_cOccurrenceCount", m_cOccurrenceCount);
    line("%s.m_bMainUnitTemperature=%d", m_bMainUnitTemperature);
    line("%s.m_cMainUnitTemperature", m_cMainUnitTemperature);
    line("%s.m_bCameraUnitTemperature=%d", m_bCameraUnitTemperature);
    line("%s.m_cCameraUnitTemperature", m_cCameraUnitTemperature);
}

CKRMCCommandCancelCodeCategoryInfo::~CKRMCCommandCancelCodeCategoryInfo() = default;

void CKRMCCommandCancelCodeCategoryInfo::Dump(const krm::RecordLines& line) {
    line("%s.m_ushCategoryId=%u", m_ushCategoryId);
    line("%s.m_ulCategoryNameId=%u", m_ulCategoryNameId);
    line("%s.m_strCategoryName=%s", m_strCategoryName);
    line("%s.m_ulWarningMessageId=%u", m_ulWarningMessageId);
    line("%s.m_strWarningMessage=%s", m_strWarningMessage);
}

CKRMCCommandOnBoardMonitorInfo::~CKRMCCommandOnBoardMonitorInfo() = default;

void CKRMCCommandOnBoardMonitorInfo::Dump(const krm::RecordLines& line) {
    line("%s.m_ushId=%d", m_ushId);
    line("%s.m_strName=%s", m_strName);
    line("%s.m_ulDescriptionId=%d", m_ulDescriptionId);
    line("%s.m_strDescription=%s", m_strDescription);
    line("%s.m_strScalingId=%s", m_strScalingId);
    line("%s.m_ulUnitPhysId=%d", m_ulUnitPhysId);
    line("%s.m_strUnitPhys=%s", m_strUnitPhys);
    line("%s.m_ulUnitId=%d", m_ulUnitId);
    line("%s.m_strUnit=%s", m_strUnit);
    line("%s.m_uchDataType=%d", m_uchDataType);
    line("%s.m_uchDecPntCount=%d", m_uchDecPntCount);
    line("%s.m_uchUnitConvDecPntCount=%d", m_uchUnitConvDecPntCount);
    line("%s.m_cConversionTbl", m_cConversionTbl);
    line("%s.m_cTestValData", m_cTestValData);
    line("%s.m_cTestMinData", m_cTestMinData);
    line("%s.m_cTestMaxData", m_cTestMaxData);
    line("%s.m_bResult=%d", m_bResult);
}

CKRMCGetCanBusCategoryListCmdAdaptDataSnd::~CKRMCGetCanBusCategoryListCmdAdaptDataSnd() = default;

krm_long CKRMCGetCanBusCategoryListCmdAdaptDataRcv::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCGetCanBusCategoryListCmdAdaptDataRcv::ErrWriteOperationLog");
    WriteCanBusEcus(line, Data);
    return 0;
}

krm_long CKRMCGetCanBusCheckListCmdAdaptDataSnd::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCGetCanBusCheckListCmdAdaptDataSnd::ErrWriteOperationLog");
    WriteCanBusEcus(line, Data);
    return 0;
}

krm_long CKRMCGetCanBusCheckListCmdAdaptDataRcv::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCGetCanBusCheckListCmdAdaptDataRcv::ErrWriteOperationLog");
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
    return 0;
}

CKRMCGetCustomizeSupportListCmdAdaptDataSnd::~CKRMCGetCustomizeSupportListCmdAdaptDataSnd() = default;

krm_long CKRMCGetCustomizeSupportListCmdAdaptDataRcv::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCGetCustomizeSupportListCmdAdaptDataRcv::ErrWriteOperationLog");
    line.ForEach(Data, [](const auto& itemLine, auto& name) {
        itemLine("[%s] Data[%d].m_ushCustomizeId=%d", name.m_ushCustomizeId);
        itemLine("[%s] Data[%d].m_ulCustomizeNameId=%d", name.m_ulCustomizeNameId);
        itemLine("[%s] Data[%d].m_strCustomizeName=%s", name.m_strCustomizeName);
    });
    return 0;
}

krm_long CKRMCGetCustomizeItemListCmdAdaptDataSnd::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCGetCustomizeItemListCmdAdaptDataSnd::ErrWriteOperationLog");
    line("[%s] m_ushCustomizeId=%d", m_ushCustomizeId);
    line("[%s] m_bGetCurrentValue=%d", m_bGetCurrentValue);
    line("[%s] Data[%d].m_cSpecialFunctionKeyList=0x%04X", m_cSpecialFunctionKeyList);
    line("[%s] m_ulPersonalizeId=0x%08X", m_ulPersonalizeId);
    return 0;
}

krm_long CKRMCGetCustomizeItemListCmdAdaptDataRcv::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCGetCustomizeItemListCmdAdaptDataRcv::ErrWriteOperationLog");
    line.ForEach(Data, [](const auto& itemLine, auto& item) {
        itemLine("[%s] Data[%d].m_ushCustomizeItemId=%d", item.m_ushCustomizeItemId);
        itemLine("[%s] Data[%d].m_ulCustomizeItemNameId=%d", item.m_ulCustomizeItemNameId);
        itemLine("[%s] Data[%d].m_strCustomizeItemName=%s", item.m_strCustomizeItemName);
        itemLine("[%s] Data[%d].m_bCurrentValue=%d", item.m_bCurrentValue);
        itemLine("[%s] Data[%d].m_ushCurrentValue=%d", item.m_ushCurrentValue);
        itemLine("[%s] Data[%d].m_uchCurrentValueList=0x%s", HexOf(item.m_uchCurrentValueList));
        itemLine("[%s] Data[%d].m_ulInfoId=%d", item.m_ulInfoId);
        itemLine("[%s] Data[%d].m_ulPersonalizeId=0x%08X", item.m_ulPersonalizeId);
        itemLine.ForEach(item.m_cCustomizeValueList, [](const auto& valueLine, auto& value) {
            valueLine("[%s] Data[%d].m_cCustomizeValueList[%d].m_strDispName=%s", value.m_strDispName);
            valueLine("[%s] Data[%d].m_cCustomizeValueList[%d].m_ulDispNameId=%d", value.m_ulDispNameId);
            valueLine("[%s] Data[%d].m_cCustomizeValueList[%d].m_ushCustomizeValue=%d", value.m_ushCustomizeValue);
            valueLine("[%s] Data[%d].m_cCustomizeValueList[%d].m_uchCustomizeValueList=0x%s",
                      HexOf(value.m_uchCustomizeValueList));
        });
    });
    return 0;
}

krm_long CKRMCSetCustomizeItemCmdAdaptDataSnd::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCSetCustomizeItemCmdAdaptDataSnd::ErrWriteOperationLog");
    line.ForEach(Data, [](const auto& itemLine, auto& item) {
        itemLine("[%s] Data[%d].m_ushCustomizeId=%d", item.m_ushCustomizeId);
        itemLine("[%s] Data[%d].m_ushCustomizeItemId=%d", item.m_ushCustomizeItemId);
        itemLine("[%s] Data[%d].m_ushCustomizeValue=%d", item.m_ushCustomizeValue);
        itemLine("[%s] Data[%d].m_uchCustomizeValueList=0x%s", HexOf(item.m_uchCustomizeValueList));
    });
    return 0;
}

krm_long CKRMCSetCustomizeItemCmdAdaptDataRcv::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCSetCustomizeItemCmdAdaptDataRcv::ErrWriteOperationLog");
    line.ForEach(Data, [](const auto& itemLine, auto& result) {
        itemLine("[%s] Data[%d].m_ushCustomizeId=%d", result.m_ushCustomizeId);
        itemLine("[%s] Data[%d].m_ushCustomizeItemId=%d", result.m_ushCustomizeItemId);
        itemLine("[%s] Data[%d].m_bSuccess=%d", result.m_bSuccess);
    });
    return 0;
}

CKRMCGetCustomizeDestinationCmdAdaptDataSnd::~CKRMCGetCustomizeDestinationCmdAdaptDataSnd() = default;

krm_long CKRMCGetCustomizeDestinationCmdAdaptDataRcv::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCGetCustomizeDestinationCmdAdaptDataRcv::ErrWriteOperationLog");
    line("[%s] m_bEnable=%d", m_bEnable);
    line("[%s] m_ulDestinationDispId=%d", m_ulDestinationDispId);
    line("[%s] m_strDestinationDisp=%s", m_strDestinationDisp);
    return 0;
}

krm_long CKRMCSetCustomizeDestinationCmdAdaptDataSnd::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCSetCustomizeDestinationCmdAdaptDataSnd::ErrWriteOperationLog");
    line("[%s] m_strDestinationCode=%s", m_strDestinationCode);
    return 0;
}

krm_long CKRMCSetCustomizeDestinationCmdAdaptDataRcv::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCSetCustomizeDestinationCmdAdaptDataRcv::ErrWriteOperationLog");
    line("[%s] m_bInvalidCode=%d", m_bInvalidCode);
    return 0;
}

krm_long CKRMCOnBoardMonitorCmdAdaptDataSnd::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCOnBoardMonitorCmdAdaptDataSnd::ErrWriteOperationLog");
    line("[%s] m_uchMIDList[%d]=%d", m_uchMIDList);
    return 0;
}

krm_long CKRMCOnBoardMonitorCmdAdaptDataRcv::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCOnBoardMonitorCmdAdaptDataRcv::ErrWriteOperationLog");
    line("[%s] Data[%d]", Data);
    return 0;
}

CKRMCGetCancelCodeCategoryListCmdAdaptDataSnd::~CKRMCGetCancelCodeCategoryListCmdAdaptDataSnd() = default;

krm_long CKRMCGetCancelCodeCategoryListCmdAdaptDataRcv::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCGetCancelCodeCategoryListCmdAdaptDataRcv::ErrWriteOperationLog");
    line("[%s] Data[%d]", Data);
    return 0;
}

krm_long CKRMCGetCancelCodeCmdAdaptDataSnd::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCGetCancelCodeCmdAdaptDataSnd::ErrWriteOperationLog");
    line("[%s] m_ushCategoryId=%d", m_ushCategoryId);
    return 0;
}

krm_long CKRMCGetCancelCodeCmdAdaptDataRcv::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCGetCancelCodeCmdAdaptDataRcv::ErrWriteOperationLog");
    // Both lists go under the same name, each counted from 0.
    line("[%s] Data[%d]", m_cDTCList);
    line("[%s] Data[%d]", Data);
    line("[%s] m_bProhibit=%d", m_bProhibit);
    return 0;
}

CKRMCOnBoardMonitorListCmdAdaptDataSnd::~CKRMCOnBoardMonitorListCmdAdaptDataSnd() = default;

krm_long CKRMCOnBoardMonitorListCmdAdaptDataRcv::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCOnBoardMonitorListCmdAdaptDataRcv::ErrWriteOperationLog");
    line("[%s] m_uchMIDList[%d]=%d", m_uchMIDList);
    return 0;
}

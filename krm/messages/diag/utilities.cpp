#include "krm/messages/diag/utilities.h"

#include "krm/framework/dump.h"

template class CKRMList<CKRMCCommandUtilityData>;
template class CKRMList<CKRMCCommandSpecialFunctionKeyInfo>;
template class CKRMList<CKRMCCommandCustomListData>;

void CKRMCCommandUtilityData::Dump(const krm::RecordLines& line) {
    line("%s.m_ulFunctionNameId=%d", m_ulFunctionNameId);
    line("%s.m_strFunctionName=%s", m_strFunctionName);
    line("%s.m_ushFunctionId=%d", m_ushFunctionId);
    line("%s.m_ushPhaseType=%d", m_ushPhaseType);
    line("%s.m_ulEcuId=%d", m_ulEcuId);
    line("%s.m_ushBusId=%d", m_ushBusId);
    line("%s.m_ulHelpId=%d", m_ulHelpId);
    line("%s.m_ulBaudrate=%d", m_ulBaudrate);
    line("%s.m_ushP2Max=%d", m_ushP2Max);
    line("%s.m_ulFcCode=%06X", m_ulFcCode);
    line("%s.m_ulPhysAddr=%X", m_ulPhysAddr);
    line("%s.m_ul5bpsAddr=%X", m_ul5bpsAddr);
    line("%s.m_ulFuncAddr=%X", m_ulFuncAddr);
    line("%s.m_ulNTA=%02X", m_ulNTA);
    line("%s.m_ulToolAddr=%X", m_ulToolAddr);
    line("%s.m_uchSecurityTargetFlag=%d", m_uchSecurityTargetFlag);
    line("%s.m_ulSpecialFunctionKey=%d", m_ulSpecialFunctionKey);
    line("%s.m_ulLegislatedAddr=%X", m_ulLegislatedAddr);
    line("%s.m_ulP3Min=%d", m_ulP3Min);
    line("%s.m_ulStminTx=%d", m_ulStminTx);
    line("%s.m_ulNBrMin=%d", m_ulNBrMin);
    line("%s.m_ulCanP3Min=%d", m_ulCanP3Min);
}

void CKRMCCommandSpecialFunctionKeyInfo::Dump(const krm::RecordLines& line) {
    line("%s.m_ushScreenId=%d", m_ushScreenId);
    line("%s.m_ushFunctionId=%d", m_ushFunctionId);
    line("%s.m_ushFunctionDetailId=%d", m_ushFunctionDetailId);
    line("%s.m_ulKeycode=0x%04X", m_ulKeycode);
    line("%s.m_ulCompareOptions=0x%04X", m_ulCompareOptions);
}

void CKRMCGetUtilityListCmdAdaptDataSnd::Dump(const krm::MessageLines& line) {
    line("[%s] m_uchConnectLevel=%d", m_uchConnectLevel);
    line("[%s] m_ulSecurityLevel=0x%04X", m_ulSecurityLevel);
    line("[%s] Data[%d].m_cSpecialFunctionKeyList=0x%04X", m_cSpecialFunctionKeyList);
}

void CKRMCGetUtilityListCmdAdaptDataRcv::Dump(const krm::MessageLines& line) {
    line("[%s] Data[%d]", Data);
    // The parameters go under the name Data too, counted from 0 again.
    line.ForEach(m_cJ2534ConfigList, [](const auto& itemLine, auto& config) {
        itemLine("[%s] Data[%d].m_ulParameter=%d", config.m_ulParameter);
        itemLine("[%s] Data[%d].m_ulValue=%d", config.m_ulValue);
    });
}

void CKRMCGetCustomListCmdAdaptDataRcv::Dump(const krm::MessageLines& line) {
    line.ForEach(Data, [](const auto& itemLine, auto& list) {
        itemLine("[%s] Data[%d].m_strFileName=%s", list.m_strFileName);
        itemLine("[%s] Data[%d].m_strName=%s", list.m_strName);
        itemLine("[%s] Data[%d].m_ushDataType=%d", list.m_ushDataType);
        itemLine("[%s] Data[%d].m_ushSortIndex=%d", list.m_ushSortIndex);
        itemLine("[%s] Data[%d].m_uchInitialDispFlag=%d", list.m_uchInitialDispFlag);
    });
}

void CKRMCGetSpecialFunctionKeyListCmdAdaptDataRcv::Dump(const krm::MessageLines& line) {
    line("[%s] Data[%d]", Data);
}

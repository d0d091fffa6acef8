#include "krm/messages/diag/data_monitor.h"

#include "krm/framework/dump.h"

template class CKRMList<CKRMCCommandDiagMessage>;
template class CKRMList<CKRMCCommandTriggerData>;
template class CKRMList<CKRMCCommandStartDataMonitorData>;
template class CKRMList<CKRMCCommandDataMonitorIdData>;
template class CKRMList<CKRMCCommandDmErrorData>;
template class CKRMList<CKRMCCommandDmReceiveData>;

void CKRMCCommandDiagMessage::Dump(const krm::RecordLines& line) {
    line("%s.m_ulMsgLength=%d", m_ulMsgLength);
}

void CKRMCCommandTriggerData::Dump(const krm::RecordLines& line) {
    line("%s.m_ushTriggerItemId=%d", m_ushTriggerItemId);
    line("%s.m_ulNameId=%d", m_ulNameId);
    line("%s.m_strName=%s", m_strName);
    line("%s.m_ushPidId=%d", m_ushPidId);
    line("%s.m_cBeginCondition", m_cBeginCondition);
    line("%s.m_uchSlopeCondition=%d", m_uchSlopeCondition);
    line("%s.m_cTriggerCondition", m_cTriggerCondition);
    line("%s.m_uchSlopeDef=%d", m_uchSlopeDef);
    line("%s.m_cResolutionData", m_cResolutionData);
}

void CKRMCCommandDmErrorData::Clear() {
    m_ushType = 0;
    // m_cError stays.
    m_ulHelpId1 = 0;
    m_ulHelpId2 = 0;
}

void CKRMCGetDataMonitorListCmdAdaptDataRcv::Dump(const krm::MessageLines& line) {
    line("[%s] Data[%d]", Data);
    line("[%s] m_uchA8SupportData:ByteNum=%d", m_uchA8SupportData.GetCount());
}

void CKRMCStartDataMonitorCmdAdaptDataSnd::Dump(const krm::MessageLines& line) {
    line.ForEach(Data, [](const auto& itemLine, auto& item) {
        itemLine("[%s] Data[%d].m_ushDataMonitorId=%d", item.m_ushDataMonitorId);
        itemLine("[%s] Data[%d].m_ulEcuId=%d", item.m_ulEcuId);
        itemLine("[%s] Data[%d].m_cPidIdList[%d]=%d", item.m_cPidIdList);
    });
    // The channels go under the name Data too, counted from 0 again.
    line.ForEach(m_cOscInfoList, [](const auto& itemLine, auto& item) {
        itemLine("[%s] Data[%d].m_ushChId=%d", item.m_ushChId);
        itemLine("[%s] Data[%d].m_ulVolId=%d", item.m_ulVolId);
    });
    line("[%s] m_ushOscTimeId=%u", m_ushOscTimeId);
}

void CKRMCStartDataMonitorCmdAdaptDataRcv::Dump(const krm::MessageLines& line) {
    line("[%s] m_bDataMonitorEnable=%d", m_bDataMonitorEnable);
    line.ForEach(Data, [](const auto& itemLine, auto& item) {
        itemLine("[%s] Data[%d].m_ushDataMonitorId=%d", item.m_ushDataMonitorId);
        itemLine("[%s] Data[%d].m_ulEcuId=%d", item.m_ulEcuId);
    });
}

void CKRMCGetDataMonitorValueCmdAdaptDataSnd::Dump(const krm::MessageLines& line) {
    line("[%s] m_ushDataMonitorId=%d", m_ushDataMonitorId);
}

void CKRMCGetTriggerItemCmdAdaptDataRcv::Dump(const krm::MessageLines& line) {
    line("[%s] m_cTriggerList[%d]", m_cTriggerList);
}

void CKRMCGetDescriptionCmdAdaptDataRcv::Dump(const krm::MessageLines& line) {
    line("[%s] m_strDescription=%s", m_strDescription);
}

void CKRMCGetDataMonitorErrorCmdAdaptDataRcv::Dump(const krm::MessageLines& line) {
    line.ForEach(Data, [](const auto& itemLine, auto& item) {
        itemLine("[%s] Data[%d].m_ushType=%d", item.m_ushType);
        itemLine("[%s] Data[%d].a_ulReturnCode=%u", item.m_cError.a_ulReturnCode);
        itemLine("[%s] Data[%d].a_strErrorModuleName=%s", item.m_cError.a_strErrorModuleName);
        itemLine("[%s] Data[%d].a_strErrorClassName=%s", item.m_cError.a_strErrorClassName);
        itemLine("[%s] Data[%d].a_strErrorFunctionName=%s", item.m_cError.a_strErrorFunctionName);
        itemLine("[%s] Data[%d].a_strErrorFunctionArgs=%s", item.m_cError.a_strErrorFunctionArgs);
        itemLine("[%s] Data[%d].a_strMessage=%s", item.m_cError.a_strMessage);
        itemLine("[%s] Data[%d].m_ulHelpId1=%u", item.m_ulHelpId1);
        itemLine("[%s] Data[%d].m_ulHelpId2=%u", item.m_ulHelpId2);
    });
}

void CKRMCGetCurrentDataValueCmdAdaptDataSnd::Dump(const krm::MessageLines& line) {
    line("[%s] m_cPidIdList[%d]=%d", m_cPidIdList);
}

void CKRMCGetCurrentDataValueCmdAdaptDataRcv::Dump(const krm::MessageLines& line) {
    line("[%s] Data[%d]", Data);
}

void CKRMCGetHexModeInfoCmdAdaptDataRcv::Dump(const krm::MessageLines& line) {
    line("[%s] m_ulAddressByte=%u", m_ulAddressByte);
}

void CKRMCGetDataMonitorReceiveInfoCmdAdaptDataRcv::Dump(const krm::MessageLines& line) {
    line.ForEach(m_cDmReceiveDataList, [](const auto& itemLine, auto& item) {
        itemLine("[%s] m_cDmReceiveDataList[%d].m_ushMessageType=%d", item.m_ushMessageType);
        itemLine("[%s] m_cDmReceiveDataList[%d].m_ulRidRecvValue=0x%08X", item.m_ulRidRecvValue);
        itemLine("[%s] m_cDmReceiveDataList[%d].m_ushRidId=%d", item.m_ushRidId);
    });
}

void CKRMCGetUnitInfoCmdAdaptDataRcv::Dump(const krm::MessageLines& line) {
    line("[%s] Data[%d]", Data);
}

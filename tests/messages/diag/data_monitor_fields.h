// The fields of the classes of krm/messages/diag/data_monitor.h, in order.
#ifndef KRM_TESTS_MESSAGES_DIAG_DATA_MONITOR_FIELDS_H_
#define KRM_TESTS_MESSAGES_DIAG_DATA_MONITOR_FIELDS_H_

#include <tuple>

#include "krm/messages/diag/data_monitor.h"
#include "tests/messages/diag/display_fields.h"
#include "tests/messages/diag/freeze_frame_item_fields.h"
#include "tests/messages/diag/oscilloscope_channel_fields.h"
#include "tests/support/fields.h"

inline auto FieldsOf(CKRMCCommandDiagMessage& it) {
    return std::tie(it.m_ulMsgLength);
}

inline auto FieldsOf(CKRMCCommandTriggerData& it) {
    return std::tie(it.m_ushTriggerItemId, it.m_ulNameId, it.m_strName, it.m_ushPidId, it.m_cBeginCondition,
                    it.m_uchSlopeCondition, it.m_cTriggerCondition, it.m_uchSlopeDef, it.m_cResolutionData);
}

inline auto FieldsOf(CKRMCCommandStartDataMonitorData& it) {
    return std::tie(it.m_ushDataMonitorId, it.m_ulEcuId, it.m_cPidIdList, it.m_cSubPidIdList, it.m_uchMonitorReserved1,
                    it.m_ushMonitorReserved, it.m_uchMonitorReserved2);
}

inline auto FieldsOf(CKRMCCommandDataMonitorIdData& it) {
    return std::tie(it.m_ushDataMonitorId, it.m_ulEcuId);
}

inline auto FieldsOf(CKRMCCommandDmErrorData& it) {
    return std::tie(it.m_ushType, it.m_cError, it.m_ulHelpId1, it.m_ulHelpId2);
}

inline auto FieldsOf(CKRMCCommandDmReceiveData& it) {
    return std::tie(it.m_ushMessageType, it.m_ulRidRecvValue, it.m_ushRidId);
}

inline auto FieldsOf(CKRMCGetDataMonitorListCmdAdaptDataSnd&) {
    return std::tie();
}

inline auto FieldsOf(CKRMCGetDataMonitorListCmdAdaptDataRcv& it) {
    return std::tie(it.Data, it.m_uchA8SupportData);
}

inline auto FieldsOf(CKRMCStartDataMonitorCmdAdaptDataSnd& it) {
    return std::tie(it.Data, it.m_cOscInfoList, it.m_ushOscTimeId);
}

inline auto FieldsOf(CKRMCStartDataMonitorCmdAdaptDataRcv& it) {
    return std::tie(it.m_bDataMonitorEnable, it.Data);
}

inline auto FieldsOf(CKRMCGetDataMonitorValueCmdAdaptDataSnd& it) {
    return std::tie(it.m_ushDataMonitorId);
}

inline auto FieldsOf(CKRMCGetDataMonitorValueCmdAdaptDataRcv& it) {
    return std::tie(it.Data, it.m_ushValueReserved);
}

inline auto FieldsOf(CKRMCGetTriggerItemCmdAdaptDataSnd&) {
    return std::tie();
}

inline auto FieldsOf(CKRMCGetTriggerItemCmdAdaptDataRcv& it) {
    return std::tie(it.m_cTriggerList);
}

inline auto FieldsOf(CKRMCGetDescriptionCmdAdaptDataSnd&) {
    return std::tie();
}

inline auto FieldsOf(CKRMCGetDescriptionCmdAdaptDataRcv& it) {
    return std::tie(it.m_strDescription);
}

inline auto FieldsOf(CKRMCGetDataMonitorErrorCmdAdaptDataSnd&) {
    return std::tie();
}

inline auto FieldsOf(CKRMCGetDataMonitorErrorCmdAdaptDataRcv& it) {
    return std::tie(it.Data);
}

inline auto FieldsOf(CKRMCGetCurrentDataValueCmdAdaptDataSnd& it) {
    return std::tie(it.m_cPidIdList);
}

inline auto FieldsOf(CKRMCGetCurrentDataValueCmdAdaptDataRcv& it) {
    return std::tie(it.Data);
}

inline auto FieldsOf(CKRMCGetHexModeInfoCmdAdaptDataSnd&) {
    return std::tie();
}

inline auto FieldsOf(CKRMCGetHexModeInfoCmdAdaptDataRcv& it) {
    return std::tie(it.m_ulAddressByte);
}

inline auto FieldsOf(CKRMCGetDataMonitorReceiveInfoCmdAdaptDataSnd&) {
    return std::tie();
}

inline auto FieldsOf(CKRMCGetDataMonitorReceiveInfoCmdAdaptDataRcv& it) {
    return std::tie(it.m_cDmReceiveDataList);
}

inline auto FieldsOf(CKRMCGetUnitInfoCmdAdaptDataSnd&) {
    return std::tie();
}

inline auto FieldsOf(CKRMCGetUnitInfoCmdAdaptDataRcv& it) {
    return std::tie(it.Data);
}

#endif  // KRM_TESTS_MESSAGES_DIAG_DATA_MONITOR_FIELDS_H_

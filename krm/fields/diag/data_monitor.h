// The fields of the classes of krm/messages/diag/data_monitor.h, in the order of their declaration.
#ifndef KRM_FIELDS_DIAG_DATA_MONITOR_H_
#define KRM_FIELDS_DIAG_DATA_MONITOR_H_

#include "krm/fields/diag/display.h"
#include "krm/fields/diag/freeze_frame_item.h"
#include "krm/fields/diag/oscilloscope_channel.h"
#include "krm/fields/fields.h"
#include "krm/messages/diag/data_monitor.h"

template <>
struct krm::Fields<CKRMCCommandDiagMessage> : krm::FieldList<&CKRMCCommandDiagMessage::m_ulMsgLength> {};

template <>
struct krm::Fields<CKRMCCommandTriggerData>
    : krm::FieldList<&CKRMCCommandTriggerData::m_ushTriggerItemId, &CKRMCCommandTriggerData::m_ulNameId,
                     &CKRMCCommandTriggerData::m_strName, &CKRMCCommandTriggerData::m_ushPidId,
                     &CKRMCCommandTriggerData::m_cBeginCondition, &CKRMCCommandTriggerData::m_uchSlopeCondition,
                     &CKRMCCommandTriggerData::m_cTriggerCondition, &CKRMCCommandTriggerData::m_uchSlopeDef,
                     &CKRMCCommandTriggerData::m_cResolutionData> {};

template <>
struct krm::Fields<CKRMCCommandStartDataMonitorData>
    : krm::FieldList<&CKRMCCommandStartDataMonitorData::m_ushDataMonitorId,
                     &CKRMCCommandStartDataMonitorData::m_ulEcuId, &CKRMCCommandStartDataMonitorData::m_cPidIdList,
                     &CKRMCCommandStartDataMonitorData::m_cSubPidIdList,
                     &CKRMCCommandStartDataMonitorData::m_uchMonitorReserved1,
                     &CKRMCCommandStartDataMonitorData::m_ushMonitorReserved,
                     &CKRMCCommandStartDataMonitorData::m_uchMonitorReserved2> {};

template <>
struct krm::Fields<CKRMCCommandDataMonitorIdData>
    : krm::FieldList<&CKRMCCommandDataMonitorIdData::m_ushDataMonitorId, &CKRMCCommandDataMonitorIdData::m_ulEcuId> {};

template <>
struct krm::Fields<CKRMCCommandDmErrorData>
    : krm::FieldList<&CKRMCCommandDmErrorData::m_ushType, &CKRMCCommandDmErrorData::m_cError,
                     &CKRMCCommandDmErrorData::m_ulHelpId1, &CKRMCCommandDmErrorData::m_ulHelpId2> {};

template <>
struct krm::Fields<CKRMCCommandDmReceiveData>
    : krm::FieldList<&CKRMCCommandDmReceiveData::m_ushMessageType, &CKRMCCommandDmReceiveData::m_ulRidRecvValue,
                     &CKRMCCommandDmReceiveData::m_ushRidId> {};

template <>
struct krm::Fields<CKRMCGetDataMonitorListCmdAdaptDataSnd> : krm::FieldList<> {};

template <>
struct krm::Fields<CKRMCGetDataMonitorListCmdAdaptDataRcv>
    : krm::FieldList<&CKRMCGetDataMonitorListCmdAdaptDataRcv::Data,
                     &CKRMCGetDataMonitorListCmdAdaptDataRcv::m_uchA8SupportData> {};

template <>
struct krm::Fields<CKRMCStartDataMonitorCmdAdaptDataSnd>
    : krm::FieldList<&CKRMCStartDataMonitorCmdAdaptDataSnd::Data, &CKRMCStartDataMonitorCmdAdaptDataSnd::m_cOscInfoList,
                     &CKRMCStartDataMonitorCmdAdaptDataSnd::m_ushOscTimeId> {};

template <>
struct krm::Fields<CKRMCStartDataMonitorCmdAdaptDataRcv>
    : krm::FieldList<&CKRMCStartDataMonitorCmdAdaptDataRcv::m_bDataMonitorEnable,
                     &CKRMCStartDataMonitorCmdAdaptDataRcv::Data> {};

template <>
struct krm::Fields<CKRMCGetDataMonitorValueCmdAdaptDataSnd>
    : krm::FieldList<&CKRMCGetDataMonitorValueCmdAdaptDataSnd::m_ushDataMonitorId> {};

template <>
struct krm::Fields<CKRMCGetDataMonitorValueCmdAdaptDataRcv>
    : krm::FieldList<&CKRMCGetDataMonitorValueCmdAdaptDataRcv::Data,
                     &CKRMCGetDataMonitorValueCmdAdaptDataRcv::m_ushValueReserved> {};

template <>
struct krm::Fields<CKRMCGetTriggerItemCmdAdaptDataSnd> : krm::FieldList<> {};

template <>
struct krm::Fields<CKRMCGetTriggerItemCmdAdaptDataRcv>
    : krm::FieldList<&CKRMCGetTriggerItemCmdAdaptDataRcv::m_cTriggerList> {};

template <>
struct krm::Fields<CKRMCGetDescriptionCmdAdaptDataSnd> : krm::FieldList<> {};

template <>
struct krm::Fields<CKRMCGetDescriptionCmdAdaptDataRcv>
    : krm::FieldList<&CKRMCGetDescriptionCmdAdaptDataRcv::m_strDescription> {};

template <>
struct krm::Fields<CKRMCGetDataMonitorErrorCmdAdaptDataSnd> : krm::FieldList<> {};

template <>
struct krm::Fields<CKRMCGetDataMonitorErrorCmdAdaptDataRcv>
    : krm::FieldList<&CKRMCGetDataMonitorErrorCmdAdaptDataRcv::Data> {};

template <>
struct krm::Fields<CKRMCGetCurrentDataValueCmdAdaptDataSnd>
    : krm::FieldList<&CKRMCGetCurrentDataValueCmdAdaptDataSnd::m_cPidIdList> {};

template <>
struct krm::Fields<CKRMCGetCurrentDataValueCmdAdaptDataRcv>
    : krm::FieldList<&CKRMCGetCurrentDataValueCmdAdaptDataRcv::Data> {};

template <>
struct krm::Fields<CKRMCGetHexModeInfoCmdAdaptDataSnd> : krm::FieldList<> {};

template <>
struct krm::Fields<CKRMCGetHexModeInfoCmdAdaptDataRcv>
    : krm::FieldList<&CKRMCGetHexModeInfoCmdAdaptDataRcv::m_ulAddressByte> {};

template <>
struct krm::Fields<CKRMCGetDataMonitorReceiveInfoCmdAdaptDataSnd> : krm::FieldList<> {};

template <>
struct krm::Fields<CKRMCGetDataMonitorReceiveInfoCmdAdaptDataRcv>
    : krm::FieldList<&CKRMCGetDataMonitorReceiveInfoCmdAdaptDataRcv::m_cDmReceiveDataList> {};

template <>
struct krm::Fields<CKRMCGetUnitInfoCmdAdaptDataSnd> : krm::FieldList<> {};

template <>
struct krm::Fields<CKRMCGetUnitInfoCmdAdaptDataRcv> : krm::FieldList<&CKRMCGetUnitInfoCmdAdaptDataRcv::Data> {};

#endif  // KRM_FIELDS_DIAG_DATA_MONITOR_H_

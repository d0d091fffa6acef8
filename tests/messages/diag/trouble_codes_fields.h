// The fields of the trouble-code, freeze-frame and event records and messages, in order.
#ifndef KRM_TESTS_MESSAGES_DIAG_TROUBLE_CODES_FIELDS_H_
#define KRM_TESTS_MESSAGES_DIAG_TROUBLE_CODES_FIELDS_H_

#include <tuple>

#include "krm/messages/diag/data_monitor.h"
#include "krm/messages/diag/event_records.h"
#include "krm/messages/diag/freeze_frame_item.h"
#include "krm/messages/diag/freeze_frames.h"
#include "krm/messages/diag/trouble_code.h"
#include "krm/messages/diag/trouble_codes.h"
#include "tests/messages/diag/display_fields.h"
#include "tests/messages/diag/words_fields.h"
#include "tests/support/fields.h"

inline auto FieldsOf(CKRMCCommandFFDData& it) {
    return std::tie(it.m_ushId, it.m_ulNameId, it.m_strName, it.m_strFFDText, it.m_ulUnitPhysId, it.m_strUnitPhys,
                    it.m_ulUnitId, it.m_strUnit, it.m_ulFFDReserved, it.m_uchDataType, it.m_uchDecPntCount,
                    it.m_uchUnitConvDecPntCount, it.m_cConversionTbl, it.m_cResolutionData, it.m_cDispDataList,
                    it.m_cDataLayout);
}

inline auto FieldsOf(CKRMCCommandDTCData& it) {
    return std::tie(it.m_uchDTCKind, it.m_ulDTCCode, it.m_strDTC, it.m_ulDTCNameId, it.m_strDTCName,
                    it.m_ulDTCDivNameId, it.m_strDTCDivName, it.m_chFFDType, it.m_uchFFDId, it.m_strComment,
                    it.m_uchSSRNo, it.m_uchSDRNo, it.m_uchDTCType, it.m_ulDTCTypeNameId, it.m_strDTCTypeName,
                    it.m_ulDTCTypeToolId, it.m_strDTCTypeTool, it.m_uchDTCStatus, it.m_ulDTCStatusNameId,
                    it.m_strDTCStatusName, it.m_ulDTCStatusToolId, it.m_strDTCStatusTool, it.m_bTripTime,
                    it.m_bFailTripTime, it.m_cTripTime, it.m_bAfterIgOnTime, it.m_bFailAfterIgOnTime,
                    it.m_cAfterIgOnTime, it.m_ulOriginalCountId, it.m_cClockType, it.m_bStatusOfDTC,
                    it.m_uchStatusOfDTC, it.m_ulDTCGroupId);
}

inline auto FieldsOf(CKRMCCommandDtcFfdData& it) {
    return std::tie(it.m_uchDTCKind, it.m_ulDTCCode, it.m_strDTC, it.m_ulDTCNameId, it.m_strDTCName, it.m_chFFDType,
                    it.m_uchFFDId, it.m_strDtcFfdText, it.m_cFFDList, it.m_uchDTCType, it.m_ulDTCTypeNameId,
                    it.m_strDTCTypeName, it.m_uchDTCStatus, it.m_ulDTCStatusNameId, it.m_strDTCStatusName,
                    it.m_bTripTime, it.m_bFailTripTime, it.m_cTripTime, it.m_bAfterIgOnTime, it.m_bFailAfterIgOnTime,
                    it.m_cAfterIgOnTime, it.m_ulOriginalCountId, it.m_cClockType, it.m_bStatusOfDTC,
                    it.m_uchStatusOfDTC, it.m_ulDTCGroupId, it.m_uchSubFunction);
}

inline auto FieldsOf(CKRMCCommandAbsFFDData& it) {
    return std::tie(it.m_ulSystemId, it.m_strSystem, it.m_uchFFDId, it.m_uchIndex);
}

inline auto FieldsOf(CKRMCAbsoluteTimeInfo& it) {
    return std::tie(it.m_cTripTime, it.m_cInternalClock, it.m_cGPSTimeYear, it.m_cGPSTimeMonth, it.m_cGPSTimeDay,
                    it.m_cGPSTimeHour, it.m_cGPSTimeMinute, it.m_cGPSTimeSecond, it.m_cTimeDifferenceSign,
                    it.m_cTimeDifferenceHour, it.m_cTimeDifferenceMinute, it.m_cDST);
}

inline auto FieldsOf(CKRMCCommandDiagDetailData& it) {
    return std::tie(it.m_ulDiagDetailId, it.m_ulDiagDetailCode, it.m_cDiagDetailDataList);
}

inline auto FieldsOf(CKRMCCommandDiagMessage& it) {
    return std::tie(it.m_ulMsgLength);
}

inline auto FieldsOf(CKRMCCommandEventRecordDataItem& it) {
    return std::tie(it.m_ushEventRecordDataItemId, it.m_ulEventRecordDataItemNameId, it.m_strEventRecordDataItemName,
                    it.m_bRecordData);
}

inline auto FieldsOf(CKRMCCommandRecordDataItem& it) {
    return std::tie(it.m_ushRecordDataItemId, it.m_ulRecordDataItemNameId, it.m_strRecordDataItemName);
}

inline auto FieldsOf(CKRMCEcuSpecificInfo& it) {
    return std::tie(it.m_ulEcuId, it.m_ushBusId);
}

inline auto FieldsOf(CKRMCGetDTCCmdAdaptDataSnd& it) {
    return std::tie(it.m_uchPhaseType, it.m_uchGetFFDType);
}

inline auto FieldsOf(CKRMCGetDTCCmdAdaptDataRcv& it) {
    return std::tie(it.Data, it.m_bDTCType, it.m_ulReadynessStatus);
}

inline auto FieldsOf(CKRMCClearDTCCmdAdaptDataSnd&) {
    return std::tie();
}

inline auto FieldsOf(CKRMCClearDTCCmdAdaptDataRcv& it) {
    return std::tie(it.m_ulResult);
}

inline auto FieldsOf(CKRMCGetFFDCmdAdaptDataSnd& it) {
    return std::tie(it.m_uchFFDId, it.m_uchSSRNoList, it.m_uchSDRNoList, it.m_ulDTC, it.m_cPidId, it.m_uchSubFunction,
                    it.m_uchDTCType);
}

inline auto FieldsOf(CKRMCGetFFDCmdAdaptDataRcv& it) {
    return std::tie(it.m_bMultiFFD, it.m_chBegin, it.m_lBegin, it.m_chEnd, it.m_lEnd, it.Data);
}

inline auto FieldsOf(CKRMCIsMultiFFDCmdAdaptDataSnd& it) {
    return std::tie(it.m_uchPhaseType, it.m_uchFFDId, it.m_uchSSRNoList, it.m_uchSDRNoList, it.m_ulDTC);
}

inline auto FieldsOf(CKRMCIsMultiFFDCmdAdaptDataRcv& it) {
    return std::tie(it.m_bMultiFFD, it.m_chFFDType);
}

inline auto FieldsOf(CKRMCGetDiagDetailCmdAdaptDataSnd& it) {
    return std::tie(it.m_uchFFDId);
}

inline auto FieldsOf(CKRMCGetDiagDetailCmdAdaptDataRcv& it) {
    return std::tie(it.Data);
}

inline auto FieldsOf(CKRMCIsAbsFFDCmdAdaptDataSnd&) {
    return std::tie();
}

inline auto FieldsOf(CKRMCIsAbsFFDCmdAdaptDataRcv& it) {
    return std::tie(it.m_uchType, it.Data);
}

inline auto FieldsOf(CKRMCGetCurrentTimeInfoCmdAdaptDataSnd&) {
    return std::tie();
}

inline auto FieldsOf(CKRMCGetCurrentTimeInfoCmdAdaptDataRcv& it) {
    return std::tie(it.m_bSupport, it.m_bTripTime, it.m_bFailTripTime, it.m_cTripTime, it.m_bAfterIgOnTime,
                    it.m_bFailAfterIgOnTime, it.m_cAfterIgOnTime);
}

inline auto FieldsOf(CKRMCGetAbsoluteTimeInfoCmdAdaptDataSnd& it) {
    return std::tie(it.m_cTargetEcuList, it.m_cTripTimeList);
}

inline auto FieldsOf(CKRMCGetAbsoluteTimeInfoCmdAdaptDataRcv& it) {
    return std::tie(it.m_cCommEcuList, it.m_cAbsoluteTimeInfoList);
}

inline auto FieldsOf(CKRMCGetEventRecordDataListCmdAdaptDataSnd&) {
    return std::tie();
}

inline auto FieldsOf(CKRMCGetEventRecordDataListCmdAdaptDataRcv& it) {
    return std::tie(it.Data);
}

inline auto FieldsOf(CKRMCGetRecordDataListCmdAdaptDataSnd& it) {
    return std::tie(it.m_ushEventRecordDataItemId);
}

inline auto FieldsOf(CKRMCGetRecordDataListCmdAdaptDataRcv& it) {
    return std::tie(it.Data);
}

inline auto FieldsOf(CKRMCGetEventRecordDataCmdAdaptDataSnd& it) {
    return std::tie(it.m_ushEventRecordDataItemId, it.m_ushRecordDataItemId);
}

inline auto FieldsOf(CKRMCGetEventRecordDataCmdAdaptDataRcv& it) {
    return std::tie(it.m_bTimeInfoFlag, it.m_chBegin, it.m_chEnd, it.Data);
}

inline auto FieldsOf(CKRMCGetEOPInspectionResultMessageCmdAdaptDataSnd::EOPData& it) {
    return std::tie(it.m_ulEOPData);
}

inline auto FieldsOf(CKRMCGetEOPInspectionResultMessageCmdAdaptDataSnd& it) {
    return std::tie(it.Data);
}

inline auto FieldsOf(CKRMCGetEOPInspectionResultMessageCmdAdaptDataRcv& it) {
    return std::tie(it.Data);
}

inline auto FieldsOf(CKRMCGetDtcFfdCmdAdaptDataSnd&) {
    return std::tie();
}

inline auto FieldsOf(CKRMCGetDtcFfdCmdAdaptDataRcv& it) {
    return std::tie(it.Data);
}

#endif  // KRM_TESTS_MESSAGES_DIAG_TROUBLE_CODES_FIELDS_H_

// The fields of the classes of krm/messages/diag/freeze_frames.h, in order.
#ifndef KRM_TESTS_MESSAGES_DIAG_FREEZE_FRAMES_FIELDS_H_
#define KRM_TESTS_MESSAGES_DIAG_FREEZE_FRAMES_FIELDS_H_

#include <tuple>

#include "krm/messages/diag/freeze_frames.h"
#include "tests/messages/diag/freeze_frame_item_fields.h"
#include "tests/support/fields.h"

inline auto FieldsOf(CKRMCCommandAbsFFDData& it) {
    return std::tie(it.m_ulSystemId, it.m_strSystem, it.m_uchFFDId, it.m_uchIndex);
}

inline auto FieldsOf(CKRMCAbsoluteTimeInfo& it) {
    return std::tie(it.m_cTripTime, it.m_cInternalClock, it.m_cGPSTimeYear, it.m_cGPSTimeMonth, it.m_cGPSTimeDay,
                    it.m_cGPSTimeHour, it.m_cGPSTimeMinute, it.m_cGPSTimeSecond, it.m_cTimeDifferenceSign,
                    it.m_cTimeDifferenceHour, it.m_cTimeDifferenceMinute, it.m_cDST);
}

inline auto FieldsOf(CKRMCEcuSpecificInfo& it) {
    return std::tie(it.m_ulEcuId, it.m_ushBusId);
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

#endif  // KRM_TESTS_MESSAGES_DIAG_FREEZE_FRAMES_FIELDS_H_

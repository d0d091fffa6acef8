// The fields of the classes of krm/messages/diag/trouble_codes.h, in order.
#ifndef KRM_TESTS_MESSAGES_DIAG_TROUBLE_CODES_FIELDS_H_
#define KRM_TESTS_MESSAGES_DIAG_TROUBLE_CODES_FIELDS_H_

#include <tuple>

#include "krm/messages/diag/trouble_codes.h"
#include "tests/messages/diag/freeze_frame_item_fields.h"
#include "tests/messages/diag/trouble_code_fields.h"
#include "tests/messages/diag/words_fields.h"
#include "tests/support/fields.h"

inline auto FieldsOf(CKRMCCommandDtcFfdData& it) {
    return std::tie(it.m_uchDTCKind, it.m_ulDTCCode, it.m_strDTC, it.m_ulDTCNameId, it.m_strDTCName, it.m_chFFDType,
                    it.m_uchFFDId, it.m_strDtcFfdText, it.m_cFFDList, it.m_uchDTCType, it.m_ulDTCTypeNameId,
                    it.m_strDTCTypeName, it.m_uchDTCStatus, it.m_ulDTCStatusNameId, it.m_strDTCStatusName,
                    it.m_bTripTime, it.m_bFailTripTime, it.m_cTripTime, it.m_bAfterIgOnTime, it.m_bFailAfterIgOnTime,
                    it.m_cAfterIgOnTime, it.m_ulOriginalCountId, it.m_cClockType, it.m_bStatusOfDTC,
                    it.m_uchStatusOfDTC, it.m_ulDTCGroupId, it.m_uchSubFunction);
}

inline auto FieldsOf(CKRMCCommandDiagDetailData& it) {
    return std::tie(it.m_ulDiagDetailId, it.m_ulDiagDetailCode, it.m_cDiagDetailDataList);
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

inline auto FieldsOf(CKRMCGetDiagDetailCmdAdaptDataSnd& it) {
    return std::tie(it.m_uchFFDId);
}

inline auto FieldsOf(CKRMCGetDiagDetailCmdAdaptDataRcv& it) {
    return std::tie(it.Data);
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

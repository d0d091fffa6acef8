// The fields of the classes of krm/messages/diag/cancel_codes.h, in order.
#ifndef KRM_TESTS_MESSAGES_DIAG_CANCEL_CODES_FIELDS_H_
#define KRM_TESTS_MESSAGES_DIAG_CANCEL_CODES_FIELDS_H_

#include <tuple>

#include "krm/messages/diag/cancel_codes.h"
#include "tests/messages/diag/freeze_frame_item_fields.h"
#include "tests/messages/diag/trouble_code_fields.h"
#include "tests/support/fields.h"

inline auto FieldsOf(CKRMCCommandCancelCodeData& it) {
    return std::tie(it.m_uchKind, it.m_uchStatus, it.m_ulCode, it.m_strCode, it.m_ulExplanationId, it.m_strExplanation,
                    it.m_bTripCount, it.m_cTripCount, it.m_bTimeCount, it.m_cTimeCount, it.m_bTripGroup,
                    it.m_cTripGroup, it.m_bOccurrenceCount, it.m_cOccurrenceCount, it.m_bMainUnitTemperature,
                    it.m_cMainUnitTemperature, it.m_bCameraUnitTemperature, it.m_cCameraUnitTemperature);
}

inline auto FieldsOf(CKRMCCommandCancelCodeCategoryInfo& it) {
    return std::tie(it.m_ushCategoryId, it.m_ulCategoryNameId, it.m_strCategoryName, it.m_ulWarningMessageId,
                    it.m_strWarningMessage);
}

inline auto FieldsOf(CKRMCGetCancelCodeCategoryListCmdAdaptDataSnd&) {
    return std::tie();
}

inline auto FieldsOf(CKRMCGetCancelCodeCategoryListCmdAdaptDataRcv& it) {
    return std::tie(it.Data);
}

inline auto FieldsOf(CKRMCGetCancelCodeCmdAdaptDataSnd& it) {
    return std::tie(it.m_ushCategoryId);
}

inline auto FieldsOf(CKRMCGetCancelCodeCmdAdaptDataRcv& it) {
    return std::tie(it.m_cDTCList, it.Data, it.m_bProhibit);
}

#endif  // KRM_TESTS_MESSAGES_DIAG_CANCEL_CODES_FIELDS_H_

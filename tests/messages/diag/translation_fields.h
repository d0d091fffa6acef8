// The fields of the classes of krm/messages/diag/translation.h, in order.
#ifndef KRM_TESTS_MESSAGES_DIAG_TRANSLATION_FIELDS_H_
#define KRM_TESTS_MESSAGES_DIAG_TRANSLATION_FIELDS_H_

#include <tuple>

#include "krm/messages/diag/translation.h"
#include "tests/support/fields.h"

inline auto FieldsOf(CKRMCCommandTranslationStringData& it) {
    return std::tie(it.m_ulId, it.m_strString);
}

inline auto FieldsOf(CKRMCGetTranslationStringCmdAdaptDataSnd& it) {
    return std::tie(it.m_ulIdList);
}

inline auto FieldsOf(CKRMCGetTranslationStringCmdAdaptDataRcv& it) {
    return std::tie(it.m_cTranslationStringDataList);
}

#endif  // KRM_TESTS_MESSAGES_DIAG_TRANSLATION_FIELDS_H_

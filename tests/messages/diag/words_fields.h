// The fields of the words records and messages of the diagnostic commands, in order.
#ifndef KRM_TESTS_MESSAGES_DIAG_WORDS_FIELDS_H_
#define KRM_TESTS_MESSAGES_DIAG_WORDS_FIELDS_H_

#include <tuple>

#include "krm/messages/diag/translation.h"
#include "krm/messages/diag/words.h"
#include "tests/support/fields.h"

inline auto FieldsOf(CKRMCCommandWordsData& it) {
    return std::tie(it.m_ulWordsId, it.m_strWords);
}

inline auto FieldsOf(CKRMCCommandTranslationStringData& it) {
    return std::tie(it.m_ulId, it.m_strString);
}

inline auto FieldsOf(CKRMCGetTranslationStringCmdAdaptDataSnd& it) {
    return std::tie(it.m_ulIdList);
}

inline auto FieldsOf(CKRMCGetTranslationStringCmdAdaptDataRcv& it) {
    return std::tie(it.m_cTranslationStringDataList);
}

#endif  // KRM_TESTS_MESSAGES_DIAG_WORDS_FIELDS_H_

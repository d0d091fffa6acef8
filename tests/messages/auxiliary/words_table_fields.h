// The fields of the classes of krm/messages/auxiliary/words_table.h, in order.
#ifndef KRM_TESTS_MESSAGES_AUXILIARY_WORDS_TABLE_FIELDS_H_
#define KRM_TESTS_MESSAGES_AUXILIARY_WORDS_TABLE_FIELDS_H_

#include <tuple>

#include "krm/messages/auxiliary/words_table.h"
#include "tests/support/fields.h"

inline auto FieldsOf(CKRMCDiagWordsTableCreationData& it) {
    return std::tie(it.m_ushIdType, it.m_strValue);
}

inline auto FieldsOf(CKRMCDiagWordsTableTranslationStringData& it) {
    return std::tie(it.m_ulId, it.m_strString);
}

inline auto FieldsOf(CKRMCCreateDiagWordsTableDwtAdaptDataSnd& it) {
    return std::tie(it.Data);
}

inline auto FieldsOf(CKRMCCreateDiagWordsTableDwtAdaptDataRcv&) {
    return std::tie();
}

inline auto FieldsOf(CKRMCGetTranslationStringDwtAdaptDataSnd& it) {
    return std::tie(it.m_ulIdList);
}

inline auto FieldsOf(CKRMCGetTranslationStringDwtAdaptDataRcv& it) {
    return std::tie(it.m_cTranslationStringDataList);
}

#endif  // KRM_TESTS_MESSAGES_AUXILIARY_WORDS_TABLE_FIELDS_H_

// The fields of the classes of krm/messages/diag/words.h, in order.
#ifndef KRM_TESTS_MESSAGES_DIAG_WORDS_FIELDS_H_
#define KRM_TESTS_MESSAGES_DIAG_WORDS_FIELDS_H_

#include <tuple>

#include "krm/messages/diag/words.h"
#include "tests/support/fields.h"

inline auto FieldsOf(CKRMCCommandWordsData& it) {
    return std::tie(it.m_ulWordsId, it.m_strWords);
}

#endif  // KRM_TESTS_MESSAGES_DIAG_WORDS_FIELDS_H_

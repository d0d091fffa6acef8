// The fields of the classes of krm/messages/diag/words.h, in the order of their declaration.
#ifndef KRM_FIELDS_DIAG_WORDS_H_
#define KRM_FIELDS_DIAG_WORDS_H_

#include "krm/fields/fields.h"
#include "krm/messages/diag/words.h"

template <>
struct krm::Fields<CKRMCCommandWordsData>
    : krm::FieldList<&CKRMCCommandWordsData::m_ulWordsId, &CKRMCCommandWordsData::m_strWords> {};

#endif  // KRM_FIELDS_DIAG_WORDS_H_

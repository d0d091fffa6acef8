// The fields of the classes of krm/messages/auxiliary/words_table.h, in the order of their declaration.
#ifndef KRM_FIELDS_AUXILIARY_WORDS_TABLE_H_
#define KRM_FIELDS_AUXILIARY_WORDS_TABLE_H_

#include "krm/fields/fields.h"
#include "krm/messages/auxiliary/words_table.h"

template <>
struct krm::Fields<CKRMCDiagWordsTableCreationData>
    : krm::FieldList<&CKRMCDiagWordsTableCreationData::m_ushIdType, &CKRMCDiagWordsTableCreationData::m_strValue> {};

template <>
struct krm::Fields<CKRMCDiagWordsTableTranslationStringData>
    : krm::FieldList<&CKRMCDiagWordsTableTranslationStringData::m_ulId,
                     &CKRMCDiagWordsTableTranslationStringData::m_strString> {};

template <>
struct krm::Fields<CKRMCCreateDiagWordsTableDwtAdaptDataSnd>
    : krm::FieldList<&CKRMCCreateDiagWordsTableDwtAdaptDataSnd::Data> {};

template <>
struct krm::Fields<CKRMCCreateDiagWordsTableDwtAdaptDataRcv> : krm::FieldList<> {};

template <>
struct krm::Fields<CKRMCGetTranslationStringDwtAdaptDataSnd>
    : krm::FieldList<&CKRMCGetTranslationStringDwtAdaptDataSnd::m_ulIdList> {};

template <>
struct krm::Fields<CKRMCGetTranslationStringDwtAdaptDataRcv>
    : krm::FieldList<&CKRMCGetTranslationStringDwtAdaptDataRcv::m_cTranslationStringDataList> {};

#endif  // KRM_FIELDS_AUXILIARY_WORDS_TABLE_H_

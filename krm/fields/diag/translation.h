// The fields of the classes of krm/messages/diag/translation.h, in the order of their declaration.
#ifndef KRM_FIELDS_DIAG_TRANSLATION_H_
#define KRM_FIELDS_DIAG_TRANSLATION_H_

#include "krm/fields/fields.h"
#include "krm/messages/diag/translation.h"

template <>
struct krm::Fields<CKRMCCommandTranslationStringData>
    : krm::FieldList<&CKRMCCommandTranslationStringData::m_ulId, &CKRMCCommandTranslationStringData::m_strString> {};

template <>
struct krm::Fields<CKRMCGetTranslationStringCmdAdaptDataSnd>
    : krm::FieldList<&CKRMCGetTranslationStringCmdAdaptDataSnd::m_ulIdList> {};

template <>
struct krm::Fields<CKRMCGetTranslationStringCmdAdaptDataRcv>
    : krm::FieldList<&CKRMCGetTranslationStringCmdAdaptDataRcv::m_cTranslationStringDataList> {};

#endif  // KRM_FIELDS_DIAG_TRANSLATION_H_

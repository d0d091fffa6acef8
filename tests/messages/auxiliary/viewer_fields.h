// The fields of the classes of krm/messages/auxiliary/viewer.h, in order.
#ifndef KRM_TESTS_MESSAGES_AUXILIARY_VIEWER_FIELDS_H_
#define KRM_TESTS_MESSAGES_AUXILIARY_VIEWER_FIELDS_H_

#include <tuple>

#include "krm/messages/auxiliary/viewer.h"
#include "tests/support/fields.h"

inline auto FieldsOf(CKRMCDbHelpInfo& it) {
    return std::tie(it.m_uchHelpType, it.m_uchHelpIndex, it.m_strHelpInfo);
}

inline auto FieldsOf(CKRMCCreateViewerDataCtrlVdcAdaptDataSnd& it) {
    return std::tie(it.m_strDataName, it.m_strLanguage);
}

inline auto FieldsOf(CKRMCCreateViewerDataCtrlVdcAdaptDataRcv&) {
    return std::tie();
}

inline auto FieldsOf(CKRMCGetHelpInfoVdcAdptDataSnd& it) {
    return std::tie(it.m_ulHelpId);
}

inline auto FieldsOf(CKRMCGetHelpInfoVdcAdptDataRcv& it) {
    return std::tie(it.Data);
}

inline auto FieldsOf(CKRMCGetPcViewerResourceVdcAdptDataSnd& it) {
    return std::tie(it.m_ulResourceType, it.m_strResourceName, it.m_strLanguage);
}

inline auto FieldsOf(CKRMCGetPcViewerResourceVdcAdptDataRcv& it) {
    return std::tie(it.m_strResourceName, it.m_cResourceMap);
}

inline auto FieldsOf(CKRMCGetHideAllDataVdcAdaptDataSnd&) {
    return std::tie();
}

inline auto FieldsOf(CKRMCGetHideAllDataVdcAdaptDataRcv& it) {
    return std::tie(it.m_ushHideDataList);
}

inline auto FieldsOf(CKRMCGetSecurityLevelVdcAdaptDataSnd& it) {
    return std::tie(it.m_strTarget);
}

inline auto FieldsOf(CKRMCGetSecurityLevelVdcAdaptDataRcv& it) {
    return std::tie(it.m_ulSecurityLevel);
}

#endif  // KRM_TESTS_MESSAGES_AUXILIARY_VIEWER_FIELDS_H_

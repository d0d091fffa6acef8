// The fields of the classes of krm/messages/auxiliary/viewer.h, in the order of their declaration.
#ifndef KRM_FIELDS_AUXILIARY_VIEWER_H_
#define KRM_FIELDS_AUXILIARY_VIEWER_H_

#include "krm/fields/fields.h"
#include "krm/messages/auxiliary/viewer.h"

template <>
struct krm::Fields<CKRMCDbHelpInfo> : krm::FieldList<&CKRMCDbHelpInfo::m_uchHelpType, &CKRMCDbHelpInfo::m_uchHelpIndex,
                                                     &CKRMCDbHelpInfo::m_strHelpInfo> {};

template <>
struct krm::Fields<CKRMCCreateViewerDataCtrlVdcAdaptDataSnd>
    : krm::FieldList<&CKRMCCreateViewerDataCtrlVdcAdaptDataSnd::m_strDataName,
                     &CKRMCCreateViewerDataCtrlVdcAdaptDataSnd::m_strLanguage> {};

template <>
struct krm::Fields<CKRMCCreateViewerDataCtrlVdcAdaptDataRcv> : krm::FieldList<> {};

template <>
struct krm::Fields<CKRMCGetHelpInfoVdcAdptDataSnd> : krm::FieldList<&CKRMCGetHelpInfoVdcAdptDataSnd::m_ulHelpId> {};

template <>
struct krm::Fields<CKRMCGetHelpInfoVdcAdptDataRcv> : krm::FieldList<&CKRMCGetHelpInfoVdcAdptDataRcv::Data> {};

template <>
struct krm::Fields<CKRMCGetPcViewerResourceVdcAdptDataSnd>
    : krm::FieldList<&CKRMCGetPcViewerResourceVdcAdptDataSnd::m_ulResourceType,
                     &CKRMCGetPcViewerResourceVdcAdptDataSnd::m_strResourceName,
                     &CKRMCGetPcViewerResourceVdcAdptDataSnd::m_strLanguage> {};

template <>
struct krm::Fields<CKRMCGetPcViewerResourceVdcAdptDataRcv>
    : krm::FieldList<&CKRMCGetPcViewerResourceVdcAdptDataRcv::m_strResourceName,
                     &CKRMCGetPcViewerResourceVdcAdptDataRcv::m_cResourceMap> {};

template <>
struct krm::Fields<CKRMCGetHideAllDataVdcAdaptDataSnd> : krm::FieldList<> {};

template <>
struct krm::Fields<CKRMCGetHideAllDataVdcAdaptDataRcv>
    : krm::FieldList<&CKRMCGetHideAllDataVdcAdaptDataRcv::m_ushHideDataList> {};

template <>
struct krm::Fields<CKRMCGetSecurityLevelVdcAdaptDataSnd>
    : krm::FieldList<&CKRMCGetSecurityLevelVdcAdaptDataSnd::m_strTarget> {};

template <>
struct krm::Fields<CKRMCGetSecurityLevelVdcAdaptDataRcv>
    : krm::FieldList<&CKRMCGetSecurityLevelVdcAdaptDataRcv::m_ulSecurityLevel> {};

#endif  // KRM_FIELDS_AUXILIARY_VIEWER_H_

// The fields of the classes of krm/messages/diag/utilities.h, in the order of their declaration.
#ifndef KRM_FIELDS_DIAG_UTILITIES_H_
#define KRM_FIELDS_DIAG_UTILITIES_H_

#include "krm/fields/diag/j2534_config.h"
#include "krm/fields/fields.h"
#include "krm/messages/diag/utilities.h"

template <>
struct krm::Fields<CKRMCCommandUtilityData>
    : krm::FieldList<&CKRMCCommandUtilityData::m_ulFunctionNameId, &CKRMCCommandUtilityData::m_strFunctionName,
                     &CKRMCCommandUtilityData::m_ushFunctionId, &CKRMCCommandUtilityData::m_ushPhaseType,
                     &CKRMCCommandUtilityData::m_ulEcuId, &CKRMCCommandUtilityData::m_ushBusId,
                     &CKRMCCommandUtilityData::m_ulHelpId, &CKRMCCommandUtilityData::m_ulBaudrate,
                     &CKRMCCommandUtilityData::m_ushP2Max, &CKRMCCommandUtilityData::m_ulFcCode,
                     &CKRMCCommandUtilityData::m_ulPhysAddr, &CKRMCCommandUtilityData::m_ul5bpsAddr,
                     &CKRMCCommandUtilityData::m_ulFuncAddr, &CKRMCCommandUtilityData::m_ulNTA,
                     &CKRMCCommandUtilityData::m_ulToolAddr, &CKRMCCommandUtilityData::m_uchSecurityTargetFlag,
                     &CKRMCCommandUtilityData::m_ulSpecialFunctionKey, &CKRMCCommandUtilityData::m_ulLegislatedAddr,
                     &CKRMCCommandUtilityData::m_ulP3Min, &CKRMCCommandUtilityData::m_ulStminTx,
                     &CKRMCCommandUtilityData::m_ulNBrMin, &CKRMCCommandUtilityData::m_ulCanP3Min> {};

template <>
struct krm::Fields<CKRMCCommandSpecialFunctionKeyInfo>
    : krm::FieldList<
          &CKRMCCommandSpecialFunctionKeyInfo::m_ushScreenId, &CKRMCCommandSpecialFunctionKeyInfo::m_ushFunctionId,
          &CKRMCCommandSpecialFunctionKeyInfo::m_ushFunctionDetailId, &CKRMCCommandSpecialFunctionKeyInfo::m_ulKeycode,
          &CKRMCCommandSpecialFunctionKeyInfo::m_strKeyText, &CKRMCCommandSpecialFunctionKeyInfo::m_ulCompareOptions> {
};

template <>
struct krm::Fields<CKRMCCommandCustomListData>
    : krm::FieldList<&CKRMCCommandCustomListData::m_strFileName, &CKRMCCommandCustomListData::m_strName,
                     &CKRMCCommandCustomListData::m_ushDataType, &CKRMCCommandCustomListData::m_ushSortIndex,
                     &CKRMCCommandCustomListData::m_uchInitialDispFlag> {};

template <>
struct krm::Fields<CKRMCGetUtilityListCmdAdaptDataSnd>
    : krm::FieldList<&CKRMCGetUtilityListCmdAdaptDataSnd::m_uchConnectLevel,
                     &CKRMCGetUtilityListCmdAdaptDataSnd::m_ulSecurityLevel,
                     &CKRMCGetUtilityListCmdAdaptDataSnd::m_cSpecialFunctionKeyList> {};

template <>
struct krm::Fields<CKRMCGetUtilityListCmdAdaptDataRcv>
    : krm::FieldList<&CKRMCGetUtilityListCmdAdaptDataRcv::Data,
                     &CKRMCGetUtilityListCmdAdaptDataRcv::m_cJ2534ConfigList> {};

template <>
struct krm::Fields<CKRMCGetCustomListCmdAdaptDataSnd> : krm::FieldList<> {};

template <>
struct krm::Fields<CKRMCGetCustomListCmdAdaptDataRcv> : krm::FieldList<&CKRMCGetCustomListCmdAdaptDataRcv::Data> {};

template <>
struct krm::Fields<CKRMCGetSpecialFunctionKeyListCmdAdaptDataSnd> : krm::FieldList<> {};

template <>
struct krm::Fields<CKRMCGetSpecialFunctionKeyListCmdAdaptDataRcv>
    : krm::FieldList<&CKRMCGetSpecialFunctionKeyListCmdAdaptDataRcv::Data> {};

#endif  // KRM_FIELDS_DIAG_UTILITIES_H_

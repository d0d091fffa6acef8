// The fields of the classes of krm/messages/diag/utilities.h, in order.
#ifndef KRM_TESTS_MESSAGES_DIAG_UTILITIES_FIELDS_H_
#define KRM_TESTS_MESSAGES_DIAG_UTILITIES_FIELDS_H_

#include <tuple>

#include "krm/messages/diag/utilities.h"
#include "tests/messages/diag/j2534_config_fields.h"
#include "tests/support/fields.h"

inline auto FieldsOf(CKRMCCommandUtilityData& it) {
    return std::tie(it.m_ulFunctionNameId, it.m_strFunctionName, it.m_ushFunctionId, it.m_ushPhaseType, it.m_ulEcuId,
                    it.m_ushBusId, it.m_ulHelpId, it.m_ulBaudrate, it.m_ushP2Max, it.m_ulFcCode, it.m_ulPhysAddr,
                    it.m_ul5bpsAddr, it.m_ulFuncAddr, it.m_ulNTA, it.m_ulToolAddr, it.m_uchSecurityTargetFlag,
                    it.m_ulSpecialFunctionKey, it.m_ulLegislatedAddr, it.m_ulP3Min, it.m_ulStminTx, it.m_ulNBrMin,
                    it.m_ulCanP3Min);
}

inline auto FieldsOf(CKRMCCommandSpecialFunctionKeyInfo& it) {
    return std::tie(it.m_ushScreenId, it.m_ushFunctionId, it.m_ushFunctionDetailId, it.m_ulKeycode, it.m_strKeyText,
                    it.m_ulCompareOptions);
}

inline auto FieldsOf(CKRMCCommandCustomListData& it) {
    return std::tie(it.m_strFileName, it.m_strName, it.m_ushDataType, it.m_ushSortIndex, it.m_uchInitialDispFlag);
}

inline auto FieldsOf(CKRMCGetUtilityListCmdAdaptDataSnd& it) {
    return std::tie(it.m_uchConnectLevel, it.m_ulSecurityLevel, it.m_cSpecialFunctionKeyList);
}

inline auto FieldsOf(CKRMCGetUtilityListCmdAdaptDataRcv& it) {
    return std::tie(it.Data, it.m_cJ2534ConfigList);
}

inline auto FieldsOf(CKRMCGetCustomListCmdAdaptDataSnd&) {
    return std::tie();
}

inline auto FieldsOf(CKRMCGetCustomListCmdAdaptDataRcv& it) {
    return std::tie(it.Data);
}

inline auto FieldsOf(CKRMCGetSpecialFunctionKeyListCmdAdaptDataSnd&) {
    return std::tie();
}

inline auto FieldsOf(CKRMCGetSpecialFunctionKeyListCmdAdaptDataRcv& it) {
    return std::tie(it.Data);
}

#endif  // KRM_TESTS_MESSAGES_DIAG_UTILITIES_FIELDS_H_

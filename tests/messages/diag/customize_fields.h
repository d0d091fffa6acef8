// The fields of the classes of krm/messages/diag/customize.h, in order.
#ifndef KRM_TESTS_MESSAGES_DIAG_CUSTOMIZE_FIELDS_H_
#define KRM_TESTS_MESSAGES_DIAG_CUSTOMIZE_FIELDS_H_

#include <tuple>

#include "krm/messages/diag/customize.h"
#include "tests/support/fields.h"

inline auto FieldsOf(CKRMCCommandCustomizeName& it) {
    return std::tie(it.m_ushCustomizeId, it.m_ulCustomizeNameId, it.m_strCustomizeName);
}

inline auto FieldsOf(CKRMCCommandCustomizeItemValue& it) {
    return std::tie(it.m_strDispName, it.m_ulDispNameId, it.m_ushCustomizeValue, it.m_uchCustomizeValueList);
}

inline auto FieldsOf(CKRMCCommandCustomizeItemData& it) {
    return std::tie(it.m_ushCustomizeItemId, it.m_ulCustomizeItemNameId, it.m_strCustomizeItemName, it.m_bCurrentValue,
                    it.m_ushCurrentValue, it.m_uchCurrentValueList, it.m_ulInfoId, it.m_ulPersonalizeId,
                    it.m_cCustomizeValueList);
}

inline auto FieldsOf(CKRMCCommandCustomizeItemSetData& it) {
    return std::tie(it.m_ushCustomizeId, it.m_ushCustomizeItemId, it.m_ushCustomizeValue, it.m_uchCustomizeValueList);
}

inline auto FieldsOf(CKRMCCommandCustomizeItemResult& it) {
    return std::tie(it.m_ushCustomizeId, it.m_ushCustomizeItemId, it.m_bSuccess);
}

inline auto FieldsOf(CKRMCGetCustomizeSupportListCmdAdaptDataSnd&) {
    return std::tie();
}

inline auto FieldsOf(CKRMCGetCustomizeSupportListCmdAdaptDataRcv& it) {
    return std::tie(it.Data);
}

inline auto FieldsOf(CKRMCGetCustomizeItemListCmdAdaptDataSnd& it) {
    return std::tie(it.m_ushCustomizeId, it.m_bGetCurrentValue, it.m_cSpecialFunctionKeyList, it.m_ulPersonalizeId);
}

inline auto FieldsOf(CKRMCGetCustomizeItemListCmdAdaptDataRcv& it) {
    return std::tie(it.Data);
}

inline auto FieldsOf(CKRMCSetCustomizeItemCmdAdaptDataSnd& it) {
    return std::tie(it.Data);
}

inline auto FieldsOf(CKRMCSetCustomizeItemCmdAdaptDataRcv& it) {
    return std::tie(it.Data);
}

inline auto FieldsOf(CKRMCGetCustomizeDestinationCmdAdaptDataSnd&) {
    return std::tie();
}

inline auto FieldsOf(CKRMCGetCustomizeDestinationCmdAdaptDataRcv& it) {
    return std::tie(it.m_bEnable, it.m_ulDestinationDispId, it.m_strDestinationDisp);
}

inline auto FieldsOf(CKRMCSetCustomizeDestinationCmdAdaptDataSnd& it) {
    return std::tie(it.m_strDestinationCode);
}

inline auto FieldsOf(CKRMCSetCustomizeDestinationCmdAdaptDataRcv& it) {
    return std::tie(it.m_bInvalidCode);
}

#endif  // KRM_TESTS_MESSAGES_DIAG_CUSTOMIZE_FIELDS_H_

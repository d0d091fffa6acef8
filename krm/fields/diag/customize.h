// The fields of the classes of krm/messages/diag/customize.h, in the order of their declaration.
#ifndef KRM_FIELDS_DIAG_CUSTOMIZE_H_
#define KRM_FIELDS_DIAG_CUSTOMIZE_H_

#include "krm/fields/fields.h"
#include "krm/messages/diag/customize.h"

template <>
struct krm::Fields<CKRMCCommandCustomizeName>
    : krm::FieldList<&CKRMCCommandCustomizeName::m_ushCustomizeId, &CKRMCCommandCustomizeName::m_ulCustomizeNameId,
                     &CKRMCCommandCustomizeName::m_strCustomizeName> {};

template <>
struct krm::Fields<CKRMCCommandCustomizeItemValue>
    : krm::FieldList<&CKRMCCommandCustomizeItemValue::m_strDispName, &CKRMCCommandCustomizeItemValue::m_ulDispNameId,
                     &CKRMCCommandCustomizeItemValue::m_ushCustomizeValue,
                     &CKRMCCommandCustomizeItemValue::m_uchCustomizeValueList> {};

template <>
struct krm::Fields<CKRMCCommandCustomizeItemData>
    : krm::FieldList<
          &CKRMCCommandCustomizeItemData::m_ushCustomizeItemId, &CKRMCCommandCustomizeItemData::m_ulCustomizeItemNameId,
          &CKRMCCommandCustomizeItemData::m_strCustomizeItemName, &CKRMCCommandCustomizeItemData::m_bCurrentValue,
          &CKRMCCommandCustomizeItemData::m_ushCurrentValue, &CKRMCCommandCustomizeItemData::m_uchCurrentValueList,
          &CKRMCCommandCustomizeItemData::m_ulInfoId, &CKRMCCommandCustomizeItemData::m_ulPersonalizeId,
          &CKRMCCommandCustomizeItemData::m_cCustomizeValueList> {};

template <>
struct krm::Fields<CKRMCCommandCustomizeItemSetData>
    : krm::FieldList<&CKRMCCommandCustomizeItemSetData::m_ushCustomizeId,
                     &CKRMCCommandCustomizeItemSetData::m_ushCustomizeItemId,
                     &CKRMCCommandCustomizeItemSetData::m_ushCustomizeValue,
                     &CKRMCCommandCustomizeItemSetData::m_uchCustomizeValueList> {};

template <>
struct krm::Fields<CKRMCCommandCustomizeItemResult>
    : krm::FieldList<&CKRMCCommandCustomizeItemResult::m_ushCustomizeId,
                     &CKRMCCommandCustomizeItemResult::m_ushCustomizeItemId,
                     &CKRMCCommandCustomizeItemResult::m_bSuccess> {};

template <>
struct krm::Fields<CKRMCGetCustomizeSupportListCmdAdaptDataSnd> : krm::FieldList<> {};

template <>
struct krm::Fields<CKRMCGetCustomizeSupportListCmdAdaptDataRcv>
    : krm::FieldList<&CKRMCGetCustomizeSupportListCmdAdaptDataRcv::Data> {};

template <>
struct krm::Fields<CKRMCGetCustomizeItemListCmdAdaptDataSnd>
    : krm::FieldList<&CKRMCGetCustomizeItemListCmdAdaptDataSnd::m_ushCustomizeId,
                     &CKRMCGetCustomizeItemListCmdAdaptDataSnd::m_bGetCurrentValue,
                     &CKRMCGetCustomizeItemListCmdAdaptDataSnd::m_cSpecialFunctionKeyList,
                     &CKRMCGetCustomizeItemListCmdAdaptDataSnd::m_ulPersonalizeId> {};

template <>
struct krm::Fields<CKRMCGetCustomizeItemListCmdAdaptDataRcv>
    : krm::FieldList<&CKRMCGetCustomizeItemListCmdAdaptDataRcv::Data> {};

template <>
struct krm::Fields<CKRMCSetCustomizeItemCmdAdaptDataSnd> : krm::FieldList<&CKRMCSetCustomizeItemCmdAdaptDataSnd::Data> {
};

template <>
struct krm::Fields<CKRMCSetCustomizeItemCmdAdaptDataRcv> : krm::FieldList<&CKRMCSetCustomizeItemCmdAdaptDataRcv::Data> {
};

template <>
struct krm::Fields<CKRMCGetCustomizeDestinationCmdAdaptDataSnd> : krm::FieldList<> {};

template <>
struct krm::Fields<CKRMCGetCustomizeDestinationCmdAdaptDataRcv>
    : krm::FieldList<&CKRMCGetCustomizeDestinationCmdAdaptDataRcv::m_bEnable,
                     &CKRMCGetCustomizeDestinationCmdAdaptDataRcv::m_ulDestinationDispId,
                     &CKRMCGetCustomizeDestinationCmdAdaptDataRcv::m_strDestinationDisp> {};

template <>
struct krm::Fields<CKRMCSetCustomizeDestinationCmdAdaptDataSnd>
    : krm::FieldList<&CKRMCSetCustomizeDestinationCmdAdaptDataSnd::m_strDestinationCode> {};

template <>
struct krm::Fields<CKRMCSetCustomizeDestinationCmdAdaptDataRcv>
    : krm::FieldList<&CKRMCSetCustomizeDestinationCmdAdaptDataRcv::m_bInvalidCode> {};

#endif  // KRM_FIELDS_DIAG_CUSTOMIZE_H_

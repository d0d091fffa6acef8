// The fields of the classes of krm/messages/auxiliary/unit_conversion.h, in the order of their declaration.
#ifndef KRM_FIELDS_AUXILIARY_UNIT_CONVERSION_H_
#define KRM_FIELDS_AUXILIARY_UNIT_CONVERSION_H_

#include "krm/fields/fields.h"
#include "krm/messages/auxiliary/unit_conversion.h"

template <>
struct krm::Fields<CKRMCUnitConversionData>
    : krm::FieldList<&CKRMCUnitConversionData::m_uchGroupId, &CKRMCUnitConversionData::m_strGroupName,
                     &CKRMCUnitConversionData::m_uchItemId, &CKRMCUnitConversionData::m_strItemName,
                     &CKRMCUnitConversionData::m_uchUnitId, &CKRMCUnitConversionData::m_strUnitName,
                     &CKRMCUnitConversionData::m_ushGenreId> {};

template <>
struct krm::Fields<CKRMCUnitConvDataItemInfo>
    : krm::FieldList<&CKRMCUnitConvDataItemInfo::m_uchItemId, &CKRMCUnitConvDataItemInfo::m_strItemName,
                     &CKRMCUnitConvDataItemInfo::m_cUnitList> {};

template <>
struct krm::Fields<CKRMCUnitConvDataSettingInfo>
    : krm::FieldList<&CKRMCUnitConvDataSettingInfo::m_uchGroupId, &CKRMCUnitConvDataSettingInfo::m_cSettingList> {};

template <>
struct krm::Fields<CKRMCUnitConversionCreationData>
    : krm::FieldList<&CKRMCUnitConversionCreationData::m_ushIdType, &CKRMCUnitConversionCreationData::m_strValue> {};

template <>
struct krm::Fields<CKRMCCreateUnitConversionCommandUccAdaptDataSnd>
    : krm::FieldList<&CKRMCCreateUnitConversionCommandUccAdaptDataSnd::Data> {};

template <>
struct krm::Fields<CKRMCCreateUnitConversionCommandUccAdaptDataRcv> : krm::FieldList<> {};

template <>
struct krm::Fields<CKRMCGetUnitConversionInfoListUccAdaptDataSnd> : krm::FieldList<> {};

template <>
struct krm::Fields<CKRMCGetUnitConversionInfoListUccAdaptDataRcv>
    : krm::FieldList<&CKRMCGetUnitConversionInfoListUccAdaptDataRcv::Data> {};

template <>
struct krm::Fields<CKRMCSetUnitConversionInfoUccAdaptDataSnd>
    : krm::FieldList<&CKRMCSetUnitConversionInfoUccAdaptDataSnd::Data> {};

template <>
struct krm::Fields<CKRMCSetUnitConversionInfoUccAdaptDataRcv>
    : krm::FieldList<&CKRMCSetUnitConversionInfoUccAdaptDataRcv::Data> {};

template <>
struct krm::Fields<CKRMCGetUnitSettingGroupListUccAdaptDataSnd> : krm::FieldList<> {};

template <>
struct krm::Fields<CKRMCGetUnitSettingGroupListUccAdaptDataRcv>
    : krm::FieldList<&CKRMCGetUnitSettingGroupListUccAdaptDataRcv::Data> {};

template <>
struct krm::Fields<CKRMCGetUnitSettingGroupParamListUccAdaptDataSnd>
    : krm::FieldList<&CKRMCGetUnitSettingGroupParamListUccAdaptDataSnd::Data> {};

template <>
struct krm::Fields<CKRMCGetUnitSettingGroupParamListUccAdaptDataRcv>
    : krm::FieldList<&CKRMCGetUnitSettingGroupParamListUccAdaptDataRcv::Data> {};

#endif  // KRM_FIELDS_AUXILIARY_UNIT_CONVERSION_H_

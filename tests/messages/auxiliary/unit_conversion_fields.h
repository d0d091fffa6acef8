// The fields of the classes of krm/messages/auxiliary/unit_conversion.h, in order.
#ifndef KRM_TESTS_MESSAGES_AUXILIARY_UNIT_CONVERSION_FIELDS_H_
#define KRM_TESTS_MESSAGES_AUXILIARY_UNIT_CONVERSION_FIELDS_H_

#include <tuple>

#include "krm/messages/auxiliary/unit_conversion.h"
#include "tests/support/fields.h"

inline auto FieldsOf(CKRMCUnitConversionData& it) {
    return std::tie(it.m_uchGroupId, it.m_strGroupName, it.m_uchItemId, it.m_strItemName, it.m_uchUnitId,
                    it.m_strUnitName, it.m_ushGenreId);
}

inline auto FieldsOf(CKRMCUnitConvDataItemInfo& it) {
    return std::tie(it.m_uchItemId, it.m_strItemName, it.m_cUnitList);
}

inline auto FieldsOf(CKRMCUnitConvDataSettingInfo& it) {
    return std::tie(it.m_uchGroupId, it.m_cSettingList);
}

inline auto FieldsOf(CKRMCUnitConversionCreationData& it) {
    return std::tie(it.m_ushIdType, it.m_strValue);
}

inline auto FieldsOf(CKRMCCreateUnitConversionCommandUccAdaptDataSnd& it) {
    return std::tie(it.Data);
}

inline auto FieldsOf(CKRMCCreateUnitConversionCommandUccAdaptDataRcv&) {
    return std::tie();
}

inline auto FieldsOf(CKRMCGetUnitConversionInfoListUccAdaptDataSnd&) {
    return std::tie();
}

inline auto FieldsOf(CKRMCGetUnitConversionInfoListUccAdaptDataRcv& it) {
    return std::tie(it.Data);
}

inline auto FieldsOf(CKRMCSetUnitConversionInfoUccAdaptDataSnd& it) {
    return std::tie(it.Data);
}

inline auto FieldsOf(CKRMCSetUnitConversionInfoUccAdaptDataRcv& it) {
    return std::tie(it.Data);
}

inline auto FieldsOf(CKRMCGetUnitSettingGroupListUccAdaptDataSnd&) {
    return std::tie();
}

inline auto FieldsOf(CKRMCGetUnitSettingGroupListUccAdaptDataRcv& it) {
    return std::tie(it.Data);
}

inline auto FieldsOf(CKRMCGetUnitSettingGroupParamListUccAdaptDataSnd& it) {
    return std::tie(it.Data);
}

inline auto FieldsOf(CKRMCGetUnitSettingGroupParamListUccAdaptDataRcv& it) {
    return std::tie(it.Data);
}

#endif  // KRM_TESTS_MESSAGES_AUXILIARY_UNIT_CONVERSION_FIELDS_H_

// The fields of the customisation, cancel code, CAN bus check and on-board monitor classes, in order.
#ifndef KRM_TESTS_MESSAGES_DIAG_CUSTOMIZE_FIELDS_H_
#define KRM_TESTS_MESSAGES_DIAG_CUSTOMIZE_FIELDS_H_

#include <tuple>

#include "krm/messages/diag/can_bus.h"
#include "krm/messages/diag/cancel_codes.h"
#include "krm/messages/diag/customize.h"
#include "krm/messages/diag/on_board_monitor.h"
#include "tests/messages/diag/display_fields.h"
#include "tests/messages/diag/trouble_codes_fields.h"
#include "tests/support/fields.h"

inline auto FieldsOf(CKRMCCommandCancelCodeData& it) {
    return std::tie(it.m_uchKind, it.m_uchStatus, it.m_ulCode, it.m_strCode, it.m_ulExplanationId, it.m_strExplanation,
                    it.m_bTripCount, it.m_cTripCount, it.m_bTimeCount, it.m_cTimeCount, it.m_bTripGroup,
                    it.m_cTripGroup, it.m_bOccurrenceCount, it.m_cOccurrenceCount, it.m_bMainUnitTemperature,
                    it.m_cMainUnitTemperature, it.m_bCameraUnitTemperature, it.m_cCameraUnitTemperature);
}

inline auto FieldsOf(CKRMCCommandCancelCodeCategoryInfo& it) {
    return std::tie(it.m_ushCategoryId, it.m_ulCategoryNameId, it.m_strCategoryName, it.m_ulWarningMessageId,
                    it.m_strWarningMessage);
}

inline auto FieldsOf(CKRMCCommandOnBoardMonitorInfo& it) {
    return std::tie(it.m_ushId, it.m_strName, it.m_ulDescriptionId, it.m_strDescription, it.m_strScalingId,
                    it.m_ulUnitPhysId, it.m_strUnitPhys, it.m_ulUnitId, it.m_strUnit, it.m_uchDataType,
                    it.m_uchDecPntCount, it.m_uchUnitConvDecPntCount, it.m_cConversionTbl, it.m_cTestValData,
                    it.m_cTestMinData, it.m_cTestMaxData, it.m_bResult);
}

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

inline auto FieldsOf(CKRMCCommandCanBusCategoryInfo& it) {
    return std::tie(it.m_ulEcuId, it.m_ulEcuNameId, it.m_strEcuName, it.m_ulCategoryId, it.m_uchHistPidSupport);
}

inline auto FieldsOf(CKRMCCommandCanBusCategoryListData& it) {
    return std::tie(it.Data);
}

inline auto FieldsOf(CKRMCGetCanBusCategoryListCmdAdaptDataSnd&) {
    return std::tie();
}

inline auto FieldsOf(CKRMCGetCanBusCategoryListCmdAdaptDataRcv& it) {
    return std::tie(it.Data);
}

inline auto FieldsOf(CKRMCGetCanBusCheckListCmdAdaptDataSnd& it) {
    return std::tie(it.Data);
}

inline auto FieldsOf(CKRMCGetCanBusCheckListCmdAdaptDataRcv& it) {
    return std::tie(it.Info, it.Hist);
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

inline auto FieldsOf(CKRMCOnBoardMonitorCmdAdaptDataSnd& it) {
    return std::tie(it.m_uchMIDList);
}

inline auto FieldsOf(CKRMCOnBoardMonitorCmdAdaptDataRcv& it) {
    return std::tie(it.Data);
}

inline auto FieldsOf(CKRMCGetCancelCodeCategoryListCmdAdaptDataSnd&) {
    return std::tie();
}

inline auto FieldsOf(CKRMCGetCancelCodeCategoryListCmdAdaptDataRcv& it) {
    return std::tie(it.Data);
}

inline auto FieldsOf(CKRMCGetCancelCodeCmdAdaptDataSnd& it) {
    return std::tie(it.m_ushCategoryId);
}

inline auto FieldsOf(CKRMCGetCancelCodeCmdAdaptDataRcv& it) {
    return std::tie(it.m_cDTCList, it.Data, it.m_bProhibit);
}

inline auto FieldsOf(CKRMCOnBoardMonitorListCmdAdaptDataSnd&) {
    return std::tie();
}

inline auto FieldsOf(CKRMCOnBoardMonitorListCmdAdaptDataRcv& it) {
    return std::tie(it.m_uchMIDList);
}

#endif  // KRM_TESTS_MESSAGES_DIAG_CUSTOMIZE_FIELDS_H_

// The fields of the classes of krm/messages/diag/vehicle.h, in order.
#ifndef KRM_TESTS_MESSAGES_DIAG_VEHICLE_FIELDS_H_
#define KRM_TESTS_MESSAGES_DIAG_VEHICLE_FIELDS_H_

#include <tuple>

#include "krm/messages/diag/vehicle.h"
#include "tests/messages/diag/freeze_frame_item_fields.h"
#include "tests/messages/diag/j2534_config_fields.h"
#include "tests/messages/diag/words_fields.h"
#include "tests/support/fields.h"

inline auto FieldsOf(CKRMCCommandCarTypeCategoryIdData& it) {
    return std::tie(it.m_ushCarTypeCategoryId, it.m_ushCarTypeCategoryContentsId);
}

inline auto FieldsOf(CKRMCCommandCarTypeCategoryContentsData& it) {
    return std::tie(it.m_ushSortIndex, it.m_ushCarTypeCategoryContentsId, it.m_ulCarTypeCategoryContentsNameId,
                    it.m_strCarTypeCategoryContentsName);
}

inline auto FieldsOf(CKRMCCommandCarTypeCategoryData& it) {
    return std::tie(it.m_ushCarTypeCategoryId, it.m_cCarTypeOptionContentsList);
}

inline auto FieldsOf(CKRMCCommandCarTypeOptionContentsData& it) {
    return std::tie(it.m_ushCarTypeOptionContentsId, it.m_ulCarTypeOptionContentsNameId,
                    it.m_strCarTypeOptionContentsName);
}

inline auto FieldsOf(CKRMCCommandCarTypeOptionData& it) {
    return std::tie(it.m_ushCarTypeOptionIndex, it.Data);
}

inline auto FieldsOf(CKRMCCommandVariantData& it) {
    return std::tie(it.m_ulVarType, it.m_ulValue, it.m_cString);
}

inline auto FieldsOf(CKRMCCommandEcuData& it) {
    return std::tie(it.m_ushEcuConnectionStatus, it.m_ulEcuId, it.m_ushBusId, it.m_uchPhaseType, it.m_ulEcuNameId,
                    it.m_strEcuName, it.m_strEcuShortName);
}

inline auto FieldsOf(CKRMCCommandEcuGroupData& it) {
    return std::tie(it.m_ushGroupId, it.m_ulGroupNameId, it.m_strGroupName, it.m_cEcuList);
}

inline auto FieldsOf(CKRMCCommandEcuFunctionData& it) {
    return std::tie(it.m_ushId, it.DetailList);
}

inline auto FieldsOf(CKRMCCommandVehicleInfoItem& it) {
    return std::tie(it.m_ulNameId, it.m_strName, it.m_uchDispType, it.m_cVehicleInfoList);
}

inline auto FieldsOf(CKRMCCommandVehicleInfoData& it) {
    return std::tie(it.m_ushVehicleInfoId, it.m_ulVehicleInfo, it.m_strVehicleInfo);
}

inline auto FieldsOf(CKRMCCommandVehicleInfoSelectData& it) {
    return std::tie(it.m_ushVehicleInfoId, it.m_cVehicleInfoContentsList);
}

inline auto FieldsOf(CKRMCCommandVehicleSystemInfo& it) {
    return std::tie(it.m_ulInfoId, it.m_cInfoData);
}

inline auto FieldsOf(CKRMCWrapperCreationData& it) {
    return std::tie(it.m_ushIdType, it.m_strValue);
}

inline auto FieldsOf(CKRMCVehicleDecisionCmdAdaptDataSnd& it) {
    return std::tie(it.m_ushDivisionId, it.Data, it.m_ushCarTypeOptionIndex, it.m_ushCarTypeOptionContentsId);
}

inline auto FieldsOf(CKRMCVehicleDecisionCmdAdaptDataRcv& it) {
    return std::tie(it.Data, it.m_uchStatusId, it.m_cCarTypeOption);
}

inline auto FieldsOf(CKRMCGetGroupEcuListCmdAdaptDataSnd&) {
    return std::tie();
}

inline auto FieldsOf(CKRMCGetGroupEcuListCmdAdaptDataRcv& it) {
    return std::tie(it.Data);
}

inline auto FieldsOf(CKRMCGetEcuFunctionListCmdAdaptDataSnd& it) {
    return std::tie(it.m_uchPhaseType);
}

inline auto FieldsOf(CKRMCGetEcuFunctionListCmdAdaptDataRcv& it) {
    return std::tie(it.Data);
}

inline auto FieldsOf(CKRMCEcuConnectCmdAdaptDataSnd& it) {
    return std::tie(it.m_ushGroupId, it.m_ushBusId);
}

inline auto FieldsOf(CKRMCEcuConnectCmdAdaptDataRcv& it) {
    return std::tie(it.m_bConnect, it.m_ulEcuId, it.m_ushBusId, it.m_uchPhaseType, it.m_ulDescriptionId,
                    it.m_strDescription);
}

inline auto FieldsOf(CKRMCCreateCommCtrlMainCmdAdaptDataSnd& it) {
    return std::tie(it.Data);
}

inline auto FieldsOf(CKRMCCreateCommCtrlMainCmdAdaptDataRcv&) {
    return std::tie();
}

inline auto FieldsOf(CKRMCGetJ2534ConfigParamCmdAdaptDataSnd& it) {
    return std::tie(it.m_ushBusId);
}

inline auto FieldsOf(CKRMCGetJ2534ConfigParamCmdAdaptDataRcv& it) {
    return std::tie(it.Data);
}

inline auto FieldsOf(CKRMCInitMountEcuListCmdAdaptDataSnd& it) {
    return std::tie(it.m_ushModelId);
}

inline auto FieldsOf(CKRMCInitMountEcuListCmdAdaptDataRcv& it) {
    return std::tie(it.m_bInitialize);
}

inline auto FieldsOf(CKRMCReadVBattCmdAdaptDataSnd&) {
    return std::tie();
}

inline auto FieldsOf(CKRMCReadVBattCmdAdaptDataRcv& it) {
    return std::tie(it.m_ulVBattValue);
}

inline auto FieldsOf(CKRMCSelectCarIdCmdAdaptDataSnd& it) {
    return std::tie(it.m_ushVehicleId, it.m_ulParentEcuId, it.m_ushParentBusId, it.Data);
}

inline auto FieldsOf(CKRMCSelectCarIdCmdAdaptDataRcv& it) {
    return std::tie(it.Data);
}

inline auto FieldsOf(CKRMCGetDiagSessionCmdAdaptDataSnd&) {
    return std::tie();
}

inline auto FieldsOf(CKRMCGetDiagSessionCmdAdaptDataRcv& it) {
    return std::tie(it.m_uchDiagSessionType);
}

inline auto FieldsOf(CKRMCSetDiagSessionCmdAdaptDataSnd& it) {
    return std::tie(it.m_uchDiagSessionType, it.m_bIgOnOffCount, it.m_ushIgOnOffCount);
}

inline auto FieldsOf(CKRMCSetDiagSessionCmdAdaptDataRcv& it) {
    return std::tie(it.m_bResult);
}

inline auto FieldsOf(CKRMCGetVehicleInfoCmdAdaptDataSnd&) {
    return std::tie();
}

inline auto FieldsOf(CKRMCGetVehicleInfoCmdAdaptDataRcv& it) {
    return std::tie(it.Data);
}

inline auto FieldsOf(CKRMCGetAllDtcSystemListCmdAdaptDataSnd&) {
    return std::tie();
}

inline auto FieldsOf(CKRMCGetAllDtcSystemListCmdAdaptDataRcv& it) {
    return std::tie(it.m_ulSystemIdList);
}

inline auto FieldsOf(CKRMCGetVinCodeCmdAdaptDataSnd&) {
    return std::tie();
}

inline auto FieldsOf(CKRMCGetVinCodeCmdAdaptDataRcv& it) {
    return std::tie(it.m_strVinCode);
}

inline auto FieldsOf(CKRMCGetCarCategoryVinCmdAdaptDataSnd& it) {
    return std::tie(it.Data);
}

inline auto FieldsOf(CKRMCGetCarCategoryVinCmdAdaptDataRcv& it) {
    return std::tie(it.Data);
}

inline auto FieldsOf(CKRMCGetVehicleSystemInfoCmdAdaptDataSnd& it) {
    return std::tie(it.m_ulSystemId);
}

inline auto FieldsOf(CKRMCGetVehicleSystemInfoCmdAdaptDataRcv& it) {
    return std::tie(it.Data);
}

inline auto FieldsOf(CKRMCSelectVehicleInfoCmdAdaptDataSnd& it) {
    return std::tie(it.m_cVehicleInfoList);
}

inline auto FieldsOf(CKRMCSelectVehicleInfoCmdAdaptDataRcv& it) {
    return std::tie(it.m_cVehicleInfoList, it.m_cVehicleInfoSelectList, it.m_uchStatusId);
}

#endif  // KRM_TESTS_MESSAGES_DIAG_VEHICLE_FIELDS_H_

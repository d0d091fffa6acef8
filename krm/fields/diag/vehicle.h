// The fields of the classes of krm/messages/diag/vehicle.h, in the order of their declaration.
#ifndef KRM_FIELDS_DIAG_VEHICLE_H_
#define KRM_FIELDS_DIAG_VEHICLE_H_

#include "krm/fields/diag/freeze_frame_item.h"
#include "krm/fields/diag/j2534_config.h"
#include "krm/fields/diag/words.h"
#include "krm/fields/fields.h"
#include "krm/messages/diag/vehicle.h"

template <>
struct krm::Fields<CKRMCCommandCarTypeCategoryIdData>
    : krm::FieldList<&CKRMCCommandCarTypeCategoryIdData::m_ushCarTypeCategoryId,
                     &CKRMCCommandCarTypeCategoryIdData::m_ushCarTypeCategoryContentsId> {};

template <>
struct krm::Fields<CKRMCCommandCarTypeCategoryContentsData>
    : krm::FieldList<&CKRMCCommandCarTypeCategoryContentsData::m_ushSortIndex,
                     &CKRMCCommandCarTypeCategoryContentsData::m_ushCarTypeCategoryContentsId,
                     &CKRMCCommandCarTypeCategoryContentsData::m_ulCarTypeCategoryContentsNameId,
                     &CKRMCCommandCarTypeCategoryContentsData::m_strCarTypeCategoryContentsName> {};

template <>
struct krm::Fields<CKRMCCommandCarTypeCategoryData>
    : krm::FieldList<&CKRMCCommandCarTypeCategoryData::m_ushCarTypeCategoryId,
                     &CKRMCCommandCarTypeCategoryData::m_cCarTypeOptionContentsList> {};

template <>
struct krm::Fields<CKRMCCommandCarTypeOptionContentsData>
    : krm::FieldList<&CKRMCCommandCarTypeOptionContentsData::m_ushCarTypeOptionContentsId,
                     &CKRMCCommandCarTypeOptionContentsData::m_ulCarTypeOptionContentsNameId,
                     &CKRMCCommandCarTypeOptionContentsData::m_strCarTypeOptionContentsName> {};

template <>
struct krm::Fields<CKRMCCommandCarTypeOptionData>
    : krm::FieldList<&CKRMCCommandCarTypeOptionData::m_ushCarTypeOptionIndex, &CKRMCCommandCarTypeOptionData::Data> {};

template <>
struct krm::Fields<CKRMCCommandVariantData>
    : krm::FieldList<&CKRMCCommandVariantData::m_ulVarType, &CKRMCCommandVariantData::m_ulValue,
                     &CKRMCCommandVariantData::m_cString> {};

template <>
struct krm::Fields<CKRMCCommandEcuData>
    : krm::FieldList<&CKRMCCommandEcuData::m_ushEcuConnectionStatus, &CKRMCCommandEcuData::m_ulEcuId,
                     &CKRMCCommandEcuData::m_ushBusId, &CKRMCCommandEcuData::m_uchPhaseType,
                     &CKRMCCommandEcuData::m_ulEcuNameId, &CKRMCCommandEcuData::m_strEcuName,
                     &CKRMCCommandEcuData::m_strEcuShortName> {};

template <>
struct krm::Fields<CKRMCCommandEcuGroupData>
    : krm::FieldList<&CKRMCCommandEcuGroupData::m_ushGroupId, &CKRMCCommandEcuGroupData::m_ulGroupNameId,
                     &CKRMCCommandEcuGroupData::m_strGroupName, &CKRMCCommandEcuGroupData::m_cEcuList> {};

template <>
struct krm::Fields<CKRMCCommandEcuFunctionData>
    : krm::FieldList<&CKRMCCommandEcuFunctionData::m_ushId, &CKRMCCommandEcuFunctionData::DetailList> {};

template <>
struct krm::Fields<CKRMCCommandVehicleInfoItem>
    : krm::FieldList<&CKRMCCommandVehicleInfoItem::m_ulNameId, &CKRMCCommandVehicleInfoItem::m_strName,
                     &CKRMCCommandVehicleInfoItem::m_uchDispType, &CKRMCCommandVehicleInfoItem::m_cVehicleInfoList> {};

template <>
struct krm::Fields<CKRMCCommandVehicleInfoData>
    : krm::FieldList<&CKRMCCommandVehicleInfoData::m_ushVehicleInfoId, &CKRMCCommandVehicleInfoData::m_ulVehicleInfo,
                     &CKRMCCommandVehicleInfoData::m_strVehicleInfo> {};

template <>
struct krm::Fields<CKRMCCommandVehicleInfoSelectData>
    : krm::FieldList<&CKRMCCommandVehicleInfoSelectData::m_ushVehicleInfoId,
                     &CKRMCCommandVehicleInfoSelectData::m_cVehicleInfoContentsList> {};

template <>
struct krm::Fields<CKRMCCommandVehicleSystemInfo>
    : krm::FieldList<&CKRMCCommandVehicleSystemInfo::m_ulInfoId, &CKRMCCommandVehicleSystemInfo::m_cInfoData> {};

template <>
struct krm::Fields<CKRMCWrapperCreationData>
    : krm::FieldList<&CKRMCWrapperCreationData::m_ushIdType, &CKRMCWrapperCreationData::m_strValue> {};

template <>
struct krm::Fields<CKRMCVehicleDecisionCmdAdaptDataSnd>
    : krm::FieldList<&CKRMCVehicleDecisionCmdAdaptDataSnd::m_ushDivisionId, &CKRMCVehicleDecisionCmdAdaptDataSnd::Data,
                     &CKRMCVehicleDecisionCmdAdaptDataSnd::m_ushCarTypeOptionIndex,
                     &CKRMCVehicleDecisionCmdAdaptDataSnd::m_ushCarTypeOptionContentsId> {};

template <>
struct krm::Fields<CKRMCVehicleDecisionCmdAdaptDataRcv>
    : krm::FieldList<&CKRMCVehicleDecisionCmdAdaptDataRcv::Data, &CKRMCVehicleDecisionCmdAdaptDataRcv::m_uchStatusId,
                     &CKRMCVehicleDecisionCmdAdaptDataRcv::m_cCarTypeOption> {};

template <>
struct krm::Fields<CKRMCGetGroupEcuListCmdAdaptDataSnd> : krm::FieldList<> {};

template <>
struct krm::Fields<CKRMCGetGroupEcuListCmdAdaptDataRcv> : krm::FieldList<&CKRMCGetGroupEcuListCmdAdaptDataRcv::Data> {};

template <>
struct krm::Fields<CKRMCGetEcuFunctionListCmdAdaptDataSnd>
    : krm::FieldList<&CKRMCGetEcuFunctionListCmdAdaptDataSnd::m_uchPhaseType> {};

template <>
struct krm::Fields<CKRMCGetEcuFunctionListCmdAdaptDataRcv>
    : krm::FieldList<&CKRMCGetEcuFunctionListCmdAdaptDataRcv::Data> {};

template <>
struct krm::Fields<CKRMCEcuConnectCmdAdaptDataSnd>
    : krm::FieldList<&CKRMCEcuConnectCmdAdaptDataSnd::m_ushGroupId, &CKRMCEcuConnectCmdAdaptDataSnd::m_ushBusId> {};

template <>
struct krm::Fields<CKRMCEcuConnectCmdAdaptDataRcv>
    : krm::FieldList<&CKRMCEcuConnectCmdAdaptDataRcv::m_bConnect, &CKRMCEcuConnectCmdAdaptDataRcv::m_ulEcuId,
                     &CKRMCEcuConnectCmdAdaptDataRcv::m_ushBusId, &CKRMCEcuConnectCmdAdaptDataRcv::m_uchPhaseType,
                     &CKRMCEcuConnectCmdAdaptDataRcv::m_ulDescriptionId,
                     &CKRMCEcuConnectCmdAdaptDataRcv::m_strDescription> {};

template <>
struct krm::Fields<CKRMCCreateCommCtrlMainCmdAdaptDataSnd>
    : krm::FieldList<&CKRMCCreateCommCtrlMainCmdAdaptDataSnd::Data> {};

template <>
struct krm::Fields<CKRMCCreateCommCtrlMainCmdAdaptDataRcv> : krm::FieldList<> {};

template <>
struct krm::Fields<CKRMCGetJ2534ConfigParamCmdAdaptDataSnd>
    : krm::FieldList<&CKRMCGetJ2534ConfigParamCmdAdaptDataSnd::m_ushBusId> {};

template <>
struct krm::Fields<CKRMCGetJ2534ConfigParamCmdAdaptDataRcv>
    : krm::FieldList<&CKRMCGetJ2534ConfigParamCmdAdaptDataRcv::Data> {};

template <>
struct krm::Fields<CKRMCInitMountEcuListCmdAdaptDataSnd>
    : krm::FieldList<&CKRMCInitMountEcuListCmdAdaptDataSnd::m_ushModelId> {};

template <>
struct krm::Fields<CKRMCInitMountEcuListCmdAdaptDataRcv>
    : krm::FieldList<&CKRMCInitMountEcuListCmdAdaptDataRcv::m_bInitialize> {};

template <>
struct krm::Fields<CKRMCReadVBattCmdAdaptDataSnd> : krm::FieldList<> {};

template <>
struct krm::Fields<CKRMCReadVBattCmdAdaptDataRcv> : krm::FieldList<&CKRMCReadVBattCmdAdaptDataRcv::m_ulVBattValue> {};

template <>
struct krm::Fields<CKRMCSelectCarIdCmdAdaptDataSnd>
    : krm::FieldList<&CKRMCSelectCarIdCmdAdaptDataSnd::m_ushVehicleId,
                     &CKRMCSelectCarIdCmdAdaptDataSnd::m_ulParentEcuId,
                     &CKRMCSelectCarIdCmdAdaptDataSnd::m_ushParentBusId, &CKRMCSelectCarIdCmdAdaptDataSnd::Data> {};

template <>
struct krm::Fields<CKRMCSelectCarIdCmdAdaptDataRcv> : krm::FieldList<&CKRMCSelectCarIdCmdAdaptDataRcv::Data> {};

template <>
struct krm::Fields<CKRMCGetDiagSessionCmdAdaptDataSnd> : krm::FieldList<> {};

template <>
struct krm::Fields<CKRMCGetDiagSessionCmdAdaptDataRcv>
    : krm::FieldList<&CKRMCGetDiagSessionCmdAdaptDataRcv::m_uchDiagSessionType> {};

template <>
struct krm::Fields<CKRMCSetDiagSessionCmdAdaptDataSnd>
    : krm::FieldList<&CKRMCSetDiagSessionCmdAdaptDataSnd::m_uchDiagSessionType,
                     &CKRMCSetDiagSessionCmdAdaptDataSnd::m_bIgOnOffCount,
                     &CKRMCSetDiagSessionCmdAdaptDataSnd::m_ushIgOnOffCount> {};

template <>
struct krm::Fields<CKRMCSetDiagSessionCmdAdaptDataRcv>
    : krm::FieldList<&CKRMCSetDiagSessionCmdAdaptDataRcv::m_bResult> {};

template <>
struct krm::Fields<CKRMCGetVehicleInfoCmdAdaptDataSnd> : krm::FieldList<> {};

template <>
struct krm::Fields<CKRMCGetVehicleInfoCmdAdaptDataRcv> : krm::FieldList<&CKRMCGetVehicleInfoCmdAdaptDataRcv::Data> {};

template <>
struct krm::Fields<CKRMCGetAllDtcSystemListCmdAdaptDataSnd> : krm::FieldList<> {};

template <>
struct krm::Fields<CKRMCGetAllDtcSystemListCmdAdaptDataRcv>
    : krm::FieldList<&CKRMCGetAllDtcSystemListCmdAdaptDataRcv::m_ulSystemIdList> {};

template <>
struct krm::Fields<CKRMCGetVinCodeCmdAdaptDataSnd> : krm::FieldList<> {};

template <>
struct krm::Fields<CKRMCGetVinCodeCmdAdaptDataRcv> : krm::FieldList<&CKRMCGetVinCodeCmdAdaptDataRcv::m_strVinCode> {};

template <>
struct krm::Fields<CKRMCGetCarCategoryVinCmdAdaptDataSnd>
    : krm::FieldList<&CKRMCGetCarCategoryVinCmdAdaptDataSnd::Data> {};

template <>
struct krm::Fields<CKRMCGetCarCategoryVinCmdAdaptDataRcv>
    : krm::FieldList<&CKRMCGetCarCategoryVinCmdAdaptDataRcv::Data> {};

template <>
struct krm::Fields<CKRMCGetVehicleSystemInfoCmdAdaptDataSnd>
    : krm::FieldList<&CKRMCGetVehicleSystemInfoCmdAdaptDataSnd::m_ulSystemId> {};

template <>
struct krm::Fields<CKRMCGetVehicleSystemInfoCmdAdaptDataRcv>
    : krm::FieldList<&CKRMCGetVehicleSystemInfoCmdAdaptDataRcv::Data> {};

template <>
struct krm::Fields<CKRMCSelectVehicleInfoCmdAdaptDataSnd>
    : krm::FieldList<&CKRMCSelectVehicleInfoCmdAdaptDataSnd::m_cVehicleInfoList> {};

template <>
struct krm::Fields<CKRMCSelectVehicleInfoCmdAdaptDataRcv>
    : krm::FieldList<&CKRMCSelectVehicleInfoCmdAdaptDataRcv::m_cVehicleInfoList,
                     &CKRMCSelectVehicleInfoCmdAdaptDataRcv::m_cVehicleInfoSelectList,
                     &CKRMCSelectVehicleInfoCmdAdaptDataRcv::m_uchStatusId> {};

#endif  // KRM_FIELDS_DIAG_VEHICLE_H_

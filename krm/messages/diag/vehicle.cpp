#include "krm/messages/diag/vehicle.h"

#include "krm/framework/dump.h"

template class CKRMList<CKRMCCommandCarTypeCategoryIdData>;
template class CKRMList<CKRMCCommandCarTypeCategoryContentsData>;
template class CKRMList<CKRMCCommandCarTypeCategoryData>;
template class CKRMList<CKRMCCommandCarTypeOptionContentsData>;
template class CKRMList<CKRMCCommandCarTypeOptionData>;
template class CKRMList<CKRMCCommandVariantData>;
template class CKRMList<CKRMCCommandEcuData>;
template class CKRMList<CKRMCCommandEcuGroupData>;
template class CKRMList<CKRMCCommandEcuFunctionData>;
template class CKRMList<CKRMCCommandVehicleInfoItem>;
template class CKRMList<CKRMCCommandVehicleInfoData>;
template class CKRMList<CKRMCCommandVehicleInfoSelectData>;
template class CKRMList<CKRMCCommandVehicleSystemInfo>;
template class CKRMList<CKRMCWrapperCreationData>;

void CKRMCCommandCarTypeCategoryContentsData::Dump(const krm::RecordLines& line) {
    line("%s.m_ushSortIndex=%d", m_ushSortIndex);
    line("%s.m_ushCarTypeCategoryContentsId=%d", m_ushCarTypeCategoryContentsId);
    line("%s.m_ulCarTypeCategoryContentsNameId=%d", m_ulCarTypeCategoryContentsNameId);
    line("%s.m_strCarTypeCategoryContentsName=%s", m_strCarTypeCategoryContentsName);
}

void CKRMCCommandCarTypeCategoryData::Dump(const krm::RecordLines& line) {
    line("%s.m_ushCarTypeCategoryId=%d", m_ushCarTypeCategoryId);
    line("%s.m_cCarTypeOptionContentsList[%d]", m_cCarTypeOptionContentsList);
}

void CKRMCCommandCarTypeOptionContentsData::Dump(const krm::RecordLines& line) {
    line("%s.m_ushCarTypeOptionContentsId=%d", m_ushCarTypeOptionContentsId);
    line("%s.m_ulCarTypeOptionContentsNameId=%d", m_ulCarTypeOptionContentsNameId);
    line("%s.m_strCarTypeOptionContentsName=%s", m_strCarTypeOptionContentsName);
}

void CKRMCCommandCarTypeOptionData::Dump(const krm::RecordLines& line) {
    line("%s.m_ushCarTypeOptionIndex=%d", m_ushCarTypeOptionIndex);
    line("%s.Data[%d]", Data);
}

void CKRMCCommandVariantData::Dump(const krm::RecordLines& line) {
    line("%s.m_ulVarType=0x%X", m_ulVarType);
    line("%s.m_ulValue=%d(%u)", m_ulValue, m_ulValue);
    line("%s.m_cString", m_cString);
}

void CKRMCCommandEcuData::Dump(const krm::RecordLines& line) {
    line("%s.m_ushEcuConnectionStatus=%d", m_ushEcuConnectionStatus);
    line("%s.m_ulEcuId=%d", m_ulEcuId);
    line("%s.m_ushBusId=%d", m_ushBusId);
    line("%s.m_uchPhaseType=%d", m_uchPhaseType);
    line("%s.m_ulEcuNameId=%d", m_ulEcuNameId);
    line("%s.m_strEcuName=%s", m_strEcuName);
    line("%s.m_strEcuShortName=%s", m_strEcuShortName);
}

void CKRMCCommandEcuGroupData::Dump(const krm::RecordLines& line) {
    line("%s.m_ushGroupId=%d", m_ushGroupId);
    line("%s.m_ulGroupNameId=%d", m_ulGroupNameId);
    line("%s.m_strGroupName=%s", m_strGroupName);
    line("%s.m_cEcuList[%d]", m_cEcuList);
}

void CKRMCCommandVehicleInfoItem::Dump(const krm::RecordLines& line) {
    line("%s.m_ulNameId=%d", m_ulNameId);
    line("%s.m_strName=%s", m_strName);
    line("%s.m_uchDispType=%d", m_uchDispType);
    line("%s.m_cVehicleInfoList[%d]", m_cVehicleInfoList);
}

void CKRMCCommandVehicleInfoData::Dump(const krm::RecordLines& line) {
    line("%s.m_ushVehicleInfoId=%u", m_ushVehicleInfoId);
    line("%s.m_ulVehicleInfo=%u", m_ulVehicleInfo);
    line("%s.m_strVehicleInfo=%s", m_strVehicleInfo);
}

void CKRMCCommandVehicleInfoSelectData::Dump(const krm::RecordLines& line) {
    line("%s.m_ushVehicleInfoId=%u", m_ushVehicleInfoId);
    line("%s.m_cVehicleInfoContentsList[%d]", m_cVehicleInfoContentsList);
}

void CKRMCCommandVehicleSystemInfo::Dump(const krm::RecordLines& line) {
    line("%s.m_ulInfoId=%u", m_ulInfoId);
    line("%s.m_cInfoData[%d]", m_cInfoData);
}

void CKRMCVehicleDecisionCmdAdaptDataSnd::Dump(const krm::MessageLines& line) {
    line("[%s] m_ushDivisionId=%d", m_ushDivisionId);
    line.ForEach(Data, [](const auto& itemLine, auto& item) {
        itemLine("[%s] Data[%d].m_ushCarTypeCategoryId=%d", item.m_ushCarTypeCategoryId);
        itemLine("[%s] Data[%d].m_ushCarTypeCategoryContentsId=%d", item.m_ushCarTypeCategoryContentsId);
    });
    line("[%s] m_ushCarTypeOptionIndex=%d", m_ushCarTypeOptionIndex);
    line("[%s] m_ushCarTypeOptionContentsId=%d", m_ushCarTypeOptionContentsId);
}

void CKRMCVehicleDecisionCmdAdaptDataRcv::Dump(const krm::MessageLines& line) {
    line("[%s] Data[%d]", Data);
    line("[%s] m_uchStatusId=%d", m_uchStatusId);
    line("[%s]", m_cCarTypeOption);
}

void CKRMCGetGroupEcuListCmdAdaptDataRcv::Dump(const krm::MessageLines& line) {
    line("[%s] Data[%d]", Data);
}

void CKRMCGetEcuFunctionListCmdAdaptDataSnd::Dump(const krm::MessageLines& line) {
    line("[%s] m_uchPhaseType=%d", m_uchPhaseType);
}

void CKRMCGetEcuFunctionListCmdAdaptDataRcv::Dump(const krm::MessageLines& line) {
    line.ForEach(Data, [](const auto& itemLine, auto& item) {
        itemLine("[%s] Data[%d].m_ushId=%d", item.m_ushId);
        itemLine("[%s] Data[%d].DetailList[%d].m_cEcuFunctionDetailId=%d", item.DetailList);
    });
}

void CKRMCEcuConnectCmdAdaptDataSnd::Dump(const krm::MessageLines& line) {
    line("[%s] m_ushGroupId=%d", m_ushGroupId);
    line("[%s] m_ushBusId=%d", m_ushBusId);
}

void CKRMCEcuConnectCmdAdaptDataRcv::Dump(const krm::MessageLines& line) {
    line("[%s] m_bConnect=%d", m_bConnect);
    line("[%s] m_ulEcuId=%d", m_ulEcuId);
    line("[%s] m_ushBusId=%d", m_ushBusId);
    line("[%s] m_uchPhaseType=%d", m_uchPhaseType);
    line("[%s] m_ulDescriptionId=%d", m_ulDescriptionId);
    line("[%s] m_strDescription=%s", m_strDescription);
}

void CKRMCCreateCommCtrlMainCmdAdaptDataSnd::Dump(const krm::MessageLines& line) {
    line.ForEach(Data, [](const auto& itemLine, auto& item) {
        itemLine("[%s] Data[%d].m_ushIdType=%d", item.m_ushIdType);
        itemLine("[%s] Data[%d].m_strValue=%s", item.m_strValue);
    });
}

void CKRMCGetJ2534ConfigParamCmdAdaptDataSnd::Dump(const krm::MessageLines& line) {
    line("[%s] m_ushBusId=%d", m_ushBusId);
}

void CKRMCGetJ2534ConfigParamCmdAdaptDataRcv::Dump(const krm::MessageLines& line) {
    line.ForEach(Data, [](const auto& itemLine, auto& item) {
        itemLine("[%s] Data[%d].m_ulParameter=%d", item.m_ulParameter);
        itemLine("[%s] Data[%d].m_ulValue=%d", item.m_ulValue);
    });
}

void CKRMCInitMountEcuListCmdAdaptDataSnd::Dump(const krm::MessageLines& line) {
    line("[%s] m_ushModelId=%d", m_ushModelId);
}

void CKRMCInitMountEcuListCmdAdaptDataRcv::Dump(const krm::MessageLines& line) {
    line("[%s] m_bInitialize=%d", m_bInitialize);
}

void CKRMCReadVBattCmdAdaptDataRcv::Dump(const krm::MessageLines& line) {
    line("[%s] m_ulVBattValue=%d", m_ulVBattValue);
}

void CKRMCSelectCarIdCmdAdaptDataSnd::Dump(const krm::MessageLines& line) {
    line("[%s] m_ushVehicleId=%d", m_ushVehicleId);
    line("[%s] m_ulParentEcuId=%d", m_ulParentEcuId);
    line("[%s] m_ushParentBusId=%d", m_ushParentBusId);
    line.ForEach(Data, [](const auto& itemLine, auto& item) {
        itemLine("[%s] Data[%d].m_ushCarTypeCategoryId=%d", item.m_ushCarTypeCategoryId);
        itemLine("[%s] Data[%d].m_ushCarTypeCategoryContentsId=%d", item.m_ushCarTypeCategoryContentsId);
    });
}

void CKRMCSelectCarIdCmdAdaptDataRcv::Dump(const krm::MessageLines& line) {
    line("[%s] Data[%d]", Data);
}

void CKRMCGetDiagSessionCmdAdaptDataRcv::Dump(const krm::MessageLines& line) {
    line("[%s] m_uchDiagSessionType=%d", m_uchDiagSessionType);
}

void CKRMCSetDiagSessionCmdAdaptDataSnd::Dump(const krm::MessageLines& line) {
    line("[%s] m_uchDiagSessionType=%d", m_uchDiagSessionType);
    line("[%s] m_bIgOnOffCount=%d", m_bIgOnOffCount);
    line("[%s] m_ushIgOnOffCount=%d", m_ushIgOnOffCount);
}

void CKRMCSetDiagSessionCmdAdaptDataRcv::Dump(const krm::MessageLines& line) {
    line("[%s] m_bResult=%d", m_bResult);
}

void CKRMCGetVehicleInfoCmdAdaptDataRcv::Dump(const krm::MessageLines& line) {
    line("[%s] Data[%d]", Data);
}

void CKRMCGetAllDtcSystemListCmdAdaptDataRcv::Dump(const krm::MessageLines& line) {
    line("[%s] m_ulSystemIdList[%d]=%d", m_ulSystemIdList);
}

void CKRMCGetVinCodeCmdAdaptDataRcv::Dump(const krm::MessageLines& line) {
    line("[%s] m_strVinCode=%s", m_strVinCode);
}

void CKRMCGetCarCategoryVinCmdAdaptDataSnd::Dump(const krm::MessageLines& line) {
    line("[%s] Data[%d]", Data);
}

void CKRMCGetCarCategoryVinCmdAdaptDataRcv::Dump(const krm::MessageLines& line) {
    line("[%s] Data[%d]", Data);
}

void CKRMCGetVehicleSystemInfoCmdAdaptDataSnd::Dump(const krm::MessageLines& line) {
    line("[%s] m_ulSystemId=%u", m_ulSystemId);
}

void CKRMCGetVehicleSystemInfoCmdAdaptDataRcv::Dump(const krm::MessageLines& line) {
    line("[%s] Data[%d]", Data);
}

void CKRMCSelectVehicleInfoCmdAdaptDataSnd::Dump(const krm::MessageLines& line) {
    line("[%s] m_cVehicleInfoList[%d]", m_cVehicleInfoList);
}

void CKRMCSelectVehicleInfoCmdAdaptDataRcv::Dump(const krm::MessageLines& line) {
    line("[%s] m_cVehicleInfoList[%d]", m_cVehicleInfoList);
    line("[%s] m_cVehicleInfoSelectList[%d]", m_cVehicleInfoSelectList);
    line("[%s] m_uchStatusId=%d", m_uchStatusId);
}

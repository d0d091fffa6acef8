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
template class CKRMList<CKRMCCommandJ2534Config>;
template class CKRMList<CKRMCWrapperCreationData>;

CKRMCCommandCarTypeCategoryContentsData::~CKRMCCommandCarTypeCategoryContentsData() = default;

void CKRMCCommandCarTypeCategoryContentsData::Dump(const krm::RecordLines& line) {
    line("%s.m_ushSortIndex=%d", m_ushSortIndex);
    line("%s.m_ushCarTypeCategoryContentsId=%d", m_ushCarTypeCategoryContentsId);
    line("%s.m_ulCarTypeCategoryContentsNameId=%d", m_ulCarTypeCategoryContentsNameId);
    line("%s.m_strCarTypeCategoryContentsName=%s", m_strCarTypeCategoryContentsName);
}

CKRMCCommandCarTypeCategoryData::~CKRMCCommandCarTypeCategoryData() = default;

void CKRMCCommandCarTypeCategoryData::Dump(const krm::RecordLines& line) {
    line("%s.m_ushCarTypeCategoryId=%d", m_ushCarTypeCategoryId);
    line("%s.m_cCarTypeOptionContentsList[%d]", m_cCarTypeOptionContentsList);
}

CKRMCCommandCarTypeOptionContentsData::~CKRMCCommandCarTypeOptionContentsData() = default;

void CKRMCCommandCarTypeOptionContentsData::Dump(const krm::RecordLines& line) {
    line("%s.m_ushCarTypeOptionContentsId=%d", m_ushCarTypeOptionContentsId);
    line("%s.m_ulCarTypeOptionContentsNameId=%d", m_ulCarTypeOptionContentsNameId);
    line("%s.m_strCarTypeOptionContentsName=%s", m_strCarTypeOptionContentsName);
}

CKRMCCommandCarTypeOptionData::~CKRMCCommandCarTypeOptionData() = default;

void CKRMCCommandCarTypeOptionData::Dump(const krm::RecordLines& line) {
    line("%s.m_ushCarTypeOptionIndex=%d", m_ushCarTypeOptionIndex);
    line("%s.Data[%d]", Data);
}

CKRMCCommandVariantData::~CKRMCCommandVariantData() = default;

void CKRMCCommandVariantData::Dump(const krm::RecordLines& line) {
    line("%s.m_ulVarType=0x%X", m_ulVarType);
    line("%s.m_ulValue=%d(%u)", m_ulValue, m_ulValue);
    line("%s.m_cString", m_cString);
}

CKRMCCommandEcuData::~CKRMCCommandEcuData() = default;

void CKRMCCommandEcuData::Dump(const krm::RecordLines& line) {
    line("%s.m_ushEcuConnectionStatus=%d", m_ushEcuConnectionStatus);
    line("%s.m_ulEcuId=%d", m_ulEcuId);
    line("%s.m_ushBusId=%d", m_ushBusId);
    line("%s.m_uchPhaseType=%d", m_uchPhaseType);
    line("%s.m_ulEcuNameId=%d", m_ulEcuNameId);
    line("%s.m_strEcuName=%s", m_strEcuName);
    line("%s.m_strEcuShortName=%s", m_strEcuShortName);
}

CKRMCCommandEcuGroupData::~CKRMCCommandEcuGroupData() = default;

void CKRMCCommandEcuGroupData::Dump(const krm::RecordLines& line) {
    line("%s.m_ushGroupId=%d", m_ushGroupId);
    line("%s.m_ulGroupNameId=%d", m_ulGroupNameId);
    line("%s.m_strGroupName=%s", m_strGroupName);
    line("%s.m_cEcuList[%d]", m_cEcuList);
}

CKRMCCommandVehicleInfoItem::~CKRMCCommandVehicleInfoItem() = default;

void CKRMCCommandVehicleInfoItem::Dump(const krm::RecordLines& line) {
    line("%s.m_ulNameId=%d", m_ulNameId);
    line("%s.m_strName=%s", m_strName);
    line("%s.m_uchDispType=%d", m_uchDispType);
    line("%s.m_cVehicleInfoList[%d]", m_cVehicleInfoList);
}

CKRMCCommandVehicleInfoData::~CKRMCCommandVehicleInfoData() = default;

void CKRMCCommandVehicleInfoData::Dump(const krm::RecordLines& line) {
    line("%s.m_ushVehicleInfoId=%u", m_ushVehicleInfoId);
    line("%s.m_ulVehicleInfo=%u", m_ulVehicleInfo);
    line("%s.m_strVehicleInfo=%s", m_strVehicleInfo);
}

CKRMCCommandVehicleInfoSelectData::~CKRMCCommandVehicleInfoSelectData() = default;

void CKRMCCommandVehicleInfoSelectData::Dump(const krm::RecordLines& line) {
    line("%s.m_ushVehicleInfoId=%u", m_ushVehicleInfoId);
    line("%s.m_cVehicleInfoContentsList[%d]", m_cVehicleInfoContentsList);
}

CKRMCCommandVehicleSystemInfo::~CKRMCCommandVehicleSystemInfo() = default;

void CKRMCCommandVehicleSystemInfo::Dump(const krm::RecordLines& line) {
    line("%s.m_ulInfoId=%u", m_ulInfoId);
    line("%s.m_cInfoData[%d]", m_cInfoData);
}

krm_long CKRMCVehicleDecisionCmdAdaptDataSnd::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCVehicleDecisionCmdAdaptDataSnd::ErrWriteOperationLog");
    line("[%s] m_ushDivisionId=%d", m_ushDivisionId);
    line.ForEach(Data, [](const auto& itemLine, auto& item) {
        itemLine("[%s] Data[%d].m_ushCarTypeCategoryId=%d", item.m_ushCarTypeCategoryId);
        itemLine("[%s] Data[%d].m_ushCarTypeCategoryContentsId=%d", item.m_ushCarTypeCategoryContentsId);
    });
    line("[%s] m_ushCarTypeOptionIndex=%d", m_ushCarTypeOptionIndex);
    line("[%s] m_ushCarTypeOptionContentsId=%d", m_ushCarTypeOptionContentsId);
    return 0;
}

krm_long CKRMCVehicleDecisionCmdAdaptDataRcv::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCVehicleDecisionCmdAdaptDataRcv::ErrWriteOperationLog");
    line("[%s] Data[%d]", Data);
    line("[%s] m_uchStatusId=%d", m_uchStatusId);
    line("[%s]", m_cCarTypeOption);
    return 0;
}

CKRMCGetGroupEcuListCmdAdaptDataSnd::~CKRMCGetGroupEcuListCmdAdaptDataSnd() = default;

krm_long CKRMCGetGroupEcuListCmdAdaptDataRcv::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCGetGroupEcuListCmdAdaptDataRcv::ErrWriteOperationLog");
    line("[%s] Data[%d]", Data);
    return 0;
}

krm_long CKRMCGetEcuFunctionListCmdAdaptDataSnd::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCGetEcuFunctionListCmdAdaptDataSnd::ErrWriteOperationLog");
    line("[%s] m_uchPhaseType=%d", m_uchPhaseType);
    return 0;
}

krm_long CKRMCGetEcuFunctionListCmdAdaptDataRcv::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCGetEcuFunctionListCmdAdaptDataRcv::ErrWriteOperationLog");
    line.ForEach(Data, [](const auto& itemLine, auto& item) {
        itemLine("[%s] Data[%d].m_ushId=%d", item.m_ushId);
        itemLine("[%s] Data[%d].DetailList[%d].m_cEcuFunctionDetailId=%d", item.DetailList);
    });
    return 0;
}

krm_long CKRMCEcuConnectCmdAdaptDataSnd::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCEcuConnectCmdAdaptDataSnd::ErrWriteOperationLog");
    line("[%s] m_ushGroupId=%d", m_ushGroupId);
    line("[%s] m_ushBusId=%d", m_ushBusId);
    return 0;
}

krm_long CKRMCEcuConnectCmdAdaptDataRcv::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCEcuConnectCmdAdaptDataRcv::ErrWriteOperationLog");
    line("[%s] m_bConnect=%d", m_bConnect);
    line("[%s] m_ulEcuId=%d", m_ulEcuId);
    line("[%s] m_ushBusId=%d", m_ushBusId);
    line("[%s] m_uchPhaseType=%d", m_uchPhaseType);
    line("[%s] m_ulDescriptionId=%d", m_ulDescriptionId);
    line("[%s] m_strDescription=%s", m_strDescription);
    return 0;
}

krm_long CKRMCCreateCommCtrlMainCmdAdaptDataSnd::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCCreateCommCtrlMainCmdAdaptDataSnd::ErrWriteOperationLog");
    line.ForEach(Data, [](const auto& itemLine, auto& item) {
        itemLine("[%s] Data[%d].m_ushIdType=%d", item.m_ushIdType);
        itemLine("[%s] Data[%d].m_strValue=%s", item.m_strValue);
    });
    return 0;
}

CKRMCCreateCommCtrlMainCmdAdaptDataRcv::~CKRMCCreateCommCtrlMainCmdAdaptDataRcv() = default;

krm_long CKRMCGetJ2534ConfigParamCmdAdaptDataSnd::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCGetJ2534ConfigParamCmdAdaptDataSnd::ErrWriteOperationLog");
    line("[%s] m_ushBusId=%d", m_ushBusId);
    return 0;
}

krm_long CKRMCGetJ2534ConfigParamCmdAdaptDataRcv::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCGetJ2534ConfigParamCmdAdaptDataRcv::ErrWriteOperationLog");
    line.ForEach(Data, [](const auto& itemLine, auto& item) {
        itemLine("[%s] Data[%d].m_ulParameter=%d", item.m_ulParameter);
        itemLine("[%s] Data[%d].m_ulValue=%d", item.m_ulValue);
    });
    return 0;
}

krm_long CKRMCInitMountEcuListCmdAdaptDataSnd::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCInitMountEcuListCmdAdaptDataSnd::ErrWriteOperationLog");
    line("[%s] m_ushModelId=%d", m_ushModelId);
    return 0;
}

krm_long CKRMCInitMountEcuListCmdAdaptDataRcv::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCInitMountEcuListCmdAdaptDataRcv::ErrWriteOperationLog");
    line("[%s] m_bInitialize=%d", m_bInitialize);
    return 0;
}

CKRMCReadVBattCmdAdaptDataSnd::~CKRMCReadVBattCmdAdaptDataSnd() = default;

krm_long CKRMCReadVBattCmdAdaptDataRcv::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCReadVBattCmdAdaptDataRcv::ErrWriteOperationLog");
    line("[%s] m_ulVBattValue=%d", m_ulVBattValue);
    return 0;
}

krm_long CKRMCSelectCarIdCmdAdaptDataSnd::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCSelectCarIdCmdAdaptDataSnd::ErrWriteOperationLog");
    line("[%s] m_ushVehicleId=%d", m_ushVehicleId);
    line("[%s] m_ulParentEcuId=%d", m_ulParentEcuId);
    line("[%s] m_ushParentBusId=%d", m_ushParentBusId);
    line.ForEach(Data, [](const auto& itemLine, auto& item) {
        itemLine("[%s] Data[%d].m_ushCarTypeCategoryId=%d", item.m_ushCarTypeCategoryId);
        itemLine("[%s] Data[%d].m_ushCarTypeCategoryContentsId=%d", item.m_ushCarTypeCategoryContentsId);
    });
    return 0;
}

krm_long CKRMCSelectCarIdCmdAdaptDataRcv::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCSelectCarIdCmdAdaptDataRcv::ErrWriteOperationLog");
    line("[%s] Data[%d]", Data);
    return 0;
}

CKRMCGetDiagSessionCmdAdaptDataSnd::~CKRMCGetDiagSessionCmdAdaptDataSnd() = default;

krm_long CKRMCGetDiagSessionCmdAdaptDataRcv::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCGetDiagSessionCmdAdaptDataRcv::ErrWriteOperationLog");
    line("[%s] m_uchDiagSessionType=%d", m_uchDiagSessionType);
    return 0;
}

krm_long CKRMCSetDiagSessionCmdAdaptDataSnd::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCSetDiagSessionCmdAdaptDataSnd::ErrWriteOperationLog");
    line("[%s] m_uchDiagSessionType=%d", m_uchDiagSessionType);
    line("[%s] m_bIgOnOffCount=%d", m_bIgOnOffCount);
    line("[%s] m_ushIgOnOffCount=%d", m_ushIgOnOffCount);
    return 0;
}

krm_long CKRMCSetDiagSessionCmdAdaptDataRcv::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCSetDiagSessionCmdAdaptDataRcv::ErrWriteOperationLog");
    line("[%s] m_bResult=%d", m_bResult);
    return 0;
}

CKRMCGetVehicleInfoCmdAdaptDataSnd::~CKRMCGetVehicleInfoCmdAdaptDataSnd() = default;

krm_long CKRMCGetVehicleInfoCmdAdaptDataRcv::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCGetVehicleInfoCmdAdaptDataRcv::ErrWriteOperationLog");
    line("[%s] Data[%d]", Data);
    return 0;
}

CKRMCGetAllDtcSystemListCmdAdaptDataSnd::~CKRMCGetAllDtcSystemListCmdAdaptDataSnd() = default;

krm_long CKRMCGetAllDtcSystemListCmdAdaptDataRcv::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCGetAllDtcSystemListCmdAdaptDataRcv::ErrWriteOperationLog");
    line("[%s] m_ulSystemIdList[%d]=%d", m_ulSystemIdList);
    return 0;
}

CKRMCGetVinCodeCmdAdaptDataSnd::~CKRMCGetVinCodeCmdAdaptDataSnd() = default;

krm_long CKRMCGetVinCodeCmdAdaptDataRcv::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCGetVinCodeCmdAdaptDataRcv::ErrWriteOperationLog");
    line("[%s] m_strVinCode=%s", m_strVinCode);
    return 0;
}

krm_long CKRMCGetCarCategoryVinCmdAdaptDataSnd::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCGetCarCategoryVinCmdAdaptDataSnd::ErrWriteOperationLog");
    line("[%s] Data[%d]", Data);
    return 0;
}

krm_long CKRMCGetCarCategoryVinCmdAdaptDataRcv::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCGetCarCategoryVinCmdAdaptDataRcv::ErrWriteOperationLog");
    line("[%s] Data[%d]", Data);
    return 0;
}

krm_long CKRMCGetVehicleSystemInfoCmdAdaptDataSnd::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCGetVehicleSystemInfoCmdAdaptDataSnd::ErrWriteOperationLog");
    line("[%s] m_ulSystemId=%u", m_ulSystemId);
    return 0;
}

krm_long CKRMCGetVehicleSystemInfoCmdAdaptDataRcv::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCGetVehicleSystemInfoCmdAdaptDataRcv::ErrWriteOperationLog");
    line("[%s] Data[%d]", Data);
    return 0;
}

krm_long CKRMCSelectVehicleInfoCmdAdaptDataSnd::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCSelectVehicleInfoCmdAdaptDataSnd::ErrWriteOperationLog");
    line("[%s] m_cVehicleInfoList[%d]", m_cVehicleInfoList);
    return 0;
}

krm_long CKRMCSelectVehicleInfoCmdAdaptDataRcv::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCSelectVehicleInfoCmdAdaptDataRcv::ErrWriteOperationLog");
    line("[%s] m_cVehicleInfoList[%d]", m_cVehicleInfoList);
    line("[%s] m_cVehicleInfoSelectList[%d]", m_cVehicleInfoSelectList);
    line("[%s] m_uchStatusId=%d", m_uchStatusId);
    return 0;
}

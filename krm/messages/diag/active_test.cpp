#include "krm/messages/diag/active_test.h"

#include "krm/framework/dump.h"

template class CKRMList<CKRMCCommandButtonData>;
template class CKRMList<CKRMCCommandButtonVariableData>;
template class CKRMList<CKRMCCommandActiveTestData>;
template class CKRMList<CKRMCCommandUtilityData>;
template class CKRMList<CKRMCCommandSpecialFunctionKeyInfo>;
template class CKRMList<CKRMCCommandCustomListData>;
template class CKRMList<CKRMCSpGroup>;
template class CKRMList<CKRMCDrivingData>;

CKRMCCommandButtonData::~CKRMCCommandButtonData() = default;

void CKRMCCommandButtonData::Dump(const krm::RecordLines& line) {
    line("%s.m_ulSpecialDriveType=%d", m_ulSpecialDriveType);
    line("%s.m_ulCaptionId=%d", m_ulCaptionId);
    line("%s.m_strCaption=%s", m_strCaption);
    line("%s.m_ulPressRawData=%d", m_ulPressRawData);
    line("%s.m_ulReleaseRawData=%d", m_ulReleaseRawData);
    line("%s.m_uchInvalidFlag=%d", m_uchInvalidFlag);
}

CKRMCCommandButtonVariableData::~CKRMCCommandButtonVariableData() = default;

void CKRMCCommandButtonVariableData::Dump(const krm::RecordLines& line) {
    line("%s.m_ulSpecialDriveType=%d", m_ulSpecialDriveType);
    line("%s.m_ulCaptionId=%d", m_ulCaptionId);
    line("%s.m_strCaption=%s", m_strCaption);
    line("[%s] m_uchPressRawDataList[%d]=%d", m_uchPressRawDataList);
    line("[%s] m_uchReleaseRawDataList[%d]=%d", m_uchReleaseRawDataList);
    line("%s.m_uchInvalidFlag=%d", m_uchInvalidFlag);
}

CKRMCCommandActiveTestData::~CKRMCCommandActiveTestData() = default;

void CKRMCCommandActiveTestData::Dump(const krm::RecordLines& line) {
    line("%s.m_ushId=%d", m_ushId);
    line("%s.m_ushRoutineActSpecId=%d", m_ushRoutineActSpecId);
    line("%s.m_ulNameId=%d", m_ulNameId);
    line("%s.m_strName=%s", m_strName);
    line("%s.m_ulUnitPhysId=%d", m_ulUnitPhysId);
    line("%s.m_strUnitPhys=%s", m_strUnitPhys);
    line("%s.m_ulUnitId=%d", m_ulUnitId);
    line("%s.m_strUnit=%s", m_strUnit);
    line("%s.m_uchButtonSize=%d", m_uchButtonSize);
    line("%s.m_uchKeyOperationType=%d", m_uchKeyOperationType);
    line("%s.m_ulMaintenanceTime=%d", m_ulMaintenanceTime);
    line("%s.m_ulAutoContinuTime=%d", m_ulAutoContinuTime);
    line("%s.m_ulLockTime=%d", m_ulLockTime);
    line("%s.m_uchKeyInvalidFlag=%d", m_uchKeyInvalidFlag);
    line("%s.m_ulHelpId=%d", m_ulHelpId);
    line("%s.m_ulProhibitionId=%d", m_ulProhibitionId);
    line("%s.m_ulInfoId=%d", m_ulInfoId);
    line("%s.m_ulCautionId=%d", m_ulCautionId);
    line("%s.m_ulCommentId=%d", m_ulCommentId);
    line("%s.m_cInitialData", m_cInitialData);
    line("%s.m_cResolutionData", m_cResolutionData);
    line("%s.m_uchDataType=%d", m_uchDataType);
    line("%s.m_uchDecPntCount=%d", m_uchDecPntCount);
    line("%s.m_uchUnitConvDecPntCount=%d", m_uchUnitConvDecPntCount);
    line("%s.m_cConversionTbl", m_cConversionTbl);
    line("%s.m_cButtonDataList[%d]", m_cButtonDataList);
    line("%s.m_ulStep=%d", m_ulStep);
    line("%s.m_cLinearDriveTable", m_cLinearDriveTable);
    line("%s.m_cButtonDataVariableList[%d]", m_cButtonDataVariableList);
    line("%s.m_uchCurValPidIdSupport=%d", m_uchCurValPidIdSupport);
    line("%s.m_ushCurValPidId=%d", m_ushCurValPidId);
    line("%s.m_bOutputRidData=%d", m_bOutputRidData);
    line("%s.m_cButtonPatternDispInfoList[%d]", m_cButtonPatternDispInfoList);
    line("%s.m_cNormalRoutineStatusInfoList[%d]", m_cNormalRoutineStatusInfoList);
    line("%s.m_cAbnormalRoutineStatusInfoList[%d]", m_cAbnormalRoutineStatusInfoList);
    line("%s.m_cPatternResultDispInfoList[%d]", m_cPatternResultDispInfoList);
    line("%s.m_ushReferencePattern=%d", m_ushReferencePattern);
}

CKRMCCommandUtilityData::~CKRMCCommandUtilityData() = default;

void CKRMCCommandUtilityData::Dump(const krm::RecordLines& line) {
    line("%s.m_ulFunctionNameId=%d", m_ulFunctionNameId);
    line("%s.m_strFunctionName=%s", m_strFunctionName);
    line("%s.m_ushFunctionId=%d", m_ushFunctionId);
    line("%s.m_ushPhaseType=%d", m_ushPhaseType);
    line("%s.m_ulEcuId=%d", m_ulEcuId);
    line("%s.m_ushBusId=%d", m_ushBusId);
    line("%s.m_ulHelpId=%d", m_ulHelpId);
    line("%s.m_ulBaudrate=%d", m_ulBaudrate);
    line("%s.m_ushP2Max=%d", m_ushP2Max);
    line("%s.m_ulFcCode=%06X", m_ulFcCode);
    line("%s.m_ulPhysAddr=%X", m_ulPhysAddr);
    line("%s.m_ul5bpsAddr=%X", m_ul5bpsAddr);
    line("%s.m_ulFuncAddr=%X", m_ulFuncAddr);
    line("%s.m_ulNTA=%02X", m_ulNTA);
    line("%s.m_ulToolAddr=%X", m_ulToolAddr);
    line("%s.m_uchSecurityTargetFlag=%d", m_uchSecurityTargetFlag);
    line("%s.m_ulSpecialFunctionKey=%d", m_ulSpecialFunctionKey);
    line("%s.m_ulLegislatedAddr=%X", m_ulLegislatedAddr);
    line("%s.m_ulP3Min=%d", m_ulP3Min);
    line("%s.m_ulStminTx=%d", m_ulStminTx);
    line("%s.m_ulNBrMin=%d", m_ulNBrMin);
    line("%s.m_ulCanP3Min=%d", m_ulCanP3Min);
}

CKRMCCommandSpecialFunctionKeyInfo::~CKRMCCommandSpecialFunctionKeyInfo() = default;

void CKRMCCommandSpecialFunctionKeyInfo::Dump(const krm::RecordLines& line) {
    line("%s.m_ushScreenId=%d", m_ushScreenId);
    line("%s.m_ushFunctionId=%d", m_ushFunctionId);
    line("%s.m_ushFunctionDetailId=%d", m_ushFunctionDetailId);
    line("%s.m_ulKeycode=0x%04X", m_ulKeycode);
    line("%s.m_ulCompareOptions=0x%04X", m_ulCompareOptions);
}

krm_long CKRMCGetUtilityListCmdAdaptDataSnd::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCGetUtilityListCmdAdaptDataSnd::ErrWriteOperationLog");
    line("[%s] m_uchConnectLevel=%d", m_uchConnectLevel);
    line("[%s] m_ulSecurityLevel=0x%04X", m_ulSecurityLevel);
    line("[%s] Data[%d].m_cSpecialFunctionKeyList=0x%04X", m_cSpecialFunctionKeyList);
    return 0;
}

krm_long CKRMCGetUtilityListCmdAdaptDataRcv::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCGetUtilityListCmdAdaptDataRcv::ErrWriteOperationLog");
    line("[%s] Data[%d]", Data);
    // The parameters go under the name Data too, counted from 0 again.
    line.ForEach(m_cJ2534ConfigList, [](const auto& itemLine, auto& config) {
        itemLine("[%s] Data[%d].m_ulParameter=%d", config.m_ulParameter);
        itemLine("[%s] Data[%d].m_ulValue=%d", config.m_ulValue);
    });
    return 0;
}

CKRMCGetCustomListCmdAdaptDataSnd::~CKRMCGetCustomListCmdAdaptDataSnd() = default;

krm_long CKRMCGetCustomListCmdAdaptDataRcv::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCGetCustomListCmdAdaptDataRcv::ErrWriteOperationLog");
    line.ForEach(Data, [](const auto& itemLine, auto& list) {
        itemLine("[%s] Data[%d].m_strFileName=%s", list.m_strFileName);
        itemLine("[%s] Data[%d].m_strName=%s", list.m_strName);
        itemLine("[%s] Data[%d].m_ushDataType=%d", list.m_ushDataType);
        itemLine("[%s] Data[%d].m_ushSortIndex=%d", list.m_ushSortIndex);
        itemLine("[%s] Data[%d].m_uchInitialDispFlag=%d", list.m_uchInitialDispFlag);
    });
    return 0;
}

krm_long CKRMCStartActiveTestCmdAdaptDataSnd::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCStartActiveTestCmdAdaptDataSnd::ErrWriteOperationLog");
    line("[%s] m_ushId=%d", m_ushId);
    line.ForEach(Data, [](const auto& itemLine, auto& drive) {
        itemLine("[%s] Data[%d].m_uchType=%d", drive.m_uchType);
        itemLine("[%s] Data[%d].m_dData=%lf", drive.m_dData);
    });
    line("[%s] m_uchLinearDriveValueList[%d]=0x%02X", m_uchLinearDriveValueList);
    line("[%s] m_uchButtonPatternDispValueList[%d]=0x%02X", m_uchButtonPatternDispValueList);
    return 0;
}

CKRMCStartActiveTestCmdAdaptDataRcv::~CKRMCStartActiveTestCmdAdaptDataRcv() = default;

krm_long CKRMCGetActiveTestListCmdAdaptDataSnd::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCGetActiveTestListCmdAdaptDataSnd::ErrWriteOperationLog");
    line("[%s] m_ushId=%d", m_ushId);
    line("[%s] m_uchDataType=%d", m_uchDataType);
    return 0;
}

krm_long CKRMCGetActiveTestListCmdAdaptDataRcv::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCGetActiveTestListCmdAdaptDataRcv::ErrWriteOperationLog");
    line("[%s] Data[%d]", Data);
    return 0;
}

krm_long CKRMCCheckActiveTestAssumptionCmdAdaptDataSnd::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCCheckActiveTestAssumptionCmdAdaptDataSnd::ErrWriteOperationLog");
    line("[%s] m_ushId=%d", m_ushId);
    return 0;
}

krm_long CKRMCCheckActiveTestAssumptionCmdAdaptDataRcv::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCCheckActiveTestAssumptionCmdAdaptDataRcv::ErrWriteOperationLog");
    line("[%s] m_bActiveTestEnable=%d", m_bActiveTestEnable);
    line("[%s] m_ulHelpId=%d", m_ulHelpId);
    return 0;
}

krm_long CKRMCSetActiveTestSessionCmdAdaptDataSnd::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCSetActiveTestSessionCmdAdaptDataSnd::ErrWriteOperationLog");
    line("[%s] m_ushId=%d", m_ushId);
    line("[%s] m_uchSessionMode=%d", m_uchSessionMode);
    return 0;
}

CKRMCSetActiveTestSessionCmdAdaptDataRcv::~CKRMCSetActiveTestSessionCmdAdaptDataRcv() = default;

CKRMCGetSpOperateCtrlRecordGroupCmdAdaptDataSnd::~CKRMCGetSpOperateCtrlRecordGroupCmdAdaptDataSnd() = default;

krm_long CKRMCGetSpOperateCtrlRecordGroupCmdAdaptDataRcv::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCGetSpOperateCtrlRecordGroupCmdAdaptDataRcv::ErrWriteOperationLog");
    line.ForEach(Data, [](const auto& itemLine, auto& group) {
        itemLine("[%s] Data[%d].m_ushGroupId=%d", group.m_ushGroupId);
        itemLine("[%s] Data[%d].m_ulGroupNameId=%d", group.m_ulGroupNameId);
        itemLine("[%s] Data[%d].m_strGroupName=%s", group.m_strGroupName);
    });
    return 0;
}

krm_long CKRMCGetSpOperateCtrlRecordCmdAdaptDataSnd::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCGetSpOperateCtrlRecordCmdAdaptDataSnd::ErrWriteOperationLog");
    line("[%s] m_ushGroupId=%d", m_ushGroupId);
    return 0;
}

krm_long CKRMCGetSpOperateCtrlRecordCmdAdaptDataRcv::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCGetSpOperateCtrlRecordCmdAdaptDataRcv::ErrWriteOperationLog");
    line("[%s] m_cSpOperateList[%d]", m_cSpOperateList);
    return 0;
}

krm_long CKRMCWriteDataItemCmdAdaptDataSnd::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCWriteDataItemCmdAdaptDataSnd::ErrWriteOperationLog");
    line.ForEach(Data, [](const auto& itemLine, auto& item) {
        itemLine("[%s] Data[%d].m_ushId=%d", item.m_ushId);
        itemLine("[%s] Data[%d].m_uchType=%d", item.m_uchType);
        itemLine("[%s] Data[%d].m_ulData=%d", item.m_ulData);
    });
    return 0;
}

CKRMCWriteDataItemCmdAdaptDataRcv::~CKRMCWriteDataItemCmdAdaptDataRcv() = default;

CKRMCGetSpecialFunctionKeyListCmdAdaptDataSnd::~CKRMCGetSpecialFunctionKeyListCmdAdaptDataSnd() = default;

krm_long CKRMCGetSpecialFunctionKeyListCmdAdaptDataRcv::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCGetSpecialFunctionKeyListCmdAdaptDataRcv::ErrWriteOperationLog");
    line("[%s] Data[%d]", Data);
    return 0;
}

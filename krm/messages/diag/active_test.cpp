#include "krm/messages/diag/active_test.h"

#include "krm/framework/dump.h"

template class CKRMList<CKRMCCommandButtonData>;
template class CKRMList<CKRMCCommandButtonVariableData>;
template class CKRMList<CKRMCCommandActiveTestData>;
template class CKRMList<CKRMCDrivingData>;

void CKRMCCommandButtonData::Dump(const krm::RecordLines& line) {
    line("%s.m_ulSpecialDriveType=%d", m_ulSpecialDriveType);
    line("%s.m_ulCaptionId=%d", m_ulCaptionId);
    line("%s.m_strCaption=%s", m_strCaption);
    line("%s.m_ulPressRawData=%d", m_ulPressRawData);
    line("%s.m_ulReleaseRawData=%d", m_ulReleaseRawData);
    line("%s.m_uchInvalidFlag=%d", m_uchInvalidFlag);
}

void CKRMCCommandButtonVariableData::Dump(const krm::RecordLines& line) {
    line("%s.m_ulSpecialDriveType=%d", m_ulSpecialDriveType);
    line("%s.m_ulCaptionId=%d", m_ulCaptionId);
    line("%s.m_strCaption=%s", m_strCaption);
    line("[%s] m_uchPressRawDataList[%d]=%d", m_uchPressRawDataList);
    line("[%s] m_uchReleaseRawDataList[%d]=%d", m_uchReleaseRawDataList);
    line("%s.m_uchInvalidFlag=%d", m_uchInvalidFlag);
}

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

void CKRMCStartActiveTestCmdAdaptDataSnd::Dump(const krm::MessageLines& line) {
    line("[%s] m_ushId=%d", m_ushId);
    line.ForEach(Data, [](const auto& itemLine, auto& drive) {
        itemLine("[%s] Data[%d].m_uchType=%d", drive.m_uchType);
        itemLine("[%s] Data[%d].m_dData=%lf", drive.m_dData);
    });
    line("[%s] m_uchLinearDriveValueList[%d]=0x%02X", m_uchLinearDriveValueList);
    line("[%s] m_uchButtonPatternDispValueList[%d]=0x%02X", m_uchButtonPatternDispValueList);
}

void CKRMCGetActiveTestListCmdAdaptDataSnd::Dump(const krm::MessageLines& line) {
    line("[%s] m_ushId=%d", m_ushId);
    line("[%s] m_uchDataType=%d", m_uchDataType);
}

void CKRMCGetActiveTestListCmdAdaptDataRcv::Dump(const krm::MessageLines& line) {
    line("[%s] Data[%d]", Data);
}

void CKRMCCheckActiveTestAssumptionCmdAdaptDataSnd::Dump(const krm::MessageLines& line) {
    line("[%s] m_ushId=%d", m_ushId);
}

void CKRMCCheckActiveTestAssumptionCmdAdaptDataRcv::Dump(const krm::MessageLines& line) {
    line("[%s] m_bActiveTestEnable=%d", m_bActiveTestEnable);
    line("[%s] m_ulHelpId=%d", m_ulHelpId);
}

void CKRMCSetActiveTestSessionCmdAdaptDataSnd::Dump(const krm::MessageLines& line) {
    line("[%s] m_ushId=%d", m_ushId);
    line("[%s] m_uchSessionMode=%d", m_uchSessionMode);
}

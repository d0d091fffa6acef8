// The fields of the classes of krm/messages/diag/active_test.h, in the order of their declaration.
#ifndef KRM_FIELDS_DIAG_ACTIVE_TEST_H_
#define KRM_FIELDS_DIAG_ACTIVE_TEST_H_

#include "krm/fields/diag/display.h"
#include "krm/fields/fields.h"
#include "krm/messages/diag/active_test.h"

template <>
struct krm::Fields<CKRMCCommandButtonData>
    : krm::FieldList<&CKRMCCommandButtonData::m_ulSpecialDriveType, &CKRMCCommandButtonData::m_ulCaptionId,
                     &CKRMCCommandButtonData::m_strCaption, &CKRMCCommandButtonData::m_ulPressRawData,
                     &CKRMCCommandButtonData::m_ulReleaseRawData, &CKRMCCommandButtonData::m_uchInvalidFlag> {};

template <>
struct krm::Fields<CKRMCCommandButtonVariableData>
    : krm::FieldList<
          &CKRMCCommandButtonVariableData::m_ulSpecialDriveType, &CKRMCCommandButtonVariableData::m_ulCaptionId,
          &CKRMCCommandButtonVariableData::m_strCaption, &CKRMCCommandButtonVariableData::m_uchPressRawDataList,
          &CKRMCCommandButtonVariableData::m_uchReleaseRawDataList, &CKRMCCommandButtonVariableData::m_uchInvalidFlag> {
};

template <>
struct krm::Fields<CKRMCCommandActiveTestData>
    : krm::FieldList<
          &CKRMCCommandActiveTestData::m_ushId, &CKRMCCommandActiveTestData::m_ushRoutineActSpecId,
          &CKRMCCommandActiveTestData::m_ulNameId, &CKRMCCommandActiveTestData::m_strName,
          &CKRMCCommandActiveTestData::m_strActiveTestText, &CKRMCCommandActiveTestData::m_ulUnitPhysId,
          &CKRMCCommandActiveTestData::m_strUnitPhys, &CKRMCCommandActiveTestData::m_ulUnitId,
          &CKRMCCommandActiveTestData::m_strUnit, &CKRMCCommandActiveTestData::m_uchButtonSize,
          &CKRMCCommandActiveTestData::m_uchKeyOperationType, &CKRMCCommandActiveTestData::m_ulMaintenanceTime,
          &CKRMCCommandActiveTestData::m_ulAutoContinuTime, &CKRMCCommandActiveTestData::m_ulLockTime,
          &CKRMCCommandActiveTestData::m_uchKeyInvalidFlag, &CKRMCCommandActiveTestData::m_ulHelpId,
          &CKRMCCommandActiveTestData::m_ulProhibitionId, &CKRMCCommandActiveTestData::m_ulInfoId,
          &CKRMCCommandActiveTestData::m_ulCautionId, &CKRMCCommandActiveTestData::m_ulCommentId,
          &CKRMCCommandActiveTestData::m_cInitialData, &CKRMCCommandActiveTestData::m_cResolutionData,
          &CKRMCCommandActiveTestData::m_uchDataType, &CKRMCCommandActiveTestData::m_uchDecPntCount,
          &CKRMCCommandActiveTestData::m_uchUnitConvDecPntCount, &CKRMCCommandActiveTestData::m_cConversionTbl,
          &CKRMCCommandActiveTestData::m_cButtonDataList, &CKRMCCommandActiveTestData::m_ulStep,
          &CKRMCCommandActiveTestData::m_cLinearDriveTable, &CKRMCCommandActiveTestData::m_cButtonDataVariableList,
          &CKRMCCommandActiveTestData::m_uchCurValPidIdSupport, &CKRMCCommandActiveTestData::m_ushCurValPidId,
          &CKRMCCommandActiveTestData::m_bOutputRidData, &CKRMCCommandActiveTestData::m_cButtonPatternDispInfoList,
          &CKRMCCommandActiveTestData::m_cNormalRoutineStatusInfoList,
          &CKRMCCommandActiveTestData::m_cAbnormalRoutineStatusInfoList,
          &CKRMCCommandActiveTestData::m_cPatternResultDispInfoList,
          &CKRMCCommandActiveTestData::m_ushReferencePattern> {};

template <>
struct krm::Fields<CKRMCDrivingData> : krm::FieldList<&CKRMCDrivingData::m_uchType, &CKRMCDrivingData::m_dData> {};

template <>
struct krm::Fields<CKRMCStartActiveTestCmdAdaptDataSnd>
    : krm::FieldList<&CKRMCStartActiveTestCmdAdaptDataSnd::m_ushId, &CKRMCStartActiveTestCmdAdaptDataSnd::Data,
                     &CKRMCStartActiveTestCmdAdaptDataSnd::m_uchLinearDriveValueList,
                     &CKRMCStartActiveTestCmdAdaptDataSnd::m_uchButtonPatternDispValueList> {};

template <>
struct krm::Fields<CKRMCStartActiveTestCmdAdaptDataRcv> : krm::FieldList<> {};

template <>
struct krm::Fields<CKRMCGetActiveTestListCmdAdaptDataSnd>
    : krm::FieldList<&CKRMCGetActiveTestListCmdAdaptDataSnd::m_ushId,
                     &CKRMCGetActiveTestListCmdAdaptDataSnd::m_uchDataType> {};

template <>
struct krm::Fields<CKRMCGetActiveTestListCmdAdaptDataRcv>
    : krm::FieldList<&CKRMCGetActiveTestListCmdAdaptDataRcv::Data> {};

template <>
struct krm::Fields<CKRMCCheckActiveTestAssumptionCmdAdaptDataSnd>
    : krm::FieldList<&CKRMCCheckActiveTestAssumptionCmdAdaptDataSnd::m_ushId> {};

template <>
struct krm::Fields<CKRMCCheckActiveTestAssumptionCmdAdaptDataRcv>
    : krm::FieldList<&CKRMCCheckActiveTestAssumptionCmdAdaptDataRcv::m_bActiveTestEnable,
                     &CKRMCCheckActiveTestAssumptionCmdAdaptDataRcv::m_ulHelpId> {};

template <>
struct krm::Fields<CKRMCSetActiveTestSessionCmdAdaptDataSnd>
    : krm::FieldList<&CKRMCSetActiveTestSessionCmdAdaptDataSnd::m_ushId,
                     &CKRMCSetActiveTestSessionCmdAdaptDataSnd::m_uchSessionMode> {};

template <>
struct krm::Fields<CKRMCSetActiveTestSessionCmdAdaptDataRcv> : krm::FieldList<> {};

#endif  // KRM_FIELDS_DIAG_ACTIVE_TEST_H_

// The fields of the classes of krm/messages/diag/active_test.h, in order.
#ifndef KRM_TESTS_MESSAGES_DIAG_ACTIVE_TEST_FIELDS_H_
#define KRM_TESTS_MESSAGES_DIAG_ACTIVE_TEST_FIELDS_H_

#include <tuple>

#include "krm/messages/diag/active_test.h"
#include "tests/messages/diag/display_fields.h"
#include "tests/support/fields.h"

inline auto FieldsOf(CKRMCCommandButtonData& it) {
    return std::tie(it.m_ulSpecialDriveType, it.m_ulCaptionId, it.m_strCaption, it.m_ulPressRawData,
                    it.m_ulReleaseRawData, it.m_uchInvalidFlag);
}

inline auto FieldsOf(CKRMCCommandButtonVariableData& it) {
    return std::tie(it.m_ulSpecialDriveType, it.m_ulCaptionId, it.m_strCaption, it.m_uchPressRawDataList,
                    it.m_uchReleaseRawDataList, it.m_uchInvalidFlag);
}

inline auto FieldsOf(CKRMCCommandActiveTestData& it) {
    return std::tie(it.m_ushId, it.m_ushRoutineActSpecId, it.m_ulNameId, it.m_strName, it.m_strActiveTestText,
                    it.m_ulUnitPhysId, it.m_strUnitPhys, it.m_ulUnitId, it.m_strUnit, it.m_uchButtonSize,
                    it.m_uchKeyOperationType, it.m_ulMaintenanceTime, it.m_ulAutoContinuTime, it.m_ulLockTime,
                    it.m_uchKeyInvalidFlag, it.m_ulHelpId, it.m_ulProhibitionId, it.m_ulInfoId, it.m_ulCautionId,
                    it.m_ulCommentId, it.m_cInitialData, it.m_cResolutionData, it.m_uchDataType, it.m_uchDecPntCount,
                    it.m_uchUnitConvDecPntCount, it.m_cConversionTbl, it.m_cButtonDataList, it.m_ulStep,
                    it.m_cLinearDriveTable, it.m_cButtonDataVariableList, it.m_uchCurValPidIdSupport,
                    it.m_ushCurValPidId, it.m_bOutputRidData, it.m_cButtonPatternDispInfoList,
                    it.m_cNormalRoutineStatusInfoList, it.m_cAbnormalRoutineStatusInfoList,
                    it.m_cPatternResultDispInfoList, it.m_ushReferencePattern);
}

inline auto FieldsOf(CKRMCDrivingData& it) {
    return std::tie(it.m_uchType, it.m_dData);
}

inline auto FieldsOf(CKRMCStartActiveTestCmdAdaptDataSnd& it) {
    return std::tie(it.m_ushId, it.Data, it.m_uchLinearDriveValueList, it.m_uchButtonPatternDispValueList);
}

inline auto FieldsOf(CKRMCStartActiveTestCmdAdaptDataRcv&) {
    return std::tie();
}

inline auto FieldsOf(CKRMCGetActiveTestListCmdAdaptDataSnd& it) {
    return std::tie(it.m_ushId, it.m_uchDataType);
}

inline auto FieldsOf(CKRMCGetActiveTestListCmdAdaptDataRcv& it) {
    return std::tie(it.Data);
}

inline auto FieldsOf(CKRMCCheckActiveTestAssumptionCmdAdaptDataSnd& it) {
    return std::tie(it.m_ushId);
}

inline auto FieldsOf(CKRMCCheckActiveTestAssumptionCmdAdaptDataRcv& it) {
    return std::tie(it.m_bActiveTestEnable, it.m_ulHelpId);
}

inline auto FieldsOf(CKRMCSetActiveTestSessionCmdAdaptDataSnd& it) {
    return std::tie(it.m_ushId, it.m_uchSessionMode);
}

inline auto FieldsOf(CKRMCSetActiveTestSessionCmdAdaptDataRcv&) {
    return std::tie();
}

#endif  // KRM_TESTS_MESSAGES_DIAG_ACTIVE_TEST_FIELDS_H_

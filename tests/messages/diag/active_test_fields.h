// The fields of the active test, utility, user list, special function and item write classes, in order.
#ifndef KRM_TESTS_MESSAGES_DIAG_ACTIVE_TEST_FIELDS_H_
#define KRM_TESTS_MESSAGES_DIAG_ACTIVE_TEST_FIELDS_H_

#include <tuple>

#include "krm/messages/diag/active_test.h"
#include "krm/messages/diag/data_item.h"
#include "krm/messages/diag/special_operation.h"
#include "krm/messages/diag/utilities.h"
#include "tests/messages/diag/display_fields.h"
#include "tests/messages/diag/oscilloscope_memory_fields.h"
#include "tests/messages/diag/trouble_codes_fields.h"
#include "tests/messages/diag/vehicle_fields.h"
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

inline auto FieldsOf(CKRMCCommandUtilityData& it) {
    return std::tie(it.m_ulFunctionNameId, it.m_strFunctionName, it.m_ushFunctionId, it.m_ushPhaseType, it.m_ulEcuId,
                    it.m_ushBusId, it.m_ulHelpId, it.m_ulBaudrate, it.m_ushP2Max, it.m_ulFcCode, it.m_ulPhysAddr,
                    it.m_ul5bpsAddr, it.m_ulFuncAddr, it.m_ulNTA, it.m_ulToolAddr, it.m_uchSecurityTargetFlag,
                    it.m_ulSpecialFunctionKey, it.m_ulLegislatedAddr, it.m_ulP3Min, it.m_ulStminTx, it.m_ulNBrMin,
                    it.m_ulCanP3Min);
}

inline auto FieldsOf(CKRMCCommandSpecialFunctionKeyInfo& it) {
    return std::tie(it.m_ushScreenId, it.m_ushFunctionId, it.m_ushFunctionDetailId, it.m_ulKeycode, it.m_strKeyText,
                    it.m_ulCompareOptions);
}

inline auto FieldsOf(CKRMCCommandCustomListData& it) {
    return std::tie(it.m_strFileName, it.m_strName, it.m_ushDataType, it.m_ushSortIndex, it.m_uchInitialDispFlag);
}

inline auto FieldsOf(CKRMCSpGroup& it) {
    return std::tie(it.m_ushGroupId, it.m_ulGroupNameId, it.m_strGroupName);
}

inline auto FieldsOf(CKRMCDrivingData& it) {
    return std::tie(it.m_uchType, it.m_dData);
}

inline auto FieldsOf(CKRMCGetUtilityListCmdAdaptDataSnd& it) {
    return std::tie(it.m_uchConnectLevel, it.m_ulSecurityLevel, it.m_cSpecialFunctionKeyList);
}

inline auto FieldsOf(CKRMCGetUtilityListCmdAdaptDataRcv& it) {
    return std::tie(it.Data, it.m_cJ2534ConfigList);
}

inline auto FieldsOf(CKRMCGetCustomListCmdAdaptDataSnd&) {
    return std::tie();
}

inline auto FieldsOf(CKRMCGetCustomListCmdAdaptDataRcv& it) {
    return std::tie(it.Data);
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

inline auto FieldsOf(CKRMCGetSpOperateCtrlRecordGroupCmdAdaptDataSnd&) {
    return std::tie();
}

inline auto FieldsOf(CKRMCGetSpOperateCtrlRecordGroupCmdAdaptDataRcv& it) {
    return std::tie(it.Data);
}

inline auto FieldsOf(CKRMCGetSpOperateCtrlRecordCmdAdaptDataSnd& it) {
    return std::tie(it.m_ushGroupId);
}

inline auto FieldsOf(CKRMCGetSpOperateCtrlRecordCmdAdaptDataRcv& it) {
    return std::tie(it.m_cSpOperateList);
}

inline auto FieldsOf(CKRMCWriteDataItemCmdAdaptDataSnd& it) {
    return std::tie(it.Data);
}

inline auto FieldsOf(CKRMCWriteDataItemCmdAdaptDataRcv&) {
    return std::tie();
}

inline auto FieldsOf(CKRMCGetSpecialFunctionKeyListCmdAdaptDataSnd&) {
    return std::tie();
}

inline auto FieldsOf(CKRMCGetSpecialFunctionKeyListCmdAdaptDataRcv& it) {
    return std::tie(it.Data);
}

#endif  // KRM_TESTS_MESSAGES_DIAG_ACTIVE_TEST_FIELDS_H_

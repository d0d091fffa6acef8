#include "krm/messages/diag/active_test.h"

#include <gtest/gtest.h>

#include <string>
#include <type_traits>

#include "krm/fields/diag/active_test.h"
#include "tests/messages/diag/expected_lines.h"
#include "tests/support/fields.h"
#include "tests/support/log_text.h"

namespace {

using krm::test::AnswerBaseLines;
using krm::test::ConversionLines;
using krm::test::DisplayLines;
using krm::test::ExpectLog;
using krm::test::IsZero;
using krm::test::RequestBaseLines;
using krm::test::Under;

static_assert(std::is_standard_layout_v<CKRMCDrivingData> && std::is_trivially_copyable_v<CKRMCDrivingData>);

TEST(ButtonData, WritesItsFieldsInOrder) {
    CKRMCCommandButtonData button;
    button.m_ulSpecialDriveType = 1;
    button.m_ulCaptionId = 2;
    button.m_strCaption = "On 100 %";
    button.m_ulPressRawData = 4294967295U;
    button.m_ulReleaseRawData = 4;
    button.m_uchInvalidFlag = 255;
    ExpectLog(button, {R"(
P.m_ulSpecialDriveType=1
P.m_ulCaptionId=2
P.m_strCaption=On 100 %
P.m_ulPressRawData=-1
P.m_ulReleaseRawData=4
P.m_uchInvalidFlag=255
)"});
}

TEST(ButtonVariableData, WritesALinePerByte) {
    CKRMCCommandButtonVariableData button;
    button.m_ulSpecialDriveType = 1;
    button.m_ulCaptionId = 2;
    button.m_strCaption = "Off";
    button.m_uchPressRawDataList.AddTail(0xAB);
    button.m_uchPressRawDataList.AddTail(1);
    button.m_uchReleaseRawDataList.AddTail(255);
    button.m_uchInvalidFlag = 6;
    ExpectLog(button, {R"(
P.m_ulSpecialDriveType=1
P.m_ulCaptionId=2
P.m_strCaption=Off
[P] m_uchPressRawDataList[0]=171
[P] m_uchPressRawDataList[1]=1
[P] m_uchReleaseRawDataList[0]=255
P.m_uchInvalidFlag=6
)"});
}

TEST(ActiveTestData, HoldsSixEmptyListsAndClearedRecordsWhenNew) {
    CKRMCCommandActiveTestData test;
    EXPECT_EQ(test.m_cButtonDataList.GetCount(), 0);
    EXPECT_EQ(test.m_cButtonDataVariableList.GetCount(), 0);
    EXPECT_EQ(test.m_cButtonPatternDispInfoList.GetCount(), 0);
    EXPECT_EQ(test.m_cNormalRoutineStatusInfoList.GetCount(), 0);
    EXPECT_EQ(test.m_cAbnormalRoutineStatusInfoList.GetCount(), 0);
    EXPECT_EQ(test.m_cPatternResultDispInfoList.GetCount(), 0);
    EXPECT_TRUE(IsZero(test.m_cInitialData));
    EXPECT_TRUE(IsZero(test.m_cResolutionData));
    EXPECT_TRUE(IsZero(test.m_cConversionTbl));
    EXPECT_TRUE(IsZero(test.m_cLinearDriveTable));
}

TEST(ActiveTestData, WritesNoElementLinesWhenNew) {
    CKRMCCommandActiveTestData test;
    ExpectLog(test, {R"(
P.m_ushId=0
P.m_ushRoutineActSpecId=0
P.m_ulNameId=0
P.m_strName=
P.m_ulUnitPhysId=0
P.m_strUnitPhys=
P.m_ulUnitId=0
P.m_strUnit=
P.m_uchButtonSize=0
P.m_uchKeyOperationType=0
P.m_ulMaintenanceTime=0
P.m_ulAutoContinuTime=0
P.m_ulLockTime=0
P.m_uchKeyInvalidFlag=0
P.m_ulHelpId=0
P.m_ulProhibitionId=0
P.m_ulInfoId=0
P.m_ulCautionId=0
P.m_ulCommentId=0
)",
                     DisplayLines("P.m_cInitialData", 0), DisplayLines("P.m_cResolutionData", 0), R"(
P.m_uchDataType=0
P.m_uchDecPntCount=0
P.m_uchUnitConvDecPntCount=0
)",
                     ConversionLines("P.m_cConversionTbl", 0), R"(
P.m_ulStep=0
)",
                     ConversionLines("P.m_cLinearDriveTable", 0), R"(
P.m_uchCurValPidIdSupport=0
P.m_ushCurValPidId=0
P.m_bOutputRidData=0
P.m_ushReferencePattern=0
)"});
}

CKRMCCommandButtonData Button(krm_ulong captionId, const char* caption) {
    CKRMCCommandButtonData button;
    button.m_ulCaptionId = captionId;
    button.m_strCaption = caption;
    return button;
}

CKRMCCommandButtonVariableData VariableButton(krm_ulong captionId, unsigned char press) {
    CKRMCCommandButtonVariableData button;
    button.m_ulCaptionId = captionId;
    button.m_uchPressRawDataList.AddTail(press);
    return button;
}

TEST(ActiveTestData, WritesItsFieldsInOrderWithoutTheSecondText) {
    CKRMCCommandActiveTestData test;
    test.m_ushId = 65535;
    test.m_ushRoutineActSpecId = 2;
    test.m_ulNameId = 3;
    test.m_strName = "Fuel pump";
    test.m_strActiveTestText = "never logged";
    test.m_ulUnitPhysId = 5;
    test.m_strUnitPhys = "%";
    test.m_ulUnitId = 7;
    test.m_strUnit = "rpm";
    test.m_uchButtonSize = 9;
    test.m_uchKeyOperationType = 10;
    test.m_ulMaintenanceTime = 11;
    test.m_ulAutoContinuTime = 12;
    test.m_ulLockTime = 2147483648U;
    test.m_uchKeyInvalidFlag = 14;
    test.m_ulHelpId = 15;
    test.m_ulProhibitionId = 16;
    test.m_ulInfoId = 17;
    test.m_ulCautionId = 18;
    test.m_ulCommentId = 19;
    test.m_cInitialData.m_ulDataStringId = 20;
    test.m_cResolutionData.m_ulDataStringId = 21;
    test.m_uchDataType = 22;
    test.m_uchDecPntCount = 23;
    test.m_uchUnitConvDecPntCount = 24;
    test.m_cConversionTbl.m_lMul = 25;
    test.m_cButtonDataList.AddTail(Button(26, "first"));
    test.m_cButtonDataList.AddTail(Button(27, "second"));
    test.m_ulStep = 28;
    test.m_cLinearDriveTable.m_lMul = -29;
    test.m_cButtonDataVariableList.AddTail(VariableButton(30, 130));
    test.m_uchCurValPidIdSupport = 31;
    test.m_ushCurValPidId = 32;
    test.m_bOutputRidData = true;
    test.m_cButtonPatternDispInfoList.AddTail(VariableButton(34, 134));
    test.m_cNormalRoutineStatusInfoList.AddTail(Button(35, "running"));
    test.m_cAbnormalRoutineStatusInfoList.AddTail(Button(36, "broken off"));
    test.m_cPatternResultDispInfoList.AddTail(Button(37, "passed"));
    test.m_ushReferencePattern = 38;
    ExpectLog(test, {R"(
P.m_ushId=65535
P.m_ushRoutineActSpecId=2
P.m_ulNameId=3
P.m_strName=Fuel pump
P.m_ulUnitPhysId=5
P.m_strUnitPhys=%
P.m_ulUnitId=7
P.m_strUnit=rpm
P.m_uchButtonSize=9
P.m_uchKeyOperationType=10
P.m_ulMaintenanceTime=11
P.m_ulAutoContinuTime=12
P.m_ulLockTime=-2147483648
P.m_uchKeyInvalidFlag=14
P.m_ulHelpId=15
P.m_ulProhibitionId=16
P.m_ulInfoId=17
P.m_ulCautionId=18
P.m_ulCommentId=19
)",
                     DisplayLines("P.m_cInitialData", 20), DisplayLines("P.m_cResolutionData", 21),
                     R"(
P.m_uchDataType=22
P.m_uchDecPntCount=23
P.m_uchUnitConvDecPntCount=24
)",
                     ConversionLines("P.m_cConversionTbl", 25), R"(
P.m_cButtonDataList[0].m_ulSpecialDriveType=0
P.m_cButtonDataList[0].m_ulCaptionId=26
P.m_cButtonDataList[0].m_strCaption=first
P.m_cButtonDataList[0].m_ulPressRawData=0
P.m_cButtonDataList[0].m_ulReleaseRawData=0
P.m_cButtonDataList[0].m_uchInvalidFlag=0
P.m_cButtonDataList[1].m_ulSpecialDriveType=0
P.m_cButtonDataList[1].m_ulCaptionId=27
P.m_cButtonDataList[1].m_strCaption=second
P.m_cButtonDataList[1].m_ulPressRawData=0
P.m_cButtonDataList[1].m_ulReleaseRawData=0
P.m_cButtonDataList[1].m_uchInvalidFlag=0
P.m_ulStep=28
)",
                     ConversionLines("P.m_cLinearDriveTable", -29), R"(
P.m_cButtonDataVariableList[0].m_ulSpecialDriveType=0
P.m_cButtonDataVariableList[0].m_ulCaptionId=30
P.m_cButtonDataVariableList[0].m_strCaption=
[P.m_cButtonDataVariableList[0]] m_uchPressRawDataList[0]=130
P.m_cButtonDataVariableList[0].m_uchInvalidFlag=0
P.m_uchCurValPidIdSupport=31
P.m_ushCurValPidId=32
P.m_bOutputRidData=1
P.m_cButtonPatternDispInfoList[0].m_ulSpecialDriveType=0
P.m_cButtonPatternDispInfoList[0].m_ulCaptionId=34
P.m_cButtonPatternDispInfoList[0].m_strCaption=
[P.m_cButtonPatternDispInfoList[0]] m_uchPressRawDataList[0]=134
P.m_cButtonPatternDispInfoList[0].m_uchInvalidFlag=0
P.m_cNormalRoutineStatusInfoList[0].m_ulSpecialDriveType=0
P.m_cNormalRoutineStatusInfoList[0].m_ulCaptionId=35
P.m_cNormalRoutineStatusInfoList[0].m_strCaption=running
P.m_cNormalRoutineStatusInfoList[0].m_ulPressRawData=0
P.m_cNormalRoutineStatusInfoList[0].m_ulReleaseRawData=0
P.m_cNormalRoutineStatusInfoList[0].m_uchInvalidFlag=0
P.m_cAbnormalRoutineStatusInfoList[0].m_ulSpecialDriveType=0
P.m_cAbnormalRoutineStatusInfoList[0].m_ulCaptionId=36
P.m_cAbnormalRoutineStatusInfoList[0].m_strCaption=broken off
P.m_cAbnormalRoutineStatusInfoList[0].m_ulPressRawData=0
P.m_cAbnormalRoutineStatusInfoList[0].m_ulReleaseRawData=0
P.m_cAbnormalRoutineStatusInfoList[0].m_uchInvalidFlag=0
P.m_cPatternResultDispInfoList[0].m_ulSpecialDriveType=0
P.m_cPatternResultDispInfoList[0].m_ulCaptionId=37
P.m_cPatternResultDispInfoList[0].m_strCaption=passed
P.m_cPatternResultDispInfoList[0].m_ulPressRawData=0
P.m_cPatternResultDispInfoList[0].m_ulReleaseRawData=0
P.m_cPatternResultDispInfoList[0].m_uchInvalidFlag=0
P.m_ushReferencePattern=38
)"});
}

TEST(StartActiveTest, RequestWritesDriveValuesAndBytes) {
    CKRMCStartActiveTestCmdAdaptDataSnd request;
    request.m_ulEcuId = 1;
    request.m_ushId = 2;
    CKRMCDrivingData drive;
    drive.m_uchType = 3;
    drive.m_dData = -12.5;
    request.Data.AddTail(drive);
    drive.m_uchType = 255;
    drive.m_dData = 1e6;
    request.Data.AddTail(drive);
    request.m_uchLinearDriveValueList.AddTail(0x0A);
    request.m_uchLinearDriveValueList.AddTail(0xFF);
    request.m_uchButtonPatternDispValueList.AddTail(1);
    ExpectLog(request, {RequestBaseLines(32, 1), R"(
[CKRMCStartActiveTestCmdAdaptDataSnd::ErrWriteOperationLog] m_ushId=2
[CKRMCStartActiveTestCmdAdaptDataSnd::ErrWriteOperationLog] Data[0].m_uchType=3
[CKRMCStartActiveTestCmdAdaptDataSnd::ErrWriteOperationLog] Data[0].m_dData=-12.500000
[CKRMCStartActiveTestCmdAdaptDataSnd::ErrWriteOperationLog] Data[1].m_uchType=255
[CKRMCStartActiveTestCmdAdaptDataSnd::ErrWriteOperationLog] Data[1].m_dData=1000000.000000
[CKRMCStartActiveTestCmdAdaptDataSnd::ErrWriteOperationLog] m_uchLinearDriveValueList[0]=0x0A
[CKRMCStartActiveTestCmdAdaptDataSnd::ErrWriteOperationLog] m_uchLinearDriveValueList[1]=0xFF
[CKRMCStartActiveTestCmdAdaptDataSnd::ErrWriteOperationLog] m_uchButtonPatternDispValueList[0]=0x01
)"});
}

TEST(StartActiveTest, RequestWithoutValuesWritesTheIdOnly) {
    CKRMCStartActiveTestCmdAdaptDataSnd request;
    ExpectLog(request, {RequestBaseLines(32, 0), R"(
[CKRMCStartActiveTestCmdAdaptDataSnd::ErrWriteOperationLog] m_ushId=0
)"});
}

TEST(StartActiveTest, AnswerWritesTheBaseLinesOnly) {
    CKRMCStartActiveTestCmdAdaptDataRcv answer;
    answer.m_bNotSupport = true;
    ExpectLog(answer, {AnswerBaseLines(32, 1)});
}

TEST(GetActiveTestList, RequestWritesItsFieldsInOrder) {
    CKRMCGetActiveTestListCmdAdaptDataSnd request;
    request.m_ulEcuId = 1;
    request.m_ushId = 2;
    request.m_uchDataType = 3;
    ExpectLog(request, {RequestBaseLines(34, 1), R"(
[CKRMCGetActiveTestListCmdAdaptDataSnd::ErrWriteOperationLog] m_ushId=2
[CKRMCGetActiveTestListCmdAdaptDataSnd::ErrWriteOperationLog] m_uchDataType=3
)"});
}

TEST(GetActiveTestList, AnswerWritesEachTestUnderItsIndex) {
    CKRMCGetActiveTestListCmdAdaptDataRcv answer;
    CKRMCCommandActiveTestData test;
    answer.Data.AddTail(test);
    test.m_ushId = 1;
    answer.Data.AddTail(test);
    const std::string name = "[CKRMCGetActiveTestListCmdAdaptDataRcv::ErrWriteOperationLog] Data";
    std::string expected = AnswerBaseLines(34, 0);
    for (int i = 0; i < 2; ++i) {
        const std::string prefix = name + '[' + std::to_string(i) + ']';
        expected += prefix + ".m_ushId=" + std::to_string(i) + '\n' + Under(prefix, R"(
.m_ushRoutineActSpecId=0
.m_ulNameId=0
.m_strName=
.m_ulUnitPhysId=0
.m_strUnitPhys=
.m_ulUnitId=0
.m_strUnit=
.m_uchButtonSize=0
.m_uchKeyOperationType=0
.m_ulMaintenanceTime=0
.m_ulAutoContinuTime=0
.m_ulLockTime=0
.m_uchKeyInvalidFlag=0
.m_ulHelpId=0
.m_ulProhibitionId=0
.m_ulInfoId=0
.m_ulCautionId=0
.m_ulCommentId=0
)");
        expected += DisplayLines(prefix + ".m_cInitialData", 0) + DisplayLines(prefix + ".m_cResolutionData", 0);
        expected += Under(prefix, R"(
.m_uchDataType=0
.m_uchDecPntCount=0
.m_uchUnitConvDecPntCount=0
)");
        expected += ConversionLines(prefix + ".m_cConversionTbl", 0) + prefix + ".m_ulStep=0\n";
        expected += ConversionLines(prefix + ".m_cLinearDriveTable", 0) + Under(prefix, R"(
.m_uchCurValPidIdSupport=0
.m_ushCurValPidId=0
.m_bOutputRidData=0
.m_ushReferencePattern=0
)");
    }
    ExpectLog(answer, {expected});
}

TEST(CheckActiveTestAssumption, RequestWritesTheId) {
    CKRMCCheckActiveTestAssumptionCmdAdaptDataSnd request;
    request.m_ulEcuId = 1;
    request.m_ushId = 2;
    ExpectLog(request, {RequestBaseLines(37, 1), R"(
[CKRMCCheckActiveTestAssumptionCmdAdaptDataSnd::ErrWriteOperationLog] m_ushId=2
)"});
}

TEST(CheckActiveTestAssumption, AnswerWritesItsFieldsInOrder) {
    CKRMCCheckActiveTestAssumptionCmdAdaptDataRcv answer;
    answer.m_bActiveTestEnable = true;
    answer.m_ulHelpId = 2147483648U;
    ExpectLog(answer, {AnswerBaseLines(37, 0), R"(
[CKRMCCheckActiveTestAssumptionCmdAdaptDataRcv::ErrWriteOperationLog] m_bActiveTestEnable=1
[CKRMCCheckActiveTestAssumptionCmdAdaptDataRcv::ErrWriteOperationLog] m_ulHelpId=-2147483648
)"});
}

TEST(SetActiveTestSession, RequestWritesItsFieldsInOrder) {
    CKRMCSetActiveTestSessionCmdAdaptDataSnd request;
    request.m_ulEcuId = 1;
    request.m_ushId = 2;
    request.m_uchSessionMode = 3;
    ExpectLog(request, {RequestBaseLines(38, 1), R"(
[CKRMCSetActiveTestSessionCmdAdaptDataSnd::ErrWriteOperationLog] m_ushId=2
[CKRMCSetActiveTestSessionCmdAdaptDataSnd::ErrWriteOperationLog] m_uchSessionMode=3
)"});
}

TEST(SetActiveTestSession, AnswerWritesTheBaseLinesOnly) {
    CKRMCSetActiveTestSessionCmdAdaptDataRcv answer;
    ExpectLog(answer, {AnswerBaseLines(38, 0)});
}

}  // namespace

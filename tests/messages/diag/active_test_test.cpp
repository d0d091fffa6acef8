#include "krm/messages/diag/active_test.h"

#include <gtest/gtest.h>

#include <string>
#include <type_traits>

#include "krm/messages/diag/data_item.h"
#include "krm/messages/diag/freeze_frame_item.h"
#include "krm/messages/diag/j2534_config.h"
#include "krm/messages/diag/special_operation.h"
#include "krm/messages/diag/utilities.h"
#include "tests/messages/diag/active_test_fields.h"
#include "tests/messages/diag/expected_lines.h"
#include "tests/support/log_text.h"
#include "tests/support/value_checks.h"

namespace {

using krm::test::AnswerBaseLines;
using krm::test::ConversionLines;
using krm::test::DispDataLines;
using krm::test::ExpectCopiedIntoLists;
using krm::test::ExpectDiagnosticCommand;
using krm::test::ExpectLog;
using krm::test::ExpectPlainValue;
using krm::test::FreezeFrameLines;
using krm::test::IsZero;
using krm::test::Log;
using krm::test::RecordText;
using krm::test::RequestBaseLines;
using krm::test::Under;

static_assert(!std::is_polymorphic_v<CKRMCCommandCustomListData>, "a plain value without a virtual table");
static_assert(!std::is_polymorphic_v<CKRMCSpGroup>, "a plain value without a virtual table");
static_assert(!std::is_polymorphic_v<CKRMCDrivingData>, "a plain value without a virtual table");
static_assert(std::is_standard_layout_v<CKRMCDrivingData> && std::is_trivially_copyable_v<CKRMCDrivingData>);

template <class Record>
class ActiveTestRecord : public testing::Test {};
using ActiveTestRecords =
    testing::Types<CKRMCCommandButtonData, CKRMCCommandButtonVariableData, CKRMCCommandActiveTestData,
                   CKRMCCommandUtilityData, CKRMCCommandSpecialFunctionKeyInfo, CKRMCCommandCustomListData,
                   CKRMCSpGroup, CKRMCDrivingData>;
TYPED_TEST_SUITE(ActiveTestRecord, ActiveTestRecords);

TYPED_TEST(ActiveTestRecord, IsAPlainValue) {
    ExpectPlainValue<TypeParam>();
}

TYPED_TEST(ActiveTestRecord, IsCopiedIntoLists) {
    ExpectCopiedIntoLists<TypeParam>();
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

TEST(ButtonData, WritesItsFieldsInOrder) {
    CKRMCCommandButtonData button;
    button.m_ulSpecialDriveType = 1;
    button.m_ulCaptionId = 2;
    button.m_strCaption = "On 100 %";
    button.m_ulPressRawData = 4294967295U;
    button.m_ulReleaseRawData = 4;
    button.m_uchInvalidFlag = 255;
    EXPECT_EQ(RecordText(button), Log({R"(
P.m_ulSpecialDriveType=1
P.m_ulCaptionId=2
P.m_strCaption=On 100 %
P.m_ulPressRawData=-1
P.m_ulReleaseRawData=4
P.m_uchInvalidFlag=255
)"}));
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
    EXPECT_EQ(RecordText(button), Log({R"(
P.m_ulSpecialDriveType=1
P.m_ulCaptionId=2
P.m_strCaption=Off
[P] m_uchPressRawDataList[0]=171
[P] m_uchPressRawDataList[1]=1
[P] m_uchReleaseRawDataList[0]=255
P.m_uchInvalidFlag=6
)"}));
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
    EXPECT_EQ(RecordText(test), Log({R"(
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
                                     DispDataLines("P.m_cInitialData", 0), DispDataLines("P.m_cResolutionData", 0), R"(
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
)"}));
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
    EXPECT_EQ(RecordText(test), Log({R"(
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
                                     DispDataLines("P.m_cInitialData", 20), DispDataLines("P.m_cResolutionData", 21),
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
)"}));
}

TEST(UtilityData, WritesItsFieldsInOrder) {
    CKRMCCommandUtilityData utility;
    utility.m_ulFunctionNameId = 1;
    utility.m_strFunctionName = "Key registration";
    utility.m_ushFunctionId = 3;
    utility.m_ushPhaseType = 4;
    utility.m_ulEcuId = 4294967295U;
    utility.m_ushBusId = 6;
    utility.m_ulHelpId = 7;
    utility.m_ulBaudrate = 500000;
    utility.m_ushP2Max = 9;
    utility.m_ulFcCode = 0xABCDEF12U;
    utility.m_ulPhysAddr = 0x18DA10F1U;
    utility.m_ul5bpsAddr = 0x33;
    utility.m_ulFuncAddr = 0x7DF;
    utility.m_ulNTA = 0x1FE;
    utility.m_ulToolAddr = 0xF1;
    utility.m_uchSecurityTargetFlag = 16;
    utility.m_ulSpecialFunctionKey = 17;
    utility.m_ulLegislatedAddr = 0xA;
    utility.m_ulP3Min = 19;
    utility.m_ulStminTx = 20;
    utility.m_ulNBrMin = 21;
    utility.m_ulCanP3Min = 22;
    EXPECT_EQ(RecordText(utility), Log({R"(
P.m_ulFunctionNameId=1
P.m_strFunctionName=Key registration
P.m_ushFunctionId=3
P.m_ushPhaseType=4
P.m_ulEcuId=-1
P.m_ushBusId=6
P.m_ulHelpId=7
P.m_ulBaudrate=500000
P.m_ushP2Max=9
P.m_ulFcCode=ABCDEF12
P.m_ulPhysAddr=18DA10F1
P.m_ul5bpsAddr=33
P.m_ulFuncAddr=7DF
P.m_ulNTA=1FE
P.m_ulToolAddr=F1
P.m_uchSecurityTargetFlag=16
P.m_ulSpecialFunctionKey=17
P.m_ulLegislatedAddr=A
P.m_ulP3Min=19
P.m_ulStminTx=20
P.m_ulNBrMin=21
P.m_ulCanP3Min=22
)"}));
}

TEST(UtilityData, PadsTheFcCodeToSixDigitsAndTheTargetAddressToTwo) {
    CKRMCCommandUtilityData utility;
    utility.m_ulFcCode = 0x1A;
    utility.m_ulNTA = 5;
    EXPECT_EQ(RecordText(utility), Log({R"(
P.m_ulFunctionNameId=0
P.m_strFunctionName=
P.m_ushFunctionId=0
P.m_ushPhaseType=0
P.m_ulEcuId=0
P.m_ushBusId=0
P.m_ulHelpId=0
P.m_ulBaudrate=0
P.m_ushP2Max=0
P.m_ulFcCode=00001A
P.m_ulPhysAddr=0
P.m_ul5bpsAddr=0
P.m_ulFuncAddr=0
P.m_ulNTA=05
P.m_ulToolAddr=0
P.m_uchSecurityTargetFlag=0
P.m_ulSpecialFunctionKey=0
P.m_ulLegislatedAddr=0
P.m_ulP3Min=0
P.m_ulStminTx=0
P.m_ulNBrMin=0
P.m_ulCanP3Min=0
)"}));
}

TEST(SpecialFunctionKeyInfo, WritesItsFieldsInOrderWithoutTheText) {
    CKRMCCommandSpecialFunctionKeyInfo key;
    key.m_ushScreenId = 1;
    key.m_ushFunctionId = 2;
    key.m_ushFunctionDetailId = 3;
    key.m_ulKeycode = 0xFFFFFFFFU;
    key.m_strKeyText = "never logged";
    key.m_ulCompareOptions = 0xB0;
    EXPECT_EQ(RecordText(key), Log({R"(
P.m_ushScreenId=1
P.m_ushFunctionId=2
P.m_ushFunctionDetailId=3
P.m_ulKeycode=0xFFFFFFFF
P.m_ulCompareOptions=0x00B0
)"}));
}

TEST(SpecialFunctionKeyInfo, PadsTheKeyCodeToFourDigits) {
    CKRMCCommandSpecialFunctionKeyInfo key;
    key.m_ulKeycode = 0x1B;
    EXPECT_EQ(RecordText(key), Log({R"(
P.m_ushScreenId=0
P.m_ushFunctionId=0
P.m_ushFunctionDetailId=0
P.m_ulKeycode=0x001B
P.m_ulCompareOptions=0x0000
)"}));
}

TEST(GetUtilityList, IsCommand26) {
    ExpectDiagnosticCommand<CKRMCGetUtilityListCmdAdaptDataSnd, CKRMCGetUtilityListCmdAdaptDataRcv>(26);
}

TEST(GetUtilityList, RequestWritesALinePerKey) {
    CKRMCGetUtilityListCmdAdaptDataSnd request;
    request.m_ulEcuId = 2016;
    request.m_uchConnectLevel = 3;
    request.m_ulSecurityLevel = 0xC;
    request.m_cSpecialFunctionKeyList.AddTail(0x1B);
    request.m_cSpecialFunctionKeyList.AddTail(0xFFFFFFFFU);
    ExpectLog(request, {RequestBaseLines(26, 2016), R"(
[CKRMCGetUtilityListCmdAdaptDataSnd::ErrWriteOperationLog] m_uchConnectLevel=3
[CKRMCGetUtilityListCmdAdaptDataSnd::ErrWriteOperationLog] m_ulSecurityLevel=0x000C
[CKRMCGetUtilityListCmdAdaptDataSnd::ErrWriteOperationLog] Data[0].m_cSpecialFunctionKeyList=0x001B
[CKRMCGetUtilityListCmdAdaptDataSnd::ErrWriteOperationLog] Data[1].m_cSpecialFunctionKeyList=0xFFFFFFFF
)"});
}

TEST(GetUtilityList, AnswerWritesUtilitiesThenConfigurationUnderTheSameName) {
    CKRMCGetUtilityListCmdAdaptDataRcv answer;
    CKRMCCommandUtilityData utility;
    utility.m_ulFunctionNameId = 1;
    answer.Data.AddTail(utility);
    CKRMCCommandJ2534Config config;
    config.m_ulParameter = 2;
    config.m_ulValue = 4294967295U;
    answer.m_cJ2534ConfigList.AddTail(config);
    config.m_ulParameter = 4;
    config.m_ulValue = 5;
    answer.m_cJ2534ConfigList.AddTail(config);
    ExpectLog(answer, {AnswerBaseLines(26, 0), Under("[CKRMCGetUtilityListCmdAdaptDataRcv::ErrWriteOperationLog] ", R"(
Data[0].m_ulFunctionNameId=1
Data[0].m_strFunctionName=
Data[0].m_ushFunctionId=0
Data[0].m_ushPhaseType=0
Data[0].m_ulEcuId=0
Data[0].m_ushBusId=0
Data[0].m_ulHelpId=0
Data[0].m_ulBaudrate=0
Data[0].m_ushP2Max=0
Data[0].m_ulFcCode=000000
Data[0].m_ulPhysAddr=0
Data[0].m_ul5bpsAddr=0
Data[0].m_ulFuncAddr=0
Data[0].m_ulNTA=00
Data[0].m_ulToolAddr=0
Data[0].m_uchSecurityTargetFlag=0
Data[0].m_ulSpecialFunctionKey=0
Data[0].m_ulLegislatedAddr=0
Data[0].m_ulP3Min=0
Data[0].m_ulStminTx=0
Data[0].m_ulNBrMin=0
Data[0].m_ulCanP3Min=0
Data[0].m_ulParameter=2
Data[0].m_ulValue=-1
Data[1].m_ulParameter=4
Data[1].m_ulValue=5
)")});
}

TEST(GetCustomList, IsCommand28) {
    ExpectDiagnosticCommand<CKRMCGetCustomListCmdAdaptDataSnd, CKRMCGetCustomListCmdAdaptDataRcv>(28);
}

TEST(GetCustomList, RequestWritesTheBaseLinesOnly) {
    CKRMCGetCustomListCmdAdaptDataSnd request;
    request.m_ulEcuId = 7;
    ExpectLog(request, {RequestBaseLines(28, 7)});
}

TEST(GetCustomList, AnswerWritesTheFieldsOfEachList) {
    CKRMCGetCustomListCmdAdaptDataRcv answer;
    answer.m_bNotSupport = true;
    CKRMCCommandCustomListData list;
    list.m_strFileName = "a.lst";
    list.m_strName = "My 100 %s";
    list.m_ushDataType = 3;
    list.m_ushSortIndex = 65535;
    list.m_uchInitialDispFlag = 255;
    answer.Data.AddTail(list);
    list.Clear();
    answer.Data.AddTail(list);
    ExpectLog(answer, {AnswerBaseLines(28, 1), R"(
[CKRMCGetCustomListCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_strFileName=a.lst
[CKRMCGetCustomListCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_strName=My 100 %s
[CKRMCGetCustomListCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ushDataType=3
[CKRMCGetCustomListCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ushSortIndex=65535
[CKRMCGetCustomListCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_uchInitialDispFlag=255
[CKRMCGetCustomListCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_strFileName=
[CKRMCGetCustomListCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_strName=
[CKRMCGetCustomListCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_ushDataType=0
[CKRMCGetCustomListCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_ushSortIndex=0
[CKRMCGetCustomListCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_uchInitialDispFlag=0
)"});
}

TEST(StartActiveTest, IsCommand32) {
    ExpectDiagnosticCommand<CKRMCStartActiveTestCmdAdaptDataSnd, CKRMCStartActiveTestCmdAdaptDataRcv>(32);
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

TEST(GetActiveTestList, IsCommand34) {
    ExpectDiagnosticCommand<CKRMCGetActiveTestListCmdAdaptDataSnd, CKRMCGetActiveTestListCmdAdaptDataRcv>(34);
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
        expected += DispDataLines(prefix + ".m_cInitialData", 0) + DispDataLines(prefix + ".m_cResolutionData", 0);
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

TEST(CheckActiveTestAssumption, IsCommand37) {
    ExpectDiagnosticCommand<CKRMCCheckActiveTestAssumptionCmdAdaptDataSnd,
                            CKRMCCheckActiveTestAssumptionCmdAdaptDataRcv>(37);
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

TEST(SetActiveTestSession, IsCommand38) {
    ExpectDiagnosticCommand<CKRMCSetActiveTestSessionCmdAdaptDataSnd, CKRMCSetActiveTestSessionCmdAdaptDataRcv>(38);
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

TEST(GetSpOperateCtrlRecordGroup, IsCommand66) {
    ExpectDiagnosticCommand<CKRMCGetSpOperateCtrlRecordGroupCmdAdaptDataSnd,
                            CKRMCGetSpOperateCtrlRecordGroupCmdAdaptDataRcv>(66);
}

TEST(GetSpOperateCtrlRecordGroup, RequestWritesTheBaseLinesOnly) {
    CKRMCGetSpOperateCtrlRecordGroupCmdAdaptDataSnd request;
    ExpectLog(request, {RequestBaseLines(66, 0)});
}

TEST(GetSpOperateCtrlRecordGroup, AnswerWritesTheFieldsOfEachGroup) {
    CKRMCGetSpOperateCtrlRecordGroupCmdAdaptDataRcv answer;
    CKRMCSpGroup group;
    group.m_ushGroupId = 1;
    group.m_ulGroupNameId = 4294967295U;
    group.m_strGroupName = "Braking";
    answer.Data.AddTail(group);
    group.m_ushGroupId = 2;
    answer.Data.AddTail(group);
    ExpectLog(answer, {AnswerBaseLines(66, 0), R"(
[CKRMCGetSpOperateCtrlRecordGroupCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ushGroupId=1
[CKRMCGetSpOperateCtrlRecordGroupCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ulGroupNameId=-1
[CKRMCGetSpOperateCtrlRecordGroupCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_strGroupName=Braking
[CKRMCGetSpOperateCtrlRecordGroupCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_ushGroupId=2
[CKRMCGetSpOperateCtrlRecordGroupCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_ulGroupNameId=-1
[CKRMCGetSpOperateCtrlRecordGroupCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_strGroupName=Braking
)"});
}

TEST(GetSpOperateCtrlRecord, IsCommand67) {
    ExpectDiagnosticCommand<CKRMCGetSpOperateCtrlRecordCmdAdaptDataSnd, CKRMCGetSpOperateCtrlRecordCmdAdaptDataRcv>(67);
}

TEST(GetSpOperateCtrlRecord, RequestWritesTheGroup) {
    CKRMCGetSpOperateCtrlRecordCmdAdaptDataSnd request;
    request.m_ulEcuId = 1;
    request.m_ushGroupId = 65535;
    ExpectLog(request, {RequestBaseLines(67, 1), R"(
[CKRMCGetSpOperateCtrlRecordCmdAdaptDataSnd::ErrWriteOperationLog] m_ushGroupId=65535
)"});
}

TEST(GetSpOperateCtrlRecord, AnswerWritesEachRecordUnderTheListsName) {
    CKRMCGetSpOperateCtrlRecordCmdAdaptDataRcv answer;
    CKRMCCommandFFDData record;
    record.m_ushId = 11;
    answer.m_cSpOperateList.AddTail(record);
    record.m_ushId = 12;
    answer.m_cSpOperateList.AddTail(record);
    const std::string name = "[CKRMCGetSpOperateCtrlRecordCmdAdaptDataRcv::ErrWriteOperationLog] ";
    ExpectLog(answer, {AnswerBaseLines(67, 0), FreezeFrameLines(name + "m_cSpOperateList[0]", 11),
                       FreezeFrameLines(name + "m_cSpOperateList[1]", 12)});
}

TEST(WriteDataItem, IsCommand91) {
    ExpectDiagnosticCommand<CKRMCWriteDataItemCmdAdaptDataSnd, CKRMCWriteDataItemCmdAdaptDataRcv>(91);
}

TEST(WriteDataItem, RequestWritesTheFieldsOfEachItem) {
    CKRMCWriteDataItemCmdAdaptDataSnd request;
    request.m_ulEcuId = 1;
    CKRMCCommandWriteData item;
    item.m_ushId = 2;
    item.m_uchType = 3;
    item.m_ulData = 4294967295U;
    request.Data.AddTail(item);
    item.m_ulData = 4;
    request.Data.AddTail(item);
    ExpectLog(request, {RequestBaseLines(91, 1), R"(
[CKRMCWriteDataItemCmdAdaptDataSnd::ErrWriteOperationLog] Data[0].m_ushId=2
[CKRMCWriteDataItemCmdAdaptDataSnd::ErrWriteOperationLog] Data[0].m_uchType=3
[CKRMCWriteDataItemCmdAdaptDataSnd::ErrWriteOperationLog] Data[0].m_ulData=-1
[CKRMCWriteDataItemCmdAdaptDataSnd::ErrWriteOperationLog] Data[1].m_ushId=2
[CKRMCWriteDataItemCmdAdaptDataSnd::ErrWriteOperationLog] Data[1].m_uchType=3
[CKRMCWriteDataItemCmdAdaptDataSnd::ErrWriteOperationLog] Data[1].m_ulData=4
)"});
}

TEST(WriteDataItem, AnswerWritesTheBaseLinesOnly) {
    CKRMCWriteDataItemCmdAdaptDataRcv answer;
    ExpectLog(answer, {AnswerBaseLines(91, 0)});
}

TEST(GetSpecialFunctionKeyList, IsCommand94) {
    ExpectDiagnosticCommand<CKRMCGetSpecialFunctionKeyListCmdAdaptDataSnd,
                            CKRMCGetSpecialFunctionKeyListCmdAdaptDataRcv>(94);
}

TEST(GetSpecialFunctionKeyList, RequestWritesTheBaseLinesOnly) {
    CKRMCGetSpecialFunctionKeyListCmdAdaptDataSnd request;
    ExpectLog(request, {RequestBaseLines(94, 0)});
}

TEST(GetSpecialFunctionKeyList, AnswerWritesEachKeyUnderItsIndex) {
    CKRMCGetSpecialFunctionKeyListCmdAdaptDataRcv answer;
    CKRMCCommandSpecialFunctionKeyInfo key;
    key.m_ushScreenId = 1;
    answer.Data.AddTail(key);
    key.m_ushScreenId = 2;
    key.m_ulKeycode = 0x1B;
    answer.Data.AddTail(key);
    ExpectLog(answer, {AnswerBaseLines(94, 0), R"(
[CKRMCGetSpecialFunctionKeyListCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ushScreenId=1
[CKRMCGetSpecialFunctionKeyListCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ushFunctionId=0
[CKRMCGetSpecialFunctionKeyListCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ushFunctionDetailId=0
[CKRMCGetSpecialFunctionKeyListCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ulKeycode=0x0000
[CKRMCGetSpecialFunctionKeyListCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ulCompareOptions=0x0000
[CKRMCGetSpecialFunctionKeyListCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_ushScreenId=2
[CKRMCGetSpecialFunctionKeyListCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_ushFunctionId=0
[CKRMCGetSpecialFunctionKeyListCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_ushFunctionDetailId=0
[CKRMCGetSpecialFunctionKeyListCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_ulKeycode=0x001B
[CKRMCGetSpecialFunctionKeyListCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_ulCompareOptions=0x0000
)"});
}

}  // namespace

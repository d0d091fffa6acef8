#include "krm/messages/diag/trouble_codes.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <type_traits>

#include "krm/messages/diag/data_monitor.h"
#include "krm/messages/diag/display.h"
#include "krm/messages/diag/event_records.h"
#include "krm/messages/diag/freeze_frame_item.h"
#include "krm/messages/diag/freeze_frames.h"
#include "krm/messages/diag/trouble_code.h"
#include "krm/messages/diag/words.h"
#include "tests/messages/diag/trouble_codes_fields.h"
#include "tests/support/log_text.h"
#include "tests/support/value_checks.h"

namespace {

using krm::test::ExpectCopiedIntoLists;
using krm::test::ExpectPlainValue;
using krm::test::ExpectTypeAndId;
using krm::test::IsZero;
using krm::test::Log;
using krm::test::MessageText;
using krm::test::RecordText;
using krm::test::Under;

/// An item that can be told from others in a log: by its ID and its one display value.
CKRMCCommandFFDData Item(unsigned short id) {
    CKRMCCommandFFDData item;
    item.m_ushId = id;
    CKRMCCommandDispData value;
    value.m_ulRawData = id;
    item.m_cDispDataList.AddTail(value);
    return item;
}

/// The lines of Item(id) under `prefix`.
std::string ItemLog(std::string_view prefix, int id) {
    const std::string number = std::to_string(id);
    return Under(prefix, ".m_ushId=" + number + R"(
.m_ulNameId=0
.m_strName=
.m_ulUnitPhysId=0
.m_strUnitPhys=
.m_ulUnitId=0
.m_strUnit=
.m_uchDataType=0
.m_uchDecPntCount=0
.m_uchUnitConvDecPntCount=0
.m_cConversionTbl.m_lMul=0
.m_cConversionTbl.m_lDiv=0
.m_cConversionTbl.m_lOffset=0
.m_cConversionTbl.m_ushGenreId=0
.m_cConversionTbl.m_uchSigned=0
.m_cConversionTbl.m_ushBitLength=0
.m_cConversionTbl.m_strDefaultPattern=
.m_cConversionTbl.m_cDataMax.m_ulDataStringId=0
.m_cConversionTbl.m_cDataMax.m_strDataPhys=
.m_cConversionTbl.m_cDataMax.m_strData=
.m_cConversionTbl.m_cDataMax.m_dDataPhys=0.000000
.m_cConversionTbl.m_cDataMax.m_dData=0.000000
.m_cConversionTbl.m_cDataMax.m_ulRawData=0
.m_cConversionTbl.m_cDataMax.m_chIndex=0
.m_cConversionTbl.m_cDataMax.m_lIndex=0
.m_cConversionTbl.m_cDataMax.m_ulDispDataType=0
.m_cConversionTbl.m_cDataMin.m_ulDataStringId=0
.m_cConversionTbl.m_cDataMin.m_strDataPhys=
.m_cConversionTbl.m_cDataMin.m_strData=
.m_cConversionTbl.m_cDataMin.m_dDataPhys=0.000000
.m_cConversionTbl.m_cDataMin.m_dData=0.000000
.m_cConversionTbl.m_cDataMin.m_ulRawData=0
.m_cConversionTbl.m_cDataMin.m_chIndex=0
.m_cConversionTbl.m_cDataMin.m_lIndex=0
.m_cConversionTbl.m_cDataMin.m_ulDispDataType=0
.m_cConversionTbl.m_cGraphMax.m_ulDataStringId=0
.m_cConversionTbl.m_cGraphMax.m_strDataPhys=
.m_cConversionTbl.m_cGraphMax.m_strData=
.m_cConversionTbl.m_cGraphMax.m_dDataPhys=0.000000
.m_cConversionTbl.m_cGraphMax.m_dData=0.000000
.m_cConversionTbl.m_cGraphMax.m_ulRawData=0
.m_cConversionTbl.m_cGraphMax.m_chIndex=0
.m_cConversionTbl.m_cGraphMax.m_lIndex=0
.m_cConversionTbl.m_cGraphMax.m_ulDispDataType=0
.m_cConversionTbl.m_cGraphMin.m_ulDataStringId=0
.m_cConversionTbl.m_cGraphMin.m_strDataPhys=
.m_cConversionTbl.m_cGraphMin.m_strData=
.m_cConversionTbl.m_cGraphMin.m_dDataPhys=0.000000
.m_cConversionTbl.m_cGraphMin.m_dData=0.000000
.m_cConversionTbl.m_cGraphMin.m_ulRawData=0
.m_cConversionTbl.m_cGraphMin.m_chIndex=0
.m_cConversionTbl.m_cGraphMin.m_lIndex=0
.m_cConversionTbl.m_cGraphMin.m_ulDispDataType=0
.m_cResolutionData.m_ulDataStringId=0
.m_cResolutionData.m_strDataPhys=
.m_cResolutionData.m_strData=
.m_cResolutionData.m_dDataPhys=0.000000
.m_cResolutionData.m_dData=0.000000
.m_cResolutionData.m_ulRawData=0
.m_cResolutionData.m_chIndex=0
.m_cResolutionData.m_lIndex=0
.m_cResolutionData.m_ulDispDataType=0
.m_cDispDataList[0].m_ulDataStringId=0
.m_cDispDataList[0].m_strDataPhys=
.m_cDispDataList[0].m_strData=
.m_cDispDataList[0].m_dDataPhys=0.000000
.m_cDispDataList[0].m_dData=0.000000
.m_cDispDataList[0].m_ulRawData=)" +
                             number + R"(
.m_cDispDataList[0].m_chIndex=0
.m_cDispDataList[0].m_lIndex=0
.m_cDispDataList[0].m_ulDispDataType=0
.m_cDataLayout.m_ulPidNo=0x0
.m_cDataLayout.m_ulDataLen=0
.m_cDataLayout.m_uchEndian=0
.m_cDataLayout.m_ulByteNum=0
.m_cDataLayout.m_ulBytePos=0
.m_cDataLayout.m_ulBitMask=0x00000000
)");
}

// ---- What all classes of the area share ----

template <class Record>
class TroubleCodeRecord : public testing::Test {};
using TroubleCodeRecords =
    testing::Types<CKRMCCommandFFDData, CKRMCCommandDTCData, CKRMCCommandDtcFfdData, CKRMCCommandAbsFFDData,
                   CKRMCAbsoluteTimeInfo, CKRMCCommandDiagDetailData, CKRMCCommandDiagMessage,
                   CKRMCCommandEventRecordDataItem, CKRMCCommandRecordDataItem, CKRMCEcuSpecificInfo>;
TYPED_TEST_SUITE(TroubleCodeRecord, TroubleCodeRecords);

TYPED_TEST(TroubleCodeRecord, IsAPlainValue) {
    ExpectPlainValue<TypeParam>();
}

TYPED_TEST(TroubleCodeRecord, IsCopiedIntoLists) {
    ExpectCopiedIntoLists<TypeParam>();
}

/// A command's two messages and the ID that both must have.
template <class Request, class Answer, krm_ulong id>
struct Pair {
    using Snd = Request;
    using Rcv = Answer;
    static constexpr krm_ulong kId = id;
};

template <class Commands>
class TroubleCodeCommand : public testing::Test {};
using TroubleCodeCommands = testing::Types<
    Pair<CKRMCGetDTCCmdAdaptDataSnd, CKRMCGetDTCCmdAdaptDataRcv, 2>,
    Pair<CKRMCClearDTCCmdAdaptDataSnd, CKRMCClearDTCCmdAdaptDataRcv, 5>,
    Pair<CKRMCGetFFDCmdAdaptDataSnd, CKRMCGetFFDCmdAdaptDataRcv, 6>,
    Pair<CKRMCIsMultiFFDCmdAdaptDataSnd, CKRMCIsMultiFFDCmdAdaptDataRcv, 9>,
    Pair<CKRMCGetDiagDetailCmdAdaptDataSnd, CKRMCGetDiagDetailCmdAdaptDataRcv, 44>,
    Pair<CKRMCIsAbsFFDCmdAdaptDataSnd, CKRMCIsAbsFFDCmdAdaptDataRcv, 45>,
    Pair<CKRMCGetCurrentTimeInfoCmdAdaptDataSnd, CKRMCGetCurrentTimeInfoCmdAdaptDataRcv, 62>,
    Pair<CKRMCGetAbsoluteTimeInfoCmdAdaptDataSnd, CKRMCGetAbsoluteTimeInfoCmdAdaptDataRcv, 64>,
    Pair<CKRMCGetEventRecordDataListCmdAdaptDataSnd, CKRMCGetEventRecordDataListCmdAdaptDataRcv, 81>,
    Pair<CKRMCGetRecordDataListCmdAdaptDataSnd, CKRMCGetRecordDataListCmdAdaptDataRcv, 82>,
    Pair<CKRMCGetEventRecordDataCmdAdaptDataSnd, CKRMCGetEventRecordDataCmdAdaptDataRcv, 83>,
    Pair<CKRMCGetEOPInspectionResultMessageCmdAdaptDataSnd, CKRMCGetEOPInspectionResultMessageCmdAdaptDataRcv, 93>,
    Pair<CKRMCGetDtcFfdCmdAdaptDataSnd, CKRMCGetDtcFfdCmdAdaptDataRcv, 109>>;
TYPED_TEST_SUITE(TroubleCodeCommand, TroubleCodeCommands);

TYPED_TEST(TroubleCodeCommand, MessagesArePlainValues) {
    ExpectPlainValue<typename TypeParam::Snd>();
    ExpectPlainValue<typename TypeParam::Rcv>();
}

TYPED_TEST(TroubleCodeCommand, MessagesHaveTypeAndIdWhenNewAndAfterClear) {
    ExpectTypeAndId<typename TypeParam::Snd>(1, TypeParam::kId);
    ExpectTypeAndId<typename TypeParam::Rcv>(1, TypeParam::kId);
}

TYPED_TEST(TroubleCodeCommand, MessagesStandOnTheirDirectionsBase) {
    EXPECT_TRUE((std::is_base_of_v<CKRMCBaseCmdAdaptDataSnd, typename TypeParam::Snd>));
    EXPECT_TRUE((std::is_base_of_v<CKRMCBaseCmdAdaptDataRcv, typename TypeParam::Rcv>));
}

// ---- Records ----

TEST(FFDData, WritesItsFieldsInOrderWithoutSecondTextAndReservedField) {
    CKRMCCommandFFDData item;
    item.m_ushId = 65535;
    item.m_ulNameId = 102;
    item.m_strName = "Coolant temperature";
    item.m_strFFDText = "second text";
    item.m_ulUnitPhysId = 104;
    item.m_strUnitPhys = "degC";
    item.m_ulUnitId = 106;
    item.m_strUnit = "degF";
    item.m_ulFFDReserved = 108;
    item.m_uchDataType = 255;
    item.m_uchDecPntCount = 1;
    item.m_uchUnitConvDecPntCount = 2;
    item.m_cConversionTbl.m_lMul = 1;
    item.m_cConversionTbl.m_lDiv = 2;
    item.m_cConversionTbl.m_lOffset = -40;
    item.m_cConversionTbl.m_cDataMax.m_dDataPhys = 215;
    item.m_cResolutionData.m_strDataPhys = "1";
    CKRMCCommandDispData value;
    value.m_strDataPhys = "83";
    value.m_ulRawData = 123;
    item.m_cDispDataList.AddTail(value);
    value.m_strDataPhys = "84";
    value.m_ulRawData = 124;
    item.m_cDispDataList.AddTail(value);
    item.m_cDataLayout.m_ulPidNo = 0x05;
    item.m_cDataLayout.m_ulByteNum = 1;
    item.m_cDataLayout.m_ulBitMask = 0xFF;
    EXPECT_EQ(RecordText(item), Log({R"(
P.m_ushId=65535
P.m_ulNameId=102
P.m_strName=Coolant temperature
P.m_ulUnitPhysId=104
P.m_strUnitPhys=degC
P.m_ulUnitId=106
P.m_strUnit=degF
P.m_uchDataType=255
P.m_uchDecPntCount=1
P.m_uchUnitConvDecPntCount=2
P.m_cConversionTbl.m_lMul=1
P.m_cConversionTbl.m_lDiv=2
P.m_cConversionTbl.m_lOffset=-40
P.m_cConversionTbl.m_ushGenreId=0
P.m_cConversionTbl.m_uchSigned=0
P.m_cConversionTbl.m_ushBitLength=0
P.m_cConversionTbl.m_strDefaultPattern=
P.m_cConversionTbl.m_cDataMax.m_ulDataStringId=0
P.m_cConversionTbl.m_cDataMax.m_strDataPhys=
P.m_cConversionTbl.m_cDataMax.m_strData=
P.m_cConversionTbl.m_cDataMax.m_dDataPhys=215.000000
P.m_cConversionTbl.m_cDataMax.m_dData=0.000000
P.m_cConversionTbl.m_cDataMax.m_ulRawData=0
P.m_cConversionTbl.m_cDataMax.m_chIndex=0
P.m_cConversionTbl.m_cDataMax.m_lIndex=0
P.m_cConversionTbl.m_cDataMax.m_ulDispDataType=0
P.m_cConversionTbl.m_cDataMin.m_ulDataStringId=0
P.m_cConversionTbl.m_cDataMin.m_strDataPhys=
P.m_cConversionTbl.m_cDataMin.m_strData=
P.m_cConversionTbl.m_cDataMin.m_dDataPhys=0.000000
P.m_cConversionTbl.m_cDataMin.m_dData=0.000000
P.m_cConversionTbl.m_cDataMin.m_ulRawData=0
P.m_cConversionTbl.m_cDataMin.m_chIndex=0
P.m_cConversionTbl.m_cDataMin.m_lIndex=0
P.m_cConversionTbl.m_cDataMin.m_ulDispDataType=0
P.m_cConversionTbl.m_cGraphMax.m_ulDataStringId=0
P.m_cConversionTbl.m_cGraphMax.m_strDataPhys=
P.m_cConversionTbl.m_cGraphMax.m_strData=
P.m_cConversionTbl.m_cGraphMax.m_dDataPhys=0.000000
P.m_cConversionTbl.m_cGraphMax.m_dData=0.000000
P.m_cConversionTbl.m_cGraphMax.m_ulRawData=0
P.m_cConversionTbl.m_cGraphMax.m_chIndex=0
P.m_cConversionTbl.m_cGraphMax.m_lIndex=0
P.m_cConversionTbl.m_cGraphMax.m_ulDispDataType=0
P.m_cConversionTbl.m_cGraphMin.m_ulDataStringId=0
P.m_cConversionTbl.m_cGraphMin.m_strDataPhys=
P.m_cConversionTbl.m_cGraphMin.m_strData=
P.m_cConversionTbl.m_cGraphMin.m_dDataPhys=0.000000
P.m_cConversionTbl.m_cGraphMin.m_dData=0.000000
P.m_cConversionTbl.m_cGraphMin.m_ulRawData=0
P.m_cConversionTbl.m_cGraphMin.m_chIndex=0
P.m_cConversionTbl.m_cGraphMin.m_lIndex=0
P.m_cConversionTbl.m_cGraphMin.m_ulDispDataType=0
P.m_cResolutionData.m_ulDataStringId=0
P.m_cResolutionData.m_strDataPhys=1
P.m_cResolutionData.m_strData=
P.m_cResolutionData.m_dDataPhys=0.000000
P.m_cResolutionData.m_dData=0.000000
P.m_cResolutionData.m_ulRawData=0
P.m_cResolutionData.m_chIndex=0
P.m_cResolutionData.m_lIndex=0
P.m_cResolutionData.m_ulDispDataType=0
P.m_cDispDataList[0].m_ulDataStringId=0
P.m_cDispDataList[0].m_strDataPhys=83
P.m_cDispDataList[0].m_strData=
P.m_cDispDataList[0].m_dDataPhys=0.000000
P.m_cDispDataList[0].m_dData=0.000000
P.m_cDispDataList[0].m_ulRawData=123
P.m_cDispDataList[0].m_chIndex=0
P.m_cDispDataList[0].m_lIndex=0
P.m_cDispDataList[0].m_ulDispDataType=0
P.m_cDispDataList[1].m_ulDataStringId=0
P.m_cDispDataList[1].m_strDataPhys=84
P.m_cDispDataList[1].m_strData=
P.m_cDispDataList[1].m_dDataPhys=0.000000
P.m_cDispDataList[1].m_dData=0.000000
P.m_cDispDataList[1].m_ulRawData=124
P.m_cDispDataList[1].m_chIndex=0
P.m_cDispDataList[1].m_lIndex=0
P.m_cDispDataList[1].m_ulDispDataType=0
P.m_cDataLayout.m_ulPidNo=0x5
P.m_cDataLayout.m_ulDataLen=0
P.m_cDataLayout.m_uchEndian=0
P.m_cDataLayout.m_ulByteNum=1
P.m_cDataLayout.m_ulBytePos=0
P.m_cDataLayout.m_ulBitMask=0x000000FF
)"}));
}

TEST(DTCData, IsNewWithoutNumbersFlagsAndTimes) {
    CKRMCCommandDTCData code;
    EXPECT_EQ(code.m_uchSSRNo.GetCount(), 0);
    EXPECT_EQ(code.m_uchSDRNo.GetCount(), 0);
    EXPECT_FALSE(code.m_bTripTime);
    EXPECT_FALSE(code.m_bFailTripTime);
    EXPECT_FALSE(code.m_bAfterIgOnTime);
    EXPECT_FALSE(code.m_bFailAfterIgOnTime);
    EXPECT_FALSE(code.m_bStatusOfDTC);
    EXPECT_TRUE(IsZero(code.m_cTripTime));
    EXPECT_TRUE(IsZero(code.m_cAfterIgOnTime));
    EXPECT_TRUE(IsZero(code.m_cClockType));
    const std::string log = RecordText(code);
    EXPECT_NE(log.find("P.m_strComment=\nP.m_uchDTCType=0\n"), std::string::npos) << log;
    EXPECT_EQ(log.find("m_uchSSRNo"), std::string::npos) << log;
    EXPECT_EQ(log.find("m_uchSDRNo"), std::string::npos) << log;
}

TEST(DTCData, WritesItsFieldsInOrder) {
    CKRMCCommandDTCData code;
    code.m_uchDTCKind = 1;
    code.m_ulDTCCode = 4294967295U;
    code.m_strDTC = "P0301";
    code.m_ulDTCNameId = 4;
    code.m_strDTCName = "Cylinder 1 misfire";
    code.m_ulDTCDivNameId = 6;
    code.m_strDTCDivName = "Engine";
    code.m_chFFDType = -8;
    code.m_uchFFDId = 200;
    code.m_strComment = "100 %d";
    code.m_uchSSRNo.AddTail(11);
    code.m_uchSSRNo.AddTail(255);
    code.m_uchSDRNo.AddTail(12);
    code.m_uchDTCType = 13;
    code.m_ulDTCTypeNameId = 14;
    code.m_strDTCTypeName = "type";
    code.m_ulDTCTypeToolId = 16;
    code.m_strDTCTypeTool = "type for the tool";
    code.m_uchDTCStatus = 18;
    code.m_ulDTCStatusNameId = 19;
    code.m_strDTCStatusName = "status";
    code.m_ulDTCStatusToolId = 21;
    code.m_strDTCStatusTool = "status for the tool";
    code.m_bTripTime = true;
    code.m_cTripTime = Item(25);
    code.m_bFailAfterIgOnTime = true;
    code.m_cAfterIgOnTime = Item(28);
    code.m_ulOriginalCountId = 29;
    code.m_cClockType = Item(30);
    code.m_bStatusOfDTC = true;
    code.m_uchStatusOfDTC = 0x2F;
    code.m_ulDTCGroupId = 33;
    EXPECT_EQ(RecordText(code), Log({R"(
P.m_uchDTCKind=1
P.m_ulDTCCode=-1
P.m_strDTC=P0301
P.m_ulDTCNameId=4
P.m_strDTCName=Cylinder 1 misfire
P.m_ulDTCDivNameId=6
P.m_strDTCDivName=Engine
P.m_chFFDType=-8
P.m_uchFFDId=200
P.m_strComment=100 %d
[P] m_uchSSRNo[0]=11
[P] m_uchSSRNo[1]=255
[P] m_uchSDRNo[0]=12
P.m_uchDTCType=13
P.m_ulDTCTypeNameId=14
P.m_strDTCTypeName=type
P.m_ulDTCTypeToolId=16
P.m_strDTCTypeTool=type for the tool
P.m_uchDTCStatus=18
P.m_ulDTCStatusNameId=19
P.m_strDTCStatusName=status
P.m_ulDTCStatusToolId=21
P.m_strDTCStatusTool=status for the tool
P.m_bTripTime=1
P.m_bFailTripTime=0
)",
                                     ItemLog("P.m_cTripTime", 25), R"(
P.m_bAfterIgOnTime=0
P.m_bFailAfterIgOnTime=1
)",
                                     ItemLog("P.m_cAfterIgOnTime", 28), R"(
P.m_ulOriginalCountId=29
)",
                                     ItemLog("P.m_cClockType", 30), R"(
P.m_bStatusOfDTC=1
P.m_uchStatusOfDTC=47
P.m_ulDTCGroupId=33
)"}));
}

TEST(DTCData, CopyCarriesItsItemsAndSharesNothing) {
    CKRMCCommandDTCData source;
    source.m_cTripTime = Item(1);
    source.m_cTripTime.m_cConversionTbl.m_lMul = 5;
    source.m_cTripTime.m_cConversionTbl.m_cPatternDispList.AddTail(CKRMCCommandDispData());
    source.m_cClockType = Item(3);

    CKRMCCommandDTCData copy(source);
    ASSERT_EQ(copy.m_cTripTime.m_cDispDataList.GetCount(), 1);
    EXPECT_EQ(copy.m_cTripTime.m_cDispDataList[0].m_ulRawData, 1U);
    EXPECT_EQ(copy.m_cTripTime.m_cConversionTbl.m_lMul, 5);
    ASSERT_EQ(copy.m_cTripTime.m_cConversionTbl.m_cPatternDispList.GetCount(), 1);
    EXPECT_EQ(copy.m_cClockType.m_ushId, 3);

    copy.m_cTripTime.m_cDispDataList[0].m_ulRawData = 100;
    copy.m_cTripTime.m_cConversionTbl.m_lMul = 101;
    copy.m_cTripTime.m_cConversionTbl.m_cPatternDispList[0].m_strDataPhys = "changed";
    copy.m_cClockType.Clear();
    EXPECT_EQ(source.m_cTripTime.m_cDispDataList[0].m_ulRawData, 1U);
    EXPECT_EQ(source.m_cTripTime.m_cConversionTbl.m_lMul, 5);
    EXPECT_STREQ(source.m_cTripTime.m_cConversionTbl.m_cPatternDispList[0].m_strDataPhys.GetText(), "");
    EXPECT_EQ(source.m_cClockType.m_ushId, 3);
}

TEST(DtcFfdData, WritesTenOfItsFields) {
    CKRMCCommandDtcFfdData code;
    krm::test::Seed seed(5);
    krm::test::Fill(code, seed);  // so that what must stay out of the log is not merely empty
    code.m_uchDTCKind = 1;
    code.m_ulDTCCode = 0x01234567;
    code.m_strDTC = "U0100";
    code.m_ulDTCNameId = 4;
    code.m_strDTCName = "Lost communication";
    code.m_chFFDType = -6;
    code.m_uchFFDId = 7;
    code.m_cFFDList.RemoveAll();
    code.m_cFFDList.AddTail(Item(8));
    code.m_cFFDList.AddTail(Item(9));
    code.m_uchDTCStatus = 10;
    code.m_uchSubFunction = 11;
    EXPECT_EQ(RecordText(code), Log({R"(
P.m_uchDTCKind=1
P.m_ulDTCCode=0x1234567
P.m_strDTC=U0100
P.m_ulDTCNameId=4
P.m_strDTCName=Lost communication
P.m_chFFDType=-6
P.m_uchFFDId=7
)",
                                     ItemLog("P.m_cFFDList[0]", 8), ItemLog("P.m_cFFDList[1]", 9), R"(
P.m_uchDTCStatus=10
P.m_uchSubFunction=11
)"}));
}

TEST(TroubleCode, IsDecimalAloneAndHexadecimalWithItsFreezeFrames) {
    CKRMCCommandDTCData alone;
    alone.m_ulDTCCode = 0x12AB;
    EXPECT_NE(RecordText(alone).find("\nP.m_ulDTCCode=4779\n"), std::string::npos);
    CKRMCCommandDtcFfdData withFrames;
    withFrames.m_ulDTCCode = 0x12AB;
    EXPECT_NE(RecordText(withFrames).find("\nP.m_ulDTCCode=0x0012AB\n"), std::string::npos);
}

TEST(AbsFFDData, WritesItsFieldsInOrder) {
    CKRMCCommandAbsFFDData system;
    system.m_ulSystemId = 1;
    system.m_strSystem = "ABS";
    system.m_uchFFDId = 3;
    system.m_uchIndex = 255;
    EXPECT_EQ(RecordText(system), Log({R"(
P.m_ulSystemId=1
P.m_strSystem=ABS
P.m_uchFFDId=3
P.m_uchIndex=255
)"}));
}

CKRMCAbsoluteTimeInfo FilledTime() {
    CKRMCAbsoluteTimeInfo time;
    time.m_cTripTime = Item(1);
    time.m_cInternalClock = Item(2);
    time.m_cGPSTimeYear = Item(3);
    time.m_cGPSTimeMonth = Item(4);
    time.m_cGPSTimeDay = Item(5);
    time.m_cGPSTimeHour = Item(6);
    time.m_cGPSTimeMinute = Item(7);
    time.m_cGPSTimeSecond = Item(8);
    time.m_cTimeDifferenceSign = Item(9);
    time.m_cTimeDifferenceHour = Item(10);
    time.m_cTimeDifferenceMinute = Item(11);
    time.m_cDST = Item(12);
    return time;
}

std::string FilledTimeLog(const std::string& prefix) {
    return Log({ItemLog(prefix + ".m_cTripTime", 1), ItemLog(prefix + ".m_cInternalClock", 2),
                ItemLog(prefix + ".m_cGPSTimeYear", 3), ItemLog(prefix + ".m_cGPSTimeMonth", 4),
                ItemLog(prefix + ".m_cGPSTimeDay", 5), ItemLog(prefix + ".m_cGPSTimeHour", 6),
                ItemLog(prefix + ".m_cGPSTimeMinute", 7), ItemLog(prefix + ".m_cGPSTimeSecond", 8),
                ItemLog(prefix + ".m_cTimeDifferenceSign", 9), ItemLog(prefix + ".m_cTimeDifferenceHour", 10),
                ItemLog(prefix + ".m_cTimeDifferenceMinute", 11), ItemLog(prefix + ".m_cDST", 12)});
}

TEST(AbsoluteTimeInfo, WritesTwelveItemsAndNothingElse) {
    CKRMCAbsoluteTimeInfo time = FilledTime();
    EXPECT_EQ(RecordText(time), FilledTimeLog("P"));
}

TEST(AbsoluteTimeInfo, CopyCarriesItsItemsAndSharesNothing) {
    const CKRMCAbsoluteTimeInfo source = FilledTime();
    CKRMCAbsoluteTimeInfo copy(source);
    EXPECT_EQ(RecordText(copy), FilledTimeLog("P"));
    copy.m_cDST.m_cDispDataList[0].m_ulRawData = 100;
    copy.m_cGPSTimeYear.m_cConversionTbl.m_lMul = 101;
    CKRMCAbsoluteTimeInfo again(source);
    EXPECT_EQ(RecordText(again), FilledTimeLog("P"));
}

TEST(DiagDetailData, WritesItsFieldsInOrder) {
    CKRMCCommandDiagDetailData detail;
    detail.m_ulDiagDetailId = 1;
    detail.m_ulDiagDetailCode = 2147483648U;
    detail.m_cDiagDetailDataList.AddTail(Item(3));
    detail.m_cDiagDetailDataList.AddTail(Item(4));
    EXPECT_EQ(RecordText(detail),
              Log({R"(
P.m_ulDiagDetailId=1
P.m_ulDiagDetailCode=-2147483648
)",
                   ItemLog("P.m_cDiagDetailDataList[0]", 3), ItemLog("P.m_cDiagDetailDataList[1]", 4)}));
}

TEST(DiagMessage, WritesItsLength) {
    CKRMCCommandDiagMessage message;
    message.m_ulMsgLength = 4095;
    EXPECT_EQ(RecordText(message), "P.m_ulMsgLength=4095\n");
}

TEST(EventRecordDataItem, WritesItsFieldsInOrder) {
    CKRMCCommandEventRecordDataItem event;
    event.m_ushEventRecordDataItemId = 65535;
    event.m_ulEventRecordDataItemNameId = 2;
    event.m_strEventRecordDataItemName = "Hard braking";
    event.m_bRecordData = true;
    EXPECT_EQ(RecordText(event), Log({R"(
P.m_ushEventRecordDataItemId=65535
P.m_ulEventRecordDataItemNameId=2
P.m_strEventRecordDataItemName=Hard braking
P.m_bRecordData=1
)"}));
}

TEST(RecordDataItem, WritesItsFieldsInOrder) {
    CKRMCCommandRecordDataItem record;
    record.m_ushRecordDataItemId = 65535;
    record.m_ulRecordDataItemNameId = 2;
    record.m_strRecordDataItemName = "Record 1";
    EXPECT_EQ(RecordText(record), Log({R"(
P.m_ushRecordDataItemId=65535
P.m_ulRecordDataItemNameId=2
P.m_strRecordDataItemName=Record 1
)"}));
}

CKRMCEcuSpecificInfo Ecu(krm_ulong id, unsigned short bus) {
    CKRMCEcuSpecificInfo ecu;
    ecu.m_ulEcuId = id;
    ecu.m_ushBusId = bus;
    return ecu;
}

TEST(EcuSpecificInfo, WritesItsFieldsInOrder) {
    CKRMCEcuSpecificInfo ecu = Ecu(2016, 65535);
    EXPECT_EQ(RecordText(ecu), Log({R"(
P.m_ulEcuId=2016
P.m_ushBusId=65535
)"}));
}

// ---- Messages, by command ID ----

TEST(GetDTC, RequestLog) {
    CKRMCGetDTCCmdAdaptDataSnd request;
    request.m_ulEcuId = 20;
    request.m_uchPhaseType = 1;
    request.m_uchGetFFDType = 255;
    EXPECT_EQ(MessageText(request), Log({R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=2
[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=20
[CKRMCGetDTCCmdAdaptDataSnd::ErrWriteOperationLog] m_uchPhaseType=1
[CKRMCGetDTCCmdAdaptDataSnd::ErrWriteOperationLog] m_uchGetFFDType=255
)"}));
}

TEST(GetDTC, AnswerLog) {
    CKRMCGetDTCCmdAdaptDataRcv answer;
    CKRMCCommandDTCData code;
    code.m_strDTC = "P0301";
    code.m_uchSSRNo.AddTail(5);
    code.m_uchSDRNo.AddTail(6);
    code.m_cTripTime = Item(1);
    code.m_cAfterIgOnTime = Item(2);
    code.m_cClockType = Item(3);
    answer.Data.AddTail(code);
    answer.m_bDTCType = true;
    answer.m_ulReadynessStatus = 4;
    EXPECT_EQ(MessageText(answer),
              Log({R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=2
[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=0
[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_uchDTCKind=0
[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ulDTCCode=0
[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_strDTC=P0301
[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ulDTCNameId=0
[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_strDTCName=
[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ulDTCDivNameId=0
[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_strDTCDivName=
[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_chFFDType=0
[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_uchFFDId=0
[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_strComment=
[[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0]] m_uchSSRNo[0]=5
[[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0]] m_uchSDRNo[0]=6
[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_uchDTCType=0
[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ulDTCTypeNameId=0
[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_strDTCTypeName=
[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ulDTCTypeToolId=0
[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_strDTCTypeTool=
[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_uchDTCStatus=0
[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ulDTCStatusNameId=0
[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_strDTCStatusName=
[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ulDTCStatusToolId=0
[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_strDTCStatusTool=
[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_bTripTime=0
[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_bFailTripTime=0
)",
                   ItemLog("[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_cTripTime", 1), R"(
[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_bAfterIgOnTime=0
[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_bFailAfterIgOnTime=0
)",
                   ItemLog("[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_cAfterIgOnTime", 2), R"(
[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ulOriginalCountId=0
)",
                   ItemLog("[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_cClockType", 3), R"(
[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_bStatusOfDTC=0
[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_uchStatusOfDTC=0
[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ulDTCGroupId=0
[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] m_bDTCType=1
[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] m_ulReadynessStatus=4
)"}));
}

TEST(ClearDTC, RequestLog) {
    CKRMCClearDTCCmdAdaptDataSnd request;
    request.m_ulEcuId = 50;
    EXPECT_EQ(MessageText(request), Log({R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=5
[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=50
)"}));
}

TEST(ClearDTC, AnswerLog) {
    CKRMCClearDTCCmdAdaptDataRcv answer;
    answer.m_bNotSupport = true;
    answer.m_ulResult = 4294967295U;
    EXPECT_EQ(MessageText(answer), Log({R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=5
[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=1
[CKRMCClearDTCCmdAdaptDataRcv::ErrWriteOperationLog] m_ulResult=-1
)"}));
}

TEST(GetFFD, RequestLog) {
    CKRMCGetFFDCmdAdaptDataSnd request;
    request.m_ulEcuId = 60;
    request.m_uchFFDId = 1;
    request.m_uchSSRNoList.AddTail(2);
    request.m_uchSSRNoList.AddTail(255);
    request.m_uchSDRNoList.AddTail(3);
    request.m_ulDTC = 0x12AB;
    request.m_cPidId.AddTail(4);
    request.m_cPidId.AddTail(65535);
    request.m_uchSubFunction = 5;
    request.m_uchDTCType = 6;
    EXPECT_EQ(MessageText(request), Log({R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=6
[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=60
[CKRMCGetFFDCmdAdaptDataSnd::ErrWriteOperationLog] m_uchFFDId=1
[CKRMCGetFFDCmdAdaptDataSnd::ErrWriteOperationLog] m_uchSSRNoList[0]=2
[CKRMCGetFFDCmdAdaptDataSnd::ErrWriteOperationLog] m_uchSSRNoList[1]=255
[CKRMCGetFFDCmdAdaptDataSnd::ErrWriteOperationLog] m_uchSDRNoList[0]=3
[CKRMCGetFFDCmdAdaptDataSnd::ErrWriteOperationLog] m_ulDTC=4779
[CKRMCGetFFDCmdAdaptDataSnd::ErrWriteOperationLog] m_cPidId[0]=4
[CKRMCGetFFDCmdAdaptDataSnd::ErrWriteOperationLog] m_cPidId[1]=65535
[CKRMCGetFFDCmdAdaptDataSnd::ErrWriteOperationLog] m_uchSubFunction=5
[CKRMCGetFFDCmdAdaptDataSnd::ErrWriteOperationLog] m_uchDTCType=6
)"}));
}

TEST(GetFFD, AnswerLog) {
    CKRMCGetFFDCmdAdaptDataRcv answer;
    answer.m_bNotSupport = true;
    answer.m_bMultiFFD = true;
    answer.m_chBegin = -128;
    answer.m_lBegin = -2;
    answer.m_chEnd = 127;
    answer.m_lEnd = 2147483647;
    answer.Data.AddTail(Item(1));
    answer.Data.AddTail(Item(2));
    EXPECT_EQ(MessageText(answer), Log({R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=6
[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=1
[CKRMCGetFFDCmdAdaptDataRcv::ErrWriteOperationLog] m_bMultiFFD=1
[CKRMCGetFFDCmdAdaptDataRcv::ErrWriteOperationLog] m_chBegin=-128
[CKRMCGetFFDCmdAdaptDataRcv::ErrWriteOperationLog] m_lBegin=-2
[CKRMCGetFFDCmdAdaptDataRcv::ErrWriteOperationLog] m_chEnd=127
[CKRMCGetFFDCmdAdaptDataRcv::ErrWriteOperationLog] m_lEnd=2147483647
)",
                                        ItemLog("[CKRMCGetFFDCmdAdaptDataRcv::ErrWriteOperationLog] Data[0]", 1),
                                        ItemLog("[CKRMCGetFFDCmdAdaptDataRcv::ErrWriteOperationLog] Data[1]", 2)}));
}

TEST(IsMultiFFD, RequestLog) {
    CKRMCIsMultiFFDCmdAdaptDataSnd request;
    request.m_ulEcuId = 90;
    request.m_uchPhaseType = 1;
    request.m_uchFFDId = 2;
    request.m_uchSSRNoList.AddTail(3);
    request.m_uchSDRNoList.AddTail(4);
    request.m_uchSDRNoList.AddTail(5);
    request.m_ulDTC = 6;
    EXPECT_EQ(MessageText(request), Log({R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=9
[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=90
[CKRMCIsMultiFFDCmdAdaptDataSnd::ErrWriteOperationLog] m_uchPhaseType=1
[CKRMCIsMultiFFDCmdAdaptDataSnd::ErrWriteOperationLog] m_uchFFDId=2
[CKRMCIsMultiFFDCmdAdaptDataSnd::ErrWriteOperationLog] m_uchSSRNoList[0]=3
[CKRMCIsMultiFFDCmdAdaptDataSnd::ErrWriteOperationLog] m_uchSDRNoList[0]=4
[CKRMCIsMultiFFDCmdAdaptDataSnd::ErrWriteOperationLog] m_uchSDRNoList[1]=5
[CKRMCIsMultiFFDCmdAdaptDataSnd::ErrWriteOperationLog] m_ulDTC=6
)"}));
}

TEST(IsMultiFFD, AnswerLog) {
    CKRMCIsMultiFFDCmdAdaptDataRcv answer;
    answer.m_bNotSupport = true;
    answer.m_bMultiFFD = true;
    answer.m_chFFDType = -1;
    EXPECT_EQ(MessageText(answer), Log({R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=9
[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=1
[CKRMCIsMultiFFDCmdAdaptDataRcv::ErrWriteOperationLog] m_bMultiFFD=1
[CKRMCIsMultiFFDCmdAdaptDataRcv::ErrWriteOperationLog] m_chFFDType=-1
)"}));
}

TEST(GetDiagDetail, RequestLog) {
    CKRMCGetDiagDetailCmdAdaptDataSnd request;
    request.m_ulEcuId = 440;
    request.m_uchFFDId = 200;
    EXPECT_EQ(MessageText(request), Log({R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=44
[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=440
[CKRMCGetDiagDetailCmdAdaptDataSnd::ErrWriteOperationLog] m_uchFFDId=200
)"}));
}

TEST(GetDiagDetail, AnswerLog) {
    CKRMCGetDiagDetailCmdAdaptDataRcv answer;
    answer.m_bNotSupport = true;
    CKRMCCommandDiagDetailData detail;
    detail.m_ulDiagDetailId = 1;
    answer.Data.AddTail(detail);
    detail.m_ulDiagDetailCode = 2;
    detail.m_cDiagDetailDataList.AddTail(Item(3));
    answer.Data.AddTail(detail);
    EXPECT_EQ(MessageText(answer),
              Log({R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=44
[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=1
[CKRMCGetDiagDetailCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ulDiagDetailId=1
[CKRMCGetDiagDetailCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ulDiagDetailCode=0
[CKRMCGetDiagDetailCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_ulDiagDetailId=1
[CKRMCGetDiagDetailCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_ulDiagDetailCode=2
)",
                   ItemLog("[CKRMCGetDiagDetailCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_cDiagDetailDataList[0]",
                           3)}));
}

TEST(IsAbsFFD, RequestLog) {
    CKRMCIsAbsFFDCmdAdaptDataSnd request;
    request.m_ulEcuId = 450;
    EXPECT_EQ(MessageText(request), Log({R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=45
[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=450
)"}));
}

TEST(IsAbsFFD, AnswerLog) {
    CKRMCIsAbsFFDCmdAdaptDataRcv answer;
    answer.m_bNotSupport = true;
    answer.m_uchType = 1;
    CKRMCCommandAbsFFDData system;
    system.m_strSystem = "ABS";
    answer.Data.AddTail(system);
    EXPECT_EQ(MessageText(answer), Log({R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=45
[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=1
[CKRMCIsAbsFFDCmdAdaptDataRcv::ErrWriteOperationLog] m_uchType=1
[CKRMCIsAbsFFDCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ulSystemId=0
[CKRMCIsAbsFFDCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_strSystem=ABS
[CKRMCIsAbsFFDCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_uchFFDId=0
[CKRMCIsAbsFFDCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_uchIndex=0
)"}));
}

TEST(GetCurrentTimeInfo, RequestLog) {
    CKRMCGetCurrentTimeInfoCmdAdaptDataSnd request;
    request.m_ulEcuId = 620;
    EXPECT_EQ(MessageText(request), Log({R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=62
[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=620
)"}));
}

TEST(GetCurrentTimeInfo, AnswerLog) {
    CKRMCGetCurrentTimeInfoCmdAdaptDataRcv answer;
    answer.m_bNotSupport = true;
    answer.m_bSupport = true;
    answer.m_bFailTripTime = true;
    answer.m_cTripTime = Item(1);
    answer.m_bAfterIgOnTime = true;
    answer.m_cAfterIgOnTime = Item(2);
    EXPECT_EQ(MessageText(answer),
              Log({R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=62
[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=1
[CKRMCGetCurrentTimeInfoCmdAdaptDataRcv::ErrWriteOperationLog] m_bSupport=1
[CKRMCGetCurrentTimeInfoCmdAdaptDataRcv::ErrWriteOperationLog] m_bTripTime=0
[CKRMCGetCurrentTimeInfoCmdAdaptDataRcv::ErrWriteOperationLog] m_bFailTripTime=1
)",
                   ItemLog("[CKRMCGetCurrentTimeInfoCmdAdaptDataRcv::ErrWriteOperationLog] m_cTripTime", 1), R"(
[CKRMCGetCurrentTimeInfoCmdAdaptDataRcv::ErrWriteOperationLog] m_bAfterIgOnTime=1
[CKRMCGetCurrentTimeInfoCmdAdaptDataRcv::ErrWriteOperationLog] m_bFailAfterIgOnTime=0
)",
                   ItemLog("[CKRMCGetCurrentTimeInfoCmdAdaptDataRcv::ErrWriteOperationLog] m_cAfterIgOnTime", 2)}));
}

TEST(GetAbsoluteTimeInfo, RequestLog) {
    CKRMCGetAbsoluteTimeInfoCmdAdaptDataSnd request;
    request.m_ulEcuId = 640;
    request.m_cTargetEcuList.AddTail(Ecu(1, 2));
    request.m_cTargetEcuList.AddTail(Ecu(3, 4));
    request.m_cTripTimeList.AddTail(Item(5));
    EXPECT_EQ(MessageText(request),
              Log({R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=64
[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=640
[CKRMCGetAbsoluteTimeInfoCmdAdaptDataSnd::ErrWriteOperationLog] m_cTargetEcuList[0].m_ulEcuId=1
[CKRMCGetAbsoluteTimeInfoCmdAdaptDataSnd::ErrWriteOperationLog] m_cTargetEcuList[0].m_ushBusId=2
[CKRMCGetAbsoluteTimeInfoCmdAdaptDataSnd::ErrWriteOperationLog] m_cTargetEcuList[1].m_ulEcuId=3
[CKRMCGetAbsoluteTimeInfoCmdAdaptDataSnd::ErrWriteOperationLog] m_cTargetEcuList[1].m_ushBusId=4
)",
                   ItemLog("[CKRMCGetAbsoluteTimeInfoCmdAdaptDataSnd::ErrWriteOperationLog] m_cTripTimeList[0]", 5)}));
}

TEST(GetAbsoluteTimeInfo, AnswerLog) {
    CKRMCGetAbsoluteTimeInfoCmdAdaptDataRcv answer;
    answer.m_bNotSupport = true;
    answer.m_cCommEcuList.AddTail(Ecu(1, 2));
    answer.m_cAbsoluteTimeInfoList.AddTail(FilledTime());
    EXPECT_EQ(MessageText(answer),
              Log({R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=64
[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=1
[CKRMCGetAbsoluteTimeInfoCmdAdaptDataRcv::ErrWriteOperationLog] m_cCommEcuList[0].m_ulEcuId=1
[CKRMCGetAbsoluteTimeInfoCmdAdaptDataRcv::ErrWriteOperationLog] m_cCommEcuList[0].m_ushBusId=2
)",
                   FilledTimeLog(
                       "[CKRMCGetAbsoluteTimeInfoCmdAdaptDataRcv::ErrWriteOperationLog] m_cAbsoluteTimeInfoList[0]")}));
}

TEST(GetEventRecordDataList, RequestLog) {
    CKRMCGetEventRecordDataListCmdAdaptDataSnd request;
    request.m_ulEcuId = 810;
    EXPECT_EQ(MessageText(request), Log({R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=81
[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=810
)"}));
}

TEST(GetEventRecordDataList, AnswerLog) {
    CKRMCGetEventRecordDataListCmdAdaptDataRcv answer;
    answer.m_bNotSupport = true;
    CKRMCCommandEventRecordDataItem event;
    event.m_ushEventRecordDataItemId = 1;
    answer.Data.AddTail(event);
    event.m_bRecordData = true;
    answer.Data.AddTail(event);
    EXPECT_EQ(MessageText(answer), Log({R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=81
[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=1
[CKRMCGetEventRecordDataListCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ushEventRecordDataItemId=1
[CKRMCGetEventRecordDataListCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ulEventRecordDataItemNameId=0
[CKRMCGetEventRecordDataListCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_strEventRecordDataItemName=
[CKRMCGetEventRecordDataListCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_bRecordData=0
[CKRMCGetEventRecordDataListCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_ushEventRecordDataItemId=1
[CKRMCGetEventRecordDataListCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_ulEventRecordDataItemNameId=0
[CKRMCGetEventRecordDataListCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_strEventRecordDataItemName=
[CKRMCGetEventRecordDataListCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_bRecordData=1
)"}));
}

TEST(GetRecordDataList, RequestLog) {
    CKRMCGetRecordDataListCmdAdaptDataSnd request;
    request.m_ulEcuId = 820;
    request.m_ushEventRecordDataItemId = 65535;
    EXPECT_EQ(MessageText(request), Log({R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=82
[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=820
[CKRMCGetRecordDataListCmdAdaptDataSnd::ErrWriteOperationLog] m_ushEventRecordDataItemId=65535
)"}));
}

TEST(GetRecordDataList, AnswerLog) {
    CKRMCGetRecordDataListCmdAdaptDataRcv answer;
    answer.m_bNotSupport = true;
    CKRMCCommandRecordDataItem record;
    record.m_strRecordDataItemName = "first";
    answer.Data.AddTail(record);
    EXPECT_EQ(MessageText(answer), Log({R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=82
[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=1
[CKRMCGetRecordDataListCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ushRecordDataItemId=0
[CKRMCGetRecordDataListCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ulRecordDataItemNameId=0
[CKRMCGetRecordDataListCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_strRecordDataItemName=first
)"}));
}

TEST(GetEventRecordData, RequestLog) {
    CKRMCGetEventRecordDataCmdAdaptDataSnd request;
    request.m_ulEcuId = 830;
    request.m_ushEventRecordDataItemId = 1;
    request.m_ushRecordDataItemId = 2;
    EXPECT_EQ(MessageText(request), Log({R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=83
[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=830
[CKRMCGetEventRecordDataCmdAdaptDataSnd::ErrWriteOperationLog] m_ushEventRecordDataItemId=1
[CKRMCGetEventRecordDataCmdAdaptDataSnd::ErrWriteOperationLog] m_ushRecordDataItemId=2
)"}));
}

TEST(GetEventRecordData, AnswerLog) {
    CKRMCGetEventRecordDataCmdAdaptDataRcv answer;
    answer.m_bNotSupport = true;
    answer.m_bTimeInfoFlag = true;
    answer.m_chBegin = -1;
    answer.m_chEnd = -2;
    answer.Data.AddTail(Item(3));
    EXPECT_EQ(MessageText(answer),
              Log({R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=83
[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=1
[CKRMCGetEventRecordDataCmdAdaptDataRcv::ErrWriteOperationLog] m_bTimeInfoFlag=1
[CKRMCGetEventRecordDataCmdAdaptDataRcv::ErrWriteOperationLog] m_chBegin=-1
[CKRMCGetEventRecordDataCmdAdaptDataRcv::ErrWriteOperationLog] m_chEnd=-2
)",
                   ItemLog("[CKRMCGetEventRecordDataCmdAdaptDataRcv::ErrWriteOperationLog] Data[0]", 3)}));
}

TEST(GetEOPInspectionResultMessage, RequestLog) {
    CKRMCGetEOPInspectionResultMessageCmdAdaptDataSnd request;
    request.m_ulEcuId = 930;
    request.Data.m_ulEOPData = 4294967295U;
    EXPECT_EQ(MessageText(request), Log({R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=93
[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=930
[CKRMCGetEOPInspectionResultMessageCmdAdaptDataSnd::ErrWriteOperationLog] Data.m_ulEOPData=-1
)"}));
}

TEST(GetEOPInspectionResultMessage, AnswerLog) {
    CKRMCGetEOPInspectionResultMessageCmdAdaptDataRcv answer;
    answer.m_bNotSupport = true;
    CKRMCCommandWordsData words;
    words.m_ulWordsId = 1;
    words.m_strWords = "passed";
    answer.Data.AddTail(words);
    words.m_ulWordsId = 4294967295U;
    words.m_strWords = "";
    answer.Data.AddTail(words);
    EXPECT_EQ(MessageText(answer), Log({R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=93
[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=1
[CKRMCGetEOPInspectionResultMessageCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ulWordsId=1
[CKRMCGetEOPInspectionResultMessageCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_strWords=passed
[CKRMCGetEOPInspectionResultMessageCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_ulWordsId=-1
[CKRMCGetEOPInspectionResultMessageCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_strWords=
)"}));
}

TEST(GetDtcFfd, RequestLog) {
    CKRMCGetDtcFfdCmdAdaptDataSnd request;
    request.m_ulEcuId = 1090;
    EXPECT_EQ(MessageText(request), Log({R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=109
[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=1090
)"}));
}

TEST(GetDtcFfd, AnswerLog) {
    CKRMCGetDtcFfdCmdAdaptDataRcv answer;
    answer.m_bNotSupport = true;
    CKRMCCommandDtcFfdData code;
    code.m_ulDTCCode = 0x12AB;
    code.m_cFFDList.AddTail(Item(1));
    answer.Data.AddTail(code);
    EXPECT_EQ(MessageText(answer),
              Log({R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=109
[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=1
[CKRMCGetDtcFfdCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_uchDTCKind=0
[CKRMCGetDtcFfdCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ulDTCCode=0x0012AB
[CKRMCGetDtcFfdCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_strDTC=
[CKRMCGetDtcFfdCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ulDTCNameId=0
[CKRMCGetDtcFfdCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_strDTCName=
[CKRMCGetDtcFfdCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_chFFDType=0
[CKRMCGetDtcFfdCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_uchFFDId=0
)",
                   ItemLog("[CKRMCGetDtcFfdCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_cFFDList[0]", 1), R"(
[CKRMCGetDtcFfdCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_uchDTCStatus=0
[CKRMCGetDtcFfdCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_uchSubFunction=0
)"}));
}

TEST(GetDtcFfd, ClearRestoresTypeAndId) {
    CKRMCGetDtcFfdCmdAdaptDataRcv answer;
    answer.SetCommandType(2);
    answer.SetCommandID(1);
    answer.Data.AddTail(CKRMCCommandDtcFfdData());
    answer.Clear();
    EXPECT_EQ(answer.GetCommandType(), 1U);
    EXPECT_EQ(answer.GetCommandID(), 109U);
    EXPECT_EQ(answer.Data.GetCount(), 0);
}

TEST(GetFFD, BeginAndEndAreSigned) {
    CKRMCGetFFDCmdAdaptDataRcv answer;
    answer.m_chBegin = -1;
    answer.m_chEnd = -1;
    EXPECT_EQ(MessageText(answer), Log({R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=6
[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=0
[CKRMCGetFFDCmdAdaptDataRcv::ErrWriteOperationLog] m_bMultiFFD=0
[CKRMCGetFFDCmdAdaptDataRcv::ErrWriteOperationLog] m_chBegin=-1
[CKRMCGetFFDCmdAdaptDataRcv::ErrWriteOperationLog] m_lBegin=0
[CKRMCGetFFDCmdAdaptDataRcv::ErrWriteOperationLog] m_chEnd=-1
[CKRMCGetFFDCmdAdaptDataRcv::ErrWriteOperationLog] m_lEnd=0
)"}));
}

TEST(GetEOPInspectionResultMessage, WhatIsAskedForCanBeCleared) {
    CKRMCGetEOPInspectionResultMessageCmdAdaptDataSnd request;
    request.Data.m_ulEOPData = 7;
    request.Data.Clear();
    EXPECT_EQ(request.Data.m_ulEOPData, 0U);
}

}  // namespace

#include "krm/messages/diag/trouble_code.h"

#include <gtest/gtest.h>

#include <string>

#include "krm/fields/diag/trouble_code.h"
#include "krm/messages/diag/display.h"
#include "tests/messages/diag/expected_lines.h"
#include "tests/support/fields.h"
#include "tests/support/log_text.h"

namespace {

using krm::test::ExpectLog;
using krm::test::IsZero;
using krm::test::NumberedItem;
using krm::test::NumberedItemLines;
using krm::test::RecordText;

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
    code.m_cTripTime = NumberedItem(25);
    code.m_bFailAfterIgOnTime = true;
    code.m_cAfterIgOnTime = NumberedItem(28);
    code.m_ulOriginalCountId = 29;
    code.m_cClockType = NumberedItem(30);
    code.m_bStatusOfDTC = true;
    code.m_uchStatusOfDTC = 0x2F;
    code.m_ulDTCGroupId = 33;
    ExpectLog(code, {R"(
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
                     NumberedItemLines("P.m_cTripTime", 25), R"(
P.m_bAfterIgOnTime=0
P.m_bFailAfterIgOnTime=1
)",
                     NumberedItemLines("P.m_cAfterIgOnTime", 28), R"(
P.m_ulOriginalCountId=29
)",
                     NumberedItemLines("P.m_cClockType", 30), R"(
P.m_bStatusOfDTC=1
P.m_uchStatusOfDTC=47
P.m_ulDTCGroupId=33
)"});
}

TEST(DTCData, CopyCarriesItsItemsAndSharesNothing) {
    CKRMCCommandDTCData source;
    source.m_cTripTime = NumberedItem(1);
    source.m_cTripTime.m_cConversionTbl.m_lMul = 5;
    source.m_cTripTime.m_cConversionTbl.m_cPatternDispList.AddTail(CKRMCCommandDispData());
    source.m_cClockType = NumberedItem(3);

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

}  // namespace

#include "krm/messages/diag/display.h"

#include <gtest/gtest.h>

#include "krm/fields/diag/display.h"
#include "tests/support/fields.h"
#include "tests/support/log_text.h"

namespace {

using krm::test::ExpectLog;
using krm::test::IsZero;

TEST(DataLayout, WritesItsFieldsInOrder) {
    CKRMCCommandDataLayout layout;
    layout.m_ulPidNo = 0xF40D;
    layout.m_ulDataLen = 4294967295U;
    layout.m_uchEndian = 255;
    layout.m_ulByteNum = 2;
    layout.m_ulBytePos = 3;
    layout.m_ulBitMask = 0xFFFFFFFF;
    ExpectLog(layout, {R"(
P.m_ulPidNo=0xF40D
P.m_ulDataLen=4294967295
P.m_uchEndian=255
P.m_ulByteNum=2
P.m_ulBytePos=3
P.m_ulBitMask=0xFFFFFFFF
)"});
}

TEST(DataLayout, WritesTheMaskWithEightDigitsAndThePidWithoutLeadingZeros) {
    CKRMCCommandDataLayout layout;
    layout.m_ulPidNo = 0x1A;
    layout.m_ulBitMask = 0xFF00;
    ExpectLog(layout, {R"(
P.m_ulPidNo=0x1A
P.m_ulDataLen=0
P.m_uchEndian=0
P.m_ulByteNum=0
P.m_ulBytePos=0
P.m_ulBitMask=0x0000FF00
)"});
}

TEST(DispData, WritesItsFieldsInOrderWithoutTheReservedOne) {
    CKRMCCommandDispData value;
    value.m_ulDataStringId = 11;
    value.m_strDataPhys = "12.5";
    value.m_strData = "54.5 %d %s";
    value.m_dDataPhys = 12.5;
    value.m_dData = -54.125;
    value.m_ulRawData = 4294967295U;
    value.m_ulDispReserved = 17;
    value.m_chIndex = -128;
    value.m_lIndex = -2147483647;
    value.m_ulDispDataType = 10;
    ExpectLog(value, {R"(
P.m_ulDataStringId=11
P.m_strDataPhys=12.5
P.m_strData=54.5 %d %s
P.m_dDataPhys=12.500000
P.m_dData=-54.125000
P.m_ulRawData=-1
P.m_chIndex=-128
P.m_lIndex=-2147483647
P.m_ulDispDataType=10
)"});
}

TEST(DispVariableData, WritesItsFieldsInOrderWithoutTheReservedOne) {
    CKRMCCommandDispVariableData value;
    value.m_ulDataStringId = 21;
    value.m_strDataPhys = "phys";
    value.m_strData = "converted";
    value.m_dDataPhys = 0.25;
    value.m_dData = 1e15;
    value.m_uchRawDataList.AddTail(1);
    value.m_uchRawDataList.AddTail(0x7F);
    value.m_uchRawDataList.AddTail(0x80);
    value.m_ulDispReserved = 27;
    value.m_chIndex = 127;
    value.m_ulDispDataType = 29;
    ExpectLog(value, {R"(
P.m_ulDataStringId=21
P.m_strDataPhys=phys
P.m_strData=converted
P.m_dDataPhys=0.250000
P.m_dData=1000000000000000.000000
[P].m_uchRawDataList[0]=01
[P].m_uchRawDataList[1]=7F
[P].m_uchRawDataList[2]=80
P.m_chIndex=127
P.m_ulDispDataType=29
)"});
}

TEST(DispVariableData, WritesRawBytesAsTwoHexadecimalDigits) {
    CKRMCCommandDispVariableData value;
    value.m_uchRawDataList.AddTail(0x0A);
    value.m_uchRawDataList.AddTail(0xFF);
    ExpectLog(value, {R"(
P.m_ulDataStringId=0
P.m_strDataPhys=
P.m_strData=
P.m_dDataPhys=0.000000
P.m_dData=0.000000
[P].m_uchRawDataList[0]=0A
[P].m_uchRawDataList[1]=FF
P.m_chIndex=0
P.m_ulDispDataType=0
)"});
}

TEST(ConversionData, IsNewWithoutScalingBoundsAndPatterns) {
    CKRMCCommandConversionData conversion;
    EXPECT_EQ(conversion.m_lMul, 0);
    EXPECT_EQ(conversion.m_lDiv, 0);
    EXPECT_TRUE(IsZero(conversion.m_cDataMax));
    EXPECT_TRUE(IsZero(conversion.m_cDataMin));
    EXPECT_TRUE(IsZero(conversion.m_cGraphMax));
    EXPECT_TRUE(IsZero(conversion.m_cGraphMin));
    EXPECT_EQ(conversion.m_cPatternDispList.GetCount(), 0);
}

TEST(ConversionData, ClearEmptiesTheDefaultPattern) {
    CKRMCCommandConversionData conversion;
    conversion.m_strDefaultPattern = "---";
    conversion.Clear();
    EXPECT_STREQ(conversion.m_strDefaultPattern.GetText(), "");
}

TEST(ConversionData, WritesItsFieldsInOrderWithoutTheReservedOne) {
    CKRMCCommandConversionData conversion;
    conversion.m_lMul = -3;
    conversion.m_lDiv = 100;
    conversion.m_lOffset = -2147483647;
    conversion.m_ushGenreId = 65535;
    conversion.m_uchSigned = 3;
    conversion.m_ushBitLength = 16;
    conversion.m_ulConvReserved = 37;
    conversion.m_strDefaultPattern = "unknown";
    conversion.m_cDataMax.m_ulDataStringId = 1;
    conversion.m_cDataMin.m_strDataPhys = "min";
    conversion.m_cGraphMax.m_dDataPhys = 3;
    conversion.m_cGraphMin.m_chIndex = -4;
    CKRMCCommandDispData pattern;
    pattern.m_ulRawData = 0;
    pattern.m_strDataPhys = "off";
    conversion.m_cPatternDispList.AddTail(pattern);
    pattern.m_ulRawData = 1;
    pattern.m_strDataPhys = "on";
    conversion.m_cPatternDispList.AddTail(pattern);
    ExpectLog(conversion, {R"(
P.m_lMul=-3
P.m_lDiv=100
P.m_lOffset=-2147483647
P.m_ushGenreId=65535
P.m_uchSigned=3
P.m_ushBitLength=16
P.m_strDefaultPattern=unknown
P.m_cDataMax.m_ulDataStringId=1
P.m_cDataMax.m_strDataPhys=
P.m_cDataMax.m_strData=
P.m_cDataMax.m_dDataPhys=0.000000
P.m_cDataMax.m_dData=0.000000
P.m_cDataMax.m_ulRawData=0
P.m_cDataMax.m_chIndex=0
P.m_cDataMax.m_lIndex=0
P.m_cDataMax.m_ulDispDataType=0
P.m_cDataMin.m_ulDataStringId=0
P.m_cDataMin.m_strDataPhys=min
P.m_cDataMin.m_strData=
P.m_cDataMin.m_dDataPhys=0.000000
P.m_cDataMin.m_dData=0.000000
P.m_cDataMin.m_ulRawData=0
P.m_cDataMin.m_chIndex=0
P.m_cDataMin.m_lIndex=0
P.m_cDataMin.m_ulDispDataType=0
P.m_cGraphMax.m_ulDataStringId=0
P.m_cGraphMax.m_strDataPhys=
P.m_cGraphMax.m_strData=
P.m_cGraphMax.m_dDataPhys=3.000000
P.m_cGraphMax.m_dData=0.000000
P.m_cGraphMax.m_ulRawData=0
P.m_cGraphMax.m_chIndex=0
P.m_cGraphMax.m_lIndex=0
P.m_cGraphMax.m_ulDispDataType=0
P.m_cGraphMin.m_ulDataStringId=0
P.m_cGraphMin.m_strDataPhys=
P.m_cGraphMin.m_strData=
P.m_cGraphMin.m_dDataPhys=0.000000
P.m_cGraphMin.m_dData=0.000000
P.m_cGraphMin.m_ulRawData=0
P.m_cGraphMin.m_chIndex=-4
P.m_cGraphMin.m_lIndex=0
P.m_cGraphMin.m_ulDispDataType=0
P.m_cPatternDispList[0].m_ulDataStringId=0
P.m_cPatternDispList[0].m_strDataPhys=off
P.m_cPatternDispList[0].m_strData=
P.m_cPatternDispList[0].m_dDataPhys=0.000000
P.m_cPatternDispList[0].m_dData=0.000000
P.m_cPatternDispList[0].m_ulRawData=0
P.m_cPatternDispList[0].m_chIndex=0
P.m_cPatternDispList[0].m_lIndex=0
P.m_cPatternDispList[0].m_ulDispDataType=0
P.m_cPatternDispList[1].m_ulDataStringId=0
P.m_cPatternDispList[1].m_strDataPhys=on
P.m_cPatternDispList[1].m_strData=
P.m_cPatternDispList[1].m_dDataPhys=0.000000
P.m_cPatternDispList[1].m_dData=0.000000
P.m_cPatternDispList[1].m_ulRawData=1
P.m_cPatternDispList[1].m_chIndex=0
P.m_cPatternDispList[1].m_lIndex=0
P.m_cPatternDispList[1].m_ulDispDataType=0
)"});
}

}  // namespace

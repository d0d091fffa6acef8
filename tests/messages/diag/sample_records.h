// Filled display, conversion and freeze-frame records with the log lines that they write, for tests of whatever embeds
// or lists them. The lines begin where the record's prefix ends.
#ifndef KRM_TESTS_MESSAGES_DIAG_SAMPLE_RECORDS_H_
#define KRM_TESTS_MESSAGES_DIAG_SAMPLE_RECORDS_H_

#include <string>
#include <string_view>

#include "krm/messages/diag/display.h"
#include "krm/messages/diag/freeze_frame_item.h"
#include "tests/support/log_text.h"

namespace krm::test {

inline CKRMCCommandDispData SampleDisplay() {
    CKRMCCommandDispData display;
    display.m_ulDataStringId = 5;
    display.m_strDataPhys = "12.5";
    display.m_strData = "54.5 %d";
    display.m_dDataPhys = 12.5;
    display.m_dData = -54.5;
    display.m_ulRawData = 4294967295U;
    display.m_ulDispReserved = 6;
    display.m_chIndex = -1;
    display.m_lIndex = -2;
    display.m_ulDispDataType = 3;
    return display;
}

inline constexpr std::string_view kSampleDisplayLines = R"(
.m_ulDataStringId=5
.m_strDataPhys=12.5
.m_strData=54.5 %d
.m_dDataPhys=12.500000
.m_dData=-54.500000
.m_ulRawData=-1
.m_chIndex=-1
.m_lIndex=-2
.m_ulDispDataType=3
)";

inline constexpr std::string_view kEmptyDisplayLines = R"(
.m_ulDataStringId=0
.m_strDataPhys=
.m_strData=
.m_dDataPhys=0.000000
.m_dData=0.000000
.m_ulRawData=0
.m_chIndex=0
.m_lIndex=0
.m_ulDispDataType=0
)";

inline CKRMCCommandConversionData SampleConversion() {
    CKRMCCommandConversionData conversion;
    conversion.m_lMul = 100;
    conversion.m_lDiv = 255;
    conversion.m_lOffset = -40;
    conversion.m_ushGenreId = 65535;
    conversion.m_uchSigned = 1;
    conversion.m_ushBitLength = 8;
    conversion.m_ulConvReserved = 7;
    conversion.m_strDefaultPattern = "none";
    conversion.m_cGraphMin = SampleDisplay();
    conversion.m_cPatternDispList.AddTail(SampleDisplay());
    return conversion;
}

inline std::string SampleConversionLines() {
    return Log({
        R"(
.m_lMul=100
.m_lDiv=255
.m_lOffset=-40
.m_ushGenreId=65535
.m_uchSigned=1
.m_ushBitLength=8
.m_strDefaultPattern=none
)",
        Under(".m_cDataMax", kEmptyDisplayLines),
        Under(".m_cDataMin", kEmptyDisplayLines),
        Under(".m_cGraphMax", kEmptyDisplayLines),
        Under(".m_cGraphMin", kSampleDisplayLines),
        Under(".m_cPatternDispList[0]", kSampleDisplayLines),
    });
}

inline CKRMCCommandFFDData SampleItem() {
    CKRMCCommandFFDData item;
    item.m_ushId = 12;
    item.m_ulNameId = 1012;
    item.m_strName = "Engine speed";
    item.m_strFFDText = "not logged";
    item.m_ulUnitPhysId = 20;
    item.m_strUnitPhys = "rpm";
    item.m_ulUnitId = 21;
    item.m_strUnit = "1/min";
    item.m_ulFFDReserved = 8;
    item.m_uchDataType = 2;
    item.m_uchDecPntCount = 1;
    item.m_uchUnitConvDecPntCount = 255;
    item.m_cConversionTbl = SampleConversion();
    item.m_cResolutionData = SampleDisplay();
    item.m_cDispDataList.AddTail(CKRMCCommandDispData());
    item.m_cDispDataList.AddTail(SampleDisplay());
    item.m_cDataLayout.m_ulPidNo = 0x1A;
    item.m_cDataLayout.m_ulDataLen = 4294967295U;
    item.m_cDataLayout.m_uchEndian = 1;
    item.m_cDataLayout.m_ulByteNum = 2;
    item.m_cDataLayout.m_ulBytePos = 3;
    item.m_cDataLayout.m_ulBitMask = 0xFF00;
    return item;
}

inline std::string SampleItemLines() {
    return Log({
        R"(
.m_ushId=12
.m_ulNameId=1012
.m_strName=Engine speed
.m_ulUnitPhysId=20
.m_strUnitPhys=rpm
.m_ulUnitId=21
.m_strUnit=1/min
.m_uchDataType=2
.m_uchDecPntCount=1
.m_uchUnitConvDecPntCount=255
)",
        Under(".m_cConversionTbl", SampleConversionLines()),
        Under(".m_cResolutionData", kSampleDisplayLines),
        Under(".m_cDispDataList[0]", kEmptyDisplayLines),
        Under(".m_cDispDataList[1]", kSampleDisplayLines),
        R"(
.m_cDataLayout.m_ulPidNo=0x1A
.m_cDataLayout.m_ulDataLen=4294967295
.m_cDataLayout.m_uchEndian=1
.m_cDataLayout.m_ulByteNum=2
.m_cDataLayout.m_ulBytePos=3
.m_cDataLayout.m_ulBitMask=0x0000FF00
)",
    });
}

}  // namespace krm::test

#endif  // KRM_TESTS_MESSAGES_DIAG_SAMPLE_RECORDS_H_

// The words in which tests of the diagnostic messages say what they expect: the lines of the message bases, and records
// that others embed or list (display value, conversion rule, freeze-frame item, trouble code) with the lines that they write
// under a prefix, new but for one number or filled.
#ifndef KRM_TESTS_MESSAGES_DIAG_EXPECTED_LINES_H_
#define KRM_TESTS_MESSAGES_DIAG_EXPECTED_LINES_H_

#include <string>
#include <string_view>

#include "krm/messages/diag/display.h"
#include "krm/messages/diag/freeze_frame_item.h"
#include "tests/support/log_text.h"

namespace krm::test {

/// The lines that a request writes before its own.
inline std::string RequestBaseLines(int commandId, int ecuId) {
    return "[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1\n"
           "[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=" +
           std::to_string(commandId) +
           "\n[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=" + std::to_string(ecuId) + '\n';
}

/// The lines that an answer writes before its own.
inline std::string AnswerBaseLines(int commandId, int notSupport) {
    return "[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1\n"
           "[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=" +
           std::to_string(commandId) +
           "\n[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=" + std::to_string(notSupport) + '\n';
}

// Records that are new but for one number.

/// The lines of a display value with `m_ulDataStringId` and `m_ulRawData`.
inline std::string DisplayLines(const std::string& prefix, int stringId, int rawData = 0) {
    return Under(prefix, ".m_ulDataStringId=" + std::to_string(stringId) + R"(
.m_strDataPhys=
.m_strData=
.m_dDataPhys=0.000000
.m_dData=0.000000
.m_ulRawData=)" + std::to_string(rawData) +
                             R"(
.m_chIndex=0
.m_lIndex=0
.m_ulDispDataType=0
)");
}

/// The lines of a conversion rule with `m_lMul`.
inline std::string ConversionLines(const std::string& prefix, int multiplier) {
    return Under(prefix, ".m_lMul=" + std::to_string(multiplier) + R"(
.m_lDiv=0
.m_lOffset=0
.m_ushGenreId=0
.m_uchSigned=0
.m_ushBitLength=0
.m_strDefaultPattern=
)") + DisplayLines(prefix + ".m_cDataMax", 0) +
           DisplayLines(prefix + ".m_cDataMin", 0) + DisplayLines(prefix + ".m_cGraphMax", 0) +
           DisplayLines(prefix + ".m_cGraphMin", 0);
}

/// The lines of a freeze-frame item with `m_ushId`; those of its display values are `displayLines`.
inline std::string ItemLines(const std::string& prefix, int id, const std::string& displayLines = {}) {
    return Under(prefix, ".m_ushId=" + std::to_string(id) + R"(
.m_ulNameId=0
.m_strName=
.m_ulUnitPhysId=0
.m_strUnitPhys=
.m_ulUnitId=0
.m_strUnit=
.m_uchDataType=0
.m_uchDecPntCount=0
.m_uchUnitConvDecPntCount=0
)") + ConversionLines(prefix + ".m_cConversionTbl", 0) +
           DisplayLines(prefix + ".m_cResolutionData", 0) + displayLines + Under(prefix, R"(
.m_cDataLayout.m_ulPidNo=0x0
.m_cDataLayout.m_ulDataLen=0
.m_cDataLayout.m_uchEndian=0
.m_cDataLayout.m_ulByteNum=0
.m_cDataLayout.m_ulBytePos=0
.m_cDataLayout.m_ulBitMask=0x00000000
)");
}

/// An item that can be told from others in a log: by its ID and its one display value.
inline CKRMCCommandFFDData NumberedItem(unsigned short id) {
    CKRMCCommandFFDData item;
    item.m_ushId = id;
    CKRMCCommandDispData value;
    value.m_ulRawData = id;
    item.m_cDispDataList.AddTail(value);
    return item;
}

inline std::string NumberedItemLines(const std::string& prefix, int id) {
    return ItemLines(prefix, id, DisplayLines(prefix + ".m_cDispDataList[0]", 0, id));
}

/// The lines of a trouble code with `m_uchDTCKind`.
inline std::string TroubleCodeLines(const std::string& prefix, int kind) {
    return prefix + ".m_uchDTCKind=" + std::to_string(kind) + '\n' + Under(prefix, R"(
.m_ulDTCCode=0
.m_strDTC=
.m_ulDTCNameId=0
.m_strDTCName=
.m_ulDTCDivNameId=0
.m_strDTCDivName=
.m_chFFDType=0
.m_uchFFDId=0
.m_strComment=
.m_uchDTCType=0
.m_ulDTCTypeNameId=0
.m_strDTCTypeName=
.m_ulDTCTypeToolId=0
.m_strDTCTypeTool=
.m_uchDTCStatus=0
.m_ulDTCStatusNameId=0
.m_strDTCStatusName=
.m_ulDTCStatusToolId=0
.m_strDTCStatusTool=
.m_bTripTime=0
.m_bFailTripTime=0
)") + ItemLines(prefix + ".m_cTripTime", 0) +
           Under(prefix, R"(
.m_bAfterIgOnTime=0
.m_bFailAfterIgOnTime=0
)") + ItemLines(prefix + ".m_cAfterIgOnTime", 0) +
           Under(prefix, R"(
.m_ulOriginalCountId=0
)") + ItemLines(prefix + ".m_cClockType", 0) +
           Under(prefix, R"(
.m_bStatusOfDTC=0
.m_uchStatusOfDTC=0
.m_ulDTCGroupId=0
)");
}

// Filled records.

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

inline std::string SampleDisplayLines(std::string_view prefix) {
    return Under(prefix, R"(
.m_ulDataStringId=5
.m_strDataPhys=12.5
.m_strData=54.5 %d
.m_dDataPhys=12.500000
.m_dData=-54.500000
.m_ulRawData=-1
.m_chIndex=-1
.m_lIndex=-2
.m_ulDispDataType=3
)");
}

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

inline std::string SampleConversionLines(const std::string& prefix) {
    return Under(prefix, R"(
.m_lMul=100
.m_lDiv=255
.m_lOffset=-40
.m_ushGenreId=65535
.m_uchSigned=1
.m_ushBitLength=8
.m_strDefaultPattern=none
)") + DisplayLines(prefix + ".m_cDataMax", 0) +
           DisplayLines(prefix + ".m_cDataMin", 0) + DisplayLines(prefix + ".m_cGraphMax", 0) +
           SampleDisplayLines(prefix + ".m_cGraphMin") + SampleDisplayLines(prefix + ".m_cPatternDispList[0]");
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

inline std::string SampleItemLines(const std::string& prefix) {
    return Under(prefix, R"(
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
)") + SampleConversionLines(prefix + ".m_cConversionTbl") +
           SampleDisplayLines(prefix + ".m_cResolutionData") + DisplayLines(prefix + ".m_cDispDataList[0]", 0) +
           SampleDisplayLines(prefix + ".m_cDispDataList[1]") + Under(prefix, R"(
.m_cDataLayout.m_ulPidNo=0x1A
.m_cDataLayout.m_ulDataLen=4294967295
.m_cDataLayout.m_uchEndian=1
.m_cDataLayout.m_ulByteNum=2
.m_cDataLayout.m_ulBytePos=3
.m_cDataLayout.m_ulBitMask=0x0000FF00
)");
}

}  // namespace krm::test

#endif  // KRM_TESTS_MESSAGES_DIAG_EXPECTED_LINES_H_

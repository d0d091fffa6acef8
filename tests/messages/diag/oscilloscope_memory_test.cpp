#include "krm/messages/diag/data_item.h"
#include "krm/messages/diag/memory.h"
#include "krm/messages/diag/oscilloscope.h"
#include "krm/messages/diag/oscilloscope_channel.h"

#include <gtest/gtest.h>

#include "tests/messages/diag/oscilloscope_memory_fields.h"
#include "tests/messages/diag/sample_records.h"
#include "tests/support/class_checks.h"
#include "tests/support/log_text.h"

namespace {

using krm::test::ExpectDiagnosticCommand;
using krm::test::ExpectRecords;
using krm::test::kEmptyDisplayLines;
using krm::test::kSampleDisplayLines;
using krm::test::Log;
using krm::test::MessageText;
using krm::test::RecordText;
using krm::test::SampleConversion;
using krm::test::SampleConversionLines;
using krm::test::SampleDisplay;
using krm::test::Under;

CKRMCCommandOscData Range() {
    CKRMCCommandOscData range;
    range.m_ulVolId = 4294967295U;
    range.m_ulUnitPhysId = 2147483648U;
    range.m_strUnitPhys = "V";
    range.m_ulUnitId = 4294967294U;
    range.m_strUnit = "mV";
    range.m_ulOscReserved = 99;
    range.m_uchDataType = 255;
    range.m_uchDecPntCount = 254;
    range.m_uchUnitConvDecPntCount = 253;
    range.m_cConversionTbl = SampleConversion();
    range.m_cResolutionData = SampleDisplay();
    return range;
}

CKRMCCommandOscTimeInfo TimeBase() {
    CKRMCCommandOscTimeInfo base;
    base.m_ushTimeId = 65535;
    base.m_ulSamplingHz = 4294967295U;
    base.m_ulRecordTime = 2147483648U;
    base.m_bSyncFlag = true;
    return base;
}

CKRMCCommandReadMemoryInfo Byte(krm_ulong address, unsigned char data, krm_ulong errorCode) {
    CKRMCCommandReadMemoryInfo info;
    info.m_ulAddress = address;
    info.m_uchData = data;
    info.m_ulErrorCode = errorCode;
    return info;
}

TEST(OscilloscopeMemoryRecords, ArePlainValues) {
    ExpectRecords<CKRMCCommandOscInfo, CKRMCCommandOscData, CKRMCCommandOscTimeInfo, CKRMCCommandReadMemoryInfo,
                  CKRMCCommandWriteData>();
}

TEST(OscilloscopeMemoryMessages, HaveTheirTypeAndIdAndArePlainValues) {
    ExpectDiagnosticCommand<CKRMCGetOscilloscopeListCmdAdaptDataSnd, CKRMCGetOscilloscopeListCmdAdaptDataRcv>(88);
    ExpectDiagnosticCommand<CKRMCReadMemoryCmdAdaptDataSnd, CKRMCReadMemoryCmdAdaptDataRcv>(102);
    ExpectDiagnosticCommand<CKRMCWriteMemoryCmdAdaptDataSnd, CKRMCWriteMemoryCmdAdaptDataRcv>(103);
}

TEST(OscInfo, WritesChannelAndRange) {
    CKRMCCommandOscInfo info;
    info.m_ushChId = 65535;
    info.m_ulVolId = 4294967295U;
    EXPECT_EQ(RecordText(info), Log({R"(
P.m_ushChId=65535
P.m_ulVolId=-1
)"}));
}

TEST(OscData, WritesTheRangeAfterTheDecimalPlaces) {
    CKRMCCommandOscData range = Range();
    EXPECT_EQ(RecordText(range), Log({
                                     R"(
P.m_ulUnitPhysId=-2147483648
P.m_strUnitPhys=V
P.m_ulUnitId=-2
P.m_strUnit=mV
P.m_uchDataType=255
P.m_uchDecPntCount=254
P.m_uchUnitConvDecPntCount=253
P.m_ulVolId=-1
)",
                                     Under("P.m_cConversionTbl", SampleConversionLines()),
                                     Under("P.m_cResolutionData", kSampleDisplayLines),
                                 }));
}

TEST(OscData, HoldsTheRangeFirst) {
    CKRMCCommandOscData range;
    const void* const first = &range.m_ulVolId;
    const void* const next = &range.m_ulUnitPhysId;
    EXPECT_LT(first, next);
}

TEST(OscTimeInfo, WritesRateAndTimeUnsigned) {
    CKRMCCommandOscTimeInfo base = TimeBase();
    EXPECT_EQ(RecordText(base), Log({R"(
P.m_ushTimeId=65535
P.m_ulSamplingHz=4294967295
P.m_ulRecordTime=2147483648
P.m_bSyncFlag=1
)"}));
}

TEST(OscTimeInfo, NewOneWritesZeros) {
    CKRMCCommandOscTimeInfo base;
    EXPECT_EQ(RecordText(base), Log({R"(
P.m_ushTimeId=0
P.m_ulSamplingHz=0
P.m_ulRecordTime=0
P.m_bSyncFlag=0
)"}));
}

TEST(ReadMemoryInfo, WritesTenDigitsOfErrorEightOfAddressTwoOfData) {
    CKRMCCommandReadMemoryInfo byte = Byte(0x1234, 0x0A, 5);
    EXPECT_EQ(RecordText(byte), Log({R"(
P.m_ulAddress=0x00001234
P.m_uchData=0x0A
P.m_ulErrorCode=0000000005
)"}));
}

TEST(ReadMemoryInfo, WritesTheLargestNumbersUnsigned) {
    CKRMCCommandReadMemoryInfo byte = Byte(4294967295U, 255, 4294967295U);
    EXPECT_EQ(RecordText(byte), Log({R"(
P.m_ulAddress=0xFFFFFFFF
P.m_uchData=0xFF
P.m_ulErrorCode=4294967295
)"}));
}

TEST(WriteData, WritesItemTypeAndValue) {
    CKRMCCommandWriteData data;
    data.m_ushId = 65535;
    data.m_uchType = 255;
    data.m_ulData = 4294967295U;
    EXPECT_EQ(RecordText(data), Log({R"(
P.m_ushId=65535
P.m_uchType=255
P.m_ulData=-1
)"}));
}

TEST(GetOscilloscopeList, RequestWritesTheBaseLinesOnly) {
    CKRMCGetOscilloscopeListCmdAdaptDataSnd request;
    request.m_ulEcuId = 2016;
    EXPECT_EQ(MessageText(request), Log({R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=88
[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=2016
)"}));
}

TEST(GetOscilloscopeList, AnswerWritesChannelsRangesAndTimeBases) {
    CKRMCGetOscilloscopeListCmdAdaptDataRcv answer;
    answer.m_ushChList.AddTail(1);
    answer.m_ushChList.AddTail(65535);
    answer.m_cVolList.AddTail(Range());
    answer.m_cVolList.AddTail(Range());
    answer.m_cVolList[1].m_ulVolId = 2;
    answer.m_cVolList[1].m_cResolutionData.Clear();
    answer.m_cTimeList.AddTail(TimeBase());
    answer.m_cTimeList.AddTail(CKRMCCommandOscTimeInfo());
    EXPECT_EQ(
        MessageText(answer),
        Log({
            R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=88
[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=0
[CKRMCGetOscilloscopeListCmdAdaptDataRcv::ErrWriteOperationLog] m_ushChList[0]=1
[CKRMCGetOscilloscopeListCmdAdaptDataRcv::ErrWriteOperationLog] m_ushChList[1]=65535
[CKRMCGetOscilloscopeListCmdAdaptDataRcv::ErrWriteOperationLog] m_cVolList[0].m_ulUnitPhysId=-2147483648
[CKRMCGetOscilloscopeListCmdAdaptDataRcv::ErrWriteOperationLog] m_cVolList[0].m_strUnitPhys=V
[CKRMCGetOscilloscopeListCmdAdaptDataRcv::ErrWriteOperationLog] m_cVolList[0].m_ulUnitId=-2
[CKRMCGetOscilloscopeListCmdAdaptDataRcv::ErrWriteOperationLog] m_cVolList[0].m_strUnit=mV
[CKRMCGetOscilloscopeListCmdAdaptDataRcv::ErrWriteOperationLog] m_cVolList[0].m_uchDataType=255
[CKRMCGetOscilloscopeListCmdAdaptDataRcv::ErrWriteOperationLog] m_cVolList[0].m_uchDecPntCount=254
[CKRMCGetOscilloscopeListCmdAdaptDataRcv::ErrWriteOperationLog] m_cVolList[0].m_uchUnitConvDecPntCount=253
[CKRMCGetOscilloscopeListCmdAdaptDataRcv::ErrWriteOperationLog] m_cVolList[0].m_ulVolId=-1
)",
            Under("[CKRMCGetOscilloscopeListCmdAdaptDataRcv::ErrWriteOperationLog] m_cVolList[0].m_cConversionTbl",
                  SampleConversionLines()),
            Under("[CKRMCGetOscilloscopeListCmdAdaptDataRcv::ErrWriteOperationLog] m_cVolList[0].m_cResolutionData",
                  kSampleDisplayLines),
            R"(
[CKRMCGetOscilloscopeListCmdAdaptDataRcv::ErrWriteOperationLog] m_cVolList[1].m_ulUnitPhysId=-2147483648
[CKRMCGetOscilloscopeListCmdAdaptDataRcv::ErrWriteOperationLog] m_cVolList[1].m_strUnitPhys=V
[CKRMCGetOscilloscopeListCmdAdaptDataRcv::ErrWriteOperationLog] m_cVolList[1].m_ulUnitId=-2
[CKRMCGetOscilloscopeListCmdAdaptDataRcv::ErrWriteOperationLog] m_cVolList[1].m_strUnit=mV
[CKRMCGetOscilloscopeListCmdAdaptDataRcv::ErrWriteOperationLog] m_cVolList[1].m_uchDataType=255
[CKRMCGetOscilloscopeListCmdAdaptDataRcv::ErrWriteOperationLog] m_cVolList[1].m_uchDecPntCount=254
[CKRMCGetOscilloscopeListCmdAdaptDataRcv::ErrWriteOperationLog] m_cVolList[1].m_uchUnitConvDecPntCount=253
[CKRMCGetOscilloscopeListCmdAdaptDataRcv::ErrWriteOperationLog] m_cVolList[1].m_ulVolId=2
)",
            Under("[CKRMCGetOscilloscopeListCmdAdaptDataRcv::ErrWriteOperationLog] m_cVolList[1].m_cConversionTbl",
                  SampleConversionLines()),
            Under("[CKRMCGetOscilloscopeListCmdAdaptDataRcv::ErrWriteOperationLog] m_cVolList[1].m_cResolutionData",
                  kEmptyDisplayLines),
            R"(
[CKRMCGetOscilloscopeListCmdAdaptDataRcv::ErrWriteOperationLog] m_cTimeList[0].m_ushTimeId=65535
[CKRMCGetOscilloscopeListCmdAdaptDataRcv::ErrWriteOperationLog] m_cTimeList[0].m_ulSamplingHz=4294967295
[CKRMCGetOscilloscopeListCmdAdaptDataRcv::ErrWriteOperationLog] m_cTimeList[0].m_ulRecordTime=2147483648
[CKRMCGetOscilloscopeListCmdAdaptDataRcv::ErrWriteOperationLog] m_cTimeList[0].m_bSyncFlag=1
[CKRMCGetOscilloscopeListCmdAdaptDataRcv::ErrWriteOperationLog] m_cTimeList[1].m_ushTimeId=0
[CKRMCGetOscilloscopeListCmdAdaptDataRcv::ErrWriteOperationLog] m_cTimeList[1].m_ulSamplingHz=0
[CKRMCGetOscilloscopeListCmdAdaptDataRcv::ErrWriteOperationLog] m_cTimeList[1].m_ulRecordTime=0
[CKRMCGetOscilloscopeListCmdAdaptDataRcv::ErrWriteOperationLog] m_cTimeList[1].m_bSyncFlag=0
)",
        }));
}

TEST(ReadMemory, RequestWritesEachAddress) {
    CKRMCReadMemoryCmdAdaptDataSnd request;
    request.m_ulEcuId = 2016;
    request.m_ulAddressList.AddTail(0x1234);
    request.m_ulAddressList.AddTail(4294967295U);
    EXPECT_EQ(MessageText(request), Log({R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=102
[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=2016
[CKRMCReadMemoryCmdAdaptDataSnd::ErrWriteOperationLog] m_ulAddressList[0]=0x00001234
[CKRMCReadMemoryCmdAdaptDataSnd::ErrWriteOperationLog] m_ulAddressList[1]=0xFFFFFFFF
)"}));
}

TEST(ReadMemory, AnswerWritesEachByte) {
    CKRMCReadMemoryCmdAdaptDataRcv answer;
    answer.m_bNotSupport = true;
    answer.m_cReadMemoryInfoList.AddTail(Byte(0x1234, 0x0A, 0));
    answer.m_cReadMemoryInfoList.AddTail(Byte(0xFFFFFFFF, 0xFF, 5));
    EXPECT_EQ(MessageText(answer), Log({R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=102
[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=1
[CKRMCReadMemoryCmdAdaptDataRcv::ErrWriteOperationLog] m_cReadMemoryInfoList[0].m_ulAddress=0x00001234
[CKRMCReadMemoryCmdAdaptDataRcv::ErrWriteOperationLog] m_cReadMemoryInfoList[0].m_uchData=0x0A
[CKRMCReadMemoryCmdAdaptDataRcv::ErrWriteOperationLog] m_cReadMemoryInfoList[0].m_ulErrorCode=0000000000
[CKRMCReadMemoryCmdAdaptDataRcv::ErrWriteOperationLog] m_cReadMemoryInfoList[1].m_ulAddress=0xFFFFFFFF
[CKRMCReadMemoryCmdAdaptDataRcv::ErrWriteOperationLog] m_cReadMemoryInfoList[1].m_uchData=0xFF
[CKRMCReadMemoryCmdAdaptDataRcv::ErrWriteOperationLog] m_cReadMemoryInfoList[1].m_ulErrorCode=0000000005
)"}));
}

TEST(WriteMemory, RequestWritesAddressAndByte) {
    CKRMCWriteMemoryCmdAdaptDataSnd request;
    request.m_ulEcuId = 2016;
    request.m_ulAddress = 0x1234;
    request.m_uchData = 0x0A;
    EXPECT_EQ(MessageText(request), Log({R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=103
[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=2016
[CKRMCWriteMemoryCmdAdaptDataSnd::ErrWriteOperationLog] m_ulAddress=0x00001234
[CKRMCWriteMemoryCmdAdaptDataSnd::ErrWriteOperationLog] m_uchData=0x0A
)"}));
}

TEST(WriteMemory, AnswerWritesTenDigitsOfError) {
    CKRMCWriteMemoryCmdAdaptDataRcv answer;
    answer.m_ulErrorCode = 5;
    EXPECT_EQ(MessageText(answer), Log({R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=103
[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=0
[CKRMCWriteMemoryCmdAdaptDataRcv::ErrWriteOperationLog] m_ulErrorCode=0000000005
)"}));
}

}  // namespace

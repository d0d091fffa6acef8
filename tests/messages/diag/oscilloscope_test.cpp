#include "krm/messages/diag/oscilloscope.h"

#include <gtest/gtest.h>

#include "tests/messages/diag/expected_lines.h"
#include "tests/support/log_text.h"

namespace {

using krm::test::DisplayLines;
using krm::test::ExpectLog;
using krm::test::SampleConversion;
using krm::test::SampleConversionLines;
using krm::test::SampleDisplay;
using krm::test::SampleDisplayLines;

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

TEST(OscData, WritesTheRangeAfterTheDecimalPlaces) {
    CKRMCCommandOscData range = Range();
    ExpectLog(range, {
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
                         SampleConversionLines("P.m_cConversionTbl"),
                         SampleDisplayLines("P.m_cResolutionData"),
                     });
}

TEST(OscData, HoldsTheRangeFirst) {
    CKRMCCommandOscData range;
    const void* const first = &range.m_ulVolId;
    const void* const next = &range.m_ulUnitPhysId;
    EXPECT_LT(first, next);
}

CKRMCCommandOscTimeInfo TimeBase() {
    CKRMCCommandOscTimeInfo base;
    base.m_ushTimeId = 65535;
    base.m_ulSamplingHz = 4294967295U;
    base.m_ulRecordTime = 2147483648U;
    base.m_bSyncFlag = true;
    return base;
}

TEST(OscTimeInfo, WritesRateAndTimeUnsigned) {
    CKRMCCommandOscTimeInfo base = TimeBase();
    ExpectLog(base, {R"(
P.m_ushTimeId=65535
P.m_ulSamplingHz=4294967295
P.m_ulRecordTime=2147483648
P.m_bSyncFlag=1
)"});
}

TEST(OscTimeInfo, NewOneWritesZeros) {
    CKRMCCommandOscTimeInfo base;
    ExpectLog(base, {R"(
P.m_ushTimeId=0
P.m_ulSamplingHz=0
P.m_ulRecordTime=0
P.m_bSyncFlag=0
)"});
}

TEST(GetOscilloscopeList, RequestWritesTheBaseLinesOnly) {
    CKRMCGetOscilloscopeListCmdAdaptDataSnd request;
    request.m_ulEcuId = 2016;
    ExpectLog(request, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=88
[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=2016
)"});
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
    ExpectLog(
        answer,
        {
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
            SampleConversionLines(
                "[CKRMCGetOscilloscopeListCmdAdaptDataRcv::ErrWriteOperationLog] m_cVolList[0].m_cConversionTbl"),
            SampleDisplayLines(
                "[CKRMCGetOscilloscopeListCmdAdaptDataRcv::ErrWriteOperationLog] m_cVolList[0].m_cResolutionData"),
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
            SampleConversionLines(
                "[CKRMCGetOscilloscopeListCmdAdaptDataRcv::ErrWriteOperationLog] m_cVolList[1].m_cConversionTbl"),
            DisplayLines(
                "[CKRMCGetOscilloscopeListCmdAdaptDataRcv::ErrWriteOperationLog] m_cVolList[1].m_cResolutionData", 0),
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
        });
}

}  // namespace

#include "krm/messages/diag/freeze_frames.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/messages/diag/expected_lines.h"
#include "tests/support/log_text.h"

namespace {

using krm::test::ExpectLog;
using krm::test::Log;
using krm::test::NumberedItem;
using krm::test::NumberedItemLines;
using krm::test::RecordText;

TEST(AbsFFDData, WritesItsFieldsInOrder) {
    CKRMCCommandAbsFFDData system;
    system.m_ulSystemId = 1;
    system.m_strSystem = "ABS";
    system.m_uchFFDId = 3;
    system.m_uchIndex = 255;
    ExpectLog(system, {R"(
P.m_ulSystemId=1
P.m_strSystem=ABS
P.m_uchFFDId=3
P.m_uchIndex=255
)"});
}

CKRMCAbsoluteTimeInfo FilledTime() {
    CKRMCAbsoluteTimeInfo time;
    time.m_cTripTime = NumberedItem(1);
    time.m_cInternalClock = NumberedItem(2);
    time.m_cGPSTimeYear = NumberedItem(3);
    time.m_cGPSTimeMonth = NumberedItem(4);
    time.m_cGPSTimeDay = NumberedItem(5);
    time.m_cGPSTimeHour = NumberedItem(6);
    time.m_cGPSTimeMinute = NumberedItem(7);
    time.m_cGPSTimeSecond = NumberedItem(8);
    time.m_cTimeDifferenceSign = NumberedItem(9);
    time.m_cTimeDifferenceHour = NumberedItem(10);
    time.m_cTimeDifferenceMinute = NumberedItem(11);
    time.m_cDST = NumberedItem(12);
    return time;
}

std::string FilledTimeLog(const std::string& prefix) {
    return Log({NumberedItemLines(prefix + ".m_cTripTime", 1), NumberedItemLines(prefix + ".m_cInternalClock", 2),
                NumberedItemLines(prefix + ".m_cGPSTimeYear", 3), NumberedItemLines(prefix + ".m_cGPSTimeMonth", 4),
                NumberedItemLines(prefix + ".m_cGPSTimeDay", 5), NumberedItemLines(prefix + ".m_cGPSTimeHour", 6),
                NumberedItemLines(prefix + ".m_cGPSTimeMinute", 7), NumberedItemLines(prefix + ".m_cGPSTimeSecond", 8),
                NumberedItemLines(prefix + ".m_cTimeDifferenceSign", 9),
                NumberedItemLines(prefix + ".m_cTimeDifferenceHour", 10),
                NumberedItemLines(prefix + ".m_cTimeDifferenceMinute", 11), NumberedItemLines(prefix + ".m_cDST", 12)});
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

CKRMCEcuSpecificInfo Ecu(krm_ulong id, unsigned short bus) {
    CKRMCEcuSpecificInfo ecu;
    ecu.m_ulEcuId = id;
    ecu.m_ushBusId = bus;
    return ecu;
}

TEST(EcuSpecificInfo, WritesItsFieldsInOrder) {
    CKRMCEcuSpecificInfo ecu = Ecu(2016, 65535);
    ExpectLog(ecu, {R"(
P.m_ulEcuId=2016
P.m_ushBusId=65535
)"});
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
    ExpectLog(request, {R"(
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
)"});
}

TEST(GetFFD, AnswerLog) {
    CKRMCGetFFDCmdAdaptDataRcv answer;
    answer.m_bNotSupport = true;
    answer.m_bMultiFFD = true;
    answer.m_chBegin = -128;
    answer.m_lBegin = -2;
    answer.m_chEnd = 127;
    answer.m_lEnd = 2147483647;
    answer.Data.AddTail(NumberedItem(1));
    answer.Data.AddTail(NumberedItem(2));
    ExpectLog(answer, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=6
[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=1
[CKRMCGetFFDCmdAdaptDataRcv::ErrWriteOperationLog] m_bMultiFFD=1
[CKRMCGetFFDCmdAdaptDataRcv::ErrWriteOperationLog] m_chBegin=-128
[CKRMCGetFFDCmdAdaptDataRcv::ErrWriteOperationLog] m_lBegin=-2
[CKRMCGetFFDCmdAdaptDataRcv::ErrWriteOperationLog] m_chEnd=127
[CKRMCGetFFDCmdAdaptDataRcv::ErrWriteOperationLog] m_lEnd=2147483647
)",
                       NumberedItemLines("[CKRMCGetFFDCmdAdaptDataRcv::ErrWriteOperationLog] Data[0]", 1),
                       NumberedItemLines("[CKRMCGetFFDCmdAdaptDataRcv::ErrWriteOperationLog] Data[1]", 2)});
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
    ExpectLog(request, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=9
[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=90
[CKRMCIsMultiFFDCmdAdaptDataSnd::ErrWriteOperationLog] m_uchPhaseType=1
[CKRMCIsMultiFFDCmdAdaptDataSnd::ErrWriteOperationLog] m_uchFFDId=2
[CKRMCIsMultiFFDCmdAdaptDataSnd::ErrWriteOperationLog] m_uchSSRNoList[0]=3
[CKRMCIsMultiFFDCmdAdaptDataSnd::ErrWriteOperationLog] m_uchSDRNoList[0]=4
[CKRMCIsMultiFFDCmdAdaptDataSnd::ErrWriteOperationLog] m_uchSDRNoList[1]=5
[CKRMCIsMultiFFDCmdAdaptDataSnd::ErrWriteOperationLog] m_ulDTC=6
)"});
}

TEST(IsMultiFFD, AnswerLog) {
    CKRMCIsMultiFFDCmdAdaptDataRcv answer;
    answer.m_bNotSupport = true;
    answer.m_bMultiFFD = true;
    answer.m_chFFDType = -1;
    ExpectLog(answer, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=9
[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=1
[CKRMCIsMultiFFDCmdAdaptDataRcv::ErrWriteOperationLog] m_bMultiFFD=1
[CKRMCIsMultiFFDCmdAdaptDataRcv::ErrWriteOperationLog] m_chFFDType=-1
)"});
}

TEST(IsAbsFFD, RequestLog) {
    CKRMCIsAbsFFDCmdAdaptDataSnd request;
    request.m_ulEcuId = 450;
    ExpectLog(request, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=45
[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=450
)"});
}

TEST(IsAbsFFD, AnswerLog) {
    CKRMCIsAbsFFDCmdAdaptDataRcv answer;
    answer.m_bNotSupport = true;
    answer.m_uchType = 1;
    CKRMCCommandAbsFFDData system;
    system.m_strSystem = "ABS";
    answer.Data.AddTail(system);
    ExpectLog(answer, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=45
[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=1
[CKRMCIsAbsFFDCmdAdaptDataRcv::ErrWriteOperationLog] m_uchType=1
[CKRMCIsAbsFFDCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ulSystemId=0
[CKRMCIsAbsFFDCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_strSystem=ABS
[CKRMCIsAbsFFDCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_uchFFDId=0
[CKRMCIsAbsFFDCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_uchIndex=0
)"});
}

TEST(GetCurrentTimeInfo, RequestLog) {
    CKRMCGetCurrentTimeInfoCmdAdaptDataSnd request;
    request.m_ulEcuId = 620;
    ExpectLog(request, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=62
[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=620
)"});
}

TEST(GetCurrentTimeInfo, AnswerLog) {
    CKRMCGetCurrentTimeInfoCmdAdaptDataRcv answer;
    answer.m_bNotSupport = true;
    answer.m_bSupport = true;
    answer.m_bFailTripTime = true;
    answer.m_cTripTime = NumberedItem(1);
    answer.m_bAfterIgOnTime = true;
    answer.m_cAfterIgOnTime = NumberedItem(2);
    ExpectLog(
        answer,
        {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=62
[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=1
[CKRMCGetCurrentTimeInfoCmdAdaptDataRcv::ErrWriteOperationLog] m_bSupport=1
[CKRMCGetCurrentTimeInfoCmdAdaptDataRcv::ErrWriteOperationLog] m_bTripTime=0
[CKRMCGetCurrentTimeInfoCmdAdaptDataRcv::ErrWriteOperationLog] m_bFailTripTime=1
)",
         NumberedItemLines("[CKRMCGetCurrentTimeInfoCmdAdaptDataRcv::ErrWriteOperationLog] m_cTripTime", 1), R"(
[CKRMCGetCurrentTimeInfoCmdAdaptDataRcv::ErrWriteOperationLog] m_bAfterIgOnTime=1
[CKRMCGetCurrentTimeInfoCmdAdaptDataRcv::ErrWriteOperationLog] m_bFailAfterIgOnTime=0
)",
         NumberedItemLines("[CKRMCGetCurrentTimeInfoCmdAdaptDataRcv::ErrWriteOperationLog] m_cAfterIgOnTime", 2)});
}

TEST(GetAbsoluteTimeInfo, RequestLog) {
    CKRMCGetAbsoluteTimeInfoCmdAdaptDataSnd request;
    request.m_ulEcuId = 640;
    request.m_cTargetEcuList.AddTail(Ecu(1, 2));
    request.m_cTargetEcuList.AddTail(Ecu(3, 4));
    request.m_cTripTimeList.AddTail(NumberedItem(5));
    ExpectLog(request, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=64
[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=640
[CKRMCGetAbsoluteTimeInfoCmdAdaptDataSnd::ErrWriteOperationLog] m_cTargetEcuList[0].m_ulEcuId=1
[CKRMCGetAbsoluteTimeInfoCmdAdaptDataSnd::ErrWriteOperationLog] m_cTargetEcuList[0].m_ushBusId=2
[CKRMCGetAbsoluteTimeInfoCmdAdaptDataSnd::ErrWriteOperationLog] m_cTargetEcuList[1].m_ulEcuId=3
[CKRMCGetAbsoluteTimeInfoCmdAdaptDataSnd::ErrWriteOperationLog] m_cTargetEcuList[1].m_ushBusId=4
)",
                        NumberedItemLines(
                            "[CKRMCGetAbsoluteTimeInfoCmdAdaptDataSnd::ErrWriteOperationLog] m_cTripTimeList[0]", 5)});
}

TEST(GetAbsoluteTimeInfo, AnswerLog) {
    CKRMCGetAbsoluteTimeInfoCmdAdaptDataRcv answer;
    answer.m_bNotSupport = true;
    answer.m_cCommEcuList.AddTail(Ecu(1, 2));
    answer.m_cAbsoluteTimeInfoList.AddTail(FilledTime());
    ExpectLog(
        answer,
        {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=64
[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=1
[CKRMCGetAbsoluteTimeInfoCmdAdaptDataRcv::ErrWriteOperationLog] m_cCommEcuList[0].m_ulEcuId=1
[CKRMCGetAbsoluteTimeInfoCmdAdaptDataRcv::ErrWriteOperationLog] m_cCommEcuList[0].m_ushBusId=2
)",
         FilledTimeLog("[CKRMCGetAbsoluteTimeInfoCmdAdaptDataRcv::ErrWriteOperationLog] m_cAbsoluteTimeInfoList[0]")});
}

TEST(GetFFD, BeginAndEndAreSigned) {
    CKRMCGetFFDCmdAdaptDataRcv answer;
    answer.m_chBegin = -1;
    answer.m_chEnd = -1;
    ExpectLog(answer, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=6
[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=0
[CKRMCGetFFDCmdAdaptDataRcv::ErrWriteOperationLog] m_bMultiFFD=0
[CKRMCGetFFDCmdAdaptDataRcv::ErrWriteOperationLog] m_chBegin=-1
[CKRMCGetFFDCmdAdaptDataRcv::ErrWriteOperationLog] m_lBegin=0
[CKRMCGetFFDCmdAdaptDataRcv::ErrWriteOperationLog] m_chEnd=-1
[CKRMCGetFFDCmdAdaptDataRcv::ErrWriteOperationLog] m_lEnd=0
)"});
}

}  // namespace

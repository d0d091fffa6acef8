#include "krm/messages/diag/data_monitor.h"

#include <gtest/gtest.h>

#include <string>

#include "krm/fields/diag/data_monitor.h"
#include "krm/messages/diag/oscilloscope_channel.h"
#include "tests/messages/diag/expected_lines.h"
#include "tests/support/fields.h"
#include "tests/support/log_text.h"

namespace {

using krm::test::Described;
using krm::test::DisplayLines;
using krm::test::ExpectLog;
using krm::test::Fill;
using krm::test::IsZero;
using krm::test::SampleDisplay;
using krm::test::SampleDisplayLines;
using krm::test::SampleItem;
using krm::test::SampleItemLines;
using krm::test::Seed;

TEST(DmErrorData, ClearResetsTheNumbersAndKeepsTheErrorObject) {
    Seed seed(40);
    CKRMCCommandDmErrorData error;
    Fill(error, seed);
    const std::string before = Described(error.m_cError);
    error.Clear();
    EXPECT_EQ(error.m_ushType, 0);
    EXPECT_EQ(error.m_ulHelpId1, 0U);
    EXPECT_EQ(error.m_ulHelpId2, 0U);
    EXPECT_FALSE(IsZero(error.m_cError));
    EXPECT_EQ(Described(error.m_cError), before);
}

CKRMCCommandTriggerData Trigger() {
    CKRMCCommandTriggerData trigger;
    trigger.m_ushTriggerItemId = 65535;
    trigger.m_ulNameId = 4294967295U;
    trigger.m_strName = "Engine speed";
    trigger.m_ushPidId = 65534;
    trigger.m_cBeginCondition = SampleDisplay();
    trigger.m_uchSlopeCondition = 255;
    trigger.m_uchSlopeDef = 254;
    trigger.m_cResolutionData = SampleDisplay();
    return trigger;
}

TEST(TriggerData, WritesConditionsAndSlopes) {
    CKRMCCommandTriggerData trigger = Trigger();
    ExpectLog(trigger, {
                           R"(
P.m_ushTriggerItemId=65535
P.m_ulNameId=-1
P.m_strName=Engine speed
P.m_ushPidId=65534
)",
                           SampleDisplayLines("P.m_cBeginCondition"),
                           R"(
P.m_uchSlopeCondition=255
)",
                           DisplayLines("P.m_cTriggerCondition", 0),
                           R"(
P.m_uchSlopeDef=254
)",
                           SampleDisplayLines("P.m_cResolutionData"),
                       });
}

TEST(GetDataMonitorList, RequestWritesTheBaseLinesOnly) {
    CKRMCGetDataMonitorListCmdAdaptDataSnd request;
    request.m_ulEcuId = 2016;
    ExpectLog(request, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=17
[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=2016
)"});
}

TEST(GetDataMonitorList, AnswerWritesTheNumberOfSupportBytesAndNoByte) {
    CKRMCGetDataMonitorListCmdAdaptDataRcv answer;
    answer.m_uchA8SupportData.AddTail(0xAA);
    answer.m_uchA8SupportData.AddTail(0xBB);
    answer.m_uchA8SupportData.AddTail(0xCC);
    ExpectLog(answer, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=17
[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=0
[CKRMCGetDataMonitorListCmdAdaptDataRcv::ErrWriteOperationLog] m_uchA8SupportData:ByteNum=3
)"});
}

TEST(GetDataMonitorList, AnswerWritesEachItem) {
    CKRMCGetDataMonitorListCmdAdaptDataRcv answer;
    answer.Data.AddTail(SampleItem());
    answer.Data.AddTail(SampleItem());
    ExpectLog(answer, {
                          R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=17
[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=0
)",
                          SampleItemLines("[CKRMCGetDataMonitorListCmdAdaptDataRcv::ErrWriteOperationLog] Data[0]"),
                          SampleItemLines("[CKRMCGetDataMonitorListCmdAdaptDataRcv::ErrWriteOperationLog] Data[1]"),
                          R"(
[CKRMCGetDataMonitorListCmdAdaptDataRcv::ErrWriteOperationLog] m_uchA8SupportData:ByteNum=0
)",
                      });
}

TEST(StartDataMonitor, RequestWritesMonitorsAndThenChannelsUnderTheSameName) {
    CKRMCCommandStartDataMonitorData monitor;
    monitor.m_ushDataMonitorId = 65535;
    monitor.m_ulEcuId = 4294967295U;
    monitor.m_cPidIdList.AddTail(12);
    monitor.m_cPidIdList.AddTail(65534);
    monitor.m_cSubPidIdList.AddTail(77);
    monitor.m_uchMonitorReserved1 = 1;
    monitor.m_ushMonitorReserved = 2;
    monitor.m_uchMonitorReserved2 = 3;
    CKRMCCommandStartDataMonitorData bare;
    bare.m_ushDataMonitorId = 2;
    bare.m_ulEcuId = 2016;
    CKRMCCommandOscInfo channel;
    channel.m_ushChId = 65533;
    channel.m_ulVolId = 2147483648U;
    CKRMCStartDataMonitorCmdAdaptDataSnd request;
    request.m_ulEcuId = 1;
    request.Data.AddTail(monitor);
    request.Data.AddTail(bare);
    request.m_cOscInfoList.AddTail(channel);
    request.m_cOscInfoList.AddTail(CKRMCCommandOscInfo());
    request.m_ushOscTimeId = 65532;
    ExpectLog(request, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=20
[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=1
[CKRMCStartDataMonitorCmdAdaptDataSnd::ErrWriteOperationLog] Data[0].m_ushDataMonitorId=65535
[CKRMCStartDataMonitorCmdAdaptDataSnd::ErrWriteOperationLog] Data[0].m_ulEcuId=-1
[CKRMCStartDataMonitorCmdAdaptDataSnd::ErrWriteOperationLog] Data[0].m_cPidIdList[0]=12
[CKRMCStartDataMonitorCmdAdaptDataSnd::ErrWriteOperationLog] Data[0].m_cPidIdList[1]=65534
[CKRMCStartDataMonitorCmdAdaptDataSnd::ErrWriteOperationLog] Data[1].m_ushDataMonitorId=2
[CKRMCStartDataMonitorCmdAdaptDataSnd::ErrWriteOperationLog] Data[1].m_ulEcuId=2016
[CKRMCStartDataMonitorCmdAdaptDataSnd::ErrWriteOperationLog] Data[0].m_ushChId=65533
[CKRMCStartDataMonitorCmdAdaptDataSnd::ErrWriteOperationLog] Data[0].m_ulVolId=-2147483648
[CKRMCStartDataMonitorCmdAdaptDataSnd::ErrWriteOperationLog] Data[1].m_ushChId=0
[CKRMCStartDataMonitorCmdAdaptDataSnd::ErrWriteOperationLog] Data[1].m_ulVolId=0
[CKRMCStartDataMonitorCmdAdaptDataSnd::ErrWriteOperationLog] m_ushOscTimeId=65532
)"});
}

TEST(StartDataMonitor, RequestWithEmptyListsWritesTheTimeBase) {
    CKRMCStartDataMonitorCmdAdaptDataSnd request;
    ExpectLog(request, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=20
[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=0
[CKRMCStartDataMonitorCmdAdaptDataSnd::ErrWriteOperationLog] m_ushOscTimeId=0
)"});
}

TEST(StartDataMonitor, AnswerWritesEachMonitorStarted) {
    CKRMCCommandDataMonitorIdData monitor;
    monitor.m_ushDataMonitorId = 65535;
    monitor.m_ulEcuId = 4294967295U;
    CKRMCStartDataMonitorCmdAdaptDataRcv answer;
    answer.m_bDataMonitorEnable = true;
    answer.Data.AddTail(monitor);
    answer.Data.AddTail(CKRMCCommandDataMonitorIdData());
    ExpectLog(answer, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=20
[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=0
[CKRMCStartDataMonitorCmdAdaptDataRcv::ErrWriteOperationLog] m_bDataMonitorEnable=1
[CKRMCStartDataMonitorCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ushDataMonitorId=65535
[CKRMCStartDataMonitorCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ulEcuId=-1
[CKRMCStartDataMonitorCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_ushDataMonitorId=0
[CKRMCStartDataMonitorCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_ulEcuId=0
)"});
}

TEST(GetDataMonitorValue, RequestWritesTheMonitor) {
    CKRMCGetDataMonitorValueCmdAdaptDataSnd request;
    request.m_ulEcuId = 2016;
    request.m_ushDataMonitorId = 65535;
    ExpectLog(request, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=21
[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=2016
[CKRMCGetDataMonitorValueCmdAdaptDataSnd::ErrWriteOperationLog] m_ushDataMonitorId=65535
)"});
}

TEST(GetDataMonitorValue, AnswerWritesTheBaseLinesOnlyWhateverItHolds) {
    CKRMCGetDataMonitorValueCmdAdaptDataRcv answer;
    answer.m_bNotSupport = true;
    answer.Data.AddTail(SampleItem());
    answer.m_ushValueReserved = 4;
    ExpectLog(answer, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=21
[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=1
)"});
}

TEST(GetTriggerItem, RequestWritesTheBaseLinesOnly) {
    CKRMCGetTriggerItemCmdAdaptDataSnd request;
    request.m_ulEcuId = 2016;
    ExpectLog(request, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=23
[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=2016
)"});
}

TEST(GetTriggerItem, AnswerWritesEachTrigger) {
    CKRMCGetTriggerItemCmdAdaptDataRcv answer;
    answer.m_cTriggerList.AddTail(Trigger());
    answer.m_cTriggerList.AddTail(Trigger());
    answer.m_cTriggerList[1].m_cTriggerCondition = SampleDisplay();
    ExpectLog(
        answer,
        {
            R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=23
[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=0
[CKRMCGetTriggerItemCmdAdaptDataRcv::ErrWriteOperationLog] m_cTriggerList[0].m_ushTriggerItemId=65535
[CKRMCGetTriggerItemCmdAdaptDataRcv::ErrWriteOperationLog] m_cTriggerList[0].m_ulNameId=-1
[CKRMCGetTriggerItemCmdAdaptDataRcv::ErrWriteOperationLog] m_cTriggerList[0].m_strName=Engine speed
[CKRMCGetTriggerItemCmdAdaptDataRcv::ErrWriteOperationLog] m_cTriggerList[0].m_ushPidId=65534
)",
            SampleDisplayLines(
                "[CKRMCGetTriggerItemCmdAdaptDataRcv::ErrWriteOperationLog] m_cTriggerList[0].m_cBeginCondition"),
            R"(
[CKRMCGetTriggerItemCmdAdaptDataRcv::ErrWriteOperationLog] m_cTriggerList[0].m_uchSlopeCondition=255
)",
            DisplayLines(
                "[CKRMCGetTriggerItemCmdAdaptDataRcv::ErrWriteOperationLog] m_cTriggerList[0].m_cTriggerCondition", 0),
            R"(
[CKRMCGetTriggerItemCmdAdaptDataRcv::ErrWriteOperationLog] m_cTriggerList[0].m_uchSlopeDef=254
)",
            SampleDisplayLines(
                "[CKRMCGetTriggerItemCmdAdaptDataRcv::ErrWriteOperationLog] m_cTriggerList[0].m_cResolutionData"),
            R"(
[CKRMCGetTriggerItemCmdAdaptDataRcv::ErrWriteOperationLog] m_cTriggerList[1].m_ushTriggerItemId=65535
[CKRMCGetTriggerItemCmdAdaptDataRcv::ErrWriteOperationLog] m_cTriggerList[1].m_ulNameId=-1
[CKRMCGetTriggerItemCmdAdaptDataRcv::ErrWriteOperationLog] m_cTriggerList[1].m_strName=Engine speed
[CKRMCGetTriggerItemCmdAdaptDataRcv::ErrWriteOperationLog] m_cTriggerList[1].m_ushPidId=65534
)",
            SampleDisplayLines(
                "[CKRMCGetTriggerItemCmdAdaptDataRcv::ErrWriteOperationLog] m_cTriggerList[1].m_cBeginCondition"),
            R"(
[CKRMCGetTriggerItemCmdAdaptDataRcv::ErrWriteOperationLog] m_cTriggerList[1].m_uchSlopeCondition=255
)",
            SampleDisplayLines(
                "[CKRMCGetTriggerItemCmdAdaptDataRcv::ErrWriteOperationLog] m_cTriggerList[1].m_cTriggerCondition"),
            R"(
[CKRMCGetTriggerItemCmdAdaptDataRcv::ErrWriteOperationLog] m_cTriggerList[1].m_uchSlopeDef=254
)",
            SampleDisplayLines(
                "[CKRMCGetTriggerItemCmdAdaptDataRcv::ErrWriteOperationLog] m_cTriggerList[1].m_cResolutionData"),
        });
}

TEST(GetDescription, RequestWritesTheBaseLinesOnly) {
    CKRMCGetDescriptionCmdAdaptDataSnd request;
    request.m_ulEcuId = 2016;
    ExpectLog(request, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=25
[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=2016
)"});
}

TEST(GetDescription, AnswerWritesTheText) {
    CKRMCGetDescriptionCmdAdaptDataRcv answer;
    answer.m_strDescription = "Lights 100 %s";
    ExpectLog(answer, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=25
[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=0
[CKRMCGetDescriptionCmdAdaptDataRcv::ErrWriteOperationLog] m_strDescription=Lights 100 %s
)"});
}

TEST(GetDataMonitorError, RequestWritesTheBaseLinesOnly) {
    CKRMCGetDataMonitorErrorCmdAdaptDataSnd request;
    request.m_ulEcuId = 2016;
    ExpectLog(request, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=39
[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=2016
)"});
}

TEST(GetDataMonitorError, AnswerWritesEachErrorWithItsDetails) {
    CKRMCCommandDmErrorData error;
    error.m_ushType = 65535;
    error.m_cError.SetError(1100100001, "Monitor", "Session", "Poll", "id=7", "no answer");
    error.m_ulHelpId1 = 4294967295U;
    error.m_ulHelpId2 = 2147483648U;
    CKRMCGetDataMonitorErrorCmdAdaptDataRcv answer;
    answer.Data.AddTail(error);
    answer.Data.AddTail(CKRMCCommandDmErrorData());
    answer.Data[1].m_cError.SetErrorCode(4294967295U);
    ExpectLog(answer, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=39
[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=0
[CKRMCGetDataMonitorErrorCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ushType=65535
[CKRMCGetDataMonitorErrorCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].a_ulReturnCode=1100100001
[CKRMCGetDataMonitorErrorCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].a_strErrorModuleName=Monitor
[CKRMCGetDataMonitorErrorCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].a_strErrorClassName=Session
[CKRMCGetDataMonitorErrorCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].a_strErrorFunctionName=Poll
[CKRMCGetDataMonitorErrorCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].a_strErrorFunctionArgs=id=7
[CKRMCGetDataMonitorErrorCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].a_strMessage=no answer
[CKRMCGetDataMonitorErrorCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ulHelpId1=4294967295
[CKRMCGetDataMonitorErrorCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ulHelpId2=2147483648
[CKRMCGetDataMonitorErrorCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_ushType=0
[CKRMCGetDataMonitorErrorCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].a_ulReturnCode=4294967295
[CKRMCGetDataMonitorErrorCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].a_strErrorModuleName=
[CKRMCGetDataMonitorErrorCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].a_strErrorClassName=
[CKRMCGetDataMonitorErrorCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].a_strErrorFunctionName=
[CKRMCGetDataMonitorErrorCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].a_strErrorFunctionArgs=
[CKRMCGetDataMonitorErrorCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].a_strMessage=
[CKRMCGetDataMonitorErrorCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_ulHelpId1=0
[CKRMCGetDataMonitorErrorCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_ulHelpId2=0
)"});
}

TEST(GetCurrentDataValue, RequestWritesEachPid) {
    CKRMCGetCurrentDataValueCmdAdaptDataSnd request;
    request.m_ulEcuId = 2016;
    request.m_cPidIdList.AddTail(12);
    request.m_cPidIdList.AddTail(65535);
    ExpectLog(request, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=92
[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=2016
[CKRMCGetCurrentDataValueCmdAdaptDataSnd::ErrWriteOperationLog] m_cPidIdList[0]=12
[CKRMCGetCurrentDataValueCmdAdaptDataSnd::ErrWriteOperationLog] m_cPidIdList[1]=65535
)"});
}

TEST(GetCurrentDataValue, AnswerWritesEachItem) {
    CKRMCGetCurrentDataValueCmdAdaptDataRcv answer;
    answer.Data.AddTail(SampleItem());
    answer.Data.AddTail(SampleItem());
    ExpectLog(answer, {
                          R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=92
[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=0
)",
                          SampleItemLines("[CKRMCGetCurrentDataValueCmdAdaptDataRcv::ErrWriteOperationLog] Data[0]"),
                          SampleItemLines("[CKRMCGetCurrentDataValueCmdAdaptDataRcv::ErrWriteOperationLog] Data[1]"),
                      });
}

TEST(GetHexModeInfo, RequestWritesTheBaseLinesOnly) {
    CKRMCGetHexModeInfoCmdAdaptDataSnd request;
    request.m_ulEcuId = 2016;
    ExpectLog(request, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=101
[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=2016
)"});
}

TEST(GetHexModeInfo, AnswerWritesTheWidthUnsigned) {
    CKRMCGetHexModeInfoCmdAdaptDataRcv answer;
    answer.m_ulAddressByte = 4294967295U;
    ExpectLog(answer, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=101
[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=0
[CKRMCGetHexModeInfoCmdAdaptDataRcv::ErrWriteOperationLog] m_ulAddressByte=4294967295
)"});
}

TEST(GetDataMonitorReceiveInfo, RequestWritesTheBaseLinesOnly) {
    CKRMCGetDataMonitorReceiveInfoCmdAdaptDataSnd request;
    request.m_ulEcuId = 2016;
    ExpectLog(request, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=111
[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=2016
)"});
}

TEST(GetDataMonitorReceiveInfo, AnswerWritesEachValueInHexadecimal) {
    CKRMCCommandDmReceiveData received;
    received.m_ushMessageType = 65535;
    received.m_ulRidRecvValue = 0xAB12;
    received.m_ushRidId = 65534;
    CKRMCGetDataMonitorReceiveInfoCmdAdaptDataRcv answer;
    answer.m_cDmReceiveDataList.AddTail(received);
    answer.m_cDmReceiveDataList.AddTail(CKRMCCommandDmReceiveData());
    ExpectLog(answer, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=111
[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=0
[CKRMCGetDataMonitorReceiveInfoCmdAdaptDataRcv::ErrWriteOperationLog] m_cDmReceiveDataList[0].m_ushMessageType=65535
[CKRMCGetDataMonitorReceiveInfoCmdAdaptDataRcv::ErrWriteOperationLog] m_cDmReceiveDataList[0].m_ulRidRecvValue=0x0000AB12
[CKRMCGetDataMonitorReceiveInfoCmdAdaptDataRcv::ErrWriteOperationLog] m_cDmReceiveDataList[0].m_ushRidId=65534
[CKRMCGetDataMonitorReceiveInfoCmdAdaptDataRcv::ErrWriteOperationLog] m_cDmReceiveDataList[1].m_ushMessageType=0
[CKRMCGetDataMonitorReceiveInfoCmdAdaptDataRcv::ErrWriteOperationLog] m_cDmReceiveDataList[1].m_ulRidRecvValue=0x00000000
[CKRMCGetDataMonitorReceiveInfoCmdAdaptDataRcv::ErrWriteOperationLog] m_cDmReceiveDataList[1].m_ushRidId=0
)"});
}

TEST(GetUnitInfo, RequestWritesTheBaseLinesOnly) {
    CKRMCGetUnitInfoCmdAdaptDataSnd request;
    request.m_ulEcuId = 2016;
    ExpectLog(request, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=127
[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=2016
)"});
}

TEST(GetUnitInfo, AnswerWritesEachMessageLength) {
    CKRMCCommandDiagMessage message;
    message.m_ulMsgLength = 4294967295U;
    CKRMCGetUnitInfoCmdAdaptDataRcv answer;
    answer.Data.AddTail(message);
    answer.Data.AddTail(CKRMCCommandDiagMessage());
    ExpectLog(answer, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=127
[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=0
[CKRMCGetUnitInfoCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ulMsgLength=-1
[CKRMCGetUnitInfoCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_ulMsgLength=0
)"});
}

TEST(DiagMessage, WritesItsLength) {
    CKRMCCommandDiagMessage message;
    message.m_ulMsgLength = 4095;
    ExpectLog(message, {"P.m_ulMsgLength=4095\n"});
}

}  // namespace

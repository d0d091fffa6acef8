#include "krm/messages/diag/event_records.h"

#include <gtest/gtest.h>

#include "tests/messages/diag/expected_lines.h"
#include "tests/support/log_text.h"

namespace {

using krm::test::ExpectLog;
using krm::test::NumberedItem;
using krm::test::NumberedItemLines;

TEST(EventRecordDataItem, WritesItsFieldsInOrder) {
    CKRMCCommandEventRecordDataItem event;
    event.m_ushEventRecordDataItemId = 65535;
    event.m_ulEventRecordDataItemNameId = 2;
    event.m_strEventRecordDataItemName = "Hard braking";
    event.m_bRecordData = true;
    ExpectLog(event, {R"(
P.m_ushEventRecordDataItemId=65535
P.m_ulEventRecordDataItemNameId=2
P.m_strEventRecordDataItemName=Hard braking
P.m_bRecordData=1
)"});
}

TEST(RecordDataItem, WritesItsFieldsInOrder) {
    CKRMCCommandRecordDataItem record;
    record.m_ushRecordDataItemId = 65535;
    record.m_ulRecordDataItemNameId = 2;
    record.m_strRecordDataItemName = "Record 1";
    ExpectLog(record, {R"(
P.m_ushRecordDataItemId=65535
P.m_ulRecordDataItemNameId=2
P.m_strRecordDataItemName=Record 1
)"});
}

TEST(GetEventRecordDataList, RequestLog) {
    CKRMCGetEventRecordDataListCmdAdaptDataSnd request;
    request.m_ulEcuId = 810;
    ExpectLog(request, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=81
[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=810
)"});
}

TEST(GetEventRecordDataList, AnswerLog) {
    CKRMCGetEventRecordDataListCmdAdaptDataRcv answer;
    answer.m_bNotSupport = true;
    CKRMCCommandEventRecordDataItem event;
    event.m_ushEventRecordDataItemId = 1;
    answer.Data.AddTail(event);
    event.m_bRecordData = true;
    answer.Data.AddTail(event);
    ExpectLog(answer, {R"(
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
)"});
}

TEST(GetRecordDataList, RequestLog) {
    CKRMCGetRecordDataListCmdAdaptDataSnd request;
    request.m_ulEcuId = 820;
    request.m_ushEventRecordDataItemId = 65535;
    ExpectLog(request, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=82
[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=820
[CKRMCGetRecordDataListCmdAdaptDataSnd::ErrWriteOperationLog] m_ushEventRecordDataItemId=65535
)"});
}

TEST(GetRecordDataList, AnswerLog) {
    CKRMCGetRecordDataListCmdAdaptDataRcv answer;
    answer.m_bNotSupport = true;
    CKRMCCommandRecordDataItem record;
    record.m_strRecordDataItemName = "first";
    answer.Data.AddTail(record);
    ExpectLog(answer, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=82
[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=1
[CKRMCGetRecordDataListCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ushRecordDataItemId=0
[CKRMCGetRecordDataListCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ulRecordDataItemNameId=0
[CKRMCGetRecordDataListCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_strRecordDataItemName=first
)"});
}

TEST(GetEventRecordData, RequestLog) {
    CKRMCGetEventRecordDataCmdAdaptDataSnd request;
    request.m_ulEcuId = 830;
    request.m_ushEventRecordDataItemId = 1;
    request.m_ushRecordDataItemId = 2;
    ExpectLog(request, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=83
[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=830
[CKRMCGetEventRecordDataCmdAdaptDataSnd::ErrWriteOperationLog] m_ushEventRecordDataItemId=1
[CKRMCGetEventRecordDataCmdAdaptDataSnd::ErrWriteOperationLog] m_ushRecordDataItemId=2
)"});
}

TEST(GetEventRecordData, AnswerLog) {
    CKRMCGetEventRecordDataCmdAdaptDataRcv answer;
    answer.m_bNotSupport = true;
    answer.m_bTimeInfoFlag = true;
    answer.m_chBegin = -1;
    answer.m_chEnd = -2;
    answer.Data.AddTail(NumberedItem(3));
    ExpectLog(answer, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=83
[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=1
[CKRMCGetEventRecordDataCmdAdaptDataRcv::ErrWriteOperationLog] m_bTimeInfoFlag=1
[CKRMCGetEventRecordDataCmdAdaptDataRcv::ErrWriteOperationLog] m_chBegin=-1
[CKRMCGetEventRecordDataCmdAdaptDataRcv::ErrWriteOperationLog] m_chEnd=-2
)",
                       NumberedItemLines("[CKRMCGetEventRecordDataCmdAdaptDataRcv::ErrWriteOperationLog] Data[0]", 3)});
}

}  // namespace

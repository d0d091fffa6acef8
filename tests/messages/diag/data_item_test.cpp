#include "krm/messages/diag/data_item.h"

#include <gtest/gtest.h>

#include "tests/messages/diag/expected_lines.h"
#include "tests/support/log_text.h"

namespace {

using krm::test::AnswerBaseLines;
using krm::test::ExpectLog;
using krm::test::RequestBaseLines;

TEST(WriteDataItem, RequestWritesTheFieldsOfEachItem) {
    CKRMCWriteDataItemCmdAdaptDataSnd request;
    request.m_ulEcuId = 1;
    CKRMCCommandWriteData item;
    item.m_ushId = 2;
    item.m_uchType = 3;
    item.m_ulData = 4294967295U;
    request.Data.AddTail(item);
    item.m_ulData = 4;
    request.Data.AddTail(item);
    ExpectLog(request, {RequestBaseLines(91, 1), R"(
[CKRMCWriteDataItemCmdAdaptDataSnd::ErrWriteOperationLog] Data[0].m_ushId=2
[CKRMCWriteDataItemCmdAdaptDataSnd::ErrWriteOperationLog] Data[0].m_uchType=3
[CKRMCWriteDataItemCmdAdaptDataSnd::ErrWriteOperationLog] Data[0].m_ulData=-1
[CKRMCWriteDataItemCmdAdaptDataSnd::ErrWriteOperationLog] Data[1].m_ushId=2
[CKRMCWriteDataItemCmdAdaptDataSnd::ErrWriteOperationLog] Data[1].m_uchType=3
[CKRMCWriteDataItemCmdAdaptDataSnd::ErrWriteOperationLog] Data[1].m_ulData=4
)"});
}

TEST(WriteDataItem, AnswerWritesTheBaseLinesOnly) {
    CKRMCWriteDataItemCmdAdaptDataRcv answer;
    ExpectLog(answer, {AnswerBaseLines(91, 0)});
}

TEST(WriteData, WritesItemTypeAndValue) {
    CKRMCCommandWriteData data;
    data.m_ushId = 65535;
    data.m_uchType = 255;
    data.m_ulData = 4294967295U;
    ExpectLog(data, {R"(
P.m_ushId=65535
P.m_uchType=255
P.m_ulData=-1
)"});
}

}  // namespace

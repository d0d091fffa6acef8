#include "krm/messages/diag/special_operation.h"

#include <gtest/gtest.h>

#include <string>

#include "krm/messages/diag/freeze_frame_item.h"
#include "tests/messages/diag/expected_lines.h"
#include "tests/support/log_text.h"

namespace {

using krm::test::AnswerBaseLines;
using krm::test::ExpectLog;
using krm::test::ItemLines;
using krm::test::RequestBaseLines;

TEST(GetSpOperateCtrlRecordGroup, RequestWritesTheBaseLinesOnly) {
    CKRMCGetSpOperateCtrlRecordGroupCmdAdaptDataSnd request;
    ExpectLog(request, {RequestBaseLines(66, 0)});
}

TEST(GetSpOperateCtrlRecordGroup, AnswerWritesTheFieldsOfEachGroup) {
    CKRMCGetSpOperateCtrlRecordGroupCmdAdaptDataRcv answer;
    CKRMCSpGroup group;
    group.m_ushGroupId = 1;
    group.m_ulGroupNameId = 4294967295U;
    group.m_strGroupName = "Braking";
    answer.Data.AddTail(group);
    group.m_ushGroupId = 2;
    answer.Data.AddTail(group);
    ExpectLog(answer, {AnswerBaseLines(66, 0), R"(
[CKRMCGetSpOperateCtrlRecordGroupCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ushGroupId=1
[CKRMCGetSpOperateCtrlRecordGroupCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ulGroupNameId=-1
[CKRMCGetSpOperateCtrlRecordGroupCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_strGroupName=Braking
[CKRMCGetSpOperateCtrlRecordGroupCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_ushGroupId=2
[CKRMCGetSpOperateCtrlRecordGroupCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_ulGroupNameId=-1
[CKRMCGetSpOperateCtrlRecordGroupCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_strGroupName=Braking
)"});
}

TEST(GetSpOperateCtrlRecord, RequestWritesTheGroup) {
    CKRMCGetSpOperateCtrlRecordCmdAdaptDataSnd request;
    request.m_ulEcuId = 1;
    request.m_ushGroupId = 65535;
    ExpectLog(request, {RequestBaseLines(67, 1), R"(
[CKRMCGetSpOperateCtrlRecordCmdAdaptDataSnd::ErrWriteOperationLog] m_ushGroupId=65535
)"});
}

TEST(GetSpOperateCtrlRecord, AnswerWritesEachRecordUnderTheListsName) {
    CKRMCGetSpOperateCtrlRecordCmdAdaptDataRcv answer;
    CKRMCCommandFFDData record;
    record.m_ushId = 11;
    answer.m_cSpOperateList.AddTail(record);
    record.m_ushId = 12;
    answer.m_cSpOperateList.AddTail(record);
    const std::string name = "[CKRMCGetSpOperateCtrlRecordCmdAdaptDataRcv::ErrWriteOperationLog] ";
    ExpectLog(answer, {AnswerBaseLines(67, 0), ItemLines(name + "m_cSpOperateList[0]", 11),
                       ItemLines(name + "m_cSpOperateList[1]", 12)});
}

}  // namespace

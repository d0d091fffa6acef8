#include "krm/messages/diag/translation.h"

#include <gtest/gtest.h>

#include "tests/support/log_text.h"

namespace {

using krm::test::ExpectLog;

TEST(GetTranslationString, RequestWritesALinePerId) {
    CKRMCGetTranslationStringCmdAdaptDataSnd request;
    request.m_ulEcuId = 2016;
    request.m_ulIdList.AddTail(7);
    request.m_ulIdList.AddTail(2147483648U);
    ExpectLog(request, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=55
[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=2016
[CKRMCGetTranslationStringCmdAdaptDataSnd::ErrWriteOperationLog] m_ulIdList[0]=7
[CKRMCGetTranslationStringCmdAdaptDataSnd::ErrWriteOperationLog] m_ulIdList[1]=-2147483648
)"});
}

TEST(GetTranslationString, RequestWithoutIdsWritesTheBaseLinesOnly) {
    CKRMCGetTranslationStringCmdAdaptDataSnd request;
    ExpectLog(request, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=55
[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=0
)"});
}

CKRMCCommandTranslationStringData Translation(krm_ulong id, const char* text) {
    CKRMCCommandTranslationStringData translation;
    translation.m_ulId = id;
    translation.m_strString = text;
    return translation;
}

TEST(GetTranslationString, AnswerWritesIdAndStringOfEachTranslation) {
    CKRMCGetTranslationStringCmdAdaptDataRcv answer;
    answer.m_bNotSupport = true;
    answer.m_cTranslationStringDataList.AddTail(Translation(7, "Ignition"));
    answer.m_cTranslationStringDataList.AddTail(Translation(4294967295U, ""));
    ExpectLog(answer, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=55
[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=1
[CKRMCGetTranslationStringCmdAdaptDataRcv::ErrWriteOperationLog] m_cTranslationStringDataList[0].ID=7
[CKRMCGetTranslationStringCmdAdaptDataRcv::ErrWriteOperationLog] m_cTranslationStringDataList[0].String=Ignition
[CKRMCGetTranslationStringCmdAdaptDataRcv::ErrWriteOperationLog] m_cTranslationStringDataList[1].ID=-1
[CKRMCGetTranslationStringCmdAdaptDataRcv::ErrWriteOperationLog] m_cTranslationStringDataList[1].String=
)"});
}

}  // namespace

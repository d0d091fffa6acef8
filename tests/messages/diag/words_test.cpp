#include "krm/messages/diag/words.h"

#include <gtest/gtest.h>

#include <type_traits>

#include "krm/messages/diag/translation.h"
#include "tests/messages/diag/words_fields.h"
#include "tests/support/log_text.h"
#include "tests/support/value_checks.h"

namespace {

using krm::test::ExpectCopiedIntoLists;
using krm::test::ExpectPlainValue;
using krm::test::ExpectTypeAndId;
using krm::test::Log;
using krm::test::MessageText;
using krm::test::RecordText;

static_assert(!std::is_polymorphic_v<CKRMCCommandTranslationStringData>, "a plain value without a virtual table");
static_assert(std::is_base_of_v<CKRMCBaseCmdAdaptDataSnd, CKRMCGetTranslationStringCmdAdaptDataSnd>);
static_assert(std::is_base_of_v<CKRMCBaseCmdAdaptDataRcv, CKRMCGetTranslationStringCmdAdaptDataRcv>);

CKRMCCommandTranslationStringData Translation(krm_ulong id, const char* text) {
    CKRMCCommandTranslationStringData translation;
    translation.m_ulId = id;
    translation.m_strString = text;
    return translation;
}

TEST(WordsData, IsAPlainValue) {
    ExpectPlainValue<CKRMCCommandWordsData>();
    ExpectCopiedIntoLists<CKRMCCommandWordsData>();
}

TEST(WordsData, WritesTheIdUnsigned) {
    CKRMCCommandWordsData words;
    words.m_ulWordsId = 4294967295U;
    words.m_strWords = "Ignition 100 %";
    EXPECT_EQ(RecordText(words), Log({R"(
P.m_ulWordsId=4294967295
P.m_strWords=Ignition 100 %
)"}));
}

TEST(TranslationStringData, IsAPlainValue) {
    ExpectPlainValue<CKRMCCommandTranslationStringData>();
    ExpectCopiedIntoLists<CKRMCCommandTranslationStringData>();
}

TEST(GetTranslationString, MessagesArePlainValues) {
    ExpectPlainValue<CKRMCGetTranslationStringCmdAdaptDataSnd>();
    ExpectPlainValue<CKRMCGetTranslationStringCmdAdaptDataRcv>();
}

TEST(GetTranslationString, MessagesHaveTypeAndId) {
    ExpectTypeAndId<CKRMCGetTranslationStringCmdAdaptDataSnd>(1, 55);
    ExpectTypeAndId<CKRMCGetTranslationStringCmdAdaptDataRcv>(1, 55);
}

TEST(GetTranslationString, RequestIsForNoEcuWhenNewAndAfterClear) {
    CKRMCGetTranslationStringCmdAdaptDataSnd request;
    EXPECT_EQ(request.GetCommandType(), 1U);
    EXPECT_EQ(request.GetCommandID(), 55U);
    EXPECT_EQ(request.m_ulEcuId, 0U);
    request.m_ulEcuId = 5;
    request.SetCommandType(14);
    request.SetCommandID(2);
    request.Clear();
    EXPECT_EQ(request.GetCommandType(), 1U);
    EXPECT_EQ(request.GetCommandID(), 55U);
    EXPECT_EQ(request.m_ulEcuId, 0U);
}

TEST(GetTranslationString, RequestWritesALinePerId) {
    CKRMCGetTranslationStringCmdAdaptDataSnd request;
    request.m_ulEcuId = 2016;
    request.m_ulIdList.AddTail(7);
    request.m_ulIdList.AddTail(2147483648U);
    EXPECT_EQ(MessageText(request), Log({R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=55
[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=2016
[CKRMCGetTranslationStringCmdAdaptDataSnd::ErrWriteOperationLog] m_ulIdList[0]=7
[CKRMCGetTranslationStringCmdAdaptDataSnd::ErrWriteOperationLog] m_ulIdList[1]=-2147483648
)"}));
}

TEST(GetTranslationString, RequestWithoutIdsWritesTheBaseLinesOnly) {
    CKRMCGetTranslationStringCmdAdaptDataSnd request;
    EXPECT_EQ(MessageText(request), Log({R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=55
[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=0
)"}));
}

TEST(GetTranslationString, AnswerWritesIdAndStringOfEachTranslation) {
    CKRMCGetTranslationStringCmdAdaptDataRcv answer;
    answer.m_bNotSupport = true;
    answer.m_cTranslationStringDataList.AddTail(Translation(7, "Ignition"));
    answer.m_cTranslationStringDataList.AddTail(Translation(4294967295U, ""));
    EXPECT_EQ(MessageText(answer), Log({R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=55
[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=1
[CKRMCGetTranslationStringCmdAdaptDataRcv::ErrWriteOperationLog] m_cTranslationStringDataList[0].ID=7
[CKRMCGetTranslationStringCmdAdaptDataRcv::ErrWriteOperationLog] m_cTranslationStringDataList[0].String=Ignition
[CKRMCGetTranslationStringCmdAdaptDataRcv::ErrWriteOperationLog] m_cTranslationStringDataList[1].ID=-1
[CKRMCGetTranslationStringCmdAdaptDataRcv::ErrWriteOperationLog] m_cTranslationStringDataList[1].String=
)"}));
}

}  // namespace

#include "krm/messages/auxiliary/words_table.h"

#include <gtest/gtest.h>

#include <string>

#include "krm/fields/auxiliary/words_table.h"
#include "tests/support/fields.h"
#include "tests/support/log_text.h"

namespace {

using krm::test::Described;
using krm::test::ExpectLog;
using krm::test::Fill;
using krm::test::Seed;

TEST(WordsTableMessages, CreationLogsElementsInOrderTypeBeforeValue) {
    CKRMCCreateDiagWordsTableDwtAdaptDataSnd message;
    CKRMCDiagWordsTableCreationData creation;
    creation.m_ushIdType = 1;
    creation.m_strValue = "en-GB";
    message.Data.AddTail(creation);
    creation.m_ushIdType = 65535;
    creation.m_strValue = "100 %s";
    message.Data.AddTail(creation);
    ExpectLog(message, {R"(
[CKRMCBaseDwtAdaptData::ErrWriteOperationLog] m_dwCommandType=14
[CKRMCBaseDwtAdaptData::ErrWriteOperationLog] m_dwCommandID=1
[CKRMCCreateDiagWordsTableDwtAdaptDataSnd::ErrWriteOperationLog] Data[0].m_ushIdType=1
[CKRMCCreateDiagWordsTableDwtAdaptDataSnd::ErrWriteOperationLog] Data[0].m_strValue=en-GB
[CKRMCCreateDiagWordsTableDwtAdaptDataSnd::ErrWriteOperationLog] Data[1].m_ushIdType=65535
[CKRMCCreateDiagWordsTableDwtAdaptDataSnd::ErrWriteOperationLog] Data[1].m_strValue=100 %s
)"});
}

TEST(WordsTableMessages, CreatedLogsTypeAndIdOnly) {
    CKRMCCreateDiagWordsTableDwtAdaptDataRcv message;
    ExpectLog(message, {R"(
[CKRMCBaseDwtAdaptData::ErrWriteOperationLog] m_dwCommandType=14
[CKRMCBaseDwtAdaptData::ErrWriteOperationLog] m_dwCommandID=1
)"});
}

TEST(WordsTableMessages, WordIdsAreLoggedOneEach) {
    CKRMCGetTranslationStringDwtAdaptDataSnd message;
    message.m_ulIdList.AddTail(12);
    message.m_ulIdList.AddTail(4294967295U);
    ExpectLog(message, {R"(
[CKRMCBaseDwtAdaptData::ErrWriteOperationLog] m_dwCommandType=14
[CKRMCBaseDwtAdaptData::ErrWriteOperationLog] m_dwCommandID=2
[CKRMCGetTranslationStringDwtAdaptDataSnd::ErrWriteOperationLog] m_ulIdList[0]=12
[CKRMCGetTranslationStringDwtAdaptDataSnd::ErrWriteOperationLog] m_ulIdList[1]=-1
)"});
}

TEST(WordsTableMessages, AnEmptyListOfWordIdsLogsTypeAndIdOnly) {
    CKRMCGetTranslationStringDwtAdaptDataSnd message;
    ExpectLog(message, {R"(
[CKRMCBaseDwtAdaptData::ErrWriteOperationLog] m_dwCommandType=14
[CKRMCBaseDwtAdaptData::ErrWriteOperationLog] m_dwCommandID=2
)"});
}

TEST(WordsTableMessages, TextsAreLoggedAsIdAndString) {
    CKRMCGetTranslationStringDwtAdaptDataRcv message;
    CKRMCDiagWordsTableTranslationStringData translation;
    translation.m_ulId = 12;
    translation.m_strString = "Engine";
    message.m_cTranslationStringDataList.AddTail(translation);
    translation.m_ulId = 2147483648U;
    translation.m_strString = "";
    message.m_cTranslationStringDataList.AddTail(translation);
    ExpectLog(message, {R"(
[CKRMCBaseDwtAdaptData::ErrWriteOperationLog] m_dwCommandType=14
[CKRMCBaseDwtAdaptData::ErrWriteOperationLog] m_dwCommandID=2
[CKRMCGetTranslationStringDwtAdaptDataRcv::ErrWriteOperationLog] m_cTranslationStringDataList[0].ID=12
[CKRMCGetTranslationStringDwtAdaptDataRcv::ErrWriteOperationLog] m_cTranslationStringDataList[0].String=Engine
[CKRMCGetTranslationStringDwtAdaptDataRcv::ErrWriteOperationLog] m_cTranslationStringDataList[1].ID=-2147483648
[CKRMCGetTranslationStringDwtAdaptDataRcv::ErrWriteOperationLog] m_cTranslationStringDataList[1].String=
)"});
}

TEST(WordsTableMessages, ACopyOwnsItsTexts) {
    CKRMCGetTranslationStringDwtAdaptDataRcv source;
    Seed seed(615);
    Fill(source, seed);
    const std::string before = Described(source);
    CKRMCGetTranslationStringDwtAdaptDataRcv copy(source);
    EXPECT_EQ(Described(copy), before);
    copy.m_cTranslationStringDataList[0].m_strString += " changed";
    copy.m_cTranslationStringDataList.RemoveAt(1);
    EXPECT_EQ(Described(source), before);
}

}  // namespace

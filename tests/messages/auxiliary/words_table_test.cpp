#include "krm/messages/auxiliary/words_table.h"

#include <gmock/gmock.h>

#include <type_traits>

#include "tests/messages/auxiliary/words_table_fields.h"
#include "tests/support/fields.h"
#include "tests/support/log_capture.h"

namespace {

using krm::test::Described;
using krm::test::Fill;
using krm::test::IsZero;
using krm::test::MessageLines;
using krm::test::Seed;
using testing::ElementsAre;

// A pointer to the virtual table, then the fields: the destructor is the only virtual operation, and there is no base.
struct OnlyAVirtualDestructor {
    virtual ~OnlyAVirtualDestructor() = default;
    unsigned short number;
    CKRMString text;
};
static_assert(std::has_virtual_destructor_v<CKRMCDiagWordsTableCreationData> &&
              sizeof(CKRMCDiagWordsTableCreationData) == sizeof(OnlyAVirtualDestructor));
static_assert(std::has_virtual_destructor_v<CKRMCDiagWordsTableTranslationStringData> &&
              sizeof(CKRMCDiagWordsTableTranslationStringData) == sizeof(OnlyAVirtualDestructor));

template <class T>
class WordsTable : public testing::Test {};
using Classes = testing::Types<CKRMCDiagWordsTableCreationData, CKRMCDiagWordsTableTranslationStringData,
                               CKRMCCreateDiagWordsTableDwtAdaptDataSnd, CKRMCCreateDiagWordsTableDwtAdaptDataRcv,
                               CKRMCGetTranslationStringDwtAdaptDataSnd, CKRMCGetTranslationStringDwtAdaptDataRcv>;
TYPED_TEST_SUITE(WordsTable, Classes);

TYPED_TEST(WordsTable, StartsEmptyAndReturnsThereByClear) {
    TypeParam it;
    const std::string fresh = Described(it);
    EXPECT_TRUE(IsZero(it)) << fresh;
    Seed seed(614);
    Fill(it, seed);
    it.Clear();
    EXPECT_EQ(Described(it), fresh);
}

// Messages of this family are constructed without their Clear; type, ID and lists must be right all the same.
template <class Message>
void ExpectTypeAndId(krm_ulong id) {
    Message message;
    EXPECT_EQ(message.GetCommandType(), 14U);
    EXPECT_EQ(message.GetCommandID(), id);
    message.SetCommandType(0);
    message.SetCommandID(99);
    message.Clear();
    EXPECT_EQ(message.GetCommandType(), 14U);
    EXPECT_EQ(message.GetCommandID(), id);
}

TEST(WordsTableMessages, HaveTypeAndIdFromTheStartAndAfterClear) {
    ExpectTypeAndId<CKRMCCreateDiagWordsTableDwtAdaptDataSnd>(1);
    ExpectTypeAndId<CKRMCCreateDiagWordsTableDwtAdaptDataRcv>(1);
    ExpectTypeAndId<CKRMCGetTranslationStringDwtAdaptDataSnd>(2);
    ExpectTypeAndId<CKRMCGetTranslationStringDwtAdaptDataRcv>(2);
}

TEST(WordsTableMessages, CreationLogsElementsInOrderTypeBeforeValue) {
    CKRMCCreateDiagWordsTableDwtAdaptDataSnd message;
    CKRMCDiagWordsTableCreationData creation;
    creation.m_ushIdType = 1;
    creation.m_strValue = "en-GB";
    message.Data.AddTail(creation);
    creation.m_ushIdType = 65535;
    creation.m_strValue = "100 %s";
    message.Data.AddTail(creation);
    EXPECT_THAT(
        MessageLines(message),
        ElementsAre("[CKRMCBaseDwtAdaptData::ErrWriteOperationLog] m_dwCommandType=14",
                    "[CKRMCBaseDwtAdaptData::ErrWriteOperationLog] m_dwCommandID=1",
                    "[CKRMCCreateDiagWordsTableDwtAdaptDataSnd::ErrWriteOperationLog] Data[0].m_ushIdType=1",
                    "[CKRMCCreateDiagWordsTableDwtAdaptDataSnd::ErrWriteOperationLog] Data[0].m_strValue=en-GB",
                    "[CKRMCCreateDiagWordsTableDwtAdaptDataSnd::ErrWriteOperationLog] Data[1].m_ushIdType=65535",
                    "[CKRMCCreateDiagWordsTableDwtAdaptDataSnd::ErrWriteOperationLog] Data[1].m_strValue=100 %s"));
}

TEST(WordsTableMessages, CreatedLogsTypeAndIdOnly) {
    CKRMCCreateDiagWordsTableDwtAdaptDataRcv message;
    EXPECT_THAT(MessageLines(message), ElementsAre("[CKRMCBaseDwtAdaptData::ErrWriteOperationLog] m_dwCommandType=14",
                                                   "[CKRMCBaseDwtAdaptData::ErrWriteOperationLog] m_dwCommandID=1"));
}

TEST(WordsTableMessages, WordIdsAreLoggedOneEach) {
    CKRMCGetTranslationStringDwtAdaptDataSnd message;
    message.m_ulIdList.AddTail(12);
    message.m_ulIdList.AddTail(4294967295U);
    EXPECT_THAT(MessageLines(message),
                ElementsAre("[CKRMCBaseDwtAdaptData::ErrWriteOperationLog] m_dwCommandType=14",
                            "[CKRMCBaseDwtAdaptData::ErrWriteOperationLog] m_dwCommandID=2",
                            "[CKRMCGetTranslationStringDwtAdaptDataSnd::ErrWriteOperationLog] m_ulIdList[0]=12",
                            "[CKRMCGetTranslationStringDwtAdaptDataSnd::ErrWriteOperationLog] m_ulIdList[1]=-1"));
}

TEST(WordsTableMessages, AnEmptyListOfWordIdsLogsTypeAndIdOnly) {
    CKRMCGetTranslationStringDwtAdaptDataSnd message;
    EXPECT_THAT(MessageLines(message), ElementsAre("[CKRMCBaseDwtAdaptData::ErrWriteOperationLog] m_dwCommandType=14",
                                                   "[CKRMCBaseDwtAdaptData::ErrWriteOperationLog] m_dwCommandID=2"));
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
    EXPECT_THAT(
        MessageLines(message),
        ElementsAre(
            "[CKRMCBaseDwtAdaptData::ErrWriteOperationLog] m_dwCommandType=14",
            "[CKRMCBaseDwtAdaptData::ErrWriteOperationLog] m_dwCommandID=2",
            "[CKRMCGetTranslationStringDwtAdaptDataRcv::ErrWriteOperationLog] m_cTranslationStringDataList[0].ID=12",
            "[CKRMCGetTranslationStringDwtAdaptDataRcv::ErrWriteOperationLog] m_cTranslationStringDataList[0].String=Engine",
            "[CKRMCGetTranslationStringDwtAdaptDataRcv::ErrWriteOperationLog] m_cTranslationStringDataList[1].ID=-2147483648",
            "[CKRMCGetTranslationStringDwtAdaptDataRcv::ErrWriteOperationLog] m_cTranslationStringDataList[1].String="));
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

// That the other platform is another one, and that the library is built on it: else the suites that pass would show
// nothing.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <type_traits>
#include <utility>

#include "krm/adaptation_data.h"

namespace {

using ::testing::ElementsAre;

static_assert(sizeof(CKRMString) == 2 * sizeof(void*), "a text pointer and a length, and no room for a text");
static_assert(std::is_same_v<CKRMMap<CKRMString, CKRMString>::iterator::difference_type, std::ptrdiff_t>);

TEST(OtherPlatform, AStringIsTheTextPointerAndTheLength) {
    const CKRMString text("a text");
    const char* pointer = nullptr;
    std::size_t length = 0;
    std::memcpy(&pointer, &text, sizeof pointer);
    std::memcpy(&length, reinterpret_cast<const char*>(&text) + sizeof pointer, sizeof length);
    EXPECT_EQ(pointer, text.GetText());
    EXPECT_EQ(length, 6U);
}

TEST(OtherPlatform, TheLogIsKeptInMemory) {
    other_platform::TakeLog();
    CKRMCCommandWordsData words;
    words.m_strWords = "Kühlmittel";
    words.ErrWriteOperationLogStructure("%s", "P");
    EXPECT_THAT(other_platform::TakeLog(), ElementsAre("P.m_ulWordsId=0", "P.m_strWords=Kühlmittel"));
    EXPECT_THAT(other_platform::TakeLog(), ElementsAre());
}

TEST(OtherPlatform, AMessageStartsClearedAllTheSame) {
    const CKRMBaseAdaptationData imported;
    EXPECT_EQ(imported.GetCommandType(), 0xFEEDU);
    EXPECT_EQ(imported.GetCommandID(), 0xBEEFU);
    const CKRMCBaseCmdAdaptDataSnd request;
    EXPECT_EQ(request.GetCommandType(), 1U);
    EXPECT_EQ(request.GetCommandID(), 0U);
}

TEST(OtherPlatform, TheWordsTableBaseStartsAsImportedUntilItIsCleared) {
    CKRMCBaseDwtAdaptDataSnd request;
    EXPECT_EQ(request.GetCommandType(), 14U);
    EXPECT_EQ(request.GetCommandID(), 0xBEEFU);
    request.Clear();
    EXPECT_EQ(request.GetCommandType(), 14U);
    EXPECT_EQ(request.GetCommandID(), 0U);
}

TEST(OtherPlatform, TheErrorObjectIsReachedThroughItsOwnOperations) {
    CKRMCElement root("Root");
    CKRMError error;
    EXPECT_EQ(root.CreateElement(&error, nullptr), nullptr);
    EXPECT_NE(error.GetErrorCode(), 0U);
    EXPECT_NE(error.a_ulTimesSet, 0U);
}

}  // namespace

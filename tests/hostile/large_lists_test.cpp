// Lists of a million records: copied, dumped and cleared with one block of memory per element and in linear time.
#include <gtest/gtest.h>

#include <string>

#include "krm/messages/diag/translation.h"
#include "krm/messages/diag/trouble_codes.h"
#include "krm/messages/diag/words.h"
#include "tests/support/failing_allocation.h"
#include "tests/support/log_sink.h"
#include "tests/support/not_under.h"

namespace krm::test {
namespace {

constexpr int kMillion = 1'000'000;

#if defined(_WIN32)
constexpr bool kCountsBlocks = false;  // a DLL allocates with an operator new of its own
#else
constexpr bool kCountsBlocks = true;
#endif

void ExpectBlocks(long before, long expected) {
    if (kCountsBlocks) {
        EXPECT_EQ(LivingBlocks() - before, expected);
    }
}

/// Counts lines and bytes instead of keeping them, and keeps the last line.
class CountingLog {
public:
    CountingLog() { SetLogSink(&Write, this); }
    ~CountingLog() { SetLogSink(nullptr, nullptr); }
    CountingLog(const CountingLog&) = delete;
    CountingLog& operator=(const CountingLog&) = delete;

    int lines = 0;
    std::string last;

private:
    static krm_long Write(void* context, const char* text, krm_ulong textLength, int, int) {
        auto& self = *static_cast<CountingLog*>(context);
        ++self.lines;
        self.last.assign(text, textLength);
        return 0;
    }
};

TEST(AMillion, RecordsInAMessage) {
    KRM_NOT_UNDER(Memcheck, "it would take hours at this size");
    const long before = LivingBlocks();
    {
        CKRMCGetEOPInspectionResultMessageCmdAdaptDataRcv message;
        CKRMCCommandWordsData words;
        for (int i = 0; i < kMillion; ++i) {
            words.m_ulWordsId = static_cast<krm_ulong>(i);
            message.Data.AddTail(words);
        }
        ExpectBlocks(before, kMillion);

        CKRMCGetEOPInspectionResultMessageCmdAdaptDataRcv copy(message);
        ExpectBlocks(before, 2 * kMillion);
        EXPECT_EQ(copy.Data.GetCount(), kMillion);
        krm_ulong expected = 0;
        for (const CKRMCCommandWordsData& each : copy.Data) {
            ASSERT_EQ(each.m_ulWordsId, expected++);
        }
        copy = message;  // frees what it held before
        ExpectBlocks(before, 2 * kMillion);

        {
            CountingLog log;
            EXPECT_EQ(message.ErrWriteOperationLog(), 0);
            EXPECT_EQ(log.lines, 2 * kMillion + 3);
            EXPECT_NE(log.last.find("[999999].m_strWords="), std::string::npos) << log.last;
        }
        message.Clear();
        EXPECT_EQ(message.Data.GetCount(), 0);
        EXPECT_EQ(copy.Data.GetCount(), kMillion);
        ExpectBlocks(before, kMillion);
        copy.Data.RemoveAll();
        ExpectBlocks(before, 0);
    }
    ExpectBlocks(before, 0);
}

TEST(AMillion, NumbersInAMessage) {
    KRM_NOT_UNDER(Memcheck, "it would take hours at this size");
    const long before = LivingBlocks();
    CKRMCGetTranslationStringCmdAdaptDataSnd message;
    for (krm_ulong i = 0; i < kMillion; ++i) {
        message.m_ulIdList.AddTail(i);
    }
    const CKRMCGetTranslationStringCmdAdaptDataSnd copy(message);
    ExpectBlocks(before, 2 * kMillion);
    {
        CountingLog log;
        message.ErrWriteOperationLog();
        EXPECT_EQ(log.lines, kMillion + 3);
        EXPECT_NE(log.last.find("[999999]=999999"), std::string::npos) << log.last;
    }
    message.Clear();
    ExpectBlocks(before, kMillion);
    EXPECT_EQ(copy.m_ulIdList.GetCount(), kMillion);
}

TEST(AMillion, ElementsTakenOffOneByOne) {
    KRM_NOT_UNDER(Memcheck, "it would take hours at this size");
    const long before = LivingBlocks();
    CKRMList<CKRMCCommandWordsData> list;
    for (int i = 0; i < kMillion; ++i) {
        list.InsertAt(0, CKRMCCommandWordsData());
    }
    CKRMList<CKRMCCommandWordsData> joined;
    joined.AddTail(&list);
    joined.AddTail(&list);
    EXPECT_EQ(joined.GetCount(), 2 * kMillion);
    for (int i = 0; i < kMillion; ++i) {
        list.RemoveAt(0);
    }
    EXPECT_EQ(list.GetCount(), 0);
    EXPECT_EQ(list.GetHeadPosition(), nullptr);
    EXPECT_EQ(list.GetTailPosition(), nullptr);
    ExpectBlocks(before, 2 * kMillion);
    list = joined;
    joined = CKRMList<CKRMCCommandWordsData>();
    EXPECT_EQ(list.GetCount(), 2 * kMillion);
    list.RemoveAll();
    ExpectBlocks(before, 0);
}

}  // namespace
}  // namespace krm::test

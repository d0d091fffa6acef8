// Memory that runs out, at each allocation of an operation in turn: what reports it reports it, what lets std::bad_alloc
// pass leaves its arguments sound, and nothing leaks.
#include <gtest/gtest.h>

#include <new>
#include <set>
#include <string>

#include "krm/messages/auxiliary/viewer.h"
#include "krm/messages/diag/display.h"
#include "krm/messages/diag/trouble_code.h"
#include "krm/messages/diag/trouble_codes.h"
#include "krm/messages/diag/words.h"
#include "krm/tree/element.h"
#include "krm/tree/element_group.h"
#include "tests/support/converters.h"
#include "tests/support/failing_allocation.h"
#include "tests/support/log_sink.h"

namespace krm::test {
namespace {

constexpr const char* kLong = "a text that is longer than what a string holds without memory of its own";

class OutOfMemory : public ::testing::Test {
protected:
    void SetUp() override { KRM_SKIP_WITHOUT_FAILING_ALLOCATIONS(); }

    /// Calls `operation` with its first allocation failing, then its second, and so on until it succeeds; after each
    /// failure calls `check`. Returns the number of failures.
    template <class Operation, class Check>
    static int FailEach(Operation operation, Check check) {
        constexpr int kMost = 10000;
        for (int successes = 0; successes < kMost; ++successes) {
            const long before = LivingBlocks();
            bool failed = false;
            try {
                const FailAllocations failing(successes);
                operation();
            } catch (const std::bad_alloc&) {
                failed = true;
            }
            if (!failed) {
                return successes;
            }
            EXPECT_EQ(LivingBlocks(), before) << "leaked after " << successes << " allocations";
            check();
        }
        ADD_FAILURE() << "fails without end";
        return kMost;
    }
    template <class Operation>
    static int FailEach(Operation operation) {
        return FailEach(operation, [] {});
    }
};

krm_long IgnoreLine(void*, const char*, krm_ulong, int, int) {
    return 0;
}

TEST_F(OutOfMemory, TheFactoryGivesNull) {
    for (int code = 0; code <= 255; ++code) {
        const long before = LivingBlocks();
        CKRMCCommandConvSignalData* converter = nullptr;
        {
            const FailAllocations failing(0);
            converter = CKRMCCommandConvSignalData::CreateConverter(static_cast<unsigned char>(code));
        }
        EXPECT_EQ(converter, nullptr) << code;
        EXPECT_EQ(LivingBlocks(), before);
    }
}

TEST_F(OutOfMemory, AConverterWithoutItsLocaleGivesSubstitutes) {
    constexpr krm_ulong kSevenPast = 0x0D071E00;
    constexpr krm_ulong kLastOf2023 = 0x07E70C1F;
    const long before = LivingBlocks();
    for (const int code : {105, 106}) {
        for (const int successes : {1, 2}) {  // the converter itself, then its locale, then what counts its owners
            CKRMCCommandConvSignalData* created = nullptr;
            {
                const FailAllocations failing(successes);
                created = CKRMCCommandConvSignalData::CreateConverter(static_cast<unsigned char>(code));
            }
            ASSERT_NE(created, nullptr);
            const ConverterPtr converter(created);
            CKRMCCommandDispData record;
            EXPECT_EQ(Arguments({}).Raw(*converter, &record, code == 105 ? kLastOf2023 : kSevenPast), 0U);
            EXPECT_STREQ(record.m_strDataPhys.GetText(), code == 105 ? "-" : "") << successes;
        }
    }
    EXPECT_EQ(LivingBlocks(), before);
}

// Of these converters every text fits into a string without memory of its own, where the platform's strings have such room.
const std::set<int> kWithShortTexts = {5, 15, 16, 19, 105, 106, 107, 108, 109, 111, 113, 115};

TEST_F(OutOfMemory, ConvertersLeaveTheRecordSound) {
    const bool shortTextsNeedMemory = FailEach([] { const CKRMString text("x"); }) > 0;
    Arguments arguments({.bits = 255, .decimals = 200, .patterns = {{1, kLong, 1}}, .defaultText = kLong});
    const unsigned char bytes[40] = {'A'};
    for (const int code : AllCodes()) {
        const ConverterPtr converter = Create(code);
        for (const krm_ulong raw : {1U, 2U}) {
            CKRMCCommandDispData record;
            FailEach([&] {
                CKRMCCommandDispData once;
                arguments.Raw(*converter, &once, raw);
            });
            FailEach([&] {
                CKRMCCommandDispData once;
                arguments.Variable(*converter, &once, raw);
            });
            const auto unchanged = [&record] { EXPECT_STREQ(record.m_strDataPhys.GetText(), ""); };
            const int failures = FailEach([&] { arguments.Raw(*converter, &record, raw); }, unchanged);
            const bool needsMemory = shortTextsNeedMemory ? code != 113 : kWithShortTexts.count(code) == 0;
            EXPECT_EQ(failures > 0, needsMemory) << code;
            EXPECT_EQ(arguments.Raw(*converter, &record, raw), code == 113 ? kFailed : 0U);
        }
        FailEach([&] {
            CKRMCCommandDispData once;
            converter->ConvCommandDispData(&once, bytes, sizeof bytes, 0, 8, 1, 1, 0, 0, 0, 0, nullptr);
        });
    }
}

TEST_F(OutOfMemory, ListsKeepWhatTheyHave) {
    CKRMList<CKRMCCommandWordsData> list;
    CKRMCCommandWordsData words;
    words.m_strWords = kLong;
    const auto isWhole = [&list](int count) {
        int seen = 0;
        for (const CKRMCCommandWordsData& each : list) {
            EXPECT_STREQ(each.m_strWords.GetText(), kLong);
            ++seen;
        }
        EXPECT_EQ(seen, count);
        EXPECT_EQ(list.GetCount(), count);
    };
    // A node and its text each.
    EXPECT_EQ(FailEach([&] { list.AddTail(words); }, [&] { isWhole(0); }), 2);
    EXPECT_EQ(FailEach([&] { list.AddTail(words); }, [&] { isWhole(1); }), 2);
    EXPECT_EQ(FailEach([&] { list.InsertAt(0, words); }, [&] { isWhole(2); }), 2);
    EXPECT_EQ(FailEach([&] { list.InsertAt(1, words); }, [&] { isWhole(3); }), 2);
    isWhole(4);
    EXPECT_EQ(FailEach([&] { const CKRMList<CKRMCCommandWordsData> copy(list); }, [&] { isWhole(4); }), 8);
    EXPECT_EQ(FailEach(
                  [&] {
                      CKRMList<CKRMCCommandWordsData> copy;
                      copy = list;
                  },
                  [&] { isWhole(4); }),
              8);
}

TEST_F(OutOfMemory, RecordsAndMessages) {
    CKRMCGetDTCCmdAdaptDataRcv message;
    CKRMCCommandDTCData code;
    CKRMCCommandWordsData words;
    words.m_strWords = kLong;
    message.Data.AddTail(code);
    message.Data.AddTail(code);
    EXPECT_EQ(FailEach([&] { const CKRMCCommandWordsData copy(words); }), 1);
    EXPECT_GE(FailEach([&] { const CKRMCGetDTCCmdAdaptDataRcv copy(message); }), 2);
    SetLogSink(&IgnoreLine, nullptr);
    const std::string prefix(1000, 'p');  // lines of usual length may need no memory of their own
    EXPECT_GT(FailEach([&] { words.ErrWriteOperationLogStructure("%s", prefix.c_str()); }), 2);
    EXPECT_GT(FailEach([&] { message.ErrWriteOperationLog(); }), 2);
    SetLogSink(nullptr, nullptr);
    EXPECT_EQ(message.Data.GetCount(), 2);
    EXPECT_EQ(FailEach([&] { message.Clear(); }), 0);
    EXPECT_EQ(FailEach([&] { words.Clear(); }), 0);
}

TEST_F(OutOfMemory, StringsKeepTheirText) {
    CKRMString text = kLong;
    const std::string doubled = std::string(kLong) + kLong;
    const auto isWhole = [&text] { EXPECT_STREQ(text.GetText(), kLong); };
    EXPECT_EQ(FailEach([&] { const CKRMString copy(text); }), 1);
    EXPECT_GE(FailEach([&] { CKRMString(text) += kLong; }), 2);
    EXPECT_GE(FailEach([&] { text = doubled.c_str(); }, isWhole), 1);
    text = kLong;
    EXPECT_GE(FailEach([&] { CKRMString(text).Format("%s%s", kLong, kLong); }), 2);
    text = CKRMString(kLong);  // with no more room than it needs
    EXPECT_GE(FailEach([&] { text.Format("%s%s", kLong, kLong); }, isWhole), 1);
    EXPECT_EQ(std::string(text.GetText()), doubled);
}

TEST_F(OutOfMemory, ATreeIsDescribedTheNextTime) {
    CKRMError error;
    CKRMCElement root(kLong);
    for (int i = 0; i < 5; ++i) {
        CKRMCElement* const child = root.CreateElement(&error, kLong);
        ASSERT_NE(child, nullptr);
        ASSERT_TRUE(child->CreateAttribute(&error, "A")->SetValue(&error, kLong));
        ASSERT_TRUE(child->CreateAttribute(&error, "B")->SetValue(&error, 0.1));
    }
    CKRMString whole;
    root.Description(whole);
    EXPECT_GT(FailEach(
                  [&] {
                      CKRMString text;
                      root.Description(text);
                  },
                  [&] {
                      CKRMString again;
                      root.Description(again);
                      EXPECT_STREQ(again.GetText(), whole.GetText());
                  }),
              3);
    // Looking up, comparing, removing and destroying need no memory.
    CKRMCAttribute wanted("B", 0.1);
    EXPECT_EQ(FailEach([&] {
                  root.GetElementByAttribute(nullptr, kLong, &wanted);
                  root.GetFirstElement(&error, kLong)->GetAttribute(&error, "A");
                  root.RemoveAttribute(nullptr, &wanted);
                  root.RemoveAll();
              }),
              0);
}

TEST_F(OutOfMemory, NodesWhoseNameCannotBeCopied) {
    EXPECT_EQ(FailEach([] { const CKRMCNode node(1, kLong); }), 1);
    EXPECT_EQ(FailEach([] { const CKRMCAttribute node(kLong); }), 1);
    EXPECT_EQ(FailEach([] { const CKRMCElement node(kLong); }), 1);
    EXPECT_EQ(FailEach([] { const CKRMCElementGroup node(kLong); }), 1);
}

TEST_F(OutOfMemory, ListsOfPlainStructures) {
    CKRMList<CKRMCDbHelpInfo> list;
    CKRMCDbHelpInfo help;
    help.m_strHelpInfo = kLong;
    EXPECT_EQ(FailEach([&] { list.AddTail(help); }, [&] { EXPECT_EQ(list.GetHeadPosition(), nullptr); }), 2);
    EXPECT_EQ(FailEach([&] { list.InsertAt(0, help); }, [&] { EXPECT_EQ(list.GetCount(), 1); }), 2);
    CKRMList<CKRMCDbHelpInfo> joined;
    bool failed = false;
    try {
        const FailAllocations failing(3);
        joined.AddTail(&list);
    } catch (const std::bad_alloc&) {
        failed = true;
    }
    EXPECT_TRUE(failed);
    ASSERT_EQ(joined.GetCount(), 1);  // what was appended before stays
    EXPECT_EQ(joined.GetHeadPosition(), joined.GetTailPosition());
    EXPECT_STREQ(joined.GetAt(0).m_strHelpInfo.GetText(), kLong);
    EXPECT_EQ(list.GetCount(), 2);
}

}  // namespace
}  // namespace krm::test

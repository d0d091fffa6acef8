#include <gtest/gtest.h>

#include <cstdarg>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <type_traits>
#include <utility>

#include "krm/platform/platform.h"

namespace {

constexpr std::size_t kMegabyte = 1024 * 1024;

/// Calls FormatV as a caller with arguments of its own does.
void FormatThroughV(CKRMString& out, const char* format, ...) KRM_PRINTF_LIKE(2, 3);
void FormatThroughV(CKRMString& out, const char* format, ...) {
    std::va_list arguments;
    va_start(arguments, format);
    out.FormatV(format, arguments);
    va_end(arguments);
}

TEST(StringTest, IsEmptyWhenNew) {
    const CKRMString text;
    EXPECT_STREQ(text.GetText(), "");
    EXPECT_EQ(text.GetLength(), 0U);
}

TEST(StringTest, NullTextIsEmpty) {
    const char* const null = nullptr;
    CKRMString text(null);
    EXPECT_STREQ(text.GetText(), "");
    EXPECT_EQ(text.GetLength(), 0U);
    text = "something";
    text = null;
    EXPECT_STREQ(text.GetText(), "");
    text = "something";
    text += null;
    text.Combine(null);
    EXPECT_STREQ(text.GetText(), "something");
    text.Copy(null);
    EXPECT_STREQ(text.GetText(), "");
    EXPECT_EQ(text.Compare(null), 0);
}

TEST(StringTest, ConstructsFromTextAndString) {
    const CKRMString text("abc");
    const CKRMString copy(text);
    EXPECT_STREQ(copy.GetText(), "abc");
    EXPECT_EQ(copy.GetLength(), 3U);
    EXPECT_NE(copy.GetText(), text.GetText());
}

TEST(StringTest, AssignsTextAndString) {
    CKRMString text("before");
    EXPECT_EQ(&(text = "abc"), &text);
    EXPECT_STREQ(text.GetText(), "abc");
    const CKRMString other("other");
    EXPECT_EQ(&(text = other), &text);
    EXPECT_STREQ(text.GetText(), "other");
    EXPECT_STREQ(other.GetText(), "other");
    text = "";
    EXPECT_EQ(text.GetLength(), 0U);
}

TEST(StringTest, CopyReplacesAsAssignmentDoes) {
    CKRMString text("before");
    EXPECT_EQ(&text.Copy("abc"), &text);
    EXPECT_STREQ(text.GetText(), "abc");
    EXPECT_EQ(&text.Copy(CKRMString("other")), &text);
    EXPECT_STREQ(text.GetText(), "other");
}

TEST(StringTest, AppendsTextAndString) {
    CKRMString text("a");
    EXPECT_EQ(&(text += "b"), &text);
    EXPECT_EQ(&(text += CKRMString("c")), &text);
    EXPECT_EQ(&text.Combine("d"), &text);
    EXPECT_EQ(&text.Combine(CKRMString("e")), &text);
    EXPECT_STREQ(text.GetText(), "abcde");
    EXPECT_EQ(text.GetLength(), 5U);
    text += "";
    EXPECT_STREQ(text.GetText(), "abcde");
}

TEST(StringTest, CopiesAreDeep) {
    CKRMString text("a text that is too long to lie in the object itself");
    const CKRMString copy(text);
    CKRMString assigned;
    assigned = text;
    text += "!";
    EXPECT_STREQ(copy.GetText(), "a text that is too long to lie in the object itself");
    EXPECT_STREQ(assigned.GetText(), copy.GetText());
}

TEST(StringTest, MovedFromStringIsUsable) {
    CKRMString text("a text that is too long to lie in the object itself");
    const CKRMString moved(std::move(text));
    EXPECT_STREQ(moved.GetText(), "a text that is too long to lie in the object itself");
    text = "again";  // NOLINT: it may be assigned to
    EXPECT_STREQ(text.GetText(), "again");
}

TEST(StringTest, CompareIsZeroForEqualAndTellsTheOrder) {
    EXPECT_EQ(CKRMString("abc").Compare("abc"), 0);
    EXPECT_EQ(CKRMString().Compare(""), 0);
    EXPECT_LT(CKRMString("abc").Compare("abd"), 0);
    EXPECT_GT(CKRMString("abd").Compare("abc"), 0);
    EXPECT_LT(CKRMString("ab").Compare("abc"), 0);
    EXPECT_GT(CKRMString("abc").Compare("ab"), 0);
    EXPECT_GT(CKRMString("abc").Compare(nullptr), 0);
    // Bytes, not characters of some locale: 0xC4 comes behind 'z'.
    EXPECT_GT(CKRMString("\xC4").Compare("z"), 0);
    EXPECT_NE(CKRMString("a").Compare("A"), 0);
}

TEST(StringTest, EmptyMakesEmpty) {
    CKRMString text("abc");
    text.Empty();
    EXPECT_STREQ(text.GetText(), "");
    EXPECT_EQ(text.GetLength(), 0U);
    text.Empty();
    EXPECT_EQ(text.GetLength(), 0U);
}

TEST(StringTest, HoldsAMegabyte) {
    const std::string large(kMegabyte, 'x');
    CKRMString text(large.c_str());
    EXPECT_EQ(text.GetLength(), kMegabyte);
    EXPECT_EQ(text.GetText(), large);
    text += text;
    EXPECT_EQ(text.GetLength(), 2 * kMegabyte);
    const CKRMString copy(text);
    EXPECT_EQ(copy.Compare(text.GetText()), 0);
    text.Format("[%s]", copy.GetText());
    EXPECT_EQ(text.GetText(), '[' + large + large + ']');
}

TEST(StringTest, TakesItsOwnText) {
    CKRMString text("abc");
    text += text;
    EXPECT_STREQ(text.GetText(), "abcabc");
    text += text.GetText();
    EXPECT_STREQ(text.GetText(), "abcabcabcabc");
    text.Combine(text);
    EXPECT_EQ(text.GetLength(), 24U);
    text = text.GetText() + 18;
    EXPECT_STREQ(text.GetText(), "abcabc");
    const CKRMString& same = text;
    text = same;
    EXPECT_STREQ(text.GetText(), "abcabc");
    text.Copy(text.GetText() + 3);
    EXPECT_STREQ(text.GetText(), "abc");
    EXPECT_EQ(text.Compare(text.GetText()), 0);
}

TEST(StringTest, FormatTakesItsOwnText) {
    CKRMString text("abc");
    text.Format("%s%s", text.GetText(), text.GetText());
    EXPECT_STREQ(text.GetText(), "abcabc");
    text.Format("<%s>", text.GetText());
    EXPECT_STREQ(text.GetText(), "<abcabc>");
    // Even the format may be the string's own.
    text = "%d+%d";
    text.Format(text.GetText(), 1, 2);  // NOLINT
    EXPECT_STREQ(text.GetText(), "1+2");
}

TEST(StringTest, FormatReplacesTheText) {
    CKRMString text("before");
    text.Format("%s.m_ulEcuId=%d", "P", -5);
    EXPECT_STREQ(text.GetText(), "P.m_ulEcuId=-5");
    EXPECT_EQ(text.GetLength(), 14U);
    const std::string empty;
    text.Format(empty.c_str(), 0);  // not a literal: compilers warn of an empty one
    EXPECT_STREQ(text.GetText(), "");
}

TEST(StringTest, NullFormatIsEmpty) {
    CKRMString text("before");
    const char* const null = nullptr;
    text.Format(null);  // NOLINT
    EXPECT_STREQ(text.GetText(), "");
}

TEST(StringTest, PercentInAnArgumentIsText) {
    CKRMString text;
    text.Format("%s=%s", "100%d", "%s%n%%");
    EXPECT_STREQ(text.GetText(), "100%d=%s%n%%");
}

TEST(StringTest, FormatVKeepsALineOfAnyLength) {
    const std::string large(100'000, 'y');
    CKRMString text;
    FormatThroughV(text, "%s.m_strEcuName=%s", "P", large.c_str());
    EXPECT_EQ(text.GetText(), "P.m_strEcuName=" + large);
    EXPECT_EQ(text.GetLength(), large.size() + 15);
}

TEST(StringTest, FormatVLeavesTheArgumentsToTheCaller) {
    struct Twice {
        static void Format(CKRMString& first, CKRMString& second, const char* format, ...) {
            std::va_list arguments;
            va_start(arguments, format);
            std::va_list again;
            va_copy(again, arguments);
            first.FormatV(format, arguments);
            second.FormatV(format, again);
            va_end(again);
            va_end(arguments);
        }
    };
    CKRMString first;
    CKRMString second;
    Twice::Format(first, second, "%d %s %lf", 1, "two", 3.0);
    EXPECT_STREQ(first.GetText(), "1 two 3.000000");
    EXPECT_STREQ(second.GetText(), "1 two 3.000000");
}

#if defined(__GLIBCXX__)
TEST(StringTest, FirstWordIsTheTextSecondTheLength) {
    for (const char* content : {"", "short", "a text that is too long to lie in the object itself"}) {
        const CKRMString text(content);
        static_assert(sizeof text >= 2 * sizeof(void*));
        const char* first = nullptr;
        std::size_t second = 0;
        std::memcpy(&first, static_cast<const void*>(&text), sizeof first);
        std::memcpy(&second, reinterpret_cast<const unsigned char*>(&text) + sizeof first, sizeof second);
        EXPECT_EQ(first, text.GetText());
        EXPECT_EQ(second, std::strlen(content));
    }
}
#endif

static_assert(std::is_same_v<decltype(std::declval<const CKRMString&>().GetText()), const char*>);
static_assert(std::is_same_v<decltype(std::declval<const CKRMString&>().GetLength()), krm_ulong>);
static_assert(std::is_same_v<decltype(&CKRMString::Compare), int (CKRMString::*)(const char*) const>);
static_assert(sizeof(krm_ulong) == 4 && sizeof(krm_long) == 4 && sizeof(krm_int64) == 8);
static_assert(std::is_unsigned_v<krm_ulong> && std::is_signed_v<krm_long> && std::is_signed_v<krm_int64>);
// The interface's own type wherever that has 32 bits.
static_assert(sizeof(unsigned long) != 4 ||
              (std::is_same_v<krm_ulong, unsigned long> && std::is_same_v<krm_long, long>));
static_assert(sizeof(unsigned long) == 4 ||
              (std::is_same_v<krm_ulong, std::uint32_t> && std::is_same_v<krm_long, std::int32_t>));

}  // namespace

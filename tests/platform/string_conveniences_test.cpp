// What stands beside CKRMString: comparison, hashing, streams, concatenation, conversion.
#include "krm/platform/string.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <compare>
#include <cstddef>
#include <cstdio>
#include <functional>
#include <iomanip>
#include <map>
#include <sstream>
#include <string>
#include <string_view>
#include <type_traits>
#include <unordered_map>
#include <utility>
#include <vector>

#include "krm/core/types.h"
#include "krm/platform/platform.h"

namespace {

using ::testing::ElementsAre;
using namespace std::string_literals;
using namespace std::string_view_literals;

/// A string with a NUL in the middle: "a", NUL, "b".
CKRMString WithNul() {
    CKRMString text;
    text.Format("a%cb", 0);
    return text;
}

/// One comparison in every way in which it can be written.
template <class Left, class Right>
void ExpectLess(const Left& less, const Right& greater) {
    EXPECT_TRUE(less < greater);
    EXPECT_TRUE(less <= greater);
    EXPECT_TRUE(less != greater);
    EXPECT_TRUE(greater > less);
    EXPECT_TRUE(greater >= less);
    EXPECT_TRUE(greater != less);
    EXPECT_FALSE(less == greater);
    EXPECT_FALSE(greater == less);
    EXPECT_FALSE(less > greater);
    EXPECT_FALSE(less >= greater);
    EXPECT_FALSE(greater < less);
    EXPECT_FALSE(greater <= less);
}

template <class Left, class Right>
void ExpectEqual(const Left& left, const Right& right) {
    EXPECT_TRUE(left == right);
    EXPECT_TRUE(right == left);
    EXPECT_TRUE(left <= right);
    EXPECT_TRUE(left >= right);
    EXPECT_FALSE(left != right);
    EXPECT_FALSE(right != left);
    EXPECT_FALSE(left < right);
    EXPECT_FALSE(right < left);
}

TEST(StringComparison, WithEveryKindOfText) {
    const CKRMString code = "P0301";
    ExpectEqual(code, CKRMString("P0301"));
    ExpectEqual(code, "P0301");
    ExpectEqual(code, static_cast<const char*>("P0301"));
    ExpectEqual(code, "P0301"s);
    ExpectEqual(code, "P0301"sv);

    ExpectLess(code, CKRMString("P0302"));
    ExpectLess(code, "P0302");
    ExpectLess(code, static_cast<const char*>("P0302"));
    ExpectLess(code, "P0302"s);
    ExpectLess(code, "P0302"sv);
    ExpectLess("P0300", code);
    ExpectLess("P0300"s, code);
    ExpectLess("P0300"sv, code);

    static_assert(std::is_same_v<decltype(code <=> code), std::strong_ordering>);
    static_assert(std::is_same_v<decltype("P0302"sv <=> code), std::strong_ordering>);
}

TEST(StringComparison, AWritableTextIsATextToo) {
    char text[] = "P0301";
    char* const pointer = text;
    ExpectEqual(CKRMString("P0301"), text);
    ExpectEqual(CKRMString("P0301"), pointer);
}

TEST(StringComparison, NullIsEmpty) {
    const char* const null = nullptr;
    ExpectEqual(CKRMString(), null);
    ExpectLess(null, CKRMString("a"));
}

TEST(StringComparison, BytesCompareUnsigned) {
    ExpectLess(CKRMString("\x7F"), CKRMString("\x80"));
    ExpectLess(CKRMString("a"), "\xFF");
    ExpectLess(CKRMString("z"), "\xC3\xA4"sv);
}

TEST(StringComparison, ATextComesBeforeThoseThatItBegins) {
    ExpectLess(CKRMString(), "a");
    ExpectLess(CKRMString("P030"), "P0301"s);
    ExpectLess("P030"sv, CKRMString("P0301"));
}

TEST(StringComparison, ANulWithinCounts) {
    ExpectEqual(WithNul(), "a\0b"sv);
    ExpectLess(CKRMString("a"), WithNul());
    EXPECT_GT(WithNul().Compare("a\0b"), 0);  // Compare itself stops there
}

template <class Left, class Right>
concept Comparable = requires(const Left& left, const Right& right) {
    left == right;
};
static_assert(Comparable<CKRMString, std::string> && Comparable<std::string, CKRMString>);
static_assert(!Comparable<CKRMString, std::nullptr_t>);
static_assert(!Comparable<CKRMString, int> && !Comparable<CKRMString, char>);
static_assert(!Comparable<CKRMString, std::wstring>);

// What merely converts to a CKRMString keeps its own operators. With ones that convert, the comparison would go through
// a CKRMString here, which ends at the NUL.
TEST(StringComparison, StandardTextsCompareAsBefore) {
    const char* const text = "a";
    EXPECT_FALSE(text == "a\0b"sv);
    EXPECT_TRUE(text < "a\0b"sv);
    EXPECT_EQ(text + "\0b"s, "a\0b"s);
}

TEST(StringComparison, SortsAndLooksUp) {
    std::vector<CKRMString> codes = {"P0420", "C1201", "P0301"};
    std::sort(codes.begin(), codes.end());
    EXPECT_THAT(codes, ElementsAre("C1201", "P0301", "P0420"));
    std::map<CKRMString, int, std::less<>> places = {{"P0301", 1}, {"P0420", 2}};
    EXPECT_EQ(places.find("P0420"sv)->second, 2);
}

TEST(StringHash, IsThatOfTheBytes) {
    const std::hash<CKRMString> hash;
    EXPECT_EQ(hash("P0301"), std::hash<std::string_view>()("P0301"));
    EXPECT_EQ(hash(WithNul()), std::hash<std::string_view>()("a\0b"sv));
    std::unordered_map<CKRMString, int> count;
    ++count["P0301"];
    ++count["P0420"];
    ++count["P0301"];
    EXPECT_EQ(count.size(), 2U);
    EXPECT_EQ(count["P0301"], 2);
}

TEST(StringStream, WritesTheBytesWithWidthAndFill) {
    std::ostringstream stream;
    stream << CKRMString("P0301") << '|' << std::setw(6) << std::setfill('.') << std::left << CKRMString("ab") << '|'
           << WithNul() << CKRMString();
    EXPECT_EQ(stream.str(), "P0301|ab....|a\0b"s);
}

TEST(StringConcatenation, OfEveryKindOfText) {
    const CKRMString code = "P0301";
    EXPECT_EQ(code + CKRMString("!"), "P0301!");
    EXPECT_EQ(code + " stored", "P0301 stored");
    EXPECT_EQ(code + " stored"s, "P0301 stored");
    EXPECT_EQ(code + " stored"sv, "P0301 stored");
    EXPECT_EQ("code " + code, "code P0301");
    EXPECT_EQ("code "s + code, "code P0301");
    EXPECT_EQ("code "sv + code, "code P0301");
    EXPECT_EQ("code " + code + ", "s + code + "!"sv, "code P0301, P0301!");
    EXPECT_EQ(code, "P0301");  // it stays as it is
    static_assert(std::is_same_v<decltype("code " + code), CKRMString>);

    const char* const null = nullptr;
    EXPECT_EQ(code + null, "P0301");
    EXPECT_EQ(null + code, "P0301");
}

TEST(StringConcatenation, Appends) {
    CKRMString text = "P0301";
    text += ", "s;
    text += "stored, and more"sv.substr(0, 6);
    text += "!";
    EXPECT_EQ(text, "P0301, stored!");
    CKRMString& same = text += "?"sv;
    EXPECT_EQ(&same, &text);
    text += std::string(100000, 'x');
    EXPECT_EQ(text.GetLength(), 100015U);
}

TEST(StringConversion, FromAndTo) {
    EXPECT_EQ(krm::ToString(CKRMString("P0301")), "P0301"s);
    EXPECT_EQ(krm::View(CKRMString("P0301")), "P0301"sv);
    static_assert(std::is_same_v<decltype(krm::View(CKRMString())), std::string_view>);
    EXPECT_STREQ(krm::MakeString("P0301"s).GetText(), "P0301");
    EXPECT_STREQ(krm::MakeString("P0301 and more"sv.substr(0, 5)).GetText(), "P0301");
    EXPECT_STREQ(krm::MakeString("P0301").GetText(), "P0301");
    EXPECT_EQ(krm::MakeString(static_cast<const char*>(nullptr)).GetLength(), 0U);
    EXPECT_EQ(krm::View(static_cast<const char*>(nullptr)), ""sv);
    EXPECT_EQ(krm::MakeString(std::string_view()).GetLength(), 0U);
}

TEST(StringConversion, ViewIsTheStringsOwnText) {
    const CKRMString text = "P0301";
    EXPECT_EQ(krm::View(text).data(), text.GetText());
}

// A CKRMString can be made from a text with a NUL at its end only; what lies behind the first NUL is not taken.
TEST(StringConversion, AStandardTextEndsAtItsFirstNul) {
    EXPECT_EQ(krm::MakeString("a\0b"s).GetLength(), 1U);
    EXPECT_EQ(krm::MakeString("a\0b"sv), "a");
    EXPECT_EQ(CKRMString("x") + "a\0b"s, "xa");
    EXPECT_EQ("a\0b"sv + CKRMString("x"), "ax");
    // The other way, and from one CKRMString to the other, nothing gets lost.
    EXPECT_EQ(krm::ToString(WithNul()), "a\0b"s);
    EXPECT_EQ(WithNul() + WithNul(), "a\0ba\0b"sv);
}

// That they compile without a warning is half of the test.
TEST(NumberConversions, PrintAlikeEverywhere) {
    const krm_ulong large = 4000000000U;
    const krm_long negative = -2000000000;
    CKRMString text;
    text.Format("%" KRM_PRIu " %" KRM_PRId " %08" KRM_PRIX " %" KRM_PRIx, large, negative, large, large);
    EXPECT_EQ(text, "4000000000 -2000000000 EE6B2800 ee6b2800");
    char buffer[60];
    std::snprintf(buffer, sizeof buffer, "%" KRM_PRIu " %" KRM_PRId " %08" KRM_PRIX " %" KRM_PRIx, large, negative,
                  krm_ulong{0x1F}, krm_ulong{0x1F});
    EXPECT_STREQ(buffer, "4000000000 -2000000000 0000001F 1f");
}

}  // namespace

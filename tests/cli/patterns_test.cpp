#include "cli/patterns.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <string_view>

namespace {

using krm_cli::AppendJson;
using krm_cli::Contains;
using krm_cli::FirstOf;
using krm_cli::IsEndOfNumber;
using krm_cli::LastName;
using krm_cli::Lower;
using krm_cli::Matches;
using krm_cli::NumberIn;
using krm_cli::Shown;
using krm_cli::TextOf;

TEST(Patterns, MatchWithStars) {
    EXPECT_TRUE(Matches("GetDTC", "GetDTC"));
    EXPECT_FALSE(Matches("GetDTC", "GetDT"));
    EXPECT_FALSE(Matches("GetDTC", "GetDTCs"));
    EXPECT_TRUE(Matches("Get*", "Get"));
    EXPECT_TRUE(Matches("*", ""));
    EXPECT_TRUE(Matches("", ""));
    EXPECT_FALSE(Matches("", "a"));
    EXPECT_FALSE(Matches("a", ""));
    EXPECT_TRUE(Matches("**a**", "a"));
    EXPECT_TRUE(Matches("a*b*c", "a1b2b3c"));
    EXPECT_FALSE(Matches("a*b*c", "a1b2b3"));
    EXPECT_FALSE(Matches("a*b*c", "a1c"));
    // What a star took at first may have been too little.
    EXPECT_TRUE(Matches("*aab", "aaaab"));
    EXPECT_TRUE(Matches("*ab*ab", "ababxab"));
}

TEST(Patterns, DontTellCases) {
    EXPECT_TRUE(Matches("getdtc", "GETDTC"));
    EXPECT_TRUE(Matches("AZ", "az"));
    EXPECT_FALSE(Matches("@[", "`{"));  // next to the letters, as far from each other as those
    EXPECT_FALSE(Matches("\xC4", "\xE4"));
    EXPECT_EQ(Lower("@AZ[`az{\xC4"), "@az[`az{\xC4");
    EXPECT_TRUE(Contains("Cylinder 1 MISFIRE", "misfire"));
    EXPECT_TRUE(Contains("misfire", "misfire"));
    EXPECT_FALSE(Contains("misfir", "misfire"));
    EXPECT_TRUE(Contains("", ""));
    EXPECT_TRUE(Contains("a", ""));
    EXPECT_FALSE(Contains("", "a"));
}

TEST(Numbers, AreReadInAllTheirForms) {
    EXPECT_EQ(NumberIn("0"), 0);
    EXPECT_EQ(NumberIn("-40"), -40);
    EXPECT_EQ(NumberIn("+7"), 7);
    EXPECT_EQ(NumberIn("12.5"), 12.5);
    EXPECT_EQ(NumberIn(".5"), 0.5);
    EXPECT_EQ(NumberIn("+.5"), 0.5);
    EXPECT_EQ(NumberIn("-1e3"), -1000);
    EXPECT_EQ(NumberIn("0x7E8"), 2024);
    EXPECT_EQ(NumberIn("0XfF"), 255);
    EXPECT_EQ(NumberIn("0x1000001"), 16777217);  // more bits than a float has
    EXPECT_EQ(NumberIn("0x10000000000"), 1099511627776.0);
    EXPECT_EQ(NumberIn("-1(4294967295)"), -1);
    EXPECT_EQ(NumberIn("true"), 1);
    EXPECT_EQ(NumberIn("false"), 0);
}

TEST(Numbers, AreNothingElse) {
    for (const char* const text : {"",     "+",       "-",     "+-7",   "--7",
                                   "- 7",  " 7",      "7 ",    "0x",    "0x7G",
                                   "0x-7", "inf",     "-inf",  "nan",   "1e",
                                   "1,5",  "10(1)2)", "7(",    "7()",   "7(8",
                                   "7(a)", "7)8(",    "truer", "1e999", "0x10000000000000000"}) {
        EXPECT_EQ(NumberIn(text), std::nullopt) << text;
    }
    EXPECT_TRUE(IsEndOfNumber(""));
    EXPECT_TRUE(IsEndOfNumber("(0)"));
    EXPECT_TRUE(IsEndOfNumber("(19)"));
    EXPECT_FALSE(IsEndOfNumber("()"));
    EXPECT_FALSE(IsEndOfNumber("(/)"));
    EXPECT_FALSE(IsEndOfNumber("(:)"));
    EXPECT_FALSE(IsEndOfNumber("19)"));
    EXPECT_FALSE(IsEndOfNumber("(19"));
}

TEST(Numbers, AreWrittenWithTheFewestDigits) {
    EXPECT_EQ(TextOf(83), "83");
    EXPECT_EQ(TextOf(0), "0");
    EXPECT_EQ(TextOf(-700000), "-700000");
    EXPECT_EQ(TextOf(999999999999999), "999999999999999");
    EXPECT_EQ(TextOf(1e15), "1e+15");
    EXPECT_EQ(TextOf(-1.7976931348623157e308), "-1.7976931348623157e+308");
    EXPECT_EQ(TextOf(-0.0000010123456789012345), "-0.0000010123456789012345");
    EXPECT_EQ(TextOf(0.000001), "0.000001");
    EXPECT_EQ(TextOf(0.0000009), "9e-07");
    EXPECT_EQ(TextOf(0.1), "0.1");
    EXPECT_EQ(TextOf(1.0 / 3), "0.3333333333333333");
    EXPECT_EQ(TextOf(6606859581.0827465), "6606859581.0827465");
}

TEST(Shown, IsTheTextWhereItIsHarmless) {
    EXPECT_EQ(Shown(""), "");
    EXPECT_EQ(Shown("P0301 ~ \\x1B"), "P0301 ~ \\x1B");
    EXPECT_EQ(Shown("\xC2\xB0"
                    "C"),
              "\xC2\xB0"
              "C");
    // The first and last characters of two, three and four bytes that are shown as they are.
    for (const char* const text : {"\xC2\xA0", "\xDF\xBF", "\xE0\xA0\x80", "\xED\x9F\xBF", "\xEE\x80\x80",
                                   "\xEF\xBF\xBF", "\xF0\x90\x80\x80", "\xF4\x8F\xBF\xBF"}) {
        EXPECT_EQ(Shown(text), text);
    }
}

TEST(Shown, HasCodesOfWhatATerminalWouldObey) {
    EXPECT_EQ(Shown(std::string_view("\0\x1F\x7F \t\n", 6)), "\\x00\\x1F\\x7F \\x09\\x0A");
    // With characters beyond ASCII beside them: that is another way through.
    EXPECT_EQ(Shown(std::string_view("\xC3\xA4\0\x1F\x7F", 5)), "\xC3\xA4\\x00\\x1F\\x7F");
    EXPECT_EQ(Shown("\xC2\x80\xC2\x9F"), "\\u0080\\u009F");
    EXPECT_EQ(Shown("\xE2\x80\xA7\xE2\x80\xA8\xE2\x80\xA9"), "\xE2\x80\xA7\\u2028\\u2029");
    EXPECT_EQ(Shown("\xD8\x9B\xD8\x9C\xD8\x9D"), "\xD8\x9B\\u061C\xD8\x9D");
    EXPECT_EQ(Shown("\xE2\x80\x8D\xE2\x80\x8E\xE2\x80\x8F\xE2\x80\x90"), "\xE2\x80\x8D\\u200E\\u200F\xE2\x80\x90");
    EXPECT_EQ(Shown("\xE2\x80\xAA\xE2\x80\xAB\xE2\x80\xAD\xE2\x80\xAE\xE2\x80\xAF"),
              "\\u202A\\u202B\\u202D\\u202E\xE2\x80\xAF");
    EXPECT_EQ(Shown("\xE2\x81\xA5\xE2\x81\xA6\xE2\x81\xA9\xE2\x81\xAA"), "\xE2\x81\xA5\\u2066\\u2069\xE2\x81\xAA");
}

// What isn't UTF-8 is Latin-1: too short, too long, beyond Unicode, half of a pair.
TEST(Shown, TakesOtherBytesForLatin1) {
    EXPECT_EQ(Shown("Z\xFCndaussetzer"), "Z\xC3\xBCndaussetzer");
    EXPECT_EQ(Shown("\xFF\x80\x9F\xA0\x1B"), "\xC3\xBF\\x80\\x9F\xC2\xA0\\x1B");
    EXPECT_EQ(Shown("a\xC3"), "a\xC3\x83");
    EXPECT_EQ(Shown("\xC3("), "\xC3\x83(");
    EXPECT_EQ(Shown("\xC1\xBF"), "\xC3\x81\xC2\xBF");
    EXPECT_EQ(Shown("\xE0\x9F\xBF"), "\xC3\xA0\\x9F\xC2\xBF");
    EXPECT_EQ(Shown("\xED\xA0\xBF"), "\xC3\xAD\xC2\xA0\xC2\xBF");
    EXPECT_EQ(Shown("\xED\xBF\xBF"), "\xC3\xAD\xC2\xBF\xC2\xBF");
    EXPECT_EQ(Shown("\xF0\x8F\xBF\xBF"), "\xC3\xB0\\x8F\xC2\xBF\xC2\xBF");
    EXPECT_EQ(Shown("\xF4\x90\x80\x80"), "\xC3\xB4\\x90\\x80\\x80");
    // No first byte of any character, and as many behind it as might follow one.
    EXPECT_EQ(Shown("\xF5\xA1\xA1\xA1\xA1"), "\xC3\xB5\xC2\xA1\xC2\xA1\xC2\xA1\xC2\xA1");
    EXPECT_EQ(Shown("\xF8\xA0\xB0\xA0\xA0"), "\xC3\xB8\xC2\xA0\xC2\xB0\xC2\xA0\xC2\xA0");
    EXPECT_EQ(Shown("\xBF\xA1\xA1\xA1\xA1"), "\xC2\xBF\xC2\xA1\xC2\xA1\xC2\xA1\xC2\xA1");
}

TEST(FirstOf, EndsBetweenCharacters) {
    EXPECT_EQ(FirstOf("abc", 3), "abc");
    EXPECT_EQ(FirstOf("abc", 2), "ab");
    EXPECT_EQ(FirstOf("abc", 0), "");
    const std::string_view text = "a\xF0\x9F\x9A\x97z";
    for (std::size_t most = 1; most < 5; ++most) {
        EXPECT_EQ(FirstOf(text, most), "a") << most;
    }
    EXPECT_EQ(FirstOf(text, 5), "a\xF0\x9F\x9A\x97");
    EXPECT_EQ(FirstOf("\xC3\xA4", 1), "");
    // More bytes of a character than there can be.
    EXPECT_EQ(FirstOf("\x80\x80\x80\x80\x80\x80", 5), "\x80\x80\x80\x80\x80");
}

std::string JsonOf(std::string_view text) {
    std::string out = "before ";
    AppendJson(text, out);
    return out;
}

TEST(Json, IsAStringOrBytes) {
    EXPECT_EQ(JsonOf(""), "before \"\"");
    EXPECT_EQ(JsonOf("a \"b\" \\ \xC3\xA4"), "before \"a \\\"b\\\" \\\\ \xC3\xA4\"");
    EXPECT_EQ(JsonOf(std::string_view("\0\x1F \x7F\n", 5)), "before \"\\u0000\\u001F \x7F\\u000A\"");
    EXPECT_EQ(JsonOf("a\xFC\x0F"), "before {\"$bytes\":\"61FC0F\"}");
}

TEST(LastName, IsBehindTheLastPointWithoutItsIndex) {
    EXPECT_EQ(LastName("m_bDTCType"), "m_bDTCType");
    EXPECT_EQ(LastName("Data[0].m_strDTC"), "m_strDTC");
    EXPECT_EQ(LastName("Data[0].m_uchSSRNo[1]"), "m_uchSSRNo");
    EXPECT_EQ(LastName("Data[0].m_cResourceMap[\"help.title[1]\"]"), "m_cResourceMap");
    EXPECT_EQ(LastName("m_cMap[\"a[\"b.c[0]\"]"), "m_cMap");
    EXPECT_EQ(LastName("Data[0].m_dTable[1][2]"), "m_dTable");
    EXPECT_EQ(LastName(""), "");
}

}  // namespace

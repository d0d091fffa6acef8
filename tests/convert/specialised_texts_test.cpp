// Display texts of the special signals, their pattern tables, and the types that take bytes.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "tests/support/converters.h"

namespace krm::test {
namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

// A text with its string ID, as "text #ID".
std::string WithId(int code, double phys, krm_ulong raw, const Item& item) {
    CKRMString text = "untouched";
    krm_ulong id = 0xBAD;
    EXPECT_EQ(Arguments(item).Text(*Create(code), &text, &id, phys, raw), 0U);
    return text.GetText() + (" #" + std::to_string(id));
}

std::string VariableWithId(int code, double phys, PatternLists& lists, const char* defaultText = nullptr) {
    CKRMString text = "untouched";
    krm_ulong id = 0xBAD;
    CKRMString fallback = defaultText;
    EXPECT_EQ(Create(code)->StringVariableConversion(&text, &id, phys, 0, 0, 16, 1, 0, 0, &lists.variable,
                                                     defaultText == nullptr ? nullptr : &fallback, 44),
              0U);
    return text.GetText() + (" #" + std::to_string(id));
}

// ---- String pattern ----

const std::vector<Pattern> kOnOff = {{0, "OFF", 10}, {1, "ON", 11}, {1, "never", 12}, {0xFFFFFFFFU, "minus one", 13}};

TEST(StringPatternText, IsTheTextOfTheKey) {
    for (const int code : {1, 20, 22}) {
        EXPECT_EQ(WithId(code, 0, 5, {.patterns = kOnOff}), "OFF #10");
        EXPECT_EQ(WithId(code, 1, 5, {.patterns = kOnOff}), "ON #11");
    }
}

TEST(StringPatternText, TheFirstOfRepeatedKeysWins) {
    EXPECT_EQ(WithId(1, 3, 0, {.patterns = {{2, "a", 1}, {3, "b", 2}, {3, "c", 3}}}), "b #2");
}

TEST(StringPatternText, KeysAreTruncatedTowardZeroToTheirLow32Bits) {
    EXPECT_EQ(WithId(1, 1.999, 0, {.patterns = kOnOff}), "ON #11");
    EXPECT_EQ(WithId(1, -0.999, 0, {.patterns = kOnOff}), "OFF #10");
    EXPECT_EQ(WithId(1, -1, 0, {.patterns = kOnOff}), "minus one #13");
    EXPECT_EQ(WithId(1, 4294967297.0, 0, {.patterns = kOnOff}), "ON #11");
}

TEST(StringPatternText, WhatNoIntegerHoldsHasKey0) {
    for (const double value : {kNaN, kInfinity, -kInfinity, 1e300}) {
        EXPECT_EQ(WithId(1, value, 1, {.patterns = kOnOff}), "OFF #10");
        EXPECT_EQ(WithId(1, value, 1, {}), "0x00 #0");
    }
}

TEST(StringPatternText, WithoutAMatchIsTheDefaultText) {
    const Item item{.patterns = kOnOff, .defaultText = "unknown", .defaultId = 99};
    EXPECT_EQ(WithId(1, 2, 1, item), "unknown #99");
    EXPECT_EQ(WithId(1, 2, 1, {.defaultText = "unknown", .defaultId = 99}), "unknown #99");
}

TEST(StringPatternText, WithoutAMatchAndADefaultTextIsHexadecimal) {
    EXPECT_EQ(WithId(1, 26, 1, {.bits = 12, .patterns = kOnOff, .defaultId = 99}), "0x01A #0");
    EXPECT_EQ(WithId(1, 26, 1, {.bits = 8, .decimals = 2}), "0x1A #0");

    CKRMString text;
    krm_ulong id = 7;
    CKRMList<CKRMCCommandDispData> none;
    EXPECT_EQ(Create(1)->StringConversion(&text, &id, 26, 1, 0, 8, 0, 0, 0, &none, nullptr, 99), 0U);
    EXPECT_STREQ(text.GetText(), "0x1A");
    EXPECT_EQ(id, 0U);
}

TEST(PatternText, KeysAndWordsIdsHave32Bits) {
    const Item item{
        .bits = 32,
        .max = 0x20000005,
        .min = 0x10000005,
        .patterns = {{5, "five", 1}, {0x12340005, "whole", 591724545}, {0, "low", 70000}, {1, "high", 70001}},
        .defaultText = "unknown",
        .defaultId = 878051329};
    const double whole = 0x12340005;
    for (const int code : {1, 20, 22}) {
        EXPECT_EQ(WithId(code, whole, 0, item), "whole #591724545");
        EXPECT_EQ(WithId(code, 0x12350005, 0, item), "unknown #878051329");
    }
    EXPECT_EQ(WithId(103, 2, 0x12340005, item), "whole #591724545");
    EXPECT_EQ(WithId(103, 2, 0x12350005, item), "2 #0");
    for (const int code : {13, 24}) {
        EXPECT_EQ(WithId(code, 2, 0x10000005, item), "low #70000");
        EXPECT_EQ(WithId(code, 2, 0x20000005, item), "high #70001");
        EXPECT_EQ(WithId(code, 2, 0x10000006, item), "2 #0");
    }
    for (const int code : {1, 13, 20, 22, 24, 103}) {
        CKRMCCommandDispData record;
        Arguments arguments(item);
        const krm_ulong raw = code == 13 || code == 24 ? 0x20000005 : 0x12340005;
        EXPECT_EQ(arguments.Raw(*Create(code), &record, raw), 0U);
        EXPECT_EQ(record.m_ulDataStringId, raw == 0x20000005 ? 70001U : 591724545U) << code;
    }
    for (const int code : {1, 20, 22}) {
        CKRMCCommandDispData record;
        Arguments arguments(item);
        EXPECT_EQ(arguments.Raw(*Create(code), &record, 0x12350005), 0U);
        EXPECT_EQ(record.m_ulDataStringId, 878051329U);
        EXPECT_EQ(arguments.Variable(*Create(code), &record, 0x12340005), 0U);
        EXPECT_EQ(record.m_ulDataStringId, 591724545U);
        EXPECT_EQ(arguments.Variable(*Create(code), &record, 0x12350005), 0U);
        EXPECT_EQ(record.m_ulDataStringId, 878051329U);
    }
}

TEST(StringPatternText, TextsAreNotFormats) {
    EXPECT_EQ(WithId(1, 3, 0, {.patterns = {{3, "100%s%n%d", 1}}}), "100%s%n%d #1");
    EXPECT_EQ(WithId(1, 3, 0, {.defaultText = "%s%n"}), "%s%n #0");
}

TEST(StringPatternText, AnEmptyPatternTextIsAMatch) {
    EXPECT_EQ(WithId(1, 3, 0, {.patterns = {{3, "", 8}}, .defaultText = "default"}), " #8");
}

TEST(StringPatternText, LeavesTheListAlone) {
    Arguments arguments({.patterns = kOnOff, .defaultText = "unknown"});
    CKRMString text;
    EXPECT_EQ(arguments.Text(*Create(1), &text, nullptr, 1, 1), 0U);
    ASSERT_EQ(arguments.lists.plain.GetCount(), 4);
    EXPECT_STREQ(arguments.lists.plain.GetAt(1).m_strDataPhys.GetText(), "ON");
    EXPECT_STREQ(arguments.defaultText.GetText(), "unknown");
}

TEST(StringPatternText, CompositeKeepsTextAndId) {
    CKRMCCommandDispData record;
    MarkAll(record);
    EXPECT_EQ(Arguments({.mul = 2, .patterns = {{8, "eight", 80}}}).Raw(*Create(20), &record, 4), 0U);
    EXPECT_STREQ(record.m_strDataPhys.GetText(), "eight");
    EXPECT_EQ(record.m_ulDataStringId, 80U);
    EXPECT_EQ(record.m_dDataPhys, 8.0);
    EXPECT_EQ(record.m_ulRawData, 4U);
    EXPECT_TRUE(OthersAreMarked(record));
}

TEST(StringPatternVariableText, KeysAreBytesMostSignificantFirst) {
    PatternLists lists;
    lists.AddBytes({0x01}, "one byte", 1);
    lists.AddBytes({0x01, 0x02}, "two bytes", 2);
    lists.AddBytes({0x00, 0x01, 0x02}, "same key", 3);
    lists.AddBytes({0xFF, 0xFF, 0xFF, 0xFF, 0xFF}, "five bytes", 5);
    for (const int code : {1, 20, 22}) {
        EXPECT_EQ(VariableWithId(code, 1, lists), "one byte #1");
        EXPECT_EQ(VariableWithId(code, 258, lists), "two bytes #2");
        EXPECT_EQ(VariableWithId(code, 1099511627775.0, lists), "five bytes #5");
    }
}

TEST(StringPatternVariableText, AnEmptyByteListHasKey0) {
    PatternLists lists;
    lists.AddBytes({1}, "one", 1);
    lists.AddBytes({}, "nothing", 2);
    lists.AddBytes({0}, "zero", 3);
    EXPECT_EQ(VariableWithId(1, 0, lists), "nothing #2");
    EXPECT_EQ(VariableWithId(1, -0.0, lists), "nothing #2");
}

TEST(StringPatternVariableText, MatchesExactlyWithoutTruncation) {
    PatternLists lists;
    lists.AddBytes({1}, "one", 1);
    lists.AddBytes({0}, "zero", 2);
    EXPECT_EQ(VariableWithId(1, 1.5, lists), "0x0001 #0");
    EXPECT_EQ(VariableWithId(1, 4294967297.0, lists), "0x0001 #0");
    EXPECT_EQ(VariableWithId(1, kNaN, lists), "0x0000 #0");
    EXPECT_EQ(VariableWithId(1, kInfinity, lists, "default"), "default #44");
}

TEST(StringPatternVariableText, LongKeysAccumulateInDouble) {
    // Seven bytes are 2^53 + 1, which a double holds as 2^53; rounded once at the end the key would be 2^61 + 512.
    PatternLists lists;
    lists.AddBytes({0x20, 0, 0, 0, 0, 0, 0x01, 0x01}, "long", 1);
    EXPECT_EQ(VariableWithId(1, 2305843009213693952.0, lists), "long #1");
    EXPECT_EQ(VariableWithId(1, 2305843009213693952.0 + 512, lists), "0x0200 #0");

    // 129 bytes are more than a double holds.
    PatternLists endless;
    endless.AddBytes(std::vector<unsigned char>(129, 0xFF), "infinite", 3);
    EXPECT_EQ(VariableWithId(1, kInfinity, endless), "infinite #3");
    EXPECT_EQ(VariableWithId(1, std::numeric_limits<double>::max(), endless, "finite"), "finite #44");
}

TEST(StringPatternVariableText, WithoutAMatchIsTheDefaultTextElseHexadecimal) {
    PatternLists lists;
    lists.AddBytes({1}, "one", 1);
    EXPECT_EQ(VariableWithId(1, 2, lists, "default"), "default #44");
    EXPECT_EQ(VariableWithId(1, 2, lists, ""), "0x0002 #0");
    EXPECT_EQ(VariableWithId(1, 2, lists), "0x0002 #0");
    PatternLists none;
    EXPECT_EQ(VariableWithId(1, 2, none), "0x0002 #0");
}

TEST(VariableText, IsDecimalInEveryOtherClass) {
    PatternLists lists;
    lists.AddBytes({2}, "two", 1);
    for (const int code : AllCodes()) {
        if (code != 1 && code != 20 && code != 22) {
            EXPECT_EQ(VariableWithId(code, 2, lists, "default"), "2.0 #0") << code;
        }
    }
}

// ---- Hexadecimal ----

TEST(HexText, IsOfThePhysicalValue) {
    EXPECT_EQ(WithId(3, 171, 5, {.bits = 12}), "0x0AB #0");
    EXPECT_EQ(WithId(112, 171, 5, {.bits = 12}), "0AB #0");
    EXPECT_EQ(TextBy(3, kNaN, 5, {.bits = 8}), "0x00");
    EXPECT_EQ(TextBy(112, kNaN, 5, {.bits = 8}), "00");
    EXPECT_EQ(DisplayBy(3, 0x0F, {.bits = 8, .offset = 1}), "0x10");
    EXPECT_EQ(DisplayBy(112, 0xFF, {.sign = 1, .bits = 8}), "FFFFFFFF");
    EXPECT_EQ(TextBy(3, 10, 5, {.bits = 65535}), "0x" + std::string(16383, '0') + "A");
}

// ---- Trouble codes ----

TEST(DiagCodeText, HasALetterAndFourDigits) {
    EXPECT_EQ(WithId(5, 0x4123, 0, {}), "C0123 #0");
    EXPECT_EQ(DisplayBy(5, 0xC001), "U0001");
    EXPECT_EQ(DisplayBy(5, 0x0301), "P0301");
    EXPECT_EQ(DisplayBy(5, 0x8000), "B0000");
    EXPECT_EQ(DisplayBy(5, 0x3FFF), "P3FFF");
    EXPECT_EQ(DisplayBy(5, 0xFFFF), "U3FFF");
}

TEST(DiagCodeText, IgnoresBitsAbove15) {
    EXPECT_EQ(DisplayBy(5, 0xABCD4123U), "C0123");
    EXPECT_EQ(TextBy(5, 0x4123 + 0.9, 0), "C0123");
    EXPECT_EQ(TextBy(5, -1, 0), "U3FFF");
    EXPECT_EQ(TextBy(5, kNaN, 0), "P0000");
}

// ---- Limits ----

const std::vector<Pattern> kLimits = {{5, "five", 50}, {1, "high", 51}, {0, "low", 52}, {1, "higher", 53}};

TEST(MinMaxText, NamesTheLimits) {
    const Item item{.decimals = 1, .max = 200, .min = 10, .patterns = kLimits};
    EXPECT_EQ(WithId(13, 1.5, 9, item), "low #52");
    EXPECT_EQ(WithId(13, 1.5, 10, item), "low #52");
    EXPECT_EQ(WithId(13, 1.5, 11, item), "1.5 #0");
    EXPECT_EQ(WithId(13, 1.5, 199, item), "1.5 #0");
    EXPECT_EQ(WithId(13, 1.5, 200, item), "high #51");
    EXPECT_EQ(WithId(13, 1.5, 255, item), "high #51");
}

TEST(MinMaxText, LimitsAreSigned) {
    const Item item{.sign = 1, .max = 0x10, .min = 0xF0, .patterns = kLimits};
    EXPECT_EQ(WithId(13, -3, 0xF0, item), "low #52");
    EXPECT_EQ(WithId(13, -3, 0xF1, item), "-3 #0");
    EXPECT_EQ(WithId(13, -3, 0x80, item), "low #52");
    EXPECT_EQ(WithId(13, -3, 0x7F, item), "high #51");
    // Unsigned, the same limits are crossed, and the minimum is asked first.
    EXPECT_EQ(WithId(13, -3, 0x80, {.max = 0x10, .min = 0xF0, .patterns = kLimits}), "low #52");
    EXPECT_EQ(WithId(13, -3, 0xF1, {.max = 0x10, .min = 0xF0, .patterns = kLimits}), "high #51");
}

TEST(MinMaxText, WithoutAPatternIsDecimal) {
    const Item item{.decimals = 1, .max = 200, .min = 10, .patterns = {{5, "five", 50}}, .defaultText = "default"};
    EXPECT_EQ(WithId(13, 1.5, 10, item), "1.5 #0");
    EXPECT_EQ(WithId(13, 1.5, 200, item), "1.5 #0");
    EXPECT_EQ(WithId(13, 1.5, 200, {.decimals = 2, .max = 200}), "1.50 #0");
}

TEST(IlluminanceMinMaxText, NamesTheLimitsOfTheRawValue) {
    const Item item{.sign = 1, .max = 200, .min = 10, .patterns = kLimits};
    EXPECT_EQ(WithId(24, 77, 9, item), "low #52");
    EXPECT_EQ(WithId(24, 77, 10, item), "low #52");
    EXPECT_EQ(WithId(24, 77, 11, item), "77 #0");
    EXPECT_EQ(WithId(24, 77, 199, item), "77 #0");
    EXPECT_EQ(WithId(24, 77, 201, item), "high #51");
}

TEST(IlluminanceMinMaxText, ExactlyAtTheMaximumIsHigh) {
    EXPECT_EQ(WithId(24, 77, 200, {.max = 200, .min = 10, .patterns = kLimits}), "high #51");
}

TEST(IlluminanceMinMaxText, WithLimitsCrossedAsksWhetherItIsAboveTheMinimum) {
    const Item item{.max = 10, .min = 200, .patterns = kLimits};
    EXPECT_EQ(WithId(24, 77, 100, item), "low #52");
    EXPECT_EQ(WithId(24, 77, 201, item), "high #51");
}

TEST(IlluminanceMinMaxText, WithoutAPatternIsDecimal) {
    EXPECT_EQ(WithId(24, 77, 5, {.decimals = 1, .max = 200, .min = 10}), "77.0 #0");
    EXPECT_EQ(WithId(24, 77, 5, {.max = 200, .min = 10, .patterns = {{1, "high", 1}}, .defaultText = "x"}), "77 #0");
}

TEST(LsbPatternText, IsLookedUpByTheRawValue) {
    const Item item{.decimals = 1, .patterns = kLimits, .defaultText = "default", .defaultId = 9};
    EXPECT_EQ(WithId(103, 0, 5, item), "five #50");
    EXPECT_EQ(WithId(103, 0, 1, item), "high #51");
    EXPECT_EQ(WithId(103, 5, 6, item), "5.0 #0");
    EXPECT_EQ(WithId(103, 5, 6, {}), "5 #0");
    EXPECT_EQ(WithId(103, 0, 0xFFFFFFFFU, {.sign = 1, .patterns = {{0xFFFFFFFFU, "all", 4}}}), "all #4");
}

// ---- Dates and times in plain numbers ----

TEST(DateText, HasByte2First) {
    for (const int code : {15, 16}) {
        EXPECT_EQ(WithId(code, 0x170C1F, 0, {}), "23.12.31 #0");
        EXPECT_EQ(DisplayBy(code, 0x010203), "01.02.03");
        EXPECT_EQ(TextBy(code, 0xFFC864, 0), "55.00.00");  // each part modulo 100
        EXPECT_EQ(TextBy(code, 0xAB010203U, 0), "01.02.03");
        EXPECT_EQ(TextBy(code, -1, 0), "55.55.55");
    }
}

TEST(TimeHHMMText, OfMinutes) {
    EXPECT_EQ(DisplayBy(19, 135, {.bits = 16}), "02:15");
    EXPECT_EQ(DisplayBy(111, 135, {.bits = 16}), "2hrs,15min");
    EXPECT_EQ(WithId(19, 0x020F, 0, {}), "02:15 #0");
    EXPECT_EQ(WithId(111, 0x020F, 0, {}), "2hrs,15min #0");
    EXPECT_EQ(DisplayBy(19, 1500, {.bits = 16}), "25:00");
    EXPECT_EQ(DisplayBy(111, 65535, {.bits = 16}), "1092hrs,15min");
    EXPECT_EQ(TextBy(19, 0xFF, 0), "00:255");
    EXPECT_EQ(TextBy(19, 4294967295.0, 0), "16777215:255");
}

TEST(TimeHHMM3Text, OfSeconds) {
    EXPECT_EQ(DisplayBy(115, 8100, {.bits = 16}), "2hrs,15min");
    EXPECT_EQ(WithId(115, 8159.9, 0, {}), "2hrs,15min #0");
    EXPECT_EQ(TextBy(115, 59, 0), "0hrs,0min");
    EXPECT_EQ(TextBy(115, 60, 0), "0hrs,1min");
    EXPECT_EQ(TextBy(115, -1, 0), "1193046hrs,28min");
    EXPECT_EQ(ValueBy(115, 8100, {.bits = 16, .offset = 10, .decimals = 1}), 811.0);
}

// ---- Coordinates ----

TEST(CoordinateText, HasItsHemisphere) {
    EXPECT_EQ(TextBy(107, -35.5, 0), "S35.5000");
    EXPECT_EQ(TextBy(107, 0, 0), "N0.0000");
    EXPECT_EQ(TextBy(107, 35.68944, 0, {.decimals = 1}), "N35.6894");
    EXPECT_EQ(TextBy(108, -139.69167, 0, {.decimals = 9}), "W139.6917");
    EXPECT_EQ(TextBy(108, 139.5, 0), "E139.5000");
    EXPECT_EQ(TextBy(107, -0.00001, 0), "S0.0000");
    EXPECT_EQ(DisplayBy(107, 0xDD, {.sign = 1}), "S35.0000");
}

TEST(CoordinateText, OfWhatIsNoCoordinate) {
    EXPECT_EQ(TextBy(107, kInfinity, 0), "Ninf");
    EXPECT_EQ(TextBy(108, -kInfinity, 0), "Winf");
    EXPECT_EQ(TextBy(107, -0.0, 0), "N-0.0000");
    const std::string nan = TextBy(108, kNaN, 0);
    EXPECT_TRUE(nan == "Enan" || nan == "E-nan") << nan;
}

TEST(CoordinateText, LeavesTheStringIdAlone) {
    for (const int code : {107, 108}) {
        EXPECT_EQ(WithId(code, 1.5, 0, {}).substr(1), "1.5000 #" + std::to_string(0xBAD));
        CKRMCCommandDispData record;
        MarkAll(record);
        EXPECT_EQ(Arguments({}).Raw(*Create(code), &record, 9), 0U);
        EXPECT_EQ(record.m_ulDataStringId, 0xA1U);
        // By way of variable patterns the text is a plain number, which has no string ID.
        EXPECT_EQ(Arguments({}).Variable(*Create(code), &record, 9), 0U);
        EXPECT_EQ(record.m_ulDataStringId, 0U);
        EXPECT_STREQ(record.m_strDataPhys.GetText(), "9");
    }
}

TEST(CoordinateText, OfTheLargestDoubleIsWhole) {
    const double largest = std::numeric_limits<double>::max();
    EXPECT_EQ(TextBy(107, -largest, 0), "S" + reference::FixedPoint(largest, 4));
    EXPECT_EQ(TextBy(107, largest, 0).size(), 1U + 309U + 5U);
}

// ---- Versions and bits ----

TEST(SoftwareVersionText, IsOfTheRawValue) {
    EXPECT_EQ(WithId(109, 77, 0x0123, {}), "1.23 #0");
    EXPECT_EQ(TextBy(109, 77, 0x1A05), "1A.05");
    EXPECT_EQ(TextBy(109, 77, 0), "0.00");
    EXPECT_EQ(TextBy(109, 77, 0xABCDFFFFU), "FF.FF");
    EXPECT_EQ(DisplayBy(109, 0x0123, {.bits = 4, .mul = 0}), "1.23");
}

TEST(BinText, HasACharacterPerBit) {
    EXPECT_EQ(WithId(113, 77, 0x5, {.bits = 4}), "0101 #0");
    EXPECT_EQ(TextBy(113, 77, 0xF5, {.bits = 4}), "0101");
    EXPECT_EQ(TextBy(113, 77, 0x80000001U, {.bits = 32}), "10000000000000000000000000000001");
    EXPECT_EQ(TextBy(113, 77, 1, {.bits = 1}), "1");
    EXPECT_EQ(TextBy(113, 77, 0xFFFFFFFFU, {.bits = 0}), "");
}

TEST(BinText, OfMoreThan32BitsFails) {
    for (const unsigned bits : {33U, 64U, 65535U}) {
        Arguments arguments({.bits = static_cast<unsigned short>(bits)});
        CKRMString text = "old";
        krm_ulong id = 9;
        EXPECT_EQ(arguments.Text(*Create(113), &text, &id, 5, 5), kFailed) << bits;
        EXPECT_EQ(id, 0U) << bits;  // the result was there, so it is reset before the bit length is looked at
        EXPECT_EQ(arguments.Text(*Create(113), &text, nullptr, 5, 5), kFailed) << bits;

        CKRMCCommandDispData record;
        EXPECT_EQ(arguments.Raw(*Create(113), &record, 5), kFailed) << bits;
        EXPECT_EQ(record.m_ulRawData, 5U) << bits;
        EXPECT_EQ(record.m_dDataPhys, 5.0) << bits;
    }
}

// ---- Bytes ----

class Bytes : public ::testing::TestWithParam<int> {
protected:
    krm_ulong Convert(CKRMCCommandDispData* record, const unsigned char* data, krm_ulong length) {
        return Create(GetParam())->ConvCommandDispData(record, data, length, 1, 8, 0, 0, 5, 3, 0, 0, nullptr);
    }
};

TEST_P(Bytes, NullAndEmptyInputFailsAndChangesNothing) {
    const unsigned char data[] = {'A'};
    CKRMCCommandDispData record;
    MarkAll(record);
    EXPECT_EQ(Convert(nullptr, data, 1), kFailed);
    EXPECT_EQ(Convert(&record, nullptr, 1), kFailed);
    EXPECT_EQ(Convert(&record, data, 0), kFailed);
    EXPECT_TRUE(IsAllMarked(record));
}

TEST_P(Bytes, TheFirstIsRawAndPhysicalValue) {
    const unsigned char data[] = {0xE9, 0x41};
    CKRMCCommandDispData record;
    MarkAll(record);
    EXPECT_EQ(Convert(&record, data, 2), 0U);
    EXPECT_EQ(record.m_ulRawData, 0xE9U);
    EXPECT_EQ(record.m_dDataPhys, 233.0);
    EXPECT_EQ(record.m_ulDataStringId, 0xA1U);
    EXPECT_TRUE(OthersAreMarked(record));
}

INSTANTIATE_TEST_SUITE_P(Converters, Bytes, ::testing::Values(4, 104),
                         [](const auto& it) { return it.param == 4 ? "Ascii" : "ArrayHex"; });

std::string TextOfBytes(int code, const std::vector<unsigned char>& data, CKRMCCommandDispData& record) {
    EXPECT_EQ(Create(code)->ConvCommandDispData(&record, data.data(), static_cast<krm_ulong>(data.size()), 0, 8, 1, 1,
                                                0, 0, 0, 0, nullptr),
              0U);
    EXPECT_EQ(record.m_strDataPhys.GetLength(), std::string(record.m_strDataPhys.GetText()).size());
    return record.m_strDataPhys.GetText();
}

TEST(AsciiText, IsTheBytes) {
    CKRMCCommandDispData record;
    EXPECT_EQ(TextOfBytes(4, {'W', 'P', '0', ' ', '%', 's'}, record), "WP0 %s");
    EXPECT_EQ(TextOfBytes(4, {'A', 0, 'B'}, record), "A");
    EXPECT_EQ(TextOfBytes(4, {'-'}, record), "-");
    EXPECT_EQ(TextOfBytes(4, std::vector<unsigned char>(300, 'x'), record), std::string(255, 'x'));
    EXPECT_EQ(TextOfBytes(4, std::vector<unsigned char>(255, 0xFF), record), std::string(255, '\xFF'));
}

TEST(AsciiText, IsADashWhenTheFirstByteIs0) {
    CKRMCCommandDispData record;
    MarkAll(record);
    EXPECT_EQ(TextOfBytes(4, {0, 'A', 'B'}, record), "-");
    EXPECT_EQ(record.m_ulRawData, 0U);
    EXPECT_EQ(record.m_dDataPhys, 0.0);
    EXPECT_EQ(TextOfBytes(4, {0}, record), "-");
}

TEST(ArrayHexText, IsAppended) {
    CKRMCCommandDispData record;
    EXPECT_EQ(TextOfBytes(104, {0x01, 0xAB}, record), "01AB");
    EXPECT_EQ(TextOfBytes(104, {0x01, 0xAB}, record), "01AB01AB");
    record.m_strDataPhys = "VIN ";
    EXPECT_EQ(TextOfBytes(104, {0x00}, record), "VIN 00");
    EXPECT_EQ(record.m_ulRawData, 0U);
}

TEST(ArrayHexText, TheBytesMayBeTheRecordsOwnText) {
    const std::string text(3000, 'J');
    std::string expected = text;
    for (std::size_t i = 0; i < text.size(); ++i) {
        expected += "4A";
    }
    CKRMCCommandDispData record;
    record.m_strDataPhys = text.c_str();
    const auto* own = reinterpret_cast<const unsigned char*>(record.m_strDataPhys.GetText());
    EXPECT_EQ(Create(104)->ConvCommandDispData(&record, own, 3000, 0, 8, 1, 1, 0, 0, 0, 0, nullptr), 0U);
    EXPECT_EQ(record.m_strDataPhys.GetText(), expected);
}

TEST(ArrayHexText, HasNoLengthLimit) {
    std::vector<unsigned char> data;
    std::string expected;
    for (int i = 0; i < 70000; ++i) {
        data.push_back(static_cast<unsigned char>(i * 7));
        expected += reference::HexDigits(data.back(), 8);
    }
    CKRMCCommandDispData record;
    EXPECT_EQ(TextOfBytes(104, data, record), expected);
}

}  // namespace
}  // namespace krm::test

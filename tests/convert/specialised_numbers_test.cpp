// Physical values of the special signals, and a sweep of every type over all 8 and 16 bit raw values.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "tests/support/converters.h"
#include "tests/support/fields.h"
#include "tests/support/not_under.h"

namespace krm::test {
namespace {

// ---- One type after the other ----

TEST(DiagCodeValue, IsTheRawValueWhateverTheScaling) {
    const Item item{.sign = 1, .bits = 3, .mul = 5, .div = 7, .offset = -9, .decimals = 2};
    for (const int code : {5, 105, 106}) {
        EXPECT_EQ(ValueBy(code, 0x4123, item), 16675.0) << code;
        EXPECT_EQ(ValueBy(code, 0xFFFFFFFFU, item), 4294967295.0) << code;
        EXPECT_EQ(ValueBy(code, 0, item), 0.0) << code;
    }
}

TEST(IlluminanceValue, ChangesItsCurveAtAQuotientOf623) {
    EXPECT_EQ(ValueBy(6, 48), 600.0);
    EXPECT_EQ(ValueBy(6, 49), 562.0);
    EXPECT_EQ(ValueBy(6, 1), 235600.0);
    EXPECT_EQ(ValueBy(6, 0), 0.0);
}

TEST(IlluminanceValue, IsNeverNegative) {
    EXPECT_EQ(ValueBy(6, 600), 0.0);
    EXPECT_EQ(ValueBy(6, 588), 1.0);
    EXPECT_EQ(ValueBy(6, 601), 0.0);
    EXPECT_EQ(ValueBy(6, 30001), 0.0);
    EXPECT_EQ(ValueBy(6, 0xFFFFFFFFU), 0.0);
    EXPECT_FALSE(std::signbit(ValueBy(6, 0xFFFFFFFFU)));
}

TEST(IlluminanceValue, IgnoresTheScaling) {
    EXPECT_EQ(ValueBy(6, 48, {.sign = 1, .bits = 5, .mul = 0, .div = 3, .offset = 8, .decimals = 3}), 600.0);
    EXPECT_EQ(DisplayBy(6, 48, {.decimals = 3}), "600.000");
}

TEST(IlluminanceMinMaxValue, ChangesItsSlopeAbove3000) {
    EXPECT_EQ(ValueBy(24, 0), 0.0);
    EXPECT_EQ(ValueBy(24, 1), 0.0);
    EXPECT_EQ(ValueBy(24, 3), 1.0);
    EXPECT_EQ(ValueBy(24, 3000), 1500.0);
    EXPECT_EQ(ValueBy(24, 3001), 1508.0);
    EXPECT_EQ(ValueBy(24, 3001, {.sign = 3, .bits = 4, .mul = 9, .div = 9, .offset = 9, .decimals = 9}), 1508.0);
}

TEST(IlluminanceMinMaxValue, WrapsIn32Bits) {
    EXPECT_EQ(ValueBy(24, 0x20000000), 4294944796.0);  // -22500
    EXPECT_EQ(ValueBy(24, 0xFFFFFFFFU), 4294944788.0);
    EXPECT_EQ(ValueBy(24, 0x20000000U + 2813), 4.0);
}

TEST(ChassisValue, TheLastBitIsTheSign) {
    EXPECT_EQ(ValueBy(10, 0x01), 0.0);
    EXPECT_FALSE(std::signbit(ValueBy(10, 0x01)));
    EXPECT_EQ(ValueBy(10, 0x81), -1.0);
    EXPECT_EQ(ValueBy(10, 0x80), 1.0);
    EXPECT_EQ(ValueBy(10, 0xFF), -127.0);
    EXPECT_EQ(ValueBy(7, 0x40FF), -255.0);
    EXPECT_EQ(ValueBy(8, 0x10FF), -255.0);
}

TEST(ChassisValue, BitsAreMirroredWithinEachByte) {
    EXPECT_EQ(ValueBy(11, 0x0001), 128.0);
    EXPECT_EQ(ValueBy(11, 0x0100), 32768.0);
    EXPECT_EQ(ValueBy(11, 0x8000), 256.0);
    EXPECT_EQ(ValueBy(11, 0xFFFF), 65535.0);
    EXPECT_EQ(ValueBy(9, 0xC000), 768.0);
    EXPECT_EQ(ValueBy(9, 0x3F00), 0.0);
}

TEST(ChassisValue, ScalesInWholeNumbersAndShiftsThePlaces) {
    // 5 x 7 / 4 is 8, not 8.75; truncation goes toward zero on both sides.
    const Item item{.mul = 7, .div = 4, .offset = 0, .decimals = 1};
    EXPECT_EQ(ValueBy(10, 0xA0, item), 0.8);
    EXPECT_EQ(ValueBy(10, 0xA1, item), -0.8);
    EXPECT_EQ(ValueBy(10, 0xA0, {.mul = 7, .div = -4, .offset = 100, .decimals = 0}), 92.0);
    EXPECT_EQ(ValueBy(10, 0xA0, {.mul = 7, .div = 0}), 35.0);
    EXPECT_EQ(ValueBy(10, 0xA0, {.mul = 0, .div = 3, .offset = -4}), -4.0);
    EXPECT_EQ(ValueBy(10, 0xA0, {.sign = 1, .bits = 3}), 5.0);
}

TEST(ChassisValue, HoldsTheLargestProducts) {
    const krm_long lowest = std::numeric_limits<krm_long>::min();
    EXPECT_EQ(ValueBy(11, 0xFFFF, {.mul = lowest, .div = 1, .offset = lowest}), -65535.0 * 2147483648.0 - 2147483648.0);
    EXPECT_EQ(ValueBy(11, 0xFFFF, {.mul = lowest, .div = -1}), 65535.0 * 2147483648.0);
}

TEST(ChassisValue, WidthsUpTo32BitsMatchTheReference) {
    Seed seed(8);
    for (unsigned width = 0; width <= 32; ++width) {
        for (const bool hasSign : {false, true}) {
            CKRMCCommandConvSignalDataChassis chassis(width, hasSign);
            for (int round = 0; round < 300; ++round) {
                const Item item{.mul = static_cast<krm_long>(seed.Next() % 2000) - 1000,
                                .div = static_cast<krm_long>(seed.Next() % 40) - 20,
                                .offset = static_cast<krm_long>(seed.Next()),
                                .decimals = static_cast<unsigned char>(seed.Next() % 4)};
                const krm_ulong raw = seed.Next();
                double value = 0;
                ASSERT_EQ(Arguments(item).Value(chassis, &value, raw), 0U);
                ASSERT_TRUE(SameDouble(value, reference::Chassis(raw, width, hasSign, item)))
                    << width << ' ' << hasSign << ' ' << raw;
            }
        }
    }
}

TEST(ChassisValue, WiderThanARawValueIsSafe) {
    for (const krm_ulong width : {33U, 63U, 64U, 65U, 100U, 1000U, 70000U}) {
        for (const bool hasSign : {false, true}) {
            CKRMCCommandConvSignalDataChassis chassis(width, hasSign);
            double value = std::numeric_limits<double>::quiet_NaN();
            EXPECT_EQ(Arguments({}).Value(chassis, &value, 0x80), 0U);
            EXPECT_EQ(value, 1.0) << width;  // the bits beyond are 0, the sign among them
        }
    }
}

TEST(ReversalValue, SwapsTheTwoLowBytesOnly) {
    const Item item{.bits = 32};
    EXPECT_EQ(ValueBy(12, 0x1234, item), 0x3412);
    EXPECT_EQ(ValueBy(12, 0xABCD1234U, item), 2882352146.0);  // 0xABCD3412
    EXPECT_EQ(ValueBy(12, 0x00FF, {.sign = 1, .bits = 16, .mul = 2, .div = 4, .offset = 4, .decimals = 1}), -12.4);
    EXPECT_EQ(DisplayBy(12, 0x0100, {.bits = 16, .decimals = 1}), "0.1");
}

TEST(ReversalValue, TheRecordKeepsTheRawValueAsPassed) {
    CKRMCCommandDispData record;
    EXPECT_EQ(Arguments({.bits = 16}).Raw(*Create(12), &record, 0x1234), 0U);
    EXPECT_EQ(record.m_ulRawData, 0x1234U);
    EXPECT_EQ(record.m_dDataPhys, 0x3412);
}

TEST(DateValue, ScalesThreeBytesSeparately) {
    for (const int code : {15, 16}) {
        EXPECT_EQ(ValueBy(code, 0x170C1F), 0x170C1F) << code;
        EXPECT_EQ(ValueBy(code, 0xFF170C1FU), 0x170C1F) << code;
        EXPECT_EQ(ValueBy(code, 0x030201, {.mul = 3, .offset = 1}), 0x0A0704) << code;
        // Bit length and decimal places play no part: 8 and 0.
        EXPECT_EQ(ValueBy(code, 0x0A0B0C, {.bits = 3, .decimals = 2}), 0x0A0B0C) << code;
        EXPECT_EQ(ValueBy(code, 0x030507, {.div = 2}), 0x010203) << code;
    }
}

TEST(DateValue, PartsAreNotMasked) {
    for (const int code : {15, 16}) {
        EXPECT_EQ(ValueBy(code, 0x000001, {.offset = 255}), 0x00FFFF00 | 0x100) << code;
        EXPECT_EQ(ValueBy(code, 0x0000FF, {.sign = 1}), 4294967295.0) << code;
        EXPECT_EQ(ValueBy(code, 0x00FF00, {.sign = 1}), 4294967040.0) << code;  // 0xFFFFFF00
        EXPECT_EQ(ValueBy(code, 0x850000, {.sign = 3}), 4294639616.0) << code;  // -5 x 65536
    }
}

TEST(HoursAndMinutesValue, OfMinutes) {
    for (const int code : {19, 111}) {
        EXPECT_EQ(ValueBy(code, 135, {.bits = 16}), 0x020F) << code;
        EXPECT_EQ(ValueBy(code, 0, {.bits = 16}), 0) << code;
        EXPECT_EQ(ValueBy(code, 59, {.bits = 16}), 59) << code;
        EXPECT_EQ(ValueBy(code, 60, {.bits = 16}), 256) << code;
        EXPECT_EQ(ValueBy(code, 1500, {.bits = 16}), 25 * 256) << code;
        // Unsigned whatever the sign code, and without decimal places.
        EXPECT_EQ(ValueBy(code, 0xFF, {.sign = 1, .decimals = 3}), 4 * 256 + 15) << code;
        EXPECT_EQ(ValueBy(code, 27, {.mul = 10, .div = 2, .offset = 1}), 2 * 256 + 16) << code;
    }
}

TEST(HoursAndMinutesValue, OfNegativeMinutesWraps) {
    for (const int code : {19, 111}) {
        // 4294967295 minutes are 71582788 hours and 15 minutes; the hours lose their highest bits.
        EXPECT_EQ(ValueBy(code, 0, {.offset = -1}), static_cast<double>((71582788ULL * 256 + 15) % 4294967296ULL))
            << code;
    }
}

TEST(BcdValue, ReadsDigits) {
    EXPECT_EQ(ValueBy(101, 0x1234, {.bits = 16}), 1234.0);
    EXPECT_EQ(ValueBy(101, 0x1234, {.bits = 16, .decimals = 2}), 12.34);
    EXPECT_EQ(ValueBy(101, 0x98765432U, {.bits = 32}), 98765432.0);
    EXPECT_EQ(ValueBy(101, 0x1234, {.bits = 8}), 34.0);
    EXPECT_EQ(ValueBy(101, 0x1234, {.sign = 1, .bits = 16, .mul = 0, .div = 9, .offset = 9}), 1234.0);
}

TEST(BcdValue, ALeading15MakesItNegative) {
    EXPECT_EQ(ValueBy(101, 0xF012, {.bits = 16}), -12.0);
    EXPECT_EQ(ValueBy(101, 0x0F12, {.bits = 16}), -12.0);
    EXPECT_EQ(ValueBy(101, 0xFF12, {.bits = 16}), -12.0);
    // Behind a digit it is but a place without a value.
    EXPECT_EQ(ValueBy(101, 0x1F12, {.bits = 16}), 1012.0);
    EXPECT_EQ(ValueBy(101, 0xF000, {.bits = 16}), 0.0);
    EXPECT_FALSE(std::signbit(ValueBy(101, 0xF000, {.bits = 16})));
}

TEST(BcdValue, OtherNibblesKeepTheirPlace) {
    EXPECT_EQ(ValueBy(101, 0x1A2E, {.bits = 16}), 1020.0);
    EXPECT_EQ(ValueBy(101, 0xA00C, {.bits = 16}), 0.0);
}

TEST(BcdValue, EveryShortBitLengthMatchesTheReference) {
    Seed seed(101);
    for (unsigned short bits = 0; bits <= 40; ++bits) {
        for (int round = 0; round < 500; ++round) {
            const Item item{.bits = bits, .decimals = static_cast<unsigned char>(round % 4)};
            const krm_ulong raw = round % 3 == 0 ? seed.Next() & 0x99999999U : seed.Next();
            ASSERT_TRUE(SameDouble(ValueBy(101, raw, item), reference::Bcd(raw, item))) << raw << ' ' << bits;
        }
    }
    // With 0 bits the body runs once, and takes the highest nibble.
    EXPECT_EQ(ValueBy(101, 0x71234567, {.bits = 0}), 7.0);
    EXPECT_EQ(ValueBy(101, 0x00000012, {.bits = 40}), 1200000012.0);
}

TEST(BcdValue, TheLongestBitLengthsEnd) {
    for (const krm_ulong bits : {65532U, 65533U, 65534U, 65535U}) {
        const Item item{.bits = static_cast<unsigned short>(bits)};
        EXPECT_EQ(ValueBy(101, 0, item), 0.0) << bits;
        double value = -1;
        EXPECT_EQ(Arguments(item).Value(*Create(101), &value, 0x12345678), 0U) << bits;
    }
}

TEST(InclineValue, IsTheSlopeInPercent) {
    EXPECT_TRUE(NearlySameDouble(ValueBy(102, 0), 0.0));
    EXPECT_NEAR(ValueBy(102, 49, {}), 100 * std::tan(std::asin(0.5)), 1e-10);
    EXPECT_NEAR(ValueBy(102, 0x80 | 49, {.sign = 3}), -100 * std::tan(std::asin(0.5)), 1e-10);
    EXPECT_NEAR(ValueBy(102, 49, {}), 100 / std::sqrt(3.0), 1e-10);
}

TEST(InclineValue, IsClampedTo100Percent) {
    EXPECT_EQ(ValueBy(102, 70), 100.0);
    EXPECT_EQ(ValueBy(102, 97), 100.0);
    EXPECT_EQ(ValueBy(102, 0x80 | 70, {.sign = 3}), -100.0);
    EXPECT_EQ(ValueBy(102, 0x80 | 97, {.sign = 3}), -100.0);
    EXPECT_LT(ValueBy(102, 69), 100.0);
}

TEST(InclineValue, BeyondTheVerticalIsNotANumber) {
    EXPECT_TRUE(std::isnan(ValueBy(102, 99)));
    EXPECT_TRUE(std::isnan(ValueBy(102, 0x80 | 99, {.sign = 3})));
    // Uphill and downhill alike, and without a sign on every platform.
    for (const Item& item : {Item{.sign = 3}, Item{.sign = 3, .mul = 100, .decimals = 2}}) {
        for (const krm_ulong raw : {99U, 0x80U | 99U}) {
            CKRMCCommandDispData record;
            EXPECT_EQ(Arguments(item).Raw(*Create(102), &record, raw), 0U);
            EXPECT_TRUE(std::isnan(record.m_dDataPhys));
            EXPECT_FALSE(std::signbit(record.m_dDataPhys));
            EXPECT_STREQ(record.m_strDataPhys.GetText(), "nan");
        }
    }
}

TEST(Special2Value, FallsFrom11Point515) {
    EXPECT_EQ(ValueBy(110, 0), 11.515);
    EXPECT_EQ(ValueBy(110, 100), 11.515 - 100 * 0.0338);
    EXPECT_EQ(DisplayBy(110, 100, {.decimals = 3}), "11.512");  // the decimal places scale the value, too
    EXPECT_EQ(ValueBy(110, 0xFF, {.sign = 1, .mul = 10}), 11.515 + 10 * 0.0338);
}

TEST(Special3Value, IsAThermistorsTemperature) {
    // At a ratio of 1 the logarithm vanishes and the constant alone is left: 20 degrees. That lies between two values.
    EXPECT_NEAR(1 / 0.003411222923418046 - 273.15, 20.0, 1e-9);
    EXPECT_TRUE(NearlySameDouble(ValueBy(114, 0), ValueBy(114, 1)));
    EXPECT_TRUE(NearlySameDouble(ValueBy(114, 256), ValueBy(114, 255)));
    EXPECT_TRUE(NearlySameDouble(ValueBy(114, 0xFFFFFFFFU), ValueBy(114, 255)));
    const Item scaled{.sign = 1, .bits = 2, .mul = 3, .div = 4, .offset = 5, .decimals = 6};
    for (krm_ulong raw = 0; raw < 300; ++raw) {
        EXPECT_TRUE(NearlySameDouble(ValueBy(114, raw, scaled), reference::Special3(raw))) << raw;
        if (raw > 1 && raw <= 255) {
            EXPECT_GT(ValueBy(114, raw), ValueBy(114, raw - 1)) << raw;
        }
    }
}

// ---- Every type over the full range ----

class Sweep {
public:
    explicit Sweep(int code) : m_code(code), m_converter(Create(code)) {}

    // Both composites of each raw value from 0 to `last`, in steps.
    void Run(const Item& item, krm_ulong last, krm_ulong step = 1) {
        Arguments arguments(item);
        for (krm_ulong raw = 0; raw <= last; raw += step) {
            CheckPlain(arguments, raw);
            if (raw % 16 == m_phase) {
                CheckVariable(arguments, raw);
            }
        }
        m_phase = (m_phase + 5) % 16;
    }
    int Mismatches() const { return m_mismatches; }

private:
    void CheckPlain(Arguments& arguments, krm_ulong raw) {
        m_record.m_ulDataStringId = 0xA1;
        const krm_ulong status = arguments.Raw(*m_converter, &m_record, raw);
        if (m_code == 113 && arguments.item.bits > 32) {
            Expect(status == kFailed, arguments.item, raw, "status");
            return;
        }
        reference::Text expected;
        if (m_code == 105 || m_code == 106) {
            expected.text = m_record.m_strDataPhys.GetText();  // the locale's; its tests stand elsewhere
        } else {
            expected = reference::TextOf(m_code, m_record.m_dDataPhys, raw, arguments.item);
        }
        if (m_code == 107 || m_code == 108) {
            expected.id = 0xA1;  // these leave it alone
        }
        Check(arguments.item, status, raw, expected);
    }
    void CheckVariable(Arguments& arguments, krm_ulong raw) {
        m_record.m_ulDataStringId = 0xA1;
        const krm_ulong status = arguments.Variable(*m_converter, &m_record, raw);
        Check(arguments.item, status, raw, VariableTextOf(m_record.m_dDataPhys, arguments.item));
    }
    reference::Text VariableTextOf(double phys, const Item& item) const {
        if (m_code != 1 && m_code != 20 && m_code != 22) {
            return {reference::Decimal(phys, item.decimals), 0};
        }
        for (const Pattern& pattern : item.patterns) {
            if (static_cast<double>(pattern.key) == phys) {
                return {pattern.text, pattern.id};
            }
        }
        Item none = item;
        none.patterns.clear();
        return reference::PatternText(phys, none);
    }
    void Check(const Item& item, krm_ulong status, krm_ulong raw, const reference::Text& expected) {
        const double value = reference::ValueOf(m_code, raw, item);
        const bool exact = m_code != 102 && m_code != 114;
        Expect(status == 0, item, raw, "status");
        Expect(m_record.m_ulRawData == raw, item, raw, "raw value");
        Expect(exact ? SameDouble(m_record.m_dDataPhys, value) : NearlySameDouble(m_record.m_dDataPhys, value), item,
               raw, "physical value " + std::to_string(value));
        const std::string got = m_record.m_strDataPhys.GetText();
        Expect(got == expected.text || (expected.text == "nan" && got == "-nan"), item, raw, "text " + expected.text);
        Expect(m_record.m_ulDataStringId == expected.id, item, raw, "string ID " + std::to_string(expected.id));
    }
    void Expect(bool holds, const Item& item, krm_ulong raw, const std::string& what) {
        if (!holds && ++m_mismatches <= 5) {
            ADD_FAILURE() << "type " << m_code << " raw " << raw << " sign " << +item.sign << " bits " << item.bits
                          << " x " << item.mul << " / " << item.div << " + " << item.offset << " places "
                          << +item.decimals << " limits " << item.max << ' ' << item.min << ": expected " << what
                          << ", got " << m_record.m_dDataPhys << " \"" << m_record.m_strDataPhys.GetText() << "\" "
                          << m_record.m_ulDataStringId;
        }
    }

    int m_code;
    ConverterPtr m_converter;
    CKRMCCommandDispData m_record;
    krm_ulong m_phase = 0;
    int m_mismatches = 0;
};

class EveryType : public ::testing::TestWithParam<int> {
protected:
    void SetUp() override {
        if (!reference::kHasExtendedPrecision) {
            GTEST_SKIP() << "this compiler's long double can't hold the reference";
        }
    }
};

TEST_P(EveryType, All8BitValues) {
    KRM_NOT_UNDER(Memcheck, "the sweep would take hours");
    Sweep sweep(GetParam());
    const std::vector<Pattern> patterns = {{0, "off", 70}, {1, "on", 71}, {1, "second", 72}, {200, "many", 73}};
    for (const unsigned sign : {0U, 1U, 2U, 3U, 255U}) {
        for (const unsigned bits : {0U, 1U, 4U, 7U, 8U, 9U, 16U, 32U, 33U, 40U}) {
            Item item{.sign = static_cast<unsigned char>(sign),
                      .bits = static_cast<unsigned short>(bits),
                      .max = 0xC8,
                      .min = 0x0A};
            sweep.Run(item, 0xFF, 3);
            item.patterns = patterns;
            sweep.Run(item, 0xFF);
            item.mul = -7;
            item.div = 3;
            item.offset = 11;
            item.decimals = 2;
            item.defaultText = "other";
            item.defaultId = 99;
            item.max = 0x7F;
            item.min = 0x80;
            sweep.Run(item, 0xFF);
            item.div = -9;
            item.mul = 0;
            sweep.Run(item, 0xFF, 17);
        }
    }
    EXPECT_EQ(sweep.Mismatches(), 0);
}

TEST_P(EveryType, All16BitValues) {
    KRM_NOT_UNDER(Memcheck, "the sweep would take hours");
    Sweep sweep(GetParam());
    Item item{.sign = 1, .bits = 16, .mul = 3, .div = 8, .offset = -400, .decimals = 1, .max = 0x7000, .min = 0x9000};
    item.patterns = {{0, "low", 70}, {1, "high", 71}, {700, "seven hundred", 72}};
    sweep.Run(item, 0xFFFF);
    item = {.sign = 0, .bits = 16, .max = 60000, .min = 100};
    item.patterns = {{1, "high", 71}, {0x1234, "here", 75}, {0x1234, "not here", 76}};
    item.defaultText = "default";
    item.defaultId = 5;
    sweep.Run(item, 0xFFFF, 2);
    item = {.sign = 3, .bits = 12, .mul = 1, .div = 7, .offset = 3, .decimals = 3, .max = 0x7FF, .min = 0xFFF};
    sweep.Run(item, 0xFFFF, 3);
    EXPECT_EQ(sweep.Mismatches(), 0);
}

TEST_P(EveryType, ValuesOver32Bits) {
    KRM_NOT_UNDER(Memcheck, "the sweep would take hours");
    Sweep sweep(GetParam());
    Item item{.sign = 1,
              .bits = 32,
              .mul = 12345,
              .div = 678,
              .offset = -9012,
              .decimals = 4,
              .max = 0x70000000,
              .min = 0xF0000000U};
    item.patterns = {{0, "low", 70}, {1, "high", 71}};
    sweep.Run(item, 0xFFF00000U, 1000003);
    item.sign = 0;
    item.mul = 1;
    item.div = 0;
    item.decimals = 0;
    item.offset = 0;
    sweep.Run(item, 0xFFF00000U, 999983);
    EXPECT_EQ(sweep.Mismatches(), 0);
}

std::vector<int> TypesOfRawValues() {
    std::vector<int> codes;
    for (const int code : AllCodes()) {
        if (code != 4 && code != 104) {
            codes.push_back(code);
        }
    }
    return codes;
}

INSTANTIATE_TEST_SUITE_P(Converters, EveryType, ::testing::ValuesIn(TypesOfRawValues()),
                         [](const auto& it) { return "Type" + std::to_string(it.param); });

TEST(ByteTypes, GiveNumbersForRawValues) {
    for (const int code : {4, 104}) {
        Sweep sweep(code);
        sweep.Run({.sign = 1, .bits = 8, .mul = 5, .div = 3, .offset = 2, .decimals = 1}, 0xFF);
        EXPECT_EQ(sweep.Mismatches(), 0) << code;
    }
}

}  // namespace
}  // namespace krm::test

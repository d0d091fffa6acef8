// Raw value to physical value and back, for every raw value of every bit length to 16: which of them come back, and what
// the others become.
#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <ostream>
#include <string>
#include <vector>

#include "tests/support/converters.h"
#include "tests/support/not_under.h"

namespace krm::test {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr krm_long kLowest = std::numeric_limits<krm_long>::min();
constexpr krm_long kHighest = std::numeric_limits<krm_long>::max();
constexpr unsigned kMostBits = 16;

struct Scaling {
    const char* name;
    krm_long mul = 1;
    krm_long div = 1;
    krm_long offset = 0;
    unsigned char decimals = 0;
};

void PrintTo(const Scaling& scaling, std::ostream* out) {
    *out << scaling.name;
}

constexpr Scaling kScalings[] = {
    {.name = "None"},
    {.name = "Temperature", .mul = 1, .div = 1, .offset = -400, .decimals = 1},
    {.name = "EngineSpeed", .mul = 1, .div = 4},
    {.name = "Percent", .mul = 100, .div = 255, .offset = 0, .decimals = 2},
    {.name = "Hundredths", .decimals = 2},
    {.name = "Negative", .mul = -5, .div = -8, .offset = 3},
    {.name = "ZeroDivisor", .div = 0, .offset = -3},
    {.name = "NegativeDivisor", .div = -7, .offset = 65535, .decimals = 3},
    {.name = "Largest", .mul = kHighest, .div = kLowest, .offset = kHighest, .decimals = 9},
};

// What the bits stand for.
constexpr std::int64_t NumberOf(krm_ulong raw, unsigned sign, unsigned bits) {
    const std::int64_t half = std::int64_t{1} << (bits - 1);
    const std::int64_t number = raw;
    if (number < half || (sign != 1 && sign != 3)) {
        return number;
    }
    return sign == 1 ? number - 2 * half : half - number;
}

// The raw values of the largest and the smallest number.
constexpr krm_ulong HighestRaw(unsigned sign, unsigned bits) {
    const krm_ulong half = krm_ulong{1} << (bits - 1);
    return sign == 1 || sign == 3 ? half - 1 : 2 * half - 1;
}
constexpr krm_ulong LowestRaw(unsigned sign, unsigned bits) {
    const krm_ulong half = krm_ulong{1} << (bits - 1);
    return sign == 1 ? half : sign == 3 ? 2 * half - 1 : 0;
}
static_assert(NumberOf(HighestRaw(1, 8), 1, 8) == 127 && NumberOf(LowestRaw(1, 8), 1, 8) == -128);
static_assert(NumberOf(HighestRaw(3, 8), 3, 8) == 127 && NumberOf(LowestRaw(3, 8), 3, 8) == -127);
static_assert(NumberOf(HighestRaw(2, 8), 2, 8) == 255 && NumberOf(LowestRaw(2, 8), 2, 8) == 0);

// How a number comes back: in 32 bits of two's complement, but as its magnitude where the sign code has one.
constexpr krm_ulong Returned(std::int64_t number, unsigned sign) {
    return static_cast<krm_ulong>(sign == 3 && number < 0 ? -number : number);
}

bool IsPowerOfTwo(krm_long value) {
    return std::has_single_bit(static_cast<std::uint32_t>(value < 0 ? -std::int64_t{value} : std::int64_t{value}));
}

/// Counts what differs and shows the first few.
class Differences {
public:
    ~Differences() { EXPECT_EQ(m_count, 0); }
    void Expect(bool same, const char* what, krm_ulong raw, krm_ulong back, unsigned sign, unsigned bits) {
        if (!same && ++m_count <= 5) {
            ADD_FAILURE() << what << ": " << raw << " came back as " << back << ", sign code " << sign << ", " << bits
                          << " bits";
        }
    }

private:
    int m_count = 0;
};

class RoundTrip : public ::testing::TestWithParam<Scaling> {
protected:
    /// Calls `visit(raw, number, physical value, item)` for every raw value of every length and sign code. The item's
    /// limits are the largest and smallest number that the bits hold.
    template <class Visit>
    void ForEveryRawValue(Visit visit) {
        const Scaling& scaling = GetParam();
        for (const unsigned sign : {0U, 1U, 2U, 3U}) {
            for (unsigned bits = 1; bits <= kMostBits; ++bits) {
                const Item item{.sign = static_cast<unsigned char>(sign),
                                .bits = static_cast<unsigned short>(bits),
                                .mul = scaling.mul,
                                .div = scaling.div,
                                .offset = scaling.offset,
                                .decimals = scaling.decimals,
                                .max = HighestRaw(sign, bits),
                                .min = LowestRaw(sign, bits)};
                for (krm_ulong raw = 0; raw < krm_ulong{1} << bits; ++raw) {
                    visit(raw, NumberOf(raw, sign, bits), Physical(raw, item), item);
                }
            }
        }
    }

    double Physical(krm_ulong raw, const Item& item) {
        double value = kInfinity;
        m_status |= m_converter.ValueConversion(&value, raw, item.sign, item.bits, item.mul, item.div, item.offset,
                                                item.decimals);
        return value;
    }
    krm_ulong ByRawLimits(double value, const Item& item) {
        krm_ulong result = 0xDEADBEEFU;
        m_status |= m_converter.ConvLogicalValue(&result, value, item.sign, item.bits, item.mul, item.div, item.offset,
                                                 item.decimals, item.max, item.min);
        return result;
    }
    krm_ulong ByLimits(double value, const Item& item, double max, double min) {
        krm_ulong result = 0xDEADBEEFU;
        m_status |= m_converter.ConvLogicalValue(&result, value, item.sign, item.bits, item.mul, item.div, item.offset,
                                                 item.decimals, max, min);
        return result;
    }
    void TearDown() override { EXPECT_EQ(m_status, 0U); }

private:
    CKRMCCommandConvSignalData m_converter;
    krm_ulong m_status = 0;
};

// Rounding makes up for whatever the scaling's last bits lost: every raw value comes back. Two's complement comes back
// with its sign in all 32 bits, sign and magnitude without its sign.
TEST_P(RoundTrip, RoundingBringsBackEveryValue) {
    KRM_NOT_UNDER(Memcheck, "the sweep would take hours");
    Differences differences;
    ForEveryRawValue([&](krm_ulong raw, std::int64_t number, double value, const Item& item) {
        const krm_ulong back = ByLimits(value, item, kInfinity, -kInfinity);
        differences.Expect(back == Returned(number, item.sign), "not the number", raw, back, item.sign, item.bits);
        if (item.sign != 3 || number > 0) {
            const krm_ulong mask = (krm_ulong{1} << item.bits) - 1;
            differences.Expect((back & mask) == raw, "not the bits", raw, back, item.sign, item.bits);
        }
    });
}

// Limits in the middle of the range: what is beyond comes back as the limit, all else as itself.
TEST_P(RoundTrip, PhysicalLimitsClamp) {
    KRM_NOT_UNDER(Memcheck, "the sweep would take hours");
    Differences differences;
    const bool falls = (GetParam().mul < 0) != (GetParam().div < 0);
    ForEveryRawValue([&](krm_ulong raw, std::int64_t number, double value, const Item& item) {
        // A quarter up from the lowest number, whichever way the sign code counts there.
        const krm_ulong rawLow = item.min == 0    ? item.max / 4
                                 : item.sign == 1 ? item.min + item.max / 4
                                                  : item.min - (item.min - item.max) / 4;
        const krm_ulong rawHigh = item.max / 2;
        const std::int64_t low = NumberOf(rawLow, item.sign, item.bits);
        const std::int64_t high = NumberOf(rawHigh, item.sign, item.bits);
        const double atLow = Physical(rawLow, item);
        const double atHigh = Physical(rawHigh, item);
        const krm_ulong back = ByLimits(value, item, falls ? atLow : atHigh, falls ? atHigh : atLow);
        const krm_ulong expected = Returned(std::clamp(number, std::min(low, high), std::max(low, high)), item.sign);
        differences.Expect(low > high || back == expected, "not clamped", raw, back, item.sign, item.bits);
    });
}

// Truncation needs every step to be exact, or the value may come back one nearer to zero. Steps are exact without
// decimals and with a divisor that is a power of two; and one decimal place always comes back, as ten is the sum of two
// powers of two. The limits come back as they were passed: with their bits, not as numbers.
TEST_P(RoundTrip, TruncationBringsBackWhatIsExactAndLosesAtMostOne) {
    KRM_NOT_UNDER(Memcheck, "the sweep would take hours");
    const Scaling& scaling = GetParam();
    const bool exact = scaling.decimals == 0 ? IsPowerOfTwo(scaling.div)
                                             : scaling.decimals == 1 && scaling.mul == 1 && scaling.div == 1;
    Differences differences;
    int losses = 0;
    ForEveryRawValue([&](krm_ulong raw, std::int64_t number, double value, const Item& item) {
        const krm_ulong back = ByRawLimits(value, item);
        const auto expect = [&](bool same, const char* what) {
            differences.Expect(same, what, raw, back, item.sign, item.bits);
        };
        const auto atLimit = [&](std::int64_t reached) {
            return reached >= NumberOf(item.max, item.sign, item.bits)   ? item.max
                   : reached <= NumberOf(item.min, item.sign, item.bits) ? item.min
                                                                         : Returned(reached, item.sign);
        };
        const std::int64_t nearer = number - (number > 0 ? 1 : number < 0 ? -1 : 0);
        if (back != atLimit(number)) {
            ++losses;
            expect(!exact, "lost although every step is exact");
            expect(back == atLimit(nearer), "lost more than one");
        }
        expect(back == reference::LogicalByRawLimits(value, item), "not what double arithmetic gives");
    });
    // That values do get lost is part of the rule: typing "0.29" must give the 28 that it always gave.
    const std::string name = scaling.name;
    if (name == "Hundredths" || name == "Percent" || name == "NegativeDivisor") {
        EXPECT_GT(losses, 0);
    }
}

// Scalings that lose nothing to truncation.
class ExactRoundTrip : public RoundTrip {};

// Limits anywhere in the range, one of them with bits above the bit length, which the value's own bits don't have.
TEST_P(ExactRoundTrip, RawLimitsComeBackAsPassed) {
    KRM_NOT_UNDER(Memcheck, "the sweep would take hours");
    Differences differences;
    ForEveryRawValue([&](krm_ulong raw, std::int64_t number, double value, Item item) {
        const krm_ulong stray = item.sign == 1 ? krm_ulong{0xA0000} : krm_ulong{0};
        item.min =
            item.sign == 1 ? item.min | stray : item.max / 4;  // below zero: the sign fills the bits above anyway
        item.max = item.max / 2;
        const std::int64_t high = NumberOf(item.max, item.sign, item.bits);
        const std::int64_t low = NumberOf(item.min & ~stray, item.sign, item.bits);
        const krm_ulong back = ByRawLimits(value, item);
        const krm_ulong expected = number >= high ? item.max : number <= low ? item.min : Returned(number, item.sign);
        differences.Expect(back == expected, "not the limit", raw, back, item.sign, item.bits);
    });
}

std::string NameOf(const ::testing::TestParamInfo<Scaling>& it) {
    return it.param.name;
}
INSTANTIATE_TEST_SUITE_P(Scalings, RoundTrip, ::testing::ValuesIn(kScalings), NameOf);
INSTANTIATE_TEST_SUITE_P(Scalings, ExactRoundTrip,
                         ::testing::Values(Scaling{.name = "None"}, Scaling{.name = "EngineSpeed", .mul = 1, .div = 4},
                                           Scaling{.name = "Negative", .mul = -5, .div = -8, .offset = 3}),
                         NameOf);

// A multiplier of 0 makes every raw value the same; none of them comes back, but each call ends in the value that what no
// integer holds has under its sign code.
TEST(RoundTripWithoutMultiplier, GivesOneValueForAll) {
    KRM_NOT_UNDER(Memcheck, "the sweep would take hours");
    CKRMCCommandConvSignalData converter;
    for (const unsigned char sign : std::vector<unsigned char>{0, 1, 2, 3}) {
        for (unsigned short bits = 1; bits <= kMostBits; ++bits) {
            const krm_ulong half = krm_ulong{1} << (bits - 1);
            const krm_ulong expected = sign == 1 ? ~half + 1 : sign == 3 ? half : 0;
            for (krm_ulong raw = 0; raw < 2 * half; ++raw) {
                double value = -1;
                ASSERT_EQ(converter.ValueConversion(&value, raw, sign, bits, 0, 1, 7, 1), 0U);
                EXPECT_EQ(value, 0.7);
                krm_ulong back = 1;
                ASSERT_EQ(converter.ConvLogicalValue(&back, value, sign, bits, 0, 1, 7, 1, kInfinity, -kInfinity), 0U);
                EXPECT_EQ(back, expected) << raw << ' ' << +sign << ' ' << bits;
                const krm_ulong max = HighestRaw(sign, bits);
                const krm_ulong min = LowestRaw(sign, bits);
                ASSERT_EQ(converter.ConvLogicalValue(&back, value, sign, bits, 0, 1, 7, 1, max, min), 0U);
                EXPECT_EQ(back, min) << raw << ' ' << +sign << ' ' << bits;
            }
        }
    }
}

// The values that truncation loses are known ones.
TEST(RoundTripTruncated, LosesKnownHundredths) {
    KRM_NOT_UNDER(Memcheck, "the sweep would take hours");
    CKRMCCommandConvSignalData converter;
    std::vector<krm_ulong> lost;
    const krm_ulong max = 255;
    const krm_ulong min = 0;
    for (krm_ulong raw = 0; raw <= max; ++raw) {
        double value = 0;
        ASSERT_EQ(converter.ValueConversion(&value, raw, 0, 8, 1, 1, 0, 2), 0U);
        krm_ulong back = 0;
        ASSERT_EQ(converter.ConvLogicalValue(&back, value, 0, 8, 1, 1, 0, 2, max, min), 0U);
        if (back != raw) {
            EXPECT_EQ(back, raw - 1);
            lost.push_back(raw);
        }
    }
    EXPECT_EQ(lost, (std::vector<krm_ulong>{29, 57, 58, 113, 114, 115, 116, 201, 203, 205, 207, 226, 228, 230, 232, 251,
                                            253, 255}));
}

// Sign codes without a meaning count as unsigned, both ways.
TEST(RoundTripOfEverySignCode, RoundingBringsBackEveryValue) {
    KRM_NOT_UNDER(Memcheck, "the sweep would take hours");
    CKRMCCommandConvSignalData converter;
    Differences differences;
    for (unsigned sign = 0; sign <= 255; ++sign) {
        const auto code = static_cast<unsigned char>(sign);
        for (unsigned short bits = 1; bits <= 10; ++bits) {
            for (krm_ulong raw = 0; raw < krm_ulong{1} << bits; ++raw) {
                double value = kInfinity;
                krm_ulong back = 0xDEADBEEFU;
                ASSERT_EQ(converter.ValueConversion(&value, raw, code, bits, 5, 4, -400, 1), 0U);
                ASSERT_EQ(converter.ConvLogicalValue(&back, value, code, bits, 5, 4, -400, 1, kInfinity, -kInfinity),
                          0U);
                differences.Expect(back == Returned(NumberOf(raw, sign, bits), sign), "not the number", raw, back, sign,
                                   bits);
            }
        }
    }
}

// A bit length of 0 counts as 32 on the way to the number. On the way back sign code 0, which alone is clamped to what the
// bits hold, has none to hold anything.
TEST(RoundTripOfNoBits, BringsBackAllButSignCode0) {
    KRM_NOT_UNDER(Memcheck, "the sweep would take hours");
    CKRMCCommandConvSignalData converter;
    Differences differences;
    const krm_ulong max = 0xFFFF;
    const krm_ulong min = 0;
    for (const unsigned char sign : std::vector<unsigned char>{0, 1, 2, 3}) {
        for (krm_ulong raw = min; raw <= max; ++raw) {
            double value = -1;
            krm_ulong back = 0xDEADBEEFU;
            ASSERT_EQ(converter.ValueConversion(&value, raw, sign, 0, 1, 1, 0, 0), 0U);
            ASSERT_EQ(converter.ConvLogicalValue(&back, value, sign, 0, 1, 1, 0, 0, kInfinity, -kInfinity), 0U);
            differences.Expect(back == (sign == 0 ? 0 : raw), "rounded", raw, back, sign, 0);
            ASSERT_EQ(converter.ConvLogicalValue(&back, value, sign, 0, 1, 1, 0, 0, max, min), 0U);
            differences.Expect(back == raw, "truncated", raw, back, sign, 0);
        }
    }
}

// Every class, those included that have a way of their own to the physical value: the way back is the base's.
TEST(RoundTripThroughTheFactory, EndsInTheDocumentedValue) {
    KRM_NOT_UNDER(Memcheck, "the sweep would take hours");
    Differences differences;
    for (const int code : AllCodes()) {
        const ConverterPtr converter = Create(code);
        for (const unsigned char sign : std::vector<unsigned char>{0, 1, 3}) {
            const Item item{
                .sign = sign, .bits = 12, .mul = 3, .div = 7, .offset = -40, .decimals = 1, .max = 0x7F0, .min = 0x810};
            const Arguments arguments(item);
            for (krm_ulong raw = 0; raw < 0x1000; ++raw) {
                double value = 0;
                krm_ulong back = 0xDEADBEEFU;
                ASSERT_EQ(arguments.Value(*converter, &value, raw), 0U);
                ASSERT_EQ(converter->ConvLogicalValue(&back, value, item.sign, item.bits, item.mul, item.div,
                                                      item.offset, item.decimals, 1e6, -1e6),
                          0U);
                differences.Expect(back == reference::LogicalByPhysicalLimits(value, item, 1e6, -1e6), "rounded", raw,
                                   back, sign, item.bits);
                ASSERT_EQ(converter->ConvLogicalValue(&back, value, item.sign, item.bits, item.mul, item.div,
                                                      item.offset, item.decimals, item.max, item.min),
                          0U);
                differences.Expect(back == reference::LogicalByRawLimits(value, item), "truncated", raw, back, sign,
                                   item.bits);
            }
        }
    }
}

}  // namespace
}  // namespace krm::test

// The way back: a physical value to a raw one, with raw limits (truncating) and with physical limits (rounding).
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

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kLargest = std::numeric_limits<double>::max();
constexpr krm_long kLowest32 = std::numeric_limits<krm_long>::min();

using BitLengths = std::vector<unsigned short>;
using SignCodes = std::vector<unsigned char>;

// How a number looks in a raw value's 32 bits.
constexpr krm_ulong LowBits(std::int64_t value) {
    return static_cast<krm_ulong>(value);
}

krm_ulong ByRawLimits(CKRMCCommandConvSignalData& converter, double value, const Item& item) {
    krm_ulong result = 0xDEADBEEFU;
    EXPECT_EQ(converter.ConvLogicalValue(&result, value, item.sign, item.bits, item.mul, item.div, item.offset,
                                         item.decimals, item.max, item.min),
              0U);
    return result;
}

krm_ulong ByRawLimits(double value, const Item& item) {
    CKRMCCommandConvSignalData converter;
    return ByRawLimits(converter, value, item);
}

krm_ulong ByLimits(CKRMCCommandConvSignalData& converter, double value, const Item& item, double max, double min) {
    krm_ulong result = 0xDEADBEEFU;
    EXPECT_EQ(converter.ConvLogicalValue(&result, value, item.sign, item.bits, item.mul, item.div, item.offset,
                                         item.decimals, max, min),
              0U);
    return result;
}

// Without physical limits unless some are given.
krm_ulong ByLimits(double value, const Item& item, double max = kInfinity, double min = -kInfinity) {
    CKRMCCommandConvSignalData converter;
    return ByLimits(converter, value, item, max, min);
}

// ---- Raw limits ----

TEST(LogicalByRawLimits, UndoesTheScaling) {
    EXPECT_EQ(ByRawLimits(360, {.bits = 16, .offset = -400, .decimals = 1, .max = 0xFFFF}), 4000U);
    EXPECT_EQ(ByRawLimits(1.5, {.bits = 16, .mul = 3, .div = 4, .offset = 0, .decimals = 1, .max = 0xFFFF}), 20U);
    EXPECT_EQ(ByRawLimits(-3, {.bits = 16, .div = -4, .max = 0xFFFF}), 12U);
    EXPECT_EQ(ByRawLimits(7, {.div = 0, .max = 255}), 7U);
}

TEST(LogicalByRawLimits, AboveTheMaximumGivesItExactlyAsPassed) {
    // Bits above the bit length come back too, whatever the limit stands for.
    EXPECT_EQ(ByRawLimits(1000, {.max = 200, .min = 10}), 200U);
    EXPECT_EQ(ByRawLimits(1000, {.sign = 1, .max = 0x17F}), 0x17FU);
    EXPECT_EQ(ByRawLimits(1000, {.sign = 1, .max = 0x1FE}), 0x1FEU);                          // stands for -2
    EXPECT_EQ(ByRawLimits(1000, {.sign = 3, .max = 0xABCD0183U, .min = 0xFF}), 0xABCD0183U);  // stands for -3
}

TEST(LogicalByRawLimits, AtALimitGivesIt) {
    const Item item{.sign = 1, .max = 0x10A, .min = 0xFF80};  // 0x10A: 266; 0xFF80: -128
    EXPECT_EQ(ByRawLimits(266, item), 0x10AU);
    EXPECT_EQ(ByRawLimits(266.99, item), 0x10AU);
    EXPECT_EQ(ByRawLimits(265.99, item), 265U);
    EXPECT_EQ(ByRawLimits(-127.99, item), 0xFFFFFF81U);
    EXPECT_EQ(ByRawLimits(-128, item), 0xFF80U);
    EXPECT_EQ(ByRawLimits(-129, item), 0xFF80U);
}

TEST(LogicalByRawLimits, TheMaximumComesFirst) {
    EXPECT_EQ(ByRawLimits(50, {.max = 40, .min = 60}), 40U);
    EXPECT_EQ(ByRawLimits(39, {.max = 40, .min = 60}), 60U);
    EXPECT_EQ(ByRawLimits(40, {.max = 40, .min = 40}), 40U);
}

TEST(LogicalByRawLimits, Truncates) {
    const Item item{.sign = 1, .bits = 16, .max = 0x7FFF, .min = 0x8000};
    EXPECT_EQ(ByRawLimits(5.999, item), 5U);
    EXPECT_EQ(ByRawLimits(5.5, item), 5U);
    EXPECT_EQ(ByRawLimits(-5.999, item), LowBits(-5));
    EXPECT_EQ(ByRawLimits(-0.999, item), 0U);
}

TEST(LogicalByRawLimits, TwosComplementIsSignExtendedNotMasked) {
    EXPECT_EQ(ByRawLimits(-2, {.sign = 1, .bits = 8, .max = 0x7F, .min = 0x80}), 0xFFFFFFFEU);
}

TEST(LogicalByRawLimits, SignAndMagnitudeLosesTheSign) {
    const Item item{.sign = 3, .bits = 8, .max = 0x7F, .min = 0xFF};
    EXPECT_EQ(ByRawLimits(5, item), 5U);
    EXPECT_EQ(ByRawLimits(-5, item), 5U);
    EXPECT_EQ(ByRawLimits(-127, item), 0xFFU);
    EXPECT_EQ(ByRawLimits(0, item), 0U);
}

TEST(LogicalByRawLimits, SignAndMagnitudeClampsToTheBitLength) {
    // A maximum with stray bits lets values through that 8 bits don't hold: 0x300 has no sign bit and stands for 768.
    EXPECT_EQ(ByRawLimits(700, {.sign = 3, .bits = 8, .max = 0x300}), 127U);
    EXPECT_EQ(ByRawLimits(128, {.sign = 3, .bits = 8, .max = 0x300}), 127U);
    EXPECT_EQ(ByRawLimits(127, {.sign = 3, .bits = 8, .max = 0x300}), 127U);
    EXPECT_EQ(ByRawLimits(700, {.sign = 3, .bits = 1, .max = 0x300}), 0U);
    // No 64-bit number exceeds what 64 bits and more hold, and 0 bits give no place for a sign.
    EXPECT_EQ(ByRawLimits(700, {.sign = 3, .bits = 64, .max = 0x300}), 700U);
    EXPECT_EQ(ByRawLimits(700, {.sign = 3, .bits = 65, .max = 0x300}), 700U);
    EXPECT_EQ(ByRawLimits(700, {.sign = 3, .bits = 65535, .max = 0x300}), 700U);
    EXPECT_EQ(ByRawLimits(700, {.sign = 3, .bits = 0, .max = 0x300}), 700U);
}

TEST(LogicalByRawLimits, WhatNoIntegerHoldsIsBelowTheMinimum) {
    for (const unsigned char sign : SignCodes{0, 1, 2, 3, 255}) {
        const Item item{.sign = sign, .bits = 16, .max = 0x7000, .min = 0x12};
        for (const double value : {kNaN, kInfinity, -kInfinity, kLargest, -kLargest, 9223372036854775808.0}) {
            EXPECT_EQ(ByRawLimits(value, item), 0x12U) << value << ' ' << +sign;
        }
        EXPECT_EQ(ByRawLimits(9223372036854774784.0, item), 0x7000U) << +sign;
    }
}

TEST(LogicalByRawLimits, MultiplierOf0DividesByZeroQuietly) {
    // Whatever comes of it, infinite or not a number, no integer holds it.
    EXPECT_EQ(ByRawLimits(5, {.mul = 0, .max = 200, .min = 3}), 3U);
    EXPECT_EQ(ByRawLimits(-5, {.mul = 0, .max = 200, .min = 3}), 3U);
    EXPECT_EQ(ByRawLimits(0, {.mul = 0, .max = 200, .min = 3}), 3U);
    EXPECT_EQ(ByRawLimits(5, {.mul = 0, .div = 7, .max = 200, .min = 3}), 3U);
}

TEST(LogicalByRawLimits, LimitsGoThroughTheSignHandling) {
    // 0xF0 and 0x80 are -16 and -128 here.
    EXPECT_EQ(ByRawLimits(0, {.sign = 1, .max = 0xF0, .min = 0x80}), 0xF0U);
    EXPECT_EQ(ByRawLimits(-20, {.sign = 1, .max = 0xF0, .min = 0x80}), 0xFFFFFFECU);
    EXPECT_EQ(ByRawLimits(0, {.sign = 0, .max = 0xF0, .min = 0x80}), 0x80U);
    // Bit length 33 counts as 1, so 1 is -1.
    EXPECT_EQ(ByRawLimits(0, {.sign = 1, .bits = 33, .max = 1, .min = 0}), 1U);
}

// ---- Physical limits ----

TEST(LogicalByPhysicalLimits, RoundsAndClampsToTheBitLength) {
    EXPECT_EQ(ByLimits(255.6, {.bits = 8}, 1000, 0), 255U);
    EXPECT_EQ(ByLimits(255.4, {.bits = 8}, 1000, 0), 255U);
    EXPECT_EQ(ByLimits(254.4, {.bits = 8}, 1000, 0), 254U);
    EXPECT_EQ(ByLimits(300, {.bits = 9}, 1000, 0), 300U);
}

TEST(LogicalByPhysicalLimits, RoundsHalfAwayFromZero) {
    const Item item{.sign = 1, .bits = 16};
    EXPECT_EQ(ByLimits(0.5, item), 1U);
    EXPECT_EQ(ByLimits(1.5, item), 2U);
    EXPECT_EQ(ByLimits(2.5, item), 3U);
    EXPECT_EQ(ByLimits(2.49, item), 2U);
    EXPECT_EQ(ByLimits(-0.5, item), 0xFFFFFFFFU);
    EXPECT_EQ(ByLimits(-2.5, item), LowBits(-3));
    EXPECT_EQ(ByLimits(-2.49, item), LowBits(-2));
    // Half is added in double: the largest number below 0.5 becomes 1.
    EXPECT_EQ(ByLimits(std::nextafter(0.5, 0.0), item), 1U);
}

TEST(LogicalByPhysicalLimits, TheOtherOverloadTruncates) {
    const Item item{.sign = 1, .bits = 16, .max = 0x7FFF, .min = 0x8000};
    for (const double value : {0.5, 1.5, 2.6, -0.5, -2.6}) {
        EXPECT_EQ(ByRawLimits(value, item), LowBits(static_cast<std::int64_t>(value))) << value;
        EXPECT_NE(ByLimits(value, item), ByRawLimits(value, item)) << value;
    }
}

TEST(LogicalByPhysicalLimits, UndoesTheScaling) {
    EXPECT_EQ(ByLimits(360, {.bits = 16, .offset = -400, .decimals = 1}), 4000U);
    EXPECT_EQ(ByLimits(1.5, {.bits = 16, .mul = 3, .div = 4, .decimals = 1}), 20U);
    EXPECT_EQ(ByLimits(-3, {.bits = 16, .div = -4}), 12U);
    EXPECT_EQ(ByLimits(1, {.bits = 40, .div = kLowest32}), 0U);
}

TEST(LogicalByPhysicalLimits, LimitsArePhysicalValues) {
    const Item item{.bits = 16, .offset = 10, .decimals = 1};
    EXPECT_EQ(ByLimits(99, item, 50, 20), 490U);
    EXPECT_EQ(ByLimits(3, item, 50, 20), 190U);
    EXPECT_EQ(ByLimits(50, item, 50, 20), 490U);
    EXPECT_EQ(ByLimits(20, item, 50, 20), 190U);
    EXPECT_EQ(ByLimits(30, item, 50, 20), 290U);
}

TEST(LogicalByPhysicalLimits, WithLimitsCrossedTheMaximumComesFirst) {
    EXPECT_EQ(ByLimits(100, {}, 40, 60), 40U);
    EXPECT_EQ(ByLimits(40, {}, 40, 60), 60U);
    EXPECT_EQ(ByLimits(10, {}, 40, 60), 60U);
}

TEST(LogicalByPhysicalLimits, NaNAsALimitOrAsTheValuePassesTheValueUnchanged) {
    const Item item{.bits = 16};
    EXPECT_EQ(ByLimits(100, item, kNaN, 200), 100U);
    EXPECT_EQ(ByLimits(100, item, kNaN, kNaN), 100U);
    EXPECT_EQ(ByLimits(100, item, 200, kNaN), 100U);
    EXPECT_EQ(ByLimits(300, item, 200, kNaN), 200U);
    EXPECT_EQ(ByLimits(kNaN, item, 200, 100), 0U);
    EXPECT_EQ(ByLimits(kNaN, {.sign = 1, .bits = 8}, 200, 100), 0xFFFFFF80U);
    EXPECT_EQ(ByLimits(kNaN, {.sign = 2, .bits = 8}, 200, 100), 0U);
}

TEST(LogicalByPhysicalLimits, UnsignedClampsAtEveryBitLength) {
    const auto most = [](unsigned short bits) { return ByLimits(1e18, {.sign = 0, .bits = bits}); };
    EXPECT_EQ(most(0), 0U);
    EXPECT_EQ(most(1), 1U);
    EXPECT_EQ(most(31), 0x7FFFFFFFU);
    EXPECT_EQ(most(32), 0xFFFFFFFFU);
    EXPECT_EQ(most(33), 0xFFFFFFFFU);
    // From here on the value fits; its low 32 bits remain.
    for (const unsigned short bits : BitLengths{60, 62, 63, 64, 65, 128, 65535}) {
        EXPECT_EQ(most(bits), LowBits(1000000000000000000)) << bits;
    }
    EXPECT_EQ(ByLimits(9223372036854774784.0, {.bits = 62}), 0xFFFFFFFFU);
    EXPECT_EQ(ByLimits(9223372036854774784.0, {.bits = 63}), 0xFFFFFC00U);
    EXPECT_EQ(ByLimits(9223372036854774784.0, {.bits = 64}), 0xFFFFFC00U);
    for (const unsigned short bits : BitLengths{0, 1, 31, 32, 33, 63, 64, 65, 65535}) {
        EXPECT_EQ(ByLimits(-1, {.bits = bits}), 0U) << bits;
        EXPECT_EQ(ByLimits(-1e30, {.bits = bits}), 0U) << bits;
        EXPECT_EQ(ByLimits(1e30, {.bits = bits}), 0U) << bits;
        EXPECT_EQ(ByLimits(1, {.bits = bits}), bits == 0 ? 0U : 1U) << bits;
    }
}

TEST(LogicalByPhysicalLimits, TwosComplementClampsAtEveryBitLength) {
    const auto most = [](unsigned short bits) { return ByLimits(4e18, {.sign = 1, .bits = bits}); };
    const auto least = [](unsigned short bits) { return ByLimits(-4e18, {.sign = 1, .bits = bits}); };
    EXPECT_EQ(most(1), 0U);
    EXPECT_EQ(least(1), 0xFFFFFFFFU);
    EXPECT_EQ(most(8), 0x7FU);
    EXPECT_EQ(least(8), 0xFFFFFF80U);
    EXPECT_EQ(most(31), 0x3FFFFFFFU);
    EXPECT_EQ(least(31), 0xC0000000U);
    EXPECT_EQ(most(32), 0x7FFFFFFFU);
    EXPECT_EQ(least(32), 0x80000000U);
    EXPECT_EQ(most(33), 0xFFFFFFFFU);
    EXPECT_EQ(least(33), 0U);
    EXPECT_EQ(most(62), 0xFFFFFFFFU);
    EXPECT_EQ(least(62), 0U);
    // What 63 bits and more hold is not clamped, and with 0 bits there is nothing to clamp to.
    for (const unsigned short bits : BitLengths{0, 63, 64, 65, 65535}) {
        EXPECT_EQ(most(bits), LowBits(4000000000000000000)) << bits;
        EXPECT_EQ(least(bits), LowBits(-4000000000000000000)) << bits;
        EXPECT_EQ(ByLimits(-1, {.sign = 1, .bits = bits}), 0xFFFFFFFFU) << bits;
    }
    EXPECT_EQ(ByLimits(9223372036854774784.0, {.sign = 1, .bits = 63}), 0xFFFFFFFFU);
    EXPECT_EQ(ByLimits(-9223372036854774784.0, {.sign = 1, .bits = 63}), 0U);
    EXPECT_EQ(ByLimits(-9223372036854774784.0, {.sign = 1, .bits = 64}), 0x00000400U);
}

TEST(LogicalByPhysicalLimits, SignAndMagnitudeAtEveryBitLength) {
    const auto of = [](double value, unsigned short bits) { return ByLimits(value, {.sign = 3, .bits = bits}); };
    EXPECT_EQ(of(5, 8), 5U);
    EXPECT_EQ(of(-5, 8), 5U);
    EXPECT_EQ(of(1000, 8), 127U);
    EXPECT_EQ(of(-1000, 8), 127U);
    EXPECT_EQ(of(1000, 1), 0U);
    EXPECT_EQ(of(1e15, 31), 0x3FFFFFFFU);
    EXPECT_EQ(of(-1e15, 32), 0x7FFFFFFFU);
    EXPECT_EQ(of(1e15, 33), 0xFFFFFFFFU);
    for (const unsigned short bits : BitLengths{0, 63, 64, 65, 65535}) {
        EXPECT_EQ(of(-4e18, bits), LowBits(4000000000000000000)) << bits;
    }
}

TEST(LogicalByPhysicalLimits, SignAndMagnitudeOfWhatNoIntegerHoldsIsTheSignBit) {
    for (const double value : {kNaN, kInfinity, -kInfinity, 1e30, -1e30, -9223372036854775808.0}) {
        const auto of = [value](unsigned short bits) { return ByLimits(value, {.sign = 3, .bits = bits}); };
        EXPECT_EQ(of(1), 1U) << value;
        EXPECT_EQ(of(8), 0x80U) << value;
        EXPECT_EQ(of(31), 0x40000000U) << value;
        EXPECT_EQ(of(32), 0x80000000U) << value;
        for (const unsigned short bits : BitLengths{0, 33, 63, 64, 65, 65535}) {
            EXPECT_EQ(of(bits), 0U) << value << ' ' << bits;
        }
    }
}

TEST(LogicalByPhysicalLimits, OtherSignCodesAreNotClamped) {
    for (const unsigned char sign : SignCodes{2, 4, 255}) {
        for (const unsigned short bits : BitLengths{0, 1, 8, 31, 32, 33, 63, 64, 65, 65535}) {
            const Item item{.sign = sign, .bits = bits};
            EXPECT_EQ(ByLimits(300, item), 300U);
            EXPECT_EQ(ByLimits(-1, item), 0xFFFFFFFFU);
            EXPECT_EQ(ByLimits(4294967297.0, item), 1U);
        }
    }
}

TEST(LogicalByPhysicalLimits, MultiplierOf0DividesByZeroQuietly) {
    EXPECT_EQ(ByLimits(5, {.mul = 0}), 0U);
    EXPECT_EQ(ByLimits(0, {.sign = 1, .mul = 0}), 0xFFFFFF80U);
    EXPECT_EQ(ByLimits(-5, {.sign = 3, .mul = 0, .div = -3}), 0x80U);
}

// ---- Both ----

TEST(LogicalValue, NullResultsFail) {
    for (const int code : AllCodes()) {
        const ConverterPtr converter = Create(code);
        const krm_ulong rawLimit = 9;
        const double limit = 9;
        EXPECT_EQ(converter->ConvLogicalValue(nullptr, 1, 0, 8, 1, 1, 0, 0, rawLimit, rawLimit), kFailed) << code;
        EXPECT_EQ(converter->ConvLogicalValue(nullptr, 1, 0, 8, 1, 1, 0, 0, limit, limit), kFailed) << code;
    }
}

TEST(LogicalValue, IsTheSameInEveryClass) {
    const Item item{
        .sign = 1, .bits = 16, .mul = 3, .div = 7, .offset = -40, .decimals = 2, .max = 0x7FF0, .min = 0x8010};
    for (const int code : AllCodes()) {
        const ConverterPtr converter = Create(code);
        for (const double value : {-1e9, -14.0, -0.5, 0.0, 3.25, 99.999, 1e9}) {
            EXPECT_EQ(ByRawLimits(*converter, value, item), reference::LogicalByRawLimits(value, item)) << code;
            EXPECT_EQ(ByLimits(*converter, value, item, 120.5, -100),
                      reference::LogicalByPhysicalLimits(value, item, 120.5, -100))
                << code;
        }
    }
}

TEST(LogicalValue, BringsBackEvery16BitValue) {
    KRM_NOT_UNDER(Memcheck, "the sweep would take hours");
    for (const unsigned char sign : SignCodes{0, 1}) {
        const Item item{.sign = sign, .bits = 16, .mul = 5, .div = 4, .offset = -400, .decimals = 1};
        CKRMCCommandConvSignalData converter;
        int mismatches = 0;
        for (krm_ulong raw = 0; raw <= 0xFFFF; ++raw) {
            double value = 0;
            EXPECT_EQ(Arguments(item).Value(converter, &value, raw), 0U);
            const krm_ulong back = ByLimits(converter, value, item, kInfinity, -kInfinity);
            mismatches += (back & 0xFFFFU) != raw ? 1 : 0;
        }
        EXPECT_EQ(mismatches, 0);
    }
}

TEST(LogicalValue, RandomValuesMatchTheReference) {
    KRM_NOT_UNDER(Memcheck, "the sweep would take hours");
    constexpr unsigned short kBits[] = {0, 1, 2, 7, 8, 15, 16, 31, 32, 33, 40, 62, 63, 64, 65, 66, 127, 128, 65535};
    constexpr unsigned char kSigns[] = {0, 1, 2, 3, 255};
    constexpr double kValues[] = {0.0,
                                  -0.0,
                                  0.5,
                                  -0.5,
                                  kNaN,
                                  kInfinity,
                                  -kInfinity,
                                  kLargest,
                                  9223372036854775808.0,
                                  -9223372036854775808.0,
                                  4294967295.5,
                                  -2147483648.5,
                                  2147483647.5};
    Seed seed(31337);
    int mismatches = 0;
    CKRMCCommandConvSignalData converter;
    for (int round = 0; round < 200000; ++round) {
        const auto number = [&] {
            const std::uint32_t kind = seed.Next() % 16;
            if (kind == 0) {
                return kValues[seed.Next() % std::size(kValues)];
            }
            const double value = static_cast<double>(static_cast<std::int32_t>(seed.Next()));
            return std::ldexp(value, static_cast<int>(seed.Next() % (kind < 4 ? 64 : 24)) - 24);
        };
        const auto scale = [&] {
            const std::uint32_t kind = seed.Next() % 4;
            return kind == 0 ? static_cast<krm_long>(seed.Next()) : static_cast<krm_long>(seed.Next() % 41) - 20;
        };
        Item item;
        item.sign = kSigns[seed.Next() % std::size(kSigns)];
        item.bits = kBits[seed.Next() % std::size(kBits)];
        item.mul = round % 3 == 0 ? 1 : scale();
        item.div = round % 5 == 0 ? 1 : scale();
        item.offset = scale();
        item.decimals = static_cast<unsigned char>(round % 11 == 0 ? seed.Next() : seed.Next() % 4);
        item.max = seed.Next() >> (seed.Next() % 32);
        item.min = seed.Next() >> (seed.Next() % 32);
        const double value = number();
        const double max = number();
        const double min = number();
        const krm_ulong raw = ByRawLimits(converter, value, item);
        const krm_ulong rounded = ByLimits(converter, value, item, max, min);
        const krm_ulong expectedRaw = reference::LogicalByRawLimits(value, item);
        const krm_ulong expectedRounded = reference::LogicalByPhysicalLimits(value, item, max, min);
        if ((raw != expectedRaw || rounded != expectedRounded) && ++mismatches < 10) {
            ADD_FAILURE() << value << " sign " << +item.sign << " bits " << item.bits << " x " << item.mul << " / "
                          << item.div << " + " << item.offset << " places " << +item.decimals << " raw limits "
                          << item.max << ' ' << item.min << " limits " << max << ' ' << min << ": " << raw << " and "
                          << rounded << ", not " << expectedRaw << " and " << expectedRounded;
        }
    }
    EXPECT_EQ(mismatches, 0);
}

}  // namespace
}  // namespace krm::test

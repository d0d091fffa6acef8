// A scaling by one division of doubles gives bit for bit what the 80-bit steps give, or nothing.
#include "krm/convert/internal/quick_scaling.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>
#include <random>
#include <utility>

#include "krm/convert/internal/extended.h"
#include "tests/support/not_under.h"
#include "tests/support/scaling_rounds.h"

namespace {

using krm::convert::QuickScaling;
using krm::convert::SoftExtended;

/// The steps as they are defined, in integers.
double Steps(krm_int64 number, krm_long mul, krm_long div, krm_long offset, unsigned char decimals) {
    SoftExtended value = SoftExtended(number) * SoftExtended(krm_int64{mul});
    if (krm::convert::Divides(div)) {
        value = value / SoftExtended(krm_int64{div});
    }
    value = value + SoftExtended(krm_int64{offset});
    return static_cast<double>(value / SoftExtended(krm::convert::PowerOfTen(decimals)));
}

/// Whether the quick way knows the scaling; expects the steps' bits of it then.
bool IsKnown(krm_int64 number, krm_long mul, krm_long div, krm_long offset, unsigned char decimals) {
    const std::optional<double> quick = QuickScaling(number, mul, div, offset, decimals);
    if (!quick.has_value()) {
        return false;
    }
    EXPECT_EQ(std::bit_cast<std::uint64_t>(Steps(number, mul, div, offset, decimals)),
              std::bit_cast<std::uint64_t>(*quick))
        << number << " * " << mul << " / " << div << " + " << offset << ", " << int{decimals} << " decimals";
    return true;
}

TEST(QuickScaling, RandomScalingsAreThoseOfTheSteps) {
    KRM_NOT_UNDER(Memcheck, "the sweep would take hours");
    std::mt19937 random(27);
    const auto signedNumber = [&random] {
        const auto magnitude = static_cast<krm_int64>(random() >> (random() % 32));
        return (random() & 1U) != 0 ? -magnitude : magnitude;
    };
    const auto factor = [&] { return static_cast<krm_long>(signedNumber() / 2); };
    int known = 0;
    const int rounds = krm::test::ScalingRounds();
    for (int i = 0; i < rounds && !::testing::Test::HasFailure(); ++i) {
        const krm_int64 number = signedNumber();
        const krm_long mul = factor();
        const krm_long div = factor();
        const krm_long offset = i % 3 == 0 ? 0 : factor();
        known += IsKnown(number, mul, div, offset, static_cast<unsigned char>(random() % 8)) ? 1 : 0;
    }
    EXPECT_GT(known, rounds / 2);
}

TEST(QuickScaling, KnowsNearlyAllScalingsOfASignal) {
    int known = 0;
    int all = 0;
    for (krm_int64 raw = -32768; raw < 32768; raw += 5) {
        for (const krm_long div : {1, 2, 3, 7, 16, 255, 1000, 65535, -100}) {
            known += IsKnown(raw, 3, div, -40, 2) ? 1 : 0;
            known += IsKnown(raw, 1, div, 0, 0) ? 1 : 0;
            known += IsKnown(raw, -125, div, 1000, 3) ? 1 : 0;
            all += 3;
        }
    }
    EXPECT_GT(known, all / 100 * 98);
    EXPECT_LT(known, all) << "values next to a rounding boundary take the steps";
}

/// x with a * x = 1 modulo the odd `modulus`.
krm_int64 Inverse(krm_int64 a, krm_int64 modulus) {
    krm_int64 left = modulus, right = a % modulus, x = 0, y = 1;
    while (right != 0) {
        const krm_int64 times = left / right;
        left -= times * right;
        x -= times * y;
        std::swap(left, right);
        std::swap(x, y);
    }
    return x < 0 ? x + modulus : x;
}

// Fractions that lie as near to the middle of two doubles as their denominator allows: twice the remainder is the
// denominator, give or take a little.
TEST(QuickScaling, NextToEveryKindOfRoundingBoundary) {
    KRM_NOT_UNDER(Memcheck, "the sweep would take hours");
    std::mt19937 random(5);
    int near = 0;
    for (int round = 0; round < 4'000 && !HasFailure(); ++round) {
        const auto div = static_cast<krm_long>((random() >> (1 + random() % 24)) | 1U);
        if (div < 3) {
            continue;
        }
        for (int places = 22; places <= 62; ++places) {
            // numerator x 2^places = (div + slip) / 2 modulo div, the numerator in the range that has so many places
            const krm_int64 slip = 2 * static_cast<krm_int64>(random() % 5) - 3;
            krm_int64 power = 1;
            for (int i = 0; i < places; ++i) {
                power = power * 2 % div;
            }
            krm_int64 numerator =
                static_cast<krm_int64>((((div + slip) / 2 % div + div) % div)) * Inverse(power, div) % div;
            const double lowest = std::ldexp(static_cast<double>(div), 52 - places);
            if (lowest > 0x1p50) {
                continue;
            }
            const auto least = static_cast<krm_int64>(std::ceil(lowest));
            if (numerator < least) {
                numerator += (least - numerator + div - 1) / div * div;
            }
            if (static_cast<double>(numerator) >= 2 * lowest) {
                continue;
            }
            // As one product, or as product and offset.
            const krm_int64 offset = numerator / div;
            const krm_int64 left = numerator - offset * div;
            if (offset < std::numeric_limits<krm_long>::max()) {
                IsKnown(left, 1, div, static_cast<krm_long>(offset), 0);
                IsKnown(-left, 1, static_cast<krm_long>(-div), static_cast<krm_long>(offset), 0);
                IsKnown(-left, 1, div, static_cast<krm_long>(-offset), 0);
                ++near;
            }
            if (numerator < 0x100000000) {
                IsKnown(numerator, 1, div, 0, 0);
                IsKnown(numerator, -1, div, 0, 0);
                ++near;
            }
        }
    }
    EXPECT_GT(near, 10'000);
}

TEST(QuickScaling, TiesAndPowersOfTwo) {
    // 2^53 + 1 halves lie in the middle of two doubles, and so do odd numbers of quarters above 2^51.
    for (int places = 1; places <= 20; ++places) {
        const krm_long div = 1 << places;
        for (krm_int64 number = (krm_int64{1} << 32) - 70; number < krm_int64{1} << 32; ++number) {
            IsKnown(number, 3, div, 1 << 30, 0);
            IsKnown(number, 1 << 20, div, 1, 0);
            IsKnown(number, (1 << 20) + 1, div, -1, 0);
        }
    }
    // Around powers of two: the doubles below lie twice as close.
    for (int exponent = 0; exponent < 31; ++exponent) {
        for (krm_int64 near = -3; near <= 3; ++near) {
            for (const krm_long div : {3, 5, 1023, 99'999, 2'147'483'647}) {
                IsKnown(near, 1, div, 1 << exponent, 0);
                IsKnown(near, 1, div, 1 << exponent, 1);
            }
        }
    }
}

TEST(QuickScaling, NothingOfWhatDoesNotFit) {
    EXPECT_EQ(std::nullopt, QuickScaling(1, 1, 3, 0, 7)) << "seven decimals";
    EXPECT_EQ(std::nullopt, QuickScaling(0xFFFFFFFF, 0x7FFFFFFF, 3, 0, 0)) << "63 bits of product";
    EXPECT_EQ(std::nullopt, QuickScaling(0xFFFFFFFF, -0x7FFFFFFF, 3, 0, 0)) << "63 bits of product, below zero";
    EXPECT_EQ(std::nullopt, QuickScaling(1, 1, 0x7FFFFFFF, 0x7FFFFFFF, 0)) << "62 bits of offset";
    EXPECT_EQ(std::nullopt, QuickScaling(1, 1, 0x7FFFFFFF, -0x7FFFFFFF, 0)) << "62 bits of offset, below zero";
    EXPECT_EQ(std::nullopt, QuickScaling(1, 1, 0x7FFFFFFF, 0, 6)) << "51 bits of denominator";
    EXPECT_EQ(std::nullopt, QuickScaling(1, 1, 4000, 0, 0)) << "below 2^-11";
    EXPECT_EQ(std::optional<double>(0x1p50 - 1), QuickScaling(0x7FFFFFFF, 1 << 20, 2, (1 << 19) - 1, 0))
        << "the largest";
}

TEST(QuickScaling, WholeNumbersAndZero) {
    EXPECT_EQ(std::optional<double>(-119.0), QuickScaling(-3, 13, 1, -80, 0));
    EXPECT_EQ(std::optional<double>(-119.0), QuickScaling(-3, 13, 0, -80, 0)) << "a divisor of 0 divides nothing";
    const std::optional<double> zero = QuickScaling(-8, 5, 4, 10, 6);
    ASSERT_EQ(std::optional<double>(0.0), zero);
    EXPECT_FALSE(std::signbit(*zero));
}

}  // namespace

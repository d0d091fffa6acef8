// Extended precision in integers gives bit for bit what the processor's gives.
#include "krm/convert/internal/extended.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>

#include "tests/support/not_under.h"
#include "tests/support/scaling_rounds.h"

namespace {

using krm::convert::SoftExtended;

// What is taken from 1 lies 65 binary places below it, so that half a bit of 64 is left to round: just that is a tie, and what
// its own last bit adds is not.
TEST(SoftExtended, DifferencesAtATieAndBesideIt) {
    const auto left = [](double number, const SoftExtended& factor) {
        const SoftExtended one(1.0);
        return static_cast<double>((one + SoftExtended(number) * factor) + SoftExtended(-1.0));
    };
    const SoftExtended firstAndLastBit = SoftExtended(krm_int64{3074457345618258603}) * SoftExtended(3.0);  // 2^63 + 1
    EXPECT_EQ(0.0, left(-0x1p-65, SoftExtended(1.0)));
    EXPECT_EQ(-0x1p-64, left(-0x1p-128, firstAndLastBit));
    EXPECT_EQ(-0x1p-64, left(-0x1p-64, SoftExtended(1.0)));
    EXPECT_EQ(-0x1p-64, left(-0x1p-127, firstAndLastBit));
    EXPECT_EQ(0.0, left(-0x1p-129, firstAndLastBit));
}

#if LDBL_MANT_DIG == 64

template <class Number>
double Scaled(krm_int64 number, krm_int64 multiplier, krm_int64 divisor, krm_int64 offset, double power) {
    const Number product = static_cast<Number>(number) * static_cast<Number>(multiplier);
    const Number quotient = product / static_cast<Number>(divisor);
    const Number sum = quotient + static_cast<Number>(offset);
    return static_cast<double>(sum / static_cast<Number>(power));
}

void ExpectSame(krm_int64 number, krm_int64 multiplier, krm_int64 divisor, krm_int64 offset, double power) {
    const double soft = Scaled<SoftExtended>(number, multiplier, divisor, offset, power);
    const double hardware = Scaled<long double>(number, multiplier, divisor, offset, power);
    if (hardware == 0) {
        EXPECT_EQ(0, soft);  // the integers' zero has no sign
    } else {
        EXPECT_EQ(std::bit_cast<std::uint64_t>(hardware), std::bit_cast<std::uint64_t>(soft))
            << number << " * " << multiplier << " / " << divisor << " + " << offset << " / " << power;
    }
}

TEST(SoftExtended, RandomScalingsAreTheProcessors) {
    KRM_NOT_UNDER(Memcheck, "memcheck computes the processor's 80-bit numbers in 64 bits");
    std::mt19937 random(20);
    std::uniform_int_distribution<int> bits(0, 31);
    std::uniform_int_distribution<int> decimals(0, 255);
    const auto number = [&] {
        const auto magnitude = static_cast<krm_int64>(random() >> bits(random));
        return (random() & 1U) != 0 ? -magnitude : magnitude;
    };
    const int rounds = krm::test::ScalingRounds();
    for (int i = 0; i < rounds; ++i) {
        krm_int64 divisor = number();
        if (divisor == 0) {
            divisor = 7;
        }
        double power = 1;
        for (int n = decimals(random) % (i % 4 == 0 ? 256 : 8); n > 0; --n) {
            power *= 10;
        }
        ExpectSame(number(), number(), divisor, number(), power);
        if (HasFailure()) {
            return;
        }
    }
}

TEST(SoftExtended, SumsThatCancelCarryOrFallFarApart) {
    KRM_NOT_UNDER(Memcheck, "memcheck computes the processor's 80-bit numbers in 64 bits");
    for (const krm_int64 divisor : {3, 7, -3, 1 << 30, std::numeric_limits<int>::min()}) {
        for (krm_int64 number = -40; number <= 40; ++number) {
            for (krm_int64 offset = -15; offset <= 15; ++offset) {
                ExpectSame(number, 1, divisor, offset, 1);
                ExpectSame(number, std::numeric_limits<int>::max(), divisor, offset, 100);
            }
        }
    }
}

TEST(SoftExtended, SumsOfWhichTheLastBitAloneIsLeft) {
    KRM_NOT_UNDER(Memcheck, "memcheck computes the processor's 80-bit numbers in 64 bits");
    // (2^63 + 1) / 2^31 has the first and the last of 64 bits; 2^32 less, the last.
    constexpr krm_int64 kThird = 3074457345618258603;
    ExpectSame(kThird, 3, krm_int64{1} << 31, -(krm_int64{1} << 32), 1);
    ExpectSame(-kThird, 3, krm_int64{1} << 31, krm_int64{1} << 32, 10);
    EXPECT_EQ(0x1p-31, Scaled<SoftExtended>(kThird, 3, krm_int64{1} << 31, -(krm_int64{1} << 32), 1));
}

TEST(SoftExtended, WholeRangeOfIntegersAndPowers) {
    KRM_NOT_UNDER(Memcheck, "memcheck computes the processor's 80-bit numbers in 64 bits");
    for (const krm_int64 number : {std::numeric_limits<krm_int64>::min(), std::numeric_limits<krm_int64>::max(),
                                   std::numeric_limits<krm_int64>::max() - 1, krm_int64{1} << 53,
                                   (krm_int64{1} << 53) + 1, (krm_int64{1} << 54) + 2, krm_int64{0}}) {
        ExpectSame(number, 1, 1, 0, 1);
        ExpectSame(number, 3, 1, 1, 1e255);
        ExpectSame(number, -1, 1, -1, 10);
        ExpectSame(number, std::numeric_limits<krm_int64>::max(), 1, 1, 1e22);
    }
}

// The same sum of products in both, rounded to a double.
void ExpectSameSum(double left, double leftFactor, double right, double rightFactor) {
    const auto soft = static_cast<double>(SoftExtended(left) * SoftExtended(leftFactor) +
                                          SoftExtended(right) * SoftExtended(rightFactor));
    const auto hardware = static_cast<double>(static_cast<long double>(left) * static_cast<long double>(leftFactor) +
                                              static_cast<long double>(right) * static_cast<long double>(rightFactor));
    EXPECT_EQ(std::bit_cast<std::uint64_t>(hardware), std::bit_cast<std::uint64_t>(soft))
        << left << " * " << leftFactor << " + " << right << " * " << rightFactor;
}

TEST(SoftExtended, SumsOfNumbersAWorldApart) {
    KRM_NOT_UNDER(Memcheck, "memcheck computes the processor's 80-bit numbers in 64 bits");
    for (int exponent = 50; exponent <= 200; ++exponent) {
        for (const double sign : {1.0, -1.0}) {
            ExpectSameSum(std::ldexp(1, exponent), 1, sign, 1);
            ExpectSameSum(std::ldexp(1, exponent), 1 + 0x1p-52, sign * (2 - 0x1p-52), 1 - 0x1p-53);
            ExpectSameSum(sign, 1 + 0x1p-40, -std::ldexp(1, exponent), 1 + 0x1p-23);
        }
    }
}

TEST(SoftExtended, ZeroAsADoubleIsZero) {
    EXPECT_EQ(3.0, static_cast<double>(SoftExtended(0.0) + SoftExtended(krm_int64{3})));
    EXPECT_EQ(0.0, static_cast<double>(SoftExtended(0.0) * SoftExtended(1.5)));
}

TEST(SoftExtended, ADifferenceBelowTheLastBit) {
    KRM_NOT_UNDER(Memcheck, "memcheck computes the processor's 80-bit numbers in 64 bits");
    // 2^64 less 2^64 - 1, which has all 64 bits set: what is left is the bit that was shifted out of them.
    ExpectSameSum(0x1p32, 0x1p32, -(0x1p32 - 1), 0x1p32 + 1);
    ExpectSameSum(-0x1p32, 0x1p32, 0x1p32 - 1, 0x1p32 + 1);
}

#else

TEST(SoftExtended, ComparedWithTheProcessor) {
    GTEST_SKIP() << "this compiler has no 80-bit long double";
}

#endif

}  // namespace

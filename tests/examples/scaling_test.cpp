#include "examples/diagnosis_session/scaling.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

using diagnosis_session::Scaling;
using diagnosis_session::ScalingOf;

void ExpectScaling(const char* mul, const char* div, const char* add, const Scaling& expected) {
    const auto scaling = ScalingOf(mul, div, add, 16);
    ASSERT_TRUE(scaling) << mul << " / " << div << " + " << add;
    EXPECT_EQ(scaling->mul, expected.mul);
    EXPECT_EQ(scaling->div, expected.div);
    EXPECT_EQ(scaling->offset, expected.offset);
    EXPECT_EQ(scaling->decimals, expected.decimals);
}

TEST(Scaling, IsExactWithFiveDecimalsWhereItCanBe) {
    ExpectScaling("1", "1", "0", {100000, 1, 0, 5});
    ExpectScaling("1", "1", "-40", {100000, 1, -4000000, 5});
    ExpectScaling("100", "255", "0", {2000000, 51, 0, 5});
    ExpectScaling("100", "128", "-100", {78125, 1, -10000000, 5});
    ExpectScaling("0.079", "1", "0", {7900, 1, 0, 5});
    ExpectScaling("1", "8196", "0", {25000, 2049, 0, 5});
    ExpectScaling("1", "32768", "-128.5", {3125, 1024, -12850000, 5});
    ExpectScaling("1.0", "1.0", "0.0", {100000, 1, 0, 5});
    ExpectScaling("3e-2", "1", "1E+1", {3000, 1, 1000000, 5});
    ExpectScaling("0.000030517578125", "1", "0", {3125, 1024, 0, 5});
}

TEST(Scaling, TheSignStandsInTheMultiplier) {
    ExpectScaling("-1", "4", "0", {-25000, 1, 0, 5});
    ExpectScaling("1", "-4", "0", {-25000, 1, 0, 5});
    ExpectScaling("-1", "-4", "0", {25000, 1, 0, 5});
}

TEST(Scaling, OtherDecimalsWhereFiveDontFit) {
    ExpectScaling("1", "128", "-38665", {625, 8, -386650000, 4});
    ExpectScaling("100000", "1", "0", {1000000000, 1, 0, 4});
    ExpectScaling("1", "1", "0.0000001", {10000000, 1, 1, 7});
    ExpectScaling("1", "1", "2147483647", {1, 1, 2147483647, 0});
}

TEST(Scaling, TheNearestFractionAsALastResort) {
    const auto scaling = ScalingOf("0.30517578194763", "1", "0", 16);
    ASSERT_TRUE(scaling);
    double unit = 1;
    for (int i = 0; i < scaling->decimals; ++i) {
        unit *= 10;
    }
    EXPECT_NEAR(65535.0 * scaling->mul / scaling->div / unit, 65535.0 * 0.30517578194763, 1e-6);
}

TEST(Scaling, NumbersBeyondADoubleHaveAQuotientAllTheSame) {
    // The offset, which no decimal places hold, keeps the exact way from being taken.
    const auto quotient = [](const char* mul, const char* div) {
        const auto scaling = ScalingOf(mul, div, "1e-300", 8);
        EXPECT_TRUE(scaling) << mul << " / " << div;
        return scaling ? static_cast<double>(scaling->mul) / scaling->div / std::pow(10.0, scaling->decimals) : -1;
    };
    EXPECT_NEAR(quotient("5e-324", "1e-323"), 0.5, 1e-9);
    EXPECT_NEAR(quotient("12345678901e390", "98765432109e390"), 12345678901.0 / 98765432109.0, 1e-9);
    EXPECT_NEAR(quotient("12345678901e-390", "98765432109e-390"), 12345678901.0 / 98765432109.0, 1e-9);
    EXPECT_EQ(quotient("0", "1e-390"), 0);
    EXPECT_FALSE(ScalingOf("1e300", "1e-300", "1e-300", 8));
}

TEST(Scaling, NothingWhereItDoesNotFitOrIsNoScaling) {
    EXPECT_FALSE(ScalingOf("1", "1", "3000000000", 8));
    EXPECT_FALSE(ScalingOf("3000000000.5", "1", "0", 32));
    EXPECT_FALSE(ScalingOf("1", "0", "0", 8));
    EXPECT_FALSE(ScalingOf("1", "0.0", "0", 8));
    EXPECT_FALSE(ScalingOf("", "1", "0", 8));
    EXPECT_FALSE(ScalingOf("one", "1", "0", 8));
    EXPECT_FALSE(ScalingOf("1e", "1", "0", 8));
    EXPECT_FALSE(ScalingOf("1e999", "1", "0", 8));
    EXPECT_FALSE(ScalingOf("1e2147483647", "1", "0", 8));
    EXPECT_FALSE(ScalingOf("1e-2147483648", "1", "0", 8));
}

TEST(Scaling, ShowsAsManyDecimalsAsTheScalingHas) {
    const auto decimals = [](const char* mul, const char* div, const char* add) {
        return static_cast<int>(diagnosis_session::DecimalsOf(ScalingOf(mul, div, add, 16).value()));
    };
    EXPECT_EQ(decimals("1", "1", "-40"), 0);
    EXPECT_EQ(decimals("1", "4", "0"), 2);
    EXPECT_EQ(decimals("1", "2", "-64"), 1);
    EXPECT_EQ(decimals("1", "1000", "0"), 3);
    EXPECT_EQ(decimals("100", "255", "0"), 1);
    EXPECT_EQ(decimals("100", "128", "-100"), 1);
    EXPECT_EQ(decimals("1", "32768", "0"), 5);
    EXPECT_EQ(decimals("10", "1", "0"), 0);
    EXPECT_EQ(decimals("1", "1", "0.5"), 1);
    EXPECT_EQ(decimals("0", "1", "0"), 0);
}

}  // namespace

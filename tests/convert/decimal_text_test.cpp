// Decimal texts: the short way in integers writes what the formatter writes.
#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <string>

#include "tests/support/converters.h"
#include "tests/support/not_under.h"

namespace {

struct Decimals : CKRMCCommandConvSignalData {
    using CKRMCCommandConvSignalData::DecStringConversion;
};

/// The formatter's text; what rounds to zero from below without its sign.
std::string Formatted(double value, int decimals) {
    std::array<char, 600> text;
    std::string formatted(
        text.data(),
        std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed, decimals).ptr);
    if (value < 0 && formatted.find_first_not_of("-0.") == std::string::npos) {
        formatted.erase(0, 1);
    }
    return formatted;
}

void ExpectFormatted(double value) {
    Decimals converter;
    for (unsigned char decimals = 0; decimals < 6; ++decimals) {
        CKRMString text;
        ASSERT_EQ(0U, converter.DecStringConversion(&text, value, decimals));
        ASSERT_EQ(Formatted(value, decimals), text.GetText()) << decimals;
    }
}

TEST(DecimalText, TiesAreRoundedToEven) {
    for (int eighths = -4000; eighths <= 4000; ++eighths) {
        ExpectFormatted(eighths / 8.0);
        ExpectFormatted(eighths / 16.0);
        ExpectFormatted(eighths / 2000.0);
    }
}

TEST(DecimalText, EveryExponentAndItsBorders) {
    for (int exponent = -1074; exponent <= 1023; ++exponent) {
        const double power = std::ldexp(1.0, exponent);
        for (const double value : {power, std::nextafter(power, 0.0), std::nextafter(power, 1e308), power * 1.5}) {
            ExpectFormatted(value);
            ExpectFormatted(-value);
        }
    }
    for (const double value :
         {0.0, -0.0, std::numeric_limits<double>::max(), std::numeric_limits<double>::infinity()}) {
        ExpectFormatted(value);
        ExpectFormatted(-value);
    }
}

TEST(DecimalText, RandomValues) {
    KRM_NOT_UNDER(Memcheck, "the sweep would take hours");
    std::mt19937_64 random(9);
    for (int i = 0; i < 30'000; ++i) {
        ExpectFormatted(static_cast<double>(static_cast<std::int64_t>(random())) / 1e13);
        ExpectFormatted(static_cast<double>(static_cast<std::int32_t>(random())) / 100);
        const auto anything = std::bit_cast<double>(random());
        if (std::isfinite(anything)) {
            ExpectFormatted(anything);
        }
    }
}

}  // namespace

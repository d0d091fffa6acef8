// The digits of integers: widths, limits of the types, and that nothing is written behind the end.
#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>

#include "krm/core/internal/digits.h"
#include "krm/core/types.h"

namespace krm::test {
namespace {

// What `write(to)` writes; what stands behind it must be untouched.
template <class Write>
std::string Written(Write write) {
    std::array<char, 100> room;
    room.fill('#');
    char* const end = write(room.data());
    for (const char* p = end; p != room.data() + room.size(); ++p) {
        EXPECT_EQ(*p, '#') << "written behind the end";
    }
    return std::string(room.data(), end);
}

template <class Number>
std::string Decimal(Number number) {
    return Written([number](char* to) { return core::WriteDecimal(to, number); });
}

std::string Decimal(std::uint32_t number, std::size_t width) {
    return Written([=](char* to) { return core::WriteDecimal(to, number, width); });
}

template <unsigned kBits, class Number>
std::string Bits(Number number, std::size_t width = 1) {
    return Written([=](char* to) { return core::WriteBits<kBits>(to, number, width); });
}

TEST(Digits, DecimalHasASignWhereTheNumberIsNegative) {
    EXPECT_EQ(Decimal(0), "0");
    EXPECT_EQ(Decimal(-7), "-7");
    EXPECT_EQ(Decimal(std::numeric_limits<std::int32_t>::min()), "-2147483648");
    EXPECT_EQ(Decimal(krm_ulong{0xFFFFFFFFU}), "4294967295");
    EXPECT_EQ(Decimal(std::numeric_limits<std::int64_t>::min()), "-9223372036854775808");
    EXPECT_EQ(Decimal(std::numeric_limits<std::uint64_t>::max()), "18446744073709551615");
}

TEST(Digits, ThereIsRoomForTheLongestDecimal) {
    EXPECT_EQ(core::kDecimalRoom<std::int32_t>, std::string("-2147483648").size());
    EXPECT_EQ(core::kDecimalRoom<std::uint32_t>, std::string("4294967295").size());
    EXPECT_EQ(core::kDecimalRoom<std::uint64_t>, std::string("18446744073709551615").size());
    EXPECT_GE(core::kDecimalRoom<std::int64_t>, std::string("-9223372036854775808").size());
}

TEST(Digits, DecimalIsFilledToItsWidthAndNeverCut) {
    EXPECT_EQ(Decimal(0U, 0), "0");
    EXPECT_EQ(Decimal(7U, 1), "7");
    EXPECT_EQ(Decimal(7U, 2), "07");
    EXPECT_EQ(Decimal(42U, 2), "42");
    EXPECT_EQ(Decimal(123U, 2), "123");
    EXPECT_EQ(Decimal(4294967295U, 12), "004294967295");
}

TEST(Digits, TheLastDecimalsAreCut) {
    const auto last = [](std::uint64_t number, std::size_t count) {
        return Written([=](char* to) { return core::WriteLastDecimals(to, number, count); });
    };
    EXPECT_EQ(last(12345, 3), "345");
    EXPECT_EQ(last(5, 3), "005");
    EXPECT_EQ(last(1000, 3), "000");
    EXPECT_EQ(last(12345, 0), "");
}

TEST(Digits, HexadecimalInBothCases) {
    const auto hexadecimal = [](std::uint64_t number, const char* digits, std::size_t width) {
        return Written([=](char* to) { return core::WriteHexadecimal(to, number, digits, width); });
    };
    EXPECT_EQ(hexadecimal(0, core::kLowerCase, 0), "0");
    EXPECT_EQ(hexadecimal(0xF, core::kLowerCase, 1), "f");
    EXPECT_EQ(hexadecimal(0x10, core::kLowerCase, 1), "10");
    EXPECT_EQ(hexadecimal(0xABCDEF, core::kLowerCase, 4), "abcdef");
    EXPECT_EQ(hexadecimal(0xABCDEF, core::kUpperCase, 8), "00ABCDEF");
    EXPECT_EQ(hexadecimal(0xFEDCBA9876543210U, core::kUpperCase, 1), "FEDCBA9876543210");
    EXPECT_EQ(hexadecimal(0xFEDCBA9876543210U, core::kUpperCase, 18), "00FEDCBA9876543210");
    EXPECT_EQ(hexadecimal(1, core::kUpperCase, 40), std::string(39, '0') + "1");
}

TEST(Digits, OtherBases) {
    EXPECT_EQ(Bits<1>(5U), "101");
    EXPECT_EQ(Bits<1>(5U, 8), "00000101");
    EXPECT_EQ(Bits<1>(0xFFFFFFFFU), std::string(32, '1'));
    EXPECT_EQ(Bits<1>(1U, 40), std::string(39, '0') + "1");
    EXPECT_EQ(Bits<3>(0U), "0");
    EXPECT_EQ(Bits<3>(0755U), "755");
    EXPECT_EQ(Bits<3>(std::numeric_limits<std::uint64_t>::max()), "1777777777777777777777");
    EXPECT_EQ(Bits<3>(std::uint64_t{8}, 24), "000000000000000000000010");
}

TEST(Digits, AByteHasTwo) {
    const auto byte = [](unsigned char value, const char* digits) {
        return Written([=](char* to) { return core::WriteByte(to, value, digits); });
    };
    EXPECT_EQ(byte(0, core::kLowerCase), "00");
    EXPECT_EQ(byte(0x0A, core::kLowerCase), "0a");
    EXPECT_EQ(byte(0xF1, core::kUpperCase), "F1");
}

}  // namespace
}  // namespace krm::test

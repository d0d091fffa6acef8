// The formatter behind CKRMString::Format, against literal texts and, where there is one to ask, the C library.
#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <iterator>
#include <limits>
#include <random>
#include <string>

#include "krm/platform/platform.h"
#include "tests/support/c_locale.h"
#include "tests/support/not_under.h"

namespace {

/// What CKRMString makes of a format that isn't a literal.
template <class... Arguments>
std::string Formatted(const std::string& format, Arguments... arguments) {
    CKRMString text;
    // The last argument is one too many, which is ignored; without any, compilers warn of a format that isn't a literal.
    text.Format(format.c_str(), arguments..., 0);
    return text.GetText();
}

TEST(FormatTest, DoublesHaveSixDecimalsCorrectlyRounded) {
    const struct {
        double value;
        const char* text;
    } rows[] = {{0.0, "0.000000"},
                {-0.0, "-0.000000"},
                {1.0, "1.000000"},
                {-1.0, "-1.000000"},
                {0.5, "0.500000"},
                {0.25, "0.250000"},
                {0.0000005, "0.000000"},
                {0.0000004999999999, "0.000000"},
                {0.00000051, "0.000001"},
                {0.0000015, "0.000002"},
                {0.0000025, "0.000003"},
                {1.0000005, "1.000001"},
                {1.0000015, "1.000001"},
                {2.5, "2.500000"},
                {3.5, "3.500000"},
                {0.1, "0.100000"},
                {0.2, "0.200000"},
                {0.3, "0.300000"},
                {0.7, "0.700000"},
                {-0.1, "-0.100000"},
                {12.6, "12.600000"},
                {13.8, "13.800000"},
                {14.4, "14.400000"},
                {90.0, "90.000000"},
                {-40.0, "-40.000000"},
                {215.0, "215.000000"},
                {0.392156862745098, "0.392157"},
                {99.6078431372549, "99.607843"},
                {100.0, "100.000000"},
                {16383.75, "16383.750000"},
                {655.35, "655.350000"},
                {65535.0, "65535.000000"},
                {4294967295.0, "4294967295.000000"},
                {2147483648.0, "2147483648.000000"},
                {-2147483648.0, "-2147483648.000000"},
                {1e-5, "0.000010"},
                {1e-6, "0.000001"},
                {1e-7, "0.000000"},
                {5e-324, "0.000000"},
                {2.2250738585072014e-308, "0.000000"},
                {1e-300, "0.000000"},
                {1e5, "100000.000000"},
                {1e6, "1000000.000000"},
                {1e7, "10000000.000000"},
                {1e10, "10000000000.000000"},
                {1e15, "1000000000000000.000000"},
                {9007199254740992.0, "9007199254740992.000000"},
                {9007199254740993.0, "9007199254740992.000000"},
                {1e16, "10000000000000000.000000"},
                {123456789012345680.0, "123456789012345680.000000"},
                {1e17, "100000000000000000.000000"},
                {1e18, "1000000000000000000.000000"},
                {9223372036854775808.0, "9223372036854775808.000000"},
                {-9223372036854775808.0, "-9223372036854775808.000000"},
                {18446744073709551616.0, "18446744073709551616.000000"},
                {1e20, "100000000000000000000.000000"},
                {1e21, "1000000000000000000000.000000"},
                {1e22, "10000000000000000000000.000000"},
                {1e23, "99999999999999991611392.000000"},
                {8.5e22, "84999999999999997902848.000000"},
                {1e24, "999999999999999983222784.000000"},
                {1e25, "10000000000000000905969664.000000"},
                {0.999999, "0.999999"},
                {0.9999995, "1.000000"},
                {0.9999994999, "0.999999"},
                {0.99999949999999, "0.999999"},
                {9.9999995, "9.999999"},
                {99.9999995, "100.000000"},
                {999999.9999995, "999999.999999"},
                {-0.0000004, "-0.000000"},
                {-0.0000006, "-0.000001"},
                {1.7976931348623157e20, "179769313486231568384.000000"},
                {3.141592653589793, "3.141593"},
                {2.718281828459045, "2.718282"},
                {1.4142135623730951, "1.414214"},
                {0.3333333333333333, "0.333333"},
                {0.6666666666666666, "0.666667"},
                {123.456, "123.456000"},
                {-123.456, "-123.456000"},
                {123456.789, "123456.789000"},
                {0.000123, "0.000123"},
                {1234567.8912345, "1234567.891235"},
                {33.0625, "33.062500"},
                {0.0009765625, "0.000977"},
                {1e-4, "0.000100"},
                {6.62607015e-6, "0.000007"},
                {299792458.0, "299792458.000000"}};
    for (const auto& row : rows) {
        EXPECT_EQ(Formatted("%lf", row.value), row.text);
        EXPECT_EQ(Formatted("%f", row.value), row.text);
    }
}

TEST(FormatTest, TheLargestDoubleIsNotCut) {
    const std::string text = Formatted("%lf", std::numeric_limits<double>::max());
    EXPECT_EQ(text.size(), 309U + 7U);
    EXPECT_EQ(text.substr(0, 20), "17976931348623157081");
    EXPECT_EQ(text.substr(309), ".000000");
    const std::string precise = Formatted("%.255f", std::numeric_limits<double>::max());
    EXPECT_EQ(precise.size(), 309U + 1U + 255U);
    const std::string smallest = Formatted("%.1074f", std::numeric_limits<double>::denorm_min());
    EXPECT_EQ(smallest.size(), 1076U);
    EXPECT_EQ(smallest.substr(325, 10), "4940656458");
    EXPECT_EQ(smallest.substr(1066), "3447265625");
}

TEST(FormatTest, NotANumberAndInfinityHaveNames) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(Formatted("%lf", std::copysign(nan, 1.0)), "nan");
    EXPECT_EQ(Formatted("%lf", std::copysign(nan, -1.0)), "-nan");
    EXPECT_EQ(Formatted("%lf", infinity), "inf");
    EXPECT_EQ(Formatted("%lf", -infinity), "-inf");
    EXPECT_EQ(Formatted("%F %E %G %A", infinity, infinity, -infinity, infinity), "INF INF -INF INF");
    EXPECT_EQ(Formatted("%08.2f|%-8f|", infinity, -infinity), "     inf|-inf    |");
}

TEST(FormatTest, IntegersOfTheLog) {
    EXPECT_EQ(Formatted("%d", 0), "0");
    EXPECT_EQ(Formatted("%d", std::numeric_limits<int>::min()), "-2147483648");
    EXPECT_EQ(Formatted("%d", 4294967295U), "-1");
    EXPECT_EQ(Formatted("%u", 4294967295U), "4294967295");
    EXPECT_EQ(Formatted("%u", -1), "4294967295");
    EXPECT_EQ(Formatted("%02X", 10U), "0A");
    EXPECT_EQ(Formatted("0x%08X", 0xBEEFU), "0x0000BEEF");
    EXPECT_EQ(Formatted("%06X", 0x1234567U), "1234567");
    EXPECT_EQ(Formatted("0x%X", 0xABCDEFU), "0xABCDEF");
    EXPECT_EQ(Formatted("%010u", 42U), "0000000042");
    EXPECT_EQ(Formatted("%x", 0xABCDEFU), "abcdef");
}

TEST(FormatTest, TextsAndCharacters) {
    EXPECT_EQ(Formatted("%s", ""), "");
    EXPECT_EQ(Formatted("<%5s|%-5s|%.2s>", "abc", "abc", "abc"), "<  abc|abc  |ab>");
    EXPECT_EQ(Formatted("%c%3c%-3c|", 'a', 'b', 'c'), "a  bc  |");
    const char* const null = nullptr;
    EXPECT_EQ(Formatted("%s", null), "(null)");
    EXPECT_EQ(Formatted("%10s", null), "    (null)");
    // A text with a precision need not end with a NUL.
    const char open[] = {'a', 'b', 'c'};
    EXPECT_EQ(Formatted("%.3s", open), "abc");
    EXPECT_EQ(Formatted("%.*s", 2, open), "ab");
}

TEST(FormatTest, WidthAndPrecisionFromTheArguments) {
    EXPECT_EQ(Formatted("%*d|%-*d|%*d|", 5, 1, 5, 2, -5, 3), "    1|2    |3    |");
    EXPECT_EQ(Formatted("%.*f", 2, 1.5), "1.50");
    EXPECT_EQ(Formatted("%.*f", -1, 1.5), "1.500000");
    EXPECT_EQ(Formatted("%*d", std::numeric_limits<int>::min(), 7), "7");
}

// GNU's printf drops these zeros, as "1.e+06"; the C standard keeps them.
TEST(FormatTest, GeneralWithItsZerosRoundsUpToAPowerOfTen) {
    EXPECT_EQ(Formatted("%#g", 999999.99), "1.00000e+06");
    EXPECT_EQ(Formatted("%#.2G", 99.9), "1.0E+02");
    EXPECT_EQ(Formatted("%#.0g", 99.9), "1.e+02");
    EXPECT_EQ(Formatted("%#.3g", 99.99), "100.");
    EXPECT_EQ(Formatted("%#g", 99999.99), "100000.");
    EXPECT_EQ(Formatted("%#.4g", 0.00000999999), "1.000e-05");
    EXPECT_EQ(Formatted("%#.4g", 0.0000999999), "0.0001000");
}

TEST(FormatTest, PercentPrintsItself) {
    EXPECT_EQ(Formatted("100%% of %d%%", 5), "100% of 5%");
}

TEST(FormatTest, CountOfCharactersIsNotWritten) {
    int count = -1;
    EXPECT_EQ(Formatted("abc%n%d", &count, 7), "abc7");
    EXPECT_EQ(count, -1);
}

TEST(FormatTest, MalformedFormatsEndQuietly) {
    const struct {
        const char* format;
        const char* text;
    } rows[] = {
        {"", ""},
        {"%", ""},
        {"a%", "a"},
        {"%5", ""},
        {"%-+ #0", ""},
        {"%.", ""},
        {"%5.", ""},
        {"%l", ""},
        {"%hh", ""},
        {"%ll", ""},
        {"%q", "q"},
        {"%5q|", "q|"},
        {"%lq", "q"},
        {"%.3!", "!"},
        {"%%%", "%"},
        {"%%%%", "%%"},
        {"% %", "%"},
        {"%-5.3%|", "%|"},
        {"%\xFF", "\xFF"},
        {"%L", ""},
        {"%z|", "|"},
        {"%y%y", "yy"},
        {"%99999999999999999999999q", "q"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(Formatted(row.format), row.text) << row.format;
    }
}

TEST(FormatTest, RandomFormatsWithoutArgumentsNeverCrash) {
    KRM_NOT_UNDER(Memcheck, "the sweep would take hours");
    std::mt19937 random(20260);
    // No letter here takes an argument.
    const std::string alphabet = "%%%%-+ #0123.hlzjtLqybvw!";
    for (int round = 0; round < 20'000; ++round) {
        std::string format;
        for (auto length = random() % 12; length > 0; --length) {
            format += alphabet[random() % alphabet.size()];
        }
        const std::string text = Formatted(format);
        EXPECT_LE(text.size(), format.size()) << format;
    }
}

TEST(FormatTest, FollowsNoLocale) {
    const std::string before = std::setlocale(LC_ALL, nullptr);
    if (std::setlocale(LC_ALL, "de_DE.UTF-8") == nullptr && std::setlocale(LC_ALL, "German_Germany.1252") == nullptr) {
        GTEST_SKIP() << "no locale with a decimal comma on this machine";
    }
    const std::string text = Formatted("%lf %d", 1234.5, 1234567);
    std::setlocale(LC_ALL, before.c_str());
    EXPECT_EQ(text, "1234.500000 1234567");
}

// The C library's printf, which the texts must equal in the C locale; other systems' libraries go their own ways.
#if defined(__linux__)

template <class... Arguments>
void ExpectAsPrintf(const std::string& format, Arguments... arguments) {
    std::string wanted;
    {
        const krm::test::InCLocale inCLocale;
        const int length = std::snprintf(nullptr, 0, format.c_str(), arguments...);  // NOLINT
        ASSERT_GE(length, 0) << format;
        wanted.resize(static_cast<std::size_t>(length) + 1);
        std::snprintf(wanted.data(), wanted.size(), format.c_str(), arguments...);  // NOLINT
        wanted.pop_back();
    }
    ASSERT_EQ(Formatted(format, arguments...), wanted) << format;
}

class PrintfTest : public ::testing::Test {
protected:
    unsigned Random(unsigned below) { return static_cast<unsigned>(m_random()) % below; }
    std::uint64_t RandomBits() { return m_random() >> Random(64); }

    /// "%" with random flags, width and precision, still without size and letter.
    std::string Beginning(unsigned precisions) {
        std::string format = "<%";
        for (unsigned count = Random(4); count > 0; --count) {
            format += "-+ #0"[Random(5)];
        }
        if (Random(2) == 0) {
            format += std::to_string(1 + Random(40));
        }
        if (Random(2) == 0) {
            format += '.';
            if (Random(4) != 0) {
                format += std::to_string(Random(precisions));
            }
        }
        return format;
    }

    std::mt19937_64 m_random{4711};
};

TEST_F(PrintfTest, Integers) {
    KRM_NOT_UNDER(Memcheck, "the sweep would take hours");
    for (int round = 0; round < 60'000; ++round) {
        const std::string beginning = Beginning(30);
        const char letter = "diuoxX"[Random(6)];
        const std::uint64_t bits = Random(20) == 0 ? 0 : RandomBits() * (Random(2) == 0 ? 1 : ~std::uint64_t{0});
        const std::string end = std::string(1, letter) + ">";
        switch (Random(8)) {
            case 0:
                ExpectAsPrintf(beginning + "hh" + end, static_cast<int>(bits & 0x7FFFFFFF));
                break;
            case 1:
                ExpectAsPrintf(beginning + "h" + end, static_cast<int>(bits & 0x7FFFFFFF));
                break;
            case 2:
                ExpectAsPrintf(beginning + "l" + end, static_cast<long>(bits));
                break;
            case 3:
                ExpectAsPrintf(beginning + "ll" + end, static_cast<long long>(bits));
                break;
            case 4:
                ExpectAsPrintf(beginning + "j" + end, static_cast<std::intmax_t>(bits));
                break;
            case 5:
                ExpectAsPrintf(beginning + "z" + end, static_cast<std::size_t>(bits));
                break;
            case 6:
                ExpectAsPrintf(beginning + "t" + end, static_cast<std::ptrdiff_t>(bits));
                break;
            default:
                ExpectAsPrintf(beginning + end, static_cast<int>(static_cast<std::uint32_t>(bits)));
                break;
        }
        if (HasFatalFailure()) {
            return;
        }
    }
}

TEST_F(PrintfTest, Reals) {
    KRM_NOT_UNDER(Memcheck, "memcheck computes the processor's 80-bit numbers in 64 bits");
    const double specials[] = {0.0,
                               -0.0,
                               0.5,
                               1.5,
                               2.5,
                               -2.5,
                               0.25,
                               0.125,
                               1e22,
                               1e23,
                               9.5,
                               99.5,
                               9.9999995,
                               0.0001,
                               0.00001,
                               0.000099999949,
                               123456.5,
                               1234567.5,
                               100000.0,
                               1000000.0,
                               std::numeric_limits<double>::max(),
                               std::numeric_limits<double>::min(),
                               std::numeric_limits<double>::denorm_min(),
                               std::numeric_limits<double>::infinity(),
                               -std::numeric_limits<double>::infinity(),
                               std::copysign(std::numeric_limits<double>::quiet_NaN(), 1.0),
                               std::copysign(std::numeric_limits<double>::quiet_NaN(), -1.0)};
    for (int round = 0; round < 60'000; ++round) {
        double value = specials[Random(static_cast<unsigned>(std::size(specials)))];
        switch (Random(4)) {
            case 0: {
                const std::uint64_t bits = m_random();
                std::memcpy(&value, &bits, sizeof value);
                break;
            }
            case 1:
                value = static_cast<double>(static_cast<std::int64_t>(m_random() >> 20) - (std::int64_t{1} << 43)) /
                        std::pow(10.0, Random(12));
                break;
            case 2:
                value = static_cast<double>(Random(100'000)) / 1024.0;
                break;
            default:
                break;
        }
        const bool usual = value == 0 || !std::isfinite(value) || std::isnormal(value);
        // How a subnormal number is normalised in hexadecimal is the implementation's choice.
        const char letter = usual ? "fFeEgGaA"[Random(8)] : "fFeEgG"[Random(6)];
        std::string beginning = Beginning(Random(50) == 0 ? 400 : 25);
        ExpectAsPrintf(beginning + (Random(2) == 0 ? "l" : "") + letter + ">", value);
        if (HasFatalFailure()) {
            return;
        }
    }
}

TEST_F(PrintfTest, LongDoublesOfADoublesPrecision) {
    KRM_NOT_UNDER(Memcheck, "memcheck computes the processor's 80-bit numbers in 64 bits");
    ExpectAsPrintf("%Lf %Le %Lg", 1.5L, -2.25L, 1e10L);
    ExpectAsPrintf("%.17Lg", static_cast<long double>(0.1));
}

TEST_F(PrintfTest, TextsCharactersAndPointers) {
    KRM_NOT_UNDER(Memcheck, "the sweep would take hours");
    const char* const texts[] = {"", "a", "abc", "100%s%d", "a longer text with blanks in it"};
    for (int round = 0; round < 5'000; ++round) {
        std::string format = "<%";
        format += Random(2) == 0 ? "-" : "";
        format += Random(2) == 0 ? std::to_string(1 + Random(40)) : "";
        ExpectAsPrintf(format + "c>", 'a' + static_cast<int>(Random(26)));
        ExpectAsPrintf(format + "p>", static_cast<void*>(&format));
        format += Random(2) == 0 ? "." + std::to_string(Random(40)) : "";
        ExpectAsPrintf(format + "s>", texts[Random(5)]);
        ExpectAsPrintf("%*.*s|%-*d|%.*f", static_cast<int>(Random(80)) - 40, static_cast<int>(Random(20)) - 5,
                       texts[Random(5)], static_cast<int>(Random(20)), round, static_cast<int>(Random(20)) - 5,
                       round / 7.0);
        if (HasFatalFailure()) {
            return;
        }
    }
}

TEST_F(PrintfTest, AHundredKilobyteLine) {
    KRM_NOT_UNDER(Memcheck, "it would take hours at this size");
    const std::string large(100'000, 'u');
    ExpectAsPrintf("[%s] m_str=%s %d", large.c_str(), large.c_str(), 1);
    ExpectAsPrintf("%100000d|%-100000s|%.100000d|%.100000f", 1, "a", 2, 0.1);
}

#endif  // __linux__

}  // namespace

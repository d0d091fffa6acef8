// krm convert: what it says of a signal, and of what it can't read.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/cli/calls.h"

namespace {

using krm::test::Call;
using krm::test::Krm;
using ::testing::HasSubstr;
using ::testing::StartsWith;

/// What `krm convert` writes with these arguments; it must do it.
std::string Converted(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), "convert");
    const Call call = Krm(arguments);
    EXPECT_EQ(call.status, 0) << call.err;
    EXPECT_EQ(call.err, "");
    return call.out;
}

/// What it says against them; it must write nothing.
std::string Refused(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), "convert");
    const Call call = Krm(arguments);
    EXPECT_EQ(call.status, 2) << call.out;
    EXPECT_EQ(call.out, "");
    return call.err;
}

TEST(Convert, TellsAllOfASignal) {
    EXPECT_EQ(Converted({"0", "0xabcdee", "--bits", "24", "--mul", "3", "--div", "2", "--offset", "-100000",
                         "--decimals", "1"}),
              "type   other, number: the scaled value in decimal\n"
              "raw    0xABCDEE (11259374), 24 bits\n"
              "value  1678906.1\n"
              "text   1678906.1\n"
              "back   from the value: 0xABCDEE (11259374)\n"
              "       from the text: 0xABCDEE (11259374)\n");
}

TEST(Convert, TakesFactorsOf32Bits) {
    EXPECT_THAT(Converted({"0", "7", "--mul", "100000"}), HasSubstr("\nvalue  700000\n"));
    EXPECT_THAT(Converted({"0", "70000", "--bits", "32", "--div", "-70000"}), HasSubstr("\nvalue  -1\n"));
    EXPECT_THAT(Converted({"0", "1", "--offset", "-2000000000"}), HasSubstr("\nvalue  -1999999999\n"));
    // A digit for four bits each.
    EXPECT_THAT(Converted({"3", "0xAB", "--bits", "264"}), HasSubstr("\ntext   0x" + std::string(64, '0') + "AB\n"));
}

TEST(Convert, TakesSignsAndLimits) {
    const std::string first = "type   other, number: the scaled value in decimal\n";
    EXPECT_THAT(Converted({"0", "0xF0", "--signed", "1"}),
                StartsWith(first + "raw    0xF0 (240), 8 bits\nvalue  -16\ntext   -16\n"));
    EXPECT_THAT(Converted({"0", "-16", "--signed", "1", "--bits", "32"}),
                StartsWith(first + "raw    0xFFFFFFF0 (4294967280), 32 bits\nvalue  -16\ntext   -16\n"));
    EXPECT_THAT(Converted({"0", "0x81", "--signed", "3"}),
                StartsWith(first + "raw    0x81 (129), 8 bits\nvalue  -1\ntext   -1\n"));
    EXPECT_THAT(Converted({"13", "9", "--min", "10", "--max", "0x14", "--pattern", "0=low", "--pattern", "1=high"}),
                HasSubstr("\ntext   low\n"));
    EXPECT_THAT(Converted({"13", "21", "--min", "10", "--max", "0x14", "--pattern", "0=low", "--pattern", "1=high"}),
                HasSubstr("\ntext   high\n"));
    // Without limits those of the bits.
    EXPECT_THAT(Converted({"13", "7", "--bits", "3", "--pattern", "1=high"}), HasSubstr("\ntext   high\n"));
    EXPECT_THAT(Converted({"13", "6", "--bits", "3", "--pattern", "1=high"}), HasSubstr("\ntext   6\n"));
    EXPECT_THAT(Converted({"13", "0xFFFFFFFF", "--bits", "32", "--pattern", "1=high"}), HasSubstr("\ntext   high\n"));
    EXPECT_THAT(Converted({"13", "0x7FFFFFFF", "--bits", "31", "--pattern", "1=high"}), HasSubstr("\ntext   high\n"));
}

TEST(Convert, TakesPatternsAndTheirDefault) {
    const std::vector<std::string> patterns{"--pattern",      "0=Off",     "--pattern",
                                            "70000=On = yes", "--default", "neither"};
    const auto shown = [&](const std::string& raw) {
        std::vector<std::string> arguments{"1", raw, "--bits", "32"};
        arguments.insert(arguments.end(), patterns.begin(), patterns.end());
        return Converted(arguments);
    };
    EXPECT_THAT(shown("0"), HasSubstr("\ntext   Off\n"));
    EXPECT_THAT(shown("70000"), HasSubstr("\ntext   On = yes\n"));
    EXPECT_THAT(shown("4464"), HasSubstr("\ntext   neither\n"));
}

TEST(Convert, TakesBytes) {
    EXPECT_EQ(
        Converted({"104", "0x01 ab"}),
        "type   104, bytes in hexadecimal: two hexadecimal digits per byte, behind the text that the record already "
        "holds\n"
        "raw    01AB, 2 bytes\n"
        "value  1\n"
        "text   01AB\n"
        "back   from the value: can't be told: several raw values are shown so\n"
        "       from the text: 01AB\n");
    // More bits than a byte can count.
    const std::string many(80, '7');
    EXPECT_THAT(Converted({"104", many}), HasSubstr("\nraw    " + many + ", 40 bytes\n"));
    EXPECT_THAT(Converted({"104", many}), HasSubstr("\ntext   " + many + '\n'));
    EXPECT_THAT(Converted({"4", "4F4B"}), HasSubstr("\nraw    4F4B, 2 bytes\nvalue  79\ntext   OK\n"));
}

TEST(Convert, GoesBack) {
    EXPECT_EQ(Converted({"0", "--back", "83", "--offset", "-40"}), "raw    0x7B (123)\nvalue  83\ntext   83\n");
    EXPECT_EQ(Converted({"104", "--back", "01AB", "--bits", "16"}), "raw    01AB\nvalue  1\ntext   01AB\n");
    // A raw value above 16 bits, and above 31.
    EXPECT_EQ(Converted({"0", "--back", "70000", "--bits", "32"}),
              "raw    0x11170 (70000)\nvalue  70000\ntext   70000\n");
    EXPECT_EQ(Converted({"0", "--back", "3000000001", "--bits", "32"}),
              "raw    0xB2D05E01 (3000000001)\nvalue  3000000001\ntext   3000000001\n");
    const Call between = Krm({"convert", "0", "--back", "83.4"});
    EXPECT_EQ(between.status, 1);
    EXPECT_EQ(between.out, "raw    none; the nearest is 0x53 (83), which is 83\n");
    // 8 bits unless it is told.
    const Call tooLarge = Krm({"convert", "0", "--back", "256"});
    EXPECT_EQ(tooLarge.status, 1);
    EXPECT_EQ(tooLarge.out, "raw    none\n");
    const Call several = Krm({"convert", "6", "--back", "600"});
    EXPECT_EQ(several.status, 1);
    EXPECT_EQ(several.out, "raw    can't be told: several raw values are shown so\n");
    const Call none = Krm({"convert", "1", "--back", "Maybe", "--pattern", "0=Off"});
    EXPECT_EQ(none.status, 1);
    EXPECT_EQ(none.out, "raw    none\n");
}

TEST(Convert, RefusesWhatIsNoNumber) {
    EXPECT_EQ(Refused({"0", "seven"}), "krm: RAW is no number of 32 bits, such as 123 or 0x7B: seven\n");
    for (const char* const raw :
         {"4294967296", "-2147483649", "0x100000000", "0x-1", "0x", "7 ", "1.5", "99999999999999999999"}) {
        EXPECT_EQ(Refused({"0", raw}),
                  "krm: RAW is no number of 32 bits, such as 123 or 0x7B: " + std::string(raw) + '\n');
    }
    EXPECT_THAT(Converted({"0", "4294967295", "--bits", "32"}), HasSubstr("raw    0xFFFFFFFF (4294967295), 32 bits\n"));
    EXPECT_THAT(Converted({"0", "-2147483648", "--bits", "32"}),
                HasSubstr("raw    0x80000000 (2147483648), 32 bits\n"));
    EXPECT_THAT(Converted({"0", "0XfF"}), HasSubstr("raw    0xFF (255), 8 bits\n"));
    EXPECT_EQ(Refused({"0", "1", "--min", "low"}), "krm: --min is no number of 32 bits, such as 123 or 0x7B: low\n");
    EXPECT_EQ(Refused({"0", "1", "--max", "high"}), "krm: --max is no number of 32 bits, such as 123 or 0x7B: high\n");
    EXPECT_EQ(Refused({"1", "1", "--pattern", "a=b"}),
              "krm: --pattern's key is no number of 32 bits, such as 123 or 0x7B: a\n");
    EXPECT_EQ(Refused({"1", "1", "--pattern", "a"}), "krm: --pattern needs KEY=TEXT: a\n");
    for (const char* const bytes : {"1", "123", "0G", "G0", "0x", " ", "4f 4"}) {
        EXPECT_EQ(Refused({"104", bytes}),
                  "krm: RAW: this type takes bytes in hexadecimal, two digits each: " + std::string(bytes) + '\n');
    }
}

TEST(Convert, RefusesWhatIsOutOfRange) {
    const std::string help = "\nRun krm convert --help for how to call it.\n";
    for (const char* const code : {"-1", "256"}) {
        EXPECT_EQ(Refused({code, "1"}), "krm: CODE: Value " + std::string(code) + " not in range 0 to 255" + help);
        for (const char* const option : {"--signed", "--decimals"}) {
            EXPECT_EQ(Refused({"0", "1", option, code}),
                      "krm: " + std::string(option) + ": Value " + code + " not in range 0 to 255" + help);
        }
    }
    for (const char* const bits : {"0", "65536"}) {
        EXPECT_EQ(Refused({"0", "1", "--bits", bits}),
                  "krm: --bits: Value " + std::string(bits) + " not in range 1 to 65535" + help);
    }
    EXPECT_THAT(Converted({"0", "1", "--bits", "65535"}), HasSubstr(", 65535 bits\n"));
    EXPECT_THAT(Converted({"0", "1", "--bits", "1"}), HasSubstr(", 1 bits\n"));
    EXPECT_THAT(Converted({"0", "1", "--signed", "255", "--decimals", "255"}), HasSubstr("raw    0x1 (1), 8 bits\n"));
    EXPECT_THAT(Converted({"255", "1"}), StartsWith("type   other, number: "));
}

TEST(Convert, NeedsOneOfBothWays) {
    EXPECT_EQ(Refused({"0"}), "krm: convert needs RAW, or --back and what is shown\n");
    EXPECT_EQ(Refused({"0", "1", "--back", "1"}), "krm: convert needs RAW, or --back and what is shown\n");
    EXPECT_THAT(Converted({}),
                StartsWith("other, number: the scaled value in decimal\n1, pattern: the text of the pattern"));
}

}  // namespace

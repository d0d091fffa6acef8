// Signals by their rule, both ways: what is shown, and the raw value behind it for every type that tells it.
#include "krm/convert/signal.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <map>
#include <new>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "krm/messages/diag/active_test.h"
#include "krm/messages/diag/freeze_frame_item.h"
#include "krm/messages/diag/on_board_monitor.h"
#include "krm/messages/diag/oscilloscope.h"
#include "tests/support/converters.h"
#include "tests/support/failing_allocation.h"
#include "tests/support/not_under.h"
#include "tests/support/reference_conversions.h"

namespace krm::test {
namespace {

CKRMCCommandConversionData Table(unsigned short bits, unsigned char sign = 0, krm_long mul = 1, krm_long div = 1,
                                 krm_long offset = 0) {
    CKRMCCommandConversionData table;
    table.m_lMul = mul;
    table.m_lDiv = div;
    table.m_lOffset = offset;
    table.m_uchSigned = sign;
    table.m_ushBitLength = bits;
    table.m_cDataMax.m_ulRawData = 0xFFFFFFFFU;
    return table;
}

void AddPattern(CKRMCCommandConversionData& table, krm_ulong key, const char* text, krm_ulong id = 0) {
    CKRMCCommandDispData pattern;
    pattern.m_ulRawData = key;
    pattern.m_strDataPhys = text;
    pattern.m_ulDataStringId = id;
    table.m_cPatternDispList.AddTail(pattern);
}

SignalRule Rule(int type, const CKRMCCommandConversionData& table, int decimals = 0) {
    return {static_cast<unsigned char>(type), static_cast<unsigned char>(decimals), table};
}

/// "found 12", "nearest 12 gives 3.500000", "none", "no inverse".
template <class Shown>
std::string Raw(const SignalRule& rule, Shown shown) {
    const RawSignal found = RawFromPhysical(rule, shown);
    switch (found.status) {
        case RawStatus::kFound:
            EXPECT_TRUE(static_cast<bool>(found));
            return "found " + std::to_string(found.raw);
        case RawStatus::kNearest:
            EXPECT_FALSE(static_cast<bool>(found));
            return "nearest " + std::to_string(found.raw) + " gives " + reference::FixedPoint(found.physical, 6);
        case RawStatus::kNone:
            EXPECT_EQ(0U, found.raw);
            return "none";
        case RawStatus::kNoInverse:
            EXPECT_EQ(0U, found.raw);
            return "no inverse";
    }
    return "unknown status";
}

std::string Shown(const SignalRule& rule, krm_ulong raw) {
    CKRMCCommandDispData display;
    EXPECT_EQ(0U, ConvertSignal(rule, raw, &display));
    return display.m_strDataPhys.GetText();
}

// ---- Raw to shown ----

TEST(ConvertSignal, TakesTheRuleAsARecordCarriesIt) {
    CKRMCCommandFFDData item;
    item.m_uchDecPntCount = 1;
    item.m_cConversionTbl = Table(16, 1, 1, 1, -400);
    CKRMCCommandDispData display;
    MarkAll(display);
    EXPECT_EQ(0U, ConvertSignal(item, 0x0FA0, &display));
    EXPECT_EQ(0x0FA0U, display.m_ulRawData);
    EXPECT_EQ(360.0, display.m_dDataPhys);
    EXPECT_STREQ("360.0", display.m_strDataPhys.GetText());
    EXPECT_EQ(0U, display.m_ulDataStringId);
    EXPECT_TRUE(OthersAreMarked(display));
    EXPECT_EQ("found 4000", Raw(item, 360.0));
}

TEST(ConvertSignal, EveryRecordWithARuleIsOne) {
    CKRMCCommandConversionData table = Table(8);
    AddPattern(table, 5, "five", 77);
    const auto show = [&](auto record) {
        record.m_uchDataType = 1;
        record.m_cConversionTbl = table;
        CKRMCCommandDispData display;
        EXPECT_EQ(0U, ConvertSignal(record, 5, &display));
        EXPECT_EQ(77U, display.m_ulDataStringId);
        return std::string(display.m_strDataPhys.GetText());
    };
    EXPECT_EQ("five", show(CKRMCCommandFFDData()));
    EXPECT_EQ("five", show(CKRMCCommandOscData()));
    EXPECT_EQ("five", show(CKRMCCommandActiveTestData()));
    EXPECT_EQ("five", show(CKRMCCommandOnBoardMonitorInfo()));
}

TEST(ConvertSignal, GivesWhatTheConverterGivesForTheThirteenArguments) {
    for (const int type : AllCodes()) {
        if (type == 4 || type == 104) {
            continue;
        }
        Item item;
        item.sign = 1;
        item.bits = 12;
        item.mul = 3;
        item.div = 2;
        item.offset = -7;
        item.decimals = 1;
        item.max = 0x300;
        item.min = 0x10;
        item.patterns = {{0, "low", 1}, {1, "high", 2}, {9, "nine", 3}};
        item.defaultText = "other";
        CKRMCCommandConversionData table = Table(12, 1, 3, 2, -7);
        table.m_cDataMax.m_ulRawData = 0x300;
        table.m_cDataMin.m_ulRawData = 0x10;
        AddPattern(table, 0, "low", 1);
        AddPattern(table, 1, "high", 2);
        AddPattern(table, 9, "nine", 3);
        table.m_strDefaultPattern = "other";
        const SignalConverter converter(static_cast<unsigned char>(type));
        Arguments arguments(item);
        for (krm_ulong raw = 0; raw < 0x1000; raw += 7) {
            CKRMCCommandDispData expected;
            CKRMCCommandDispData display;
            EXPECT_EQ(arguments.Raw(*converter, &expected, raw),
                      ConvertSignal(converter, Rule(type, table, 1), raw, &display));
            EXPECT_TRUE(SameDouble(expected.m_dDataPhys, display.m_dDataPhys)) << type << ' ' << raw;
            EXPECT_STREQ(expected.m_strDataPhys.GetText(), display.m_strDataPhys.GetText()) << type << ' ' << raw;
            if (expected.m_strDataPhys.Compare("other") != 0) {
                EXPECT_EQ(expected.m_ulDataStringId, display.m_ulDataStringId);
            }
        }
    }
}

TEST(ConvertSignal, TakesBytes) {
    const CKRMCCommandConversionData table = Table(32);
    CKRMCCommandDispData display;
    const std::vector<unsigned char> text = {'P', '0', '3', '0', '1'};
    EXPECT_EQ(0U, ConvertSignal(Rule(4, table), text, &display));
    EXPECT_STREQ("P0301", display.m_strDataPhys.GetText());
    const std::vector<unsigned char> bytes = {0x01, 0xAB};
    for (int i = 0; i < 2; ++i) {  // the second time no text is appended
        display.m_ulDataStringId = 5;
        EXPECT_EQ(0U, ConvertSignal(Rule(104, table), bytes, &display));
        EXPECT_STREQ("01AB", display.m_strDataPhys.GetText());
        EXPECT_EQ(0U, display.m_ulDataStringId);
    }
    EXPECT_EQ(0U, ConvertSignal(Rule(0, table), bytes, &display));
    EXPECT_EQ(0x01ABU, display.m_ulRawData);
    EXPECT_STREQ("427", display.m_strDataPhys.GetText());
    EXPECT_EQ(0U, ConvertSignal(Rule(0, table), std::vector<unsigned char>{0xFF, 0xFF, 0xFF, 0xFF}, &display));
    EXPECT_STREQ("4294967295", display.m_strDataPhys.GetText());
    const std::vector<unsigned char> many(0x1'0002, 'E');
    EXPECT_EQ(0U, ConvertSignal(Rule(104, table), many, &display));
    EXPECT_EQ(0x2'0004U, display.m_strDataPhys.GetLength());
}

TEST(ConvertSignal, RefusesWhatTheTypeDoesNotTake) {
    const CKRMCCommandConversionData table = Table(8);
    CKRMCCommandDispData display;
    MarkAll(display);
    const std::vector<unsigned char> none;
    const std::vector<unsigned char> five(5, 1);
    EXPECT_EQ(kFailed, ConvertSignal(Rule(4, table), 0x41, &display));
    EXPECT_EQ(kFailed, ConvertSignal(Rule(104, table), 0x41, &display));
    EXPECT_EQ(kFailed, ConvertSignal(Rule(0, table), none, &display));
    EXPECT_EQ(kFailed, ConvertSignal(Rule(104, table), none, &display));
    EXPECT_EQ(kFailed, ConvertSignal(Rule(0, table), five, &display));
    EXPECT_TRUE(IsAllMarked(display));
    EXPECT_EQ(kFailed, ConvertSignal(Rule(0, table), 1, nullptr));
    EXPECT_EQ(kFailed, ConvertSignal(Rule(104, table), five, nullptr));
}

TEST(SignalConverter, OwnsAConverterAndMoves) {
    const long before = LivingBlocks();
    {
        SignalConverter first(3);
        SignalConverter second(std::move(first));
        EXPECT_FALSE(second->IsBinaryDataType());
        first = SignalConverter(4);
        EXPECT_TRUE(first->IsBinaryDataType());
        second = std::move(first);
        EXPECT_TRUE((*second).IsBinaryDataType());
    }
    EXPECT_EQ(before, LivingBlocks());
    static_assert(!std::is_copy_constructible_v<SignalConverter> &&
                  std::is_nothrow_move_constructible_v<SignalConverter>);
}

TEST(SignalConverter, ThrowsWhereNoneCanBeMade) {
    KRM_SKIP_WITHOUT_FAILING_ALLOCATIONS();
    const auto make = [] {
        const FailAllocations fail(0);
        SignalConverter converter(3);
    };
    EXPECT_THROW(make(), std::bad_alloc);
}

// ---- Which types can be undone ----

/// What of a raw value the type takes for its number: raw values with the same essence mean the same.
std::string Essence(int type, unsigned sign, unsigned bits, krm_ulong raw, double physical) {
    const auto numbered = [&](krm_ulong number) {
        const bool negativeZero = sign == 3 && number == krm_ulong{1} << (bits - 1);
        return std::to_string(negativeZero ? 0 : number);
    };
    switch (type) {
        case 5:
        case 15:
        case 16:
        case 19:
        case 105:
        case 106:
        case 111:
            return std::to_string(raw);
        case 7:
        case 9: {  // bits 0 to 7 and 14, 15; of 7 bit 14 is the sign
            const krm_ulong taken = raw & 0xC0FFU;
            return std::to_string(type == 7 && taken == 0x4000U ? 0 : taken);
        }
        case 8: {  // bits 0 to 7 and 12 to 15, bit 12 being the sign
            const krm_ulong taken = raw & 0xF0FFU;
            return std::to_string(taken == 0x1000U ? 0 : taken);
        }
        case 10: {
            const krm_ulong taken = raw & 0xFFU;
            return std::to_string(taken == 1 ? 0 : taken);
        }
        case 11:
            return std::to_string(raw & 0xFFFFU);
        case 12:
            return numbered(((raw & 0xFFU) << 8U) | (raw >> 8U));
        case 101: {
            std::string digits;
            for (unsigned shift = bits; shift >= 4;) {
                shift -= 4;
                const krm_ulong digit = (raw >> shift) & 0xFU;
                const bool leading = digits.find_first_not_of("0-") == std::string::npos;
                if (digit == 0xF && leading) {
                    digits.insert(0, digits.rfind('-', 0) == 0 ? "" : "-");
                }
                digits += static_cast<char>('0' + (digit <= 9 ? digit : 0));
            }
            return std::to_string(std::stol(digits));
        }
        case 102:
            return std::fabs(physical) == 100 ? std::to_string(physical) : numbered(raw);
        case 114:
            return std::to_string(raw < 1 ? 1 : raw > 255 ? 255 : raw);
        default:
            return numbered(raw);
    }
}

struct Domain {
    unsigned char sign;
    unsigned short bits;
};

TEST(IsInvertible, SaysWhetherARawValueIsFoundAgain) {
    KRM_NOT_UNDER(Memcheck, "the sweep would take hours");
    for (const int type : AllCodes()) {
        if (type == 4 || type == 104) {
            continue;
        }
        std::vector<Domain> domains = {{0, 8}, {0, 10}, {0, 12}};
        if (type == 101) {
            domains = {{0, 4}, {0, 8}, {0, 12}, {0, 16}};
        } else if (type != 15 && type != 16) {
            domains.insert(domains.end(), {{1, 8}, {3, 8}, {1, 10}, {3, 10}});
        }
        if (type == 0 || (type >= 5 && type <= 12) || type == 15 || type == 19) {
            domains.push_back({0, 16});
        }
        if (type == 12) {
            domains = {{0, 16}, {1, 16}, {3, 16}};
        }
        const SignalConverter converter(static_cast<unsigned char>(type));
        bool differentAlike = false;
        for (const Domain& domain : domains) {
            CKRMCCommandConversionData table = Table(domain.bits, domain.sign);
            const SignalRule rule = Rule(type, table);
            std::map<double, std::string> essences;
            // All values of up to 12 bits, every third of 16.
            const krm_ulong step = domain.bits <= 12 ? 1 : 3;
            for (krm_ulong raw = 0; raw < krm_ulong{1} << domain.bits; raw += step) {
                CKRMCCommandDispData display;
                ASSERT_EQ(0U, ConvertSignal(converter, rule, raw, &display));
                const double physical = display.m_dDataPhys;
                const auto where = [&] {
                    return "type " + std::to_string(type) + " bits " + std::to_string(domain.bits) + " sign " +
                           std::to_string(domain.sign) + " raw " + std::to_string(raw);
                };
                if (std::isnan(physical)) {
                    ASSERT_EQ(102, type) << where();
                    ASSERT_EQ("none", Raw(rule, physical)) << where();
                    continue;
                }
                const std::string essence = Essence(type, domain.sign, domain.bits, raw, physical);
                const auto [known, isNew] = essences.try_emplace(physical, essence);
                differentAlike = differentAlike || known->second != essence;
                const RawSignal found = RawFromPhysical(rule, physical);
                if (!IsInvertible(rule.conversionType)) {
                    ASSERT_EQ(RawStatus::kNoInverse, found.status) << where();
                    continue;
                }
                ASSERT_EQ(RawStatus::kFound, found.status) << where();
                ASSERT_EQ(essence, Essence(type, domain.sign, domain.bits, found.raw, physical)) << where();
                ASSERT_EQ(physical, found.physical) << where();
                CKRMCCommandDispData again;
                ASSERT_EQ(0U, ConvertSignal(converter, rule, found.raw, &again));
                ASSERT_EQ(physical, again.m_dDataPhys) << where();
            }
        }
        EXPECT_EQ(differentAlike, !IsInvertible(static_cast<unsigned char>(type))) << type;
    }
}

TEST(IsInvertible, OfBytesTheTextTells) {
    const CKRMCCommandConversionData table = Table(8);
    const auto text = [&](int type, const std::vector<unsigned char>& bytes) {
        CKRMCCommandDispData display;
        EXPECT_EQ(0U, ConvertSignal(Rule(type, table), bytes, &display));
        return std::string(display.m_strDataPhys.GetText());
    };
    // Bytes behind a NUL make no difference to a text, but to the bytes.
    EXPECT_EQ(text(4, {'A'}), text(4, {'A', 0, 'B'}));
    EXPECT_EQ(text(4, {0, 'A'}), text(4, {'-'}));
    EXPECT_FALSE(IsInvertible(4));
    EXPECT_EQ("no inverse", Raw(Rule(4, table), "A"));
    EXPECT_EQ("no inverse", Raw(Rule(4, table), 65.0));

    EXPECT_TRUE(IsInvertible(104));
    EXPECT_EQ("no inverse", Raw(Rule(104, table), 65.0));
    for (unsigned first = 0; first < 256; ++first) {
        for (unsigned second = 0; second < 256; second += 5) {
            const std::vector<unsigned char> bytes = {static_cast<unsigned char>(first),
                                                      static_cast<unsigned char>(second)};
            const RawSignal found = RawFromPhysical(Rule(104, table), text(104, bytes));
            ASSERT_EQ(RawStatus::kFound, found.status);
            ASSERT_EQ(bytes, found.bytes);
            ASSERT_EQ(first, found.physical);
        }
    }
    for (const char* const bad : {"", "0", "01A", "0g", "01ab", "01 AB", "-1"}) {
        EXPECT_EQ("none", Raw(Rule(104, table), bad)) << bad;
    }
}

TEST(IsInvertible, OfTypesThatTheFactoryDoesNotKnow) {
    const CKRMCCommandConversionData table = Table(8, 1, 1, 2);
    for (const int type : {2, 14, 17, 18, 21, 23, 25, 100, 116, 255}) {
        EXPECT_TRUE(IsInvertible(static_cast<unsigned char>(type)));
        EXPECT_EQ("found 255", Raw(Rule(type, table), -0.5)) << type;
    }
}

/// The types whose raw values, as the interface undoes them, don't all come back.
std::vector<int> NotUndone(const CKRMCCommandConversionData& table) {
    std::vector<int> types;
    for (const int type : AllCodes()) {
        bool same = true;
        for (krm_ulong raw = 1; raw < 0xFFF && type != 4 && type != 104 && same; raw += 2) {
            CKRMCCommandDispData display;
            krm_ulong back = 0;
            EXPECT_EQ(0U, ConvertSignal(Rule(type, table), raw, &display));
            EXPECT_EQ(0U, ConvertSignalBack(Rule(type, table), display.m_dDataPhys, &back));
            same = same && back == raw;
        }
        if (!same) {
            types.push_back(type);
        }
    }
    return types;
}

/// The interface's own way back undoes the scaling alone.
TEST(ConvertSignalBack, GivesAnotherRawValueOfTypesThatDoMoreThanScale) {
    KRM_NOT_UNDER(Memcheck, "the sweep would take hours");
    EXPECT_EQ((std::vector<int>{6, 7, 8, 9, 10, 11, 12, 19, 24, 101, 102, 110, 111, 114}), NotUndone(Table(12)));
    // Dates and times scale byte by byte, which shows as soon as there is a scaling; three types ignore it.
    EXPECT_EQ((std::vector<int>{5, 6, 7, 8, 9, 10, 11, 12, 15, 16, 19, 24, 101, 102, 105, 106, 110, 111, 114}),
              NotUndone(Table(12, 0, 1, 1, 1)));
    EXPECT_EQ(kFailed, ConvertSignalBack(Rule(0, Table(8)), 1, nullptr));
}

TEST(ConvertSignalBack, TakesTheLimitsFromTheRule) {
    CKRMCCommandConversionData table = Table(8);
    table.m_cDataMax.m_ulRawData = 200;
    table.m_cDataMin.m_ulRawData = 10;
    krm_ulong raw = 0;
    EXPECT_EQ(0U, ConvertSignalBack(Rule(0, table), 250, &raw));
    EXPECT_EQ(200U, raw);
    EXPECT_EQ(0U, ConvertSignalBack(Rule(0, table), 3, &raw));
    EXPECT_EQ(10U, raw);
    EXPECT_EQ(0U, ConvertSignalBack(Rule(0, table), 99.9, &raw));
    EXPECT_EQ(99U, raw);
    EXPECT_EQ("found 250", Raw(Rule(0, table), 250.0)) << "limits play no part in the true inverse";
}

// ---- Shown to raw: values ----

TEST(RawFromPhysical, RoundsToTheNearestAndSaysSo) {
    const CKRMCCommandConversionData quarter = Table(16, 0, 1, 4);
    EXPECT_EQ("found 3249", Raw(Rule(0, quarter), 812.25));
    EXPECT_EQ("nearest 3249 gives 812.250000", Raw(Rule(0, quarter), 812.3));
    EXPECT_EQ("nearest 3250 gives 812.500000", Raw(Rule(0, quarter), 812.4));
    const CKRMCCommandConversionData falling = Table(8, 0, -1, 4, 10);
    EXPECT_EQ("found 4", Raw(Rule(0, falling), 9.0));
    EXPECT_EQ("nearest 3 gives 9.250000", Raw(Rule(0, falling), 9.3));
    EXPECT_EQ("found 0", Raw(Rule(0, falling), 10.0));
    EXPECT_EQ("found 255", Raw(Rule(0, falling), -53.75));
}

TEST(RawFromPhysical, FindsEveryTypedDecimal) {
    KRM_NOT_UNDER(Memcheck, "the sweep would take hours");
    const CKRMCCommandConversionData table = Table(16, 1);
    for (int i = -32768; i < 32768; i += 3) {
        const std::string typed = reference::FixedPoint(i / 1000.0, 3);
        ASSERT_EQ("found " + std::to_string(i & 0xFFFF), Raw(Rule(0, table, 3), i / 1000.0)) << typed;
        ASSERT_EQ("found " + std::to_string(i & 0xFFFF), Raw(Rule(0, table, 3), typed)) << typed;
    }
}

TEST(RawFromPhysical, KeepsWithinTheBitLength) {
    for (const int bits : {1, 7, 8, 16, 31, 32}) {
        const auto ushBits = static_cast<unsigned short>(bits);
        const double all = std::ldexp(1.0, bits) - 1;
        const double half = std::ldexp(1.0, bits - 1);
        const auto found = [](double raw) { return "found " + std::to_string(static_cast<krm_ulong>(raw)); };
        const CKRMCCommandConversionData plain = Table(ushBits);
        EXPECT_EQ(found(all), Raw(Rule(0, plain), all)) << bits;
        EXPECT_EQ("none", Raw(Rule(0, plain), all + 1)) << bits;
        EXPECT_EQ("none", Raw(Rule(0, plain), -1.0)) << bits;
        const CKRMCCommandConversionData complement = Table(ushBits, 1);
        EXPECT_EQ(found(half - 1), Raw(Rule(0, complement), half - 1)) << bits;
        EXPECT_EQ(found(half), Raw(Rule(0, complement), -half)) << bits;
        EXPECT_EQ(found(all), Raw(Rule(0, complement), -1.0)) << bits;
        EXPECT_EQ("none", Raw(Rule(0, complement), half)) << bits;
        EXPECT_EQ("none", Raw(Rule(0, complement), -half - 1)) << bits;
        const CKRMCCommandConversionData magnitude = Table(ushBits, 3);
        EXPECT_EQ(found(half - 1), Raw(Rule(0, magnitude), half - 1)) << bits;
        EXPECT_EQ(bits == 1 ? "found 0" : found(all), Raw(Rule(0, magnitude), -(half - 1))) << bits;
        EXPECT_EQ("none", Raw(Rule(0, magnitude), -half)) << bits;
    }
    EXPECT_EQ("found 4294967295", Raw(Rule(0, Table(0)), 4294967295.0));
    EXPECT_EQ("found 4294967295", Raw(Rule(0, Table(0, 1)), -1.0));
    EXPECT_EQ("found 2147483649", Raw(Rule(0, Table(0, 3)), -1.0));
    EXPECT_EQ("found 4294967295", Raw(Rule(0, Table(40)), 4294967295.0));
    EXPECT_EQ("none", Raw(Rule(5, Table(16)), 65536.0));
    EXPECT_EQ("none", Raw(Rule(5, Table(16)), -1.0));
    EXPECT_EQ("nearest 1 gives 1.000000", Raw(Rule(5, Table(16)), 0.75));
}

TEST(RawFromPhysical, TakesNoNumberThatIsNone) {
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
    for (const int type : AllCodes()) {
        if (!IsInvertible(static_cast<unsigned char>(type)) || type == 104) {
            continue;
        }
        for (const double value : {kNan, kInfinity, -kInfinity, 1e300, -1e300}) {
            EXPECT_EQ("none", Raw(Rule(type, Table(16, 1)), value)) << type << ' ' << value;
        }
    }
}

TEST(RawFromPhysical, OfSecondsInWords) {
    EXPECT_EQ("none", Raw(Rule(115, Table(16)), "2 hours"));
    EXPECT_EQ("found 4294962060", Raw(Rule(115, Table(32)), "1193045hrs,1min")) << "136 years";
    EXPECT_EQ("no inverse", Raw(Rule(115, Table(16, 0, 0)), "0hrs,0min"));
}

TEST(RawFromPhysical, OfAScalingThatGivesOneValueThereIsNoInverse) {
    const CKRMCCommandConversionData zero = Table(8, 0, 0, 1, 5);
    for (const int type : {0, 1, 15, 19, 102, 110}) {
        CKRMCCommandDispData display;
        ASSERT_EQ(0U, ConvertSignal(Rule(type, zero), 3, &display));
        EXPECT_EQ("no inverse", Raw(Rule(type, zero), display.m_dDataPhys)) << type;
        EXPECT_EQ("none", Raw(Rule(type, zero), 6.0)) << type;
    }
    EXPECT_EQ("no inverse", Raw(Rule(0, zero), "5"));
    EXPECT_EQ("none", Raw(Rule(0, zero), "6"));
    EXPECT_EQ("found 6", Raw(Rule(101, zero), 6.0)) << "BCD isn't scaled";
}

/// Whatever the scaling, what is found gives what was asked for.
TEST(RawFromPhysical, UndoesScalings) {
    constexpr krm_long kLowest = std::numeric_limits<krm_long>::min();
    constexpr krm_long kHighest = std::numeric_limits<krm_long>::max();
    struct Scaling {
        krm_long mul, div, offset;
        int decimals;
    };
    const std::vector<Scaling> scalings = {
        {1, 1, -400, 1}, {1, 4, 0, 0},      {100, 255, 0, 2}, {-5, -8, 3, 0},
        {1, 0, -3, 0},   {1, -7, 65535, 3}, {7, 3, -100, 20}, {kHighest, kLowest, kHighest, 9},
        {1, 2, 0, 255}};
    for (const Scaling& scaling : scalings) {
        for (const int type : {0, 1, 7, 8, 11, 12, 101, 110, 115}) {
            if (type == 110 && scaling.decimals > 9) {
                continue;  // all that is left of the number is 11.515
            }
            for (const unsigned char sign : std::vector<unsigned char>{0, 1, 3}) {
                const CKRMCCommandConversionData table =
                    Table(type == 12 ? 16 : 12, sign, scaling.mul, scaling.div, scaling.offset);
                const SignalRule rule = Rule(type, table, scaling.decimals);
                for (krm_ulong raw = 0; raw < 0x1000; raw += 13) {
                    CKRMCCommandDispData display;
                    ASSERT_EQ(0U, ConvertSignal(rule, raw, &display));
                    const RawSignal found = RawFromPhysical(rule, display.m_dDataPhys);
                    ASSERT_EQ(RawStatus::kFound, found.status)
                        << type << ' ' << int{sign} << ' ' << raw << ' ' << scaling.div << ' ' << scaling.decimals;
                    ASSERT_EQ(display.m_dDataPhys, found.physical);
                }
            }
        }
    }
}

TEST(RawFromPhysical, UndoesTheByteSwap) {
    EXPECT_EQ("found " + std::to_string(0x3412), Raw(Rule(12, Table(16)), 0x1234));
    EXPECT_EQ("found " + std::to_string(0xFEFF), Raw(Rule(12, Table(16, 1)), -2.0));
    EXPECT_EQ("found " + std::to_string(0xABCD3412U), Raw(Rule(12, Table(32)), 0xABCD1234U));
    for (const int bits : {1, 8, 9, 15}) {
        EXPECT_EQ("no inverse", Raw(Rule(12, Table(static_cast<unsigned short>(bits))), 1.0)) << bits;
    }
}

TEST(RawFromPhysical, UndoesBcd) {
    EXPECT_EQ("found " + std::to_string(0x1234), Raw(Rule(101, Table(16)), 1234.0));
    EXPECT_EQ("found " + std::to_string(0x1234), Raw(Rule(101, Table(16), 2), 12.34));
    EXPECT_EQ("found " + std::to_string(0xF012), Raw(Rule(101, Table(16)), -12.0));
    EXPECT_EQ("found " + std::to_string(0x99999999U), Raw(Rule(101, Table(32)), 99999999.0));
    EXPECT_EQ("found " + std::to_string(0xF9999999U), Raw(Rule(101, Table(32)), -9999999.0));
    EXPECT_EQ("none", Raw(Rule(101, Table(16)), 10000.0));
    EXPECT_EQ("none", Raw(Rule(101, Table(16)), -1000.0));
    for (const double value : {100.0, 150.0, 1099.0, 12345678.0, 99999999.0, -10.0, -12.0, -1009.0, -9999999.0}) {
        EXPECT_EQ("none", Raw(Rule(101, Table(8)), value)) << value;
    }
    for (const int bits : {0, 1, 10, 33, 40, 65535}) {
        const CKRMCCommandConversionData table = Table(static_cast<unsigned short>(bits));
        const SignalRule rule = Rule(101, table);
        EXPECT_EQ("no inverse", Raw(rule, 1.0)) << bits;
        EXPECT_EQ("no inverse", Raw(rule, "0")) << bits;
        EXPECT_EQ("no inverse", Raw(rule, "1")) << bits;
    }
}

TEST(RawFromPhysical, UndoesTimesAndDates) {
    EXPECT_EQ("found 135", Raw(Rule(19, Table(16)), 0x020F));
    EXPECT_EQ("found 135", Raw(Rule(111, Table(16, 1)), 0x020F));
    EXPECT_EQ("found 960000061", Raw(Rule(19, Table(32)), 16000001 * 256.0 + 1)) << "to the minute in 1800 years";
    EXPECT_EQ("none", Raw(Rule(19, Table(16)), 0x023C)) << "there are no 60 minutes";
    EXPECT_EQ("none", Raw(Rule(19, Table(16)), 15.5));
    EXPECT_EQ("none", Raw(Rule(19, Table(16)), -1.0));
    EXPECT_EQ("none", Raw(Rule(19, Table(16)), 4294967296.0));
    EXPECT_EQ("found 8100", Raw(Rule(19, Table(16, 0, 1, 60)), 0x020F));
    EXPECT_EQ("found 68", Raw(Rule(19, Table(16, 0, 2)), 0x0210));
    EXPECT_EQ("nearest 68 gives 528.000000", Raw(Rule(19, Table(16, 0, 2)), 0x020F));
    EXPECT_EQ("found " + std::to_string(0x170C1F), Raw(Rule(15, Table(24)), 0x170C1F));
    EXPECT_EQ("found " + std::to_string(0x07E70C1F), Raw(Rule(105, Table(32)), 0x07E70C1F));
    EXPECT_EQ("found " + std::to_string(0x0E1E0500), Raw(Rule(106, Table(32)), 0x0E1E0500));
    // Parts in steps of two, from one on: an even part is never reached.
    EXPECT_EQ("found " + std::to_string(0x020100), Raw(Rule(16, Table(24, 0, 2, 1, 1)), 0x050301));
    EXPECT_EQ("none", Raw(Rule(16, Table(24, 0, 2, 1, 1)), 0x050302));
    EXPECT_EQ("none", Raw(Rule(16, Table(24)), 0x1000000));
    EXPECT_EQ("none", Raw(Rule(16, Table(24)), -1.0));
    EXPECT_EQ("none", Raw(Rule(16, Table(24)), 0.5));
    EXPECT_EQ("none", Raw(Rule(16, Table(16)), 0x010000)) << "beyond the bit length";
}

// ---- Shown to raw: texts ----

TEST(RawFromPhysical, ReadsEveryNotation) {
    const auto raw = [](int type, unsigned short bits, const char* text) { return Raw(Rule(type, Table(bits)), text); };
    EXPECT_EQ("found 10", raw(3, 12, "0x00A"));
    EXPECT_EQ("none", raw(3, 12, "0x00a"));
    EXPECT_EQ("none", raw(3, 12, "0xA"));
    EXPECT_EQ("none", raw(3, 12, "00A"));
    EXPECT_EQ("none", raw(3, 12, "0x1000"));
    EXPECT_EQ("found 16777217", raw(3, 32, "0x01000001")) << "more bits than a float has";
    EXPECT_EQ("found 4278190079", Raw(Rule(3, Table(32, 1)), "0xFEFFFFFF"));
    EXPECT_EQ("found 255", raw(112, 8, "FF"));
    EXPECT_EQ("none", raw(112, 8, "0xFF"));
    EXPECT_EQ("found 255", Raw(Rule(3, Table(8, 1)), "0xFFFFFFFF")) << "-1, as the type shows it";
    EXPECT_EQ("found " + std::to_string(0x4123), raw(5, 16, "C0123"));
    EXPECT_EQ("found " + std::to_string(0xC001), raw(5, 16, "U0001"));
    EXPECT_EQ("none", raw(5, 16, "U4001"));
    EXPECT_EQ("none", raw(5, 16, "X0001"));
    EXPECT_EQ("none", raw(5, 16, "P"));
    EXPECT_EQ("none", raw(5, 16, ""));
    EXPECT_EQ("found 135", raw(19, 16, "02:15"));
    EXPECT_EQ("found 16777215", raw(19, 32, "279620:15")) << "31 years";
    EXPECT_EQ("found 16777215", raw(111, 32, "279620hrs,15min"));
    EXPECT_EQ("none", raw(19, 16, "2:15"));
    EXPECT_EQ("none", raw(19, 16, "02:60"));
    EXPECT_EQ("found 135", raw(111, 16, "2hrs,15min"));
    EXPECT_EQ("found 8100", raw(115, 16, "2hrs,15min"));
    EXPECT_EQ("found 1161", Raw(Rule(115, Table(16, 0, 7)), "2hrs,15min")) << "8127 s: none is 8100";
    EXPECT_EQ("none", raw(115, 8, "2hrs,15min"));
    EXPECT_EQ("found " + std::to_string(0x170C1F), raw(15, 24, "23.12.31"));
    EXPECT_EQ("none", raw(15, 24, "2023.12.31"));
    EXPECT_EQ("found " + std::to_string(0x0E1E05), raw(16, 24, "14.30.05"));
    EXPECT_EQ("no inverse", raw(105, 32, "12/31/23"));
    EXPECT_EQ("no inverse", raw(106, 32, "14:30:05"));
    EXPECT_EQ("found 355000", Raw(Rule(107, Table(32, 1), 4), "N35.5000"));
    EXPECT_EQ("found " + std::to_string(0xFFFA9548U), Raw(Rule(107, Table(32, 1), 4), "S35.5000"));
    EXPECT_EQ("found 0", Raw(Rule(107, Table(32, 1), 4), "N0.0000"));
    EXPECT_EQ("none", Raw(Rule(107, Table(32, 1), 4), "S0.0000")) << "zero is north";
    EXPECT_EQ("none", Raw(Rule(107, Table(32, 1), 4), "E35.5000"));
    EXPECT_EQ("found 355000", Raw(Rule(108, Table(32, 1), 4), "E35.5000"));
    EXPECT_EQ("found " + std::to_string(0x0123), raw(109, 16, "1.23"));
    EXPECT_EQ("found " + std::to_string(0x1A05), raw(109, 16, "1A.05"));
    EXPECT_EQ("none", raw(109, 16, "1.5"));
    EXPECT_EQ("found 5", raw(113, 4, "0101"));
    EXPECT_EQ("none", raw(113, 4, "101"));
    EXPECT_EQ("none", raw(113, 4, "2101"));
    EXPECT_EQ("no inverse", raw(6, 16, "600"));
    EXPECT_EQ("no inverse", raw(24, 16, "600"));
}

/// Every text that an invertible type shows leads to a raw value that shows it, and texts with the number's own digits to
/// the very one.
TEST(RawFromPhysical, FindsEveryTextThatIsShown) {
    for (const int type :
         {0, 1, 3, 5, 7, 8, 9, 10, 11, 12, 13, 15, 19, 101, 102, 103, 107, 108, 109, 110, 111, 112, 113, 114, 115}) {
        CKRMCCommandConversionData table = Table(type == 12 ? 16 : 12, type == 0 || type == 12 ? 1 : 0);
        AddPattern(table, 0, "zero");
        AddPattern(table, 1, "one");
        AddPattern(table, 70, "seventy");
        table.m_cDataMax.m_ulRawData = 4000;
        for (krm_ulong raw = 0; raw < 0x1000; raw += 1) {
            if (type == 102 && raw > 98) {
                break;  // NaN
            }
            const std::string text = Shown(Rule(type, table, 1), raw);
            const RawSignal found = RawFromPhysical(Rule(type, table, 1), text);
            ASSERT_EQ(RawStatus::kFound, found.status) << type << ' ' << raw << ' ' << text;
            const std::string again = Shown(Rule(type, table, 1), found.raw);
            ASSERT_EQ(text, again) << type << ' ' << raw;
            if (type == 0 || type == 12 || type == 113 || (type == 13 && raw < 4000)) {
                ASSERT_EQ(raw, found.raw) << type << ' ' << text;
            }
        }
    }
}

TEST(RawFromPhysical, ReadsPatterns) {
    CKRMCCommandConversionData table = Table(8, 1, 1, 2);
    AddPattern(table, 3, "three");
    AddPattern(table, 3, "never shown");
    AddPattern(table, 5, "twice");
    AddPattern(table, 7, "twice");
    AddPattern(table, 100, "out of reach");
    AddPattern(table, 0xFFFFFFFEU, "minus two");
    for (const int type : {1, 20, 22}) {
        const SignalRule rule = Rule(type, table);
        EXPECT_EQ("found 6", Raw(rule, "three"));
        EXPECT_EQ("none", Raw(rule, "never shown")) << "the first pattern of a key is the one that is shown";
        EXPECT_EQ("found 10", Raw(rule, "twice"));
        EXPECT_EQ("none", Raw(rule, "out of reach"));
        EXPECT_EQ("found 252", Raw(rule, "minus two"));
        EXPECT_EQ("none", Raw(rule, "Three"));
        EXPECT_EQ("none", Raw(rule, "0x03")) << "it has a pattern";
        EXPECT_EQ("found 8", Raw(rule, "0x04"));
    }
    table.m_strDefaultPattern = "other";
    EXPECT_EQ("no inverse", Raw(Rule(1, table), "other"));
    EXPECT_EQ("none", Raw(Rule(1, table), "0x04"));
    // Type 103 compares the raw value itself; its default text plays no part.
    EXPECT_EQ("found 3", Raw(Rule(103, table), "three"));
    EXPECT_EQ("found 8", Raw(Rule(103, table), "4"));
    EXPECT_EQ("none", Raw(Rule(103, table), "minus two")) << "longer than the bit length";
    EXPECT_EQ("none", Raw(Rule(103, table), "other"));
    // Three raw values in two: of the key's two the one that is shown under it.
    CKRMCCommandConversionData thirds = Table(8, 0, 2, 3);
    AddPattern(thirds, 1, "one");
    EXPECT_EQ("found 2", Raw(Rule(1, thirds), "one"));
}

TEST(RawFromPhysical, ReadsLimits) {
    CKRMCCommandConversionData table = Table(8, 1);
    AddPattern(table, 0, "LOW");
    AddPattern(table, 1, "HIGH");
    AddPattern(table, 2, "of no limit");
    table.m_cDataMin.m_ulRawData = 0xF0;
    table.m_cDataMax.m_ulRawData = 100;
    EXPECT_EQ("found 240", Raw(Rule(13, table), "LOW"));
    EXPECT_EQ("found 100", Raw(Rule(13, table), "HIGH"));
    EXPECT_EQ("none", Raw(Rule(13, table), "of no limit"));
    EXPECT_EQ("found 99", Raw(Rule(13, table), "99"));
    EXPECT_EQ("none", Raw(Rule(13, table), "100")) << "is shown as HIGH";
    EXPECT_EQ("found 100", Raw(Rule(13, table), 100.0));
}

TEST(RawFromPhysical, ReadsNumbersHoweverTheyAreSpelled) {
    const CKRMCCommandConversionData table = Table(16, 1);
    for (const char* const text : {"12.5", "12.50", "1.25e1", "12.500000"}) {
        EXPECT_EQ("found 1250", Raw(Rule(0, table, 2), text)) << text;
    }
    EXPECT_EQ("nearest 1251 gives 12.510000", Raw(Rule(0, table, 2), "12.507"));
    EXPECT_EQ("found 0", Raw(Rule(0, table, 2), "-0"));
    for (const char* const text :
         {"", " 12", "12 ", "+12", "12,5", "0x12", "twelve", "nan", "inf", "-inf", "1e999", "328", "-328"}) {
        EXPECT_EQ("none", Raw(Rule(0, table, 2), text)) << text;
    }
    EXPECT_EQ("none", Raw(Rule(0, table, 2), std::string("12\0", 3)));
    EXPECT_EQ("found 29", Raw(Rule(0, table, 2), 0.29)) << "not cut off as 28";
    // A text with few decimals is that of the nearest raw value, though no raw value is just that.
    EXPECT_EQ("found 1", Raw(Rule(0, Table(8, 0, 1, 3)), "0.3333333333333333"));
    const CKRMCCommandConversionData thirds = Table(8, 0, 10, 3);
    EXPECT_EQ("found 1", Raw(Rule(0, thirds, 1), "0.3"));
    EXPECT_EQ("nearest 1 gives 0.333333", Raw(Rule(0, thirds, 1), 0.3));
}

}  // namespace
}  // namespace krm::test

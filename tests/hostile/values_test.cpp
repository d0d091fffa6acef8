// Arguments that no item has: NaN and infinities, the largest and smallest doubles, every count of decimals, bit lengths
// of 0 and far beyond 32, the largest scalings. Every converter answers them as it answers all others.
#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <iterator>
#include <limits>
#include <string>
#include <vector>

#include "krm/tree/element.h"
#include "tests/support/converters.h"
#include "tests/support/fields.h"
#include "tests/support/log_capture.h"
#include "tests/support/not_under.h"

namespace krm::test {
namespace {

using Limits = std::numeric_limits<double>;

constexpr double kDoubles[] = {Limits::quiet_NaN(),
                               -Limits::quiet_NaN(),
                               Limits::infinity(),
                               -Limits::infinity(),
                               Limits::max(),
                               Limits::lowest(),
                               Limits::min(),
                               -Limits::min(),
                               Limits::denorm_min(),
                               -Limits::denorm_min(),
                               0.0,
                               -0.0,
                               0.5,
                               -0.49,
                               9223372036854775808.0,
                               -9223372036854775808.0,
                               9223372036854774784.0,
                               4294967296.0,
                               4294967295.9,
                               -2147483649.0};
constexpr unsigned short kBitLengths[] = {0, 1, 31, 32, 33, 64, 65535};
constexpr unsigned char kSigns[] = {0, 1, 2, 3, 255};
constexpr krm_ulong kRaws[] = {0, 1, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU, 0xF0F0F0F0U, 0xFFFF8000U};
constexpr krm_long kFactors[] = {0, 1, -1, std::numeric_limits<krm_long>::min(), std::numeric_limits<krm_long>::max()};

template <class T, std::size_t size>
T AnyOf(const T (&values)[size], Seed& seed) {
    return values[seed.Next() % size];
}

// A NaN's sign depends on the processor; nobody reads it.
std::string WithoutSignOfNaN(std::string text) {
    const std::size_t at = text.find("-nan");
    return at == std::string::npos ? text : text.erase(at, 1);
}

class HostileValues : public ::testing::TestWithParam<int> {
protected:
    int Code() const { return GetParam(); }
    bool IsExact() const { return Code() != 102 && Code() != 114; }  // those use functions of the C library
    bool HasLocaleText() const { return Code() == 105 || Code() == 106; }
    bool HasPatternText() const { return Code() == 1 || Code() == 20 || Code() == 22; }
    CKRMCCommandConvSignalData& Converter() { return *m_converter; }

    void ExpectTexts(double phys, krm_ulong raw, const Item& item) {
        SCOPED_TRACE(::testing::Message() << phys << ", " << +item.decimals << " places, " << item.bits << " bits");
        Arguments arguments(item);
        CKRMString text = "untouched";
        krm_ulong id = 77;
        const bool fails = Code() == 113 && item.bits > 32;
        ASSERT_EQ(arguments.Text(Converter(), &text, &id, phys, raw), fails ? kFailed : 0U);
        if (!fails && !HasLocaleText()) {
            EXPECT_EQ(WithoutSignOfNaN(text.GetText()), reference::TextOf(Code(), phys, raw, item).text);
        }
        ASSERT_EQ(arguments.VariableText(Converter(), &text, &id, phys, raw), 0U);
        EXPECT_EQ(WithoutSignOfNaN(text.GetText()),
                  HasPatternText() ? reference::Hex(phys, item.bits) : reference::Decimal(phys, item.decimals));
        EXPECT_EQ(id, 0U);
    }

private:
    ConverterPtr m_converter = Create(GetParam());
};

TEST_P(HostileValues, TextsWithEveryCountOfDecimals) {
    KRM_NOT_UNDER(Memcheck, "the sweep would take hours");
    for (unsigned decimals = 0; decimals <= 255; ++decimals) {
        for (const double phys : kDoubles) {
            ExpectTexts(phys, 0xABCDEF01U, {.bits = 16, .decimals = static_cast<unsigned char>(decimals)});
            if (HasFatalFailure()) {
                return;
            }
        }
    }
}

TEST_P(HostileValues, TextsAtEveryBitLength) {
    KRM_NOT_UNDER(Memcheck, "the sweep would take hours");
    for (const unsigned short bits : kBitLengths) {
        for (const double phys : kDoubles) {
            for (const krm_ulong raw : kRaws) {
                ExpectTexts(phys, raw, {.sign = 1, .bits = bits, .decimals = 1, .max = 0, .min = 0xFFFFFFFFU});
                if (HasFatalFailure()) {
                    return;
                }
            }
        }
    }
}

TEST_P(HostileValues, PhysicalValues) {
    KRM_NOT_UNDER(Memcheck, "the sweep would take hours");
    if (!reference::kHasExtendedPrecision) {
        GTEST_SKIP() << "this compiler's long double can't hold the reference";
    }
    Seed seed(static_cast<unsigned>(Code()) + 1);
    for (int round = 0; round < 3000; ++round) {
        const Item item{.sign = AnyOf(kSigns, seed),
                        .bits = AnyOf(kBitLengths, seed),
                        .mul = AnyOf(kFactors, seed),
                        .div = AnyOf(kFactors, seed),
                        .offset = AnyOf(kFactors, seed),
                        .decimals = static_cast<unsigned char>(seed.Next() >> 8U)};
        const krm_ulong raw = AnyOf(kRaws, seed);
        double value = 1;
        ASSERT_EQ(Arguments(item).Value(Converter(), &value, raw), 0U);
        const double expected = reference::ValueOf(Code(), raw, item);
        ASSERT_TRUE(IsExact() ? SameDouble(value, expected) : NearlySameDouble(value, expected))
            << value << ", not " << expected << ": raw " << raw << ", sign " << +item.sign << ", " << item.bits
            << " bits, x " << item.mul << " / " << item.div << " + " << item.offset << ", " << +item.decimals
            << " places";
    }
}

TEST_P(HostileValues, PhysicalValuesWithEveryCountOfDecimals) {
    KRM_NOT_UNDER(Memcheck, "the sweep would take hours");
    if (!reference::kHasExtendedPrecision) {
        GTEST_SKIP() << "this compiler's long double can't hold the reference";
    }
    for (unsigned decimals = 0; decimals <= 255; ++decimals) {
        const Item item{
            .sign = 1, .bits = 32, .mul = 7, .offset = -3, .decimals = static_cast<unsigned char>(decimals)};
        for (const krm_ulong raw : {0x12345678U, 0xFEDCBA98U}) {
            double value = 1;
            ASSERT_EQ(Arguments(item).Value(Converter(), &value, raw), 0U);
            const double expected = reference::ValueOf(Code(), raw, item);
            EXPECT_TRUE(IsExact() ? SameDouble(value, expected) : NearlySameDouble(value, expected))
                << raw << ' ' << decimals;
        }
    }
}

TEST_P(HostileValues, WayBack) {
    KRM_NOT_UNDER(Memcheck, "the sweep would take hours");
    Seed seed(static_cast<unsigned>(Code()) + 1000);
    for (int round = 0; round < 6000; ++round) {
        const Item item{.sign = AnyOf(kSigns, seed),
                        .bits = AnyOf(kBitLengths, seed),
                        .mul = AnyOf(kFactors, seed),
                        .div = AnyOf(kFactors, seed),
                        .offset = AnyOf(kFactors, seed),
                        .decimals = static_cast<unsigned char>(round % 2 == 0 ? seed.Next() >> 8U : 0U),
                        .max = AnyOf(kRaws, seed),
                        .min = AnyOf(kRaws, seed)};
        const double value = AnyOf(kDoubles, seed);
        const double max = AnyOf(kDoubles, seed);
        const double min = AnyOf(kDoubles, seed);
        SCOPED_TRACE(::testing::Message()
                     << value << ", limits " << max << ' ' << min << ", raw limits " << item.max << ' ' << item.min
                     << ", sign " << +item.sign << ", " << item.bits << " bits, x " << item.mul << " / " << item.div
                     << " + " << item.offset << ", " << +item.decimals << " places");
        krm_ulong raw = 1;
        ASSERT_EQ(Converter().ConvLogicalValue(&raw, value, item.sign, item.bits, item.mul, item.div, item.offset,
                                               item.decimals, max, min),
                  0U);
        ASSERT_EQ(raw, reference::LogicalByPhysicalLimits(value, item, max, min));
        ASSERT_EQ(Converter().ConvLogicalValue(&raw, value, item.sign, item.bits, item.mul, item.div, item.offset,
                                               item.decimals, item.max, item.min),
                  0U);
        ASSERT_EQ(raw, reference::LogicalByRawLimits(value, item));
    }
}

TEST_P(HostileValues, WayBackWithEveryCountOfDecimals) {
    KRM_NOT_UNDER(Memcheck, "the sweep would take hours");
    for (unsigned decimals = 0; decimals <= 255; ++decimals) {
        const Item item{.sign = 1,
                        .bits = 16,
                        .mul = 7,
                        .div = -3,
                        .offset = -9,
                        .decimals = static_cast<unsigned char>(decimals),
                        .max = 0x7FFF,
                        .min = 0x8000};
        for (const double value : kDoubles) {
            krm_ulong raw = 1;
            ASSERT_EQ(Converter().ConvLogicalValue(&raw, value, item.sign, item.bits, item.mul, item.div, item.offset,
                                                   item.decimals, Limits::infinity(), -Limits::infinity()),
                      0U);
            ASSERT_EQ(raw, reference::LogicalByPhysicalLimits(value, item, Limits::infinity(), -Limits::infinity()));
            ASSERT_EQ(Converter().ConvLogicalValue(&raw, value, item.sign, item.bits, item.mul, item.div, item.offset,
                                                   item.decimals, item.max, item.min),
                      0U);
            ASSERT_EQ(raw, reference::LogicalByRawLimits(value, item));
        }
    }
}

TEST_P(HostileValues, BytesDisregardTheNumbers) {
    KRM_NOT_UNDER(Memcheck, "the sweep would take hours");
    const unsigned char bytes[] = {0xE9, 0x41};
    Seed seed(static_cast<unsigned>(Code()) + 2000);
    for (int round = 0; round < 500; ++round) {
        CKRMCCommandDispData record;
        ASSERT_EQ(Converter().ConvCommandDispData(
                      &record, bytes, sizeof bytes, AnyOf(kSigns, seed), AnyOf(kBitLengths, seed),
                      AnyOf(kFactors, seed), AnyOf(kFactors, seed), AnyOf(kFactors, seed),
                      static_cast<unsigned char>(seed.Next() >> 8U), AnyOf(kRaws, seed), AnyOf(kRaws, seed), nullptr),
                  0U);
        ASSERT_EQ(record.m_ulRawData, 0xE9U);
        ASSERT_EQ(record.m_dDataPhys, 233.0);
        ASSERT_STREQ(record.m_strDataPhys.GetText(), Code() == 104 ? "E941"
                                                                   : "\xE9"
                                                                     "A");
    }
}

TEST(HostileDoubles, InALog) {
    for (const double value : kDoubles) {
        CKRMCCommandDispData record;
        record.m_dDataPhys = value;
        record.m_dData = -value;
        const std::vector<std::string> lines = RecordLinesOf(record);
        ASSERT_EQ(lines.size(), 9U);
        EXPECT_EQ(WithoutSignOfNaN(lines[3]), "P.m_dDataPhys=" + reference::FixedPoint(value, 6));
        EXPECT_EQ(WithoutSignOfNaN(lines[4]), "P.m_dData=" + reference::FixedPoint(-value, 6));
    }
}

TEST(HostileDoubles, InATree) {
    for (const double value : kDoubles) {
        CKRMError error;
        CKRMCElement root("R");
        CKRMCElement* const child = root.CreateElement(&error, "C");
        ASSERT_NE(child, nullptr);
        ASSERT_TRUE(child->CreateAttribute(&error, "A")->SetValue(&error, value));
        EXPECT_TRUE(SameDouble(child->GetAttribute(&error, "A")->GetDouble(), value)) << value;
        CKRMCAttribute wanted("A", value);
        EXPECT_EQ(root.GetElementByAttribute(&error, "C", &wanted), std::isnan(value) ? nullptr : child) << value;
        EXPECT_EQ(error.a_ulReturnCode, 0U);
        CKRMString text;
        root.Description(text);
        EXPECT_EQ(WithoutSignOfNaN(text.GetText()),
                  "<R>\n<C A[2]=\"" + reference::FixedPoint(value, 6) + "\">\n</C>\n</R>\n");
    }
}

// The others' texts are compared above.
class HostileLocaleValues : public HostileValues {};

TEST_P(HostileLocaleValues, TextsOfWhatIsNoDateOrTime) {
    for (const double phys : {Limits::quiet_NaN(), Limits::infinity(), -Limits::infinity(), Limits::max(), -1.0}) {
        // What no integer holds counts as 0: no date, but midnight.
        const bool isMidnight = Code() == 106 && phys != -1;
        const std::string text = TextBy(Code(), phys, 0, {.bits = 65535, .decimals = 255});
        EXPECT_EQ(text, isMidnight ? TextBy(106, 0, 0) : Code() == 105 ? "-" : "") << phys;
    }
}

INSTANTIATE_TEST_SUITE_P(Converters, HostileLocaleValues, ::testing::Values(105, 106),
                         [](const auto& it) { return "Type" + std::to_string(it.param); });
INSTANTIATE_TEST_SUITE_P(Converters, HostileValues, ::testing::ValuesIn(AllCodes()),
                         [](const auto& it) { return "Type" + std::to_string(it.param); });

}  // namespace
}  // namespace krm::test

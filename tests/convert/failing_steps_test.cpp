// What happens where a step of a conversion fails: a class of one's own may override any of them.
#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

#include "tests/support/converters.h"

namespace krm::test {
namespace {

// Codes that only a class of one's own returns: what is kept in fewer than 32 bits on its way loses a part of them.
constexpr krm_ulong kCodes[] = {0x12345678U, 70000U, 0x10000U, 0x80000000U, 0xFFFFFFFFU};

constexpr int kNever = -1;

/// A converter that notes its steps as they are called, one of which fails: just the one, all behind it would do well again.
/// A failing step stores nothing.
template <class Kind>
class FailsOnce : public Kind {
public:
    using Kind::Kind;

    /// From now on the step that is called after `goodCalls` others fails with `code`.
    void FailAt(int goodCalls, krm_ulong code) {
        calls.clear();
        m_goodCalls = goodCalls;
        m_code = code;
    }

    krm_ulong ValueConversion(double* result, krm_ulong ulRawData, unsigned char uchSigned, unsigned short ushBitLength,
                              krm_long lMul, krm_long lDiv, krm_long lOffset, unsigned char uchDecPntCount) override {
        return Step("Value", [&] {
            return Kind::ValueConversion(result, ulRawData, uchSigned, ushBitLength, lMul, lDiv, lOffset,
                                         uchDecPntCount);
        });
    }
    krm_ulong StringConversion(CKRMString* result, krm_ulong* stringId, double dPhys, krm_ulong ulRawData,
                               unsigned char uchSigned, unsigned short ushBitLength, unsigned char uchDecPntCount,
                               krm_ulong ulMax, krm_ulong ulMin, CKRMList<CKRMCCommandDispData>* patternList,
                               CKRMString* defaultPattern, krm_ulong ulDefaultStringId) override {
        return Step("Text", [&] {
            return Kind::StringConversion(result, stringId, dPhys, ulRawData, uchSigned, ushBitLength, uchDecPntCount,
                                          ulMax, ulMin, patternList, defaultPattern, ulDefaultStringId);
        });
    }
    krm_ulong StringVariableConversion(CKRMString* result, krm_ulong* stringId, double dPhys, krm_ulong ulRawData,
                                       unsigned char uchSigned, unsigned short ushBitLength,
                                       unsigned char uchDecPntCount, krm_ulong ulMax, krm_ulong ulMin,
                                       CKRMList<CKRMCCommandDispVariableData>* patternList, CKRMString* defaultPattern,
                                       krm_ulong ulDefaultStringId) override {
        return Step("VariableText", [&] {
            return Kind::StringVariableConversion(result, stringId, dPhys, ulRawData, uchSigned, ushBitLength,
                                                  uchDecPntCount, ulMax, ulMin, patternList, defaultPattern,
                                                  ulDefaultStringId);
        });
    }
    krm_ulong PhysicalConversion(double* result, krm_ulong ulRawData, unsigned char uchSigned,
                                 unsigned short ushBitLength, krm_long lMul, krm_long lDiv, krm_long lOffset,
                                 unsigned char uchDecPntCount) override {
        return Step("Physical", [&] {
            return Kind::PhysicalConversion(result, ulRawData, uchSigned, ushBitLength, lMul, lDiv, lOffset,
                                            uchDecPntCount);
        });
    }
    krm_ulong SignedConversion(krm_int64* result, krm_ulong ulRawData, unsigned char uchSigned,
                               unsigned short ushBitLength) override {
        return Step("Signed", [&] { return Kind::SignedConversion(result, ulRawData, uchSigned, ushBitLength); });
    }
    krm_ulong DecStringConversion(CKRMString* result, double value, unsigned char uchDecPntCount) override {
        return Step("Dec", [&] { return Kind::DecStringConversion(result, value, uchDecPntCount); });
    }
    krm_ulong HexStringConversion(CKRMString* result, double value, unsigned short ushBitLength) override {
        return Step("Hex", [&] { return Kind::HexStringConversion(result, value, ushBitLength); });
    }
    krm_ulong HexStringConversion2(CKRMString* result, double value, unsigned short ushBitLength) override {
        return Step("Hex2", [&] { return Kind::HexStringConversion2(result, value, ushBitLength); });
    }

    std::vector<std::string> calls;

private:
    template <class Call>
    krm_ulong Step(const char* name, Call call) {
        calls.emplace_back(name);
        return m_goodCalls-- == 0 ? m_code : call();
    }

    int m_goodCalls = kNever;
    krm_ulong m_code = 0;
};

using Words = std::vector<std::string>;

/// The steps that a class takes, in the order of their calls, for a value without a pattern.
struct Steps {
    Words value;
    Words text;
    Words variableText;
};

/// What a conversion writes to. Every field begins marked.
struct Results {
    Results() { MarkAll(record); }

    CKRMCCommandDispData record;
    double value = -1.5;
    CKRMString text = "old";
    krm_ulong id = 0xA1;
    krm_ulong raw = 1234;
};

Words Together(Words first, const Words& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

/// Lets each of the steps of `convert` fail by itself: its code comes back as it is, and no step behind it is called.
/// `check(results, failed)` looks at what is stored when step number `failed` was the one.
template <class Converter, class Convert, class Check>
void ExpectEachStepFailsTheWhole(Converter& converter, const Words& steps, Convert convert, Check check) {
    {
        Results results;
        converter.FailAt(kNever, 0);
        EXPECT_EQ(convert(results), 0U);
        EXPECT_EQ(converter.calls, steps);
    }
    for (std::size_t failed = 0; failed < steps.size(); ++failed) {
        for (const krm_ulong code : kCodes) {
            SCOPED_TRACE(::testing::Message() << "step " << failed << ", " << steps[failed] << ", code " << code);
            Results results;
            converter.FailAt(static_cast<int>(failed), code);
            EXPECT_EQ(convert(results), code);
            EXPECT_EQ(converter.calls, Words(steps.begin(), steps.begin() + static_cast<std::ptrdiff_t>(failed) + 1));
            check(results, failed);
        }
    }
}

/// All operations of a class that consist of steps.
template <class Kind, class... Values>
void ExpectStepsOf(const char* name, const Steps& steps, Values... values) {
    SCOPED_TRACE(name);
    FailsOnce<Kind> converter(values...);
    CKRMCCommandConvSignalData& base = converter;
    Arguments arguments({});
    constexpr krm_ulong kRaw = 0x010203;

    const auto isConverted = [&](const Results& results, std::size_t failed) {
        const bool hasValue = failed >= steps.value.size();
        EXPECT_EQ(results.record.m_ulRawData, kRaw);
        EXPECT_EQ(results.record.m_dDataPhys != -1.25, hasValue);
        EXPECT_STREQ(results.record.m_strDataPhys.GetText(), "phys");
        // A text that fails on its way has reset the words ID already.
        EXPECT_EQ(results.record.m_ulDataStringId, failed > steps.value.size() ? 0U : 0xA1U);
        EXPECT_TRUE(OthersAreMarked(results.record));
    };
    const auto isUntouched = [](const Results& results, std::size_t) {
        EXPECT_EQ(results.value, -1.5);
        EXPECT_STREQ(results.text.GetText(), "old");
        EXPECT_EQ(results.raw, 1234U);
    };
    ExpectEachStepFailsTheWhole(
        converter, Together(steps.value, steps.text),
        [&](Results& results) { return arguments.Raw(base, &results.record, kRaw); }, isConverted);
    ExpectEachStepFailsTheWhole(
        converter, Together(steps.value, steps.variableText),
        [&](Results& results) { return arguments.Variable(base, &results.record, kRaw); }, isConverted);
    ExpectEachStepFailsTheWhole(
        converter, steps.value, [&](Results& results) { return arguments.Value(base, &results.value, kRaw); },
        isUntouched);
    ExpectEachStepFailsTheWhole(
        converter, steps.text, [&](Results& results) { return arguments.Text(base, &results.text, &results.id, 5, 5); },
        isUntouched);
    ExpectEachStepFailsTheWhole(
        converter, steps.variableText,
        [&](Results& results) { return arguments.VariableText(base, &results.text, &results.id, 5, 5); }, isUntouched);
    ExpectEachStepFailsTheWhole(
        converter, {"Signed", "Signed"},
        [&](Results& results) {
            return base.ConvLogicalValue(&results.raw, 5.0, 0, 8, 1, 1, 0, 0, krm_ulong{255}, krm_ulong{0});
        },
        isUntouched);
    ExpectEachStepFailsTheWhole(
        converter, {},
        [&](Results& results) { return base.ConvLogicalValue(&results.raw, 5.0, 0, 8, 1, 1, 0, 0, 255.0, 0.0); },
        isUntouched);
}

TEST(FailingSteps, EachByItselfFailsTheWholeInEveryClass) {
    const Words scaled = {"Value", "Physical", "Signed"};
    const Words threeScaled = {"Value", "Physical", "Signed", "Physical", "Signed", "Physical", "Signed"};
    const Words own = {"Value"};
    const Words plain = {"Text"};
    const Words decimal = {"Text", "Dec"};
    const Words hexadecimal = {"Text", "Hex"};
    const Words variable = {"VariableText", "Dec"};
    ExpectStepsOf<CKRMCCommandConvSignalData>("", {scaled, decimal, variable});
#define KRM_TEST_STEPS(kind, ...) ExpectStepsOf<CKRMCCommandConvSignalData##kind>(#kind, __VA_ARGS__)
    KRM_TEST_STEPS(StringPattern, {scaled, hexadecimal, {"VariableText", "Hex"}});
    KRM_TEST_STEPS(Hex, {scaled, hexadecimal, variable});
    KRM_TEST_STEPS(Ascii, {scaled, decimal, variable});
    KRM_TEST_STEPS(DiagCode, {own, plain, variable});
    KRM_TEST_STEPS(Illuminance, {own, decimal, variable});
    KRM_TEST_STEPS(Chassis, {own, decimal, variable}, krm_ulong{16}, false);
    KRM_TEST_STEPS(Reversal, {scaled, decimal, variable});
    KRM_TEST_STEPS(MinMax, {scaled, {"Text", "Signed", "Signed", "Signed", "Dec"}, variable});
    KRM_TEST_STEPS(Date, {threeScaled, plain, variable});
    KRM_TEST_STEPS(Time, {threeScaled, plain, variable});
    KRM_TEST_STEPS(TimeHHMM, {scaled, plain, variable});
    KRM_TEST_STEPS(IlluminanceMinMax, {own, decimal, variable});
    KRM_TEST_STEPS(Bcd, {own, decimal, variable});
    KRM_TEST_STEPS(Incline, {scaled, decimal, variable});
    KRM_TEST_STEPS(LsbPattern, {scaled, decimal, variable});
    KRM_TEST_STEPS(ArrayHex, {scaled, decimal, variable});
    KRM_TEST_STEPS(Date2, {own, plain, variable});
    KRM_TEST_STEPS(Time2, {own, plain, variable});
    KRM_TEST_STEPS(Latitude, {scaled, plain, variable});
    KRM_TEST_STEPS(Longitude, {scaled, plain, variable});
    KRM_TEST_STEPS(SoftwareVersion, {scaled, plain, variable});
    KRM_TEST_STEPS(Special2, {scaled, decimal, variable});
    KRM_TEST_STEPS(TimeHHMM2, {scaled, plain, variable});
    KRM_TEST_STEPS(Hex2, {scaled, {"Text", "Hex2"}, variable});
    KRM_TEST_STEPS(Bin, {scaled, plain, variable});
    KRM_TEST_STEPS(Special3, {own, decimal, variable});
    KRM_TEST_STEPS(TimeHHMM3, {scaled, plain, variable});
#undef KRM_TEST_STEPS
}

// A key without a pattern falls back to a number, whose step may fail as well.
TEST(FailingSteps, ANumberInThePlaceOfAPatternFailsTheText) {
    Arguments arguments({.max = 200, .min = 10, .patterns = {{5, "five", 1}}});
    const auto check = [&](auto&& converter, const Words& steps, krm_ulong raw) {
        ExpectEachStepFailsTheWhole(
            converter, steps,
            [&](Results& results) { return arguments.Text(converter, &results.text, &results.id, 7, raw); },
            [](const Results& results, std::size_t) { EXPECT_STREQ(results.text.GetText(), "old"); });
    };
    for (const krm_ulong raw : {7U, 100U, 250U}) {  // below, between and above the limits
        check(FailsOnce<CKRMCCommandConvSignalDataMinMax>(), {"Text", "Signed", "Signed", "Signed", "Dec"}, raw);
        check(FailsOnce<CKRMCCommandConvSignalDataIlluminanceMinMax>(), {"Text", "Dec"}, raw);
        check(FailsOnce<CKRMCCommandConvSignalDataLsbPattern>(), {"Text", "Dec"}, raw);
        check(FailsOnce<CKRMCCommandConvSignalDataStringPattern>(), {"Text", "Hex"}, raw);
    }
}

TEST(FailingSteps, AGroupOfMoreBitsThanARawValueHasNoSign) {
    CKRMCCommandConvSignalDataChassis converter(33, true);
    double value = 0;
    EXPECT_EQ(Arguments({}).Value(converter, &value, 0xFFFFFFFFU), 0U);
    EXPECT_EQ(value, 4294967295.0);
}

TEST(FailingSteps, TheDefaultTextNeedsNoPlaceForItsId) {
    Arguments arguments({.defaultText = "unknown"});
    CKRMString text;
    EXPECT_EQ(arguments.Text(*Create(1), &text, nullptr, 1, 1), 0U);
    EXPECT_STREQ(text.GetText(), "unknown");
}

}  // namespace
}  // namespace krm::test

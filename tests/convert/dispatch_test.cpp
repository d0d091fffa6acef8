// Every step is called through the object: a subclass that overrides one changes all that use it.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/converters.h"

namespace krm::test {
namespace {

using Base = CKRMCCommandConvSignalData;

constexpr krm_ulong kOther = 0x12345678;  // a code that only a subclass returns, in all of its 32 bits

// A converter whose steps can be told to answer for themselves; it notes every call.
template <class Kind>
class Scripted : public Kind {
public:
    using Kind::Kind;

    std::vector<std::string> calls;
    krm_ulong valueStatus = 0;
    krm_ulong signedStatus = 0;
    krm_ulong physicalStatus = 0;
    krm_ulong textStatus = 0;
    bool ownValue = false;
    bool ownSigned = false;
    bool ownPhysical = false;
    bool ownText = false;
    bool ownVariableText = false;
    bool ownDigits = false;

    krm_ulong ValueConversion(double* result, krm_ulong ulRawData, unsigned char uchSigned, unsigned short ushBitLength,
                              krm_long lMul, krm_long lDiv, krm_long lOffset, unsigned char uchDecPntCount) override {
        calls.push_back("Value");
        if (valueStatus != 0) {
            return valueStatus;
        }
        if (ownValue) {
            *result = 42.5;
            return 0;
        }
        return Kind::ValueConversion(result, ulRawData, uchSigned, ushBitLength, lMul, lDiv, lOffset, uchDecPntCount);
    }
    krm_ulong StringConversion(CKRMString* result, krm_ulong* stringId, double dPhys, krm_ulong ulRawData,
                               unsigned char uchSigned, unsigned short ushBitLength, unsigned char uchDecPntCount,
                               krm_ulong ulMax, krm_ulong ulMin, CKRMList<CKRMCCommandDispData>* patternList,
                               CKRMString* defaultPattern, krm_ulong ulDefaultStringId) override {
        calls.push_back("String");
        if (ownText) {
            *result = "own text";
            *stringId = 123;
            return textStatus;
        }
        return Kind::StringConversion(result, stringId, dPhys, ulRawData, uchSigned, ushBitLength, uchDecPntCount,
                                      ulMax, ulMin, patternList, defaultPattern, ulDefaultStringId);
    }
    krm_ulong StringVariableConversion(CKRMString* result, krm_ulong* stringId, double dPhys, krm_ulong ulRawData,
                                       unsigned char uchSigned, unsigned short ushBitLength,
                                       unsigned char uchDecPntCount, krm_ulong ulMax, krm_ulong ulMin,
                                       CKRMList<CKRMCCommandDispVariableData>* patternList, CKRMString* defaultPattern,
                                       krm_ulong ulDefaultStringId) override {
        calls.push_back("StringVariable");
        if (ownVariableText) {
            *result = "own variable text";
            *stringId = 124;
            return textStatus;
        }
        return Kind::StringVariableConversion(result, stringId, dPhys, ulRawData, uchSigned, ushBitLength,
                                              uchDecPntCount, ulMax, ulMin, patternList, defaultPattern,
                                              ulDefaultStringId);
    }
    krm_ulong PhysicalConversion(double* result, krm_ulong ulRawData, unsigned char uchSigned,
                                 unsigned short ushBitLength, krm_long lMul, krm_long lDiv, krm_long lOffset,
                                 unsigned char uchDecPntCount) override {
        calls.push_back("Physical " + std::to_string(ulRawData) + " sign " + std::to_string(uchSigned) + " bits " +
                        std::to_string(ushBitLength) + " scaling " + std::to_string(lMul) + " " + std::to_string(lDiv) +
                        " " + std::to_string(lOffset) + " places " + std::to_string(uchDecPntCount));
        if (physicalStatus != 0) {
            return physicalStatus;
        }
        if (ownPhysical) {
            *result = 2;
            return 0;
        }
        return Kind::PhysicalConversion(result, ulRawData, uchSigned, ushBitLength, lMul, lDiv, lOffset,
                                        uchDecPntCount);
    }
    krm_ulong SignedConversion(krm_int64* result, krm_ulong ulRawData, unsigned char uchSigned,
                               unsigned short ushBitLength) override {
        calls.push_back("Signed");
        if (signedStatus != 0) {
            return signedStatus;
        }
        if (ownSigned) {
            *result = -static_cast<krm_int64>(ulRawData);
            return 0;
        }
        return Kind::SignedConversion(result, ulRawData, uchSigned, ushBitLength);
    }
    krm_ulong DecStringConversion(CKRMString* result, double, unsigned char) override { return Digits("Dec", result); }
    krm_ulong HexStringConversion(CKRMString* result, double, unsigned short) override { return Digits("Hex", result); }
    krm_ulong HexStringConversion2(CKRMString* result, double, unsigned short) override {
        return Digits("Hex2", result);
    }

private:
    krm_ulong Digits(const char* name, CKRMString* result) {
        calls.push_back(name);
        *result = (std::string("own ") + name).c_str();
        return textStatus;
    }
};

// The calls of a composite, with what PhysicalConversion was given left out.
std::string Calls(const std::vector<std::string>& calls) {
    std::string all;
    for (const std::string& call : calls) {
        all += (all.empty() ? "" : " ") + call.substr(0, call.find(' '));
    }
    return all;
}

template <class Kind>
std::string RawText(Scripted<Kind>& converter, krm_ulong raw, const Item& item = {}) {
    CKRMCCommandDispData record;
    const krm_ulong status = Arguments(item).Raw(converter, &record, raw);
    return status == 0 ? record.m_strDataPhys.GetText() : "status " + std::to_string(status);
}

TEST(Dispatch, CompositesCallTheStepsInOrder) {
    Scripted<Base> converter;
    EXPECT_EQ(RawText(converter, 5), "own Dec");
    EXPECT_EQ(Calls(converter.calls), "Value Physical Signed String Dec");
    converter.calls.clear();
    CKRMCCommandDispData record;
    EXPECT_EQ(Arguments({}).Variable(converter, &record, 5), 0U);
    EXPECT_STREQ(record.m_strDataPhys.GetText(), "own Dec");
    EXPECT_EQ(Calls(converter.calls), "Value Physical Signed StringVariable Dec");
}

TEST(Dispatch, AnOverriddenValueReachesTheText) {
    class HalfDegrees : public Base {
    public:
        krm_ulong ValueConversion(double* result, krm_ulong ulRawData, unsigned char, unsigned short, krm_long,
                                  krm_long, krm_long, unsigned char) override {
            *result = ulRawData / 2.0;
            return 0;
        }
    };
    HalfDegrees converter;
    CKRMCCommandDispData record;
    EXPECT_EQ(Arguments({.decimals = 1}).Raw(converter, &record, 85), 0U);
    EXPECT_STREQ(record.m_strDataPhys.GetText(), "42.5");
    EXPECT_EQ(record.m_dDataPhys, 42.5);
    EXPECT_EQ(record.m_ulRawData, 85U);
    EXPECT_EQ(Arguments({.decimals = 2}).Variable(converter, &record, 85), 0U);
    EXPECT_STREQ(record.m_strDataPhys.GetText(), "42.50");
}

TEST(Dispatch, AFailingValueStopsTheComposite) {
    Scripted<Base> converter;
    converter.valueStatus = kOther;
    CKRMCCommandDispData record;
    MarkAll(record);
    EXPECT_EQ(Arguments({}).Raw(converter, &record, 5), kOther);
    EXPECT_EQ(Calls(converter.calls), "Value");
    EXPECT_EQ(record.m_ulRawData, 5U);
    EXPECT_EQ(record.m_dDataPhys, -1.25);
    EXPECT_STREQ(record.m_strDataPhys.GetText(), "phys");
    EXPECT_EQ(record.m_ulDataStringId, 0xA1U);
    EXPECT_TRUE(OthersAreMarked(record));

    EXPECT_EQ(Arguments({}).Variable(converter, &record, 6), kOther);
    EXPECT_EQ(Calls(converter.calls), "Value Value");
    EXPECT_EQ(record.m_ulRawData, 6U);
    EXPECT_STREQ(record.m_strDataPhys.GetText(), "phys");
    EXPECT_EQ(record.m_ulDataStringId, 0xA1U);
}

TEST(Dispatch, CompositesUseAnOverriddenText) {
    Scripted<Base> converter;
    converter.ownText = true;
    converter.ownVariableText = true;
    CKRMCCommandDispData record;
    EXPECT_EQ(Arguments({}).Raw(converter, &record, 5), 0U);
    EXPECT_STREQ(record.m_strDataPhys.GetText(), "own text");
    EXPECT_EQ(record.m_ulDataStringId, 123U);
    EXPECT_EQ(Arguments({}).Variable(converter, &record, 5), 0U);
    EXPECT_STREQ(record.m_strDataPhys.GetText(), "own variable text");
    EXPECT_EQ(record.m_ulDataStringId, 124U);
}

TEST(Dispatch, CompositesPassOnTheTextsStatus) {
    Scripted<Base> converter;
    converter.ownText = true;
    converter.ownVariableText = true;
    converter.textStatus = kOther;
    CKRMCCommandDispData record;
    EXPECT_EQ(Arguments({}).Raw(converter, &record, 5), kOther);
    EXPECT_EQ(Arguments({}).Variable(converter, &record, 5), kOther);
    EXPECT_EQ(record.m_dDataPhys, 5.0);
}

TEST(Dispatch, VariableTextDoesNotForwardToAnOverriddenText) {
    Scripted<Base> converter;
    converter.ownText = true;
    CKRMCCommandDispData record;
    EXPECT_EQ(Arguments({}).Variable(converter, &record, 5), 0U);
    EXPECT_STREQ(record.m_strDataPhys.GetText(), "own Dec");
}

TEST(Dispatch, ScalingUsesAnOverriddenSign) {
    Scripted<Base> converter;
    converter.ownSigned = true;
    double value = 0;
    EXPECT_EQ(Arguments({.mul = 3, .offset = 1}).Value(converter, &value, 5), 0U);
    EXPECT_EQ(value, -14.0);
}

TEST(Dispatch, AFailingSignFailsAllThatUseIt) {
    Scripted<Base> converter;
    converter.signedStatus = kOther;
    double value = 0;
    EXPECT_EQ(Arguments({}).Value(converter, &value, 5), kOther);
    CKRMCCommandDispData record;
    MarkAll(record);
    EXPECT_EQ(Arguments({}).Raw(converter, &record, 5), kOther);
    EXPECT_EQ(record.m_ulRawData, 5U);
    EXPECT_STREQ(record.m_strDataPhys.GetText(), "phys");

    krm_ulong raw = 0;
    const krm_ulong rawMax = 9;
    const krm_ulong rawMin = 1;
    EXPECT_EQ(converter.ConvLogicalValue(&raw, 5, 0, 8, 1, 1, 0, 0, rawMax, rawMin), kOther);
    // Physical limits need no sign handling.
    EXPECT_EQ(converter.ConvLogicalValue(&raw, 5, 0, 8, 1, 1, 0, 0, 9.0, 1.0), 0U);
    EXPECT_EQ(raw, 5U);

    Scripted<CKRMCCommandConvSignalDataMinMax> minMax;
    minMax.signedStatus = kOther;
    CKRMString text = "old";
    EXPECT_EQ(Arguments({.patterns = {{0, "low", 1}}}).Text(minMax, &text, nullptr, 5, 5), kOther);
    EXPECT_STREQ(text.GetText(), "old");
}

TEST(Dispatch, LimitsUseAnOverriddenSign) {
    Scripted<Base> converter;
    converter.ownSigned = true;
    krm_ulong raw = 0;
    const krm_ulong max = 3;   // stands for -3
    const krm_ulong min = 10;  // stands for -10
    EXPECT_EQ(converter.ConvLogicalValue(&raw, -2, 0, 8, 1, 1, 0, 0, max, min), 0U);
    EXPECT_EQ(raw, 3U);
    EXPECT_EQ(converter.ConvLogicalValue(&raw, -11, 0, 8, 1, 1, 0, 0, max, min), 0U);
    EXPECT_EQ(raw, 10U);
    EXPECT_EQ(converter.ConvLogicalValue(&raw, -5, 0, 8, 1, 1, 0, 0, max, min), 0U);
    EXPECT_EQ(raw, 0xFFFFFFFBU);

    Scripted<CKRMCCommandConvSignalDataMinMax> minMax;
    minMax.ownSigned = true;
    const Item item{.max = 3, .min = 10, .patterns = {{0, "low", 1}, {1, "high", 2}}};
    EXPECT_EQ(RawText(minMax, 2, item), "high");
    EXPECT_EQ(RawText(minMax, 12, item), "low");
    EXPECT_EQ(RawText(minMax, 5, item), "own Dec");
}

TEST(Dispatch, ValuesUseAnOverriddenScaling) {
    Scripted<Base> base;
    base.ownPhysical = true;
    double value = 0;
    EXPECT_EQ(Arguments({}).Value(base, &value, 5), 0U);
    EXPECT_EQ(value, 2.0);

    Scripted<CKRMCCommandConvSignalDataReversal> reversal;
    reversal.ownPhysical = true;
    EXPECT_EQ(Arguments({.sign = 1, .bits = 9, .mul = 2, .div = 3, .offset = 4, .decimals = 5})
                  .Value(reversal, &value, 0x0201),
              0U);
    EXPECT_EQ(value, 2.0);
    EXPECT_EQ(reversal.calls.back(), "Physical 258 sign 1 bits 9 scaling 2 3 4 places 5");

    Scripted<CKRMCCommandConvSignalDataSpecial2> special2;
    special2.ownPhysical = true;
    EXPECT_EQ(Arguments({}).Value(special2, &value, 5), 0U);
    EXPECT_EQ(value, 11.515 - 2 * 0.0338);

    Scripted<CKRMCCommandConvSignalDataIncline> incline;
    incline.ownPhysical = true;
    EXPECT_EQ(Arguments({}).Value(incline, &value, 5), 0U);
    EXPECT_NEAR(value, 2.0412, 0.0005);
}

TEST(Dispatch, DateScalesEachByteByTheStep) {
    const auto check = [](auto& converter) {
        converter.ownPhysical = true;
        double value = 0;
        EXPECT_EQ(Arguments({.sign = 3, .bits = 30, .mul = 2, .div = 3, .offset = 4, .decimals = 5})
                      .Value(converter, &value, 0xAA030201U),
                  0U);
        EXPECT_EQ(value, 0x020202);
        EXPECT_EQ(converter.calls, (std::vector<std::string>{"Value", "Physical 1 sign 3 bits 8 scaling 2 3 4 places 0",
                                                             "Physical 2 sign 3 bits 8 scaling 2 3 4 places 0",
                                                             "Physical 3 sign 3 bits 8 scaling 2 3 4 places 0"}));
    };
    Scripted<CKRMCCommandConvSignalDataDate> date;
    check(date);
    Scripted<CKRMCCommandConvSignalDataTime> time;
    check(time);
}

TEST(Dispatch, HoursAndMinutesScaleUnsignedWithoutPlaces) {
    const auto check = [](auto& converter) {
        double value = 0;
        EXPECT_EQ(Arguments({.sign = 1, .bits = 9, .mul = 2, .div = 3, .offset = 4, .decimals = 5})
                      .Value(converter, &value, 300),
                  0U);
        EXPECT_EQ(converter.calls[1], "Physical 300 sign 0 bits 9 scaling 2 3 4 places 0");
    };
    Scripted<CKRMCCommandConvSignalDataTimeHHMM> first;
    check(first);
    Scripted<CKRMCCommandConvSignalDataTimeHHMM2> second;
    check(second);
}

TEST(Dispatch, AFailingScalingFailsTheValue) {
    const auto check = [](auto& converter) {
        converter.physicalStatus = kOther;
        CKRMCCommandDispData record;
        MarkAll(record);
        EXPECT_EQ(Arguments({}).Raw(converter, &record, 5), kOther);
        EXPECT_EQ(Calls(converter.calls), "Value Physical");  // Date stops at its first byte
        EXPECT_EQ(record.m_ulRawData, 5U);
        EXPECT_EQ(record.m_dDataPhys, -1.25);
        EXPECT_STREQ(record.m_strDataPhys.GetText(), "phys");
    };
    Scripted<Base> base;
    check(base);
    Scripted<CKRMCCommandConvSignalDataReversal> reversal;
    check(reversal);
    Scripted<CKRMCCommandConvSignalDataDate> date;
    check(date);
    Scripted<CKRMCCommandConvSignalDataTime> time;
    check(time);
    Scripted<CKRMCCommandConvSignalDataTimeHHMM> hours;
    check(hours);
    Scripted<CKRMCCommandConvSignalDataTimeHHMM2> hours2;
    check(hours2);
    Scripted<CKRMCCommandConvSignalDataIncline> incline;
    check(incline);
    Scripted<CKRMCCommandConvSignalDataSpecial2> special2;
    check(special2);
}

TEST(Dispatch, TextsUseAnOverriddenNumberFormat) {
    Scripted<CKRMCCommandConvSignalDataHex> hex;
    EXPECT_EQ(RawText(hex, 5), "own Hex");
    Scripted<CKRMCCommandConvSignalDataHex2> hex2;
    EXPECT_EQ(RawText(hex2, 5), "own Hex2");
    Scripted<CKRMCCommandConvSignalDataStringPattern> pattern;
    EXPECT_EQ(RawText(pattern, 5), "own Hex");
    CKRMCCommandDispData record;
    EXPECT_EQ(Arguments({}).Variable(pattern, &record, 5), 0U);
    EXPECT_STREQ(record.m_strDataPhys.GetText(), "own Hex");
    Scripted<CKRMCCommandConvSignalDataMinMax> minMax;
    EXPECT_EQ(RawText(minMax, 5), "own Dec");
    EXPECT_EQ(RawText(minMax, 0), "own Dec");
    Scripted<CKRMCCommandConvSignalDataIlluminanceMinMax> illuminance;
    EXPECT_EQ(RawText(illuminance, 5), "own Dec");
    EXPECT_EQ(RawText(illuminance, 0, {.patterns = {{9, "nine", 1}}}), "own Dec");
    Scripted<CKRMCCommandConvSignalDataLsbPattern> lsb;
    EXPECT_EQ(RawText(lsb, 5), "own Dec");
}

TEST(Dispatch, TextsPassOnTheNumberFormatsStatus) {
    const auto check = [](auto&& converter) {
        converter.textStatus = kOther;
        EXPECT_EQ(RawText(converter, 5), "status 305419896");
    };
    check(Scripted<Base>());
    check(Scripted<CKRMCCommandConvSignalDataHex>());
    check(Scripted<CKRMCCommandConvSignalDataHex2>());
    check(Scripted<CKRMCCommandConvSignalDataStringPattern>());
    check(Scripted<CKRMCCommandConvSignalDataMinMax>());
    check(Scripted<CKRMCCommandConvSignalDataIlluminanceMinMax>());
    check(Scripted<CKRMCCommandConvSignalDataLsbPattern>());
}

}  // namespace
}  // namespace krm::test

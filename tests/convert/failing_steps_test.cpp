// What happens where a step of a conversion fails: a class of one's own may override any of them.
#include <gtest/gtest.h>

#include "tests/support/converters.h"

namespace krm::test {
namespace {

constexpr krm_ulong kOther = 77;

// Fails from the given call of SignedConversion on.
class SignFails : public CKRMCCommandConvSignalData {
public:
    explicit SignFails(int goodCalls) : m_goodCalls(goodCalls) {}
    krm_ulong SignedConversion(krm_int64* result, krm_ulong ulRawData, unsigned char uchSigned,
                               unsigned short ushBitLength) override {
        if (m_goodCalls-- <= 0) {
            return kOther;
        }
        return CKRMCCommandConvSignalData::SignedConversion(result, ulRawData, uchSigned, ushBitLength);
    }

private:
    int m_goodCalls;
};

krm_ulong Logical(CKRMCCommandConvSignalData& converter, krm_ulong* result) {
    return converter.ConvLogicalValue(result, 5.0, 0, 8, 1, 1, 0, 0, krm_ulong{255}, krm_ulong{0});
}

TEST(FailingSteps, EitherLimitsSignFailsTheLogicalValue) {
    for (const int goodCalls : {0, 1}) {
        SignFails converter(goodCalls);
        krm_ulong result = 1234;
        EXPECT_EQ(Logical(converter, &result), kOther) << goodCalls;
        EXPECT_EQ(result, 1234U) << "a failed conversion stores nothing";
    }
    SignFails converter(2);
    krm_ulong result = 1234;
    EXPECT_EQ(Logical(converter, &result), 0U);
    EXPECT_EQ(result, 5U);
}

// Its scaling fails from the given call on.
template <class Converter>
class ScalingFails : public Converter {
public:
    explicit ScalingFails(int goodCalls) : m_goodCalls(goodCalls) {}
    krm_ulong PhysicalConversion(double* result, krm_ulong ulRawData, unsigned char uchSigned,
                                 unsigned short ushBitLength, krm_long lMul, krm_long lDiv, krm_long lOffset,
                                 unsigned char uchDecPntCount) override {
        if (m_goodCalls-- <= 0) {
            return kOther;
        }
        return Converter::PhysicalConversion(result, ulRawData, uchSigned, ushBitLength, lMul, lDiv, lOffset,
                                             uchDecPntCount);
    }

private:
    int m_goodCalls;
};

template <class Converter>
class FailingBytes : public ::testing::Test {};
using ThreeByteConverters = ::testing::Types<CKRMCCommandConvSignalDataDate, CKRMCCommandConvSignalDataTime>;
TYPED_TEST_SUITE(FailingBytes, ThreeByteConverters);

TYPED_TEST(FailingBytes, AnyOfTheThreeFailsTheValue) {
    const Arguments arguments({});
    for (const int goodCalls : {0, 1, 2}) {
        ScalingFails<TypeParam> converter(goodCalls);
        double value = -1.5;
        EXPECT_EQ(arguments.Value(converter, &value, 0x010203), kOther) << goodCalls;
        EXPECT_EQ(value, -1.5) << "a failed conversion stores nothing";
    }
    ScalingFails<TypeParam> converter(3);
    double value = -1.5;
    EXPECT_EQ(arguments.Value(converter, &value, 0x010203), 0U);
    EXPECT_EQ(value, 0x010203);
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

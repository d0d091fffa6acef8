// The table of conversion types: whether what it says is what the converters do.
#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <typeinfo>
#include <vector>

#include "krm/convert/conversion_types.h"
#include "tests/support/converters.h"

#if !defined(_WIN32)
#include <stdlib.h>
#endif

namespace krm::test {
namespace {

// All rows: those of the table, and the one for every other code.
std::vector<ConversionType> AllTypes() {
    std::vector<ConversionType> types(std::begin(kConversionTypes), std::end(kConversionTypes));
    types.push_back(kPlainNumber);
    return types;
}

// Each class by its name.
const std::map<std::string, const std::type_info*>& Classes() {
    static const std::map<std::string, const std::type_info*> classes = {
#define KRM_TEST_CLASS(name) {#name, &typeid(name)}
        KRM_TEST_CLASS(CKRMCCommandConvSignalData),
        KRM_TEST_CLASS(CKRMCCommandConvSignalDataArrayHex),
        KRM_TEST_CLASS(CKRMCCommandConvSignalDataAscii),
        KRM_TEST_CLASS(CKRMCCommandConvSignalDataBcd),
        KRM_TEST_CLASS(CKRMCCommandConvSignalDataBin),
        KRM_TEST_CLASS(CKRMCCommandConvSignalDataChassis),
        KRM_TEST_CLASS(CKRMCCommandConvSignalDataDate),
        KRM_TEST_CLASS(CKRMCCommandConvSignalDataDate2),
        KRM_TEST_CLASS(CKRMCCommandConvSignalDataDiagCode),
        KRM_TEST_CLASS(CKRMCCommandConvSignalDataHex),
        KRM_TEST_CLASS(CKRMCCommandConvSignalDataHex2),
        KRM_TEST_CLASS(CKRMCCommandConvSignalDataIlluminance),
        KRM_TEST_CLASS(CKRMCCommandConvSignalDataIlluminanceMinMax),
        KRM_TEST_CLASS(CKRMCCommandConvSignalDataIncline),
        KRM_TEST_CLASS(CKRMCCommandConvSignalDataLatitude),
        KRM_TEST_CLASS(CKRMCCommandConvSignalDataLongitude),
        KRM_TEST_CLASS(CKRMCCommandConvSignalDataLsbPattern),
        KRM_TEST_CLASS(CKRMCCommandConvSignalDataMinMax),
        KRM_TEST_CLASS(CKRMCCommandConvSignalDataReversal),
        KRM_TEST_CLASS(CKRMCCommandConvSignalDataSoftwareVersion),
        KRM_TEST_CLASS(CKRMCCommandConvSignalDataSpecial2),
        KRM_TEST_CLASS(CKRMCCommandConvSignalDataSpecial3),
        KRM_TEST_CLASS(CKRMCCommandConvSignalDataStringPattern),
        KRM_TEST_CLASS(CKRMCCommandConvSignalDataTime),
        KRM_TEST_CLASS(CKRMCCommandConvSignalDataTime2),
        KRM_TEST_CLASS(CKRMCCommandConvSignalDataTimeHHMM),
        KRM_TEST_CLASS(CKRMCCommandConvSignalDataTimeHHMM2),
        KRM_TEST_CLASS(CKRMCCommandConvSignalDataTimeHHMM3),
#undef KRM_TEST_CLASS
    };
    return classes;
}

TEST(ConversionTypes, AreInTheOrderOfTheirCodes) {
    for (std::size_t i = 1; i < std::size(kConversionTypes); ++i) {
        EXPECT_LT(kConversionTypes[i - 1].code, kConversionTypes[i].code);
    }
}

TEST(ConversionTypes, NameTheClassThatTheFactoryMakes) {
    std::set<std::string> named;
    for (int code = 0; code < 256; ++code) {
        const ConversionType& type = ConversionTypeOf(static_cast<unsigned char>(code));
        const auto found = Classes().find(type.className);
        ASSERT_NE(found, Classes().end()) << type.className;
        const ConverterPtr converter = Create(code);
        CKRMCCommandConvSignalData& object = *converter;
        EXPECT_TRUE(typeid(object) == *found->second) << code << " is no " << type.className;
        named.insert(type.className);
    }
    EXPECT_EQ(named.size(), Classes().size()) << "the table has every class";
}

TEST(ConversionTypes, AreFoundByCode) {
    for (const ConversionType& type : kConversionTypes) {
        EXPECT_EQ(&ConversionTypeOf(type.code), &type) << int{type.code};
    }
    for (const int code : {0, 2, 14, 17, 18, 21, 23, 25, 100, 116, 255}) {
        EXPECT_EQ(&ConversionTypeOf(static_cast<unsigned char>(code)), &kPlainNumber) << code;
    }
    static_assert(ConversionTypeOf(5).code == 5);
}

TEST(ConversionTypes, SayWhichTakeBytes) {
    for (const ConversionType& type : AllTypes()) {
        EXPECT_EQ(Create(type.code)->IsBinaryDataType(), type.takesBytes) << int{type.code};
    }
}

TEST(ConversionTypes, WithTheSameNameConvertAlike) {
    std::map<std::string, ConversionType> byName;
    for (const ConversionType& type : AllTypes()) {
        EXPECT_STRNE(type.name, "");
        EXPECT_STRNE(type.shows, "") << type.name;
        const auto [other, isNew] = byName.emplace(type.name, type);
        if (!isNew) {
            EXPECT_STREQ(type.className, other->second.className) << type.name;
            EXPECT_STREQ(type.shows, other->second.shows) << type.name;
            EXPECT_EQ(type.groupWidth, other->second.groupWidth) << type.name;
            EXPECT_EQ(type.lastBitIsSign, other->second.lastBitIsSign) << type.name;
        }
    }
    EXPECT_EQ(byName.size(), std::size(kConversionTypes) + 1 - 2) << "only 1, 20 and 22 share one";
}

TEST(ConversionTypes, HaveTheArgumentsOfTheChassisConverters) {
    int chassis = 0;
    for (const ConversionType& type : AllTypes()) {
        if (std::strcmp(type.className, "CKRMCCommandConvSignalDataChassis") != 0) {
            EXPECT_EQ(type.groupWidth, 0U) << int{type.code};
            EXPECT_FALSE(type.lastBitIsSign) << int{type.code};
            continue;
        }
        ++chassis;
        CKRMCCommandConvSignalDataChassis same(type.groupWidth, type.lastBitIsSign);
        CKRMCCommandConvSignalDataChassis wider(type.groupWidth + 1, type.lastBitIsSign);
        CKRMCCommandConvSignalDataChassis otherSign(type.groupWidth, !type.lastBitIsSign);
        const Arguments arguments({});
        bool differsFromWider = false;
        bool differsFromOtherSign = false;
        for (krm_ulong raw = 0; raw < 0x1000000; raw += 0xFFF) {
            const double made = ValueBy(type.code, raw);
            double value = 0;
            EXPECT_EQ(arguments.Value(same, &value, raw), 0U);
            ASSERT_EQ(made, value) << int{type.code} << " of " << raw;
            EXPECT_EQ(arguments.Value(wider, &value, raw), 0U);
            differsFromWider = differsFromWider || made != value;
            EXPECT_EQ(arguments.Value(otherSign, &value, raw), 0U);
            differsFromOtherSign = differsFromOtherSign || made != value;
        }
        EXPECT_TRUE(differsFromWider && differsFromOtherSign) << int{type.code};
    }
    EXPECT_EQ(chassis, 5);
}

// What the type's converter makes of its example.
std::string ShownExample(const ConversionType& type) {
    const ConversionExample& example = type.example;
    if (type.takesBytes) {
        std::vector<unsigned char> bytes;
        for (int shift = example.bitLength - 8; shift >= 0; shift -= 8) {
            bytes.push_back(static_cast<unsigned char>(example.raw >> shift));
        }
        CKRMCCommandDispData record;
        EXPECT_EQ(Create(type.code)->ConvCommandDispData(&record, bytes.data(), static_cast<krm_ulong>(bytes.size()), 0,
                                                         8, 1, 1, 0, 0, 0, 0, nullptr),
                  0U);
        return record.m_strDataPhys.GetText();
    }
    Item item;
    item.bits = example.bitLength;
    item.decimals = example.decimals;
    item.max = example.max;
    if (example.patternText != nullptr) {
        item.patterns = {{example.patternKey, example.patternText, 1}};
    }
    return DisplayBy(type.code, example.raw, item);
}

TEST(ConversionTypes, ShowTheirExamples) {
    for (const ConversionType& type : AllTypes()) {
        if (!type.followsLocale) {
            EXPECT_EQ(ShownExample(type), type.example.text) << int{type.code} << ", " << type.name;
        }
    }
}

TEST(ConversionTypes, HaveAnExampleThatNeedsItsPattern) {
    for (ConversionType type : AllTypes()) {
        if (type.example.patternText != nullptr) {
            EXPECT_STREQ(type.example.text, type.example.patternText);
            type.example.patternText = nullptr;
            EXPECT_NE(ShownExample(type), type.example.text) << int{type.code};
        }
    }
}

#if !defined(_WIN32)

// Sets the user's locale for one test.
class ExamplesByLocale : public ::testing::Test {
protected:
    ExamplesByLocale() {
        if (const char* const before = getenv("LC_ALL"); before != nullptr) {
            m_restore = [text = std::string(before)] { setenv("LC_ALL", text.c_str(), 1); };
        }
    }
    ~ExamplesByLocale() override { m_restore(); }

private:
    std::function<void()> m_restore = [] { unsetenv("LC_ALL"); };
};

TEST_F(ExamplesByLocale, AreThoseOfTheCLocale) {
    setenv("LC_ALL", "C", 1);
    for (const ConversionType& type : AllTypes()) {
        EXPECT_EQ(ShownExample(type), type.example.text) << int{type.code};
    }
}

TEST_F(ExamplesByLocale, NeedALocaleWhereTheTypeFollowsOne) {
    setenv("LC_ALL", "xx_XX", 1);
    for (const ConversionType& type : AllTypes()) {
        EXPECT_EQ(ShownExample(type) != type.example.text, type.followsLocale) << int{type.code};
    }
}

#endif

}  // namespace
}  // namespace krm::test

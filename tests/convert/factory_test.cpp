// Which class converts which type, and what every class of the family can do.
#include <gtest/gtest.h>

#include <array>
#include <map>
#include <string>
#include <type_traits>
#include <typeinfo>
#include <vector>

#include "tests/support/converters.h"
#include "tests/support/failing_allocation.h"

namespace krm::test {
namespace {

using Base = CKRMCCommandConvSignalData;

// Calls `visit` once for each class, as visit(name, static_cast<Class*>(nullptr)).
template <class Visit>
void ForEachClass(Visit visit) {
#define KRM_TEST_VISIT(kind) visit(#kind, static_cast<CKRMCCommandConvSignalData##kind*>(nullptr))
    KRM_TEST_VISIT(StringPattern);
    KRM_TEST_VISIT(Hex);
    KRM_TEST_VISIT(Ascii);
    KRM_TEST_VISIT(DiagCode);
    KRM_TEST_VISIT(Illuminance);
    KRM_TEST_VISIT(Chassis);
    KRM_TEST_VISIT(Reversal);
    KRM_TEST_VISIT(MinMax);
    KRM_TEST_VISIT(Date);
    KRM_TEST_VISIT(Time);
    KRM_TEST_VISIT(TimeHHMM);
    KRM_TEST_VISIT(IlluminanceMinMax);
    KRM_TEST_VISIT(Bcd);
    KRM_TEST_VISIT(Incline);
    KRM_TEST_VISIT(LsbPattern);
    KRM_TEST_VISIT(ArrayHex);
    KRM_TEST_VISIT(Date2);
    KRM_TEST_VISIT(Time2);
    KRM_TEST_VISIT(Latitude);
    KRM_TEST_VISIT(Longitude);
    KRM_TEST_VISIT(SoftwareVersion);
    KRM_TEST_VISIT(Special2);
    KRM_TEST_VISIT(TimeHHMM2);
    KRM_TEST_VISIT(Hex2);
    KRM_TEST_VISIT(Bin);
    KRM_TEST_VISIT(Special3);
    KRM_TEST_VISIT(TimeHHMM3);
#undef KRM_TEST_VISIT
}

// Every class that `converter` is, one after the other: one name, as no converter derives from another, or none for the
// plain base.
std::string KindOf(Base* converter) {
    std::string kinds;
    ForEachClass([&]<class Class>(const char* name, Class*) {
        if (dynamic_cast<Class*>(converter) != nullptr) {
            kinds += name;
        }
    });
    return kinds;
}

TEST(ConverterFactory, GivesEachOfThe256CodesItsClass) {
    const std::map<int, std::string> table = {{1, "StringPattern"},
                                              {3, "Hex"},
                                              {4, "Ascii"},
                                              {5, "DiagCode"},
                                              {6, "Illuminance"},
                                              {7, "Chassis"},
                                              {8, "Chassis"},
                                              {9, "Chassis"},
                                              {10, "Chassis"},
                                              {11, "Chassis"},
                                              {12, "Reversal"},
                                              {13, "MinMax"},
                                              {15, "Date"},
                                              {16, "Time"},
                                              {19, "TimeHHMM"},
                                              {20, "StringPattern"},
                                              {22, "StringPattern"},
                                              {24, "IlluminanceMinMax"},
                                              {101, "Bcd"},
                                              {102, "Incline"},
                                              {103, "LsbPattern"},
                                              {104, "ArrayHex"},
                                              {105, "Date2"},
                                              {106, "Time2"},
                                              {107, "Latitude"},
                                              {108, "Longitude"},
                                              {109, "SoftwareVersion"},
                                              {110, "Special2"},
                                              {111, "TimeHHMM2"},
                                              {112, "Hex2"},
                                              {113, "Bin"},
                                              {114, "Special3"},
                                              {115, "TimeHHMM3"}};
    for (int code = 0; code < 256; ++code) {
        const ConverterPtr converter = Create(code);
        ASSERT_NE(converter, nullptr) << code;
        const auto found = table.find(code);
        EXPECT_EQ(KindOf(converter.get()), found == table.end() ? "" : found->second) << code;
        Base& object = *converter;
        EXPECT_EQ(typeid(object) == typeid(Base), found == table.end()) << code;
    }
}

TEST(ConverterFactory, UnknownCodesGiveTheBase) {
    for (const int code : {0, 2, 100, 255}) {
        const ConverterPtr converter = Create(code);
        Base& object = *converter;
        EXPECT_TRUE(typeid(object) == typeid(Base)) << code;
        EXPECT_EQ(DisplayBy(code, 250, {.offset = -5, .decimals = 1}), "24.5") << code;
    }
}

TEST(ConverterFactory, ThreeCodesGiveTheStringPattern) {
    for (const int code : {1, 20, 22}) {
        EXPECT_EQ(KindOf(Create(code).get()), "StringPattern") << code;
        EXPECT_EQ(DisplayBy(code, 7, {.patterns = {{7, "ON", 1}}}), "ON") << code;
    }
}

TEST(ConverterFactory, EachCallGivesAnObjectOfItsOwn) {
    const ConverterPtr first = Create(5);
    const ConverterPtr second = Create(5);
    EXPECT_NE(first, second);
}

TEST(ConverterFactory, DeletingNullDoesNothing) {
    const long before = LivingBlocks();
    Base::DeleteConverter(nullptr);
    EXPECT_EQ(LivingBlocks(), before);
}

TEST(ConverterFactory, DeletesThroughTheVirtualDestructor) {
    class Counted : public Base {
    public:
        explicit Counted(int& deaths) : m_deaths(deaths) {}
        ~Counted() override { ++m_deaths; }

    private:
        int& m_deaths;
    };
    int deaths = 0;
    Base::DeleteConverter(new Counted(deaths));
    EXPECT_EQ(deaths, 1);
}

TEST(ConverterFactory, OnlyAsciiAndArrayHexTakeBytes) {
    for (int code = 0; code < 256; ++code) {
        EXPECT_EQ(Create(code)->IsBinaryDataType(), code == 4 || code == 104) << code;
    }
}

TEST(ConverterFactory, ChassisCodesDifferInWidthAndSign) {
    // Bits of the walk, each as the raw bit that it comes from: 0 -> bit 7, 8 -> bit 15, 9 -> 14, 11 -> 12, 15 -> bit 8.
    struct Case {
        int code;
        double first, bit7, bit8, bit9, bit11, bit15;  // bit7: raw bit 0, and so on
    };
    const std::array<Case, 5> cases = {{
        {7, 1, 128, 256, -1, 1, 1},           // 10 bits, the last (9) is a sign
        {8, 1, 128, 256, 512, -1, 1},         // 12 bits, the last (11) is a sign
        {9, 1, 128, 256, 512, 1, 1},          // 10 bits
        {10, 1, -1, 1, 1, 1, 1},              // 8 bits, the last (7) is a sign
        {11, 1, 128, 256, 512, 2048, 32768},  // 16 bits
    }};
    // Beside the bit in question bit 0 of the walk is set, which is worth 1: a sign gives -1, a bit beyond the width 1.
    const auto with = [](int code, krm_ulong bit) { return ValueBy(code, 0x80U | bit); };
    for (const Case& it : cases) {
        const auto expected = [](double worth) { return worth == 1 || worth == -1 ? worth : worth + 1; };
        EXPECT_EQ(ValueBy(it.code, 0x80), it.first) << it.code;
        EXPECT_EQ(with(it.code, 0x01), expected(it.bit7)) << it.code;
        EXPECT_EQ(with(it.code, 0x8000), expected(it.bit8)) << it.code;
        EXPECT_EQ(with(it.code, 0x4000), expected(it.bit9)) << it.code;
        EXPECT_EQ(with(it.code, 0x1000), expected(it.bit11)) << it.code;
        EXPECT_EQ(with(it.code, 0x0100), expected(it.bit15)) << it.code;
        EXPECT_EQ(with(it.code, 0xFFFF0000U), 1) << it.code;
    }
}

template <class Class>
concept ShowsValueConversion = requires(Class& it, double* result) {
    it.ValueConversion(result, 0U, 0, 0, 0, 0, 0, 0);
};
template <class Class>
concept ShowsStringConversion = requires(Class& it, CKRMString* text) {
    it.StringConversion(text, nullptr, 0.0, 0U, 0, 0, 0, 0U, 0U, nullptr, nullptr, 0U);
};
template <class Class>
concept ShowsASingleStep = requires(Class& it, CKRMString* text) {
    it.DecStringConversion(text, 0.0, 0);
}
|| requires(Class& it, CKRMString* text) {
    it.HexStringConversion(text, 0.0, 0);
}
|| requires(Class& it, CKRMString* text) {
    it.HexStringConversion2(text, 0.0, 0);
}
|| requires(Class& it, krm_int64* result) {
    it.SignedConversion(result, 0U, 0, 0);
}
|| requires(Class& it, double* result) {
    it.PhysicalConversion(result, 0U, 0, 0, 0, 0, 0, 0);
};

static_assert(sizeof(Base) == sizeof(void*), "the base holds nothing but its table of operations");
static_assert(std::is_polymorphic_v<Base> && std::has_virtual_destructor_v<Base>);
static_assert(ShowsValueConversion<Base> && ShowsStringConversion<Base>);
static_assert(!ShowsASingleStep<Base> && ShowsASingleStep<Exposed<Base>>);
static_assert(!ShowsValueConversion<CKRMCCommandConvSignalDataDiagCode>);
static_assert(!ShowsStringConversion<CKRMCCommandConvSignalDataDiagCode>);
static_assert(!ShowsValueConversion<CKRMCCommandConvSignalDataChassis>);
static_assert(!ShowsStringConversion<CKRMCCommandConvSignalDataStringPattern>);
static_assert(std::is_constructible_v<CKRMCCommandConvSignalDataChassis, krm_ulong, bool>);

TEST(ConverterClasses, AreOneLevelBelowTheBaseAndCanBeMadeCopiedAndAssigned) {
    int classes = 0;
    ForEachClass([&]<class Class>(const char* name, Class*) {
        static_assert(std::is_convertible_v<Class*, Base*>);
        static_assert(std::has_virtual_destructor_v<Class>);
        static_assert(std::is_default_constructible_v<Class> && std::is_copy_constructible_v<Class> &&
                      std::is_copy_assignable_v<Class>);
        Class original;
        Class copy(original);
        Class other;
        other = copy;
        EXPECT_EQ(KindOf(&original), name);
        EXPECT_EQ(KindOf(&copy), name);
        EXPECT_EQ(KindOf(&other), name);
        EXPECT_EQ(other.IsBinaryDataType(), original.IsBinaryDataType());
        ++classes;
    });
    EXPECT_EQ(classes, 27);
}

TEST(ConverterClasses, CopiesOfChassisKeepWidthAndSign) {
    const auto value = [](CKRMCCommandConvSignalDataChassis& chassis) {
        double result = 0;
        EXPECT_EQ(Arguments({}).Value(chassis, &result, 0x4080), 0U);
        return result;
    };
    CKRMCCommandConvSignalDataChassis original(10, true);
    CKRMCCommandConvSignalDataChassis copy(original);
    CKRMCCommandConvSignalDataChassis other(16, false);
    EXPECT_EQ(value(other), 513);
    other = original;
    EXPECT_EQ(value(original), -1);
    EXPECT_EQ(value(copy), -1);
    EXPECT_EQ(value(other), -1);
}

}  // namespace
}  // namespace krm::test

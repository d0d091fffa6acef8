// Differences of two values, as texts: what is found, where, and what options let pass.
#include "krm/exchange/compare.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <initializer_list>
#include <limits>
#include <memory>
#include <new>
#include <ostream>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "krm/core/list.h"
#include "krm/core/list_tools.h"
#include "krm/fields/all_fields.h"
#include "krm/fields/message_descriptions.h"
#include "krm/framework/dump.h"
#include "krm/messages/all_messages.h"
#include "krm/platform/platform.h"
#include "tests/support/all_classes.h"
#include "tests/support/failing_allocation.h"
#include "tests/support/fields.h"
#include "tests/support/not_under.h"

// A program's own classes, with every kind of value.

struct ComparedWheel {
    unsigned char m_uchPosition = 0;
    CKRMString m_strName;
    double m_dPressure = 0;
    CKRMList<unsigned char> m_uchBytes;
};
template <>
struct krm::Fields<ComparedWheel> : krm::FieldList<&ComparedWheel::m_uchPosition, &ComparedWheel::m_strName,
                                                   &ComparedWheel::m_dPressure, &ComparedWheel::m_uchBytes> {};

struct ComparedCar {
    bool m_bRuns = false;
    signed char m_chGear = 0;
    krm_long m_lOffset = 0;
    krm_ulong m_ulMileage = 0;
    krm_int64 m_llTime = 0;
    double m_dSpeed = 0;
    CKRMString m_strName;
    ComparedWheel m_cSpare;
    CKRMList<ComparedWheel> m_cWheels;
    CKRMList<CKRMString> m_cNames;
    CKRMList<double> m_dSpeeds;
    CKRMList<CKRMList<signed char>> m_cTones;
    unsigned short m_ushStamp[3] = {};
    CKRMMap<CKRMString, CKRMString> m_cTexts;
};
template <>
struct krm::Fields<ComparedCar>
    : krm::FieldList<&ComparedCar::m_bRuns, &ComparedCar::m_chGear, &ComparedCar::m_lOffset, &ComparedCar::m_ulMileage,
                     &ComparedCar::m_llTime, &ComparedCar::m_dSpeed, &ComparedCar::m_strName, &ComparedCar::m_cSpare,
                     &ComparedCar::m_cWheels, &ComparedCar::m_cNames, &ComparedCar::m_dSpeeds, &ComparedCar::m_cTones,
                     &ComparedCar::m_ushStamp, &ComparedCar::m_cTexts> {};

class ComparedAnswer
    : public krm::MessageOf<ComparedAnswer, CKRMCBaseCmdAdaptDataRcv, krm::CommandName("ReadCar", 901)> {
public:
    void Dump(const krm::MessageLines&) {}

    ComparedCar m_cCar;
};
template <>
struct krm::Fields<ComparedAnswer> : krm::FieldList<&ComparedAnswer::m_cCar> {};

namespace {

using krm::Compare;
using krm::CompareOptions;
using krm::Comparison;
using krm::ConstValue;
using krm::Difference;
using krm::Direction;
using krm::ToText;
using krm::Value;
using krm::ValueKind;
using Answer = CKRMCGetDTCCmdAdaptDataRcv;

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

/// The text of what differs; of what is equal "equal".
template <class First, class Second>
std::string Differences(const First& first, const Second& second, const CompareOptions& options = {}) {
    const Comparison comparison = Compare(first, second, options);
    EXPECT_EQ(comparison.Equal(), ToText(comparison).empty());
    return comparison.Equal() ? "equal" : ToText(comparison);
}

template <class T>
ConstValue ValueOf(const T& object) {
    return {krm::kTypeDescription<T>, &object};
}

ComparedWheel Wheel(unsigned char position, const char* name, double pressure = 0) {
    ComparedWheel wheel;
    wheel.m_uchPosition = position;
    wheel.m_strName = name;
    wheel.m_dPressure = pressure;
    return wheel;
}

/// A car with a wheel for each of these names.
ComparedCar CarWith(std::initializer_list<const char*> names) {
    ComparedCar car;
    unsigned char position = 0;
    for (const char* const name : names) {
        car.m_cWheels.AddTail(Wheel(++position, name));
        car.m_cNames.AddTail(name);
    }
    return car;
}

/// The same wheels, each under its own number, so that they are equal wherever they stand.
ComparedCar CarWith(std::initializer_list<ComparedWheel> wheels) {
    ComparedCar car;
    for (const ComparedWheel& wheel : wheels) {
        car.m_cWheels.AddTail(wheel);
    }
    return car;
}

const CompareOptions kWheelsByName{.keys = {{"m_cWheels", {"m_strName"}}}};

// ---- Every kind of value ----

TEST(Compare, FindsNothingInWhatIsEqual) {
    krm::test::Seed seed(16);
    ComparedCar car;
    krm::test::Fill(krm::kTypeDescription<ComparedCar>, &car, seed);
    const ComparedCar copy = car;
    EXPECT_EQ(Differences(car, copy), "equal");
    EXPECT_EQ(Differences(ComparedCar(), ComparedCar()), "equal");
    EXPECT_TRUE(Compare(car, copy).differences.empty());
    EXPECT_EQ(Compare(car, copy).error, "");
    EXPECT_EQ(ToText(Compare(car, copy)), "");
}

TEST(Compare, ShowsNumbersOfEveryKind) {
    ComparedCar before;
    ComparedCar after;
    before.m_chGear = -128;
    before.m_lOffset = -2147483647 - 1;
    before.m_llTime = std::numeric_limits<krm_int64>::min();
    before.m_dSpeed = 0.1;
    after.m_bRuns = true;
    after.m_chGear = 127;
    after.m_lOffset = 2147483647;
    after.m_ulMileage = 4294967295U;
    after.m_llTime = std::numeric_limits<krm_int64>::max();
    after.m_dSpeed = -2.5e300;
    after.m_cSpare.m_uchPosition = 255;
    after.m_ushStamp[1] = 65535;
    EXPECT_EQ(Differences(before, after),
              "changed m_bRuns: false -> true\n"
              "changed m_chGear: -128 -> 127\n"
              "changed m_lOffset: -2147483648 -> 2147483647\n"
              "changed m_ulMileage: 0 -> 4294967295\n"
              "changed m_llTime: -9223372036854775808 -> 9223372036854775807\n"
              "changed m_dSpeed: 0.1 -> -2.5e+300\n"
              "changed m_cSpare.m_uchPosition: 0 -> 255\n"
              "changed m_ushStamp[1]: 0 -> 65535\n");
}

TEST(Compare, ShowsDoublesThatAreNoNumbers) {
    ComparedCar before;
    ComparedCar after;
    before.m_dSpeed = -kInfinity;
    after.m_dSpeed = kInfinity;
    EXPECT_EQ(Differences(before, after), "changed m_dSpeed: -inf -> inf\n");
    after.m_dSpeed = -kNan;
    EXPECT_EQ(Differences(before, after), "changed m_dSpeed: -inf -> nan\n");
}

TEST(Compare, ShowsTextsQuotedAndOnOneLine) {
    const auto shown = [](const char* text) {
        ComparedCar after;
        after.m_strName = text;
        return Compare(ComparedCar(), after).differences.at(0).value2;
    };
    EXPECT_EQ(shown("P0301"), R"("P0301")");
    EXPECT_EQ(shown("a \"b\" \\ c"), R"("a \"b\" \\ c")");
    EXPECT_EQ(shown("\n\r\t"), R"("\n\r\t")");
    EXPECT_EQ(shown("\x01\x1F \x7F"), R"("\x01\x1F \x7F")");
    EXPECT_EQ(shown("\xC3\xA4\xE2\x82\xAC\xF0\x9F\x9A\x97"), "\"\xC3\xA4\xE2\x82\xAC\xF0\x9F\x9A\x97\"");
    // A next line of ISO 6429, a line and a paragraph separator; the no-break space is none of them.
    EXPECT_EQ(shown("\xC2\x85\xE2\x80\xA8\xE2\x80\xA9\xC2\xA0"),
              "\"\\xC2\\x85\\xE2\\x80\\xA8\\xE2\\x80\\xA9\xC2\xA0\"");
    // A Windows code page, an overlong form, a surrogate, above U+10FFFF, and characters that end too early.
    EXPECT_EQ(shown("\xE4"), R"("\xE4")");
    EXPECT_EQ(shown("\xC0\xAF"), R"("\xC0\xAF")");
    EXPECT_EQ(shown("\xED\xA0\x80"), R"("\xED\xA0\x80")");
    EXPECT_EQ(shown("\xF4\x90\x80\x80"), R"("\xF4\x90\x80\x80")");
    EXPECT_EQ(shown("\xE2\x82z"), R"("\xE2\x82z")");
    EXPECT_EQ(shown("\xF0\x9F\x9A"), R"("\xF0\x9F\x9A")");
    EXPECT_EQ(shown("\x80\xFF"), R"("\x80\xFF")");
}

TEST(Compare, ShowsAWholeElement) {
    ComparedCar after;
    ComparedWheel wheel = Wheel(1, "left", 2.5);
    wheel.m_uchBytes = krm::MakeList<unsigned char>({0, 255});
    after.m_cWheels.AddTail(wheel);
    after.m_cTones.AddTail(CKRMList<signed char>());
    EXPECT_EQ(Differences(ComparedCar(), after),
              "added m_cWheels[0]: {m_uchPosition=1, m_strName=\"left\", m_dPressure=2.5, m_uchBytes=[0, 255]}\n"
              "added m_cTones[0]: []\n");
    EXPECT_EQ(Differences(after, ComparedCar()),
              "removed m_cWheels[0]: {m_uchPosition=1, m_strName=\"left\", m_dPressure=2.5, m_uchBytes=[0, 255]}\n"
              "removed m_cTones[0]: []\n");
}

TEST(Compare, ShowsARecordWithEveryKindOfField) {
    CKRMList<ComparedCar> before;
    CKRMList<ComparedCar> after;
    ComparedCar car = CarWith({"left"});
    car.m_dSpeed = kNan;
    car.m_dSpeeds.AddTail(-0.0);
    car.m_cTones.AddTail(CKRMList<signed char>());
    car.m_cTexts.SetAt("b", "");
    car.m_cTexts.SetAt("a", "x\"y");
    after.AddTail(car);
    EXPECT_EQ(Differences(before, after),
              "added [0]: {m_bRuns=false, m_chGear=0, m_lOffset=0, m_ulMileage=0, m_llTime=0, m_dSpeed=nan, "
              "m_strName=\"\", m_cSpare={m_uchPosition=0, m_strName=\"\", m_dPressure=0, m_uchBytes=[]}, "
              "m_cWheels=[{m_uchPosition=1, m_strName=\"left\", m_dPressure=0, m_uchBytes=[]}], m_cNames=[\"left\"], "
              "m_dSpeeds=[-0], m_cTones=[[]], m_ushStamp=[0, 0, 0], m_cTexts={\"a\"=\"x\\\"y\", \"b\"=\"\"}}\n");
}

TEST(Compare, TellsTheEntriesOfAMapByTheirKeys) {
    ComparedCar before;
    ComparedCar after;
    before.m_cTexts.SetAt("a", "1");
    before.m_cTexts.SetAt("b", "2");
    before.m_cTexts.SetAt("d \"x\"", "4");
    after.m_cTexts.SetAt("b", "3");
    after.m_cTexts.SetAt("c", "2");
    after.m_cTexts.SetAt("d \"x\"", "4");
    after.m_cTexts.SetAt("\xFF", "5");
    EXPECT_EQ(Differences(before, after),
              "removed m_cTexts[\"a\"]: \"1\"\n"
              "changed m_cTexts[\"b\"]: \"2\" -> \"3\"\n"
              "added m_cTexts[\"c\"]: \"2\"\n"
              "added m_cTexts[\"\\xFF\"]: \"5\"\n");
    EXPECT_EQ(Differences(before, ComparedCar()),
              "removed m_cTexts[\"a\"]: \"1\"\n"
              "removed m_cTexts[\"b\"]: \"2\"\n"
              "removed m_cTexts[\"d \\\"x\\\"\"]: \"4\"\n");
}

TEST(Compare, TellsElementsByTheirPosition) {
    EXPECT_EQ(Differences(CarWith({"left", "right"}), CarWith({"new", "left", "right"}), {.ignore = {"m_cWheels"}}),
              "changed m_cNames[0]: \"left\" -> \"new\"\n"
              "changed m_cNames[1]: \"right\" -> \"left\"\n"
              "added m_cNames[2]: \"right\"\n");
    EXPECT_EQ(Differences(CarWith({"left", "right", "rear"}), CarWith({"left"}), {.ignore = {"m_cWheels"}}),
              "removed m_cNames[1]: \"right\"\n"
              "removed m_cNames[2]: \"rear\"\n");
}

TEST(Compare, GoesThroughListsOfLists) {
    ComparedCar before;
    ComparedCar after;
    for (ComparedCar* const car : {&before, &after}) {
        car->m_cTones.AddTail(krm::MakeList<signed char>({1, -1}));
        car->m_cTones.AddTail(krm::MakeList<signed char>({2, -1}));
    }
    begin(after.m_cTones)->AddTail(3);
    *begin(*++begin(after.m_cTones)) = -128;
    EXPECT_EQ(Differences(before, after),
              "added m_cTones[0][2]: 3\n"
              "changed m_cTones[1][0]: 2 -> -128\n");
}

TEST(Compare, TakesValuesOfEveryKind) {
    const krm_ulong one = 1;
    const krm_ulong two = 2;
    EXPECT_EQ(Differences(ValueOf(one), ValueOf(two)), "changed: 1 -> 2\n");
    EXPECT_EQ(Differences(ValueOf(one), ValueOf(one)), "equal");
    krm_ulong changeable = 3;
    EXPECT_EQ(Differences(Value(krm::kTypeDescription<krm_ulong>, &changeable), ValueOf(one)), "changed: 3 -> 1\n");
    CKRMList<CKRMString> names;
    names.AddTail("left");
    EXPECT_EQ(Differences(CKRMList<CKRMString>(), names), "added [0]: \"left\"\n");
    const ComparedCar car = CarWith({"left"});
    ComparedCar other = CarWith({"left"});
    begin(other.m_cWheels)->m_strName = "right";
    EXPECT_EQ(Differences(car.m_cWheels, other.m_cWheels), "changed [0].m_strName: \"left\" -> \"right\"\n");
}

// ---- Messages ----

TEST(Compare, TakesMessagesByClassBaseOrDescription) {
    Answer before;
    Answer after;
    before.Data.AddTail(CKRMCCommandDTCData());
    after.Data.AddTail(CKRMCCommandDTCData());
    begin(before.Data)->m_strDTC = "P0301";
    begin(after.Data)->m_strDTC = "P0302";
    after.m_bNotSupport = true;
    const std::string expected =
        "changed m_bNotSupport: false -> true\n"
        "changed Data[0].m_strDTC: \"P0301\" -> \"P0302\"\n";
    EXPECT_EQ(Differences(before, after), expected);
    const CKRMCBaseCmdAdaptDataRcv& baseBefore = before;
    const CKRMCBaseCmdAdaptDataRcv& baseAfter = after;
    EXPECT_EQ(Differences(baseBefore, baseAfter), expected);
    const CKRMBaseAdaptationData& untypedBefore = before;
    const CKRMBaseAdaptationData& untypedAfter = after;
    EXPECT_EQ(ToText(Compare(untypedBefore, untypedAfter, Direction::Receive)), expected);
    EXPECT_EQ(ToText(Compare(untypedBefore, untypedAfter, Direction::Receive, {.ignore = {"Data"}})),
              "changed m_bNotSupport: false -> true\n");
    // The library's description and the program's are of the same class, whether or not they are the same object.
    const krm::MessageDescription& description = *krm::FindMessage(1, 2, Direction::Receive);
    EXPECT_EQ(Differences(*description.ContentOf(untypedBefore), ValueOf(after)), expected);
}

TEST(Compare, TakesAProgramsOwnMessage) {
    ComparedAnswer before;
    ComparedAnswer after;
    after.m_cCar.m_chGear = 2;
    after.m_bNotSupport = true;
    EXPECT_EQ(Differences(before, after),
              "changed m_bNotSupport: false -> true\n"
              "changed m_cCar.m_chGear: 0 -> 2\n");
    const CKRMBaseAdaptationData& untyped = before;
    EXPECT_EQ(ToText(Compare(untyped, after, Direction::Receive)),
              "error: the library has no message of type 1, ID 901\n");
    EXPECT_EQ(ToText(Compare(Answer(), after, Direction::Receive)),
              "error: the library has no message of type 1, ID 901\n");
}

TEST(Compare, SaysWhenTheClassesDiffer) {
    const CKRMCGetDTCCmdAdaptDataSnd request;
    EXPECT_EQ(Differences(request, Answer()),
              "other class: CKRMCGetDTCCmdAdaptDataSnd -> CKRMCGetDTCCmdAdaptDataRcv\n");
    const CKRMCClearDTCCmdAdaptDataRcv other;
    EXPECT_EQ(ToText(Compare(Answer(), other, Direction::Receive)),
              "other class: CKRMCGetDTCCmdAdaptDataRcv -> CKRMCClearDTCCmdAdaptDataRcv\n");
    EXPECT_EQ(Differences(CKRMList<krm_ulong>(), CKRMList<CKRMList<unsigned char>>()),
              "other class: list of unsigned 32-bit integer -> list of list of unsigned 8-bit integer\n");
    EXPECT_EQ(Differences(CKRMList<CKRMString>(), CKRMList<ComparedCar>()),
              "other class: list of text -> list of ComparedCar\n");
    const ComparedCar car;
    EXPECT_EQ(Differences(ValueOf(car.m_dSpeed), ValueOf(car.m_chGear)),
              "other class: double -> signed 8-bit integer\n");
    EXPECT_EQ(Differences(ValueOf(car.m_ushStamp), ValueOf(car.m_cTexts)),
              "other class: array of 3 unsigned 16-bit integer -> map\n");
    EXPECT_EQ(Differences(ValueOf(car.m_bRuns), ValueOf(car.m_strName)), "other class: bool -> text\n");
}

// ---- What is ignored ----

TEST(Ignoring, LeavesOutWhatThePatternsName) {
    ComparedCar before = CarWith({"left", "right"});
    ComparedCar after = CarWith({"Left", "Right"});
    before.m_chGear = 1;
    before.m_ulMileage = 1;
    after.m_cSpare.m_strName = "spare";
    after.m_cTexts.SetAt("a", "1");
    after.m_cTexts.SetAt("b", "2");
    after.m_ushStamp[2] = 1;
    const auto left = [&](std::vector<std::string> patterns) {
        std::string paths;
        for (const Difference& difference : Compare(before, after, {.ignore = std::move(patterns)}).differences) {
            paths += difference.path + '\n';
        }
        return paths;
    };
    EXPECT_EQ(left({}),
              "m_chGear\nm_ulMileage\nm_cSpare.m_strName\nm_cWheels[0].m_strName\nm_cWheels[1].m_strName\n"
              "m_cNames[0]\nm_cNames[1]\nm_ushStamp[2]\nm_cTexts[\"a\"]\nm_cTexts[\"b\"]\n");
    EXPECT_EQ(left({"m_chGear", "m_cSpare", "m_cWheels[*].m_strName", "m_cNames[1]", "m_cTexts[\"a\"]"}),
              "m_ulMileage\nm_cNames[0]\nm_ushStamp[2]\nm_cTexts[\"b\"]\n");
    EXPECT_EQ(left({"m_cWheels[1]", "m_cNames[*]", "m_ushStamp[2]", "m_cTexts[*]"}),
              "m_chGear\nm_ulMileage\nm_cSpare.m_strName\nm_cWheels[0].m_strName\n");
    EXPECT_EQ(left({"m_cNames", "m_cWheels", "m_ushStamp", "m_cTexts"}), "m_chGear\nm_ulMileage\nm_cSpare.m_strName\n");
    EXPECT_EQ(left({"*"}), "");
    EXPECT_EQ(left({"m_c*"}), "m_ulMileage\nm_ushStamp[2]\n");
    EXPECT_EQ(left({"m_c*[*]"}), "m_chGear\nm_ulMileage\nm_cSpare.m_strName\nm_ushStamp[2]\n");
    EXPECT_EQ(left({"m_*l*g*", "*Gear", "*Spare*.*", "m_*s[*]", "m_ush*p"}), "");
    EXPECT_EQ(left({"m_cWheels[0].m_str*", "m_cWheels[*].m_d*", "m_cWheels[1].*", "m_c*s", "m_ushStamp[*]"}),
              "m_chGear\nm_ulMileage\nm_cSpare.m_strName\n");
}

TEST(Ignoring, OfOneElementAddsToThatOfAll) {
    const ComparedCar before = CarWith({Wheel(1, "left", 1), Wheel(1, "left", 1), Wheel(1, "left", 1)});
    const ComparedCar after = CarWith({Wheel(2, "right", 2), Wheel(2, "right", 2), Wheel(2, "right", 2)});
    for (const std::vector<std::string>& patterns :
         {std::vector<std::string>{"m_cWheels[1].m_strName", "m_cWheels[*].m_dPressure", "m_cWheels[0].m_strName"},
          std::vector<std::string>{"m_cWheels[*].m_dPressure", "m_cWheels[0].m_strName", "m_cWheels[1].m_strName"}}) {
        EXPECT_EQ(Differences(before, after, {.ignore = patterns}),
                  "changed m_cWheels[0].m_uchPosition: 1 -> 2\n"
                  "changed m_cWheels[1].m_uchPosition: 1 -> 2\n"
                  "changed m_cWheels[2].m_uchPosition: 1 -> 2\n"
                  "changed m_cWheels[2].m_strName: \"left\" -> \"right\"\n");
    }
}

TEST(Ignoring, LeavesOutElementsThatOneListHas) {
    const ComparedCar few = CarWith({Wheel(1, "left")});
    const ComparedCar more = CarWith({Wheel(1, "left"), Wheel(2, "right"), Wheel(3, "rear")});
    EXPECT_EQ(Differences(few, more, {.ignore = {"m_cWheels[*]"}}), "equal");
    EXPECT_EQ(Differences(more, few, {.ignore = {"m_cWheels[*]"}}), "equal");
    EXPECT_EQ(Differences(few, more, {.ignore = {"m_cWheels[2]", "m_cWheels[*].m_uchBytes", "m_cWheels[1].m_d*"}}),
              "added m_cWheels[1]: {m_uchPosition=2, m_strName=\"right\"}\n");
    EXPECT_EQ(Differences(more, few, {.ignore = {"m_cWheels[1]", "m_cWheels[*].m_*e"}}),
              "removed m_cWheels[2]: {m_uchPosition=3, m_uchBytes=[]}\n");
    // An element is there though nothing in it is compared.
    EXPECT_EQ(Differences(few, more, {.ignore = {"m_cWheels[*].*", "m_cWheels[2]"}}), "added m_cWheels[1]: {}\n");
}

TEST(Ignoring, TakesThePathOfEveryDifference) {
    krm::test::Seed seed(16);
    ComparedCar before;
    krm::test::Fill(krm::kTypeDescription<ComparedCar>, &before, seed);
    ComparedCar after = before;
    krm::test::Change(krm::kTypeDescription<ComparedCar>, &after, seed);
    krm::test::Fill(krm::kTypeDescription<CKRMList<ComparedWheel>>, &after.m_cWheels, seed);
    after.m_cTexts.SetAt("", "");
    after.m_cTexts.SetAt("]\"\\\n\x01\xE4\xC3\xA4.", "1");
    before.m_cNames.AddTail("left");
    CompareOptions options;
    std::vector<Difference> differences = Compare(before, after).differences;
    EXPECT_GE(differences.size(), 30U);
    while (!differences.empty()) {
        options.ignore.push_back(differences.front().path);
        differences.erase(differences.begin());
        const Comparison rest = Compare(before, after, options);
        EXPECT_EQ(rest.error, "");
        EXPECT_EQ(rest.differences, differences);
    }
}

TEST(Ignoring, OfANameIdAlone) {
    Answer before;
    before.Data.AddTail(CKRMCCommandDTCData());
    before.Data.AddTail(CKRMCCommandDTCData());
    Answer after = before;
    CKRMCCommandDTCData& code = *++begin(after.Data);
    code.m_ulDTCNameId = 1;
    code.m_ulDTCDivNameId = 2;
    code.m_ulDTCTypeNameId = 3;
    code.m_ulDTCStatusNameId = 4;
    code.m_ulDTCStatusToolId = 5;
    code.m_cTripTime.m_ulNameId = 6;
    EXPECT_EQ(Differences(before, after, {.ignore = {"Data[*].m_ul*NameId"}}),
              "changed Data[1].m_ulDTCStatusToolId: 0 -> 5\n"
              "changed Data[1].m_cTripTime.m_ulNameId: 0 -> 6\n");
}

// ---- Lists with keys ----

TEST(Keys, ANewCodeIsOneDifference) {
    const auto answer = [](std::initializer_list<const char*> codes) {
        Answer made;
        for (const char* const text : codes) {
            CKRMCCommandDTCData code;
            code.m_strDTC = text;
            made.Data.AddTail(code);
        }
        return made;
    };
    const Answer before = answer({"P0171", "C1201"});
    const Answer after = answer({"P0301", "P0171", "C1201"});
    const CompareOptions byCode{
        .ignore = {"Data[*].m_u*", "Data[*].m_c*", "Data[*].m_b*", "Data[*].m_str*Name", "Data[*].m_str*Tool"},
        .keys = {{"Data", {"m_strDTC"}}}};
    EXPECT_EQ(Differences(before, after, byCode), "added Data[0]: {m_strDTC=\"P0301\", m_strComment=\"\"}\n");
    EXPECT_EQ(Differences(after, before, byCode), "removed Data[0]: {m_strDTC=\"P0301\", m_strComment=\"\"}\n");
    EXPECT_EQ(Compare(before, after).differences.size(), 3U);
}

TEST(Keys, MatchedElementsAreComparedWhereverTheyStand) {
    const ComparedCar before = CarWith({Wheel(1, "left"), Wheel(2, "right"), Wheel(3, "rear"), Wheel(4, "spare")});
    const ComparedCar after =
        CarWith({Wheel(3, "rear"), Wheel(5, "trailer"), Wheel(1, "left", 2.5), Wheel(4, "spare")});
    EXPECT_EQ(Differences(before, after, kWheelsByName),
              "changed m_cWheels[0].m_dPressure (now m_cWheels[2].m_dPressure): 0 -> 2.5\n"
              "removed m_cWheels[1]: {m_uchPosition=2, m_strName=\"right\", m_dPressure=0, m_uchBytes=[]}\n"
              "added m_cWheels[1]: {m_uchPosition=5, m_strName=\"trailer\", m_dPressure=0, m_uchBytes=[]}\n");
    const Difference moved = Compare(before, after, kWheelsByName).differences.at(0);
    EXPECT_EQ(moved, (Difference{Difference::Kind::Changed, "m_cWheels[0].m_dPressure", "m_cWheels[2].m_dPressure", "0",
                                 "2.5"}));
}

TEST(Keys, IndicesOfPatternsCountInTheFirst) {
    const ComparedCar before = CarWith({Wheel(1, "left"), Wheel(2, "right")});
    const ComparedCar after = CarWith({Wheel(3, "rear"), Wheel(4, "right"), Wheel(5, "left")});
    CompareOptions options = kWheelsByName;
    options.ignore = {"m_cWheels[0].m_uchPosition"};
    EXPECT_EQ(Differences(before, after, options),
              "changed m_cWheels[1].m_uchPosition: 2 -> 4\n"
              "added m_cWheels[0]: {m_strName=\"rear\", m_dPressure=0, m_uchBytes=[]}\n");
    options.ignore = {"m_cWheels[0]"};
    EXPECT_EQ(Differences(before, after, options), "changed m_cWheels[1].m_uchPosition: 2 -> 4\n");
}

TEST(Keys, AnotherOrderIsADifferenceIfItCounts) {
    const ComparedCar before = CarWith({Wheel(1, "left"), Wheel(2, "right"), Wheel(3, "rear")});
    const ComparedCar after = CarWith({Wheel(3, "rear"), Wheel(1, "left"), Wheel(4, "spare"), Wheel(2, "right")});
    const ComparedCar same = CarWith({Wheel(4, "spare"), Wheel(1, "left"), Wheel(3, "rear")});
    const std::string added =
        "added m_cWheels[2]: {m_uchPosition=4, m_strName=\"spare\", m_dPressure=0, m_uchBytes=[]}\n";
    EXPECT_EQ(Differences(before, after, kWheelsByName), added);
    EXPECT_EQ(Differences(before, after, {.keys = {{"m_cWheels", {"m_strName"}, true}}}),
              added + "reordered m_cWheels: [\"left\", \"right\", \"rear\"] -> [\"rear\", \"left\", \"right\"]\n");
    EXPECT_EQ(Differences(before, after, {.keys = {{"m_cWheels", {"m_uchPosition", "m_strName"}, true}}}),
              added +
                  "reordered m_cWheels: [(1, \"left\"), (2, \"right\"), (3, \"rear\")] -> "
                  "[(3, \"rear\"), (1, \"left\"), (2, \"right\")]\n");
    EXPECT_EQ(Differences(before, same, {.ignore = {"m_cWheels[*]"}, .keys = {{"m_cWheels", {"m_strName"}, true}}}),
              "equal");
}

TEST(Keys, EqualOnesAreTakenInTheirOrder) {
    const ComparedCar before = CarWith({Wheel(1, "a"), Wheel(2, "b"), Wheel(3, "b"), Wheel(4, "b"), Wheel(5, "c")});
    const ComparedCar after = CarWith({Wheel(5, "c"), Wheel(6, "b"), Wheel(7, "b"), Wheel(1, "a"), Wheel(8, "a")});
    CompareOptions options = kWheelsByName;
    options.ignore = {"m_cWheels[*].m_d*", "m_cWheels[*].m_uchBytes"};
    EXPECT_EQ(Differences(before, after, options),
              "changed m_cWheels[1].m_uchPosition: 2 -> 6\n"
              "changed m_cWheels[2].m_uchPosition: 3 -> 7\n"
              "removed m_cWheels[3]: {m_uchPosition=4, m_strName=\"b\"}\n"
              "added m_cWheels[4]: {m_uchPosition=8, m_strName=\"a\"}\n");
}

TEST(Keys, MayBeSeveralFieldsOfAnyKind) {
    const ComparedCar before = CarWith({Wheel(1, "a", 1), Wheel(2, "a", 1), Wheel(1, "b", 1)});
    const ComparedCar after = CarWith({Wheel(1, "b", 2), Wheel(2, "a", 3), Wheel(1, "a", 4)});
    EXPECT_EQ(Differences(before, after, {.keys = {{"m_cWheels", {"m_strName", "m_uchPosition"}}}}),
              "changed m_cWheels[0].m_dPressure (now m_cWheels[2].m_dPressure): 1 -> 4\n"
              "changed m_cWheels[1].m_dPressure: 1 -> 3\n"
              "changed m_cWheels[2].m_dPressure (now m_cWheels[0].m_dPressure): 1 -> 2\n");
    const ComparedCar pressures = CarWith({Wheel(1, "", kNan), Wheel(2, "", 0.0), Wheel(3, "", -1), Wheel(4, "", 1)});
    const ComparedCar reversed = CarWith({Wheel(4, "", 1), Wheel(3, "", -1), Wheel(2, "", -0.0), Wheel(1, "", -kNan)});
    EXPECT_EQ(Differences(pressures, reversed, {.keys = {{"m_cWheels", {"m_dPressure"}}}}), "equal");
}

TEST(Keys, MayLieInARecordOfTheElement) {
    CKRMList<ComparedCar> before;
    CKRMList<ComparedCar> after;
    ComparedCar car;
    car.m_cSpare.m_strName = "a";
    before.AddTail(car);
    car.m_cSpare.m_strName = "b";
    before.AddTail(car);
    after.AddTail(car);
    after.AddTail(*begin(before));
    EXPECT_EQ(Differences(before, after),
              "changed [0].m_cSpare.m_strName: \"a\" -> \"b\"\n"
              "changed [1].m_cSpare.m_strName: \"b\" -> \"a\"\n");
    begin(after)->m_chGear = 1;
    EXPECT_EQ(Differences(before, after, {.keys = {{"", {"m_cSpare.m_strName"}}}}),
              "changed [1].m_chGear (now [0].m_chGear): 0 -> 1\n");
}

TEST(Keys, AreTheElementsWhereNoFieldIsNamed) {
    EXPECT_EQ(Differences(CarWith({"left", "right", "left"}), CarWith({"new", "right", "left"}),
                          {.ignore = {"m_cWheels"}, .keys = {{"m_cNames"}}}),
              "removed m_cNames[2]: \"left\"\n"
              "added m_cNames[0]: \"new\"\n");
    ComparedCar before;
    ComparedCar after;
    before.m_dSpeeds = krm::MakeList<double>({1, 2, kNan});
    after.m_dSpeeds = krm::MakeList<double>({kNan, 2, 1, 1.0000001});
    EXPECT_EQ(Differences(before, after, {.keys = {{"m_dSpeeds"}}, .tolerance = {.absolute = 1}}),
              "added m_dSpeeds[3]: 1.0000001\n");
}

TEST(Keys, WorkInListsWithinLists) {
    const auto group = [](krm_ulong first, krm_ulong second, const char* name) {
        CKRMCCommandEcuGroupData made;
        CKRMCCommandEcuData ecu;
        ecu.m_ulEcuId = first;
        made.m_cEcuList.AddTail(ecu);
        ecu.m_ulEcuId = second;
        ecu.m_strEcuName = name;
        made.m_cEcuList.AddTail(ecu);
        return made;
    };
    CKRMCGetGroupEcuListCmdAdaptDataRcv before;
    CKRMCGetGroupEcuListCmdAdaptDataRcv after;
    before.Data.AddTail(group(1, 2, "brakes"));
    before.Data.AddTail(group(3, 4, "doors"));
    after.Data.AddTail(group(1, 2, "Brakes"));
    after.Data.AddTail(group(4, 3, "doors"));
    EXPECT_EQ(
        Differences(before, after, {.keys = {{"Data[*].m_cEcuList", {"m_ulEcuId"}}}}),
        "changed Data[0].m_cEcuList[1].m_strEcuName: \"brakes\" -> \"Brakes\"\n"
        "changed Data[1].m_cEcuList[0].m_strEcuName (now Data[1].m_cEcuList[1].m_strEcuName): \"\" -> \"doors\"\n"
        "changed Data[1].m_cEcuList[1].m_strEcuName (now Data[1].m_cEcuList[0].m_strEcuName): \"doors\" -> \"\"\n");
    // The first that names a list gives its key.
    EXPECT_EQ(Differences(before, after,
                          {.keys = {{"Data[1].m_cEcuList", {"m_strEcuName"}}, {"Data[*].m_cEcuList", {"m_ulEcuId"}}}}),
              "changed Data[0].m_cEcuList[1].m_strEcuName: \"brakes\" -> \"Brakes\"\n"
              "changed Data[1].m_cEcuList[0].m_ulEcuId: 3 -> 4\n"
              "changed Data[1].m_cEcuList[1].m_ulEcuId: 4 -> 3\n");
    EXPECT_EQ(Differences(before, after,
                          {.keys = {{"Data[*].m_cEcuList", {"m_ulEcuId"}}, {"Data[1].m_cEcuList", {"m_strEcuName"}}}}),
              Differences(before, after, {.keys = {{"Data[*].m_cEcuList", {"m_ulEcuId"}}}}));
}

TEST(Keys, AddedElementsLieInListsThatMoved) {
    const auto group = [](unsigned short id, std::initializer_list<unsigned short> buses) {
        CKRMCCommandEcuGroupData made;
        made.m_ushGroupId = id;
        for (const unsigned short bus : buses) {
            CKRMCCommandEcuData ecu;
            ecu.m_ushBusId = bus;
            made.m_cEcuList.AddTail(ecu);
        }
        return made;
    };
    CKRMCGetGroupEcuListCmdAdaptDataRcv before;
    CKRMCGetGroupEcuListCmdAdaptDataRcv after;
    before.Data.AddTail(group(1, {7}));
    before.Data.AddTail(group(2, {7, 8, 9}));
    after.Data.AddTail(group(2, {7}));
    after.Data.AddTail(group(1, {7, 8}));
    CompareOptions options{.ignore = {"Data[*].m_cEcuList[*].m_ul*", "Data[*].m_cEcuList[*].m_*S*",
                                      "Data[*].m_cEcuList[*].m_*Name", "Data[*].m_cEcuList[*].m_*Type"},
                           .keys = {{"Data", {"m_ushGroupId"}}}};
    EXPECT_EQ(Differences(before, after, options),
              "added Data[0].m_cEcuList[1] (now Data[1].m_cEcuList[1]): {m_ushBusId=8}\n"
              "removed Data[1].m_cEcuList[1] (now Data[0].m_cEcuList[1]): {m_ushBusId=8}\n"
              "removed Data[1].m_cEcuList[2] (now Data[0].m_cEcuList[2]): {m_ushBusId=9}\n");
    options.ignore.insert(options.ignore.end(), {"Data[0].m_cEcuList[1]", "Data[1].m_cEcuList[2]"});
    EXPECT_EQ(Differences(before, after, options),
              "removed Data[1].m_cEcuList[1] (now Data[0].m_cEcuList[1]): {m_ushBusId=8}\n");
}

TEST(Keys, MatchAsManyElementsAsThereAre) {
    constexpr int kCount = 20000;  // that a search of each in all would make wait for
    ComparedCar before;
    ComparedCar after;
    for (int i = 0; i < kCount; ++i) {
        before.m_cNames.AddTail(std::to_string(i).c_str());
        after.m_cNames.AddTail(std::to_string(kCount - 1 - i).c_str());
        before.m_dSpeeds.AddTail(i % 2);
        after.m_dSpeeds.AddTail((i + 1) % 2);
    }
    after.m_cNames.AddTail("new");
    EXPECT_EQ(Differences(before, after, {.keys = {{"m_cNames"}, {"m_dSpeeds"}}}), "added m_cNames[20000]: \"new\"\n");
}

// ---- Tolerance ----

TEST(ToleranceOfDoubles, LetsThemDiffer) {
    const auto equal = [](double left, double right, krm::Tolerance tolerance) {
        return Compare(ValueOf(left), ValueOf(right), {.tolerance = tolerance}).Equal() &&
               Compare(ValueOf(right), ValueOf(left), {.tolerance = tolerance}).Equal();
    };
    EXPECT_TRUE(equal(1, 1, {}));
    EXPECT_FALSE(equal(1, std::nextafter(1.0, 2.0), {}));
    EXPECT_TRUE(equal(1, 1.5, {.absolute = 0.5}));
    EXPECT_FALSE(equal(1, 1.75, {.absolute = 0.5}));
    EXPECT_TRUE(equal(-0.25, 0.25, {.absolute = 0.5}));
    EXPECT_TRUE(equal(75, 100, {.relative = 0.25}));
    EXPECT_FALSE(equal(74, 100, {.relative = 0.25}));
    EXPECT_TRUE(equal(-75, -100, {.relative = 0.25}));
    EXPECT_FALSE(equal(0, 1e-300, {.relative = 0.5}));
    EXPECT_TRUE(equal(0, 1e-300, {.absolute = 1e-9, .relative = 0.5}));
    EXPECT_TRUE(equal(75, 100, {.absolute = 1e-9, .relative = 0.25}));
}

TEST(ToleranceOfDoubles, OfWhatIsNoNumber) {
    const auto equal = [](double left, double right, double relative = 0) {
        const CompareOptions options{
            .tolerance = {.absolute = std::numeric_limits<double>::max(), .relative = relative}};
        const bool withTolerance = Compare(ValueOf(left), ValueOf(right), options).Equal();
        EXPECT_EQ(Compare(ValueOf(right), ValueOf(left), options).Equal(), withTolerance);
        return withTolerance;
    };
    EXPECT_TRUE(equal(kNan, kNan) && equal(kNan, -kNan));
    EXPECT_TRUE(equal(0.0, -0.0) && Compare(ValueOf(0.0), ValueOf(-0.0)).Equal());
    EXPECT_TRUE(equal(kInfinity, kInfinity) && equal(-kInfinity, -kInfinity));
    EXPECT_FALSE(equal(kInfinity, -kInfinity, 10) || equal(kInfinity, 1e308, 10) || equal(kNan, 0, 10));
    EXPECT_FALSE(equal(kNan, kInfinity, 10));
    EXPECT_TRUE(Compare(ValueOf(kNan), ValueOf(kNan)).Equal());
}

TEST(ToleranceOfDoubles, HoldsForAllDoublesAndNothingElse) {
    ComparedCar before = CarWith({"left"});
    ComparedCar after = CarWith({"left"});
    before.m_dSpeed = 100;
    after.m_dSpeed = 100.5;
    after.m_ulMileage = 1;
    begin(after.m_cWheels)->m_dPressure = 0.75;
    EXPECT_EQ(Differences(before, after, {.tolerance = {.absolute = 0.5}}),
              "changed m_ulMileage: 0 -> 1\n"
              "changed m_cWheels[0].m_dPressure: 0 -> 0.75\n");
}

// ---- Options that can't be used ----

/// What is wrong with a pattern.
std::string Wrong(const std::string& pattern) {
    const Comparison comparison = Compare(ComparedCar(), CarWith({"left"}), {.ignore = {"m_cWheels", pattern}});
    EXPECT_EQ(comparison.differences, std::vector<Difference>());
    EXPECT_FALSE(comparison.Equal());
    EXPECT_EQ(ToText(comparison), "error: " + comparison.error + "\n");
    return comparison.error;
}

TEST(Patterns, ThatAreNoneAreErrors) {
    EXPECT_EQ(Wrong(""), R"(ignored path "": is empty)");
    EXPECT_EQ(Wrong("."), R"(ignored path ".": at character 1, expected a field's name)");
    EXPECT_EQ(Wrong("m_cSpare."), R"(ignored path "m_cSpare.": at character 10, expected a field's name)");
    EXPECT_EQ(Wrong("m_cSpare..m_strName"),
              R"(ignored path "m_cSpare..m_strName": at character 10, expected a field's name)");
    EXPECT_EQ(Wrong("m_cSpare m_strName"), R"(ignored path "m_cSpare m_strName": at character 9, expected a dot or [)");
    EXPECT_EQ(Wrong("m_cNames[0]x"), R"(ignored path "m_cNames[0]x": at character 12, expected a dot or [)");
    const std::string index = ", expected a number, * or a key in quotes, and ]";
    EXPECT_EQ(Wrong("m_cNames["), R"(ignored path "m_cNames[": at character 10)" + index);
    EXPECT_EQ(Wrong("m_cNames[]"), R"(ignored path "m_cNames[]": at character 10)" + index);
    EXPECT_EQ(Wrong("m_cNames[-1]"), R"(ignored path "m_cNames[-1]": at character 10)" + index);
    EXPECT_EQ(Wrong("m_cNames[1"), R"(ignored path "m_cNames[1": at character 11)" + index);
    EXPECT_EQ(Wrong("m_cNames[1*]"), R"(ignored path "m_cNames[1*]": at character 11)" + index);
    EXPECT_EQ(Wrong("m_cNames[4294967296]"), R"(ignored path "m_cNames[4294967296]": at character 10)" + index);
    EXPECT_EQ(Wrong("m_cTexts[\"a]"), R"(ignored path "m_cTexts[\"a]": at character 10)" + index);
    EXPECT_EQ(Wrong("m_cTexts[\"\\y\"]"), R"(ignored path "m_cTexts[\"\\y\"]": at character 10)" + index);
    EXPECT_EQ(Wrong("m_cTexts[\"\\x0\"]"), R"(ignored path "m_cTexts[\"\\x0\"]": at character 10)" + index);
    EXPECT_EQ(Wrong("m_cTexts[\"\\x0G\"]"), R"(ignored path "m_cTexts[\"\\x0G\"]": at character 10)" + index);
    EXPECT_EQ(Wrong("m_cTexts[\"\\xG0\"]"), R"(ignored path "m_cTexts[\"\\xG0\"]": at character 10)" + index);
    EXPECT_EQ(Wrong("m_cTexts[\"\\x"), R"(ignored path "m_cTexts[\"\\x": at character 10)" + index);
    EXPECT_EQ(Wrong("m_cTexts[\"\\"), R"(ignored path "m_cTexts[\"\\": at character 10)" + index);
}

TEST(Patterns, ThatTheClassDoesntHaveAreErrors) {
    EXPECT_EQ(Wrong("m_strNme"), R"(ignored path "m_strNme": ComparedCar has no field "m_strNme")");
    EXPECT_EQ(Wrong("m_x*"), R"(ignored path "m_x*": ComparedCar has no field "m_x*")");
    EXPECT_EQ(Wrong("m_cWheels[*].m_ulId"),
              R"(ignored path "m_cWheels[*].m_ulId": ComparedWheel has no field "m_ulId")");
    EXPECT_EQ(
        Wrong("m_cWheels.m_strName"),
        R"(ignored path "m_cWheels.m_strName": "m_cWheels" is no record but a list; its elements are behind [*])");
    EXPECT_EQ(Wrong("m_cNames.m_strName"), R"(ignored path "m_cNames.m_strName": "m_cNames" is no record)");
    EXPECT_EQ(Wrong("m_chGear.m_strName"), R"(ignored path "m_chGear.m_strName": "m_chGear" is no record)");
    EXPECT_EQ(Wrong("m_cSpare[0]"), R"(ignored path "m_cSpare[0]": "m_cSpare" is no list)");
    EXPECT_EQ(Wrong("m_strName[*]"), R"(ignored path "m_strName[*]": "m_strName" is no list)");
    EXPECT_EQ(Wrong("m_cTones[0][*][0]"), R"(ignored path "m_cTones[0][*][0]": "m_cTones[0][*]" is no list)");
    EXPECT_EQ(Wrong("[0]"), R"(ignored path "[0]": what is compared is no list)");
    EXPECT_EQ(Wrong("m_cNames[\"a\"]"), R"(ignored path "m_cNames[\"a\"]": "m_cNames" is no map)");
    EXPECT_EQ(Wrong("m_cTexts[0]"),
              R"(ignored path "m_cTexts[0]": "m_cTexts" is a map; its entries have keys in quotes)");
    EXPECT_EQ(Wrong("m_cTexts[*].x"),
              R"(ignored path "m_cTexts[*].x": a map's entries are texts, with nothing beneath)");
    EXPECT_EQ(Wrong("m_ushStamp[3]"), R"(ignored path "m_ushStamp[3]": "m_ushStamp" has only 3 elements)");
    // One of those that the name fits is enough.
    EXPECT_EQ(Differences(ComparedCar(), ComparedCar(), {.ignore = {"m_c*.m_strName"}}), "equal");
    EXPECT_EQ(Wrong("m_*h*.m_strName"), R"(ignored path "m_*h*.m_strName": "m_*h*" is no record)");
}

TEST(Keys, ThatCantBeUsedAreErrors) {
    const auto wrong = [](const krm::ListKey& key) {
        const Comparison comparison = Compare(ComparedCar(), CarWith({"left"}), {.keys = {key}});
        EXPECT_EQ(comparison.differences, std::vector<Difference>());
        return comparison.error;
    };
    EXPECT_EQ(wrong({"m_cWeels", {"m_strName"}}), R"(key of "m_cWeels": ComparedCar has no field "m_cWeels")");
    EXPECT_EQ(wrong({"m_cWheels[", {"m_strName"}}),
              R"(key of "m_cWheels[": at character 11, expected a number, * or a key in quotes, and ])");
    EXPECT_EQ(wrong({"m_cSpare", {"m_strName"}}), R"(key of "m_cSpare": a ComparedWheel is no list)");
    EXPECT_EQ(wrong({"", {"m_strName"}}), R"(key of "": a ComparedCar is no list)");
    EXPECT_EQ(wrong({"m_cTexts", {}}), R"(key of "m_cTexts": a map is no list)");
    EXPECT_EQ(wrong({"m_cTexts[*]", {}}), R"(key of "m_cTexts[*]": a text is no list)");
    EXPECT_EQ(wrong({"m_cWheels", {"m_strNme"}}), R"(key of "m_cWheels": ComparedWheel has no field "m_strNme")");
    EXPECT_EQ(wrong({"m_cWheels", {"m_strName", "m_uchPos"}}),
              R"(key of "m_cWheels": ComparedWheel has no field "m_uchPos")");
    EXPECT_EQ(wrong({"m_cWheels", {"m_strName.m_ulId"}}), R"(key of "m_cWheels": text has no field "m_ulId")");
    EXPECT_EQ(wrong({"m_cWheels", {"m_uchBytes"}}),
              R"(key of "m_cWheels": a list of unsigned 8-bit integer can't be a key)");
    EXPECT_EQ(wrong({"m_cWheels", {}}), R"(key of "m_cWheels": a ComparedWheel can't be a key)");
    EXPECT_EQ(wrong({"m_cTones", {}}), R"(key of "m_cTones": a list of signed 8-bit integer can't be a key)");
    EXPECT_EQ(wrong({"m_cWheels", {"m_str*"}}), R"(key's field "m_str*": a key's field is written without * and [)");
    EXPECT_EQ(wrong({"m_cWheels", {"m_strName", "m_str*"}}),
              R"(key's field "m_str*": a key's field is written without * and [)");
    EXPECT_EQ(wrong({"m_cWheels", {"m_uchBytes[0]"}}),
              R"(key's field "m_uchBytes[0]": a key's field is written without * and [)");
    EXPECT_EQ(wrong({"m_cWheels", {"m_strName."}}),
              R"(key's field "m_strName.": at character 11, expected a field's name)");
    EXPECT_EQ(Differences(ComparedCar(), ComparedCar(), {.keys = {{"m_ushStamp"}}}), "equal");
}

TEST(ToleranceOfDoubles, ThatIsNoneIsAnError) {
    for (const double bad : {-1.0, -0.001, kNan, kInfinity}) {
        const std::string expected = "a tolerance must be a finite number, 0 or more";
        EXPECT_EQ(Compare(ComparedCar(), ComparedCar(), {.tolerance = {.absolute = bad}}).error, expected);
        EXPECT_EQ(Compare(ComparedCar(), ComparedCar(), {.tolerance = {.relative = bad}}).error, expected);
    }
    EXPECT_TRUE(Compare(ComparedCar(), ComparedCar(), {.tolerance = {.absolute = -0.0}}).Equal());
}

TEST(CompareOptions, MayServeMessagesOfSeveralClasses) {
    const CompareOptions options{.ignore = {"Data[*].m_ul*NameId", "m_ulEcuId", "m_cWheels[*].m_strNme", "m_chGear[0]"},
                                 .keys = {{"Data", {"m_strDTC"}}, {"m_cWheels", {"m_strName"}}, {"m_chGear"}},
                                 .forOtherClassesToo = true};
    EXPECT_EQ(Differences(CarWith({Wheel(1, "left")}), CarWith({Wheel(2, "left")}), options),
              "changed m_cWheels[0].m_uchPosition: 1 -> 2\n");
    Answer before;
    CKRMCCommandDTCData code;
    code.m_strDTC = "P0301";
    before.Data.AddTail(code);
    before.Data.AddTail(CKRMCCommandDTCData());
    Answer after;
    code.m_ulDTCNameId = 1;
    after.Data.AddTail(CKRMCCommandDTCData());
    after.Data.AddTail(code);
    EXPECT_EQ(Differences(before, after, options), "equal");
    CompareOptions bad = options;
    bad.ignore.emplace_back("Data[");
    EXPECT_EQ(Compare(before, after, bad).error,
              R"(ignored path "Data[": at character 6, expected a number, * or a key in quotes, and ])");
    bad = options;
    bad.keys[1].fields = {"*"};
    EXPECT_EQ(Compare(before, after, bad).error, R"(key's field "*": a key's field is written without * and [)");
}

// ---- Memory ----

Answer AnswerWithCodes(int count) {
    krm::test::Seed seed(16);
    Answer answer;
    for (int i = 0; i < count; ++i) {
        CKRMCCommandDTCData code;
        krm::test::Fill(code, seed);
        answer.Data.AddTail(code);
    }
    return answer;
}

TEST(Compare, TakesAFewBlocksForWhatIsEqual) {
    KRM_SKIP_WITHOUT_FAILING_ALLOCATIONS();
    const Answer before = AnswerWithCodes(20);  // with thousands of fields
    const Answer after = before;
    const CompareOptions none;
    const krm::test::FailAllocations failing(2);
    EXPECT_TRUE(Compare(before, after, none).Equal());
}

TEST(Compare, LetsBadAllocPassAndLeaksNothing) {
    KRM_SKIP_WITHOUT_FAILING_ALLOCATIONS();
    const Answer before = AnswerWithCodes(3);
    Answer after = before;
    krm::test::Seed seed(17);
    krm::test::Change(after, seed);
    begin(after.Data)->m_strDTC = (*++begin(before.Data)).m_strDTC;
    const CompareOptions options{.ignore = {"Data[*].m_cTripTime", "Data[1].m_*"}, .keys = {{"Data", {"m_strDTC"}}}};
    bool failed = true;
    int successes = 0;
    for (; failed && successes < 10000; ++successes) {
        const long living = krm::test::LivingBlocks();
        try {
            const krm::test::FailAllocations failing(successes);
            EXPECT_FALSE(Compare(before, after, options).Equal());
            failed = false;
        } catch (const std::bad_alloc&) {
            EXPECT_EQ(krm::test::LivingBlocks(), living) << successes;
        }
    }
    EXPECT_FALSE(failed);
    EXPECT_GT(successes, 10);
}

// ---- Once prepared ----

TEST(Comparer, ComparesValuesOfItsClass) {
    const krm::Comparer comparer(krm::kTypeDescription<ComparedCar>, kWheelsByName);
    EXPECT_EQ(comparer.Error(), "");
    const ComparedCar before = CarWith({"left"});
    ComparedCar after = before;
    EXPECT_TRUE(comparer.Compare(ValueOf(before), ValueOf(after)).Equal());
    after.m_chGear = 3;
    EXPECT_EQ(ToText(comparer.Compare(ValueOf(before), ValueOf(after))), "changed m_chGear: 0 -> 3\n");
    EXPECT_EQ(ToText(comparer.Compare(ValueOf(before), ValueOf(before.m_cSpare))),
              "other class: ComparedCar -> ComparedWheel\n");
    EXPECT_EQ(ToText(comparer.Compare(ValueOf(before.m_cSpare), ValueOf(before.m_cSpare))),
              "error: a comparer of ComparedCar can't compare ComparedWheel\n");
}

TEST(Comparer, SaysAtOnceWhatIsWrong) {
    const krm::Comparer comparer(krm::kTypeDescription<ComparedCar>, {.ignore = {"m_x"}});
    EXPECT_EQ(comparer.Error(), R"(ignored path "m_x": ComparedCar has no field "m_x")");
    const ComparedCar car;
    EXPECT_EQ(comparer.Compare(ValueOf(car), ValueOf(car)).error, comparer.Error());
}

TEST(Comparison, IsWrittenALineEach) {
    ComparedCar after;
    after.m_chGear = 1;
    after.m_bRuns = true;
    const Comparison comparison = Compare(ComparedCar(), after);
    std::ostringstream lines;
    lines << comparison;
    EXPECT_EQ(lines.str(), "changed m_bRuns: false -> true\nchanged m_chGear: 0 -> 1\n");
    std::ostringstream line;
    line << comparison.differences.at(1);
    EXPECT_EQ(line.str(), "changed m_chGear: 0 -> 1");
}

// ---- Every message ----

struct ComparedMessage {
    std::string_view className;
    krm_ulong type;
    krm_ulong id;

    Direction direction() const { return className.ends_with("Snd") ? Direction::Send : Direction::Receive; }
    const krm::MessageDescription& description() const { return *krm::FindMessage(type, id, direction()); }
    std::unique_ptr<CKRMBaseAdaptationData> filled() const { return krm::test::FilledMessage(description(), 16); }
};

void PrintTo(const ComparedMessage& message, std::ostream* out) {
    *out << message.className;
}

#define KRM_LISTED(Class, Base, type, id, command) {#Class, type, id},
constexpr ComparedMessage kListed[] = {KRM_ALL_MESSAGES(KRM_LISTED)};
#undef KRM_LISTED

/// Calls `check(path)` while each number and text in `value`, one after the other, is another one.
template <class Check>
void ChangeOneByOne(Value value, const std::string& path, Check check) {
    int index = 0;
    switch (value.Kind()) {
        case ValueKind::Bool:
        case ValueKind::Signed:
        case ValueKind::Unsigned: {
            const krm_int64 before = value.Integer().value();
            ASSERT_TRUE(value.SetInteger(before ^ 1));
            check(path);
            ASSERT_TRUE(value.SetInteger(before));
            return;
        }
        case ValueKind::Double: {
            double& number = *value.As<double>();
            const double before = std::exchange(number, std::nextafter(number, kInfinity));
            check(path);
            number = before;
            return;
        }
        case ValueKind::Text: {
            CKRMString& text = *value.As<CKRMString>();
            const CKRMString before = text;
            text += "x";
            check(path);
            text = before;
            return;
        }
        case ValueKind::Record:
            value.ForEachField([&](std::string_view name, Value field) {
                ChangeOneByOne(field, (path.empty() ? path : path + '.') + std::string(name), check);
            });
            return;
        case ValueKind::List:
        case ValueKind::Array:
            value.ForEachElement(
                [&](Value element) { ChangeOneByOne(element, path + '[' + std::to_string(index++) + ']', check); });
            return;
        case ValueKind::Map:
            for (auto& [key, text] : *value.As<CKRMMap<CKRMString, CKRMString>>()) {
                ChangeOneByOne(Value(krm::kTypeDescription<CKRMString>, &text), path + "[\"" + key.GetText() + "\"]",
                               check);
            }
            return;
    }
}

class EveryComparedMessage : public testing::TestWithParam<ComparedMessage> {};
INSTANTIATE_TEST_SUITE_P(All, EveryComparedMessage, testing::ValuesIn(kListed),
                         [](const auto& test) { return std::string(test.param.className); });

TEST_P(EveryComparedMessage, DiffersWhereItDiffers) {
    KRM_NOT_UNDER(Memcheck, "the sweep would take hours");
    const Direction direction = GetParam().direction();
    const std::unique_ptr<CKRMBaseAdaptationData> before = GetParam().filled();
    const std::unique_ptr<CKRMBaseAdaptationData> after = GetParam().filled();
    const Comparison equal = Compare(*before, *after, direction);
    EXPECT_TRUE(equal.Equal()) << equal;
    const krm::MessageDescription& description = GetParam().description();
    std::size_t changed = 0;
    ChangeOneByOne(description.ContentOf(*after).value(), "", [&](const std::string& path) {
        const Comparison comparison = Compare(*before, *after, direction);
        ASSERT_EQ(comparison.error, "");
        ASSERT_EQ(comparison.differences.size(), 1U) << path << '\n' << comparison;
        const Difference& difference = comparison.differences.front();
        ASSERT_EQ(difference.kind, Difference::Kind::Changed) << path;
        ASSERT_EQ(difference.path, path);
        ASSERT_EQ(difference.pathIn2, path);
        ASSERT_NE(difference.value1, difference.value2) << path;
        ++changed;
    });
    EXPECT_GE(changed, description.content->fields.size());
    EXPECT_TRUE(Compare(*before, *after, direction).Equal());
}

TEST_P(EveryComparedMessage, DiffersFromANewOne) {
    const Direction direction = GetParam().direction();
    const std::unique_ptr<CKRMBaseAdaptationData> filled = GetParam().filled();
    const krm::MessageDescription& description = GetParam().description();
    const std::unique_ptr<CKRMBaseAdaptationData> fresh = description.create();
    for (const krm::FieldDescription& field : description.content->fields) {
        CompareOptions options;  // that leave this field alone to be compared
        for (const krm::FieldDescription& other : description.content->fields) {
            if (other.name != field.name) {
                options.ignore.emplace_back(other.name);
            }
        }
        const Comparison comparison = Compare(*fresh, *filled, direction, options);
        EXPECT_EQ(comparison.error, "");
        EXPECT_FALSE(comparison.Equal()) << field.name;
        for (const Difference& difference : comparison.differences) {
            EXPECT_TRUE(difference.path.starts_with(field.name)) << difference;
        }
    }
}

}  // namespace

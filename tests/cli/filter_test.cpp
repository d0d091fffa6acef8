#include "cli/filter.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "cli/patterns.h"

namespace {

using krm_cli::Failure;
using krm_cli::FieldText;
using krm_cli::Filter;
using krm_cli::Matches;
using krm_cli::MessageHead;
using krm_cli::NumberIn;

MessageHead Head() {
    MessageHead head;
    head.command = "GetDTC";
    head.family = "Cmd";
    head.direction = krm::Direction::Receive;
    head.type = 1;
    head.id = 2;
    head.ecu = 2024;
    head.source = "7";
    head.exchange = 3;
    return head;
}

/// Whether the expression lets an answer to GetDTC with two codes through.
bool Lets(const std::string& expression) {
    Filter filter(expression);
    for (int round = 0; round < 2; ++round) {  // a filter serves many messages
        filter.Begin();
        filter.Take({"m_bNotSupport", "0"});
        filter.Take({"Data[0].m_strDTC", "P0301"});
        filter.Take({"Data[0].m_strDTCName", "Cylinder 1 misfire"});
        filter.Take({"Data[0].m_ulDTCCode", "0x301"});
        filter.Take({"Data[0].m_dValue", "49.5"});
        filter.Take({"Data[1].m_strDTC", "C1201"});
        filter.Take({"Data[1].m_uchSSRNo[3]", "-7"});
    }
    return filter.End(Head());
}

TEST(Filter, LetsAllThroughThatNothingIsAskedOf) {
    EXPECT_TRUE(Lets(""));
    EXPECT_TRUE(Lets("  \t"));
}

TEST(Filter, AsksForWhatAMessageIs) {
    EXPECT_TRUE(Lets("command:GetDTC"));
    EXPECT_TRUE(Lets("COMMAND:getdtc"));
    EXPECT_TRUE(Lets("command:Get*"));
    EXPECT_TRUE(Lets("command:G*t*C"));
    EXPECT_FALSE(Lets("command:Get"));
    EXPECT_FALSE(Lets("command:\"Get*\""));
    EXPECT_TRUE(Lets("family:Cmd"));
    EXPECT_FALSE(Lets("family:Dwt"));
    EXPECT_TRUE(Lets("direction:answer"));
    EXPECT_FALSE(Lets("direction:Request"));
    EXPECT_TRUE(Lets("ecu:2024 ecu:0x7E8 ecu:20*"));
    EXPECT_FALSE(Lets("ecu:2025"));
    EXPECT_TRUE(Lets("id:2 id:1/2 id:1/* exchange:3 thread:7"));
    EXPECT_FALSE(Lets("id:3"));
    EXPECT_FALSE(Lets("id:2/2"));
    EXPECT_FALSE(Lets("exchange:4"));
}

TEST(Filter, AsksForNothingThatAMessageLacks) {
    Filter filter("exchange:*");
    filter.Begin();
    EXPECT_FALSE(filter.End(MessageHead()));
    Filter other("-ecu:* -direction:request -direction:answer");
    other.Begin();
    EXPECT_TRUE(other.End(MessageHead()));
}

TEST(Filter, AsksForFieldsByName) {
    EXPECT_TRUE(Lets("m_strDTC=P0301"));
    EXPECT_TRUE(Lets("m_strDTC=P03*"));
    EXPECT_TRUE(Lets("m_strdtc=c12*"));
    EXPECT_FALSE(Lets("m_strDTC=P04*"));
    EXPECT_FALSE(Lets("strDTC=P0301"));
    EXPECT_TRUE(Lets("*DTC=P0301"));
    EXPECT_TRUE(Lets("m_strDTCName=\"Cylinder 1 misfire\""));
    EXPECT_TRUE(Lets("m_strDTCName=\"Cylinder 1\"*"));
    EXPECT_FALSE(Lets("m_strDTCName=\"Cylinder 1*\""));  // in quotes, a star is one
    EXPECT_TRUE(Lets("m_uchSSRNo=-7"));
    EXPECT_FALSE(Lets("m_strX=*"));
}

TEST(Filter, AsksForFieldsByPath) {
    EXPECT_TRUE(Lets("Data[1].m_strDTC=C1201"));
    EXPECT_FALSE(Lets("Data[0].m_strDTC=C1201"));
    EXPECT_TRUE(Lets("Data[*].m_strDTC=C1201"));
    EXPECT_FALSE(Lets("Data[*]=C1201"));
    EXPECT_FALSE(Lets("Data[*]=-7"));
    EXPECT_FALSE(Lets("D*.m_strDTC.x=C1201"));
    EXPECT_TRUE(Lets("*.*SSRNo[3]=-7"));
}

TEST(Filter, ComparesNumbers) {
    EXPECT_TRUE(Lets("m_ulDTCCode=769"));
    EXPECT_TRUE(Lets("m_ulDTCCode=0x0301"));
    EXPECT_TRUE(Lets("m_dValue>49"));
    EXPECT_TRUE(Lets("m_dValue>=49.5"));
    EXPECT_FALSE(Lets("m_dValue>49.5"));
    EXPECT_TRUE(Lets("m_dValue<=4.95e1"));
    EXPECT_TRUE(Lets("m_uchSSRNo<0"));
    EXPECT_FALSE(Lets("m_strDTC>0"));
    EXPECT_TRUE(Lets("m_bNotSupport!=1"));
    EXPECT_FALSE(Lets("m_bNotSupport!=0"));
    EXPECT_TRUE(Lets("m_strDTC!=P0301"));  // the other code
    EXPECT_FALSE(Lets("m_strDTC!=*"));
}

TEST(Filter, AsksForAnyField) {
    EXPECT_TRUE(Lets("value>50"));
    EXPECT_FALSE(Lets("value>1000"));
    EXPECT_TRUE(Lets("value=P0301"));
}

TEST(Filter, AsksForWords) {
    EXPECT_TRUE(Lets("misfire"));
    EXPECT_TRUE(Lets("MISFIRE"));
    EXPECT_TRUE(Lets("m_strDTCN"));
    EXPECT_TRUE(Lets("\"1 misfire\""));
    EXPECT_TRUE(Lets("\"m_strDTC=P0\""));
    EXPECT_FALSE(Lets("\"2 misfire\""));
    EXPECT_FALSE(Lets("mis*"));
    EXPECT_FALSE(Lets("a!b"));
    EXPECT_FALSE(Lets("=5"));
}

TEST(Filter, AsksForAllOfIt) {
    EXPECT_TRUE(Lets("command:GetDTC ecu:2024 m_strDTC=P03* value>50"));
    EXPECT_FALSE(Lets("command:GetDTC ecu:2025 m_strDTC=P03* value>50"));
    EXPECT_FALSE(Lets("misfire nothing"));
}

TEST(Filter, AsksForTheContrary) {
    EXPECT_FALSE(Lets("-command:GetDTC"));
    EXPECT_TRUE(Lets("-command:ClearDTC -nothing"));
    EXPECT_FALSE(Lets("-m_strDTC=C1201"));
    EXPECT_TRUE(Lets("-m_strDTC=P04*"));
    EXPECT_TRUE(Lets("\"-7\""));
    EXPECT_TRUE(Lets("-"));
}

TEST(Filter, MayHaveAnythingInQuotes) {
    EXPECT_FALSE(Lets(R"("a\"b\\c=d:e")"));
    EXPECT_TRUE(Lets(R"(-"10:20")"));
    EXPECT_TRUE(Lets(R"(-"-x")"));
    EXPECT_FALSE(Lets(R"(m_strDTC="P03*")"));
    EXPECT_FALSE(Lets(R"(m_ulDTCCode="769")"));
    EXPECT_TRUE(Lets(R"(m_ulDTCCode="0x301")"));
    EXPECT_TRUE(Lets(R"(m_strDTCName=Cyl*"1 mis"*)"));
    EXPECT_TRUE(Lets(R"(m_bNotSupport!=1)"));
    EXPECT_FALSE(Lets(R"(m_bNotSupport!"="1)"));
}

TEST(Filter, ComparesNamesAsTexts) {
    Filter filter("0x10=1");
    filter.Begin();
    filter.Take({"16", "1"});
    EXPECT_FALSE(filter.End(MessageHead()));
    filter.Take({"0X10", "1"});
    EXPECT_TRUE(filter.End(MessageHead()));
}

std::string WhyNot(const std::string& expression) {
    try {
        const Filter filter(expression);
    } catch (const Failure& failure) {
        return failure.what();
    }
    return "";
}

TEST(Filter, SaysWhatIsWrong) {
    EXPECT_EQ(WhyNot("comand:GetDTC"),
              "filter: there is no condition comand: but command: family: id: direction: ecu: exchange: thread:");
    EXPECT_EQ(WhyNot("ecu:"), "filter: nothing stands behind ecu:");
    EXPECT_EQ(WhyNot("direction:both"), "filter: a direction is request or answer: direction:both");
    EXPECT_EQ(WhyNot("m_dValue>much"), "filter: behind > stands a number: m_dValue>much");
    EXPECT_EQ(WhyNot("m_dValue<=\"1\""), "filter: behind <= stands a number: m_dValue<=1");
    EXPECT_EQ(WhyNot("m_dValue<\"=\"5"), "filter: behind < stands a number: m_dValue<=5");
    EXPECT_EQ(WhyNot("\"a b"), "filter: the quote is not closed: a b");
}

TEST(Patterns, Match) {
    EXPECT_TRUE(Matches("", ""));
    EXPECT_FALSE(Matches("", "a"));
    EXPECT_TRUE(Matches("*", ""));
    EXPECT_TRUE(Matches("a*c*", "abcbc"));
    EXPECT_TRUE(Matches("*bc", "abcbc"));
    EXPECT_FALSE(Matches("*bd", "abcbc"));
    EXPECT_TRUE(Matches("**a", "A"));
}

TEST(Patterns, KnowNumbers) {
    EXPECT_EQ(NumberIn("12"), 12.0);
    EXPECT_EQ(NumberIn("-1.5e1"), -15.0);
    EXPECT_EQ(NumberIn("0xFF"), 255.0);
    EXPECT_EQ(NumberIn(""), std::nullopt);
    EXPECT_EQ(NumberIn("0x"), std::nullopt);
    EXPECT_EQ(NumberIn("12 "), std::nullopt);
    EXPECT_EQ(NumberIn("inf"), std::nullopt);
    EXPECT_EQ(NumberIn("-inf"), std::nullopt);
    EXPECT_EQ(NumberIn("nan"), std::nullopt);
    EXPECT_EQ(NumberIn("--1"), std::nullopt);
    EXPECT_EQ(NumberIn("+-1"), std::nullopt);
    EXPECT_EQ(NumberIn("+.5"), 0.5);
    EXPECT_EQ(NumberIn("-1(4294967295)"), -1.0);
    EXPECT_EQ(NumberIn("10(mm)"), std::nullopt);
    EXPECT_EQ(NumberIn("10()"), std::nullopt);
    EXPECT_EQ(NumberIn("10(1)2)"), std::nullopt);
    EXPECT_EQ(NumberIn("true"), 1.0);
    EXPECT_EQ(NumberIn("1,5"), std::nullopt);
}

TEST(Patterns, ShowTextsHarmlessly) {
    EXPECT_EQ(krm_cli::Shown("a b"), "a b");
    EXPECT_EQ(krm_cli::Shown("Gr\xC3\xBC\xC3\x9F"
                             "e"),
              "Gr\xC3\xBC\xC3\x9F"
              "e");
    EXPECT_EQ(krm_cli::Shown("Gr\xFC\xDF"
                             "e"),
              "Gr\xC3\xBC\xC3\x9F"
              "e");
    EXPECT_EQ(krm_cli::Shown("\x1B[2J\n\x7F"), "\\x1B[2J\\x0A\\x7F");
    EXPECT_EQ(krm_cli::Shown(std::string_view("a\0b", 3)), "a\\x00b");
    EXPECT_EQ(krm_cli::Shown("\xE2\x80\xAE"
                             "abc"),
              "\\u202Eabc");
    EXPECT_EQ(krm_cli::Shown("\xC2\x9B"), "\\u009B");
    EXPECT_EQ(krm_cli::Shown("\x9B"), "\\x9B");
}

TEST(Patterns, WriteJson) {
    std::string json;
    krm_cli::AppendJson("a\"\\\n\xC3\xBC", json);
    krm_cli::AppendJson("\xFC", json);
    EXPECT_EQ(json, "\"a\\\"\\\\\\u000A\xC3\xBC\"{\"$bytes\":\"FC\"}");
}

TEST(Patterns, CutTextsBetweenCharacters) {
    EXPECT_EQ(krm_cli::FirstOf("abc", 3), "abc");
    EXPECT_EQ(krm_cli::FirstOf("abcd", 3), "abc");
    EXPECT_EQ(krm_cli::FirstOf("a\xC3\xBC", 2), "a");
    EXPECT_EQ(krm_cli::FirstOf("\x80\x80\x80\x80\x80\x80", 5), "\x80\x80\x80\x80\x80");
}

TEST(Patterns, KnowAPathsLastName) {
    EXPECT_EQ(krm_cli::LastName("Data[0].m_strDTC"), "m_strDTC");
    EXPECT_EQ(krm_cli::LastName("Data[0].m_uchSSRNo[1]"), "m_uchSSRNo");
    EXPECT_EQ(krm_cli::LastName("m_ulEcuId"), "m_ulEcuId");
    EXPECT_EQ(krm_cli::LastName("m_cResourceMap[\"help.title\"]"), "m_cResourceMap");
    EXPECT_EQ(krm_cli::LastName("m_cResourceMap[\"a[1].b\"]"), "m_cResourceMap");
}

}  // namespace

#include "cli/filter.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using krm_cli::Failure;
using krm_cli::FieldText;
using krm_cli::Filter;
using krm_cli::MessageHead;

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
    EXPECT_TRUE(Lets("m_strDTCName=C*1*re"));
    EXPECT_FALSE(Lets("m_strDTCName=C*2*re"));
    EXPECT_FALSE(Lets("m_strDTCName=C*1*1*re"));
    EXPECT_TRUE(Lets("m_strDTCName=C*lind*er*mis*re"));
    EXPECT_FALSE(Lets("m_strDTCName=C*linder*er*re"));
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

}  // namespace

#include "cli/outline.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using krm_cli::FieldText;
using krm_cli::Outline;

/// "Data[2]", "m_cTripTime ...", "m_bDTCType=1".
std::string EntriesOf(const Outline& outline) {
    std::string text;
    for (const Outline::Entry& entry : outline.Entries()) {
        text += text.empty() ? "" : " ";
        text += entry.name;
        text += entry.kind == Outline::Kind::List     ? '[' + std::to_string(entry.count) + ']'
                : entry.kind == Outline::Kind::Record ? " ..."
                                                      : '=' + entry.value;
    }
    return text;
}

Outline Of(const std::vector<FieldText>& fields) {
    Outline outline;
    outline.Begin();
    for (const FieldText& field : fields) {
        outline.Take(field);
    }
    return outline;
}

TEST(Outline, FoldsListsAndRecords) {
    EXPECT_EQ(EntriesOf(Of({{"m_dwCommandType", "1"},
                            {"m_dwCommandID", "2"},
                            {"m_bNotSupport", "0"},
                            {"Data[0].m_strDTC", "P0301"},
                            {"Data[0].m_cFFDList[0].m_strName", "x"},
                            {"Data[0].m_cFFDList[7].m_strName", "x"},
                            {"Data[1].m_strDTC", "P0420"},
                            {"m_cTripTime.m_ulId", "1"},
                            {"m_cTripTime.m_dData", "1"},
                            {"m_ulIdList[0]", "5"},
                            {"m_ulIdList[1]", "6"},
                            {"m_bDTCType", "1"}})),
              "m_bNotSupport=0 Data[2] m_cTripTime ... m_ulIdList[2] m_bDTCType=1");
}

TEST(Outline, SaysWhatStandsOut) {
    EXPECT_EQ(Of({{"m_ulEcuId", "2024"}, {"m_uchPhaseType", "0"}, {"m_uchGetFFDType", "1"}}).StandingOut(),
              "m_uchGetFFDType=1");
    EXPECT_EQ(Of({{"m_bNotSupport", "1"}}).StandingOut(), "not supported");
    EXPECT_EQ(Of({{"m_bNotSupport", "1"}, {"m_ulId", "5"}}).StandingOut(), "not supported; m_ulId=5");
    EXPECT_EQ(Of({{"m_uchBytes", "0x00"}, {"m_uchOther", "0x10"}, {"m_dValue", "0.000000"}}).StandingOut(),
              "m_uchOther=0x10");
    EXPECT_EQ(Of({{"Data[0].m_strDTC", "P\x1B"}, {"m_strName", "a\x7F"}}).StandingOut(),
              "1 code: P\\x1B; m_strName=a\\x7F");
    EXPECT_EQ(Of({{"m_strA", std::string(40, 'a')},
                  {"m_strB", std::string(40, 'b')},
                  {"m_strC", std::string(40, 'c')},
                  {"m_strD", "d"},
                  {"m_strE", "e"}})
                  .StandingOut(),
              "m_strA=" + std::string(40, 'a') + "; m_strB=" + std::string(40, 'b') +
                  "; m_strC=" + std::string(40, 'c') + "; ...");
    EXPECT_EQ(Of({{"m_bNotSupport", "0"}, {"m_ulResult", "0"}}).StandingOut(), "m_ulResult=0");
    EXPECT_EQ(Of({{"Data[0].m_strDTC", "P0301"}, {"Data[1].m_strDTC", "P0420"}, {"m_bDTCType", "1"}}).StandingOut(),
              "2 codes: P0301, P0420; m_bDTCType=1");
    EXPECT_EQ(Of({{"Data[0].m_strDTC", "P0301"}}).StandingOut(), "1 code: P0301");
    EXPECT_EQ(Of({{"Data[0].m_ulId", "1"}, {"Data[11].m_ulId", "1"}, {"m_strName", ""}}).StandingOut(), "Data[12]");
    EXPECT_EQ(Of({}).StandingOut(), "");
}

TEST(Outline, ShortensWhatIsLong) {
    EXPECT_EQ(Of({{"m_strA", std::string(50, 'x')}}).StandingOut(), "m_strA=" + std::string(40, 'x') + "...");
    const Outline outline = Of({{"m_strA", std::string(5000, 'x')}});
    EXPECT_EQ(outline.Entries()[0].value, std::string(1000, 'x'));
    EXPECT_TRUE(outline.Entries()[0].isCut);
    Outline codes;
    codes.Begin();
    std::vector<std::string> paths;
    for (int i = 0; i < 20; ++i) {
        paths.push_back("Data[" + std::to_string(i) + "].m_strDTC");
        codes.Take({paths.back(), "P0301"});
    }
    EXPECT_EQ(codes.StandingOut(), "20 codes: P0301, P0301, P0301, P0301, P0301, P0301, P0301, P0301, ...");
}

TEST(Outline, KeepsLittleOfManyFields) {
    Outline outline;
    outline.Begin();
    for (int i = 0; i < 1000; ++i) {
        outline.Take({"m_ul" + std::to_string(i), "1"});
    }
    EXPECT_EQ(outline.Entries().size(), 256U);
    EXPECT_EQ(outline.MoreEntries(), 744U);
}

TEST(Outline, TakesIndicesOfAnyForm) {
    EXPECT_EQ(EntriesOf(Of({{"Data[x].a", "1"}, {"Data[", "1"}, {"m_cMap[\"a.b\"]", "1"}})), "Data[2] m_cMap[1]");
    EXPECT_EQ(EntriesOf(Of({{"Data[x].a", "1"}, {"Data[x].b", "1"}, {"Data[y].a", "1"}})), "Data[2]");
    EXPECT_EQ(EntriesOf(Of({{"Data[0", "1"}, {"D", "1"}})), "Data[1] D=1");
    EXPECT_EQ(EntriesOf(Of({{"m_ulIdList[x]", "1"}, {"m_ulIdList[x]", "2"}})), "m_ulIdList[2]");
}

TEST(Outline, BeginsAnewWithEachMessage) {
    Outline outline =
        Of({{"m_strName", std::string(2000, 'x')}, {"Data[7].m_strDTC", "P0301"}, {"m_cTime.m_ulId", "1"}});
    EXPECT_EQ(outline.Element(), "m_cTime.");
    outline.Begin();
    EXPECT_EQ(outline.Element(), "");
    EXPECT_EQ(EntriesOf(outline), "");
    EXPECT_EQ(outline.StandingOut(), "");
    outline.Take({"m_strName", "y"});
    outline.Take({"Data[0].m_ulId", "1"});
    outline.Take({"Data[1].m_ulId", "1"});
    EXPECT_EQ(EntriesOf(outline), "m_strName=y Data[2]");
    EXPECT_FALSE(outline.Entries()[0].isCut);
    EXPECT_EQ(outline.StandingOut(), "m_strName=y; Data[2]");
}

// Values of one name stand on their own; elements of a list are its.
TEST(Outline, KeepsAListTogetherWhoseElementsOthersPart) {
    EXPECT_EQ(EntriesOf(Of({{"m_a[0]", "1"}, {"m_b", "1"}, {"m_a", "1"}, {"m_a[1]", "1"}, {"m_b", "2"}})),
              "m_a[2] m_b=1 m_a=1 m_b=2");
}

}  // namespace

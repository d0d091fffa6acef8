// krm commands: what a query finds.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "tests/cli/calls.h"

namespace {

using krm::test::Call;
using krm::test::Krm;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

/// What it says to the query.
std::string Told(const std::string& query) {
    const Call call = Krm({"commands", query});
    EXPECT_EQ(call.status, 0) << query;
    EXPECT_EQ(call.err, "");
    return call.out;
}

const std::string kClearDTC =
    "1/5     ClearDTC (Cmd)\n"
    "  request CKRMCClearDTCCmdAdaptDataSnd\n"
    "    ClearDTC asks to clear the trouble codes.\n"
    "    m_ulEcuId: number of 32 bits; The ECU that the request is for.\n"
    "  answer CKRMCClearDTCCmdAdaptDataRcv\n"
    "    Answers ClearDTC with the result.\n"
    "    m_bNotSupport: yes or no; The engine says that it doesn't support the command.\n"
    "    m_ulResult: number of 32 bits; result of the clearing; the codes are the engine's\n";

TEST(Commands, AreFoundByNumberAndName) {
    EXPECT_EQ(Told("1/5"), kClearDTC);
    EXPECT_EQ(Told("0x1/0x5"), kClearDTC);
}

TEST(Commands, OfAnIdAreThoseOfAllFamilies) {
    const std::string told = Told("2");
    EXPECT_THAT(told, StartsWith("1/2     GetDTC (Cmd)\n"));
    EXPECT_THAT(told, HasSubstr("\n2/2     "));
    EXPECT_THAT(told, Not(HasSubstr("/12 ")));
}

TEST(Commands, AreFoundByAPattern) {
    EXPECT_EQ(Told("clear*"), kClearDTC);
    EXPECT_EQ(Told("CLEARDTC"), kClearDTC);
}

TEST(Commands, NothingIsAnError) {
    for (const char* const query :
         {"1/999", "9/5", "65537/5", "1/65541", "5.5", "1/", "/5", "no such thing", "CKRMCNothing"}) {
        const Call call = Krm({"commands", query});
        EXPECT_EQ(call.status, 2) << query;
        EXPECT_EQ(call.out, "");
        EXPECT_EQ(call.err, "krm: no command, class, field or line of the log: " + std::string(query) + '\n');
    }
}

TEST(Commands, HaveClassesAndFields) {
    EXPECT_THAT(Told("CKRMCClearDTCCmdAdaptDataRcv"),
                StartsWith("ClearDTC, type 1, ID 5\n  answer CKRMCClearDTCCmdAdaptDataRcv\n"));
    EXPECT_THAT(Told("CKRMCClearDTCCmdAdaptDataSnd"),
                StartsWith("ClearDTC, type 1, ID 5\n  request CKRMCClearDTCCmdAdaptDataSnd\n"));
    const std::string record = Told("CKRMCCommandDTCData");
    EXPECT_THAT(record, StartsWith("CKRMCCommandDTCData\n    "));
    EXPECT_THAT(record, HasSubstr("\n    m_strDTC: text; code as displayed\n"));
    EXPECT_THAT(record, HasSubstr("\n    m_cTripTime: CKRMCCommandFFDData; "));
    EXPECT_THAT(record, HasSubstr("\n    m_uchSSRNo: list of number of 8 bits; "));
    EXPECT_EQ(
        Told("m_ulReadynessStatus"),
        "in CKRMCGetDTCCmdAdaptDataRcv\n    m_ulReadynessStatus: number of 32 bits; readiness status; its meaning is the engine's\n");
    EXPECT_THAT(Told("m_dDataPhys"), HasSubstr("    m_dDataPhys: double; "));
    EXPECT_THAT(Told("m_lMul"), HasSubstr("    m_lMul: signed number of 32 bits; "));
    EXPECT_THAT(Told("m_cResourceMap"), HasSubstr("    m_cResourceMap: texts by text; "));
}

TEST(Commands, ExplainALineOfTheLog) {
    EXPECT_EQ(Told("7 [CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_strDTC=P0301"),
              "CKRMCGetDTCCmdAdaptDataRcv: GetDTC answer, type 1, ID 2\n"
              "    Answers GetDTC with the trouble codes and the readiness status.\n"
              "    Data: list of CKRMCCommandDTCData; trouble codes (DTCs)\n"
              "    m_strDTC: text; code as displayed\n");
    EXPECT_THAT(Told("[CKRMCGetDTCCmdAdaptDataSnd::ErrWriteOperationLog] m_uchPhaseType=1"),
                StartsWith("CKRMCGetDTCCmdAdaptDataSnd: GetDTC request, type 1, ID 2\n"));
    EXPECT_THAT(Told("[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_strDCT=1"),
                EndsWith("    Data: list of CKRMCCommandDTCData; trouble codes (DTCs)\n"
                         "    m_strDCT: no field of CKRMCCommandDTCData\n"));
    EXPECT_THAT(Told("[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1"),
                EndsWith("    m_dwCommandType: number of the command's family; a message begins here\n"));
    EXPECT_THAT(Told("[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=1"),
                EndsWith("    m_dwCommandID: number of the command within its family\n"));
    EXPECT_THAT(Told("[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=1"),
                EndsWith("    m_ulEcuId: The ECU that the request is for.\n"));
    EXPECT_EQ(Told("[CKRMCOwnCmdAdaptDataSnd::ErrWriteOperationLog] m_ulOwn=1"),
              "CKRMCOwnCmdAdaptDataSnd\n    no class of the library\n");
}

// What its help gives as examples finds something.
TEST(Commands, AreFoundAsItsExamplesAsk) {
    struct Example {
        std::string query;
        const char* found;
    };
    const std::string help = Krm({"commands", "--help"}).out;
    for (const auto& [query, found] :
         {Example{"1/2", "GetDTC (Cmd)\n"}, Example{"\"*Customize*\"", "GetCustomizeSupportList (Cmd)\n"},
          Example{"m_ulReadynessStatus", "in CKRMCGetDTCCmdAdaptDataRcv\n"},
          Example{"\"[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_strDTC=P0301\"",
                  "    m_strDTC: text; code as displayed\n"}}) {
        EXPECT_THAT(help, HasSubstr("\n  krm commands " + query + '\n'));
        std::string unquoted = query;
        std::erase(unquoted, '"');
        EXPECT_THAT(Told(unquoted), HasSubstr(found));
    }
}

TEST(Commands, AreListed) {
    const std::string all = Krm({"commands"}).out;
    EXPECT_THAT(all, StartsWith("1/2     GetDTC (Cmd)\n1/5     ClearDTC (Cmd)\n"));
    EXPECT_THAT(all, HasSubstr("\n2/"));
    EXPECT_THAT(Krm({"commands"}, true).out, HasSubstr("\n1/5     \x1B[1mClearDTC\x1B[0m (Cmd)\n"));
}

}  // namespace

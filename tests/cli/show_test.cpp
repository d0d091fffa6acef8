// krm show: what it writes of messages, lists, lines that belong to none, and in colours.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/cli/calls.h"
#include "tests/support/folder.h"

namespace {

using krm::test::Call;
using krm::test::Krm;
using ::testing::EndsWith;
using ::testing::HasSubstr;

const std::string kBase = "[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] ";
const std::string kAnswer = "[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] ";
const std::string kRequest = "[CKRMCGetDTCCmdAdaptDataSnd::ErrWriteOperationLog] ";

/// A request and its answer with two trouble codes, between other lines.
const std::string kLog =
    "hello\n2024-02-29T23:59:59.999Z 1 " + kBase + "m_dwCommandType=1\n2024-02-29T23:59:59.999Z 1 " + kBase +
    "m_dwCommandID=2\n2024-02-29T23:59:59.999Z 1 [CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=2024\n"
    "2024-02-29T23:59:59.999Z 1 " +
    kRequest + "m_uchPhaseType=1\n" + kBase + "m_dwCommandType=1\n" + kBase +
    "m_dwCommandID=2\n[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=0\n" + kAnswer +
    "Data[0].m_strDTC=P0301\n[" + kAnswer.substr(0, kAnswer.size() - 1) + " Data[0]] m_uchSSRNo[0]=7\n" + kAnswer +
    "Data[0].m_cTripTime.m_strName=Trip \x1B time\n" + kAnswer + "Data[1].m_strDTC=P0171\n" + kAnswer +
    "m_bDTCType=1\n";

Call Shown(const std::string& log, std::vector<std::string> options = {}, bool hasColours = false) {
    const krm::test::TestFolder folder;
    options.insert(options.begin(), {"show", folder.Write("a.log", log)});
    return Krm(options, hasColours);
}

TEST(Show, HasALinePerMessage) {
    const Call call = Shown(kLog);
    EXPECT_EQ(call.status, 0) << call.err;
    EXPECT_EQ(call.out,
              "       line 1: hello\n"
              "    1  2024-02-29T23:59:59.999Z  GetDTC request, ECU 2024: m_uchPhaseType=1\n"
              "    2  GetDTC answer: 2 codes: P0301, P0171; m_bDTCType=1\n"
              "2 messages in 13 lines; 1 line belongs to no message\n");
}

TEST(Show, UnfoldsAMessage) {
    EXPECT_EQ(Shown(kLog, {"--message", "2"}).out,
              "    2  GetDTC answer: 2 codes: P0301, P0171; m_bDTCType=1\n"
              "       m_bNotSupport = 0\n"
              "       Data[2]\n"
              "       m_bDTCType = 1\n");
    EXPECT_EQ(Shown(kLog, {"--message", "2", "--full"}).out,
              "    2  GetDTC answer: 2 codes: P0301, P0171; m_bDTCType=1\n"
              "       m_bNotSupport = 0\n"
              "       Data[0]\n"
              "         m_strDTC = P0301\n"
              "         m_uchSSRNo[0] = 7\n"
              "         m_cTripTime\n"
              "           m_strName = Trip \\x1B time\n"
              "       Data[1]\n"
              "         m_strDTC = P0171\n"
              "       m_bDTCType = 1\n");
}

TEST(Show, WritesDocuments) {
    EXPECT_EQ(
        Shown(kLog, {"--json"}).out,
        R"({"line":1,"text":"hello"})"
        "\n"
        R"({"message":1,"line":2,"command":"GetDTC","family":"Cmd","direction":"request","type":1,"id":2,"ecu":2024,)"
        R"("time":"2024-02-29T23:59:59.999Z","source":"1","codes":[],"codeCount":0,"outline":[{"name":"m_ulEcuId","value":)"
        R"("2024"},{"name":"m_uchPhaseType","value":"1"}]})"
        "\n"
        R"({"message":2,"line":6,"command":"GetDTC","family":"Cmd","direction":"answer","type":1,"id":2,"codes":["P0301",)"
        R"("P0171"],"codeCount":2,"outline":[{"name":"m_bNotSupport","value":"0"},{"name":"Data","count":2},)"
        R"({"name":"m_bDTCType","value":"1"}]})"
        "\n"
        R"({"totals":{"messages":2,"shown":2,"lines":13,"otherLines":1,"cutLines":0,"faults":0}})"
        "\n");
    EXPECT_EQ(
        Shown(kLog, {"--json", "--full", "--message", "1"}).out,
        R"({"message":1,"line":2,"command":"GetDTC","family":"Cmd","direction":"request","type":1,"id":2,"ecu":2024,)"
        R"("time":"2024-02-29T23:59:59.999Z","source":"1","codes":[],"codeCount":0,"fields":[)"
        R"({"path":"m_dwCommandType","value":"1"},{"path":"m_dwCommandID","value":"2"},)"
        R"({"path":"m_ulEcuId","value":"2024"},{"path":"m_uchPhaseType","value":"1"}]})"
        "\n");
}

TEST(Show, CountsWhatAFilterShows) {
    EXPECT_EQ(Shown(kLog, {"--filter", "direction:answer"}).out,
              "    2  GetDTC answer: 2 codes: P0301, P0171; m_bDTCType=1\n"
              "2 messages in 13 lines, 1 shown; 1 line belongs to no message\n");
    EXPECT_EQ(Shown(kLog, {"--filter", "command:ClearDTC"}).out,
              "2 messages in 13 lines, 0 shown; 1 line belongs to no message\n");
}

TEST(Show, IsColouredOnATerminal) {
    const std::string log = kLog + "no line\n" + kBase + "m_dwCommandType=1\n";
    EXPECT_EQ(
        Shown(log, {}, true).out,
        "       \x1B[2mline 1: hello\x1B[0m\n"
        "       \x1B[2mline 14: no line\x1B[0m\n"
        "    \x1B[2m1\x1B[0m  \x1B[2m2024-02-29T23:59:59.999Z\x1B[0m  \x1B[1mGetDTC\x1B[0m \x1B[36mrequest\x1B[0m, ECU 2024: "
        "m_uchPhaseType=1\n"
        "    \x1B[2m2\x1B[0m  \x1B[1mGetDTC\x1B[0m \x1B[32manswer\x1B[0m: \x1B[33m2 codes: P0301, P0171; m_bDTCType=1\x1B[0m\n"
        "    \x1B[2m3\x1B[0m  \x1B[1mtype 1, ID 0\x1B[0m\n"
        "\x1B[2m3 messages in 15 lines; 2 lines belong to no message\x1B[0m\n");
    EXPECT_THAT(Shown(log, {"--message", "2", "--full"}, true).out,
                HasSubstr("       \x1B[1mData[0]\x1B[0m\n         m_strDTC = P0301\n"));
    EXPECT_EQ(
        Shown(kRequest + "m_uchPhaseType=1\n", {}, true).out,
        "    \x1B[2m1\x1B[0m  \x1B[1mGetDTC\x1B[0m \x1B[36mrequest\x1B[0m: m_uchPhaseType=1\x1B[31m (its begin is missing)\x1B[0m\n"
        "\x1B[2m1 message in 1 line\x1B[0m\n");
}

TEST(Show, TellsWhatIsCut) {
    constexpr std::size_t kMaxLine = std::size_t{1024} * 1024;
    const std::string head = kRequest + "m_strText=";
    const std::string log =
        std::string(kMaxLine, 'x') + "yz\n" + head + std::string(kMaxLine - head.size(), 'v') + "abc";
    const Call call = Shown(log, {"--full"});
    EXPECT_THAT(call.out, HasSubstr("xxx [2 bytes more]\n"));
    EXPECT_THAT(call.out, HasSubstr("vvv [3 bytes more]\n"));
    EXPECT_THAT(call.out,
                EndsWith("1 message in 2 lines; 1 line belongs to no message; 2 lines are too long and cut; the last "
                         "line has no end\n"));
    const std::string documents = Shown(log, {"--full", "--json"}).out;
    EXPECT_THAT(documents, HasSubstr("xxx\",\"cutBytes\":2}\n"));
    EXPECT_THAT(documents, HasSubstr("vvv\",\"cutBytes\":3}]}\n"));
    EXPECT_THAT(Shown(log, {"--json"}).out, HasSubstr("vvv\",\"isCut\":true}]}\n"));
    EXPECT_THAT(Shown(log, {"--message", "1"}).out, EndsWith("vvv...\n"));
}

TEST(Show, KnowsHowManyMessagesThereAre) {
    const Call third = Shown(kLog, {"--message", "3"});
    EXPECT_EQ(third.status, 2);
    EXPECT_EQ(third.out, "");
    EXPECT_THAT(third.err, EndsWith("a.log: there is no message 3; it has 2\n"));
    const Call beyond32Bits = Shown(kLog, {"--message", "4294967297"});
    EXPECT_EQ(beyond32Bits.status, 2);
    EXPECT_THAT(beyond32Bits.err, EndsWith("a.log: there is no message 4294967297; it has 2\n"));
    const Call neither = Shown("a\nb\n");
    EXPECT_EQ(neither.status, 2);
    EXPECT_EQ(neither.out, "       line 1: a\n       line 2: b\n");
    EXPECT_THAT(
        neither.err,
        EndsWith("a.log:1: neither an operation log nor a recording: none of its 2 lines is one of a message\n"));
}

TEST(Show, CountsFieldsThatItDoesntList) {
    std::string log = kBase + "m_dwCommandType=1\n" + kBase + "m_dwCommandID=900\n";
    for (int i = 0; i < 300; ++i) {
        log += "[CKRMCOwnCmdAdaptDataRcv::ErrWriteOperationLog] m_ul" + std::to_string(i) + "=0\n";
    }
    EXPECT_THAT(Shown(log, {"--message", "1"}).out, EndsWith("       m_ul255 = 0\n       and 44 more\n"));
}

}  // namespace

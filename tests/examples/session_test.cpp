#include "examples/diagnosis_session/session.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/session_run.h"

namespace {

using krm::test::RunSession;
using krm::test::SessionFolder;
using krm::test::SessionResult;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

constexpr const char* kItems = R"({"commands": [
 {"cmd": {"01": "0C"}, "signals": [{"id": "RPM", "name": "Speed", "fmt": {"len": 16, "div": 4, "unit": "rpm"}}]},
 {"cmd": {"01": "0D"}, "signals": [{"id": "VSS", "fmt": {"len": 8, "unit": "km/h"}}]},
 {"cmd": {"01": "51"}, "signals": [{"id": "TYP", "fmt": {"len": 8, "map": {"1": {"value": "gas, \"liquid\""}}}}]},
 {"cmd": {"01": "5D"}, "signals": [{"id": "TIM", "fmt": {"len": 16, "div": 128, "add": -38665}}]},
 {"cmd": {"01": "08"}, "signals": [{"id": "A", "fmt": {"len": 8}}, {"id": "B", "fmt": {"bix": 8, "len": 8}}]},
 {"cmd": {"01": "7F"}, "signals": [{"id": "ODD", "fmt": {"bix": 3, "len": 32, "sign": true}}]},
 {"rax": "7E8", "cmd": {"22": "F40C"}, "signals": [{"id": "RPM22", "fmt": {"len": 16, "div": 4}}]}
]})";

class Session : public ::testing::Test {
protected:
    /// Runs on lines of a recording, given without time and interface: "7DF#02010C". The table is kItems.
    SessionResult Run(const std::vector<std::string>& frames, const std::string& items = kItems) {
        std::string recording;
        for (const std::string& frame : frames) {
            recording += frame.find('#') == std::string::npos ? frame + '\n' : "(1.0) can0 " + frame + '\n';
        }
        return RunSession({m_folder.Write("r.log", recording), m_folder.Write("i.json", items), "--log",
                           m_folder.Path("op.log"), "--values", m_folder.Path("v.csv")});
    }
    std::string Fault(const std::string& text) const { return m_folder.Path("r.log") + ':' + text + '\n'; }
    std::string TableFault(const std::string& text) const { return m_folder.Path("i.json") + ':' + text + '\n'; }
    /// The values as CSV, without the header.
    std::string Values() const {
        const std::string text = m_folder.Read("v.csv");
        const std::string header = "exchange,request,item,raw,value,unit\n";
        EXPECT_THAT(text, StartsWith(header));
        return text.substr(header.size());
    }

    SessionFolder m_folder;
};

TEST_F(Session, TheOwnRecordingIsDecodedWhole) {
    const SessionResult run = RunSession({"--log", m_folder.Path("op.log"), "--values", m_folder.Path("v.csv")});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_THAT(run.out, HasSubstr("  ECU 7E8 | VIN       | 1ZZDEM8R2SE000001\n"));
    EXPECT_THAT(
        run.out,
        HasSubstr("  ECU 7E8 | live data | 01 03 04 05 06 07 0B 0C 0D 0E 0F 10 11 1C 1F 21 2F 31 32 33 42 46 51\n"));
    EXPECT_THAT(run.out, HasSubstr("  ECU 7E8 | stored    | P0301 | Cylinder 1 misfire detected\n"));
    EXPECT_THAT(run.out, HasSubstr("  ECU 7E8 | pending   | P0128 | "));
    EXPECT_THAT(run.out, HasSubstr("  ECU 7E9 | permanent | none\n"));
    EXPECT_THAT(run.out, HasSubstr("  ECU 7E9 | cleared\n"));
    EXPECT_THAT(run.out, HasSubstr("  ECU 7E8 | 29 items | 22 polls | 35 values\n"));
    EXPECT_THAT(Values(), HasSubstr("12,010C0D11,TP,38,14.90196,percent\n"));
    EXPECT_THAT(Values(), HasSubstr("21,0132,EVAP_VP,65068,-117.00000,pascal\n"));
    EXPECT_THAT(Values(), HasSubstr("33,020C00,RPM,8000,2000.00000,rpm\n"));

    const std::string log = m_folder.Read("op.log");
    const auto lines = std::count(log.begin(), log.end(), '\n');
    EXPECT_THAT(run.out, EndsWith("\n37 exchanges, 55 values, " + std::to_string(lines) + " log lines\n"));
    for (const char* message : {"GetGroupEcuList", "EcuConnect", "GetVinCode", "GetDTC", "GetFFD", "ClearDTC",
                                "GetDataMonitorList", "StartDataMonitor"}) {
        EXPECT_THAT(log, HasSubstr("[CKRMC" + std::string(message) + "CmdAdaptDataRcv::ErrWriteOperationLog] "));
    }
    EXPECT_THAT(log, HasSubstr("[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[2].m_strDTC=P0420\n"));
    EXPECT_THAT(log, HasSubstr("[CKRMCGetFFDCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_cConversionTbl.m_lMul="));
    // The answers of the monitor write their base only: command 21.
    EXPECT_THAT(log, HasSubstr("[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=21\n"));
}

TEST_F(Session, Help) {
    const SessionResult run = RunSession({"--help"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_THAT(run.out,
                StartsWith("usage: diagnosis_session [RECORDING [ITEMS]] [--log FILE] [--values FILE] [--help]\n"));
}

TEST_F(Session, BadArguments) {
    const std::vector<std::pair<std::vector<std::string>, std::string>> cases = {
        {{"--nonsense"}, "unknown option --nonsense"},
        {{"-x"}, "unknown option -x"},
        {{"--log"}, "--log needs a file"},
        {{"--values", ""}, "--values needs a file"},
        {{"a", "b", "c"}, "one argument too many: c"},
        {{""}, "an empty file name"},
    };
    for (const auto& [arguments, what] : cases) {
        const SessionResult run = RunSession(arguments);
        EXPECT_EQ(run.status, 2) << what;
        EXPECT_EQ(run.out, "") << what;
        EXPECT_THAT(run.err, StartsWith("diagnosis_session: " + what + "\nusage: "));
    }
}

TEST_F(Session, FilesThatCannotBeUsed) {
    const std::string nothing = m_folder.Path("nothing");
    const std::string recording = m_folder.Write("r.log", "");
    const std::string items = m_folder.Write("i.json", kItems);
    const std::string log = m_folder.Path("op.log");
    const std::string nowhere = m_folder.Path("no folder") + "/file";
    const std::vector<std::pair<std::vector<std::string>, std::string>> cases = {
        {{nothing, items, "--log", log}, nothing + ": cannot be read\n"},
        {{recording, nothing, "--log", log}, nothing + ": cannot be read\n"},
        {{m_folder.Path(""), items, "--log", log}, m_folder.Path("") + ": cannot be read\n"},
        {{recording, items, "--log", nowhere}, nowhere + ": cannot be written\n"},
        {{recording, items, "--log", log, "--values", nowhere}, nowhere + ": cannot be written\n"},
        {{recording, items, "--log", recording}, recording + ": is an input; it will not be overwritten\n"},
        {{recording, items, "--log", log, "--values", items}, items + ": is an input; it will not be overwritten\n"},
        {{recording, items, "--log", log, "--values", log}, log + ": can't be both operation log and values\n"},
    };
    for (const auto& [arguments, what] : cases) {
        const SessionResult run = RunSession(arguments);
        EXPECT_EQ(run.status, 2) << what;
        EXPECT_EQ(run.err, what);
        EXPECT_EQ(run.out, "") << what;
    }
}

TEST_F(Session, ValuesGoThroughTheirConverters) {
    const SessionResult run = Run({"7DF#02010C", "7E8#04410C0BEC", "7DF#020151", "7E8#03415101", "7DF#020151",
                                   "7E8#0341510C", "7DF#02015D", "7E8#04415DFFFF", "7E0#0322F40C", "7E8#0562F40C0BEC"});
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.status, 0);
    // A raw value without an entry in the map shows in hexadecimal; the last scaling needs other decimals than shown.
    EXPECT_EQ(Values(),
              "1,010C,RPM,3052,763.00000,rpm\n"
              "2,0151,TYP,1,\"gas, \"\"liquid\"\"\",\n"
              "3,0151,TYP,12,0x0C,\n"
              "4,015D,TIM,65535,-38153.00781,\n"
              "5,22F40C,RPM22,3052,763.00000,\n");
}

TEST_F(Session, AValueThatLiesAcrossFiveBytesIsCutOut) {
    // Bits 3 to 34 of F5555555 5F: the sign bit is the 1 behind the first three bits.
    Run({"7DF#02017F", "7E8#07417FF5555555E0"});
    EXPECT_EQ(Values(), "1,017F,ODD,2863311535,-1431655761.00000,\n");
}

TEST_F(Session, TwoEcusAnswer) {
    const SessionResult run = Run({"7DF#02010D", "7E9#03410D01", "7E8#03410D02"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(Values(), "1,010D,VSS,1,1.00000,km/h\n1,010D,VSS,2,2.00000,km/h\n");
    EXPECT_THAT(run.out, HasSubstr("  ECU 7E8 | connected"));
    EXPECT_THAT(run.out, HasSubstr("  ECU 7E9 | connected"));
}

TEST_F(Session, ItemsThatTheEcuLeavesOutAreShownAsSuch) {
    const SessionResult run = Run({"7DF#020108", "7E8#03410805"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(Values(), "1,0108,A,5,5.00000,\n");
    EXPECT_THAT(run.out, HasSubstr("  1        | 0108    | 7E8 | B    | -   | not in the answer |"));
}

TEST_F(Session, SeveralParametersInOneRequest) {
    EXPECT_EQ(Run({"7DF#03010D0C", "7E8#06410D070C0BEC"}).err, "");
    EXPECT_EQ(Values(), "1,010D0C,VSS,7,7.00000,km/h\n1,010D0C,RPM,3052,763.00000,rpm\n");

    EXPECT_EQ(Run({"7DF#03010D0C", "7E8#03410D07"}).err, Fault("1: request 010D0C has no answer for parameter 0C"));
    EXPECT_EQ(Run({"7DF#03010D0C", "7E8#06410D070D0BEC"}).err,
              Fault("2: 7E8 answers request 010D0C with 0D0BEC where a parameter asked for is due") +
                  Fault("1: request 010D0C has no answer for parameter 0C"));
    EXPECT_EQ(Run({"7DF#0401990D0C", "7E8#044199000D"}).err,
              Fault("1: request 01990D0C is unknown: the item table has nothing for parameter 99, nor its length, so "
                    "what follows it is left out"));
}

/// One bad exchange between two good ones: the fault is told, the good ones are decoded.
struct BadInput {
    const char* name;
    std::vector<std::string> frames;
    std::vector<std::string> faults;

    friend void PrintTo(const BadInput& bad, std::ostream* out) { *out << bad.name; }
};

class BadSession : public Session, public ::testing::WithParamInterface<BadInput> {};

TEST_P(BadSession, IsToldAndTheRestDecoded) {
    const BadInput& bad = GetParam();
    std::vector<std::string> frames = {"7DF#02010D", "7E8#03410D01"};
    frames.insert(frames.end(), bad.frames.begin(), bad.frames.end());
    frames.insert(frames.end(), {"7DF#02010D", "7E8#03410D02"});
    const SessionResult run = Run(frames);
    std::string faults;
    for (const std::string& fault : bad.faults) {
        faults += Fault(fault);
    }
    EXPECT_EQ(run.err, faults);
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(Values(), StartsWith("1,010D,VSS,1,1.00000,km/h\n"));
    EXPECT_THAT(Values(), EndsWith(",010D,VSS,2,2.00000,km/h\n"));
    EXPECT_THAT(run.out, HasSubstr(" values, "));
}

INSTANTIATE_TEST_SUITE_P(
    AllFaults, BadSession,
    ::testing::Values(
        BadInput{"MalformedLine",
                 {"7DF#02010C", "rubbish"},
                 {"4: not a line of candump -l: expected (SECONDS) INTERFACE ID#DATA"}},
        BadInput{"UnknownRequest",
                 {"7DF#020199", "7E8#03419900", "7E9#03419900"},
                 {"3: request 0199 is unknown: the item table has nothing for it"}},
        BadInput{"UnknownService",
                 {"7DF#023E00", "7E8#027E00"},
                 {"3: request 3E00 is unknown: the item table has nothing for it"}},
        BadInput{"ParameterOfAnotherEcu",
                 {"7E1#0322F40C", "7E9#0562F40C0BEC"},
                 {"3: request 22F40C is unknown: the item table has nothing for it"}},
        BadInput{
            "ServiceAlone", {"7DF#013E", "7E8#017E"}, {"3: request 3E is unknown: the item table has nothing for it"}},
        BadInput{"NegativeAnswer",
                 {"7DF#02010C", "7E8#037F0112"},
                 {"4: 7E8 refuses request 010C: 12, sub-function not supported"}},
        BadInput{"NegativeAnswerWithoutReason",
                 {"7DF#02010C", "7E8#027F01"},
                 {"4: 7E8 refuses request 010C without a reason"}},
        BadInput{"TroubleCodesRefused",
                 {"7DF#0103", "7E8#037F0311"},
                 {"4: 7E8 refuses request 03: 11, service not supported"}},
        BadInput{
            "ClearingRefused", {"7DF#0104", "7E8#037F0422"}, {"4: 7E8 refuses request 04: 22, conditions not correct"}},
        BadInput{"PendingAndThenNothing",
                 {"7DF#02010C", "7E8#037F0178"},
                 {"3: request 010C has no answer but \"response pending\""}},
        BadInput{"BreaksOff", {"7DF#0103", "7E8#1008430303010171"}, {"4: 7E8 breaks off after 6 of 8 bytes"}},
        BadInput{"OutOfOrder",
                 {"7DF#0103", "7E8#1008430303010171", "7E8#220420"},
                 {"5: 7E8 sends consecutive frame 2 where 1 is due"}},
        BadInput{"NoAnswer", {"7DF#02010C"}, {"3: request 010C has no answer"}},
        BadInput{"AnswerToAnotherRequest",
                 {"7DF#02010C", "7E8#04410C0BEC", "7E8#0341510C"},
                 {"5: 7E8 answers 41510C to request 010C"}},
        BadInput{"AnswersTwice",
                 {"7DF#02010C", "7E8#04410C0BEC", "7E8#04410C0BEC"},
                 {"5: 7E8 answers request 010C a second time"}},
        BadInput{"OtherCanId",
                 {"123#00", "123#01", "7DF#02010C", "7E8#04410C0BEC"},
                 {"3: CAN ID 123 is neither a request's nor an answer's; its frames are left out"}},
        BadInput{"EndsWithinAnItem",
                 {"7DF#02010C", "7E8#03410C0B"},
                 {"4: the data of 7E8's answer to request 010C ends within item RPM"}},
        BadInput{"NoData",
                 {"7DF#02010C", "7E8#02410C"},
                 {"4: the data of 7E8's answer to request 010C is too short for any item: 0 bytes"}},
        BadInput{"NoNumberOfTroubleCodes",
                 {"7DF#0103", "7E8#0143"},
                 {"4: 7E8 answers request 03 without the number of trouble codes"}},
        BadInput{"FewerTroubleCodesThanAnnounced",
                 {"7DF#0103", "7E8#0443020301"},
                 {"4: 7E8 answers request 03 with 2 bytes for 2 trouble codes"}},
        BadInput{"VinOfOtherCharacters",
                 {"7DF#020902", "7E8#0549020131FF"},
                 {"4: 7E8 gives a vehicle identification number that is not 17 letters and digits"}}),
    [](const ::testing::TestParamInfo<BadInput>& parameter) { return parameter.param.name; });

TEST_F(Session, AnswerBeforeAnyRequest) {
    const SessionResult run = Run({"7E8#03410D01"});
    EXPECT_EQ(run.err, Fault("1: 7E8 answers 410D01 before any request"));
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.out, StartsWith("0 exchanges, 0 values, "));
}

TEST_F(Session, BreaksOffAtTheEndOfTheRecording) {
    const SessionResult run = Run({"7DF#0103", "7E8#1008430303010171"});
    EXPECT_EQ(run.err, Fault("2: 7E8 breaks off after 6 of 8 bytes"));
    EXPECT_EQ(run.status, 1);
}

TEST_F(Session, PendingAndThenTheAnswerIsNoFault) {
    const SessionResult run = Run({"7DF#02010D", "7E8#037F0178", "7E8#03410D02"});
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(Values(), "1,010D,VSS,2,2.00000,km/h\n");
}

TEST_F(Session, AnEmptyRecordingHasNothingToSay) {
    const SessionResult run = Run({});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_THAT(run.out, StartsWith("0 exchanges, 0 values, "));
}

TEST_F(Session, ATableThatIsNoTableLeavesTheRestDecoded) {
    const std::vector<std::string> frames = {"7DF#0103", "7E8#0443010301", "7DF#02010D", "7E8#03410D02"};
    for (const auto& [table, fault] : std::vector<std::pair<std::string, std::string>>{
             {"{\n\"commands\": [\n}", "3: not JSON from here on; no values are decoded"},
             {"", "1: not JSON from here on; no values are decoded"},
             {"{}", "1: no array \"commands\", so no item table; no values are decoded"},
             {"[]", "1: no array \"commands\", so no item table; no values are decoded"}}) {
        const SessionResult run = Run(frames, table);
        EXPECT_EQ(run.err, TableFault(fault));
        EXPECT_EQ(run.status, 1) << fault;
        EXPECT_THAT(run.out, HasSubstr("  ECU 7E8 | stored | P0301\n"));
        EXPECT_EQ(Values(), "");
    }
}

TEST_F(Session, BadItemsAreToldByTheirLineAndTheRestDecoded) {
    const SessionResult run = Run({"7DF#02010D", "7E8#03410D02"}, R"({"commands": [
 {"cmd": {"01": "0D"}, "signals": [
  {"id": "LONG", "fmt": {"len": 40}},
  {"id": "EMPTY", "fmt": {"len": 0}},
  {"id": "NEG", "fmt": {"len": -8}},
  {"id": "NOLEN", "fmt": {}},
  {"id": "NOFMT"},
  {"fmt": {"len": 8}},
  {"id": "BIX", "fmt": {"bix": "0", "len": 8}},
  {"id": "MUL", "fmt": {"len": 8, "mul": "2"}},
  {"id": "DIV", "fmt": {"len": 8, "div": 0}},
  {"id": "SIGN", "fmt": {"len": 8, "sign": 1}},
  {"id": "MAP", "fmt": {"len": 8, "map": {"one": {"value": "1"}}}},
  {"id": "MAP2", "fmt": {"len": 8, "map": {"1": "one"}}},
  {"id": "MAP3", "fmt": {"len": 8, "map": {}, "mul": 2}},
  17,
  {"id": "GOOD",
   "fmt": {"len": 8, "mul": 1.0}}
 ]},
 {"cmd": {"01": "zz"}, "signals": []},
 {"cmd": {}, "signals": []},
 {"cmd": {"01": "0E"}, "signals": 5},
 {"cmd": {"01": "0F"}, "rax": "ECU", "signals": []},
 null
], "dtcs": {"P0001": 1}})");
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.err,
              TableFault("3: item LONG left out: 40 bits long; a value has at most 32") +
                  TableFault("4: item EMPTY left out: \"len\" is 0") +
                  TableFault("5: item NEG left out: \"len\" is not a whole number up to 4294967295") +
                  TableFault("6: item NOLEN left out: \"len\" is not a whole number up to 4294967295") +
                  TableFault("7: item NOFMT left out: \"fmt\" is not an object") +
                  TableFault("8: item left out: \"id\" is not a text") +
                  TableFault("9: item BIX left out: \"bix\" is not a whole number up to 32760") +
                  TableFault("10: item MUL left out: \"mul\" is not a number") +
                  TableFault("11: item DIV left out: the scaling 1 / 0 + 0 doesn't fit numbers of 32 bits") +
                  TableFault("12: item SIGN left out: \"sign\" is not true or false") +
                  TableFault("13: item MAP left out: \"map\" has the key \"one\", not a raw value in decimal") +
                  TableFault("14: item MAP2 left out: \"map\" has no object for \"1\"") +
                  TableFault("15: item MAP3 left out: \"map\" and a scaling exclude each other") +
                  TableFault("15: item left out: not an object") +
                  TableFault("20: command left out: \"cmd\" is not one service with its parameter ID, in hexadecimal") +
                  TableFault("21: command left out: \"cmd\" is empty") +
                  TableFault("22: command left out: \"signals\" is not an array") +
                  TableFault("23: command left out: \"rax\" is not a CAN ID in hexadecimal") +
                  TableFault("23: command left out: not an object") +
                  TableFault("25: \"dtcs\" has no text for \"P0001\""));
    EXPECT_EQ(Values(), "1,010D,GOOD,2,2.00000,\n");
}

TEST_F(Session, AFaultStaysOneLineWhateverItQuotes) {
    const SessionResult run = Run({}, R"({"commands": [{"cmd": {"01": "0D"}, "signals": [
  {"id": "A\nB\u0000\u001b[2J\u007f\u00e9", "fmt": {"len": 0}},
  {"id": "C", "fmt": {"len": 8, "map": {"1\r\n": {"value": "x"}}}}]}]})");
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.err, TableFault("2: item A?B??[2J?\xC3\xA9 left out: \"len\" is 0") +
                           TableFault("3: item C left out: \"map\" has the key \"1??\", not a raw value in decimal"));
}

}  // namespace

#include "examples/diagnosis_session/session.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <ostream>
#include <sstream>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "examples/diagnosis_session/recording_file.h"
#include "tests/support/session_run.h"

#ifndef _WIN32
#include <fcntl.h>
#include <unistd.h>
#endif

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
        return RunSession({m_folder.Write("r.log", recording), m_folder.Write("i.json", items), "--operation-log",
                           m_folder.Path("op.log"), "--values", m_folder.Path("v.csv")});
    }
    std::string Fault(const std::string& text) const { return m_folder.Path("r.log") + ':' + text + '\n'; }
    std::string TableFault(const std::string& text) const { return m_folder.Path("i.json") + ':' + text + '\n'; }
    /// The values as CSV, without the header; of each line the first six columns.
    std::string Values() const {
        std::istringstream text(m_folder.Read("v.csv"));
        std::string line;
        std::getline(text, line);
        EXPECT_EQ(line, "exchange,request,item,raw,value,unit,time,ecu,name,text");
        std::string values;
        while (std::getline(text, line)) {
            bool quoted = false;
            std::size_t commas = 0;
            std::size_t end = 0;
            for (; end < line.size() && commas < 6; ++end) {
                quoted = quoted != (line[end] == '"');
                commas += line[end] == ',' && !quoted ? 1U : 0U;
            }
            values += line.substr(0, end - 1) + '\n';
        }
        return values;
    }

    SessionFolder m_folder;
};

TEST_F(Session, TheOwnRecordingIsDecodedWhole) {
    const SessionResult run =
        RunSession({"--operation-log", m_folder.Path("op.log"), "--values", m_folder.Path("v.csv")});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_THAT(run.out, HasSubstr("  7E8  Vehicle identification number                 1ZZDEM8R2SE000001\n"));
    EXPECT_THAT(run.out,
                HasSubstr("7E8        supports PIDs 01 03 04 05 06 07 0B 0C 0D 0E 0F 10 11 1C 1F 21 2F 31 32 33 "
                          "42 46 51\n"));
    EXPECT_THAT(run.out, HasSubstr("  7E8  stored     P0301  Cylinder 1 misfire detected\n"));
    EXPECT_THAT(run.out, HasSubstr("  7E8  pending    P0128  "));
    EXPECT_THAT(run.out, HasSubstr("  7E9  permanent  none\n"));
    EXPECT_THAT(run.out, HasSubstr("  7E9  cleared\n"));
    EXPECT_THAT(Values(), HasSubstr("12,010C0D11,TP,38,14.90196,percent\n"));
    EXPECT_THAT(Values(), HasSubstr("21,0132,EVAP_VP,65068,-117.00000,pascal\n"));
    EXPECT_THAT(Values(), HasSubstr("33,020C00,RPM,8000,2000.00000,rpm\n"));

    const std::string log = m_folder.Read("op.log");
    std::size_t lines = 0;
    std::istringstream logLines(log);
    for (std::string line; std::getline(logLines, line);) {
        const bool isHeading = line.starts_with('#') || line.find(" == ") != std::string::npos;
        lines += isHeading ? 0U : 1U;
    }
    EXPECT_THAT(run.out, EndsWith("\n37 exchanges, 55 values, no faults; written: values " + m_folder.Path("v.csv") +
                                  " (55 rows), operation log " + m_folder.Path("op.log") + " (" +
                                  std::to_string(lines) + " lines)\n"));
    for (const char* message : {"GetGroupEcuList", "EcuConnect", "GetVinCode", "GetDTC", "GetFFD", "ClearDTC",
                                "GetDataMonitorList", "StartDataMonitor"}) {
        EXPECT_THAT(log, HasSubstr("[CKRMC" + std::string(message) + "CmdAdaptDataRcv::ErrWriteOperationLog] "));
    }
    EXPECT_THAT(log, HasSubstr("[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[2].m_strDTC=P0420\n"));
    EXPECT_THAT(log, HasSubstr("[CKRMCGetFFDCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_cConversionTbl.m_lMul="));
    // The answers of the monitor write their base only: command 21.
    EXPECT_THAT(log, HasSubstr("[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=21\n"));
}

TEST_F(Session, TheReportIsWhatAPersonHasRead) {
    // Read by a person; what changes here must be read again.
    std::ifstream golden(std::string(KRM_GOLDEN_DIR) + "/session_report.txt", std::ios::binary);
    const std::string expected((std::istreambuf_iterator<char>(golden)), std::istreambuf_iterator<char>());
    ASSERT_FALSE(expected.empty());
    const SessionResult run = RunSession({});
    EXPECT_EQ(run.status, 0);
    // The first line names the file, which lies elsewhere in every checkout.
    EXPECT_THAT(run.out, StartsWith("Recording  "));
    EXPECT_EQ(run.out.substr(run.out.find('\n') + 1), expected);
}

TEST_F(Session, HelpAndVersion) {
    for (const char* option : {"--help", "-h"}) {
        const SessionResult run = RunSession({option});
        EXPECT_EQ(run.status, 0);
        EXPECT_EQ(run.err, "");
        EXPECT_THAT(run.out, HasSubstr("diagnosis_session [OPTIONS] [RECORDING] [ITEMS]\n"));
        for (const char* named : {"--operation-log FILE", "--values FILE", "--units", "--json", "--version"}) {
            EXPECT_THAT(run.out, HasSubstr(named));
        }
    }
    EXPECT_EQ(RunSession({"--version"}).out, "diagnosis_session 1.0.0\n");
}

TEST_F(Session, BadArguments) {
    const std::vector<std::pair<std::vector<std::string>, std::string>> cases = {
        {{"--nonsense"}, "The following argument was not expected: --nonsense"},
        {{"-x"}, "The following argument was not expected: -x"},
        {{"--log", "x"}, "The following argument was not expected: --log"},
        {{"--operation-log"}, "--operation-log: 1 required FILE missing"},
        {{"--operation-log", "-"}, "--operation-log: needs a file; standard output has the report"},
        {{"--values=-"}, "--values: needs a file; standard output has the report"},
        {{"--values", ""}, "--values: needs a file"},
        {{"--units=furlongs"}, "--units: furlongs not in {metric,imperial}"},
        {{"a", "b", "c"}, "The following argument was not expected: c"},
        {{""}, "RECORDING: needs a file"},
        {{"--record=-"}, "--record: needs a file; standard output has the report"},
        {{"--replay", ""}, "--replay: needs a file"},
    };
    for (const auto& [arguments, what] : cases) {
        const SessionResult run = RunSession(arguments);
        EXPECT_EQ(run.status, 2) << what;
        EXPECT_EQ(run.out, "") << what;
        EXPECT_THAT(run.err, StartsWith("diagnosis_session: " + what));
        EXPECT_THAT(run.err, EndsWith("\nRun diagnosis_session --help for how to call it.\n"));
    }
}

TEST_F(Session, FilesThatCannotBeUsed) {
    const std::string nothing = m_folder.Path("nothing");
    const std::string recording = m_folder.Write("r.log", "(1.0) can0 7DF#02010C\n");
    const std::string items = m_folder.Write("i.json", kItems);
    const std::string trace = m_folder.Write("mytrace.log", "(1.0) can0 7DF#02010C\n");
    const std::string log = m_folder.Path("op.log");
    const std::string nowhere = m_folder.Path("no folder") + "/file";
    const std::string folder = m_folder.Path("");
    const std::vector<std::pair<std::vector<std::string>, std::string>> cases = {
        {{nothing, items}, nothing + ": cannot be read: no such file\n"},
        {{recording, nothing}, nothing + ": cannot be read: no such file\n"},
        {{folder, items}, folder + ": cannot be read: it is a directory\n"},
        {{recording, folder}, folder + ": cannot be read: it is a directory\n"},
        {{recording, items, "--operation-log", nowhere}, nowhere + ": cannot be written: no such file\n"},
        {{recording, items, "--values=" + nowhere}, nowhere + ": cannot be written: no such file\n"},
        {{recording, items, "--values", folder}, folder + ": cannot be written: it is a directory\n"},
        {{recording, items, "--operation-log", recording}, recording + ": is an input; it will not be overwritten\n"},
        {{recording, items, "--values", items}, items + ": is an input; it will not be overwritten\n"},
        {{recording, items, "--operation-log", log, "--values", log},
         log + ": can't be both operation log and values\n"},
        {{recording, items, "--operation-log", trace},
         trace + ": is there and is not an operation log; it will not be overwritten\n"},
        {{recording, items, "--values", trace},
         trace + ": is there and is not a file of values; it will not be overwritten\n"},
    };
    for (const auto& [arguments, what] : cases) {
        const SessionResult run = RunSession(arguments);
        EXPECT_EQ(run.status, 2) << what;
        EXPECT_EQ(run.err, "diagnosis_session: " + what);
        EXPECT_EQ(run.out, "") << what;
    }
    EXPECT_EQ(m_folder.Read("mytrace.log"), "(1.0) can0 7DF#02010C\n");
}

TEST_F(Session, AnInputUnderAnotherNameIsNotOverwritten) {
    const std::string recording = m_folder.Write("r.log", "");
    const std::string items = m_folder.Write("i.json", kItems);
    std::error_code error;
    std::filesystem::create_hard_link(recording, m_folder.Path("other.log"), error);
    if (error) {
        GTEST_SKIP() << "no hard links here: " << error.message();
    }
    const SessionResult run = RunSession({recording, items, "--operation-log", m_folder.Path("other.log")});
    EXPECT_EQ(run.status, 2);
    EXPECT_THAT(run.err, HasSubstr("other.log: is an input; it will not be overwritten\n"));
}

TEST_F(Session, ItsOwnOutputsAreWrittenAnew) {
    const std::vector<std::string> frames = {"7DF#02010D", "7E8#03410D01"};
    EXPECT_EQ(Run(frames).status, 0);
    const std::string log = m_folder.Read("op.log");
    EXPECT_EQ(Run(frames).status, 0);
    EXPECT_EQ(m_folder.Read("op.log"), log);
}

TEST_F(Session, TheLogHasAHeadingBeforeEachMessage) {
    m_folder.Write("i.json", kItems);
    const std::string recording = m_folder.Write(
        "r.log",
        "(1731000000.048500) can0 7DF#02010D\n(1731000000.052500) can0 7E8#03410D01\n(1731000000.06) can0 "
        "7DF#0103\n(1731000000.07) can0 7E8#0443010301\n");
    ASSERT_EQ(RunSession({recording, m_folder.Path("i.json"), "--operation-log", m_folder.Path("op.log")}).status, 0);
    const std::string log = m_folder.Read("op.log");
    EXPECT_THAT(log, StartsWith("# Operation log of diagnosis_session\n"
                                "2024-11-07T17:20:00.048Z 1 == GetGroupEcuList request (type 1, ID 12)\n"
                                "2024-11-07T17:20:00.048Z 1 [CKRMCBaseCmdAdaptData::ErrWriteOperationLog] "
                                "m_dwCommandType=1\n"));
    EXPECT_THAT(log, HasSubstr("\n2024-11-07T17:20:00.070Z 1 == GetDTC request (type 1, ID 2)\n"
                               "2024-11-07T17:20:00.070Z 1 [CKRMCBaseCmdAdaptData::ErrWriteOperationLog] "
                               "m_dwCommandType=1\n"));
    EXPECT_THAT(log, HasSubstr("\n2024-11-07T17:20:00.070Z 1 == GetDTC answer (type 1, ID 2)\n"));

    // A recording without times.
    const std::string timeless = m_folder.Write("t.log", "can0 7DF [3] 02 01 0D\ncan0 7E8 [4] 03 41 0D 01\n");
    ASSERT_EQ(RunSession({timeless, m_folder.Path("i.json"), "--operation-log", m_folder.Path("op.log")}).status, 0);
    EXPECT_THAT(m_folder.Read("op.log"), HasSubstr("\n1970-01-01T00:00:00.000Z 1 == GetDataMonitorValue answer "
                                                   "(type 1, ID 21)\n"));
}

TEST_F(Session, WithoutALogNothingIsLogged) {
    const SessionResult run = RunSession({});
    EXPECT_EQ(run.err, "");
    EXPECT_FALSE(std::filesystem::exists("diagnosis_session.log"));
}

TEST_F(Session, OtherKindsOfFileAreNamedWithTheCommandThatConvertsThem) {
    using namespace std::string_literals;
    const std::string items = m_folder.Write("i.json", kItems);
    const std::vector<std::tuple<std::string, std::string, std::string>> cases = {
        {"drive.asc", "date Mon Nov 7 05:20:00.000 pm 2024\nbase hex  timestamps absolute\n",
         "looks like an ASC recording; make a candump recording of it with: asc2log -I "},
        {"drive.trc", ";$FILEVERSION=1.1\n",
         "looks like a TRC recording; make a candump recording of it with: can_logconvert "},
        {"drive.pcap", "\xD4\xC3\xB2\xA1\x02\0\x04\0"s,
         "looks like a pcap capture; make a candump recording of it with: tshark -r "},
        {"drive.pcapng", "\x0A\x0D\x0D\x0A"s,
         "looks like a pcapng capture; make a candump recording of it with: tshark -r "},
        {"drive.blf", "LOGG\x90\0"s,
         "looks like a BLF recording; make a candump recording of it with: can_logconvert "},
        {"drive.bin",
         "\x7F"
         "ELF\0\0"s,
         "looks like a binary file; a recording is text, as candump -l writes it"},
        {"drive.json", "{}", "looks like JSON, as item tables are; the recording comes first, then the item table"},
        {"drive.csv", "exchange,request,item,raw,value,unit,time,ecu,name,text\n",
         "is a file of values that this program wrote, not a recording\n"},
        {"drive.op", "# Operation log of diagnosis_session\n",
         "is an operation log that this program wrote, not a recording\n"},
    };
    for (const auto& [name, content, what] : cases) {
        const std::string path = m_folder.Write(name, content);
        const SessionResult run = RunSession({path, items});
        EXPECT_EQ(run.status, 2) << name;
        EXPECT_THAT(run.err, StartsWith("diagnosis_session: " + path + ": " + what));
    }
}

TEST_F(Session, AFileThatIsRefusedIsClosed) {
    const std::string file = m_folder.Write("drive.json", "{}");
#ifdef _WIN32
    EXPECT_THROW(diagnosis_session::RecordingFile{file}, diagnosis_session::FileError);
    EXPECT_TRUE(std::filesystem::remove(file));  // an open one isn't
#else
    const auto nextNumber = [] {
        const int number = open("/dev/null", O_RDONLY);
        close(number);
        return number;
    };
    const int before = nextNumber();
    EXPECT_THROW(diagnosis_session::RecordingFile{file}, diagnosis_session::FileError);
    EXPECT_EQ(nextNumber(), before);
#endif
}

TEST_F(Session, NoCommandToConvertAFileWritesIntoThatFile) {
    EXPECT_EQ(diagnosis_session::OtherKindOfFile("BZh9", "drive.log"),
              "looks like a file packed with bzip2; make a candump recording of it with: bzip2 -dc drive.log > "
              "drive.candump.log");
    EXPECT_EQ(diagnosis_session::OtherKindOfFile("BZh9", "my drive.bz2"),
              "looks like a file packed with bzip2; make a candump recording of it with: bzip2 -dc 'my drive.bz2' > "
              "'my drive.log'");
    EXPECT_EQ(
        diagnosis_session::OtherKindOfFile("BZh9", "-"),
        "looks like a file packed with bzip2; make a candump recording of it with: bzip2 -dc FILE > recording.log");
}

TEST_F(Session, ComplaintsAreCappedWithACountOfTheRest) {
    const SessionResult run = Run(std::vector<std::string>(50, "rubbish"));
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(std::count(run.err.begin(), run.err.end(), '\n'), 21);
    EXPECT_THAT(run.err, EndsWith(m_folder.Path("r.log") + ": 30 more faults are not shown\n"));
    EXPECT_THAT(run.out, HasSubstr("0 exchanges, 0 values, 50 faults"));
}

TEST_F(Session, CandumpsPlainOutputWindowsLineEndsAndAByteOrderMark) {
    const std::string items = m_folder.Write("i.json", kItems);
    const std::string expected = "1,010C,RPM,3052,763.00000,rpm\n";
    for (
        const char* text : {
            "  can0  7DF   [8]  02 01 0C 00 00 00 00 00\n  can0  7E8   [8]  04 41 0C 0B EC 00 00 00\n",
            "\xEF\xBB\xBF(1.5) can0 7DF#02010C\r\n(1.6) can0 7E8#04410C0BEC\r\n",
            " (1731000000.048500)  can0  TX - -  7DF   [3]  02 01 0C   '...'\n (1731000000.050000)  can0  RX - -  7E8   "
            "[5]  04 41 0C 0B EC   '.A...'\n",
            " (2024-11-07 17:20:00.048500)  can0  7DF   [3]  02 01 0C\n (2024-11-07 17:20:00.050000)  can0  7E8   [5]  04 "
            "41 0C 0B EC",
        }) {
        const SessionResult run =
            RunSession({m_folder.Write("r.log", text), items, "--values", m_folder.Path("v.csv")});
        EXPECT_EQ(run.status, 0) << text;
        EXPECT_EQ(run.err, "") << text;
        EXPECT_EQ(Values(), expected) << text;
    }
    EXPECT_EQ(m_folder.Read("v.csv"),
              "exchange,request,item,raw,value,unit,time,ecu,name,text\n"
              "1,010C,RPM,3052,763.00000,rpm,1731000000.050000,7E8,Speed,763.00 rpm\n");
}

TEST_F(Session, ImperialUnitsGoThroughTheUnitConversionMessages) {
    const SessionResult run = RunSession(
        {"--units", "imperial", "--operation-log", m_folder.Path("op.log"), "--values", m_folder.Path("v.csv")});
    EXPECT_EQ(run.status, 0);
    EXPECT_THAT(run.out, HasSubstr("Engine coolant temperature                                  181 °F\n"));
    EXPECT_THAT(run.out, HasSubstr("Vehicle speed                                              44.7 mph\n"));
    EXPECT_THAT(run.out, HasSubstr("Barometric pressure                                        14.6 psi\n"));
    // What programs read stays as the item table has it; the text is what is shown.
    EXPECT_THAT(m_folder.Read("v.csv"), HasSubstr(",ECT,123,83.00000,celsius,1731000000.427000,7E8,Engine coolant "
                                                  "temperature,181 °F\n"));
    EXPECT_THAT(m_folder.Read("op.log"),
                HasSubstr("[CKRMCSetUnitConversionInfoUccAdaptDataSnd::ErrWriteOperationLog] Data[0].m_uchUnitId=2\n"));
}

TEST_F(Session, JsonForPrograms) {
    const SessionResult run = RunSession({"--json"});
    EXPECT_EQ(run.status, 0);
    EXPECT_THAT(run.out, HasSubstr("\"frames\": 91, \"begin\": 1731000000.048500, \"duration\": 1.922500, \"ecus\": "
                                   "[\"7E8\", \"7E9\"]"));
    EXPECT_THAT(run.out,
                HasSubstr("{\"kind\": \"value\", \"exchange\": 12, \"request\": \"010C0D11\", \"ecu\": \"7E8\", "
                          "\"time\": 1731000000.639000, \"item\": \"TP\", \"name\": \"Throttle position\", \"raw\": "
                          "38, \"value\": 14.90196, \"unit\": \"percent\", \"text\": \"14.9 %\"}"));
    EXPECT_THAT(run.out, HasSubstr("\"summary\": {\"exchanges\": 37, \"values\": 55, \"faults\": 0, \"interrupted\": "
                                   "false"));
}

TEST_F(Session, AnInterruptEndsItWithWhatWasDecoded) {
    volatile std::sig_atomic_t interrupt = 1;
    std::ostringstream out;
    std::ostringstream err;
    const int status = diagnosis_session::RunDiagnosisSession({"diagnosis_session"}, out, err, {false, &interrupt});
    EXPECT_EQ(status, 1);
    EXPECT_EQ(err.str(), "diagnosis_session: interrupted; what was decoded until then is there\n");
    EXPECT_THAT(out.str(), EndsWith("; interrupted, the rest of the recording was not decoded\n"));
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
    EXPECT_THAT(run.out, HasSubstr("ECUs       7E8, 7E9\n"));
}

TEST_F(Session, ItemsThatTheEcuLeavesOutAreShownAsSuch) {
    const SessionResult run = Run({"7DF#020108", "7E8#03410805"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(Values(), "1,0108,A,5,5.00000,\n");
    EXPECT_THAT(run.out, HasSubstr("  7E8  B           not in the answer\n"));
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
    EXPECT_THAT(run.out, HasSubstr("\n0 exchanges, 0 values, "));
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
    EXPECT_THAT(run.out, StartsWith("Recording  " + m_folder.Path("r.log") + " is empty\n           0 frames\n"));
    EXPECT_THAT(run.out, HasSubstr("\n0 exchanges, 0 values, "));
    const SessionResult json = RunSession({"--json", m_folder.Path("r.log"), m_folder.Path("i.json")});
    EXPECT_THAT(json.out, HasSubstr("r.log\", \"frames\": 0, "));
}

TEST_F(Session, ATableThatIsNoTableLeavesTheRestDecoded) {
    const std::vector<std::string> frames = {"7DF#0103", "7E8#0443010301", "7DF#02010D", "7E8#03410D02"};
    for (const auto& [table, fault] : std::vector<std::pair<std::string, std::string>>{
             {"{\n\"commands\": [\n}", "3:1: no values are decoded: not JSON from here on"},
             {"", "1:1: no values are decoded: not JSON: the file ends here, before the document does"},
             {"{}", "1:1: no values are decoded: no array \"commands\""},
             {"[]", "1:1: no values are decoded: no array \"commands\""}}) {
        const SessionResult run = Run(frames, table);
        EXPECT_EQ(run.err, TableFault(fault));
        EXPECT_EQ(run.status, 1) << fault;
        EXPECT_THAT(run.out, HasSubstr("  7E8  stored     P0301\n"));
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
    EXPECT_EQ(
        run.err,
        TableFault("3:33: item LONG left out: 40 bits long; a value has at most 32") +
            TableFault("4:34: item EMPTY left out: \"len\" is 0") +
            TableFault("5:32: item NEG left out: \"len\" is not a whole number up to 4294967295") +
            TableFault("6:26: item NOLEN left out: \"len\" is not a whole number up to 4294967295") +
            TableFault("7:3: item NOFMT left out: \"fmt\" is not an object") +
            TableFault("8:3: item left out: \"id\" is not a text") +
            TableFault("9:32: item BIX left out: \"bix\" is not a whole number up to 32760") +
            TableFault("10:42: item MUL left out: \"mul\" is not a number") +
            TableFault("11:42: item DIV left out: the scaling 1 / 0 + 0 doesn't fit numbers of 32 bits") +
            TableFault("12:44: item SIGN left out: \"sign\" is not true or false") +
            TableFault("13:43: item MAP left out: \"map\" has the key \"one\", not a raw value in decimal") +
            TableFault("14:49: item MAP2 left out: \"map\" has no object for \"1\"") +
            TableFault("15:54: item MAP3 left out: \"map\" and a scaling exclude each other") +
            TableFault("16:3: item left out: not an object") +
            TableFault("20:11: command left out: \"cmd\" is not one service with its parameter ID, in hexadecimal") +
            TableFault("21:10: command left out: \"cmd\" is empty") +
            TableFault("22:35: command left out: \"signals\" is not an array") +
            TableFault("23:31: command left out: \"rax\" is not a CAN ID in hexadecimal") +
            TableFault("24:2: command left out: not an object") +
            TableFault("25:22: \"dtcs\" has no text for \"P0001\""));
    EXPECT_EQ(Values(), "1,010D,GOOD,2,2.00000,\n");
}

TEST_F(Session, WhatATableMayNotHaveIsToldWithTheNearestKey) {
    const SessionResult run = Run({"7DF#02010C", "7E8#04410C0BEC"}, R"({"comands": 1, "commands": [
 {"cmd": {"01": "0C"}, "signals": [
  {"id": "RPM", "fmt": {"len": 16, "dvi": 4}},
  {"id": "LEN", "fmt": {"len": 16, "len": 8}},
  {"id": "MIN", "fmt": {"len": 16, "min": 2, "max": 1}},
  {"id": "FAR", "fmt": {"len": 16, "something": 4}},
  {"id": "GOOD", "fmt": {"len": 16, "div": 4}}]}]})");
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.err,
              TableFault("1:2: unknown key \"comands\"; did you mean \"commands\"?") +
                  TableFault("3:36: item RPM left out: unknown key \"dvi\"; did you mean \"div\"?") +
                  TableFault("4:36: item LEN left out: the key \"len\" is there twice; the first is in line 4") +
                  TableFault("5:43: item MIN left out: \"min\" is above \"max\"") +
                  TableFault("6:36: item FAR left out: unknown key \"something\""));
    EXPECT_EQ(Values(), "1,010C,GOOD,3052,763.00000,\n");
}

TEST_F(Session, AFaultStaysOneLineWhateverItQuotes) {
    const SessionResult run = Run({}, R"({"commands": [{"cmd": {"01": "0D"}, "signals": [
  {"id": "A\nB\u0000\u001b[2J\u007f\u00e9", "fmt": {"len": 0}},
  {"id": "C", "fmt": {"len": 8, "map": {"1\r\n": {"value": "x"}}}}]}]})");
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.err,
              TableFault("2:60: item A?B??[2J?\xC3\xA9 left out: \"len\" is 0") +
                  TableFault("3:41: item C left out: \"map\" has the key \"1??\", not a raw value in decimal"));
}

}  // namespace

// A session that is recorded, and run again from the recording alone.
#include <gmock/gmock.h>

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/not_under.h"
#include "tests/support/session_run.h"

namespace {

using krm::test::RunSession;
using krm::test::SessionFolder;
using krm::test::SessionResult;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::StartsWith;

/// What a session came to, with all that it wrote.
struct Outcome {
    SessionResult run;
    std::string operationLog;
    std::string values;
};

class RecordedSession : public ::testing::Test {
protected:
    Outcome Run(std::vector<std::string> arguments) {
        arguments.insert(arguments.end(),
                         {"--operation-log", m_folder.Path("op.log"), "--values", m_folder.Path("v.csv")});
        Outcome outcome = {RunSession(std::move(arguments)), m_folder.Read("op.log"), m_folder.Read("v.csv")};
        std::filesystem::remove(m_folder.Path("op.log"));
        std::filesystem::remove(m_folder.Path("v.csv"));
        return outcome;
    }

    /// Runs with these arguments alone, then recording, then from the recording: all must come to the same.
    void ExpectTheSame(const std::vector<std::string>& arguments, int status) {
        const Outcome plain = Run(arguments);
        EXPECT_EQ(plain.run.status, status);
        EXPECT_GT(plain.operationLog.size(), 1000U);
        std::vector<std::string> recordingToo = arguments;
        recordingToo.insert(recordingToo.end(), {"--record", m_folder.Path("r")});
        const Outcome recorded = Run(recordingToo);
        EXPECT_EQ(recorded.run.err, plain.run.err);
        const Outcome replayed = Run({"--replay", m_folder.Path("r")});
        EXPECT_EQ(replayed.run.err, "");
        for (const Outcome& other : {recorded, replayed}) {
            EXPECT_EQ(other.run.status, status);
            EXPECT_EQ(other.run.out, plain.run.out);
            EXPECT_EQ(other.values, plain.values);
            // Not by EXPECT_EQ, which would print megabytes.
            EXPECT_TRUE(other.operationLog == plain.operationLog);
        }
    }

    SessionFolder m_folder;
};

TEST_F(RecordedSession, GivesTheSameFromTheRecordingAlone) {
    ExpectTheSame({}, 0);
}

TEST_F(RecordedSession, GivesTheSameInOtherUnits) {
    ExpectTheSame({"--units", "imperial"}, 0);
}

TEST_F(RecordedSession, GivesTheSameOfRecordedVehicles) {
    KRM_NOT_UNDER(Memcheck, "it would take minutes");
    const std::filesystem::path folder = KRM_TEST_DATA_DIR "/obd";
    ExpectTheSame({(folder / "recorded.log").string(), (folder / "items.json").string()}, 0);
}

TEST_F(RecordedSession, GivesTheSameWhereThereIsNothing) {
    const Outcome plain = Run({m_folder.Write("empty.log", "")});
    const Outcome recorded = Run({m_folder.Path("empty.log"), "--record", m_folder.Path("r")});
    const Outcome replayed = Run({"--replay", m_folder.Path("r")});
    EXPECT_EQ(recorded.run.out, plain.run.out);
    EXPECT_EQ(replayed.run.out, plain.run.out);
    EXPECT_EQ(replayed.operationLog, plain.operationLog);
    EXPECT_THAT(replayed.run.out, HasSubstr("empty.log is empty"));
}

// What was wrong with the input is counted again; it was told when it was read.
TEST_F(RecordedSession, KeepsTheNumberOfFaults) {
    const std::string log = m_folder.Write("bad.log",
                                           "rubbish\n"
                                           "(1.0) can0 7DF#02010D\n"
                                           "(1.1) can0 7E8#03410D01\n"
                                           "rubbish\n");
    const Outcome recorded = Run({log, "--record", m_folder.Path("r")});
    EXPECT_EQ(recorded.run.status, 1);
    EXPECT_THAT(recorded.run.err, HasSubstr("bad.log:4"));
    EXPECT_THAT(recorded.run.out, HasSubstr(" 2 faults; "));
    const Outcome replayed = Run({"--replay", m_folder.Path("r")});
    EXPECT_EQ(replayed.run.status, 1);
    EXPECT_EQ(replayed.run.err, "");
    EXPECT_EQ(replayed.run.out, recorded.run.out);
}

TEST_F(RecordedSession, WritesJsonToo) {
    RunSession({"--record", m_folder.Path("r")});
    EXPECT_EQ(RunSession({"--replay", m_folder.Path("r"), "--json"}).out, RunSession({"--json"}).out);
}

TEST_F(RecordedSession, TakesThePlaceOfAnOlderRecording) {
    EXPECT_EQ(RunSession({"--record", m_folder.Path("r")}).status, 0);
    const std::size_t size = m_folder.Read("r").size();
    EXPECT_EQ(RunSession({"--record", m_folder.Path("r")}).status, 0);
    EXPECT_EQ(m_folder.Read("r").size(), size);
}

TEST_F(RecordedSession, GoesAsFarAsARecordingThatWasCutOff) {
    const SessionResult whole = RunSession(
        {"--record", m_folder.Path("r"), "--values", m_folder.Path("v"), "--operation-log", m_folder.Path("log")});
    const std::string text = m_folder.Read("r");
    // Before an answer: the application waits for it.
    const std::string path =
        m_folder.Write("cut", text.substr(0, text.rfind("\"direction\":\"answer\"", text.size() / 2)));
    const SessionResult cut =
        RunSession({"--replay", path, "--values", m_folder.Path("cut v"), "--operation-log", m_folder.Path("cut log")});
    EXPECT_EQ(cut.status, 2);
    EXPECT_THAT(cut.err, StartsWith("diagnosis_session: " + path + ": exchange "));
    EXPECT_THAT(cut.err, EndsWith(" request has no answer\n"));
    EXPECT_THAT(whole.out, StartsWith(cut.out));
    EXPECT_GT(cut.out.size(), 100U);
    EXPECT_THAT(m_folder.Read("v"), StartsWith(m_folder.Read("cut v")));
    EXPECT_GT(m_folder.Read("cut v").size(), 100U);
    EXPECT_THAT(m_folder.Read("log"), StartsWith(m_folder.Read("cut log")));
    EXPECT_GT(m_folder.Read("cut log").size(), 1000U);
    // Between a message of the bus and the next: the session was interrupted there.
    const std::size_t last = text.rfind(
        "{\"exchange\":",
        text.rfind("\"command\":\"GetDataMonitorReceiveInfo\",\"family\":\"Cmd\",\"direction\":\"request\""));
    const SessionResult interrupted = RunSession({"--replay", m_folder.Write("cut", text.substr(0, last))});
    EXPECT_EQ(interrupted.status, 1);
    EXPECT_EQ(interrupted.err, "diagnosis_session: interrupted; what was decoded until then is there\n");
    EXPECT_THAT(interrupted.out, HasSubstr("  7E8  stored     P0301  Cylinder 1 misfire detected\n"));
}

TEST_F(RecordedSession, WrongUse) {
    const std::vector<std::pair<std::vector<std::string>, std::string>> cases = {
        {{"--replay=r", "recording"}, "RECORDING excludes --replay"},
        {{"--replay=r", "--record=s"}, "--record excludes --replay"},
        {{"--replay=r", "--units=metric"}, "--units excludes --replay"},
    };
    for (const auto& [arguments, what] : cases) {
        const SessionResult run = RunSession(arguments);
        EXPECT_EQ(run.status, 2) << what;
        EXPECT_EQ(run.out, "") << what;
        EXPECT_EQ(run.err, "diagnosis_session: " + what + "\nRun diagnosis_session --help for how to call it.\n");
    }
}

TEST_F(RecordedSession, FilesThatCannotBeUsed) {
    const std::string log = m_folder.Path("op.log");
    const std::string trace = m_folder.Write("mytrace.log", "(1.0) can0 7DF#02010C\n");
    const std::string nothing = m_folder.Path("nothing");
    const std::string nowhere = m_folder.Path("no folder") + "/file";
    const std::vector<std::pair<std::vector<std::string>, std::string>> cases = {
        {{trace, "--record", trace}, trace + ": is an input; it will not be overwritten\n"},
        {{"--values", log, "--record", log}, log + ": can't be both values and recording\n"},
        {{"--operation-log", log, "--record", log}, log + ": can't be both operation log and recording\n"},
        {{"--record", trace}, trace + ": is there and is not a recording of a session; it will not be overwritten\n"},
        {{"--record", nowhere}, nowhere + ": cannot be written: no such file\n"},
        {{"--replay", nothing}, nothing + ": the file can't be opened: No such file or directory\n"},
        {{"--replay", trace}, trace + ": line 1, offset 0: the file is no recording\n"},
        {{"--replay", trace, "--values", trace}, trace + ": is an input; it will not be overwritten\n"},
    };
    for (const auto& [arguments, what] : cases) {
        const SessionResult run = RunSession(arguments);
        EXPECT_EQ(run.status, 2) << what;
        EXPECT_EQ(run.err, "diagnosis_session: " + what);
        EXPECT_EQ(run.out, "") << what;
    }
    EXPECT_EQ(m_folder.Read("mytrace.log"), "(1.0) can0 7DF#02010C\n");
}

TEST_F(RecordedSession, SaysWhatIsNoRecordingOfASession) {
    const std::string path =
        m_folder.Write("r", "{\"format\":\"krm recording\",\"version\":1,\"library\":\"1.0.0\"}\n");
    const SessionResult run = RunSession({"--replay", path});
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.err,
              "diagnosis_session: " + path + ": is no recording of a session: no StartSession request was recorded\n");
}

}  // namespace

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "tests/cli/calls.h"
#include "tests/exchange/recording_text.h"
#include "tests/support/folder.h"

namespace {

using krm::test::Call;
using krm::test::Krm;
using krm::test::RecordedVin;
using ::testing::StartsWith;

// A name may come from a stranger, as what is shown does.
TEST(Program, TellsNamesOfFilesHarmlessly) {
    const Call call = Krm({"show", "no\x1b[2J\nfile"});
    EXPECT_EQ(call.status, 2);
    EXPECT_THAT(call.err, StartsWith("krm: no\\x1B[2J\\x0A"
                                     "file: cannot be read: "));
    EXPECT_THAT(Krm({"show", "a.log", "\x1b[2J"}).err, StartsWith("krm: The following argument was not expected: "
                                                                  "\\x1B[2J\nRun krm show --help"));
}

TEST(Program, EndsAsBadPartsAreTold) {
    const krm::test::TestFolder folder;
    const std::string file =
        folder.Write("a.krmrec", std::string(krm::test::kHeader) + RecordedVin("request", R"({"m_ulEcuId":7})") +
                                     "no line\n" + RecordedVin("request", R"({"m_ulEcuId":8})", 2));
    const Call first = Krm({"show", file, "--message", "1"});
    EXPECT_EQ(first.status, 0);
    EXPECT_EQ(first.err, "");
    const Call second = Krm({"show", file, "--message", "2"});
    EXPECT_EQ(second.status, 1);
    EXPECT_THAT(second.err, StartsWith(file + ":3: "));
    EXPECT_EQ(second.out,
              "    2  2026-11-22T09:35:01.123Z  GetVinCode request, ECU 8\n"
              "       m_ulEcuId = 8\n");
}

TEST(Program, ShowsAnEcuOf32BitsOfARecording) {
    const krm::test::TestFolder folder;
    const std::string file = folder.Write(
        "a.krmrec", std::string(krm::test::kHeader) + RecordedVin("request", R"({"m_ulEcuId":417001234})"));
    EXPECT_THAT(Krm({"show", file}).out,
                StartsWith("    1  2026-11-22T09:35:01.123Z  GetVinCode request, ECU 417001234\n"));
}

TEST(Program, ShowsTimesOfAllYears) {
    const krm::test::TestFolder folder;
    for (const char* const year : {"0001", "1600", "1677", "1970", "2262", "2263", "4052", "9999"}) {
        const std::string file = folder.Write(
            "a.krmrec", std::string(krm::test::kHeader) + RecordedVin("request", R"({"m_ulEcuId":7})", 1, year));
        EXPECT_THAT(Krm({"show", file}).out,
                    StartsWith("    1  " + std::string(year) + "-11-22T09:35:01.123Z  GetVinCode request, ECU 7\n"));
    }
}

// Six decimals are read as the double nearest to them, which needn't be the one that was logged.
TEST(Program, TakesADoubleOfALogForThatOfARecording) {
    const krm::test::TestFolder folder;
    const std::string recording = folder.Write(
        "a.krmrec", std::string(krm::test::kHeader) +
                        R"({"exchange":1,"time":"2026-11-22T09:35:01.123456Z","type":1,"id":32,"message":{"command":)"
                        R"("StartActiveTest","family":"Cmd","direction":"request","content":{"m_ulEcuId":7,"Data":)"
                        R"([{"m_uchType":1,"m_dData":6606859581.0827465}]}}})"
                        "\n");
    const auto log = [&](const std::string& value) {
        return folder.Write("a.log",
                            "[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1\n"
                            "[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=32\n"
                            "[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=7\n"
                            "[CKRMCStartActiveTestCmdAdaptDataSnd::ErrWriteOperationLog] Data[0].m_uchType=1\n"
                            "[CKRMCStartActiveTestCmdAdaptDataSnd::ErrWriteOperationLog] Data[0].m_dData=" +
                                value + '\n');
    };
    const Call equal = Krm({"diff", log("6606859581.082747"), recording});
    EXPECT_EQ(equal.status, 0);
    EXPECT_EQ(equal.out, "");
    EXPECT_EQ(Krm({"diff", log("6606859581.1"), recording}).status, 1);
}

}  // namespace

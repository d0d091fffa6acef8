// krm diff: what it tells of two files.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <sstream>
#include <streambuf>
#include <string>
#include <thread>
#include <vector>

#include "tests/cli/calls.h"
#include "tests/exchange/recording_text.h"
#include "tests/support/folder.h"

namespace {

using krm::test::Call;
using krm::test::Krm;
using krm::test::RecordedVin;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::StartsWith;

const std::string kBase = "[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] ";
const std::string kAnswer = "[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] ";
const std::string kOwn = "[CKRMCOwnCmdAdaptDataRcv::ErrWriteOperationLog] ";

std::string Message(int id, const std::string& lines) {
    return kBase + "m_dwCommandType=1\n" + kBase + "m_dwCommandID=" + std::to_string(id) + '\n' + lines;
}
std::string Request(int id, int ecu) {
    return Message(id, "[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=" + std::to_string(ecu) + '\n');
}
/// An answer to GetDTC with these codes.
std::string Codes(const std::vector<std::string>& codes) {
    std::string lines;
    for (std::size_t i = 0; i < codes.size(); ++i) {
        lines += kAnswer + "Data[" + std::to_string(i) + "].m_strDTC=" + codes[i] + '\n';
    }
    return Message(
        2, "[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=0\n" + lines + kAnswer + "m_bDTCType=0\n");
}

Call Compared(const std::string& first, const std::string& second, std::vector<std::string> options = {},
              bool hasColours = false) {
    const krm::test::TestFolder folder;
    const std::string files[] = {folder.Write("a.log", first), folder.Write("b.log", second)};
    options.insert(options.begin(), {"diff", files[0], files[1]});
    return Krm(options, hasColours);
}

TEST(Diff, IsSilentWhereNothingDiffers) {
    const Call call = Compared(Codes({"P0301"}), Codes({"P0301"}));
    EXPECT_EQ(call.status, 0);
    EXPECT_EQ(call.out, "");
    EXPECT_EQ(Compared(Codes({"P0301"}), Codes({"P0301"}), {"--json"}).out,
              R"({"totals":{"equal":1,"different":0,"onlyIn1":0,"onlyIn2":0}})"
              "\n");
}

TEST(Diff, TellsWhatDiffers) {
    const Call call = Compared(Request(5, 7) + Codes({"P0301", "P0171"}) + Codes({"P0420"}),
                               Codes({"P0301", "P0172", "C0123"}) + Codes({"P0420"}) + Request(79, 8));
    EXPECT_EQ(call.status, 1);
    EXPECT_THAT(call.out, StartsWith("only in the first: message 1: ClearDTC request, ECU 7\n"
                                     "message 2, now 1: GetDTC answer\n"
                                     "  changed Data[1].m_strDTC: \"P0171\" -> \"P0172\"\n"
                                     "  added Data[2]: {m_uchDTCKind=0, m_ulDTCCode=0, m_strDTC=\"C0123\", "));
    EXPECT_THAT(call.out, EndsWith("}\n"
                                   "only in the second: message 3: GetVinCode request, ECU 8\n"
                                   "1 messages are equal, 1 differ; only in the first are 1, only in the second 1\n"));
}

TEST(Diff, WritesDocuments) {
    const Call call = Compared(Request(5, 7) + Codes({"P0301", "P0171"}), Codes({"P0172", "P0301"}) + Request(79, 8),
                               {"--json", "--key", "Data=m_strDTC"});
    EXPECT_EQ(call.status, 1);
    EXPECT_THAT(call.out, HasSubstr(R"({"difference":"message","onlyIn":1,"message":1,"command":"ClearDTC"})"
                                    "\n"));
    EXPECT_THAT(call.out,
                HasSubstr(R"({"difference":"removed","message1":2,"message2":1,"command":"GetDTC","path":"Data[1]",)"));
    EXPECT_THAT(call.out,
                HasSubstr(R"({"difference":"added","message1":2,"message2":1,"command":"GetDTC","path":"Data[0]",)"));
    EXPECT_THAT(call.out, EndsWith(R"({"difference":"message","onlyIn":2,"message":2,"command":"GetVinCode"})"
                                   "\n"
                                   R"({"totals":{"equal":0,"different":1,"onlyIn1":1,"onlyIn2":1}})"
                                   "\n"));
}

TEST(Diff, IsColouredOnATerminal) {
    const Call call = Compared(Request(5, 7) + Codes({"P0301", "P0171"}) + Codes({"P0420", "P0421"}),
                               Codes({"P0302", "P0171", "C0123"}) + Codes({"P0420"}) + Request(79, 8), {}, true);
    EXPECT_THAT(call.out, HasSubstr("\x1B[31monly in the first: message 1: ClearDTC request, ECU 7\x1B[0m\n"
                                    "\x1B[1mmessage 2, now 1: GetDTC answer\x1B[0m\n"
                                    "  \x1B[33mchanged Data[0].m_strDTC: \"P0301\" -> \"P0302\"\x1B[0m\n"
                                    "  \x1B[32madded Data[2]"));
    EXPECT_THAT(call.out, HasSubstr("\n  \x1B[31mremoved Data[1]"));
    EXPECT_THAT(call.out, HasSubstr("\x1B[32monly in the second: message 3: GetVinCode request, ECU 8\x1B[0m\n"));
    EXPECT_THAT(
        call.out,
        EndsWith("\x1B[2m0 messages are equal, 2 differ; only in the first are 1, only in the second 1\x1B[0m\n"));
}

// Lines that have no place in a message: those of a class that the library doesn't have.
TEST(Diff, ComparesLinesThatHaveNoPlaceAsTheyAre) {
    const auto own = [](const std::vector<std::string>& fields) {
        std::string lines;
        for (const std::string& field : fields) {
            lines += kOwn + field + '\n';
        }
        return Message(900, lines);
    };
    const Call call = Compared(own({"m_a=1", "m_b=2", "m_d=4"}), own({"m_a=1", "m_b=3", "m_c=5", "m_d=4", "m_e=6"}));
    EXPECT_EQ(call.status, 1);
    EXPECT_THAT(call.out, HasSubstr("  changed m_b: 2 -> 3\n  added m_c: 5\n  added m_e: 6\n"));
    EXPECT_THAT(Compared(own({"m_a=1", "m_b=2"}), own({"m_b=2"})).out, HasSubstr("  removed m_a: 1\n"));
    EXPECT_THAT(Compared(own({"m_a=1", "m_b=2", "m_c=4"}), own({"m_b=3"})).out,
                HasSubstr("  removed m_a: 1\n  changed m_b: 2 -> 3\n  removed m_c: 4\n"));
    const std::string first = own({"m_ulA=1", "m_b=2"});
    const std::string second = own({"m_b=2", "m_ulB=1"});
    EXPECT_EQ(Compared(first, second).status, 1);
    EXPECT_EQ(Compared(first, second, {"--ignore", "m_ul*"}).status, 0);
    EXPECT_EQ(Compared(first, own({"m_b=3"}), {"--ignore", "m_ul*"}).status, 1);
    EXPECT_EQ(Compared(own({"m_ulA=1", "m_b=2"}), own({"m_ulA=2", "m_b=2"}), {"--ignore", "m_ul*"}).status, 0);
    EXPECT_EQ(Compared(first, own({"m_b=3", "m_ulB=1"}), {"--ignore", "m_ul*"}).status, 1);
}

TEST(Diff, HasATolerance) {
    const auto test = [](const std::string& value) {
        return Message(32,
                       "[CKRMCStartActiveTestCmdAdaptDataSnd::ErrWriteOperationLog] Data[0].m_dData=" + value + '\n');
    };
    EXPECT_EQ(Compared(test("1.5"), test("1.625")).status, 1);
    EXPECT_EQ(Compared(test("1.5"), test("1.625"), {"--tolerance", "0.125"}).status, 0);
    EXPECT_EQ(Compared(test("1.5"), test("1.625"), {"--tolerance", "0.1"}).status, 1);
    for (const char* const wrong : {"-1", "-0.1", "0,1", "1 ", "nan", "much", "1e999"}) {
        const Call call = Compared(test("1.5"), test("1.5"), {"--tolerance=" + std::string(wrong)});
        EXPECT_EQ(call.status, 2) << wrong;
        EXPECT_EQ(call.err, "krm: --tolerance is no number of 0 or more: " + std::string(wrong) + '\n');
    }
}

TEST(Diff, RefusesWhatNoMessageHas) {
    const Call key = Compared(Codes({}), Codes({}), {"--key", "Data"});
    EXPECT_EQ(key.status, 2);
    EXPECT_EQ(key.err, "krm: --key needs PATH=FIELD: Data\n");
    const Call field = Compared(Codes({}), Codes({}), {"--key", "Data=m_strDTC,m_strDCT"});
    EXPECT_EQ(field.status, 2);
    EXPECT_THAT(field.err, HasSubstr("krm: --key Data=m_strDTC,m_strDCT: no message has this: "));
    EXPECT_EQ(Compared(Codes({"P0301"}), Codes({"P0301"}), {"--key", "Data=m_strDTC,m_ulDTCCode"}).status, 0);
    const Call neither = Compared("a\n", "b\n");
    EXPECT_EQ(neither.status, 2);
    EXPECT_THAT(neither.err, EndsWith("a.log:1: neither an operation log nor a recording\n"));
}

TEST(Diff, TellsLinesOfRecordingsThatItCantRead) {
    const std::string line = RecordedVin("request", R"({"m_ulEcuId":7})");
    const std::string whole = std::string(krm::test::kHeader) + line;
    const Call call = Compared(whole, whole + "no line\n" + line);
    EXPECT_EQ(call.status, 2);
    EXPECT_THAT(call.err, HasSubstr("b.log:3: "));
    EXPECT_EQ(call.out,
              "only in the second: message 2: GetVinCode request, ECU 7\n"
              "1 messages are equal, 0 differ; only in the first are 0, only in the second 1\n");
}

/// A terminal that takes so long for each line that a bar is due when the next block of a file is read.
class SlowTerminal : public std::streambuf {
public:
    const std::string& Text() const { return m_text; }

protected:
    int_type overflow(int_type character) override {
        m_text += traits_type::to_char_type(character);
        if (m_text.back() == '\n') {
            std::this_thread::sleep_for(std::chrono::milliseconds(250));
        }
        return character;
    }

private:
    std::string m_text;
};

TEST(Diff, TellsBadLinesWithNoBarInFrontOfThem) {
    const krm::test::TestFolder folder;
    const std::string line = RecordedVin("request", R"({"m_ulEcuId":7})");
    const std::string whole(krm::test::kHeader);
    // Longer than a block that is read, so that the bar comes in between.
    std::string text = whole + "no line\n";
    for (int i = 0; i < 20'000; ++i) {
        text += line;
    }
    const std::string bad = folder.Write("a.krmrec", text + "nor this\n");
    const std::string good = folder.Write("b.krmrec", whole + line);
    std::ostringstream out;
    SlowTerminal terminal;
    std::ostream err(&terminal);
    EXPECT_EQ(krm_cli::RunKrm({"krm", "diff", bad, good}, {out, err, false, true}), 2);
    EXPECT_THAT(terminal.Text(), StartsWith(bad + ":2: "));
    EXPECT_THAT(terminal.Text(), HasSubstr("\nsurveying ["));
    EXPECT_THAT(terminal.Text(), HasSubstr(" \r" + bad + ":20003: "));
}

}  // namespace

// krm redact: what it writes, refuses and tells.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "tests/cli/calls.h"
#include "tests/exchange/recording_text.h"
#include "tests/support/folder.h"

namespace {

using krm::test::Call;
using krm::test::Krm;
using krm::test::TestFolder;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::Not;

/// A recording of an answer with this VIN, and as many lines behind it that nobody can read.
std::string Recording(const std::string& vin, int faults = 0) {
    std::string text =
        std::string(krm::test::kHeader) + krm::test::RecordedVin("answer", R"({"m_strVinCode":")" + vin + "\"}");
    for (int i = 0; i < faults; ++i) {
        text += "no line\n";
    }
    return text;
}
const std::string kVin = "KRM00000000000001";

TEST(Redact, TellsWhatItReplaced) {
    const TestFolder folder;
    const std::string file = folder.Write("a.krmrec", Recording(kVin));
    const std::string copy = folder.Path("b.krmrec");
    const Call call = Krm({"redact", file, "-o", copy});
    EXPECT_EQ(call.status, 0) << call.err;
    EXPECT_EQ(call.err, "");
    EXPECT_EQ(call.out, "1 message, 1 place replaced, written to " + copy + '\n');
    EXPECT_THAT(folder.Read("b.krmrec"), Not(HasSubstr(kVin)));
    EXPECT_THAT(folder.Read("b.krmrec"), HasSubstr("\"m_strVinCode\":\""));
    EXPECT_FALSE(std::filesystem::exists(copy + ".part"));
}

TEST(Redact, FindsVinsUnlessItIsToldNotTo) {
    const TestFolder folder;
    const std::string file = folder.Write("a.krmrec", Recording(kVin));
    const std::string copy = folder.Path("b.krmrec");
    EXPECT_EQ(Krm({"redact", file, "-o", copy, "--leave-vins"}).out,
              "1 message, 0 places replaced, written to " + copy + '\n');
    EXPECT_THAT(folder.Read("b.krmrec"), HasSubstr(kVin));
    EXPECT_EQ(Krm({"redact", file, "-o", copy, "--leave-vins", "--field", "m_strVinCode", "--force"}).status, 0);
    EXPECT_THAT(folder.Read("b.krmrec"), Not(HasSubstr(kVin)));
    EXPECT_EQ(Krm({"redact", file, "-o", copy, "--leave-vins", "--value", kVin, "--force"}).status, 0);
    EXPECT_THAT(folder.Read("b.krmrec"), Not(HasSubstr(kVin)));
}

TEST(Redact, MakesTheSamePseudonymsOfTheSameSecret) {
    const TestFolder folder;
    const std::string file = folder.Write("a.krmrec", Recording(kVin));
    const auto redacted = [&](const std::string& secret) {
        const std::string secretFile = folder.Write("secret", secret);
        EXPECT_EQ(Krm({"redact", file, "-o", folder.Path("b.krmrec"), "--secret-file", secretFile, "--force"}).status,
                  0);
        return folder.Read("b.krmrec");
    };
    const std::string first = redacted("one secret");
    EXPECT_THAT(first, Not(HasSubstr(kVin)));
    EXPECT_EQ(redacted("one secret"), first);
    EXPECT_EQ(redacted("one secret\r\n\n"), first);  // as an editor ends it
    EXPECT_NE(redacted("one secret "), first);
    EXPECT_NE(redacted("another"), first);
    for (const char* const none : {"", "\n", "\r\n"}) {
        const std::string secretFile = folder.Write("secret", none);
        const Call call = Krm({"redact", file, "-o", folder.Path("c.krmrec"), "--secret-file", secretFile});
        EXPECT_EQ(call.status, 2);
        EXPECT_EQ(call.err, "krm: " + secretFile + ": holds no secret\n");
    }
    EXPECT_FALSE(std::filesystem::exists(folder.Path("c.krmrec")));
}

TEST(Redact, LeavesOutWhatItCantRead) {
    const TestFolder folder;
    const std::string file =
        folder.Write("a.krmrec", Recording(kVin, 1) + Recording(kVin).substr(krm::test::kHeader.size()));
    const std::string copy = folder.Path("b.krmrec");
    const Call call = Krm({"redact", file, "-o", copy});
    EXPECT_EQ(call.status, 1);
    EXPECT_THAT(call.err, HasSubstr("a.krmrec:3: left out: "));
    EXPECT_THAT(call.err, Not(HasSubstr("more lines")));
    EXPECT_EQ(call.out, "2 messages, 2 places replaced, written to " + copy + '\n');
    const Call many = Krm({"redact", folder.Write("c.krmrec", Recording(kVin, 5000)), "-o", copy, "--force"});
    EXPECT_EQ(many.status, 1);
    std::size_t told = 0;
    for (std::size_t at = 0; (at = many.err.find(": left out: ", at)) != std::string::npos; ++at) {
        ++told;
    }
    EXPECT_THAT(many.err, EndsWith("c.krmrec: " + std::to_string(5000 - told) + " more lines are left out\n"));
}

TEST(Redact, OverwritesNothingUnlessItShall) {
    const TestFolder folder;
    const std::string file = folder.Write("a.krmrec", Recording(kVin));
    const std::string copy = folder.Write("b.krmrec", "mine");
    const Call call = Krm({"redact", file, "-o", copy});
    EXPECT_EQ(call.status, 2);
    EXPECT_EQ(call.err, "krm: " + copy + ": is there already and will not be overwritten\n");
    EXPECT_EQ(folder.Read("b.krmrec"), "mine");
    EXPECT_EQ(Krm({"redact", file, "-o", copy, "--force"}).status, 0);
    EXPECT_NE(folder.Read("b.krmrec"), "mine");
    // An empty file holds nothing that could be lost.
    EXPECT_EQ(Krm({"redact", file, "-o", folder.Write("c.krmrec", "")}).status, 0);
    const auto refused = [&](const std::string& nowhere) {
        const Call told = Krm({"redact", file, "-o", nowhere});
        EXPECT_EQ(told.status, 2);
        EXPECT_EQ(told.out, "");
        return told.err;
    };
    EXPECT_EQ(refused(""), "krm: : cannot be written: no such file\n");
    EXPECT_EQ(refused(folder.Path("")), "krm: " + folder.Path("") + ": cannot be written: is a directory\n");
    EXPECT_EQ(refused(folder.Path("no folder/b")),
              "krm: " + folder.Path("no folder/b") + ": cannot be written: no such file\n");
}

TEST(Redact, TakesRecordingsAlone) {
    const TestFolder folder;
    const std::string log = folder.Write("a.log", "[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1\n");
    const Call call = Krm({"redact", log, "-o", folder.Path("b.log")});
    EXPECT_EQ(call.status, 2);
    EXPECT_EQ(call.err,
              "krm: " + log +
                  ": is no recording. Only recordings are redacted: in an operation log a value may be spread over "
                  "many lines, a byte each\n");
    EXPECT_FALSE(std::filesystem::exists(folder.Path("b.log")));
    const Call pattern =
        Krm({"redact", folder.Write("a.krmrec", Recording(kVin)), "-o", folder.Path("b.log"), "--value", "abc"});
    EXPECT_EQ(pattern.status, 2);
    EXPECT_EQ(pattern.out, "");
}

}  // namespace

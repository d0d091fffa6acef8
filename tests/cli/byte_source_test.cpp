#include "cli/byte_source.h"

#include <gtest/gtest.h>

#include <ios>
#include <istream>
#include <iterator>
#include <sstream>
#include <string>

#include "tests/cli/reading.h"
#include "tests/support/folder.h"
#include "tests/support/no_more_files.h"
#include "tests/support/not_under.h"

namespace {

using krm::test::Reading;
using krm_cli::SourceBuffer;

/// Longer than a block of the buffer.
std::string LongText() {
    std::string text;
    for (int i = 0; i < 30000; ++i) {
        text += std::to_string(i) + '\n';
    }
    return text;
}

std::string AllOf(std::istream& in) {
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

TEST(SourceBuffer, ReadsAndTellsWhereItIs) {
    const std::string text = LongText();
    Reading reading(text);
    SourceBuffer buffer(reading.Source());
    std::istream in(&buffer);
    EXPECT_EQ(in.tellg(), std::streampos(0));
    std::string line;
    std::getline(in, line);
    EXPECT_EQ(in.tellg(), std::streampos(2));
    for (std::streamoff at = 2; std::getline(in, line);) {
        at += static_cast<std::streamoff>(line.size()) + 1;
        ASSERT_EQ(in.tellg(), std::streampos(at));
    }
    EXPECT_EQ(line, "");
}

TEST(SourceBuffer, GoesToItsBeginAlone) {
    const std::string text = LongText();
    Reading reading(text);
    SourceBuffer buffer(reading.Source());
    std::istream in(&buffer);
    EXPECT_EQ(AllOf(in), text);
    in.clear();
    in.seekg(0);
    EXPECT_EQ(AllOf(in), text);
    const std::streampos nowhere(std::streamoff(-1));
    EXPECT_EQ(buffer.pubseekpos(1), nowhere);
    EXPECT_EQ(buffer.pubseekoff(1, std::ios::beg), nowhere);
    EXPECT_EQ(buffer.pubseekoff(0, std::ios::end), nowhere);
    EXPECT_EQ(buffer.pubseekoff(1, std::ios::cur), nowhere);
    EXPECT_EQ(buffer.pubseekoff(0, std::ios::cur), std::streampos(static_cast<std::streamoff>(text.size())));
    EXPECT_EQ(buffer.pubseekoff(0, std::ios::beg), std::streampos(0));
    EXPECT_EQ(buffer.pubseekoff(0, std::ios::cur), std::streampos(0));
    EXPECT_EQ(AllOf(in), text);
}

// What was looked at is read again, whether it was all, or only the first bytes.
TEST(ByteSource, ReadsWhatWasLookedAt) {
    const krm::test::TestFolder folder;
    const std::string text = LongText();
    std::ostringstream nowhere;
    const krm_cli::Surroundings surroundings{nowhere, nowhere};
    for (const std::size_t size : {std::size_t{1}, std::size_t{100}, text.size(), text.size() + 1}) {
        krm_cli::ByteSource source(folder.Write("a.log", text), surroundings);
        EXPECT_EQ(source.Peek(size), text.substr(0, size));
        EXPECT_EQ(source.Peek(1), "0");
        SourceBuffer buffer(source);
        std::istream in(&buffer);
        EXPECT_EQ(AllOf(in), text) << size;
        in.clear();
        in.seekg(0);
        EXPECT_EQ(AllOf(in), text) << size;
    }
}

#ifndef _WIN32
TEST(ByteSource, TellsWhyItCantBeKept) {
    KRM_NOT_UNDER(AddressSanitizer, krm::test::NoMoreFiles::kNotSanitized);
    const Reading reading("");
    krm_cli::ByteSource source("/dev/null", reading.Around());
    const krm::test::NoMoreFiles none;
    try {
        source.KeepForAgain();
        FAIL();
    } catch (const krm_cli::Failure& failure) {
        EXPECT_STREQ(failure.what(), "/dev/null: cannot be kept for a second reading: too many open files");
    }
}
#endif

}  // namespace

#include "cli/line_reader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>
#include <cstdint>
#include <future>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include "tests/cli/reading.h"
#include "tests/support/folder.h"

namespace {

using krm::test::Reading;
using krm_cli::Line;
using krm_cli::LineReader;
using ::testing::ElementsAre;

/// So much is read at a time.
constexpr std::size_t kBlock = std::size_t{2} * 1024 * 1024;

std::vector<std::string> LinesOf(const std::string& text, std::size_t maxLine = LineReader::kMaxLine) {
    Reading reading(text);
    LineReader lines(reading.Source(), maxLine);
    std::vector<std::string> all;
    while (lines.Next()) {
        const Line& line = lines.Current();
        all.push_back(std::to_string(line.number) + ": " + std::string(line.text) +
                      (line.cutBytes != 0 ? " +" + std::to_string(line.cutBytes) : "") + (line.ended ? "" : " no end"));
    }
    return all;
}

TEST(LineReader, GivesLinesWithoutTheirEnds) {
    EXPECT_THAT(LinesOf("a\nbc\n"), ElementsAre("1: a", "2: bc"));
    EXPECT_THAT(LinesOf("a\r\nb\rc\r\n"), ElementsAre("1: a", "2: b\rc"));
    EXPECT_THAT(LinesOf("\n\r\n\n"), ElementsAre("1: ", "2: ", "3: "));
    EXPECT_THAT(LinesOf(""), ElementsAre());
}

TEST(LineReader, TellsWhetherTheLastLineHasAnEnd) {
    EXPECT_THAT(LinesOf("a\nb"), ElementsAre("1: a", "2: b no end"));
    EXPECT_THAT(LinesOf("a\r"), ElementsAre("1: a no end"));
}

TEST(LineReader, LeavesAByteOrderMarkOut) {
    EXPECT_THAT(LinesOf("\xEF\xBB\xBF"
                        "a\n\xEF\xBB\xBF"
                        "b\n"),
                ElementsAre("1: a",
                            "2: \xEF\xBB\xBF"
                            "b"));
    EXPECT_THAT(LinesOf("\xEF\xBB\xBF"), ElementsAre());
}

TEST(LineReader, LeavesAByteOrderMarkOutThatComesInPieces) {
    const krm::test::TestFolder folder;
    const std::string file = folder.Write("a.log",
                                          "\xEF\xBB\xBF"
                                          "a\n");
    std::ostringstream nowhere;
    const krm_cli::Surroundings surroundings{nowhere, nowhere};
    for (std::size_t first = 1; first <= 4; ++first) {
        krm_cli::ByteSource source(file, surroundings);
        source.Peek(first);
        LineReader lines(source);
        ASSERT_TRUE(lines.Next()) << first;
        EXPECT_EQ(lines.Current().text, "a") << first;
        EXPECT_FALSE(lines.Next()) << first;
    }
}

TEST(LineReader, KeepsAMarkThatIsNotTheFirst) {
    const std::string text = std::string(kBlock - 1, 'x') + "\n\xEF\xBB\xBFy\n";
    Reading reading(text);
    LineReader lines(reading.Source());
    ASSERT_TRUE(lines.Next());
    ASSERT_TRUE(lines.Next());
    EXPECT_EQ(lines.Current().text, "\xEF\xBB\xBFy");
}

TEST(LineReader, CutsALineThatIsTooLong) {
    EXPECT_THAT(LinesOf("1234\n12345\n1234567\nx\n", 4), ElementsAre("1: 1234", "2: 1234 +1", "3: 1234 +3", "4: x"));
    EXPECT_THAT(LinesOf("123456", 4), ElementsAre("1: 1234 +2 no end"));
}

TEST(LineReader, CutsAlikeWhereverBlocksEnd) {
    for (std::size_t before = kBlock - 10; before <= kBlock; ++before) {
        std::string text;
        while (text.size() + 4 <= before) {
            text += "abc\n";
        }
        text += std::string(before - text.size(), '\n') + "1234567\r\nlast";
        Reading reading(text);
        LineReader lines(reading.Source(), 4);
        while (lines.Next() && lines.Current().text != "1234") {
        }
        ASSERT_EQ(lines.Current().text, "1234") << before;
        EXPECT_EQ(lines.Current().cutBytes, 3U) << before;
        EXPECT_TRUE(lines.Current().ended);
        ASSERT_TRUE(lines.Next());
        EXPECT_EQ(lines.Current().text, "last") << before;
    }
}

// A carriage return that comes alone belongs to the line until the line's end is seen.
TEST(LineReader, LeavesTheEndOfALineOfJustTheMostOutWhereverBlocksEnd) {
    for (std::size_t before = kBlock - 6; before <= kBlock; ++before) {
        Reading reading(std::string(before - 1, 'x') + "\n123\r\n1234\n");
        LineReader lines(reading.Source(), 4);
        ASSERT_TRUE(lines.Next());
        for (const char* const text : {"123", "1234"}) {
            ASSERT_TRUE(lines.Next());
            EXPECT_EQ(lines.Current().text, text) << before;
            EXPECT_EQ(lines.Current().cutBytes, 0U) << before;
            EXPECT_TRUE(lines.Current().ended) << before;
        }
        EXPECT_FALSE(lines.Next());
    }
}

TEST(LineReader, HoldsLittleOfALineOfManyBlocks) {
    const std::string text = "a\n" + std::string(10'000'000, 'x') + "\nb\n" + std::string(3'000'000, 'y');
    Reading reading(text);
    LineReader lines(reading.Source());
    ASSERT_TRUE(lines.Next());
    ASSERT_TRUE(lines.Next());
    EXPECT_EQ(lines.Current().text, std::string(1024 * 1024, 'x'));
    EXPECT_EQ(lines.Current().cutBytes, 10'000'000U - 1024U * 1024U);
    EXPECT_TRUE(lines.Current().ended);
    ASSERT_TRUE(lines.Next());
    EXPECT_EQ(lines.Current().text, "b");
    EXPECT_EQ(lines.Current().number, 3U);
    ASSERT_TRUE(lines.Next());
    EXPECT_EQ(lines.Current().cutBytes, 3'000'000U - 1024U * 1024U);
    EXPECT_FALSE(lines.Current().ended);
    EXPECT_FALSE(lines.Next());
}

TEST(LineReader, ReadsLinesThatCrossTheEndsOfBlocks) {
    std::string text;
    for (int i = 0; i < 200'000; ++i) {
        text += std::to_string(i) + (i % 3 == 0 ? "\r\n" : "\n");
    }
    Reading reading(text);
    LineReader lines(reading.Source());
    for (int i = 0; i < 200'000; ++i) {
        ASSERT_TRUE(lines.Next());
        ASSERT_EQ(lines.Current().text, std::to_string(i));
    }
    EXPECT_FALSE(lines.Next());
}

std::string NumberedLines(int count) {
    std::string text;
    for (int i = 0; i < count; ++i) {
        text += std::to_string(i) + " 0123456789012345678901234567890123456789012345678901234567890123456789" +
                (i % 5 == 0 ? "\r\n" : "\n");
    }
    return text;
}

// Of so large a file, the next block is read while one is worked on.
TEST(LineReader, ReadsALargeFileAhead) {
    constexpr int kLines = 100'000;
    const std::string text = NumberedLines(kLines);
    const krm::test::TestFolder folder;
    std::ostringstream nowhere;
    const krm_cli::Surroundings surroundings{nowhere, nowhere};
    krm_cli::ByteSource source(folder.Write("large.log", text), surroundings);
    ASSERT_TRUE(source.IsLarge());
    std::uint64_t told = 0;
    const std::thread::id here = std::this_thread::get_id();
    source.OnRead([&] {
        EXPECT_EQ(std::this_thread::get_id(), here);
        EXPECT_GE(source.BytesRead(), told);
        told = source.BytesRead();
    });
    LineReader lines(source);
    std::string again;
    for (int i = 0; i < kLines; ++i) {
        ASSERT_TRUE(lines.Next());
        ASSERT_EQ(lines.Current().number, static_cast<std::uint64_t>(i) + 1);
        again += std::string(lines.Current().text) + (i % 5 == 0 ? "\r\n" : "\n");
    }
    EXPECT_FALSE(lines.Next());
    EXPECT_EQ(again, text);
    EXPECT_EQ(told, text.size());
}

TEST(LineReader, MayGoWhileABlockIsReadAhead) {
    Reading reading(NumberedLines(100'000));
    ASSERT_TRUE(reading.Source().IsLarge());
    {
        LineReader lines(reading.Source());
        ASSERT_TRUE(lines.Next());
        EXPECT_EQ(lines.Current().text.substr(0, 2), "0 ");
    }
    reading.Source().Rewind();
    LineReader lines(reading.Source());
    ASSERT_TRUE(lines.Next());
    EXPECT_EQ(lines.Current().text.substr(0, 2), "0 ");
}

TEST(LineReader, EndsWhileABlockIsReadAhead) {
    std::ostringstream nowhere;
    volatile std::sig_atomic_t interrupt = 0;
    const krm_cli::Surroundings surroundings{nowhere, nowhere, false, false, &interrupt};
    krm_cli::ByteSource source(NumberedLines(100'000), "a.log", surroundings);
    ASSERT_TRUE(source.IsLarge());
    LineReader lines(source);
    ASSERT_TRUE(lines.Next());
    interrupt = 1;
    const auto readAll = [&] {
        while (lines.Next()) {
        }
    };
    EXPECT_THROW(readAll(), krm_cli::Interrupted);
    EXPECT_LT(source.BytesRead(), *source.Size());
}

#ifdef __linux__
// The first byte of a program's memory can't be read.
TEST(ByteSource, TellsWhatFailedInTheOtherThread) {
    std::ostringstream nowhere;
    const krm_cli::Surroundings surroundings{nowhere, nowhere};
    krm_cli::ByteSource source("/proc/self/mem", surroundings);
    char byte = 0;
    std::future<std::size_t> reading = source.BeginRead(&byte, 1);
    EXPECT_THROW(source.FinishRead(reading), krm_cli::Failure);
}
#endif

TEST(LineReader, EndsWhenTheUserWantsIt) {
    std::ostringstream nowhere;
    volatile std::sig_atomic_t interrupt = 1;
    const krm_cli::Surroundings surroundings{nowhere, nowhere, false, false, &interrupt};
    krm_cli::ByteSource source("a\n", "a.log", surroundings);
    LineReader lines(source);
    EXPECT_THROW(lines.Next(), krm_cli::Interrupted);
}

}  // namespace

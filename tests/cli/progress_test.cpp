#include "cli/terminal/progress.h"

#include <gtest/gtest.h>

#include <optional>
#include <sstream>
#include <string>

namespace {

using terminal::Progress;
using terminal::ProgressLine;

TEST(Progress, HasABarAndTheTimeLeft) {
    EXPECT_EQ(ProgressLine("decoding", 80'000'000, 200'000'000, 1234567, "exchanges", 8),
              "decoding [####      ]  40 %  80.0 of 200.0 MB  1234567 exchanges  12 s left");
    EXPECT_EQ(ProgressLine("reading", 0, 4'000'000'000'000, 0, "messages", 1),
              "reading [          ]   0 %  0.0 of 4000000.0 MB");
    EXPECT_EQ(ProgressLine("reading", 5'000'000'001, 5'000'000'001, 5'000'000'000, "messages", 60),
              "reading [##########] 100 %  5000.0 of 5000.0 MB  5000000000 messages  0 s left");
    EXPECT_EQ(ProgressLine("reading", 123'456'789'012'345, 987'654'321'098'765, 0, "messages", 0),
              "reading [#         ]  12 %  123456789.0 of 987654321.1 MB  0 s left");
    EXPECT_EQ(ProgressLine("reading", 1'000'000, 10'000'000, 0, "messages", 11),
              "reading [#         ]  10 %  1.0 of 10.0 MB  99 s left");
    EXPECT_EQ(ProgressLine("reading", 1'000'000, 4'000'000, 1, "messages", 200),
              "reading [##        ]  25 %  1.0 of 4.0 MB  1 messages  10 min left");
}

// A file may grow while it is read.
TEST(Progress, EndsAtAHundred) {
    EXPECT_EQ(ProgressLine("reading", 3'000'000, 2'000'000, 0, "messages", 1),
              "reading [##########] 100 %  3.0 of 2.0 MB  0 s left");
}

TEST(Progress, CountsWhereNobodyKnowsTheEnd) {
    EXPECT_EQ(ProgressLine("reading", 1'550'000, std::nullopt, 7, "messages", 1), "reading 1.6 MB  7 messages");
    EXPECT_EQ(ProgressLine("reading", 0, 0, 0, "messages", 1), "reading 0.0 MB  0 messages");
}

TEST(Progress, LeavesAnEmptyLine) {
    std::ostringstream out;
    {
        Progress progress(out, "messages");
        progress.Hide();
        EXPECT_EQ(out.str(), "");
        progress.Begin("reading");
        progress.Show(1'000'000, std::nullopt, 12);
        EXPECT_EQ(out.str(), "reading 1.0 MB  12 messages");
        out.str("");
        progress.Show(2'000'000, std::nullopt, 13);
        EXPECT_EQ(out.str(), "\r                           \rreading 2.0 MB  13 messages");
        out.str("");
        progress.Hide();
        EXPECT_EQ(out.str(), "\r                           \r");
        progress.Hide();
        EXPECT_EQ(out.str(), "\r                           \r");
        progress.Show(3'000'000, std::nullopt, 14);
        out.str("");
    }
    EXPECT_EQ(out.str(), "\r                           \r");
}

}  // namespace

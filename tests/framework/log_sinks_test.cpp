// The sinks of the operation log, but for ScopedLogSink: tests/platform/scoped_log_sink_test.cpp.
#include "krm/framework/log_sinks.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <sstream>
#include <string>
#include <string_view>
#include <thread>

#include "krm/messages/auxiliary/unit_conversion.h"
#include "krm/messages/diag/trouble_codes.h"
#include "krm/messages/diag/vehicle.h"
#include "krm/platform/platform.h"
#include "tests/framework/log_results.h"
#include "tests/support/keeping_sink.h"
#include "tests/support/log_sink.h"

namespace {

using krm::test::KeepingSink;
using std::chrono::milliseconds;
using std::chrono::system_clock;
using ::testing::ElementsAre;

system_clock::time_point At(long long sinceEpoch) {
    return system_clock::time_point(milliseconds(sinceEpoch));
}
system_clock::time_point LastMomentOfALeapDay() {
    return At(1709251199999);
}

/// Makes a sink the operation log's while it lives, as ScopedLogSink does, but on any platform.
template <krm::LogSink Sink>
class LogTo {
public:
    explicit LogTo(Sink& sink) { krm::test::SetLogSink(&krm::WriteToSink<Sink>, &sink); }
    ~LogTo() { krm::test::SetLogSink(nullptr, nullptr); }
    LogTo(const LogTo&) = delete;
    LogTo& operator=(const LogTo&) = delete;
};

TEST(PlainLogTest, WritesTheLinesAsTheyAre) {
    std::ostringstream stream;
    krm::PlainLog log(stream);
    const LogTo scope(log);
    CKRMCGetDTCCmdAdaptDataSnd request;
    request.m_ulEcuId = 2016;
    request.ErrWriteOperationLog();
    EXPECT_EQ(KRMC_ER_WriteOperationLog("a\nb\\", 4, 4, 2), 0);
    EXPECT_EQ(stream.str(),
              "[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1\n"
              "[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=2\n"
              "[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=2016\n"
              "[CKRMCGetDTCCmdAdaptDataSnd::ErrWriteOperationLog] m_uchPhaseType=0\n"
              "[CKRMCGetDTCCmdAdaptDataSnd::ErrWriteOperationLog] m_uchGetFFDType=0\n"
              "a\nb\\\n");
}

TEST(PlainLogTest, SaysWhenTheStreamIsBad) {
    std::ostringstream stream;
    stream.setstate(std::ios::badbit);
    krm::PlainLog plain(stream);
    EXPECT_EQ(plain.Write("x", 4, 2), 1);
    krm::HeadedLog headed(stream);
    EXPECT_EQ(headed.Write("x", 4, 2), 1);
}

TEST(HeadedLogTest, WritesTimeThreadAndAHeadingPerMessage) {
    std::ostringstream stream;
    krm::HeadedLog log(stream, &LastMomentOfALeapDay);
    const LogTo scope(log);
    CKRMCGetDTCCmdAdaptDataSnd request;
    request.m_ulEcuId = 2016;
    request.ErrWriteOperationLog();
    CKRMCGetVinCodeCmdAdaptDataRcv answer;
    answer.m_strVinCode = "two\r\nlines\\";
    answer.ErrWriteOperationLog();
    EXPECT_EQ(stream.str(),
              "2024-02-29T23:59:59.999Z 1 == GetDTC request (type 1, ID 2)\n"
              "2024-02-29T23:59:59.999Z 1 [CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1\n"
              "2024-02-29T23:59:59.999Z 1 [CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=2\n"
              "2024-02-29T23:59:59.999Z 1 [CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=2016\n"
              "2024-02-29T23:59:59.999Z 1 [CKRMCGetDTCCmdAdaptDataSnd::ErrWriteOperationLog] m_uchPhaseType=0\n"
              "2024-02-29T23:59:59.999Z 1 [CKRMCGetDTCCmdAdaptDataSnd::ErrWriteOperationLog] m_uchGetFFDType=0\n"
              "2024-02-29T23:59:59.999Z 1 == GetVinCode answer (type 1, ID 79)\n"
              "2024-02-29T23:59:59.999Z 1 [CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1\n"
              "2024-02-29T23:59:59.999Z 1 [CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=79\n"
              "2024-02-29T23:59:59.999Z 1 [CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=0\n"
              "2024-02-29T23:59:59.999Z 1 [CKRMCGetVinCodeCmdAdaptDataRcv::ErrWriteOperationLog] "
              "m_strVinCode=two\\r\\nlines\\\\\n");
}

TEST(HeadedLogTest, NamesACommandThatTheTableDoesntHaveByItsNumbers) {
    std::ostringstream stream;
    krm::HeadedLog log(stream, &LastMomentOfALeapDay);
    const LogTo scope(log);
    CKRMCBaseDsdiAdaptData base(0xFFFFFFFFU);
    base.ErrWriteOperationLog();
    CKRMCBaseDsdiAdaptData(0x10001).ErrWriteOperationLog();
    EXPECT_EQ(stream.str(),
              "2024-02-29T23:59:59.999Z 1 == unknown command (type 8, ID 4294967295)\n"
              "2024-02-29T23:59:59.999Z 1 [CKRMCBaseDsdiAdaptData::ErrWriteOperationLog] m_dwCommandType=8\n"
              "2024-02-29T23:59:59.999Z 1 [CKRMCBaseDsdiAdaptData::ErrWriteOperationLog] m_dwCommandID=-1\n"
              "2024-02-29T23:59:59.999Z 1 == unknown command (type 8, ID 65537)\n"
              "2024-02-29T23:59:59.999Z 1 [CKRMCBaseDsdiAdaptData::ErrWriteOperationLog] m_dwCommandType=8\n"
              "2024-02-29T23:59:59.999Z 1 [CKRMCBaseDsdiAdaptData::ErrWriteOperationLog] m_dwCommandID=65537\n");
}

// A line that only looks like a message's first has no heading, and waits no longer than for the next one, or the end.
TEST(HeadedLogTest, LosesNoLineOfATypeWithoutAnId) {
    std::ostringstream stream;
    {
        krm::HeadedLog log(stream, &LastMomentOfALeapDay);
        const std::string_view type = "[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1";
        EXPECT_EQ(log.Write(type, 4, 2), 0);
        log.Write("other", 4, 2);
        log.Write("[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=2", 4, 2);
        log.Write("[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1x", 4, 2);
        log.Write("[Other] m_dwCommandType=1", 4, 2);
        log.Write(type, 4, 2);
        log.Write(type, 4, 2);
        EXPECT_EQ(stream.str(),
                  "2024-02-29T23:59:59.999Z 1 [CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1\n"
                  "2024-02-29T23:59:59.999Z 1 other\n"
                  "2024-02-29T23:59:59.999Z 1 [CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=2\n"
                  "2024-02-29T23:59:59.999Z 1 [CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1x\n"
                  "2024-02-29T23:59:59.999Z 1 [Other] m_dwCommandType=1\n"
                  "2024-02-29T23:59:59.999Z 1 [CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1\n");
        stream.str("");
    }
    EXPECT_EQ(stream.str(),
              "2024-02-29T23:59:59.999Z 1 [CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1\n");
}

TEST(HeadedLogTest, AHeadingWithoutDirectionWhereNoLineTellsIt) {
    std::ostringstream stream;
    {
        krm::HeadedLog log(stream, &LastMomentOfALeapDay);
        const LogTo scope(log);
        CKRMCBaseCmdAdaptData base(2);
        base.ErrWriteOperationLog();
        EXPECT_EQ(stream.str(), "");  // still waiting for the line that tells
        CKRMCGetUnitSettingGroupListUccAdaptDataSnd request;
        request.ErrWriteOperationLog();
    }
    EXPECT_EQ(stream.str(),
              "2024-02-29T23:59:59.999Z 1 == GetDTC (type 1, ID 2)\n"
              "2024-02-29T23:59:59.999Z 1 [CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1\n"
              "2024-02-29T23:59:59.999Z 1 [CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=2\n"
              "2024-02-29T23:59:59.999Z 1 == GetUnitSettingGroupList (type 10, ID 4)\n"
              "2024-02-29T23:59:59.999Z 1 [CKRMCBaseUccAdaptData::ErrWriteOperationLog] m_dwCommandType=10\n"
              "2024-02-29T23:59:59.999Z 1 [CKRMCBaseUccAdaptData::ErrWriteOperationLog] m_dwCommandID=4\n");
}

TEST(HeadedLogTest, NumbersThreadsAsTheyComeAndHeadsEachOnesMessages) {
    std::ostringstream stream;
    krm::HeadedLog log(stream, &LastMomentOfALeapDay);
    log.Write("[CKRMCBaseUccAdaptData::ErrWriteOperationLog] m_dwCommandType=10", 4, 2);
    std::thread([&] {
        log.Write("[CKRMCBaseDwtAdaptData::ErrWriteOperationLog] m_dwCommandType=14", 4, 2);
        log.Write("[CKRMCBaseDwtAdaptData::ErrWriteOperationLog] m_dwCommandID=2", 4, 2);
    }).join();
    log.Write("[CKRMCBaseUccAdaptData::ErrWriteOperationLog] m_dwCommandID=4", 4, 2);
    EXPECT_EQ(stream.str(),
              "2024-02-29T23:59:59.999Z 2 == GetTranslationString (type 14, ID 2)\n"
              "2024-02-29T23:59:59.999Z 2 [CKRMCBaseDwtAdaptData::ErrWriteOperationLog] m_dwCommandType=14\n"
              "2024-02-29T23:59:59.999Z 2 [CKRMCBaseDwtAdaptData::ErrWriteOperationLog] m_dwCommandID=2\n"
              "2024-02-29T23:59:59.999Z 1 == GetUnitSettingGroupList (type 10, ID 4)\n"
              "2024-02-29T23:59:59.999Z 1 [CKRMCBaseUccAdaptData::ErrWriteOperationLog] m_dwCommandType=10\n"
              "2024-02-29T23:59:59.999Z 1 [CKRMCBaseUccAdaptData::ErrWriteOperationLog] m_dwCommandID=4\n");
}

/// The number of lines in `text`, each of which must end as `end` says.
int CountLines(const std::string& text, std::string_view end) {
    std::istringstream stream(text);
    int count = 0;
    for (std::string line; std::getline(stream, line); ++count) {
        EXPECT_TRUE(line.ends_with(end)) << line;
    }
    return count;
}

TEST(LogSinksTest, ThreadsMayWriteAtTheSameTime) {
    std::ostringstream plainStream;
    std::ostringstream headedStream;
    krm::PlainLog plain(plainStream);
    krm::HeadedLog headed(headedStream);
    krm::TeeLog both(plain, headed);
    constexpr int kLines = 500;
    const auto write = [&] {
        for (int i = 0; i < kLines; ++i) {
            both.Write("a line of some length", 4, 2);
        }
    };
    std::thread one(write);
    std::thread other(write);
    one.join();
    other.join();
    EXPECT_EQ(CountLines(plainStream.str(), "a line of some length"), 2 * kLines);
    EXPECT_EQ(CountLines(headedStream.str(), " a line of some length"), 2 * kLines);
}

TEST(TeeLogTest, WritesToBothAndReturnsTheFirstFailure) {
    KeepingSink one;
    KeepingSink other;
    krm::TeeLog both(one, other);
    EXPECT_EQ(both.Write("x", 4, 2), 0);
    other.result = 5;
    EXPECT_EQ(both.Write("y", 4, 2), 5);
    one.result = 3;
    EXPECT_EQ(both.Write("z", 1, 7), 3);
    EXPECT_THAT(one.lines, ElementsAre("x|4|2", "y|4|2", "z|1|7"));
    EXPECT_EQ(other.lines, one.lines);
    KeepingSink third;
    krm::TeeLog three(both, third);
    EXPECT_EQ(three.Write("w", 4, 2), 3);
    EXPECT_THAT(third.lines, ElementsAre("w|4|2"));
}

TEST(LogSinksTest, EveryResultComesBackWhole) {
    for (const krm_long result : krm::test::kLogResults) {
        KeepingSink good;
        KeepingSink bad;
        bad.result = result;
        krm::TeeLog badFirst(bad, good);
        krm::TeeLog badSecond(good, bad);
        const LogTo scope(badSecond);
        EXPECT_EQ(badFirst.Write("x", 4, 2), result);
        EXPECT_EQ(badSecond.Write("x", 4, 2), result);
        EXPECT_EQ(krm::WriteToSink<KeepingSink>(&bad, "xy", 2, 4, 2), result);
        EXPECT_EQ(KRMC_ER_WriteOperationLog("xyz", 3, 4, 2), result);
        EXPECT_THAT(bad.lines, ElementsAre("x|4|2", "x|4|2", "xy|4|2", "xyz|4|2"));
    }
}

TEST(LogTextTest, EscapesLineBreaksSoThatTheyCanBeRead) {
    EXPECT_EQ(krm::EscapeLineBreaks(""), "");
    EXPECT_EQ(krm::EscapeLineBreaks("plain\ttext"), "plain\ttext");
    EXPECT_EQ(krm::EscapeLineBreaks("a\nb\r\nc"), "a\\nb\\r\\nc");
    EXPECT_EQ(krm::EscapeLineBreaks("C:\\new"), "C:\\\\new");
    EXPECT_EQ(krm::EscapeLineBreaks(std::string_view("a\0b", 3)), std::string("a\0b", 3));
}

TEST(LogTextTest, TimeStampsAreUtcToTheMillisecond) {
    EXPECT_EQ(krm::TimeStamp(At(0)), "1970-01-01T00:00:00.000Z");
    EXPECT_EQ(krm::TimeStamp(LastMomentOfALeapDay()), "2024-02-29T23:59:59.999Z");
    EXPECT_EQ(krm::TimeStamp(At(1709251200000)), "2024-03-01T00:00:00.000Z");
    EXPECT_EQ(krm::TimeStamp(At(-1)), "1969-12-31T23:59:59.999Z");
    EXPECT_EQ(krm::TimeStamp(At(946782245006)), "2000-01-02T03:04:05.006Z");
}

}  // namespace

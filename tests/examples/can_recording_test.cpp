#include "examples/diagnosis_session/can_recording.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdint>
#include <limits>
#include <string>
#include <variant>

namespace {

using diagnosis_session::BadLine;
using diagnosis_session::Bytes;
using diagnosis_session::CanFrame;
using diagnosis_session::ParseCandumpLine;

CanFrame FrameOf(const std::string& text) {
    const auto parsed = ParseCandumpLine(text, 7);
    return std::holds_alternative<CanFrame>(parsed) ? std::get<CanFrame>(parsed) : CanFrame{};
}

Bytes DataOf(const CanFrame& frame) {
    return Bytes(frame.data.begin(), frame.data.end());
}

std::string FaultOf(const std::string& text) {
    const auto parsed = ParseCandumpLine(text, 7);
    return std::holds_alternative<BadLine>(parsed) ? std::get<BadLine>(parsed).what : "no fault";
}

TEST(CanRecording, ReadsAFrame) {
    const CanFrame frame = FrameOf("(1700000000.004000) can0 7E8#06410100076500");
    EXPECT_EQ(frame.line, 7U);
    EXPECT_EQ(frame.id, 0x7E8U);
    EXPECT_EQ(DataOf(frame), (Bytes{0x06, 0x41, 0x01, 0x00, 0x07, 0x65, 0x00}));
}

TEST(CanRecording, ReadsExtendedIdsLowerCaseDirectionsAndCarriageReturns) {
    EXPECT_EQ(FrameOf("(1.0) vcan1 18daf110#0a").id, 0x18DAF110U);
    EXPECT_EQ(DataOf(FrameOf("(1.0) vcan1 18daf110#0a")), Bytes{0x0A});
    EXPECT_EQ(DataOf(FrameOf("  (1.0)\tcan0  7DF#0101 T\r")), (Bytes{0x01, 0x01}));
    EXPECT_EQ(FrameOf("(1.0) can0 7DF#").id, 0x7DFU);
}

TEST(CanRecording, ATimeMayHaveMoreDigitsThanANumberHolds) {
    EXPECT_EQ(FrameOf("(1731000000.21251000000155000) can0 7DF#0103").time, 1'731'000'000'212'510);
    EXPECT_EQ(FrameOf("(999999999999.999999) can0 7DF#0103").time, 999'999'999'999'999'999);
    for (const char* time : {"99999999999999999999.000000", "9999999999999999999", "99999999999999999999999"}) {
        EXPECT_EQ(FaultOf("(" + std::string(time) + ") can0 7DF#0103"),
                  "the time stamp is not a decimal number in parentheses");
    }
}

TEST(CanRecording, TimesBeyondTheSystemsClockAreItsLast) {
    using diagnosis_session::TimePointOf;
    using TimePoint = std::chrono::system_clock::time_point;
    using std::chrono::microseconds;
    EXPECT_EQ(TimePointOf(1'731'000'000'048'500), TimePoint(microseconds(1'731'000'000'048'500)));
    EXPECT_EQ(TimePointOf(diagnosis_session::kNoTime), TimePoint());
    const auto last = std::chrono::floor<microseconds>(TimePoint::max());
    EXPECT_EQ(std::chrono::floor<microseconds>(TimePointOf(std::numeric_limits<std::int64_t>::max())), last);
    EXPECT_LT(TimePointOf(std::numeric_limits<std::int64_t>::min() + 1), TimePoint());
}

TEST(CanRecording, TellsWhatIsWrongWithALine) {
    const std::string noLine = "not a line of candump -l: expected (SECONDS) INTERFACE ID#DATA";
    EXPECT_EQ(FaultOf("rubbish"), noLine);
    EXPECT_EQ(FaultOf("(1.0) can0"), noLine);
    EXPECT_EQ(FaultOf("(1.0) can0 7DF#00 X"), noLine);
    EXPECT_EQ(FaultOf("(1.0) can0 7DF#00 R R"), noLine);
    for (const char* time : {"1.0", "(1)", "(.5)", "(1.)", "(x.0)", "()", "("}) {
        EXPECT_EQ(FaultOf(std::string(time) + " can0 7DF#00"), "the time stamp is not a decimal number in parentheses")
            << time;
    }
    EXPECT_EQ(FaultOf("(1.0) can0 7DF00"), "no '#' between CAN ID and data");
    for (const char* id : {"", "7D", "7DFF", "800", "20000000", "7DG", "-7D", "123456789"}) {
        EXPECT_EQ(FaultOf("(1.0) can0 " + std::string(id) + "#00"),
                  "the CAN ID is not 3 hexadecimal digits up to 7FF or 8 up to 1FFFFFFF")
            << id;
    }
    EXPECT_EQ(FaultOf("(1.0) can0 7DF##100"), "a CAN FD frame; only classic CAN frames are read");
    EXPECT_EQ(FaultOf("(1.0) can0 7DF#R2"), "a remote frame; it carries no data");
    EXPECT_EQ(FaultOf("(1.0) can0 7DF#0"), "the data is not pairs of hexadecimal digits");
    EXPECT_EQ(FaultOf("(1.0) can0 7DF#0G"), "the data is not pairs of hexadecimal digits");
    EXPECT_EQ(FaultOf("(1.0) can0 7DF#001122334455667788"), "9 data bytes; a CAN frame carries at most 8");
}

}  // namespace

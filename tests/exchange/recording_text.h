// Recordings in memory.
#ifndef KRM_TESTS_EXCHANGE_RECORDING_TEXT_H_
#define KRM_TESTS_EXCHANGE_RECORDING_TEXT_H_

#include <chrono>
#include <cstddef>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "krm/exchange/recording.h"
#include "krm/messages/describe.h"

namespace krm::test {

inline constexpr std::string_view kHeader = "{\"format\":\"krm recording\",\"version\":1,\"library\":\"1.0.0\"}\n";

/// A clock that starts at 2026-11-22T09:35:00.123456Z and goes on by a microsecond whenever it is read.
inline Recorder::Clock TickingClock() {
    using namespace std::chrono;
    const sys_time<microseconds> start =
        sys_days(2026y / November / 22) + hours(9) + minutes(35) + microseconds(123456);
    return [next = start]() mutable {
        return std::chrono::system_clock::time_point((next += microseconds(1)) - microseconds(1));
    };
}

/// A sink that keeps everything.
inline Recorder::Sink Into(std::string& text) {
    return [&text](std::string_view bytes) {
        text += bytes;
        return bytes.size();
    };
}

/// What a reader gives: "exchange: description" of each message, ToText of each fault.
inline std::vector<std::string> ReadAll(RecordingReader& reader) {
    std::vector<std::string> all;
    while (const std::optional<RecordedMessage> recorded = reader.Next()) {
        all.push_back(*recorded
                          ? std::to_string(recorded->exchange) + ": " + std::string(recorded->description->command) +
                                (recorded->description->direction == Direction::Send ? " request" : " answer")
                          : ToText(recorded->fault));
    }
    return all;
}
inline std::vector<std::string> ReadAll(const std::string& text, const RecordingReadOptions& options = {}) {
    std::istringstream in(text);
    RecordingReader reader(in, options);
    return ReadAll(reader);
}

}  // namespace krm::test

#endif  // KRM_TESTS_EXCHANGE_RECORDING_TEXT_H_

// Reads the lines of a recording: as `candump -l` writes them to a file, and as candump prints them.
#ifndef KRM_EXAMPLES_DIAGNOSIS_SESSION_CAN_RECORDING_H_
#define KRM_EXAMPLES_DIAGNOSIS_SESSION_CAN_RECORDING_H_

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <variant>

#include "hex.h"

namespace diagnosis_session {

/// A time of the recording in microseconds: since 1970 where the recording has absolute times, else since its own zero.
using Microseconds = std::int64_t;
/// The recording doesn't tell the time.
inline constexpr Microseconds kNoTime = std::numeric_limits<Microseconds>::min();

/// Whether a time tells a date: a recording with times of its own doesn't last for years.
constexpr bool HasDate(Microseconds time) {
    return time >= Microseconds{5} * 365 * 24 * 3600 * 1'000'000;
}

/// One CAN frame of the recording.
struct CanFrame {
    std::size_t line = 0;  ///< where it stands in the file, from 1
    std::uint32_t id = 0;  ///< 11 bits, or 29 for an extended frame
    Bytes data;            ///< at most eight
    Microseconds time = kNoTime;
};

/// A line that holds no frame: what is wrong with it.
struct BadLine {
    std::string what;
};

/// Reads "(1700000000.000000) can0 7DF#020104", behind which a direction ("R" or "T") may follow, and what candump prints:
/// "can0  7DF   [3]  02 01 04", with or without the time, direction and characters that its options add. `line` goes into
/// the frame.
std::variant<CanFrame, BadLine> ParseCandumpLine(std::string_view text, std::size_t line);

}  // namespace diagnosis_session

#endif  // KRM_EXAMPLES_DIAGNOSIS_SESSION_CAN_RECORDING_H_

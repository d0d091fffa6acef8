// Reads the lines of a recording: as `candump -l` writes them to a file, and as candump prints them.
#ifndef KRM_EXAMPLES_DIAGNOSIS_SESSION_CAN_RECORDING_H_
#define KRM_EXAMPLES_DIAGNOSIS_SESSION_CAN_RECORDING_H_

#include <algorithm>
#include <array>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>
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

/// The point in time, as far as the system's clock reaches; the begin of 1970 for kNoTime.
std::chrono::system_clock::time_point TimePointOf(Microseconds time);

/// The data of a frame. It lies in place: a recording has a frame in every line.
class FrameData {
public:
    static constexpr std::size_t kMost = 8;

    FrameData() = default;
    /// REQUIRES: at most kMost bytes.
    explicit FrameData(std::span<const std::uint8_t> bytes) : m_size(bytes.size()) {
        std::copy(bytes.begin(), bytes.end(), m_bytes.begin());
    }

    std::size_t size() const { return m_size; }
    bool empty() const { return m_size == 0; }
    const std::uint8_t* begin() const { return m_bytes.data(); }
    const std::uint8_t* end() const { return m_bytes.data() + m_size; }
    std::uint8_t operator[](std::size_t index) const { return m_bytes[index]; }
    /// REQUIRES: fewer than kMost bytes are there.
    void push_back(std::uint8_t byte) { m_bytes[m_size++] = byte; }

private:
    std::array<std::uint8_t, kMost> m_bytes{};
    std::size_t m_size = 0;
};

/// One CAN frame of the recording.
struct CanFrame {
    std::size_t line = 0;  ///< where it stands in the file, from 1
    std::uint32_t id = 0;  ///< 11 bits, or 29 for an extended frame
    FrameData data;
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

// Reads the lines of a recording as `candump -l` writes them.
#ifndef KRM_EXAMPLES_DIAGNOSIS_SESSION_CAN_RECORDING_H_
#define KRM_EXAMPLES_DIAGNOSIS_SESSION_CAN_RECORDING_H_

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

#include "hex.h"

namespace diagnosis_session {

/// One CAN frame of the recording.
struct CanFrame {
    std::size_t line = 0;  ///< where it stands in the file, from 1
    std::uint32_t id = 0;  ///< 11 bits, or 29 for an extended frame
    Bytes data;            ///< at most eight
};

/// A line that holds no frame: what is wrong with it.
struct BadLine {
    std::string what;
};

/// Reads "(1700000000.000000) can0 7DF#020104"; a direction ("R" or "T") may follow. `line` goes into the frame.
std::variant<CanFrame, BadLine> ParseCandumpLine(std::string_view text, std::size_t line);

}  // namespace diagnosis_session

#endif  // KRM_EXAMPLES_DIAGNOSIS_SESSION_CAN_RECORDING_H_

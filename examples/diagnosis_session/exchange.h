// A recording as diagnosis sees it: requests, each with the answers of the ECUs.
#ifndef KRM_EXAMPLES_DIAGNOSIS_SESSION_EXCHANGE_H_
#define KRM_EXAMPLES_DIAGNOSIS_SESSION_EXCHANGE_H_

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "can_recording.h"
#include "complaints.h"
#include "hex.h"
#include "recording_file.h"

namespace diagnosis_session {

/// What one ECU said to a request.
struct EcuAnswer {
    std::size_t line = 0;   ///< of its first frame
    std::uint32_t ecu = 0;  ///< the CAN ID that the ECU answers with
    Bytes bytes;            ///< begins with the service + 0x40, or with 7F where the ECU refuses
    Microseconds time = kNoTime;

    bool IsNegative() const { return bytes[0] == 0x7F; }
};

/// One request and what came back.
struct Exchange {
    std::size_t number = 0;    ///< from 1, in the recording's order
    std::size_t line = 0;      ///< of the request
    std::uint32_t target = 0;  ///< the CAN ID of the request: one ECU's, or all ECUs'
    Bytes request;             ///< begins with the service; never empty
    std::vector<EcuAnswer> answers;
    Microseconds time = kNoTime;  ///< of the request

    std::uint8_t Service() const { return request[0]; }
};

/// Counts of a recording, or of as much of it as was read.
struct RecordingTotals {
    std::uint64_t frames = 0;
    Microseconds first = kNoTime;  ///< time of the first frame that has one
    Microseconds last = kNoTime;
};

/// Sorts the frames of a recording into exchanges, one after the other. Tells every line that is malformed, every frame
/// sequence that is broken, every request that stays without an answer and every answer that fits no request.
class ExchangeReader {
public:
    ExchangeReader(ReadBytes read, Complain complain);
    ~ExchangeReader();

    /// The next exchange; nothing at the end of the recording.
    std::optional<Exchange> Next();
    const RecordingTotals& Totals() const;

private:
    class Sorter;
    LineReader m_lines;
    std::unique_ptr<Sorter> m_sorter;
    std::size_t m_line = 0;
};

/// Reads a whole recording that lies in memory.
std::vector<Exchange> ReadExchanges(std::string_view recording, const Complain& complain);

}  // namespace diagnosis_session

#endif  // KRM_EXAMPLES_DIAGNOSIS_SESSION_EXCHANGE_H_

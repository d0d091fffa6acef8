// A recording as diagnosis sees it: requests, each with the answers of the ECUs.
#ifndef KRM_EXAMPLES_DIAGNOSIS_SESSION_EXCHANGE_H_
#define KRM_EXAMPLES_DIAGNOSIS_SESSION_EXCHANGE_H_

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "complaints.h"
#include "hex.h"

namespace diagnosis_session {

/// What one ECU said to a request.
struct EcuAnswer {
    std::size_t line = 0;   ///< of its first frame
    std::uint32_t ecu = 0;  ///< the CAN ID that the ECU answers with
    Bytes bytes;            ///< begins with the service + 0x40, or with 7F where the ECU refuses

    bool IsNegative() const { return bytes[0] == 0x7F; }
};

/// One request and what came back.
struct Exchange {
    std::size_t number = 0;    ///< from 1, in the recording's order
    std::size_t line = 0;      ///< of the request
    std::uint32_t target = 0;  ///< the CAN ID of the request: one ECU's, or all ECUs'
    Bytes request;             ///< begins with the service; never empty
    std::vector<EcuAnswer> answers;

    std::uint8_t Service() const { return request[0]; }
};

/// Reads a whole recording. Tells every line that is malformed, every frame sequence that is broken, every request that
/// stays without an answer and every answer that fits no request; the rest is returned.
std::vector<Exchange> ReadExchanges(std::string_view recording, const Complain& complain);

}  // namespace diagnosis_session

#endif  // KRM_EXAMPLES_DIAGNOSIS_SESSION_EXCHANGE_H_

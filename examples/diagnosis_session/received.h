// What the engine heard on the bus, in the words of the GetDataMonitorReceiveInfo message. With it the application learns
// what happened next in the vehicle, and asks for it.
#ifndef KRM_EXAMPLES_DIAGNOSIS_SESSION_RECEIVED_H_
#define KRM_EXAMPLES_DIAGNOSIS_SESSION_RECEIVED_H_

#include <cstddef>
#include <cstdint>
#include <vector>

#include "can_recording.h"
#include "exchange.h"
#include "hex.h"
#include "krm/messages/diag/data_monitor.h"

namespace diagnosis_session {

/// One request that was heard, with who answered it; or, without a request, how much was heard in all.
struct Received {
    struct Answer {
        std::uint32_t ecu = 0;  ///< the CAN ID that the ECU answers with
        bool isRefusal = false;
        Microseconds time = kNoTime;
    };

    RecordingTotals totals;  ///< of the whole recording, or of what was heard up to now
    bool hasTotals = false;
    bool isEnd = false;  ///< nothing more will come

    std::uint64_t number = 0;  ///< of the exchange, from 1
    Bytes request;             ///< begins with the service; empty where there is none
    std::vector<Answer> answers;
};

/// Writes it as the message's records, whatever they were before. Each carries 32 bits; m_ushMessageType says of what, m_ushRidId which of them.
void WriteReceived(const Received& received, CKRMList<CKRMCCommandDmReceiveData>& records);
Received ReadReceived(const CKRMList<CKRMCCommandDmReceiveData>& records);

}  // namespace diagnosis_session

#endif  // KRM_EXAMPLES_DIAGNOSIS_SESSION_RECEIVED_H_

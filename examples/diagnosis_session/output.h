// Where what the session finds out goes: the report, JSON, CSV.
#ifndef KRM_EXAMPLES_DIAGNOSIS_SESSION_OUTPUT_H_
#define KRM_EXAMPLES_DIAGNOSIS_SESSION_OUTPUT_H_

#include <cstddef>
#include <cstdint>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "can_recording.h"
#include "cli/terminal/gathered_text.h"
#include "exchange.h"
#include "krm/messages/diag/freeze_frame_item.h"
#include "krm/messages/diag/trouble_codes.h"

namespace diagnosis_session {

/// What the recording is, or as much of it as was read.
struct RecordingInfo {
    std::string file;
    bool isEmpty = false;  ///< the file has nothing in it
    RecordingTotals totals;
    std::vector<std::uint32_t> ecus;  ///< CAN IDs that ECUs answer with
};

/// What an answer belongs to.
struct Moment {
    std::uint64_t exchange = 0;  ///< number, from 1
    std::string request;         ///< in hexadecimal
    std::uint32_t ecu = 0;       ///< CAN ID that it answers with
    Microseconds time = kNoTime;
    Microseconds start = kNoTime;  ///< of the recording
    std::optional<unsigned> freezeFrame;
};

/// How the session ended.
struct SessionSummary {
    RecordingInfo recording;
    std::uint64_t exchanges = 0;
    std::uint64_t values = 0;  ///< without those that an ECU left out of its answer
    std::size_t faults = 0;
    bool interrupted = false;
    std::vector<std::string> written;  ///< each file: "values v.csv (12 rows)"
};

/// Takes what is found out, as it is. Everything was read out of receive messages.
class Output {
public:
    virtual ~Output() = default;
    /// First of all; without totals and ECUs where they are known at the end only.
    virtual void Begin(const RecordingInfo& recording, bool isKnown) = 0;
    virtual void Vin(const Moment& moment, const std::string& vin) = 0;
    /// Which PIDs of service 01 an ECU supports: a bit for each, beginning with PID 01.
    virtual void Supported(std::uint32_t ecu, const CKRMList<unsigned char>& mask) = 0;
    virtual void TroubleCodes(const Moment& moment, const std::string& kind,
                              const CKRMCGetDTCCmdAdaptDataRcv& answer) = 0;
    /// Trouble codes were cleared, or `refusal` tells why not (0: they were).
    virtual void Clearing(const Moment& moment, krm_ulong refusal) = 0;
    virtual void Values(const Moment& moment, const CKRMList<CKRMCCommandFFDData>& items) = 0;
    virtual void End(const SessionSummary& summary) = 0;
};

/// Text on its way to a stream, written in large pieces. Throws FileError when the stream takes no more.
class TextStream : public terminal::GatheredText<TextStream> {
public:
    TextStream(std::ostream& out, std::string name) : m_out(out), m_name(std::move(name)) {}
    void Flush();

private:
    std::ostream& m_out;
    std::string m_name;
};

/// `time` with `decimals` decimal places, empty where there is none.
std::string Seconds(Microseconds time, int decimals);

/// The PIDs of a support mask, but those that only say that there is a further mask.
std::vector<std::uint8_t> PidsOf(const CKRMList<unsigned char>& mask);

/// What a person is shown of a value: "14.9 %", "on", "P0301".
std::string ShownText(const CKRMCCommandFFDData& item, const CKRMCCommandDispData& value);

}  // namespace diagnosis_session

#endif  // KRM_EXAMPLES_DIAGNOSIS_SESSION_OUTPUT_H_

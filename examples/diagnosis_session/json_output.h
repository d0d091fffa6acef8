// What the session finds out as one JSON document, for programs. It is written as it is found out.
#ifndef KRM_EXAMPLES_DIAGNOSIS_SESSION_JSON_OUTPUT_H_
#define KRM_EXAMPLES_DIAGNOSIS_SESSION_JSON_OUTPUT_H_

#include "output.h"

namespace diagnosis_session {

/// {"recording": {...}, "events": [...], "summary": {...}}. An event has its "kind": vin, supported, troubleCode,
/// noTroubleCodes, cleared, notCleared or value. Frames, times and ECUs stand in "recording" where they are known
/// beforehand, and in "summary" always. Times are seconds.
class JsonOutput : public Output {
public:
    explicit JsonOutput(TextStream& out) : m_out(out) {}

    void Begin(const RecordingInfo& recording, bool isKnown) override;
    void Vin(const Moment& moment, const std::string& vin) override;
    void Supported(std::uint32_t ecu, const CKRMList<unsigned char>& mask) override;
    void TroubleCodes(const Moment& moment, const std::string& kind, const CKRMCGetDTCCmdAdaptDataRcv& answer) override;
    void Clearing(const Moment& moment, krm_ulong refusal) override;
    void Values(const Moment& moment, const CKRMList<CKRMCCommandFFDData>& items) override;
    void End(const SessionSummary& summary) override;

private:
    void Text(std::string_view name, std::string_view text);
    void Totals(const RecordingInfo& recording);
    void BeginEvent(const Moment& moment, const char* kind);

    TextStream& m_out;
    bool m_first = true;
};

}  // namespace diagnosis_session

#endif  // KRM_EXAMPLES_DIAGNOSIS_SESSION_JSON_OUTPUT_H_

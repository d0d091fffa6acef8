// The report that a person reads. Its rows come as they are found out.
#ifndef KRM_EXAMPLES_DIAGNOSIS_SESSION_REPORT_H_
#define KRM_EXAMPLES_DIAGNOSIS_SESSION_REPORT_H_

#include <map>
#include <set>

#include "output.h"

namespace diagnosis_session {

class Report : public Output {
public:
    /// `nameWidth` is the width of the longest item name.
    Report(TextStream& out, std::size_t nameWidth);

    void Begin(const RecordingInfo& recording, bool isKnown) override;
    void Vin(const Moment& moment, const std::string& vin) override;
    void Supported(std::uint32_t ecu, const CKRMList<unsigned char>& mask) override;
    void TroubleCodes(const Moment& moment, const std::string& kind, const CKRMCGetDTCCmdAdaptDataRcv& answer) override;
    void Clearing(const Moment& moment, krm_ulong refusal) override;
    void Values(const Moment& moment, const CKRMList<CKRMCCommandFFDData>& items) override;
    void End(const SessionSummary& summary) override;

private:
    struct Code {
        std::string text;
        std::set<std::string> where;  ///< "stored in 7E8"
    };

    void Head(const RecordingInfo& recording);
    /// Begins a group of rows, if the last row was of another one.
    void Group(const std::string& name);
    void BeginRow(const Moment& moment);
    void Row(std::string_view name, std::string_view value, std::string_view unit);

    TextStream& m_out;
    std::size_t m_nameWidth;
    std::string m_group;
    bool m_headWritten = false;
    std::set<std::string> m_vins;
    std::map<std::string, Code> m_codes;
};

}  // namespace diagnosis_session

#endif  // KRM_EXAMPLES_DIAGNOSIS_SESSION_REPORT_H_

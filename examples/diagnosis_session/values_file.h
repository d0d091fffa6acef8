// Every value as CSV.
#ifndef KRM_EXAMPLES_DIAGNOSIS_SESSION_VALUES_FILE_H_
#define KRM_EXAMPLES_DIAGNOSIS_SESSION_VALUES_FILE_H_

#include "output.h"
#include "output_file.h"

namespace diagnosis_session {

/// Writes a row for each value, without the items that an ECU left out: number of the exchange, request in hexadecimal,
/// the item's ID, its raw value, its physical value and unit as the item table has them (an enumerated item's value is its
/// text), the time in seconds, the ECU's CAN ID, the item's name and what a person is shown. A field with a comma, a quote
/// or a line break stands in quotes. Numbers are written the same in every locale, whatever units are shown.
class ValuesFile : public Output {
public:
    static constexpr std::string_view kColumns = "exchange,request,item,raw,value,unit,time,ecu,name,text";

    explicit ValuesFile(const std::string& path);
    void Close() { m_file.Close(); }
    std::uint64_t RowCount() const { return m_rows; }

    void Begin(const RecordingInfo&, bool) override {}
    void Vin(const Moment&, const std::string&) override {}
    void Supported(std::uint32_t, const CKRMList<unsigned char>&) override {}
    void TroubleCodes(const Moment&, const std::string&, const CKRMCGetDTCCmdAdaptDataRcv&) override {}
    void Clearing(const Moment&, krm_ulong) override {}
    void Values(const Moment& moment, const CKRMList<CKRMCCommandFFDData>& items) override;
    void End(const SessionSummary&) override {}

private:
    OutputFile m_file;
    std::uint64_t m_rows = 0;
};

}  // namespace diagnosis_session

#endif  // KRM_EXAMPLES_DIAGNOSIS_SESSION_VALUES_FILE_H_

// What the session found out, for a person and as CSV.
#ifndef KRM_EXAMPLES_DIAGNOSIS_SESSION_REPORT_H_
#define KRM_EXAMPLES_DIAGNOSIS_SESSION_REPORT_H_

#include <cstddef>
#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

#include "krm/messages/diag/freeze_frame_item.h"
#include "krm/messages/diag/trouble_codes.h"

namespace diagnosis_session {

/// Everything in it was read out of receive messages.
class Report {
public:
    void AddEcu(std::uint32_t ecu, bool connected, const std::string& description);
    void AddVin(std::uint32_t ecu, const std::string& vin);
    /// Which PIDs of service 01 an ECU supports: a bit for each, beginning with PID 01.
    void AddSupport(std::uint32_t ecu, const CKRMList<unsigned char>& mask);
    void AddTroubleCodes(std::uint32_t ecu, const std::string& kind, const CKRMCGetDTCCmdAdaptDataRcv& answer);
    /// Trouble codes were cleared, or `refusal` tells why not (0: they were).
    void AddClearing(std::uint32_t ecu, krm_ulong refusal);
    /// The items of an answer. `exchange` is its number, `request` the request in hexadecimal.
    void AddValues(std::size_t exchange, const std::string& request, std::uint32_t ecu,
                   const CKRMList<CKRMCCommandFFDData>& items);
    void AddMonitor(std::uint32_t ecu, std::size_t items, std::size_t polls, std::size_t values);

    /// The values, without the items that an ECU left out.
    std::size_t ValueCount() const;

    void Print(std::ostream& out) const;
    /// exchange,request,item,raw,value,unit; a field with a comma, a quote or a line break stands in quotes.
    void WriteCsv(std::ostream& out) const;

private:
    struct Value {
        std::size_t exchange;
        std::string request;
        std::string ecu;
        std::string item;
        std::string name;
        bool isThere;  ///< false: the ECU's answer ends before the item
        std::string raw;
        std::string value;
        std::string unit;
    };
    using Row = std::vector<std::string>;

    std::vector<Row> m_vehicle;
    std::vector<Row> m_troubleCodes;
    std::vector<Row> m_monitors;
    std::vector<Value> m_values;
};

}  // namespace diagnosis_session

#endif  // KRM_EXAMPLES_DIAGNOSIS_SESSION_REPORT_H_

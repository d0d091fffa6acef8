#include "report.h"

#include <algorithm>
#include <utility>

#include "hex.h"

namespace diagnosis_session {
namespace {

/// Characters of a UTF-8 text: all bytes but those that continue one.
std::size_t WidthOf(const std::string& text) {
    return static_cast<std::size_t>(std::count_if(
        text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}

void PrintTable(std::ostream& out, const std::string& title, const std::vector<std::vector<std::string>>& rows) {
    if (rows.empty()) {
        return;
    }
    std::vector<std::size_t> widths;
    for (const auto& row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (std::size_t i = 0; i < row.size(); ++i) {
            widths[i] = std::max(widths[i], WidthOf(row[i]));
        }
    }
    out << title << '\n';
    for (const auto& row : rows) {
        std::string line = "  ";
        for (std::size_t i = 0; i < row.size(); ++i) {
            line += (i == 0 ? "" : " | ") + row[i] + std::string(widths[i] - WidthOf(row[i]), ' ');
        }
        line.erase(line.find_last_not_of(' ') + 1);
        out << line << '\n';
    }
    out << '\n';
}

std::string CsvField(const std::string& text) {
    if (text.find_first_of(",\"\r\n") == std::string::npos) {
        return text;
    }
    std::string quoted = "\"";
    for (const char character : text) {
        quoted += character == '"' ? "\"\"" : std::string(1, character);
    }
    return quoted + '"';
}

std::string Count(std::size_t number, const char* what) {
    return std::to_string(number) + ' ' + what + (number == 1 ? "" : "s");
}

}  // namespace

void Report::AddEcu(std::uint32_t ecu, bool connected, const std::string& description) {
    m_vehicle.push_back({"ECU " + HexOfId(ecu), connected ? "connected" : "not connected", description});
}

void Report::AddVin(std::uint32_t ecu, const std::string& vin) {
    m_vehicle.push_back({"ECU " + HexOfId(ecu), "VIN", vin});
}

void Report::AddSupport(std::uint32_t ecu, const CKRMList<unsigned char>& mask) {
    std::string pids;
    std::uint8_t pid = 0;
    for (const unsigned char byte : mask) {
        for (unsigned bit = 0x80; bit != 0; bit >>= 1U) {
            ++pid;
            // PIDs 20, 40 ... only say that there is a further mask.
            if ((byte & bit) != 0 && pid % 0x20 != 0) {
                pids += (pids.empty() ? "" : " ") + HexOf({&pid, 1});
            }
        }
    }
    if (mask.GetCount() != 0) {
        m_vehicle.push_back({"ECU " + HexOfId(ecu), "live data", pids});
    }
}

void Report::AddTroubleCodes(std::uint32_t ecu, const std::string& kind, const CKRMCGetDTCCmdAdaptDataRcv& answer) {
    if (answer.Data.GetCount() == 0) {
        m_troubleCodes.push_back({"ECU " + HexOfId(ecu), kind, "none"});
    }
    for (const CKRMCCommandDTCData& code : answer.Data) {
        Row row = {"ECU " + HexOfId(ecu), code.m_strDTCTypeName.GetText(), code.m_strDTC.GetText()};
        if (code.m_strDTCName.GetLength() != 0) {
            row.emplace_back(code.m_strDTCName.GetText());
        }
        m_troubleCodes.push_back(std::move(row));
    }
}

void Report::AddClearing(std::uint32_t ecu, krm_ulong refusal) {
    m_troubleCodes.push_back({"ECU " + HexOfId(ecu), refusal == 0 ? "cleared" : "not cleared"});
}

void Report::AddValues(std::size_t exchange, const std::string& request, std::uint32_t ecu,
                       const CKRMList<CKRMCCommandFFDData>& items) {
    for (const CKRMCCommandFFDData& item : items) {
        Value value{exchange, request, HexOfId(ecu), item.m_strFFDText.GetText(), item.m_strName.GetText(), false, "",
                    "",       ""};
        for (const CKRMCCommandDispData& display : item.m_cDispDataList) {
            value.isThere = true;
            value.raw = std::to_string(display.m_ulRawData);
            value.value = display.m_strData.GetText();
            value.unit = item.m_strUnit.GetText();
        }
        m_values.push_back(std::move(value));
    }
}

void Report::AddMonitor(std::uint32_t ecu, std::size_t items, std::size_t polls, std::size_t values) {
    m_monitors.push_back({"ECU " + HexOfId(ecu), Count(items, "item"), Count(polls, "poll"), Count(values, "value")});
}

std::size_t Report::ValueCount() const {
    return static_cast<std::size_t>(
        std::count_if(m_values.begin(), m_values.end(), [](const Value& value) { return value.isThere; }));
}

void Report::Print(std::ostream& out) const {
    PrintTable(out, "Vehicle", m_vehicle);
    PrintTable(out, "Trouble codes", m_troubleCodes);
    std::vector<Row> rows;
    if (!m_values.empty()) {
        rows.push_back({"exchange", "request", "ECU", "item", "raw", "value", "unit", "name"});
    }
    for (const Value& value : m_values) {
        rows.push_back({std::to_string(value.exchange), value.request, value.ecu, value.item,
                        value.isThere ? value.raw : "-", value.isThere ? value.value : "not in the answer", value.unit,
                        value.name});
    }
    PrintTable(out, "Values", rows);
    PrintTable(out, "Data monitor", m_monitors);
}

void Report::WriteCsv(std::ostream& out) const {
    out << "exchange,request,item,raw,value,unit\n";
    for (const Value& value : m_values) {
        if (value.isThere) {
            out << value.exchange << ',' << value.request << ',' << CsvField(value.item) << ',' << value.raw << ','
                << CsvField(value.value) << ',' << CsvField(value.unit) << '\n';
        }
    }
}

}  // namespace diagnosis_session

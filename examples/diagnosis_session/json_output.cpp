#include "json_output.h"

#include <cmath>
#include <nlohmann/json.hpp>

#include "engine.h"
#include "hex.h"

namespace diagnosis_session {
namespace {

/// In quotes, with the escapes that JSON asks for. Bytes that are no UTF-8 are replaced.
std::string Quoted(std::string_view text) {
    return nlohmann::json(text).dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}

}  // namespace

void JsonOutput::Text(std::string_view name, std::string_view text) {
    m_out << ", \"" << name << "\": " << Quoted(text);
}

void JsonOutput::Totals(const RecordingInfo& recording) {
    m_out << ", \"frames\": " << recording.totals.frames;
    if (recording.totals.first != kNoTime) {
        m_out << ", \"begin\": " << Seconds(recording.totals.first, 6)
              << ", \"duration\": " << Seconds(recording.totals.last - recording.totals.first, 6);
    }
    m_out << ", \"ecus\": [";
    for (std::size_t i = 0; i < recording.ecus.size(); ++i) {
        m_out << (i == 0 ? "\"" : ", \"") << HexOfId(recording.ecus[i]) << '"';
    }
    m_out << ']';
}

void JsonOutput::Begin(const RecordingInfo& recording, bool isKnown) {
    m_out << "{\n\"recording\": {\"file\": " << Quoted(recording.file);
    if (isKnown) {
        Totals(recording);
    }
    m_out << "},\n\"events\": [";
}

void JsonOutput::BeginEvent(const Moment& moment, const char* kind) {
    m_out << (m_first ? "\n" : ",\n") << "{\"kind\": \"" << kind << "\", \"exchange\": " << moment.exchange
          << ", \"request\": \"" << moment.request << "\", \"ecu\": \"" << HexOfId(moment.ecu) << '"';
    if (moment.time != kNoTime) {
        m_out << ", \"time\": " << Seconds(moment.time, 6);
    }
    m_first = false;
}

void JsonOutput::Vin(const Moment& moment, const std::string& vin) {
    BeginEvent(moment, "vin");
    Text("vin", vin);
    m_out << '}';
}

void JsonOutput::Supported(std::uint32_t ecu, const CKRMList<unsigned char>& mask) {
    m_out << (m_first ? "\n" : ",\n") << "{\"kind\": \"supported\", \"ecu\": \"" << HexOfId(ecu) << "\", \"pids\": [";
    bool first = true;
    for (const std::uint8_t pid : PidsOf(mask)) {
        m_out << (first ? "\"" : ", \"") << HexOf({&pid, 1}) << '"';
        first = false;
    }
    m_out << "]}";
    m_first = false;
}

void JsonOutput::TroubleCodes(const Moment& moment, const std::string& kind, const CKRMCGetDTCCmdAdaptDataRcv& answer) {
    if (answer.Data.GetCount() == 0) {
        BeginEvent(moment, "noTroubleCodes");
        Text("state", kind);
        m_out << '}';
    }
    for (const CKRMCCommandDTCData& code : answer.Data) {
        BeginEvent(moment, "troubleCode");
        Text("state", kind);
        Text("code", code.m_strDTC.GetText());
        Text("text", code.m_strDTCName.GetText());
        m_out << '}';
    }
}

void JsonOutput::Clearing(const Moment& moment, krm_ulong refusal) {
    BeginEvent(moment, refusal == 0 ? "cleared" : "notCleared");
    m_out << '}';
}

void JsonOutput::Values(const Moment& moment, const CKRMList<CKRMCCommandFFDData>& items) {
    for (const CKRMCCommandFFDData& item : items) {
        for (const CKRMCCommandDispData& value : item.m_cDispDataList) {
            BeginEvent(moment, "value");
            if (moment.freezeFrame) {
                m_out << ", \"freezeFrame\": " << std::uint64_t{*moment.freezeFrame};
            }
            Text("item", item.m_strFFDText.GetText());
            Text("name", item.m_strName.GetText());
            m_out << ", \"raw\": " << std::uint64_t{value.m_ulRawData} << ", \"value\": ";
            // Of an enumerated item without a number of its own, the raw value.
            const std::string_view number = value.m_strDataPhys.GetText();
            const bool isNumber = item.m_uchDataType != 1 || item.m_uchDecPntCount != 0;
            m_out << (isNumber ? std::string(number) : std::to_string(value.m_ulRawData));
            Text("unit", item.m_strUnitPhys.GetText());
            Text("text", ShownText(item, value));
            m_out << '}';
        }
    }
    m_out.FlushIfMuch();
}

void JsonOutput::End(const SessionSummary& summary) {
    m_out << "\n],\n\"summary\": {\"exchanges\": " << summary.exchanges << ", \"values\": " << summary.values
          << ", \"faults\": " << std::uint64_t{summary.faults}
          << ", \"interrupted\": " << (summary.interrupted ? "true" : "false");
    Totals(summary.recording);
    m_out << ", \"written\": [";
    for (std::size_t i = 0; i < summary.written.size(); ++i) {
        m_out << (i == 0 ? "" : ", ") << Quoted(summary.written[i]);
    }
    m_out << "]}\n}\n";
    m_out.Flush();
}

}  // namespace diagnosis_session

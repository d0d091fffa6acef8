#include "report.h"

#include <algorithm>

#include "cli/terminal/control_characters.h"
#include "engine.h"
#include "hex.h"
#include "krm/framework/log_sinks.h"

namespace diagnosis_session {
namespace {

constexpr std::size_t kLongestName = 56;
constexpr std::size_t kValueWidth = 20;
constexpr std::size_t kTimeWidth = 10;
/// A recording that names more than this was not made by a vehicle.
constexpr std::size_t kMostInSummary = 1000;

/// Characters of a UTF-8 text: all bytes but those that continue one.
std::size_t WidthOf(std::string_view text) {
    return static_cast<std::size_t>(std::count_if(
        text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}

/// What `text` lacks to that width, of a run of blanks.
std::string_view Blanks(std::size_t width, std::string_view text) {
    static const std::string blanks(128, ' ');
    return std::string_view(blanks).substr(0, width - std::min(width, WidthOf(text)));
}

std::string Count(std::uint64_t number, const char* what) {
    return std::to_string(number) + ' ' + what + (number == 1 ? "" : "s");
}

/// Text of a vehicle or a table on one line, whatever it holds. `changed` keeps it where it had to be changed.
std::string_view OnOneLine(std::string_view text, std::string& changed) {
    if (std::none_of(text.begin(), text.end(), terminal::IsControl)) {
        return text;
    }
    changed = text;
    std::replace_if(changed.begin(), changed.end(), terminal::IsControl, '?');
    return changed;
}
std::string OnOneLine(std::string_view text) {
    std::string changed;
    return std::string(OnOneLine(text, changed));
}

}  // namespace

Report::Report(TextStream& out, std::size_t nameWidth)
    : m_out(out), m_nameWidth(std::clamp<std::size_t>(nameWidth, 8, kLongestName)) {}

void Report::Begin(const RecordingInfo& recording, bool isKnown) {
    m_out << "Recording  " << OnOneLine(recording.file) << (recording.isEmpty ? " is empty\n" : "\n");
    if (isKnown) {
        Head(recording);
        m_headWritten = true;
    }
}

void Report::Head(const RecordingInfo& recording) {
    const RecordingTotals& totals = recording.totals;
    m_out << "           " << Count(totals.frames, "frame");
    if (totals.first != kNoTime) {
        m_out << " in " << Seconds(totals.last - totals.first, 1) << " s";
        if (HasDate(totals.first)) {
            const std::string begin = krm::TimeStamp(TimePointOf(totals.first));  // 2024-11-07T17:20:00.048Z
            m_out << " from " << begin.substr(0, 10) << ' ' << begin.substr(11, 8) << " UTC";
        }
    }
    m_out << '\n';
    m_out << (recording.ecus.size() == 1 ? "ECU        " : "ECUs       ");
    for (std::size_t i = 0; i < recording.ecus.size(); ++i) {
        m_out << (i == 0 ? "" : ", ") << HexOfId(recording.ecus[i]);
    }
    m_out << (recording.ecus.empty() ? "none answers\n" : "\n");
}

void Report::Group(const std::string& name) {
    if (m_group != name) {
        m_group = name;
        m_out << '\n' << name << '\n';
    }
}

void Report::BeginRow(const Moment& moment) {
    const bool hasTime = moment.time != kNoTime && moment.start != kNoTime;
    const std::string time = hasTime ? Seconds(moment.time - moment.start, 3) : "-";
    const std::string ecu = HexOfId(moment.ecu);
    m_out << Blanks(kTimeWidth, time) << time << "  " << ecu << "  ";
}

void Report::Row(std::string_view name, std::string_view value, std::string_view unit) {
    m_out << name << Blanks(m_nameWidth, name) << ' ' << Blanks(kValueWidth, value) << value;
    if (!unit.empty()) {
        m_out << (unit == "°" ? "" : " ") << unit;
    }
    m_out << '\n';
}

void Report::Vin(const Moment& moment, const std::string& vin) {
    Group("Vehicle");
    BeginRow(moment);
    Row("Vehicle identification number", vin, "");
    if (m_vins.size() < kMostInSummary) {
        m_vins.insert(vin);
    }
}

void Report::Supported(std::uint32_t ecu, const CKRMList<unsigned char>& mask) {
    std::string text;
    for (const std::uint8_t pid : PidsOf(mask)) {
        text += (text.empty() ? "" : " ") + HexOf({&pid, 1});
    }
    if (!text.empty()) {
        m_out << HexOfId(ecu) << "        supports PIDs " << text << '\n';
    }
}

void Report::TroubleCodes(const Moment& moment, const std::string& kind, const CKRMCGetDTCCmdAdaptDataRcv& answer) {
    Group("Trouble codes");
    if (answer.Data.GetCount() == 0) {
        BeginRow(moment);
        m_out << kind << Blanks(9, kind) << "  none\n";
    }
    for (const CKRMCCommandDTCData& code : answer.Data) {
        BeginRow(moment);
        const std::string name = code.m_strDTC.GetText();
        const std::string text = OnOneLine(code.m_strDTCName.GetText());
        m_out << kind << Blanks(9, kind) << "  " << name << (text.empty() ? "" : "  ") << text << '\n';
        if (m_codes.size() < kMostInSummary || m_codes.contains(name)) {
            Code& known = m_codes[name];
            known.text = text;
            known.where.insert(kind + " in " + HexOfId(moment.ecu));
        }
    }
}

void Report::Clearing(const Moment& moment, krm_ulong refusal) {
    Group("Trouble codes");
    BeginRow(moment);
    m_out << (refusal == 0 ? "cleared" : "not cleared: the ECU refused") << '\n';
}

void Report::Values(const Moment& moment, const CKRMList<CKRMCCommandFFDData>& items) {
    if (items.GetCount() == 0) {
        return;
    }
    Group(moment.freezeFrame                                   ? "Freeze frame " + std::to_string(*moment.freezeFrame)
          : std::string_view(moment.request).starts_with("01") ? "Live values"
                                                               : "Other values");
    for (const CKRMCCommandFFDData& item : items) {
        BeginRow(moment);
        const std::string_view name =
            item.m_strName.GetLength() != 0 ? item.m_strName.GetText() : item.m_strFFDText.GetText();
        std::string changedName;
        const std::string_view shownName = OnOneLine(name, changedName);
        if (item.m_cDispDataList.GetCount() == 0) {
            Row(shownName, "not in the answer", "");
            continue;
        }
        const CKRMCCommandDispData& value = *begin(item.m_cDispDataList);
        const bool isNumber = value.m_ulDispDataType == static_cast<krm_ulong>(DisplayKind::Number);
        if (isNumber) {
            Row(shownName, value.m_strData.GetText(), item.m_strUnit.GetText());
        } else {
            Row(shownName, OnOneLine(value.m_strData.GetText()), "");
        }
    }
    m_out.FlushIfMuch();
}

void Report::End(const SessionSummary& summary) {
    if (!m_headWritten) {
        m_out << '\n';
        Head(summary.recording);
    }
    if (!m_vins.empty() || !m_codes.empty()) {
        m_out << "\nSummary\n";
    }
    for (const std::string& vin : m_vins) {
        m_out << "  VIN " << vin << '\n';
    }
    for (const auto& [name, code] : m_codes) {
        m_out << "  " << name << "  ";
        std::size_t width = 0;
        for (const std::string& where : code.where) {
            m_out << (width == 0 ? "" : ", ") << where;
            width += where.size() + (width == 0 ? 0 : 2);
        }
        m_out << (code.text.empty() ? "" : ": ") << code.text << '\n';
    }
    m_out << '\n'
          << Count(summary.exchanges, "exchange") << ", " << Count(summary.values, "value") << ", "
          << (summary.faults == 0 ? "no faults" : Count(summary.faults, "fault"));
    m_out << (summary.interrupted ? "; interrupted, the rest of the recording was not decoded" : "");
    for (std::size_t i = 0; i < summary.written.size(); ++i) {
        m_out << (i == 0 ? "; written: " : ", ") << summary.written[i];
    }
    m_out << '\n';
    m_out.Flush();
}

}  // namespace diagnosis_session

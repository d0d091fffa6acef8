#include "values_file.h"

#include <algorithm>

#include "hex.h"

namespace diagnosis_session {
namespace {

void AppendField(std::string& row, std::string_view text) {
    const bool isPlain =
        std::none_of(text.begin(), text.end(), [](char c) { return c == ',' || c == '"' || c == '\r' || c == '\n'; });
    if (isPlain) {
        row += text;
        return;
    }
    row += '"';
    for (const char character : text) {
        row += character;
        if (character == '"') {
            row += '"';
        }
    }
    row += '"';
}

}  // namespace

// A file that an earlier version wrote begins with the first six columns.
ValuesFile::ValuesFile(const std::string& path)
    : m_file(path, kColumns.substr(0, kColumns.find(",time")), "a file of values") {
    m_file.Write(std::string(kColumns) + '\n');
}

void ValuesFile::Values(const Moment& moment, const CKRMList<CKRMCCommandFFDData>& items) {
    std::string rows;
    for (const CKRMCCommandFFDData& item : items) {
        for (const CKRMCCommandDispData& value : item.m_cDispDataList) {
            rows += std::to_string(moment.exchange) + ',' + moment.request + ',';
            AppendField(rows, item.m_strFFDText.GetText());
            rows += ',' + std::to_string(value.m_ulRawData) + ',';
            AppendField(rows, value.m_strDataPhys.GetText());
            rows += ',';
            AppendField(rows, item.m_strUnitPhys.GetText());
            rows += ',' + Seconds(moment.time, 6) + ',' + HexOfId(moment.ecu) + ',';
            AppendField(rows, item.m_strName.GetText());
            rows += ',';
            AppendField(rows, ShownText(item, value));
            rows += '\n';
            ++m_rows;
        }
    }
    m_file.Write(rows);
}

}  // namespace diagnosis_session

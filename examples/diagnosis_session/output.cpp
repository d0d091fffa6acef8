#include "output.h"

#include <cerrno>
#include <cstring>

#include "engine.h"
#include "recording_file.h"

namespace diagnosis_session {

void TextStream::Flush() {
    if (m_text.empty()) {
        return;
    }
    m_beforeWriting();
    errno = 0;
    m_out.write(m_text.data(), static_cast<std::streamsize>(m_text.size()));
    m_text.clear();
    if (!m_out.flush()) {
        throw FileError(m_name + ": cannot be written: " + ReasonOf(errno));
    }
}

std::string Seconds(Microseconds time, int decimals) {
    if (time == kNoTime) {
        return {};
    }
    std::int64_t unit = 1;
    for (int i = decimals; i < 6; ++i) {
        unit *= 10;
    }
    const std::int64_t perSecond = 1'000'000 / unit;
    const std::int64_t magnitude = (time < 0 ? -time : time) / unit;
    std::string text = std::to_string(magnitude / perSecond);
    if (decimals > 0) {
        const std::string fraction = std::to_string(magnitude % perSecond);
        text += '.' + std::string(static_cast<std::size_t>(decimals) - fraction.size(), '0') + fraction;
    }
    return time < 0 ? '-' + text : text;
}

std::vector<std::uint8_t> PidsOf(const CKRMList<unsigned char>& mask) {
    std::vector<std::uint8_t> pids;
    std::uint8_t pid = 0;
    for (const unsigned char byte : mask) {
        for (unsigned bit = 0x80; bit != 0; bit >>= 1U) {
            ++pid;
            if ((byte & bit) != 0 && pid % 0x20 != 0) {
                pids.push_back(pid);
            }
        }
    }
    return pids;
}

std::string ShownText(const CKRMCCommandFFDData& item, const CKRMCCommandDispData& value) {
    std::string text = value.m_strData.GetText();
    const char* const unit = item.m_strUnit.GetText();
    if (*unit != '\0' && value.m_ulDispDataType == static_cast<krm_ulong>(DisplayKind::Number)) {
        // The degree sign stands at its number; that of a temperature is part of the unit.
        text += std::strcmp(unit, "°") == 0 ? "" : " ";
        text += unit;
    }
    return text;
}

}  // namespace diagnosis_session

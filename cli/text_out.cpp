#include "cli/text_out.h"

#include <cerrno>

#include "cli/byte_source.h"
#include "cli/patterns.h"

namespace krm_cli {

TextOut& TextOut::Coloured(std::string_view colour, std::string_view text) {
    if (!m_surroundings.hasColours || colour.empty()) {
        return *this << text;
    }
    return *this << colour << text << "\x1b[0m";
}

TextOut& TextOut::Json(std::string_view text) {
    AppendJson(text, m_text);
    return *this;
}

void TextOut::Flush() {
    m_surroundings.GoOn();
    m_beforeWriting();
    errno = 0;
    m_surroundings.out.write(m_text.data(), static_cast<std::streamsize>(m_text.size()));
    m_text.clear();
    if (!m_surroundings.out.flush()) {
        throw Failure("standard output: cannot be written: " + ReasonOf(errno));
    }
}

}  // namespace krm_cli

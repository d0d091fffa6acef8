// printf-style formatting that no locale and no C library's peculiarity reaches. Part of the platform library's inside.
#ifndef KRM_PLATFORM_INTERNAL_FORMAT_H_
#define KRM_PLATFORM_INTERNAL_FORMAT_H_

#include <array>
#include <cstdarg>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

namespace krm::platform {

/// What has been printed so far: on the stack while it is no longer than most lines, then in a string.
class Output {
public:
    Output() = default;
    Output(const Output&) = delete;
    Output& operator=(const Output&) = delete;

    void Append(std::string_view text) {
        if (text.size() > m_room.size() - m_length) {
            m_spilled.append(m_room.data(), m_length);
            m_length = 0;
            if (text.size() > m_room.size()) {
                m_spilled.append(text);
                return;
            }
        }
        m_length += text.copy(m_room.data() + m_length, text.size());
    }
    void Append(std::size_t count, char character) {
        for (; count != 0; --count) {
            Append({&character, 1});
        }
    }

    /// All of it, with a NUL behind it; valid as long as this object.
    std::string_view Text() {
        Append({"", 1});
        std::string_view text(m_room.data(), m_length);
        if (!m_spilled.empty()) {
            text = m_spilled.append(text);
        }
        text.remove_suffix(1);
        return text;
    }
    void AssignTo(std::string& result) {
        if (m_spilled.empty()) {
            result.assign(m_room.data(), m_length);
        } else {
            m_spilled.append(m_room.data(), m_length);
            result = std::move(m_spilled);
        }
    }

private:
    std::array<char, 512> m_room;  // not initialised: a line fills a tenth of it
    std::size_t m_length = 0;
    std::string m_spilled;
};

/// Appends `format` filled with `arguments` to `out`, as printf prints it in the C locale.
///
/// All conversions of C but wide characters (`%lc`, `%ls`) and `%n`, which writes nothing; `l`, `ll`, `h`, `hh`, `z`, `j`,
/// `t` and `L` give the argument's size; a `long double` prints with the precision of a double. A null text prints as
/// "(null)". Numbers go through std::to_chars: correctly rounded and the same everywhere. What is no conversion prints
/// as its last character.
void AppendFormatted(Output& out, const char* format, std::va_list arguments);

}  // namespace krm::platform

#endif  // KRM_PLATFORM_INTERNAL_FORMAT_H_

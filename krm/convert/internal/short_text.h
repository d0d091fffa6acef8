// Texts of a few characters and numbers, put together without a format to interpret. Part of the library's inside.
#ifndef KRM_CONVERT_INTERNAL_SHORT_TEXT_H_
#define KRM_CONVERT_INTERNAL_SHORT_TEXT_H_

#include <array>
#include <cstddef>

#include "krm/core/internal/digits.h"
#include "krm/platform/platform.h"

namespace krm::convert {

/// A text under construction; each operation appends. Has room for what the converters show: two numbers of 32 bits and
/// the words around them.
class ShortText {
public:
    ShortText& Character(char character) {
        m_text[m_length++] = character;
        return *this;
    }
    ShortText& Words(const char* words) {
        for (; *words != '\0'; ++words) {
            Character(*words);
        }
        return *this;
    }
    /// At least `width` digits, filled with zeros.
    ShortText& Decimal(krm_ulong number, std::size_t width = 1) {
        return UpTo(core::WriteDecimal(End(), number, width));
    }
    /// The last `count` digits, zeros where the number has fewer.
    ShortText& LastDecimals(krm_ulong number, std::size_t count) {
        return UpTo(core::WriteLastDecimals(End(), number, count));
    }
    /// At least `width` upper-case hexadecimal digits, filled with zeros.
    ShortText& Hexadecimal(krm_ulong number, std::size_t width = 1) {
        return UpTo(core::WriteHexadecimal(End(), number, core::kUpperCase, width));
    }

    void AssignTo(CKRMString& result) {
        m_text[m_length] = '\0';
        result = m_text.data();
    }

private:
    char* End() { return m_text.data() + m_length; }
    ShortText& UpTo(const char* end) {
        m_length = static_cast<std::size_t>(end - m_text.data());
        return *this;
    }

    std::array<char, 32> m_text;
    std::size_t m_length = 0;
};

}  // namespace krm::convert

#endif  // KRM_CONVERT_INTERNAL_SHORT_TEXT_H_

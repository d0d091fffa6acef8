// What the texts of this library share, whether JSON or for people: numbers, hexadecimal bytes, what counts as UTF-8.
#ifndef KRM_EXCHANGE_INTERNAL_TEXT_H_
#define KRM_EXCHANGE_INTERNAL_TEXT_H_

#include <charconv>
#include <cstddef>
#include <string>
#include <string_view>

#include "krm/core/internal/digits.h"
#include "krm/platform/platform.h"

namespace krm::exchange {

/// The one kind of map that messages hold.
using TextMap = CKRMMap<CKRMString, CKRMString>;

/// Appends an integer in decimal, or a finite double in the shortest form that reads back to the same bits.
template <class Number>
void AppendNumber(Number number, std::string& out) {
    char digits[32];  // -1.7976931348623157e+308
    out.append(digits, std::to_chars(digits, digits + sizeof digits, number).ptr);
}

/// Appends a byte as two hexadecimal digits in upper case.
inline void AppendByte(char byte, std::string& out) {
    char digits[2];
    out.append(digits, core::WriteByte(digits, static_cast<unsigned char>(byte), core::kUpperCase));
}

/// Whether `text` is UTF-8 as Unicode defines it: no surrogates, no longer forms than needed, nothing above U+10FFFF.
inline bool IsUtf8(std::string_view text) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    for (std::size_t i = 0; i < text.size();) {
        const unsigned first = byte(i++);
        if (first < 0x80) {
            continue;
        }
        const std::size_t more = first < 0xC2 ? 0 : first < 0xE0 ? 1 : first < 0xF0 ? 2 : first < 0xF5 ? 3 : 0;
        if (more == 0 || more > text.size() - i) {
            return false;
        }
        // Of the second byte alone the first one may ask for more than that it continues.
        const unsigned lowest = first == 0xE0 ? 0xA0 : first == 0xF0 ? 0x90 : 0x80;
        const unsigned highest = first == 0xED ? 0x9F : first == 0xF4 ? 0x8F : 0xBF;
        if (byte(i) < lowest || byte(i) > highest) {
            return false;
        }
        for (std::size_t j = 1; j < more; ++j) {
            if ((byte(i + j) & 0xC0U) != 0x80) {
                return false;
            }
        }
        i += more;
    }
    return true;
}

}  // namespace krm::exchange

#endif  // KRM_EXCHANGE_INTERNAL_TEXT_H_

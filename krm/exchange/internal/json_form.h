// What writing, reading and the schema of JSON documents share: the names in them, and what counts as UTF-8.
#ifndef KRM_EXCHANGE_INTERNAL_JSON_FORM_H_
#define KRM_EXCHANGE_INTERNAL_JSON_FORM_H_

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "krm/core/types.h"
#include "krm/fields/message_descriptions.h"
#include "krm/framework/message.h"

namespace krm::json {

// The members of a document, in order.
inline constexpr std::string_view kCommand = "command";      // "GetDTC"
inline constexpr std::string_view kFamily = "family";        // the word of its class names, "Cmd"
inline constexpr std::string_view kDirection = "direction";  // see NameOf
inline constexpr std::string_view kContent = "content";      // the fields

/// What stands for a direction.
constexpr std::string_view NameOf(Direction direction) {
    return direction == Direction::Send ? "request" : "answer";
}

// A text that isn't UTF-8: an object with this one member, the bytes in hexadecimal. A text that is UTF-8 is a string,
// whatever it says, so nothing needs an escape.
inline constexpr std::string_view kBytes = "$bytes";

// Doubles that JSON has no number for are strings. A NaN of other bits than the quiet one's has them behind it in
// parentheses, as 16 hexadecimal digits.
inline constexpr std::string_view kNan = "NaN";
inline constexpr std::uint64_t kQuietNan = 0x7FF8000000000000U;
inline constexpr std::uint64_t kPositiveInfinity = 0x7FF0000000000000U;
inline constexpr std::uint64_t kSign = 0x8000000000000000U;
inline constexpr std::string_view kInfinity = "Infinity";
inline constexpr std::string_view kMinusInfinity = "-Infinity";

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

/// What an integer's type holds.
struct Range {
    krm_int64 lowest;
    krm_int64 highest;
};
inline Range RangeOf(const TypeDescription& integer) {
    const bool isSigned = integer.kind == ValueKind::Signed;
    const std::size_t bits = integer.size * 8 - (isSigned ? 1 : 0);
    const auto highest = static_cast<krm_int64>((std::uint64_t{1} << bits) - 1);
    return {isSigned ? -highest - 1 : 0, highest};
}

/// Appends `text` as a JSON string. REQUIRES: it is UTF-8.
void WriteString(std::string_view text, std::string& out);

}  // namespace krm::json

#endif  // KRM_EXCHANGE_INTERNAL_JSON_FORM_H_

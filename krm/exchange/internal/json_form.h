// What writing, reading and the schema of JSON documents share: the names in them, and the limits of integers.
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

/// Appends what ToJson gives; false, and nothing is appended, where the message carries another type or ID.
bool WriteDocument(const CKRMBaseAdaptationData& message, const MessageDescription& description, std::string& out);

}  // namespace krm::json

#endif  // KRM_EXCHANGE_INTERNAL_JSON_FORM_H_

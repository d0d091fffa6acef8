// Hexadecimal text of bytes and numbers, both ways.
#ifndef KRM_EXAMPLES_DIAGNOSIS_SESSION_HEX_H_
#define KRM_EXAMPLES_DIAGNOSIS_SESSION_HEX_H_

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace diagnosis_session {

using Bytes = std::vector<std::uint8_t>;

/// The bytes of `text`: two hexadecimal digits each, nothing between them. Nothing when it is not that.
std::optional<Bytes> BytesOfHex(std::string_view text);

/// The number of `text`, one to eight hexadecimal digits. Nothing when it is not that.
std::optional<std::uint32_t> NumberOfHex(std::string_view text);

/// Two upper-case digits for each byte: "0902".
std::string HexOf(std::span<const std::uint8_t> bytes);

/// A CAN ID as candump writes it: three digits, or eight for an extended one.
std::string HexOfId(std::uint32_t id);

}  // namespace diagnosis_session

#endif  // KRM_EXAMPLES_DIAGNOSIS_SESSION_HEX_H_

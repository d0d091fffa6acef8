#include "hex.h"

namespace diagnosis_session {
namespace {

/// The value of one digit, above 15 where it is none. The C library's functions would ask the locale.
unsigned DigitOf(char digit) {
    if (digit >= '0' && digit <= '9') {
        return static_cast<unsigned>(digit - '0');
    }
    if (digit >= 'A' && digit <= 'F') {
        return static_cast<unsigned>(digit - 'A') + 10U;
    }
    if (digit >= 'a' && digit <= 'f') {
        return static_cast<unsigned>(digit - 'a') + 10U;
    }
    return 16U;
}

void AppendDigits(std::string& text, std::uint32_t number, int count) {
    for (int shift = (count - 1) * 4; shift >= 0; shift -= 4) {
        text += "0123456789ABCDEF"[(number >> static_cast<unsigned>(shift)) & 0xFU];
    }
}

}  // namespace

std::optional<Bytes> BytesOfHex(std::string_view text) {
    if (text.size() % 2 != 0) {
        return std::nullopt;
    }
    Bytes bytes;
    bytes.reserve(text.size() / 2);
    for (std::size_t i = 0; i < text.size(); i += 2) {
        const unsigned high = DigitOf(text[i]);
        const unsigned low = DigitOf(text[i + 1]);
        if (high > 15U || low > 15U) {
            return std::nullopt;
        }
        bytes.push_back(static_cast<std::uint8_t>(high << 4U | low));
    }
    return bytes;
}

std::optional<std::uint32_t> NumberOfHex(std::string_view text) {
    if (text.empty() || text.size() > 8) {
        return std::nullopt;
    }
    std::uint32_t number = 0;
    for (const char character : text) {
        const unsigned digit = DigitOf(character);
        if (digit > 15U) {
            return std::nullopt;
        }
        number = number << 4U | digit;
    }
    return number;
}

std::string HexOf(std::span<const std::uint8_t> bytes) {
    std::string text;
    text.reserve(bytes.size() * 2);
    for (const std::uint8_t byte : bytes) {
        AppendDigits(text, byte, 2);
    }
    return text;
}

std::string HexOfId(std::uint32_t id) {
    std::string text;
    AppendDigits(text, id, id > 0x7FFU ? 8 : 3);
    return text;
}

}  // namespace diagnosis_session

#include "cli/patterns.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>

#include "cli/terminal/control_characters.h"

namespace krm_cli {
namespace {

char LowerOf(char character) {
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
}

bool IsSame(char left, char right) {
    return LowerOf(left) == LowerOf(right);
}

constexpr char kDigits[] = "0123456789ABCDEF";

void AppendEscaped(unsigned number, int digits, std::string& out) {
    out += digits == 2 ? "\\x" : "\\u";
    for (int shift = 4 * (digits - 1); shift >= 0; shift -= 4) {
        out += kDigits[(number >> static_cast<unsigned>(shift)) & 0xFU];
    }
}

/// How many bytes a character has whose first byte in UTF-8 this is; 0 where none begins so.
std::size_t CharacterLength(unsigned first) {
    return first < 0x80 ? 1 : first < 0xC2 ? 0 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : first < 0xF5 ? 4 : 0;
}

/// Takes a character off the front of UTF-8; nothing where that isn't any.
std::optional<std::uint32_t> TakeCharacter(std::string_view& text) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned first = byte(0);
    const std::size_t length = CharacterLength(first);
    if (length == 0 || length > text.size()) {
        return std::nullopt;
    }
    const std::size_t more = length - 1;
    std::uint32_t character = more == 0 ? first : first & (0x3FU >> more);
    for (std::size_t i = 1; i <= more; ++i) {
        if ((byte(i) & 0xC0U) != 0x80) {
            return std::nullopt;
        }
        character = character << 6U | (byte(i) & 0x3FU);
    }
    constexpr std::uint32_t kLowest[] = {0, 0x80, 0x800, 0x10000};
    if (character < kLowest[more] || character > 0x10FFFF || (character >= 0xD800 && character <= 0xDFFF)) {
        return std::nullopt;
    }
    text.remove_prefix(more + 1);
    return character;
}

bool ChangesDirection(std::uint32_t character) {
    return character == 0x061C || character == 0x200E || character == 0x200F ||
           (character >= 0x202A && character <= 0x202E) || (character >= 0x2066 && character <= 0x2069);
}

/// Line separators, and controls beyond ASCII's.
bool IsControlBeyond(std::uint32_t character) {
    return (character >= 0x80 && character < 0xA0) || character == 0x2028 || character == 0x2029;
}

std::optional<std::string> ShownAsUtf8(std::string_view text) {
    std::string shown;
    shown.reserve(text.size());
    while (!text.empty()) {
        const std::string_view before = text;
        const std::optional<std::uint32_t> character = TakeCharacter(text);
        if (!character) {
            return std::nullopt;
        }
        if (terminal::IsControl(before.front())) {
            AppendEscaped(*character, 2, shown);
        } else if (ChangesDirection(*character) || IsControlBeyond(*character)) {
            AppendEscaped(*character, 4, shown);
        } else {
            shown += before.substr(0, before.size() - text.size());
        }
    }
    return shown;
}

std::string ShownAsLatin1(std::string_view text) {
    std::string shown;
    for (const char character : text) {
        const auto byte = static_cast<unsigned char>(character);
        if (terminal::IsControl(character) || (byte >= 0x80 && byte < 0xA0)) {
            AppendEscaped(byte, 2, shown);
        } else if (byte < 0x80) {
            shown += character;
        } else {
            shown += static_cast<char>(0xC0U | (byte >> 6U));
            shown += static_cast<char>(0x80U | (byte & 0x3FU));
        }
    }
    return shown;
}

}  // namespace

bool Matches(std::string_view pattern, std::string_view text) {
    std::size_t p = 0;
    std::size_t t = 0;
    std::size_t star = std::string_view::npos;
    std::size_t behindStar = 0;
    while (t < text.size()) {
        if (p < pattern.size() && pattern[p] == '*') {
            star = p++;
            behindStar = t;
        } else if (p < pattern.size() && IsSame(pattern[p], text[t])) {
            ++p;
            ++t;
        } else if (star != std::string_view::npos) {
            p = star + 1;
            t = ++behindStar;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of('*', p) == std::string_view::npos;
}

bool Contains(std::string_view text, std::string_view lower) {
    return std::search(text.begin(), text.end(), lower.begin(), lower.end(),
                       [](char left, char right) { return LowerOf(left) == right; }) != text.end() ||
           lower.empty();
}

std::string Lower(std::string_view text) {
    std::string lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(), &LowerOf);
    return lower;
}

std::optional<double> NumberIn(std::string_view text) {
    if (text == "true" || text == "false") {
        return text == "true" ? 1.0 : 0.0;
    }
    if (text.starts_with("0x") || text.starts_with("0X")) {
        std::uint64_t number = 0;
        const char* const end = text.data() + text.size();
        const auto [stop, error] = std::from_chars(text.data() + 2, end, number, 16);
        return error == std::errc() && stop == end ? std::optional(static_cast<double>(number)) : std::nullopt;
    }
    const bool hasPlus = text.starts_with('+');
    text.remove_prefix(hasPlus ? 1 : 0);
    const std::size_t first = text.find_first_not_of('-');
    if (first > (hasPlus ? 0U : 1U) || text.find_first_of("0123456789.", first) != first) {
        return std::nullopt;  // "inf" is a text
    }
    double number = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    const std::string_view rest = text.substr(static_cast<std::size_t>(stop - text.data()));
    return error == std::errc() && IsEndOfNumber(rest) ? std::optional(number) : std::nullopt;
}

std::optional<std::uint32_t> BitsIn(std::string_view digits, int base) {
    std::int64_t number = 0;
    const char* const end = digits.data() + digits.size();
    const auto [stop, error] = std::from_chars(digits.data(), end, number, base);
    if (error != std::errc() || stop != end || number < std::numeric_limits<std::int32_t>::min() ||
        number > std::numeric_limits<std::uint32_t>::max()) {
        return std::nullopt;
    }
    return static_cast<std::uint32_t>(number);
}

std::string TextOf(double number) {
    char digits[32];
    char* const end = digits + sizeof digits;
    const double size = std::abs(number);
    const bool isUsual = size == 0 || (size >= 1e-6 && size < 1e15);
    return std::string(digits, (isUsual ? std::to_chars(digits, end, number, std::chars_format::fixed)
                                        : std::to_chars(digits, end, number))
                                   .ptr);
}

bool IsEndOfNumber(std::string_view rest) {
    const auto isDigit = [](char character) { return character >= '0' && character <= '9'; };
    return rest.empty() || (rest.size() > 2 && rest.front() == '(' && rest.back() == ')' &&
                            std::all_of(rest.begin() + 1, rest.end() - 1, isDigit));
}

std::string Shown(std::string_view text) {
    const bool isPlain = std::all_of(text.begin(), text.end(), [](char character) {
        return static_cast<unsigned char>(character) < 0x80 && !terminal::IsControl(character);
    });
    if (isPlain) {
        return std::string(text);
    }
    std::optional<std::string> shown = ShownAsUtf8(text);
    return shown ? *std::move(shown) : ShownAsLatin1(text);
}

std::string_view FirstOf(std::string_view text, std::size_t most) {
    if (text.size() <= most) {
        return text;
    }
    std::size_t end = most;
    // A character has three bytes behind its first at the most; what has more is no UTF-8.
    while (end > 0 && most - end < 3 && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80) {
        --end;
    }
    return text.substr(0, (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80 ? most : end);
}

void AppendJson(std::string_view text, std::string& out) {
    const std::size_t before = out.size();
    out += '"';
    for (std::string_view rest = text; !rest.empty();) {
        const std::string_view here = rest;
        const std::optional<std::uint32_t> character = TakeCharacter(rest);
        if (!character) {
            out.resize(before);
            out += R"({"$bytes":")";
            for (const char byte : text) {
                out += kDigits[static_cast<unsigned char>(byte) >> 4U];
                out += kDigits[static_cast<unsigned char>(byte) & 0xFU];
            }
            out += "\"}";
            return;
        }
        if (*character == '"' || *character == '\\') {
            out += '\\';
            out += here.front();
        } else if (*character < ' ') {
            AppendEscaped(*character, 4, out);
        } else {
            out += here.substr(0, here.size() - rest.size());
        }
    }
    out += '"';
}

std::string_view LastName(std::string_view path) {
    path = path.substr(0, path.find("[\""));  // a map's key, which may hold anything
    path = path.substr(path.rfind('.') + 1);
    return path.substr(0, path.find('['));
}

}  // namespace krm_cli

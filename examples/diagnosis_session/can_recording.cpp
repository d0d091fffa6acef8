#include "can_recording.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace diagnosis_session {
namespace {

std::vector<std::string_view> WordsOf(std::string_view text) {
    constexpr std::string_view kBlanks = " \t\r";
    std::vector<std::string_view> words;
    for (std::size_t begin = text.find_first_not_of(kBlanks); begin != std::string_view::npos;) {
        const std::size_t end = std::min(text.find_first_of(kBlanks, begin), text.size());
        words.push_back(text.substr(begin, end - begin));
        begin = text.find_first_not_of(kBlanks, end);
    }
    return words;
}

bool IsDigits(std::string_view text) {
    return !text.empty() && std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

/// "(1700000000.004000)".
bool IsTimeStamp(std::string_view word) {
    if (word.size() < 2 || word.front() != '(' || word.back() != ')') {
        return false;
    }
    word = word.substr(1, word.size() - 2);
    const std::size_t point = word.find('.');
    return point != std::string_view::npos && IsDigits(word.substr(0, point)) && IsDigits(word.substr(point + 1));
}

}  // namespace

std::variant<CanFrame, BadLine> ParseCandumpLine(std::string_view text, std::size_t line) {
    const std::vector<std::string_view> words = WordsOf(text);
    const bool hasDirection = words.size() == 4 && (words[3] == "R" || words[3] == "T");
    if (words.size() != 3 && !hasDirection) {
        return BadLine{"not a line of candump -l: expected (SECONDS) INTERFACE ID#DATA"};
    }
    if (!IsTimeStamp(words[0])) {
        return BadLine{"the time stamp is not a decimal number in parentheses"};
    }
    const std::size_t mark = words[2].find('#');
    if (mark == std::string_view::npos) {
        return BadLine{"no '#' between CAN ID and data"};
    }
    const std::string_view idDigits = words[2].substr(0, mark);
    const std::string_view dataDigits = words[2].substr(mark + 1);

    const std::optional<std::uint32_t> id = NumberOfHex(idDigits);
    if (!id || !((idDigits.size() == 3 && *id <= 0x7FFU) || (idDigits.size() == 8 && *id <= 0x1FFFFFFFU))) {
        return BadLine{"the CAN ID is not 3 hexadecimal digits up to 7FF or 8 up to 1FFFFFFF"};
    }
    if (dataDigits.starts_with('#')) {
        return BadLine{"a CAN FD frame; only classic CAN frames are read"};
    }
    if (dataDigits.starts_with('R')) {
        return BadLine{"a remote frame; it carries no data"};
    }
    std::optional<Bytes> data = BytesOfHex(dataDigits);
    if (!data) {
        return BadLine{"the data is not pairs of hexadecimal digits"};
    }
    if (data->size() > 8) {
        return BadLine{std::to_string(data->size()) + " data bytes; a CAN frame carries at most 8"};
    }
    return CanFrame{line, *id, *std::move(data)};
}

}  // namespace diagnosis_session

#include "can_recording.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <optional>
#include <vector>

namespace diagnosis_session {
namespace {

std::vector<std::string_view> WordsOf(std::string_view text) {
    constexpr std::string_view kBlanks = " \t\r";
    std::vector<std::string_view> words;
    words.reserve(16);
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

/// The number of decimal digits, at most 18 of them.
std::int64_t NumberOf(std::string_view digits) {
    std::int64_t number = 0;
    for (const char digit : digits.substr(0, 18)) {
        number = number * 10 + (digit - '0');
    }
    return number;
}

/// "1700000000.004000" in microseconds; kNoTime where it is no such number.
Microseconds SecondsOf(std::string_view text) {
    const std::size_t point = text.find('.');
    if (point == std::string_view::npos || !IsDigits(text.substr(0, point)) || !IsDigits(text.substr(point + 1)) ||
        point > 12) {
        return kNoTime;
    }
    std::int64_t fraction = 0;
    for (std::size_t i = 0; i < 6; ++i) {
        const std::size_t at = point + 1 + i;
        fraction = fraction * 10 + (at < text.size() ? text[at] - '0' : 0);
    }
    return NumberOf(text.substr(0, point)) * 1'000'000 + fraction;
}

/// "2023-11-14" and "22:13:20.004000" in microseconds since 1970; kNoTime where they are no such date and time.
Microseconds DateAndTimeOf(std::string_view date, std::string_view time) {
    if (date.size() != 10 || date[4] != '-' || date[7] != '-' || time.size() < 10 || time[2] != ':' || time[5] != ':') {
        return kNoTime;
    }
    for (const std::string_view digits :
         {date.substr(0, 4), date.substr(5, 2), date.substr(8, 2), time.substr(0, 2), time.substr(3, 2)}) {
        if (!IsDigits(digits)) {
            return kNoTime;
        }
    }
    const std::chrono::year_month_day day{std::chrono::year{static_cast<int>(NumberOf(date.substr(0, 4)))},
                                          std::chrono::month{static_cast<unsigned>(NumberOf(date.substr(5, 2)))},
                                          std::chrono::day{static_cast<unsigned>(NumberOf(date.substr(8, 2)))}};
    const Microseconds seconds = SecondsOf(time.substr(6));
    if (!day.ok() || seconds == kNoTime) {
        return kNoTime;
    }
    const std::int64_t days = std::chrono::sys_days(day).time_since_epoch().count();
    const std::int64_t minutes = (days * 24 + NumberOf(time.substr(0, 2))) * 60 + NumberOf(time.substr(3, 2));
    return minutes * 60'000'000 + seconds;
}

/// "(1700000000.004000)" in microseconds; kNoTime where it is no time stamp.
Microseconds TimeOf(std::string_view word) {
    const bool inParentheses = word.size() >= 2 && word.front() == '(' && word.back() == ')';
    return inParentheses ? SecondsOf(word.substr(1, word.size() - 2)) : kNoTime;
}

std::optional<std::uint32_t> IdOf(std::string_view digits) {
    const std::optional<std::uint32_t> id = NumberOfHex(digits);
    const bool isId = id && ((digits.size() == 3 && *id <= 0x7FFU) || (digits.size() == 8 && *id <= 0x1FFFFFFFU));
    return isId ? id : std::nullopt;
}
constexpr const char* kBadId = "the CAN ID is not 3 hexadecimal digits up to 7FF or 8 up to 1FFFFFFF";
constexpr const char* kBadTime = "the time stamp is not a decimal number in parentheses";
constexpr const char* kFdFrame = "a CAN FD frame; only classic CAN frames are read";
constexpr const char* kRemoteFrame = "a remote frame; it carries no data";

/// The value of a hexadecimal digit, above 15 where it is none.
constexpr auto kDigits = [] {
    std::array<std::uint8_t, 256> digits{};
    digits.fill(0xFF);
    for (std::size_t i = 0; i < 10; ++i) {
        digits['0' + i] = static_cast<std::uint8_t>(i);
    }
    for (std::size_t i = 0; i < 6; ++i) {
        digits['A' + i] = digits['a' + i] = static_cast<std::uint8_t>(10 + i);
    }
    return digits;
}();
unsigned DigitAt(const char* at) {
    return kDigits[static_cast<unsigned char>(*at)];
}

/// Reads a line just as candump -l writes it, in one go: nearly every line of a long recording is one. Nothing where it is
/// anything else.
std::optional<CanFrame> ParseLogged(std::string_view text, std::size_t line) {
    const char* at = text.data();
    const char* end = at + text.size();
    if (at != end && end[-1] == '\r') {
        --end;
    }
    CanFrame frame;
    frame.line = line;
    if (at == end || *at != '(') {
        return std::nullopt;
    }
    // Twelve digits, a point and six more: what is longer doesn't fit the number.
    constexpr std::ptrdiff_t kLongestTime = 19;
    std::uint64_t time = 0;
    const char* point = nullptr;
    for (const char* const begin = ++at; at != end && *at != ')' && at - begin < kLongestTime; ++at) {
        if (*at == '.' && point == nullptr) {
            point = at;
        } else if (const auto digit = static_cast<unsigned>(*at - '0'); digit <= 9) {
            time = time * 10 + digit;
        } else {
            return std::nullopt;
        }
    }
    if (at == end || *at != ')' || point == nullptr || at - point != 7 || point - text.data() > 13 ||
        point - text.data() < 2 || ++at == end || *at != ' ') {
        return std::nullopt;
    }
    frame.time = static_cast<Microseconds>(time);
    const char* const device = ++at;
    while (at != end && *at > ' ') {
        ++at;
    }
    if (at == device || at == end || *at != ' ') {
        return std::nullopt;
    }
    const char* const id = ++at;
    for (; at != end && at - id < 8 && DigitAt(at) <= 15; ++at) {
        frame.id = frame.id << 4U | DigitAt(at);
    }
    const std::ptrdiff_t digits = at - id;
    if (!((digits == 3 && frame.id <= 0x7FFU) || (digits == 8 && frame.id <= 0x1FFFFFFFU)) || at == end || *at != '#' ||
        (end - ++at) % 2 != 0 || end - at > 16) {
        return std::nullopt;
    }
    for (; at != end; at += 2) {
        const unsigned high = DigitAt(at);
        const unsigned low = DigitAt(at + 1);
        if (high > 15 || low > 15) {
            return std::nullopt;
        }
        frame.data.push_back(static_cast<std::uint8_t>(high << 4U | low));
    }
    return frame;
}

/// "[8]": how many data bytes follow.
bool IsLength(std::string_view word) {
    return word.size() >= 3 && word.front() == '[' && word.back() == ']' && IsDigits(word.substr(1, word.size() - 2));
}

/// What candump prints: its words, of which `length` is the "[8]".
std::variant<CanFrame, BadLine> ParsePrinted(const std::vector<std::string_view>& words, std::size_t length,
                                             std::size_t line) {
    CanFrame frame;
    frame.line = line;
    std::size_t at = 0;
    if (words[0].starts_with('(')) {
        const bool isDate = words[0].back() != ')';
        frame.time = !isDate ? TimeOf(words[0])
                     : words[1].ends_with(')')
                         ? DateAndTimeOf(words[0].substr(1), words[1].substr(0, words[1].size() - 1))
                         : kNoTime;
        if (frame.time == kNoTime) {
            return BadLine{kBadTime};
        }
        at = isDate ? 2 : 1;
    }
    // Interface, then what -x adds (direction and two flags), then the ID.
    const std::size_t between = length - std::min(at, length);
    if (between != 2 && !(between == 5 && (words[at + 1] == "RX" || words[at + 1] == "TX"))) {
        return BadLine{"not a line of candump: expected INTERFACE ID [LENGTH] DATA"};
    }
    const std::optional<std::uint32_t> id = IdOf(words[length - 1]);
    if (!id) {
        return BadLine{kBadId};
    }
    frame.id = *id;
    if (words[length].size() != 3) {
        return BadLine{kFdFrame};
    }
    const auto count = static_cast<std::size_t>(words[length][1] - '0');
    if (count > FrameData::kMost) {
        return BadLine{std::to_string(count) + " data bytes; a CAN frame carries at most 8"};
    }
    if (words.size() > length + 1 && words[length + 1] == "remote") {
        return BadLine{kRemoteFrame};
    }
    for (std::size_t i = length + 1; i <= length + count; ++i) {
        const std::optional<Bytes> byte =
            i < words.size() && words[i].size() == 2 ? BytesOfHex(words[i]) : std::nullopt;
        if (!byte) {
            return BadLine{"the data is not " + std::to_string(count) + " bytes of two hexadecimal digits"};
        }
        frame.data.push_back(byte->front());
    }
    return frame;
}

}  // namespace

std::chrono::system_clock::time_point TimePointOf(Microseconds time) {
    using TimePoint = std::chrono::system_clock::time_point;
    using std::chrono::microseconds;
    if (time == kNoTime) {
        return {};
    }
    const auto latest = std::chrono::floor<microseconds>(TimePoint::max().time_since_epoch());
    const auto since1970 = std::clamp(microseconds(time), -latest, latest);
    return TimePoint(std::chrono::duration_cast<TimePoint::duration>(since1970));
}

std::variant<CanFrame, BadLine> ParseCandumpLine(std::string_view text, std::size_t line) {
    if (std::optional<CanFrame> frame = ParseLogged(text, line)) {
        return *std::move(frame);
    }
    const std::vector<std::string_view> words = WordsOf(text);
    const auto length = std::find_if(words.begin(), words.end(), IsLength);
    if (length != words.end() && length != words.begin()) {
        return ParsePrinted(words, static_cast<std::size_t>(length - words.begin()), line);
    }
    const bool hasDirection = words.size() == 4 && (words[3] == "R" || words[3] == "T");
    if (words.size() != 3 && !hasDirection) {
        return BadLine{"not a line of candump -l: expected (SECONDS) INTERFACE ID#DATA"};
    }
    const Microseconds time = TimeOf(words[0]);
    if (time == kNoTime) {
        return BadLine{kBadTime};
    }
    const std::size_t mark = words[2].find('#');
    if (mark == std::string_view::npos) {
        return BadLine{"no '#' between CAN ID and data"};
    }
    const std::string_view dataDigits = words[2].substr(mark + 1);
    const std::optional<std::uint32_t> id = IdOf(words[2].substr(0, mark));
    if (!id) {
        return BadLine{kBadId};
    }
    if (dataDigits.starts_with('#')) {
        return BadLine{kFdFrame};
    }
    if (dataDigits.starts_with('R')) {
        return BadLine{kRemoteFrame};
    }
    const std::optional<Bytes> data = BytesOfHex(dataDigits);
    if (!data) {
        return BadLine{"the data is not pairs of hexadecimal digits"};
    }
    if (data->size() > FrameData::kMost) {
        return BadLine{std::to_string(data->size()) + " data bytes; a CAN frame carries at most 8"};
    }
    return CanFrame{line, *id, FrameData(*data), time};
}

}  // namespace diagnosis_session

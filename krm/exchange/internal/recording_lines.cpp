#include "krm/exchange/internal/recording_lines.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <chrono>
#include <cstring>
#include <istream>
#include <system_error>
#include <utility>

#include "krm/core/internal/digits.h"
#include "krm/exchange/internal/json_form.h"
#include "krm/exchange/internal/text.h"
#include "krm/version.h"

namespace krm::recording {
namespace {

// The members of the first line, and what it is recognised by.
constexpr std::string_view kFormat = "format";
constexpr std::string_view kFormatName = "krm recording";
constexpr std::string_view kVersion = "version";
constexpr std::uint64_t kNewestVersion = 1;
constexpr std::string_view kLibrary = "library";

// The members of every other line.
constexpr std::array<std::string_view, 5> kMembers = {"exchange", "time", "type", "id", "message"};

constexpr const char* kNoRecording = "the file is no recording";
constexpr const char* kExpectedTime = "expected a time in UTC, such as \"2026-11-22T09:35:00.123456Z\"";

void AppendName(std::string_view name, std::string& out) {
    out += '"';
    out += name;
    out += "\":";
}

// What a time can say: four digits for the year.
constexpr RecordedTime kEarliest = std::chrono::sys_days(std::chrono::year(0) / 1 / 1);
constexpr RecordedTime kLatest =
    std::chrono::sys_days(std::chrono::year(9999) / 12 / 31) + std::chrono::days(1) - std::chrono::microseconds(1);

void AppendTime(RecordedTime time, std::string& out) {
    const RecordedTime inRange = std::clamp(time, kEarliest, kLatest);
    const auto day = std::chrono::floor<std::chrono::days>(inRange);
    const std::chrono::year_month_day date(day);
    const std::chrono::hh_mm_ss clock(inRange - day);
    const auto number = [&](auto value, std::size_t width, std::string_view behind) {
        char digits[8];
        out.append(digits, core::WriteLastDecimals(digits, static_cast<unsigned long>(value), width));
        out += behind;
    };
    number(static_cast<int>(date.year()), 4, "-");
    number(static_cast<unsigned>(date.month()), 2, "-");
    number(static_cast<unsigned>(date.day()), 2, "T");
    number(clock.hours().count(), 2, ":");
    number(clock.minutes().count(), 2, ":");
    number(clock.seconds().count(), 2, ".");
    number(clock.subseconds().count(), 6, "Z");
}

/// What AppendTime writes; the seconds may have any number of decimals, of which microseconds count.
std::optional<RecordedTime> ReadTime(std::string_view text) {
    bool isGood = true;
    const auto number = [&](std::size_t width, std::string_view behind) {
        int value = 0;
        for (const char c : text.substr(0, width)) {
            isGood = isGood && c >= '0' && c <= '9';
            value = value * 10 + (c - '0');
        }
        isGood = isGood && text.size() >= width + behind.size() && text.substr(width, behind.size()) == behind;
        text.remove_prefix(std::min(text.size(), width + behind.size()));
        return value;
    };
    const int year = number(4, "-");
    const int month = number(2, "-");
    const int day = number(2, "T");
    const int hour = number(2, ":");
    const int minute = number(2, ":");
    const int second = number(2, "");
    int microseconds = 0;
    if (text.starts_with('.')) {
        text.remove_prefix(1);
        const std::size_t count = std::min(text.find_first_not_of("0123456789"), text.size());
        isGood = isGood && count > 0;
        for (std::size_t i = 0; i < 6; ++i) {
            microseconds = microseconds * 10 + (i < count ? text[i] - '0' : 0);
        }
        text.remove_prefix(count);
    }
    if (!isGood || text != "Z" || hour > 23 || minute > 59 || second > 59) {
        return std::nullopt;
    }
    const std::chrono::year_month_day date(std::chrono::year{year}, std::chrono::month{static_cast<unsigned>(month)},
                                           std::chrono::day{static_cast<unsigned>(day)});
    if (!date.ok()) {
        return std::nullopt;
    }
    return RecordedTime(std::chrono::sys_days(date)) + std::chrono::hours(hour) + std::chrono::minutes(minute) +
           std::chrono::seconds(second) + std::chrono::microseconds(microseconds);
}

/// Reads the outermost object of a line. Each function returns false where it can't, and then the fault is told.
class Scanner {
public:
    Scanner(std::string_view text, RecordingFault& fault) : m_text(text), m_fault(&fault) {}

    /// Where it is.
    std::size_t Offset() const { return m_offset; }
    /// Where the last number or value that was taken begins.
    std::size_t LastOffset() const { return m_lastOffset; }
    /// Tells a fault at `offset`, of the member of this name; false.
    bool Fail(std::size_t offset, std::string_view member, std::string text) {
        m_fault->offset = offset;
        m_fault->path.assign(1, '$');
        if (!member.empty()) {
            m_fault->path += '.';
            m_fault->path += member;
        }
        m_fault->text = std::move(text);
        return false;
    }
    /// The same where it is. The text that has ended there is torn.
    bool FailHere(std::string_view member, std::string_view expected) {
        if (m_offset < m_text.size()) {
            return Fail(m_offset, member, "expected " + std::string(expected));
        }
        m_fault->torn = true;
        return Fail(m_offset, "", "the line is cut off");
    }

    bool Take(char wanted, std::string_view member, std::string_view expected) {
        SkipBlanks();
        if (!Is(wanted)) {
            return FailHere(member, expected);
        }
        ++m_offset;
        return true;
    }
    /// The string's characters as they are written.
    bool TakeString(std::string_view& string, std::string_view member, std::string_view expected) {
        if (!Take('"', member, expected)) {
            return false;
        }
        const std::size_t begin = m_offset;
        if (!SkipString()) {
            return FailHere("", "");
        }
        string = m_text.substr(begin, m_offset - begin - 1);
        return true;
    }
    bool TakeNumber(std::uint64_t& number, std::uint64_t highest, std::string_view member) {
        SkipBlanks();
        m_lastOffset = m_offset;
        const char* const begin = m_text.data() + m_offset;
        const auto [end, error] = std::from_chars(begin, m_text.data() + m_text.size(), number);
        if (end == begin || error != std::errc() || number > highest) {
            return FailHere(member, "a whole number from 0 to " + std::to_string(highest));
        }
        m_offset += static_cast<std::size_t>(end - begin);
        return true;
    }
    /// Whatever value it is; of an object also the member "direction", which is read while passing. An object's inside is not
    /// looked at further than where it ends: whoever reads it knows better what is wrong with it.
    bool TakeValue(std::string_view& value, std::string_view& direction, std::string_view member) {
        SkipBlanks();
        const std::size_t begin = m_offset;
        m_lastOffset = m_offset;
        int depth = 0;
        bool isValue = false;
        std::string_view name;
        while (m_offset < m_text.size()) {
            const char c = m_text[m_offset];
            if (depth == 0 && (c == ',' || c == '}' || c == ']')) {
                break;
            }
            ++m_offset;
            if (c == '"') {
                const std::size_t start = m_offset;
                if (!SkipString()) {
                    break;
                }
                if (depth == 1) {
                    const std::string_view string = m_text.substr(start, m_offset - start - 1);
                    if (!isValue) {
                        name = string;
                    } else if (name == json::kDirection) {
                        direction = string;
                    }
                }
            } else if (c == '{' || c == '[') {
                ++depth;
            } else if (c == '}' || c == ']') {
                --depth;
                if (depth == 0) {
                    break;
                }
            } else if (depth == 1 && (c == ':' || c == ',')) {
                isValue = c == ':';
            }
        }
        value = m_text.substr(begin, m_offset - begin);
        return !value.empty() || FailHere(member, "a value");
    }

    /// Calls `member(name, offset of the name)` for each member of the line's object, and it takes the value.
    template <class Member>
    bool TakeObject(Member member) {
        if (!Take('{', "", "an object")) {
            return false;
        }
        do {
            SkipBlanks();
            const std::size_t offset = m_offset;
            std::string_view name;
            if (!TakeString(name, "", "a member's name") || !Take(':', "", "a colon") || !member(name, offset)) {
                return false;
            }
            SkipBlanks();
        } while (Is(',') && ++m_offset != 0);
        if (!Take('}', "", "a comma or }")) {
            return false;
        }
        SkipBlanks();
        return m_offset == m_text.size() || FailHere("", "the end of the line");
    }

private:
    bool Is(char c) const { return m_offset < m_text.size() && m_text[m_offset] == c; }
    void SkipBlanks() { m_offset = std::min(m_text.find_first_not_of(" \t\r\n", m_offset), m_text.size()); }
    /// Goes behind the closing quote; false, at the text's end, where there is none.
    bool SkipString() {
        while (m_offset < m_text.size()) {
            const char c = m_text[m_offset++];
            if (c == '"') {
                return true;
            }
            if (c == '\\' && m_offset < m_text.size()) {
                ++m_offset;
            }
        }
        return false;
    }

    std::string_view m_text;
    RecordingFault* m_fault;
    std::size_t m_offset = 0;
    std::size_t m_lastOffset = 0;
};

/// What is wrong with a line as such; false where nothing is.
bool HasFault(const Lines& lines, RecordingFault& fault) {
    if (lines.TooLong()) {
        fault = {lines.Number(), lines.Offset(), "",
                 "the line is longer than " + std::to_string(lines.MaxLine()) + " bytes", false};
    }
    return lines.TooLong();
}

}  // namespace

std::string Header() {
    std::string header = "{";
    AppendName(kFormat, header);
    json::WriteString(kFormatName, header);
    header += ',';
    AppendName(kVersion, header);
    exchange::AppendNumber(kNewestVersion, header);
    header += ',';
    AppendName(kLibrary, header);
    json::WriteString(std::to_string(KRM_VERSION_MAJOR) + '.' + std::to_string(KRM_VERSION_MINOR) + '.' +
                          std::to_string(KRM_VERSION_PATCH),
                      header);
    header += "}\n";
    return header;
}

bool AppendLine(std::uint64_t exchange, RecordedTime time, const CKRMBaseAdaptationData& message,
                const MessageDescription& description, std::string& out) {
    const std::size_t begin = out.size();
    out += '{';
    AppendName(kMembers[0], out);
    exchange::AppendNumber(exchange, out);
    out += ',';
    AppendName(kMembers[1], out);
    out += '"';
    AppendTime(time, out);
    out += "\",";
    AppendName(kMembers[2], out);
    exchange::AppendNumber(description.type, out);
    out += ',';
    AppendName(kMembers[3], out);
    exchange::AppendNumber(description.id, out);
    out += ',';
    AppendName(kMembers[4], out);
    if (!json::WriteDocument(message, description, out)) {
        out.resize(begin);
        return false;
    }
    out += "}\n";
    return true;
}

bool Lines::Read() {
    if (m_begin == m_end) {
        m_in->read(m_chunk.data(), static_cast<std::streamsize>(m_chunk.size()));
        m_begin = 0;
        m_end = static_cast<std::size_t>(m_in->gcount());
    }
    return m_begin != m_end;
}

bool Lines::Next() {
    do {
        m_line.clear();
        m_ended = false;
        m_tooLong = false;
        m_offset = m_nextOffset;
        if (!Read()) {
            return false;
        }
        ++m_number;
        while (!m_ended && Read()) {
            const char* const begin = m_chunk.data() + m_begin;
            const auto* const end = static_cast<const char*>(std::memchr(begin, '\n', m_end - m_begin));
            m_ended = end != nullptr;
            const std::size_t count = m_ended ? static_cast<std::size_t>(end - begin) : m_end - m_begin;
            m_tooLong = m_tooLong || count > m_maxLine - m_line.size();
            if (m_tooLong) {
                m_line = std::string();
            } else {
                m_line.append(begin, count);
            }
            m_begin += count + (m_ended ? 1 : 0);
            m_nextOffset += count + (m_ended ? 1 : 0);
        }
        m_text = m_line;
        if (m_number == 1 && m_text.starts_with("\xEF\xBB\xBF")) {
            m_text.remove_prefix(3);
            m_offset += 3;
        }
        if (m_text.ends_with('\r')) {
            m_text.remove_suffix(1);
        }
    } while (m_text.empty() && !m_tooLong);
    return true;
}

bool Lines::Failed() const {
    return m_in->bad();
}

FirstLine ReadFirstLine(Lines& lines) {
    FirstLine first;
    if (!lines.Next()) {
        first.fault.text = lines.Failed() ? "the file can't be read" : "the file is empty, and so no recording";
        return first;
    }
    RecordingFault& fault = first.fault;
    if (HasFault(lines, fault)) {
        return first;
    }
    std::string_view format;
    std::uint64_t version = 0;
    std::string_view ignored;
    Scanner scanner(lines.Text(), fault);
    const bool isRead = scanner.TakeObject([&](std::string_view name, std::size_t) {
        if (name == kFormat) {
            return scanner.TakeString(format, name, "a text");
        }
        if (name == kVersion) {
            return scanner.TakeNumber(version, UINT64_MAX, name);
        }
        std::string_view value;
        const bool isTaken = scanner.TakeValue(value, ignored, name);
        if (isTaken && name == kLibrary && value.size() >= 2 && value.front() == '"') {
            first.library = value.substr(1, value.find('"', 1) - 1);
        }
        return isTaken;
    });
    const bool isRecording = format == kFormatName && version != 0;
    if (!isRead && fault.torn) {
        fault.text = std::string(kNoRecording) + ": its first line is cut off";
    } else if (!isRead || !isRecording) {
        fault = {};
        fault.text = kNoRecording;
    } else if (version > kNewestVersion) {
        fault.text = "the recording is of version " + std::to_string(version) + ", this library reads up to version " +
                     std::to_string(kNewestVersion);
    }
    if (!fault.text.empty()) {
        first.library.clear();
        fault.line = lines.Number();
        fault.offset += lines.Offset();
    }
    return first;
}

std::optional<Envelope> ReadEnvelope(std::string_view text, std::uint64_t lineNumber, std::uint64_t offset,
                                     RecordingFault& fault) {
    Envelope envelope;
    envelope.lineNumber = lineNumber;
    std::string_view direction;
    std::array<bool, kMembers.size()> seen{};
    fault = {};
    Scanner scanner(text, fault);
    const auto member = [&](std::string_view name, std::size_t nameOffset) {
        const auto index = static_cast<std::size_t>(std::ranges::find(kMembers, name) - kMembers.begin());
        if (index == kMembers.size()) {
            return scanner.Fail(nameOffset, "", "unknown member");
        }
        if (std::exchange(seen[index], true)) {
            return scanner.Fail(nameOffset, name, "this member comes twice");
        }
        switch (index) {
            case 0: {
                const bool isTaken = scanner.TakeNumber(envelope.exchange, UINT64_MAX, name);
                envelope.exchangeOffset = offset + scanner.LastOffset();
                return isTaken;
            }
            case 1: {
                std::string_view digits;
                if (!scanner.TakeString(digits, name, "a time")) {
                    return false;
                }
                const std::optional<RecordedTime> time = ReadTime(digits);
                envelope.time = time.value_or(RecordedTime());
                return time || scanner.Fail(scanner.Offset() - digits.size() - 2, name, kExpectedTime);
            }
            case 2:
            case 3: {
                std::uint64_t number = 0;
                const bool isTaken = scanner.TakeNumber(number, UINT32_MAX, name);
                (index == 2 ? envelope.type : envelope.id) = static_cast<krm_ulong>(number);
                (index == 2 ? envelope.typeOffset : envelope.idOffset) = offset + scanner.LastOffset();
                return isTaken;
            }
            default: {
                const bool isTaken = scanner.TakeValue(envelope.message, direction, name);
                envelope.messageOffset = offset + scanner.LastOffset();
                return isTaken;
            }
        }
    };
    bool isRead = scanner.TakeObject(member);
    if (isRead) {
        const auto missing = std::ranges::find(seen, false);
        if (missing != seen.end()) {
            const auto index = static_cast<std::size_t>(missing - seen.begin());
            isRead = scanner.Fail(0, "", "expected the member " + std::string(kMembers[index]));
        }
    }
    if (!isRead) {
        fault.line = lineNumber;
        fault.offset += offset;
        return std::nullopt;
    }
    for (const Direction known : {Direction::Send, Direction::Receive}) {
        if (direction == json::NameOf(known)) {
            envelope.direction = known;
        }
    }
    return envelope;
}

std::optional<Envelope> ReadEnvelope(const Lines& lines, RecordingFault& fault) {
    if (HasFault(lines, fault)) {
        return std::nullopt;
    }
    return ReadEnvelope(lines.Text(), lines.Number(), lines.Offset(), fault);
}

namespace {

const MessageDescription* FindOwn(std::span<const MessageDescription> own, krm_ulong type, krm_ulong id,
                                  Direction direction) {
    const auto found = std::ranges::find_if(own, [&](const MessageDescription& description) {
        return description.type == type && description.id == id && description.direction == direction;
    });
    return found != own.end() ? &*found : nullptr;
}

}  // namespace

const MessageDescription* Find(std::span<const MessageDescription> own, krm_ulong type, krm_ulong id,
                               Direction direction) {
    const MessageDescription* const found = FindOwn(own, type, id, direction);
    return found != nullptr ? found : FindMessage(type, id, direction);
}

MessageFromJson ReadMessage(const Envelope& envelope, std::span<const MessageDescription> own, RecordingFault& fault) {
    const MessageDescription* const described =
        envelope.direction ? FindOwn(own, envelope.type, envelope.id, *envelope.direction) : nullptr;
    MessageFromJson read = described != nullptr ? FromJson(envelope.message, *described) : FromJson(envelope.message);
    if (!read) {
        fault = {envelope.lineNumber, envelope.messageOffset + read.error.offset,
                 "$.message" + read.error.path.substr(1), std::move(read.error.text), false};
        return read;
    }
    const bool isType = read.description->type == envelope.type;
    if (!isType || read.description->id != envelope.id) {
        fault = {envelope.lineNumber, isType ? envelope.idOffset : envelope.typeOffset, isType ? "$.id" : "$.type",
                 "the message has " + std::to_string(isType ? read.description->id : read.description->type), false};
        return {};
    }
    return read;
}

std::string SystemError() {
    return SystemError(std::error_code(errno, std::generic_category()));
}

std::string SystemError(const std::error_code& error) {
    // The system's own texts are in the language of the process.
    static constexpr struct {
        std::errc condition;
        const char* text;
    } kTexts[] = {
        {std::errc::no_such_file_or_directory, "No such file or directory"},
        {std::errc::file_exists, "File exists"},
        {std::errc::permission_denied, "Permission denied"},
        {std::errc::no_space_on_device, "No space left on device"},
        {std::errc::is_a_directory, "Is a directory"},
        {std::errc::not_a_directory, "Not a directory"},
        {std::errc::read_only_file_system, "Read-only file system"},
        {std::errc::file_too_large, "File too large"},
        {std::errc::filename_too_long, "File name too long"},
        {std::errc::too_many_files_open, "Too many open files"},
        {std::errc::invalid_argument, "Invalid argument"},
        {std::errc::broken_pipe, "Broken pipe"},
        {std::errc::io_error, "Input/output error"},
        {std::errc::bad_file_descriptor, "Bad file descriptor"},
        {std::errc::cross_device_link, "Invalid cross-device link"},
    };
    for (const auto& known : kTexts) {
        if (error == known.condition) {
            return known.text;
        }
    }
    return "system error " + std::to_string(error.value());
}

}  // namespace krm::recording

// The operation log's reader: any bytes as a log, whose lines are found, taken apart and counted by plain readings of what the
// headers say, wherever the blocks of the file end and whatever lines came before; and a message's own dump, with something
// in front of each line, which is that message again.
//
// The input: the bytes of a log; behind a NUL, what two messages are made from.
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <map>
#include <memory>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "cli/byte_source.h"
#include "cli/line_reader.h"
#include "cli/log_form.h"
#include "cli/log_input.h"
#include "cli/log_line.h"
#include "fuzz/support/input.h"
#include "krm/exchange/compare.h"
#include "krm/fields/message_descriptions.h"
#include "krm/framework/log_sinks.h"
#include "krm/framework/message.h"

namespace {

using krm_cli::ByteSource;
using krm_cli::Event;
using krm_cli::FieldText;
using krm_cli::LineReader;
using krm_cli::LogInput;
using krm_cli::LogLine;
using krm_cli::LogLineParser;

std::ostringstream g_nowhere;
const krm_cli::Surroundings g_surroundings{g_nowhere, g_nowhere};

/// A line as the model and the reader tell it.
struct LineSeen {
    std::uint64_t number;
    std::string text;
    std::uint64_t cutBytes;
    bool ended;

    friend bool operator==(const LineSeen&, const LineSeen&) = default;
};

/// The lines as the reader's header has them.
std::vector<LineSeen> LinesIn(std::string_view bytes, std::size_t maxLine) {
    std::vector<LineSeen> lines;
    if (bytes.starts_with("\xEF\xBB\xBF")) {
        bytes.remove_prefix(3);
    }
    while (!bytes.empty()) {
        const std::size_t feed = bytes.find('\n');
        const bool ended = feed != std::string_view::npos;
        std::string text(bytes.substr(0, feed));
        bytes.remove_prefix(ended ? feed + 1 : bytes.size());
        if (text.ends_with('\r')) {
            text.pop_back();
        }
        const std::size_t cut = text.size() - std::min(text.size(), maxLine);
        lines.push_back({lines.size() + 1, text.substr(0, maxLine), cut, ended});
    }
    return lines;
}

std::vector<LineSeen> LinesOf(ByteSource& source, std::size_t maxLine) {
    LineReader reader(source, maxLine);
    std::vector<LineSeen> lines;
    while (reader.Next()) {
        const krm_cli::Line& line = reader.Current();
        lines.push_back({line.number, std::string(line.text), line.cutBytes, line.ended});
    }
    return lines;
}

/// The bytes as a file without a name, of which so many are delivered first and the others behind them. The source may outlive it.
class CutFile {
public:
    explicit CutFile(std::string_view bytes) : m_file(memfd_create("log", MFD_CLOEXEC)) {
        KRM_FUZZ_CHECK(m_file >= 0);
        KRM_FUZZ_CHECK(write(m_file, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size()));
    }
    ~CutFile() { close(m_file); }
    CutFile(const CutFile&) = delete;
    CutFile& operator=(const CutFile&) = delete;

    ByteSource Cut(std::size_t at) const {
        ByteSource source("/proc/self/fd/" + std::to_string(m_file), g_surroundings);
        source.Peek(at);
        return source;
    }

private:
    int m_file;
};

/// Bytes that no line of a log has, to put in front of others that then lie where a block of the reader ends.
std::string Padding(std::size_t size) {
    constexpr std::size_t kLine = 65536;
    std::string padding(size, 'x');
    for (std::size_t end = size; end > 0; end -= std::min(end, kLine)) {
        padding[end - 1] = '\n';
    }
    return padding;
}

void CheckLines(const std::string& bytes, std::size_t random) {
    // So short that much is cut; that nothing else is shows the account of the log.
    const std::size_t maxLine = 1 + random % 40;
    ByteSource cut = CutFile(bytes).Cut(random / 64 % (bytes.size() + 1));
    KRM_FUZZ_CHECK(LinesOf(cut, maxLine) == LinesIn(bytes, maxLine));
    // The ends of the reader's own blocks, with the next one read ahead or not.
    constexpr std::size_t kBlock = std::size_t{2} * 1024 * 1024;
    constexpr std::size_t kSeldom = 32;
    if (random % kSeldom == 0 && !bytes.empty()) {
        const std::size_t blocks = 1 + random / kSeldom % 2;
        const std::string padded = Padding(blocks * kBlock - random / 256 % bytes.size()) + bytes;
        ByteSource source(padded, "a.log", g_surroundings);
        KRM_FUZZ_CHECK(LinesOf(source, maxLine) == LinesIn(padded, maxLine));
    }
}

/// A line taken apart.
struct Parsed {
    std::string prefix;
    std::string className;
    std::string path;
    std::string value;
};

std::string_view TakeName(std::string_view& text) {
    std::size_t length = 0;
    while (length < text.size() && text[length] != '\0' &&
           std::string_view("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_").find(text[length]) !=
               std::string_view::npos) {
        ++length;
    }
    const std::string_view name = text.substr(0, length);
    text.remove_prefix(length);
    return name;
}

bool Take(std::string_view& text, std::string_view what) {
    const bool is = text.starts_with(what);
    text.remove_prefix(is ? what.size() : 0);
    return is;
}

/// What a line of the log that begins in `text` at `at` says.
std::optional<Parsed> ParsedAt(std::string_view text, std::size_t at) {
    Parsed parsed;
    std::string_view rest = text.substr(at);
    if (!Take(rest, "[") || !rest.starts_with("CKRMC")) {
        return std::nullopt;
    }
    parsed.className = TakeName(rest);
    if (!Take(rest, "::") || TakeName(rest).empty() || !(Take(rest, "] ") || Take(rest, "]."))) {
        return std::nullopt;
    }
    const std::size_t equals = rest.find('=');
    if (equals == std::string_view::npos || equals == 0) {
        return std::nullopt;
    }
    parsed.value = rest.substr(equals + 1);
    // A bracket that opened in front of all this closes within the path, and a blank or a point goes on with it.
    const std::string_view path = rest.substr(0, equals);
    int open = 0;
    for (std::size_t i = 0; i < path.size(); ++i) {
        open += path[i] == '[' ? 1 : path[i] == ']' ? -1 : 0;
        const bool closesOuter = path[i] == ']' && open < 0 && at > 0 && text[at - 1] == '[' && i + 2 < path.size() &&
                                 (path[i + 1] == ' ' || path[i + 1] == '.');
        if (closesOuter) {
            open = 0;
            --at;
            ++i;
        }
        parsed.path += closesOuter ? '.' : path[i];
    }
    parsed.prefix = text.substr(0, at);
    return parsed.path.find(' ') == std::string::npos ? std::optional(parsed) : std::nullopt;
}

/// By the description of log_line.h: the first place in the text where such a line stands.
std::optional<Parsed> ParsedByModel(std::string_view text) {
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (const std::optional<Parsed> parsed = ParsedAt(text, at)) {
            return parsed;
        }
    }
    return std::nullopt;
}

/// What the model says of each line, in which the parser must agree behind the lines before.
std::vector<std::optional<Parsed>> CheckParser(const std::vector<LineSeen>& lines) {
    std::vector<std::optional<Parsed>> all;
    LogLineParser parser;
    std::map<std::string, std::size_t> numbers;
    std::string classBefore;
    for (const LineSeen& line : lines) {
        const std::optional<Parsed>& expected = all.emplace_back(ParsedByModel(line.text));
        LogLine found;
        KRM_FUZZ_CHECK(parser.Parse(line.text, found) == expected.has_value());
        if (expected) {
            KRM_FUZZ_CHECK(found.prefix == expected->prefix && found.className == expected->className);
            KRM_FUZZ_CHECK(found.path == expected->path && found.value == expected->value);
            KRM_FUZZ_CHECK(parser.IsSameClass() == (classBefore == expected->className));
            KRM_FUZZ_CHECK(parser.ClassNumber() ==
                           numbers.try_emplace(expected->className, numbers.size()).first->second);
            classBefore = expected->className;
        }
    }
    return all;
}

/// What is known of a message at its end.
struct MessageSeen {
    std::uint64_t number;
    std::uint64_t firstLine;
    std::uint64_t fields;
    std::string className;
    std::string command;
    std::string time;
    std::string source;
    std::optional<krm::Direction> direction;
    std::optional<krm_ulong> ecu;
    krm_ulong type;
    krm_ulong id;
    bool beginIsMissing;

    friend bool operator==(const MessageSeen&, const MessageSeen&) = default;
};

struct FieldSeen {
    std::uint64_t message;
    std::uint64_t line;
    std::string path;
    std::string value;

    friend bool operator==(const FieldSeen&, const FieldSeen&) = default;
};

/// What an input tells.
struct Told {
    std::vector<MessageSeen> messages;
    std::vector<FieldSeen> fields;
    std::vector<LineSeen> others;
    std::uint64_t lines = 0;
    std::uint64_t cutLines = 0;
    bool lastLineHasNoEnd = false;

    friend bool operator==(const Told&, const Told&) = default;
};

enum class Passing { Nothing, Everything, Elements };

/// What such fields are called that are never to be passed over.
constexpr std::string_view kKept = "m_strDTC";

Told Read(LogInput& input, Passing passing) {
    Told told;
    bool isOpen = false;
    std::uint64_t fields = 0;
    for (;;) {
        const Event event = input.Next();
        const krm_cli::MessageHead& head = input.Head();
        switch (event) {
            case Event::Begin:
                KRM_FUZZ_CHECK(!isOpen && head.number == told.messages.size() + 1);
                isOpen = true;
                fields = 0;
                break;
            case Event::Field: {
                const FieldText& field = input.Field();
                KRM_FUZZ_CHECK(isOpen);
                told.fields.push_back({head.number, field.line, std::string(field.path), std::string(field.value)});
                ++fields;
                if (passing == Passing::Everything) {
                    input.PassOver({}, {});
                } else if (passing == Passing::Elements) {
                    input.PassOver(told.fields.back().path.substr(0, field.path.find('.') + 1), kKept);
                }
                break;
            }
            case Event::End:
                KRM_FUZZ_CHECK(isOpen && (head.fields == fields || passing != Passing::Nothing));
                isOpen = false;
                told.messages.push_back({head.number, head.firstLine, head.fields, head.className, head.command,
                                         head.time, head.source, head.direction, head.ecu, head.type, head.id,
                                         head.beginIsMissing});
                break;
            case Event::Other: {
                const krm_cli::OtherLine& other = input.Other();
                KRM_FUZZ_CHECK(!other.isFault);
                told.others.push_back({other.line, std::string(other.text), other.cutBytes, true});
                break;
            }
            case Event::Finished:
                const krm_cli::InputTotals& totals = input.Totals();
                KRM_FUZZ_CHECK(!isOpen && totals.faults == 0);
                KRM_FUZZ_CHECK(totals.messages == told.messages.size() && totals.otherLines == told.others.size());
                told.lines = totals.lines;
                told.cutLines = totals.cutLines;
                told.lastLineHasNoEnd = totals.lastLineHasNoEnd;
                return told;
        }
    }
}

Told Read(ByteSource& source, Passing passing = Passing::Nothing) {
    LogInput input(source);
    return Read(input, passing);
}

/// Every line is told once and as it is: as a field, as another line, or it is a heading.
void CheckAccount(const Told& told, const std::vector<LineSeen>& lines,
                  const std::vector<std::optional<Parsed>>& parsed) {
    KRM_FUZZ_CHECK(told.lines == lines.size());
    KRM_FUZZ_CHECK(told.cutLines == static_cast<std::uint64_t>(std::ranges::count_if(
                                        lines, [](const LineSeen& line) { return line.cutBytes != 0; })));
    KRM_FUZZ_CHECK(told.lastLineHasNoEnd == (!lines.empty() && !lines.back().ended));
    std::vector<bool> isTold(lines.size());
    const auto tell = [&](std::uint64_t number) {
        KRM_FUZZ_CHECK(number >= 1 && number <= lines.size() && !isTold[number - 1]);
        isTold[number - 1] = true;
    };
    for (const FieldSeen& field : told.fields) {
        tell(field.line);
        const std::optional<Parsed>& line = parsed[field.line - 1];
        KRM_FUZZ_CHECK(line && line->path == field.path && line->value == field.value);
        // What one class dumps is one message.
        const MessageSeen& message = told.messages[field.message - 1];
        KRM_FUZZ_CHECK(line->className == message.className || line->className.starts_with("CKRMCBase"));
    }
    for (const LineSeen& other : told.others) {
        tell(other.number);
        const LineSeen& line = lines[other.number - 1];
        KRM_FUZZ_CHECK(other.text == line.text && other.cutBytes == line.cutBytes && !parsed[other.number - 1]);
    }
    for (std::size_t i = 0; i < lines.size(); ++i) {
        KRM_FUZZ_CHECK(isTold[i] || (!parsed[i] && krm_cli::IsHeading(lines[i].text) && lines[i].cutBytes == 0));
    }
    for (std::size_t i = 1; i < told.messages.size(); ++i) {
        KRM_FUZZ_CHECK(told.messages[i].firstLine > told.messages[i - 1].firstLine);
    }
}

/// Passing over fields leaves out nothing but fields, and not those that are to be told.
void CheckPassing(const std::string& bytes, const Told& told, Passing passing) {
    ByteSource source(bytes, "a.log", g_surroundings);
    Told part = Read(source, passing);
    std::size_t i = 0;
    for (const FieldSeen& field : told.fields) {
        if (i < part.fields.size() && part.fields[i] == field) {
            ++i;
        } else {
            KRM_FUZZ_CHECK(passing == Passing::Everything || !field.path.ends_with(kKept));
        }
    }
    KRM_FUZZ_CHECK(i == part.fields.size());
    part.fields = told.fields;
    KRM_FUZZ_CHECK(part == told);
}

Told CheckBytes(const std::string& bytes) {
    std::size_t random = bytes.size();
    for (const char c : bytes) {
        random = random * 31 + static_cast<unsigned char>(c);
    }
    CheckLines(bytes, random);
    const std::vector<LineSeen> lines = LinesIn(bytes, LineReader::kMaxLine);
    const std::vector<std::optional<Parsed>> parsed = CheckParser(lines);
    ByteSource whole(bytes, "a.log", g_surroundings);
    Told told = Read(whole);
    CheckAccount(told, lines, parsed);
    CheckPassing(bytes, told, random % 3 == 0 ? Passing::Everything : Passing::Elements);
    ByteSource cut = CutFile(bytes).Cut(random / 64 % (bytes.size() + 1));
    KRM_FUZZ_CHECK(Read(cut) == told);
    return told;
}

/// Fills a value with what the input has; texts without line breaks, which would end a line of the log.
void Fill(krm::Value value, krm::fuzz::Input& input) {
    switch (value.Kind()) {
        case krm::ValueKind::Bool:
            value.SetInteger(input.Flag() ? 1 : 0);
            return;
        case krm::ValueKind::Signed:
        case krm::ValueKind::Unsigned: {
            const std::size_t unused = 64 - value.Type().size * 8;
            const std::uint64_t bits = input.Number<std::uint32_t>();
            KRM_FUZZ_CHECK(unused >= 32);
            value.SetInteger(value.Kind() == krm::ValueKind::Signed ? static_cast<krm_int64>(bits << unused) >> unused
                                                                    : static_cast<krm_int64>(bits << unused >> unused));
            return;
        }
        case krm::ValueKind::Double:
            *value.As<double>() = input.Double();
            return;
        case krm::ValueKind::Text: {
            constexpr std::size_t kLongest = 40;
            std::string text = input.Text(kLongest);
            std::ranges::replace(text, '\n', ' ');
            std::ranges::replace(text, '\r', ' ');
            *value.As<CKRMString>() = text.c_str();
            return;
        }
        case krm::ValueKind::Map:
            return;  // the log has none
        case krm::ValueKind::Record:
            value.ForEachField([&](std::string_view, krm::Value field) { Fill(field, input); });
            return;
        case krm::ValueKind::List: {
            constexpr std::size_t kMost = 3;
            for (std::size_t i = input.UpTo(kMost); i > 0; --i) {
                krm::Value element = value.Append().value();
                Fill(element, input);
                // The log has no line of an element that is nothing but empty lists.
                const auto isList = [](const krm::FieldDescription& field) {
                    return field.type->kind == krm::ValueKind::List;
                };
                if (element.Kind() == krm::ValueKind::Record && std::ranges::all_of(element.Type().fields, isList) &&
                    element.Field(0).Count() == 0) {
                    Fill(element.Field(0).Append().value(), input);
                }
            }
            return;
        }
        case krm::ValueKind::Array:
            value.ForEachElement([&](krm::Value element) { Fill(element, input); });
            return;
    }
}

/// A sink that keeps the lines.
struct Lines {
    std::vector<std::string> lines;

    krm_long Write(std::string_view line, int, int) {
        lines.emplace_back(line);
        return 0;
    }
};

/// A message, its dump, and how each line of it begins.
struct Logged {
    const krm::MessageDescription* description;
    std::unique_ptr<CKRMBaseAdaptationData> message;
    std::string source;
    std::vector<std::string> lines;
};

Logged LoggedFrom(krm::fuzz::Input& input) {
    const auto all = krm::AllMessages();
    Logged logged;
    logged.description = &all[input.Number<std::uint16_t>() % all.size()];
    logged.message = logged.description->create();
    constexpr std::size_t kLongest = 12;
    logged.source = input.Text(kLongest);
    for (char& c : logged.source) {
        c = c == '\n' || c == '[' ? '_' : c;
    }
    Fill(*logged.description->ContentOf(*logged.message), input);
    if (auto* const dumped = dynamic_cast<krm::LoggedMessage*>(logged.message.get())) {
        Lines sink;
        const krm::ScopedLogSink scope(sink);
        dumped->ErrWriteOperationLog();
        logged.lines = std::move(sink.lines);
    }
    return logged;
}

/// Whether the fields that were read are the message's, as far as the log has them.
void CheckRebuilt(const Logged& logged, const std::vector<FieldSeen>& fields) {
    krm_cli::RebuiltMessage rebuilt(*logged.description);
    for (const FieldSeen& field : fields) {
        rebuilt.Take({field.path, field.value});
    }
    krm::CompareOptions options;
    options.ignore = krm_cli::LogForm::Of(*logged.description).NotLogged();
    // The log has six decimals of a double: what they are read as lies as near to them as what they were written from.
    options.tolerance.absolute = 1e-6;
    const auto content = logged.description->ContentOf(static_cast<const CKRMBaseAdaptationData&>(*logged.message));
    const krm::Comparison comparison = krm::Compare(*content, rebuilt.Content(), options);
    if (!comparison.Equal()) {
        std::fprintf(stderr, "%s\n%s\n", std::string(logged.description->className).c_str(),
                     krm::ToText(comparison).c_str());
    }
    KRM_FUZZ_CHECK(comparison.Equal());
}

void CheckMessage(const MessageSeen& seen, const Logged& logged) {
    // Only a diagnostic command's dump tells its direction whatever it holds; others do by lines of their own.
    const bool isTold = std::ranges::any_of(logged.lines, [](const std::string& line) {
        const std::optional<Parsed> parsed = ParsedByModel(line);
        return parsed && (parsed->className.ends_with("Snd") || parsed->className.ends_with("Rcv"));
    });
    KRM_FUZZ_CHECK(seen.className == (isTold ? logged.description->className : std::string_view()));
    KRM_FUZZ_CHECK(seen.direction == (isTold ? std::optional(logged.description->direction) : std::nullopt));
    KRM_FUZZ_CHECK(seen.command == logged.description->command && !seen.beginIsMissing);
    KRM_FUZZ_CHECK(seen.type == logged.description->type && seen.id == logged.description->id);
    KRM_FUZZ_CHECK(seen.fields == logged.lines.size());
}

/// The dumps of two messages, each of a source of its own, line by line in any order.
void CheckMessages(krm::fuzz::Input& input) {
    // The order first, so that it doesn't depend on how much the messages take.
    const auto order = input.Number<std::uint32_t>();
    const Logged logged[] = {LoggedFrom(input), LoggedFrom(input)};
    const std::size_t count = logged[0].lines.size() + logged[1].lines.size();
    std::string log;
    std::vector<std::size_t> begun;
    std::size_t next[2] = {};
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t wanted = count < LogInput::kStaleLines ? order >> i % 32 & 1U : 0;
        const std::size_t one = next[wanted] < logged[wanted].lines.size() ? wanted : 1 - wanted;
        if (next[one] == 0) {
            begun.push_back(one);
        }
        const std::string minutes = std::to_string(10 + i % 50);
        // The source's number is a word of its own: behind "1:2" it would be a part of a time.
        log += "10:" + minutes + ":00 T" + std::to_string(one) + ' ' + logged[one].source + ' ';
        log += logged[one].lines[next[one]++] + (order % 3 == 0 ? "\r\n" : "\n");
    }
    const Told told = CheckBytes(log);
    KRM_FUZZ_CHECK(told.others.empty() && told.messages.size() == begun.size() && told.fields.size() == count);
    for (std::size_t i = 0; i < begun.size(); ++i) {
        CheckMessage(told.messages[i], logged[begun[i]]);
        std::vector<FieldSeen> fields;
        std::ranges::copy_if(told.fields, std::back_inserter(fields),
                             [&](const FieldSeen& field) { return field.message == i + 1; });
        CheckRebuilt(logged[begun[i]], fields);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    krm::fuzz::Input input(data, size);
    if (size > 0 && data[0] == 0) {
        input.Byte();
        CheckMessages(input);
    } else {
        CheckBytes(input.Rest());
    }
    return 0;
}

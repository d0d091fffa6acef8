#include "krm/exchange/redact.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <istream>
#include <map>
#include <optional>
#include <ostream>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include "krm/exchange/internal/compare_rules.h"
#include "krm/exchange/internal/compare_text.h"
#include "krm/exchange/internal/pseudonyms.h"
#include "krm/exchange/internal/recording_lines.h"
#include "krm/exchange/internal/text.h"
#include "krm/platform/string.h"

namespace krm {

namespace {

using comparing::Rules;
using exchange::TextMap;
using redacting::Values;

/// The one field of the library's classes that is a VIN by what it says.
constexpr const char* kVinField = "m_strVinCode";

bool IsNumber(const TypeDescription& type) {
    return type.kind == ValueKind::Signed || type.kind == ValueKind::Unsigned;
}

/// The byte that a number stands for, also where a signed one holds it; nothing for any other number.
std::optional<char> ByteOf(krm_int64 number) {
    return number >= -128 && number <= 255 ? std::optional(static_cast<char>(static_cast<unsigned char>(number & 0xFF)))
                                           : std::nullopt;
}
void SetByte(Value number, char byte) {
    const krm_int64 value = static_cast<unsigned char>(byte);
    if (!number.SetInteger(value)) {
        number.SetInteger(value - 256);
    }
}

/// A text without blanks around it; bytes as they are.
std::string_view WithoutBlanks(std::string_view content) {
    constexpr std::string_view kBlanks = " \t\r\n";
    const std::size_t first = Values::IsBinary(content) ? 0 : content.find_first_not_of(kBlanks);
    if (first == std::string_view::npos) {
        return {};
    }
    const std::size_t last = Values::IsBinary(content) ? content.size() : content.find_last_not_of(kBlanks) + 1;
    return content.substr(first, last - first);
}

/// Whether what a named field holds is looked for elsewhere. One byte over and over, zeros or blanks, says that there is
/// nothing.
bool IsValue(std::string_view content) {
    return Values::CountReplaced(content) >= kMinRedactedLength &&
           content.find_first_not_of(content.front()) != std::string_view::npos;
}

/// Goes through all that a message holds and gives each kind of it to `Visitor`, saying whether a field that is named
/// holds it:
///     void Text(CKRMString&, bool isNamed)
///     void Numbers(std::vector<Value>&, bool isNamed)  // that stand one after the other
///     void Number(Value)                               // an integer or a double that is named
///     void Map(TextMap&, bool isNamed, isTextNamed)    // isTextNamed(key): the text alone
template <class Visitor>
void Visit(Value value, const Rules* rules, bool isNamed, Visitor& visitor) {
    isNamed = isNamed || comparing::Ignores(rules);
    switch (value.Kind()) {
        case ValueKind::Bool:
            return;
        case ValueKind::Signed:
        case ValueKind::Unsigned:
        case ValueKind::Double:
            if (isNamed) {
                visitor.Number(value);
            }
            return;
        case ValueKind::Text:
            visitor.Text(*value.As<CKRMString>(), isNamed);
            return;
        case ValueKind::Map:
            visitor.Map(*value.As<TextMap>(), isNamed,
                        [&](std::string_view key) { return isNamed || comparing::IgnoresEntry(rules, key); });
            return;
        case ValueKind::Record:
            for (std::size_t i = 0; i < value.Type().fields.size(); ++i) {
                Visit(value.Field(i), comparing::OfField(rules, i), isNamed, visitor);
            }
            return;
        case ValueKind::List:
        case ValueKind::Array: {
            std::vector<Value> elements;
            value.ForEachElement([&](Value element) { elements.push_back(element); });
            const TypeDescription& type = *value.Type().element;
            if (IsNumber(type)) {
                visitor.Numbers(elements, isNamed);
            }
            // The same field of all of them.
            for (std::size_t i = 0; i < type.fields.size(); ++i) {
                if (IsNumber(*type.fields[i].type)) {
                    std::vector<Value> column;
                    for (const Value& element : elements) {
                        column.push_back(element.Field(i));
                    }
                    visitor.Numbers(column, false);
                }
            }
            for (std::size_t i = 0; i < elements.size(); ++i) {
                // Numbers that are named with their list have been visited.
                if (!isNamed || !IsNumber(type)) {
                    Visit(elements[i], comparing::OfElement(rules, static_cast<int>(i)), isNamed, visitor);
                }
            }
            return;
        }
    }
}

/// The bytes that numbers spell, as far as they are bytes: `use(first, bytes)` for each such part.
template <class Use>
void ForEachSpelled(const std::vector<Value>& numbers, Use use) {
    std::string bytes;
    for (std::size_t i = 0; i <= numbers.size(); ++i) {
        const std::optional<char> byte = i < numbers.size() ? ByteOf(*numbers[i].Integer()) : std::nullopt;
        if (byte) {
            bytes += *byte;
        } else if (!bytes.empty()) {
            use(i - bytes.size(), bytes);
            bytes.clear();
        }
    }
}

/// Learns values.
class Collector {
public:
    Collector(Values& values, bool vin) : m_values(values), m_vin(vin) {}

    void Text(const CKRMString& text, bool isNamed) const { Bytes(View(text), isNamed); }
    void Numbers(const std::vector<Value>& numbers, bool isNamed) const {
        ForEachSpelled(numbers, [&](std::size_t, std::string_view bytes) {
            Bytes(bytes, isNamed && bytes.size() == numbers.size());
        });
    }
    void Number(Value) const {}
    template <class IsTextNamed>
    void Map(const TextMap& map, bool isNamed, IsTextNamed isTextNamed) const {
        for (const auto& [key, text] : map) {
            Text(key, isNamed);
            Text(text, isTextNamed(View(key)));
        }
    }
    void Bytes(std::string_view bytes, bool isNamed) const {
        if (const std::string_view content = WithoutBlanks(bytes); isNamed && IsValue(content)) {
            m_values.Add(content);
        }
        if (m_vin) {
            m_values.AddVins(bytes);
        }
    }

private:
    Values& m_values;
    bool m_vin;
};

/// Replaces them.
class Replacer {
public:
    explicit Replacer(Values& values) : m_values(values) {}

    std::uint64_t Places() const { return m_places; }

    void Text(CKRMString& text, bool isNamed) {
        std::string bytes(View(text));
        if (Bytes(bytes, isNamed)) {
            text = bytes.c_str();
        }
    }
    void Numbers(const std::vector<Value>& numbers, bool isNamed) {
        ForEachSpelled(numbers, [&](std::size_t first, std::string bytes) {
            const bool areAll = bytes.size() == numbers.size();
            if (Bytes(bytes, isNamed && areAll)) {
                for (std::size_t i = 0; i < bytes.size(); ++i) {
                    SetByte(numbers[first + i], bytes[i]);
                }
            }
            isNamed = isNamed && !areAll;
        });
        if (isNamed) {
            for (const Value& number : numbers) {
                Number(number);
            }
        }
    }
    void Number(Value value) {
        std::array<char, 32> written;
        const double* const real = value.As<double>();
        if (real != nullptr && !std::isfinite(*real)) {
            return;
        }
        char* const end = real != nullptr
                              ? std::to_chars(written.data(), written.data() + written.size(), *real).ptr
                              : std::to_chars(written.data(), written.data() + written.size(), *value.Integer()).ptr;
        const std::string before(written.data(), end);
        const std::size_t digitsEnd = std::min(before.find('e'), before.size());
        constexpr std::uint64_t kAttempts = 1000;
        for (std::uint64_t attempt = 0; attempt < kAttempts; ++attempt) {
            const std::string after =
                m_values.Candidate(before.substr(0, digitsEnd), attempt) + before.substr(digitsEnd);
            if (after != before && Set(value, after)) {
                ++m_places;
                return;
            }
        }
    }
    template <class IsTextNamed>
    void Map(TextMap& map, bool isNamed, IsTextNamed isTextNamed) {
        std::vector<std::pair<CKRMString, CKRMString>> entries;
        for (const auto& [key, text] : map) {
            entries.emplace_back(key, text);
        }
        const std::uint64_t before = m_places;
        for (auto& [key, text] : entries) {
            const bool isTextNamedHere = isTextNamed(View(key));
            Text(key, isNamed);
            Text(text, isTextNamedHere);
        }
        if (m_places != before) {
            map.RemoveAll();
            for (const auto& [key, text] : entries) {
                map.SetAt(key, text);
            }
        }
    }
    /// Whether anything is replaced.
    bool Bytes(std::string& bytes, bool isNamed) {
        const std::uint64_t before = m_places;
        if (const std::string_view content = WithoutBlanks(bytes);
            isNamed && !IsValue(content) && Values::CountReplaced(content) != 0) {
            const auto start = static_cast<std::size_t>(content.data() - bytes.data());
            bytes.replace(start, content.size(), m_values.Alone(content));
            ++m_places;
        }
        m_places += m_values.Replace(bytes);
        return m_places != before;
    }

private:
    /// Whether the number can be as it is written, with as many digits.
    static bool Set(Value value, const std::string& written) {
        const char* const end = written.data() + written.size();
        if (double* const real = value.As<double>()) {
            double number = 0;
            const bool isDone = std::from_chars(written.data(), end, number).ec == std::errc() && std::isfinite(number);
            *real = isDone ? number : *real;
            return isDone;
        }
        const std::size_t first = written.find_first_not_of('-');
        krm_int64 number = 0;
        return (written[first] != '0' || written.size() - first == 1) &&
               std::from_chars(written.data(), end, number).ec == std::errc() && value.SetInteger(number);
    }

    Values& m_values;
    std::uint64_t m_places = 0;
};

/// What is wrong with a pattern for messages of the library.
std::optional<std::string> FindMistake(const std::string& pattern, bool forOtherClassesToo) {
    std::optional<std::string> mistake;
    for (const MessageDescription& message : AllMessages()) {
        Rules rules;
        if (!comparing::AddIgnored(pattern, *message.content, rules, false)) {
            return std::nullopt;
        }
        // That no class has it is one thing; this is wrong for all of them.
        mistake = comparing::AddIgnored(pattern, *message.content, rules, true);
    }
    return mistake || forOtherClassesToo ? mistake : "no message of the library has it";
}

std::string FindMistake(const RedactOptions& options) {
    for (const std::string& pattern : options.fields) {
        if (const std::optional<std::string> mistake = FindMistake(pattern, options.forOtherClassesToo)) {
            return "field " + comparing::Quoted(pattern) + ": " + *mistake;
        }
    }
    for (std::size_t i = 0; i < options.values.size(); ++i) {
        if (Values::CountReplaced(options.values[i]) < kMinRedactedLength) {
            return "value " + std::to_string(i + 1) + ": has fewer than " + std::to_string(kMinRedactedLength) +
                   " letters and digits, so it would be found everywhere";
        }
    }
    return {};
}

}  // namespace

struct Redactor::State {
    explicit State(const RedactOptions& options)
        : vin(options.vin), fields(options.fields), values(options.secret), error(FindMistake(options)) {
        if (vin) {
            fields.push_back(kVinField);
        }
        for (std::size_t i = 0; error.empty() && i < options.values.size(); ++i) {
            values.Add(options.values[i]);
        }
    }

    /// Which fields of the class are named.
    const Rules& RulesOf(const MessageDescription& message) {
        const auto [place, isNew] = rules.try_emplace(message.content);
        for (std::size_t i = 0; isNew && i < fields.size(); ++i) {
            comparing::AddIgnored(fields[i], *message.content, place->second, true);
        }
        return place->second;
    }

    bool vin;
    std::vector<std::string> fields;
    std::map<const TypeDescription*, Rules> rules;
    Values values;
    std::string error;
};

Redactor::Redactor(const RedactOptions& options) : m_state(std::make_unique<State>(options)) {}
Redactor::~Redactor() = default;
Redactor::Redactor(Redactor&& other) noexcept = default;
Redactor& Redactor::operator=(Redactor&& other) noexcept = default;

const std::string& Redactor::Error() const {
    return m_state->error;
}

void Redactor::Collect(const CKRMBaseAdaptationData& message, const MessageDescription& description) {
    // Visit is for values that may be changed; this visitor changes none.
    const std::optional<Value> content = description.ContentOf(const_cast<CKRMBaseAdaptationData&>(message));
    if (content && m_state->error.empty()) {
        Collector collector(m_state->values, m_state->vin);
        Visit(*content, &m_state->RulesOf(description), false, collector);
    }
}

void Redactor::Collect(const CKRMBaseAdaptationData& message, Direction direction) {
    const MessageDescription* const description =
        FindMessage(message.GetCommandType(), message.GetCommandID(), direction);
    if (description != nullptr) {
        Collect(message, *description);
    }
}

Redaction Redactor::Redact(CKRMBaseAdaptationData& message, const MessageDescription& description) {
    if (!m_state->error.empty()) {
        return {0, m_state->error};
    }
    const std::optional<Value> content = description.ContentOf(message);
    if (!content) {
        return {0, "the message is no " + std::string(description.className)};
    }
    Collect(message, description);
    Replacer replacer(m_state->values);
    Visit(*content, &m_state->RulesOf(description), false, replacer);
    return {replacer.Places(), m_state->values.Error()};
}

Redaction Redactor::Redact(CKRMBaseAdaptationData& message, Direction direction) {
    const MessageDescription* const description =
        FindMessage(message.GetCommandType(), message.GetCommandID(), direction);
    return description != nullptr ? Redact(message, *description)
                                  : Redaction{0, "the library has no message of " +
                                                     CommandNameOf(message.GetCommandType(), message.GetCommandID())};
}

Redaction Redactor::Redact(std::string& text) {
    if (!m_state->error.empty()) {
        return {0, m_state->error};
    }
    Collector(m_state->values, m_state->vin).Bytes(text, false);
    Replacer replacer(m_state->values);
    replacer.Bytes(text, false);
    return {replacer.Places(), m_state->values.Error()};
}

namespace {

/// Collects from what `open` gives a reader of, then copies from another one what `write` takes.
template <class Open, class Write>
RedactedRecording RedactMessages(Redactor& redactor, Open open, Write write) {
    RedactedRecording done;
    done.error = redactor.Error();
    if (!done.error.empty()) {
        return done;
    }
    if (std::optional<RecordingReader> reader = open()) {
        while (const std::optional<RecordedMessage> recorded = reader->Next()) {
            if (*recorded) {
                redactor.Collect(*recorded->message, *recorded->description);
            }
        }
    }
    std::optional<RecordingReader> reader = open();
    if (!reader) {
        done.error = "the recording can't be read twice, as it is no file";
        return done;
    }
    while (const std::optional<RecordedMessage> recorded = reader->Next()) {
        if (!*recorded) {
            if (recorded->fault.line == 0) {
                done.error = ToText(recorded->fault);
                return done;
            }
            ++done.faultCount;
            if (done.faults.size() < kMaxKeptFaults) {
                done.faults.push_back(recorded->fault);
            }
            continue;
        }
        const Redaction redaction = redactor.Redact(*recorded->message, *recorded->description);
        done.places += redaction.places;
        done.error = redaction ? write(*recorded).error : redaction.error;
        if (!done.error.empty()) {
            return done;
        }
        ++done.messages;
    }
    if (reader->Library().empty()) {
        done.error = done.faults.empty() ? std::string("the recording is empty") : ToText(done.faults.front());
    }
    return done;
}

}  // namespace

RedactedRecording RedactRecording(const std::filesystem::path& from, const std::filesystem::path& to,
                                  Redactor& redactor, RecordingMode mode, const RecordingReadOptions& options) {
    RedactedRecording done;
    std::error_code failed;
    if (mode == RecordingMode::Append) {
        done.error = "a redacted recording can't be appended to another";
    } else if (mode == RecordingMode::CreateNew && std::filesystem::exists(to, failed)) {
        done.error = "the file is there already";
    }
    if (!done.error.empty()) {
        return done;
    }
    std::filesystem::path part = to;
    part += ".part";
    {
        Recorder recorder(part, RecordingMode::Overwrite);
        done.error = recorder.Error();
        if (done.error.empty()) {
            done = RedactMessages(
                redactor, [&] { return std::optional<RecordingReader>(std::in_place, from, options); },
                [&](const RecordedMessage& recorded) { return recorder.Write(recorded); });
        }
    }
    if (done.error.empty()) {
        std::filesystem::rename(part, to, failed);
        done.error = failed ? "can't be renamed: " + recording::SystemError(failed) : std::string();
    }
    if (!done.error.empty()) {
        std::filesystem::remove(part, failed);
    }
    return done;
}

RedactedRecording RedactRecording(std::istream& from, std::ostream& to, Redactor& redactor,
                                  const RecordingReadOptions& options) {
    const std::istream::pos_type start = from.tellg();
    Recorder recorder([&](std::string_view bytes) {
        return to.write(bytes.data(), static_cast<std::streamsize>(bytes.size())) ? bytes.size() : 0;
    });
    RedactedRecording done;
    done.error = recorder.Error();
    if (!done.error.empty()) {
        return done;
    }
    return RedactMessages(
        redactor,
        [&] {
            from.clear();
            return from.seekg(start) ? std::optional<RecordingReader>(std::in_place, from, options) : std::nullopt;
        },
        [&](const RecordedMessage& recorded) { return recorder.Write(recorded); });
}

}  // namespace krm

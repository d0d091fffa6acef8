// Reads messages from JSON: the only source that sees the JSON library.
#include <rapidjson/reader.h>

#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include "krm/exchange/internal/json_form.h"
#include "krm/exchange/internal/text.h"
#include "krm/exchange/json.h"

namespace krm {

namespace {

using exchange::TextMap;

/// What an open object or array of the document is.
enum class Place {
    Document,  // the outermost object
    Record,    // the members of a record
    Bytes,     // a text that isn't UTF-8
    List,
    Array,
    Map,     // an array of pairs
    Pair,    // one of them
    Skipped  // of a content that came before its class: read again later
};

struct Frame {
    Place place;
    const TypeDescription* type;  // of what is read here; null in the document, in a pair and in what is skipped
    void* object;                 // that
    std::size_t firstSeen;        // of a record: where its fields begin in Reader::m_seen
    std::size_t next = 0;       // of a record: the field that comes next if all come in order; else how many have begun
    std::string_view member{};  // the last name
    bool inside = false;        // whether the value of `member`, or the last element, is being read
};

/// What a value of this type must be, for people.
std::string Expected(const TypeDescription& type) {
    switch (type.kind) {
        case ValueKind::Bool:
            return "expected true or false";
        case ValueKind::Signed:
        case ValueKind::Unsigned: {
            const json::Range range = json::RangeOf(type);
            return "expected a whole number from " + std::to_string(range.lowest) + " to " +
                   std::to_string(range.highest);
        }
        case ValueKind::Double:
            return "expected a number, or \"NaN\", \"Infinity\" or \"-Infinity\"";
        case ValueKind::Text:
            return "expected a text, or an object with its bytes";
        case ValueKind::Record:
            return "expected an object";
        case ValueKind::List:
            return "expected an array";
        case ValueKind::Array:
            return "expected an array of " + std::to_string(type.length) + " elements";
        case ValueKind::Map:
            return "expected an array of pairs";
    }
    return {};  // GCOVR_EXCL_LINE: every kind has its case
}

bool IsIdentifier(std::string_view name) {
    const auto isLetter = [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_'; };
    bool is = !name.empty() && isLetter(name.front());
    for (const char c : name) {
        is = is && (isLetter(c) || (c >= '0' && c <= '9'));
    }
    return is;
}

/// The bytes that hexadecimal digits stand for; false where they aren't pairs of such.
template <class Put>
bool ReadHex(std::string_view digits, Put put) {
    if (digits.size() % 2 != 0) {
        return false;
    }
    for (; !digits.empty(); digits.remove_prefix(2)) {
        unsigned char byte = 0;
        const auto [last, error] = std::from_chars(digits.data(), digits.data() + 2, byte, 16);
        if (error != std::errc() || last != digits.data() + 2) {
            return false;
        }
        put(byte);
    }
    return true;
}

/// The double that a string stands for; false where it is none of those.
bool ReadMarkedDouble(std::string_view text, double& number) {
    std::uint64_t bits = 0;
    if (text == json::kNan) {
        bits = json::kQuietNan;
    } else if (text == json::kInfinity) {
        bits = json::kPositiveInfinity;
    } else if (text == json::kMinusInfinity) {
        bits = json::kPositiveInfinity | json::kSign;
    } else {
        if (text.size() != json::kNan.size() + 18 || !text.starts_with(json::kNan) || text[json::kNan.size()] != '(' ||
            !text.ends_with(')') ||
            !ReadHex(text.substr(json::kNan.size() + 1, 16), [&](unsigned char byte) { bits = bits << 8U | byte; }) ||
            (bits & ~json::kSign) <= json::kPositiveInfinity) {
            return false;
        }
    }
    number = std::bit_cast<double>(bits);
    return true;
}

/// Takes what the JSON library reads, in place, and fills the message with it. The offset of a string or number is where
/// the library read it in the buffer; of anything else the library has just read its last character.
class Reader {
public:
    /// `description` is null where the document says the class.
    Reader(std::string& buffer, const MessageDescription* description)
        : m_buffer(buffer.data()),
          m_size(buffer.size()),
          m_stream(buffer.data()),
          m_given(description),
          m_description(description) {}

    /// Reads the document. Whether it must be read once more, as now the class is known, which its content preceded.
    bool ReadsTheClassOnly(MessageFromJson& result) {
        rapidjson::Reader reader;
        const rapidjson::ParseResult parsed =
            reader.Parse<rapidjson::kParseInsituFlag | rapidjson::kParseNumbersAsStringsFlag>(m_stream, *this);
        if (parsed.IsError() && parsed.Code() != rapidjson::kParseErrorTermination) {
            Fail(parsed.Offset(), SyntaxError(parsed.Code()));
        } else if (!parsed.IsError() && m_stream.Tell() != m_size) {
            Fail(m_stream.Tell(), SyntaxError(rapidjson::kParseErrorDocumentRootNotSingular));  // a NUL
        }
        if (!m_error.text.empty()) {
            result = {nullptr, nullptr, std::move(m_error)};
            return false;
        }
        result = {std::move(m_message), m_description, {}};
        return result.message == nullptr;
    }

    // What the JSON library calls, with false to end the reading.

    bool Null() {
        const Target target = Begin();
        return Mistaken(target, Here(4));
    }
    bool Bool(bool value) {
        const Target target = Begin();
        if (target.type == nullptr || target.type->kind != ValueKind::Bool) {
            return Mistaken(target, Here(value ? 4 : 5));
        }
        *static_cast<bool*>(target.object) = value;
        return End();
    }
    bool RawNumber(const char* digits, rapidjson::SizeType length, bool) {
        const Target target = Begin();
        const std::size_t offset = OffsetOf(digits);
        if (target.type == nullptr) {
            return Mistaken(target, offset);
        }
        const char* const end = digits + length;
        if (target.type->kind == ValueKind::Double) {
            double number = 0;
            const auto [last, error] = std::from_chars(digits, end, number);
            // What is too small for a double is an error too, as what is too large: some standard libraries don't tell the
            // two apart, others read 0 and infinity.
            if (error != std::errc() || !std::isfinite(number) || (number == 0 && !IsZero({digits, length}))) {
                return Fail(offset, "expected a number that a double can hold");
            }
            *static_cast<double*>(target.object) = number;
            return End();
        }
        krm_int64 number = 0;
        const auto [last, error] = std::from_chars(digits, end, number);
        if ((target.type->kind != ValueKind::Signed && target.type->kind != ValueKind::Unsigned) ||
            error != std::errc() || last != end || !target.type->integer->set(target.object, number)) {
            return Mistaken(target, offset);
        }
        return End();
    }
    bool String(const char* characters, rapidjson::SizeType length, bool) {
        const Target target = Begin();
        const std::string_view text(characters, length);
        const std::size_t offset = OffsetOf(characters) - 1;
        if (target.place == Place::Document) {
            return SayClass(text, offset);
        }
        if (target.place == Place::Bytes) {
            return SetBytes(text, target.object, offset);
        }
        if (target.type == nullptr) {
            return Mistaken(target, offset);
        }
        if (target.type->kind == ValueKind::Double) {
            return ReadMarkedDouble(text, *static_cast<double*>(target.object)) ? End() : Mistaken(target, offset);
        }
        if (target.type->kind != ValueKind::Text) {
            return Mistaken(target, offset);
        }
        if (!exchange::IsUtf8(text)) {
            return Fail(offset, kNotUtf8);
        }
        return SetText(characters, length, target.object, offset);
    }
    bool StartObject() {
        const Target target = Begin();
        const std::size_t offset = Here(1);
        if (m_frames.size() >= kMaxJsonDepth) {
            return FailTooDeep(offset);
        }
        if (m_frames.empty()) {
            m_frames.push_back({Place::Document, nullptr, nullptr, 0});
            return true;
        }
        if (target.place == Place::Skipped) {
            m_frames.push_back({Place::Skipped, nullptr, nullptr, 0});
            return true;
        }
        if (target.place == Place::Document) {
            return m_frames.back().member == json::kContent ? StartContent() : Mistaken(target, offset);
        }
        if (target.type != nullptr && target.type->kind == ValueKind::Record) {
            Open(*target.type, target.object);
            return true;
        }
        if (target.type != nullptr && target.type->kind == ValueKind::Text) {
            m_frames.push_back({Place::Bytes, target.type, target.object, 0});
            return true;
        }
        return Mistaken(target, offset);
    }
    bool Key(const char* characters, rapidjson::SizeType length, bool) {
        const std::string_view name(characters, length);
        const std::size_t offset = OffsetOf(characters) - 1;
        Frame& frame = m_frames.back();
        if (frame.place == Place::Skipped) {
            return true;
        }
        if (frame.place == Place::Record) {
            return FindField(frame, name, offset);
        }
        if (!exchange::IsUtf8(name)) {
            return Fail(offset, kNotUtf8);
        }
        frame.member = name;
        frame.inside = true;
        if (frame.place == Place::Bytes) {
            return name != json::kBytes ? Fail(offset, kUnknown) : frame.next++ != 0 ? Fail(offset, kTwice) : true;
        }
        for (std::size_t i = 0; i < kDocumentMembers.size(); ++i) {
            if (name == kDocumentMembers[i]) {
                return std::exchange(m_seenInDocument[i], true) ? Fail(offset, kTwice) : true;
            }
        }
        return Fail(offset, kUnknown);
    }
    bool EndObject(rapidjson::SizeType) {
        const Frame& frame = m_frames.back();
        if (frame.place == Place::Bytes && frame.next == 0) {
            return Fail(Here(1), "expected the member $bytes");
        }
        if (frame.place == Place::Document) {
            return EndDocument();
        }
        if (frame.place == Place::Record) {
            m_seen.resize(frame.firstSeen);
        }
        m_frames.pop_back();
        return End();
    }
    bool StartArray() {
        const Target target = Begin();
        const std::size_t offset = Here(1);
        if (m_frames.size() >= kMaxJsonDepth) {
            return FailTooDeep(offset);
        }
        if (target.place == Place::Skipped) {
            m_frames.push_back({Place::Skipped, nullptr, nullptr, 0});
            return true;
        }
        if (target.place == Place::Map) {
            m_frames.push_back({Place::Pair, nullptr, target.object, 0});
            return true;
        }
        if (target.type == nullptr) {
            return Mistaken(target, offset);
        }
        switch (target.type->kind) {
            case ValueKind::List:
                target.type->list->removeAll(target.object);
                m_frames.push_back({Place::List, target.type, target.object, 0});
                return true;
            case ValueKind::Array:
                m_frames.push_back({Place::Array, target.type, target.object, 0});
                return true;
            case ValueKind::Map:
                static_cast<TextMap*>(target.object)->RemoveAll();
                m_frames.push_back({Place::Map, target.type, target.object, 0});
                return true;
            default:
                return Mistaken(target, offset);
        }
    }
    bool EndArray(rapidjson::SizeType count) {
        const Frame& frame = m_frames.back();
        if (frame.place == Place::Array && count != static_cast<rapidjson::SizeType>(frame.type->length)) {
            return Fail(Here(1), Expected(*frame.type));
        }
        if (frame.place == Place::Pair) {
            auto& map = *static_cast<TextMap*>(frame.object);
            CKRMString former;
            if (count != 2) {
                return Fail(Here(1), kExpectedPair);
            }
            if (map.Lookup(m_pair[0], former)) {
                return Fail(Here(1), "this key comes twice");
            }
            map.SetAt(m_pair[0], m_pair[1]);
        }
        m_frames.pop_back();
        return End();
    }

    // Not called: numbers arrive as they are written.
    bool Int(int) { return false; }               // GCOVR_EXCL_LINE
    bool Uint(unsigned) { return false; }         // GCOVR_EXCL_LINE
    bool Int64(std::int64_t) { return false; }    // GCOVR_EXCL_LINE
    bool Uint64(std::uint64_t) { return false; }  // GCOVR_EXCL_LINE
    bool Double(double) { return false; }         // GCOVR_EXCL_LINE

private:
    /// Where the next value goes.
    struct Target {
        Place place;                  // what it lies in
        const TypeDescription* type;  // what it must be; null where `place` says that
        void* object;                 // what it fills
    };

    static constexpr const char* kUnknown = "unknown member";
    static constexpr const char* kTwice = "this member comes twice";
    static constexpr const char* kNotUtf8 = "expected UTF-8";
    static constexpr const char* kExpectedPair = "expected a pair: an array of key and value";
    static constexpr std::array<std::string_view, 4> kDocumentMembers = {json::kCommand, json::kFamily,
                                                                         json::kDirection, json::kContent};

    static bool IsZero(std::string_view number) {
        return number.substr(0, number.find_first_of("eE")).find_first_of("123456789") == std::string_view::npos;
    }

    static std::string SyntaxError(rapidjson::ParseErrorCode code) {
        switch (code) {
            case rapidjson::kParseErrorDocumentEmpty:
                return "the document is empty";
            case rapidjson::kParseErrorDocumentRootNotSingular:
                return "there is something behind the document";
            case rapidjson::kParseErrorObjectMissName:
                return "expected a member's name";
            case rapidjson::kParseErrorObjectMissColon:
                return "expected a colon";
            case rapidjson::kParseErrorObjectMissCommaOrCurlyBracket:
                return "expected a comma or }";
            case rapidjson::kParseErrorArrayMissCommaOrSquareBracket:
                return "expected a comma or ]";
            case rapidjson::kParseErrorStringMissQuotationMark:
                return "expected the end of the string";
            case rapidjson::kParseErrorStringUnicodeEscapeInvalidHex:
            case rapidjson::kParseErrorStringUnicodeSurrogateInvalid:
            case rapidjson::kParseErrorStringEscapeInvalid:
                return "invalid escape or control character";
            case rapidjson::kParseErrorNumberTooBig:
                return "expected a number that a double can hold";
            case rapidjson::kParseErrorNumberMissFraction:
            case rapidjson::kParseErrorNumberMissExponent:
                return "expected a digit";
            default:
                return "expected a value";
        }
    }

    std::size_t OffsetOf(const char* place) const { return static_cast<std::size_t>(place - m_buffer); }
    /// The offset of what has just been read and is this long.
    std::size_t Here(std::size_t length) { return m_stream.Tell() - length; }

    /// A value begins: where it goes.
    Target Begin() {
        if (m_frames.empty()) {
            return {Place::Document, nullptr, nullptr};
        }
        Frame& frame = m_frames.back();
        switch (frame.place) {
            case Place::Record: {
                const FieldDescription& field = frame.type->fields[frame.next - 1];
                return {Place::Record, field.type, field.in(frame.object)};
            }
            case Place::List:
                frame.inside = true;
                ++frame.next;
                return {Place::List, frame.type->element, frame.type->list->append(frame.object)};
            case Place::Array: {
                frame.inside = true;
                const std::size_t index = frame.next++;
                return index < static_cast<std::size_t>(frame.type->length)
                           ? Target{Place::Array, frame.type->element,
                                    static_cast<char*>(frame.object) + index * frame.type->element->size}
                           : Target{Place::Array, nullptr, nullptr};
            }
            case Place::Pair: {
                frame.inside = true;
                const std::size_t index = frame.next++;
                return index < m_pair.size() ? Target{Place::Pair, &kTypeDescription<CKRMString>, &m_pair[index]}
                                             : Target{Place::Pair, nullptr, nullptr};
            }
            case Place::Map:
                frame.inside = true;
                ++frame.next;
                break;
            case Place::Document:
            case Place::Bytes:
            case Place::Skipped:
                break;
        }
        return {frame.place, nullptr, frame.object};
    }

    /// A value is complete.
    bool End() {
        m_frames.back().inside = false;
        return true;
    }

    /// A value that isn't what is expected here; in what is skipped anything is.
    bool Mistaken(const Target& target, std::size_t offset) {
        if (target.type != nullptr) {
            return Fail(offset, Expected(*target.type));
        }
        switch (target.place) {
            case Place::Document:
                return Fail(offset, m_frames.empty() || m_frames.back().member == json::kContent ? "expected an object"
                                                                                                 : "expected a text");
            case Place::Array:
                return Fail(offset, Expected(*m_frames.back().type));
            case Place::Map:
            case Place::Pair:
                return Fail(offset, kExpectedPair);
            case Place::Bytes:
                return Fail(offset, kExpectedHex);
            case Place::Record:
            case Place::List:
            case Place::Skipped:
                break;
        }
        return true;
    }
    static constexpr const char* kExpectedHex = "expected pairs of hexadecimal digits, none of them 00";

    bool Fail(std::size_t offset, std::string text) {
        m_error = {Path(), offset, std::move(text)};
        return false;
    }
    bool FailTooDeep(std::size_t offset) {
        return Fail(offset, "nested deeper than " + std::to_string(kMaxJsonDepth) + " levels");
    }

    std::string Path() const {
        std::string path = "$";
        for (const Frame& frame : m_frames) {
            if (!frame.inside) {
                continue;
            }
            if (frame.place != Place::Document && frame.place != Place::Record && frame.place != Place::Bytes) {
                path += '[' + std::to_string(frame.next - 1) + ']';
            } else if (IsIdentifier(frame.member)) {
                path += '.';
                path += frame.member;
            } else {
                path += '[';
                json::WriteString(frame.member, path);
                path += ']';
            }
        }
        return path;
    }

    void Open(const TypeDescription& record, void* object) {
        m_frames.push_back({Place::Record, &record, object, m_seen.size()});
        m_seen.resize(m_seen.size() + record.fields.size());
    }

    bool FindField(Frame& frame, std::string_view name, std::size_t offset) {
        const std::span<const FieldDescription> fields = frame.type->fields;
        std::size_t index = frame.next;
        if (index == fields.size() || fields[index].name != name) {
            for (index = 0; index < fields.size() && fields[index].name != name; ++index) {
            }
        }
        if (index == fields.size() && !exchange::IsUtf8(name)) {
            return Fail(offset, kNotUtf8);
        }
        frame.member = name;
        frame.inside = true;
        if (index == fields.size()) {
            return Fail(offset, kUnknown);
        }
        frame.next = index + 1;
        return std::exchange(m_seen[frame.firstSeen + index], '\1') != '\0' ? Fail(offset, kTwice) : true;
    }

    bool SetText(const char* characters, std::size_t length, void* object, std::size_t offset) {
        if (std::string_view(characters).size() != length) {
            return Fail(offset, "expected a text without NUL");
        }
        *static_cast<CKRMString*>(object) = characters;
        return End();
    }
    bool SetBytes(std::string_view digits, void* object, std::size_t offset) {
        std::string bytes;
        bytes.reserve(digits.size() / 2);
        if (!ReadHex(digits, [&](unsigned char byte) { bytes += static_cast<char>(byte); }) ||
            bytes.find('\0') != std::string::npos) {
            return Fail(offset, kExpectedHex);
        }
        *static_cast<CKRMString*>(object) = bytes.c_str();
        return End();
    }

    /// A string of the document's own members.
    bool SayClass(std::string_view text, std::size_t offset) {
        if (m_frames.empty() || m_frames.back().member == json::kContent) {
            return Fail(offset, "expected an object");
        }
        const std::string_view member = m_frames.back().member;
        if (member == json::kDirection && text != json::NameOf(Direction::Send) &&
            text != json::NameOf(Direction::Receive)) {
            return Fail(offset, "expected \"request\" or \"answer\"");
        }
        const auto index = member == json::kCommand ? 0U : member == json::kFamily ? 1U : 2U;
        m_class[index] = text;
        if (m_given != nullptr && text != ClassOf(*m_given)[index]) {
            return Fail(offset, "the message that is asked for has another");
        }
        if (m_given == nullptr && m_seenInDocument[0] && m_seenInDocument[1] && m_seenInDocument[2]) {
            for (const MessageDescription& message : AllMessages()) {
                if (m_class == ClassOf(message)) {
                    m_description = &message;
                    return End();
                }
            }
            return Fail(offset, "there is no message with this command, family and direction");
        }
        return End();
    }
    static std::array<std::string_view, 3> ClassOf(const MessageDescription& message) {
        return {message.command, FamilyWordOf(message.family), json::NameOf(message.direction)};
    }

    bool StartContent() {
        if (m_description == nullptr) {
            m_frames.push_back({Place::Skipped, nullptr, nullptr, 0});
            return true;
        }
        m_message = m_description->create();
        Open(*m_description->content, m_description->object(m_message.get()));
        return true;
    }

    bool EndDocument() {
        for (std::size_t i = 0; i < kDocumentMembers.size(); ++i) {
            if (!m_seenInDocument[i] && (m_given == nullptr || kDocumentMembers[i] == json::kContent)) {
                return Fail(Here(1), "expected the member " + std::string(kDocumentMembers[i]));
            }
        }
        m_frames.pop_back();
        return true;
    }

    const char* m_buffer;
    std::size_t m_size;
    rapidjson::InsituStringStream m_stream;
    const MessageDescription* m_given;
    const MessageDescription* m_description;  // the same, or what the document says as soon as it has
    std::unique_ptr<CKRMBaseAdaptationData> m_message;
    std::array<std::string_view, 3> m_class;  // command, family, direction
    std::array<bool, 4> m_seenInDocument{};
    std::vector<Frame> m_frames;
    std::vector<char> m_seen;          // of the open records: a mark for each field
    std::array<CKRMString, 2> m_pair;  // key and value of a map's open pair
    JsonError m_error;
};

MessageFromJson Read(std::string_view json, const MessageDescription* description) {
    MessageFromJson result;
    std::string buffer(json);
    if (Reader(buffer, description).ReadsTheClassOnly(result)) {
        const MessageDescription* const found = result.description;
        buffer = json;
        Reader(buffer, found).ReadsTheClassOnly(result);
    }
    return result;
}

}  // namespace

MessageFromJson FromJson(std::string_view json) {
    return Read(json, nullptr);
}

MessageFromJson FromJson(std::string_view json, const MessageDescription& description) {
    return Read(json, &description);
}

}  // namespace krm

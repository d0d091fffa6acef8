// Messages from JSON. Whether a document is one is checked against another library's view of it and the descriptions of the
// classes; what is read must be what that library sees, and must write a document that reads back the same.
#include <algorithm>
#include <bit>
#include <cfloat>
#include <cmath>
#include <cstdlib>
#include <nlohmann/json.hpp>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "fuzz/support/input.h"
#include "krm/exchange/compare.h"
#include "krm/exchange/json.h"
#include "krm/fields/message_descriptions.h"
#include "krm/messages/describe.h"

namespace {

using Json = nlohmann::json;
using krm::TypeDescription;
using krm::ValueKind;

/// A document as the other library sees it.
struct View {
    Json document;            // discarded where it is no JSON
    bool anyTwice = false;    // an object has a member twice, of which the document has the last
    bool anyTooDeep = false;  // deeper than is read
};

View ViewOf(std::string_view text) {
    View view;
    std::vector<std::set<std::string>> open;
    int depth = 0;
    const auto watch = [&](int, Json::parse_event_t event, Json& value) {
        switch (event) {
            case Json::parse_event_t::object_start:
                open.emplace_back();
                [[fallthrough]];
            case Json::parse_event_t::array_start:
                view.anyTooDeep = view.anyTooDeep || ++depth > krm::kMaxJsonDepth;
                break;
            case Json::parse_event_t::key:
                view.anyTwice = !open.back().insert(value.get<std::string>()).second || view.anyTwice;
                break;
            case Json::parse_event_t::object_end:
                open.pop_back();
                [[fallthrough]];
            case Json::parse_event_t::array_end:
                --depth;
                break;
            case Json::parse_event_t::value:
                break;
        }
        return true;
    };
    view.document = Json::parse(text, watch, false);
    return view;
}

/// The bytes of a text; nothing for what is none.
std::optional<std::string> TextOf(const Json& json) {
    std::string text;
    if (json.is_string()) {
        text = json.get<std::string>();
    } else {
        if (!json.is_object() || json.size() != 1 || !json.contains("$bytes") || !json["$bytes"].is_string()) {
            return std::nullopt;
        }
        const auto digits = json["$bytes"].get<std::string>();
        if (digits.size() % 2 != 0 || digits.find_first_not_of("0123456789ABCDEFabcdef") != std::string::npos) {
            return std::nullopt;
        }
        for (std::size_t i = 0; i < digits.size(); i += 2) {
            text += static_cast<char>(std::stoi(digits.substr(i, 2), nullptr, 16));
        }
    }
    return text.find('\0') == std::string::npos ? std::optional(text) : std::nullopt;
}

/// The bits of a double; nothing for what is none. `isCertain` becomes false where the other library's number doesn't tell.
std::optional<std::uint64_t> DoubleOf(const Json& json, bool& isCertain) {
    if (json.is_number()) {
        const double number = json.get<double>();
        // What is too small for a double is 0 to the other library, and an error here; and it may have lost digits.
        isCertain = isCertain && (json.is_number_integer() || std::abs(number) >= DBL_MIN);
        return std::bit_cast<std::uint64_t>(number);
    }
    if (!json.is_string()) {
        return std::nullopt;
    }
    const auto text = json.get<std::string>();
    if (text == "NaN") {
        return 0x7FF8000000000000U;
    }
    if (text == "Infinity" || text == "-Infinity") {
        return std::bit_cast<std::uint64_t>(text.front() == '-' ? -HUGE_VAL : HUGE_VAL);
    }
    if (text.size() != 21 || !text.starts_with("NaN(") || text.back() != ')' ||
        text.find_first_not_of("0123456789ABCDEFabcdef", 4) != 20) {
        return std::nullopt;
    }
    const std::uint64_t bits = std::strtoull(text.substr(4, 16).c_str(), nullptr, 16);
    return std::isnan(std::bit_cast<double>(bits)) ? std::optional(bits) : std::nullopt;
}

bool IsInteger(const Json& json, const TypeDescription& type) {
    const auto bits = static_cast<unsigned>(type.size * 8);
    if (json.is_number_unsigned()) {
        const unsigned digits = type.kind == ValueKind::Signed ? bits - 1 : bits;
        return digits >= 64 || json.get<std::uint64_t>() >> digits == 0;
    }
    return json.is_number_integer() &&
           (type.kind == ValueKind::Signed ? json.get<std::int64_t>() >= -(std::int64_t{1} << (bits - 2)) * 2
                                           : json.get<std::int64_t>() == 0);
}

/// Whether a value of this type can be read from `json`.
bool IsValue(const Json& json, const TypeDescription& type, bool& isCertain) {
    const auto isEach = [&](const auto& isOne) {
        return json.is_array() && std::all_of(json.begin(), json.end(), isOne);
    };
    switch (type.kind) {
        case ValueKind::Bool:
            return json.is_boolean();
        case ValueKind::Signed:
        case ValueKind::Unsigned:
            return IsInteger(json, type);
        case ValueKind::Double:
            return DoubleOf(json, isCertain).has_value();
        case ValueKind::Text:
            return TextOf(json).has_value();
        case ValueKind::Map: {
            std::set<std::string> keys;
            return isEach([&](const Json& pair) {
                return pair.is_array() && pair.size() == 2 && TextOf(pair[0]) && TextOf(pair[1]) &&
                       keys.insert(*TextOf(pair[0])).second;
            });
        }
        case ValueKind::Record:
            if (!json.is_object()) {
                return false;
            }
            for (const auto& member : json.items()) {
                const auto field =
                    std::ranges::find(type.fields, std::string_view(member.key()), &krm::FieldDescription::name);
                if (field == type.fields.end() || !IsValue(member.value(), *field->type, isCertain)) {
                    return false;
                }
            }
            return true;
        case ValueKind::Array:
        case ValueKind::List:
            return (type.kind == ValueKind::List || json.size() == static_cast<std::size_t>(type.length)) &&
                   isEach([&](const Json& element) { return IsValue(element, *type.element, isCertain); });
    }
    return false;
}

/// The class that the document says; null where it says none.
const krm::MessageDescription* ClassOf(const Json& json) {
    for (const krm::MessageDescription& message : krm::AllMessages()) {
        if (json.value("command", Json()) == message.command &&
            json.value("family", Json()) == krm::FamilyWordOf(message.family) &&
            json.value("direction", Json()) == (message.direction == krm::Direction::Send ? "request" : "answer")) {
            return &message;
        }
    }
    return nullptr;
}

/// Whether the document is a message of the class that is `given`, or of the one that it says.
bool IsMessage(const View& view, const krm::MessageDescription* given, bool& isCertain) {
    const Json& json = view.document;
    if (!json.is_object() || view.anyTwice || view.anyTooDeep || !json.contains("content")) {
        return false;
    }
    const krm::MessageDescription* const found = given != nullptr ? given : ClassOf(json);
    if (found == nullptr) {
        return false;
    }
    for (const auto& [name, value] : json.items()) {
        const std::string_view direction = found->direction == krm::Direction::Send ? "request" : "answer";
        const bool is = name == "command"     ? value == found->command
                        : name == "family"    ? value == krm::FamilyWordOf(found->family)
                        : name == "direction" ? value == direction
                        : name == "content"   ? IsValue(value, *found->content, isCertain)
                                              : false;
        if (!is) {
            return false;
        }
    }
    return true;
}

/// Whether `value` holds what `json` says.
bool Holds(krm::ConstValue value, const Json& json) {
    bool isCertain = true;
    bool holds = true;
    switch (value.Kind()) {
        case ValueKind::Bool:
            return (*value.Integer() != 0) == json.get<bool>();
        case ValueKind::Signed:
        case ValueKind::Unsigned:
            return *value.Integer() == json.get<krm_int64>();
        case ValueKind::Double:
            return std::bit_cast<std::uint64_t>(*value.As<double>()) == DoubleOf(json, isCertain) || !isCertain ||
                   json == 0;  // without its sign in a whole number
        case ValueKind::Text:
            return value.As<CKRMString>()->GetText() == TextOf(json);
        case ValueKind::Map: {
            const auto& map = *value.As<CKRMMap<CKRMString, CKRMString>>();
            for (const Json& pair : json) {
                CKRMString text;
                holds = holds && map.Lookup(TextOf(pair[0])->c_str(), text) && text.GetText() == TextOf(pair[1]);
            }
            return holds && static_cast<std::size_t>(map.GetCount()) == json.size();
        }
        case ValueKind::Record:
            value.ForEachField([&](std::string_view name, krm::ConstValue field) {
                const auto member = json.find(std::string(name));
                holds = holds && (member == json.end() || Holds(field, *member));
            });
            return holds;
        case ValueKind::List:
        case ValueKind::Array: {
            std::size_t index = 0;
            value.ForEachElement([&](krm::ConstValue element) {
                holds = holds && index < json.size() && Holds(element, json[index]);
                ++index;
            });
            return holds && index == json.size();
        }
    }
    return false;
}

void CheckRead(const krm::MessageFromJson& read, const View& view) {
    KRM_FUZZ_CHECK(read.description != nullptr && read.error.text.empty());
    const auto content = read.description->ContentOf(*read.message);
    KRM_FUZZ_CHECK(content.has_value());
    KRM_FUZZ_CHECK(Holds(*content, view.document["content"]));

    const std::string written = krm::ToJson(*read.message, *read.description);
    KRM_FUZZ_CHECK(!ViewOf(written).document.is_discarded());
    const krm::MessageFromJson again = krm::FromJson(written);
    KRM_FUZZ_CHECK(again && again.description == read.description);
    KRM_FUZZ_CHECK(krm::ToJson(*again.message, *again.description) == written);
    KRM_FUZZ_CHECK(krm::Compare(*content, *again.description->ContentOf(*again.message)).Equal());
}

void Check(std::string_view text, const View& view, const krm::MessageDescription* given) {
    const krm::MessageFromJson read = given != nullptr ? krm::FromJson(text, *given) : krm::FromJson(text);
    if (read) {
        CheckRead(read, view);
    } else {
        KRM_FUZZ_CHECK(read.description == nullptr && !read.error.text.empty());
        KRM_FUZZ_CHECK(read.error.path.starts_with('$') && read.error.offset <= text.size());
    }
    // The other library takes a NUL for the end, and passes over a byte order mark.
    bool isCertain = true;
    const bool isMessage = text.find('\0') == std::string_view::npos && !text.starts_with("\xEF\xBB\xBF") &&
                           IsMessage(view, given, isCertain);
    KRM_FUZZ_CHECK(static_cast<bool>(read) == isMessage || (!isCertain && isMessage));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(data, data + size);
    const View view = ViewOf(text);
    Check(text, view, nullptr);
    // The class that it says, and one that it may not be.
    const std::span<const krm::MessageDescription> messages = krm::AllMessages();
    Check(text, view, &messages[size % messages.size()]);
    if (const krm::MessageDescription* const said = view.document.is_object() ? ClassOf(view.document) : nullptr) {
        Check(text, view, said);
    }
    return 0;
}

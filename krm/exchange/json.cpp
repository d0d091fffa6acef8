#include "krm/exchange/json.h"

#include <array>
#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "krm/exchange/internal/json_form.h"
#include "krm/exchange/internal/text.h"
#include "krm/platform/string.h"

namespace krm {

namespace {

/// The letter behind the backslash of a short escape; 'u' where there is none; NUL for what stands for itself.
constexpr std::array<char, 256> kEscapes = [] {
    std::array<char, 256> escapes{};
    for (std::size_t c = 0; c < 0x20; ++c) {
        escapes[c] = 'u';
    }
    escapes['\b'] = 'b';
    escapes['\t'] = 't';
    escapes['\n'] = 'n';
    escapes['\f'] = 'f';
    escapes['\r'] = 'r';
    escapes['"'] = '"';
    escapes['\\'] = '\\';
    return escapes;
}();

}  // namespace

void json::WriteString(std::string_view text, std::string& out) {
    out += '"';
    std::size_t written = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        const char escape = kEscapes[byte];
        if (escape == '\0') {
            continue;
        }
        out.append(text, written, i - written);
        written = i + 1;
        out += '\\';
        out += escape;
        if (escape == 'u') {
            out += "00";
            exchange::AppendByte(text[i], out);
        }
    }
    out.append(text, written);
    out += '"';
}

namespace {

void WriteText(const CKRMString& value, std::string& out) {
    const std::string_view text = View(value);
    if (exchange::IsUtf8(text)) {
        json::WriteString(text, out);
        return;
    }
    out += "{\"";
    out += json::kBytes;
    out += "\":\"";
    for (const char byte : text) {
        exchange::AppendByte(byte, out);
    }
    out += "\"}";
}

void WriteDouble(const double& value, std::string& out) {
    if (std::isfinite(value)) {
        exchange::AppendNumber(value, out);
        return;
    }
    out += '"';
    if (std::isinf(value)) {
        out += value > 0 ? json::kInfinity : json::kMinusInfinity;
    } else {
        out += json::kNan;
        // Which NaN it is belongs to its bits; most are this one, the quiet one.
        const auto bits = std::bit_cast<std::uint64_t>(value);
        if (bits != json::kQuietNan) {
            out += '(';
            std::array<char, 16> digits;
            out.append(digits.data(), core::WriteHexadecimal(digits.data(), bits, core::kUpperCase, digits.size()));
            out += ')';
        }
    }
    out += '"';
}

void WriteMap(const exchange::TextMap& map, std::string& out) {
    out += '[';
    const char* separator = "[";
    for (const auto& [key, value] : map) {
        out += separator;
        separator = ",[";
        WriteText(key, out);
        out += ',';
        WriteText(value, out);
        out += ']';
    }
    out += ']';
}

void WriteValue(ConstValue value, std::string& out) {
    char separator = '\0';
    switch (value.Kind()) {
        case ValueKind::Bool:
            out += *value.Integer() != 0 ? "true" : "false";
            return;
        case ValueKind::Signed:
        case ValueKind::Unsigned:
            exchange::AppendNumber(*value.Integer(), out);
            return;
        case ValueKind::Double:
            WriteDouble(*value.As<double>(), out);
            return;
        case ValueKind::Text:
            WriteText(*value.As<CKRMString>(), out);
            return;
        case ValueKind::Map:
            WriteMap(*value.As<exchange::TextMap>(), out);
            return;
        case ValueKind::Record:
            separator = '{';
            value.ForEachField([&](std::string_view name, ConstValue field) {
                out += separator;
                separator = ',';
                out += '"';
                out += name;
                out += "\":";
                WriteValue(field, out);
            });
            out += separator == '{' ? "{}" : "}";
            return;
        case ValueKind::List:
        case ValueKind::Array:
            separator = '[';
            value.ForEachElement([&](ConstValue element) {
                out += separator;
                separator = ',';
                WriteValue(element, out);
            });
            out += separator == '[' ? "[]" : "]";
            return;
    }
}

void WriteMember(std::string_view name, std::string_view text, std::string& out) {
    out += '"';
    out += name;
    out += "\":";
    json::WriteString(text, out);
    out += ',';
}

}  // namespace

bool json::WriteDocument(const CKRMBaseAdaptationData& message, const MessageDescription& description,
                         std::string& out) {
    const std::optional<ConstValue> content = description.ContentOf(message);
    if (!content) {
        return false;
    }
    out += '{';
    WriteMember(json::kCommand, description.command, out);
    WriteMember(json::kFamily, FamilyWordOf(description.family), out);
    WriteMember(json::kDirection, json::NameOf(description.direction), out);
    out += '"';
    out += json::kContent;
    out += "\":";
    WriteValue(*content, out);
    out += '}';
    return true;
}

std::string ToJson(const CKRMBaseAdaptationData& message, const MessageDescription& description) {
    std::string out;
    json::WriteDocument(message, description, out);
    return out;
}

std::string ToJson(const CKRMBaseAdaptationData& message, Direction direction) {
    const MessageDescription* const description =
        FindMessage(message.GetCommandType(), message.GetCommandID(), direction);
    return description != nullptr ? ToJson(message, *description) : std::string();
}

}  // namespace krm

#include "krm/exchange/internal/compare_text.h"

#include <cmath>
#include <cstddef>

#include "krm/exchange/internal/text.h"
#include "krm/platform/string.h"

namespace krm::comparing {
namespace {

using exchange::AppendNumber;
using exchange::TextMap;

/// The length of the character in front of `text`; 0 where it isn't UTF-8, and for control characters and line ends, which
/// would break the line on a terminal.
std::size_t PrintableLength(std::string_view text) {
    const auto lead = static_cast<unsigned char>(text.front());
    if (lead < 0x80) {
        return lead >= 0x20 && lead != 0x7F ? 1 : 0;
    }
    const std::string_view character = text.substr(0, lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4);
    const bool breaksLine = character < "\xC2\xA0" || character == "\xE2\x80\xA8" || character == "\xE2\x80\xA9";
    return exchange::IsUtf8(character) && !breaksLine ? character.size() : 0;
}

constexpr std::string_view kEscaped = "\"\\\n\r\t";
constexpr std::string_view kEscapes = "\"\\nrt";

/// Between brackets, with commas.
class Sequence {
public:
    Sequence(char open, std::string& out) : m_out(&out) { out += open; }
    void Next() {
        *m_out += m_separator;
        m_separator = ", ";
    }
    void Close(char close) { *m_out += close; }

private:
    std::string* m_out;
    const char* m_separator = "";
};

}  // namespace

void AppendQuoted(std::string_view text, std::string& out) {
    out += '"';
    while (!text.empty()) {
        const std::size_t length = PrintableLength(text);
        if (const std::size_t escape = kEscaped.find(text.front()); escape != std::string_view::npos) {
            out += '\\';
            out += kEscapes[escape];
        } else if (length != 0) {
            out += text.substr(0, length);
        } else {
            out += "\\x";
            exchange::AppendByte(text.front(), out);
        }
        text.remove_prefix(length != 0 ? length : 1);
    }
    out += '"';
}

std::string Quoted(std::string_view text) {
    std::string out;
    AppendQuoted(text, out);
    return out;
}

std::optional<std::string> TakeQuoted(std::string_view& quoted) {
    std::string text;
    for (std::size_t i = 1; i < quoted.size() && quoted.front() == '"'; ++i) {
        if (quoted[i] == '"') {
            quoted.remove_prefix(i + 1);
            return text;
        }
        if (quoted[i] != '\\') {
            text += quoted[i];
            continue;
        }
        ++i;
        const std::size_t escape = i < quoted.size() ? kEscapes.find(quoted[i]) : std::string_view::npos;
        if (escape != std::string_view::npos) {
            text += kEscaped[escape];
            continue;
        }
        if (i + 2 >= quoted.size() || quoted[i] != 'x') {
            return std::nullopt;
        }
        constexpr std::string_view kDigits = core::kUpperCase;
        const std::size_t high = kDigits.find(quoted[i + 1]);
        const std::size_t low = kDigits.find(quoted[i + 2]);
        if (high == std::string_view::npos || low == std::string_view::npos) {
            return std::nullopt;
        }
        text += static_cast<char>(static_cast<unsigned char>(high * 16 + low));
        i += 2;
    }
    return std::nullopt;
}

void AppendValue(ConstValue value, const Rules* rules, std::string& out) {
    switch (value.Kind()) {
        case ValueKind::Bool:
            out += *value.Integer() != 0 ? "true" : "false";
            return;
        case ValueKind::Signed:
        case ValueKind::Unsigned:
            AppendNumber(*value.Integer(), out);
            return;
        case ValueKind::Double:
            if (const double number = *value.As<double>(); std::isnan(number)) {
                out += "nan";  // its sign and payload tell nobody anything
            } else {
                AppendNumber(number, out);
            }
            return;
        case ValueKind::Text:
            AppendQuoted(View(*value.As<CKRMString>()), out);
            return;
        case ValueKind::Record: {
            Sequence fields('{', out);
            value.ForEachField([&, index = std::size_t(0)](std::string_view name, ConstValue field) mutable {
                const Rules* const ofField = OfField(rules, index++);
                if (!Ignores(ofField)) {
                    fields.Next();
                    out += name;
                    out += '=';
                    AppendValue(field, ofField, out);
                }
            });
            fields.Close('}');
            return;
        }
        case ValueKind::List:
        case ValueKind::Array: {
            Sequence elements('[', out);
            value.ForEachElement([&, index = 0](ConstValue element) mutable {
                const Rules* const ofElement = OfElement(rules, index++);
                if (!Ignores(ofElement)) {
                    elements.Next();
                    AppendValue(element, ofElement, out);
                }
            });
            elements.Close(']');
            return;
        }
        case ValueKind::Map: {
            Sequence entries('{', out);
            for (const auto& [key, text] : *value.As<TextMap>()) {
                if (!IgnoresEntry(rules, View(key))) {
                    entries.Next();
                    AppendQuoted(View(key), out);
                    out += '=';
                    AppendQuoted(View(text), out);
                }
            }
            entries.Close('}');
            return;
        }
    }
}

std::string NameOfType(const TypeDescription& type) {
    switch (type.kind) {
        case ValueKind::Bool:
            return "bool";
        case ValueKind::Signed:
            return "signed " + std::to_string(type.size * 8) + "-bit integer";
        case ValueKind::Unsigned:
            return "unsigned " + std::to_string(type.size * 8) + "-bit integer";
        case ValueKind::Double:
            return "double";
        case ValueKind::Text:
            return "text";
        case ValueKind::Record:
            return std::string(type.className);
        case ValueKind::List:
            return "list of " + NameOfType(*type.element);
        case ValueKind::Array:
            return "array of " + std::to_string(type.length) + ' ' + NameOfType(*type.element);
        case ValueKind::Map:
            return "map";
    }
    return {};  // GCOVR_EXCL_LINE: every kind has its case
}

}  // namespace krm::comparing

#include "krm/exchange/schema.h"

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <utility>
#include <vector>

#include "krm/exchange/internal/json_form.h"
#include "krm/messages/describe.h"

namespace krm {

namespace {

/// A reference to a definition. The colons of a program's namespace mean nothing in it.
void WriteReference(std::string_view name, std::string& out) {
    out += R"({"$ref":"#/$defs/)";
    out += name;
    out += "\"}";
}

class SchemaWriter {
public:
    std::string Write(std::span<const MessageDescription> messages) {
        m_out = R"({"$schema":"https://json-schema.org/draft/2020-12/schema","title":"krm::ToJson","oneOf":[)";
        const char* separator = "\n";
        for (const MessageDescription& message : messages) {
            m_out += separator;
            separator = ",\n";
            WriteDocument(message);
        }
        m_out += "\n],\"$defs\":{\n";
        m_out +=
            R"("text":{"anyOf":[{"type":"string","pattern":"^[^\\u0000]*$"},)"
            R"({"type":"object","properties":{"$bytes":{"type":"string","pattern":"^(0[1-9A-Fa-f]|[1-9A-Fa-f][0-9A-Fa-f])*$"}},)"
            R"("required":["$bytes"],"additionalProperties":false}]},)"
            "\n"
            R"("double":{"anyOf":[{"type":"number"},{"enum":["NaN","Infinity","-Infinity"]},)"
            R"({"type":"string","pattern":"^NaN\\([7Ff][Ff][0-9A-Fa-f]{14}\\)$"}]},)"
            "\n"
            R"("map":{"type":"array","items":{"type":"array","prefixItems":[{"$ref":"#/$defs/text"},)"
            R"({"$ref":"#/$defs/text"}],"items":false,"minItems":2}})";
        // Their fields add the records that they hold.
        for (std::size_t i = 0; i < m_records.size(); ++i) {
            m_out += ",\n";
            WriteRecord(*m_records[i]);
        }
        m_out += "\n}}\n";
        return std::move(m_out);
    }

private:
    void WriteDocument(const MessageDescription& message) {
        m_out += R"({"title":")";
        m_out += message.className;
        m_out += R"(","type":"object","properties":{)";
        WriteConstant(json::kCommand, message.command);
        WriteConstant(json::kFamily, FamilyWordOf(message.family));
        WriteConstant(json::kDirection, json::NameOf(message.direction));
        WriteName(json::kContent);
        WriteType(*message.content);
        m_out += R"(},"required":["command","family","direction","content"],"additionalProperties":false})";
    }

    void WriteRecord(const TypeDescription& record) {
        WriteName(record.className);
        m_out += R"({"type":"object","properties":{)";
        for (const FieldDescription& field : record.fields) {
            if (&field != record.fields.data()) {
                m_out += ',';
            }
            WriteName(field.name);
            WriteType(*field.type);
        }
        m_out += R"(},"additionalProperties":false})";
    }

    void WriteType(const TypeDescription& type) {
        switch (type.kind) {
            case ValueKind::Bool:
                m_out += R"({"type":"boolean"})";
                return;
            case ValueKind::Signed:
            case ValueKind::Unsigned: {
                const json::Range range = json::RangeOf(type);
                m_out += R"({"type":"integer","minimum":)" + std::to_string(range.lowest) + R"(,"maximum":)" +
                         std::to_string(range.highest) + '}';
                return;
            }
            case ValueKind::Double:
                WriteReference("double", m_out);
                return;
            case ValueKind::Text:
                WriteReference("text", m_out);
                return;
            case ValueKind::Map:
                WriteReference("map", m_out);
                return;
            case ValueKind::Record:
                if (std::none_of(m_records.begin(), m_records.end(),
                                 [&](const TypeDescription* record) { return record->className == type.className; })) {
                    m_records.push_back(&type);
                }
                WriteReference(type.className, m_out);
                return;
            case ValueKind::List:
            case ValueKind::Array:
                m_out += R"({"type":"array","items":)";
                WriteType(*type.element);
                if (type.kind == ValueKind::Array) {
                    const std::string length = std::to_string(type.length);
                    m_out += R"(,"minItems":)" + length + R"(,"maxItems":)" + length;
                }
                m_out += '}';
                return;
        }
    }

    void WriteName(std::string_view name) {
        json::WriteString(name, m_out);
        m_out += ':';
    }
    void WriteConstant(std::string_view name, std::string_view value) {
        WriteName(name);
        m_out += R"({"const":)";
        json::WriteString(value, m_out);
        m_out += "},";
    }

    std::string m_out;
    std::vector<const TypeDescription*> m_records;  // each class once, in the order of its first use
};

}  // namespace

std::string Schema(std::span<const MessageDescription> messages) {
    return SchemaWriter().Write(messages);
}

}  // namespace krm

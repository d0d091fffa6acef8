#include "cli/recording_input.h"

#include <optional>
#include <utility>

#include "cli/patterns.h"
#include "krm/framework/log_sinks.h"
#include "krm/messages/describe.h"

namespace krm_cli {
namespace {

/// The reader's word for a program's own message, which is as it should be and yet can't be read here.
constexpr std::string_view kNoSuchMessage = "there is no message with this command, family and direction";

}  // namespace

RecordingInput::RecordingInput(ByteSource& source)
    : m_buffer(source), m_stream(&m_buffer), m_name(source.Name()), m_reader(m_stream) {
    // What reading throws, as when the user interrupts, goes through the stream.
    m_stream.exceptions(std::ios::badbit);
}

void RecordingInput::AddField(std::string value) {
    m_fields.push_back({m_path, std::move(value)});
}

void RecordingInput::Flatten(krm::ConstValue value) {
    const std::size_t length = m_path.size();
    switch (value.Kind()) {
        case krm::ValueKind::Record:
            value.ForEachField([&](std::string_view name, krm::ConstValue field) {
                m_path += m_path.empty() ? "" : ".";
                m_path += name;
                Flatten(field);
                m_path.resize(length);
            });
            break;
        case krm::ValueKind::List:
        case krm::ValueKind::Array: {
            std::size_t index = 0;
            value.ForEachElement([&](krm::ConstValue element) {
                m_path += '[';
                m_path += std::to_string(index++);
                m_path += ']';
                Flatten(element);
                m_path.resize(length);
            });
            break;
        }
        default:
            if (const auto* const text = value.As<CKRMString>()) {
                AddField(std::string(text->GetText(), text->GetLength()));
            } else if (const auto* const number = value.As<double>()) {
                AddField(TextOf(*number));
            } else if (const auto* const map = value.As<CKRMMap<CKRMString, CKRMString>>()) {
                for (const auto& [key, entry] : *map) {
                    m_path += "[\"";
                    m_path.append(key.GetText(), key.GetLength());
                    m_path += "\"]";
                    AddField(std::string(entry.GetText(), entry.GetLength()));
                    m_path.resize(length);
                }
            } else if (const std::optional<krm_int64> integer = value.Integer()) {
                AddField(std::to_string(*integer));
            }
    }
}

void RecordingInput::Begin() {
    const krm::MessageDescription& description = *m_recorded.description;
    const std::uint64_t number = m_head.number + 1;
    m_head = MessageHead();
    m_head.number = number;
    m_head.firstLine = m_recorded.line;
    m_head.className = description.className;
    m_head.command = description.command;
    m_head.family = krm::FamilyWordOf(description.family);
    m_head.direction = description.direction;
    m_head.type = description.type;
    m_head.id = description.id;
    m_head.time = krm::TimeStamp(m_recorded.time);
    m_head.exchange = m_recorded.exchange;
    m_head.description = &description;
    m_fields.clear();
    m_next = 0;
    m_path = "m_dwCommandType";
    AddField(std::to_string(description.type));
    m_path = "m_dwCommandID";
    AddField(std::to_string(description.id));
    m_path.clear();
    const std::optional<krm::ConstValue> content =
        description.ContentOf(static_cast<const CKRMBaseAdaptationData&>(*m_recorded.message));
    if (content) {
        content->ForEachField([&](std::string_view name, krm::ConstValue field) {
            if (name == "m_ulEcuId" && description.direction == krm::Direction::Send) {
                m_head.ecu = static_cast<krm_ulong>(field.Integer().value_or(0));
            }
        });
        Flatten(*content);
    }
}

Event RecordingInput::Next() {
    if (m_isOpen) {
        if (m_next < m_fields.size()) {
            const Flat& field = m_fields[m_next++];
            m_field = {field.path, field.value, m_recorded.line, 0};
            ++m_head.fields;
            return Event::Field;
        }
        m_isOpen = false;
        m_ecus.Complete(m_head);
        return Event::End;
    }
    std::optional<krm::RecordedMessage> recorded = m_reader.Next();
    if (!recorded) {
        return Event::Finished;
    }
    m_recorded = std::move(*recorded);
    m_totals.lastLineHasNoEnd = m_recorded.fault.torn;
    if (m_recorded) {
        m_totals.lines = m_recorded.line;
        ++m_totals.messages;
        Begin();
        m_isOpen = true;
        return Event::Begin;
    }
    const krm::RecordingFault& fault = m_recorded.fault;
    if (fault.line == 0) {
        throw Failure(m_name + ": " + fault.text);
    }
    m_totals.lines = fault.line;
    if (fault.text == kNoSuchMessage) {
        ++m_totals.otherLines;
        m_other = {fault.line, "a message of a class that the library doesn't have", 0, false};
        return Event::Other;
    }
    ++m_totals.faults;
    m_faultText = (fault.path.empty() ? std::string() : fault.path + ": ") + fault.text;
    m_other = {fault.line, m_faultText, 0, true};
    return Event::Other;
}

}  // namespace krm_cli

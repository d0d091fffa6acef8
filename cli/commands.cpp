// krm commands: what commands, classes, fields and lines of the log mean.
#include <charconv>
#include <cstdint>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "cli/catalogue.h"
#include "cli/input.h"
#include "cli/log_form.h"
#include "cli/log_line.h"
#include "cli/patterns.h"
#include "cli/subcommands.h"
#include "cli/text_out.h"
#include "krm/fields/message_descriptions.h"
#include "krm/framework/commands.h"
#include "krm/messages/describe.h"

namespace krm_cli {
namespace {

/// A type for people: "number of 32 bits, 0 or more".
std::string TypeText(const krm::TypeDescription& type) {
    const std::string bits = std::to_string(type.size * 8);
    switch (type.kind) {
        case krm::ValueKind::Bool:
            return "yes or no";
        case krm::ValueKind::Signed:
            return "signed number of " + bits + " bits";
        case krm::ValueKind::Unsigned:
            return "number of " + bits + " bits";
        case krm::ValueKind::Double:
            return "double";
        case krm::ValueKind::Text:
            return "text";
        case krm::ValueKind::Map:
            return "texts by text";
        case krm::ValueKind::Record:
            return std::string(type.className);
        case krm::ValueKind::List:
            return "list of " + TypeText(*type.element);
        case krm::ValueKind::Array:
            return "array of " + std::to_string(type.length) + ", each a " + TypeText(*type.element);
    }
    return {};
}

/// Calls `take(class name, its description)` for every message's and record's class, each once.
template <class Take>
void ForEachClass(Take take) {
    std::set<std::string_view> done;
    const auto visit = [&](const auto& self, const krm::TypeDescription& type) -> void {
        if (type.element != nullptr) {
            self(self, *type.element);
        }
        if (type.kind == krm::ValueKind::Record && done.insert(type.className).second) {
            take(type.className, type);
            for (const krm::FieldDescription& field : type.fields) {
                self(self, *field.type);
            }
        }
    };
    for (const krm::MessageDescription& message : krm::AllMessages()) {
        visit(visit, *message.content);
    }
}

class Explanation {
public:
    explicit Explanation(const Surroundings& surroundings) : m_out(surroundings) {}

    void AllCommands();
    bool Query(const std::string& query);
    void Flush() { m_out.Flush(); }

private:
    void Headline(const krm::Command& command);
    void Command(const krm::Command& command);
    void Message(const krm::MessageDescription& message);
    void Fields(std::string_view className, const krm::TypeDescription& type);
    void Field(std::string_view className, const krm::FieldDescription& field);
    std::string CommentOf(std::string_view className) const;
    bool LogLineOf(const std::string& text);
    bool CommandOf(const std::string& query);
    bool ClassOf(const std::string& query);
    bool FieldOf(const std::string& query);

    TextOut m_out;
    const Catalogue& m_catalogue = Catalogue::Get();
};

std::string Explanation::CommentOf(std::string_view className) const {
    const CatalogueClass* const known = m_catalogue.Find(className);
    return known == nullptr ? std::string() : known->comment;
}

void Explanation::Headline(const krm::Command& command) {
    const std::string number =
        std::to_string(static_cast<krm_ulong>(command.family)) + '/' + std::to_string(command.id);
    constexpr std::size_t kWidth = 6;
    m_out << number << std::string(number.size() < kWidth ? kWidth - number.size() : 0, ' ') << "  ";
    m_out.Coloured(colour::kBold, command.name) << " (" << krm::FamilyWordOf(command.family) << ")\n";
}

void Explanation::AllCommands() {
    for (const krm::Command& command : krm::kCommands) {
        Headline(command);
    }
}

void Explanation::Field(std::string_view className, const krm::FieldDescription& field) {
    m_out << "    ";
    m_out.Coloured(colour::kBold, field.name) << ": " << TypeText(*field.type);
    const CatalogueField* const known = m_catalogue.FindField(className, field.name);
    if (known != nullptr && !known->meaning.empty()) {
        m_out << "; " << known->meaning;
    }
    m_out << '\n';
}

void Explanation::Fields(std::string_view className, const krm::TypeDescription& type) {
    for (const krm::FieldDescription& field : type.fields) {
        Field(className, field);
    }
}

void Explanation::Message(const krm::MessageDescription& message) {
    m_out << "  " << (message.direction == krm::Direction::Send ? "request " : "answer ");
    m_out.Coloured(colour::kBold, message.className) << '\n';
    const std::string comment = CommentOf(message.className);
    if (!comment.empty()) {
        m_out << "    " << comment << '\n';
    }
    Fields(message.className, *message.content);
}

void Explanation::Command(const krm::Command& command) {
    Headline(command);
    for (const krm::MessageDescription& message : krm::AllMessages()) {
        if (message.family == command.family && message.id == command.id) {
            Message(message);
        }
    }
}

/// A number "2", "1/2", or a name with `*`.
bool Explanation::CommandOf(const std::string& query) {
    const std::size_t slash = query.find('/');
    const std::string_view digits = std::string_view(query).substr(slash == std::string::npos ? 0 : slash + 1);
    const std::optional<double> id = NumberIn(digits);
    const std::optional<double> type =
        slash == std::string::npos ? std::nullopt : NumberIn(std::string_view(query).substr(0, slash));
    bool isFound = false;
    for (const krm::Command& command : krm::kCommands) {
        const bool isNumber = id && *id == static_cast<double>(command.id) &&
                              (slash == std::string::npos ||
                               (type && *type == static_cast<double>(static_cast<krm_ulong>(command.family))));
        if (isNumber || Matches(query, command.name)) {
            Command(command);
            isFound = true;
        }
    }
    return isFound;
}

bool Explanation::ClassOf(const std::string& query) {
    bool isFound = false;
    ForEachClass([&](std::string_view className, const krm::TypeDescription& type) {
        if (!Matches(query, className)) {
            return;
        }
        isFound = true;
        if (const krm::MessageDescription* const message = FindMessage(className)) {
            m_out << message->command << ", type " << message->type << ", ID " << message->id << '\n';
            Message(*message);
            return;
        }
        m_out.Coloured(colour::kBold, className) << '\n';
        const std::string comment = CommentOf(className);
        if (!comment.empty()) {
            m_out << "    " << comment << '\n';
        }
        Fields(className, type);
    });
    return isFound;
}

bool Explanation::FieldOf(const std::string& query) {
    bool isFound = false;
    ForEachClass([&](std::string_view className, const krm::TypeDescription& type) {
        bool isFirst = true;
        for (const krm::FieldDescription& field : type.fields) {
            if (!Matches(query, field.name)) {
                continue;
            }
            if (isFirst) {
                m_out << "in " << className << '\n';
            }
            Field(className, field);
            isFirst = false;
            isFound = true;
        }
    });
    return isFound;
}

/// A line as it stands in a log: what the message is, and each name of its path.
bool Explanation::LogLineOf(const std::string& text) {
    LogLineParser parser;
    LogLine line;
    if (!parser.Parse(text, line)) {
        return false;
    }
    const CatalogueClass* const known = m_catalogue.Find(line.className);
    const krm::MessageDescription* const message = FindMessage(line.className);
    m_out.Coloured(colour::kBold, line.className);
    if (message != nullptr) {
        m_out << ": " << message->command << (message->direction == krm::Direction::Send ? " request" : " answer")
              << ", type " << message->type << ", ID " << message->id;
    }
    m_out << '\n';
    if (known != nullptr && !known->comment.empty()) {
        m_out << "    " << known->comment << '\n';
    }
    if (line.path == "m_dwCommandType" || line.path == "m_dwCommandID") {
        m_out << "    " << line.path
              << (line.path == "m_dwCommandType" ? ": number of the command's family; a message begins here\n"
                                                 : ": number of the command within its family\n");
        return true;
    }
    if (message == nullptr) {
        const CatalogueField* const field = m_catalogue.FindField(line.className, line.path);
        if (field == nullptr) {
            m_out << "    no class of the library\n";
        } else {
            m_out << "    " << Shown(line.path) << ": " << field->meaning << '\n';
        }
        return true;
    }
    const PathShape shape = ShapeOf(line.path);
    const LogForm::Place* const place = LogForm::Of(*message).Find(shape.path);
    std::string_view rest = place != nullptr ? std::string_view(place->field) : std::string_view(shape.path);
    const krm::TypeDescription* type = message->content;
    while (!rest.empty() && type != nullptr && type->kind == krm::ValueKind::Record) {
        const std::size_t end = std::min(rest.find('.'), rest.size());
        const std::string_view step = rest.substr(0, end);
        const std::string_view name = step.substr(0, step.find('['));
        const krm::FieldDescription* found = nullptr;
        for (const krm::FieldDescription& field : type->fields) {
            found = field.name == name ? &field : found;
        }
        if (found == nullptr) {
            m_out << "    " << Shown(step) << ": no field of " << type->className << '\n';
            return true;
        }
        Field(type->className, *found);
        type = found->type;
        while (type->element != nullptr) {
            type = type->element;
        }
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return true;
}

bool Explanation::Query(const std::string& query) {
    return LogLineOf(query) || CommandOf(query) || ClassOf(query) || FieldOf(query);
}

}  // namespace

int RunCommands(const CommandsOptions& options, const Surroundings& surroundings) {
    Explanation explanation(surroundings);
    if (options.query.empty()) {
        explanation.AllCommands();
    } else if (!explanation.Query(options.query)) {
        throw Failure("no command, class, field or line of the log: " + Shown(options.query));
    }
    explanation.Flush();
    return kDone;
}

}  // namespace krm_cli

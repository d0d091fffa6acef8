// krm show: an exchange as an outline.
#include <chrono>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "cli/byte_source.h"
#include "cli/field_store.h"
#include "cli/filter.h"
#include "cli/input.h"
#include "cli/outline.h"
#include "cli/patterns.h"
#include "cli/reading_progress.h"
#include "cli/subcommands.h"
#include "cli/text_out.h"

namespace krm_cli {
namespace {

std::string_view DirectionOf(const MessageHead& head) {
    return !head.direction ? "" : head.direction == krm::Direction::Send ? "request" : "answer";
}

/// A path's names with their indices: "Data[0]", "m_strDTC".
std::vector<std::string_view> StepsOf(std::string_view path) {
    std::vector<std::string_view> steps;
    // A point within a map's key is none between names.
    bool isQuoted = false;
    std::size_t begin = 0;
    for (std::size_t i = 0; i < path.size(); ++i) {
        isQuoted = path[i] == '"' ? !isQuoted : isQuoted;
        if (path[i] == '.' && !isQuoted) {
            steps.push_back(path.substr(begin, i - begin));
            begin = i + 1;
        }
    }
    steps.push_back(path.substr(begin));
    return steps;
}

class Show {
public:
    Show(const ShowOptions& options, const Surroundings& surroundings)
        : m_options(options), m_surroundings(surroundings), m_out(surroundings), m_filter(options.filter) {}

    int Run();

private:
    bool IsWanted(const MessageHead& head) const { return m_options.message == 0 || head.number == m_options.message; }
    void WriteMessage(const MessageHead& head);
    void WriteHeadline(const MessageHead& head);
    void WriteFirstLevel();
    void WriteTree();
    void WriteJson(const MessageHead& head);
    void WriteOther(const Input& input);
    void WriteTotals(const Input& input);
    int Finish(const Input& input);

    const ShowOptions& m_options;
    const Surroundings& m_surroundings;
    TextOut m_out;
    Filter m_filter;
    Outline m_outline;
    FieldStore m_fields;
    std::string m_name;
    std::uint64_t m_shown = 0;
};

int Show::Run() {
    ByteSource source(m_options.file, m_surroundings);
    m_name = source.Name();
    const std::unique_ptr<Input> input = OpenInput(source);
    ReadingProgress progress(source, *input, m_surroundings, "reading");
    m_out.BeforeWriting([&] { progress.Hide(); });
    bool isWanted = false;
    for (;;) {
        switch (input->Next()) {
            case Event::Begin:
                isWanted = IsWanted(input->Head());
                m_outline.Begin();
                m_filter.Begin();
                m_fields.Clear();
                break;
            case Event::Field:
                if (!isWanted) {
                    input->PassOver({}, {});
                    break;
                }
                m_outline.Take(input->Field());
                m_filter.Take(input->Field());
                if (m_options.isFull) {
                    m_fields.Add(input->Field());
                } else if (m_filter.IsSettled() && !m_outline.Element().empty()) {
                    input->PassOver(m_outline.Element(), Outline::kCodeName);
                }
                break;
            case Event::End:
                if (isWanted && m_filter.End(input->Head())) {
                    ++m_shown;
                    WriteMessage(input->Head());
                }
                if (m_options.message != 0 && input->Head().number == m_options.message) {
                    m_out.Flush();
                    return input->Totals().faults == 0 ? kDone : kBadParts;
                }
                break;
            case Event::Other:
                WriteOther(*input);
                break;
            case Event::Finished:
                return Finish(*input);
        }
        m_out.FlushIfMuch();
    }
}

int Show::Finish(const Input& input) {
    const InputTotals& totals = input.Totals();
    if (totals.messages == 0 && totals.otherLines != 0 && !input.IsRecording()) {
        m_out.Flush();
        throw Failure(m_name + ":1: neither an operation log nor a recording: none of its " +
                      std::to_string(totals.lines) + " lines is one of a message");
    }
    WriteTotals(input);
    m_out.Flush();
    if (m_options.message > totals.messages) {
        throw Failure(m_name + ": there is no message " + std::to_string(m_options.message) + "; it has " +
                      std::to_string(totals.messages));
    }
    return totals.faults == 0 ? kDone : kBadParts;
}

void Show::WriteMessage(const MessageHead& head) {
    if (m_options.isJson) {
        WriteJson(head);
        return;
    }
    WriteHeadline(head);
    if (m_options.isFull) {
        WriteTree();
    } else if (m_options.message != 0) {
        WriteFirstLevel();
    }
}

void Show::WriteHeadline(const MessageHead& head) {
    constexpr std::size_t kNumberWidth = 5;
    const std::string number = std::to_string(head.number);
    m_out << std::string(number.size() < kNumberWidth ? kNumberWidth - number.size() : 0, ' ');
    m_out.Coloured(colour::kDim, number) << "  ";
    if (!head.time.empty()) {
        m_out.Coloured(colour::kDim, Shown(head.time)) << "  ";
    }
    m_out.Coloured(colour::kBold, Shown(head.command));
    if (head.direction) {
        m_out << ' ';
        m_out.Coloured(head.direction == krm::Direction::Send ? colour::kCyan : colour::kGreen, DirectionOf(head));
    }
    if (head.ecu) {
        m_out << ", ECU " << *head.ecu;
    }
    const std::string& standingOut = m_outline.StandingOut();
    if (!standingOut.empty()) {
        m_out << ": ";
        m_out.Coloured(m_outline.CodeCount() != 0 ? colour::kYellow : std::string_view(), standingOut);
    }
    if (head.beginIsMissing) {
        m_out.Coloured(colour::kRed, " (its begin is missing)");
    }
    m_out << '\n';
}

void Show::WriteFirstLevel() {
    for (const Outline::Entry& entry : m_outline.Entries()) {
        m_out << "       " << Shown(entry.name);
        switch (entry.kind) {
            case Outline::Kind::List:
                m_out << '[' << entry.count << ']';
                break;
            case Outline::Kind::Record:
                m_out << " ...";
                break;
            case Outline::Kind::Value:
                m_out << " = " << Shown(entry.value) << (entry.isCut ? "..." : "");
                break;
        }
        m_out << '\n';
    }
    if (m_outline.MoreEntries() != 0) {
        m_out << "       and " << m_outline.MoreEntries() << " more\n";
    }
}

void Show::WriteTree() {
    constexpr std::size_t kIndent = 7;
    std::string before;
    m_fields.ForEach([&](const FieldText& field) {
        if (field.path == "m_dwCommandType" || field.path == "m_dwCommandID") {
            return;
        }
        const std::vector<std::string_view> steps = StepsOf(field.path);
        const std::vector<std::string_view> stepsBefore = StepsOf(before);
        std::size_t depth = 0;
        while (depth + 1 < steps.size() && depth + 1 < stepsBefore.size() && steps[depth] == stepsBefore[depth]) {
            ++depth;
        }
        for (; depth + 1 < steps.size(); ++depth) {
            m_out << std::string(kIndent + 2 * depth, ' ');
            m_out.Coloured(colour::kBold, Shown(steps[depth])) << '\n';
        }
        m_out << std::string(kIndent + 2 * depth, ' ') << Shown(steps.back()) << " = " << Shown(field.value);
        if (field.cutBytes != 0) {
            m_out.Coloured(colour::kRed, " [" + std::to_string(field.cutBytes) + " bytes more]");
        }
        m_out << '\n';
        m_out.FlushIfMuch();
        before = field.path;
    });
}

void Show::WriteJson(const MessageHead& head) {
    m_out << "{\"message\":" << head.number << ",\"line\":" << head.firstLine << ",\"command\":";
    m_out.Json(head.command);
    if (!head.family.empty()) {
        m_out << ",\"family\":";
        m_out.Json(head.family);
    }
    if (head.direction) {
        m_out << ",\"direction\":";
        m_out.Json(DirectionOf(head));
    }
    m_out << ",\"type\":" << head.type << ",\"id\":" << head.id;
    if (head.ecu) {
        m_out << ",\"ecu\":" << *head.ecu;
    }
    if (!head.time.empty()) {
        m_out << ",\"time\":";
        m_out.Json(head.time);
    }
    if (!head.source.empty()) {
        m_out << ",\"source\":";
        m_out.Json(head.source);
    }
    if (head.exchange) {
        m_out << ",\"exchange\":" << *head.exchange;
    }
    if (head.beginIsMissing) {
        m_out << ",\"beginIsMissing\":true";
    }
    m_out << ",\"codes\":[";
    for (const std::string& code : m_outline.Codes()) {
        m_out << (&code == &m_outline.Codes().front() ? "" : ",");
        m_out.Json(code);
    }
    m_out << "],\"codeCount\":" << m_outline.CodeCount();
    if (m_options.isFull) {
        m_out << ",\"fields\":[";
        bool isFirst = true;
        m_fields.ForEach([&](const FieldText& field) {
            m_out << (isFirst ? "{\"path\":" : ",{\"path\":");
            m_out.Json(field.path) << ",\"value\":";
            m_out.Json(field.value);
            if (field.cutBytes != 0) {
                m_out << ",\"cutBytes\":" << field.cutBytes;
            }
            m_out << '}';
            m_out.FlushIfMuch();
            isFirst = false;
        });
        m_out << ']';
    } else {
        m_out << ",\"outline\":[";
        bool isFirst = true;
        for (const Outline::Entry& entry : m_outline.Entries()) {
            m_out << (isFirst ? "{\"name\":" : ",{\"name\":");
            m_out.Json(entry.name);
            if (entry.kind == Outline::Kind::List) {
                m_out << ",\"count\":" << entry.count;
            } else if (entry.kind == Outline::Kind::Value) {
                m_out << ",\"value\":";
                m_out.Json(entry.value);
                m_out << (entry.isCut ? ",\"isCut\":true" : "");
            }
            m_out << '}';
            isFirst = false;
        }
        m_out << ']';
    }
    m_out << "}\n";
}

void Show::WriteOther(const Input& input) {
    const OtherLine& other = input.Other();
    if (other.isFault) {
        // In the order of the lines: what was found before stands in front of it.
        m_out.Flush();
        m_surroundings.err << Shown(m_name) << ':' << other.line << ": " << Shown(other.text) << '\n';
        return;
    }
    if (!m_options.filter.empty() || m_options.message != 0) {
        return;  // counted
    }
    if (m_options.isJson) {
        m_out << "{\"line\":" << other.line << ",\"text\":";
        m_out.Json(other.text);
        if (other.cutBytes != 0) {
            m_out << ",\"cutBytes\":" << other.cutBytes;
        }
        m_out << "}\n";
        return;
    }
    std::string text = "line " + std::to_string(other.line) + ": " + Shown(other.text);
    if (other.cutBytes != 0) {
        text += " [" + std::to_string(other.cutBytes) + " bytes more]";
    }
    m_out << "       ";
    m_out.Coloured(colour::kDim, text) << '\n';
}

void Show::WriteTotals(const Input& input) {
    const InputTotals& totals = input.Totals();
    if (m_options.message != 0) {
        return;
    }
    if (m_options.isJson) {
        m_out << "{\"totals\":{\"messages\":" << totals.messages << ",\"shown\":" << m_shown
              << ",\"lines\":" << totals.lines << ",\"otherLines\":" << totals.otherLines
              << ",\"cutLines\":" << totals.cutLines << ",\"faults\":" << totals.faults << "}}\n";
        return;
    }
    const auto counted = [](std::uint64_t count, const std::string& one, const std::string& more) {
        return std::to_string(count) + ' ' + (count == 1 ? one : more);
    };
    std::string text =
        counted(totals.messages, "message", "messages") + " in " + counted(totals.lines, "line", "lines");
    if (!m_options.filter.empty()) {
        text += ", " + std::to_string(m_shown) + " shown";
    }
    if (totals.otherLines != 0) {
        text += "; " + counted(totals.otherLines, "line belongs", "lines belong") + " to no message";
    }
    if (totals.cutLines != 0) {
        text += "; " + counted(totals.cutLines, "line is", "lines are") + " too long and cut";
    }
    if (totals.faults != 0) {
        text += "; " + counted(totals.faults, "line", "lines") + " can't be read";
    }
    if (totals.lastLineHasNoEnd) {
        text += "; the last line has no end";
    }
    m_out.Coloured(colour::kDim, text) << '\n';
}

}  // namespace

int RunShow(const ShowOptions& options, const Surroundings& surroundings) {
    return Show(options, surroundings).Run();
}

}  // namespace krm_cli

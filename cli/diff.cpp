// krm diff: what differs between two exchanges.
#include <charconv>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "cli/align.h"
#include "cli/byte_source.h"
#include "cli/input.h"
#include "cli/log_form.h"
#include "cli/patterns.h"
#include "cli/reading_progress.h"
#include "cli/subcommands.h"
#include "cli/text_out.h"
#include "krm/exchange/compare.h"

namespace krm_cli {
namespace {

/// Options that no message's class has are mistakes.
void Check(const krm::CompareOptions& options, const std::string& what) {
    std::string error;
    for (const krm::MessageDescription& message : krm::AllMessages()) {
        const krm::Comparer comparer(*message.content, options);
        if (comparer.Error().empty()) {
            return;
        }
        error = comparer.Error();
    }
    throw Failure(what + ": no message has this: " + error);
}

/// A number as it is written in every locale.
double ToleranceIn(const std::string& text) {
    double number = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc() || stop != end || !(number >= 0)) {
        throw Failure("--tolerance is no number of 0 or more: " + Shown(text));
    }
    return number;
}

krm::CompareOptions CompareOptionsOf(const DiffOptions& options) {
    krm::CompareOptions compare;
    compare.ignore = options.ignore;
    compare.forOtherClassesToo = true;
    compare.tolerance.absolute = options.tolerance.empty() ? 0 : ToleranceIn(options.tolerance);
    for (const std::string& pattern : options.ignore) {
        krm::CompareOptions one;
        one.ignore = {pattern};
        Check(one, "--ignore " + Shown(pattern));
    }
    for (const std::string& text : options.keys) {
        const std::size_t equals = text.find('=');
        if (equals == std::string::npos) {
            throw Failure("--key needs PATH=FIELD: " + Shown(text));
        }
        krm::ListKey key{text.substr(0, equals)};
        for (std::string_view fields = std::string_view(text).substr(equals + 1); !fields.empty();) {
            const std::size_t end = std::min(fields.find(','), fields.size());
            key.fields.emplace_back(fields.substr(0, end));
            fields.remove_prefix(std::min(end + 1, fields.size()));
        }
        krm::CompareOptions one;
        one.keys = {key};
        Check(one, "--key " + Shown(text));
        compare.keys.push_back(std::move(key));
    }
    return compare;
}

/// One of the two files, message by message.
class Side {
public:
    Side(const std::string& file, const Surroundings& surroundings)
        : m_surroundings(surroundings), m_source(file, surroundings) {
        m_isRecording = IsRecording(m_source);
        m_source.KeepForAgain();
    }

    bool IsRecordingFile() const { return m_isRecording; }
    /// What its messages are, in order, as numbers that are equal where the messages belong to each other.
    std::vector<std::uint64_t> Survey();
    /// Begins again at the first message.
    void Rewind() {
        m_source.Rewind();
        m_input = OpenInput(m_source);
    }
    /// Goes to the next message, and keeps what is in it if it `isWanted`. REQUIRES: there is one.
    void Next(bool isWanted);
    const MessageHead& Head() const { return m_input->Head(); }
    /// The message's content; nothing where the library doesn't know its class.
    std::optional<krm::ConstValue> Content() const;
    /// Lines of a log that stand for nothing in the content.
    const std::vector<RebuiltMessage::Rest>& Rests() const { return m_rebuilt ? m_rebuilt->Rests() : m_rests; }
    std::uint64_t Faults() const { return m_faults; }

private:
    const Surroundings& m_surroundings;
    ByteSource m_source;
    bool m_isRecording = false;
    std::unique_ptr<Input> m_input;
    std::optional<RebuiltMessage> m_rebuilt;
    std::vector<RebuiltMessage::Rest> m_rests;  ///< of a message without a class
    std::uint64_t m_faults = 0;
};

std::vector<std::uint64_t> Side::Survey() {
    std::vector<std::uint64_t> messages;
    std::map<std::string, std::uint64_t> kinds;
    Rewind();
    ReadingProgress progress(m_source, *m_input, m_surroundings, "surveying");
    for (;;) {
        switch (m_input->Next()) {
            case Event::Begin:
            case Event::Field:
                break;
            case Event::End: {
                const MessageHead& head = m_input->Head();
                const std::string kind =
                    head.command + ' ' + head.className + ' ' + (head.ecu ? std::to_string(*head.ecu) : std::string());
                // The same text is the same number on both sides: a hash.
                messages.push_back(std::hash<std::string>()(kind));
                break;
            }
            case Event::Other: {
                const OtherLine& other = m_input->Other();
                m_faults += other.isFault ? 1 : 0;
                if (m_isRecording) {
                    progress.Hide();
                    m_surroundings.err << Shown(m_source.Name()) << ':' << other.line
                                       << (other.isFault ? ": " : ": not compared: ") << Shown(other.text) << '\n';
                }
                break;
            }
            case Event::Finished:
                if (messages.empty() && m_input->Totals().otherLines != 0 && !m_isRecording) {
                    throw Failure(m_source.Name() + ":1: neither an operation log nor a recording");
                }
                return messages;
        }
    }
}

void Side::Next(bool isWanted) {
    m_rebuilt.reset();
    m_rests.clear();
    std::vector<RebuiltMessage::Rest> before;  // fields that come before the class is known
    for (;;) {
        const Event event = m_input->Next();
        if (event == Event::End || event == Event::Finished) {
            break;
        }
        if (event != Event::Field || m_isRecording || !isWanted) {
            continue;
        }
        const FieldText& field = m_input->Field();
        if (!m_rebuilt && m_input->Head().description != nullptr) {
            m_rebuilt.emplace(*m_input->Head().description);
            for (const RebuiltMessage::Rest& rest : before) {
                m_rebuilt->Take({rest.path, rest.value});
            }
            before.clear();
        }
        if (m_rebuilt) {
            m_rebuilt->Take(field);
        } else {
            before.push_back({std::string(field.path), std::string(field.value)});
        }
    }
    if (!m_rebuilt && isWanted && !m_isRecording) {
        if (m_input->Head().description != nullptr) {
            m_rebuilt.emplace(*m_input->Head().description);
            for (const RebuiltMessage::Rest& rest : before) {
                m_rebuilt->Take({rest.path, rest.value});
            }
        } else {
            m_rests = std::move(before);
        }
    }
}

std::optional<krm::ConstValue> Side::Content() const {
    if (m_rebuilt) {
        return m_rebuilt->Content();
    }
    const CKRMBaseAdaptationData* const message = m_input->Message();
    return message == nullptr ? std::nullopt : m_input->Head().description->ContentOf(*message);
}

class Diff {
public:
    Diff(const DiffOptions& options, const Surroundings& surroundings)
        : m_options(options),
          m_out(surroundings),
          m_compare(CompareOptionsOf(options)),
          m_side1(options.file1, surroundings),
          m_side2(options.file2, surroundings) {}

    int Run();

private:
    void Compare();
    void OnlyIn(const char* which, const Side& side);
    void Write(const krm::Difference& difference);
    void BeginMessage();
    void CompareRests();
    const krm::Comparer& ComparerOf(const krm::MessageDescription& description);

    const DiffOptions& m_options;
    TextOut m_out;
    krm::CompareOptions m_compare;
    Side m_side1;
    Side m_side2;
    std::map<const krm::MessageDescription*, krm::Comparer> m_comparers;
    bool m_hasHeadline = false;  ///< of the pair that is compared
    std::uint64_t m_equal = 0;
    std::uint64_t m_changed = 0;
    std::uint64_t m_only1 = 0;
    std::uint64_t m_only2 = 0;
};

std::string TextOf(const MessageHead& head) {
    std::string text = Shown(head.command);
    if (head.direction) {
        text += head.direction == krm::Direction::Send ? " request" : " answer";
    }
    if (head.ecu) {
        text += ", ECU " + std::to_string(*head.ecu);
    }
    return text;
}

/// The options' patterns as they are, and, where a log is compared with a recording, what the log doesn't tell.
const krm::Comparer& Diff::ComparerOf(const krm::MessageDescription& description) {
    const auto found = m_comparers.find(&description);
    if (found != m_comparers.end()) {
        return found->second;
    }
    krm::CompareOptions options = m_compare;
    if (m_side1.IsRecordingFile() != m_side2.IsRecordingFile()) {
        const std::vector<std::string>& notLogged = LogForm::Of(description).NotLogged();
        options.ignore.insert(options.ignore.end(), notLogged.begin(), notLogged.end());
        // The log has six decimals of a double: at most half a digit lies between them and what was logged, and no more
        // than that between them and the double nearest to them.
        constexpr double kLogged = 1e-6;
        options.tolerance.absolute = std::max(options.tolerance.absolute, kLogged);
    }
    return m_comparers.try_emplace(&description, *description.content, options).first->second;
}

void Diff::BeginMessage() {
    if (m_hasHeadline) {
        return;
    }
    m_hasHeadline = true;
    ++m_changed;
    if (!m_options.isJson) {
        const std::string number1 = std::to_string(m_side1.Head().number);
        const std::string number2 = std::to_string(m_side2.Head().number);
        m_out.Coloured(colour::kBold, "message " + number1 + (number1 == number2 ? "" : ", now " + number2) + ": " +
                                          TextOf(m_side1.Head()))
            << '\n';
    }
}

void Diff::Write(const krm::Difference& difference) {
    using Kind = krm::Difference::Kind;
    BeginMessage();
    if (!m_options.isJson) {
        m_out << "  ";
        m_out.Coloured(difference.kind == Kind::Added     ? colour::kGreen
                       : difference.kind == Kind::Removed ? colour::kRed
                                                          : colour::kYellow,
                       Shown(krm::ToText(difference)))
            << '\n';
        return;
    }
    static constexpr std::string_view kKinds[] = {"added", "removed", "changed", "reordered", "otherClass"};
    m_out << "{\"difference\":";
    m_out.Json(kKinds[static_cast<std::size_t>(difference.kind)]);
    m_out << ",\"message1\":" << m_side1.Head().number << ",\"message2\":" << m_side2.Head().number << ",\"command\":";
    m_out.Json(m_side1.Head().command);
    m_out << ",\"path\":";
    m_out.Json(difference.path);
    if (difference.pathIn2 != difference.path) {
        m_out << ",\"pathIn2\":";
        m_out.Json(difference.pathIn2);
    }
    if (difference.kind != Kind::Added) {
        m_out << ",\"value1\":";
        m_out.Json(difference.value1);
    }
    if (difference.kind != Kind::Removed) {
        m_out << ",\"value2\":";
        m_out.Json(difference.value2);
    }
    m_out << "}\n";
}

/// Lines without a place, one after the other: by their paths and values.
void Diff::CompareRests() {
    using Kind = krm::Difference::Kind;
    if (m_side1.IsRecordingFile() != m_side2.IsRecordingFile()) {
        return;  // a recording has none
    }
    const std::vector<RebuiltMessage::Rest>& rests1 = m_side1.Rests();
    const std::vector<RebuiltMessage::Rest>& rests2 = m_side2.Rests();
    const auto isIgnored = [&](const RebuiltMessage::Rest& rest) {
        for (const std::string& pattern : m_options.ignore) {
            if (Matches(pattern, rest.path)) {
                return true;
            }
        }
        return false;
    };
    std::size_t j = 0;
    for (const RebuiltMessage::Rest& rest : rests1) {
        if (isIgnored(rest)) {
            continue;
        }
        std::size_t same = j;
        while (same < rests2.size() && rests2[same].path != rest.path) {
            ++same;
        }
        if (same == rests2.size()) {
            Write({Kind::Removed, rest.path, rest.path, rest.value, {}});
            continue;
        }
        for (; j < same; ++j) {
            if (!isIgnored(rests2[j])) {
                Write({Kind::Added, rests2[j].path, rests2[j].path, {}, rests2[j].value});
            }
        }
        if (rests2[j].value != rest.value) {
            Write({Kind::Changed, rest.path, rest.path, rest.value, rests2[j].value});
        }
        ++j;
    }
    for (; j < rests2.size(); ++j) {
        if (!isIgnored(rests2[j])) {
            Write({Kind::Added, rests2[j].path, rests2[j].path, {}, rests2[j].value});
        }
    }
}

void Diff::Compare() {
    m_hasHeadline = false;
    const std::optional<krm::ConstValue> content1 = m_side1.Content();
    const std::optional<krm::ConstValue> content2 = m_side2.Content();
    if (content1 && content2) {
        const krm::Comparison comparison = ComparerOf(*m_side1.Head().description).Compare(*content1, *content2);
        if (!comparison.error.empty()) {
            throw Failure(comparison.error);
        }
        for (const krm::Difference& difference : comparison.differences) {
            Write(difference);
        }
    }
    CompareRests();
    m_equal += m_hasHeadline ? 0 : 1;
}

void Diff::OnlyIn(const char* which, const Side& side) {
    const MessageHead& head = side.Head();
    if (m_options.isJson) {
        m_out << "{\"difference\":\"message\",\"onlyIn\":" << which << ",\"message\":" << head.number
              << ",\"command\":";
        m_out.Json(head.command);
        m_out << "}\n";
        return;
    }
    m_out.Coloured(*which == '1' ? colour::kRed : colour::kGreen,
                   std::string("only in the ") + (*which == '1' ? "first" : "second") + ": message " +
                       std::to_string(head.number) + ": " + TextOf(head))
        << '\n';
}

int Diff::Run() {
    // What is wrong with the first is told first; a call's arguments have no order.
    const std::vector<std::uint64_t> messages1 = m_side1.Survey();
    const std::vector<Pair> pairs = Align(messages1, m_side2.Survey());
    m_side1.Rewind();
    m_side2.Rewind();
    for (const Pair& pair : pairs) {
        const bool isPair = pair.first && pair.second;
        if (pair.first) {
            m_side1.Next(isPair);
        }
        if (pair.second) {
            m_side2.Next(isPair);
        }
        if (isPair) {
            Compare();
        } else if (pair.first) {
            ++m_only1;
            OnlyIn("1", m_side1);
        } else {
            ++m_only2;
            OnlyIn("2", m_side2);
        }
        m_out.FlushIfMuch();
    }
    const bool isEqual = m_changed == 0 && m_only1 == 0 && m_only2 == 0;
    if (m_options.isJson) {
        m_out << "{\"totals\":{\"equal\":" << m_equal << ",\"different\":" << m_changed << ",\"onlyIn1\":" << m_only1
              << ",\"onlyIn2\":" << m_only2 << "}}\n";
    } else if (!isEqual) {
        m_out.Coloured(colour::kDim, std::to_string(m_equal) + " messages are equal, " + std::to_string(m_changed) +
                                         " differ; only in the first are " + std::to_string(m_only1) +
                                         ", only in the second " + std::to_string(m_only2))
            << '\n';
    }
    m_out.Flush();
    return m_side1.Faults() != 0 || m_side2.Faults() != 0 ? kFailed : isEqual ? kDone : kBadParts;
}

}  // namespace

int RunDiff(const DiffOptions& options, const Surroundings& surroundings) {
    CheckStandardInput(options.file1, options.file2);
    return Diff(options, surroundings).Run();
}

}  // namespace krm_cli

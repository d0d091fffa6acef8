#include "cli/log_input.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "cli/patterns.h"
#include "krm/framework/commands.h"
#include "krm/messages/describe.h"

namespace krm_cli {
namespace {

bool IsDigit(char character) {
    return character >= '0' && character <= '9';
}

/// Whether a word of a prefix is a date, a time or a number of seconds: a sign of one between two digits.
bool IsTime(std::string_view word) {
    const auto isSign = [](char character) {
        return character == ':' || character == '-' || character == '/' || character == '.' || character == ',';
    };
    for (std::size_t i = 1; i + 1 < word.size(); ++i) {
        if (isSign(word[i]) && IsDigit(word[i - 1]) && IsDigit(word[i + 1])) {
            return true;
        }
    }
    return false;
}

/// Calls `take(word, begin, isTime)` for each word.
template <class Take>
void ForEachWord(std::string_view prefix, Take take) {
    const auto isBlank = [](char character) { return character == ' ' || character == '\t'; };
    for (std::size_t begin = 0; begin < prefix.size();) {
        if (isBlank(prefix[begin])) {
            ++begin;
            continue;
        }
        const auto end = static_cast<std::size_t>(
            std::find_if(prefix.begin() + static_cast<std::ptrdiff_t>(begin), prefix.end(), isBlank) - prefix.begin());
        const std::string_view word = prefix.substr(begin, end - begin);
        take(word, begin, IsTime(word));
        begin = end;
    }
}

/// The prefix's parts, in texts that may have memory already.
void TakePrefixApart(std::string_view prefix, PrefixParts& parts) {
    parts.time.clear();
    parts.source.clear();
    ForEachWord(prefix, [&](std::string_view word, std::size_t, bool isTime) {
        std::string& part = isTime ? parts.time : parts.source;
        if (!part.empty()) {
            part += ' ';
        }
        part += word;
    });
}

}  // namespace

PrefixParts TakePrefixApart(std::string_view prefix) {
    PrefixParts parts;
    TakePrefixApart(prefix, parts);
    return parts;
}

bool IsHeading(std::string_view line) {
    if (!line.ends_with(')')) {
        return false;
    }
    const std::size_t type = line.rfind("(type ");
    const std::size_t begin = line.find("== ");
    return type != std::string_view::npos && begin < type && (begin == 0 || line[begin - 1] == ' ') &&
           line.find(", ID ", type) != std::string_view::npos;
}

const LogInput::ClassInfo& LogInput::InfoOf(std::string_view className, std::size_t number) {
    if (number < m_classes.size()) {
        return m_classes[number];
    }
    ClassInfo& info = m_classes.emplace_back();
    info.name = className;
    std::string_view name = className;
    if (name.ends_with("Snd")) {
        info.direction = krm::Direction::Send;
    } else if (name.ends_with("Rcv")) {
        info.direction = krm::Direction::Receive;
    }
    if (info.direction) {
        name.remove_suffix(3);
    }
    name.remove_prefix(std::min(name.size(), std::string_view("CKRMC").size()));
    for (const krm::CommandFamily family :
         {krm::CommandFamily::Diagnostic, krm::CommandFamily::Viewer, krm::CommandFamily::StoredDataImport,
          krm::CommandFamily::UnitConversion, krm::CommandFamily::WordsTable}) {
        const std::string_view word = krm::FamilyWordOf(family);
        for (const std::string_view data : {"AdaptData", "AdptData"}) {
            const std::string ending = std::string(word) + std::string(data);
            if (name.ends_with(ending)) {
                info.family = word;
                name.remove_suffix(ending.size());
            }
        }
    }
    info.command = name;
    if (name == "Base" && !info.family.empty()) {
        info.role = info.direction ? Role::DirectionBase : Role::FamilyBase;
        return info;
    }
    info.description = FindMessage(className);
    return info;
}

LogInput::Source LogInput::SourceOf(std::string_view prefix, bool isFirst) {
    bool isSame = prefix.size() == m_prefix.size();
    for (std::size_t i = 0; isSame && i < m_prefixSpans.size(); ++i) {
        const auto [begin, length] = m_prefixSpans[i];
        isSame = prefix.compare(begin, length, m_prefix, begin, length) == 0;
    }
    if (isSame && m_nextSource != 0) {
        return m_prefixSource;
    }
    const std::string source = TakePrefixApart(prefix).source;
    auto found = m_sources.find(source);
    if (found == m_sources.end()) {
        if (!isFirst && m_nextSource != 0) {
            // What looks like a source of its own changes from line to line.
            return m_lastBegun;
        }
        constexpr std::size_t kMostSources = 4096;
        if (m_sources.size() == kMostSources) {
            m_sources.clear();
        }
        found = m_sources.emplace(source, m_nextSource++).first;
    }
    m_prefix = prefix;
    m_prefixSource = found->second;
    m_prefixSpans.clear();
    ForEachWord(prefix, [&](std::string_view word, std::size_t begin, bool isTime) {
        if (!isTime) {
            // With the blanks around it, so that the rest can be nothing but a time.
            const std::size_t from = begin == 0 ? 0 : begin - 1;
            m_prefixSpans.emplace_back(from, std::min(begin + word.size() + 1, prefix.size()) - from);
        }
    });
    return m_prefixSource;
}

Event LogInput::BeginMessage(std::string_view prefix, Source source, bool isFirst) {
    m_isOpen = true;
    m_fitting = nullptr;
    m_openSource = source;
    m_openLine = m_field.line;
    const std::uint64_t number = m_head.number + 1;
    // Its texts keep their memory.
    MessageHead head;
    for (const auto text : {&MessageHead::className, &MessageHead::command, &MessageHead::time, &MessageHead::source}) {
        (head.*text).swap(m_head.*text);
    }
    m_head = std::move(head);
    m_head.className.clear();
    m_head.command.clear();
    m_head.number = number;
    m_head.firstLine = m_field.line;
    m_head.beginIsMissing = !isFirst;
    if (prefix != m_begunPrefix) {
        m_begunPrefix = prefix;
        TakePrefixApart(prefix, m_begunParts);
    }
    m_head.time = m_begunParts.time;
    m_head.source = m_begunParts.source;
    ++m_totals.messages;
    return Event::Begin;
}

/// What the message is, as far as lines of this class say.
void LogInput::TakeHead(const ClassInfo& info) {
    if (!info.family.empty()) {
        m_head.family = info.family;
    }
    if (info.direction) {
        m_head.direction = info.direction;
    }
    const std::optional<krm_ulong> number = BitsIn(m_field.value, 10);
    if (info.role == Role::Message) {
        m_head.className = info.name;
        m_head.command = info.command;
        m_head.description = info.description;
        if (info.description != nullptr) {
            m_head.type = info.description->type;
            m_head.id = info.description->id;
        }
    } else if (number && m_field.path == "m_dwCommandType") {
        m_head.type = *number;
    } else if (number && m_field.path == "m_dwCommandID") {
        m_head.id = *number;
    } else if (number && m_field.path == "m_ulEcuId") {
        m_head.ecu = *number;
    }
}

/// Whether a line of this class can be one of the message that is read.
bool LogInput::Fits(const ClassInfo& info) const {
    if (info.role == Role::DirectionBase) {
        return !m_head.direction || m_head.direction == info.direction;
    }
    if (info.role == Role::FamilyBase) {
        return true;
    }
    return m_head.className.empty() ? m_head.fields < 2 || info.description == nullptr ||
                                          (info.description->type == m_head.type && info.description->id == m_head.id)
                                    : m_head.className == info.name;
}

Event LogInput::TakeField(const ClassInfo& info) {
    m_openLine = m_field.line;
    ++m_head.fields;
    if (info.role != Role::Message || m_head.className.empty()) {
        TakeHead(info);
    }
    return Event::Field;
}

Event LogInput::EndMessage() {
    m_isOpen = false;
    if (m_head.className.empty()) {
        m_head.command = krm::CommandNameOf(m_head.type, m_head.id);
        m_head.description = m_head.direction ? krm::FindMessage(m_head.type, m_head.id, *m_head.direction) : nullptr;
        if (m_head.description != nullptr) {
            m_head.className = m_head.description->className;
        }
    }
    m_ecus.Complete(m_head);
    return Event::End;
}

void LogInput::Hold(Source source, const ClassInfo& info, const LogLine& line, bool begins, bool isFirst) {
    Waiting item{std::string(line.prefix),
                 &info,
                 std::string(line.path),
                 std::string(line.value),
                 m_lines.Current().number,
                 m_lines.Current().cutBytes,
                 begins,
                 isFirst};
    m_waitingBytes += item.Size();
    m_waiting[source].push_back(std::move(item));
}

/// Makes the first of these lines the field that is delivered.
void LogInput::Unhold(std::deque<Waiting>& lines) {
    m_item = std::move(lines.front());
    lines.pop_front();
    m_waitingBytes -= m_item.Size();
    m_field = {m_item.path, m_item.value, m_item.line, m_item.cutBytes};
}

/// Begins the message whose first line waits longest.
Event LogInput::BeginWaiting() {
    auto longest = m_waiting.begin();
    for (auto source = m_waiting.begin(); source != m_waiting.end(); ++source) {
        if (source->second.front().line < longest->second.front().line) {
            longest = source;
        }
    }
    const Source source = longest->first;
    Unhold(longest->second);
    if (longest->second.empty()) {
        m_waiting.erase(longest);
    }
    m_firstFieldOf = m_item.itsClass;
    return BeginMessage(m_item.prefix, source, m_item.isFirst);
}

void LogInput::PassOver(std::string_view begin, std::string_view unless) {
    const std::size_t prefixLength = m_parser.PrefixLength();
    if (!m_isOpen || !m_waiting.empty() || m_field.line != m_lines.Current().number || m_class->role != Role::Message ||
        m_parser.Head().empty() || m_prefix.size() != prefixLength || m_prefixSource != m_openSource ||
        (prefixLength != 0 && m_lines.Current().text[prefixLength - 1] == '[')) {
        return;
    }
    m_passed = m_lines.Current().text.substr(0, prefixLength);
    m_passed += m_parser.Head();
    const std::size_t path = m_passed.size();
    m_passed += begin;
    const std::size_t behind = m_passed.size();
    // Looked at from its begin on, a line is mostly known before its end is.
    const std::uint64_t count = m_lines.SkipWhile([&](const char* text, const char* end) -> const char* {
        if (static_cast<std::size_t>(end - text) <= behind) {
            return nullptr;
        }
        if (std::memcmp(text, m_passed.data(), behind) != 0) {
            // Another time, if anything.
            if (std::memcmp(text + prefixLength, m_passed.data() + prefixLength, behind - prefixLength) != 0 ||
                (prefixLength != 0 &&
                 (text[prefixLength - 1] == '[' || std::memchr(text, '\n', prefixLength) != nullptr ||
                  HasClassWithin(std::string_view(text, prefixLength))))) {
                return nullptr;
            }
            for (const auto& [from, size] : m_prefixSpans) {
                if (std::memcmp(text + from, m_prefix.data() + from, size) != 0) {
                    return nullptr;
                }
            }
            m_passed.replace(0, prefixLength, text, prefixLength);
        }
        const auto [equals, feed] = FindFieldEnds(text + behind, end);
        if (equals == nullptr || equals == text + path) {
            return nullptr;
        }
        if (!unless.empty() && equals[-1] == unless.back() &&
            static_cast<std::size_t>(equals - text) >= path + unless.size() &&
            std::memcmp(equals - unless.size(), unless.data(), unless.size()) == 0) {
            return nullptr;
        }
        return feed;
    });
    m_head.fields += count;
    m_openLine = m_lines.Current().number;
    m_totals.lines = m_openLine;
}

Event LogInput::Next() {
    if (m_firstFieldOf != nullptr) {
        return TakeField(*std::exchange(m_firstFieldOf, nullptr));
    }
    if (m_beginning) {
        m_field = m_beginning->field;
        m_firstFieldOf = m_class;
        const Beginning beginning = *std::exchange(m_beginning, std::nullopt);
        return BeginMessage(beginning.prefix, beginning.source, beginning.isFirst);
    }
    for (;;) {
        if (!m_waiting.empty()) {
            if (!m_isOpen) {
                return BeginWaiting();
            }
            if (const auto own = m_waiting.find(m_openSource); own != m_waiting.end()) {
                if (own->second.front().begins || !Fits(*own->second.front().itsClass)) {
                    return EndMessage();
                }
                Unhold(own->second);
                if (own->second.empty()) {
                    m_waiting.erase(own);
                }
                return TakeField(*m_item.itsClass);
            }
        }
        if (!m_lines.Next()) {
            if (m_isOpen) {
                return EndMessage();
            }
            if (m_waiting.empty()) {
                return Event::Finished;
            }
            continue;
        }
        const Line& text = m_lines.Current();
        m_totals.lines = text.number;
        m_totals.cutLines += text.cutBytes != 0 ? 1 : 0;
        m_totals.lastLineHasNoEnd = !text.ended;
        LogLine line;
        if (!m_parser.Parse(text.text, line)) {
            if (text.cutBytes == 0 && IsHeading(text.text)) {
                continue;
            }
            ++m_totals.otherLines;
            m_other = {text.number, text.text, text.cutBytes, false};
            return Event::Other;
        }
        if (!m_parser.IsSameClass()) {
            m_class = &InfoOf(line.className, m_parser.ClassNumber());
        }
        const bool isFirst = m_class->role == Role::FamilyBase && line.path == "m_dwCommandType";
        const Source source = SourceOf(line.prefix, isFirst);
        bool begins = isFirst;
        if (m_isOpen && source == m_openSource && m_class != m_fitting) {
            const bool fits = Fits(*m_class);
            m_fitting = fits ? m_class : m_fitting;
            begins = begins || !fits;
        }
        if (isFirst) {
            m_lastBegun = source;
        }
        if (!m_isOpen || (source == m_openSource && !begins)) {
            m_field = {line.path, line.value, text.number, text.cutBytes};
            if (m_isOpen) {
                return TakeField(*m_class);
            }
            m_firstFieldOf = m_class;
            return BeginMessage(line.prefix, source, isFirst);
        }
        if (source == m_openSource && m_waiting.empty()) {
            m_beginning = {line.prefix, {line.path, line.value, text.number, text.cutBytes}, source, isFirst};
            return EndMessage();
        }
        Hold(source, *m_class, line, isFirst || (begins && source == m_openSource), isFirst);
        if (source == m_openSource || text.number - m_openLine > kStaleLines || m_waitingBytes > m_mostWaiting) {
            return EndMessage();
        }
    }
}

}  // namespace krm_cli

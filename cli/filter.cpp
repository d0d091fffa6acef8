#include "cli/filter.h"

#include <algorithm>
#include <utility>

#include "cli/patterns.h"
#include "krm/messages/describe.h"

namespace krm_cli {
namespace {

bool IsBlank(char character) {
    return character == ' ' || character == '\t' || character == '\n' || character == '\r';
}

std::vector<FilterWord> WordsOf(const std::string& expression) {
    std::vector<FilterWord> words;
    for (std::size_t at = 0; at < expression.size();) {
        if (IsBlank(expression[at])) {
            ++at;
            continue;
        }
        FilterWord word;
        bool isQuoted = false;
        bool hasQuote = false;
        for (; at < expression.size() && (isQuoted || !IsBlank(expression[at])); ++at) {
            if (expression[at] == '"') {
                isQuoted = !isQuoted;
                hasQuote = true;
                continue;
            }
            if (isQuoted && expression[at] == '\\' && at + 1 < expression.size()) {
                ++at;
            }
            word.text += expression[at];
            word.quoted.push_back(isQuoted);
        }
        if (isQuoted) {
            throw Failure("filter: the quote is not closed: " + Shown(word.text));
        }
        if (!word.text.empty() || hasQuote) {
            words.push_back(std::move(word));
        }
    }
    return words;
}

/// Where the first of these characters stands that isn't quoted; the end for none. A quote before it ends the search.
std::size_t FindPlain(const FilterWord& word, std::string_view characters, std::size_t begin) {
    for (std::size_t i = begin; i < word.text.size() && !word.quoted[i]; ++i) {
        if (characters.find(word.text[i]) != std::string_view::npos) {
            return i;
        }
    }
    return word.text.size();
}

bool IsLetter(char character) {
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}

}  // namespace

FilterWord FilterWord::From(std::size_t begin) const {
    return {text.substr(begin), std::vector<bool>(quoted.begin() + static_cast<std::ptrdiff_t>(begin), quoted.end())};
}

FilterValue::FilterValue(const FilterWord& word) {
    m_pieces.emplace_back();
    bool isQuoted = false;
    const std::string lower = Lower(word.text);
    for (std::size_t i = 0; i < lower.size(); ++i) {
        isQuoted = isQuoted || word.quoted[i];
        if (lower[i] == '*' && !word.quoted[i]) {
            m_pieces.emplace_back();
        } else {
            m_pieces.back() += lower[i];
        }
    }
    if (!isQuoted) {
        m_number = NumberIn(word.text);
    }
}

bool FilterValue::IsEqual(std::string_view text) const {
    if (m_number) {
        const std::optional<double> number = NumberIn(text);
        if (number && *number == *m_number) {
            return true;
        }
    }
    if (m_pieces.size() == 1) {
        return text.size() == m_pieces[0].size() && Contains(text, m_pieces[0]);
    }
    const std::string& first = m_pieces.front();
    const std::string& last = m_pieces.back();
    if (text.size() < first.size() + last.size() || !Contains(text.substr(0, first.size()), first) ||
        !Contains(text.substr(text.size() - last.size()), last)) {
        return false;
    }
    std::string rest = Lower(text.substr(first.size(), text.size() - first.size() - last.size()));
    std::size_t at = 0;
    for (std::size_t i = 1; i + 1 < m_pieces.size(); ++i) {
        at = rest.find(m_pieces[i], at);
        if (at == std::string::npos) {
            return false;
        }
        at += m_pieces[i].size();
    }
    return true;
}

Filter::Filter(const std::string& expression) {
    for (const FilterWord& word : WordsOf(expression)) {
        const bool isNot = word.text.size() > 1 && word.text[0] == '-' && !word.quoted[0];
        m_conditions.push_back(ConditionOf(isNot ? word.From(1) : word));
        m_conditions.back().isNot = isNot;
    }
}

Filter::Condition Filter::ConditionOf(const FilterWord& word) {
    static constexpr std::pair<std::string_view, Kind> kKeys[] = {
        {"command", Kind::Command},     {"family", Kind::Family}, {"id", Kind::Id},
        {"direction", Kind::Direction}, {"ecu", Kind::Ecu},       {"exchange", Kind::Exchange},
        {"thread", Kind::Thread}};
    Condition condition;
    const std::size_t colon = FindPlain(word, ":", 0);
    const bool isKey =
        colon != 0 && colon != word.text.size() &&
        std::all_of(word.text.begin(), word.text.begin() + static_cast<std::ptrdiff_t>(colon), &IsLetter);
    if (isKey) {
        const std::string name = Lower(std::string_view(word.text).substr(0, colon));
        condition.value = FilterValue(word.From(colon + 1));
        for (const auto& [key, kind] : kKeys) {
            if (name != key) {
                continue;
            }
            condition.kind = kind;
            if (condition.value.IsEmpty()) {
                throw Failure("filter: nothing stands behind " + name + ':');
            }
            if (kind == Kind::Direction && !condition.value.IsEqual("request") && !condition.value.IsEqual("answer")) {
                throw Failure("filter: a direction is request or answer: " + Shown(word.text));
            }
            return condition;
        }
        throw Failure("filter: there is no condition " + name +
                      ": but command: family: id: direction: ecu: exchange: thread:");
    }
    static constexpr std::pair<std::string_view, Sign> kSigns[] = {
        {"!=", Sign::Unequal}, {"<=", Sign::LessOrEqual}, {">=", Sign::GreaterOrEqual},
        {"=", Sign::Equal},    {"<", Sign::Less},         {">", Sign::Greater}};
    const std::size_t sign = FindPlain(word, "=<>!", 0);
    for (const auto& [text, itsSign] : kSigns) {
        if (sign == 0 || !std::string_view(word.text).substr(sign).starts_with(text) ||
            word.quoted[sign + text.size() - 1]) {
            continue;
        }
        condition.kind = Kind::Field;
        condition.sign = itsSign;
        condition.value = FilterValue(word.From(sign + text.size()));
        const std::string name = word.text.substr(0, sign);
        condition.isAnyField = Lower(name) == "value";
        condition.isPath = name.find_first_of(".[") != std::string::npos;
        for (std::size_t begin = 0; begin <= name.size();) {
            const std::size_t end = std::min(name.find('.', begin), name.size());
            condition.names.push_back(name.substr(begin, end - begin));
            begin = end + 1;
        }
        if (itsSign != Sign::Equal && itsSign != Sign::Unequal && !condition.value.Number()) {
            throw Failure("filter: behind " + std::string(text) + " stands a number: " + Shown(word.text));
        }
        return condition;
    }
    condition.word = Lower(word.text);
    return condition;
}

bool Filter::HasName(const Condition& condition, std::string_view path) {
    if (condition.isAnyField) {
        return true;
    }
    if (!condition.isPath) {
        return Matches(condition.names[0], LastName(path));
    }
    for (std::size_t i = 0; i < condition.names.size(); ++i) {
        const std::size_t end = path.find('.');
        const bool isLast = i + 1 == condition.names.size();
        if ((end == std::string_view::npos) != isLast || !Matches(condition.names[i], path.substr(0, end))) {
            return false;
        }
        path.remove_prefix(isLast ? path.size() : end + 1);
    }
    return true;
}

bool Filter::HasValue(const Condition& condition, std::string_view value) {
    if (condition.sign == Sign::Equal || condition.sign == Sign::Unequal) {
        return condition.value.IsEqual(value) == (condition.sign == Sign::Equal);
    }
    const std::optional<double> number = NumberIn(value);
    if (!number) {
        return false;
    }
    const double wanted = *condition.value.Number();
    switch (condition.sign) {
        case Sign::Less:
            return *number < wanted;
        case Sign::LessOrEqual:
            return *number <= wanted;
        case Sign::Greater:
            return *number > wanted;
        default:
            return *number >= wanted;
    }
}

bool Filter::IsMetBy(const Condition& condition, const FieldText& field) {
    if (condition.kind == Kind::Field) {
        return HasName(condition, field.path) && HasValue(condition, field.value);
    }
    if (condition.word.find('=') == std::string::npos) {
        return Contains(field.path, condition.word) || Contains(field.value, condition.word);
    }
    std::string line(field.path);
    line += '=';
    line += field.value;
    return Contains(line, condition.word);
}

void Filter::Begin() {
    m_open = 0;
    for (Condition& condition : m_conditions) {
        condition.isMet = false;
        m_open += AsksForField(condition) ? 1 : 0;
    }
}

void Filter::TakeOpen(const FieldText& field) {
    for (Condition& condition : m_conditions) {
        if (!condition.isMet && AsksForField(condition) && IsMetBy(condition, field)) {
            condition.isMet = true;
            --m_open;
        }
    }
}

bool Filter::IsMet(const Condition& condition, const MessageHead& head) {
    const FilterValue& value = condition.value;
    switch (condition.kind) {
        case Kind::Command:
            return value.IsEqual(head.command);
        case Kind::Family:
            return value.IsEqual(head.family);
        case Kind::Id: {
            const std::string id = std::to_string(head.id);
            return value.IsEqual(id) || value.IsEqual(std::to_string(head.type) + '/' + id);
        }
        case Kind::Direction:
            return head.direction && value.IsEqual(*head.direction == krm::Direction::Send ? "request" : "answer");
        case Kind::Ecu:
            return head.ecu && value.IsEqual(std::to_string(*head.ecu));
        case Kind::Exchange:
            return head.exchange && value.IsEqual(std::to_string(*head.exchange));
        case Kind::Thread:
            return value.IsEqual(head.source);
        case Kind::Field:
        case Kind::Word:
            break;
    }
    return condition.isMet;
}

bool Filter::End(const MessageHead& head) const {
    return std::all_of(m_conditions.begin(), m_conditions.end(),
                       [&](const Condition& condition) { return IsMet(condition, head) != condition.isNot; });
}

}  // namespace krm_cli

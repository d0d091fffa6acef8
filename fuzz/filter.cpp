// The filter language: what an expression lets through is told by a plain reading of the language's description, one character
// at a time; and two expressions behind each other ask for both, in either order, and `-` in front of one for the contrary.
//
// The input: an expression, a second one, and fields PATH=VALUE of one more message, with a NUL between each.
#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "cli/filter.h"
#include "fuzz/support/input.h"

namespace {

using krm_cli::MessageHead;

/// A character of a word, and whether it stood in quotes.
struct Symbol {
    char character;
    bool isQuoted;

    bool Is(char wanted) const { return !isQuoted && character == wanted; }
};
using Word = std::vector<Symbol>;

struct Message {
    MessageHead head;
    std::vector<std::pair<std::string, std::string>> fields;
};

char LowerOf(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
}

std::string TextOf(const Word& word) {
    std::string text;
    for (const Symbol& symbol : word) {
        text += symbol.character;
    }
    return text;
}

Word PlainWord(std::string_view text) {
    Word word;
    for (const char c : text) {
        word.push_back({c, false});
    }
    return word;
}

/// Whether one text is the other in letters of either case.
bool IsSame(std::string_view left, std::string_view right) {
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](char l, char r) { return LowerOf(l) == LowerOf(r); });
}

bool Occurs(std::string_view part, std::string_view text) {
    for (std::size_t at = 0; at + part.size() <= text.size(); ++at) {
        if (IsSame(part, text.substr(at, part.size()))) {
            return true;
        }
    }
    return false;
}

/// Whether the text is the pattern's, whose `*` stand for any characters but `barrier`: which begins of the text each begin
/// of the pattern has.
bool IsPatternOf(const Word& pattern, std::string_view text, std::optional<char> barrier = std::nullopt) {
    std::vector<bool> has(text.size() + 1);
    has[0] = true;
    for (const Symbol& symbol : pattern) {
        std::vector<bool> next(text.size() + 1);
        for (std::size_t end = 0; end <= text.size(); ++end) {
            if (symbol.Is('*')) {
                next[end] = has[end] || (end > 0 && next[end - 1] && text[end - 1] != barrier);
            } else {
                next[end] = end > 0 && has[end - 1] && LowerOf(text[end - 1]) == LowerOf(symbol.character);
            }
        }
        has = next;
    }
    return has[text.size()];
}

/// The number that a text is; nothing for a text. `isCertain` becomes false for what is beyond all doubles, or 64 bits.
std::optional<double> NumberOf(std::string_view text, bool& isCertain) {
    if (text == "true" || text == "false") {
        return text == "true" ? 1 : 0;
    }
    const auto takeDigits = [](std::string_view& rest, std::string_view digits) {
        const std::size_t count = std::min(rest.find_first_not_of(digits), rest.size());
        rest.remove_prefix(count);
        return count;
    };
    std::string_view rest = text;
    if (IsSame(rest.substr(0, 2), "0x")) {
        rest.remove_prefix(2);
        const std::size_t count = takeDigits(rest, "0123456789ABCDEFabcdef");
        if (count == 0 || !rest.empty()) {
            return std::nullopt;
        }
        isCertain = isCertain && count <= 16;
        return static_cast<double>(std::strtoull(std::string(text).c_str(), nullptr, 16));
    }
    constexpr std::string_view kDigits = "0123456789";
    const auto takeOneOf = [](std::string_view& from, std::string_view characters) {
        const bool is = !from.empty() && characters.find(from.front()) != std::string_view::npos;
        from.remove_prefix(is ? 1 : 0);
        return is;
    };
    takeOneOf(rest, "+-");
    std::size_t count = takeDigits(rest, kDigits);
    if (takeOneOf(rest, ".")) {
        count += takeDigits(rest, kDigits);
    }
    if (count == 0) {
        return std::nullopt;
    }
    if (takeOneOf(rest, "eE")) {
        takeOneOf(rest, "+-");
        if (takeDigits(rest, kDigits) == 0) {
            return std::nullopt;
        }
    }
    const std::string number(text.substr(0, text.size() - rest.size()));
    if (!rest.empty()) {  // the same unsigned, in brackets
        if (!takeOneOf(rest, "(") || takeDigits(rest, kDigits) == 0 || rest != ")") {
            return std::nullopt;
        }
    }
    errno = 0;
    const double found = std::strtod(number.c_str(), nullptr);
    isCertain = isCertain && errno == 0;
    return found;
}

/// A condition as the language's description has it.
struct Condition {
    bool isNot = false;
    std::string key;   ///< "command"; empty for another kind
    std::string name;  ///< of a field
    std::string sign;  ///< empty for no field
    Word value;
    std::string word;
};

/// The words; nothing where a quote isn't closed.
std::optional<std::vector<Word>> WordsIn(std::string_view expression) {
    std::vector<Word> words;
    bool isWithin = false;
    bool isQuoted = false;
    bool isEscaped = false;
    for (const char c : expression) {
        if (!isQuoted && (c == ' ' || c == '\t' || c == '\n' || c == '\r')) {
            isWithin = false;
            continue;
        }
        if (!isWithin) {
            words.emplace_back();
            isWithin = true;
        }
        if (isEscaped) {
            words.back().push_back({c, true});
            isEscaped = false;
        } else if (c == '"') {
            isQuoted = !isQuoted;
        } else if (isQuoted && c == '\\') {
            isEscaped = true;
        } else {
            words.back().push_back({c, isQuoted});
        }
    }
    return isQuoted ? std::nullopt : std::optional(words);
}

bool IsNumber(const Word& word, bool& isCertain) {
    return std::ranges::none_of(word, &Symbol::isQuoted) && NumberOf(TextOf(word), isCertain).has_value();
}

/// Whether a value is this, as a number or as a text.
bool IsEqual(const Word& wanted, std::string_view value, bool& isCertain) {
    if (IsNumber(wanted, isCertain)) {
        const std::optional<double> number = NumberOf(value, isCertain);
        if (number && *number == *NumberOf(TextOf(wanted), isCertain)) {
            return true;
        }
    }
    return IsPatternOf(wanted, value);
}

/// Nothing for what is no condition.
std::optional<Condition> ConditionIn(Word word, bool& isCertain) {
    Condition condition;
    if (word.size() > 1 && word.front().Is('-')) {
        condition.isNot = true;
        word.erase(word.begin());
    }
    const auto isLetter = [](const Symbol& symbol) {
        return !symbol.isQuoted && LowerOf(symbol.character) >= 'a' && LowerOf(symbol.character) <= 'z';
    };
    const auto behindLetters = std::ranges::find_if_not(word, isLetter);
    if (behindLetters != word.begin() && behindLetters != word.end() && behindLetters->Is(':')) {
        for (const Symbol& symbol : Word(word.begin(), behindLetters)) {
            condition.key += LowerOf(symbol.character);
        }
        condition.value.assign(behindLetters + 1, word.end());
        constexpr std::string_view kKeys[] = {"command", "family", "id", "direction", "ecu", "exchange", "thread"};
        if (std::ranges::find(kKeys, condition.key) == std::end(kKeys) || condition.value.empty()) {
            return std::nullopt;
        }
        if (condition.key == "direction" && !IsEqual(condition.value, "request", isCertain) &&
            !IsEqual(condition.value, "answer", isCertain)) {
            return std::nullopt;
        }
        return condition;
    }
    const auto sign = std::ranges::find_if(word, [](const Symbol& symbol) {
        return symbol.isQuoted || std::string_view("=<>!").find(symbol.character) != std::string_view::npos;
    });
    if (sign != word.begin() && sign != word.end() && !sign->isQuoted) {
        const bool hasEquals = sign->character != '=' && sign + 1 != word.end() && (sign + 1)->Is('=');
        if (sign->character != '!' || hasEquals) {
            condition.sign = sign->character;
            condition.sign += hasEquals ? "=" : "";
            condition.name = TextOf(Word(word.begin(), sign));
            condition.value.assign(sign + static_cast<std::ptrdiff_t>(condition.sign.size()), word.end());
            const bool isOrder = condition.sign != "=" && condition.sign != "!=";
            return isOrder && !IsNumber(condition.value, isCertain) ? std::nullopt : std::optional(condition);
        }
    }
    condition.word = TextOf(word);
    return condition;
}

bool HasName(const std::string& name, std::string_view path) {
    if (IsSame(name, "value")) {
        return true;
    }
    if (name.find_first_of(".[") != std::string::npos) {
        return IsPatternOf(PlainWord(name), path, '.');
    }
    // The last name, without the index or the key behind it. A key may hold anything.
    const std::size_t key = path.find("[\"");
    std::string last;
    for (const char c : path.substr(0, key)) {
        last = c == '.' ? std::string() : last + c;
    }
    return IsPatternOf(PlainWord(name), last.substr(0, last.find('[')));
}

bool HasValue(const Condition& condition, std::string_view value, bool& isCertain) {
    if (condition.sign == "=" || condition.sign == "!=") {
        return IsEqual(condition.value, value, isCertain) == (condition.sign == "=");
    }
    const std::optional<double> number = NumberOf(value, isCertain);
    const double wanted = *NumberOf(TextOf(condition.value), isCertain);
    return number && ((condition.sign == "<" && *number < wanted) || (condition.sign == "<=" && *number <= wanted) ||
                      (condition.sign == ">" && *number > wanted) || (condition.sign == ">=" && *number >= wanted));
}

/// What of the message the condition is about, where it isn't its fields.
std::vector<std::string> ValuesOf(const std::string& key, const MessageHead& head) {
    if (key == "command") {
        return {head.command};
    }
    if (key == "family") {
        return {std::string(head.family)};
    }
    if (key == "thread") {
        return {head.source};
    }
    if (key == "id") {
        return {std::to_string(head.id), std::to_string(head.type) + '/' + std::to_string(head.id)};
    }
    if (key == "direction" && head.direction) {
        return {*head.direction == krm::Direction::Send ? "request" : "answer"};
    }
    if (key == "ecu" && head.ecu) {
        return {std::to_string(*head.ecu)};
    }
    if (key == "exchange" && head.exchange) {
        return {std::to_string(*head.exchange)};
    }
    return {};
}

bool IsMetBy(const Message& message, const Condition& condition, bool& isCertain) {
    bool isMet = false;
    if (!condition.key.empty()) {
        for (const std::string& value : ValuesOf(condition.key, message.head)) {
            isMet = IsEqual(condition.value, value, isCertain) || isMet;
        }
    } else {
        for (const auto& [path, value] : message.fields) {
            const bool is = condition.sign.empty()
                                ? Occurs(condition.word, path + '=' + value)
                                : HasName(condition.name, path) && HasValue(condition, value, isCertain);
            isMet = is || isMet;
        }
    }
    return isMet != condition.isNot;
}

/// The conditions of an expression; nothing where it is none.
std::optional<std::vector<Condition>> ConditionsIn(std::string_view expression, bool& isCertain) {
    const std::optional<std::vector<Word>> words = WordsIn(expression);
    if (!words) {
        return std::nullopt;
    }
    std::vector<Condition> conditions;
    for (const Word& word : *words) {
        const std::optional<Condition> condition = ConditionIn(word, isCertain);
        if (!condition) {
            return std::nullopt;
        }
        conditions.push_back(*condition);
    }
    return conditions;
}

/// The filter, or nothing and why.
std::optional<krm_cli::Filter> FilterOf(const std::string& expression) {
    try {
        return krm_cli::Filter(expression);
    } catch (const krm_cli::Failure& failure) {
        const std::string_view what = failure.what();
        KRM_FUZZ_CHECK(what.starts_with("filter: "));
        KRM_FUZZ_CHECK(
            std::ranges::none_of(what, [](char c) { return static_cast<unsigned char>(c) < ' ' || c == 0x7F; }));
        return std::nullopt;
    }
}

bool Passes(krm_cli::Filter& filter, const Message& message) {
    const auto run = [&](bool stopsEarly) {
        filter.Begin();
        for (const auto& [path, value] : message.fields) {
            if (stopsEarly && filter.IsSettled()) {
                break;
            }
            filter.Take({path, value});
        }
        return filter.End(message.head);
    };
    const bool passes = run(false);
    KRM_FUZZ_CHECK(run(true) == passes);
    return passes;
}

MessageHead DiagnosticHead(const char* command, krm_ulong id, krm::Direction direction, krm_ulong ecu) {
    MessageHead head;
    head.command = command;
    head.family = "Cmd";
    head.direction = direction;
    head.type = 1;
    head.id = id;
    head.ecu = ecu;
    return head;
}

std::vector<Message> Messages() {
    std::vector<Message> messages(3);  // of the first nothing is known
    messages[1].head = DiagnosticHead("ClearDTC", 5, krm::Direction::Send, 7);
    messages[1].fields = {{"m_dwCommandType", "1"}, {"m_dwCommandID", "5"}, {"m_ulEcuId", "7"}};
    MessageHead& answer = messages[2].head;
    answer = DiagnosticHead("GetDTC", 2, krm::Direction::Receive, 2024);
    answer.source = "[main] 7";
    answer.exchange = 3;
    messages[2].fields = {{"m_bNotSupport", "false"},
                          {"Data[0].m_strDTC", "P0301"},
                          {"Data[0].m_strDTCName", "Cylinder 1 misfire"},
                          {"Data[0].m_ulDTCCode", "0x301"},
                          {"Data[0].m_dValue", "49.5"},
                          {"Data[0].m_lOffset", "-1(4294967295)"},
                          {"Data[1].m_strDTC", "C1201"},
                          {"Data[1].m_uchSSRNo[3]", "-7"},
                          {"m_cResourceMap[\"help.title\"]", "a=b"}};
    return messages;
}

void CheckModel(const std::string& expression, std::optional<krm_cli::Filter>& filter,
                const std::vector<Message>& messages) {
    bool isCertain = true;
    const std::optional<std::vector<Condition>> conditions = ConditionsIn(expression, isCertain);
    KRM_FUZZ_CHECK(conditions.has_value() == filter.has_value() || !isCertain);
    if (!conditions || !filter) {
        return;
    }
    for (const Message& message : messages) {
        bool isMet = true;
        for (const Condition& condition : *conditions) {
            isMet = IsMetBy(message, condition, isCertain) && isMet;
        }
        KRM_FUZZ_CHECK(Passes(*filter, message) == isMet || !isCertain);
    }
}

/// Both, in either order. A quote that isn't closed goes on in the other one.
void CheckBoth(const std::string& one, std::optional<krm_cli::Filter>& filter, const std::string& other,
               std::optional<krm_cli::Filter>& otherFilter, const std::vector<Message>& messages) {
    if (!WordsIn(one) || !WordsIn(other)) {
        return;
    }
    for (const std::string& expression : {one + ' ' + other, other + '\n' + one}) {
        std::optional<krm_cli::Filter> both = FilterOf(expression);
        KRM_FUZZ_CHECK(both.has_value() == (filter && otherFilter));
        for (const Message& message : messages) {
            KRM_FUZZ_CHECK(!both ||
                           Passes(*both, message) == (Passes(*filter, message) && Passes(*otherFilter, message)));
        }
    }
}

/// `-` in front of a condition asks for the contrary, and the condition is refused all the same.
void CheckContrary(const std::string& expression, std::optional<krm_cli::Filter>& filter,
                   const std::vector<Message>& messages) {
    const std::optional<std::vector<Word>> words = WordsIn(expression);
    if (!words || words->size() != 1 || words->front().empty() || words->front().front().Is('-')) {
        return;
    }
    std::optional<krm_cli::Filter> contrary =
        FilterOf('-' + expression.substr(expression.find_first_not_of(" \t\n\r")));
    KRM_FUZZ_CHECK(contrary.has_value() == filter.has_value());
    for (const Message& message : messages) {
        KRM_FUZZ_CHECK(!filter || Passes(*contrary, message) != Passes(*filter, message));
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::size_t kMost = 2000;  // the patterns' table grows with both
    if (size > kMost) {
        return 0;
    }
    std::vector<std::string> parts(1);
    for (const std::uint8_t byte : std::vector<std::uint8_t>(data, data + size)) {
        if (byte == 0) {
            parts.emplace_back();
        } else {
            parts.back() += static_cast<char>(byte);
        }
    }
    parts.resize(std::max<std::size_t>(parts.size(), 2));
    std::vector<Message> messages = Messages();
    Message& own = messages.emplace_back();
    own.head.command = "type 1, ID 900";
    own.head.type = 1;
    own.head.id = 900;
    own.head.source = parts.back();
    for (std::size_t i = 2; i < parts.size(); ++i) {
        const std::size_t equals = std::min(parts[i].find('='), parts[i].size());
        own.fields.emplace_back(parts[i].substr(0, equals), parts[i].substr(std::min(equals + 1, parts[i].size())));
    }
    std::optional<krm_cli::Filter> filters[] = {FilterOf(parts[0]), FilterOf(parts[1])};
    for (std::size_t i = 0; i < 2; ++i) {
        CheckModel(parts[i], filters[i], messages);
        CheckContrary(parts[i], filters[i], messages);
    }
    CheckBoth(parts[0], filters[0], parts[1], filters[1], messages);
    return 0;
}

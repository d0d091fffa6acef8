// The filter language: which messages of an exchange somebody wants to see. The page of viewer/ has the same.
//
//     command:GetDTC ecu:2024 m_strDTC=P03* value>50
//
// Conditions have blanks between them; a message must meet all. `-` in front of one: it must not be met.
//
// - `command:`, `family:`, `id:` (1/2, or 2), `direction:`, `ecu:`, `exchange:`, `thread:` and a value.
// - A field's name, then = != < <= > or >=, then a value: some field of that name has such a value. A name alone is a field
//   at any depth, a name with points or brackets the whole path; `value` is any field. = and != compare numbers as numbers,
//   0x7E8 as 2024, and else texts.
// - Any other word occurs in some line: in a path, `=` and a value.
//
// In names and values `*` stands for any characters, and ASCII's letters of either case are the same. Nothing in quotes has a
// meaning of its own, but \" and \\.
#ifndef KRM_CLI_FILTER_H_
#define KRM_CLI_FILTER_H_

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cli/input.h"

namespace krm_cli {

/// A word of a filter. What was quoted is marked, character by character.
struct FilterWord {
    std::string text;
    std::vector<bool> quoted;

    FilterWord From(std::size_t begin) const;
};

/// A value that a filter asks for.
class FilterValue {
public:
    FilterValue() = default;
    explicit FilterValue(const FilterWord& word);

    /// Whether the text is this, as a number or as a text.
    bool IsEqual(std::string_view text) const;
    /// Nothing where it is no number, or quoted.
    const std::optional<double>& Number() const { return m_number; }
    bool IsEmpty() const { return m_pieces.size() == 1 && m_pieces[0].empty(); }

private:
    std::vector<std::string> m_pieces;  ///< what stands between the `*`, in lower case
    std::optional<double> m_number;
};

class Filter {
public:
    /// Throws Failure where the expression is none. An empty one lets all messages through.
    explicit Filter(const std::string& expression);

    // For each message in turn, as Input tells it: what it has, and whether it passes.
    void Begin();
    void Take(const FieldText& field) {
        if (m_open != 0) {
            TakeOpen(field);
        }
    }
    /// Whether fields of this message can change nothing any more.
    bool IsSettled() const { return m_open == 0; }
    bool End(const MessageHead& head) const;

private:
    enum class Kind { Command, Family, Id, Direction, Ecu, Exchange, Thread, Field, Word };
    enum class Sign { Equal, Unequal, Less, LessOrEqual, Greater, GreaterOrEqual };
    struct Condition {
        Kind kind = Kind::Word;
        bool isNot = false;
        std::vector<std::string> names;  ///< of a field: patterns of its name, or of the names of its path
        bool isPath = false;
        bool isAnyField = false;
        Sign sign = Sign::Equal;
        FilterValue value;
        std::string word;    ///< in lower case
        bool isMet = false;  ///< by a field of the message that is read
    };

    static bool AsksForField(const Condition& condition) {
        return condition.kind == Kind::Field || condition.kind == Kind::Word;
    }
    static Condition ConditionOf(const FilterWord& word);
    static bool IsMetBy(const Condition& condition, const FieldText& field);
    static bool HasName(const Condition& condition, std::string_view path);
    static bool HasValue(const Condition& condition, std::string_view value);
    static bool IsMet(const Condition& condition, const MessageHead& head);
    void TakeOpen(const FieldText& field);

    std::vector<Condition> m_conditions;
    std::size_t m_open = 0;  ///< how many that ask for a field are not met yet
};

}  // namespace krm_cli

#endif  // KRM_CLI_FILTER_H_

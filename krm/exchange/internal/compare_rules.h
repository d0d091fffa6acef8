// What Compare's options say of each field of a class: their patterns, resolved to a tree of the class's shape.
#ifndef KRM_EXCHANGE_INTERNAL_COMPARE_RULES_H_
#define KRM_EXCHANGE_INTERNAL_COMPARE_RULES_H_

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "krm/exchange/compare.h"
#include "krm/fields/message_descriptions.h"

namespace krm::comparing {

struct ElementRules;

/// What holds for a value and for what is beneath it. Where there are no rules beneath, there are no nodes.
struct Rules {
    /// Indices of fields, from a list's element down to one field of its key. None is the element itself.
    using KeyPath = std::vector<std::size_t>;

    bool ignored = false;
    bool keyed = false;
    bool orderCounts = false;
    std::vector<KeyPath> key;

    std::vector<Rules> fields;             // of a record: none, or one for each field
    std::vector<Rules> every;              // of a list, an array or a map: none, or one for elements that have no other
    std::vector<ElementRules> elements;    // those that patterns name by index; they hold what `every` says as well
    std::vector<std::string> ignoredKeys;  // of a map
};

/// The rules of one element.
struct ElementRules {
    int index;
    Rules rules;
};

/// What holds for a field of a record with `rules`, which may be null; null where nothing does.
const Rules* OfField(const Rules* rules, std::size_t index);
/// The same for an element of a list or an array.
const Rules* OfElement(const Rules* rules, int index);
/// Whether the entry of a map with `rules`, which may be null, is ignored.
bool IgnoresEntry(const Rules* rules, std::string_view key);
/// Whether the value with `rules`, which may be null, is ignored.
inline bool Ignores(const Rules* rules) {
    return rules != nullptr && rules->ignored;
}

/// Adds to `rules`, which are those of a value of this type, what `options` says. Returns what is wrong with the options.
std::optional<std::string> Add(const CompareOptions& options, const TypeDescription& type, Rules& rules);

/// Adds to `rules`, which are those of a value of this type, that what `pattern` names is ignored. Returns what is wrong with
/// the pattern; that the type doesn't have it is left aside where it `mayMiss`.
std::optional<std::string> AddIgnored(const std::string& pattern, const TypeDescription& type, Rules& rules,
                                      bool mayMiss);

}  // namespace krm::comparing

#endif  // KRM_EXCHANGE_INTERNAL_COMPARE_RULES_H_

#include "krm/exchange/internal/compare_rules.h"

#include <algorithm>
#include <charconv>
#include <functional>
#include <span>
#include <system_error>
#include <utility>

#include "krm/exchange/internal/compare_text.h"

namespace krm::comparing {
namespace {

/// One step of a pattern.
struct Step {
    enum class Kind {
        Name,   // a record's fields; `text` may hold asterisks
        Every,  // [*]
        Index,  // [3]
        Key     // ["text"]
    };

    Kind kind;
    std::string text;
    int index;
    std::string_view before;  // the pattern up to this step
};

/// A pattern's steps, or what is wrong with it.
struct Pattern {
    std::vector<Step> steps;
    std::optional<std::string> error;
};

bool IsInName(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' || c == '*';
}

/// Takes what stands behind an opening bracket, the closing one too; false where it is no index.
bool TakeIndex(std::string_view& rest, Step& step) {
    if (rest.starts_with('*')) {
        step.kind = Step::Kind::Every;
        rest.remove_prefix(1);
    } else if (rest.starts_with('"')) {
        step.kind = Step::Kind::Key;
        std::optional<std::string> key = TakeQuoted(rest);
        if (!key) {
            return false;
        }
        step.text = std::move(*key);
    } else {
        step.kind = Step::Kind::Index;
        const auto [end, error] = std::from_chars(rest.data(), rest.data() + rest.size(), step.index);
        if (error != std::errc() || step.index < 0) {
            return false;
        }
        rest.remove_prefix(static_cast<std::size_t>(end - rest.data()));
    }
    if (!rest.starts_with(']')) {
        return false;
    }
    rest.remove_prefix(1);
    return true;
}

Pattern Parse(std::string_view text) {
    Pattern pattern;
    std::string_view rest = text;
    const auto here = [&] { return text.size() - rest.size(); };
    const auto wrong = [&](std::string_view expected) {
        pattern.error = "at character " + std::to_string(here() + 1) + ", expected " + std::string(expected);
        return pattern;
    };
    bool nameIsDue = !rest.empty() && !rest.starts_with('[');
    while (nameIsDue || !rest.empty()) {
        Step step{Step::Kind::Name, {}, 0, text.substr(0, here())};
        if (step.before.ends_with('.')) {
            step.before.remove_suffix(1);
        }
        if (nameIsDue) {
            const auto end = std::find_if_not(rest.begin(), rest.end(), IsInName);
            const auto length = static_cast<std::size_t>(end - rest.begin());
            if (length == 0) {
                return wrong("a field's name");
            }
            step.text = rest.substr(0, length);
            rest.remove_prefix(length);
            nameIsDue = false;
        } else if (rest.starts_with('[')) {
            rest.remove_prefix(1);
            if (!TakeIndex(rest, step)) {
                return wrong("a number, * or a key in quotes, and ]");
            }
        } else if (rest.starts_with('.')) {
            rest.remove_prefix(1);
            nameIsDue = true;
            continue;
        } else {
            return wrong("a dot or [");
        }
        pattern.steps.push_back(std::move(step));
    }
    return pattern;
}

/// Whether `name` is as `pattern` says.
bool Matches(std::string_view pattern, std::string_view name) {
    std::size_t at = 0;
    std::size_t star = std::string_view::npos;  // the last asterisk, which may take more of the name
    std::size_t taken = 0;
    std::size_t i = 0;
    while (i < name.size()) {
        if (at < pattern.size() && pattern[at] == '*') {
            star = at++;
            taken = i;
        } else if (at < pattern.size() && pattern[at] == name[i]) {
            ++at;
            ++i;
        } else if (star != std::string_view::npos) {
            at = star + 1;
            i = ++taken;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of('*', at) == std::string_view::npos;
}

/// What a pattern leads to: sets a rule there, or says why it can't.
using Target = std::function<std::optional<std::string>(const TypeDescription& type, Rules& rules)>;

std::optional<std::string> Apply(std::span<const Step> steps, const TypeDescription& type, Rules& rules,
                                 const Target& target);

std::string Named(const Step& step) {
    return step.before.empty() ? std::string("what is compared") : Quoted(step.before);
}

std::optional<std::string> ApplyToFields(std::span<const Step> steps, const TypeDescription& type, Rules& rules,
                                         const Target& target) {
    const Step& step = steps.front();
    if (type.kind != ValueKind::Record) {
        const bool isList = type.element != nullptr && type.element->kind == ValueKind::Record;
        return Named(step) + " is no record" + (isList ? " but a list; its elements are behind [*]" : "");
    }
    std::optional<std::string> error;
    bool anyName = false;
    bool anyDone = false;
    for (std::size_t i = 0; i < type.fields.size(); ++i) {
        if (!Matches(step.text, type.fields[i].name)) {
            continue;
        }
        anyName = true;
        rules.fields.resize(type.fields.size());
        std::optional<std::string> failed = Apply(steps.subspan(1), *type.fields[i].type, rules.fields[i], target);
        anyDone = anyDone || !failed;
        if (!error) {
            error = std::move(failed);
        }
    }
    if (!anyName) {
        return std::string(type.className) + " has no field " + Quoted(step.text);
    }
    return anyDone ? std::nullopt : error;
}

std::optional<std::string> ApplyToEntry(const Step& step, bool isLast, Rules& rules, const Target& target) {
    if (!isLast) {
        return "a map's entries are texts, with nothing beneath";
    }
    static constexpr TypeDescription kText = kTypeDescription<CKRMString>;
    Rules ofEntry;
    std::optional<std::string> error = target(kText, ofEntry);
    if (!error && step.kind == Step::Kind::Every) {
        rules.every.push_back(std::move(ofEntry));
    } else if (!error) {
        rules.ignoredKeys.push_back(step.text);
    }
    return error;
}

std::optional<std::string> ApplyToElements(std::span<const Step> steps, const TypeDescription& type, Rules& rules,
                                           const Target& target) {
    const Step& step = steps.front();
    const auto apply = [&](Rules& element) { return Apply(steps.subspan(1), *type.element, element, target); };
    const bool isMap = type.kind == ValueKind::Map;
    if (isMap && step.kind != Step::Kind::Index) {
        return ApplyToEntry(step, steps.size() == 1, rules, target);
    }
    if (isMap || type.element == nullptr) {
        return Named(step) + (isMap ? " is a map; its entries have keys in quotes" : " is no list");
    }
    if (step.kind == Step::Kind::Key) {
        return Named(step) + " is no map";
    }
    if (step.kind == Step::Kind::Every) {
        if (rules.every.empty()) {
            rules.every.emplace_back();
        }
        std::optional<std::string> error = apply(rules.every.front());
        for (ElementRules& element : rules.elements) {
            apply(element.rules);  // fails as the first did: the elements' type is the same
        }
        return error;
    }
    if (type.kind == ValueKind::Array && step.index >= type.length) {
        return Named(step) + " has only " + std::to_string(type.length) + " elements";
    }
    auto place = std::ranges::lower_bound(rules.elements, step.index, {}, &ElementRules::index);
    if (place == rules.elements.end() || place->index != step.index) {
        place = rules.elements.insert(place, {step.index, rules.every.empty() ? Rules() : rules.every.front()});
    }
    return apply(place->rules);
}

/// Leads `target` to all that the steps name. It must fit some of that; else returns why it doesn't fit the first.
std::optional<std::string> Apply(std::span<const Step> steps, const TypeDescription& type, Rules& rules,
                                 const Target& target) {
    if (steps.empty()) {
        return target(type, rules);
    }
    return steps.front().kind == Step::Kind::Name ? ApplyToFields(steps, type, rules, target)
                                                  : ApplyToElements(steps, type, rules, target);
}

bool IsKey(const TypeDescription& type) {
    return type.integer != nullptr || type.kind == ValueKind::Double || type.kind == ValueKind::Text;
}

/// Appends the way from an element of this type to one field of its key, or says why there is none.
std::optional<std::string> FindKey(std::span<const Step> steps, const TypeDescription& element,
                                   std::vector<Rules::KeyPath>& key) {
    const TypeDescription* type = &element;
    Rules::KeyPath path;
    for (const Step& step : steps) {
        const auto found = std::ranges::find(type->fields, step.text, &FieldDescription::name);
        if (found == type->fields.end()) {
            return (type->kind == ValueKind::Record ? std::string(type->className) : NameOfType(*type)) +
                   " has no field " + Quoted(step.text);
        }
        path.push_back(static_cast<std::size_t>(found - type->fields.begin()));
        type = found->type;
    }
    if (!IsKey(*type)) {
        return "a " + NameOfType(*type) + " can't be a key";
    }
    key.push_back(std::move(path));
    return std::nullopt;
}

/// What goes wrong with options, and what they say of a class.
class Addition {
public:
    Addition(const TypeDescription& type, Rules& rules, bool mayMiss)
        : m_type(&type), m_rules(&rules), m_mayMiss(mayMiss) {}

    /// Sets a rule at all that the pattern names.
    std::optional<std::string> At(const std::string& text, const Target& target) const {
        const Pattern pattern = Parse(text);
        if (pattern.error) {
            return pattern.error;
        }
        std::optional<std::string> error = Apply(pattern.steps, *m_type, *m_rules, target);
        return m_mayMiss ? std::nullopt : error;
    }

    std::optional<std::string> Ignore(const std::string& pattern) const {
        const auto ignore = [](const TypeDescription&, Rules& rules) {
            rules.ignored = true;
            return std::optional<std::string>();
        };
        // It would be the value itself, all of it: rather a slip.
        return pattern.empty() ? std::optional<std::string>("is empty") : At(pattern, ignore);
    }

    std::optional<std::string> MatchBy(const ListKey& key) const {
        std::vector<Pattern> fields;
        for (const std::string& field : key.fields) {
            fields.push_back(Parse(field));
            const auto isOther = [](const Step& step) {
                return step.kind != Step::Kind::Name || step.text.find('*') != std::string::npos;
            };
            if (!fields.back().error && std::ranges::any_of(fields.back().steps, isOther)) {
                fields.back().error = "a key's field is written without * and [";
            }
            if (fields.back().error) {
                return In("key's field ", field, fields.back().error);
            }
        }
        const auto set = [&](const TypeDescription& type, Rules& rules) -> std::optional<std::string> {
            if (type.element == nullptr) {
                return "a " + NameOfType(type) + " is no list";
            }
            std::vector<Rules::KeyPath> found;
            for (const Pattern& field : fields) {
                if (std::optional<std::string> error = FindKey(field.steps, *type.element, found)) {
                    return error;
                }
            }
            if (fields.empty()) {
                if (std::optional<std::string> error = FindKey({}, *type.element, found)) {
                    return error;
                }
            }
            if (!rules.keyed) {
                rules.keyed = true;
                rules.orderCounts = key.orderCounts;
                rules.key = std::move(found);
            }
            return std::nullopt;
        };
        return In("key of ", key.list, At(key.list, set));
    }

    /// The same, naming the option.
    static std::optional<std::string> In(std::string_view what, const std::string& pattern,
                                         std::optional<std::string> error) {
        return error ? std::optional(std::string(what) + Quoted(pattern) + ": " + *error) : std::nullopt;
    }

private:
    const TypeDescription* m_type;
    Rules* m_rules;
    bool m_mayMiss;
};

}  // namespace

const Rules* OfField(const Rules* rules, std::size_t index) {
    return rules != nullptr && !rules->fields.empty() ? &rules->fields[index] : nullptr;
}

const Rules* OfElement(const Rules* rules, int index) {
    if (rules == nullptr) {
        return nullptr;
    }
    const auto named = std::ranges::lower_bound(rules->elements, index, {}, &ElementRules::index);
    if (named != rules->elements.end() && named->index == index) {
        return &named->rules;
    }
    return rules->every.empty() ? nullptr : &rules->every.front();
}

bool IgnoresEntry(const Rules* rules, std::string_view key) {
    return rules != nullptr &&
           (!rules->every.empty() || std::ranges::find(rules->ignoredKeys, key) != rules->ignoredKeys.end());
}

std::optional<std::string> Add(const CompareOptions& options, const TypeDescription& type, Rules& rules) {
    const Addition addition(type, rules, options.forOtherClassesToo);
    for (const std::string& pattern : options.ignore) {
        if (std::optional<std::string> error = Addition::In("ignored path ", pattern, addition.Ignore(pattern))) {
            return error;
        }
    }
    for (const ListKey& key : options.keys) {
        if (std::optional<std::string> error = addition.MatchBy(key)) {
            return error;
        }
    }
    return std::nullopt;
}

std::optional<std::string> AddIgnored(const std::string& pattern, const TypeDescription& type, Rules& rules,
                                      bool mayMiss) {
    return Addition(type, rules, mayMiss).Ignore(pattern);
}

}  // namespace krm::comparing

#include "krm/exchange/compare.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <numeric>
#include <ostream>
#include <span>
#include <string_view>
#include <utility>

#include "krm/exchange/internal/compare_rules.h"
#include "krm/exchange/internal/compare_text.h"
#include "krm/exchange/internal/text.h"
#include "krm/platform/string.h"

namespace krm {
namespace {

using comparing::Rules;
using Kind = Difference::Kind;
using exchange::TextMap;

/// Whether both describe the same class. A program and a DLL may have a description each.
bool IsSame(const TypeDescription& left, const TypeDescription& right) {
    return &left == &right ||
           (left.kind == right.kind && left.size == right.size && left.className == right.className &&
            left.fields.size() == right.fields.size() && left.length == right.length &&
            (left.element == nullptr || IsSame(*left.element, *right.element)));
}

/// Where a value lies: a chain of places on the stack up to what is compared, so that only a difference costs a text.
struct PathStep {
    const PathStep* around;  // null at the outermost
    std::string_view name;   // of a field, else of a map's entry
    bool isEntry;
    int index1;  // of an element, in the first value and in the second; of anything else -1
    int index2;

    static PathStep Field(const PathStep* around, std::string_view name) { return {around, name, false, -1, -1}; }
    static PathStep Entry(const PathStep* around, std::string_view key) { return {around, key, true, -1, -1}; }
    static PathStep Element(const PathStep* around, int index1, int index2) {
        return {around, {}, false, index1, index2};
    }
};

void AppendPath(const PathStep* place, int PathStep::*index, std::string& out) {
    if (place == nullptr) {
        return;
    }
    AppendPath(place->around, index, out);
    if (place->isEntry) {
        out += '[';
        comparing::AppendQuoted(place->name, out);
        out += ']';
    } else if (place->*index >= 0) {
        out += '[';
        exchange::AppendNumber(place->*index, out);
        out += ']';
    } else {
        if (!out.empty()) {
            out += '.';
        }
        out += place->name;
    }
}

std::string PathOf(const PathStep* place, int PathStep::*index) {
    std::string path;
    AppendPath(place, index, path);
    return path;
}

std::string TextOf(ConstValue value, const Rules* rules) {
    std::string text;
    comparing::AppendValue(value, rules, text);
    return text;
}

bool AreEqual(double left, double right, const Tolerance& tolerance) {
    if (left == right) {
        return true;
    }
    if (!std::isfinite(left) || !std::isfinite(right)) {
        return std::isnan(left) && std::isnan(right);
    }
    const double apart = std::fabs(left - right);
    return apart <= tolerance.absolute || apart <= tolerance.relative * std::fmax(std::fabs(left), std::fabs(right));
}

/// Less than 0, 0 or more than 0, as `left` comes before `right`, is equal or comes behind: an order of keys, NaN last.
int CompareKeys(ConstValue left, ConstValue right) {
    const auto order = [](const auto& a, const auto& b) { return a < b ? -1 : static_cast<int>(b < a); };
    if (const double* const number = left.As<double>()) {
        const double other = *right.As<double>();
        const int byNan = order(std::isnan(*number), std::isnan(other));
        return byNan != 0 ? byNan : order(*number, other);
    }
    if (const CKRMString* const text = left.As<CKRMString>()) {
        return View(*text).compare(View(*right.As<CKRMString>()));
    }
    return order(*left.Integer(), *right.Integer());
}

/// The value that the path leads to from `element`.
ConstValue KeyOf(ConstValue element, const Rules::KeyPath& path) {
    for (const std::size_t index : path) {
        element = element.Field(index);
    }
    return element;
}

/// The keys of a list's elements, one behind the other.
class Keys {
public:
    Keys(std::span<const ConstValue> elements, const std::vector<Rules::KeyPath>& paths) : m_width(paths.size()) {
        m_values.reserve(elements.size() * m_width);
        for (const ConstValue& element : elements) {
            for (const Rules::KeyPath& path : paths) {
                m_values.push_back(KeyOf(element, path));
            }
        }
    }

    int Compare(std::size_t index, const Keys& others, std::size_t otherIndex) const {
        int order = 0;
        for (std::size_t i = 0; i < m_width && order == 0; ++i) {
            order = CompareKeys(m_values[index * m_width + i], others.m_values[otherIndex * m_width + i]);
        }
        return order;
    }

    /// The elements' indices from `begin` on, in the order of their keys, equal keys in that of the elements.
    std::vector<std::size_t> Sorted(std::size_t begin) const {
        std::vector<std::size_t> indices(m_values.size() / m_width - begin);
        std::iota(indices.begin(), indices.end(), begin);
        std::sort(indices.begin(), indices.end(), [&](std::size_t left, std::size_t right) {
            const int order = Compare(left, *this, right);
            return order != 0 ? order < 0 : left < right;
        });
        return indices;
    }

    void AppendText(std::size_t index, std::string& out) const {
        const char* separator = "";
        out += m_width > 1 ? "(" : "";
        for (std::size_t i = 0; i < m_width; ++i) {
            out += separator;
            comparing::AppendValue(m_values[index * m_width + i], nullptr, out);
            separator = ", ";
        }
        out += m_width > 1 ? ")" : "";
    }

private:
    std::size_t m_width;
    std::vector<ConstValue> m_values;
};

constexpr std::size_t kNone = std::numeric_limits<std::size_t>::max();

/// For each of the first's elements the one of the second's that has its key, or kNone.
std::vector<std::size_t> Match(const Keys& keys1, std::size_t count1, const Keys& keys2, std::size_t count2) {
    std::vector<std::size_t> partners(count1, kNone);
    std::size_t alike = 0;
    while (alike < std::min(count1, count2) && keys1.Compare(alike, keys2, alike) == 0) {
        partners[alike] = alike;
        ++alike;
    }
    if (alike == count1 || alike == count2) {
        return partners;
    }
    const std::vector<std::size_t> sorted1 = keys1.Sorted(alike);
    const std::vector<std::size_t> sorted2 = keys2.Sorted(alike);
    auto next2 = sorted2.begin();
    for (const std::size_t index1 : sorted1) {
        while (next2 != sorted2.end() && keys2.Compare(*next2, keys1, index1) < 0) {
            ++next2;
        }
        if (next2 != sorted2.end() && keys2.Compare(*next2, keys1, index1) == 0) {
            partners[index1] = *next2++;
        }
    }
    return partners;
}

/// Walks two values of one class side by side.
class Walk {
public:
    Walk(const Tolerance& tolerance, std::vector<Difference>& found) : m_tolerance(tolerance), m_found(found) {
        m_values.reserve(128);  // for most messages the only block
    }

    void Visit(ConstValue first, ConstValue second, const Rules* rules, const PathStep* place) {
        if (comparing::Ignores(rules)) {
            return;
        }
        switch (first.Kind()) {
            case ValueKind::Bool:
            case ValueKind::Signed:
            case ValueKind::Unsigned:
                return Require(*first.Integer() == *second.Integer(), first, second, place);
            case ValueKind::Double:
                return Require(AreEqual(*first.As<double>(), *second.As<double>(), m_tolerance), first, second, place);
            case ValueKind::Text:
                return Require(View(*first.As<CKRMString>()) == View(*second.As<CKRMString>()), first, second, place);
            case ValueKind::Record:
                return VisitFields(first, second, rules, place);
            case ValueKind::List:
            case ValueKind::Array:
                return rules != nullptr && rules->keyed ? VisitByKey(first, second, *rules, place)
                                                        : VisitByPosition(first, second, rules, place);
            case ValueKind::Map:
                return VisitEntries(*first.As<TextMap>(), *second.As<TextMap>(), rules, place);
        }
    }

private:
    /// Puts elements behind what is in m_values, and takes them off when it dies. What is reached through
    /// m_values stays until then, but moves when more is put behind it.
    class Children {
    public:
        explicit Children(std::vector<ConstValue>& values) : m_values(values), m_begin(values.size()) {}
        ~Children() { m_values.erase(m_values.begin() + static_cast<std::ptrdiff_t>(m_begin), m_values.end()); }
        Children(const Children&) = delete;
        Children& operator=(const Children&) = delete;

        void AddElements(ConstValue list) {
            list.ForEachElement([&](ConstValue element) { m_values.push_back(element); });
        }
        ConstValue operator[](std::size_t index) const { return m_values[m_begin + index]; }
        std::span<const ConstValue> Elements(std::size_t begin, std::size_t count) const {
            return std::span<const ConstValue>(m_values).subspan(m_begin + begin, count);
        }

    private:
        std::vector<ConstValue>& m_values;
        std::size_t m_begin;
    };

    void VisitFields(ConstValue first, ConstValue second, const Rules* rules, const PathStep* around) {
        const std::span<const FieldDescription> fields = first.Type().fields;
        for (std::size_t i = 0; i < fields.size(); ++i) {
            const PathStep place = PathStep::Field(around, fields[i].name);
            Visit(first.Field(i), second.Field(i), comparing::OfField(rules, i), &place);
        }
    }

    void VisitByPosition(ConstValue first, ConstValue second, const Rules* rules, const PathStep* around) {
        Children ofSecond(m_values);
        ofSecond.AddElements(second);
        const int count2 = second.Count();
        int index = 0;
        first.ForEachElement([&](ConstValue element) {
            if (index < count2) {
                VisitElements(element, index, ofSecond[static_cast<std::size_t>(index)], index, rules, around);
            } else {
                Remove(element, index, rules, around);
            }
            ++index;
        });
        for (; index < count2; ++index) {
            Add(ofSecond[static_cast<std::size_t>(index)], index, rules, around);
        }
    }

    void VisitByKey(ConstValue first, ConstValue second, const Rules& rules, const PathStep* around) {
        const auto count1 = static_cast<std::size_t>(first.Count());
        const auto count2 = static_cast<std::size_t>(second.Count());
        Children children(m_values);
        children.AddElements(first);
        children.AddElements(second);
        const Keys keys1(children.Elements(0, count1), rules.key);
        const Keys keys2(children.Elements(count1, count2), rules.key);
        const std::vector<std::size_t> partners = Match(keys1, count1, keys2, count2);
        std::vector<bool> isTaken(count2);
        for (std::size_t i = 0; i < count1; ++i) {
            if (partners[i] == kNone) {
                Remove(children[i], static_cast<int>(i), &rules, around);
            } else {
                isTaken[partners[i]] = true;
                VisitElements(children[i], static_cast<int>(i), children[count1 + partners[i]],
                              static_cast<int>(partners[i]), &rules, around);
            }
        }
        for (std::size_t i = 0; i < count2; ++i) {
            if (!isTaken[i]) {
                Add(children[count1 + i], static_cast<int>(i), &rules, around);
            }
        }
        if (rules.orderCounts) {
            RequireOrder(keys1, keys2, partners, around);
        }
    }

    void RequireOrder(const Keys& keys1, const Keys& keys2, std::vector<std::size_t> partners, const PathStep* place) {
        std::string text1 = "[";
        std::string text2 = "[";
        const char* separator = "";
        for (std::size_t i = 0; i < partners.size(); ++i) {
            if (partners[i] != kNone) {
                text1 += separator;
                keys1.AppendText(i, text1);
                separator = ", ";
            }
        }
        std::erase(partners, kNone);
        if (std::is_sorted(partners.begin(), partners.end())) {
            return;
        }
        std::sort(partners.begin(), partners.end());
        separator = "";
        for (const std::size_t index : partners) {
            text2 += separator;
            keys2.AppendText(index, text2);
            separator = ", ";
        }
        Report(Kind::Reordered, place, text1 + ']', text2 + ']');
    }

    void VisitEntries(const TextMap& first, const TextMap& second, const Rules* rules, const PathStep* around) {
        using Entry = std::pair<std::string_view, const CKRMString*>;
        const auto entriesOf = [&](const TextMap& map) {
            std::vector<Entry> entries;
            for (const auto& [key, text] : map) {
                if (!comparing::IgnoresEntry(rules, View(key))) {
                    entries.emplace_back(View(key), &text);
                }
            }
            // By bytes, whatever the platform's map goes by.
            std::sort(entries.begin(), entries.end(), [](const Entry& a, const Entry& b) { return a.first < b.first; });
            return entries;
        };
        const auto value = [](const Entry& entry) { return ConstValue(kTypeDescription<CKRMString>, entry.second); };
        const std::vector<Entry> entries1 = entriesOf(first);
        const std::vector<Entry> entries2 = entriesOf(second);
        auto next1 = entries1.begin();
        auto next2 = entries2.begin();
        while (next1 != entries1.end() || next2 != entries2.end()) {
            const bool has1 = next1 != entries1.end() && (next2 == entries2.end() || next1->first <= next2->first);
            const bool has2 = next2 != entries2.end() && (next1 == entries1.end() || next2->first <= next1->first);
            const PathStep place = PathStep::Entry(around, has1 ? next1->first : next2->first);
            if (has1 && has2) {
                Visit(value(*next1), value(*next2), nullptr, &place);
            } else {
                Report(has1 ? Kind::Removed : Kind::Added, &place,
                       has1 ? TextOf(value(*next1), nullptr) : std::string(),
                       has2 ? TextOf(value(*next2), nullptr) : std::string());
            }
            next1 += has1 ? 1 : 0;
            next2 += has2 ? 1 : 0;
        }
    }

    void VisitElements(ConstValue first, int index1, ConstValue second, int index2, const Rules* rules,
                       const PathStep* around) {
        const PathStep place = PathStep::Element(around, index1, index2);
        Visit(first, second, comparing::OfElement(rules, index1), &place);
    }

    void Remove(ConstValue element, int index, const Rules* rules, const PathStep* around) {
        const Rules* const ofElement = comparing::OfElement(rules, index);
        if (!comparing::Ignores(ofElement)) {
            const PathStep place = PathStep::Element(around, index, index);
            Report(Kind::Removed, &place, TextOf(element, ofElement), {});
        }
    }

    void Add(ConstValue element, int index, const Rules* rules, const PathStep* around) {
        const Rules* const ofElement = comparing::OfElement(rules, index);
        if (!comparing::Ignores(ofElement)) {
            const PathStep place = PathStep::Element(around, index, index);
            Report(Kind::Added, &place, {}, TextOf(element, ofElement));
        }
    }

    void Require(bool equal, ConstValue first, ConstValue second, const PathStep* place) {
        if (!equal) {
            Report(Kind::Changed, place, TextOf(first, nullptr), TextOf(second, nullptr));
        }
    }

    void Report(Kind kind, const PathStep* place, std::string text1, std::string text2) {
        m_found.push_back({kind, PathOf(place, &PathStep::index1), PathOf(place, &PathStep::index2), std::move(text1),
                           std::move(text2)});
    }

    const Tolerance& m_tolerance;
    std::vector<Difference>& m_found;
    std::vector<ConstValue> m_values;  // of all Children that live, the innermost last
};

bool IsTolerance(double tolerance) {
    return std::isfinite(tolerance) && tolerance >= 0;
}

void AppendLine(const Difference& difference, std::string& out) {
    switch (difference.kind) {
        case Kind::Added:
            out += "added";
            break;
        case Kind::Removed:
            out += "removed";
            break;
        case Kind::Changed:
            out += "changed";
            break;
        case Kind::Reordered:
            out += "reordered";
            break;
        case Kind::OtherClass:
            out += "other class";
            break;
    }
    if (!difference.path.empty()) {
        out += ' ' + difference.path;
    }
    if (difference.pathIn2 != difference.path) {
        out += " (now " + difference.pathIn2 + ')';
    }
    out += ": ";
    out += difference.value1;
    out += difference.value1.empty() || difference.value2.empty() ? "" : " -> ";
    out += difference.value2;
}

}  // namespace

std::string ToText(const Difference& difference) {
    std::string text;
    AppendLine(difference, text);
    return text;
}

std::string ToText(const Comparison& comparison) {
    std::string text = comparison.error.empty() ? std::string() : "error: " + comparison.error + '\n';
    for (const Difference& difference : comparison.differences) {
        AppendLine(difference, text);
        text += '\n';
    }
    return text;
}

std::ostream& operator<<(std::ostream& out, const Difference& difference) {
    return out << ToText(difference);
}

std::ostream& operator<<(std::ostream& out, const Comparison& comparison) {
    return out << ToText(comparison);
}

Comparer::Comparer(const TypeDescription& type, const CompareOptions& options)
    : m_type(&type), m_tolerance(options.tolerance) {
    if (!IsTolerance(m_tolerance.absolute) || !IsTolerance(m_tolerance.relative)) {
        m_error = "a tolerance must be a finite number, 0 or more";
        return;
    }
    if (options.ignore.empty() && options.keys.empty()) {
        return;
    }
    const auto rules = std::make_shared<Rules>();
    m_error = comparing::Add(options, type, *rules).value_or("");
    m_rules = rules;
}

Comparison Comparer::Compare(ConstValue first, ConstValue second) const {
    Comparison comparison;
    comparison.error = m_error;
    if (!m_error.empty()) {
        return comparison;
    }
    if (!IsSame(first.Type(), *m_type)) {
        comparison.error =
            "a comparer of " + comparing::NameOfType(*m_type) + " can't compare " + comparing::NameOfType(first.Type());
    } else if (!IsSame(first.Type(), second.Type())) {
        comparison.differences.push_back(
            {Kind::OtherClass, {}, {}, comparing::NameOfType(first.Type()), comparing::NameOfType(second.Type())});
    } else {
        Walk(m_tolerance, comparison.differences).Visit(first, second, m_rules.get(), nullptr);
    }
    return comparison;
}

Comparison Compare(ConstValue first, ConstValue second, const CompareOptions& options) {
    return Comparer(first.Type(), options).Compare(first, second);
}

Comparison Compare(const CKRMBaseAdaptationData& first, const CKRMBaseAdaptationData& second, Direction direction,
                   const CompareOptions& options) {
    const auto description = [direction](const CKRMBaseAdaptationData& message) {
        return FindMessage(message.GetCommandType(), message.GetCommandID(), direction);
    };
    const MessageDescription* const description1 = description(first);
    const MessageDescription* const description2 = description(second);
    if (description1 == nullptr || description2 == nullptr) {
        const CKRMBaseAdaptationData& unknown = description1 == nullptr ? first : second;
        return {{}, "the library has no message of " + CommandNameOf(unknown.GetCommandType(), unknown.GetCommandID())};
    }
    return Compare(*description1->ContentOf(first), *description2->ContentOf(second), options);
}

}  // namespace krm

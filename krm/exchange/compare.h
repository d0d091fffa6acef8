// What differs between two messages, or between any two values that krm/fields/ knows:
//
//     const krm::Comparison changes = krm::Compare(before, after, {.ignore = {"Data[*].m_ul*NameId"},
//                                                                  .keys = {{"Data", {"m_strDTC"}}}});
//     std::cout << changes;
//
//     changed Data[0].m_uchDTCStatus: 1 -> 2
//     added Data[2]: {m_uchDTCKind=0, m_ulDTCCode=769, m_strDTC="P0301", ...}
//
// Paths are those of the operation log: a record's field behind a dot, a list's element by its index from 0. A map's entry,
// which the log doesn't show, is `m_cResourceMap["key"]`. Texts in quotes are UTF-8 on one line: a quote and a backslash have a
// backslash in front, line feed, carriage return and tab are `\n`, `\r` and `\t`, and what else isn't to be printed stands byte
// by byte as `\x` and two hexadecimal digits; so does every byte that isn't UTF-8. Numbers are decimal, doubles with the fewest
// digits that read back to the same bits; bools are false and true; records {field=value, ...}, lists [value, ...], maps
// {"key"=value, ...}.
//
// Lists are compared position by position, and each surplus element is one difference. One that came in front therefore
// changes all behind it; a ListKey prevents that.
//
// Type and ID are their class's and no differences. The imported base's third member, m_uchStatus, has no accessor and isn't
// compared.
//
// The differences, their order and their texts are the same on every platform and in every locale. The effort grows with
// what both values hold, for a list with a key by the sorting of its keys, and no field that is equal costs a block of
// memory. Nothing is thrown but std::bad_alloc.
#ifndef KRM_EXCHANGE_COMPARE_H_
#define KRM_EXCHANGE_COMPARE_H_

#include <iosfwd>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include "krm/exchange/export.h"
#include "krm/fields/fields.h"
#include "krm/fields/message_descriptions.h"
#include "krm/framework/commands.h"
#include "krm/messages/describe.h"
#include "krm/platform/platform.h"

namespace krm {

/// Of a list or an array: how its elements find each other.
///
/// Elements with equal keys are compared with each other, wherever they stand; equal keys within a list are taken in their
/// order. The rest are added or removed. A key is there because position means nothing, so another order alone is no
/// difference, unless `orderCounts`.
struct ListKey {
    /// Pattern of the list, `Data`; empty if the values that are compared are lists. A list that several of these name takes
    /// the first that does.
    std::string list;
    /// Fields of an element that together tell it from the others: numbers or texts, also those of a record in it
    /// (`m_cTripTime.m_ushId`), each written out. None for lists of numbers or texts: the element itself. Doubles are
    /// the same key when they are equal without tolerance.
    std::vector<std::string> fields = {};
    /// Whether elements that both lists have, in another order, are a difference: one for the list.
    bool orderCounts = false;
};

/// How far doubles may lie apart and be equal all the same. Two are equal if they are the same number, which 0 and -0 are,
/// or both NaN; or if both are finite and either tolerance lets them be.
struct Tolerance {
    double absolute = 0;  ///< the highest difference; finite, not negative
    double relative = 0;  ///< the same as a share of the larger of the two magnitudes; finite, not negative
};

/// How to compare.
///
/// Options name fields by patterns: a path of the log, in which `*` within a name stands for any characters, or none, and
/// `[*]` for every element of a list or array, or every entry of a map. Every path of a difference is a pattern too. An index
/// counts in the first of the two values; that of an element that only the second has counts there.
struct CompareOptions {
    /// Patterns of what isn't compared; all beneath a record, list or map goes with it. An element's field that is ignored
    /// doesn't appear in the text of an added or removed element either.
    std::vector<std::string> ignore = {};
    std::vector<ListKey> keys = {};  ///< the lists whose elements are matched by something else than their position
    Tolerance tolerance = {};        ///< for all doubles
    /// A pattern, or a key's field, that the class doesn't have is an error, as it is mostly misspelled. With this, for
    /// options that serve messages of several classes, it is left aside; it must still be well written.
    bool forOtherClassesToo = false;
};

/// One difference.
struct Difference {
    /// What happened from the first to the second value.
    enum class Kind {
        Added,      ///< an element or entry that only the second has
        Removed,    ///< an element or entry that only the first has
        Changed,    ///< a number or a text
        Reordered,  ///< a list with a key whose order counts: the texts are the keys that both have, in order
        OtherClass  ///< the values are of different classes, which are the texts; nothing in them was compared
    };

    Kind kind;  ///< decides which texts there are
    /// Where, by the first value's indices; an added element's own index is the second's. Empty for the value that was
    /// compared itself.
    std::string path;
    /// Where, by the second value's indices: not as `path` where elements were matched by key. A removed element's own index
    /// is the first's.
    std::string pathIn2;
    std::string value1;  ///< the first's; empty for what was added
    std::string value2;  ///< the second's; empty for what was removed

    /// Whether all members are equal.
    friend bool operator==(const Difference&, const Difference&) = default;
};

/// What Compare found. Look at Equal: with options that can't be used there are no differences, but an error.
struct Comparison {
    /// In the order of the fields; of a list the first's elements, then what was added, then its order.
    std::vector<Difference> differences;
    std::string error;  ///< what is wrong with the options; then nothing was compared. Else empty

    /// Whether both were compared and nothing differs.
    bool Equal() const { return error.empty() && differences.empty(); }

    /// Whether the differences and the errors are equal.
    friend bool operator==(const Comparison&, const Comparison&) = default;
};

/// One line without its end, which has none within:
///
///     added PATH: VALUE
///     removed PATH: VALUE
///     changed PATH: VALUE -> VALUE
///     reordered PATH: [KEY, ...] -> [KEY, ...]
///     other class: NAME -> NAME
///
/// Behind a path that is another one in the second value stands ` (now PATH)`; a value that is compared itself has no path,
/// and no blank in front of it.
KRM_EXCHANGE_API std::string ToText(const Difference& difference);
/// A line for each difference, each with its end; for an error `error: ` and what it is. Nothing for what is equal.
KRM_EXCHANGE_API std::string ToText(const Comparison& comparison);
/// Writes ToText.
KRM_EXCHANGE_API std::ostream& operator<<(std::ostream& out, const Difference& difference);
/// Writes ToText.
KRM_EXCHANGE_API std::ostream& operator<<(std::ostream& out, const Comparison& comparison);

namespace comparing {
struct Rules;
}

/// Compares values of one class with the same options again and again: the options are understood once. It may be used by
/// several threads at the same time.
class KRM_EXCHANGE_API Comparer {
public:
    /// For values that `type` describes, which must live as long.
    explicit Comparer(const TypeDescription& type, const CompareOptions& options = {});

    /// What is wrong with the options; empty when they can be used.
    const std::string& Error() const { return m_error; }

    /// From `first` to `second`. An error if `first` isn't what this comparer is for.
    Comparison Compare(ConstValue first, ConstValue second) const;

private:
    const TypeDescription* m_type;
    Tolerance m_tolerance;
    std::shared_ptr<const comparing::Rules> m_rules;  // null where no option names a field
    std::string m_error;
};

/// What differs from `first` to `second`. Values of different classes have one difference, which says so; the options are
/// the first's.
KRM_EXCHANGE_API Comparison Compare(ConstValue first, ConstValue second, const CompareOptions& options = {});

/// The same of messages whose classes their type and ID tell. An error if the library has no such message; a class of one's
/// own is compared by its static type, or as krm::ConstValue.
/// REQUIRES: both have this direction, which they can't be asked for.
KRM_EXCHANGE_API Comparison Compare(const CKRMBaseAdaptationData& first, const CKRMBaseAdaptationData& second,
                                    Direction direction, const CompareOptions& options = {});

/// Whether Compare takes objects of this static type: a message, a record, a plain structure or a list of whatever may be a
/// field.
template <class T>
concept Comparable = HasFields<T> || kIsList<T>;

/// Whether this static type says a message's family and direction alone.
template <class T>
concept OnlyDirectionBase = std::is_base_of_v<CKRMBaseAdaptationData, T> && HasDirection<T> && !HasFieldsOfBase<T>;

/// The same of objects of these static types: messages, records, structures, lists. A reference to a family's request or
/// answer base is compared as the message that it refers to.
template <Comparable First, Comparable Second>
Comparison Compare(const First& first, const Second& second, const CompareOptions& options = {}) {
    if constexpr (OnlyDirectionBase<First> && std::is_same_v<First, Second>) {
        return Compare(first, second, First::kDirection, options);
    } else {
        static_assert(!OnlyDirectionBase<First> && !OnlyDirectionBase<Second>,
                      "a message known by its base alone is compared with one known by the same base");
        return Compare(ConstValue(kTypeDescription<First>, &first), ConstValue(kTypeDescription<Second>, &second),
                       options);
    }
}

}  // namespace krm

#endif  // KRM_EXCHANGE_COMPARE_H_

// Conveniences for CKRMList: size, filling from a range or braces, const access by index, comparison.
//
//     krm::Append(answer.Data, codes);                              // codes: any range of what converts to the elements
//     krm::Append(request.m_ulIdList, {1, 2, 3});
//     const auto ids = krm::MakeList<unsigned short>({0x10, 0x20});
//     if (!krm::Empty(answer.Data) && krm::At(answer.Data, 0).m_ulEcuId == 7) ...
//
// Algorithms of the standard library take `begin(list)` and `end(list)`, those of std::ranges the list itself.
#ifndef KRM_CORE_LIST_TOOLS_H_
#define KRM_CORE_LIST_TOOLS_H_

#include <cassert>
#include <compare>
#include <concepts>
#include <cstddef>
#include <initializer_list>
#include <iterator>
#include <type_traits>

#include "krm/core/list.h"

namespace krm {

/// What range-for can walk and whose elements convert to `T`.
template <class Range, class T>
concept RangeOf = requires(Range& range) {
    { *std::ranges::begin(range) } -> std::convertible_to<T>;
    std::ranges::end(range);
};

/// The number of elements. A count below 0, which RemoveAt makes of an empty list and a negative index, is 0.
template <class T>
std::size_t Size(const CKRMList<T>& list) {
    return list.GetCount() < 0 ? 0 : static_cast<std::size_t>(list.GetCount());
}

/// Whether there is no element.
template <class T>
bool Empty(const CKRMList<T>& list) {
    return list.GetHeadPosition() == nullptr;
}

/// The element at `index`. Linear in the index.
/// REQUIRES: `index` is below Size(list); debug builds stop where it isn't.
template <class T>
const T& At(const CKRMList<T>& list, std::size_t index) {
    assert(index < Size(list));
    auto element = begin(list);
    for (; index != 0; --index) {
        ++element;
    }
    return *element;
}

/// The element at `index`, null where the list has none there. Linear in the index.
template <class T>
const T* AtPtr(const CKRMList<T>& list, std::size_t index) {
    return index < Size(list) ? &At(list, index) : nullptr;
}

/// Appends copies of the elements of `range`, in order. It may be `list` itself, but nothing else that grows with it.
template <class T, RangeOf<T> Range>
void Append(CKRMList<T>& list, Range&& range) {
    if constexpr (std::is_same_v<std::remove_cvref_t<Range>, CKRMList<T>>) {
        if (&range == &list) {
            const CKRMList<T> copy(list);
            list.AddTail(&copy);
        } else {
            list.AddTail(&range);
        }
    } else {
        for (auto&& element : range) {
            list.AddTail(element);
        }
    }
}
/// The same from braces: `krm::Append(list, {1, 2, 3})`.
template <class T>
void Append(CKRMList<T>& list, std::initializer_list<std::type_identity_t<T>> elements) {
    for (const T& element : elements) {
        list.AddTail(element);
    }
}

/// A list of copies of the elements of `range`: `krm::MakeList<CKRMString>(names)`. To fill a list that is there already,
/// as a message's, take Append: assigning the new one to it would copy once more.
template <class T, RangeOf<T> Range>
CKRMList<T> MakeList(Range&& range) {
    CKRMList<T> list;
    Append(list, range);
    return list;
}
/// The same from braces: `krm::MakeList<unsigned short>({0x10, 0x20})`.
template <class T>
CKRMList<T> MakeList(std::initializer_list<T> elements) {
    CKRMList<T> list;
    Append(list, elements);
    return list;
}

}  // namespace krm

// Global, as the class is: so they are found wherever it is used. Only for elements that compare themselves; records don't.

/// Whether both lists have the same number of elements, and equal ones in each place.
template <class T>
bool operator==(const CKRMList<T>& left, const CKRMList<T>& right) requires requires(const T& element) {
    { element == element } -> std::convertible_to<bool>;
}
{
    auto other = begin(right);
    for (const T& element : left) {
        if (other == end(right) || !(element == *other)) {
            return false;
        }
        ++other;
    }
    return other == end(right);
}

/// Orders by the first elements that differ, and a list before those that it begins.
template <class T>
requires std::three_way_comparable<T> std::compare_three_way_result_t<T>
operator<=>(const CKRMList<T>& left, const CKRMList<T>& right) {
    auto other = begin(right);
    for (const T& element : left) {
        if (other == end(right)) {
            return std::strong_ordering::greater;
        }
        if (const auto order = element <=> *other; order != 0) {
            return order;
        }
        ++other;
    }
    return other == end(right) ? std::strong_ordering::equal : std::strong_ordering::less;
}

#endif  // KRM_CORE_LIST_TOOLS_H_

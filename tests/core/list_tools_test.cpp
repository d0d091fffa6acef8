// What stands beside CKRMList: iterators both ways, size, filling, const access by index, comparison.
#include "krm/core/list_tools.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <compare>
#include <concepts>
#include <cstddef>
#include <iterator>
#include <limits>
#include <list>
#include <ranges>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "krm/core/list.h"
#include "krm/messages/diag/display.h"
#include "krm/platform/platform.h"
#include "krm/platform/string.h"

namespace {

template <class T>
constexpr bool IsAStandardRange() {
    static_assert(std::bidirectional_iterator<CKRMListIterator<T>>);
    static_assert(std::bidirectional_iterator<CKRMListIterator<const T>>);
    static_assert(std::ranges::bidirectional_range<CKRMList<T>>);
    static_assert(std::ranges::bidirectional_range<const CKRMList<T>>);
    static_assert(std::ranges::common_range<CKRMList<T>>);
    static_assert(!std::ranges::random_access_range<CKRMList<T>>);
    static_assert(std::same_as<std::ranges::range_value_t<const CKRMList<T>>, T>);
    static_assert(std::same_as<std::ranges::range_reference_t<CKRMList<T>>, T&>);
    static_assert(std::same_as<std::ranges::range_reference_t<const CKRMList<T>>, const T&>);
    static_assert(std::same_as<typename std::iterator_traits<CKRMListIterator<T>>::iterator_category,
                               std::bidirectional_iterator_tag>);
    return true;
}
static_assert(IsAStandardRange<unsigned char>() && IsAStandardRange<krm_ulong>() && IsAStandardRange<CKRMString>() &&
              IsAStandardRange<CKRMCCommandDispData>() && IsAStandardRange<bool>());

/// The elements, front to back.
template <class T>
std::vector<T> Elements(const CKRMList<T>& list) {
    return std::vector<T>(begin(list), end(list));
}

TEST(ListIterator, WalksBothWays) {
    const CKRMList<int> list = krm::MakeList({1, 2, 3});
    auto position = end(list);
    EXPECT_EQ(*--position, 3);
    EXPECT_EQ(*position--, 3);
    EXPECT_EQ(*position, 2);
    EXPECT_EQ(*--position, 1);
    EXPECT_EQ(position, begin(list));
    EXPECT_EQ(*position++, 1);
    EXPECT_EQ(*++position, 3);
    EXPECT_EQ(++position, end(list));
}

TEST(ListIterator, TheEndIsThatOfTheListAsItIs) {
    CKRMList<int> list;
    auto position = end(list);
    EXPECT_EQ(position, begin(list));
    list.AddTail(1);
    list.AddTail(2);
    EXPECT_EQ(*--position, 2);
}

TEST(ListIterator, ToConstElementsFromAny) {
    CKRMList<int> list = krm::MakeList({1, 2});
    const CKRMListIterator<const int> position = begin(list);
    EXPECT_EQ(*position, 1);
    EXPECT_TRUE(position == begin(list));
    EXPECT_TRUE(end(list) != position);
    static_assert(!std::is_convertible_v<CKRMListIterator<const int>, CKRMListIterator<int>>);
}

TEST(ListIterator, FromAPositionAlone) {
    CKRMList<int> list = krm::MakeList({1, 2});
    CKRMListIterator<int> position(list.GetTailPosition());
    EXPECT_EQ(*position, 2);
    EXPECT_EQ(*--position, 1);
    EXPECT_EQ(CKRMListIterator<int>(), end(list));
}

TEST(ListIterator, ServesAlgorithmsThatNeedBothDirections) {
    CKRMList<int> list = krm::MakeList({1, 2, 3, 4});
    std::reverse(begin(list), end(list));
    EXPECT_EQ(Elements(list), (std::vector<int>{4, 3, 2, 1}));
    EXPECT_EQ(*std::find(std::make_reverse_iterator(end(list)), std::make_reverse_iterator(begin(list)), 3), 3);
    EXPECT_EQ(std::ranges::distance(list), 4);
    EXPECT_EQ(*std::ranges::find(list, 2), 2);
    EXPECT_EQ(std::ranges::count_if(list, [](int number) { return number > 2; }), 2);
    std::ranges::replace(list, 3, 7);
    EXPECT_EQ(Elements(list), (std::vector<int>{4, 7, 2, 1}));
    EXPECT_EQ(*std::ranges::prev(end(list), 2), 2);
}

TEST(ListSize, IsTheCount) {
    CKRMList<int> list;
    EXPECT_EQ(krm::Size(list), 0U);
    EXPECT_TRUE(krm::Empty(list));
    list.AddTail(1);
    list.AddTail(2);
    EXPECT_EQ(krm::Size(list), 2U);
    EXPECT_FALSE(krm::Empty(list));
    static_assert(std::is_same_v<decltype(krm::Size(list)), std::size_t>);
}

TEST(ListSize, OfAListThatCountsBelowZeroIsZero) {
    CKRMList<int> list;
    list.RemoveAt(-1);
    ASSERT_EQ(list.GetCount(), -1);
    EXPECT_EQ(krm::Size(list), 0U);
    EXPECT_TRUE(krm::Empty(list));
    EXPECT_EQ(krm::AtPtr(list, 0), nullptr);
}

TEST(ListFilling, FromBraces) {
    CKRMList<unsigned short> numbers;
    krm::Append(numbers, {0x10, 0x20});
    krm::Append(numbers, {});
    krm::Append(numbers, {0x30});
    EXPECT_EQ(Elements(numbers), (std::vector<unsigned short>{0x10, 0x20, 0x30}));
    CKRMList<CKRMString> texts;
    krm::Append(texts, {"P0301", "P0420"});
    EXPECT_EQ(Elements(texts), (std::vector<CKRMString>{"P0301", "P0420"}));
    EXPECT_EQ(Elements(krm::MakeList<krm_ulong>({1, 2, 3})), (std::vector<krm_ulong>{1, 2, 3}));
    const CKRMList<int> deduced = krm::MakeList({4, 5});
    EXPECT_EQ(Elements(deduced), (std::vector<int>{4, 5}));
    EXPECT_TRUE(krm::Empty(krm::MakeList<CKRMCCommandDispData>({})));
}

TEST(ListFilling, FromARange) {
    const std::vector<unsigned char> vector = {1, 2};
    const std::list<unsigned char> standardList = {3};
    const unsigned char array[] = {4, 5};
    const std::array<unsigned char, 1> standardArray = {6};
    const CKRMList<unsigned char> list = krm::MakeList<unsigned char>({7, 8});
    CKRMList<unsigned char> all;
    krm::Append(all, vector);
    krm::Append(all, standardList);
    krm::Append(all, array);
    krm::Append(all, standardArray);
    krm::Append(all, list);
    krm::Append(all, std::vector<unsigned char>{9});
    krm::Append(all, std::vector<unsigned char>());
    EXPECT_EQ(Elements(all), (std::vector<unsigned char>{1, 2, 3, 4, 5, 6, 7, 8, 9}));
    EXPECT_EQ(Elements(krm::MakeList<unsigned char>(array)), (std::vector<unsigned char>{4, 5}));
    // What converts by itself, as texts to strings; and into another list's elements.
    const char* const names[] = {"a", "b"};
    EXPECT_EQ(Elements(krm::MakeList<CKRMString>(names)), (std::vector<CKRMString>{"a", "b"}));
    EXPECT_EQ(Elements(krm::MakeList<krm_ulong>(list)), (std::vector<krm_ulong>{7, 8}));
}

template <class T, class Range>
concept CanAppend = requires(CKRMList<T>& list, const Range& range) {
    krm::Append(list, range);
};
static_assert(CanAppend<CKRMString, std::vector<CKRMString>>);
static_assert(!CanAppend<CKRMString, std::vector<std::string>>);  // not by itself: krm::MakeString says where it ends
static_assert(!CanAppend<CKRMString, std::vector<int>> && !CanAppend<int, int>);

TEST(ListFilling, AListAppendedToItselfIsThereTwice) {
    CKRMList<int> list = krm::MakeList({1, 2});
    krm::Append(list, list);
    EXPECT_EQ(Elements(list), (std::vector<int>{1, 2, 1, 2}));
    const CKRMList<int>& constant = list;
    krm::Append(list, constant);
    EXPECT_EQ(krm::Size(list), 8U);
}

TEST(ListFilling, ElementsAreCopies) {
    std::vector<CKRMString> source = {"a"};
    CKRMList<CKRMString> list;
    krm::Append(list, source);
    source[0] = "b";
    EXPECT_EQ(krm::At(list, 0), "a");
}

TEST(ListAccess, ByIndexOfAConstList) {
    const CKRMList<int> list = krm::MakeList({10, 20, 30});
    EXPECT_EQ(krm::At(list, 0), 10);
    EXPECT_EQ(krm::At(list, 2), 30);
    EXPECT_EQ(*krm::AtPtr(list, 1), 20);
    EXPECT_EQ(krm::AtPtr(list, 2), &krm::At(list, 2));
    EXPECT_EQ(krm::AtPtr(list, 3), nullptr);
    EXPECT_EQ(krm::AtPtr(list, std::numeric_limits<std::size_t>::max()), nullptr);
    EXPECT_EQ(krm::AtPtr(CKRMList<int>(), 0), nullptr);
    static_assert(std::is_same_v<decltype(krm::At(list, 0)), const int&>);
    static_assert(std::is_same_v<decltype(krm::AtPtr(list, 0)), const int*>);
}

TEST(ListComparison, ComparesElementByElement) {
    const CKRMList<int> list = krm::MakeList({1, 2});
    EXPECT_TRUE(list == list);
    EXPECT_TRUE(list == krm::MakeList({1, 2}));
    EXPECT_TRUE(CKRMList<int>() == CKRMList<int>());
    EXPECT_FALSE(list == krm::MakeList({1, 3}));
    EXPECT_TRUE(list != krm::MakeList({1}));
    EXPECT_TRUE(list != krm::MakeList({1, 2, 3}));
    EXPECT_TRUE(list != CKRMList<int>());

    EXPECT_TRUE(list < krm::MakeList({1, 3}));
    EXPECT_TRUE(list < krm::MakeList({1, 2, 0}));
    EXPECT_TRUE(list > krm::MakeList({1}));
    EXPECT_TRUE(list > krm::MakeList({0, 9, 9}));
    EXPECT_TRUE(CKRMList<int>() < list);
    EXPECT_TRUE(list <= list && list >= list);
    static_assert(std::is_same_v<decltype(list <=> list), std::strong_ordering>);
}

TEST(ListComparison, OfStringsAndReals) {
    EXPECT_TRUE(krm::MakeList<CKRMString>({"a", "b"}) == krm::MakeList<CKRMString>({"a", "b"}));
    EXPECT_TRUE(krm::MakeList<CKRMString>({"a", "b"}) < krm::MakeList<CKRMString>({"a", "c"}));
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const CKRMList<double> reals = krm::MakeList({1.0, nan});
    EXPECT_FALSE(reals == reals);
    EXPECT_EQ(reals <=> reals, std::partial_ordering::unordered);
    EXPECT_TRUE(reals > krm::MakeList({0.5, nan}));
}

struct Equatable {
    int number = 0;
    friend bool operator==(const Equatable&, const Equatable&) = default;
};
TEST(ListComparison, NeedsNoMoreThanEquality) {
    EXPECT_TRUE(krm::MakeList({Equatable{1}}) == krm::MakeList({Equatable{1}}));
    EXPECT_TRUE(krm::MakeList({Equatable{1}}) != krm::MakeList({Equatable{2}}));
}

template <class List>
concept HasEquality = requires(const List& list) {
    list == list;
};
template <class List>
concept HasOrder = requires(const List& list) {
    list < list;
};
static_assert(HasEquality<CKRMList<Equatable>> && !HasOrder<CKRMList<Equatable>>);
static_assert(HasEquality<CKRMList<CKRMList<int>>> && HasOrder<CKRMList<CKRMList<int>>>);
static_assert(!HasEquality<CKRMList<CKRMCCommandDispData>> && !HasOrder<CKRMList<CKRMCCommandDispData>>);

}  // namespace

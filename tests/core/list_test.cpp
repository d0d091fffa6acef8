// One suite for every kind of element: numbers, strings, records, an element that counts its lives, a user's own type.
#include "krm/core/list.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cstddef>
#include <cstring>
#include <functional>
#include <initializer_list>
#include <iterator>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "krm/messages/diag/display.h"
#include "krm/platform/platform.h"

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// Counts what a list does to its elements.
class Life {
public:
    struct Counts {
        int defaults = 0;
        int copies = 0;
        int assignments = 0;
        std::vector<int> destroyed;  ///< values, in order
        int alive = 0;
        bool throwOnAssignment = false;
    };
    static Counts& Count() {
        static Counts counts;
        return counts;
    }
    /// Starts a new count; who is alive stays so.
    static void Restart() {
        const int alive = Count().alive;
        Count() = Counts();
        Count().alive = alive;
    }

    Life() {
        ++Count().defaults;
        ++Count().alive;
    }
    explicit Life(int number) : value(number) { ++Count().alive; }
    Life(const Life& other) : value(other.value) {
        ++Count().copies;
        ++Count().alive;
    }
    Life& operator=(const Life& other) {
        if (Count().throwOnAssignment) {
            throw std::runtime_error("no assignment");
        }
        ++Count().assignments;
        value = other.value;
        return *this;
    }
    ~Life() {
        Count().destroyed.push_back(value);
        --Count().alive;
    }

    int value = -1;
};

void Set(unsigned char& it, int n) {
    it = static_cast<unsigned char>(200 + n);
}
void Set(unsigned short& it, int n) {
    it = static_cast<unsigned short>(60000 + n);
}
void Set(krm_ulong& it, int n) {
    it = 4000000000U + static_cast<krm_ulong>(n);
}
void Set(int& it, int n) {
    it = -n;
}
void Set(CKRMString& it, int n) {
    it.Format("text %d", n);
}
void Set(CKRMCCommandDispData& it, int n) {
    it.m_ulRawData = static_cast<krm_ulong>(n);
    it.m_strDataPhys.Format("pattern %d", n);
    it.m_dDataPhys = n / 4.0;
}
void Set(Life& it, int n) {
    it.value = n;
}

template <class T>
T Make(int n) {
    T it{};
    Set(it, n);
    return it;
}

bool Same(const CKRMString& left, const CKRMString& right) {
    return left.Compare(right.GetText()) == 0;
}
bool Same(const CKRMCCommandDispData& left, const CKRMCCommandDispData& right) {
    return left.m_ulRawData == right.m_ulRawData && Same(left.m_strDataPhys, right.m_strDataPhys) &&
           std::equal_to<>()(left.m_dDataPhys, right.m_dDataPhys);
}
bool Same(const Life& left, const Life& right) {
    return left.value == right.value;
}
template <class T>
bool Same(const T& left, const T& right) {
    return left == right;
}

/// The n for which `it` is what Make(n) makes, or -1.
template <class T>
int NumberOf(const T& it) {
    for (int n = 0; n < 50; ++n) {
        if (Same(it, Make<T>(n))) {
            return n;
        }
    }
    return -1;
}

template <class T>
void Add(CKRMList<T>& list, std::initializer_list<int> numbers) {
    for (const int n : numbers) {
        list.AddTail(Make<T>(n));
    }
}

/// The elements' numbers from head to tail; checks that the way back is the same, and the ends.
template <class T>
std::vector<int> Numbers(CKRMList<T>& list) {
    std::vector<int> forth;
    for (_SKRMPOSITION* position = list.GetHeadPosition(); position != nullptr;) {
        forth.push_back(NumberOf(list.GetNext(position)));
    }
    std::vector<int> back;
    for (_SKRMPOSITION* position = list.GetTailPosition(); position != nullptr;) {
        back.push_back(NumberOf(list.GetPrev(position)));
    }
    std::reverse(back.begin(), back.end());
    EXPECT_EQ(forth, back);
    EXPECT_EQ(list.GetHeadPosition() == nullptr, forth.empty());
    EXPECT_EQ(list.GetTailPosition() == nullptr, forth.empty());
    return forth;
}

/// The exact signatures: a pointer to member converts to no other.
template <class T>
constexpr bool HasTheSignatures() {
    using List = CKRMList<T>;
    using Position = _SKRMPOSITION*;
    static_assert(std::is_default_constructible_v<List> && std::is_copy_constructible_v<List>);
    static_assert(std::has_virtual_destructor_v<List>);
    static_assert(std::is_same_v<decltype(std::declval<List&>() = std::declval<const List&>()), const List&>);
    static_assert(std::is_same_v<decltype(&List::operator=), const List& (List::*)(const List&)>);
    static_assert(requires { static_cast<Position (List::*)(const T&)>(&List::AddTail); });
    static_assert(requires { static_cast<void (List::*)(const List*)>(&List::AddTail); });
    static_assert(std::is_same_v<decltype(&List::InsertAt), void (List::*)(int, const T&)>);
    static_assert(std::is_same_v<decltype(&List::RemoveAt), void (List::*)(int)>);
    static_assert(std::is_same_v<decltype(&List::RemoveAll), void (List::*)()>);
    static_assert(std::is_same_v<decltype(&List::GetCount), int (List::*)() const>);
    static_assert(std::is_same_v<decltype(&List::GetHeadPosition), Position (List::*)() const>);
    static_assert(std::is_same_v<decltype(&List::GetTailPosition), Position (List::*)() const>);
    static_assert(requires { static_cast<T (List::*)(Position&) const>(&List::GetNext); });
    static_assert(requires { static_cast<T& (List::*)(Position&)>(&List::GetNext); });
    static_assert(requires { static_cast<T* (List::*)(Position&) const>(&List::GetNextPtr); });
    static_assert(requires { static_cast<T* (List::*)(Position&)>(&List::GetNextPtr); });
    static_assert(requires { static_cast<T (List::*)(Position&) const>(&List::GetPrev); });
    static_assert(requires { static_cast<T& (List::*)(Position&)>(&List::GetPrev); });
    static_assert(requires { static_cast<T* (List::*)(Position&) const>(&List::GetPrevPtr); });
    static_assert(requires { static_cast<T* (List::*)(Position&)>(&List::GetPrevPtr); });
    static_assert(std::is_same_v<decltype(&List::GetAt), T& (List::*)(int)>);
    static_assert(std::is_same_v<decltype(&List::operator[]), T& (List::*)(int)>);
    static_assert(std::is_same_v<decltype(&List::GetAtPtr), T* (List::*)(int)>);
    return true;
}

/// What lists elsewhere have and this one doesn't: its member set is part of the interface.
template <class List>
concept HasFurtherMembers = requires(List& it) {
    it.begin();
}
|| requires(List& it) {
    it.AddHead(it[0]);
}
|| requires(List& it) {
    it.IsEmpty();
}
|| requires(List& it) {
    it.GetHead();
}
|| requires(List& it) {
    it.SetAt(0, it[0]);
}
|| requires(List& it) {
    it.size();
};

class LifeTest : public ::testing::Test {
protected:
    void SetUp() override { Life::Restart(); }
    // Whatever a test did: each element that was made has been destroyed, once.
    void TearDown() override { EXPECT_EQ(Life::Count().alive, 0); }
};

// A test for each kind of element: one function each, where TYPED_TEST makes a class with some twenty for the compiler.
class ListTest : public LifeTest {
public:
    using Body = void (*)();

    explicit ListTest(Body body) : m_body(body) {}
    void TestBody() override { m_body(); }

    struct Of {
        const char* element;
        Body body;
    };
    static bool Add(const char* name, int line, std::initializer_list<Of> tests) {
        for (const Of& test : tests) {
            ::testing::RegisterTest((std::string("ListTest/") + test.element).c_str(), name, nullptr, nullptr, __FILE__,
                                    line, [body = test.body]() -> LifeTest* { return new ListTest(body); });
        }
        return true;
    }

private:
    Body m_body;
};

#define LIST_TEST(name)                                                                                   \
    template <class TypeParam>                                                                            \
    void name##Of();                                                                                      \
    [[maybe_unused]] const bool kHas##name = ListTest::Add(#name, __LINE__,                               \
                                                           {{"UnsignedChar", &name##Of<unsigned char>},   \
                                                            {"UnsignedShort", &name##Of<unsigned short>}, \
                                                            {"Ulong", &name##Of<krm_ulong>},              \
                                                            {"String", &name##Of<CKRMString>},            \
                                                            {"Record", &name##Of<CKRMCCommandDispData>},  \
                                                            {"Life", &name##Of<Life>},                    \
                                                            {"UsersOwnInt", &name##Of<int>}});            \
    template <class TypeParam>                                                                            \
    void name##Of()

LIST_TEST(HasTheDocumentedMembersAndNoOther) {
    static_assert(HasTheSignatures<TypeParam>());
    static_assert(!HasFurtherMembers<CKRMList<TypeParam>>);
    // Nothing is moved: the source keeps its elements.
    CKRMList<TypeParam> source;
    Add(source, {1, 2});
    const CKRMList<TypeParam> constructed(std::move(source));
    CKRMList<TypeParam> assigned;
    assigned = std::move(source);  // NOLINT: that it is still whole is the point
    EXPECT_THAT(Numbers(source), ElementsAre(1, 2));
    EXPECT_EQ(constructed.GetCount(), 2);
    EXPECT_EQ(assigned.GetCount(), 2);
}

LIST_TEST(ObjectIsVirtualTableCountHeadTail) {
    struct Words {
        const void* virtualTable;
        int count;
        const void* head;
        const void* tail;
    };
    CKRMList<TypeParam> list;
    Add(list, {1, 2, 3});
    static_assert(sizeof(list) == sizeof(Words));
    Words words;
    std::memcpy(&words, static_cast<const void*>(&list), sizeof words);
    EXPECT_NE(words.virtualTable, nullptr);
    EXPECT_EQ(words.count, 3);
    EXPECT_EQ(words.head, list.GetHeadPosition());
    EXPECT_EQ(words.tail, list.GetTailPosition());
}

LIST_TEST(NodeIsElementNextPrevious) {
    struct Block {
        alignas(TypeParam) unsigned char element[sizeof(TypeParam)];
        const void* next;
        const void* prev;
    };
    CKRMList<TypeParam> list;
    _SKRMPOSITION* const first = list.AddTail(Make<TypeParam>(1));
    _SKRMPOSITION* const second = list.AddTail(Make<TypeParam>(2));
    _SKRMPOSITION* const third = list.AddTail(Make<TypeParam>(3));
    Block block;
    std::memcpy(&block, second, sizeof block);
    EXPECT_EQ(block.next, third);
    EXPECT_EQ(block.prev, first);
    // A position is the address of the node and of its element.
    EXPECT_EQ(static_cast<void*>(list.GetAtPtr(0)), static_cast<void*>(first));
    EXPECT_EQ(static_cast<void*>(&list[1]), static_cast<void*>(second));
    EXPECT_EQ(static_cast<void*>(&list.GetAt(2)), static_cast<void*>(third));
}

LIST_TEST(IsEmptyWhenNew) {
    CKRMList<TypeParam> list;
    EXPECT_EQ(list.GetCount(), 0);
    EXPECT_EQ(list.GetHeadPosition(), nullptr);
    EXPECT_EQ(list.GetTailPosition(), nullptr);
    EXPECT_THAT(Numbers(list), IsEmpty());
}

LIST_TEST(CopyConstructorCopiesEachElement) {
    CKRMList<TypeParam> source;
    Add(source, {1, 2, 3});
    CKRMList<TypeParam> copy(source);
    EXPECT_THAT(Numbers(copy), ElementsAre(1, 2, 3));
    EXPECT_EQ(copy.GetCount(), 3);
    EXPECT_NE(copy.GetHeadPosition(), source.GetHeadPosition());
    EXPECT_THAT(Numbers(source), ElementsAre(1, 2, 3));
    const CKRMList<TypeParam> nothing;
    const CKRMList<TypeParam> copyOfNothing(nothing);
    EXPECT_EQ(copyOfNothing.GetCount(), 0);
    EXPECT_EQ(copyOfNothing.GetHeadPosition(), nullptr);
}

LIST_TEST(AssignmentReplacesTheElementsAndReturnsThisList) {
    CKRMList<TypeParam> source;
    Add(source, {1, 2, 3});
    CKRMList<TypeParam> target;
    Add(target, {7, 8});
    const CKRMList<TypeParam>& result = (target = source);
    EXPECT_EQ(&result, &target);
    EXPECT_THAT(Numbers(target), ElementsAre(1, 2, 3));
    target = CKRMList<TypeParam>();
    EXPECT_EQ(target.GetCount(), 0);
    EXPECT_THAT(Numbers(target), IsEmpty());
}

LIST_TEST(ChangingACopyLeavesTheSource) {
    CKRMList<TypeParam> source;
    Add(source, {1, 2, 3});
    CKRMList<TypeParam> copy;
    copy = source;
    EXPECT_EQ(copy.GetCount(), source.GetCount());
    Set(copy[1], 9);
    EXPECT_THAT(Numbers(copy), ElementsAre(1, 9, 3));
    EXPECT_THAT(Numbers(source), ElementsAre(1, 2, 3));
}

LIST_TEST(AssignmentToItselfEmpties) {
    CKRMList<TypeParam> list;
    Add(list, {1, 2, 3});
    const CKRMList<TypeParam>& same = list;
    list = same;
    EXPECT_EQ(list.GetCount(), 0);
    EXPECT_THAT(Numbers(list), IsEmpty());
}

LIST_TEST(AddTailAppendsAndReturnsThePosition) {
    CKRMList<TypeParam> list;
    for (int n = 0; n < 5; ++n) {
        _SKRMPOSITION* position = list.AddTail(Make<TypeParam>(n));
        EXPECT_EQ(position, list.GetTailPosition());
        EXPECT_EQ(NumberOf(list.GetNext(position)), n);
        EXPECT_EQ(position, nullptr);
        EXPECT_EQ(list.GetCount(), n + 1);
    }
    EXPECT_THAT(Numbers(list), ElementsAre(0, 1, 2, 3, 4));
}

LIST_TEST(AddTailTakesAnElementOfItself) {
    CKRMList<TypeParam> list;
    Add(list, {1, 2});
    list.AddTail(list[0]);
    list.AddTail(list[1]);
    EXPECT_THAT(Numbers(list), ElementsAre(1, 2, 1, 2));
}

LIST_TEST(AddTailOfAListAppendsAllInOrder) {
    CKRMList<TypeParam> source;
    Add(source, {3, 4, 5});
    CKRMList<TypeParam> list;
    Add(list, {1, 2});
    list.AddTail(&source);
    EXPECT_THAT(Numbers(list), ElementsAre(1, 2, 3, 4, 5));
    EXPECT_EQ(list.GetCount(), 5);
    EXPECT_THAT(Numbers(source), ElementsAre(3, 4, 5));
    const CKRMList<TypeParam> nothing;
    list.AddTail(&nothing);
    EXPECT_EQ(list.GetCount(), 5);
}

LIST_TEST(AddTailOfAnEmptyListToItselfEnds) {
    CKRMList<TypeParam> list;
    list.AddTail(&list);
    EXPECT_EQ(list.GetCount(), 0);
}

LIST_TEST(InsertAtPutsTheElementAtTheIndex) {
    CKRMList<TypeParam> list;
    list.InsertAt(0, Make<TypeParam>(5));
    EXPECT_THAT(Numbers(list), ElementsAre(5));
    list.InsertAt(0, Make<TypeParam>(1));
    EXPECT_THAT(Numbers(list), ElementsAre(1, 5));
    list.InsertAt(1, Make<TypeParam>(2));
    EXPECT_THAT(Numbers(list), ElementsAre(1, 2, 5));
    list.InsertAt(2, Make<TypeParam>(3));
    EXPECT_THAT(Numbers(list), ElementsAre(1, 2, 3, 5));
    EXPECT_EQ(list.GetCount(), 4);
}

LIST_TEST(InsertAtANegativeIndexPutsItFirst) {
    CKRMList<TypeParam> list;
    Add(list, {1});
    list.InsertAt(-1, Make<TypeParam>(2));
    list.InsertAt(INT_MIN, Make<TypeParam>(3));
    EXPECT_THAT(Numbers(list), ElementsAre(3, 2, 1));
    EXPECT_EQ(list.GetCount(), 3);
}

LIST_TEST(InsertAtANegativeIndexOfAnEmptyListAppends) {
    for (const int index : {-1, INT_MIN}) {
        CKRMList<TypeParam> list;
        list.InsertAt(index, Make<TypeParam>(1));
        EXPECT_THAT(Numbers(list), ElementsAre(1));
        EXPECT_EQ(list.GetCount(), 1);
    }
}

LIST_TEST(InsertAtTheCountOrBeyondAppends) {
    CKRMList<TypeParam> list;
    list.InsertAt(7, Make<TypeParam>(1));
    list.InsertAt(1, Make<TypeParam>(2));
    list.InsertAt(99, Make<TypeParam>(3));
    list.InsertAt(INT_MAX, Make<TypeParam>(4));
    EXPECT_THAT(Numbers(list), ElementsAre(1, 2, 3, 4));
    EXPECT_EQ(list.GetCount(), 4);
}

LIST_TEST(InsertAtTakesAnElementOfItself) {
    CKRMList<TypeParam> list;
    Add(list, {1, 2, 3});
    list.InsertAt(0, list[2]);
    list.InsertAt(2, list[2]);
    EXPECT_THAT(Numbers(list), ElementsAre(3, 1, 2, 2, 3));
}

LIST_TEST(RemoveAtUnlinksHeadMiddleAndTail) {
    CKRMList<TypeParam> list;
    Add(list, {1, 2, 3, 4, 5});
    list.RemoveAt(0);
    EXPECT_THAT(Numbers(list), ElementsAre(2, 3, 4, 5));
    list.RemoveAt(1);
    EXPECT_THAT(Numbers(list), ElementsAre(2, 4, 5));
    list.RemoveAt(2);
    EXPECT_THAT(Numbers(list), ElementsAre(2, 4));
    list.RemoveAt(1);
    EXPECT_THAT(Numbers(list), ElementsAre(2));
    list.RemoveAt(0);
    EXPECT_THAT(Numbers(list), IsEmpty());
    EXPECT_EQ(list.GetCount(), 0);
    Add(list, {6, 7});
    EXPECT_THAT(Numbers(list), ElementsAre(6, 7));
}

LIST_TEST(RemoveAtTheCountOrBeyondDoesNothing) {
    CKRMList<TypeParam> list;
    list.RemoveAt(0);
    EXPECT_EQ(list.GetCount(), 0);
    Add(list, {1, 2});
    list.RemoveAt(2);
    list.RemoveAt(3);
    list.RemoveAt(INT_MAX);
    EXPECT_THAT(Numbers(list), ElementsAre(1, 2));
    EXPECT_EQ(list.GetCount(), 2);
}

LIST_TEST(RemoveAtANegativeIndexRemovesTheHead) {
    CKRMList<TypeParam> list;
    Add(list, {1, 2, 3});
    list.RemoveAt(-1);
    EXPECT_THAT(Numbers(list), ElementsAre(2, 3));
    list.RemoveAt(INT_MIN);
    EXPECT_THAT(Numbers(list), ElementsAre(3));
    EXPECT_EQ(list.GetCount(), 1);
}

LIST_TEST(RemoveAtBelowOneRemovesTheOnlyElement) {
    for (const int index : {0, -1, -5, INT_MIN}) {
        CKRMList<TypeParam> list;
        Add(list, {1});
        list.RemoveAt(index);
        EXPECT_EQ(list.GetCount(), 0) << index;
        EXPECT_THAT(Numbers(list), IsEmpty()) << index;
    }
}

LIST_TEST(RemoveAtANegativeIndexOfAnEmptyListCountsDown) {
    CKRMList<TypeParam> list;
    list.RemoveAt(-1);
    EXPECT_EQ(list.GetCount(), -1);
    EXPECT_EQ(list.GetHeadPosition(), nullptr);
    // -1 is not below the count any more; -2 is.
    list.RemoveAt(-1);
    EXPECT_EQ(list.GetCount(), -1);
    list.RemoveAt(-2);
    EXPECT_EQ(list.GetCount(), -2);
}

LIST_TEST(AListCountedDownGoesOnOneBehind) {
    CKRMList<TypeParam> list;
    list.RemoveAt(-1);
    list.AddTail(Make<TypeParam>(1));
    EXPECT_EQ(list.GetCount(), 0);
    EXPECT_THAT(Numbers(list), ElementsAre(1));
    list.RemoveAt(0);  // not below the count: the element stays
    EXPECT_THAT(Numbers(list), ElementsAre(1));
    list.AddTail(Make<TypeParam>(2));
    EXPECT_EQ(list.GetCount(), 1);
    EXPECT_THAT(Numbers(list), ElementsAre(1, 2));
    list.InsertAt(1, Make<TypeParam>(3));  // at the count: appended
    EXPECT_THAT(Numbers(list), ElementsAre(1, 2, 3));
    list.RemoveAll();
    EXPECT_EQ(list.GetCount(), 0);
    EXPECT_THAT(Numbers(list), IsEmpty());
}

LIST_TEST(InsertAtMinusOneWithTheCountThereAppends) {
    CKRMList<TypeParam> list;
    list.RemoveAt(-1);
    list.InsertAt(-1, Make<TypeParam>(1));
    EXPECT_EQ(list.GetCount(), 0);
    EXPECT_THAT(Numbers(list), ElementsAre(1));
}

LIST_TEST(RemoveAllEmpties) {
    CKRMList<TypeParam> list;
    list.RemoveAll();
    EXPECT_EQ(list.GetCount(), 0);
    Add(list, {1, 2, 3});
    list.RemoveAll();
    EXPECT_EQ(list.GetCount(), 0);
    EXPECT_THAT(Numbers(list), IsEmpty());
    Add(list, {4});
    EXPECT_THAT(Numbers(list), ElementsAre(4));
}

LIST_TEST(ReferencesToElementsChangeThem) {
    CKRMList<TypeParam> list;
    Add(list, {1, 2, 3});
    _SKRMPOSITION* position = list.GetHeadPosition();
    Set(list.GetNext(position), 4);
    Set(*list.GetNextPtr(position), 5);
    EXPECT_EQ(position, list.GetTailPosition());
    EXPECT_THAT(Numbers(list), ElementsAre(4, 5, 3));
    position = list.GetTailPosition();
    Set(list.GetPrev(position), 6);
    Set(*list.GetPrevPtr(position), 7);
    EXPECT_EQ(position, list.GetHeadPosition());
    EXPECT_THAT(Numbers(list), ElementsAre(4, 7, 6));
}

LIST_TEST(GetNextOfTheTailGivesNull) {
    CKRMList<TypeParam> list;
    Add(list, {1, 2});
    const CKRMList<TypeParam>& constant = list;
    _SKRMPOSITION* position = list.GetTailPosition();
    EXPECT_EQ(NumberOf(list.GetNext(position)), 2);
    EXPECT_EQ(position, nullptr);
    position = list.GetTailPosition();
    EXPECT_EQ(NumberOf(*list.GetNextPtr(position)), 2);
    EXPECT_EQ(position, nullptr);
    position = list.GetTailPosition();
    EXPECT_EQ(NumberOf(constant.GetNext(position)), 2);
    EXPECT_EQ(position, nullptr);
    position = list.GetTailPosition();
    EXPECT_EQ(NumberOf(*constant.GetNextPtr(position)), 2);
    EXPECT_EQ(position, nullptr);
}

LIST_TEST(GetPrevOfTheHeadGivesNull) {
    CKRMList<TypeParam> list;
    Add(list, {1, 2});
    const CKRMList<TypeParam>& constant = list;
    _SKRMPOSITION* position = list.GetHeadPosition();
    EXPECT_EQ(NumberOf(list.GetPrev(position)), 1);
    EXPECT_EQ(position, nullptr);
    position = list.GetHeadPosition();
    EXPECT_EQ(NumberOf(*list.GetPrevPtr(position)), 1);
    EXPECT_EQ(position, nullptr);
    position = list.GetHeadPosition();
    EXPECT_EQ(NumberOf(constant.GetPrev(position)), 1);
    EXPECT_EQ(position, nullptr);
    position = list.GetHeadPosition();
    EXPECT_EQ(NumberOf(*constant.GetPrevPtr(position)), 1);
    EXPECT_EQ(position, nullptr);
}

LIST_TEST(AConstListGivesCopies) {
    CKRMList<TypeParam> list;
    Add(list, {1, 2});
    const CKRMList<TypeParam>& constant = list;
    _SKRMPOSITION* position = constant.GetHeadPosition();
    TypeParam next = constant.GetNext(position);
    Set(next, 9);
    EXPECT_EQ(position, list.GetTailPosition());
    TypeParam prev = constant.GetPrev(position);
    Set(prev, 9);
    EXPECT_EQ(position, list.GetHeadPosition());
    EXPECT_THAT(Numbers(list), ElementsAre(1, 2));
    // The pointers of a const list lead to the elements themselves.
    EXPECT_EQ(constant.GetNextPtr(position), list.GetAtPtr(0));
    EXPECT_EQ(constant.GetPrevPtr(position), list.GetAtPtr(1));
}

LIST_TEST(GetAtCountsFromTheHead) {
    CKRMList<TypeParam> list;
    Add(list, {1, 2, 3});
    for (int index = 0; index < 3; ++index) {
        EXPECT_EQ(NumberOf(list.GetAt(index)), index + 1);
        EXPECT_EQ(&list[index], &list.GetAt(index));
        EXPECT_EQ(list.GetAtPtr(index), &list.GetAt(index));
    }
}

LIST_TEST(EveryIndexBelowOneIsTheHead) {
    CKRMList<TypeParam> list;
    Add(list, {1, 2});
    for (const int index : {0, -1, -5, INT_MIN}) {
        EXPECT_EQ(NumberOf(list.GetAt(index)), 1) << index;
        EXPECT_EQ(NumberOf(list[index]), 1) << index;
        EXPECT_EQ(NumberOf(*list.GetAtPtr(index)), 1) << index;
    }
}

LIST_TEST(GetAtPtrOfAnEmptyListIsNull) {
    CKRMList<TypeParam> list;
    for (const int index : {0, -1, INT_MIN}) {
        EXPECT_EQ(list.GetAtPtr(index), nullptr) << index;
    }
}

LIST_TEST(GetAtPtrAtTheCountIsNull) {
    CKRMList<TypeParam> list;
    Add(list, {1, 2});
    EXPECT_EQ(list.GetAtPtr(list.GetCount()), nullptr);
    EXPECT_EQ(list.GetCount(), 2);
}

LIST_TEST(PositionsOutliveChangesElsewhere) {
    CKRMList<TypeParam> list;
    Add(list, {1});
    _SKRMPOSITION* const two = list.AddTail(Make<TypeParam>(2));
    Add(list, {3});
    list.InsertAt(1, Make<TypeParam>(7));
    list.RemoveAt(0);
    list.RemoveAt(2);
    Add(list, {8});
    _SKRMPOSITION* position = two;
    EXPECT_EQ(NumberOf(list.GetNext(position)), 2);
    EXPECT_EQ(NumberOf(list.GetNext(position)), 8);
}

LIST_TEST(RangeForWalksAndChanges) {
    CKRMList<TypeParam> list;
    Add(list, {1, 2, 3});
    int n = 4;
    for (TypeParam& element : list) {
        Set(element, n++);
    }
    const CKRMList<TypeParam>& constant = list;
    std::vector<int> numbers;
    for (const TypeParam& element : constant) {
        numbers.push_back(NumberOf(element));
    }
    EXPECT_THAT(numbers, ElementsAre(4, 5, 6));
    for (TypeParam& element : CKRMList<TypeParam>()) {
        ADD_FAILURE() << "an empty list has no element " << NumberOf(element);
    }
    static_assert(std::is_same_v<decltype(*begin(list)), TypeParam&>);
    static_assert(std::is_same_v<decltype(*begin(constant)), const TypeParam&>);
    static_assert(std::forward_iterator<CKRMListIterator<TypeParam>>);
    static_assert(std::forward_iterator<CKRMListIterator<const TypeParam>>);
}

LIST_TEST(WorksWithTheStandardAlgorithms) {
    CKRMList<TypeParam> list;
    Add(list, {1, 2, 3});
    const auto found =
        std::find_if(begin(list), end(list), [](const TypeParam& element) { return NumberOf(element) == 2; });
    ASSERT_NE(found, end(list));
    EXPECT_EQ(&*found, &list[1]);
    EXPECT_EQ(std::distance(begin(list), end(list)), 3);
}

class ListLifeTest : public LifeTest {
protected:
    /// Adds elements and starts counting behind that.
    void AddAndRestart(CKRMList<Life>& list, std::initializer_list<int> numbers) {
        Add(list, numbers);
        Life::Restart();
    }
};

TEST_F(ListLifeTest, AnEmptyListMakesNoElement) {
    const CKRMList<Life> list;
    const CKRMList<Life> copy(list);
    EXPECT_EQ(Life::Count().defaults + Life::Count().copies + Life::Count().assignments, 0);
}

TEST_F(ListLifeTest, AddTailDefaultConstructsThenAssigns) {
    CKRMList<Life> list;
    const Life element(1);
    list.AddTail(element);
    EXPECT_EQ(Life::Count().defaults, 1);
    EXPECT_EQ(Life::Count().assignments, 1);
    EXPECT_EQ(Life::Count().copies, 0);
    EXPECT_THAT(Life::Count().destroyed, IsEmpty());
}

TEST_F(ListLifeTest, InsertAtDefaultConstructsThenAssigns) {
    CKRMList<Life> list;
    AddAndRestart(list, {1, 2});
    const Life element(3);
    list.InsertAt(1, element);
    EXPECT_EQ(Life::Count().defaults, 1);
    EXPECT_EQ(Life::Count().assignments, 1);
    EXPECT_EQ(Life::Count().copies, 0);
    EXPECT_THAT(Life::Count().destroyed, IsEmpty());
}

TEST_F(ListLifeTest, CopiesOfAListMakeEachElementOnce) {
    CKRMList<Life> source;
    AddAndRestart(source, {1, 2, 3});
    CKRMList<Life> copy(source);
    EXPECT_EQ(Life::Count().defaults, 3);
    EXPECT_EQ(Life::Count().assignments, 3);
    EXPECT_EQ(Life::Count().copies, 0);
    EXPECT_THAT(Life::Count().destroyed, IsEmpty());
    copy = source;
    EXPECT_EQ(Life::Count().defaults, 6);
    EXPECT_EQ(Life::Count().assignments, 6);
    EXPECT_THAT(Life::Count().destroyed, ElementsAre(1, 2, 3));
}

TEST_F(ListLifeTest, RemoveAtDestroysJustThatElement) {
    CKRMList<Life> list;
    AddAndRestart(list, {1, 2, 3, 4});
    list.RemoveAt(3);
    list.RemoveAt(1);
    list.RemoveAt(-1);
    list.RemoveAt(0);
    EXPECT_THAT(Life::Count().destroyed, ElementsAre(4, 2, 1, 3));
    list.RemoveAt(-1);
    EXPECT_EQ(list.GetCount(), -1);
    EXPECT_EQ(Life::Count().destroyed.size(), 4U);
}

TEST_F(ListLifeTest, RemoveAllDestroysFromHeadToTail) {
    CKRMList<Life> list;
    AddAndRestart(list, {1, 2, 3});
    list.RemoveAll();
    EXPECT_THAT(Life::Count().destroyed, ElementsAre(1, 2, 3));
}

TEST_F(ListLifeTest, TheDestructorDestroysFromHeadToTail) {
    {
        CKRMList<Life> list;
        AddAndRestart(list, {1, 2, 3});
    }
    EXPECT_THAT(Life::Count().destroyed, ElementsAre(1, 2, 3));
}

TEST_F(ListLifeTest, WalksCopyOnlyOutOfAConstList) {
    CKRMList<Life> list;
    AddAndRestart(list, {1, 2});
    _SKRMPOSITION* position = list.GetHeadPosition();
    EXPECT_EQ(list.GetNext(position).value, 1);
    EXPECT_EQ(list.GetNextPtr(position)->value, 2);
    position = list.GetTailPosition();
    EXPECT_EQ(list.GetPrev(position).value, 2);
    EXPECT_EQ(list.GetPrevPtr(position)->value, 1);
    EXPECT_EQ(list[1].value + list.GetAt(0).value + list.GetAtPtr(1)->value, 5);
    const CKRMList<Life>& constant = list;
    position = list.GetHeadPosition();
    EXPECT_EQ(constant.GetNextPtr(position)->value, 1);
    EXPECT_EQ(constant.GetPrevPtr(position)->value, 2);
    EXPECT_EQ(Life::Count().copies, 0);
    position = list.GetHeadPosition();
    EXPECT_EQ(constant.GetNext(position).value, 1);
    EXPECT_EQ(constant.GetPrev(position).value, 2);
    EXPECT_EQ(Life::Count().copies, 2);
    EXPECT_EQ(Life::Count().defaults + Life::Count().assignments, 0);
}

TEST_F(ListLifeTest, AnElementThatThrowsIsNotInTheList) {
    CKRMList<Life> list;
    AddAndRestart(list, {1, 2});
    const Life element(3);
    Life::Count().throwOnAssignment = true;
    EXPECT_THROW(list.AddTail(element), std::runtime_error);
    EXPECT_THROW(list.InsertAt(0, element), std::runtime_error);
    EXPECT_THROW(CKRMList<Life>{list}, std::runtime_error);
    Life::Count().throwOnAssignment = false;
    EXPECT_THAT(Numbers(list), ElementsAre(1, 2));
    EXPECT_EQ(Life::Count().alive, 3);
}

TEST(ListOfListsTest, CopiesAreDeepAtEveryLevel) {
    CKRMList<CKRMList<CKRMString>> outer;
    outer.AddTail(CKRMList<CKRMString>());
    outer[0].AddTail("inner");
    CKRMList<CKRMList<CKRMString>> copy(outer);
    copy[0][0] = "changed";
    copy[0].AddTail("more");
    EXPECT_STREQ(outer[0][0].GetText(), "inner");
    EXPECT_EQ(outer[0].GetCount(), 1);
    EXPECT_EQ(copy[0].GetCount(), 2);
}

}  // namespace

#include "krm/tree/attribute.h"

#include <algorithm>
#include <cstdio>
#include <limits>
#include <string>
#include <type_traits>
#include <vector>

#include "gmock/gmock.h"
#include "gtest/gtest.h"
#include "tests/support/failing_allocation.h"
#include "tests/support/recording_error.h"
#include "tests/tree/own_nodes.h"

namespace krm::test {
namespace {

using ::testing::ElementsAre;

const char* const kLongText = "a text that is longer than what a string holds without memory of its own";

static_assert(std::is_polymorphic_v<CKRMCNode> && std::has_virtual_destructor_v<CKRMCNode>);
static_assert(std::is_same_v<krm_ulong, decltype(std::declval<CKRMCNode&>().Description(std::declval<CKRMString&>()))>);

// Nothing but the documented members.
struct NodeLayout {
    virtual ~NodeLayout() = default;
    krm_ulong kind;
    CKRMString name;
    void* links[3];
};
struct AttributeLayout : NodeLayout {
    krm_ulong type;
    void* value;
};
static_assert(sizeof(CKRMCNode) == sizeof(NodeLayout));
static_assert(sizeof(CKRMCAttribute) == sizeof(AttributeLayout));

/// An attribute with a value of a type that the tree doesn't know.
class OddAttribute : public CKRMCAttribute {
public:
    explicit OddAttribute(const char* name, krm_ulong type = 9) : CKRMCAttribute(name) {
        m_ulValueType = type;
        m_pValue = ::operator new(4);
    }
    const void* Cell() const { return m_pValue; }
    bool MembersAreInOrder() {
        const std::vector<std::uintptr_t> addresses{
            AddressOf(this),      AddressOf(&m_ulKind),   AddressOf(&m_strName),     AddressOf(&m_pcNext),
            AddressOf(&m_pcPrev), AddressOf(&m_pcParent), AddressOf(&m_ulValueType), AddressOf(&m_pValue)};
        return std::is_sorted(addresses.begin(), addresses.end());
    }
};

TEST(Node, HasKindNameAndNoLinks) {
    CKRMCNode node(7, "Name");
    EXPECT_EQ(7u, node.GetKind());
    EXPECT_STREQ("Name", node.GetName());
    EXPECT_EQ(nullptr, node.GetNext());
    EXPECT_EQ(nullptr, node.GetPrev());
    EXPECT_EQ(nullptr, node.GetParent());
    CKRMString text("before");
    EXPECT_EQ(0u, node.Description(text));
    EXPECT_STREQ("before", text.GetText());
    EXPECT_STREQ("", CKRMCNode(1, nullptr).GetName());
}

TEST(Node, MembersAndSlotsAreInDocumentedOrder) {
    EXPECT_TRUE(OddAttribute("A").MembersAreInOrder());
#if defined(__GNUC__)
    EXPECT_EQ(2u, SlotOf(&CKRMCNode::Description));
    EXPECT_EQ(2u, SlotOf(&CKRMCAttribute::Description));
    EXPECT_EQ(3u, SlotOf(&CKRMCAttribute::ClearValue));
    EXPECT_EQ(4u, SlotOf(&CKRMCAttribute::CompareValue));
    EXPECT_EQ(5u, SlotOf(static_cast<bool (CKRMCAttribute::*)(CKRMError*, krm_ulong)>(&CKRMCAttribute::SetValue)));
    EXPECT_EQ(6u, SlotOf(static_cast<bool (CKRMCAttribute::*)(CKRMError*, krm_long)>(&CKRMCAttribute::SetValue)));
    EXPECT_EQ(7u, SlotOf(static_cast<bool (CKRMCAttribute::*)(CKRMError*, double)>(&CKRMCAttribute::SetValue)));
    EXPECT_EQ(8u, SlotOf(static_cast<bool (CKRMCAttribute::*)(CKRMError*, const char*)>(&CKRMCAttribute::SetValue)));
#endif
}

TEST(Attribute, IsEmptyAtFirst) {
    const CKRMCAttribute attribute("A");
    EXPECT_EQ(tree::kAttributeKind, attribute.GetKind());
    EXPECT_EQ(1u, attribute.GetKind());
    EXPECT_EQ(0u, attribute.GetValueType());
    EXPECT_EQ(nullptr, attribute.GetString());
    EXPECT_EQ(0.0, attribute.GetDouble());
    EXPECT_EQ(0, attribute.GetLong());
    EXPECT_EQ(0u, attribute.GetULong());
}

TEST(Attribute, ConstructorsSetTheValue) {
    const CKRMCAttribute text("A", "x");
    EXPECT_EQ(1u, text.GetValueType());
    EXPECT_STREQ("x", text.GetString());
    const CKRMCAttribute real("A", 2.5);
    EXPECT_EQ(2u, real.GetValueType());
    EXPECT_EQ(2.5, real.GetDouble());
    const CKRMCAttribute number("A", krm_long(-7));
    EXPECT_EQ(3u, number.GetValueType());
    EXPECT_EQ(-7, number.GetLong());
    const CKRMCAttribute positive("A", krm_ulong(0xFFFFFFFF));
    EXPECT_EQ(4u, positive.GetValueType());
    EXPECT_EQ(0xFFFFFFFFu, positive.GetULong());
    const char* const none = nullptr;
    const CKRMCAttribute empty("A", none);
    EXPECT_EQ(0u, empty.GetValueType());
}

TEST(Attribute, ANullNameIsEmpty) {
    CKRMCAttribute empty(nullptr);
    EXPECT_STREQ("", empty.GetName());
    EXPECT_EQ(" [0]=\"NULL\"", Described(empty));
    CKRMCAttribute number(nullptr, krm_long(5));
    EXPECT_EQ(" [3]=\"5\"", Described(number));
}

TEST(Attribute, ReadsNoValueAsAnotherType) {
    CKRMCAttribute attribute("A", "12");
    EXPECT_EQ(0.0, attribute.GetDouble());
    EXPECT_EQ(0, attribute.GetLong());
    EXPECT_EQ(0u, attribute.GetULong());
    ASSERT_TRUE(attribute.SetValue(nullptr, krm_long(12)));
    EXPECT_EQ(nullptr, attribute.GetString());
    EXPECT_EQ(0u, attribute.GetULong());
    EXPECT_EQ(0.0, attribute.GetDouble());
    ASSERT_TRUE(attribute.SetValue(nullptr, krm_ulong(12)));
    EXPECT_EQ(0, attribute.GetLong());
    ASSERT_TRUE(attribute.SetValue(nullptr, 12.0));
    EXPECT_EQ(nullptr, attribute.GetString());
    EXPECT_EQ(0u, attribute.GetULong());
}

TEST(Attribute, ANullTextKeepsTheOldValue) {
    RecordingError error;
    CKRMCAttribute attribute("A", 3.5);
    const char* const none = nullptr;
    EXPECT_FALSE(attribute.SetValue(&error, none));
    EXPECT_THAT(error.TakeCalls(), ElementsAre("SetErrorCode(0)", "SetError(1100100001,,,,,)"));
    EXPECT_EQ(1100100001u, error.a_ulReturnCode);
    EXPECT_EQ(2u, attribute.GetValueType());
    EXPECT_EQ(3.5, attribute.GetDouble());
}

TEST(Attribute, ChangesItsTypeWithEveryValue) {
    KRM_SKIP_WITHOUT_FAILING_ALLOCATIONS();
    CKRMError error;
    CKRMCAttribute attribute("A");
    const long before = LivingBlocks();
    const bool numberSet = attribute.SetValue(&error, krm_long(7));
    const krm_ulong numberType = attribute.GetValueType();
    const bool textSet = attribute.SetValue(&error, "x");
    EXPECT_TRUE(numberSet && textSet);
    EXPECT_EQ(3u, numberType);
    EXPECT_EQ(1u, attribute.GetValueType());
    EXPECT_STREQ("x", attribute.GetString());
    EXPECT_EQ(before + 1, LivingBlocks()) << "the number's cell is freed";
    ASSERT_TRUE(attribute.SetValue(&error, kLongText));
    EXPECT_EQ(before + 2, LivingBlocks()) << "the text has memory of its own";
    ASSERT_TRUE(attribute.SetValue(&error, 1.5));
    EXPECT_EQ(before + 1, LivingBlocks());
    ASSERT_TRUE(attribute.ClearValue());
    EXPECT_EQ(before, LivingBlocks());
}

TEST(Attribute, FreesItsValueWhenItDies) {
    KRM_SKIP_WITHOUT_FAILING_ALLOCATIONS();
    const long before = LivingBlocks();
    {
        const CKRMCAttribute text("a", kLongText);
        const CKRMCAttribute real("a", 0.5);
        const CKRMCAttribute number("a", krm_long{-1});
        const CKRMCAttribute index("a", krm_ulong{1});
        EXPECT_EQ(before + 5, LivingBlocks()) << "four cells and the text's memory";
    }
    EXPECT_EQ(before, LivingBlocks());
}

TEST(Attribute, SuccessLeavesTheErrorCleared) {
    RecordingError error;
    CKRMCAttribute attribute("A");
    const auto expectCleared = [&] {
        EXPECT_THAT(error.TakeCalls(), ElementsAre("SetErrorCode(0)"));
        EXPECT_EQ(0u, error.a_ulReturnCode);
        error.a_ulReturnCode = 5;
    };
    error.a_ulReturnCode = 5;
    EXPECT_TRUE(attribute.SetValue(&error, krm_ulong(1)));
    expectCleared();
    EXPECT_TRUE(attribute.SetValue(&error, krm_long(1)));
    expectCleared();
    EXPECT_TRUE(attribute.SetValue(&error, 1.0));
    expectCleared();
    EXPECT_TRUE(attribute.SetValue(&error, "1"));
    expectCleared();
    EXPECT_TRUE(attribute.CompareValue(&error, &attribute));
    expectCleared();
}

TEST(Attribute, ATextMayBeItsOwn) {
    CKRMCAttribute attribute("A", kLongText);
    ASSERT_TRUE(attribute.SetValue(nullptr, attribute.GetString()));
    EXPECT_STREQ(kLongText, attribute.GetString());
    ASSERT_TRUE(attribute.SetValue(nullptr, attribute.GetString() + 7));
    EXPECT_STREQ(kLongText + 7, attribute.GetString());
    ASSERT_TRUE(attribute.SetValue(nullptr, attribute.GetName()));
    EXPECT_STREQ("A", attribute.GetString());
}

TEST(Attribute, ClearingAnEmptyOneIsTrue) {
    CKRMCAttribute attribute("A");
    EXPECT_TRUE(attribute.ClearValue());
    EXPECT_EQ(0u, attribute.GetValueType());
    EXPECT_EQ(" A[0]=\"NULL\"", Described(attribute));
}

TEST(Attribute, WithoutMemoryItIsEmpty) {
    KRM_SKIP_WITHOUT_FAILING_ALLOCATIONS();
    const auto expectOutOfMemory = [](int successes, auto value) {
        CKRMCAttribute attribute("A", "old");
        CKRMError error;
        const long before = LivingBlocks();
        bool result = true;
        {
            const FailAllocations failing(successes);
            result = attribute.SetValue(&error, value);
        }
        EXPECT_FALSE(result);
        EXPECT_EQ(2100100002u, error.a_ulReturnCode);
        EXPECT_EQ(0u, attribute.GetValueType());
        EXPECT_EQ(" A[0]=\"NULL\"", Described(attribute));
        EXPECT_EQ(before - 1, LivingBlocks()) << "the old value is freed, and nothing else is left";
    };
    expectOutOfMemory(0, krm_ulong(1));
    expectOutOfMemory(0, krm_long(1));
    expectOutOfMemory(0, 1.0);
    expectOutOfMemory(0, "x");
    expectOutOfMemory(0, kLongText);
    expectOutOfMemory(1, kLongText);
}

TEST(Attribute, WithoutMemoryAnEmptyOneReportsToo) {
    KRM_SKIP_WITHOUT_FAILING_ALLOCATIONS();
    for (const int successes : {0, 1}) {
        CKRMCAttribute attribute("A");
        CKRMError error;
        bool result = true;
        bool silent = true;
        {
            const FailAllocations failing(successes);
            result = attribute.SetValue(&error, kLongText);
        }
        {
            const FailAllocations failing(successes);
            silent = attribute.SetValue(nullptr, kLongText);
        }
        EXPECT_FALSE(result);
        EXPECT_FALSE(silent);
        EXPECT_EQ(2100100002u, error.a_ulReturnCode);
        EXPECT_EQ(0u, attribute.GetValueType());
    }
}

TEST(Attribute, AConstructorWithoutMemoryGivesAnEmptyOne) {
    KRM_SKIP_WITHOUT_FAILING_ALLOCATIONS();
    krm_ulong types[5] = {9, 9, 9, 9, 9};
    {
        const FailAllocations failing(0);
        types[0] = CKRMCAttribute("A", 2.5).GetValueType();
        types[1] = CKRMCAttribute("A", "x").GetValueType();
        types[2] = CKRMCAttribute("A", krm_long{1}).GetValueType();
        types[3] = CKRMCAttribute("A", krm_ulong{1}).GetValueType();
    }
    {
        const FailAllocations failing(1);  // the text's own memory
        types[4] = CKRMCAttribute("A", kLongText).GetValueType();
    }
    EXPECT_THAT(types, ElementsAre(0u, 0u, 0u, 0u, 0u));
}

TEST(CompareValue, EqualValuesOfOneType) {
    CKRMError error;
    const auto compare = [&error](auto left, auto right) {
        CKRMCAttribute one("A", left);
        CKRMCAttribute other("B", right);
        error.a_ulReturnCode = 5;
        const bool equal = one.CompareValue(&error, &other);
        EXPECT_EQ(0u, error.a_ulReturnCode);
        EXPECT_EQ(equal, other.CompareValue(nullptr, &one));
        return equal;
    };
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_TRUE(compare("x", "x"));
    EXPECT_FALSE(compare("x", "X"));
    EXPECT_FALSE(compare("x", "xy"));
    EXPECT_TRUE(compare("", ""));
    EXPECT_TRUE(compare(1.5, 1.5));
    EXPECT_FALSE(compare(1.5, 1.5000000000000002));
    EXPECT_TRUE(compare(0.0, -0.0));
    EXPECT_FALSE(compare(nan, nan));
    EXPECT_FALSE(compare(nan, 0.0));
    EXPECT_TRUE(compare(krm_long(-7), krm_long(-7)));
    EXPECT_FALSE(compare(krm_long(-7), krm_long(7)));
    EXPECT_TRUE(compare(krm_ulong(0xFFFFFFFF), krm_ulong(0xFFFFFFFF)));
    EXPECT_FALSE(compare(krm_ulong(0), krm_ulong(0xFFFFFFFF)));
    CKRMCAttribute itself("A", nan);
    EXPECT_FALSE(itself.CompareValue(&error, &itself));
}

TEST(CompareValue, FailsInOrder) {
    RecordingError error;
    CKRMCAttribute empty("A");
    CKRMCAttribute number("A", krm_long(7));
    CKRMCAttribute positive("A", krm_ulong(7));
    CKRMCAttribute text("A", "7");
    OddAttribute odd("A");
    OddAttribute otherOdd("A");
    const auto expectFailure = [&error](CKRMCAttribute& one, CKRMCAttribute* other, const char* call) {
        EXPECT_FALSE(one.CompareValue(&error, other));
        EXPECT_THAT(error.TakeCalls(), ElementsAre("SetErrorCode(0)", call));
        EXPECT_FALSE(one.CompareValue(nullptr, other));
    };
    expectFailure(empty, nullptr, "SetError(1100100001,,,,,)");
    expectFailure(number, nullptr, "SetError(1100100001,,,,,)");
    expectFailure(empty, &empty, "SetError(2100100123,,,,,)");
    expectFailure(empty, &number, "SetError(2100100123,,,,,)");
    expectFailure(number, &empty, "SetError(2100100123,,,,,)");
    expectFailure(number, &positive, "SetError(2100100122,,,,,)");
    expectFailure(text, &number, "SetError(2100100122,,,,,)");
    expectFailure(odd, &number, "SetError(2100100122,,,,,)");
    expectFailure(odd, &otherOdd, "SetError(2100100121,,,,,)");
    EXPECT_EQ(7, number.GetLong());
    EXPECT_EQ(7u, positive.GetULong());
    EXPECT_STREQ("7", text.GetString());
}

TEST(AttributeDescription, WritesEachType) {
    const auto described = [](auto value) {
        CKRMCAttribute attribute("A", value);
        return Described(attribute);
    };
    CKRMCAttribute empty("A");
    EXPECT_EQ(" A[0]=\"NULL\"", Described(empty));
    EXPECT_EQ(" A[1]=\"a \"b\" %d\"", described("a \"b\" %d"));
    EXPECT_EQ(" A[1]=\"\"", described(""));
    EXPECT_EQ(" A[2]=\"2.500000\"", described(2.5));
    EXPECT_EQ(" A[2]=\"-0.000000\"", described(-0.0));
    EXPECT_EQ(" A[3]=\"5\"", described(krm_long(5)));
    EXPECT_EQ(" A[3]=\"-2147483648\"", described(std::numeric_limits<krm_long>::min()));
    EXPECT_EQ(" A[4]=\"4294967295\"", described(krm_ulong(0xFFFFFFFF)));
    OddAttribute odd("A", 9);
    char expected[40];
    std::snprintf(expected, sizeof expected, " A[9]=\"0x%08X\"", static_cast<unsigned>(AddressOf(odd.Cell())));
    EXPECT_EQ(expected, Described(odd));
}

TEST(AttributeDescription, AppendsAndGoesOnWithTheFollowers) {
    CKRMCAttribute first("A", krm_long(1));
    auto* const second = new CKRMCAttribute("B");
    auto* const third = new CKRMCAttribute("C", "x");
    Link::Between(first, *second);
    Link::Between(*second, *third);
    CKRMString text("before:");
    EXPECT_EQ(0u, first.Description(text));
    EXPECT_STREQ("before: A[3]=\"1\" B[0]=\"NULL\" C[1]=\"x\"", text.GetText());
    EXPECT_EQ(" B[0]=\"NULL\" C[1]=\"x\"", Described(*second));
}

/// Encloses what it and its followers append, and returns a result of its own.
class Enclosing : public CKRMCAttribute {
public:
    explicit Enclosing(const char* name) : CKRMCAttribute(name) {}
    krm_ulong Description(CKRMString& out) override {
        out += "(";
        const krm_ulong result = CKRMCAttribute::Description(out);
        out += ")";
        return result + 42;
    }
};

/// Describes itself and stops.
class Stopping : public CKRMCAttribute {
public:
    explicit Stopping(const char* name) : CKRMCAttribute(name) {}
    krm_ulong Description(CKRMString& out) override {
        out += "!";
        return 7;
    }
};

TEST(AttributeDescription, AnOverridingSiblingEnclosesItsFollowers) {
    CKRMCAttribute first("A");
    auto* const second = new Enclosing("B");
    auto* const third = new CKRMCAttribute("C");
    auto* const fourth = new Enclosing("D");
    auto* const fifth = new CKRMCAttribute("E");
    Link::Between(first, *second);
    Link::Between(*second, *third);
    Link::Between(*third, *fourth);
    Link::Between(*fourth, *fifth);
    CKRMString text;
    EXPECT_EQ(84u, first.Description(text));
    EXPECT_STREQ(" A[0]=\"NULL\"( B[0]=\"NULL\" C[0]=\"NULL\"( D[0]=\"NULL\" E[0]=\"NULL\"))", text.GetText());
}

TEST(AttributeDescription, AnOverridingSiblingMayEndIt) {
    CKRMCAttribute first("A");
    auto* const second = new Stopping("B");
    auto* const third = new CKRMCAttribute("C");
    Link::Between(first, *second);
    Link::Between(*second, *third);
    CKRMString text;
    EXPECT_EQ(7u, first.Description(text));
    EXPECT_STREQ(" A[0]=\"NULL\"!", text.GetText());
}

TEST(Attribute, DestroysItsFollowersUnlinked) {
    std::vector<std::string> destroyed;
    {
        CKRMCAttribute first("A");
        auto* const second = new Mortal<CKRMCAttribute>("B", destroyed);
        auto* const third = new CKRMCAttribute("C", kLongText);
        auto* const fourth = new Mortal<CKRMCAttribute>("D", destroyed);
        Link::Between(first, *second);
        Link::Between(*second, *third);
        Link::Between(*third, *fourth);
        EXPECT_EQ(&first, second->GetPrev());
        EXPECT_EQ(third, second->GetNext());
    }
    EXPECT_THAT(destroyed, ElementsAre("B", "D"));
}

/// Counts how its value is cleared.
class CountingClears : public CKRMCAttribute {
public:
    using CKRMCAttribute::CKRMCAttribute;
    bool ClearValue() override {
        valueWhenCleared = GetString() != nullptr ? GetString() : "none";
        ++clears;
        return CKRMCAttribute::ClearValue();
    }
    int clears = 0;
    std::string valueWhenCleared;
};

TEST(Attribute, SettersClearThroughTheVirtualOperation) {
    CountingClears attribute("A", "old");
    EXPECT_EQ(0, attribute.clears);
    EXPECT_TRUE(attribute.SetValue(nullptr, attribute.GetString()));
    EXPECT_EQ("old", attribute.valueWhenCleared);
    EXPECT_TRUE(attribute.SetValue(nullptr, krm_ulong(1)));
    EXPECT_TRUE(attribute.SetValue(nullptr, krm_long(1)));
    EXPECT_TRUE(attribute.SetValue(nullptr, 1.0));
    EXPECT_TRUE(attribute.SetValue(nullptr, "x"));
    EXPECT_EQ("none", attribute.valueWhenCleared);
    EXPECT_EQ(5, attribute.clears);
    EXPECT_FALSE(attribute.SetValue(nullptr, static_cast<const char*>(nullptr)));
    EXPECT_EQ(5, attribute.clears);
}

/// An attribute that remembers how many blocks there were when it was cleared.
class CountingBlocks : public CKRMCAttribute {
public:
    using CKRMCAttribute::CKRMCAttribute;
    bool ClearValue() override {
        blocksWhenCleared = LivingBlocks();
        return CKRMCAttribute::ClearValue();
    }
    long blocksWhenCleared = 0;
};

TEST(Attribute, ANumberGoesBeforeTheTextIsMade) {
    KRM_SKIP_WITHOUT_FAILING_ALLOCATIONS();
    CountingBlocks attribute("A", krm_long(7));
    const long blocks = LivingBlocks();
    EXPECT_TRUE(attribute.SetValue(nullptr, kLongText));
    EXPECT_EQ(blocks, attribute.blocksWhenCleared);
    EXPECT_GT(LivingBlocks(), blocks);  // text and its memory in the place of the number
    EXPECT_STREQ(kLongText, attribute.GetString());
}

TEST(Attribute, ACopySharesValueAndFollowers) {
    CKRMCAttribute original("A", "x");
    auto* const follower = new CKRMCAttribute("B");
    Link::Between(original, *follower);
    Undestroyed<CKRMCAttribute> copy(original);
    EXPECT_EQ(1u, copy->GetKind());
    EXPECT_STREQ("A", copy->GetName());
    EXPECT_EQ(original.GetString(), copy->GetString());
    EXPECT_EQ(follower, copy->GetNext());
    EXPECT_EQ(&original, follower->GetPrev());

    Undestroyed<CKRMCAttribute> assigned("Z");
    *assigned = original;
    EXPECT_STREQ("A", assigned->GetName());
    EXPECT_EQ(1u, assigned->GetValueType());
    EXPECT_EQ(original.GetString(), assigned->GetString());
    EXPECT_EQ(follower, assigned->GetNext());
}

TEST(Attribute, ACopyOfAnEmptyOneStandsAlone) {
    const CKRMCAttribute original("A");
    CKRMCAttribute copy(original);
    EXPECT_TRUE(copy.SetValue(nullptr, "x"));
    EXPECT_EQ(0u, original.GetValueType());
}

}  // namespace
}  // namespace krm::test

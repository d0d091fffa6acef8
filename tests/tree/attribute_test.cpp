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
    EXPECT_EQ(node.GetKind(), 7u);
    EXPECT_STREQ(node.GetName(), "Name");
    EXPECT_EQ(node.GetNext(), nullptr);
    EXPECT_EQ(node.GetPrev(), nullptr);
    EXPECT_EQ(node.GetParent(), nullptr);
    CKRMString text("before");
    EXPECT_EQ(node.Description(text), 0u);
    EXPECT_STREQ(text.GetText(), "before");
    EXPECT_STREQ(CKRMCNode(1, nullptr).GetName(), "");
}

TEST(Node, MembersAreInDocumentedOrder) {
    EXPECT_TRUE(OddAttribute("A").MembersAreInOrder());
}

TEST(Attribute, IsEmptyAtFirst) {
    const CKRMCAttribute attribute("A");
    EXPECT_EQ(attribute.GetKind(), tree::kAttributeKind);
    EXPECT_EQ(attribute.GetKind(), 1u);
    EXPECT_EQ(attribute.GetValueType(), 0u);
    EXPECT_EQ(attribute.GetString(), nullptr);
    EXPECT_EQ(attribute.GetDouble(), 0.0);
    EXPECT_EQ(attribute.GetLong(), 0);
    EXPECT_EQ(attribute.GetULong(), 0u);
}

TEST(Attribute, ConstructorsSetTheValue) {
    const CKRMCAttribute text("A", "x");
    EXPECT_EQ(text.GetValueType(), 1u);
    EXPECT_STREQ(text.GetString(), "x");
    const CKRMCAttribute real("A", 2.5);
    EXPECT_EQ(real.GetValueType(), 2u);
    EXPECT_EQ(real.GetDouble(), 2.5);
    const CKRMCAttribute number("A", krm_long(-7));
    EXPECT_EQ(number.GetValueType(), 3u);
    EXPECT_EQ(number.GetLong(), -7);
    const CKRMCAttribute positive("A", krm_ulong(0xFFFFFFFF));
    EXPECT_EQ(positive.GetValueType(), 4u);
    EXPECT_EQ(positive.GetULong(), 0xFFFFFFFFu);
    const char* const none = nullptr;
    const CKRMCAttribute empty("A", none);
    EXPECT_EQ(empty.GetValueType(), 0u);
}

TEST(Attribute, ANullNameIsEmpty) {
    CKRMCAttribute empty(nullptr);
    EXPECT_STREQ(empty.GetName(), "");
    EXPECT_EQ(Described(empty), " [0]=\"NULL\"");
    CKRMCAttribute number(nullptr, krm_long(5));
    EXPECT_EQ(Described(number), " [3]=\"5\"");
}

TEST(Attribute, ReadsNoValueAsAnotherType) {
    CKRMCAttribute attribute("A", "12");
    EXPECT_EQ(attribute.GetDouble(), 0.0);
    EXPECT_EQ(attribute.GetLong(), 0);
    EXPECT_EQ(attribute.GetULong(), 0u);
    ASSERT_TRUE(attribute.SetValue(nullptr, krm_long(12)));
    EXPECT_EQ(attribute.GetString(), nullptr);
    EXPECT_EQ(attribute.GetULong(), 0u);
    EXPECT_EQ(attribute.GetDouble(), 0.0);
    ASSERT_TRUE(attribute.SetValue(nullptr, krm_ulong(12)));
    EXPECT_EQ(attribute.GetLong(), 0);
    ASSERT_TRUE(attribute.SetValue(nullptr, 12.0));
    EXPECT_EQ(attribute.GetString(), nullptr);
    EXPECT_EQ(attribute.GetULong(), 0u);
}

TEST(Attribute, ANullTextKeepsTheOldValue) {
    RecordingError error;
    CKRMCAttribute attribute("A", 3.5);
    const char* const none = nullptr;
    EXPECT_FALSE(attribute.SetValue(&error, none));
    EXPECT_THAT(error.TakeCalls(), ElementsAre("SetErrorCode(0)", "SetError(1100100001,,,,,)"));
    EXPECT_EQ(error.a_ulReturnCode, 1100100001u);
    EXPECT_EQ(attribute.GetValueType(), 2u);
    EXPECT_EQ(attribute.GetDouble(), 3.5);
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
    EXPECT_EQ(numberType, 3u);
    EXPECT_EQ(attribute.GetValueType(), 1u);
    EXPECT_STREQ(attribute.GetString(), "x");
    EXPECT_EQ(LivingBlocks(), before + 1 + BlocksOf("x")) << "the number's cell is freed";
    ASSERT_TRUE(attribute.SetValue(&error, kLongText));
    EXPECT_EQ(LivingBlocks(), before + 2) << "the text has memory of its own";
    ASSERT_TRUE(attribute.SetValue(&error, 1.5));
    EXPECT_EQ(LivingBlocks(), before + 1);
    ASSERT_TRUE(attribute.ClearValue());
    EXPECT_EQ(LivingBlocks(), before);
}

TEST(Attribute, FreesItsValueWhenItDies) {
    KRM_SKIP_WITHOUT_FAILING_ALLOCATIONS();
    const long before = LivingBlocks();
    {
        const CKRMCAttribute text("", kLongText);
        const CKRMCAttribute real("", 0.5);
        const CKRMCAttribute number("", krm_long{-1});
        const CKRMCAttribute index("", krm_ulong{1});
        EXPECT_EQ(LivingBlocks(), before + 5) << "four cells and the text's memory";
    }
    EXPECT_EQ(LivingBlocks(), before);
}

TEST(Attribute, SuccessLeavesTheErrorCleared) {
    RecordingError error;
    CKRMCAttribute attribute("A");
    const auto expectCleared = [&] {
        EXPECT_THAT(error.TakeCalls(), ElementsAre("SetErrorCode(0)"));
        EXPECT_EQ(error.a_ulReturnCode, 0u);
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
    EXPECT_STREQ(attribute.GetString(), kLongText);
    ASSERT_TRUE(attribute.SetValue(nullptr, attribute.GetString() + 7));
    EXPECT_STREQ(attribute.GetString(), kLongText + 7);
    ASSERT_TRUE(attribute.SetValue(nullptr, attribute.GetName()));
    EXPECT_STREQ(attribute.GetString(), "A");
}

TEST(Attribute, ClearingAnEmptyOneIsTrue) {
    CKRMCAttribute attribute("A");
    EXPECT_TRUE(attribute.ClearValue());
    EXPECT_EQ(attribute.GetValueType(), 0u);
    EXPECT_EQ(Described(attribute), " A[0]=\"NULL\"");
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
        EXPECT_EQ(error.a_ulReturnCode, 2100100002u);
        EXPECT_EQ(attribute.GetValueType(), 0u);
        EXPECT_EQ(Described(attribute), " A[0]=\"NULL\"");
        EXPECT_EQ(LivingBlocks(), before - 1 - BlocksOf("old")) << "the old value is freed, and nothing else is left";
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
        EXPECT_EQ(error.a_ulReturnCode, 2100100002u);
        EXPECT_EQ(attribute.GetValueType(), 0u);
    }
}

TEST(Attribute, AConstructorWithoutMemoryGivesAnEmptyOne) {
    KRM_SKIP_WITHOUT_FAILING_ALLOCATIONS();
    // With empty names, which no platform's string needs memory for.
    krm_ulong types[5] = {9, 9, 9, 9, 9};
    {
        const FailAllocations failing(0);
        types[0] = CKRMCAttribute("", 2.5).GetValueType();
        types[1] = CKRMCAttribute("", "x").GetValueType();
        types[2] = CKRMCAttribute("", krm_long{1}).GetValueType();
        types[3] = CKRMCAttribute("", krm_ulong{1}).GetValueType();
    }
    {
        const FailAllocations failing(1);  // the text's own memory
        types[4] = CKRMCAttribute("", kLongText).GetValueType();
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
        EXPECT_EQ(error.a_ulReturnCode, 0u);
        EXPECT_EQ(other.CompareValue(nullptr, &one), equal);
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
    EXPECT_EQ(number.GetLong(), 7);
    EXPECT_EQ(positive.GetULong(), 7u);
    EXPECT_STREQ(text.GetString(), "7");
}

TEST(AttributeDescription, WritesEachType) {
    const auto described = [](auto value) {
        CKRMCAttribute attribute("A", value);
        return Described(attribute);
    };
    CKRMCAttribute empty("A");
    EXPECT_EQ(Described(empty), " A[0]=\"NULL\"");
    EXPECT_EQ(described("a \"b\" %d"), " A[1]=\"a \"b\" %d\"");
    EXPECT_EQ(described(""), " A[1]=\"\"");
    EXPECT_EQ(described(2.5), " A[2]=\"2.500000\"");
    EXPECT_EQ(described(-0.0), " A[2]=\"-0.000000\"");
    EXPECT_EQ(described(krm_long(5)), " A[3]=\"5\"");
    EXPECT_EQ(described(std::numeric_limits<krm_long>::min()), " A[3]=\"-2147483648\"");
    EXPECT_EQ(described(krm_ulong(0xFFFFFFFF)), " A[4]=\"4294967295\"");
    OddAttribute odd("A", 9);
    char expected[40];
    std::snprintf(expected, sizeof expected, " A[9]=\"0x%08X\"", static_cast<unsigned>(AddressOf(odd.Cell())));
    EXPECT_EQ(Described(odd), expected);
}

TEST(AttributeDescription, AppendsAndGoesOnWithTheFollowers) {
    CKRMCAttribute first("A", krm_long(1));
    auto* const second = new CKRMCAttribute("B");
    auto* const third = new CKRMCAttribute("C", "x");
    Link::Between(first, *second);
    Link::Between(*second, *third);
    CKRMString text("before:");
    EXPECT_EQ(first.Description(text), 0u);
    EXPECT_STREQ(text.GetText(), "before: A[3]=\"1\" B[0]=\"NULL\" C[1]=\"x\"");
    EXPECT_EQ(Described(*second), " B[0]=\"NULL\" C[1]=\"x\"");
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
    EXPECT_EQ(first.Description(text), 84u);
    EXPECT_STREQ(text.GetText(), " A[0]=\"NULL\"( B[0]=\"NULL\" C[0]=\"NULL\"( D[0]=\"NULL\" E[0]=\"NULL\"))");
}

TEST(AttributeDescription, AnOverridingSiblingMayEndIt) {
    CKRMCAttribute first("A");
    auto* const second = new Stopping("B");
    auto* const third = new CKRMCAttribute("C");
    Link::Between(first, *second);
    Link::Between(*second, *third);
    CKRMString text;
    EXPECT_EQ(first.Description(text), 7u);
    EXPECT_STREQ(text.GetText(), " A[0]=\"NULL\"!");
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
        EXPECT_EQ(second->GetPrev(), &first);
        EXPECT_EQ(second->GetNext(), third);
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
    EXPECT_EQ(attribute.clears, 0);
    EXPECT_TRUE(attribute.SetValue(nullptr, attribute.GetString()));
    EXPECT_EQ(attribute.valueWhenCleared, "old");
    EXPECT_TRUE(attribute.SetValue(nullptr, krm_ulong(1)));
    EXPECT_TRUE(attribute.SetValue(nullptr, krm_long(1)));
    EXPECT_TRUE(attribute.SetValue(nullptr, 1.0));
    EXPECT_TRUE(attribute.SetValue(nullptr, "x"));
    EXPECT_EQ(attribute.valueWhenCleared, "none");
    EXPECT_EQ(attribute.clears, 5);
    EXPECT_FALSE(attribute.SetValue(nullptr, static_cast<const char*>(nullptr)));
    EXPECT_EQ(attribute.clears, 5);
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
    EXPECT_EQ(attribute.blocksWhenCleared, blocks);
    EXPECT_GT(LivingBlocks(), blocks);  // text and its memory in the place of the number
    EXPECT_STREQ(attribute.GetString(), kLongText);
}

TEST(Attribute, ACopySharesValueAndFollowers) {
    CKRMCAttribute original("A", "x");
    auto* const follower = new CKRMCAttribute("B");
    Link::Between(original, *follower);
    Undestroyed<CKRMCAttribute> copy(original);
    EXPECT_EQ(copy->GetKind(), 1u);
    EXPECT_STREQ(copy->GetName(), "A");
    EXPECT_EQ(copy->GetString(), original.GetString());
    EXPECT_EQ(copy->GetNext(), follower);
    EXPECT_EQ(follower->GetPrev(), &original);

    Undestroyed<CKRMCAttribute> assigned("Z");
    *assigned = original;
    EXPECT_STREQ(assigned->GetName(), "A");
    EXPECT_EQ(assigned->GetValueType(), 1u);
    EXPECT_EQ(assigned->GetString(), original.GetString());
    EXPECT_EQ(assigned->GetNext(), follower);
}

TEST(Attribute, ACopyOfAnEmptyOneStandsAlone) {
    const CKRMCAttribute original("A");
    CKRMCAttribute copy(original);
    EXPECT_TRUE(copy.SetValue(nullptr, "x"));
    EXPECT_EQ(original.GetValueType(), 0u);
}

}  // namespace
}  // namespace krm::test

#include "krm/tree/element.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "gmock/gmock.h"
#include "gtest/gtest.h"
#include "krm/tree/attribute.h"
#include "krm/tree/element_group.h"
#include "tests/support/failing_allocation.h"
#include "tests/support/not_under.h"
#include "tests/support/recording_error.h"
#include "tests/support/small_stack.h"
#include "tests/tree/own_nodes.h"

namespace krm::test {
namespace {

using ::testing::ElementsAre;

const char* const kLongName = "a name that is longer than what a string holds without memory of its own";
const char* const kNoText = nullptr;

// Nothing but the documented members.
struct NodeLayout {
    virtual ~NodeLayout() = default;
    krm_ulong kind;
    CKRMString name;
    void* links[3];
};
struct ElementLayout : NodeLayout {
    void* ends[4];
};
struct GroupLayout : NodeLayout {
    void* ends[2];
};
static_assert(sizeof(CKRMCElement) == sizeof(ElementLayout));
static_assert(sizeof(CKRMCElementGroup) == sizeof(GroupLayout));

std::vector<std::string> NamesFrom(const CKRMCNode* node) {
    std::vector<std::string> names;
    for (; node != nullptr; node = node->GetNext()) {
        names.emplace_back(node->GetName());
    }
    return names;
}

TEST(Element, IsEmptyAtFirst) {
    CKRMCElement element("Name");
    EXPECT_EQ(element.GetKind(), 2u);
    EXPECT_STREQ(element.GetName(), "Name");
    EXPECT_EQ(element.GetFirstAttribute(), nullptr);
    EXPECT_EQ(element.GetFirstGroup(), nullptr);
    EXPECT_EQ(Described(element), "<Name>\n</Name>\n");
    CKRMCElement nameless(nullptr);
    EXPECT_EQ(Described(nameless), "<>\n</>\n");
}

TEST(ElementGroup, IsEmptyAtFirst) {
    CKRMError error;
    CKRMCElementGroup group("Name");
    EXPECT_EQ(group.GetKind(), 3u);
    EXPECT_STREQ(group.GetName(), "Name");
    EXPECT_EQ(group.GetFirstElement(&error), nullptr);
    EXPECT_EQ(Described(group), "");
    EXPECT_STREQ(CKRMCElementGroup(nullptr).GetName(), "");
}

class MemberOrder : public CKRMCElement {
public:
    MemberOrder() : CKRMCElement("E") {}
    bool Holds() {
        const std::vector<std::uintptr_t> addresses{AddressOf(&m_pcParent), AddressOf(&m_pcFirstAttribute),
                                                    AddressOf(&m_pcLastAttribute), AddressOf(&m_pcFirstGroup),
                                                    AddressOf(&m_pcLastGroup)};
        return std::is_sorted(addresses.begin(), addresses.end());
    }
};

class GroupMemberOrder : public CKRMCElementGroup {
public:
    GroupMemberOrder() : CKRMCElementGroup("E") {}
    bool Holds() {
        return AddressOf(&m_pcParent) < AddressOf(&m_pcFirstElement) &&
               AddressOf(&m_pcFirstElement) < AddressOf(&m_pcLastElement);
    }
};

TEST(Element, MembersAreInDocumentedOrder) {
    EXPECT_TRUE(MemberOrder().Holds());
    EXPECT_TRUE(GroupMemberOrder().Holds());
}

TEST(CreateAttribute, GivesOnePerName) {
    RecordingError error;
    OwnElement element("E");
    CKRMCAttribute* const id = element.CreateAttribute(&error, "Id");
    ASSERT_NE(id, nullptr);
    EXPECT_THAT(error.TakeCalls(), ElementsAre("SetErrorCode(0)", "SetErrorCode(0)", "GetErrorCode"));
    EXPECT_STREQ(id->GetName(), "Id");
    EXPECT_EQ(id->GetValueType(), 0u);
    EXPECT_EQ(id->GetParent(), &element);
    EXPECT_EQ(element.GetFirstAttribute(), id);
    EXPECT_EQ(element.LastAttribute(), id);
    EXPECT_EQ(element.CreateAttribute(&error, "Id"), id);
    EXPECT_THAT(error.TakeCalls(), ElementsAre("SetErrorCode(0)", "SetErrorCode(0)", "GetErrorCode"));
    EXPECT_EQ(id->GetNext(), nullptr);

    CKRMCAttribute* const code = element.CreateAttribute(nullptr, "Code");
    CKRMCAttribute* const empty = element.CreateAttribute(nullptr, "");
    EXPECT_EQ(element.CreateAttribute(nullptr, ""), empty);
    EXPECT_THAT(NamesFrom(element.GetFirstAttribute()), ElementsAre("Id", "Code", ""));
    EXPECT_EQ(code->GetPrev(), id);
    EXPECT_EQ(empty->GetPrev(), code);
    EXPECT_EQ(id->GetPrev(), nullptr);
    EXPECT_EQ(element.LastAttribute(), empty);
    EXPECT_EQ(element.GetAttribute(&error, "Code"), code);
}

TEST(CreateElementGroup, GivesOnePerName) {
    RecordingError error;
    OwnElement element("E");
    CKRMCElementGroup* const dtc = element.CreateElementGroup(&error, "Dtc");
    ASSERT_NE(dtc, nullptr);
    EXPECT_THAT(error.TakeCalls(), ElementsAre("SetErrorCode(0)", "SetErrorCode(0)", "GetErrorCode"));
    EXPECT_STREQ(dtc->GetName(), "Dtc");
    EXPECT_EQ(dtc->GetParent(), &element);
    EXPECT_EQ(element.GetFirstGroup(), dtc);
    EXPECT_EQ(element.CreateElementGroup(&error, "Dtc"), dtc);
    CKRMCElementGroup* const ffd = element.CreateElementGroup(nullptr, "Ffd");
    EXPECT_THAT(NamesFrom(element.GetFirstGroup()), ElementsAre("Dtc", "Ffd"));
    EXPECT_EQ(ffd->GetPrev(), dtc);
    EXPECT_EQ(element.LastGroup(), ffd);
    EXPECT_EQ(element.GetElementGroup(&error, "Ffd"), ffd);
}

TEST(CreateElement, AddsOneWithEveryCall) {
    RecordingError error;
    CKRMCElement element("E");
    CKRMCElement* const first = element.CreateElement(&error, "Dtc");
    ASSERT_NE(first, nullptr);
    EXPECT_THAT(error.TakeCalls(), ElementsAre("SetErrorCode(0)", "SetErrorCode(0)", "SetErrorCode(0)", "GetErrorCode",
                                               "GetErrorCode", "SetErrorCode(0)", "GetErrorCode"));
    CKRMCElement* const second = element.CreateElement(nullptr, "Dtc");
    ASSERT_NE(second, nullptr);
    EXPECT_NE(second, first);
    EXPECT_EQ(element.GetFirstElement(&error, "Dtc"), first);
    EXPECT_EQ(first->GetNext(), second);
    EXPECT_EQ(second->GetPrev(), first);
    EXPECT_EQ(second->GetNext(), nullptr);
    EXPECT_STREQ(second->GetName(), "Dtc");
    EXPECT_EQ(second->GetKind(), 2u);
    EXPECT_EQ(first->GetParent(), element.GetFirstGroup());
    EXPECT_EQ(element.GetFirstGroup()->GetNext(), nullptr);
}

TEST(ElementGroup, CreatesElementsOfItsName) {
    RecordingError error;
    OwnGroup group("Dtc");
    CKRMCElement* const element = group.CreateElement(&error);
    ASSERT_NE(element, nullptr);
    EXPECT_THAT(error.TakeCalls(), ElementsAre("SetErrorCode(0)"));
    EXPECT_STREQ(element->GetName(), "Dtc");
    EXPECT_EQ(element->GetParent(), &group);
    EXPECT_EQ(group.GetFirstElement(&error), element);
    EXPECT_THAT(error.TakeCalls(), ElementsAre("SetErrorCode(0)"));
    EXPECT_EQ(group.LastElement(), element);
    CKRMCElement* const second = group.CreateElement(nullptr);
    EXPECT_EQ(group.LastElement(), second);
    EXPECT_EQ(group.GetFirstElement(nullptr), element);
}

TEST(Element, NullArgumentsFail) {
    RecordingError error;
    CKRMCElement element("E");
    CKRMCElementGroup group("G");
    CKRMCAttribute attribute("A");
    const auto expectNullArgument = [&error](bool failed) {
        EXPECT_TRUE(failed);
        EXPECT_THAT(error.TakeCalls(), ElementsAre("SetErrorCode(0)", "SetError(1100100001,,,,,)"));
    };
    for (CKRMError* const passed : {static_cast<CKRMError*>(nullptr), static_cast<CKRMError*>(&error)}) {
        const auto expect = [&](bool failed) {
            if (passed != nullptr) {
                expectNullArgument(failed);
            } else {
                EXPECT_TRUE(failed);
            }
        };
        expect(element.CreateAttribute(passed, kNoText) == nullptr);
        expect(element.GetAttribute(passed, kNoText) == nullptr);
        expect(!element.RemoveAttribute(passed, nullptr));
        expect(element.CreateElementGroup(passed, kNoText) == nullptr);
        expect(element.GetElementGroup(passed, kNoText) == nullptr);
        expect(!element.RemoveElementGroup(passed, nullptr));
        expect(element.CreateElement(passed, kNoText) == nullptr);
        expect(!element.RemoveElement(passed, nullptr));
        expect(element.GetFirstElement(passed, kNoText) == nullptr);
        expect(element.GetElementByAttribute(passed, kNoText, &attribute) == nullptr);
        expect(element.GetElementByAttribute(passed, "Dtc", nullptr) == nullptr);
        expect(!group.RemoveElement(passed, nullptr));
        expect(group.GetElementByAttribute(passed, nullptr) == nullptr);
    }
    EXPECT_EQ(Described(element), "<E>\n</E>\n");
}

TEST(Element, AnUnknownNameIsNoError) {
    RecordingError error;
    error.a_ulReturnCode = 5;
    CKRMCElement element("E");
    CKRMCAttribute probe("A", krm_long(1));
    EXPECT_EQ(element.GetAttribute(&error, "None"), nullptr);
    EXPECT_THAT(error.TakeCalls(), ElementsAre("SetErrorCode(0)"));
    EXPECT_EQ(element.GetElementGroup(&error, "None"), nullptr);
    EXPECT_THAT(error.TakeCalls(), ElementsAre("SetErrorCode(0)"));
    EXPECT_EQ(element.GetFirstElement(&error, "None"), nullptr);
    EXPECT_THAT(error.TakeCalls(), ElementsAre("SetErrorCode(0)", "SetErrorCode(0)", "GetErrorCode"));
    EXPECT_EQ(element.GetElementByAttribute(&error, "None", &probe), nullptr);
    EXPECT_THAT(error.TakeCalls(), ElementsAre("SetErrorCode(0)", "SetErrorCode(0)", "GetErrorCode"));
    EXPECT_EQ(error.a_ulReturnCode, 0u);
}

TEST(GetFirstElement, AsksTheGroup) {
    RecordingError error;
    CKRMCElement element("E");
    CKRMCElement* const child = element.CreateElement(nullptr, "Dtc");
    EXPECT_EQ(element.GetFirstElement(&error, "Dtc"), child);
    EXPECT_THAT(error.TakeCalls(),
                ElementsAre("SetErrorCode(0)", "SetErrorCode(0)", "GetErrorCode", "SetErrorCode(0)"));
    element.CreateElementGroup(nullptr, "Empty");
    EXPECT_EQ(element.GetFirstElement(&error, "Empty"), nullptr);
    EXPECT_EQ(error.a_ulReturnCode, 0u);
}

/// A vehicle with four `Dtc` elements: without `Code`, with an empty one, with the text "7", with the number 7.
class Search : public ::testing::Test {
protected:
    Search() : vehicle("Vehicle") {
        without = vehicle.CreateElement(nullptr, "Dtc");
        empty = vehicle.CreateElement(nullptr, "Dtc");
        empty->CreateAttribute(nullptr, "Code");
        text = vehicle.CreateElement(nullptr, "Dtc");
        text->CreateAttribute(nullptr, "Code")->SetValue(nullptr, "7");
        number = vehicle.CreateElement(nullptr, "Dtc");
        number->CreateAttribute(nullptr, "Code")->SetValue(nullptr, krm_long(7));
    }

    CKRMCElement vehicle;
    CKRMCElement* without;
    CKRMCElement* empty;
    CKRMCElement* text;
    CKRMCElement* number;
    RecordingError error;
};

TEST_F(Search, GoesOnAfterErrorsOnEarlierElements) {
    CKRMCAttribute probe("Code", krm_long(7));
    EXPECT_EQ(vehicle.GetElementByAttribute(&error, "Dtc", &probe), number);
    EXPECT_THAT(error.TakeCalls(),
                ElementsAre("SetErrorCode(0)", "SetErrorCode(0)", "GetErrorCode", "SetErrorCode(0)",
                            // without the attribute
                            "SetErrorCode(0)", "GetErrorCode",
                            // an empty one
                            "SetErrorCode(0)", "GetErrorCode", "SetErrorCode(0)", "SetError(2100100123,,,,,)",
                            // another type
                            "SetErrorCode(0)", "GetErrorCode", "SetErrorCode(0)", "SetError(2100100122,,,,,)",
                            // equal
                            "SetErrorCode(0)", "GetErrorCode", "SetErrorCode(0)", "GetErrorCode",
                            // and the element's own look at the result
                            "GetErrorCode"));
    EXPECT_EQ(error.a_ulReturnCode, 0u);
    EXPECT_EQ(vehicle.GetElementByAttribute(nullptr, "Dtc", &probe), number);
    EXPECT_EQ(vehicle.GetFirstGroup()->GetElementByAttribute(nullptr, &probe), number);
}

TEST_F(Search, FindsTheFirstOfEquals) {
    vehicle.CreateElement(nullptr, "Dtc")->CreateAttribute(nullptr, "Code")->SetValue(nullptr, "7");
    CKRMCAttribute probe("Code", "7");
    EXPECT_EQ(vehicle.GetElementByAttribute(&error, "Dtc", &probe), text);
}

TEST_F(Search, AnUnequalValueAtTheEndLeavesNoError) {
    CKRMCAttribute probe("Code", krm_long(8));
    EXPECT_EQ(vehicle.GetElementByAttribute(&error, "Dtc", &probe), nullptr);
    EXPECT_EQ(error.a_ulReturnCode, 0u);
}

TEST_F(Search, AMissingAttributeAtTheEndLeavesNoError) {
    vehicle.CreateElement(nullptr, "Dtc");
    CKRMCAttribute probe("Code", 7.0);
    EXPECT_EQ(vehicle.GetElementByAttribute(&error, "Dtc", &probe), nullptr);
    EXPECT_EQ(error.a_ulReturnCode, 0u);
}

TEST_F(Search, AnErrorAtTheEndStays) {
    CKRMCAttribute real("Code", 7.0);
    EXPECT_EQ(vehicle.GetElementByAttribute(&error, "Dtc", &real), nullptr);
    EXPECT_EQ(error.a_ulReturnCode, 2100100122u);
    CKRMCAttribute unset("Code");
    EXPECT_EQ(vehicle.GetElementByAttribute(&error, "Dtc", &unset), nullptr);
    EXPECT_EQ(error.a_ulReturnCode, 2100100123u);
}

TEST(GetElementByAttribute, AnotherTypeInTheOnlyElement) {
    CKRMError error;
    CKRMCElement vehicle("Vehicle");
    vehicle.CreateElement(&error, "Dtc")->CreateAttribute(&error, "Code")->SetValue(&error, "7");
    CKRMCAttribute probe("Code", krm_long(7));
    EXPECT_EQ(vehicle.GetElementByAttribute(&error, "Dtc", &probe), nullptr);
    EXPECT_EQ(error.a_ulReturnCode, 2100100122u);
}

TEST(GetElementByAttribute, InAnEmptyGroup) {
    RecordingError error;
    CKRMCElementGroup group("Dtc");
    CKRMCAttribute probe("Code", krm_long(7));
    EXPECT_EQ(group.GetElementByAttribute(&error, &probe), nullptr);
    EXPECT_THAT(error.TakeCalls(), ElementsAre("SetErrorCode(0)"));
}

TEST(RemoveAttribute, FromTheLastBackwards) {
    RecordingError error;
    OwnElement element("E");
    CKRMCAttribute* const first = element.CreateAttribute(nullptr, "A");
    CKRMCAttribute* const second = element.CreateAttribute(nullptr, "B");
    CKRMCAttribute* const third = element.CreateAttribute(nullptr, "C");
    EXPECT_TRUE(element.RemoveAttribute(&error, third));
    EXPECT_THAT(error.TakeCalls(), ElementsAre("SetErrorCode(0)"));
    EXPECT_THAT(NamesFrom(element.GetFirstAttribute()), ElementsAre("A", "B"));
    EXPECT_EQ(element.LastAttribute(), second);
    EXPECT_TRUE(element.RemoveAttribute(nullptr, second));
    EXPECT_TRUE(element.RemoveAttribute(nullptr, first));
    EXPECT_EQ(element.GetFirstAttribute(), nullptr);
    EXPECT_EQ(element.LastAttribute(), nullptr);
    EXPECT_NE(element.CreateAttribute(&error, "D"), nullptr);
    EXPECT_EQ(Described(element), "<E D[0]=\"NULL\">\n</E>\n");
}

TEST(RemoveAttribute, OfAnotherElementFails) {
    RecordingError error;
    CKRMCElement element("E");
    element.CreateAttribute(nullptr, "A");
    CKRMCElement other("E");
    CKRMCAttribute* const foreign = other.CreateAttribute(nullptr, "A");
    EXPECT_FALSE(element.RemoveAttribute(&error, foreign));
    EXPECT_THAT(error.TakeCalls(), ElementsAre("SetErrorCode(0)", "SetError(2100100101,,,,,)"));
    EXPECT_FALSE(element.RemoveAttribute(nullptr, foreign));
    EXPECT_EQ(other.GetFirstAttribute(), foreign);
}

// After these removals the element leads to destroyed nodes: it is looked at once, by address, and never destroyed.

TEST(RemoveAttribute, OfTheFirstDestroysAll) {
    std::vector<std::string> destroyed;
    Undestroyed<OwnElement> element("E");
    CKRMCAttribute* const first = new Mortal<CKRMCAttribute>("A", destroyed);
    CKRMCAttribute* const second = new Mortal<CKRMCAttribute>("B", destroyed);
    CKRMCAttribute* const third = new Mortal<CKRMCAttribute>("C", destroyed);
    for (CKRMCAttribute* const each : {first, second, third}) {
        element->Adopt(each);
    }
    const std::uintptr_t addressOfSecond = AddressOf(second);
    const std::uintptr_t addressOfThird = AddressOf(third);
    CKRMError error;
    EXPECT_TRUE(element->RemoveAttribute(&error, first));
    EXPECT_EQ(error.a_ulReturnCode, 0u);
    EXPECT_THAT(destroyed, ElementsAre("A next", "B", "C"));
    EXPECT_EQ(AddressOf(element->GetFirstAttribute()), addressOfSecond);
    EXPECT_EQ(AddressOf(element->LastAttribute()), addressOfThird);
}

TEST(RemoveAttribute, OfTheSecondLeavesTheFirstLinkedToTheThird) {
    std::vector<std::string> destroyed;
    Undestroyed<OwnElement> element("E");
    Undestroyed<Mortal<CKRMCAttribute>> first("A", destroyed);
    CKRMCAttribute* const second = new Mortal<CKRMCAttribute>("B", destroyed);
    CKRMCAttribute* const third = new Mortal<CKRMCAttribute>("C", destroyed);
    for (CKRMCAttribute* const each : {static_cast<CKRMCAttribute*>(&*first), second, third}) {
        element->Adopt(each);
    }
    const std::uintptr_t addressOfThird = AddressOf(third);
    EXPECT_TRUE(element->RemoveAttribute(nullptr, second));
    EXPECT_THAT(destroyed, ElementsAre("B prev next", "C"));
    EXPECT_EQ(element->GetFirstAttribute(), &*first);
    EXPECT_EQ(AddressOf(first->GetNext()), addressOfThird);
    EXPECT_EQ(AddressOf(element->LastAttribute()), addressOfThird);
}

// A removed node is out of its chain before it goes: its follower leads back past it to the node in front, or to nothing.

/// Removes a node that has a follower: from behind another node, and from the head of its chain.
template <class Node, class Holder, class Remove>
void ExpectTheFollowerLeadsPast(Remove remove) {
    for (const bool isFirst : {false, true}) {
        std::vector<const CKRMCNode*> seen;
        Undestroyed<Holder> holder("E");
        Undestroyed<Node> front("A");
        auto* const removed = new LooksBack<Node>("B", seen);
        if (!isFirst) {
            holder->Adopt(&*front);
        }
        holder->Adopt(removed);
        holder->Adopt(new Node("C"));
        EXPECT_TRUE(remove(*holder, removed));
        EXPECT_THAT(seen, ElementsAre(isFirst ? nullptr : &*front));
    }
}

TEST(RemoveAttribute, TheFollowerLeadsPastTheDyingNode) {
    ExpectTheFollowerLeadsPast<CKRMCAttribute, OwnElement>(
        [](OwnElement& element, CKRMCAttribute* attribute) { return element.RemoveAttribute(nullptr, attribute); });
}

TEST(RemoveElementGroup, TheFollowerLeadsPastTheDyingNode) {
    ExpectTheFollowerLeadsPast<CKRMCElementGroup, OwnElement>(
        [](OwnElement& element, CKRMCElementGroup* group) { return element.RemoveElementGroup(nullptr, group); });
}

TEST(RemoveElement, TheFollowerLeadsPastTheDyingNode) {
    ExpectTheFollowerLeadsPast<CKRMCElement, OwnGroup>(
        [](OwnGroup& group, CKRMCElement* element) { return group.RemoveElement(nullptr, element); });
}

TEST(RemoveElementGroup, DestroysItsElements) {
    RecordingError error;
    std::vector<std::string> destroyed;
    OwnElement element("E");
    CKRMCElementGroup* const first = element.CreateElementGroup(nullptr, "A");
    auto* const second = new OwnGroup("B");
    element.Adopt(second);
    second->Adopt(new Mortal<CKRMCElement>("B", destroyed));
    EXPECT_TRUE(element.RemoveElementGroup(&error, second));
    EXPECT_THAT(error.TakeCalls(), ElementsAre("SetErrorCode(0)"));
    EXPECT_THAT(destroyed, ElementsAre("B"));
    EXPECT_EQ(element.LastGroup(), first);
    EXPECT_THAT(NamesFrom(element.GetFirstGroup()), ElementsAre("A"));
}

TEST(RemoveElementGroup, OfAnotherElementFails) {
    RecordingError error;
    CKRMCElement element("E");
    element.CreateElementGroup(nullptr, "A");
    CKRMCElement other("E");
    CKRMCElementGroup* const foreign = other.CreateElementGroup(nullptr, "A");
    EXPECT_FALSE(element.RemoveElementGroup(&error, foreign));
    EXPECT_THAT(error.TakeCalls(), ElementsAre("SetErrorCode(0)", "SetError(2100100103,,,,,)"));
    EXPECT_EQ(other.GetFirstGroup(), foreign);
}

TEST(RemoveElementGroup, OfTheFirstDestroysAll) {
    std::vector<std::string> destroyed;
    Undestroyed<OwnElement> element("E");
    CKRMCElementGroup* const first = new Mortal<CKRMCElementGroup>("A", destroyed);
    CKRMCElementGroup* const second = new Mortal<CKRMCElementGroup>("B", destroyed);
    element->Adopt(first);
    element->Adopt(second);
    const std::uintptr_t addressOfSecond = AddressOf(second);
    EXPECT_TRUE(element->RemoveElementGroup(nullptr, first));
    EXPECT_THAT(destroyed, ElementsAre("A next", "B"));
    EXPECT_EQ(AddressOf(element->GetFirstGroup()), addressOfSecond);
}

TEST(RemoveElement, LeavesTheEmptiedGroup) {
    RecordingError error;
    CKRMCElement element("E");
    CKRMCElement* const child = element.CreateElement(nullptr, "Dtc");
    EXPECT_TRUE(element.RemoveElement(&error, child));
    EXPECT_THAT(error.TakeCalls(),
                ElementsAre("SetErrorCode(0)", "SetErrorCode(0)", "GetErrorCode", "SetErrorCode(0)"));
    EXPECT_THAT(NamesFrom(element.GetFirstGroup()), ElementsAre("Dtc"));
    EXPECT_EQ(element.GetFirstElement(nullptr, "Dtc"), nullptr);
    EXPECT_NE(element.CreateElement(nullptr, "Dtc"), nullptr);
}

TEST(RemoveElement, WithoutItsGroupFails) {
    RecordingError error;
    CKRMCElement element("E");
    CKRMCElement stranger("Dtc");
    EXPECT_FALSE(element.RemoveElement(&error, &stranger));
    EXPECT_THAT(error.TakeCalls(),
                ElementsAre("SetErrorCode(0)", "SetErrorCode(0)", "GetErrorCode", "SetError(2100100103,,,,,)"));
}

TEST(RemoveElement, FromTheWrongGroupFails) {
    RecordingError error;
    CKRMCElement element("E");
    element.CreateElement(nullptr, "Dtc");
    CKRMCElement stranger("Dtc");
    EXPECT_FALSE(element.RemoveElement(&error, &stranger));
    EXPECT_THAT(error.TakeCalls(), ElementsAre("SetErrorCode(0)", "SetErrorCode(0)", "GetErrorCode", "SetErrorCode(0)",
                                               "SetError(2100100102,,,,,)"));
    EXPECT_FALSE(element.GetFirstGroup()->RemoveElement(&error, &stranger));
    EXPECT_EQ(error.a_ulReturnCode, 2100100102u);
}

TEST(RemoveElement, OfTheFirstDestroysAll) {
    std::vector<std::string> destroyed;
    Undestroyed<OwnGroup> group("Dtc");
    CKRMCElement* const first = new Mortal<CKRMCElement>("1", destroyed);
    CKRMCElement* const second = new Mortal<CKRMCElement>("2", destroyed);
    group->Adopt(first);
    group->Adopt(second);
    const std::uintptr_t addressOfSecond = AddressOf(second);
    EXPECT_TRUE(group->RemoveElement(nullptr, first));
    EXPECT_THAT(destroyed, ElementsAre("1 next", "2"));
    EXPECT_EQ(AddressOf(group->GetFirstElement(nullptr)), addressOfSecond);
    EXPECT_EQ(AddressOf(group->LastElement()), addressOfSecond);
}

TEST(RemoveAll, LeavesAnElementToBeFilledAgain) {
    OwnElement element("E");
    for (int i = 0; i < 2; ++i) {
        element.CreateAttribute(nullptr, "A")->SetValue(nullptr, kLongName);
        element.CreateElement(nullptr, "Dtc")->CreateElement(nullptr, "Ffd");
        element.CreateElement(nullptr, "Ecu");
        EXPECT_EQ(Described(element),
                  std::string("<E A[1]=\"") + kLongName + "\">\n<Dtc>\n<Ffd>\n</Ffd>\n</Dtc>\n<Ecu>\n</Ecu>\n</E>\n");
        element.RemoveAll();
        EXPECT_EQ(element.GetFirstAttribute(), nullptr);
        EXPECT_EQ(element.LastAttribute(), nullptr);
        EXPECT_EQ(element.GetFirstGroup(), nullptr);
        EXPECT_EQ(element.LastGroup(), nullptr);
    }
    element.RemoveAll();
    EXPECT_EQ(Described(element), "<E>\n</E>\n");
}

TEST(ElementDescription, WritesTheTree) {
    CKRMCElement ecu("Ecu");
    ecu.CreateAttribute(nullptr, "Id")->SetValue(nullptr, krm_long(5));
    ecu.CreateElement(nullptr, "Dtc");
    EXPECT_EQ(Described(ecu), "<Ecu Id[3]=\"5\">\n<Dtc>\n</Dtc>\n</Ecu>\n");
    CKRMString text("before ");
    EXPECT_EQ(ecu.Description(text), 0u);
    EXPECT_STREQ(text.GetText(), "before <Ecu Id[3]=\"5\">\n<Dtc>\n</Dtc>\n</Ecu>\n");
}

TEST(ElementDescription, WritesChildrenByName) {
    CKRMCElement vehicle("Vehicle");
    vehicle.CreateElement(nullptr, "Ecu")->CreateElement(nullptr, "Dtc")->CreateAttribute(nullptr, "Code");
    vehicle.CreateElement(nullptr, "Key");
    CKRMCElement* const second = vehicle.CreateElement(nullptr, "Ecu");
    second->CreateAttribute(nullptr, "Id")->SetValue(nullptr, "<&>");
    EXPECT_EQ(Described(vehicle),
              "<Vehicle>\n"
              "<Ecu>\n<Dtc Code[0]=\"NULL\">\n</Dtc>\n</Ecu>\n"
              "<Ecu Id[1]=\"<&>\">\n</Ecu>\n"
              "<Key>\n</Key>\n"
              "</Vehicle>\n");
    EXPECT_EQ(Described(*second), "<Ecu Id[1]=\"<&>\">\n</Ecu>\n");
    EXPECT_EQ(Described(*vehicle.GetFirstGroup()),
              "<Ecu>\n<Dtc Code[0]=\"NULL\">\n</Dtc>\n</Ecu>\n<Ecu Id[1]=\"<&>\">\n</Ecu>\n<Key>\n</Key>\n");
}

/// Encloses the description of itself and its followers, and returns a result of its own.
template <class Node, krm_ulong kResult>
class Enclosing : public Node {
public:
    explicit Enclosing(const char* name) : Node(name) {}
    krm_ulong Description(CKRMString& out) override {
        out += "(";
        Node::Description(out);
        out += ")";
        return kResult;
    }
};

// Texts are collected in pieces of some thousand characters. Wherever a piece ends, and however long a single text is, none
// is cut, lost or out of its place.
TEST(ElementDescription, WritesTextsOfAnyLength) {
    for (const std::size_t length : {0U, 100U, 2000U, 4000U, 5000U, 100'000U}) {
        for (std::size_t more = 0; more < 128; ++more) {
            const std::string text(length + more, 't');
            const std::string name(more, 'n');
            CKRMCElement element(name.c_str());
            ASSERT_TRUE(element.CreateAttribute(nullptr, "Text")->SetValue(nullptr, text.c_str()));
            ASSERT_TRUE(element.CreateAttribute(nullptr, text.c_str())->SetValue(nullptr, krm_ulong{4294967295U}));
            ASSERT_TRUE(element.CreateAttribute(nullptr, "Real")->SetValue(nullptr, 0.5));
            element.CreateElement(nullptr, "Child");
            CKRMString description;
            element.Description(description);
            ASSERT_EQ(description.GetText(), "<" + name + " Text[1]=\"" + text + "\" " + text +
                                                 "[4]=\"4294967295\" Real[2]=\"0.500000\">\n<Child>\n</Child>\n</" +
                                                 name + ">\n");
        }
    }
}

TEST(ElementDescription, CallsOverridingNodesAnywhere) {
    OwnElement root("R");
    auto* const firstGroup = new OwnGroup("G");
    root.Adopt(firstGroup);
    firstGroup->CreateElement(nullptr);
    auto* const enclosing = new Enclosing<OwnElement, 1>("X");
    firstGroup->Adopt(enclosing);
    enclosing->Adopt(new Enclosing<CKRMCAttribute, 2>("A"));
    enclosing->CreateElement(nullptr, "C");
    firstGroup->CreateElement(nullptr);
    auto* const secondGroup = new Enclosing<OwnGroup, 3>("H");
    root.Adopt(secondGroup);
    secondGroup->CreateElement(nullptr);
    root.CreateElement(nullptr, "I");
    CKRMString text;
    EXPECT_EQ(root.Description(text), 3u);
    EXPECT_STREQ(text.GetText(),
                 "<R>\n"
                 "<G>\n</G>\n"
                 "(<X( A[0]=\"NULL\")>\n<C>\n</C>\n</X>\n<G>\n</G>\n)"
                 "(<H>\n</H>\n<I>\n</I>\n)"
                 "</R>\n");
}

TEST(ElementDescription, ReturnsTheLastNestedResult) {
    OwnElement attributesOnly("E");
    attributesOnly.Adopt(new Enclosing<CKRMCAttribute, 42>("A"));
    CKRMString text;
    EXPECT_EQ(attributesOnly.Description(text), 42u);
    attributesOnly.CreateElementGroup(nullptr, "G");
    EXPECT_EQ(attributesOnly.Description(text), 0u);

    CKRMCElement root("R");
    CKRMCElement* const child = root.CreateElement(nullptr, "C");
    CKRMCElement* const grandchild = child->CreateElement(nullptr, "D");
    auto* const last = new Enclosing<CKRMCElement, 1510277121>("D");
    Link::Between(*grandchild, *last);
    EXPECT_EQ(root.Description(text), 1510277121u);
    root.CreateElement(nullptr, "C");
    EXPECT_EQ(root.Description(text), 0u);
}

// A node destroys its own before its followers, and is destroyed before either.
TEST(Element, DestroysAttributesThenGroupsThenFollowers) {
    std::vector<std::string> destroyed;
    {
        OwnElement root("R");
        CKRMCElementGroup* const plain = root.CreateElementGroup(nullptr, "plain");
        CKRMCElement* const child = plain->CreateElement(nullptr);
        Link::Between(*child, *new Mortal<CKRMCElement>("second child", destroyed));
        auto* const group = new Mortal<OwnGroup>("group", destroyed);
        root.Adopt(group);
        auto* const element = new Mortal<OwnElement>("element", destroyed);
        group->Adopt(element);
        group->Adopt(new Mortal<CKRMCElement>("follower", destroyed));
        element->Adopt(new Mortal<CKRMCElementGroup>("inner group", destroyed));
        element->Adopt(new Mortal<CKRMCAttribute>("inner attribute", destroyed));
        root.Adopt(new Mortal<CKRMCAttribute>("attribute", destroyed));
    }
    EXPECT_THAT(destroyed, ElementsAre("attribute", "second child", "group", "element", "inner attribute",
                                       "inner group", "follower"));
}

/// A node that does something when it goes.
template <class Node>
class Going : public Node {
public:
    explicit Going(std::function<void()> last) : Node("going"), m_last(std::move(last)) {}
    Going(const Going&) = delete;
    Going& operator=(const Going&) = delete;
    ~Going() override { m_last(); }

private:
    std::function<void()> m_last;
};

// By then nothing of its owner leads to nodes that have gone: what is added is the first one again, and goes, too.
TEST(Element, ANodeThatGoesMayAddToItsOwner) {
    std::vector<bool> areFirst;
    const auto add = [&](const CKRMCNode* added) { areFirst.push_back(added->GetPrev() == nullptr); };
    {
        CKRMCElement root("R");
        CKRMCElementGroup* const group = root.CreateElementGroup(nullptr, "group");
        CKRMCElement* const element = group->CreateElement(nullptr);
        CKRMCAttribute* const attribute = element->CreateAttribute(nullptr, "attribute");
        Link::Between(*attribute,
                      *new Going<CKRMCAttribute>([add, element] { add(element->CreateAttribute(nullptr, "late")); }));
        CKRMCElementGroup* const inner = element->CreateElementGroup(nullptr, "inner");
        Link::Between(*inner, *new Going<CKRMCElementGroup>(
                                  [add, element] { add(element->CreateElementGroup(nullptr, "late")); }));
        Link::Between(*element, *new Going<CKRMCElement>([add, group] { add(group->CreateElement(nullptr)); }));
    }
    EXPECT_THAT(areFirst, ElementsAre(true, true, true));
}

/// Finds no attributes and no groups by name, so that creating one looks nothing up.
class NoLookup : public CKRMCElement {
public:
    using CKRMCElement::CKRMCElement;
    CKRMCAttribute* GetAttribute(CKRMError* error, const char*) override {
        error->SetErrorCode(code);
        return nullptr;
    }
    CKRMCElementGroup* GetElementGroup(CKRMError* error, const char*) override {
        error->SetErrorCode(code);
        return nullptr;
    }
    krm_ulong code = 0;
};

TEST(Element, OperationsCallOneAnotherVirtually) {
    RecordingError error;
    NoLookup element("E");
    CKRMCElement* const first = element.CreateElement(nullptr, "G");
    ASSERT_NE(first, nullptr);
    EXPECT_NE(element.CreateElement(nullptr, "G"), nullptr);
    EXPECT_NE(element.CreateAttribute(nullptr, "A"), nullptr);
    EXPECT_NE(element.CreateAttribute(nullptr, "A"), nullptr);
    EXPECT_THAT(NamesFrom(element.GetFirstAttribute()), ElementsAre("A", "A"));
    EXPECT_THAT(NamesFrom(element.GetFirstGroup()), ElementsAre("G", "G"));
    EXPECT_EQ(element.GetFirstElement(&error, "G"), nullptr);
    EXPECT_FALSE(element.RemoveElement(&error, first));
    EXPECT_EQ(error.a_ulReturnCode, 2100100103u);

    CKRMCAttribute probe("A");
    element.code = 77;
    EXPECT_EQ(element.CreateAttribute(&error, "B"), nullptr);
    EXPECT_EQ(element.CreateElementGroup(&error, "H"), nullptr);
    EXPECT_EQ(element.CreateElement(&error, "H"), nullptr);
    EXPECT_EQ(element.GetFirstElement(&error, "G"), nullptr);
    EXPECT_EQ(element.GetElementByAttribute(&error, "G", &probe), nullptr);
    EXPECT_FALSE(element.RemoveElement(&error, first));
    EXPECT_EQ(error.a_ulReturnCode, 77u);
    error.TakeCalls();
    EXPECT_FALSE(element.RemoveElement(&error, first));
    EXPECT_THAT(error.TakeCalls(), ElementsAre("SetErrorCode(0)", "SetErrorCode(77)", "GetErrorCode"));
    EXPECT_THAT(NamesFrom(element.GetFirstAttribute()), ElementsAre("A", "A"));
    EXPECT_THAT(NamesFrom(element.GetFirstGroup()), ElementsAre("G", "G"));
}

/// Creates no group and reports nothing.
class NoGroups : public CKRMCElement {
public:
    using CKRMCElement::CKRMCElement;
    CKRMCElementGroup* CreateElementGroup(CKRMError*, const char*) override { return nullptr; }
};

TEST(CreateElement, WithoutAGroupFails) {
    RecordingError error;
    NoGroups element("E");
    EXPECT_EQ(element.CreateElement(&error, "G"), nullptr);
    EXPECT_THAT(error.TakeCalls(), ElementsAre("SetErrorCode(0)", "GetErrorCode", "SetError(2100100103,,,,,)"));
}

/// Answers every operation with its one element, and reports `code`.
class OneElementGroup : public CKRMCElementGroup {
public:
    OneElementGroup(CKRMCElement& element, std::vector<std::string>& calls)
        : CKRMCElementGroup("G"), m_element(element), m_calls(calls) {}
    CKRMCElement* CreateElement(CKRMError* error) override { return Answer("CreateElement", error); }
    bool RemoveElement(CKRMError* error, CKRMCElement*) override { return Answer("RemoveElement", error) != nullptr; }
    CKRMCElement* GetFirstElement(CKRMError* error) override { return Answer("GetFirstElement", error); }
    CKRMCElement* GetElementByAttribute(CKRMError* error, CKRMCAttribute*) override {
        return Answer("GetElementByAttribute", error);
    }
    krm_ulong code = 0;

private:
    CKRMCElement* Answer(const char* call, CKRMError* error) {
        m_calls.emplace_back(call);
        error->SetErrorCode(code);
        return &m_element;
    }
    CKRMCElement& m_element;
    std::vector<std::string>& m_calls;
};

TEST(Element, AsksItsGroupsVirtually) {
    std::vector<std::string> calls;
    CKRMError error;
    CKRMCElement answer("G");
    CKRMCAttribute probe("A");
    OwnElement element("E");
    auto* const group = new OneElementGroup(answer, calls);
    element.Adopt(group);
    EXPECT_EQ(element.CreateElement(nullptr, "G"), &answer);
    EXPECT_EQ(element.GetFirstElement(nullptr, "G"), &answer);
    EXPECT_EQ(element.GetElementByAttribute(nullptr, "G", &probe), &answer);
    EXPECT_TRUE(element.RemoveElement(nullptr, &answer));
    group->code = 77;
    EXPECT_EQ(element.CreateElement(&error, "G"), nullptr);
    EXPECT_EQ(element.GetFirstElement(&error, "G"), &answer) << "its error is not looked at";
    EXPECT_EQ(element.GetElementByAttribute(&error, "G", &probe), nullptr);
    EXPECT_TRUE(element.RemoveElement(&error, &answer)) << "its error is not looked at";
    EXPECT_EQ(error.a_ulReturnCode, 77u);
    EXPECT_THAT(calls, ElementsAre("CreateElement", "GetFirstElement", "GetElementByAttribute", "RemoveElement",
                                   "CreateElement", "GetFirstElement", "GetElementByAttribute", "RemoveElement"));
}

/// Calls every attribute equal, and reports `code`.
class AlwaysEqual : public CKRMCAttribute {
public:
    using CKRMCAttribute::CKRMCAttribute;
    bool CompareValue(CKRMError* error, CKRMCAttribute*) override {
        error->SetErrorCode(code);
        return true;
    }
    krm_ulong code = 0;
};

/// Finds nothing, and says that this is an error.
class FailingLookup : public OwnElement {
public:
    using OwnElement::OwnElement;
    CKRMCAttribute* GetAttribute(CKRMError* error, const char*) override {
        error->SetErrorCode(77);
        return GetFirstAttribute();
    }
};

TEST(ElementGroup, SearchesThroughTheElementsOwnOperations) {
    CKRMError error;
    CKRMCAttribute probe("A", krm_long(1));
    OwnGroup group("G");
    auto* const failing = new FailingLookup("G");
    group.Adopt(failing);
    failing->Adopt(new AlwaysEqual("A"));
    EXPECT_EQ(group.GetElementByAttribute(&error, &probe), nullptr);
    EXPECT_EQ(error.a_ulReturnCode, 77u);

    auto* const element = new OwnElement("G");
    group.Adopt(element);
    auto* const equal = new AlwaysEqual("A");
    element->Adopt(equal);
    EXPECT_EQ(group.GetElementByAttribute(&error, &probe), element);
    EXPECT_EQ(error.a_ulReturnCode, 0u);
    equal->code = 78;
    EXPECT_EQ(group.GetElementByAttribute(&error, &probe), nullptr) << "equal, but with an error";
    EXPECT_EQ(error.a_ulReturnCode, 78u);
}

TEST(Element, WithoutMemoryNothingIsAdded) {
    KRM_SKIP_WITHOUT_FAILING_ALLOCATIONS();
    CKRMCElement element("E");
    CKRMCElementGroup longNamed(kLongName);
    const auto expectOutOfMemory = [](int successes, auto create) {
        CKRMError error;
        const long before = LivingBlocks();
        const void* created = &error;
        const void* silently = &error;
        {
            const FailAllocations failing(successes);
            created = create(&error);
        }
        {
            const FailAllocations failing(successes);
            silently = create(nullptr);
        }
        EXPECT_EQ(created, nullptr);
        EXPECT_EQ(silently, nullptr);
        EXPECT_EQ(error.a_ulReturnCode, 2100100002u);
        EXPECT_EQ(LivingBlocks(), before);
    };
    expectOutOfMemory(0, [&](CKRMError* error) { return element.CreateAttribute(error, "A"); });
    expectOutOfMemory(1, [&](CKRMError* error) { return element.CreateAttribute(error, kLongName); });
    expectOutOfMemory(0, [&](CKRMError* error) { return element.CreateElementGroup(error, "A"); });
    expectOutOfMemory(1, [&](CKRMError* error) { return element.CreateElementGroup(error, kLongName); });
    expectOutOfMemory(0, [&](CKRMError* error) { return element.CreateElement(error, "A"); });
    expectOutOfMemory(0, [&](CKRMError* error) { return longNamed.CreateElement(error); });
    expectOutOfMemory(1, [&](CKRMError* error) { return longNamed.CreateElement(error); });
    EXPECT_EQ(Described(element), "<E>\n</E>\n");
    EXPECT_EQ(element.GetFirstGroup(), nullptr);

    CKRMError error;
    CKRMCElement* child = &element;
    const int blocksOfName = static_cast<int>(BlocksOf("A"));
    {
        const FailAllocations failing(1 + blocksOfName);
        child = element.CreateElement(&error, "A");
    }
    EXPECT_EQ(child, nullptr);
    EXPECT_EQ(error.a_ulReturnCode, 2100100002u);
    EXPECT_THAT(NamesFrom(element.GetFirstGroup()), ElementsAre("A")) << "the new group stays, empty";
    EXPECT_EQ(Described(element), "<E>\n</E>\n");
}

TEST(Element, ACopySharesAttributesAndChildren) {
    OwnElement original("E");
    CKRMCAttribute* const attribute = original.CreateAttribute(nullptr, "A");
    CKRMCElement* const child = original.CreateElement(nullptr, "C");
    Undestroyed<OwnElement> copy(original);
    Undestroyed<OwnElement> assigned("Z");
    *assigned = original;
    for (OwnElement* const each : {&*copy, &*assigned}) {
        EXPECT_STREQ(each->GetName(), "E");
        EXPECT_EQ(each->GetKind(), 2u);
        EXPECT_EQ(each->GetFirstAttribute(), attribute);
        EXPECT_EQ(each->LastAttribute(), attribute);
        EXPECT_EQ(each->GetFirstGroup(), original.GetFirstGroup());
        EXPECT_EQ(each->LastGroup(), original.LastGroup());
        EXPECT_EQ(each->GetFirstElement(nullptr, "C"), child);
        EXPECT_EQ(Described(*each), "<E A[0]=\"NULL\">\n<C>\n</C>\n</E>\n");
    }
    EXPECT_EQ(attribute->GetParent(), &original);
}

TEST(ElementGroup, ACopySharesElements) {
    OwnGroup original("G");
    CKRMCElement* const child = original.CreateElement(nullptr);
    Undestroyed<OwnGroup> copy(original);
    Undestroyed<OwnGroup> assigned("Z");
    *assigned = original;
    for (OwnGroup* const each : {&*copy, &*assigned}) {
        EXPECT_STREQ(each->GetName(), "G");
        EXPECT_EQ(each->GetFirstElement(nullptr), child);
        EXPECT_EQ(each->LastElement(), child);
    }
}

TEST(Element, ACopyOfAnEmptyOneStandsAlone) {
    const CKRMCElement original("E");
    CKRMCElement copy(original);
    EXPECT_NE(copy.CreateElement(nullptr, "C"), nullptr);
    EXPECT_EQ(original.GetFirstGroup(), nullptr);
}

constexpr int kMillion = 1'000'000;

TEST(LargeTree, AMillionAttributes) {
    KRM_NOT_UNDER(Memcheck, "it would take hours at this size");
    RunOnSmallStack([] {
        NoLookup element("E");
        for (int i = 0; i < kMillion; ++i) {
            element.CreateAttribute(nullptr, "A")->SetValue(nullptr, krm_long(1'000'000 + i % 10));
        }
        CKRMString text;
        EXPECT_EQ(element.Description(text), 0u);
        EXPECT_EQ(text.GetLength(),
                  std::string("<E>\n</E>\n").size() + kMillion * std::string(" A[3]=\"1000000\"").size());
        EXPECT_EQ(std::string(text.GetText()).compare(0, 34, "<E A[3]=\"1000000\" A[3]=\"1000001\" A", 34), 0);
        element.RemoveAll();
        EXPECT_EQ(element.GetFirstAttribute(), nullptr);
    });
}

TEST(LargeTree, AMillionElementsInOneGroup) {
    KRM_NOT_UNDER(Memcheck, "it would take hours at this size");
    RunOnSmallStack([] {
        CKRMCElement element("E");
        CKRMCElementGroup* const group = element.CreateElementGroup(nullptr, "C");
        for (int i = 0; i < kMillion; ++i) {
            group->CreateElement(nullptr);
        }
        CKRMString text;
        EXPECT_EQ(element.Description(text), 0u);
        EXPECT_EQ(text.GetLength(), std::string("<E>\n</E>\n").size() + kMillion * std::string("<C>\n</C>\n").size());
    });
}

TEST(LargeTree, AMillionGroups) {
    KRM_NOT_UNDER(Memcheck, "it would take hours at this size");
    RunOnSmallStack([] {
        NoLookup element("E");
        for (int i = 0; i < kMillion; ++i) {
            element.CreateElementGroup(nullptr, "C");
        }
        CKRMString text;
        EXPECT_EQ(element.Description(text), 0u);
        EXPECT_STREQ(text.GetText(), "<E>\n</E>\n");
    });
}

TEST(LargeTree, RemovingTheFirstOfAMillion) {
    KRM_NOT_UNDER(Memcheck, "it would take hours at this size");
    RunOnSmallStack([] {
        Undestroyed<CKRMCElementGroup> group("C");
        for (int i = 0; i < kMillion; ++i) {
            group->CreateElement(nullptr);
        }
        EXPECT_TRUE(group->RemoveElement(nullptr, group->GetFirstElement(nullptr)));
    });
}

TEST(LargeTree, NestedAHundredThousandDeep) {
    KRM_NOT_UNDER(Memcheck, "it would take hours at this size");
    constexpr int kDepth = 100'000;
    RunOnSmallStack([] {
        CKRMCElement root("E");
        CKRMCElement* element = &root;
        for (int i = 0; i < kDepth; ++i) {
            element->CreateAttribute(nullptr, "A");
            element = element->CreateElement(nullptr, "E");
        }
        CKRMString text;
        EXPECT_EQ(root.Description(text), 0u);
        EXPECT_EQ(text.GetLength(),
                  std::string("<E>\n</E>\n").size() * (kDepth + 1) + kDepth * std::string(" A[0]=\"NULL\"").size());
        root.RemoveAll();
        EXPECT_EQ(Described(root), "<E>\n</E>\n");
    });
}

TEST(CreateElement, WithoutMemoryAtAnyStep) {
    KRM_SKIP_WITHOUT_FAILING_ALLOCATIONS();
    for (int successes = 0; successes < 4; ++successes) {  // the group, its name, the element, its name
        CKRMError error;
        CKRMCElement element("E");
        const CKRMCElement* child = &element;
        const long before = LivingBlocks();
        {
            const FailAllocations failing(successes);
            child = element.CreateElement(&error, kLongName);
        }
        EXPECT_EQ(LivingBlocks(), before + (successes < 2 ? 0 : 2)) << successes;
        EXPECT_EQ(child, nullptr) << successes;
        EXPECT_EQ(error.a_ulReturnCode, 2100100002u) << successes;
        EXPECT_EQ(element.GetFirstGroup() != nullptr, successes >= 2) << successes;
        EXPECT_EQ(Described(element), "<E>\n</E>\n");
    }
}

}  // namespace
}  // namespace krm::test

// What holds for each class that lists hold, without exception. A class that is missing does not compile; one that is
// wrong fails by its name.

#include <gtest/gtest.h>

#include <cstddef>
#include <iterator>
#include <ostream>
#include <set>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "krm/core/list.h"
#include "krm/fields/all_fields.h"
#include "krm/framework/record.h"
#include "tests/support/all_classes.h"
#include "tests/support/any_class.h"

namespace {

using krm::test::AnyClass;
using krm::test::AnyClassOf;

enum class Kind { Record, Plain, VirtualDestructor };

// One line of the list of elements.
struct ListedElement {
    const char* name;
    Kind kind;
    AnyClass any;
    bool isRecord;
    bool isPolymorphic;
    bool hasVirtualDestructor;
    AnyClass list;
    void (*addElement)(void* list, const void* element);
    void (*append)(void* list, const void* other);
};

void PrintTo(const ListedElement& element, std::ostream* out) {
    *out << element.name;
}

template <class Element>
void AddElement(void* list, const void* element) {
    static_cast<CKRMList<Element>*>(list)->AddTail(*static_cast<const Element*>(element));
}
template <class Element>
void Append(void* list, const void* other) {
    static_cast<CKRMList<Element>*>(list)->AddTail(static_cast<const CKRMList<Element>*>(other));
}

template <class Element>
constexpr ListedElement Listed(const char* name, Kind kind) {
    return {name,
            kind,
            AnyClassOf<Element>(nullptr),
            std::is_base_of_v<CKRMCBaseAdaptDataStructure, Element>,
            std::is_polymorphic_v<Element>,
            std::has_virtual_destructor_v<Element>,
            AnyClassOf<CKRMList<Element>>(nullptr),
            &AddElement<Element>,
            &Append<Element>};
}

#define KRM_LISTED(name, kind) Listed<name>(#name, Kind::kind),
constexpr ListedElement kListed[] = {KRM_ALL_LIST_ELEMENTS(KRM_LISTED)};
#undef KRM_LISTED

const std::vector<ListedElement> kElements = [] {
    std::vector<ListedElement> elements(std::begin(kListed), std::end(kListed));
    for (ListedElement& element : elements) {
        element.any.type = krm::test::FindType(element.name);
        element.list.type = krm::test::FindListOf(element.name);
    }
    return elements;
}();

class EveryListElement : public testing::TestWithParam<ListedElement> {
protected:
    void SetUp() override {
        krm::test::AssertDescribed(GetParam().any, GetParam().name);
        krm::test::AssertDescribed(GetParam().list, "");
        ASSERT_EQ(GetParam().list.type->element->className, GetParam().name);
    }
};
INSTANTIATE_TEST_SUITE_P(All, EveryListElement, testing::ValuesIn(kElements),
                         [](const auto& test) { return std::string(test.param.name); });

TEST_P(EveryListElement, DerivesFromWhatItShould) {
    EXPECT_EQ(GetParam().isRecord, GetParam().kind == Kind::Record);
    EXPECT_EQ(GetParam().isPolymorphic, GetParam().kind != Kind::Plain);
    EXPECT_EQ(GetParam().hasVirtualDestructor, GetParam().kind != Kind::Plain);
}

TEST_P(EveryListElement, HasItsFieldsInOrderAndNoOther) {
    krm::test::ExpectFieldsFillTheObject(GetParam().any, GetParam().kind == Kind::Plain ? 0 : sizeof(void*));
}

TEST_P(EveryListElement, StartsAsDocumented) {
    krm::test::ExpectDocumentedStart(GetParam().any);
}

TEST_P(EveryListElement, ClearRestoresTheStart) {
    krm::test::ExpectClearRestoresTheStart(GetParam().any);
}

TEST_P(EveryListElement, CopiesShareNothing) {
    krm::test::ExpectCopiesShareNothing(GetParam().any);
}

TEST_P(EveryListElement, AssignmentsShareNothing) {
    krm::test::ExpectAssignmentsShareNothing(GetParam().any);
}

TEST_P(EveryListElement, ListsAreCopiedWithTheirElements) {
    krm::test::Seed seed(24);
    const AnyClass::Object element = GetParam().any.Make();
    GetParam().any.Fill(element, seed);
    const AnyClass::Object list = GetParam().list.Make();
    GetParam().addElement(list.get(), element.get());
    EXPECT_EQ(GetParam().list.Described(list), "[1:" + GetParam().any.Described(element) + ']');

    krm::test::ExpectCopiesShareNothing(GetParam().list);
    krm::test::ExpectAssignmentsShareNothing(GetParam().list);
    krm::test::ExpectNothingShared(GetParam().list, [](const void* source) {
        AnyClass::Object target = GetParam().list.Make();
        GetParam().append(target.get(), source);
        return target;
    });
}

TEST(ListElements, Are76) {
    EXPECT_EQ(std::size(kElements), 76U);
    std::set<std::string_view> names;
    for (const ListedElement& element : kElements) {
        EXPECT_TRUE(names.insert(element.name).second) << element.name << " is listed twice";
    }
}

}  // namespace

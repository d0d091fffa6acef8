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
    void (*append)(void* list, const void* other);
};

void PrintTo(const ListedElement& element, std::ostream* out) {
    *out << element.name;
}

template <class Element>
constexpr ListedElement Listed(const char* name, Kind kind) {
    using List = CKRMList<Element>;
    return {name,
            kind,
            AnyClassOf<Element>(),
            std::is_base_of_v<CKRMCBaseAdaptDataStructure, Element>,
            std::is_polymorphic_v<Element>,
            std::has_virtual_destructor_v<Element>,
            AnyClassOf<List>(),
            [](void* list, const void* other) { static_cast<List*>(list)->AddTail(static_cast<const List*>(other)); }};
}

#define KRM_LISTED(name, kind) Listed<name>(#name, Kind::kind),
constexpr ListedElement kElements[] = {KRM_ALL_LIST_ELEMENTS(KRM_LISTED)};
#undef KRM_LISTED

class EveryListElement : public testing::TestWithParam<ListedElement> {};
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
    krm::test::ExpectCopiesShareNothing(GetParam().list);
    krm::test::ExpectAssignmentsShareNothing(GetParam().list);
    krm::test::ExpectNothingShared(GetParam().list, [](const void* source) {
        AnyClass::Object target = GetParam().list.make();
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

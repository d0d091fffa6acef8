// The checks of any_class.h must be able to fail: each is given a class with the fault that it is there to find.
#include "tests/support/any_class.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <string>

struct SoundExample {
    void Clear() { *this = SoundExample(); }
    int number = 0;
    CKRMString text;
};
template <>
struct krm::Fields<SoundExample> : krm::FieldList<&SoundExample::number, &SoundExample::text> {};

struct ExampleWithUnlistedField {
    void Clear() { *this = ExampleWithUnlistedField(); }
    int number = 0;
    int forgotten = 0;
    int last = 0;
};
template <>
struct krm::Fields<ExampleWithUnlistedField>
    : krm::FieldList<&ExampleWithUnlistedField::number, &ExampleWithUnlistedField::last> {};

struct ExampleWithUnlistedEnd {
    void Clear() { *this = ExampleWithUnlistedEnd(); }
    int number = 0;
    int forgotten = 0;
};
template <>
struct krm::Fields<ExampleWithUnlistedEnd> : krm::FieldList<&ExampleWithUnlistedEnd::number> {};

// The field that isn't listed fits into the padding at the base's end.
struct ExampleWithUnlistedFirst
    : krm::MessageOf<ExampleWithUnlistedFirst, CKRMCBaseCmdAdaptDataRcv, krm::CommandName("Example", 900)> {
    bool forgotten = false;
    bool listed = false;
};
template <>
struct krm::Fields<ExampleWithUnlistedFirst> : krm::FieldList<&ExampleWithUnlistedFirst::listed> {};

struct ExampleThatStartsAtOne {
    void Clear() { *this = ExampleThatStartsAtOne(); }
    int number = 1;
};
template <>
struct krm::Fields<ExampleThatStartsAtOne> : krm::FieldList<&ExampleThatStartsAtOne::number> {};

struct ExampleWithIdleClear {
    void Clear() {}
    int number = 0;
};
template <>
struct krm::Fields<ExampleWithIdleClear> : krm::FieldList<&ExampleWithIdleClear::number> {};

struct ExampleThatSharesItsList {
    void Clear() { list->RemoveAll(); }
    std::shared_ptr<CKRMList<int>> list = std::make_shared<CKRMList<int>>();
};
template <>
struct krm::Fields<ExampleThatSharesItsList> : krm::FieldList<> {};

namespace {

using krm::test::AnyClass;
using krm::test::AnyClassOf;

template <class T>
AnyClass Any() {
    return AnyClassOf<T>(&krm::kTypeDescription<T>);
}

// What it shares is no member of its own.
constexpr krm::FieldDescription kSharedList[] = {{"list", &krm::kTypeDescription<CKRMList<int>>, [](void* it) -> void* {
                                                      return static_cast<ExampleThatSharesItsList*>(it)->list.get();
                                                  }}};
constexpr krm::TypeDescription kWithSharedList = {
    krm::ValueKind::Record, sizeof(ExampleThatSharesItsList), "", kSharedList, nullptr, 0, nullptr, nullptr};

TEST(AnyClass, ASoundClassPassesEveryCheck) {
    const auto any = Any<SoundExample>();
    krm::test::ExpectFieldsFillTheObject(any, 0);
    krm::test::ExpectDocumentedStart(any);
    krm::test::ExpectClearRestoresTheStart(any);
    krm::test::ExpectCopiesShareNothing(any);
    krm::test::ExpectAssignmentsShareNothing(any);
}

TEST(AnyClass, FindsAFieldThatIsNotListed) {
    EXPECT_NONFATAL_FAILURE(krm::test::ExpectFieldsFillTheObject(Any<ExampleWithUnlistedField>(), 0),
                            "between two listed ones");
    EXPECT_NONFATAL_FAILURE(krm::test::ExpectFieldsFillTheObject(Any<ExampleWithUnlistedEnd>(), 0),
                            "after the last one listed");
    EXPECT_NONFATAL_FAILURE(
        krm::test::ExpectFieldsFillTheObject(Any<ExampleWithUnlistedFirst>(), sizeof(CKRMCBaseCmdAdaptDataRcv)),
        "before the first one listed");
}

TEST(AnyClass, FindsAWrongStart) {
    EXPECT_NONFATAL_FAILURE(krm::test::ExpectDocumentedStart(Any<ExampleThatStartsAtOne>()), "");
}

TEST(AnyClass, FindsAClearThatDoesNot) {
    EXPECT_NONFATAL_FAILURE(krm::test::ExpectClearRestoresTheStart(Any<ExampleWithIdleClear>()), "");
}

TEST(AnyClass, FindsSharedState) {
    testing::TestPartResultArray failures;
    {
        const testing::ScopedFakeTestPartResultReporter reporter(
            testing::ScopedFakeTestPartResultReporter::INTERCEPT_ONLY_CURRENT_THREAD, &failures);
        krm::test::ExpectCopiesShareNothing(AnyClassOf<ExampleThatSharesItsList>(&kWithSharedList));
    }
    ASSERT_GE(failures.size(), 1);
    EXPECT_NE(std::string(failures.GetTestPartResult(0).message()).find("reaches the source"), std::string::npos);
}

}  // namespace

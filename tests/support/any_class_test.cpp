// The checks of any_class.h must be able to fail: each is given a class with the fault that it is there to find.
#include "tests/support/any_class.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <memory>
#include <tuple>

// In the global namespace, as the library's classes are, so that FieldsOf finds them.
struct SoundExample {
    void Clear() { *this = SoundExample(); }
    int number = 0;
    CKRMString text;
};
inline auto FieldsOf(SoundExample& it) {
    return std::tie(it.number, it.text);
}

struct ExampleWithUnlistedField {
    void Clear() { *this = ExampleWithUnlistedField(); }
    int number = 0;
    int forgotten = 0;
    int last = 0;
};
inline auto FieldsOf(ExampleWithUnlistedField& it) {
    return std::tie(it.number, it.last);
}

struct ExampleWithUnlistedEnd {
    void Clear() { *this = ExampleWithUnlistedEnd(); }
    int number = 0;
    int forgotten = 0;
};
inline auto FieldsOf(ExampleWithUnlistedEnd& it) {
    return std::tie(it.number);
}

struct ExampleThatStartsAtOne {
    void Clear() { *this = ExampleThatStartsAtOne(); }
    int number = 1;
};
inline auto FieldsOf(ExampleThatStartsAtOne& it) {
    return std::tie(it.number);
}

struct ExampleWithIdleClear {
    void Clear() {}
    int number = 0;
};
inline auto FieldsOf(ExampleWithIdleClear& it) {
    return std::tie(it.number);
}

struct ExampleThatSharesItsList {
    void Clear() { list->RemoveAll(); }
    std::shared_ptr<CKRMList<int>> list = std::make_shared<CKRMList<int>>();
};
inline auto FieldsOf(ExampleThatSharesItsList& it) {
    return std::tie(*it.list);
}

namespace {

using krm::test::AnyClassOf;

TEST(AnyClass, ASoundClassPassesEveryCheck) {
    constexpr auto any = AnyClassOf<SoundExample>();
    krm::test::ExpectFieldsFillTheObject(any, 0);
    krm::test::ExpectDocumentedStart(any);
    krm::test::ExpectClearRestoresTheStart(any);
    krm::test::ExpectCopiesShareNothing(any);
    krm::test::ExpectAssignmentsShareNothing(any);
}

TEST(AnyClass, FindsAFieldThatIsNotListed) {
    EXPECT_NONFATAL_FAILURE(krm::test::ExpectFieldsFillTheObject(AnyClassOf<ExampleWithUnlistedField>(), 0),
                            "between two listed ones");
    EXPECT_NONFATAL_FAILURE(krm::test::ExpectFieldsFillTheObject(AnyClassOf<ExampleWithUnlistedEnd>(), 0),
                            "after the last one listed");
}

TEST(AnyClass, FindsAWrongStart) {
    EXPECT_NONFATAL_FAILURE(krm::test::ExpectDocumentedStart(AnyClassOf<ExampleThatStartsAtOne>()), "");
}

TEST(AnyClass, FindsAClearThatDoesNot) {
    EXPECT_NONFATAL_FAILURE(krm::test::ExpectClearRestoresTheStart(AnyClassOf<ExampleWithIdleClear>()), "");
}

TEST(AnyClass, FindsSharedState) {
    testing::TestPartResultArray failures;
    {
        const testing::ScopedFakeTestPartResultReporter reporter(
            testing::ScopedFakeTestPartResultReporter::INTERCEPT_ONLY_CURRENT_THREAD, &failures);
        krm::test::ExpectCopiesShareNothing(AnyClassOf<ExampleThatSharesItsList>());
    }
    ASSERT_GE(failures.size(), 1);
    EXPECT_NE(std::string(failures.GetTestPartResult(0).message()).find("reaches the source"), std::string::npos);
}

}  // namespace

// The test program. With KRM_TEST_LOCALE in the environment every test runs in the user's locale (LC_ALL and so on)
// instead of the C locale that a program starts in: what the library says, dates and times excepted, must not change. With
// KRM_UNDER in the environment the tests that can't run under the tool named there are skipped (tests/support/not_under.h).
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <clocale>
#include <cstdlib>

#include "tests/support/not_under.h"

namespace {

class UserLocale : public ::testing::Environment {
public:
    void SetUp() override {
        if (std::getenv("KRM_TEST_LOCALE") != nullptr) {
            ASSERT_NE(std::setlocale(LC_ALL, ""), nullptr) << "the locale does not exist";
            // Else the whole run would show nothing.
            ASSERT_STRNE(std::localeconv()->decimal_point, ".");
        }
    }
};

class NameOfTheTool : public ::testing::Environment {
public:
    void SetUp() override {
        // A misspelt name would skip nothing and say nothing.
        const char* const under = std::getenv("KRM_UNDER");
        ASSERT_TRUE(under == nullptr || krm::test::RunsUnder(krm::test::Condition::Memcheck))
            << "no such tool: " << under;
    }
};

}  // namespace

// Read by the thread sanitizer alone. The C library locks its locales with locks that the sanitizer doesn't see, so it
// takes one thread's release of a locale and another's creation of the same one for a race. Recognised by the names of
// the C library's debug information (Debian's libc6-dbg).
extern "C" const char* __tsan_default_suppressions();
extern "C" const char* __tsan_default_suppressions() {
    return "race:_nl_unload_locale\nrace:__freelocale\n";
}

int main(int argc, char** argv) {
    ::testing::InitGoogleMock(&argc, argv);
    ::testing::AddGlobalTestEnvironment(new UserLocale);  // GoogleTest's from here on
    ::testing::AddGlobalTestEnvironment(new NameOfTheTool);
    return RUN_ALL_TESTS();
}

// A test that a tool can't run, or that would take hours under it, says so on its first line:
//
//     KRM_NOT_UNDER(Memcheck, "it computes 80-bit numbers in 64 bits");
//
// Under that tool it is then reported as skipped, with the reason.
#ifndef KRM_TESTS_SUPPORT_NOT_UNDER_H_
#define KRM_TESTS_SUPPORT_NOT_UNDER_H_

#include <gtest/gtest.h>

#include <cstdlib>
#include <string_view>

#if defined(__has_feature)
#define KRM_TEST_HAS_FEATURE(feature) __has_feature(feature)
#else
#define KRM_TEST_HAS_FEATURE(feature) 0
#endif

namespace krm::test {

enum class Tool { Memcheck, AddressSanitizer, ThreadSanitizer };

/// Whether `tool` watches this program: a sanitizer is compiled in, and who runs the tests under memcheck sets KRM_UNDER to
/// "memcheck".
inline bool RunsUnder(Tool tool) {
    switch (tool) {
        case Tool::Memcheck: {
            const char* const under = std::getenv("KRM_UNDER");
            return under != nullptr && std::string_view(under) == "memcheck";
        }
        case Tool::AddressSanitizer:
#if defined(__SANITIZE_ADDRESS__) || KRM_TEST_HAS_FEATURE(address_sanitizer)
            return true;
#else
            return false;
#endif
        case Tool::ThreadSanitizer:
#if defined(__SANITIZE_THREAD__) || KRM_TEST_HAS_FEATURE(thread_sanitizer)
            return true;
#else
            return false;
#endif
    }
    return false;
}

}  // namespace krm::test

/// Skips the test when it runs under the tool. For the first line of a test: it returns from there.
#define KRM_NOT_UNDER(tool, reason)                          \
    if (krm::test::RunsUnder(krm::test::Tool::tool)) {       \
        GTEST_SKIP() << "not under " #tool ": " << (reason); \
    }                                                        \
    static_assert(true, "so that a semicolon follows")

#endif  // KRM_TESTS_SUPPORT_NOT_UNDER_H_

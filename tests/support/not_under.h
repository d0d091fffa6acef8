// A test that can't run under a tool or on another platform than the stand-in, or would take hours there, says so on its
// first line:
//
//     KRM_NOT_UNDER(Memcheck, "it computes 80-bit numbers in 64 bits");
//
// There it is then reported as skipped, with the reason.
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

enum class Condition { Memcheck, AddressSanitizer, ThreadSanitizer, Emulator, OtherPlatform };

/// Whether this program runs under `condition`: a sanitizer is compiled in, who runs the tests under memcheck sets KRM_UNDER
/// to "memcheck", and CMake defines KRM_TEST_EMULATED where an emulator of another processor runs the tests, and
/// KRM_TEST_OTHER_PLATFORM where the library builds on another platform.
inline bool RunsUnder(Condition condition) {
    switch (condition) {
        case Condition::Memcheck: {
            const char* const under = std::getenv("KRM_UNDER");
            return under != nullptr && std::string_view(under) == "memcheck";
        }
        case Condition::AddressSanitizer:
#if defined(__SANITIZE_ADDRESS__) || KRM_TEST_HAS_FEATURE(address_sanitizer)
            return true;
#else
            return false;
#endif
        case Condition::ThreadSanitizer:
#if defined(__SANITIZE_THREAD__) || KRM_TEST_HAS_FEATURE(thread_sanitizer)
            return true;
#else
            return false;
#endif
        case Condition::Emulator:
#if defined(KRM_TEST_EMULATED)
            return true;
#else
            return false;
#endif
        case Condition::OtherPlatform:
#if defined(KRM_TEST_OTHER_PLATFORM)
            return true;
#else
            return false;
#endif
    }
    return false;
}

}  // namespace krm::test

/// Skips the test when it runs under the condition. For the first line of a test: it returns from there.
#define KRM_NOT_UNDER(condition, reason)                          \
    if (krm::test::RunsUnder(krm::test::Condition::condition)) {  \
        GTEST_SKIP() << "not under " #condition ": " << (reason); \
    }                                                             \
    static_assert(true, "so that a semicolon follows")

#endif  // KRM_TESTS_SUPPORT_NOT_UNDER_H_

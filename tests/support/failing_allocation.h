// Makes allocations fail, the library's included, and counts the blocks that are alive.
//
// failing_allocation_test.cpp replaces the global `operator new` and `operator delete` of the test program. A DLL keeps
// its own, so tests that need the library's allocations to fail begin with KRM_SKIP_WITHOUT_FAILING_ALLOCATIONS().
#ifndef KRM_TESTS_SUPPORT_FAILING_ALLOCATION_H_
#define KRM_TESTS_SUPPORT_FAILING_ALLOCATION_H_

#include "gtest/gtest.h"
#include "krm/platform/platform.h"

namespace krm::test {

struct AllocationState {
    int untilFailure = -1;  ///< allocations that still succeed; below 0: all do
    long living = 0;        ///< blocks allocated less blocks freed, by this thread
};
AllocationState& ThisThreadsAllocations();

/// While it lives, this thread's allocations fail after `successes` more of them. Keep its scope to the call under test.
class FailAllocations {
public:
    explicit FailAllocations(int successes) { ThisThreadsAllocations().untilFailure = successes; }
    ~FailAllocations() { ThisThreadsAllocations().untilFailure = -1; }
    FailAllocations(const FailAllocations&) = delete;
    FailAllocations& operator=(const FailAllocations&) = delete;
};

/// The number of blocks that this thread has allocated and not freed.
inline long LivingBlocks() {
    return ThisThreadsAllocations().living;
}

/// The number of blocks that a string of `text` has for it: none where the platform's strings have room for it.
inline long BlocksOf(const char* text) {
    const long before = LivingBlocks();
    const CKRMString string(text);
    return LivingBlocks() - before;
}

}  // namespace krm::test

#if defined(_WIN32)
#define KRM_SKIP_WITHOUT_FAILING_ALLOCATIONS() GTEST_SKIP() << "a DLL allocates with an operator new of its own"
#else
#define KRM_SKIP_WITHOUT_FAILING_ALLOCATIONS() static_cast<void>(0)
#endif

#endif  // KRM_TESTS_SUPPORT_FAILING_ALLOCATION_H_

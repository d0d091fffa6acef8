#include "tests/support/failing_allocation.h"

#include <cstddef>
#include <cstdlib>
#include <new>

#include "gtest/gtest.h"
#include "krm/platform/platform.h"

namespace krm::test {

AllocationState& ThisThreadsAllocations() {
    thread_local AllocationState state;
    return state;
}

}  // namespace krm::test

// Only sizes up to the usual alignment; the library and its tests use no other, and the defaults serve those.

#if !defined(_WIN32)

namespace {

// Not inlined: GCC would see `malloc` on one side and `delete` on the other, and warn of the mismatch.

[[gnu::noinline]] void* Allocate(std::size_t size) noexcept {
    krm::test::AllocationState& state = krm::test::ThisThreadsAllocations();
    if (state.untilFailure == 0) {
        return nullptr;
    }
    void* const block = std::malloc(size == 0 ? 1 : size);
    if (block != nullptr) {
        ++state.living;
        state.untilFailure -= state.untilFailure > 0 ? 1 : 0;
    }
    return block;
}

void* AllocateOrThrow(std::size_t size) {
    void* const block = Allocate(size);
    if (block == nullptr) {
        throw std::bad_alloc();
    }
    return block;
}

[[gnu::noinline]] void Free(void* block) noexcept {
    if (block != nullptr) {
        --krm::test::ThisThreadsAllocations().living;
    }
    std::free(block);
}

}  // namespace

void* operator new(std::size_t size) {
    return AllocateOrThrow(size);
}
void* operator new[](std::size_t size) {
    return AllocateOrThrow(size);
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return Allocate(size);
}
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
    return Allocate(size);
}
void operator delete(void* block) noexcept {
    Free(block);
}
void operator delete[](void* block) noexcept {
    Free(block);
}
void operator delete(void* block, std::size_t) noexcept {
    Free(block);
}
void operator delete[](void* block, std::size_t) noexcept {
    Free(block);
}
void operator delete(void* block, const std::nothrow_t&) noexcept {
    Free(block);
}
void operator delete[](void* block, const std::nothrow_t&) noexcept {
    Free(block);
}

#endif

namespace krm::test {
namespace {

TEST(FailAllocations, ReachesTheLibrary) {
    KRM_SKIP_WITHOUT_FAILING_ALLOCATIONS();
    const char* const longText = "a text that is longer than what a string holds without memory of its own";
    const long before = LivingBlocks();
    bool failed = false;
    {
        const FailAllocations failing(0);
        try {
            const CKRMString text(longText);
        } catch (const std::bad_alloc&) {
            failed = true;
        }
    }
    EXPECT_TRUE(failed);
    {
        const FailAllocations failing(1);
        const CKRMString text(longText);
        EXPECT_EQ(before + 1, LivingBlocks());
    }
    EXPECT_EQ(before, LivingBlocks());
}

}  // namespace
}  // namespace krm::test

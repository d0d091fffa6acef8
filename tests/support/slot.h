// The slot that a virtual operation has in the virtual table: slot orders are part of the interface.
#ifndef KRM_TESTS_SUPPORT_SLOT_H_
#define KRM_TESTS_SUPPORT_SLOT_H_

#include <cstddef>
#include <cstring>

namespace krm::test {

/// The documented slot of a virtual operation: its place behind the destructor, which is slot 0 and counts as one; -2 for
/// an operation that isn't virtual.
///
/// GCC's and Clang's pointer to a member function is two words. The first has the offset, in bytes, of its entry in the
/// virtual table, plus one to mark it as no function's address; on ARM, where that one belongs to the address, the second
/// word has the mark. Their virtual destructors take two entries.
template <class PointerToMember>
int SlotOf(PointerToMember operation) {
    struct {
        std::ptrdiff_t entry;
        std::ptrdiff_t adjustment;
    } words{};
    static_assert(sizeof operation == sizeof words);
    std::memcpy(&words, &operation, sizeof words);
    const auto size = static_cast<std::ptrdiff_t>(sizeof(void*));
#if defined(__arm__) || defined(__aarch64__)
    const bool isVirtual = words.adjustment % 2 == 1;
    const std::ptrdiff_t offset = words.entry;
#else
    const bool isVirtual = words.entry % size == 1;
    const std::ptrdiff_t offset = words.entry - 1;
#endif
    return isVirtual ? static_cast<int>(offset / size) - 1 : -2;
}

}  // namespace krm::test

#endif  // KRM_TESTS_SUPPORT_SLOT_H_

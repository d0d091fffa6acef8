// The slot that a virtual operation has in the virtual table: slot orders are part of the interface.
#ifndef KRM_TESTS_SUPPORT_SLOT_H_
#define KRM_TESTS_SUPPORT_SLOT_H_

#include <cstddef>
#include <cstring>

namespace krm::test {

/// The documented slot of a virtual operation: its place behind the destructor, which is slot 0 and counts as one; -2 for
/// an operation that isn't virtual.
///
/// GCC's and Clang's pointer to a virtual member function holds one more than the offset, in bytes, of its entry in the
/// virtual table. Their virtual destructors take two entries.
template <class PointerToMember>
int SlotOf(PointerToMember operation) {
    std::ptrdiff_t word = 0;
    static_assert(sizeof operation >= sizeof word);
    std::memcpy(&word, &operation, sizeof word);
    const auto size = static_cast<std::ptrdiff_t>(sizeof(void*));
    return word % size == 1 ? static_cast<int>((word - 1) / size) - 1 : -2;
}

}  // namespace krm::test

#endif  // KRM_TESTS_SUPPORT_SLOT_H_

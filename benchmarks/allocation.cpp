#include "benchmarks/allocation.h"

#include <cstdlib>
#include <new>

// Replaced for all benchmarks. It costs each allocation one addition, on every side that allocates by operator new; of
// the peers only pugixml doesn't.
namespace {

std::size_t g_allocatedBytes = 0;

}  // namespace

namespace krm::bench {

std::size_t AllocatedBytes() {
    return g_allocatedBytes;
}

}  // namespace krm::bench

void* operator new(std::size_t size) {
    g_allocatedBytes += size;
    void* const memory = std::malloc(size != 0 ? size : 1);
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    return memory;
}

void operator delete(void* memory) noexcept {
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}

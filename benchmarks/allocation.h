// Counts what goes through operator new in the whole process, libraries included.
#ifndef KRM_BENCHMARKS_ALLOCATION_H_
#define KRM_BENCHMARKS_ALLOCATION_H_

#include <cstddef>

namespace krm::bench {

/// The bytes asked of operator new so far; what is freed is not taken off. One thread at a time.
std::size_t AllocatedBytes();

}  // namespace krm::bench

#endif  // KRM_BENCHMARKS_ALLOCATION_H_

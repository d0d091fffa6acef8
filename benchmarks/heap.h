// The C library's heap while something is measured.
#ifndef KRM_BENCHMARKS_HEAP_H_
#define KRM_BENCHMARKS_HEAP_H_

#include <cstdlib>  // __GLIBC__

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace krm::bench {

/// The C library keeps its pages. Else it gives them back whenever what lies at the end of its heap goes, and asks for them
/// again: a system call and a fault for each page, for whichever side chance has put there.
inline void KeepPages() {
#ifdef __GLIBC__
    constexpr int kNever = 1 << 30;
    mallopt(M_TRIM_THRESHOLD, kNever);
    mallopt(M_MMAP_THRESHOLD, kNever);
#endif
}

}  // namespace krm::bench

#endif  // KRM_BENCHMARKS_HEAP_H_

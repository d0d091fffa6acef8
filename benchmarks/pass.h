// What is timed, whoever times it: Google Benchmark where it is installed, benchmarks/measure.h on every platform.
#ifndef KRM_BENCHMARKS_PASS_H_
#define KRM_BENCHMARKS_PASS_H_

#include <atomic>
#include <cstddef>
#include <functional>

namespace krm::bench {

/// One run through a workload's inputs. Its functions own what they work on.
struct Pass {
    double operations = 1;         ///< how many of what is counted (conversions, answers) one run does
    std::function<void()> run{};   ///< what is timed
    std::function<void()> undo{};  ///< after each run, outside the time; empty where the next run needs nothing
    double lines = 0;              ///< that one operation writes, where it is the time of a line that counts
};

/// Makes a pass with all that it needs; one that can't do its work right throws std::runtime_error.
using MakePass = std::function<Pass()>;

inline const volatile void* volatile g_kept = nullptr;

/// The compiler must have `it`, and all memory, as the program says at this place.
template <class T>
void Keep(const T& it) {
    g_kept = &it;
    std::atomic_signal_fence(std::memory_order_seq_cst);
}

}  // namespace krm::bench

#endif  // KRM_BENCHMARKS_PASS_H_

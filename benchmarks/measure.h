// Times passes on every platform that the library runs on, in wine too, where only the clock on the wall is of use.
//
// Two sides take turns in the same process, and each one's least time counts: what else the machine does can only add to
// it, and comes to both sides alike.
#ifndef KRM_BENCHMARKS_MEASURE_H_
#define KRM_BENCHMARKS_MEASURE_H_

#include <vector>

#include "benchmarks/pass.h"

namespace krm::bench {

/// The nanoseconds of one operation of each pass, or of one line of it: the least of many rounds, in each of which every
/// pass has its turn. They take about `seconds` for each pass, and are a handful at least.
std::vector<double> LeastNanoseconds(const std::vector<Pass>& passes, double seconds);

}  // namespace krm::bench

#endif  // KRM_BENCHMARKS_MEASURE_H_

// What the benchmarks run: workloads, each of which the library does and one or more peers do too.
//
// Every workload is a benchmark of Google Benchmark for each of its sides, named "workload/side"; benchmarks/table.h
// puts the sides together again.
#ifndef KRM_BENCHMARKS_WORKLOAD_H_
#define KRM_BENCHMARKS_WORKLOAD_H_

#include <benchmark/benchmark.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "benchmarks/pass.h"

namespace krm::bench {

using Function = std::function<void(benchmark::State&)>;

/// What a user would take instead of the library.
struct Peer {
    std::string name;
    Function run;
    double goal = 0;  ///< the library's share of the peer's cost that is aimed at; 0: none, the row is for information
};

/// A workload as the table shows it: a row per peer.
///
/// What is compared is the processor time of an iteration; where the counter kLines is set, of a line of output; and
/// where kBytes is set, that number instead of any time.
struct Workload {
    std::string name;
    std::vector<Peer> peers;
};

inline constexpr const char* kLines = "lines";
inline constexpr const char* kBytes = "bytes";
inline constexpr const char* kLibrary = "this library";

/// All workloads, in the order of their registration.
const std::vector<Workload>& Workloads();

/// How the iterations of a workload are timed.
enum class Clock {
    Processor,  ///< the processor time of the whole iteration
    Sections,   ///< only what runs inside TimeSection
};

/// Adds a workload. Functions are called once per repetition and must set up what they need by themselves.
void Compare(const std::string& name, const Function& library, const std::vector<Peer>& peers,
             Clock clock = Clock::Processor);

/// The function of a pass that undoes nothing; an iteration is one operation of it.
Function Timed(const MakePass& make);

/// The processor time of this thread, in seconds.
double ThreadSeconds();
/// What two calls of ThreadSeconds() with nothing between them differ by: some hundred nanoseconds.
double ClockSeconds();

/// Runs `section`, the timed part of an iteration. As Google Benchmark's own pausing, but less the cost of reading the
/// clock, which a list of a thousand numbers would notice.
template <class Section>
void TimeSection(benchmark::State& state, Section section) {
    const double start = ThreadSeconds();
    section();
    benchmark::ClobberMemory();
    state.SetIterationTime(std::max(0.0, ThreadSeconds() - start - ClockSeconds()));
}

/// The name of the benchmark that runs one side.
std::string BenchmarkName(const std::string& workload, const std::string& side);

/// Names of the benchmarks that are run over several sizes, in the order of their registration.
const std::vector<std::string>& Growths();

/// Adds an operation whose cost is shown for sizes from `from` to `to`, and set against a straight line; `run` finds the
/// size in `state.range(0)`.
void Grow(const std::string& name, const Function& run, int from, int to);

/// Names of the benchmarks that are run by several threads, in the order of their registration.
const std::vector<std::string>& Spreads();

/// Adds work that 1, 2, 4 and 8 threads do at a time, each on objects of its own. The table shows how much they get done
/// together, in items as `run` counts them, by the clock on the wall.
void Spread(const std::string& name, const Function& run);

// One per area; main() calls them in the order of the table.
void RegisterConverters();
void RegisterMessages();
void RegisterJson();
void RegisterComparison();
void RegisterRecordings();
void RegisterLists();
void RegisterTrees();
void RegisterMemory();
void RegisterTick();
void RegisterSession();
void RegisterGrowth();
void RegisterRecordingGrowth();

}  // namespace krm::bench

#endif  // KRM_BENCHMARKS_WORKLOAD_H_

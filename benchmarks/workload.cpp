#include "benchmarks/workload.h"

#include <malloc.h>
#include <time.h>

#include <algorithm>
#include <stdexcept>

namespace krm::bench {
namespace {

std::vector<Workload> g_workloads;
std::vector<std::string> g_growths;
std::vector<std::string> g_spreads;

/// Before each repetition the allocator joins its free blocks again: else a list would get the blocks in the order in which
/// the benchmark before left them, and the order of the benchmarks would decide.
Function OnOrderlyHeap(const Function& run) {
    return [run](benchmark::State& state) {
        malloc_trim(0);
        run(state);
    };
}

}  // namespace

Function Timed(const MakePass& make) {
    return [make](benchmark::State& state) {
        Pass pass;
        try {
            pass = make();
        } catch (const std::runtime_error& error) {
            state.SkipWithError(error.what());
            return;
        }
        if (pass.lines != 0) {
            state.counters[kLines] = pass.lines;
        }
        while (state.KeepRunningBatch(static_cast<benchmark::IterationCount>(pass.operations))) {
            pass.run();
        }
    };
}

double ThreadSeconds() {
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

double ClockSeconds() {
    static const double median = [] {
        std::vector<double> differences;
        for (int i = 0; i < 1001; ++i) {
            const double start = ThreadSeconds();
            differences.push_back(ThreadSeconds() - start);
        }
        std::sort(differences.begin(), differences.end());
        return differences[differences.size() / 2];
    }();
    return median;
}

const std::vector<Workload>& Workloads() {
    return g_workloads;
}

const std::vector<std::string>& Growths() {
    return g_growths;
}

std::string BenchmarkName(const std::string& workload, const std::string& side) {
    return workload + "/" + side;
}

void Compare(const std::string& name, const Function& library, const std::vector<Peer>& peers, Clock clock) {
    const auto add = [&](const std::string& side, const Function& run) {
        auto* const added = benchmark::RegisterBenchmark(BenchmarkName(name, side).c_str(), OnOrderlyHeap(run));
        if (clock == Clock::Sections) {
            added->UseManualTime();
        }
    };
    add(kLibrary, library);
    for (const Peer& peer : peers) {
        add(peer.name, peer.run);
    }
    g_workloads.push_back({name, peers});
}

void Grow(const std::string& name, const Function& run, int from, int to) {
    constexpr int kStep = 4;
    benchmark::RegisterBenchmark(name.c_str(), OnOrderlyHeap(run))
        ->RangeMultiplier(kStep)
        ->Range(from, to)
        ->Complexity(benchmark::oN);
    g_growths.push_back(name);
}

const std::vector<std::string>& Spreads() {
    return g_spreads;
}

void Spread(const std::string& name, const Function& run) {
    constexpr int kMostThreads = 8;
    benchmark::RegisterBenchmark(name.c_str(), run)->ThreadRange(1, kMostThreads)->UseRealTime();
    g_spreads.push_back(name);
}

}  // namespace krm::bench

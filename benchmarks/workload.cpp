#include "benchmarks/workload.h"

namespace krm::bench {
namespace {

std::vector<Workload> g_workloads;
std::vector<std::string> g_growths;

}  // namespace

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
        auto* const added = benchmark::RegisterBenchmark(BenchmarkName(name, side).c_str(), run);
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
    benchmark::RegisterBenchmark(name.c_str(), run)->RangeMultiplier(kStep)->Range(from, to)->Complexity(benchmark::oN);
    g_growths.push_back(name);
}

}  // namespace krm::bench

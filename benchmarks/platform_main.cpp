// krm_bench_platform: what is measured on every platform, with the peers that are there everywhere: the C library and
// std::list. Writes a line for each result, for tools/bench_table.py: what it is, its nanoseconds, and its peer's.
//
//     krm_bench_platform [SECONDS [PART]]     the time for each side of each workload, 0.05 without; only those of lists
//                                             whose operation and class, such as "append: CKRMCSpGroup", have PART in them
#include <algorithm>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <string>
#include <vector>

#include "benchmarks/answer_passes.h"
#include "benchmarks/conversions.h"
#include "benchmarks/element_lists.h"
#include "benchmarks/heap.h"
#include "benchmarks/measure.h"

namespace krm::bench {
namespace {

void Write(const std::string& what, const std::vector<double>& nanoseconds) {
    std::cout << what;
    for (const double each : nanoseconds) {
        std::cout << '\t' << each;
    }
    std::cout << '\n' << std::flush;
}

void MeasureConversions(double seconds) {
    std::vector<ConversionWorkload> workloads = ConversionWorkloads();
    workloads.insert(workloads.begin(), ValueAlone());
    for (const ConversionWorkload& workload : workloads) {
        std::vector<Pass> passes = {workload.library()};
        for (const ConversionPeer& peer : workload.peers) {
            passes.push_back(peer.make());
        }
        Write(workload.name, LeastNanoseconds(passes, seconds));
    }
}

void MeasureAnswer(double seconds) {
    Write("answer: copy", LeastNanoseconds({CopyAnswer<Answer>()}, seconds));
    Write("answer: a line of its dump", LeastNanoseconds({DumpAnswer()}, seconds));
}

/// What is measured of one class: those that seem slow four times more, and longer, before they are called so.
void MeasureList(const ElementLists& lists, std::size_t operation, double seconds) {
    constexpr double kSuspicious = 1.03;
    constexpr int kAttempts = 4;
    // Made anew, and in the other order: where the elements happen to lie in memory makes a difference too.
    const auto measure = [&](std::size_t first, double time) {
        std::vector<Pass> passes(2);
        passes[first] = ListPass(lists.lists[first], operation);
        passes[1 - first] = ListPass(lists.lists[1 - first], operation);
        return LeastNanoseconds(passes, time);
    };
    std::vector<double> least = measure(0, seconds / 4);
    if (least[0] > kSuspicious * least[1]) {
        // All of them, whatever they show: who stops where it looks well finds what he looks for.
        for (std::size_t attempt = 1; attempt <= kAttempts; ++attempt) {
            const std::vector<double> again = measure(attempt % 2, seconds);
            least = {std::min(least[0], again[0]), std::min(least[1], again[1])};
        }
    }
    Write(std::string("list: ") + kListOperations[operation] + ": " + lists.element, least);
}

void MeasureLists(double seconds, const std::string& part) {
    for (const ElementLists& lists : AllElementLists()) {
        for (std::size_t operation = 0; operation < kListOperations.size(); ++operation) {
            if ((kListOperations[operation] + (": " + lists.element)).find(part) != std::string::npos) {
                MeasureList(lists, operation, seconds);
            }
        }
    }
}

void Measure(double seconds, const std::string& part) {
    if (part.empty()) {
        MeasureConversions(seconds);
        MeasureAnswer(seconds * 4);
    }
    MeasureLists(seconds, part);
}

}  // namespace
}  // namespace krm::bench

int main(int argc, char** argv) {
    krm::bench::KeepPages();
    try {
        krm::bench::Measure(argc > 1 ? std::atof(argv[1]) : 0.05, argc > 2 ? argv[2] : "");
    } catch (const std::exception& error) {
        std::cerr << "krm_bench_platform: " << error.what() << '\n';
        return 1;
    }
    return 0;
}

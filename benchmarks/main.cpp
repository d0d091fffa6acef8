// krm_bench: runs all workloads and prints the tables to standard output, progress to standard error.
//
// Takes the options of Google Benchmark, --rounds=N to run everything as often, and --tables=FILE to write the tables to a
// file too.
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <fstream>
#include <iostream>
#include <string>
#include <string_view>

#include "benchmarks/heap.h"
#include "benchmarks/table.h"
#include "benchmarks/workload.h"

int main(int argc, char** argv) {
    krm::bench::KeepPages();
    krm::bench::RegisterConverters();
    krm::bench::RegisterMessages();
    krm::bench::RegisterJson();
    krm::bench::RegisterComparison();
    krm::bench::RegisterRecordings();
    krm::bench::RegisterLists();
    krm::bench::RegisterTrees();
    krm::bench::RegisterMemory();
    krm::bench::RegisterTick();
    krm::bench::RegisterSession();
    krm::bench::RegisterGrowth();
    krm::bench::RegisterRecordingGrowth();

    benchmark::Initialize(&argc, argv);
    std::string file;
    int rounds = 1;
    for (int i = 1; i < argc; ++i) {
        constexpr std::string_view kTables = "--tables=";
        constexpr std::string_view kRounds = "--rounds=";
        const std::string_view argument = argv[i];
        if (argument.starts_with(kTables)) {
            file = argument.substr(kTables.size());
        } else if (argument.starts_with(kRounds)) {
            rounds = std::atoi(argv[i] + kRounds.size());
        } else {
            std::cerr << "unknown option " << argument << '\n';
            return 2;
        }
    }

    krm::bench::TableReporter reporter;
    reporter.SetOutputStream(&std::cerr);
    reporter.SetErrorStream(&std::cerr);
    for (int round = 0; round < rounds; ++round) {
        benchmark::RunSpecifiedBenchmarks(&reporter);
    }
    benchmark::Shutdown();

    reporter.Print(std::cout);
    if (!file.empty()) {
        std::ofstream out(file);
        reporter.Print(out);
        if (!out.flush()) {
            std::cerr << "can't write " << file << '\n';
            return 1;
        }
    }
    return reporter.Failed() ? 1 : 0;
}

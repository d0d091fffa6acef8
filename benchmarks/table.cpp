#include "benchmarks/table.h"

#include <fmt/core.h>
#include <gnu/libc-version.h>
#include <google/protobuf/stubs/common.h>

#include <algorithm>
#include <fstream>
#include <pugixml.hpp>
#include <string>

#include "benchmarks/workload.h"

namespace krm::bench {
namespace {

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    const std::size_t middle = values.size() / 2;
    return values.size() % 2 != 0 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

std::string ShownTime(double nanoseconds) {
    if (nanoseconds < 1000) {
        return fmt::format("{:.{}f} ns", nanoseconds, nanoseconds < 100 ? 1 : 0);
    }
    if (nanoseconds < 1e6) {
        return fmt::format("{:.1f} µs", nanoseconds / 1e3);
    }
    return fmt::format("{:.2f} ms", nanoseconds / 1e6);
}

std::string Processor() {
    std::ifstream info("/proc/cpuinfo");
    for (std::string line; std::getline(info, line);) {
        const std::size_t colon = line.find(": ");
        if (line.starts_with("model name") && colon != std::string::npos) {
            return line.substr(colon + 2);
        }
    }
    return "unknown processor";
}

std::string System() {
    std::ifstream release("/etc/os-release");
    for (std::string line; std::getline(release, line);) {
        constexpr std::string_view kName = "PRETTY_NAME=\"";
        if (line.starts_with(kName)) {
            return line.substr(kName.size(), line.size() - kName.size() - 1);
        }
    }
    return "unknown system";
}

std::string Version(int number) {
    return fmt::format("{}.{}.{}", number / 1'000'000, number / 1000 % 1000, number % 1000);
}

void PrintMachine(std::ostream& out) {
    const benchmark::CPUInfo& cpu = benchmark::CPUInfo::Get();
    std::string caches;
    for (const auto& cache : cpu.caches) {
        if (cache.type != "Instruction") {
            caches += fmt::format("{}L{} {} KiB", caches.empty() ? "" : ", ", cache.level, cache.size / 1024);
        }
    }
    // fmt counts 10000, 100, 1; pugixml 1000, 10; protobuf 1000000, 1000, 1.
    out << fmt::format("Machine: {}, {} processors, {}; {}.\n\n", Processor(), cpu.num_cpus, caches, System());
    out << fmt::format(
        "Built with GCC {}, Release. Peers: glibc {}, libstdc++ of that GCC, fmt {}.{}.{}, protobuf {}, pugixml {}.{}.\n\n",
        __VERSION__, gnu_get_libc_version(), FMT_VERSION / 10000, FMT_VERSION / 100 % 100, FMT_VERSION % 100,
        Version(GOOGLE_PROTOBUF_VERSION), PUGIXML_VERSION / 1000, PUGIXML_VERSION % 1000 / 10);
}

/// The time of an iteration in nanoseconds, by the clock of the workload.
double TimeOf(const benchmark::BenchmarkReporter::Run& run) {
    return run.run_name.time_type == "manual_time" ? run.GetAdjustedRealTime() : run.GetAdjustedCPUTime();
}

}  // namespace

void TableReporter::ReportRuns(const std::vector<Run>& runs) {
    for (const Run& run : runs) {
        if (run.error_occurred) {
            m_failed = true;
            continue;
        }
        const std::string name = run.run_name.function_name;
        const bool grows = std::find(Growths().begin(), Growths().end(), name) != Growths().end();
        const bool spreads = std::find(Spreads().begin(), Spreads().end(), name) != Spreads().end();
        if (run.report_rms) {
            m_growths[name].rms = run.GetAdjustedCPUTime();
        } else if (run.report_big_o || run.run_type != Run::RT_Iteration) {
            continue;
        } else if (spreads) {
            m_spreads[name][run.threads].push_back(run.counters.at("items_per_second").value);
        } else if (grows) {
            m_growths[name].nanoseconds[run.complexity_n].push_back(TimeOf(run));
        } else {
            Side& side = m_sides[name];
            const auto lines = run.counters.find(kLines);
            const auto bytes = run.counters.find(kBytes);
            if (bytes != run.counters.end()) {
                side.isBytes = true;
                side.values.push_back(bytes->second);
            } else if (lines != run.counters.end()) {
                side.lines = lines->second;
                side.values.push_back(TimeOf(run) / side.lines);
            } else {
                side.values.push_back(TimeOf(run));
            }
        }
    }
    ConsoleReporter::ReportRuns(runs);
}

std::string TableReporter::Shown(const Side& side) {
    const double value = Median(side.values);
    if (side.isBytes) {
        return fmt::format("{:.0f} B", value);
    }
    if (side.lines != 0) {
        return fmt::format("{} a line ({:.0f} lines)", ShownTime(value), side.lines);
    }
    return ShownTime(value);
}

void TableReporter::PrintWorkloads(std::ostream& out) const {
    std::size_t repetitions = 0;
    std::string table = "| workload | this library | peer | ratio | goal | met |\n|---|---:|---:|---:|---:|:---:|\n";
    int goals = 0;
    int met = 0;
    for (const Workload& workload : Workloads()) {
        const auto library = m_sides.find(BenchmarkName(workload.name, kLibrary));
        for (const Peer& peer : workload.peers) {
            const auto other = m_sides.find(BenchmarkName(workload.name, peer.name));
            if (library == m_sides.end() || other == m_sides.end()) {
                continue;
            }
            repetitions = library->second.values.size();
            const double ours = Median(library->second.values);
            const double theirs = Median(other->second.values);
            std::string goal = "–";
            std::string verdict;
            if (peer.goal != 0) {
                // As precisely as it is shown: a hundredth is less than two runs differ by.
                const bool isMet = ours <= (peer.goal + 0.005) * theirs;
                ++goals;
                met += isMet ? 1 : 0;
                goal = fmt::format("≤ {:.2f}", peer.goal);
                verdict = isMet ? "yes" : "**no**";
            }
            table += fmt::format("| {} | {} | {}: {} | {} | {} | {} |\n", workload.name, Shown(library->second),
                                 peer.name, Shown(other->second),
                                 theirs != 0 ? fmt::format("{:.2f}", ours / theirs) : "–", goal, verdict);
        }
    }
    if (repetitions == 0) {
        return;
    }
    out << fmt::format("Processor time, median of {} repetition{}; {} of {} goals met.\n\n", repetitions,
                       repetitions == 1 ? "" : "s", met, goals)
        << table << '\n';
}

void TableReporter::PrintGrowths(std::ostream& out) const {
    if (m_growths.empty()) {
        return;
    }
    out << "Time per element by number of elements, and how far the whole is off a cost that grows as N (root mean "
           "square of the differences, as a share of the mean):\n\n"
        << "| operation | per element | off by |\n|---|---|---:|\n";
    for (const std::string& name : Growths()) {
        const auto growth = m_growths.find(name);
        if (growth == m_growths.end()) {
            continue;
        }
        std::string perElement;
        for (const auto& [size, nanoseconds] : growth->second.nanoseconds) {
            perElement += fmt::format("{}{}: {}", perElement.empty() ? "" : ", ", size,
                                      ShownTime(Median(nanoseconds) / static_cast<double>(size)));
        }
        out << fmt::format("| {} | {} | {:.0f} % |\n", name, perElement, growth->second.rms * 100);
    }
    out << '\n';
}

void TableReporter::PrintSpreads(std::ostream& out) const {
    if (m_spreads.empty()) {
        return;
    }
    out << fmt::format(
               "What several threads get done in a second on {} processors, each on objects of its own, and how many "
               "times as much as one:\n\n",
               benchmark::CPUInfo::Get().num_cpus)
        << "| work | 1 thread | 2 threads | 4 threads | 8 threads |\n|---|---:|---:|---:|---:|\n";
    for (const std::string& name : Spreads()) {
        const auto spread = m_spreads.find(name);
        if (spread == m_spreads.end()) {
            continue;
        }
        out << "| " << name;
        const double alone = Median(spread->second.begin()->second);
        for (const auto& [threads, perSecond] : spread->second) {
            const double all = Median(perSecond);
            out << fmt::format(" | {:.0f}", all) << (threads == 1 ? "" : fmt::format(" ({:.2f})", all / alone));
        }
        out << " |\n";
    }
    out << '\n';
}

void TableReporter::Print(std::ostream& out) const {
    PrintMachine(out);
    PrintWorkloads(out);
    PrintGrowths(out);
    PrintSpreads(out);
}

}  // namespace krm::bench

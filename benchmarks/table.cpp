#include "benchmarks/table.h"

#include <fmt/core.h>
#include <gnu/libc-version.h>
#include <google/protobuf/stubs/common.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <pugixml.hpp>
#include <string>

#include "benchmarks/workload.h"

namespace krm::bench {
namespace {

/// What other programs, and other machines on the same processor, disturb least.
double Least(const std::vector<double>& values) {
    return *std::min_element(values.begin(), values.end());
}

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    const std::size_t middle = values.size() / 2;
    return values.size() % 2 != 0 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

/// The median of what the rounds show, each by itself: in one round both sides meet the same machine.
double Ratio(const std::vector<double>& ours, const std::vector<double>& theirs) {
    std::vector<double> ratios;
    for (std::size_t round = 0; round < std::min(ours.size(), theirs.size()); ++round) {
        ratios.push_back(ours[round] / theirs[round]);
    }
    return Median(ratios);
}

double Most(const std::vector<double>& values) {
    return *std::max_element(values.begin(), values.end());
}

/// The root mean square of the times' differences from the cost by size that fits them best, as a share of their mean.
double DistanceFromLinear(const std::map<std::int64_t, double>& times) {
    double bySize = 0;
    double sizes = 0;
    double sum = 0;
    for (const auto& [size, time] : times) {
        bySize += static_cast<double>(size) * time;
        sizes += static_cast<double>(size) * static_cast<double>(size);
        sum += time;
    }
    double squares = 0;
    for (const auto& [size, time] : times) {
        const double difference = time - bySize / sizes * static_cast<double>(size);
        squares += difference * difference;
    }
    const auto count = static_cast<double>(times.size());
    return std::sqrt(squares / count) / (sum / count);
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
        if (run.report_rms || run.report_big_o || run.run_type != Run::RT_Iteration) {
            continue;
        }
        if (spreads) {
            m_spreads[name][run.threads].push_back(run.counters.at("items_per_second").value);
        } else if (grows) {
            m_growths[name][run.complexity_n].push_back(TimeOf(run));
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
    const double value = Least(side.values);
    if (side.isBytes) {
        return fmt::format("{:.0f} B", value);
    }
    if (side.lines != 0) {
        return fmt::format("{} a line ({:.0f} lines)", ShownTime(value), side.lines);
    }
    return ShownTime(value);
}

void TableReporter::PrintWorkloads(std::ostream& out) const {
    std::size_t rounds = 0;
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
            rounds = library->second.values.size();
            const double ratio = Ratio(library->second.values, other->second.values);
            std::string goal = "–";
            std::string verdict;
            if (peer.goal != 0) {
                // As precisely as it is shown: a hundredth is less than two runs differ by.
                const bool isMet = !(ratio >= peer.goal + 0.005);
                ++goals;
                met += isMet ? 1 : 0;
                goal = fmt::format("≤ {:.2f}", peer.goal);
                verdict = isMet ? "yes" : "**no**";
            }
            table += fmt::format("| {} | {} | {}: {} | {} | {} | {} |\n", workload.name, Shown(library->second),
                                 peer.name, Shown(other->second),
                                 std::isfinite(ratio) ? fmt::format("{:.2f}", ratio) : "–", goal, verdict);
        }
    }
    if (rounds == 0) {
        return;
    }
    out << fmt::format("Processor time, least of {} round{}, and the median of their ratios; {} of {} goals met.\n\n",
                       rounds, rounds == 1 ? "" : "s", met, goals)
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
        std::map<std::int64_t, double> times;
        std::string perElement;
        for (const auto& [size, nanoseconds] : growth->second) {
            times[size] = Least(nanoseconds);
            perElement += fmt::format("{}{}: {}", perElement.empty() ? "" : ", ", size,
                                      ShownTime(times[size] / static_cast<double>(size)));
        }
        out << fmt::format("| {} | {} | {:.0f} % |\n", name, perElement, DistanceFromLinear(times) * 100);
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
        const double alone = Most(spread->second.begin()->second);
        for (const auto& [threads, perSecond] : spread->second) {
            const double all = Most(perSecond);
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

// Puts the benchmarks' results together to the tables of docs/performance.md.
#ifndef KRM_BENCHMARKS_TABLE_H_
#define KRM_BENCHMARKS_TABLE_H_

#include <benchmark/benchmark.h>

#include <cstdint>
#include <map>
#include <ostream>
#include <string>
#include <vector>

namespace krm::bench {

/// Shows each run as it ends and remembers it for the tables.
class TableReporter : public benchmark::ConsoleReporter {
public:
    TableReporter() : ConsoleReporter(OO_None) {}

    void ReportRuns(const std::vector<Run>& runs) override;

    /// Whether a benchmark reported an error, or none ran.
    bool Failed() const { return m_failed || (m_sides.empty() && m_growths.empty() && m_spreads.empty()); }

    /// Writes, in Markdown: the machine, the tables of workloads, of growth and of threads. Workloads that didn't run are
    /// left out.
    void Print(std::ostream& out) const;

private:
    /// The results of one side of a workload, one per repetition.
    struct Side {
        std::vector<double> values;  // nanoseconds, or bytes
        double lines = 0;
        bool isBytes = false;
    };
    /// Nanoseconds by size, one for each repetition.
    using Growth = std::map<std::int64_t, std::vector<double>>;

    /// What several threads get done together in a second, by their number; one for each repetition.
    using Spread = std::map<std::int64_t, std::vector<double>>;

    void PrintWorkloads(std::ostream& out) const;
    void PrintGrowths(std::ostream& out) const;
    void PrintSpreads(std::ostream& out) const;
    static std::string Shown(const Side& side);

    std::map<std::string, Side> m_sides;
    std::map<std::string, Growth> m_growths;
    std::map<std::string, Spread> m_spreads;
    bool m_failed = false;
};

}  // namespace krm::bench

#endif  // KRM_BENCHMARKS_TABLE_H_

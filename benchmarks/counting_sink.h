// A sink of the operation log that looks at every line and keeps none.
#ifndef KRM_BENCHMARKS_COUNTING_SINK_H_
#define KRM_BENCHMARKS_COUNTING_SINK_H_

#include <cstddef>
#include <string_view>

#include "benchmarks/pass.h"
#include "krm/framework/log_sinks.h"

namespace krm::bench {

/// For one thread.
struct CountingSink {
    std::size_t lines = 0;
    std::size_t bytes = 0;

    krm_long Write(std::string_view line, int, int) {
        Keep(line);
        ++lines;
        bytes += line.size();
        return 0;
    }
};

/// The lines that `write` writes.
template <class Written>
std::size_t LinesOf(Written write) {
    CountingSink sink;
    const ScopedLogSink scope(sink);
    write();
    return sink.lines;
}

}  // namespace krm::bench

#endif  // KRM_BENCHMARKS_COUNTING_SINK_H_

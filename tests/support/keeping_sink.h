// A sink of the operation log (krm/framework/log_sinks.h) that keeps what it is told.
#ifndef KRM_TESTS_SUPPORT_KEEPING_SINK_H_
#define KRM_TESTS_SUPPORT_KEEPING_SINK_H_

#include <string>
#include <string_view>
#include <vector>

#include "krm/core/types.h"

namespace krm::test {

/// Keeps each line with its two numbers behind it, and answers with `result`.
struct KeepingSink {
    krm_long Write(std::string_view line, int first, int second) {
        lines.push_back(std::string(line) + '|' + std::to_string(first) + '|' + std::to_string(second));
        return result;
    }
    krm_long result = 0;
    std::vector<std::string> lines;
};

}  // namespace krm::test

#endif  // KRM_TESTS_SUPPORT_KEEPING_SINK_H_

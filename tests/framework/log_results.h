// What a writer of the operation log may answer.
#ifndef KRM_TESTS_FRAMEWORK_LOG_RESULTS_H_
#define KRM_TESTS_FRAMEWORK_LOG_RESULTS_H_

#include <limits>

#include "krm/core/types.h"

namespace krm::test {

/// Results that lose a part of themselves, or become 0, where they are kept in fewer than 32 bits.
inline constexpr krm_long kLogResults[] = {
    -1, -12345, 0x12345678, 70000, -70000, 0x10000, std::numeric_limits<krm_long>::min()};

}  // namespace krm::test

#endif  // KRM_TESTS_FRAMEWORK_LOG_RESULTS_H_

// How many random scalings the tests of the arithmetic compute.
#ifndef KRM_TESTS_SUPPORT_SCALING_ROUNDS_H_
#define KRM_TESTS_SUPPORT_SCALING_ROUNDS_H_

#include <cstdlib>

namespace krm::test {

/// Enough for every run of the suite; for a long run what KRM_SCALINGS says.
inline int ScalingRounds() {
    const char* const asked = std::getenv("KRM_SCALINGS");
    return asked != nullptr ? std::atoi(asked) : 200'000;
}

}  // namespace krm::test

#endif  // KRM_TESTS_SUPPORT_SCALING_ROUNDS_H_

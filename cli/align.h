// Which elements of two sequences belong to each other.
#ifndef KRM_CLI_ALIGN_H_
#define KRM_CLI_ALIGN_H_

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace krm_cli {

/// An element of both, or of one alone.
struct Pair {
    std::optional<std::size_t> first;
    std::optional<std::size_t> second;

    friend bool operator==(const Pair&, const Pair&) = default;
};

/// Pairs equal elements without changing their order, and as many as there are: those of the longest common subsequence.
/// Where more than `mostDifferences`, at least 1, follow without end, it is as good as it gets with these, and goes on from
/// there.
std::vector<Pair> Align(const std::vector<std::uint64_t>& first, const std::vector<std::uint64_t>& second,
                        std::size_t mostDifferences = 1000);

}  // namespace krm_cli

#endif  // KRM_CLI_ALIGN_H_

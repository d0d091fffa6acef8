#include "cli/align.h"

#include <algorithm>

namespace krm_cli {
namespace {

using Sequence = std::vector<std::uint64_t>;

/// One round of Myers's greedy search ("An O(ND) Difference Algorithm and Its Variations", 1986), from (x, y) on, which it
/// moves. On diagonal k, x - y is k more than at the begin; furthest[d] holds how far each one got with d differences.
class Round {
public:
    Round(const Sequence& first, const Sequence& second, std::size_t& x, std::size_t& y, std::size_t most)
        : m_first(first), m_second(second), m_x(x), m_y(y), m_most(most) {}

    void Run(std::vector<Pair>& pairs) {
        const auto n = static_cast<std::ptrdiff_t>(m_first.size() - m_x);
        const auto m = static_cast<std::ptrdiff_t>(m_second.size() - m_y);
        std::ptrdiff_t endX = 0;
        std::ptrdiff_t endK = 0;
        std::ptrdiff_t d = 0;
        for (bool isDone = false; !isDone; ++d) {
            const auto size = static_cast<std::size_t>(2 * d + 1);
            std::vector<std::ptrdiff_t> furthest(size, -1);
            std::ptrdiff_t best = -1;
            for (std::ptrdiff_t k = -d; k <= d && !isDone; k += 2) {
                std::ptrdiff_t x = d == 0 ? 0 : Step(d, k);
                if (x < 0 || x > n || x - k > m) {
                    continue;
                }
                while (x < n && x - k < m &&
                       m_first[m_x + static_cast<std::size_t>(x)] == m_second[m_y + static_cast<std::size_t>(x - k)]) {
                    ++x;
                }
                furthest[static_cast<std::size_t>(k + d)] = x;
                if (2 * x - k > best) {
                    best = 2 * x - k;
                    endX = x;
                    endK = k;
                }
                isDone = x == n && x - k == m;
            }
            m_furthest.push_back(std::move(furthest));
            isDone = isDone || static_cast<std::size_t>(d) == m_most;
        }
        Backtrack(d - 1, endK, endX, pairs);
        m_x += static_cast<std::size_t>(endX);
        m_y += static_cast<std::size_t>(endX - endK);
    }

private:
    std::ptrdiff_t At(std::ptrdiff_t d, std::ptrdiff_t k) const {
        return k < -d || k > d ? -1 : m_furthest[static_cast<std::size_t>(d)][static_cast<std::size_t>(k + d)];
    }
    /// Whether diagonal k is reached from k + 1, by an element of the second alone.
    bool IsDown(std::ptrdiff_t d, std::ptrdiff_t k) const { return At(d - 1, k - 1) < At(d - 1, k + 1); }
    std::ptrdiff_t Step(std::ptrdiff_t d, std::ptrdiff_t k) const {
        if (IsDown(d, k)) {
            return At(d - 1, k + 1);
        }
        const std::ptrdiff_t x = At(d - 1, k - 1);
        return x < 0 ? -1 : x + 1;
    }

    void Backtrack(std::ptrdiff_t d, std::ptrdiff_t k, std::ptrdiff_t x, std::vector<Pair>& pairs) const {
        const std::size_t begin = pairs.size();
        for (; d >= 0; --d) {
            const std::ptrdiff_t from = d == 0 ? 0 : Step(d, k);
            for (; x > from; --x) {
                pairs.push_back({m_x + static_cast<std::size_t>(x) - 1, m_y + static_cast<std::size_t>(x - k) - 1});
            }
            if (d == 0) {
                break;
            }
            if (IsDown(d, k)) {
                pairs.push_back({std::nullopt, m_y + static_cast<std::size_t>(x - k) - 1});
                ++k;
            } else {
                pairs.push_back({m_x + static_cast<std::size_t>(x) - 1, std::nullopt});
                --x;
                --k;
            }
        }
        std::reverse(pairs.begin() + static_cast<std::ptrdiff_t>(begin), pairs.end());
    }

    const Sequence& m_first;
    const Sequence& m_second;
    std::size_t& m_x;
    std::size_t& m_y;
    std::size_t m_most;
    std::vector<std::vector<std::ptrdiff_t>> m_furthest;
};

}  // namespace

std::vector<Pair> Align(const Sequence& first, const Sequence& second, std::size_t mostDifferences) {
    std::vector<Pair> pairs;
    std::size_t x = 0;
    std::size_t y = 0;
    while (x < first.size() || y < second.size()) {
        Round(first, second, x, y, mostDifferences).Run(pairs);
    }
    return pairs;
}

}  // namespace krm_cli

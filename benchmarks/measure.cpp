#include "benchmarks/measure.h"

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <limits>

namespace krm::bench {
namespace {

using Clock = std::chrono::steady_clock;

/// The timed part of a round: long beside the clock's own cost and steps, short beside another program's turn.
constexpr double kSlice = 50e-6;
constexpr int kLeastRounds = 15;

double SecondsSince(Clock::time_point start) {
    return std::chrono::duration<double>(Clock::now() - start).count();
}

/// What reading the clock takes, on average: a single reading is shorter than its steps in wine.
double ClockSeconds() {
    static const double least = [] {
        constexpr int kReadings = 1000;
        double found = std::numeric_limits<double>::infinity();
        for (int round = 0; round < kLeastRounds; ++round) {
            const Clock::time_point start = Clock::now();
            for (int i = 1; i < kReadings; ++i) {
                Keep(Clock::now());
            }
            found = std::min(found, SecondsSince(start) / kReadings);
        }
        return found;
    }();
    return least;
}

/// The seconds that `times` runs take, without what is undone between them.
double Seconds(const Pass& pass, int times) {
    if (!pass.undo) {
        const Clock::time_point start = Clock::now();
        for (int i = 0; i < times; ++i) {
            pass.run();
        }
        return SecondsSince(start);
    }
    double sum = 0;
    for (int i = 0; i < times; ++i) {
        const Clock::time_point start = Clock::now();
        pass.run();
        sum += SecondsSince(start) - ClockSeconds();
        pass.undo();
    }
    return sum;
}

}  // namespace

std::vector<double> LeastNanoseconds(const std::vector<Pass>& passes, double seconds) {
    std::vector<int> times;
    for (const Pass& pass : passes) {
        Seconds(pass, 1);  // what is only made the first time
        const double once = std::max(Seconds(pass, 1), 1e-8);
        times.push_back(std::max(1, static_cast<int>(kSlice / once)));
    }
    std::vector<double> least(passes.size(), std::numeric_limits<double>::infinity());
    const Clock::time_point end =
        Clock::now() + std::chrono::duration_cast<Clock::duration>(
                           std::chrono::duration<double>(seconds * static_cast<double>(passes.size())));
    for (int round = 0; round < kLeastRounds || Clock::now() < end; ++round) {
        for (std::size_t turn = 0; turn < passes.size(); ++turn) {
            // Forwards and backwards, so that none always comes after the same other.
            const std::size_t i = round % 2 == 0 ? turn : passes.size() - 1 - turn;
            least[i] = std::min(least[i], Seconds(passes[i], times[i]) / times[i] / passes[i].operations);
        }
    }
    for (std::size_t i = 0; i < passes.size(); ++i) {
        least[i] *= 1e9 / (passes[i].lines != 0 ? passes[i].lines : 1);
    }
    return least;
}

}  // namespace krm::bench

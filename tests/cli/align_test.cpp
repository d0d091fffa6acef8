#include "cli/align.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace {

using krm_cli::Align;
using krm_cli::Pair;
using Sequence = std::vector<std::uint64_t>;

Sequence Of(const std::string& text) {
    return {text.begin(), text.end()};
}

/// A line for each pair, as `diff` would have it: " a" of both, "-a" of the first, "+a" of the second.
std::string LinesOf(const std::string& first, const std::string& second) {
    std::string lines;
    for (const Pair& pair : Align(Of(first), Of(second))) {
        lines += pair.first && pair.second ? ' ' : pair.first ? '-' : '+';
        lines += pair.first ? first[*pair.first] : second[*pair.second];
    }
    return lines;
}

TEST(Align, PairsWhatIsEqual) {
    EXPECT_EQ(LinesOf("", ""), "");
    EXPECT_EQ(LinesOf("abc", "abc"), " a b c");
    EXPECT_EQ(LinesOf("abc", ""), "-a-b-c");
    EXPECT_EQ(LinesOf("", "abc"), "+a+b+c");
    EXPECT_EQ(LinesOf("abc", "ac"), " a-b c");
    EXPECT_EQ(LinesOf("ac", "abc"), " a+b c");
    EXPECT_EQ(LinesOf("xbc", "ybc"), "-x+y b c");
    EXPECT_EQ(LinesOf("abcabba", "cbabac"), "-a-b c+b a b-b a+c");
}

/// The length of the longest common subsequence, by the table.
std::size_t LongestCommon(const Sequence& first, const Sequence& second) {
    std::vector<std::size_t> row(second.size() + 1);
    for (const std::uint64_t element : first) {
        std::size_t diagonal = 0;
        for (std::size_t j = 0; j < second.size(); ++j) {
            const std::size_t above = row[j + 1];
            row[j + 1] = element == second[j] ? diagonal + 1 : std::max(above, row[j]);
            diagonal = above;
        }
    }
    return row.back();
}

/// How many pairs there are of elements of both; each element is in one pair, in order, and pairs are of equal ones.
std::size_t CheckedPairs(const Sequence& first, const Sequence& second, std::size_t mostDifferences) {
    std::size_t x = 0;
    std::size_t y = 0;
    std::size_t common = 0;
    for (const Pair& pair : Align(first, second, mostDifferences)) {
        EXPECT_TRUE(pair.first || pair.second);
        if (pair.first) {
            EXPECT_EQ(*pair.first, x++);
        }
        if (pair.second) {
            EXPECT_EQ(*pair.second, y++);
        }
        if (pair.first && pair.second) {
            EXPECT_EQ(first[*pair.first], second[*pair.second]);
            ++common;
        }
    }
    EXPECT_EQ(x, first.size());
    EXPECT_EQ(y, second.size());
    return common;
}

TEST(Align, FindsAsManyPairsAsThereAre) {
    std::mt19937 random(7);
    for (int i = 0; i < 2000; ++i) {
        Sequence first(random() % 16);
        Sequence second(random() % 16);
        const std::uint64_t kinds = 1 + random() % 6;
        for (Sequence* const sequence : {&first, &second}) {
            std::generate(sequence->begin(), sequence->end(), [&] { return random() % kinds; });
        }
        EXPECT_EQ(CheckedPairs(first, second, 1000), LongestCommon(first, second));
        // With fewer differences than there are: pairs all the same, if not as many.
        for (std::size_t most = 1; most < 5; ++most) {
            CheckedPairs(first, second, most);
        }
    }
}

TEST(Align, GoesOnBehindMoreDifferencesThanItLooksFor) {
    const Sequence first = Of("abcdefgh" + std::string(50, '=') + "ijklmnop");
    const Sequence second = Of("ABCDEFGH" + std::string(50, '=') + "IJKLMNOP");
    EXPECT_EQ(CheckedPairs(first, second, 1000), 50U);
    EXPECT_EQ(CheckedPairs(first, second, 16), 50U);
}

}  // namespace

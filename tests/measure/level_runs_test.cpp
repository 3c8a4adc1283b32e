// Runs at or above a threshold, in one array and in streams of blocks.
#include <algorithm>
#include <gtest/gtest.h>
#include <random>

#include "quorvan/quorvan.h"
#include "tests/support/failing_heap.h"
#include "tests/support/guarded.h"

namespace quorvan::testing {
namespace {

using Indices = Guarded<Size>;
using Found = std::vector<Size>;
constexpr Size kNoIndex = -77;
constexpr Size kWidest = Size{1} << 30;

// What was found, in an array of exactly the documented size.
Found Written(const Indices& indices, Size count) {
    for (std::size_t k = static_cast<std::size_t>(count); k < indices.size(); ++k) EXPECT_EQ(indices[k], kNoIndex);
    return {indices.begin(), indices.begin() + count};
}

Found Runs(const Reals& x, double threshold, Size width) {
    const Size n = static_cast<Size>(x.size());
    Indices indices(static_cast<std::size_t>(n / width + 1), kNoIndex);
    Indices count{kNoIndex};
    EXPECT_EQ(ZemFunc237(x, n, threshold, width, indices, count), 0);
    Size counted = kNoIndex;
    EXPECT_EQ(ZemFunc237(x, n, threshold, width, nullptr, &counted), 0);
    EXPECT_EQ(counted, count[0]) << "without an array they are counted";
    return Written(indices, count[0]);
}

struct Block {
    std::vector<double> x;
    Size width;
    bool reset = false, last = false;
    double threshold = 1;
};

Found Feed(const Block& block) {
    const Size n = static_cast<Size>(block.x.size());
    const Reals x(block.x);
    Indices indices(static_cast<std::size_t>(n / block.width + 1), kNoIndex);
    Indices count{kNoIndex};
    EXPECT_EQ(ZemFunc493(x, n, block.threshold, block.width, block.reset, block.last, indices, count), 0);
    return Written(indices, count[0]);
}

// Ends what another test may have left.
class PeakThresholdRunsStream : public ::testing::Test {
protected:
    void SetUp() override { Feed({{}, 1, true, true}); }
};

TEST(PeakThresholdRuns, FindsRunsOfTheWidthAndLonger) {
    EXPECT_EQ(Runs({0, 1, 1, 0, 1, 1, 1, 0, 1, 0}, 1, 2), (Found{1, 4}));
    EXPECT_EQ(Runs({0, 1, 1, 0, 1, 1, 1, 0, 1, 0}, 1, 3), (Found{4}));
    EXPECT_EQ(Runs({0, 1, 1, 0, 1, 1, 1, 0, 1, 0}, 1, 1), (Found{1, 4, 8}));
    EXPECT_EQ(Runs({0, 1, 1, 0, 1, 1, 1, 0, 1, 0}, 1, 4), (Found{}));
    EXPECT_EQ(Runs({1, 1, 0, 0, 1, 1}, 1, 2), (Found{0, 4})) << "at both ends";
    EXPECT_EQ(Runs({1, 1, 1, 1}, 1, 3), (Found{0})) << "one run is told once";
}

TEST(PeakThresholdRuns, CountsASampleOnTheThresholdAsAbove) {
    EXPECT_EQ(Runs({0.5, 0.5, 0.25}, 0.5, 2), (Found{0}));
    EXPECT_EQ(Runs({0.5, 0.5, 0.25}, std::nextafter(0.5, 1), 2), (Found{}));
    EXPECT_EQ(Runs({kInf, kInf, -kInf}, kInf, 2), (Found{0}));
}

TEST(PeakThresholdRuns, TakesNanAsBelow) {
    EXPECT_EQ(Runs({1, kNaN, 1, 1, kNaN}, 0, 2), (Found{2}));
    EXPECT_EQ(Runs({1, 1, 1}, kNaN, 1), (Found{}));
}

TEST(PeakThresholdRuns, RefusesAWidthOfTheWholeArray) {
    Indices indices(2, kNoIndex), count{kNoIndex};
    const Reals x{1, 1, 1};
    for (Size width : {3, 4, 100}) {
        count[0] = kNoIndex;
        EXPECT_EQ(ZemFunc237(x, 3, 0, width, indices, count), -20013);
        EXPECT_EQ(count[0], 0);
    }
    EXPECT_EQ(ZemFunc237(Reals{1}, 1, 0, 1, indices, count), -20013);
    EXPECT_EQ(indices.values(), (Found{kNoIndex, kNoIndex}));
}

TEST(PeakThresholdRuns, TestsTheRoomThenTheSamplesThenTheWidth) {
    Indices indices(4, kNoIndex), count{kNoIndex};
    const Reals x{1, 1, 1};
    EXPECT_EQ(ZemFunc237(x, kTooLarge, 0, 0, indices, count), -20046);
    EXPECT_EQ(ZemFunc237(x, 3, 0, kTooLarge, indices, count), -20046);
    // n / width + 1 is 0 or less.
    EXPECT_EQ(ZemFunc237(x, 3, 0, -2, indices, count), -20003);
    EXPECT_EQ(ZemFunc237(x, -3, 0, 2, indices, count), -20003);
    FailAllocation(0);
    EXPECT_EQ(ZemFunc237(x, -3, 0, 2, indices, count), -20003) << "before the room is taken";
    FailAllocation(0);
    EXPECT_EQ(ZemFunc237(x, 0, 0, 9, indices, count), -20001) << "which comes before the other checks";
    FailAllocation(-1);
    EXPECT_EQ(count[0], kNoIndex);
    EXPECT_EQ(ZemFunc237(x, 0, 0, 9, indices, count), -20003);
    EXPECT_EQ(count[0], 0);
    EXPECT_EQ(ZemFunc237(x, -1, 0, 9, indices, count), -20003);
    EXPECT_EQ(ZemFunc237(x, 3, 0, -9, indices, count), -20013) << "here the quotient is 0";
    EXPECT_EQ(indices.values(), Found(4, kNoIndex));
}

#if defined(__x86_64__)
TEST(PeakThresholdRunsDeathTest, DividesByAWidthOfZero) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    Size count;
    EXPECT_DEATH(ZemFunc237(Reals{1, 1, 1}, 3, 0, 0, nullptr, &count), "");
}
#endif

TEST(PeakThresholdRuns, TellsExhaustedMemoryOnlyWhenIndicesAreWanted) {
    const Reals x{0, 1, 1, 0};
    Indices indices(3), count{kNoIndex};
    ExpectEveryAllocationFails([&] { return ZemFunc237(x, 4, 1, 2, indices, count); });
    FailAllocation(0);
    EXPECT_EQ(ZemFunc237(x, 4, 1, 2, nullptr, count), 0);
    FailAllocation(-1);
}

TEST_F(PeakThresholdRunsStream, ReportsARunOnceWhereItReachesTheWidth) {
    EXPECT_EQ(Feed({{0, 0, 1}, 3, true}), Found{});
    EXPECT_EQ(Feed({{1}, 3}), Found{});
    EXPECT_EQ(Feed({{1, 1}, 3}), Found{2}) << "the global start";
    EXPECT_EQ(Feed({{1, 1, 1, 1}, 3}), Found{}) << "it goes on, and is not told again";
    EXPECT_EQ(Feed({{1, 0, 1, 1, 1}, 3}), Found{12});
    EXPECT_EQ(Feed({{1, 0}, 3}), Found{});
    EXPECT_EQ(Feed({{1, 1, 1}, 3, false, true}), Found{17});
}

TEST_F(PeakThresholdRunsStream, AllowsAWidthOfTheBlockAndMore) {
    EXPECT_EQ(Feed({{1, 1, 1}, 3, true, true}), Found{0});
    EXPECT_EQ(Feed({{1, 1, 1}, kWidest, true, true}), Found{});
}

TEST_F(PeakThresholdRunsStream, TakesAnEmptyBlockWithoutAnyChange) {
    EXPECT_EQ(Feed({{0, 1}, 2, true}), Found{});
    EXPECT_EQ(Feed({{}, 2}), Found{});
    EXPECT_EQ(Feed({{}, 2}), Found{});
    EXPECT_EQ(Feed({{1}, 2}), Found{1});
    Size count = kNoIndex;
    EXPECT_EQ(ZemFunc493(nullptr, 0, 1, 2, 0, 0, nullptr, &count), 0);
    EXPECT_EQ(count, 0);
}

TEST_F(PeakThresholdRunsStream, CanReportAnOpenRunWithNoNewSample) {
    EXPECT_EQ(Feed({{0, 1, 1}, 3, true}), Found{});
    EXPECT_EQ(Feed({{}, 2}), Found{1});
    EXPECT_EQ(Feed({{}, 1}), Found{});
    // With a first sample below: the run has ended, and is told all the same.
    EXPECT_EQ(Feed({{0, 1, 1}, 3, true}), Found{});
    EXPECT_EQ(Feed({{0, 1, 1}, 2}), (Found{1, 4}));
}

TEST_F(PeakThresholdRunsStream, BeginsAnewWithResetAndAfterTheLastBlock) {
    EXPECT_EQ(Feed({{1, 1}, 3}), Found{});
    EXPECT_EQ(Feed({{1, 0, 1, 1, 1}, 3, true}), Found{2});
    EXPECT_EQ(Feed({{1, 0}, 3, false, true}), Found{});
    EXPECT_EQ(Feed({{0, 1, 1, 1}, 3}), Found{1});
    EXPECT_EQ(Feed({{}, 3, false, true}), Found{});
    EXPECT_EQ(Feed({{1, 1, 1}, 3}), Found{0});
}

TEST_F(PeakThresholdRunsStream, KeepsItsStateOnFailureAlsoWithReset) {
    EXPECT_EQ(Feed({{0, 1, 1}, 3, true}), Found{});
    const Reals x{1, 1, 1};
    Indices indices(3, kNoIndex), count{kNoIndex};
    EXPECT_EQ(ZemFunc493(x, kTooLarge, 1, 0, 1, 1, indices, count), -20046);
    EXPECT_EQ(ZemFunc493(x, 3, 1, kTooLarge, 1, 1, indices, count), -20046);
    EXPECT_EQ(ZemFunc493(x, -1, 1, 0, 1, 1, indices, count), -20003) << "the size first";
    EXPECT_EQ(ZemFunc493(x, 3, 1, 0, 1, 1, indices, count), -20013);
    EXPECT_EQ(ZemFunc493(x, 3, 1, -1, 1, 1, indices, count), -20013);
    EXPECT_EQ(ZemFunc493(x, 3, 1, kWidest + 1, 1, 1, indices, count), -20013);
    EXPECT_EQ(count[0], kNoIndex);
    EXPECT_EQ(indices.values(), Found(3, kNoIndex));
    EXPECT_EQ(Feed({{1}, 3}), Found{1}) << "the open run goes on";
}

std::vector<double> Bits(unsigned bits, int n) {
    std::vector<double> x(static_cast<std::size_t>(n));
    for (int i = 0; i < n; ++i) x[static_cast<std::size_t>(i)] = bits >> i & 1;
    return x;
}

// Straight from the meaning: a start is a sample at the level behind one that is not, with enough of them to follow.
Found Expected(const std::vector<double>& x, double threshold, Size width) {
    Found found;
    const Size n = static_cast<Size>(x.size());
    const auto at = [&](Size i) { return i >= 0 && i < n && x[static_cast<std::size_t>(i)] >= threshold; };
    for (Size i = 0; i < n; ++i) {
        bool starts = !at(i - 1);
        for (Size k = 0; k < width; ++k) starts = starts && at(i + k);
        if (starts) found.push_back(i);
    }
    return found;
}

TEST(PeakThresholdRuns, FindsAllRunsOfEveryShortSignal) {
    for (int n = 2; n <= 10; ++n)
        for (unsigned bits = 0; bits < 1u << n; ++bits)
            for (Size width = 1; width < n; ++width) {
                const std::vector<double> x = Bits(bits, n);
                ASSERT_EQ(Runs(Reals(x), 1, width), Expected(x, 1, width)) << bits << " of " << n << ", " << width;
            }
}

// Each call takes the lock of the thread states, which is dear under Wine: there a quarter of a million calls must do.
#ifdef _WIN32
constexpr int kLongestCut = 7;
#else
constexpr int kLongestCut = 8;
#endif

// Bit k of `cuts` ends a block behind sample k.
TEST_F(PeakThresholdRunsStream, GivesTheSameForEveryWayOfCuttingAShortSignal) {
    for (int n = 1; n <= kLongestCut; ++n)
        for (unsigned bits = 0; bits < 1u << n; ++bits)
            for (Size width = 1; width <= n; ++width) {
                const std::vector<double> x = Bits(bits, n);
                const Found whole = Expected(x, 1, width);
                for (unsigned cuts = 0; cuts < 1u << (n - 1); ++cuts) {
                    Size found[8], count = 0, total = 0;
                    int start = 0;
                    for (int end = 1; end <= n; ++end) {
                        if (end < n && !(cuts >> (end - 1) & 1)) continue;
                        ASSERT_EQ(ZemFunc493(x.data() + start, end - start, 1, width, start == 0, end == n,
                                             found + total, &count),
                                  0);
                        total += count;
                        start = end;
                    }
                    ASSERT_EQ(Found(found, found + total), whole)
                        << bits << " of " << n << ", " << width << ", " << cuts;
                }
            }
}

TEST_F(PeakThresholdRunsStream, GivesTheSameForRandomCutsOfALongSignal) {
    std::mt19937 engine(7);
    for (int round = 0; round < 50; ++round) {
        // A random walk: runs of every length.
        std::vector<double> x(2000);
        double level = 0;
        for (double& v : x) v = level += std::uniform_int_distribution<int>(-1, 1)(engine);
        const Size width = std::uniform_int_distribution<int>(1, 40)(engine);
        Found joined;
        std::size_t start = 0;
        for (bool first = true; start < x.size() || first; first = false) {
            const std::size_t rest = x.size() - start;
            const std::size_t length = std::min<std::size_t>(rest, std::uniform_int_distribution<int>(0, 90)(engine));
            const std::vector<double> block(x.begin() + start, x.begin() + start + length);
            const Found found = Feed({block, width, first, length == rest, 0});
            joined.insert(joined.end(), found.begin(), found.end());
            start += length;
        }
        ASSERT_EQ(joined, Expected(x, 0, width)) << round;
    }
}

}  // namespace
}  // namespace quorvan::testing

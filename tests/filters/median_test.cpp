// The running median.
#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

#include "quorvan/quorvan.h"
#include "tests/support/failing_heap.h"
#include "tests/support/guarded.h"

namespace quorvan::testing {
namespace {

Reals Median(const Reals& x, int left, int right) {
    Reals y = Output(x.size());
    EXPECT_EQ(ZemFunc407(x, x.size(), left, right, y), 0);
    return y;
}

// NaN below all numbers.
bool Below(double a, double b) { return std::isnan(a) ? !std::isnan(b) : a < b; }

double MedianOf(std::vector<double> window) {
    std::sort(window.begin(), window.end(), Below);
    const std::size_t middle = window.size() / 2;
    return window.size() % 2 ? window[middle] : (window[middle - 1] + window[middle]) / 2;
}

void ExpectMedians(const Reals& x, int left, int right) {
    const Reals y = Median(x, left, right);
    for (int t = 0; t < int(x.size()); ++t) {
        std::vector<double> window;
        for (int i = t - left; i <= t + right; ++i) window.push_back(i < 0 || i >= int(x.size()) ? 0.0 : x[i]);
        const double expected = MedianOf(window);
        EXPECT_TRUE(y[t] == expected || (std::isnan(y[t]) && std::isnan(expected)))
            << "window " << left << ", " << right << " at " << t << ": " << y[t] << " for " << expected;
    }
}

TEST(FilterMedian, ANegativeRightRankStandsForTheLeftOne) {
    const Reals x{5, 1, 4, 2};
    const Reals y = Median(x, 1, -1);
    EXPECT_EQ(y[0], 1) << "the median of 0, 5 and 1";
    EXPECT_EQ(y.values(), Median(x, 1, 1).values());
    EXPECT_EQ(y.values(), (std::vector<double>{1, 4, 2, 2}));
    EXPECT_EQ(Median(x, 1, -7).values(), y.values());
}

TEST(FilterMedian, OfAnEvenWindowIsTheMeanOfTheTwoMiddleValues) {
    EXPECT_EQ(Median({4, 8, 1}, 1, 0).values(), (std::vector<double>{2, 6, 4.5}));
}

TEST(FilterMedian, IsTheMedianOfEveryWindow) {
    for (int left : {0, 1, 2, 5, 17, 60})
        for (int right : {0, 1, 3, 16, 29})
            for (int n : {30, 31, 100}) ExpectMedians(RandomReals(n, n), left, right);
}

TEST(FilterMedian, HoldsWithManyEqualValues) {
    for (unsigned seed = 1; seed < 20; ++seed) {
        Reals x = RandomReals(60, seed);
        for (double& v : x) v = std::floor(3 * v);
        ExpectMedians(x, int(seed % 5), int(seed % 7));
    }
}

TEST(FilterMedian, NaNSortsToTheFrontOfTheWindowAndLeavesItAgain) {
    Reals x = RandomReals(40);
    for (int at : {0, 3, 4, 20, 21, 22, 39}) x[at] = kNaN;
    for (int left : {0, 1, 2, 6})
        for (int right : {0, 1, 3, 5}) ExpectMedians(x, left, right);
    const Reals y = Median({1, kNaN, 3, 4, 5}, 1, 1);
    EXPECT_EQ(y[1], 1) << "of NaN, 1, 3";
    EXPECT_EQ(y[3], 4);
}

TEST(FilterMedian, AnEqualValueComesBehindTheFirstOneAndBeforeTheOthers) {
    // The window -0.0, 0.0 of the start; then 0.0 enters behind the front value, and so on: seen in the sign bits.
    const Reals y = Median({-0.0, 0.0, 0.0, -0.0}, 0, 2);
    EXPECT_FALSE(std::signbit(y[0]));
}

TEST(FilterMedian, WithBothRanksZeroCopies) {
    const Reals x = RandomReals(5);
    EXPECT_EQ(Median(x, 0, 0).values(), x.values());
    EXPECT_EQ(Median(x, 0, -1).values(), x.values());
    Reals same = x;
    EXPECT_EQ(ZemFunc407(same, 5, 0, 0, same), 0);
    EXPECT_EQ(same.values(), x.values());
}

TEST(FilterMedian, OfNoSamplesSucceeds) {
    Reals x(0), y = Output(1);
    EXPECT_EQ(ZemFunc407(x, 0, 3, 9, y), 0);
    EXPECT_TRUE(Untouched(y));
}

TEST(FilterMedian, WorksInPlace) {
    for (int left : {0, 1, 4, 50})
        for (int right : {0, 1, 7}) {
            Reals x = RandomReals(64);
            const Reals y = Median(x, left, right);
            EXPECT_EQ(ZemFunc407(x, 64, left, right, x), 0);
            EXPECT_EQ(x.values(), y.values()) << left << ' ' << right;
        }
}

TEST(FilterMedian, ChecksStandInOrder) {
    const Reals x(4, 1);
    Reals y = Output(4);
    EXPECT_EQ(ZemFunc407(x, kTooLarge, -1, 0, y), -20046);
    EXPECT_EQ(ZemFunc407(x, -1, -1, 0, y), -20003);
    EXPECT_EQ(ZemFunc407(x, 4, -1, 9, y), -20032);
    EXPECT_EQ(ZemFunc407(x, 4, -1, -1, y), -20032);
    EXPECT_EQ(ZemFunc407(x, 0, -1, 0, y), -20032);
    EXPECT_EQ(ZemFunc407(x, 4, 0, 4, y), -20008);
    EXPECT_EQ(ZemFunc407(x, 4, 4, -1, y), -20008) << "the right rank that stands for the left one counts";
    EXPECT_EQ(ZemFunc407(x, 4, INT32_MAX, 0, y), -20046) << "a window beyond the counts";
    EXPECT_TRUE(Untouched(y));
}

TEST(FilterMedian, EveryAllocationFails) {
    const Reals x(10, 1);
    Reals y(10);
    ExpectEveryAllocationFails([&] { return ZemFunc407(x, 10, 2, 2, y); });
}

}  // namespace
}  // namespace quorvan::testing

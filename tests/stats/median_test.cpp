// The median.
#include <algorithm>
#include <cmath>
#include <functional>
#include <gtest/gtest.h>

#include "quorvan/quorvan.h"
#include "tests/support/failing_heap.h"
#include "tests/support/guarded.h"

namespace quorvan::testing {
namespace {

double Median(const Reals& x) {
    Reals out = Output(1);
    const Reals before = x;
    EXPECT_EQ(ZemFunc123(x, static_cast<Size>(x.size()), out), 0);
    EXPECT_EQ(x.values(), before.values()) << "the input has changed";
    return out[0];
}

double MedianBySorting(const Reals& x) {
    std::vector<double> sorted = x.values();
    std::sort(sorted.begin(), sorted.end());
    const std::size_t k = sorted.size() / 2;
    return sorted.size() % 2 ? sorted[k] : (sorted[k - 1] + sorted[k]) / 2;
}

TEST(StatMedian, OfThreeIsTheMiddleAndOfFourTheMeanOfTheMiddleTwo) {
    EXPECT_EQ(Median({3, 1, 2}), 2);
    EXPECT_EQ(Median({4, 1, 3, 2}), 2.5);
    EXPECT_EQ(Median({5}), 5);
    EXPECT_EQ(Median({5, 2}), 3.5);
}

TEST(StatMedian, AgreesWithSortingOverManySizesAndSeeds) {
    for (int n = 1; n < 200; ++n)
        for (unsigned seed = 1; seed < 20; ++seed) {
            const Reals x = RandomReals(n, seed);
            ASSERT_EQ(Median(x), MedianBySorting(x)) << n << " samples, seed " << seed;
        }
}

TEST(StatMedian, AgreesWithSortingWhereValuesRepeat) {
    for (int n = 1; n < 200; ++n)
        for (int values : {1, 2, 3, 7}) {
            Reals x = RandomReals(n, n);
            for (double& v : x) v = std::floor(v * values);
            ASSERT_EQ(Median(x), MedianBySorting(x)) << n << " samples of " << values << " values";
        }
}

TEST(StatMedian, AgreesWithSortingOnPatternedInput) {
    const std::function<double(int, int)> patterns[] = {
        [](int i, int) { return i; },
        [](int i, int n) { return n - i; },
        [](int i, int n) { return std::min(i, n - i); },
        [](int i, int n) { return -std::min(i, n - i); },
        [](int i, int) { return i % 2 ? i : -i; },
        [](int i, int) { return std::sin(0.01 * i); },
    };
    for (const auto& pattern : patterns)
        for (int n : {2, 3, 100, 1001, 20000}) {
            Reals x(n);
            for (int i = 0; i < n; ++i) x[i] = pattern(i, n);
            EXPECT_EQ(Median(x), MedianBySorting(x));
        }
}

// Made so that the median of first, middle and last always is the second smallest (D. R. Musser, Introspective sorting
// and selection algorithms, 1997): a selection that only narrows would take half a million rounds through all of it.
TEST(StatMedian, SurvivesInputMadeAgainstMedianOfThree) {
    const int k = 1000000;
    Reals x(2 * k + 1, 1e9);
    for (int i = 1; i <= k; ++i) {
        if (i % 2) {
            x[i - 1] = i;
            x[i] = k + i;
        }
        x[k + i - 1] = 2 * i;
    }
    EXPECT_EQ(Median(x), MedianBySorting(x));
}

TEST(StatMedian, TakesInfinitiesAsOrdinaryValues) {
    EXPECT_EQ(Median({kInf, 1, -kInf}), 1);
    EXPECT_EQ(Median({kInf, kInf, 1}), kInf);
    EXPECT_TRUE(std::isnan(Median({kInf, -kInf})));
}

TEST(StatMedian, TellsNanByAStatusAndByNan) {
    for (int at : {0, 1, 4}) {
        Reals x{1, 2, 3, 4, 5}, median = Output(1);
        x[at] = kNaN;
        EXPECT_EQ(ZemFunc123(x, 5, median), -20104);
        EXPECT_TRUE(std::isnan(median[0]));
    }
}

TEST(StatMedian, TestsForNanBeforeItTakesMemory) {
    const Reals x{1, kNaN};
    Reals median = Output(1);
    FailAllocation(0);
    EXPECT_EQ(ZemFunc123(x, 2, median), -20104);
    FailAllocation(-1);
}

TEST(StatMedian, RefusesSizesAndTouchesNothing) {
    const Reals x{kNaN};
    Reals median = Output(1);
    EXPECT_EQ(ZemFunc123(x, 0, median), -20003);
    EXPECT_EQ(ZemFunc123(x, -1, median), -20003);
    EXPECT_EQ(ZemFunc123(x, kTooLarge, median), -20046);
    EXPECT_TRUE(Untouched(median));
}

TEST(StatMedian, TellsExhaustedMemory) {
    const Reals x = RandomReals(100);
    ExpectEveryAllocationFails([&] {
        double median;
        return ZemFunc123(x, 100, &median);
    });
}

}  // namespace
}  // namespace quorvan::testing

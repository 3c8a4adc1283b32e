// Histograms, the fullest bin, and all modes.
#include <cmath>
#include <gtest/gtest.h>
#include <numeric>

#include "quorvan/quorvan.h"
#include "tests/support/failing_heap.h"
#include "tests/support/guarded.h"

namespace quorvan::testing {
namespace {

using Counts = Guarded<Size>;
constexpr Size kNoCount = -77;

std::vector<Size> Histogram(const Reals& x, double base, double top, Size intervals) {
    Counts counts(intervals, kNoCount);
    Reals centres = Output(intervals);
    EXPECT_EQ(ZemFunc90(x, static_cast<Size>(x.size()), base, top, counts, centres, intervals), 0);
    return counts.values();
}

using Bins = std::vector<Size>;

TEST(StatHistogram, CountsOverBinsThatAreClosedBelowAndOpenAbove) {
    EXPECT_EQ(Histogram({0, 0.5, 1, 1.5, 1.999, 2, 3.5}, 0, 4, 4), (Bins{2, 3, 1, 1}));
}

TEST(StatHistogram, PutsTheTopIntoTheLastBinAndDropsWhatLiesOutside) {
    EXPECT_EQ(Histogram({4}, 0, 4, 4), (Bins{0, 0, 0, 1}));
    EXPECT_EQ(Histogram({std::nextafter(1.0, 0)}, 1, 4, 3), (Bins{0, 0, 0}));
    EXPECT_EQ(Histogram({1}, 1, 4, 3), (Bins{1, 0, 0}));
    EXPECT_EQ(Histogram({std::nextafter(4.0, 5), -kInf, kInf, kNaN, 1e300, -1e300, 3e9}, 0, 4, 4), (Bins{0, 0, 0, 0}));
}

// Below base by less than a bin the floor is -1, where truncation alone would give 0.
TEST(StatHistogram, DropsSamplesLessThanABinBelowTheBase) {
    EXPECT_EQ(Histogram({-0.5, -1e-300}, 0, 4, 4), (Bins{0, 0, 0, 0}));
}

TEST(StatHistogram, DropsSamplesThatRoundBehindTheLastBinUnlessTheyAreTheTop) {
    int found = 0;
    for (int i = 1; i < 200; ++i) {
        const double top = i * 0.1, below = std::nextafter(top, 0);
        for (int m = 1; m < 20; ++m) {
            if (below * (m / top) < m) continue;
            ++found;
            const Bins counts = Histogram({below}, 0, top, m);
            EXPECT_EQ(std::accumulate(counts.begin(), counts.end(), Size{0}), 0);
            EXPECT_EQ(Histogram({top}, 0, top, m)[m - 1], 1);
        }
    }
    EXPECT_GT(found, 0);
}

TEST(StatHistogram, AddsTheWidthFromCentreToCentre) {
    Counts counts(10);
    Reals centres = Output(10);
    ASSERT_EQ(ZemFunc90(Reals{0}, 1, 0.0, 1.0, counts, centres, 10), 0);
    double expected = 0.05;
    bool differs = false;
    for (int k = 0; k < 10; ++k, expected += 0.1) {
        EXPECT_TRUE(SameBits(centres[k], expected)) << k;
        differs |= expected != 0.05 + k * 0.1;
    }
    EXPECT_TRUE(differs) << "this case would not tell a running addition from a product";
}

TEST(StatHistogram, WithAnEmptyRangePutsAllSamplesIntoTheLastBin) {
    Counts counts(3, kNoCount);
    Reals centres = Output(3);
    EXPECT_EQ(ZemFunc90(Reals{1, 2, kNaN, -kInf}, 4, 7, 7, counts, centres, 3), 0);
    EXPECT_EQ(counts.values(), (Bins{0, 0, 4}));
    EXPECT_EQ(centres.values(), (std::vector<double>{7, 7, 7}));
}

TEST(StatHistogram, WithNanForALimitDropsEverything) {
    Counts counts(2, kNoCount);
    Reals centres = Output(2);
    EXPECT_EQ(ZemFunc90(Reals{1, 2}, 2, kNaN, 3, counts, centres, 2), 0);
    EXPECT_EQ(counts.values(), (Bins{0, 0}));
    EXPECT_TRUE(std::isnan(centres[0]) && std::isnan(centres[1]));
    EXPECT_EQ(Histogram({1, 2}, 0, kNaN, 2), (Bins{0, 0}));
}

TEST(StatHistogram, KeepsTheCountsToItselfWhenTheirArrayIsNull) {
    Reals centres = Output(2);
    EXPECT_EQ(ZemFunc90(Reals{1, 2}, 2, 0, 4, nullptr, centres, 2), 0);
    EXPECT_EQ(centres.values(), (std::vector<double>{1, 3}));
    EXPECT_EQ(ZemFunc90(Reals{1, 2}, 2, 4, 4, nullptr, centres, 2), 0);
    EXPECT_EQ(centres.values(), (std::vector<double>{4, 4}));
}

TEST(StatHistogram, TestsTheLimitsThenTheCountThenTheIntervals) {
    const Reals x{1};
    Counts counts(1, kNoCount);
    Reals centres = Output(1);
    EXPECT_EQ(ZemFunc90(x, kTooLarge, 2, 1, counts, centres, 0), -20046);
    EXPECT_EQ(ZemFunc90(x, 1, 2, 1, counts, centres, kTooLarge), -20046);
    EXPECT_EQ(ZemFunc90(x, 0, 2, 1, counts, centres, 0), -20101);
    EXPECT_EQ(ZemFunc90(x, 0, 1, 2, counts, centres, 1), -20003);
    EXPECT_EQ(ZemFunc90(x, 1, 1, 2, counts, centres, 0), -20003);
    EXPECT_EQ(ZemFunc90(x, 1, 1, 2, counts, centres, -1), -20003);
    EXPECT_EQ(ZemFunc90(x, -1, 1, 1, counts, centres, 1), -20003);
    EXPECT_TRUE(Untouched(centres));
    EXPECT_EQ(counts[0], kNoCount);
}

TEST(StatHistogram, TellsExhaustedMemoryAfterItsOwnChecks) {
    const Reals x = RandomReals(50);
    Counts counts(8);
    Reals centres(8);
    ExpectEveryAllocationFails([&] { return ZemFunc90(x, 50, -1, 1, counts, centres, 8); });
    FailAllocation(0);
    EXPECT_EQ(ZemFunc90(x, 50, 1, -1, counts, centres, 8), -20101);
    FailAllocation(-1);
}

TEST(StatModeOfHistogram, IsTheCentreOfTheFirstOfTheFullestBins) {
    Reals mode = Output(1);
    EXPECT_EQ(ZemFunc124(Reals{0.1, 1.1, 1.2, 3.1, 3.2}, 5, 0, 4, 4, mode), 0);
    EXPECT_EQ(mode[0], 1.5);
    EXPECT_EQ(ZemFunc124(Reals{3.1}, 1, 0, 4, 4, mode), 0);
    EXPECT_EQ(mode[0], 3.5);
}

TEST(StatModeOfHistogram, IsTheFirstCentreWhenAllBinsAreEmpty) {
    Reals mode = Output(1);
    EXPECT_EQ(ZemFunc124(Reals{9, 10}, 2, 0, 4, 4, mode), 0);
    EXPECT_EQ(mode[0], 0.5);
}

TEST(StatModeOfHistogram, TestsTheIntervalsThenTheLimitsThenTheCount) {
    const Reals x{1};
    Reals mode = Output(1);
    EXPECT_EQ(ZemFunc124(x, kTooLarge, 2, 1, 0, mode), -20046);
    EXPECT_EQ(ZemFunc124(x, 1, 2, 1, -kTooLarge - 1, mode), -20046);
    EXPECT_EQ(ZemFunc124(x, 1, 2, 1, 0, mode), -20003);
    EXPECT_EQ(ZemFunc124(x, 0, 2, 1, 1, mode), -20101);
    EXPECT_EQ(ZemFunc124(x, 0, 1, 2, 1, mode), -20003);
    EXPECT_TRUE(Untouched(mode));
}

TEST(StatModeOfHistogram, TellsExhaustedMemory) {
    const Reals x = RandomReals(50);
    ExpectEveryAllocationFails([&] {
        double mode;
        return ZemFunc124(x, 50, -1, 1, 8, &mode);
    });
}

// Room for `capacity` modes; the number found is checked against `found`.
std::vector<double> Modes(const Reals& x, Size intervals, Size capacity, Size found) {
    Reals modes = Output(capacity);
    Counts count{capacity};
    EXPECT_EQ(ZemFunc340(x, static_cast<Size>(x.size()), intervals, modes, count), 0);
    EXPECT_EQ(count[0], found);
    std::vector<double> written = modes.values();
    for (Size i = found; i < capacity; ++i) EXPECT_EQ(written[i], kUnwritten);
    if (found < capacity) written.resize(found);
    return written;
}

using Values = std::vector<double>;

TEST(StatModes, FindsAllValuesThatOccurMostOften) {
    EXPECT_EQ(Modes({1, 2, 2, 3, 3}, 0, 5, 2), (Values{2, 3}));
    EXPECT_EQ(Modes({3, 2, 3, 1, 2}, -1, 5, 2), (Values{2, 3}));
    EXPECT_EQ(Modes({3, 2, 3, 1, 2, 2}, 0, 5, 1), (Values{2}));
    EXPECT_EQ(Modes({5, 5, 1, 1, 5, 1, 2, 2}, 0, 5, 2), (Values{1, 5}));
}

TEST(StatModes, FindsNoneAmongDistinctValuesOrInASingleOne) {
    EXPECT_EQ(Modes({3, 1, 2}, 0, 5, 0), Values{});
    EXPECT_EQ(Modes({3}, 0, 5, 0), Values{});
    EXPECT_EQ(Modes({3}, 4, 5, 0), Values{});
}

TEST(StatModes, WritesWhatFitsAndTellsHowManyThereAre) {
    EXPECT_EQ(Modes({1, 2, 2, 3, 3}, 0, 1, 2), (Values{2}));
    EXPECT_EQ(Modes({1, 2, 2, 3, 3}, 0, 0, 2), Values{});
    EXPECT_EQ(Modes({0, 0, 1, 4, 4}, 4, 1, 2), (Values{0.5}));
    Counts count{-5};
    EXPECT_EQ(ZemFunc340(Reals{1, 2, 2, 3, 3}, 5, 0, nullptr, count), 0);
    EXPECT_EQ(count[0], 2);
}

TEST(StatModes, TakesTheOneValueOfEqualData) {
    EXPECT_EQ(Modes({7, 7}, 0, 5, 1), (Values{7}));
    EXPECT_EQ(Modes({-7, -7, -7}, 3, 5, 1), (Values{-7}));
    EXPECT_EQ(Modes({0, 0}, 0, 5, 1), (Values{0}));
    const double next = std::nextafter(1.0, 2);
    EXPECT_EQ(Modes({next, 1}, 0, 5, 1), (Values{1}));
    EXPECT_EQ(Modes({1, next}, 3, 5, 1), (Values{next}));
}

// a, a + 1 ulp, a + 2 ulp with a = 1: the second nearly equals the first, the third only the second.
TEST(StatModes, ComparesWithTheStartOfARunAndTakesItsFirstValue) {
    const double a = 1, b = std::nextafter(a, 2), c = std::nextafter(b, 2);
    EXPECT_EQ(Modes({c, b, a, 9}, 0, 5, 1), (Values{a}));
    EXPECT_EQ(Modes({b, a, c, c, 9}, 0, 5, 2), (Values{a, c}));
}

TEST(StatModes, NeverTakesNanAsEqual) {
    EXPECT_EQ(Modes({kNaN, kNaN, kNaN, 1, 1, 2}, 0, 5, 1), (Values{1}));
    EXPECT_EQ(Modes({kNaN, kNaN}, 0, 5, 0), Values{});
    EXPECT_EQ(Modes({kNaN, kNaN}, 3, 5, 0), Values{});
    EXPECT_EQ(Modes({kNaN, 0, 0, 4}, 4, 5, 1), (Values{0.5}));
}

TEST(StatModes, OfBinsAreTheCentresOfTheFullest) {
    EXPECT_EQ(Modes({0, 0.5, 1.5, 3.5, 4}, 4, 5, 2), (Values{0.5, 3.5}));
    EXPECT_EQ(Modes({0, 0.5, 0.6, 3.5, 4}, 4, 5, 1), (Values{0.5}));
    EXPECT_EQ(Modes({0, 1, 2, 4}, 4, 5, 0), Values{});
}

TEST(StatModes, ClearsTheCountOnEveryFailureButASizeThatDoesNotFit) {
    const Reals x{1, 2, 2};
    Reals modes = Output(3);
    Counts count{3};
    EXPECT_EQ(ZemFunc340(x, kTooLarge, 0, modes, count), -20046);
    EXPECT_EQ(ZemFunc340(x, 3, kTooLarge, modes, count), -20046);
    EXPECT_EQ(count[0], 3);
    count[0] = kTooLarge;
    EXPECT_EQ(ZemFunc340(x, 3, 0, modes, count), -20046);
    EXPECT_EQ(count[0], kTooLarge);
    for (Size n : {0, -1}) {
        count[0] = 3;
        EXPECT_EQ(ZemFunc340(x, n, 0, modes, count), -20003);
        EXPECT_EQ(count[0], 0);
    }
    for (Size intervals : {0, 4}) {
        count[0] = 3;
        FailAllocation(0);
        EXPECT_EQ(ZemFunc340(x, 3, intervals, modes, count), -20001);
        FailAllocation(-1);
        EXPECT_EQ(count[0], 0);
    }
    EXPECT_TRUE(Untouched(modes));
}

TEST(StatModes, TellsExhaustedMemory) {
    const Reals x = RandomReals(50);
    for (Size intervals : {0, 8})
        ExpectEveryAllocationFails([&] {
            Size count = 0;
            return ZemFunc340(x, 50, intervals, nullptr, &count);
        });
}

}  // namespace
}  // namespace quorvan::testing

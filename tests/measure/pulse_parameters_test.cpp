// Levels and timing of a single pulse.
#include <cmath>
#include <gtest/gtest.h>

#include "quorvan/quorvan.h"
#include "tests/support/failing_heap.h"
#include "tests/support/guarded.h"

namespace quorvan::testing {
namespace {

struct Levels {
    double amplitude, level90, level50, level10, top, base, overshoot, undershoot;
    bool operator==(const Levels&) const = default;
};
struct Times {
    Size delay, width, rise, fall;
    bool operator==(const Times&) const = default;
};
struct Shape {
    Status status;
    Levels levels;
    Times times;
    double slew;
};

constexpr Size kNoTime = -77;

Shape Measure(const std::vector<double>& samples) {
    const Reals x(samples);
    Reals amplitude = Output(1), level90 = Output(1), level50 = Output(1), level10 = Output(1), top = Output(1);
    Reals base = Output(1), overshoot = Output(1), undershoot = Output(1), slew = Output(1);
    Guarded<Size> delay{kNoTime}, width{kNoTime}, rise{kNoTime}, fall{kNoTime};
    const Status status = ZemFunc142(x, static_cast<Size>(x.size()), amplitude, level90, level50, level10, top, base,
                                     overshoot, undershoot, delay, width, rise, fall, slew);
    return {status,
            {amplitude[0], level90[0], level50[0], level10[0], top[0], base[0], overshoot[0], undershoot[0]},
            {delay[0], width[0], rise[0], fall[0]},
            slew[0]};
}

// From 0 to 101 the 101 bins are 1 wide, and every level is exact: base 0.5, top 100.5, amplitude 100, and 10.5, 50.5
// and 90.5 in between.
constexpr double kTop = 101;
constexpr Levels kFull{100, 90.5, 50.5, 10.5, 100.5, 0.5, 0.5, 0.5};

TEST(PulseParameters, LevelsAreTheCentresOfTheFullestBins) {
    EXPECT_EQ(Measure({0, 0, kTop, kTop, 0, 0}).levels, kFull);
    const Shape step = Measure({0, 0, 1, 1});
    EXPECT_EQ(step.status, 0);
    EXPECT_NEAR(step.levels.base, 0.5 / 101, kEpsilon);
    EXPECT_NEAR(step.levels.top, 1 - 0.5 / 101, 101 * kEpsilon) << "the centres are added up";
    EXPECT_NEAR(step.levels.level50, 0.5, 101 * kEpsilon);
    EXPECT_EQ(step.times.delay, 1) << "1.5, truncated";
}

TEST(PulseParameters, LooksForEachLevelFromItsEnd) {
    // 20 three times and 80 twice; 0 and 101 once.
    const Levels found = Measure({0, 20.5, 20.5, 20.5, 80.5, 80.5, kTop, 20.25}).levels;
    EXPECT_EQ(found, (Levels{60, 74.5, 50.5, 26.5, 80.5, 20.5, 20.5, 20.5}));
}

TEST(PulseParameters, TakesTheOutermostOfEquallyFullBins) {
    EXPECT_EQ(Measure({0, 20.5, 30.5, 50.5, 70.5, 80.5, kTop}).levels, kFull);
    EXPECT_EQ(Measure({0, 20.5, 20.25, 30.5, 30.25, 70.5, 70.25, 80.5, 80.25, kTop}).levels.base, 20.5);
    EXPECT_EQ(Measure({0, 20.5, 20.25, 30.5, 30.25, 70.5, 70.25, 80.5, 80.25, kTop}).levels.top, 80.5);
}

TEST(PulseParameters, CountsTheBinInTheMiddleForTheTopOnly) {
    const Levels found = Measure({0, 50.5, 50.5, 50.5, kTop}).levels;
    EXPECT_EQ(found.base, 0.5);
    EXPECT_EQ(found.top, 50.5);
    EXPECT_EQ(Measure({0, 49.5, 49.5, kTop}).levels.base, 49.5);
    EXPECT_EQ(Measure({0, 49.5, 49.5, kTop}).levels.top, 100.5);
    EXPECT_EQ(Measure({0, 51.5, 51.5, kTop}).levels.top, 51.5);
    EXPECT_EQ(Measure({0, 51.5, 51.5, kTop}).levels.base, 0.5);
}

TEST(PulseParameters, TimesAPulseBetweenItsCrossings) {
    // Up at 2 + 50.5 / 101 = 2.5 and down at 8.5. From 10.5 to 90.5 an edge takes 80 / 101.
    const Shape pulse = Measure({0, 0, 0, kTop, kTop, kTop, kTop, kTop, kTop, 0, 0, 0});
    EXPECT_EQ(pulse.status, 0);
    EXPECT_EQ(pulse.levels, kFull);
    EXPECT_EQ(pulse.times, (Times{2, 6, 0, 0}));
    EXPECT_NEAR(pulse.slew, 101, 101 * 8 * kEpsilon) << "from the rise before it is truncated";
}

TEST(PulseParameters, MeasuresSlowEdges) {
    // Rising by 5 and falling by 4 a sample: 80 percent take 16 and 20 samples.
    std::vector<double> x(10, 0.0);
    for (int k = 1; k <= 20; ++k) x.push_back(5 * k + 0.5);
    x.insert(x.end(), 30, kTop);
    for (int k = 1; k <= 25; ++k) x.push_back(kTop - 4 * k);
    x.insert(x.end(), 20, 0.0);
    const Shape pulse = Measure(x);
    EXPECT_EQ(pulse.status, 0);
    EXPECT_EQ(pulse.levels, kFull);
    // level10 is met at sample 11, level50 at 19 and level90 at 27; on the way down at 59 + 50.5 / 4.
    EXPECT_EQ(pulse.times, (Times{19, 52, 16, 20}));
    EXPECT_EQ(pulse.slew, 5);
}

TEST(PulseParameters, OfAPulseThatGoesDownAreTakenUpsideDown) {
    const Shape pulse = Measure({kTop, kTop, kTop, kTop, 0, 0, 0, kTop, kTop});
    EXPECT_EQ(pulse.status, 0);
    EXPECT_EQ(pulse.levels, (Levels{-100, 90.5, 50.5, 10.5, 0.5, 100.5, 0.5, 0.5}));
    EXPECT_EQ(pulse.times, (Times{3, 3, 0, 0}));
    EXPECT_NEAR(pulse.slew, -101, 101 * 8 * kEpsilon);

    const Shape least = Measure({1, 0, 0, 1});
    EXPECT_EQ(least.status, 0);
    EXPECT_EQ(least.times, (Times{0, 2, 0, 2})) << "delay 0.5, and the last sample is no crossing";
    EXPECT_LT(least.levels.amplitude, 0);
}

TEST(PulseParameters, MirrorAPulseThatGoesUp) {
    std::vector<double> x{0, 3, 7, 40, 60, 95, 101, 101, 101, 70, 20, 8, 0, 0, 0}, mirrored;
    for (double v : x) mirrored.push_back(kTop - v);
    const Shape up = Measure(x), down = Measure(mirrored);
    EXPECT_EQ(up.status, 0);
    EXPECT_EQ(down.times, up.times);
    EXPECT_NEAR(down.slew, -up.slew, std::abs(up.slew) * 8 * kEpsilon);
    EXPECT_EQ(up.times, (Times{3, 5, 2, 2}));
}

TEST(PulseParameters, NeverTakeTheLastSampleAsACrossing) {
    const Shape never = Measure({0, 0, 0, kTop});
    EXPECT_EQ(never.status, 0);
    EXPECT_EQ(never.times, (Times{3, 0, 2, 4})) << "the rise from sample 2 on, the fall from the start";
    EXPECT_EQ(never.slew, 0.8 * 100 / 2);
    // The top lasts to the end.
    EXPECT_EQ(Measure({0, 0, 0, kTop, kTop, kTop}).times, (Times{2, 2, 0, 2}));
    EXPECT_EQ(Measure({0, 0, 0, kTop, kTop, 0}).times, (Times{2, 2, 0, 2}));
}

TEST(PulseParameters, OfARecordThatBeginsAtTheMiddleHaveNoDelay) {
    const Shape pulse = Measure({50.5, 0, 0, kTop, kTop, 0});
    EXPECT_EQ(pulse.status, 0);
    EXPECT_EQ(pulse.levels, kFull);
    // The rise runs from the line between the first two samples, at 1 - 10.5 / 50.5, to 3 - 10.5 / 101.
    EXPECT_EQ(pulse.times, (Times{0, 5, 2, 2}));
}

TEST(PulseParameters, TakeASlewRateOf1e30ForARiseOfNoTime) {
    // The line through the first two samples meets the low level at 2, where the next sample is on the high level.
    const Shape pulse = Measure({20.5, 15.5, 90.5, kTop, kTop, 0, 0});
    EXPECT_EQ(pulse.status, 0);
    EXPECT_EQ(pulse.levels, kFull);
    EXPECT_EQ(pulse.times, (Times{1, 3, 0, 0}));
    EXPECT_EQ(pulse.slew, 1e30);
}

TEST(PulseParameters, HaveNoTimesWithoutACrossingWithinTheRecord) {
    // The first two samples are on a slow line: the low level lies 19.5 samples before the record.
    const Shape slow = Measure({30, 31, kTop, kTop, 0, 0});
    EXPECT_EQ(slow.status, -20116);
    EXPECT_EQ(slow.times, (Times{0, 0, 0, 0}));
    EXPECT_EQ(slow.levels, kFull);
    EXPECT_GT(slow.slew, 0) << "as the formula gives";
    const Shape level = Measure({30, 30, kTop, kTop, 0, 0});
    EXPECT_EQ(level.status, -20116);
    EXPECT_EQ(level.times, (Times{0, 0, 0, 0}));
}

TEST(PulseParameters, OfAConstantSignalAreLevelsWithoutTimes) {
    for (std::size_t n : {1, 2, 3, 10}) {
        const Shape constant = Measure(std::vector<double>(n, -2.5));
        EXPECT_EQ(constant.status, -20116);
        EXPECT_EQ(constant.levels, (Levels{0, -2.5, -2.5, -2.5, -2.5, -2.5, 0, 0}));
        EXPECT_EQ(constant.times, (Times{0, 0, 0, 0}));
    }
}

TEST(PulseParameters, PassOverNanBehindTheFirstSample) {
    EXPECT_EQ(Measure({0, 0, 0, kTop, kTop, kNaN, kTop, 0, 0}).levels, kFull);
    const Shape first = Measure({kNaN, 0, kTop, kTop, 0});
    EXPECT_EQ(first.status, -20116);
    EXPECT_TRUE(std::isnan(first.levels.base) && std::isnan(first.levels.overshoot));
    EXPECT_EQ(first.times, (Times{0, 0, 0, 0}));
}

TEST(PulseParameters, OfTwoSamples) {
    EXPECT_EQ(Measure({0, kTop}).times, (Times{1, 0, 2, 2}));
    EXPECT_EQ(Measure({kTop, 0}).times, (Times{1, 0, 2, 2}));
}

TEST(PulseParameters, RefuseSizesAndTouchNothing) {
    const Reals x{0, 1};
    Reals o = Output(9);
    Guarded<Size> times{kNoTime, kNoTime, kNoTime, kNoTime};
    const auto call = [&](Size n) {
        return ZemFunc142(x, n, o, o + 1, o + 2, o + 3, o + 4, o + 5, o + 6, o + 7, times, times + 1, times + 2,
                          times + 3, o + 8);
    };
    EXPECT_EQ(call(0), -20003);
    EXPECT_EQ(call(-1), -20003);
    EXPECT_EQ(call(kTooLarge), -20046);
    EXPECT_TRUE(Untouched(o));
    EXPECT_EQ(times.values(), std::vector<Size>(4, kNoTime));
}

TEST(PulseParameters, NeedNoMemory) {
    FailAllocation(0);
    EXPECT_EQ(Measure({kTop, kTop, 0, 0, kTop}).status, 0);
    EXPECT_EQ(AllocationCount(), 0);
    FailAllocation(-1);
}

}  // namespace
}  // namespace quorvan::testing

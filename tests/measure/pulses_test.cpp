// Timing of one pulse of a train, and averages over a period.
#include <cmath>
#include <gtest/gtest.h>

#include "quorvan/quorvan.h"
#include "tests/support/failing_heap.h"
#include "tests/support/guarded.h"

namespace quorvan::testing {
namespace {

enum Method : std::uint32_t { kHistogram, kPeak, kAutoselect };
enum Polarity : std::int32_t { kAny = -1, kFalling = 0, kRising = 1 };

// References in their order of arrival, and what comes back.
struct References {
    double high, mid, low;
    std::int32_t percent = 0;
    std::uint32_t method = kPeak;
    Size bins = 16;
};
struct Told {
    double low, mid, high;
    bool operator==(const Told& o) const {
        return SameBits(low, o.low) && SameBits(mid, o.mid) && SameBits(high, o.high);
    }
};

struct Timing {
    Status status;
    double period, duration, duty, centre;
    bool operator==(const Timing&) const = default;
};

Timing MeasureFirst(Size n, const Reals& x, std::int32_t polarity, Size cycle, References r, Told* told) {
    Reals high{r.high}, mid{r.mid}, low{r.low};
    Reals period = Output(1), duration = Output(1), duty = Output(1), centre = Output(1);
    Reals lowOut = Output(1), midOut = Output(1), highOut = Output(1);
    const Status status = ZemFunc364(x, n, polarity, cycle, high, mid, low, r.percent, r.method, r.bins, period,
                                     duration, duty, centre, lowOut, midOut, highOut);
    EXPECT_EQ((Told{lowOut[0], midOut[0], highOut[0]}), (Told{low[0], mid[0], high[0]})) << "both tell one thing";
    if (told) *told = {lowOut[0], midOut[0], highOut[0]};
    return {status, period[0], duration[0], duty[0], centre[0]};
}

Timing Measure(const Reals& x, std::int32_t polarity, Size cycle, References r, Told* told = nullptr) {
    return MeasureFirst(static_cast<Size>(x.size()), x, polarity, cycle, r, told);
}

struct Average {
    Status status;
    double mean, rms, start, end;
    bool operator==(const Average&) const = default;
};

Average MeasureAverage(const Reals& x, Size cycle, References r, Told* told = nullptr) {
    Reals high{r.high}, mid{r.mid}, low{r.low};
    Reals mean = Output(1), rms = Output(1), start = Output(1), end = Output(1);
    Reals lowOut = Output(1), midOut = Output(1), highOut = Output(1);
    const Status status = ZemFunc365(x, static_cast<Size>(x.size()), cycle, high, mid, low, r.percent, r.method, r.bins,
                                     mean, rms, start, end, lowOut, midOut, highOut);
    EXPECT_EQ((Told{lowOut[0], midOut[0], highOut[0]}), (Told{low[0], mid[0], high[0]})) << "both tell one thing";
    if (told) *told = {lowOut[0], midOut[0], highOut[0]};
    return {status, mean[0], rms[0], start[0], end[0]};
}

// Runs of 0 and 1 in turn.
std::vector<double> Runs(std::initializer_list<int> lengths, double first = 0) {
    std::vector<double> x;
    double level = first;
    for (int length : lengths) {
        x.insert(x.end(), length, level);
        level = 1 - level;
    }
    return x;
}

constexpr References kHalf{1, 0.5, 0};  // hysteresis 0.5

// Crossings at 1.5, 4.5, 6.5, 10.5 and 13.5, the first of them rising.
const std::vector<double> kTrain = Runs({2, 3, 2, 4, 3, 2});

TEST(PulseCycleTiming, OfAnyPolarityTakesThePulsesInTurn) {
    EXPECT_EQ(Measure(Reals(kTrain), kAny, 1, kHalf), (Timing{0, 5, 3, 3.0 / 5, 3}));
    EXPECT_EQ(Measure(Reals(kTrain), kAny, 2, kHalf), (Timing{0, 7, 4, 4.0 / 7, 8.5}));
}

TEST(PulseCycleTiming, OfOnePolarityKeepsThePeriodOfTheSameTwoCrossings) {
    EXPECT_EQ(Measure(Reals(kTrain), kRising, 1, kHalf), (Timing{0, 5, 3, 3.0 / 5, 3}));
    EXPECT_EQ(Measure(Reals(kTrain), kFalling, 1, kHalf), (Timing{0, 5, 2, 2.0 / 5, 5.5}));
    EXPECT_EQ(Measure(Reals(kTrain), kFalling, 2, kHalf), (Timing{0, 7, 3, 3.0 / 7, 12}));
    const Reals startsHigh(Runs({2, 3, 2, 4, 3, 2}, 1));
    EXPECT_EQ(Measure(startsHigh, kAny, 1, kHalf), (Timing{0, 5, 3, 3.0 / 5, 3}));
    EXPECT_EQ(Measure(startsHigh, kFalling, 1, kHalf), (Timing{0, 5, 3, 3.0 / 5, 3}));
    EXPECT_EQ(Measure(startsHigh, kRising, 1, kHalf), (Timing{0, 5, 2, 2.0 / 5, 5.5}));
}

TEST(PulseCycleTiming, NeedsOneCrossingMoreThanTwoForEachCycle) {
    const Reals two(Runs({2, 3, 2})), three(Runs({2, 3, 2, 1}));
    EXPECT_EQ(Measure(two, kAny, 1, kHalf), (Timing{-20308, 0, 0, 0, 0}));
    EXPECT_EQ(Measure(three, kAny, 1, kHalf).status, 0);
    EXPECT_EQ(Measure(Reals(kTrain), kAny, 3, kHalf).status, -20308);
    EXPECT_EQ(Measure({1}, kAny, 1, kHalf).status, -20308);
    EXPECT_EQ(Measure({0, 1, 0}, kAny, 1, kHalf).status, -20308);
    EXPECT_EQ(Measure({0, 1, 0, 1}, kAny, 1, kHalf), (Timing{0, 2, 1, 0.5, 1})) << "as many as samples allow";
}

TEST(PulseCycleTiming, FindsNoPulseOfAnUnknownPolarity) {
    EXPECT_EQ(Measure(Reals(kTrain), 2, 1, kHalf), (Timing{-20308, 0, 0, 0, 0}));
    EXPECT_EQ(Measure(Reals(kTrain), -2, 1, kHalf), (Timing{-20308, 0, 0, 0, 0}));
}

TEST(PulseCycleTiming, InterpolatesBetweenSamples) {
    // From -1 to 3 the level 0 is met after a quarter, from 3 to -1 after three quarters.
    EXPECT_EQ(Measure({-1, 3, -1, 3}, kAny, 1, {0.5, 0, -0.5}), (Timing{0, 2, 1.5, 0.75, 1}));
}

// The hysteresis is 0.25, the smaller distance.
constexpr References kNarrow{0.75, 0.5, 0};

TEST(PulseCycleTiming, CountsACrossingOnceUntilTheSignalHasPassedTheHysteresis) {
    // Crossings at 0.75, 4.5 and 5.5, with ripple across the middle in between.
    EXPECT_EQ(Measure({0.125, 0.625, 0.375, 0.625, 1, 0, 1}, kAny, 1, kNarrow),
              (Timing{0, 4.75, 3.75, 3.75 / 4.75, 2.625}));
}

TEST(PulseCycleTiming, IsArmedAtTheHysteresisItselfByTheSmallerDistance) {
    EXPECT_EQ(Measure({0.25, 0.75, 0.25, 0.75}, kAny, 1, kNarrow), (Timing{0, 2, 1, 0.5, 1}));
    const double above = std::nextafter(0.25, 1);
    EXPECT_EQ(Measure({above, 0.75, 0.25, 0.75, 0.25}, kAny, 1, kNarrow).centre, 2) << "the first rise is not armed";
    EXPECT_EQ(Measure({0.25, 0.75, above, 0.75, 0.25}, kAny, 1, kNarrow).status, -20308);
    EXPECT_EQ(Measure({0.25, 0.75, 0.25, 0.75}, kAny, 1, {1, 0.5, 0.25}).status, 0) << "the smaller one is below";
}

TEST(PulseCycleTiming, OfAWaveformThatStartsInTheMiddleIsNotArmedThere) {
    EXPECT_EQ(Measure({0.5, 0.5, 0.625, 0.5, 1, 0, 1, 0}, kAny, 1, kNarrow), (Timing{0, 2, 1, 0.5, 5}));
}

TEST(PulseCycleTiming, TakesASampleOnTheMiddleAsACrossingOnce) {
    EXPECT_EQ(Measure({0, 0.5, 1, 0.5, 0, 0.5, 1}, kAny, 1, kHalf), (Timing{0, 4, 2, 0.5, 2}));
}

TEST(PulseCycleTiming, WithoutHysteresisCountsEverySampleOnTheMiddle) {
    EXPECT_EQ(Measure({0.5, 0.5, 0.5, 0.5}, kAny, 1, {0.5, 0.5, 0.5}), (Timing{0, 2, 1, 0.5, 0.5}));
}

TEST(PulseCycleTiming, ConvertsPercentOfTheMeasuredAmplitudeAboveTheLowLevel) {
    const Reals x{-1, -1, 3, 3, -1, -1, 3, 3};
    Told told;
    EXPECT_EQ(Measure(x, kAny, 1, {75, 50, 25, 1, kPeak}, &told), (Timing{0, 4, 2, 0.5, 2.5}));
    EXPECT_EQ(told, (Told{0, 1, 2}));
    EXPECT_EQ(Measure(x, kAny, 1, {75, 50, 25, -8, kHistogram, 4}, &told).status, 0) << "any flag but 0 is percent";
    EXPECT_EQ(told, (Told{0.25, 1, 1.75})) << "bin centres -0.5 and 2.5";
    // The product first, then the quotient.
    EXPECT_EQ(Measure(x, kAny, 1, {90.1, 49.9, 10.3, 1, kPeak}, &told).status, 0);
    EXPECT_EQ(told, (Told{4 * 10.3 / 100 - 1, 4 * 49.9 / 100 - 1, 4 * 90.1 / 100 - 1}));
}

TEST(PulseCycleTiming, WarnsOfThinModesOnlyWhenAllElseIsWell) {
    // 3 of 61 samples are low.
    std::vector<double> x = Runs({1, 1, 1, 1, 1, 1});
    x.insert(x.end(), 55, 1.0);
    Told told;
    EXPECT_EQ(Measure(Reals(x), kAny, 1, {75, 50, 25, 1, kHistogram, 4}, &told).status, 20021);
    EXPECT_EQ(Measure(Reals(x), kAny, 1, {75, 50, 25, 1, kHistogram, 4}).period, 2);
    EXPECT_EQ(Measure(Reals(x), kAny, 3, {75, 50, 25, 1, kHistogram, 4}).status, -20308);
    EXPECT_EQ(Measure(Reals(x), kAny, 1, {75, 50, 25, 1, kAutoselect, 4}).status, 0);
    EXPECT_EQ(MeasureAverage(Reals(x), 1, {75, 50, 25, 1, kHistogram, 4}).status, 20021);
    EXPECT_EQ(MeasureAverage(Reals(x), 1, {75, 50, 25, 1, kHistogram, 4}).mean, 0.5);
}

TEST(PulseCycleTiming, LooksAtTheMethodOnlyWhereLevelsAreMeasured) {
    EXPECT_EQ(Measure(Reals(kTrain), kAny, 1, {1, 0.5, 0, 0, 3}).status, 0);
    EXPECT_EQ(Measure(Reals(kTrain), kAny, 1, {90, 50, 10, 1, 3}).status, -20316);
    EXPECT_EQ(Measure({1, 1}, kAny, 1, {90, 50, 10, 1, kHistogram}).status, -20309);
    EXPECT_EQ(Measure({1, 1}, kAny, 1, {90, 50, 10, 1, kPeak}).status, -20308);
}

TEST(PulseCycleTiming, RefusesReferencesThatDoNotDescend) {
    EXPECT_EQ(Measure(Reals(kTrain), kAny, 1, {0.4, 0.5, 0.1}), (Timing{-20313, 0, 0, 0, 0}));
    EXPECT_EQ(Measure(Reals(kTrain), kAny, 1, {0.9, 0.5, 0.6}).status, -20313);
    EXPECT_EQ(Measure(Reals(kTrain), kAny, 1, {0.5, 0.5, 0.5}).status, 0);
    EXPECT_EQ(Measure(Reals(kTrain), kAny, 1, {kNaN, 0.5, 0.1}).status, -20308) << "nothing compares with NaN";
}

TEST(PulseCycleTiming, TellsTheLevelsFromLowToHighAfterErrorsToo) {
    const Reals x(kTrain);
    Told told;
    EXPECT_EQ(Measure(x, kAny, 0, {3, 2, 1}, &told).status, -20323);
    EXPECT_EQ(told, (Told{1, 2, 3}));
    EXPECT_EQ(MeasureFirst(0, x, kAny, 1, {3, 2, 1}, &told).status, -20312);
    EXPECT_EQ(told, (Told{1, 2, 3}));
    EXPECT_EQ(Measure(x, kAny, 1, {3, 2, 1, 1, 7}, &told).status, -20316);
    EXPECT_EQ(told, (Told{1, 2, 3}));
    EXPECT_EQ(Measure(x, kAny, 1, {25, 50, 75, 1}, &told).status, -20313);
    EXPECT_EQ(told, (Told{0.75, 0.5, 0.25})) << "converted";
    EXPECT_EQ(Measure(x, kAny, 9, {75, 50, 25, 1}, &told).status, -20308);
    EXPECT_EQ(told, (Told{0.25, 0.5, 0.75}));
}

struct Outputs {
    Reals values = Output(10);
    double* operator[](int i) { return values + i; }
};

// In the order in which they are tested, each call with all later faults too.
TEST(PulseCycleTiming, TestsItsArgumentsInOrder) {
    const Reals x(kTrain);
    const Size n = static_cast<Size>(x.size());
    Outputs o;
    const auto time = [&](const double* data, Size n, Size cycle, Size bins) {
        return ZemFunc364(data, n, kAny, cycle, o[0], o[1], o[2], 1, 9, bins, o[3], o[4], o[5], o[6], o[7], o[8], o[9]);
    };
    const auto average = [&](const double* data, Size n, Size cycle, Size bins) {
        return ZemFunc365(data, n, cycle, o[0], o[1], o[2], 1, 9, bins, o[3], o[4], o[5], o[6], o[7], o[8], o[9]);
    };
    const auto check = [&](const auto& call) {
        o.values = Output(10);
        EXPECT_EQ(call(x, kTooLarge, 0, 0), -20046);
        EXPECT_EQ(call(x, 0, kTooLarge, 0), -20046);
        EXPECT_EQ(call(x, 0, Size{1} << 30, 0), -20046) << "2 cycle + 1 does not fit";
        EXPECT_EQ(call(x, 0, 0, kTooLarge), -20046);
        EXPECT_EQ(call(x, 0, 0, 0), -20317);
        EXPECT_EQ(call(x, 0, 0, -1), -20317);
        FailAllocation(0);
        EXPECT_EQ(call(x, 0, 0, 16), -20001);
        FailAllocation(-1);
        EXPECT_TRUE(Untouched(o.values)) << "before anything is written";
        EXPECT_EQ(call(x, 0, 0, 16), -20323);
        EXPECT_EQ(call(x, 0, -1, 16), -20323);
        for (int i = 3; i < 7; ++i) EXPECT_EQ(*o[i], 0);
        EXPECT_EQ(call(x, 0, 1, 16), -20312);
        EXPECT_EQ(call(x, -1, 1, 16), -20312);
        EXPECT_EQ(call(nullptr, n, 1, 16), -20312);
        EXPECT_EQ(call(x, n, 1, 16), -20316);
        EXPECT_EQ(call(x, n, (Size{1} << 30) - 1, 16), -20316);
    };
    check(time);
    check(average);
}

TEST(PulseCycleTiming, TellsWhenThereIsNoRoomForTheCrossings) {
    const Reals x(kTrain);
    const long live = LiveBlocks();
    Told told;
    FailAllocation(1);
    EXPECT_EQ(Measure(x, kAny, 1, {75, 50, 25, 1}, &told), (Timing{-20311, 0, 0, 0, 0}));
    EXPECT_EQ(told, (Told{0.25, 0.5, 0.75}));
    FailAllocation(1);
    EXPECT_EQ(MeasureAverage(x, 1, {75, 50, 25, 1}, &told), (Average{-20311, 0, 0, 0, 0}));
    EXPECT_EQ(told, (Told{0.25, 0.5, 0.75}));
    FailAllocation(2);
    EXPECT_EQ(Measure(x, kAny, 1, kHalf).status, 0) << "there is no third allocation";
    FailAllocation(-1);
    EXPECT_EQ(LiveBlocks(), live);
}

TEST(PulseCycleTiming, OfAnEnormousNumberFailsForWantOfCrossingsNotOfMemory) {
    EXPECT_EQ(Measure(Reals(kTrain), kAny, (Size{1} << 30) - 1, kHalf).status, -20308);
}

TEST(PulseCycleAverage, TakesOneRoundedPeriodFromTheRoundedStart) {
    // Distinct dyadic values tell which samples were added; the crossings keep their samples.
    std::vector<double> x = kTrain;
    for (std::size_t i = 0; i < x.size(); ++i) x[i] += std::ldexp(1.0, -10 - static_cast<int>(i));
    const auto expected = [&](int first, int length) {
        double sum = 0, squares = 0;
        for (int i = first; i < first + length; ++i) sum += x[i], squares += x[i] * x[i];
        return std::pair{sum / length, std::sqrt(squares / length)};
    };
    const Average first = MeasureAverage(Reals(x), 1, {0.75, 0.625, 0.25});
    EXPECT_EQ(first.status, 0);
    EXPECT_EQ((std::pair{first.mean, first.rms}), expected(2, 5));
    const Average second = MeasureAverage(Reals(x), 2, {0.75, 0.625, 0.25});
    EXPECT_EQ((std::pair{second.mean, second.rms}), expected(7, 7));
    EXPECT_EQ(MeasureAverage(Reals(kTrain), 1, kHalf), (Average{0, 0.6, std::sqrt(0.6), 1.5, 6.5}));
}

TEST(PulseCycleAverage, ReachesTheLastSampleWhenThePeriodEndsThere) {
    // Crossings at 1.5, 2.5 and 4: three samples from 2 on.
    EXPECT_EQ(MeasureAverage({0, 0, 1, 0, 0.5}, 1, kHalf), (Average{0, 0.5, std::sqrt(1.25 / 3), 1.5, 4}));
}

// The product of two samples near the middle underflows to 0, and the crossing that this feigns can lie anywhere.
const double kTiny = std::ldexp(1.0, -700);
constexpr References kZero{0, 0, 0};

TEST(PulseCycleAverage, MovesAPeriodBeyondTheRecordBackToItsEnd) {
    // Crossings at 64, 3 and 67.
    const Reals x{kTiny, kTiny * (1 - 1.0 / 64), -1, kTiny, kTiny * (1 - 1.0 / 64)};
    EXPECT_EQ(MeasureAverage(x, 1, kZero), (Average{0, -1.0 / 3, std::sqrt(1.0 / 3), 64, 67}));
    EXPECT_EQ(Measure(x, kAny, 1, kZero), (Timing{0, 3, -61, -61.0 / 3, 33.5}));
}

TEST(PulseCycleAverage, TakesNoMoreThanTheWholeRecord) {
    // Crossings at 0.5, 2 and 66.
    const Reals x{1, -1, kTiny, kTiny * (1 - 1.0 / 64), 3};
    EXPECT_EQ(MeasureAverage(x, 1, kZero), (Average{0, 3.0 / 5, std::sqrt(11.0 / 5), 0.5, 66}));
}

TEST(PulseCycleAverage, RefusesAPeriodOfLessThanHalfASample) {
    // Crossings at 4, 3 and 4.
    const Reals x{kTiny, 0.75 * kTiny, -1, kTiny, 0};
    EXPECT_EQ(MeasureAverage(x, 1, kZero), (Average{-20319, 0, 0, 4, 4}));
    // An infinite sample gives a crossing at NaN.
    const Average lost = MeasureAverage({-kInf, 1, -1, 1, -1}, 1, {0.5, 0, -0.5});
    EXPECT_EQ(lost.status, -20319);
    EXPECT_TRUE(std::isnan(lost.start) && std::isnan(lost.end));
}

TEST(PulseCycleAverage, PassesOnWhatTheTimingRefuses) {
    Told told;
    EXPECT_EQ(MeasureAverage(Reals(Runs({2, 3, 2})), 1, {75, 50, 25, 1}, &told), (Average{-20308, 0, 0, 0, 0}));
    EXPECT_EQ(told, (Told{0.25, 0.5, 0.75}));
    EXPECT_EQ(MeasureAverage(Reals(kTrain), 1, {0.4, 0.5, 0.1}), (Average{-20313, 0, 0, 0, 0}));
    EXPECT_EQ(MeasureAverage(Reals(kTrain), 1, {1, 0.5, 0, 0, 3}).status, 0) << "the method plays no part";
}

}  // namespace
}  // namespace quorvan::testing

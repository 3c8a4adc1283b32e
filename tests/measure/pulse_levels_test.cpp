// State levels of a waveform by each method.
#include <cmath>
#include <gtest/gtest.h>

#include "quorvan/quorvan.h"
#include "tests/support/failing_heap.h"
#include "tests/support/guarded.h"

namespace quorvan::testing {
namespace {

enum Method : std::uint32_t { kHistogram, kPeak, kAutoselect };

struct Levels {
    Status status;
    double high, low, amplitude;
    bool operator==(const Levels&) const = default;
};

Levels Measure(const Reals& x, std::uint32_t method, Size bins) {
    Reals high = Output(1), low = Output(1), amplitude = Output(1);
    const Status status = ZemFunc363(x, static_cast<Size>(x.size()), method, bins, high, low, amplitude);
    return {status, high[0], low[0], amplitude[0]};
}

// `count` times the value, behind what is there.
std::vector<double> operator+(std::vector<double> x, std::pair<int, double> more) {
    x.insert(x.end(), more.first, more.second);
    return x;
}

TEST(PulseStateLevels, ByHistogramAreBinCentresAndNotTheExactLevelsOfASquareWave) {
    const Reals square(std::vector<double>{} + std::pair{50, 0.0} + std::pair{50, 1.0});
    EXPECT_EQ(Measure(square, kHistogram, 256), (Levels{0, 255.5 / 256, 0.5 / 256, 255.0 / 256}));
    EXPECT_EQ(Measure(square, kAutoselect, 256), (Levels{0, 255.5 / 256, 0.5 / 256, 255.0 / 256}));
    EXPECT_EQ(Measure(square, kPeak, 256), (Levels{0, 1, 0, 1}));
}

TEST(PulseStateLevels, TakeTheOutermostOfEquallyFullBins) {
    const Reals even{0, 1.5, 2.5, 3.5, 4.5, 5.5, 6.5, 7.5, 8.5, 10};
    EXPECT_EQ(Measure(even, kHistogram, 10), (Levels{0, 9.5, 0.5, 9}));
    // Bins 1 and 3, 6 and 8 hold two samples each.
    const Reals pairs{0, 1.5, 1.5, 3.5, 3.5, 6.5, 6.5, 8.5, 8.5, 10};
    EXPECT_EQ(Measure(pairs, kHistogram, 10), (Levels{0, 8.5, 1.5, 7}));
}

TEST(PulseStateLevels, LookUpToBinTruncated40PercentAndFrom60PercentOn) {
    // 10 bins: 0 to 4 and 6 to 9; the fullest of all, bin 5, belongs to neither.
    EXPECT_EQ(Measure({0, 10, 4.5, 4.5, 5.5, 5.5, 5.5, 6.5, 6.5}, kHistogram, 10), (Levels{0, 6.5, 4.5, 2}));
    // 7 bins: 0 to 2 and 4 to 6.
    EXPECT_EQ(Measure({0, 7, 2.5, 2.5, 3.5, 3.5, 3.5, 4.5, 4.5}, kHistogram, 7), (Levels{0, 4.5, 2.5, 2}));
    // One bin is both.
    EXPECT_EQ(Measure({0, 2}, kHistogram, 1), (Levels{0, 1, 1, 0}));
}

TEST(PulseStateLevels, CountTheMaximumInTheLastBin) {
    EXPECT_EQ(Measure({0, 0, 10, 10, 10, 9.5}, kHistogram, 10), (Levels{0, 9.5, 0.5, 9}));
    // Widths that are no dyadic fractions: the quotient of the maximum may round to the number of bins or below.
    for (Size bins = 1; bins < 400; ++bins) {
        const Levels levels = Measure({-0.3, -0.3, 0.4, 0.4}, kHistogram, bins);
        EXPECT_EQ(levels.status, 0);
        const double width = (0.4 - -0.3) / static_cast<double>(bins);
        EXPECT_EQ(levels.high, -0.3 + width / 2 + static_cast<double>(bins - 1) * width) << bins;
        EXPECT_EQ(levels.low, -0.3 + width / 2) << bins;
    }
}

// The thin mode has one sample, which is 5 percent of 20.
TEST(PulseStateLevels, ByHistogramWarnOfAModeBelow5PercentAndKeepIt) {
    for (int n : {19, 20, 21, 60}) {
        const Status expected = n > 20 ? 20021 : 0;
        const Reals thinLow(std::vector<double>{0} + std::pair{n - 1, 10.0});
        EXPECT_EQ(Measure(thinLow, kHistogram, 10), (Levels{expected, 9.5, 0.5, 9})) << n;
        const Reals thinHigh(std::vector<double>{10} + std::pair{n - 1, 0.0});
        EXPECT_EQ(Measure(thinHigh, kHistogram, 10), (Levels{expected, 9.5, 0.5, 9})) << n;
    }
}

TEST(PulseStateLevels, ByAutoselectNeedMoreThan5PercentInBothModesOrAreBothExtremes) {
    for (int n : {19, 20, 21, 60}) {
        const Levels expected = n < 20 ? Levels{0, 9.5, 0.5, 9} : Levels{0, 10, 0, 10};
        const Reals thinLow(std::vector<double>{0} + std::pair{n - 1, 10.0});
        EXPECT_EQ(Measure(thinLow, kAutoselect, 10), expected) << n;
        const Reals thinHigh(std::vector<double>{10} + std::pair{n - 1, 0.0});
        EXPECT_EQ(Measure(thinHigh, kAutoselect, 10), expected) << n;
    }
}

TEST(PulseStateLevels, OfAConstantSignalAreRefusedExceptByPeak) {
    const Reals constant{3, 3, 3};
    EXPECT_EQ(Measure(constant, kHistogram, 10), (Levels{-20309, 0, 0, 0}));
    EXPECT_EQ(Measure(constant, kAutoselect, 10), (Levels{-20309, 0, 0, 0}));
    EXPECT_EQ(Measure(constant, kPeak, 10), (Levels{0, 3, 3, 0}));
    EXPECT_EQ(Measure({-2}, kPeak, 10), (Levels{0, -2, -2, 0}));
}

TEST(PulseStateLevels, PassOverNanInTheExtremes) {
    EXPECT_EQ(Measure({kNaN, 1, kNaN, 3, 2, kNaN}, kPeak, 10), (Levels{0, 3, 1, 2}));
    EXPECT_TRUE(std::isnan(Measure({kNaN, kNaN}, kPeak, 10).high));
    // Ten samples at each level: the NaN tip no balance.
    const Reals x(std::vector<double>{kNaN, kNaN} + std::pair{10, 0.0} + std::pair{10, 10.0});
    EXPECT_EQ(Measure(x, kHistogram, 10), (Levels{0, 9.5, 0.5, 9}));
}

TEST(PulseStateLevels, OfInfiniteAndHugeSamplesStayInsideTheHistogram) {
    EXPECT_TRUE(std::isnan(Measure({-1.7e308, 1.7e308, 0}, kHistogram, 10).low));
    EXPECT_TRUE(std::isnan(Measure({0, kInf, 1, kNaN}, kHistogram, 10).low));
    EXPECT_EQ(Measure({0, kInf, 1, -kInf}, kPeak, 10), (Levels{0, kInf, -kInf, kInf}));
    // A range of one denormal step has bins of no width at all.
    EXPECT_EQ(Measure({0, 5e-324}, kHistogram, 10), (Levels{0, 0, 0, 0}));
}

TEST(PulseStateLevels, TestTheBinsThenTheSamplesThenTheMethod) {
    const Reals x{0, 1};
    Reals high = Output(1), low = Output(1), amplitude = Output(1);
    EXPECT_EQ(ZemFunc363(x, kTooLarge, 9, 0, high, low, amplitude), -20046);
    EXPECT_EQ(ZemFunc363(x, 0, 9, -kTooLarge - 1, high, low, amplitude), -20046);
    for (Size bins : {0, -1}) EXPECT_EQ(ZemFunc363(nullptr, 0, 9, bins, high, low, amplitude), -20317);
    EXPECT_TRUE(Untouched(high) && Untouched(low) && Untouched(amplitude)) << "before the outputs are cleared";
    for (Size n : {0, -1}) EXPECT_EQ(ZemFunc363(x, n, 9, 4, high, low, amplitude), -20312);
    EXPECT_EQ(high[0], 0);
    EXPECT_EQ(low[0], 0);
    EXPECT_EQ(amplitude[0], 0);
    EXPECT_EQ(ZemFunc363(nullptr, 2, 9, 4, high, low, amplitude), -20312);
    EXPECT_EQ(Measure({1, 1}, 3, 4), (Levels{-20316, 0, 0, 0}));
    EXPECT_EQ(Measure({1, 1}, UINT32_MAX, 4), (Levels{-20316, 0, 0, 0}));
}

TEST(PulseStateLevels, TellExhaustedMemoryBeforeAnythingElse) {
    const Reals x{0, 1, 0, 1};
    for (std::uint32_t method : {kHistogram, kPeak, kAutoselect})
        ExpectEveryAllocationFails([&] {
            double high, low, amplitude;
            return ZemFunc363(x, 4, method, 16, &high, &low, &amplitude);
        });
    Reals high = Output(1), low = Output(1), amplitude = Output(1);
    FailAllocation(0);
    EXPECT_EQ(ZemFunc363(x, 0, 9, 16, high, low, amplitude), -20001);
    FailAllocation(-1);
    EXPECT_TRUE(Untouched(high) && Untouched(low) && Untouched(amplitude));
}

TEST(PulseStateLevels, WarningHasNoText) { EXPECT_STREQ(ZemFunc240(20021), "Unknown error number"); }

}  // namespace
}  // namespace quorvan::testing

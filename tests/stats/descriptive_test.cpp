// Means, root mean squares, variances and moments.
#include <cmath>
#include <gtest/gtest.h>

#include "quorvan/quorvan.h"
#include "tests/support/failing_heap.h"
#include "tests/support/guarded.h"

namespace quorvan::testing {
namespace {

// The sum in index order is 1e16, then 0, then 1: the one added first is lost, the one added last is not.
const Reals kOrderTells{1e16, 1, -1e16, 1};

TEST(StatMean, AddsInIndexOrderAndDividesByTheCount) {
    Reals mean = Output(1);
    EXPECT_EQ(ZemFunc122(kOrderTells, 4, mean), 0);
    EXPECT_EQ(mean[0], 0.25);
    EXPECT_EQ(ZemFunc122(Reals{7}, 1, mean), 0);
    EXPECT_EQ(mean[0], 7);
    // 0.3 / 3 is 0.09999999999999999, 0.3 * (1 / 3) is not.
    EXPECT_EQ(ZemFunc122(Reals{0.3, 0, 0}, 3, mean), 0);
    EXPECT_TRUE(SameBits(mean[0], 0.3 / 3));
}

TEST(StatMean, LetsNanAndInfinityThrough) {
    Reals mean = Output(1);
    EXPECT_EQ(ZemFunc122(Reals{1, kNaN}, 2, mean), 0);
    EXPECT_TRUE(std::isnan(mean[0]));
    EXPECT_EQ(ZemFunc122(Reals{1, -kInf}, 2, mean), 0);
    EXPECT_EQ(mean[0], -kInf);
}

TEST(StatRms, IsTheRootOfTheMeanSquare) {
    Reals rms = Output(1);
    EXPECT_EQ(ZemFunc150(Reals{1, 7, -5, 5}, 4, rms), 0);
    EXPECT_EQ(rms[0], 5);
    EXPECT_EQ(ZemFunc150(Reals{-3}, 1, rms), 0);
    EXPECT_EQ(rms[0], 3);
}

TEST(StatRms, OverflowsWhereTheSquaresDo) {
    Reals rms = Output(1);
    EXPECT_EQ(ZemFunc150(Reals{1e200, 0}, 2, rms), 0);
    EXPECT_EQ(rms[0], kInf);
}

TEST(StatRmsComplex, CountsBothPartsOfASample) {
    Reals rms = Output(1);
    EXPECT_EQ(ZemFunc369(Records{{3, 4}, {-5, 0}, {0, 5}, {4, -3}}, 4, rms), 0);
    EXPECT_EQ(rms[0], 5);
}

TEST(StatRmsComplex, WritesNanWhenItRefusesButNothingOnOverflow) {
    const Records x{{3, 4}};
    Reals rms = Output(1);
    EXPECT_EQ(ZemFunc369(x, kTooLarge, rms), -20046);
    EXPECT_TRUE(Untouched(rms));
    EXPECT_EQ(ZemFunc369(x, 0, rms), -20003);
    EXPECT_TRUE(std::isnan(rms[0]));
    rms[0] = kUnwritten;
    EXPECT_EQ(ZemFunc369(x, -1, rms), -20003);
    EXPECT_TRUE(std::isnan(rms[0]));
}

TEST(StatMeanVariance, DividesByTheCountAndNotByOneLess) {
    Reals mean = Output(1), variance = Output(1);
    EXPECT_EQ(ZemFunc184(Reals{2, 4, 4, 4, 5, 5, 7, 9}, 8, mean, variance), 0);
    EXPECT_EQ(mean[0], 5);
    EXPECT_EQ(variance[0], 4);
}

TEST(StatMeanVariance, IsOnePassSoThatAConstantSignalMayGiveATinyNegativeVariance) {
    int negative = 0;
    for (int i = 1; i < 200; ++i) {
        const double value = i * 0.1;
        Reals mean = Output(1), variance = Output(1);
        ASSERT_EQ(ZemFunc184(Reals(3, value), 3, mean, variance), 0);
        // Rounding errors of two sums of three terms, two quotients, a square and a difference.
        EXPECT_LE(std::fabs(variance[0]), 8 * 2.3e-16 * value * value);
        negative += variance[0] < 0;
    }
    EXPECT_GT(negative, 0);
}

TEST(StatMeanVariance, CancelsWhereTwoPassesDoNot) {
    const Reals x{1e9 + 1, 1e9 + 2, 1e9 + 3};
    Reals mean = Output(1), variance = Output(1), deviation = Output(1);
    EXPECT_EQ(ZemFunc184(x, 3, mean, variance), 0);
    // Near 1e18 neighbouring doubles are 128 apart: nothing between 0 and 128 can come out.
    EXPECT_EQ(std::fmod(variance[0], 128.0), 0);
    EXPECT_EQ(ZemFunc166(x, 3, mean, deviation), 0);
    EXPECT_TRUE(SameBits(deviation[0], std::sqrt(2.0 / 3)));
}

TEST(StatMeanStdDev, TakesTheMeanFirst) {
    Reals mean = Output(1), deviation = Output(1);
    EXPECT_EQ(ZemFunc166(Reals{2, 4, 4, 4, 5, 5, 7, 9}, 8, mean, deviation), 0);
    EXPECT_EQ(mean[0], 5);
    EXPECT_EQ(deviation[0], 2);
    EXPECT_EQ(ZemFunc166(Reals(3, 0.1), 3, mean, deviation), 0);
    // The mean of three equal values rounds, so the deviation is no exact zero, but never negative or NaN.
    EXPECT_GE(deviation[0], 0);
    EXPECT_LT(deviation[0], 1e-16);
}

TEST(StatMoment, OfOrderOneIsZeroUpToRounding) {
    const Reals x = RandomReals(1000);
    Reals moment = Output(1);
    EXPECT_EQ(ZemFunc125(x, 1000, 1, moment), 0);
    // Each of 1000 terms below 2 in magnitude rounds at 2^-53 of it, and so do the partial sums.
    EXPECT_LT(std::fabs(moment[0]), 1000 * 2 * 2.3e-16);
}

TEST(StatMoment, IsCentralAndTakenOverTheWholePopulation) {
    const Reals x{2, 4, 4, 4, 5, 5, 7, 9};  // deviations -3 -1 -1 -1 0 0 2 4
    Reals moment = Output(1);
    EXPECT_EQ(ZemFunc125(x, 8, 2, moment), 0);
    EXPECT_EQ(moment[0], 4);
    EXPECT_EQ(ZemFunc125(x, 8, 3, moment), 0);
    EXPECT_EQ(moment[0], (-27 - 3 + 8 + 64) / 8.0);
    EXPECT_EQ(ZemFunc125(x, 8, 4, moment), 0);
    EXPECT_EQ(moment[0], (81 + 3 + 16 + 256) / 8.0);
    EXPECT_EQ(ZemFunc125(x, 8, 41, moment), 0);
    EXPECT_NEAR(moment[0], (std::pow(4, 41) - std::pow(3, 41) + std::pow(2, 41) - 3) / 8, std::pow(4, 41) * 41e-16);
}

TEST(StatMoment, TestsTheCountBeforeTheOrderAndTheOrderAsASignedNumber) {
    const Reals x{1, 2};
    Reals moment = Output(1);
    EXPECT_EQ(ZemFunc125(x, 0, 0, moment), -20003);
    EXPECT_EQ(ZemFunc125(x, 2, 0, moment), -20021);
    EXPECT_EQ(ZemFunc125(x, 2, 0xFFFFFFFFu, moment), -20021);
    EXPECT_EQ(ZemFunc125(x, 2, 0x80000000u, moment), -20021);
    EXPECT_EQ(ZemFunc125(x, kTooLarge, 0, moment), -20046);
    EXPECT_TRUE(Untouched(moment));
}

TEST(DescriptiveStatistics, TakeTheirSumsInIndexOrderToTheLastBit) {
    constexpr int n = 777;
    const Reals x = RandomReals(n, 1);
    const Records z = RandomRecords(n, 2);
    double sum = 0, squares = 0, complex_squares = 0, deviations = 0, fifths = 0;
    for (int i = 0; i < n; ++i) {
        sum += x[i];
        squares += x[i] * x[i];
        complex_squares += z[i].re * z[i].re + z[i].im * z[i].im;
    }
    const double mean = sum / n;
    for (int i = 0; i < n; ++i) {
        const double d = x[i] - mean;
        deviations += d * d;
        fifths += d * d * d * d * d;
    }
    Reals a = Output(1), b = Output(1);
    EXPECT_EQ(ZemFunc122(x, n, a), 0);
    EXPECT_TRUE(SameBits(a[0], mean));
    EXPECT_EQ(ZemFunc150(x, n, a), 0);
    EXPECT_TRUE(SameBits(a[0], std::sqrt(squares / n)));
    EXPECT_EQ(ZemFunc369(z, n, a), 0);
    EXPECT_TRUE(SameBits(a[0], std::sqrt(complex_squares / n)));
    EXPECT_EQ(ZemFunc184(x, n, a, b), 0);
    EXPECT_TRUE(SameBits(a[0], mean) && SameBits(b[0], squares / n - mean * mean));
    EXPECT_EQ(ZemFunc166(x, n, a, b), 0);
    EXPECT_TRUE(SameBits(a[0], mean) && SameBits(b[0], std::sqrt(deviations / n)));
    EXPECT_EQ(ZemFunc125(x, n, 5, a), 0);
    EXPECT_TRUE(SameBits(a[0], fifths / n));
}

TEST(DescriptiveStatistics, RefuseSizesAndTouchNothing) {
    const Reals x{1, 2};
    Reals a = Output(1), b = Output(1);
    for (Size n : {Size{0}, Size{-1}, kTooLarge, -kTooLarge - 1}) {
        const Status expected = n == 0 || n == -1 ? -20003 : -20046;
        EXPECT_EQ(ZemFunc122(x, n, a), expected);
        EXPECT_EQ(ZemFunc150(x, n, a), expected);
        EXPECT_EQ(ZemFunc184(x, n, a, b), expected);
        EXPECT_EQ(ZemFunc166(x, n, a, b), expected);
        EXPECT_EQ(ZemFunc125(x, n, 2, a), expected);
    }
    EXPECT_TRUE(Untouched(a) && Untouched(b));
}

TEST(DescriptiveStatistics, NeedNoMemory) {
    const Reals x = RandomReals(100);
    Reals a = Output(1), b = Output(1);
    FailAllocation(0);
    EXPECT_EQ(ZemFunc122(x, 100, a), 0);
    EXPECT_EQ(ZemFunc150(x, 100, a), 0);
    EXPECT_EQ(ZemFunc184(x, 100, a, b), 0);
    EXPECT_EQ(ZemFunc166(x, 100, a, b), 0);
    EXPECT_EQ(ZemFunc125(x, 100, 3, a), 0);
    FailAllocation(-1);
}

}  // namespace
}  // namespace quorvan::testing

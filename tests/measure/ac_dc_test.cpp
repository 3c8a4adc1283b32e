// The alternating and the direct part of a signal.
#include <cmath>
#include <gtest/gtest.h>

#include "quorvan/quorvan.h"
#include "tests/support/failing_heap.h"
#include "tests/support/guarded.h"

namespace quorvan::testing {
namespace {

// Over whole periods, from two on, the window's lines miss those of the signal, and the estimates are exact.
TEST(SpecAcDcEstimate, IsExactForWholePeriods) {
    for (int n : {16, 50, 101})
        for (int periods : {2, 3, 5}) {
            Reals x(n), ac = Output(1), dc = Output(1);
            for (int i = 0; i < n; ++i)
                x[i] = 3 * std::sin(2 * M_PI * (static_cast<double>(i) * periods / n) + 0.3) - 7;
            ASSERT_EQ(ZemFunc2(x, n, ac, dc), 0);
            // Sums of n terms below 10, and of their squares.
            EXPECT_NEAR(ac[0], 3 / std::sqrt(2), n * 100 * 2.3e-16);
            EXPECT_NEAR(dc[0], -7, n * 100 * 2.3e-16);
        }
}

TEST(SpecAcDcEstimate, DoesWithBrokenPeriodsBetterThanPlainAverages) {
    const int n = 1000;
    Reals x(n), ac = Output(1), dc = Output(1), mean = Output(1), deviation = Output(1);
    for (int i = 0; i < n; ++i) x[i] = std::sin(2 * M_PI * 5.25 * i / n);
    ASSERT_EQ(ZemFunc2(x, n, ac, dc), 0);
    ASSERT_EQ(ZemFunc166(x, n, mean, deviation), 0);
    EXPECT_LT(std::fabs(dc[0]), std::fabs(mean[0]) / 10);
    EXPECT_LT(std::fabs(ac[0] - std::sqrt(0.5)), std::fabs(deviation[0] - std::sqrt(0.5)));
}

TEST(SpecAcDcEstimate, OfASingleSampleIsThatSample) {
    Reals ac = Output(1), dc = Output(1);
    EXPECT_EQ(ZemFunc2(Reals{-3}, 1, ac, dc), 0);
    EXPECT_EQ(ac[0], 0);
    EXPECT_EQ(dc[0], -3);
}

TEST(SpecAcDcEstimate, RefusesSizesAndTouchesNothing) {
    const Reals x{1};
    Reals ac = Output(1), dc = Output(1);
    EXPECT_EQ(ZemFunc2(x, 0, ac, dc), -20003);
    EXPECT_EQ(ZemFunc2(x, -1, ac, dc), -20003);
    EXPECT_EQ(ZemFunc2(x, kTooLarge, ac, dc), -20046);
    EXPECT_TRUE(Untouched(ac) && Untouched(dc));
}

TEST(SpecAcDcEstimate, TellsExhaustedMemory) {
    const Reals x = RandomReals(50);
    Reals ac(1), dc(1);
    ExpectEveryAllocationFails([&] { return ZemFunc2(x, 50, ac, dc); });
}

}  // namespace
}  // namespace quorvan::testing

// Hartley and Hilbert transforms.
#include <gtest/gtest.h>

#include "quorvan/quorvan.h"
#include "tests/support/failing_heap.h"
#include "tests/transforms/reference.h"

namespace quorvan::testing {
namespace {

TEST(Hartley, IsTheUnnormalisedSumOfCosineAndSine) {
    for (int n = 1; n < 60; ++n) {
        Reals x = RandomReals(n, n), expected(n);
        for (long long k = 0; k < n; ++k) {
            long double sum = 0;
            for (long long j = 0; j < n; ++j) sum += x[j] * (Root(j * k, n).real() + Root(j * k, n).imag());
            expected[k] = static_cast<double>(sum);
        }
        const double tolerance = 2 * Rounding(n, Norm(x));
        ASSERT_EQ(ZemFunc78(x, n), 0);
        ExpectNear(expected, x, tolerance);
    }
}

TEST(Hartley, AppliedTwiceIsNTimesTheInput) {
    for (int n : {1, 2, 3, 8, 15, 53}) {
        const Reals x = RandomReals(n, 1);
        Reals twice = x;
        ASSERT_EQ(ZemFunc78(twice, n), 0);
        ASSERT_EQ(ZemFunc78(twice, n), 0);
        for (int i = 0; i < n; ++i) EXPECT_NEAR(twice[i], n * x[i], 4 * n * Rounding(n, Norm(x)));
    }
}

TEST(InverseHartley, IsHartleyTimesTheReciprocalOfNToTheLastBit) {
    for (int n : {1, 2, 3, 7, 10, 49, 53}) {
        Reals forward = RandomReals(n, 2), inverse = forward;
        ASSERT_EQ(ZemFunc78(forward, n), 0);
        ASSERT_EQ(ZemFunc103(inverse, n), 0);
        const double reciprocal = 1.0 / n;
        for (int i = 0; i < n; ++i) EXPECT_TRUE(SameBits(inverse[i], forward[i] * reciprocal));
    }
}

TEST(InverseHartley, UndoesHartley) {
    for (int n = 1; n < 40; ++n) {
        const Reals x = RandomReals(n, 3);
        Reals back = x;
        ASSERT_EQ(ZemFunc78(back, n), 0);
        ASSERT_EQ(ZemFunc103(back, n), 0);
        ExpectNear(x, back, 4 * Rounding(n, Norm(x)));
    }
}

TEST(Hartley, OfOneElementChangesNothingAndTakesNoMemory) {
    Reals x{-0.0};
    FailAllocation(-1);
    EXPECT_EQ(ZemFunc78(x, 1), 0);
    EXPECT_EQ(ZemFunc103(x, 1), 0);
    EXPECT_EQ(AllocationCount(), 0);
    EXPECT_TRUE(SameBits(x[0], -0.0));
}

TEST(Hilbert, TurnsACosineIntoASine) {
    for (int n : {8, 9, 20, 53}) {
        for (int cycles = 1; 2 * cycles < n; ++cycles) {
            Reals x(n), expected(n);
            for (int j = 0; j < n; ++j) {
                x[j] = static_cast<double>(Root(j * cycles, n).real());
                expected[j] = static_cast<double>(Root(j * cycles, n).imag());
            }
            const double tolerance = 2 * Rounding(n, Norm(x));
            ASSERT_EQ(ZemFunc75(x, n), 0);
            ExpectNear(expected, x, tolerance);
        }
    }
}

TEST(Hilbert, OfAConstantIsZeros) {
    for (int n : {2, 3, 8, 9, 53}) {
        Reals x(n, 5.0);
        ASSERT_EQ(ZemFunc75(x, n), 0);
        for (double v : x) EXPECT_NEAR(v, 0, 2 * Rounding(n, 5 * std::sqrt(n)));
    }
}

TEST(Hilbert, ClearsTheComponentAtHalfTheRate) {
    for (int n : {2, 4, 10}) {
        Reals x(n);
        for (int j = 0; j < n; ++j) x[j] = j % 2 ? -1 : 1;
        ASSERT_EQ(ZemFunc75(x, n), 0);
        for (double v : x) EXPECT_NEAR(v, 0, 2 * Rounding(n, std::sqrt(n)));
    }
}

TEST(Hilbert, OfOneElementIsZeroAndItsInverseTheNegatedZero) {
    Reals x{4.0}, y{4.0};
    EXPECT_EQ(ZemFunc75(x, 1), 0);
    EXPECT_TRUE(SameBits(x[0], 0.0));
    EXPECT_EQ(ZemFunc76(y, 1), 0);
    EXPECT_TRUE(SameBits(y[0], -0.0));
}

TEST(InverseHilbert, IsTheNegatedHilbertTransform) {
    for (int n : {2, 7, 10, 53}) {
        Reals forward = RandomReals(n, 4), inverse = forward;
        ASSERT_EQ(ZemFunc75(forward, n), 0);
        ASSERT_EQ(ZemFunc76(inverse, n), 0);
        for (int i = 0; i < n; ++i) EXPECT_TRUE(SameBits(inverse[i], -forward[i]));
    }
}

TEST(InverseHilbert, UndoesHilbertForDataWithoutMeanAndHalfRate) {
    for (int n : {7, 8, 20, 53}) {
        Reals x = RandomReals(n, 5);
        double mean = 0, half = 0;
        for (int j = 0; j < n; ++j) mean += x[j] / n, half += x[j] * (j % 2 ? -1 : 1) / n;
        for (int j = 0; j < n; ++j) x[j] -= mean + (n % 2 == 0 ? half * (j % 2 ? -1 : 1) : 0);
        Reals back = x;
        ASSERT_EQ(ZemFunc75(back, n), 0);
        ASSERT_EQ(ZemFunc76(back, n), 0);
        ExpectNear(x, back, 4 * Rounding(n, Norm(x)) + 4 * n * kEpsilon);
    }
}

TEST(HartleyAndHilbert, RefuseSizesAndReportMemory) {
    for (auto call : {ZemFunc78, ZemFunc103, ZemFunc75, ZemFunc76}) {
        Reals x = Output(4);
        EXPECT_EQ(call(x, 0), -20003);
        EXPECT_EQ(call(x, -1), -20003);
        EXPECT_EQ(call(x, kTooLarge), -20046);
        EXPECT_TRUE(Untouched(x));
        for (int n : {6, kLargePrime}) {
            Reals y = RandomReals(n);
            ExpectEveryAllocationFails([&] { return call(y, n); });
        }
    }
}

}  // namespace
}  // namespace quorvan::testing

// The cubic smoothing spline, and the band solver behind it.
#include <cmath>
#include <gtest/gtest.h>

#include "linalg/banded.h"
#include "quorvan/quorvan.h"
#include "tests/support/failing_heap.h"
#include "tests/support/guarded.h"

namespace quorvan::testing {
namespace {

Reals Ascending(int n) {
    Reals x = RandomReals(n, 5);
    for (int i = 0; i < n; ++i) x[i] = i + 0.4 * x[i];
    return x;
}

Reals Smoothed(const Reals& x, const Reals& y, double balance, const Reals* weights = nullptr,
               const Reals* smoothness = nullptr) {
    Reals out = Output(x.size()), copy = y;
    EXPECT_EQ(ZemFunc285(x, copy, weights ? weights->data() : nullptr, x.size(), balance,
                         smoothness ? smoothness->data() : nullptr, out),
              0);
    EXPECT_EQ(copy.values(), y.values()) << "y is an input where there is an output";
    return out;
}

// The least-squares line through the samples, in long double.
Reals Line(const Reals& x, const Reals& y) {
    const long double n = x.size();
    long double sx = 0, sy = 0, sxx = 0, sxy = 0;
    for (std::size_t i = 0; i < x.size(); ++i) {
        sx += x[i];
        sy += y[i];
        sxx += (long double)x[i] * x[i];
        sxy += (long double)x[i] * y[i];
    }
    const long double slope = (n * sxy - sx * sy) / (n * sxx - sx * sx);
    Reals out(x.size());
    for (std::size_t i = 0; i < x.size(); ++i) out[i] = double((sy - slope * sx) / n + slope * x[i]);
    return out;
}

TEST(InterpSmoothingSpline, WithBalanceZeroIsTheLeastSquaresLine) {
    for (int n : {3, 4, 5, 6, 7, 8, 20, 100}) {
        const Reals x = Ascending(n), y = RandomReals(n, 9);
        const Reals out = Smoothed(x, y, 0), line = Line(x, y);
        // The system squares the second divided differences: its condition grows like n⁴.
        for (int i = 0; i < n; ++i) EXPECT_NEAR(out[i], line[i], 1e-16 * std::pow(n, 4) + 1e-14) << n << ' ' << i;
    }
}

TEST(InterpSmoothingSpline, WithBalanceOneCopies) {
    const Reals x = Ascending(9), y = RandomReals(9);
    EXPECT_EQ(Smoothed(x, y, 1).values(), y.values());
}

TEST(InterpSmoothingSpline, WithABalanceJustAboveOneChoosesItself) {
    const Reals x = Ascending(9), y = RandomReals(9);
    const double g = (x[8] - x[0]) / 9;  // the number of samples, not of intervals
    const Reals chosen = Smoothed(x, y, 8 / (8 + g * g * g));
    EXPECT_EQ(Smoothed(x, y, 1.0000001).values(), chosen.values());
    EXPECT_EQ(Smoothed(x, y, -1e-9).values(), chosen.values());
    EXPECT_NE(chosen.values(), y.values());
}

TEST(InterpSmoothingSpline, LeavesALineAlone) {
    for (int n : {3, 6, 7, 30}) {
        const Reals x = Ascending(n);
        Reals y(n);
        for (int i = 0; i < n; ++i) y[i] = 3 * x[i] - 2;
        const Reals out = Smoothed(x, y, 0.5);
        for (int i = 0; i < n; ++i) EXPECT_NEAR(out[i], y[i], 1e-12);
    }
}

TEST(InterpSmoothingSpline, WeightsCountByMagnitude) {
    const Reals x = Ascending(8), y = RandomReals(8);
    Reals weights{1, 2, 3, 4, 5, 6, 7, 8}, negative = weights;
    Reals smoothness{1, 2, 1, 3, 1, 4, 1}, turned = smoothness;
    for (double& w : negative) w = -w;
    for (double& w : turned) w = -w;
    const Reals out = Smoothed(x, y, 0.3, &weights, &smoothness);
    EXPECT_EQ(Smoothed(x, y, 0.3, &negative, &smoothness).values(), out.values());
    EXPECT_EQ(Smoothed(x, y, 0.3, &weights, &turned).values(), out.values());
}

TEST(InterpSmoothingSpline, WritesOverYWhenTheOutputIsNull) {
    const Reals x = Ascending(10);
    for (double balance : {0.4, 1.0}) {
        Reals y = RandomReals(10);
        const Reals out = Smoothed(x, y, balance);
        EXPECT_EQ(ZemFunc285(x, y, nullptr, 10, balance, nullptr, nullptr), 0);
        EXPECT_EQ(y.values(), out.values());
    }
}

TEST(InterpSmoothingSpline, OfTwoSamplesLeavesTheOutputUntouched) {
    Reals y{1, 2}, out = Output(2);
    EXPECT_EQ(ZemFunc285(Reals{5, 5}, y, Reals{0, 0}, 2, 0.5, nullptr, out), 0);
    EXPECT_TRUE(Untouched(out));
}

TEST(InterpSmoothingSpline, AZeroDataWeightIsRefused) {
    for (int n : {3, 9}) {
        Reals x = Ascending(n), y = RandomReals(n), weights(n, 1), out = Output(n);
        weights[n - 1] = -0.0;
        EXPECT_EQ(ZemFunc285(x, y, weights, n, 0.5, nullptr, out), -20141);
        EXPECT_TRUE(Untouched(out));
    }
}

TEST(InterpSmoothingSpline, AZeroSmoothnessWeightIsRefused) {
    Reals x = Ascending(9), y = RandomReals(9), smoothness(8, 1), out = Output(9);
    smoothness[7] = 0;
    EXPECT_EQ(ZemFunc285(x, y, nullptr, 9, 0.5, smoothness, out), -20141);
    EXPECT_TRUE(Untouched(out));
}

TEST(InterpSmoothingSpline, ChecksStandInOrder) {
    Reals y = RandomReals(4), weights(4, 0), out = Output(4);
    EXPECT_EQ(ZemFunc285(nullptr, y, nullptr, kTooLarge, 0.5, nullptr, out), -20046);
    EXPECT_EQ(ZemFunc285(nullptr, y, nullptr, 1, 0.5, nullptr, out), -20006);
    EXPECT_EQ(ZemFunc285(nullptr, y, nullptr, -1, 0.5, nullptr, out), -20006);
    EXPECT_EQ(ZemFunc285(nullptr, y, nullptr, 2, 0.5, nullptr, out), -20002);
    EXPECT_EQ(ZemFunc285(Reals{1, 2, 2, 3}, y, weights, 4, 0.5, nullptr, out), -20049) << "x before the weights";
    EXPECT_EQ(ZemFunc285(Reals{1, 3, 2, 4}, y, nullptr, 4, 0.5, nullptr, out), -20049) << "descending neighbours";
    EXPECT_TRUE(Untouched(out));
}

TEST(InterpSmoothingSpline, WithBalanceOneTestsXOnlyForEqualNeighboursAndOnlyAfterCopying) {
    Reals y{5, 6, 7, 8}, out = Output(4);
    EXPECT_EQ(ZemFunc285(Reals{1, 2, 2, 3}, y, Reals(4, 0.0), 4, 1, nullptr, out), -20049);
    EXPECT_EQ(out.values(), y.values());
    EXPECT_EQ(ZemFunc285(Reals{4, 3, 2, 1}, y, Reals(4, 0.0), 4, 1, nullptr, out), 0) << "descending is no fault there";
}

TEST(InterpSmoothingSpline, LetsNaNAndInfinitiesPropagate) {
    for (int n : {3, 4, 5, 6, 7, 12}) {
        for (int bad : {0, 1, n - 1}) {
            Reals x = Ascending(n), y = RandomReals(n), out(n);
            y[bad] = kNaN;
            EXPECT_EQ(ZemFunc285(x, y, nullptr, n, 0.5, nullptr, out), 0);
            EXPECT_TRUE(std::isnan(out[bad])) << n;
            y[bad] = kInf;
            EXPECT_EQ(ZemFunc285(x, y, nullptr, n, 0.5, nullptr, out), 0);
            EXPECT_FALSE(std::isfinite(out[bad])) << n;
        }
    }
}

TEST(InterpSmoothingSpline, EveryAllocationFails) {
    for (int n : {5, 12}) {
        const Reals x = Ascending(n);
        Reals y = RandomReals(n), out(n);
        for (double balance : {0.5, 1.0})
            ExpectEveryAllocationFails([&] { return ZemFunc285(x, y, nullptr, n, balance, nullptr, out); });
    }
}

// No export hands the band solver a width or several right-hand sides.

TEST(MatBandedSolve, SolvesSeveralRightHandSides) {
    // Tridiagonal 4 on the diagonal, 1 above, 2 below; solutions 1, 2, 3 and -1, 0, 1.
    const Reals band{0, 1, 1, 4, 4, 4, 2, 2, 0};
    const Reals b{4 + 2, -4, 2 + 8 + 3, -2 + 1, 4 + 12, 4};
    Reals x = Output(6);
    EXPECT_EQ(MatBandedSolve(band, 3, 1, 1, b, 2, x), 0);
    const double expected[] = {1, -1, 2, 0, 3, 1};
    for (int i = 0; i < 6; ++i) EXPECT_NEAR(x[i], expected[i], 10 * kEpsilon);
}

TEST(MatBandedSolve, RefusesBadSizesBandsAndSingularMatrices) {
    const Reals band(9), b(3);
    Reals x = Output(3);
    EXPECT_EQ(MatBandedSolve(band, 0, 1, 1, b, 1, x), -20003);
    EXPECT_EQ(MatBandedSolve(band, 3, 1, 1, b, 0, x), -20003);
    EXPECT_EQ(MatBandedSolve(band, 2, 1, 1, b, 1, x), -20008);
    EXPECT_EQ(MatBandedSolve(band, 3, -1, 1, b, 1, x), -20008);
    EXPECT_EQ(MatBandedSolve(band, 3, 1, -1, b, 1, x), -20008);
    EXPECT_EQ(MatBandedSolve(band, 3, 1, 1, b, 1, x), -20041);
    EXPECT_TRUE(Untouched(x));
}

}  // namespace
}  // namespace quorvan::testing

// Smoothing by local polynomials.
#include <cmath>
#include <gtest/gtest.h>

#include "quorvan/quorvan.h"
#include "tests/support/failing_heap.h"
#include "tests/support/guarded.h"

namespace quorvan::testing {
namespace {

Reals Polynomial(int n, std::initializer_list<double> coefficients) {
    Reals x(n);
    for (int i = 0; i < n; ++i) {
        double power = 1;
        for (double c : coefficients) {
            x[i] += c * power;
            power *= i;
        }
    }
    return x;
}

TEST(SavitzkyGolayFilter, ReproducesEveryQuadraticWithItsEnds) {
    for (int n : {5, 6, 9, 40}) {
        const Reals x = Polynomial(n, {3, -2, 0.5});
        Reals y = Output(n);
        EXPECT_EQ(ZemFunc356(x, n, 2, 2, nullptr, y), 0);
        for (int i = 0; i < n; ++i) EXPECT_NEAR(y[i], x[i], 100 * kEpsilon * n * n) << n << ' ' << i;
    }
}

TEST(SavitzkyGolayDesign, GivesTheTabulatedQuadraticSmoother) {
    // Savitzky and Golay's table: -3, 12, 17, 12, -3 over 35.
    Reals smoother = Output(25), derivatives = Output(15);
    EXPECT_EQ(ZemFunc355(2, 2, nullptr, 1, smoother, derivatives), 0);
    const double table[] = {-3, 12, 17, 12, -3};
    for (int i = 0; i < 5; ++i) {
        EXPECT_NEAR(smoother[10 + i], table[i] / 35, 10 * kEpsilon);
        EXPECT_NEAR(derivatives[i], table[i] / 35, 10 * kEpsilon) << "the constant term is the value in the middle";
        EXPECT_NEAR(derivatives[5 + i], (i - 2) / 10.0, 10 * kEpsilon);
    }
    const double second[] = {2, -1, -2, -1, 2};
    for (int i = 0; i < 5; ++i) EXPECT_NEAR(derivatives[10 + i], second[i] / 14, 10 * kEpsilon);
}

TEST(SavitzkyGolayDesign, WithTheFlagClearLeavesTheDerivativesUntouched) {
    Reals smoother = Output(25), derivatives = Output(15);
    EXPECT_EQ(ZemFunc355(2, 2, nullptr, 0, smoother, derivatives), 0);
    EXPECT_TRUE(Untouched(derivatives));
    EXPECT_EQ(ZemFunc355(2, 2, nullptr, 0, smoother, nullptr), 0);
}

TEST(SavitzkyGolayDesign, SmootherIsAProjection) {
    Reals smoother(49);
    const Reals weights{1, 2, -3, 4, 5, 6, 7};
    for (const double* w : {static_cast<const double*>(nullptr), weights.data()}) {
        ASSERT_EQ(ZemFunc355(3, 3, w, 0, smoother, nullptr), 0);
        for (int i = 0; i < 7; ++i)
            for (int j = 0; j < 7; ++j) {
                double sum = 0;
                for (int k = 0; k < 7; ++k) sum += smoother[7 * i + k] * smoother[7 * k + j];
                EXPECT_NEAR(sum, smoother[7 * i + j], 200 * kEpsilon);
            }
    }
}

TEST(SavitzkyGolayDesign, WeightsCountByMagnitudeAndAWeightOfZeroLeavesItsSampleOut) {
    const Reals weights{1, 2, 0, 4, 5}, turned{-1, 2, -0.0, -4, 5};
    Reals a(25), b(25);
    ASSERT_EQ(ZemFunc355(2, 2, weights, 0, a, nullptr), 0);
    ASSERT_EQ(ZemFunc355(2, 2, turned, 0, b, nullptr), 0);
    EXPECT_EQ(a.values(), b.values());
    for (int i = 0; i < 5; ++i) EXPECT_EQ(a[5 * i + 2], 0);
}

TEST(SavitzkyGolayFilter, IsTheRowsOfTheSmoother) {
    const int n = 30, side = 3, frame = 7;
    const Reals x = RandomReals(n), weights = RandomReals(frame, 8);
    Reals smoother(frame * frame), y = Output(n);
    ASSERT_EQ(ZemFunc355(3, side, weights, 0, smoother, nullptr), 0);
    ASSERT_EQ(ZemFunc356(x, n, 3, side, weights, y), 0);
    for (int t = 0; t < n; ++t) {
        const int start = std::clamp(t - side, 0, n - frame), row = t - start;
        double sum = 0;
        for (int k = 0; k < frame; ++k) sum += smoother[row * frame + k] * x[start + k];
        EXPECT_NEAR(y[t], sum, 20 * kEpsilon * frame) << t;
    }
}

TEST(SavitzkyGolayFilterComplex, SmoothsItsPartsAsRealSignals) {
    const int n = 25;
    const Records x = RandomRecords(n);
    Records y = RecordOutput(n), in_place = x;
    ASSERT_EQ(ZemFunc357(x, n, 2, 3, nullptr, y), 0);
    for (double ComplexRecord::*part : {&ComplexRecord::re, &ComplexRecord::im}) {
        Reals signal(n), smooth(n);
        for (int t = 0; t < n; ++t) signal[t] = x[t].*part;
        ASSERT_EQ(ZemFunc356(signal, n, 2, 3, nullptr, smooth), 0);
        for (int t = 0; t < n; ++t) EXPECT_EQ(y[t].*part, smooth[t]);
        Reals same = signal;
        ASSERT_EQ(ZemFunc356(same, n, 2, 3, nullptr, same), 0);
        EXPECT_EQ(same.values(), smooth.values());
    }
    ASSERT_EQ(ZemFunc357(in_place, n, 2, 3, nullptr, in_place), 0);
    EXPECT_EQ(std::memcmp(in_place.data(), y.data(), n * sizeof(ComplexRecord)), 0);
}

TEST(SavitzkyGolayFilter, ChecksStandInOrder) {
    const Reals x(10, 1);
    const Records z(10);
    Reals y = Output(100);
    Records w = RecordOutput(10);
    EXPECT_EQ(ZemFunc356(x, kTooLarge, 0, 1, nullptr, y), -20046);
    EXPECT_EQ(ZemFunc357(z, kTooLarge, 0, 1, nullptr, w), -20046);
    for (int order : {0, -1}) {
        EXPECT_EQ(ZemFunc355(order, -1, nullptr, 1, y, y), -20063);
        EXPECT_EQ(ZemFunc356(x, 1, order, -1, nullptr, y), -20063);
        EXPECT_EQ(ZemFunc357(z, 1, order, -1, nullptr, w), -20063);
    }
    for (int side : {0, 1, -1, INT32_MIN}) {
        EXPECT_EQ(ZemFunc355(3, side, nullptr, 1, y, y), -20037);
        EXPECT_EQ(ZemFunc356(x, 1, 3, side, nullptr, y), -20037);
        EXPECT_EQ(ZemFunc357(z, 1, 3, side, nullptr, w), -20037);
    }
    for (Size n : {Size{6}, Size{0}, Size{-1}}) {
        EXPECT_EQ(ZemFunc356(x, n, 3, 3, nullptr, y), -20008);
        EXPECT_EQ(ZemFunc357(z, n, 3, 3, nullptr, w), -20008);
    }
    EXPECT_EQ(ZemFunc355(1, 1 << 30, nullptr, 1, y, y), -20046);
    EXPECT_EQ(ZemFunc356(x, 10, 1, 1 << 30, nullptr, y), -20008);
    EXPECT_TRUE(Untouched(y) && Untouched(w));
}

TEST(SavitzkyGolayDesign, WeightsThatLeaveNothingOrAreNotFiniteAreRefused) {
    Reals y = Output(25);
    EXPECT_EQ(ZemFunc355(2, 2, Reals(5, 0.0), 0, y, nullptr), -20041);
    EXPECT_EQ(ZemFunc355(2, 2, Reals{1, 1, kNaN, 1, 1}, 0, y, nullptr), -20068);
    EXPECT_EQ(ZemFunc355(2, 2, Reals{1, 1, kInf, 1, 1}, 0, y, nullptr), -20068);
    EXPECT_EQ(ZemFunc356(Reals(9), 9, 2, 2, Reals(5, 0.0), y), -20041);
    EXPECT_TRUE(Untouched(y));
}

TEST(SavitzkyGolayFilter, EveryAllocationFails) {
    const Reals x(10, 1);
    const Records z(10);
    Reals y(10), smoother(25), derivatives(15);
    Records w(10);
    ExpectEveryAllocationFails([&] { return ZemFunc355(2, 2, nullptr, 1, smoother, derivatives); });
    ExpectEveryAllocationFails([&] { return ZemFunc356(x, 10, 2, 2, nullptr, y); });
    ExpectEveryAllocationFails([&] { return ZemFunc357(z, 10, 2, 2, nullptr, w); });
    Reals same(10, 1);
    ExpectEveryAllocationFails([&] { return ZemFunc356(same, 10, 2, 2, nullptr, same); });
}

}  // namespace
}  // namespace quorvan::testing

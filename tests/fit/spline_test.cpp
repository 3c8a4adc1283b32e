// Cubic splines: second derivatives and evaluation.
#include <cmath>
#include <gtest/gtest.h>

#include "quorvan/quorvan.h"
#include "tests/support/failing_heap.h"
#include "tests/support/guarded.h"

namespace quorvan::testing {
namespace {

constexpr double kNatural = 1e30;

Reals Second(const Reals& x, const Reals& y, double first = kNatural, double last = kNatural) {
    Reals second = Output(x.size());
    EXPECT_EQ(ZemFunc164(x, y, x.size(), first, last, second), 0);
    return second;
}

double Evaluate(const Reals& x, const Reals& y, const Reals& second, double point) {
    double result = kUnwritten;
    EXPECT_EQ(ZemFunc163(x, y, second, x.size(), point, &result), 0);
    return result;
}

TEST(InterpSplineSecondDerivatives, OfOneSampleAreZero) { EXPECT_EQ(Second({3}, {4})[0], 0); }

TEST(InterpSplineSecondDerivatives, VanishAtNaturalEnds) {
    const Reals second = Second({0, 1, 2.5, 3}, {1, 5, -2, 0});
    EXPECT_EQ(second[0], 0);
    EXPECT_EQ(second[3], 0);
}

TEST(InterpSplineSecondDerivatives, TheLimitItselfIsADerivative) {
    EXPECT_NE(Second({0, 1, 2}, {1, 5, 2}, 9.9e29, kNatural)[0], 0);
    EXPECT_EQ(Second({0, 1, 2}, {1, 5, 2}, std::nextafter(9.9e29, kInf), kNatural)[0], 0);
    EXPECT_NE(Second({0, 1, 2}, {1, 5, 2}, kNatural, 9.9e29)[2], 0);
}

TEST(InterpSplineSecondDerivatives, WithTheTrueDerivativesOfACubicAreThoseOfTheCubic) {
    const Reals x{-1, 0, 0.5, 2, 3.25};  // x³ - 2x: derivatives 3x² - 2, 6x
    Reals y(5);
    for (int i = 0; i < 5; ++i) y[i] = x[i] * x[i] * x[i] - 2 * x[i];
    const Reals second = Second(x, y, 1, 3 * 3.25 * 3.25 - 2);
    for (int i = 0; i < 5; ++i) EXPECT_NEAR(second[i], 6 * x[i], 1e-13) << i;
    for (double point : {-0.7, 0.2, 1.9, 3.0})
        EXPECT_NEAR(Evaluate(x, y, second, point), point * point * point - 2 * point, 1e-13);
}

TEST(InterpSplineSecondDerivatives, OfTwoSamplesNaturalIsALine) {
    const Reals x{1, 3}, y{2, 8};
    const Reals second = Second(x, y);
    EXPECT_EQ(second[0], 0);
    EXPECT_EQ(second[1], 0);
    EXPECT_EQ(Evaluate(x, y, second, 2), 5);
}

TEST(InterpSplineSecondDerivatives, EqualNeighboursStopTheSweepAndLeavePartialValues) {
    const Reals x{0, 1, 2, 2, 5}, y{1, 2, 3, 4, 5};
    Reals second = Output(5);
    EXPECT_EQ(ZemFunc164(x, y, 5, kNatural, kNatural, second), -20049);
    EXPECT_EQ(second[0], 0);
    EXPECT_NE(second[1], kUnwritten);
    EXPECT_EQ(second[2], kUnwritten);
}

TEST(InterpSplineSecondDerivatives, EqualSecondNeighboursStopTheSweepToo) {
    Reals second = Output(3);
    EXPECT_EQ(ZemFunc164(Reals{1, 2, 1}, Reals{1, 2, 3}, 3, kNatural, kNatural, second), -20049);
}

TEST(InterpSplineSecondDerivatives, TwoEqualSamplesAreNotTested) {
    // The sweep has no inner sample to test at: a natural spline stays finite there.
    EXPECT_EQ(Second({1, 1}, {2, 3})[1], 0);
}

TEST(InterpSplineEvaluate, OnDescendingAbscissasEqualsTheReversedData) {
    const Reals x{0, 0.7, 2, 3.5, 4}, y{1, -2, 0.5, 3, 2};
    const Reals xr{4, 3.5, 2, 0.7, 0}, yr{2, 3, 0.5, -2, 1};
    const Reals second = Second(x, y);
    Reals reversed(std::vector<double>(second.end() - 5, second.end()));
    std::reverse(reversed.begin(), reversed.end());
    for (double point : {-0.5, 0.0, 0.3, 0.7, 1.4, 3.5, 3.9, 4.0, 5.0}) {
        const double value = Evaluate(x, y, second, point);
        EXPECT_NEAR(Evaluate(xr, yr, reversed, point), value, 4 * kEpsilon * (1 + std::fabs(value))) << point;
    }
}

TEST(InterpSplineEvaluate, GoesOnBeyondTheEndsWithTheEndInterval) {
    // 0, 1 with second derivatives 0 and 6: x³ on the interval, and beyond it.
    const Reals x{0, 1}, y{0, 1}, second{0, 6};
    EXPECT_EQ(Evaluate(x, y, second, 2), 8);
    EXPECT_EQ(Evaluate(x, y, second, -1), -1);
}

TEST(InterpSplineEvaluate, RefusesAnIntervalOfWidthZero) {
    double result = kUnwritten;
    EXPECT_EQ(ZemFunc163(Reals{1, 1}, Reals{2, 3}, Reals{0, 0}, 2, 1, &result), -20049);
    EXPECT_EQ(ZemFunc163(Reals{1}, Reals{2}, Reals{0}, 1, 1, &result), -20049);
    EXPECT_EQ(result, kUnwritten);
}

TEST(InterpSplineEvaluate, BisectsToTheLastOfThePointsNotAboveIt) {
    // At a sample of ascending data the interval to its right answers: the sample itself, exactly.
    const Reals x{0, 1, 2, 3}, y{5, 6, 8, 1}, second{0, 1, 2, 0};
    for (int i = 0; i < 4; ++i) EXPECT_EQ(Evaluate(x, y, second, i), y[i]);
}

TEST(InterpSplineSecondDerivatives, SizesBelowOneAndTooLargeSizesAreRefused) {
    const Reals x{1, 2}, y{1, 2};
    Reals out = Output(2);
    for (Size n : {Size{0}, Size{-1}}) {
        EXPECT_EQ(ZemFunc164(x, y, n, 0, 0, out), -20003);
        EXPECT_EQ(ZemFunc163(x, y, x, n, 0, out), -20003);
    }
    EXPECT_EQ(ZemFunc164(x, y, kTooLarge, 0, 0, out), -20046);
    EXPECT_EQ(ZemFunc163(x, y, x, kTooLarge, 0, out), -20046);
    EXPECT_TRUE(Untouched(out));
}

TEST(InterpSplineSecondDerivatives, EveryAllocationFails) {
    const Reals x{1, 2, 3}, y{1, 2, 5};
    Reals second(3);
    ExpectEveryAllocationFails([&] { return ZemFunc164(x, y, 3, kNatural, kNatural, second); });
}

}  // namespace
}  // namespace quorvan::testing

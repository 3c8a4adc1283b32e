// The robust engines for a linear design. No export opens them, so they are called as the library does.
#include "fit/robust_fit.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <numeric>
#include <vector>

#include "fit/fit_errors.h"
#include "fit/general_fit.h"
#include "fit/polynomial_fit.h"
#include "tests/support/failing_heap.h"
#include "tests/support/guarded.h"

namespace quorvan::testing {
namespace {

using Values = std::vector<double>;

// A line with noise, of which three of ten samples are far off.
struct Contaminated {
    explicit Contaminated(int n) : x(n), y(n), design(2 * n), m(n) {
        const Reals noise = RandomReals(n, 11);
        for (int i = 0; i < n; ++i) {
            x[i] = 0.1 * i - 1;
            y[i] = 2 - 3 * x[i] + 0.05 * noise[i] + (i % 10 < 3 ? 20 + i : 0);
            design[2 * i] = 1;
            design[2 * i + 1] = x[i];
        }
    }
    Reals x, y, design;
    Count m;
};

// An independent weighted line through the 2 by 2 normal equations about the weighted mean.
Values LineThrough(const Reals& x, const Reals& y, const Values& w) {
    double sw = 0, mx = 0, my = 0, sxx = 0, sxy = 0;
    for (std::size_t i = 0; i < w.size(); ++i) sw += w[i], mx += w[i] * x[i], my += w[i] * y[i];
    mx /= sw, my /= sw;
    for (std::size_t i = 0; i < w.size(); ++i)
        sxx += w[i] * (x[i] - mx) * (x[i] - mx), sxy += w[i] * (x[i] - mx) * (y[i] - my);
    return {my - sxy / sxx * mx, sxy / sxx};
}
double MedianOf(Values v) {
    std::sort(v.begin(), v.end());
    return v.size() % 2 ? v[v.size() / 2] : (v[v.size() / 2 - 1] + v[v.size() / 2]) / 2;
}
double MeanAbsolute(const Contaminated& data, const Values& c, const Values& w) {
    double sum = 0;
    for (int i = 0; i < data.m; ++i) sum += std::fabs(w[i] * (data.y[i] - c[0] - c[1] * data.x[i]));
    return sum / data.m;
}

// The loop told once more, for a line and selector 4's weights.
Values AbsoluteModel(const Contaminated& data, const Values& given, int limit, double tolerance, double* error) {
    Values weights = given, c = LineThrough(data.x, data.y, given), before, last = given;
    const double first = MeanAbsolute(data, c, given);
    double previous = 2 * first, current = first;
    for (int count = 0;; ++count) {
        if (count > 0 && (count >= limit || previous * tolerance >= std::fabs(previous - current))) break;
        Values r(data.m);
        for (int i = 0; i < data.m; ++i) r[i] = std::fabs(data.y[i] - c[0] - c[1] * data.x[i]);
        double t = 0.01 * MedianOf(r);
        if (t == 0) t = 1e-7;
        before = last;
        for (int i = 0; i < data.m; ++i) last[i] = given[i] / std::max(t, r[i]);
        c = LineThrough(data.x, data.y, last);
        previous = current;
        current = MeanAbsolute(data, c, given);
    }
    Values chosen = last;
    if (current >= previous && first >= previous) chosen = before;
    if (previous >= first && current >= first) chosen = given;
    c = LineThrough(data.x, data.y, chosen);
    *error = MeanAbsolute(data, c, given);
    return c;
}

TEST(FitLeastAbsoluteCore, FollowsTheModelOfTheLoop) {
    const Contaminated data(50);
    for (bool weighted : {false, true})
        for (int limit : {1, 2, 3, 7, 50}) {
            Values given(50, 1.0);
            Reals weights(50, 1.0);
            for (int i = 0; weighted && i < 50; ++i) given[i] = 1 + i % 3, weights[i] = -given[i];
            double expected_error = 0, error = 0;
            const Values expected = AbsoluteModel(data, given, limit, 1e-4, &expected_error);
            Reals c = Output(2);
            EXPECT_EQ(FitLeastAbsoluteCore(data.design, 50, 2, data.y, weighted ? weights.data() : nullptr, c, nullptr,
                                           &error, nullptr, kFitSingularValues, limit, -1, -1),
                      0);
            // Weights over four decades: some 1e4 roundings in the normal equations of the model.
            EXPECT_NEAR(c[0], expected[0], 1e-10) << limit;
            EXPECT_NEAR(c[1], expected[1], 1e-10) << limit;
            EXPECT_NEAR(error, expected_error, 1e-10) << limit;
        }
}

TEST(FitLeastAbsoluteCore, IsAlmostUntouchedByThreeOutliersInTen) {
    const Contaminated data(100);
    Reals c = Output(2), curve = Output(100), cov = Output(4);
    double error = kUnwritten, recomputed = 0;
    EXPECT_EQ(FitLeastAbsoluteCore(data.design, 100, 2, data.y, nullptr, c, curve, &error, cov, kFitQr, 50, 0, 1e-12),
              0);
    // The noise is within 0.05; the median of what is left lies inside.
    EXPECT_NEAR(c[0], 2, 0.05);
    EXPECT_NEAR(c[1], -3, 0.05);
    for (int i = 0; i < 100; ++i) EXPECT_NEAR(curve[i], c[0] + c[1] * data.x[i], 1e-13);
    EXPECT_EQ(FitMeanAbsoluteError(curve, data.y, nullptr, 100, &recomputed), 0);
    EXPECT_EQ(error, recomputed);
    EXPECT_GT(cov[0], 0);
}

TEST(FitLeastAbsoluteCore, ATieWithTheFirstFitGoesToTheFirstFit) {
    // The mean of 0 and 1 is as good as any value between: all errors are 0.5, and the first fit is the mean itself.
    Reals c = Output(1), weights{1, 1};
    double error = kUnwritten;
    EXPECT_EQ(FitLeastAbsoluteCore(Reals{1, 1}, 2, 1, Reals{0, 1}, weights, c, nullptr, &error, nullptr,
                                   kFitSingularValues, 50, -1, -1),
              0);
    EXPECT_NEAR(c[0], 0.5, 1e-15);
    EXPECT_NEAR(error, 0.5, 1e-15);
}

TEST(FitLeastAbsoluteCore, IteratesOnceEvenAtALimitOfZeroAndWithAHugeSmallestError) {
    const Contaminated data(50);
    Reals once = Output(2), none = Output(2), huge = Output(2);
    double error = 0;
    const auto fit = [&](Count limit, double smallest, double* c) {
        return FitLeastAbsoluteCore(data.design, 50, 2, data.y, nullptr, c, nullptr, &error, nullptr, 0, limit, -1,
                                    smallest);
    };
    EXPECT_EQ(fit(1, -1, once), 0);
    EXPECT_EQ(fit(0, -1, none), 0);
    EXPECT_EQ(fit(50, 1e9, huge), 0);
    EXPECT_EQ(none.values(), once.values());
    EXPECT_EQ(huge.values(), once.values());
}

TEST(FitLeastAbsoluteCore, Statuses) {
    const Contaminated data(10);
    Reals c = Output(2);
    double error = kUnwritten;
    const auto fit = [&](const double* y, Count m, Count n, std::uint32_t selector) {
        return FitLeastAbsoluteCore(data.design, m, n, y, nullptr, c, nullptr, &error, nullptr, selector, 5, -1, -1);
    };
    EXPECT_EQ(fit(data.y, 1, 2, 9), -20037);
    EXPECT_EQ(fit(data.y, 0, 0, 9), -20021);
    EXPECT_EQ(fit(data.y, 10, 2, 9), -20061);
    EXPECT_TRUE(Untouched(c));
    EXPECT_EQ(error, kUnwritten);
    Reals y = data.y;
    y[4] = kNaN;
    EXPECT_EQ(fit(y, 10, 2, 0), -20104) << "the median of the residuals";
    ExpectEveryAllocationFails([&] { return fit(data.y, 10, 2, 0); });
}

// Bisquare

Values BisquareModel(const Contaminated& data, const Values& given, int limit, double tolerance, int* iterations) {
    const int m = data.m;
    Values c = LineThrough(data.x, data.y, given), weights = given, factor(m);
    double s0 = 0, s1 = 0, s2 = 0;
    for (int i = 0; i < m; ++i) s0 += given[i], s1 += given[i] * data.x[i], s2 += given[i] * data.x[i] * data.x[i];
    for (int i = 0; i < m; ++i) {
        const double x = data.x[i], h = (s2 - 2 * x * s1 + x * x * s0) / (s0 * s2 - s1 * s1);
        factor[i] = h > 0.9999 ? std::sqrt(given[i] / 9.999999999998899e-5) : std::sqrt(given[i] / (1 - h));
    }
    *iterations = 0;
    Values old(2);
    const auto error = [&] {
        double sum = 0;
        for (int i = 0; i < m; ++i) sum += weights[i] * std::pow(data.y[i] - c[0] - c[1] * data.x[i], 2);
        return sum / m;
    };
    const auto still = [&] {
        return std::fabs(c[0] - old[0]) <= std::fabs(c[0]) * tolerance &&
               std::fabs(c[1] - old[1]) <= std::fabs(c[1]) * tolerance;
    };
    while (error() > tolerance * 1e-4 && (*iterations == 0 || (*iterations < limit && !still()))) {
        Values r(m), d(m);
        for (int i = 0; i < m; ++i) r[i] = (data.y[i] - c[0] - c[1] * data.x[i]) * factor[i];
        const double median = MedianOf(r);
        for (int i = 0; i < m; ++i) d[i] = std::fabs(r[i] - median);
        if (std::fabs(median) >= *std::max_element(d.begin(), d.end()))
            for (int i = 0; i < m; ++i) d[i] = std::fabs(r[i]);
        double s = MedianOf(d);
        if (s == 0) s = std::accumulate(d.begin(), d.end(), 0.0) / m;
        if (s == 0) break;
        for (int i = 0; i < m; ++i) {
            const double u = r[i] * 0.6745 / (s * 4.685);
            weights[i] = given[i] * (std::fabs(u) >= 1 ? 0 : std::pow(1 - u * u, 2));
        }
        old = c;
        c = LineThrough(data.x, data.y, weights);
        ++*iterations;
    }
    return c;
}

TEST(FitBisquareCore, FollowsTheModelOfTheLoop) {
    const Contaminated data(50);
    for (bool weighted : {false, true})
        for (int limit : {0, 1, 2, 5, 50}) {
            Values given(50, 1.0);
            Reals weights(50, 1.0);
            for (int i = 0; weighted && i < 50; ++i) given[i] = 0.1 + 0.01 * (i % 3), weights[i] = -given[i];
            int expected_count = 0;
            const Values expected = BisquareModel(data, given, limit, 1e-4, &expected_count);
            Reals c = Output(2);
            Count count = limit;
            double error = 0;
            EXPECT_EQ(FitBisquareCore(data.design, 50, 2, data.y, weighted ? weights.data() : nullptr, c, nullptr,
                                      &error, nullptr, kFitSingularValues, &count, -1, false),
                      0);
            EXPECT_EQ(count, expected_count);
            EXPECT_NEAR(c[0], expected[0], 1e-11) << limit;
            EXPECT_NEAR(c[1], expected[1], 1e-11) << limit;
        }
}

TEST(FitBisquareCore, ForgetsThreeOutliersInTen) {
    const Contaminated data(100);
    Reals c = Output(2), curve = Output(100), cov = Output(4), weights(100, 1.0);
    double error = kUnwritten;
    Count limit = 50;
    EXPECT_EQ(FitBisquareCore(data.design, 100, 2, data.y, weights, c, curve, &error, cov, kFitQr, &limit, 0, true), 0);
    EXPECT_NEAR(c[0], 2, 0.02);
    EXPECT_NEAR(c[1], -3, 0.02);
    EXPECT_LT(limit, 50);
    for (int i = 0; i < 100; ++i) {
        if (i % 10 < 3)
            EXPECT_EQ(weights[i], 0) << i;
        else
            EXPECT_GT(weights[i], 0) << i;
    }
    double recomputed = 0;
    FitMeanSquaredError(data.y, curve, weights, 100, &recomputed);
    EXPECT_EQ(error, recomputed) << "the error under the last weights, which were copied back";
}

TEST(FitBisquareCore, KeepsTheGivenWeightsUnlessToldOtherwise) {
    const Contaminated data(50);
    Reals weights(50, 1.0), c(2);
    double error = 0;
    Count limit = 50;
    EXPECT_EQ(FitBisquareCore(data.design, 50, 2, data.y, weights, c, nullptr, &error, nullptr, 0, &limit, 0, false),
              0);
    EXPECT_EQ(weights.values(), Values(50, 1.0));
}

TEST(FitBisquareCore, APerfectFitTakesNoIteration) {
    const Reals x{0, 1, 2, 3}, design{1, 0, 1, 1, 1, 2, 1, 3};
    Reals c = Output(2);
    double error = kUnwritten;
    Count limit = 9;
    EXPECT_EQ(
        FitBisquareCore(design, 4, 2, Reals{1, 3, 5, 7}, nullptr, c, nullptr, &error, nullptr, 0, &limit, 0, false), 0);
    EXPECT_EQ(limit, 0);
    EXPECT_NEAR(c[1], 2, 1e-14);
}

TEST(FitBisquareCore, AsManyWeightsOfZeroAsSamplesBeyondTheOrderAreNoFeasibleSolution) {
    // Thirty samples with a coefficient of their own, which leave no residual, and three with a common mean: beside the
    // scale of all, the residuals of the three are outliers.
    constexpr int kOwn = 30, kSamples = kOwn + 3, kColumns = kOwn + 1;
    Reals design(kSamples * kColumns), y(kSamples), c = Output(kColumns);
    for (int i = 0; i < kSamples; ++i) {
        design[i * kColumns + std::min(i, kOwn)] = 1;
        y[i] = i;
    }
    y[kSamples - 1] = 1000;
    double error = kUnwritten;
    Count limit = 9;
    EXPECT_EQ(FitBisquareCore(design, kSamples, kColumns, y, nullptr, c, nullptr, &error, nullptr, 0, &limit, 0, false),
              -20116);
    EXPECT_EQ(limit, 9);
}

TEST(FitBisquareCore, Statuses) {
    const Contaminated data(10);
    Reals c = Output(2), weights(10, 1.0);
    double error = kUnwritten;
    Count limit = 5;
    const auto fit = [&](const double* design, const double* y, double* w, Count m, Count n, std::uint32_t selector) {
        limit = 5;
        return FitBisquareCore(design, m, n, y, w, c, nullptr, &error, nullptr, selector, &limit, -1, false);
    };
    EXPECT_EQ(fit(data.design, data.y, nullptr, 1, 2, 9), -20037);
    EXPECT_EQ(fit(data.design, data.y, nullptr, 0, 0, 9), -20021);
    for (double bad : {kNaN, kInf, 1.7976931348623157e308}) {
        Reals y = data.y, design = data.design, w = weights;
        y[9] = design[19] = w[9] = bad;
        EXPECT_EQ(fit(data.design, y, nullptr, 10, 2, 9), -20068);
        EXPECT_EQ(fit(design, data.y, nullptr, 10, 2, 9), -20068);
        EXPECT_EQ(fit(data.design, data.y, w, 10, 2, 9), -20068);
    }
    EXPECT_EQ(fit(data.design, data.y, nullptr, 10, 2, 9), -20061);
    EXPECT_TRUE(Untouched(c));
    EXPECT_EQ(error, kUnwritten);
    Reals y = data.y;
    y[0] = 1e200;
    EXPECT_EQ(fit(data.design, y, nullptr, 10, 2, 0), -20116) << "the error is infinite";
    ExpectEveryAllocationFails([&] { return fit(data.design, data.y, weights, 10, 2, 0); });
}

TEST(FitPolynomialCore, ReachesTheRobustMethodsOnBothWays) {
    const Contaminated data(100);
    const Count order = 1, outside[] = {7}, fixed_orders[] = {0};
    const double value[] = {2};
    for (const auto kind : {PolynomialMethod::kLeastAbsolute, PolynomialMethod::kBisquare})
        for (const FixedCoefficients& fixed :
             {FixedCoefficients{nullptr, nullptr, 0}, FixedCoefficients{outside, value, 1},
              FixedCoefficients{fixed_orders, value, 1}}) {
            Count iterations = 50;
            Reals x = data.x, c = Output(2), curve = Output(100);
            double error = kUnwritten;
            EXPECT_EQ(FitPolynomialCore(x, data.y, nullptr, 100, order, fixed, curve, c, &error,
                                        {kFitSingularValues, kind, -1, -1, &iterations}),
                      0);
            EXPECT_NEAR(c[0], 2, 0.05);
            EXPECT_NEAR(c[1], -3, 0.05);
            EXPECT_NEAR(curve[99], c[0] + c[1] * data.x[99], 1e-13);
            EXPECT_NE(error, kUnwritten);
            EXPECT_EQ(iterations < 50, kind == PolynomialMethod::kBisquare);
        }
}

}  // namespace
}  // namespace quorvan::testing

// Levenberg-Marquardt fits of the caller's model.
#include <cmath>
#include <gtest/gtest.h>
#include <vector>

#include "quorvan/quorvan.h"
#include "tests/support/entry_address.h"
#include "tests/support/failing_heap.h"
#include "tests/support/guarded.h"

namespace quorvan::testing {
namespace {

double Decay(double x, double* a, std::int32_t) { return a[0] * std::exp(-a[1] * x); }
double Line(double x, double* a, std::int32_t) { return a[0] + a[1] * x; }

Reals Grid(int n) {
    Reals x(n);
    for (int i = 0; i < n; ++i) x[i] = 0.1 * i;
    return x;
}

// 1000·exp(-0.7x), so large that the change of chi-square below 0.001 leaves many digits.
Reals DecayOf(const Reals& x) {
    Reals y(x.size());
    for (std::size_t i = 0; i < x.size(); ++i) y[i] = 1000 * std::exp(-0.7 * x[i]);
    return y;
}

TEST(FitNonlinear, RecoversTheCoefficientsOfNoiselessData) {
    const Reals x = Grid(40), y = DecayOf(x);
    Reals fitted = Output(40), a{800, 0.4};
    double error = kUnwritten;
    EXPECT_EQ(ZemFunc130(x, y, fitted, 40, Decay, a, 2, &error), 0);
    EXPECT_NEAR(a[0], 1000, 1e-6);
    EXPECT_NEAR(a[1], 0.7, 1e-9);
    double sum = 0;
    for (int i = 0; i < 40; ++i) {
        EXPECT_EQ(fitted[i], Decay(x[i], a, 2));
        sum += (fitted[i] - y[i]) * (fitted[i] - y[i]);
    }
    EXPECT_EQ(error, sum / 40);
}

TEST(FitNonlinear, AliasesAreTheSameEntries) {
    EXPECT_EQ(EntryAddress(ZemFunc339), EntryAddress(ZemFunc130));
    EXPECT_EQ(EntryAddress(ZemFunc338), EntryAddress(ZemFunc131));
    EXPECT_EQ(EntryAddress(ZemFunc375), EntryAddress(ZemFunc374));
}

TEST(FitNonlinear, TheCurveAndTheErrorAreWrittenOnlyTogether) {
    const Reals x = Grid(10), y = DecayOf(x);
    Reals fitted = Output(10), a{800, 0.4}, b = a;
    double error = kUnwritten;
    EXPECT_EQ(ZemFunc130(x, y, fitted, 10, Decay, a, 2, nullptr), 0);
    EXPECT_TRUE(Untouched(fitted));
    EXPECT_EQ(ZemFunc130(x, y, nullptr, 10, Decay, b, 2, &error), 0);
    EXPECT_EQ(error, kUnwritten);
    EXPECT_EQ(a.values(), b.values()) << "the fit itself is the same";
}

TEST(FitNonlinear, WithAsManyCoefficientsAsSamplesIsAllowed) {
    Reals a{0, 0};
    EXPECT_EQ(ZemFunc130(Reals{1, 3}, Reals{500, 900}, nullptr, 2, Line, a, 2, nullptr), 0);
    EXPECT_NEAR(a[0], 300, 1e-6);
    EXPECT_NEAR(a[1], 200, 1e-6);
}

TEST(FitNonlinearLimited, ALimitOfZeroDescribesTheInitialGuess) {
    const Reals x = Grid(5), y{1, 2, 3, 4, 5};
    Reals fitted = Output(5), a{7, 0};
    double error = kUnwritten;
    EXPECT_EQ(ZemFunc131(x, y, fitted, 5, 0, Line, a, 2, &error), 0);
    EXPECT_EQ(fitted.values(), std::vector<double>(5, 7.0));
    EXPECT_EQ(error, (36 + 25 + 16 + 9 + 4) / 5.0);
    EXPECT_EQ(a.values(), (std::vector<double>{7, 0}));
}

TEST(FitNonlinearLimited, ALimitOfZeroOnAPerfectGuessHasNoConvergenceToShow) {
    Reals fitted = Output(2), a{1, 1};
    double error = kUnwritten;
    EXPECT_EQ(ZemFunc131(Reals{0, 1}, Reals{1, 2}, fitted, 2, 0, Line, a, 2, &error), -20062);
    EXPECT_EQ(fitted.values(), (std::vector<double>{1, 2})) << "the results are produced all the same";
    EXPECT_EQ(error, 0);
}

TEST(FitNonlinearLimited, AtTheLimitTheLastTwoChiSquaresDecide) {
    const Reals x = Grid(40), y = DecayOf(x);
    Reals fitted = Output(40), a{500, 0.2};
    double error = kUnwritten;
    EXPECT_EQ(ZemFunc131(x, y, fitted, 40, 1, Decay, a, 2, &error), -20062);
    EXPECT_NE(a[0], 500) << "the accepted step stays";
    EXPECT_NE(error, kUnwritten);
}

TEST(FitNonlinearLimited, ANegativeLimitIsNone) {
    const Reals x = Grid(40), y = DecayOf(x);
    Reals a{800, 0.4}, b = a;
    EXPECT_EQ(ZemFunc130(x, y, nullptr, 40, Decay, a, 2, nullptr), 0);
    for (int limit : {-1, -7, INT32_MIN}) {
        Reals c = b;
        EXPECT_EQ(ZemFunc131(x, y, nullptr, 40, limit, Decay, c, 2, nullptr), 0);
        EXPECT_EQ(c.values(), a.values());
    }
}

// What the model was asked for.
struct Call {
    double x;
    double a[2];
};
std::vector<Call> calls;
double Recorded(double x, double* a, std::int32_t m) {
    EXPECT_EQ(m, 2);
    calls.push_back({x, {a[0], a[1]}});
    return Line(x, a, m);
}

TEST(FitNonlinear, CallsTheModelInSampleOrderCoefficientByCoefficient) {
    calls.clear();
    Reals a{2, 0};
    EXPECT_EQ(ZemFunc131(Reals{5, 6}, Reals{1, 2}, nullptr, 2, 0, Recorded, a, 2, nullptr), 0);
    const double h0 = 3e-06 * 2, h1 = 3e-06 * std::sqrt(2.220446049250313e-16);
    const std::vector<std::vector<double>> points{
        {2, 0}, {2 + h0, 0}, {(2 + h0) - 2 * h0, 0}, {2, h1}, {2, h1 - 2 * h1}};
    ASSERT_EQ(calls.size(), 10u);
    for (int i = 0; i < 10; ++i) {
        EXPECT_EQ(calls[i].x, i < 5 ? 5 : 6) << i;
        EXPECT_EQ(calls[i].a[0], points[i % 5][0]) << i;
        EXPECT_EQ(calls[i].a[1], points[i % 5][1]) << i;
    }
}

TEST(FitNonlinear, RestoresEachCoefficientExactly) {
    Reals a{0.1, 1e-300};
    EXPECT_EQ(ZemFunc131(Reals{5, 6}, Reals{1, 2}, nullptr, 2, 0, Line, a, 2, nullptr), 0);
    EXPECT_EQ(a.values(), (std::vector<double>{0.1, 1e-300}));
}

// Chi-squares as a script: the model answers so that each trial has the wanted one.
std::vector<double> script;
std::size_t next_answer = 0;
double trial_at = 0;
double Scripted(double, double* a, std::int32_t) {
    // A trial is a call further from the last one than the differences of 3e-6 for the gradient.
    if (std::fabs(a[0] - trial_at) > 5e-6 * std::fabs(trial_at)) {
        trial_at = a[0];
        if (next_answer + 1 < script.size()) ++next_answer;
    }
    return std::sqrt(script[next_answer]) + 1e-3 * (a[0] - trial_at);
}
std::int32_t IterationsOf(std::vector<double> chi_squares) {
    script = std::move(chi_squares);
    next_answer = 0;
    trial_at = 1e6;
    Reals a{1e6};
    double fitted = 0;
    std::int32_t iterations = -1;
    EXPECT_EQ(ZemFunc374(Reals{0}, Reals{0}, nullptr, &fitted, 1, 50, Scripted, a, 1, nullptr, &iterations), 0);
    return iterations;
}

TEST(FitNonlinear, ASecondSmallChangeEndsTheFit) { EXPECT_EQ(IterationsOf({400, 399.9999, 399.9998, 100, 50}), 2); }

TEST(FitNonlinear, ARejectedStepBetweenTwoSmallChangesRestartsTheCount) {
    // small, rejected, small, small
    EXPECT_EQ(IterationsOf({400, 399.9999, 500, 399.9998, 399.9997, 50}), 4);
}

TEST(FitNonlinear, ALargeChangeBetweenTwoSmallOnesDoesNotRestartTheCount) {
    EXPECT_EQ(IterationsOf({400, 399.9999, 200, 199.9999, 50}), 3);
}

double NotANumber(double, double*, std::int32_t) { return kNaN; }
double NaNBeyond(double x, double* a, std::int32_t m) { return a[0] > 3 ? kNaN : Line(x, a, m); }

TEST(FitNonlinear, AModelOfNaNEndsTheFitWithoutAnError) {
    const Reals x{0, 1, 2}, y{10, 11, 12};
    Reals a{1, 1};
    EXPECT_EQ(ZemFunc130(x, y, nullptr, 3, NotANumber, a, 2, nullptr), 0);
    EXPECT_EQ(a.values(), (std::vector<double>{1, 1}));
    // A trial of NaN chi-square is no larger one, so it is accepted; the next diagonal then ends the fit.
    EXPECT_EQ(ZemFunc130(x, y, nullptr, 3, NaNBeyond, a, 2, nullptr), 0);
    EXPECT_GT(a[0], 3);
}

double Infinite(double, double* a, std::int32_t) { return kInf * a[0]; }

TEST(FitNonlinear, AModelOfInfinitiesEnds) {
    Reals a{1};
    EXPECT_EQ(ZemFunc130(Reals{0, 1}, Reals{1, 2}, nullptr, 2, Infinite, a, 1, nullptr), 0);
}

TEST(FitNonlinear, AnInfiniteOrdinateEndsTheFitQuietly) {
    for (double bad : {kNaN, kInf}) {
        Reals a{1, 2};
        EXPECT_EQ(ZemFunc130(Reals{0, 1, 2}, Reals{1, bad, 3}, nullptr, 3, Line, a, 2, nullptr), 0);
        EXPECT_EQ(a.values(), (std::vector<double>{1, 2}));
    }
}

TEST(FitNonlinear, ADiagonalThatOverflowsEndsTheFitWithWhatWasAccepted) {
    // Worse wherever it goes, however short the step: the damping grows until the diagonal is infinite.
    const auto worse = [](double, double* a, std::int32_t) { return a[0] == 1e-300 ? 1.0 : 2.0 + 1e300 * a[0]; };
    Reals a{1e-300};
    EXPECT_EQ(ZemFunc130(Reals{0}, Reals{0}, nullptr, 1, worse, a, 1, nullptr), 0);
    EXPECT_EQ(a[0], 1e-300);
}

TEST(FitNonlinear, ACircleOfStepsWithoutEffectAndRejectionsEnds) {
    // Damped until the step has no effect, the trial is accepted; with less damping it is rejected; and so on.
    const auto jump = [](double, double* a, std::int32_t) { return a[0] == 1 ? 1.0 : 2.0 + a[0]; };
    Reals a{1};
    EXPECT_EQ(ZemFunc130(Reals{0}, Reals{0}, nullptr, 1, jump, a, 1, nullptr), 0);
    EXPECT_EQ(a[0], 1);
}

TEST(FitNonlinear, ACrawlOfStepsThatLowerNextToNothingEnds) {
    // Every other trial is rejected, and clears the small change before it; the others lower chi-square by 2e-13 of it.
    static double level;
    static int curvature_calls, trials;
    level = 0.01;
    curvature_calls = 3;
    trials = 0;
    const auto crawl = [](double, double* a, std::int32_t) {
        if (curvature_calls == 3 || curvature_calls == 0) {
            if (curvature_calls-- == 3) return level;
            curvature_calls = 0;
            if (++trials % 2) return 2 * level;
            curvature_calls = 3;
            return level *= 1 - 1e-13;
        }
        --curvature_calls;
        return a[0];
    };
    Reals a{1};
    EXPECT_EQ(ZemFunc130(Reals{0}, Reals{0}, nullptr, 1, crawl, a, 1, nullptr), 0);
    EXPECT_EQ(trials, 20001);
}

TEST(FitNonlinear, ChecksStandInOrder) {
    const Reals x = Grid(4), y{1, 2, 3, 4};
    Reals fitted = Output(4), a{1, 1};
    double error = kUnwritten;
    EXPECT_EQ(ZemFunc130(x, y, fitted, kTooLarge, Line, a, 2, &error), -20046);
    EXPECT_EQ(ZemFunc130(x, y, fitted, 0, Line, a, 2, &error), -20003);
    EXPECT_EQ(ZemFunc130(x, y, fitted, -1, Line, a, 0, &error), -20003);
    EXPECT_EQ(ZemFunc130(x, y, fitted, 4, Line, a, 0, &error), -20003);
    EXPECT_EQ(ZemFunc130(x, y, fitted, 1, Line, a, 2, &error), -20037);
    EXPECT_EQ(ZemFunc131(x, y, fitted, 1, 0, Line, a, 2, &error), -20037);
    EXPECT_TRUE(Untouched(fitted));
    EXPECT_EQ(error, kUnwritten);
    EXPECT_EQ(a.values(), (std::vector<double>{1, 1}));
}

// Weights

TEST(FitNonlinearWeighted, SamplesOfWeightZeroAreLeftOutButHaveACurve) {
    const Reals x{0, 1, 2, 3}, weights{1, 0, 2, -4};
    Reals y{1000, -77777, 3000, 4000}, fitted = Output(4), a{0, 0};
    double error = kUnwritten;
    std::int32_t iterations = -1;
    EXPECT_EQ(ZemFunc374(x, y, weights, fitted, 4, -1, Line, a, 2, &error, &iterations), 0);
    EXPECT_NEAR(a[0], 1000, 1e-6);
    EXPECT_NEAR(a[1], 1000, 1e-6);
    EXPECT_NEAR(fitted[1], 2000, 1e-6);
    EXPECT_GT(iterations, 1);
    EXPECT_NEAR(error, 0, 1e-9) << "the sample without weight adds nothing";
}

TEST(FitNonlinearWeighted, TheErrorIsTheWeightedSumOverAllSamples) {
    const Reals x{0, 1, 2, 3}, y{5, 1, 4, 8}, weights{1, 0, -2, 4};
    Reals fitted = Output(4), a{1, 1};
    double error = kUnwritten;
    EXPECT_EQ(ZemFunc374(x, y, weights, fitted, 4, 0, Line, a, 2, &error, nullptr), 0);
    EXPECT_EQ(fitted.values(), (std::vector<double>{1, 2, 3, 4}));
    EXPECT_EQ(error, (16 * 1 + 1 * 0 + 1 * 2 + 16 * 4) / 4.0);
}

TEST(FitNonlinearWeighted, AllWeightsZeroFitLikeNoneWithAnErrorOfZero) {
    const Reals x = Grid(20), y = DecayOf(x);
    Reals fitted = Output(20), a{800, 0.4}, b = a;
    double error = kUnwritten;
    EXPECT_EQ(ZemFunc374(x, y, Reals(20, 0.0), fitted, 20, -1, Decay, a, 2, &error, nullptr), 0);
    EXPECT_EQ(error, 0);
    EXPECT_EQ(ZemFunc374(x, y, nullptr, fitted, 20, -1, Decay, b, 2, &error, nullptr), 0);
    EXPECT_EQ(a.values(), b.values());
}

TEST(FitNonlinearWeighted, WithoutACurveThereIsNoErrorEither) {
    const Reals x = Grid(20), y = DecayOf(x);
    Reals a{800, 0.4};
    double error = kUnwritten;
    EXPECT_EQ(ZemFunc374(x, y, nullptr, nullptr, 20, -1, Decay, a, 2, &error, nullptr), 0);
    EXPECT_EQ(error, kUnwritten);
}

TEST(FitNonlinearWeighted, AtTheLimitNoCurveAndNoErrorAreWritten) {
    const Reals x = Grid(40), y = DecayOf(x);
    Reals fitted = Output(40), a{500, 0.2};
    double error = kUnwritten;
    std::int32_t iterations = -1;
    EXPECT_EQ(ZemFunc374(x, y, nullptr, fitted, 40, 1, Decay, a, 2, &error, &iterations), -20062);
    EXPECT_TRUE(Untouched(fitted));
    EXPECT_EQ(error, kUnwritten);
    EXPECT_EQ(iterations, 1) << "the loop reached its limit";
}

TEST(FitNonlinearWeighted, AWeightThatIsNotFiniteIsRefusedWithIterationsZero) {
    const Reals x = Grid(4), y{1, 2, 3, 4};
    for (double bad : {kNaN, kInf, -kInf}) {
        Reals weights{1, 1, 1, bad}, fitted = Output(4), a{1, 1};
        double error = kUnwritten;
        std::int32_t iterations = -1;
        EXPECT_EQ(ZemFunc374(x, y, weights, fitted, 4, -1, Line, a, 0, &error, &iterations), -20068);
        EXPECT_EQ(iterations, 0);
        EXPECT_TRUE(Untouched(fitted));
    }
}

TEST(FitNonlinearWeighted, CountsOnlySamplesWithAWeight) {
    Reals a{1, 1};
    std::int32_t iterations = -1;
    EXPECT_EQ(ZemFunc374(Grid(3), Reals{1, 2, 3}, Reals{0, 5, 0}, nullptr, 3, -1, Line, a, 2, nullptr, &iterations),
              -20037);
    EXPECT_EQ(iterations, 0);
    iterations = -1;
    EXPECT_EQ(ZemFunc374(Grid(3), Reals{1, 2, 3}, nullptr, nullptr, kTooLarge, -1, Line, a, 2, nullptr, &iterations),
              -20046);
    EXPECT_EQ(iterations, -1) << "nothing is touched when a size does not narrow";
    EXPECT_EQ(ZemFunc374(Grid(3), Reals{1, 2, 3}, Reals{1, 1, 1}, nullptr, 0, -1, Line, a, 2, nullptr, &iterations),
              -20003);
}

TEST(FitNonlinear, EveryAllocationFails) {
    const Reals x = Grid(6), y = DecayOf(x), weights{1, 2, 1, 0, 1, 1};
    Reals fitted(6);
    double error;
    ExpectEveryAllocationFails([&] {
        Reals a{800, 0.4};
        return ZemFunc130(x, y, fitted, 6, Decay, a, 2, &error);
    });
    ExpectEveryAllocationFails([&] {
        Reals a{800, 0.4};
        return ZemFunc374(x, y, weights, fitted, 6, -1, Decay, a, 2, &error, nullptr);
    });
}

}  // namespace
}  // namespace quorvan::testing

// Bands about fitted models and the goodness of fit.
#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <tuple>
#include <vector>

#include "quorvan/quorvan.h"
#include "tests/support/failing_heap.h"
#include "tests/support/guarded.h"

namespace quorvan::testing {
namespace {

using Values = std::vector<double>;

struct Call {
    Reals x, y;
    Size n;
    std::uint32_t type = 0;
    double level = 0.95;
    Reals c;
    const double* weights = nullptr;
    Reals upper, lower, half = Output(3);

    Call(const Reals& x, const Reals& y, const Reals& c, std::uint32_t type = 0, const double* weights = nullptr)
        : x(x),
          y(y),
          n(static_cast<Size>(x.size())),
          type(type),
          c(c),
          weights(weights),
          upper(Output(x.size())),
          lower(Output(x.size())) {}
    bool BandsUntouched() const { return Untouched(upper) && Untouched(lower); }
};

struct Model {
    const char* name;
    Count coefficients;
    std::function<Status(Call&)> bounds;
    Status too_few;
};

const Model kModels[] = {
    {"line", 2,
     [](Call& k) {
         return ZemFunc293(k.x, k.y, k.weights, k.n, k.type, k.level, k.c[0], k.c[1], k.upper, k.lower, &k.half[0],
                           &k.half[1]);
     },
     -20007},
    {"exponential", 2,
     [](Call& k) {
         return ZemFunc291(k.x, k.y, k.weights, k.n, k.type, k.level, k.c[0], k.c[1], k.upper, k.lower, &k.half[0],
                           &k.half[1]);
     },
     -20007},
    {"power", 2,
     [](Call& k) {
         return ZemFunc295(k.x, k.y, k.weights, k.n, k.type, k.level, k.c[0], k.c[1], k.upper, k.lower, &k.half[0],
                           &k.half[1]);
     },
     -20007},
    {"logarithm", 2,
     [](Call& k) {
         return ZemFunc294(k.x, k.y, k.weights, k.n, 2.71828, k.type, k.level, k.c[0], k.c[1], k.upper, k.lower,
                           &k.half[0], &k.half[1]);
     },
     -20007},
    {"gaussian", 3,
     [](Call& k) {
         return ZemFunc292(k.x, k.y, k.weights, k.n, k.type, k.level, k.c[0], k.c[1], k.c[2], k.upper, k.lower,
                           &k.half[0], &k.half[1], &k.half[2]);
     },
     -20069},
};
const Model& kLine = kModels[0];
const Model& kPower = kModels[2];
const Model& kGaussian = kModels[4];

const Reals kX{0.5, 1, 1.5, 2, 2.5, 3};
const Reals kY{1, 2.1, 2.9, 4.2, 5, 5.9};
const Reals kC{1.5, 1, 0.8};

TEST(FitBounds, ChecksStandInOrder) {
    const Reals bad_c{kNaN, 1, 0.8};
    for (const Model& model : kModels) {
        SCOPED_TRACE(model.name);
        for (std::uint32_t type : {0u, 1u, 2u}) {
            Call big(kX, kY, bad_c, type);
            big.n = kTooLarge;
            EXPECT_EQ(model.bounds(big), -20046);
            EXPECT_TRUE(big.BandsUntouched() && Untouched(big.half)) << "narrowing touches nothing";
        }
        for (std::uint32_t type : {2u, 0xFFFFFFFFu}) {
            Call bad(kX, kY, bad_c, type);
            bad.n = 0;
            EXPECT_EQ(model.bounds(bad), -20061) << "the type before n";
            EXPECT_TRUE(bad.BandsUntouched() && Untouched(bad.half));
        }
        for (std::uint32_t type : {0u, 1u}) {
            const auto expect = [&](Call call, Status expected) {
                EXPECT_EQ(model.bounds(call), expected);
                EXPECT_TRUE(call.BandsUntouched());
                for (int j = 0; j < model.coefficients; ++j)
                    EXPECT_EQ(call.half[j], type == 0 ? 0 : kUnwritten) << "zeros from the confidence path alone";
            };
            for (Size n : {Size{-1}, Size{0}, Size{model.coefficients}}) {
                Call few(kX, kY, bad_c, type);
                few.n = n;
                few.level = 2;
                expect(few, model.too_few);
            }
            for (double bad : {kNaN, kInf, 1.7976931348623157e308, -1.7976931348623157e308})
                for (int j = 0; j < model.coefficients; ++j) {
                    Call call(kX, kY, kC, type);
                    call.c[j] = bad;
                    call.level = 2;
                    expect(call, -20068);
                }
            for (double level : {0.0, 1.0, -0.5, 1.5, kNaN, kInf}) {
                Call call(kX, kY, kC, type);
                call.level = level;
                call.x[0] = -1;
                expect(call, -20053);
            }
            Call nan_x(kX, kY, kC, type);
            nan_x.x[2] = kNaN;
            expect(nan_x, -20068);
            const Reals nan_weights{1, 1, kNaN, 1, 1, 1};
            expect(Call(kX, kY, kC, type, nan_weights), -20068);
        }
    }
}

TEST(FitBoundsGaussian, AWidthOfZeroComesBeforeOtherCoefficientsAndBehindN) {
    Call call(kX, kY, Reals{kNaN, 1, 0}), few(kX, kY, Reals{kNaN, 1, 0});
    few.n = 3;
    EXPECT_EQ(kGaussian.bounds(call), -20026);
    EXPECT_EQ(kGaussian.bounds(few), -20069);
    Call negative(kX, kY, Reals{5, 2, -1});
    EXPECT_EQ(kGaussian.bounds(negative), 0) << "only 0 is no width";
}

TEST(FitBoundsPower, AnAbscissaAtOrBelowZeroIsRefused) {
    for (double bad : {0.0, -1.0})
        for (std::uint32_t type : {0u, 1u}) {
            Call call(kX, kY, kC, type);
            call.x[5] = bad;
            EXPECT_EQ(kPower.bounds(call), -20140);
            EXPECT_TRUE(call.BandsUntouched());
        }
}

TEST(FitBoundsLogarithm, ABaseAtOrBelowZeroIsTheNaturalOne) {
    const auto half = [](double base) {
        Call k(kX, kY, kC);
        EXPECT_EQ(ZemFunc294(k.x, k.y, nullptr, k.n, base, 0, 0.9, 1.5, 1, k.upper, k.lower, &k.half[0], &k.half[1]),
                  0);
        return k.half.values();
    };
    EXPECT_EQ(half(0), half(2.71828));
    EXPECT_EQ(half(-1), half(2.71828));
    EXPECT_NE(half(10), half(2.71828));
}

// x = -1, 0, 1, 2 less their mean: G = [1/4 + m²/S, -m/S; -m/S, 1/S] with m = 0.5, S = 5.
TEST(FitBoundsLine, IsTheClosedForm) {
    const Reals x{-1, 0, 1, 2}, y{0, 2, 1, 3};
    // At the coefficients 0.8 and 1.1 the residuals are 0.3, -0.9, 0.9, -0.3: s² = 1.8 / 2.
    Call call(x, y, Reals{0.8, 1.1});
    EXPECT_EQ(kLine.bounds(call), 0);
    const double t = call.half[0] / std::sqrt(0.9 / 5);
    EXPECT_NEAR(t, 4.302652729911275, 1e-4) << "the quantile's own accuracy";
    EXPECT_NEAR(call.half[1], t * std::sqrt(0.9 * (0.25 + 0.25 / 5)), 1e-13) << "slope first, intercept second";
    for (int i = 0; i < 4; ++i) {
        const double h = t * std::sqrt(0.9 * (0.25 + (x[i] - 0.5) * (x[i] - 0.5) / 5));
        EXPECT_NEAR(call.upper[i], 0.8 * x[i] + 1.1 + h, 1e-13);
        EXPECT_NEAR(call.lower[i], 0.8 * x[i] + 1.1 - h, 1e-13);
    }
    Call band(x, y, Reals{0.8, 1.1}, 1);
    EXPECT_EQ(kLine.bounds(band), 0);
    for (int i = 0; i < 4; ++i) {
        const double h = t * std::sqrt(0.9 * (1.25 + (x[i] - 0.5) * (x[i] - 0.5) / 5));
        EXPECT_NEAR(band.upper[i], 0.8 * x[i] + 1.1 + h, 1e-13);
    }
    EXPECT_TRUE(Untouched(band.half)) << "no half-widths from the prediction path";
}

TEST(FitBounds, OneDegreeOfFreedomIsLargeButFinite) {
    for (const Model& model : kModels) {
        const std::size_t n = model.coefficients + 1;
        Reals x(n), y(n);
        for (std::size_t i = 0; i < n; ++i) x[i] = kX[i], y[i] = kY[i];
        Call call(x, y, kC);
        call.level = 0.99;
        EXPECT_EQ(model.bounds(call), 0);
        EXPECT_TRUE(std::isfinite(call.upper[0]));
        EXPECT_GT(call.upper[0] - call.lower[0], 1);
    }
}

TEST(FitBounds, AZeroWeightGivesAnInfinitePredictionBandThere) {
    for (const Model& model : kModels) {
        const Reals weights{1, 1, 0, 1, 1, 1};
        Call call(kX, kY, kC, 1, weights);
        EXPECT_EQ(model.bounds(call), 0) << model.name;
        EXPECT_EQ(call.upper[2], kInf);
        EXPECT_EQ(call.lower[2], -kInf);
        EXPECT_TRUE(std::isfinite(call.upper[1]));
        Call confidence(kX, kY, kC, 0, weights);
        EXPECT_EQ(model.bounds(confidence), 0);
        EXPECT_TRUE(std::isfinite(confidence.upper[2]));
    }
}

TEST(FitBounds, WeightsCountByMagnitudeButInTheLinesConfidenceBand) {
    const Reals plus{1, 2, 1, 3, 1, 1}, mixed{1, 2, -1, 3, 1, -1};
    for (const Model& model : kModels)
        for (std::uint32_t type : {0u, 1u}) {
            Call a(kX, kY, kC, type, plus), b(kX, kY, kC, type, mixed);
            EXPECT_EQ(model.bounds(a), 0);
            EXPECT_EQ(model.bounds(b), 0);
            EXPECT_EQ(a.upper.values() != b.upper.values(), &model == &kLine && type == 0) << model.name << type;
        }
}

TEST(FitBounds, OfAPerfectFitTheBandIsTheCurve) {
    Call call(Reals{1, 2, 3, 4}, Reals{3, 5, 7, 9}, Reals{2, 1});
    EXPECT_EQ(kLine.bounds(call), 0);
    EXPECT_EQ(call.upper.values(), (Values{3, 5, 7, 9}));
    EXPECT_EQ(call.lower.values(), (Values{3, 5, 7, 9}));
    EXPECT_EQ(call.half[0], 0);
}

TEST(FitBounds, AnOrdinateOfNaNIsNotScreened) {
    Call call(kX, kY, kC);
    call.y[1] = kNaN;
    EXPECT_EQ(kLine.bounds(call), 0);
    EXPECT_TRUE(std::isnan(call.upper[0]));
}

TEST(FitBounds, EveryAllocationFails) {
    for (const Model& model : kModels)
        for (std::uint32_t type : {0u, 1u}) {
            const Reals weights{1, 1, 2, 1, 1, 1};
            Call call(kX, kY, kC, type, weights);
            ExpectEveryAllocationFails([&] { return model.bounds(call); });
            Call failed(kX, kY, kC, type, weights);
            FailAllocation(0);
            EXPECT_EQ(model.bounds(failed), -20001);
            FailAllocation(-1);
            EXPECT_EQ(failed.half[0], type == 0 ? 0 : kUnwritten);
        }
}

// Goodness

struct Goodness {
    double sse = kUnwritten, r_square = kUnwritten, rmse = kUnwritten;
    Status status;
    Goodness(const Reals& y, const Reals& fitted, const double* weights, Size n, Size dof)
        : status(ZemFunc284(y, fitted, weights, n, dof, &sse, &r_square, &rmse)) {}
    bool Untouched() const { return sse == kUnwritten && r_square == kUnwritten && rmse == kUnwritten; }
};

TEST(FitGoodness, IsItsFormulas) {
    const Reals y{1, 2, 4, 5}, fitted{1, 3, 4, 4};
    const Goodness g(y, fitted, nullptr, 4, 3);
    EXPECT_EQ(g.status, 0);
    EXPECT_EQ(g.sse, 2);
    EXPECT_EQ(g.rmse, std::sqrt(2.0 / 3));
    EXPECT_EQ(g.r_square, 1 - 2.0 / 10);
    for (Size dof : {0, -1, -5}) EXPECT_EQ(Goodness(y, fitted, nullptr, 4, dof).rmse, 1) << "n - 2";
}

TEST(FitGoodness, WeightsKeepTheirSignAndLeaveTheMeanAlone) {
    const Reals y{1, 2, 4, 5}, fitted{1, 3, 4, 4}, weights{1, 2, 3, -1};
    const Goodness g(y, fitted, weights, 4, 3);
    EXPECT_EQ(g.sse, 2 - 1);
    EXPECT_EQ(g.r_square, 1 - 1.0 / (4 + 2 + 3 - 4));
}

TEST(FitGoodness, OfAConstantIsOneForAPerfectFitAndInfiniteForAnother) {
    const Reals y{3, 3, 3};
    const Goodness perfect(y, y, nullptr, 3, 1), poor(y, Reals{3, 3, 4}, nullptr, 3, 1);
    EXPECT_EQ(perfect.r_square, 1);
    EXPECT_EQ(perfect.sse, 0);
    EXPECT_EQ(poor.r_square, kInf);
}

TEST(FitGoodness, TwoSamplesWithoutDegreesOfFreedomDivideByZero) {
    const Goodness g(Reals{1, 2}, Reals{1, 3}, nullptr, 2, 0);
    EXPECT_EQ(g.status, 0);
    EXPECT_EQ(g.rmse, kInf);
    EXPECT_TRUE(std::isnan(Goodness(Reals{1, 2}, Reals{1, 2}, nullptr, 2, 0).rmse));
}

TEST(FitGoodness, ChecksStandInOrder) {
    const Reals y{1, 2, 3};
    for (const auto& [n, dof, expected] : std::vector<std::tuple<Size, Size, Status>>{{kTooLarge, 5, -20046},
                                                                                      {0, kTooLarge, -20046},
                                                                                      {3, -kTooLarge - 1, -20046},
                                                                                      {1, 5, -20006},
                                                                                      {-1, 5, -20006},
                                                                                      {3, 3, -20052},
                                                                                      {3, 4, -20052}}) {
        const Goodness g(y, y, nullptr, n, dof);
        EXPECT_EQ(g.status, expected);
        EXPECT_TRUE(g.Untouched());
    }
}

}  // namespace
}  // namespace quorvan::testing

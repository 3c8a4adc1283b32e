// Integration of sampled data: statuses, rules and rests, exactness, laws.
#include <cmath>
#include <gtest/gtest.h>

#include "quorvan/quorvan.h"
#include "tests/support/guarded.h"

namespace quorvan::testing {
namespace {

constexpr double kU = 0x1p-53;
constexpr Status kWrongDataCount = -20008, kOverflow = -20046, kInvalidSelection = -20061;

double Integral(const Reals& x, double dt, std::uint32_t rule) {
    Reals out = Output(1);
    EXPECT_EQ(ZemFunc230(x, static_cast<Size>(x.size()), dt, rule, out), 0);
    return out[0];
}

Reals Power(std::size_t n, int degree) {
    Reals x(n);
    for (std::size_t i = 0; i < n; ++i) x[i] = std::pow(static_cast<double>(i), degree);
    return x;
}

TEST(IntegrateSamples, RefusesTooFewSamplesForTheRule) {
    const Reals x(5, 1.0);
    for (std::uint32_t rule = 0; rule < 4; ++rule) {
        for (Size n = -1; n < 2 + static_cast<Size>(rule); ++n) {
            Reals out = Output(1);
            EXPECT_EQ(ZemFunc230(x, n, 1, rule, out), kWrongDataCount) << rule << ' ' << n;
            EXPECT_TRUE(Untouched(out));
        }
        Reals out = Output(1);
        EXPECT_EQ(ZemFunc230(x, 2 + static_cast<Size>(rule), 1, rule, out), 0) << rule;
        EXPECT_EQ(ZemFunc230(x, INT32_MIN, 1, rule, out), kWrongDataCount) << rule;
    }
}

TEST(IntegrateSamples, RefusesRulesAboveThreeWhateverTheSize) {
    const Reals x(9, 1.0);
    for (std::uint32_t rule : {4u, 100u, 0x80000000u, 0xFFFFFFFFu}) {
        for (Size n : {-1, 0, 1, 9}) {
            Reals out = Output(1);
            EXPECT_EQ(ZemFunc230(x, n, 1, rule, out), kInvalidSelection) << rule << ' ' << n;
            EXPECT_TRUE(Untouched(out));
        }
    }
}

TEST(IntegrateSamples, RefusesSizesBeyond32BitsBeforeAnythingElse) {
    for (Size n : {Size{1} << 31, -(Size{1} << 31) - 1, Size{1} << 32, (Size{1} << 32) + 5}) {
        for (std::uint32_t rule : {0u, 3u, 7u}) {
            Reals out = Output(1);
            EXPECT_EQ(ZemFunc230(nullptr, n, 1, rule, out), kOverflow) << n;
            EXPECT_TRUE(Untouched(out));
        }
    }
}

TEST(IntegrateSamples, OfThreeOnesBySimpsonIsTwo) { EXPECT_EQ(Integral({1, 1, 1}, 1, 1), 2); }

TEST(IntegrateSamples, BySimpsonOnFourSamplesEndsInATrapezoid) {
    EXPECT_EQ(Integral({1, 2, 7, 11}, 3, 1), 3.0 / 3 * (1 + 4 * 2 + 7) + (7 + 11) * 3.0 / 2);
}

TEST(IntegrateSamples, ByBooleOnSixSamplesEndsInATrapezoid) {
    const double boole = 45.0 / 45 * (14 * 1 + 64 * 2 + 24 * 7 + 64 * 11 + 14 * 5);
    EXPECT_EQ(Integral({1, 2, 7, 11, 5, 3}, 45, 3), boole + (5 + 3) * 45.0 / 2);
}

TEST(IntegrateSamples, ByThreeEighthsIsExactForACubeOnFourSamples) { EXPECT_EQ(Integral(Power(4, 3), 1, 2), 81.0 / 4); }

TEST(IntegrateSamples, TakesNegativeStepsLikePositiveOnes) {
    const Reals x = RandomReals(23);
    for (std::uint32_t rule = 0; rule < 4; ++rule) {
        EXPECT_EQ(Integral(x, -1, rule), Integral(x, 1, rule));
        EXPECT_EQ(Integral(x, -0.37, rule), Integral(x, 0.37, rule));
    }
}

TEST(IntegrateSamples, AddsEveryRestByItsOwnRule) {
    const double h = 0.3;
    for (std::size_t n = 4; n < 20; ++n) {
        const Reals x = RandomReals(n, 7);
        const double* end = x.end();
        const double rests[] = {0, (end[-2] + end[-1]) * h / 2, (end[-3] + 4 * end[-2] + end[-1]) * h / 3,
                                (3 * (end[-4] + end[-1]) + 9 * (end[-3] + end[-2])) * h / 8};
        for (std::uint32_t rule = 1; rule < 4; ++rule) {
            const std::size_t width = rule + 1, left = (n - 1) % width;
            if (n < width + 1) continue;
            const Reals whole(std::vector<double>(x.begin(), x.end() - left));
            const double panels = Integral(whole, h, rule);
            EXPECT_EQ(Integral(x, h, rule), left == 0 ? panels : panels + rests[left]) << rule << ' ' << n;
        }
    }
}

TEST(IntegrateSamples, IsExactUpToTheDegreeOfItsWeakestPiece) {
    // Of whole panels degrees 1, 3, 3, 5; of a rest of one interval 1, of two or three 3.
    constexpr int kDegree[] = {1, 3, 3, 5};
    for (std::uint32_t rule = 0; rule < 4; ++rule) {
        const int width = static_cast<int>(rule) + 1;
        for (int n = width + 1; n < 30; ++n) {
            const int left = (n - 1) % width;
            const int degree = left == 1 ? 1 : left == 0 ? kDegree[rule] : 3;
            for (int d = 0; d <= degree; ++d) {
                const double exact = std::pow(n - 1.0, d + 1) / (d + 1);
                // Sums of positive terms: a rounding for each panel and some for the weights.
                EXPECT_NEAR(Integral(Power(n, d), 1, rule), exact, (n + 8) * kU * exact)
                    << rule << ' ' << n << ' ' << d;
            }
        }
    }
}

TEST(IntegrateSamples, ConvergesWithTheOrderOfItsRule) {
    // Twice the samples: the error of the trapezoid falls by 4, of Simpson's rules by 16, of Boole's by 64.
    constexpr double kOrder[] = {4, 16, 16, 64};
    const auto error = [](int intervals, std::uint32_t rule) {
        Reals x(intervals + 1);
        for (int i = 0; i <= intervals; ++i) x[i] = std::exp(static_cast<double>(i) / intervals);
        return Integral(x, 1.0 / intervals, rule) - std::expm1(1.0);
    };
    for (std::uint32_t rule = 0; rule < 4; ++rule) {
        EXPECT_NEAR(error(12, rule) / error(24, rule), kOrder[rule], 0.02 * kOrder[rule]) << rule;
    }
}

TEST(IntegrateSamples, LetsNaNAndInfinityPropagate) {
    for (std::uint32_t rule = 0; rule < 4; ++rule) {
        EXPECT_TRUE(std::isnan(Integral({1, 2, kNaN, 4, 5}, 1, rule)));
        EXPECT_EQ(Integral({1, 2, kInf, 4, 5}, 1, rule), kInf);
        EXPECT_TRUE(std::isnan(Integral({1, 2, 3, 4, 5}, kNaN, rule)));
        EXPECT_EQ(Integral({1, 2, 3, 4, 5}, 0, rule), 0);
    }
}

}  // namespace
}  // namespace quorvan::testing

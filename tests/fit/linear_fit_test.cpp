// The general linear fit and the polynomial fits.
#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <vector>

#include "quorvan/quorvan.h"
#include "tests/support/failing_heap.h"
#include "tests/support/guarded.h"
#include "tests/support/targets.h"

namespace quorvan::testing {
namespace {

using Indices = Guarded<std::int32_t>;
using Values = std::vector<double>;

constexpr std::uint32_t kSelectors = 7;

// y = 1 + 2x at 0, 1, 2, 3.
const Reals kLineDesign(Values{1, 0, 1, 1, 1, 2, 1, 3});
const Reals kLine(Values{1, 3, 5, 7});

// The general fit

TEST(FitGeneralLinear, EverySelectorRecoversALine) {
    for (std::uint32_t selector = 0; selector < kSelectors; ++selector) {
        Reals c = Output(2);
        EXPECT_EQ(ZemFunc239(kLineDesign, 4, 2, kLine, c, selector), 0);
        EXPECT_NEAR(c[0], 1, 1e-14) << selector;
        EXPECT_NEAR(c[1], 2, 1e-14) << selector;
    }
}

TEST(FitGeneralLinear, Selectors1To3AreOne) {
    const Reals design = RandomReals(40, 3), y = RandomReals(10, 4);
    Reals one(4), two(4), three(4);
    EXPECT_EQ(ZemFunc239(design, 10, 4, y, one, 1), 0);
    EXPECT_EQ(ZemFunc239(design, 10, 4, y, two, 2), 0);
    EXPECT_EQ(ZemFunc239(design, 10, 4, y, three, 3), 0);
    EXPECT_EQ(one.values(), two.values());
    EXPECT_EQ(one.values(), three.values());
}

TEST(FitGeneralLinear, ChecksStandInOrder) {
    Reals c = Output(2);
    EXPECT_EQ(ZemFunc239(nullptr, kTooLarge, 0, nullptr, c, 9), -20046);
    EXPECT_EQ(ZemFunc239(nullptr, 0, kTooLarge, nullptr, c, 9), -20046);
    EXPECT_EQ(ZemFunc239(nullptr, -1, 0, nullptr, c, 9), -20021);
    EXPECT_EQ(ZemFunc239(nullptr, 5, -1, nullptr, c, 9), -20021);
    EXPECT_EQ(ZemFunc239(nullptr, 1, 2, nullptr, c, 9), -20037);
    EXPECT_EQ(ZemFunc239(nullptr, 4, 2, nullptr, c, 7), -20061);
    EXPECT_EQ(ZemFunc239(nullptr, 4, 2, nullptr, c, static_cast<std::uint32_t>(-1)), -20061) << "unsigned";
    EXPECT_EQ(ZemFunc239(nullptr, 1 << 20, 1 << 11, nullptr, c, 0), -20046) << "2^31 elements";
    EXPECT_TRUE(Untouched(c));
}

TEST(FitGeneralLinear, AsManyObservationsAsCoefficientsInterpolate) {
    Reals c = Output(1);
    for (std::uint32_t selector = 0; selector < kSelectors; ++selector) {
        EXPECT_EQ(ZemFunc239(Reals{4}, 1, 1, Reals{2}, c, selector), 0);
        EXPECT_DOUBLE_EQ(c[0], 0.5);
    }
}

// Two columns, the second exactly twice the first where the elements are powers of two.
TEST(FitGeneralLinear, OfASingularDesignSingularValuesGiveTheSmallestSolutionAndTheOthersTheirStatus) {
    const Reals zero_column{1, 0, 2, 0, 4, 0}, y{5, 10, 20};
    Reals c = Output(2);
    for (std::uint32_t selector : {0u, 6u}) {
        EXPECT_EQ(ZemFunc239(zero_column, 3, 2, y, c, selector), 0);
        EXPECT_NEAR(c[0], 5, 1e-14);
        EXPECT_EQ(c[1], 0);
    }
    for (std::uint32_t selector : {1u, 2u, 3u, 4u}) EXPECT_EQ(ZemFunc239(zero_column, 3, 2, y, c, selector), -20041);
    EXPECT_EQ(ZemFunc239(zero_column, 3, 2, y, c, 5), -20071);
}

TEST(FitGeneralLinear, Selector6DropsWhatSelector0DividesBy) {
    // Columns equal up to rounding: s(1) is some 1e-17 of s(0) and not 0.
    const double third = 1.0 / 3;
    Reals design(12), y(6), kept = Output(2), dropped = Output(2);
    for (int i = 0; i < 6; ++i) {
        design[2 * i] = (i + 1) * third;
        design[2 * i + 1] = i == 3 ? std::nextafter((i + 1) * third, 9) : (i + 1) * third;
        y[i] = 2 * (i + 1) * third;
    }
    y[3] += 1;
    EXPECT_EQ(ZemFunc239(design, 6, 2, y, kept, 0), 0);
    EXPECT_EQ(ZemFunc239(design, 6, 2, y, dropped, 6), 0);
    EXPECT_GT(std::fabs(kept[0]), 1e12);
    EXPECT_NEAR(dropped[0], dropped[1], 1e-14) << "the shortest of all solutions splits evenly";
}

TEST(FitGeneralLinear, ContentIsScreenedByAllSelectorsButTheLuOnes) {
    for (double bad : {kNaN, kInf, -kInf, 1.7976931348623157e308}) {
        Reals design = kLineDesign, c = Output(2);
        design[5] = bad;
        for (std::uint32_t selector : {0u, 1u, 2u, 3u, 5u, 6u})
            EXPECT_EQ(ZemFunc239(design, 4, 2, kLine, c, selector), -20068) << selector;
        EXPECT_NE(ZemFunc239(design, 4, 2, kLine, c, 4), -20068);
    }
    Reals design = kLineDesign, c = Output(2);
    design[5] = kNaN;
    EXPECT_EQ(ZemFunc239(design, 4, 2, kLine, c, 4), 0);
    EXPECT_TRUE(std::isnan(c[1]));
}

TEST(FitGeneralLinear, AnOrdinateOfNaNShowsInTheCoefficients) {
    for (std::uint32_t selector = 0; selector < kSelectors; ++selector) {
        Reals c = Output(2);
        EXPECT_EQ(ZemFunc239(kLineDesign, 4, 2, Reals{1, kNaN, 5, 7}, c, selector), 0) << selector;
        EXPECT_TRUE(std::isnan(c[0]) && std::isnan(c[1])) << selector;
    }
}

TEST(FitGeneralLinear, InputsAreOnlyRead) {
    for (std::uint32_t selector = 0; selector < kSelectors; ++selector) {
        Reals design = kLineDesign, y = kLine, deviations{1, 2, 3, 4}, c = Output(2), curve = Output(4),
              cov = Output(4);
        double error = kUnwritten;
        EXPECT_EQ(ZemFunc86(design, 4, 2, y, deviations, selector, curve, c, cov, &error), 0);
        EXPECT_EQ(design.values(), kLineDesign.values());
        EXPECT_EQ(y.values(), kLine.values());
        EXPECT_EQ(deviations.values(), (Values{1, 2, 3, 4}));
    }
}

TEST(FitGeneralLinearEx, TheCurveAndTheErrorAreWrittenOnlyTogether) {
    Reals curve = Output(4), c = Output(2);
    double error = kUnwritten;
    EXPECT_EQ(ZemFunc86(kLineDesign, 4, 2, kLine, nullptr, 0, curve, c, nullptr, nullptr), 0);
    EXPECT_TRUE(Untouched(curve));
    EXPECT_EQ(ZemFunc86(kLineDesign, 4, 2, kLine, nullptr, 0, nullptr, c, nullptr, &error), 0);
    EXPECT_EQ(error, kUnwritten);
    EXPECT_EQ(ZemFunc86(kLineDesign, 4, 2, kLine, nullptr, 0, curve, c, nullptr, &error), 0);
    for (int i = 0; i < 4; ++i) EXPECT_NEAR(curve[i], kLine[i], 1e-14);
    // Of y² of up to 49 what rounding leaves.
    EXPECT_NEAR(error, 0, 49 * 8 * 2.3e-16);
}

TEST(FitGeneralLinearEx, ADeviationOfZeroWeighsOne) {
    const Reals y{1, 3.5, 4, 7.25};
    for (std::uint32_t selector = 0; selector < kSelectors; ++selector) {
        Reals zero = Output(2), one = Output(2);
        double error_zero = 0, error_one = 1;
        Reals curve(4);
        EXPECT_EQ(ZemFunc86(kLineDesign, 4, 2, y, Reals{2, 0, 0.5, -0.0}, selector, curve, zero, nullptr, &error_zero),
                  0);
        EXPECT_EQ(ZemFunc86(kLineDesign, 4, 2, y, Reals{2, 1, 0.5, 1}, selector, curve, one, nullptr, &error_one), 0);
        EXPECT_EQ(zero.values(), one.values());
        EXPECT_EQ(error_zero, error_one);
    }
}

TEST(FitGeneralLinearEx, TheErrorIsWeightedByOneOverTheSquaredDeviations) {
    // One coefficient, the mean: weights 1/4, 1, 4 of -2, 2, 0 give 1.5/5.25.
    Reals curve = Output(3), c = Output(1), cov = Output(1);
    double error = kUnwritten;
    EXPECT_EQ(ZemFunc86(Reals{1, 1, 1}, 3, 1, Reals{-2, 2, 0}, Reals{2, -1, 0.5}, 4, curve, c, cov, &error), 0);
    const double mean = 1.5 / 5.25;
    EXPECT_DOUBLE_EQ(c[0], mean);
    EXPECT_DOUBLE_EQ(cov[0], 1 / 5.25);
    EXPECT_NEAR(error, (0.25 * (2 + mean) * (2 + mean) + (2 - mean) * (2 - mean) + 4 * mean * mean) / 3, 1e-15);
}

// Observation x is at 0, 1, 2, 3: X'X = [4 6; 6 14], its inverse [14 -6; -6 4] / 20.
TEST(FitGeneralLinearEx, TheCovarianceIsTheInverseOfTheNormalMatrix) {
    for (std::uint32_t selector = 0; selector < kSelectors; ++selector) {
        Reals c = Output(2), cov = Output(4);
        EXPECT_EQ(ZemFunc86(kLineDesign, 4, 2, kLine, nullptr, selector, nullptr, c, cov, nullptr), 0);
        const Values expected{0.7, -0.3, -0.3, 0.2};
        for (int i = 0; i < 4; ++i) EXPECT_NEAR(cov[i], expected[i], 5e-15) << selector;
    }
}

TEST(FitGeneralLinearEx, TheNormalSelectorsWriteTheCovarianceBeforeTheyFail) {
    const Reals zero_column{1, 0, 2, 0, 4, 0}, y{5, 10, 20};
    for (std::uint32_t selector : {4u, 5u}) {
        Reals c = Output(2), cov = Output(4);
        EXPECT_EQ(ZemFunc86(zero_column, 3, 2, y, nullptr, selector, nullptr, c, cov, nullptr),
                  selector == 4 ? -20041 : -20071);
        EXPECT_TRUE(Untouched(c));
        EXPECT_NEAR(cov[0], 1.0 / 21, 1e-16);
        EXPECT_EQ(cov[3], 0) << "the pseudo-inverse";
    }
    Reals design = kLineDesign, c = Output(2), cov = Output(4);
    design[0] = kInf;
    EXPECT_EQ(ZemFunc86(design, 4, 2, kLine, nullptr, 4, nullptr, c, cov, nullptr), -20068);
    EXPECT_TRUE(Untouched(c) && Untouched(cov));
}

TEST(FitGeneralLinearEx, WithDeviationsTheChecksStayTheSame) {
    Reals c = Output(2), curve = Output(4), cov = Output(4);
    double error = kUnwritten;
    const auto fit = [&](Size m, Size n, std::uint32_t selector) {
        return ZemFunc86(nullptr, m, n, nullptr, kLine, selector, curve, c, cov, &error);
    };
    EXPECT_EQ(fit(kTooLarge, 0, 9), -20046);
    EXPECT_EQ(fit(4, -kTooLarge - 1, 9), -20046);
    EXPECT_EQ(fit(-1, 0, 9), -20021);
    EXPECT_EQ(fit(0, 1, 9), -20037);
    EXPECT_EQ(fit(-1, 1, 9), -20037);
    EXPECT_EQ(fit(4, 2, 7), -20061);
    EXPECT_TRUE(Untouched(c) && Untouched(curve) && Untouched(cov));
    EXPECT_EQ(error, kUnwritten);
}

// Designs of up to 32 columns go through a triangle that blocks of rows are folded into.

TEST(FitGeneralLinear, NarrowDesignsLeaveAResidualOrthogonalToTheColumnsOnEverySet) {
    ForEachTarget([] {
        for (const Size m : {2, 7, 15, 16, 17, 63, 64, 65, 127, 128, 129, 1000})
            for (const Size n : {1, 2, 3, 7, 32}) {
                if (m < n) continue;
                const Reals design = RandomReals(m * n, 5), y = RandomReals(m, 6), sigma(m, 0.5);
                for (std::uint32_t selector : {0u, 3u, 6u})
                    for (const double* deviations : {static_cast<const double*>(nullptr), sigma.data()}) {
                        Reals c = Output(n), curve = Output(m);
                        double error = 0;
                        ASSERT_EQ(ZemFunc86(design, m, n, y, deviations, selector, curve, c, nullptr, &error), 0);
                        for (Size j = 0; j < n; ++j) {
                            double product = 0;
                            for (Size i = 0; i < m; ++i) product += design[i * n + j] * (y[i] - curve[i]);
                            // m terms of size 1, each right to the rounding of n products and of the solution.
                            EXPECT_NEAR(product, 0, 100.0 * m * n * 2.3e-16) << m << " by " << n;
                        }
                    }
            }
    });
}

TEST(FitGeneralLinear, ExtremeSizesDoNotOverflow) {
    for (std::uint32_t selector : {0u, 1u, 6u})
        for (double scale : {1e200, 1e-200, 1e119, 1e121, 1e-119, 1e-121}) {
            Reals design = kLineDesign, y = kLine, c = Output(2);
            for (double& v : design) v *= scale;
            for (double& v : y) v *= scale;
            EXPECT_EQ(ZemFunc239(design, 4, 2, y, c, selector), 0);
            EXPECT_NEAR(c[0], 1, 1e-14) << scale;
            EXPECT_NEAR(c[1], 2, 1e-14) << scale;
        }
    // One column far from the other.
    Reals mixed = kLineDesign, c = Output(2);
    for (int i = 0; i < 4; ++i) mixed[2 * i + 1] *= 1e-200;
    EXPECT_EQ(ZemFunc239(mixed, 4, 2, kLine, c, 1), 0);
    EXPECT_NEAR(c[0], 1, 1e-14);
    EXPECT_NEAR(c[1] * 1e-200, 2, 1e-14);
}

TEST(FitGeneralLinear, EveryAllocationFails) {
    Reals curve(4), c(2), cov(4);
    double error;
    for (std::uint32_t selector = 0; selector < kSelectors; ++selector) {
        ExpectEveryAllocationFails([&] { return ZemFunc239(kLineDesign, 4, 2, kLine, c, selector); });
        ExpectEveryAllocationFails(
            [&] { return ZemFunc86(kLineDesign, 4, 2, kLine, kLine, selector, curve, c, cov, &error); });
    }
    // Sizes whose squares would overflow take the way over the full factors.
    Reals huge = kLineDesign;
    for (double& v : huge) v *= 1e130;
    for (std::uint32_t selector : {0u, 1u, 6u})
        ExpectEveryAllocationFails(
            [&] { return ZemFunc86(huge, 4, 2, kLine, kLine, selector, curve, c, nullptr, &error); });
}

// Polynomials. The three entries with what they share; algorithm 0 and no weights where an entry has no such argument.

const Reals kX(Values{0, 1, 2, 3});
const Reals kParabola(Values{1, 2, 5, 10});  // 1 + x²

TEST(FitPolynomial, RecoversAParabola) {
    Reals x = kX, curve = Output(4), c = Output(3);
    double error = kUnwritten;
    EXPECT_EQ(ZemFunc137(x, kParabola, 4, 2, curve, c, &error), 0);
    EXPECT_NEAR(c[0], 1, 1e-13);
    EXPECT_NEAR(c[1], 0, 1e-13);
    EXPECT_NEAR(c[2], 1, 1e-13);
    for (int i = 0; i < 4; ++i) EXPECT_NEAR(curve[i], kParabola[i], 1e-13);
    EXPECT_NEAR(error, 0, 100 * 16 * 2.3e-16);
    EXPECT_EQ(x.values(), kX.values());
}

TEST(FitPolynomial, OfOrderZeroIsTheMean) {
    Reals x = kX, c = Output(1);
    EXPECT_EQ(ZemFunc137(x, kParabola, 4, 0, nullptr, c, nullptr), 0);
    EXPECT_NEAR(c[0], 4.5, 1e-14);
    EXPECT_EQ(ZemFunc137(x, kParabola, 1, 0, nullptr, c, nullptr), 0);
    EXPECT_NEAR(c[0], 1, 1e-15);
}

TEST(FitPolynomial, WithANullCurveAndAnErrorXHoldsTheFittedValues) {
    Reals x = kX, c = Output(2);
    double error = kUnwritten;
    EXPECT_EQ(ZemFunc137(x, kParabola, 4, 1, nullptr, c, &error), 0);
    // The line -0.0 + 3x less 0: of 1, 2, 5, 10 it is 3x.
    for (int i = 0; i < 4; ++i) EXPECT_NEAR(x[i], 3.0 * i, 1e-13);
    EXPECT_NEAR(error, (1 + 1 + 1 + 1) / 4.0, 1e-13);

    Reals kept = kX, same = Output(2);
    EXPECT_EQ(ZemFunc137(kept, kParabola, 4, 1, nullptr, same, nullptr), 0);
    EXPECT_EQ(kept.values(), kX.values());
    EXPECT_EQ(same.values(), c.values());
}

TEST(FitPolynomial, ACurveWithoutAnErrorIsNotProduced) {
    Reals x = kX, curve = Output(4), c = Output(2);
    EXPECT_EQ(ZemFunc137(x, kParabola, 4, 1, curve, c, nullptr), 0);
    EXPECT_TRUE(Untouched(curve));
    EXPECT_EQ(x.values(), kX.values());
}

TEST(FitPolynomial, TheCurveMayBeX) {
    Reals x = kX, c = Output(2);
    double error = kUnwritten;
    EXPECT_EQ(ZemFunc137(x, kParabola, 4, 1, x, c, &error), 0);
    for (int i = 0; i < 4; ++i) EXPECT_NEAR(x[i], 3.0 * i, 1e-13);
}

TEST(FitPolynomial, ChecksStandInOrder) {
    Reals x = kX, c = Output(3);
    EXPECT_EQ(ZemFunc137(x, kParabola, kTooLarge, -1, nullptr, c, nullptr), -20046);
    EXPECT_EQ(ZemFunc137(x, kParabola, 0, -1, nullptr, c, nullptr), -20103);
    EXPECT_EQ(ZemFunc137(x, kParabola, 0, 0, nullptr, c, nullptr), -20037);
    EXPECT_EQ(ZemFunc137(x, kParabola, -1, 0, nullptr, c, nullptr), -20037);
    EXPECT_EQ(ZemFunc137(x, kParabola, 2, 2, nullptr, c, nullptr), -20037);
    EXPECT_EQ(ZemFunc137(x, kParabola, 4, INT32_MAX, nullptr, c, nullptr), -20037);
    EXPECT_EQ(ZemFunc137(nullptr, nullptr, 1 << 30, 1, nullptr, c, nullptr), -20046) << "2^31 powers";
    EXPECT_EQ(ZemFunc137(Reals{0, 1, kNaN, 3}, kParabola, 4, 2, nullptr, c, nullptr), -20068);
    EXPECT_TRUE(Untouched(c));
}

TEST(FitPolynomialWeighted, ChecksStandInOrder) {
    Reals x = kX, c = Output(3);
    const Indices orders{0};
    const Reals values{1};
    const auto all = [&](Size n, int order, int count, std::uint32_t algorithm, Status expected) {
        EXPECT_EQ(ZemFunc298(x, kParabola, n, order, orders, values, count, algorithm, nullptr, c, nullptr), expected);
        EXPECT_EQ(ZemFunc361(x, kParabola, kX, n, order, orders, values, count, algorithm, nullptr, c, nullptr),
                  expected);
    };
    all(kTooLarge, -1, -1, 4, -20046);
    for (std::uint32_t algorithm : {4u, 5u, 0x80000000u, 0xFFFFFFFFu}) all(0, -1, -1, algorithm, -20061);
    all(0, -1, 0, 3, -20103);
    all(0, 0, -1, 3, -20103);
    all(2, 3, 1, 3, -20037);
    all(0, 2, 1, 3, -20037);
    all(0, 0, 0, 0, -20037);
    EXPECT_TRUE(Untouched(c));
}

TEST(FitPolynomialConstrained, WithoutFixedTermsEqualsThePlainFit) {
    for (std::uint32_t algorithm = 0; algorithm < 4; ++algorithm) {
        Reals x = kX, plain(3), constrained(3), weighted(3);
        EXPECT_EQ(ZemFunc137(x, kParabola, 4, 2, nullptr, plain, nullptr), 0);
        EXPECT_EQ(ZemFunc298(x, kParabola, 4, 2, nullptr, nullptr, 0, algorithm, nullptr, constrained, nullptr), 0);
        EXPECT_EQ(ZemFunc361(x, kParabola, nullptr, 4, 2, nullptr, nullptr, 0, algorithm, nullptr, weighted, nullptr),
                  0);
        for (int j = 0; j < 3; ++j) EXPECT_NEAR(constrained[j], plain[j], 1e-12);
        EXPECT_EQ(constrained.values(), weighted.values());
    }
}

TEST(FitPolynomialConstrained, FixedTermsKeepTheirValuesAndTheOthersFitTheRest) {
    // y = 1 + x² with c(0) fixed at 1: exactly 0 and 1 are left.
    for (std::uint32_t algorithm = 0; algorithm < 4; ++algorithm) {
        Reals x = kX, c = Output(3), curve = Output(4);
        double error = kUnwritten;
        EXPECT_EQ(ZemFunc298(x, kParabola, 4, 2, Indices{0}, Reals{1}, 1, algorithm, curve, c, &error), 0);
        EXPECT_EQ(c[0], 1);
        EXPECT_NEAR(c[1], 0, 1e-13);
        EXPECT_NEAR(c[2], 1, 1e-13);
        for (int i = 0; i < 4; ++i) EXPECT_NEAR(curve[i], kParabola[i], 1e-13);
        EXPECT_NEAR(error, 0, 1e-13);
        EXPECT_EQ(x.values(), kX.values());
    }
}

TEST(FitPolynomialConstrained, TheLastOfSeveralValuesForAnOrderHolds) {
    Reals x = kX, c = Output(2);
    EXPECT_EQ(ZemFunc298(x, kParabola, 4, 1, Indices{1, 1, 1}, Reals{7, 8, 3}, 3, 0, nullptr, c, nullptr), 0);
    EXPECT_EQ(c[1], 3);
    EXPECT_NEAR(c[0], 0, 1e-14);  // the mean of 1, -1, -1, 1
}

TEST(FitPolynomialConstrained, FixedOrdersOutOfRangeDoNothingButCount) {
    Reals x = kX, c = Output(2), plain = Output(2);
    const Indices outside{-1, 2, INT32_MIN, INT32_MAX};
    EXPECT_EQ(ZemFunc298(x, kParabola, 4, 1, outside, Reals{9, 9, 9, 9}, 4, 0, nullptr, c, nullptr), 0);
    EXPECT_EQ(ZemFunc137(x, kParabola, 4, 1, nullptr, plain, nullptr), 0);
    EXPECT_EQ(c.values(), plain.values());
    // Two samples for an order of 2: the fit lets them pass for the term that counts, and then has too few.
    Reals three = Output(3);
    EXPECT_EQ(ZemFunc298(x, kParabola, 2, 2, nullptr, nullptr, 0, 0, nullptr, three, nullptr), -20037);
    EXPECT_EQ(ZemFunc298(x, kParabola, 2, 2, Indices{5}, Reals{0}, 1, 0, nullptr, three, nullptr), -20037);
    EXPECT_TRUE(Untouched(three));
    EXPECT_EQ(ZemFunc298(x, kParabola, 2, 2, Indices{1}, Reals{0}, 1, 0, nullptr, three, nullptr), 0);
}

TEST(FitPolynomialConstrained, WithAllOrdersFixedNothingIsSolved) {
    Reals x = kX, c = Output(2), curve = Output(4);
    double error = kUnwritten;
    EXPECT_EQ(ZemFunc298(x, kParabola, 4, 1, Indices{1, 0}, Reals{2, -1}, 2, 0, curve, c, &error), 0);
    EXPECT_EQ(c.values(), (Values{-1, 2}));
    EXPECT_EQ(curve.values(), (Values{-1, 1, 3, 5}));
    EXPECT_EQ(error, (4 + 1 + 4 + 25) / 4.0);
    // No sample is needed either, unless the error is wanted.
    Reals again = Output(2);
    EXPECT_EQ(ZemFunc298(x, kParabola, 0, 1, Indices{1, 0}, Reals{2, -1}, 2, 0, nullptr, again, nullptr), 0);
    EXPECT_EQ(again.values(), (Values{-1, 2}));
    error = kUnwritten;
    EXPECT_EQ(ZemFunc298(x, kParabola, 0, 1, Indices{1, 0}, Reals{2, -1}, 2, 0, curve, again, &error), -20003);
    EXPECT_EQ(error, kUnwritten);
    EXPECT_EQ(x.values(), kX.values());
}

TEST(FitPolynomialConstrained, WithANullCurveAndAnErrorXHoldsTheFittedValues) {
    Reals x = kX, c = Output(2);
    double error = kUnwritten;
    EXPECT_EQ(ZemFunc298(x, kParabola, 4, 1, Indices{1, 0}, Reals{2, -1}, 2, 0, nullptr, c, &error), 0);
    EXPECT_EQ(x.values(), (Values{-1, 1, 3, 5}));
    EXPECT_EQ(error, (4 + 1 + 4 + 25) / 4.0);
}

TEST(FitPolynomialConstrained, WithBothOutputsNullXStays) {
    Reals x = kX, c = Output(2);
    EXPECT_EQ(ZemFunc298(x, kParabola, 4, 1, Indices{0}, Reals{1}, 1, 0, nullptr, c, nullptr), 0);
    EXPECT_EQ(x.values(), kX.values());
}

TEST(FitPolynomialWeighted, WeightsCountByMagnitude) {
    // A mean with weights 1, 3: of 2 and 6 it is 5; the error (1·9 + 3·1)/2.
    for (std::uint32_t algorithm = 0; algorithm < 4; ++algorithm)
        for (double sign : {1.0, -1.0}) {
            Reals x{0, 1}, c = Output(1), curve = Output(2);
            double error = kUnwritten;
            EXPECT_EQ(
                ZemFunc361(x, Reals{2, 6}, Reals{sign, 3}, 2, 0, nullptr, nullptr, 0, algorithm, curve, c, &error), 0);
            EXPECT_NEAR(c[0], 5, 1e-14);
            EXPECT_NEAR(error, 6, 1e-13);
            // The same with a term that does nothing, on the way of the constrained fits.
            Reals again = Output(1);
            EXPECT_EQ(ZemFunc361(x, Reals{2, 6}, Reals{sign, 3}, 2, 0, Indices{7}, Reals{1}, 1, algorithm, curve, again,
                                 &error),
                      0);
            EXPECT_NEAR(again[0], 5, 1e-14);
            EXPECT_NEAR(error, 6, 1e-13);
        }
}

TEST(FitPolynomialWeighted, WeightsOfZeroExceptOneShowAsRankDeficiency) {
    Reals x{1, 2, 4}, y{3, 9, 27}, weights{0, 1, 0}, c = Output(2);
    EXPECT_EQ(ZemFunc361(x, y, weights, 3, 1, nullptr, nullptr, 0, 0, nullptr, c, nullptr), 0);
    // The shortest solution of c0 + 2 c1 = 9.
    EXPECT_NEAR(c[0], 1.8, 1e-14);
    EXPECT_NEAR(c[1], 3.6, 1e-14);
    EXPECT_EQ(ZemFunc361(x, y, weights, 3, 1, nullptr, nullptr, 0, 2, nullptr, c, nullptr), -20041);
    EXPECT_EQ(ZemFunc361(x, y, weights, 3, 1, nullptr, nullptr, 0, 3, nullptr, c, nullptr), -20071);
    // All zero: QR sees an exact zero too.
    EXPECT_EQ(ZemFunc361(x, y, Reals{0, 0, 0}, 3, 1, nullptr, nullptr, 0, 1, nullptr, c, nullptr), -20041);
    EXPECT_EQ(ZemFunc361(x, y, Reals{0, 0, 0}, 3, 1, nullptr, nullptr, 0, 0, nullptr, c, nullptr), 0);
    EXPECT_EQ(c.values(), (Values{0, 0}));
}

TEST(FitPolynomialWeighted, OneWeightLeavesAnExactZeroWhereverItStands) {
    for (int n : {2, 3, 4, 70}) {
        Reals x(n), y(n), c = Output(2);
        for (int i = 0; i < n; ++i) {
            x[i] = 0.3 + 0.1 * i;
            y[i] = 1 / (1.0 + i);
        }
        for (int at = 0; at < n; ++at)
            for (double weight : {0.7, 2.0, 3.3}) {
                Reals weights(n);
                for (int i = 0; i < n; ++i) weights[i] = i == at ? weight : 0;
                EXPECT_EQ(ZemFunc361(x, y, weights, n, 1, nullptr, nullptr, 0, 1, nullptr, c, nullptr), -20041) << at;
                // The shortest solution of c0 + c1 x = y.
                EXPECT_EQ(ZemFunc361(x, y, weights, n, 1, nullptr, nullptr, 0, 0, nullptr, c, nullptr), 0);
                const double square = 1 + x[at] * x[at];
                EXPECT_NEAR(c[0], y[at] / square, 1e-14) << at;
                EXPECT_NEAR(c[1], y[at] * x[at] / square, 1e-14) << at;
            }
    }
}

TEST(FitPolynomialWeighted, AWeightOfNaNIsRefusedWhereTheDesignIsScreened) {
    Reals x = kX, c = Output(2);
    for (std::uint32_t algorithm : {0u, 1u, 3u})
        EXPECT_EQ(
            ZemFunc361(x, kParabola, Reals{1, kNaN, 1, 1}, 4, 1, nullptr, nullptr, 0, algorithm, nullptr, c, nullptr),
            -20068);
    EXPECT_EQ(ZemFunc361(x, kParabola, Reals{1, kNaN, 1, 1}, 4, 1, nullptr, nullptr, 0, 2, nullptr, c, nullptr), 0);
    EXPECT_TRUE(std::isnan(c[0]));
}

// Orders above 25

Reals Interval(int n) {
    Reals x(n);
    for (int i = 0; i < n; ++i) x[i] = -1 + 2.0 * i / (n - 1);
    return x;
}

TEST(FitPolynomial, Order30KeepsTwentySixPowersAndWarns) {
    Reals x = Interval(60), y(60), c = Output(31), c25 = Output(26), curve = Output(60);
    for (int i = 0; i < 60; ++i) y[i] = std::exp(x[i]);
    double error = kUnwritten;
    EXPECT_EQ(ZemFunc137(x, y, 60, 30, curve, c, &error), 20031);
    EXPECT_EQ(ZemFunc137(x, y, 60, 25, nullptr, c25, nullptr), 0);
    for (int j = 0; j <= 25; ++j) EXPECT_EQ(c[j], c25[j]);
    for (int j = 26; j <= 30; ++j) EXPECT_EQ(c[j], 0);
    EXPECT_LT(error, 1e-25);
    EXPECT_EQ(ZemFunc137(x, y, 60, 30, nullptr, c, nullptr), 20031);
    EXPECT_EQ(ZemFunc137(x, y, 30, 30, nullptr, c, nullptr), -20037) << "the order itself counts";
    x[7] = kNaN;
    Reals untouched = Output(31);
    EXPECT_EQ(ZemFunc137(x, y, 60, 30, nullptr, untouched, nullptr), -20068);
    EXPECT_TRUE(Untouched(untouched));
}

TEST(FitPolynomialConstrained, AboveOrder25TheSecondFreeOrderIsKeptHoweverHigh) {
    // Orders 0 to 27 but 3 are fixed at 0; 28 is the second free order, 29 and 30 take no part.
    std::vector<std::int32_t> fixed;
    for (int j = 0; j < 28; ++j)
        if (j != 3) fixed.push_back(j);
    Reals x = Interval(60), y(60), c = Output(31), curve = Output(60);
    for (int i = 0; i < 60; ++i) y[i] = 2 * std::pow(x[i], 3) - 5 * std::pow(x[i], 28);
    const Indices orders(fixed);
    double error = kUnwritten;
    EXPECT_EQ(ZemFunc298(x, y, 60, 30, orders, Reals(27, 0.0), 27, 1, curve, c, &error), 20031);
    for (int j = 0; j <= 30; ++j) EXPECT_NEAR(c[j], j == 3 ? 2 : j == 28 ? -5 : 0, 1e-13) << j;
    EXPECT_EQ(c[29], 0);
    EXPECT_EQ(c[30], 0);
    EXPECT_NEAR(error, 0, 1e-14);
    Reals again = Output(31);
    EXPECT_EQ(ZemFunc298(x, y, 60, 30, orders, Reals(27, 0.0), 27, 1, nullptr, again, nullptr), 20031)
        << "with both outputs null too";
}

TEST(FitPolynomialConstrained, AboveOrder25FixedOrdersAboveTheTopStillCount) {
    Reals x = Interval(80), y(80), c = Output(31);
    for (int i = 0; i < 80; ++i) y[i] = 1 + x[i] + 4 * std::pow(x[i], 30);
    EXPECT_EQ(ZemFunc298(x, y, 80, 30, Indices{30}, Reals{4}, 1, 0, nullptr, c, nullptr), 20031);
    EXPECT_NEAR(c[0], 1, 1e-9);
    EXPECT_NEAR(c[1], 1, 1e-9);
    EXPECT_EQ(c[30], 4);
    for (int j = 26; j < 30; ++j) EXPECT_EQ(c[j], 0);
}

TEST(FitPolynomialConstrained, AboveOrder25ASingleFreeOrderMayBeTheLast) {
    std::vector<std::int32_t> fixed;
    for (int j = 0; j < 30; ++j) fixed.push_back(j);
    Reals x = Interval(40), y(40), c = Output(31);
    for (int i = 0; i < 40; ++i) y[i] = 3 * std::pow(x[i], 30);
    EXPECT_EQ(ZemFunc298(x, y, 40, 30, Indices(fixed), Reals(30, 0.0), 30, 0, nullptr, c, nullptr), 20031);
    EXPECT_NEAR(c[30], 3, 1e-13);
}

TEST(FitPolynomial, EveryAllocationFails) {
    Reals c(3), curve(4);
    double error;
    ExpectEveryAllocationFails([&] {
        Reals x = kX;
        return ZemFunc137(x, kParabola, 4, 2, curve, c, &error);
    });
    for (std::uint32_t algorithm = 0; algorithm < 4; ++algorithm)
        ExpectEveryAllocationFails([&] {
            Reals x = kX;
            return ZemFunc361(x, kParabola, Reals{1, 2, 1, 1}, 4, 2, Indices{1}, Reals{0}, 1, algorithm, curve, c,
                              &error);
        });
    ExpectEveryAllocationFails([&] {
        Reals x = kX;
        return ZemFunc298(x, kParabola, 4, 1, Indices{0, 1}, Reals{0, 1}, 2, 0, curve, c, &error);
    });
}

}  // namespace
}  // namespace quorvan::testing

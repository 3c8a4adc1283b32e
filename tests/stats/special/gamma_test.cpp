// The complete functions of the gamma family: faults, ends, cuts and values of closed form.
#include <cmath>
#include <gtest/gtest.h>

#include "quorvan/quorvan.h"
#include "tests/support/guarded.h"

namespace quorvan::testing {
namespace {

constexpr double kU = 0x1p-53;  // half a unit in the last place of 1, relative
constexpr double kLeast = 5e-324;

double Gamma(double x) { return ZemFunc309(x, nullptr); }
double Stirling(double x) { return ZemFunc314(x); }
double LnGamma(double x) { return ZemFunc312(x); }
double Digamma(double x) { return ZemFunc313(x); }
double Beta(double a, double b) { return ZemFunc307(a, b, nullptr); }
double Zeta(double x) { return ZemFunc329(x); }
double Dilogarithm(double x) { return ZemFunc326(x); }

double Below(double x) { return std::nextafter(x, -kInf); }
double Above(double x) { return std::nextafter(x, kInf); }

// The values on both sides of a cut of the method differ by the slope (here over the value, d ln f / dx) and by what
// the methods round, and have no step.
template <class F>
void ExpectNoStep(F f, double cut, double logarithmic_slope, double roundings) {
    const double at = f(cut);
    for (double x : {Below(cut), Above(cut)}) {
        EXPECT_NEAR(f(x) / at, 1 + logarithmic_slope * (x - cut), roundings * kU) << x;
    }
}

TEST(SpecGamma, IsNaNAtZeroAndTheNegativeIntegers) {
    for (double x : {0.0, -0.0, -1.0, -2.0, -32.0, -33.0, -34.0, -50.0, -171.0, -1e10, -0x1p60, -1e300}) {
        EXPECT_TRUE(std::isnan(Gamma(x))) << x;
    }
}

TEST(SpecGamma, KeepsPlusInfinityAndRefusesMinusInfinityAndNaN) {
    EXPECT_EQ(Gamma(kInf), kInf);
    EXPECT_TRUE(std::isnan(Gamma(-kInf)));
    EXPECT_TRUE(std::isnan(Gamma(kNaN)));
}

TEST(SpecGamma, IsFiniteAt171AndInfiniteAt172) {
    EXPECT_NEAR(Gamma(171), 7.257415615307994e306, 16 * kU * 7.257415615307994e306);
    EXPECT_TRUE(std::isfinite(Gamma(171.6243769563)));
    EXPECT_EQ(Gamma(172), kInf);
    EXPECT_EQ(Gamma(700), kInf);
    EXPECT_EQ(Gamma(710), kInf);
    EXPECT_EQ(Gamma(1e308), kInf);
}

TEST(SpecGamma, IsTheExactFactorialForSmallIntegers) {
    EXPECT_EQ(Gamma(5), 24);
    double factorial = 1;
    for (int n = 1; n <= 23; ++n) {  // 22! is the last that a double holds
        EXPECT_EQ(Gamma(n), factorial) << n;
        factorial *= n;
    }
}

TEST(SpecGamma, GivesOneHalfAtTheTwoDoublesWhoseLoopEndsAtThree) {
    EXPECT_NEAR(Gamma(2 - 0x1p-52), 0.5, 4 * kU);
    EXPECT_NEAR(Gamma(1 - 0x1p-52), 0.5, 4 * kU);
    EXPECT_NEAR(Gamma(2 - 0x1p-51), 1, 8 * kU);
    EXPECT_NEAR(Gamma(1 - 0x1p-51), 1, 8 * kU);
    EXPECT_NEAR(Gamma(1 - 0x1p-53), 1, 8 * kU);
}

TEST(SpecGamma, IsTheReciprocalBesideZero) {
    EXPECT_NEAR(Gamma(1e-300), 1e300, 4 * kU * 1e300);
    EXPECT_NEAR(Gamma(-1e-300), -1e300, 4 * kU * 1e300);
    EXPECT_EQ(Gamma(kLeast), kInf);
    EXPECT_EQ(Gamma(-kLeast), -kInf);
    // On both sides of the cut 1e-9, 1/x - gamma + O(x).
    for (double x : {Below(1e-9), 1e-9, Above(1e-9)}) {
        EXPECT_NEAR(Gamma(x), 1 / x - 0.5772156649015329, 4 * kU / x) << x;
        EXPECT_NEAR(Gamma(-x), -1 / x - 0.5772156649015329, 4 * kU / x) << x;
    }
}

TEST(SpecGamma, HasNoStepAtTheCuts33) {
    ExpectNoStep(Gamma, 33, Digamma(33), 32);
    // The poles -33 and -34 stand beside the lower cut; across it only the formula changes.
    EXPECT_NEAR(Gamma(-32.5) / (Gamma(-33.5) * -33.5), 1, 80 * kU);
}

TEST(SpecGamma, AlternatesItsSignBetweenThePoles) {
    for (int n = 1; n < 170; ++n) {
        const double x = -n + 0.5;  // sign (-1)^n
        EXPECT_EQ(std::signbit(Gamma(x)), n % 2 == 1) << x;
    }
}

TEST(SpecGamma, UnderflowsToASignedZeroWhereTheReflectedGammaOverflows) {
    EXPECT_TRUE(SameBits(Gamma(-173.5), 0.0));
    EXPECT_TRUE(SameBits(Gamma(-174.5), -0.0));
    EXPECT_TRUE(SameBits(Gamma(-1e6 - 0.5), -0.0));
}

TEST(SpecGammaStirling, IsInfiniteAboveItsLimitAndNaNForNaN) {
    EXPECT_EQ(Stirling(709.7827128933), kInf);  // by overflow
    EXPECT_EQ(Stirling(Above(709.7827128933)), kInf);
    EXPECT_EQ(Stirling(1e300), kInf);
    EXPECT_EQ(Stirling(kInf), kInf);
    EXPECT_TRUE(std::isnan(Stirling(kNaN)));
}

TEST(SpecGammaStirling, HasNoStepWhereThePowerIsSplit) { ExpectNoStep(Stirling, 143.01608, Digamma(143.01608), 32); }

TEST(SpecGammaStirling, IsGammaAbove33AndOnlyNearlyGammaBelow) {
    EXPECT_EQ(Stirling(40), Gamma(40));
    EXPECT_NEAR(Stirling(2), 1, 1e-3);
    EXPECT_NE(Stirling(2), 1);
}

TEST(SpecLnGamma, IsPlusInfinityAtThePoles) {
    for (double x : {0.0, -0.0, -1.0, -2.0, -33.0, -34.0, -35.0, -1e10, -1e300, -kInf})
        EXPECT_EQ(LnGamma(x), kInf) << x;
}

TEST(SpecLnGamma, IsExactlyZeroAtOneAndTwo) {
    EXPECT_TRUE(SameBits(LnGamma(1), 0.0));
    EXPECT_TRUE(SameBits(LnGamma(2), 0.0));
}

TEST(SpecLnGamma, KeepsItsRelativeErrorBesideItsZeros) {
    // -gamma d at 1 + d, (1 - gamma) d at 2 + d, up to pi^2/12 d^2.
    for (double d : {0x1p-51, -0x1p-52, 0x1p-45, -0x1p-45}) {
        EXPECT_NEAR(LnGamma(1 + d), -0.5772156649015329 * d, 1e-12 * std::fabs(d)) << d;
        EXPECT_NEAR(LnGamma(2 + d), 0.4227843350984671 * d, 1e-12 * std::fabs(d)) << d;
    }
}

TEST(SpecLnGamma, TakesTheLeastDoubles) {
    EXPECT_NEAR(LnGamma(kLeast), 744.4400719213812, 1e-12);
    EXPECT_NEAR(LnGamma(-kLeast), 744.4400719213812, 1e-12);
}

TEST(SpecLnGamma, IsFiniteUpToItsLimitAndInfiniteAbove) {
    EXPECT_TRUE(std::isfinite(LnGamma(2.556348e305)));
    EXPECT_EQ(LnGamma(Above(2.556348e305)), kInf);
    EXPECT_EQ(LnGamma(kInf), kInf);
    EXPECT_TRUE(std::isnan(LnGamma(kNaN)));
}

TEST(SpecLnGamma, HasNoStepAtItsCuts) {
    for (double x : {1.9, 3.0, 13.0, 1000.0, 1e8}) {
        const double slope = Digamma(x) * (Above(x) - x);
        EXPECT_NEAR(LnGamma(Above(x)) - slope, LnGamma(x), 32 * kU * std::fmax(1, LnGamma(x))) << x;
    }
    // ln|Gamma(x + 1)| = ln|Gamma(x)| + ln|x| across the cut -33.
    EXPECT_NEAR(LnGamma(-32.5), LnGamma(-33.5) + std::log(33.5), 256 * kU * 90);
}

TEST(SpecFactorial, RefusesNegativeNumbersAndTakesAnyOther) {
    EXPECT_TRUE(std::isnan(ZemFunc308(-1)));
    EXPECT_TRUE(std::isnan(ZemFunc308(INT64_MIN)));
    EXPECT_EQ(ZemFunc308(0), 1);
    EXPECT_EQ(ZemFunc308(1), 1);
    EXPECT_EQ(ZemFunc308(33), 8.683317618811886e36);
    EXPECT_NEAR(ZemFunc308(34), 2.9523279903960416e38, 8 * kU * 2.9523279903960416e38);
    EXPECT_NEAR(ZemFunc308(170), 7.257415615307994e306, 16 * kU * 7.257415615307994e306);
}

TEST(SpecFactorial, IsInfiniteAbove170AlsoForNumbersBeyond32Bits) {
    EXPECT_EQ(ZemFunc308(171), kInf);
    EXPECT_EQ(ZemFunc308(kTooLarge), kInf);
    EXPECT_EQ(ZemFunc308((Size{1} << 32) + 5), kInf);
    EXPECT_EQ(ZemFunc308(INT64_MAX), kInf);
}

TEST(SpecLnFactorial, IsTheLogarithmOfTheFactorialAndTakesEveryUnsignedNumber) {
    EXPECT_EQ(ZemFunc311(0), 0);
    EXPECT_EQ(ZemFunc311(1), 0);
    for (int n = 2; n < 171; ++n) {
        EXPECT_NEAR(ZemFunc311(n), std::log(ZemFunc308(n)), 16 * kU * ZemFunc311(n)) << n;
    }
    EXPECT_NEAR(ZemFunc311(UINT32_MAX), 90970455792.05488993, 16 * kU * 90970455792.0);
}

TEST(SpecBeta, FollowsItsGammasAtThePoles) {
    EXPECT_TRUE(std::isnan(Beta(0, 1)));
    EXPECT_TRUE(std::isnan(Beta(1, 0)));
    EXPECT_TRUE(std::isnan(Beta(-2, 3)));
    EXPECT_TRUE(std::isnan(Beta(-0.5, -0.5)));  // Gamma(-1) below
    EXPECT_EQ(Beta(-1000, 200.5), kInf);        // by logarithms: the pole's is +Inf
    EXPECT_EQ(Beta(1e-310, 1), kInf);
    EXPECT_EQ(Beta(1e-310, 1e-310), kInf);
    EXPECT_TRUE(std::isnan(Beta(kNaN, 1)));
    EXPECT_TRUE(std::isnan(Beta(1, kNaN)));
}

TEST(SpecBeta, KeepsTheSignOfItsGammasInBothMethods) {
    EXPECT_NEAR(Beta(-0.5, 2), -4, 32 * kU * 4);
    EXPECT_NEAR(Beta(-1.5, 2), 4.0 / 3, 32 * kU * 2);
    // B(a, 1) = 1/a and B(a, 2) = 1/(a (a+1)), where only logarithms serve.
    EXPECT_NEAR(Beta(-300.5, 1), -1 / 300.5, 1e-11 / 300.5);
    EXPECT_NEAR(Beta(-301.5, 1), -1 / 301.5, 1e-11 / 301.5);
    EXPECT_NEAR(Beta(-300.5, 2), 1 / (300.5 * 299.5), 1e-11 / (300.5 * 299.5));
}

TEST(SpecBeta, IsSymmetricAndHasItsClosedForms) {
    for (double a : {1e-3, 0.5, 3.25, 40.0, 169.0, 171.0, 1e4, 1e10}) {
        EXPECT_NEAR(Beta(a, 1), 1 / a, 64 * kU / a) << a;
        EXPECT_NEAR(Beta(a, 2), 1 / (a * (a + 1)), 64 * kU / (a * (a + 1))) << a;
        EXPECT_EQ(Beta(a, 7.5), Beta(7.5, a)) << a;
    }
    EXPECT_EQ(Beta(1e6, 1e6), 0);
}

TEST(SpecDigamma, IsNaNAtZeroTheNegativeIntegersAndMinusInfinity) {
    for (double x : {0.0, -0.0, -1.0, -10.0, -1e20, -kInf, kNaN}) EXPECT_TRUE(std::isnan(Digamma(x))) << x;
    EXPECT_EQ(Digamma(kInf), kInf);
}

TEST(SpecDigamma, IsTheHarmonicSumForWholeNumbersUpToTen) {
    double sum = -0.5772156649015329;
    for (int n = 1; n <= 10; ++n) {
        EXPECT_EQ(Digamma(n), sum) << n;
        EXPECT_NEAR(Digamma(Above(n)), sum, 16 * kU * 2.5) << n;
        sum += 1.0 / n;
    }
    EXPECT_NEAR(Digamma(11), sum, 16 * kU * 2.5);
}

TEST(SpecDigamma, DropsTheTangentAtHalfIntegers) {
    for (double x : {-0.5, -1.5, -7.5, -100.5}) EXPECT_EQ(Digamma(x), Digamma(1 - x)) << x;
}

TEST(SpecDigamma, IsMinusTheReciprocalBesideZero) {
    EXPECT_NEAR(Digamma(1e-300), -1e300, 4 * kU * 1e300);
    EXPECT_NEAR(Digamma(-1e-300), 1e300, 4 * kU * 1e300);
    EXPECT_EQ(Digamma(kLeast), -kInf);
    EXPECT_EQ(Digamma(-kLeast), kInf);
}

TEST(SpecZeta, HasItsPoleAtOneAndItsEnds) {
    EXPECT_EQ(Zeta(1), kInf);
    EXPECT_EQ(Zeta(127), 0);
    EXPECT_EQ(Zeta(kInf), 0);
    EXPECT_GT(Zeta(Below(127)), 0);
    EXPECT_TRUE(std::isfinite(Zeta(-30.8148)));
    EXPECT_TRUE(std::isnan(Zeta(Below(-30.8148))));
    EXPECT_TRUE(std::isnan(Zeta(-kInf)));
    EXPECT_TRUE(std::isnan(Zeta(kNaN)));
}

TEST(SpecZeta, IsZetaMinusOne) {
    EXPECT_EQ(Zeta(0), -1.5);
    EXPECT_EQ(Zeta(-0.0), -1.5);
    EXPECT_NEAR(Zeta(2), kPi * kPi / 6 - 1, 4 * kU);
    EXPECT_EQ(Zeta(30), 9.313274324196682e-10);
    EXPECT_NEAR(Zeta(-1), -1 - 1.0 / 12, 16 * kU);
    for (int n = 1; n <= 15; ++n) EXPECT_EQ(Zeta(-2 * n), -1) << n;  // the trivial zeros of zeta
}

TEST(SpecZeta, IsContinuousThroughZeroFromTheLeft) {
    for (double x : {-kLeast, -1e-310, -1e-100, -1e-17, -1e-16, -1e-12}) {
        EXPECT_NEAR(Zeta(x), -1.5 - 0.9189385332046728 * x, 16 * kU) << x;
    }
}

TEST(SpecZeta, HasNoStepAtItsCuts) {
    const double ln2 = std::log(2);  // zeta(x) - 1 is nearly 2^-x; the slope's error counts nothing over one place
    for (double x : {10.0, 50.0}) ExpectNoStep(Zeta, x, -ln2, 32);
    for (int n = 3; n <= 30; ++n) ExpectNoStep(Zeta, n, -ln2, 32);
}

TEST(SpecDilogarithm, HasItsEnds) {
    EXPECT_EQ(Dilogarithm(0), 1.6449340668482264);
    EXPECT_EQ(Dilogarithm(-0.0), 1.6449340668482264);
    EXPECT_EQ(Dilogarithm(1), 0);
    EXPECT_EQ(Dilogarithm(kInf), -kInf);
    EXPECT_TRUE(std::isfinite(Dilogarithm(1.7976931348623157e308)));
    for (double x : {-kLeast, -1.0, -kInf, kNaN}) EXPECT_TRUE(std::isnan(Dilogarithm(x))) << x;
}

TEST(SpecDilogarithm, HasItsClosedForms) {
    EXPECT_NEAR(Dilogarithm(2), -kPi * kPi / 12, 16 * kU);
    EXPECT_NEAR(Dilogarithm(0.5), kPi * kPi / 12 - 0.5 * std::log(2) * std::log(2), 32 * kU);
}

TEST(SpecDilogarithm, HasNoStepAtItsCuts) {
    for (double x : {0.5, 1.5, 2.0}) ExpectNoStep(Dilogarithm, x, -std::log(x) / (x - 1) / Dilogarithm(x), 64);
}

}  // namespace
}  // namespace quorvan::testing

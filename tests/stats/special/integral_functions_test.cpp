// Dawson, Fresnel, exponential, sine and hyperbolic integrals, the parabolic cylinder function: faults, ends, cuts,
// laws.
#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>

#include "quorvan/quorvan.h"
#include "tests/support/guarded.h"

namespace quorvan::testing {
namespace {

constexpr double kU = 0x1p-53;  // half a unit in the last place of 1, relative
constexpr double kHalfPi = 1.5707963267948966;
constexpr double kLargest = 1.7976931348623157e308;

double Dawson(double x) { return ZemFunc320(x); }
double En(std::int32_t n, double x) { return ZemFunc321(x, n); }
double Si(double x) { return ZemFunc322(x); }
double Ci(double x) { return ZemFunc323(x); }
double Chi(double x) { return ZemFunc324(x); }
double Shi(double x) { return ZemFunc325(x); }
double D(double v, double x) { return ZemFunc327(x, v); }

struct Fresnel {
    double s, c;
};

Fresnel FresnelAt(double x) {
    Guarded<double> out(2);
    ZemFunc331(x, &out[0], &out[1]);
    return {out[0], out[1]};
}

double Below(double x) { return std::nextafter(x, -kInf); }
double Above(double x) { return std::nextafter(x, kInf); }

// Neighbours on both sides of a cut of the method: the slope moves the value by far less than the rounding allowed.
template <class Function>
void ExpectNoStep(Function f, double cut, double roundings) {
    const double at = f(cut);
    EXPECT_NEAR(f(Below(cut)), at, roundings * kU * std::fabs(at)) << cut;
    EXPECT_NEAR(f(Above(cut)), at, roundings * kU * std::fabs(at)) << cut;
}

TEST(SpecDawson, IsZeroAtZeroAndOdd) {
    EXPECT_TRUE(SameBits(Dawson(0.0), 0.0));
    EXPECT_TRUE(SameBits(Dawson(-0.0), -0.0));
    for (double x : {5e-324, 1e-300, 0.5, 3.0, 3.25, 5.0, 6.25, 100.0, 1e9, 1e10, kLargest}) {
        EXPECT_EQ(Dawson(-x), -Dawson(x)) << x;
    }
}

TEST(SpecDawson, IsXNearZeroAndHalfTheReciprocalFarAway) {
    for (double x : {5e-324, 1e-300, 1e-20}) EXPECT_EQ(Dawson(x), x);
    for (double x : {Above(1e9), 1e20, 1e300}) EXPECT_EQ(Dawson(x), 0.5 / x);
    EXPECT_EQ(Dawson(kInf), 0);
    EXPECT_TRUE(SameBits(Dawson(-kInf), -0.0));
    EXPECT_TRUE(std::isnan(Dawson(kNaN)));
}

TEST(SpecDawson, HasNoStepAtItsCuts) {
    for (double x : {3.25, 6.25, 1e9}) ExpectNoStep(Dawson, x, 12);
}

TEST(SpecDawson, SatisfiesItsDifferentialEquation) {
    // F' = 1 - 2 x F, by central differences: h^2/6 F''' with |F'''| below 5, and rounding over h.
    for (double x : {0.3, 1.0, 2.0, 3.2, 4.0, 6.0, 7.0, 20.0}) {
        const double h = 1e-5, slope = (Dawson(x + h) - Dawson(x - h)) / (2 * h);
        EXPECT_NEAR(slope, 1 - 2 * x * Dawson(x), h * h + 8 * kU / h) << x;
    }
}

TEST(SpecFresnel, IsZeroAtZeroAndOdd) {
    EXPECT_TRUE(SameBits(FresnelAt(0).s, 0.0) && SameBits(FresnelAt(0).c, 0.0));
    EXPECT_TRUE(SameBits(FresnelAt(-0.0).s, -0.0) && SameBits(FresnelAt(-0.0).c, -0.0));
    for (double x : {1e-100, 0.5, 1.6, 1.61, 10.0, 36974.0, 1e6, kInf}) {
        EXPECT_EQ(FresnelAt(-x).s, -FresnelAt(x).s) << x;
        EXPECT_EQ(FresnelAt(-x).c, -FresnelAt(x).c) << x;
    }
}

TEST(SpecFresnel, WritesTheSineIntegralFirst) {
    // C(x) = x - ..., S(x) = pi/6 x^3 - ...
    EXPECT_NEAR(FresnelAt(1e-3).s, kPi / 6 * 1e-9, 1e-20);
    EXPECT_NEAR(FresnelAt(1e-3).c, 1e-3, 1e-15);
}

TEST(SpecFresnel, IsOneHalfFromItsLimitOnTheArgumentItself) {
    // The limit is one of |x|: well above the root of 36974 the integrals still swing.
    EXPECT_NE(FresnelAt(1000).s, 0.5);
    EXPECT_NEAR(FresnelAt(1000).s, 0.5 - 1 / (kPi * 1000), 1e-9);
    EXPECT_NE(FresnelAt(36974).s, 0.5);
    EXPECT_NEAR(FresnelAt(36974).s, 0.5 - 1 / (kPi * 36974), 1e-13);
    for (double x : {Above(36974), 1e5, 1e200, kLargest, kInf}) {
        EXPECT_EQ(FresnelAt(x).s, 0.5) << x;
        EXPECT_EQ(FresnelAt(x).c, 0.5) << x;
    }
}

TEST(SpecFresnel, IsNaNInBothOutputsForNaN) {
    EXPECT_TRUE(std::isnan(FresnelAt(kNaN).s) && std::isnan(FresnelAt(kNaN).c));
}

TEST(SpecFresnel, HasNoStepAtItsCut) {
    ExpectNoStep([](double x) { return FresnelAt(x).s; }, std::sqrt(2.5625), 16);
    ExpectNoStep([](double x) { return FresnelAt(x).c; }, std::sqrt(2.5625), 16);
}

TEST(SpecExpIntegralN, RefusesNegativeOrdersAndArguments) {
    for (std::int32_t n : {-1, INT32_MIN}) {
        for (double x : {0.0, 0.5, 1000.0, kInf}) EXPECT_TRUE(std::isnan(En(n, x))) << n << ' ' << x;
    }
    for (std::int32_t n : {0, 1, 2, 6000}) {
        for (double x : {-5e-324, -1.0, -1000.0, -kInf, kNaN}) EXPECT_TRUE(std::isnan(En(n, x))) << n << ' ' << x;
    }
}

TEST(SpecExpIntegralN, IsZeroAboveItsLimit) {
    for (std::int32_t n : {0, 1, 2, 5000, 5001, INT32_MAX}) {
        EXPECT_EQ(En(n, Above(709.7827128933)), 0) << n;
        EXPECT_EQ(En(n, kInf), 0) << n;
        EXPECT_GT(En(n, 700), 0) << n;
    }
}

TEST(SpecExpIntegralN, IsInfiniteAtZeroBelowOrderTwoAndElseOneOverOrderLessOne) {
    EXPECT_EQ(En(0, 0), kInf);
    EXPECT_EQ(En(1, 0), kInf);
    EXPECT_EQ(En(1, -0.0), kInf);
    EXPECT_EQ(En(2, 0), 1);
    EXPECT_EQ(En(3, 0), 0.5);
    EXPECT_EQ(En(INT32_MAX, 0), 1 / 2147483646.0);
}

TEST(SpecExpIntegralN, HasTheElementaryOrderZero) {
    for (double x : {1e-300, 0.5, 1.0, 2.0, 700.0}) EXPECT_EQ(En(0, x), std::exp(-x) / x);
    EXPECT_EQ(En(0, 5e-324), kInf);
}

TEST(SpecExpIntegralN, SatisfiesItsRecurrenceAcrossAllMethods) {
    // n E_(n+1) = e^-x - x E_n, each of the three terms with some 10 roundings.
    for (std::int32_t n : {1, 2, 5, 24, 25, 26, 100, 4999, 5000, 5001, 100000}) {
        for (double x : {1e-5, 0.3, 0.999, 1.0, 1.001, 2.0, 20.0, 300.0}) {
            const double e = std::exp(-x);
            EXPECT_NEAR(n * En(n + 1, x), e - x * En(n, x), 32 * kU * e) << n << ' ' << x;
        }
    }
}

TEST(SpecExpIntegralN, HasNoStepAtItsCuts) {
    for (std::int32_t n : {1, 2, 10, 24, 25, 100, 5000}) {
        ExpectNoStep([n](double x) { return En(n, x); }, 1, 32);
    }
}

TEST(SpecSineIntegral, IsZeroAtZeroOddAndHalfPiAtInfinity) {
    EXPECT_TRUE(SameBits(Si(0.0), 0.0));
    EXPECT_TRUE(SameBits(Si(-0.0), -0.0));
    EXPECT_EQ(Si(kInf), kHalfPi);
    EXPECT_EQ(Si(-kInf), -kHalfPi);
    EXPECT_TRUE(std::isnan(Si(kNaN)));
    for (double x : {1e-300, 1.0, 4.0, 5.0, 8.0, 9.0, 1e9, 1e10, kLargest}) EXPECT_EQ(Si(-x), -Si(x)) << x;
}

TEST(SpecCosineIntegral, IsMinusInfinityAtZeroAndEvenInItsRealPart) {
    EXPECT_EQ(Ci(0.0), -kInf);
    EXPECT_EQ(Ci(-0.0), -kInf);
    EXPECT_EQ(Ci(kInf), 0);
    EXPECT_EQ(Ci(-kInf), 0);
    EXPECT_TRUE(std::isnan(Ci(kNaN)));
    for (double x : {1e-300, 1.0, 4.0, 5.0, 8.0, 9.0, 1e9, 1e10, kLargest}) EXPECT_EQ(Ci(-x), Ci(x)) << x;
}

TEST(SpecSineIntegral, HasItsLeadingFormsFarAway) {
    // Volatile: a sine that the compiler evaluates may differ in the last bit from the one that the library calls.
    for (volatile double x : {Above(1e9), 1e12, 1e300}) {
        EXPECT_EQ(Si(x), kHalfPi - std::cos(x) / x);
        EXPECT_EQ(Ci(x), std::sin(x) / x);
    }
}

TEST(SpecSineIntegral, HasNoStepAtItsCuts) {
    for (double x : {4.0, 8.0, 1e9}) ExpectNoStep(Si, x, 8);
    for (double x : {4.0, 8.0}) ExpectNoStep(Ci, x, 64);
    // At 1e9 a neighbour is 1e-7 away, where the slope cos(x)/x counts.
    EXPECT_NEAR(Ci(Above(1e9)), Ci(1e9), 2e-7 * 1e-9);
}

TEST(SpecCosineIntegral, IsTheLogarithmNearZero) {
    for (double x : {5e-324, 1e-300, 1e-10}) {
        EXPECT_NEAR(Ci(x), 0.5772156649015329 + std::log(x), 4 * kU * std::fabs(Ci(x)));
        EXPECT_NEAR(Chi(x), 0.5772156649015329 + std::log(x), 4 * kU * std::fabs(Chi(x)));
    }
}

TEST(SpecHyperbolicSineIntegral, IsZeroAtZeroAndOdd) {
    EXPECT_TRUE(SameBits(Shi(0.0), 0.0));
    EXPECT_TRUE(SameBits(Shi(-0.0), -0.0));
    for (double x : {5e-324, 1e-300, 1e-9}) EXPECT_EQ(Shi(x), x);
    for (double x : {1e-3, 1.0, 8.0, 18.0, 50.0, 88.0, 89.0}) EXPECT_EQ(Shi(-x), -Shi(x)) << x;
    EXPECT_TRUE(std::isnan(Shi(kNaN)));
}

TEST(SpecHyperbolicCosineIntegral, IsMinusInfinityAtZeroAndEven) {
    EXPECT_EQ(Chi(0.0), -kInf);
    EXPECT_EQ(Chi(-0.0), -kInf);
    for (double x : {1e-3, 1.0, 8.0, 18.0, 50.0, 88.0, 89.0}) EXPECT_EQ(Chi(-x), Chi(x)) << x;
    EXPECT_TRUE(std::isnan(Chi(kNaN)));
}

TEST(SpecHyperbolicIntegrals, AreInfiniteAbove88AndFiniteAt88) {
    EXPECT_NEAR(Shi(88), 0.5 * std::exp(88) / 88 * (1 + 1.0 / 88 + 2.0 / (88 * 88)), 1e-4 * Shi(88));
    EXPECT_NEAR(Chi(88), Shi(88), 8 * kU * Shi(88));
    for (double x : {Above(88), 100.0, kLargest, kInf}) {
        EXPECT_EQ(Shi(x), kInf) << x;
        EXPECT_EQ(Shi(-x), -kInf) << x;
        EXPECT_EQ(Chi(x), kInf) << x;
        EXPECT_EQ(Chi(-x), kInf) << x;
    }
}

TEST(SpecHyperbolicIntegrals, HaveNoStepAtTheirCuts) {
    // A neighbour of 18 moves the value by 18 u itself.
    for (double x : {8.0, 18.0}) {
        ExpectNoStep(Shi, x, 48);
        ExpectNoStep(Chi, x, 48);
    }
}

TEST(SpecParabolicCylinder, IsOneAtZeroForOrderZeroToItsGammaSeries) {
    EXPECT_NEAR(D(0, 0), 1, 2e-9);
    EXPECT_NE(D(0, 0), 1);  // the short Gamma series shows: deliberate
}

TEST(SpecParabolicCylinder, HasTheElementaryWholeOrders) {
    // D_0 = e^(-x^2/4), D_1 = x D_0, D_2 = (x^2 - 1) D_0, to the 2e-9 of the Gammas times the terms that cancel.
    EXPECT_NEAR(D(1, 1), 0.77880078, 5e-9);
    for (double x : {-2.0, -1.0, -0.1, 0.3, 1.0, 2.5}) {
        const double d0 = std::exp(-0.25 * x * x), growth = std::exp(0.5 * x * x);
        EXPECT_NEAR(D(0, x), d0, 4e-9 * growth) << x;
        EXPECT_NEAR(D(1, x), x * d0, 4e-9 * growth) << x;
        EXPECT_NEAR(D(2, x), (x * x - 1) * d0, 8e-9 * growth) << x;
    }
}

TEST(SpecParabolicCylinder, TakesXBeforeTheOrder) {
    EXPECT_NEAR(ZemFunc327(0, 2), -1, 4e-9);  // D_2(0)
    EXPECT_NEAR(ZemFunc327(2, 0), std::exp(-1), 4e-9 * std::exp(2));
}

TEST(SpecParabolicCylinder, IsZeroAtPlusInfinityForAnyOrder) {
    for (double v : {-kInf, -3.5, 0.0, 2.0, 1e300, kInf}) EXPECT_TRUE(SameBits(D(v, kInf), 0.0)) << v;
    EXPECT_TRUE(std::isnan(D(kNaN, kInf)));
    EXPECT_TRUE(std::isnan(D(1, kNaN)));
}

TEST(SpecParabolicCylinder, HasItsFourCasesAtMinusInfinity) {
    EXPECT_TRUE(std::isnan(D(kInf, -kInf)));
    EXPECT_EQ(D(-kInf, -kInf), kInf);
    EXPECT_EQ(D(-5e-324, -kInf), kInf);
    EXPECT_EQ(D(-2, -kInf), kInf);
    for (double v : {0.0, -0.0, 1.0, 2.0, 1e300}) EXPECT_EQ(D(v, -kInf), 0) << v;
    for (double v : {1.5, 3.999}) EXPECT_EQ(D(v, -kInf), kInf) << v;
    for (double v : {5e-324, 0.5, 2.25}) EXPECT_EQ(D(v, -kInf), -kInf) << v;
}

TEST(SpecParabolicCylinder, IsNaNForInfiniteOrderAndWhereASumLeavesTheRange) {
    EXPECT_TRUE(std::isnan(D(kInf, 1)));
    EXPECT_TRUE(std::isnan(D(-kInf, 1)));
    EXPECT_TRUE(std::isnan(D(0, 1e200)));
    EXPECT_TRUE(std::isnan(D(0, 60)));  // e^(x^2/2) overflows, though D does not
    EXPECT_TRUE(std::isnan(D(1e300, 1)));
    EXPECT_TRUE(std::isnan(D(1e15 + 1, 0)));
    EXPECT_TRUE(std::isnan(D(1e8 + 0.5, 1)));
}

TEST(SpecParabolicCylinder, IsZeroWithoutALoopForHugeNegativeOrders) {
    for (double v : {-1e4, -1e15, -1e300}) EXPECT_EQ(D(v, 1), 0) << v;
}

TEST(SpecParabolicCylinder, FollowsTheStatedOrderOfRoundings) {
    // The sum written out once more for v = 0.5, x = 0, where only the first term remains: sqrt(pi)/Gamma(1/4) 2^(1/4).
    double z = 0.25, p = 1;
    while (z <= 3) {
        p *= z;
        z += 1;
    }
    const double s = 2 / (z * z), u = (((s / 3 - 1) * (s / 7) + 1) * s) / 60 - 1;
    const double g = p * std::sqrt(z / 2) * std::exp(u / (12 * z) - (std::log(z) - 1) * z);
    EXPECT_EQ(D(0.5, 0), g * std::exp(0.34657359027997264 * 0.5));
}

}  // namespace
}  // namespace quorvan::testing

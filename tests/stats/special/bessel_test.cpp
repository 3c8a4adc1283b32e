// The Bessel family: faults, ends, cuts, parity, recurrences and values of closed form.
#include <chrono>
#include <cmath>
#include <gtest/gtest.h>

#include "quorvan/quorvan.h"
#include "tests/support/guarded.h"

namespace quorvan::testing {
namespace {

constexpr double kU = 0x1p-53;  // half a unit in the last place of 1, relative
constexpr double kLeast = 5e-324;
constexpr double kMost = 1.7976931348623157e308;

double J(double order, double x) { return ZemFunc302(order, x); }
double Y(double order, double x) { return ZemFunc301(order, x); }
double SphericalJ(std::uint32_t n, double x) { return ZemFunc303(n, x); }
double SphericalY(std::uint32_t n, double x) { return ZemFunc304(n, x); }
double I(double order, double x) { return ZemFunc305(order, x); }
double K(std::uint32_t n, double x) { return ZemFunc306(n, x); }
double Struve(double order, double x) { return ZemFunc328(order, x); }

struct AiryPair {
    double ai, bi;
};
AiryPair Airy(double x) {
    Reals ai(1, kUnwritten), bi(1, kUnwritten);
    ZemFunc330(x, ai, bi);
    return {ai[0], bi[0]};
}

ComplexRecord Be(double x, std::uint32_t n) {
    Records out = RecordOutput(1);
    ZemFunc333(x, n, out);
    return out[0];
}
ComplexRecord Ke(double x, std::uint32_t n) {
    Records out = RecordOutput(1);
    ZemFunc334(x, n, out);
    return out[0];
}

double Below(double x) { return std::nextafter(x, -kInf); }
double Above(double x) { return std::nextafter(x, kInf); }

// No step at a cut: the values on both sides differ by what the methods round, given as part of `scale`.
template <class F>
void ExpectNoStep(F f, double cut, double scale, double roundings) {
    const double below = f(Below(cut)), at = f(cut), above = f(Above(cut));
    EXPECT_NEAR(below, at, roundings * kU * scale) << cut;
    EXPECT_NEAR(above, at, roundings * kU * scale) << cut;
}

// --- J ---------------------------------------------------------------------------------------------------------------

TEST(SpecBesselJ, IsOneAtZeroForOrderZeroAndZeroForOthers) {
    for (double zero : {0.0, -0.0}) {
        EXPECT_EQ(J(0, zero), 1);
        EXPECT_EQ(J(-0.0, zero), 1);
        for (double order : {1.0, 2.0, 0.5, 1e-3, 700.0, 1e300, -1.0, -2.0, -1e10})
            EXPECT_EQ(J(order, zero), 0) << order;
    }
}

TEST(SpecBesselJ, IsAnInfinityAtZeroForBrokenOrdersBelowZeroWithTheSignOfTheGammaFunction) {
    EXPECT_EQ(J(-0.5, 0), kInf);
    EXPECT_EQ(J(-1.5, 0), -kInf);
    EXPECT_EQ(J(-2.25, 0), kInf);
    EXPECT_GT(J(-0.5, 1e-200), 1e90);
    EXPECT_LT(J(-1.5, 1e-200), -1e290);
}

TEST(SpecBesselJ, GivesNaNForNaN) {
    for (double other : {0.0, 1.0, 0.5, -3.0, 1e300, kInf, -kInf, kNaN}) {
        EXPECT_TRUE(std::isnan(J(kNaN, other))) << other;
        EXPECT_TRUE(std::isnan(J(other, kNaN))) << other;
    }
}

TEST(SpecBesselJ, RefusesNegativeArgumentsOfBrokenOrdersOnly) {
    for (double order : {0.5, -0.5, 2.25, 1000.5, 1e-9}) {
        EXPECT_TRUE(std::isnan(J(order, -1))) << order;
        EXPECT_TRUE(std::isnan(J(order, -kInf))) << order;
        EXPECT_TRUE(std::isnan(J(order, -kLeast))) << order;
    }
}

TEST(SpecBesselJ, TakesNegativeWholeOrdersAndArgumentsByParity) {
    for (int n = 0; n < 40; ++n) {
        const double sign = n % 2 == 0 ? 1 : -1;
        for (double x : {1e-3, 0.7, 4.0, 11.0, 60.0, 1e4}) {
            EXPECT_EQ(J(-n, x), sign * J(n, x)) << n << ' ' << x;
            EXPECT_EQ(J(n, -x), sign * J(n, x)) << n << ' ' << x;
            EXPECT_EQ(J(-n, -x), J(n, x)) << n << ' ' << x;
        }
    }
    EXPECT_EQ(J(-20001, 2e4), -J(20001, 2e4));
}

TEST(SpecBesselJ, GoesToZeroAtInfinityAndForInfiniteOrder) {
    for (double order : {0.0, 1.0, 5.0, 0.5, -0.5, 1e6}) EXPECT_EQ(J(order, kInf), 0) << order;
    EXPECT_EQ(J(1, -kInf), 0);
    EXPECT_EQ(J(kInf, 1), 0);
    EXPECT_TRUE(std::isnan(J(-kInf, 1)));
    EXPECT_TRUE(std::isnan(J(kInf, kInf)));
}

TEST(SpecBesselJ, KeepsItsLeadingTermForTinyArguments) {
    EXPECT_EQ(J(0, kLeast), 1);
    EXPECT_EQ(J(1, 1e-300), 0.5e-300);
    EXPECT_NEAR(J(0.5, 1e-200), std::sqrt(2 / kPi) * 1e-100, 8 * kU * 1e-100);
    EXPECT_EQ(J(2, 1e-200), 0);
    EXPECT_NEAR(J(-0.5, 1e-17), std::sqrt(2 / kPi / 1e-17), 20 * kU * 3e8);
}

TEST(SpecBesselJ, HasItsClosedFormsOfHalfOrders) {
    for (double x : {1e-5, 0.3, 1.9, 2.0, 5.0, 19.9, 20.0, 21.0, 100.0, 12345.0}) {
        const double factor = std::sqrt(2 / (kPi * x));
        EXPECT_NEAR(J(0.5, x), factor * std::sin(x), 20 * kU * std::fmin(factor, factor * x)) << x;
        EXPECT_NEAR(J(-0.5, x), factor * std::cos(x), 20 * kU * factor) << x;
    }
}

TEST(SpecBesselJ, HasNoStepAtItsCuts) {
    for (double order : {0.0, 1.0}) ExpectNoStep([=](double x) { return J(order, x); }, 5, 0.4, 20);
    ExpectNoStep([](double x) { return J(0, x); }, 1e-5, 1, 4);
    for (double order : {0.3, 2.0, 2.7, 6.0, 6.3}) {
        for (double cut : {std::sqrt(2 * (order + 1)), 2.0, 20.0, order}) {
            ExpectNoStep([=](double x) { return J(order, x); }, cut, 0.8, 40);
        }
    }
    // Between recurrence and expansion, where only neighbouring orders tell: J(v-1) + J(v+1) = (2v/x) J(v).
    for (double x : {1990.0, 2000.0, 2010.0, 2500.0, 10000.0}) {
        EXPECT_NEAR(J(1999.5, x) + J(2001.5, x), 2 * 2000.5 / x * J(2000.5, x), 1e-12) << x;
    }
}

TEST(SpecBesselJ, HasNoStepWhereTheTransitionExpansionEnds) {
    for (double order : {2500.0, 1e5, 1e8}) {
        const double c = 0.7 * std::cbrt(order);
        for (double cut : {order - c, order + c}) {
            // What the last terms leave out falls as v^(-10/3); beside the order the slope is v^(-2/3).
            const double scale = 1 / std::cbrt(order);
            EXPECT_NEAR(J(order, cut * (1 - 1e-15)), J(order, cut * (1 + 1e-15)),
                        1e-12 * scale + 1e-14 * cut * scale * scale)
                << order;
        }
    }
}

TEST(SpecBesselJ, FollowsItsRecurrenceOverAllRegions) {
    for (double v : {0.3, 1.5, 3.0, 7.2, 20.0, 33.3, 120.0, 499.5, 700.25}) {
        for (double x : {0.5, 3.0, 8.0, 19.0, 25.0, 80.0, 300.0, 600.0, 5000.0}) {
            const double below = J(v, x), at = J(v + 1, x), above = J(v + 2, x);
            const double scale = std::fabs(below) + std::fabs(above) + 2 * (v + 1) / x * std::fabs(at);
            EXPECT_NEAR(below + above, 2 * (v + 1) / x * at, 400 * kU * scale + 1e-305) << v << ' ' << x;
        }
    }
}

TEST(SpecBesselJ, UnderflowsToZeroWhereTheOrderIsFarAboveTheArgument) {
    EXPECT_EQ(J(1000, 1), 0);
    EXPECT_EQ(J(1000.5, 40), 0);
    EXPECT_EQ(J(1e6, 1000), 0);
    EXPECT_EQ(J(1e300, 1e200), 0);
    EXPECT_EQ(J(kMost, 1), 0);
}

TEST(SpecBesselJ, IsFiniteForEveryFiniteArgument) {
    for (double order : {0.0, 1.0, 2.0, 0.5, 50.0, 1e3, 1e6, 1e12, 1e100, kMost}) {
        for (double x : {1e10, 1e20, 1e100, 1e200, kMost}) EXPECT_LE(std::fabs(J(order, x)), 1) << order << ' ' << x;
    }
}

// --- Y ---------------------------------------------------------------------------------------------------------------

TEST(SpecBesselY, IsMinusInfinityAtZero) {
    for (double order : {0.0, 1.0, 2.0, 0.5, 3.7, 1e4, -0.5, -1.0, -200.0}) {
        EXPECT_EQ(Y(order, 0.0), -kInf) << order;
        EXPECT_EQ(Y(order, -0.0), -kInf) << order;
    }
}

TEST(SpecBesselY, GivesNaNForNaNAndForNegativeArguments) {
    for (double other : {0.0, 1.0, 0.5, -3.0, 1e300, kInf, -kInf, kNaN}) {
        EXPECT_TRUE(std::isnan(Y(kNaN, other))) << other;
        EXPECT_TRUE(std::isnan(Y(other, kNaN))) << other;
    }
    for (double order : {0.0, 1.0, 2.0, -1.0, 0.5, 3000.0}) {
        EXPECT_TRUE(std::isnan(Y(order, -1))) << order;
        EXPECT_TRUE(std::isnan(Y(order, -kLeast))) << order;
        EXPECT_TRUE(std::isnan(Y(order, -kInf))) << order;
    }
}

TEST(SpecBesselY, RefusesOrdersBelowMinus200) {
    EXPECT_TRUE(std::isfinite(Y(-200, 150)));
    EXPECT_TRUE(std::isfinite(Y(-199.75, 150)));
    for (double order : {Below(-200), -200.5, -201.0, -1e10, -kInf}) {
        EXPECT_TRUE(std::isnan(Y(order, 150))) << order;
        EXPECT_TRUE(std::isnan(Y(order, 0))) << order;
        EXPECT_TRUE(std::isnan(Y(order, kInf))) << order;
    }
}

TEST(SpecBesselY, RoundsOrdersWithin1e8OfAWholeNumber) {
    for (double n : {-3.0, 0.0, 1.0, 2.0, 17.0}) {
        for (double apart : {9e-9, -9e-9}) EXPECT_EQ(Y(n + apart, 2.5), Y(n, 2.5)) << n << ' ' << apart;
        for (double apart : {2e-8, -2e-8}) {
            EXPECT_NE(Y(n + apart, 2.5), Y(n, 2.5)) << n << ' ' << apart;
            EXPECT_NEAR(Y(n + apart, 2.5) / Y(n, 2.5), 1, 1e-6) << n << ' ' << apart;
        }
    }
}

TEST(SpecBesselY, KeepsItsLimitsAtInfinityAndForInfiniteOrder) {
    for (double order : {0.0, 1.0, 2.5, -2.5, 1e6}) EXPECT_EQ(Y(order, kInf), 0) << order;
    EXPECT_EQ(Y(kInf, 1), -kInf);
    EXPECT_TRUE(std::isnan(Y(kInf, kInf)));
}

TEST(SpecBesselY, OverflowsToMinusInfinityWhereTheOrderIsFarAboveTheArgument) {
    for (double order : {2.0, 2.5, 100.0, 1000.0, 1000.5, 1e6, 2147483647.0, 4e9, 1e300}) {
        EXPECT_EQ(Y(order, 1e-200), -kInf) << order;
    }
    EXPECT_EQ(Y(1, kLeast), -kInf);
    EXPECT_EQ(Y(1000, 1), -kInf);
    EXPECT_EQ(Y(2147483647.0, 1e6), -kInf);
}

TEST(SpecBesselY, TakesNegativeWholeOrdersByParityAndHalfOrdersInClosedForm) {
    for (int n = 1; n < 30; ++n) EXPECT_EQ(Y(-n, 3.5), (n % 2 == 0 ? 1 : -1) * Y(n, 3.5)) << n;
    for (double x : {1e-5, 0.3, 1.9, 2.0, 5.0, 19.9, 20.0, 21.0, 100.0, 12345.0}) {
        const double factor = std::sqrt(2 / (kPi * x));
        EXPECT_NEAR(Y(0.5, x), -factor * std::cos(x), 20 * kU * factor) << x;
        EXPECT_NEAR(Y(-0.5, x), factor * std::sin(x), 20 * kU * std::fmin(factor, factor * x)) << x;
    }
}

TEST(SpecBesselY, IsTheQuotientOfJOfBothSigns) {
    for (double v : {0.25, 0.75, 1.4, 3.5, 10.6}) {
        for (double x : {0.4, 2.3, 7.0, 30.0}) {
            const double expected = (std::cos(kPi * v) * J(v, x) - J(-v, x)) / std::sin(kPi * v);
            EXPECT_NEAR(Y(v, x), expected, 1e-12 * (1 + std::fabs(expected))) << v << ' ' << x;
        }
    }
}

TEST(SpecBesselY, HasNoStepAtItsCuts) {
    for (double order : {0.0, 1.0}) ExpectNoStep([=](double x) { return Y(order, x); }, 5, 0.4, 40);
    for (double order : {0.3, 2.0, 2.7, 6.3}) {
        for (double cut : {2.0, 20.0}) {
            ExpectNoStep([=](double x) { return Y(order, x); }, cut, std::fabs(Y(order, cut)) + 0.5, 60);
        }
    }
}

TEST(SpecBesselY, HasWronskisDeterminantWithJ) {
    for (double v : {0.0, 0.3, 1.0, 4.75, 12.0, 60.2, 450.0, 1999.5, 2500.0}) {
        for (double x : {0.9, 3.0, 10.0, 22.0, 100.0, 700.0, 2600.0}) {
            const double a = J(v + 1, x) * Y(v, x), b = J(v, x) * Y(v + 1, x);
            if (!std::isfinite(a) || !std::isfinite(b) || J(v + 1, x) < 1e-290) continue;
            EXPECT_NEAR((a - b) * (kPi * x / 2), 1, 2e-12 + 40 * kU * (std::fabs(a) + std::fabs(b)) * x)
                << v << ' ' << x;
        }
    }
}

// --- spherical -------------------------------------------------------------------------------------------------------

TEST(SpecSphericalJ, OfOrderZeroIsSineOverArgument) {
    for (double x : {1e-300, 1e-9, 1e-8, 1e-3, 0.5, 1.0, 2.5, 10.0, 25.0, 1000.0, 1e10}) {
        EXPECT_NEAR(SphericalJ(0, x), std::sin(x) / x, 20 * kU / std::fmax(1, x)) << x;
        EXPECT_EQ(SphericalJ(0, -x), SphericalJ(0, x)) << x;
    }
}

TEST(SpecSphericalJ, HasItsEndsAndParity) {
    EXPECT_EQ(SphericalJ(0, 0), 1);
    EXPECT_EQ(SphericalJ(0, -0.0), 1);
    EXPECT_EQ(SphericalJ(0, kLeast), 1);
    for (std::uint32_t n : {1u, 2u, 1000u, 4294967295u}) {
        EXPECT_EQ(SphericalJ(n, 0), 0) << n;
        EXPECT_NEAR(SphericalJ(n, kLeast), 0, kLeast) << n;
        EXPECT_EQ(SphericalJ(n, -2.5), (n % 2 == 0 ? 1 : -1) * SphericalJ(n, 2.5)) << n;
        EXPECT_EQ(SphericalJ(n, kInf), 0) << n;
        EXPECT_EQ(SphericalJ(n, -kInf), 0) << n;
        EXPECT_TRUE(std::isnan(SphericalJ(n, kNaN))) << n;
    }
    EXPECT_NEAR(SphericalJ(1, 1e-8), 1e-8 / 3, 20 * kU * 1e-8);
    EXPECT_NEAR(SphericalJ(1, 1e-300), 1e-300 / 3, 4 * kU * 1e-300);
}

TEST(SpecSphericalY, OfOrderZeroIsMinusCosineOverArgumentAndHasItsEnds) {
    for (double x : {1e-300, 1e-3, 0.5, 2.5, 10.0, 25.0, 1000.0}) {
        EXPECT_NEAR(SphericalY(0, x), -std::cos(x) / x, 20 * kU / x) << x;
    }
    for (std::uint32_t n : {0u, 1u, 2u, 1000u, 4294967295u}) {
        EXPECT_EQ(SphericalY(n, 0), -kInf) << n;
        EXPECT_EQ(SphericalY(n, -0.0), -kInf) << n;
        EXPECT_EQ(SphericalY(n, kInf), 0) << n;
        EXPECT_TRUE(std::isnan(SphericalY(n, -1))) << n;
        EXPECT_TRUE(std::isnan(SphericalY(n, -kInf))) << n;
        EXPECT_TRUE(std::isnan(SphericalY(n, kNaN))) << n;
    }
}

// --- I and K ---------------------------------------------------------------------------------------------------------

TEST(SpecBesselI, IsOneAtZeroForOrderZeroAndZeroForAllOthers) {
    EXPECT_EQ(I(0, 0), 1);
    EXPECT_EQ(I(0, -0.0), 1);
    for (double order : {1.0, 2.0, 0.5, 300.0, -1.0, -0.5, -1.5, -200.0}) {
        EXPECT_EQ(I(order, 0), 0) << order;
        EXPECT_EQ(I(order, -0.0) != 0 || std::isnan(I(order, -0.0)), false) << order;
    }
}

TEST(SpecBesselI, GivesNaNForNaNForBrokenOrdersBelowZeroArgumentAndForOrdersBelowMinus200) {
    for (double other : {0.0, 1.0, 0.5, -3.0, 1e300, kInf, -kInf, kNaN}) {
        EXPECT_TRUE(std::isnan(I(kNaN, other))) << other;
        EXPECT_TRUE(std::isnan(I(other, kNaN))) << other;
    }
    for (double order : {0.5, -0.5, 12.25}) EXPECT_TRUE(std::isnan(I(order, -1))) << order;
    for (double order : {Below(-200), -200.5, -201.0, -1e10, -kInf}) {
        EXPECT_TRUE(std::isnan(I(order, 1))) << order;
        EXPECT_TRUE(std::isnan(I(order, 0))) << order;
    }
    EXPECT_TRUE(std::isfinite(I(-200, 1)));
}

TEST(SpecBesselI, IsEvenInWholeOrdersAndTakesNegativeArgumentsByParity) {
    for (int n = 0; n < 120; n += 7) {
        for (double x : {0.3, 5.0, 30.0, 400.0}) {
            EXPECT_EQ(I(-n, x), I(n, x)) << n << ' ' << x;
            EXPECT_EQ(I(n, -x), (n % 2 == 0 ? 1 : -1) * I(n, x)) << n << ' ' << x;
        }
    }
}

TEST(SpecBesselI, OverflowsToInfinityAndNotBefore) {
    EXPECT_TRUE(std::isfinite(I(0, 713.9)));  // e^713.9 alone would overflow
    EXPECT_EQ(I(0, 714), kInf);
    EXPECT_TRUE(std::isfinite(I(1000, 1000)));
    EXPECT_EQ(I(2.5, 800), kInf);
    EXPECT_EQ(I(3, -800), -kInf);
    EXPECT_EQ(I(0, kInf), kInf);
    EXPECT_EQ(I(3, -kInf), -kInf);
    EXPECT_EQ(I(-2.5, kMost), kInf);
    EXPECT_EQ(I(1e300, 1e10), 0);
    EXPECT_EQ(I(kInf, 1), 0);
}

TEST(SpecBesselI, HasTheTrueValueAtHalfOrdersOfBothSigns) {
    for (double x : {1e-3, 0.5, 3.0, 15.0, 19.99, 20.0, 100.0, 700.0}) {
        const double factor = std::sqrt(2 / (kPi * x)), s = std::sinh(x), c = std::cosh(x);
        EXPECT_NEAR(I(0.5, x) / (factor * s), 1, 40 * kU) << x;
        EXPECT_NEAR(I(-0.5, x) / (factor * c), 1, 40 * kU) << x;
        if (x >= 0.5) {
            EXPECT_NEAR(I(1.5, x) / (factor * (c - s / x)), 1, 400 * kU) << x;
            EXPECT_NEAR(I(-1.5, x) / (factor * (s - c / x)), 1, 400 * kU) << x;
        }
    }
}

TEST(SpecBesselI, HasNoStepAtItsCuts) {
    for (double order : {0.0, 1.0}) {
        EXPECT_NEAR(I(order, Below(8)) / I(order, Above(8)), 1, 40 * kU);
    }
    for (double order : {2.0, 2.5, 5.0, 30.0, 70.5}) {
        for (double cut : {2 * std::sqrt(order + 1), 20.0, order * order / 2}) {
            if (cut > 650) continue;
            // The slope of ln I is sqrt(x^2 + v^2) / x.
            EXPECT_NEAR(I(order, Below(cut)) / I(order, Above(cut)), 1, (60 + 4 * (cut + order)) * kU)
                << order << ' ' << cut;
        }
    }
    EXPECT_NEAR(I(Below(500), 600) / I(500, 600), 1, 1e-12);
}

TEST(SpecBesselK, IsInfiniteAtZeroNaNBelowAndZeroAtInfinity) {
    for (std::uint32_t n : {0u, 1u, 2u, 100u, 4294967295u}) {
        EXPECT_EQ(K(n, 0), kInf) << n;
        EXPECT_EQ(K(n, -0.0), kInf) << n;
        EXPECT_EQ(K(n, kInf), 0) << n;
        for (double x : {-kLeast, -1.0, -kInf, kNaN}) EXPECT_TRUE(std::isnan(K(n, x))) << n << ' ' << x;
    }
}

TEST(SpecBesselK, StaysInRangeWhereItsStartDoesNot) {
    EXPECT_EQ(K(0, 800), 0);         // e^-800
    EXPECT_GT(K(1500, 800), 1e100);  // which the order makes up for
    EXPECT_TRUE(std::isfinite(K(1500, 800)));
    EXPECT_NEAR(K(1, 1e-300), 1e300, 8 * kU * 1e300);
    EXPECT_EQ(K(2, 1e-200), kInf);
    EXPECT_EQ(K(1, kLeast), kInf);
    EXPECT_NEAR(K(0, kLeast), 744.4400719213812 + 0.11593151565841245, 1e-12);
    EXPECT_EQ(K(4294967295u, 1e5), kInf);
    EXPECT_EQ(K(4294967295u, 1e300), 0);
}

TEST(SpecBesselK, HasWronskisDeterminantWithI) {
    // I(n) K(n+1) + I(n+1) K(n) = 1/x
    for (std::uint32_t n : {0u, 1u, 2u, 9u, 40u, 99u, 300u, 998u, 1200u}) {
        for (double x : {0.5, 1.9, 2.0, 2.1, 15.0, 21.0, 150.0, 690.0}) {
            const double a = I(n, x) * K(n + 1, x), b = I(n + 1, x) * K(n, x);
            if (!std::isfinite(a) || !std::isfinite(b) || I(n + 1, x) < 1e-290) continue;
            EXPECT_NEAR((a + b) * x, 1, n < 400 ? 200 * kU : 4e-12) << n << ' ' << x;
        }
    }
}

TEST(SpecBesselK, HasNoStepAtItsCuts) {
    for (std::uint32_t n : {0u, 1u, 7u}) EXPECT_NEAR(K(n, Below(2)) / K(n, Above(2)), 1, 60 * kU) << n;
    EXPECT_NEAR(K(1001, 900), K(999, 900) + 2 * 1000.0 / 900 * K(1000, 900), 1e-12 * K(1001, 900));
}

// --- Struve ----------------------------------------------------------------------------------------------------------

TEST(SpecStruve, HasItsLimitAtZero) {
    for (double order : {0.0, 1.0, 2.5, 100.0, -0.5, -0.99}) EXPECT_EQ(Struve(order, 0), 0) << order;
    EXPECT_NEAR(Struve(-1, 0), 2 / kPi, kU);
    EXPECT_EQ(Struve(-1.25, 0), kInf);
    EXPECT_EQ(Struve(-1.75, 0), -kInf);
    EXPECT_EQ(Struve(-2, 0), -kInf);
    EXPECT_EQ(Struve(-3, 0), kInf);
    for (double order : {-1.5, -2.5, -10.5}) EXPECT_EQ(Struve(order, 0), 0) << order;
    for (double order : {-0.99, -1.0, -1.25, -1.75, -2.0, -3.0}) {  // and goes there
        const double near = Struve(order, 1e-250), at = Struve(order, 0);
        EXPECT_TRUE(std::isinf(at) ? std::signbit(near) == std::signbit(at) && std::fabs(near) > 1e60
                                   : std::fabs(near - at) < 1e-2)
            << order;
    }
}

TEST(SpecStruve, HasItsLimitAtInfinity) {
    for (double order : {0.0, 0.99, -0.5, -3.0, -7.25}) EXPECT_EQ(Struve(order, kInf), 0) << order;
    EXPECT_NEAR(Struve(1, kInf), 2 / kPi, kU);
    EXPECT_EQ(Struve(1.25, kInf), kInf);
    EXPECT_EQ(Struve(2, kInf), kInf);
    EXPECT_EQ(Struve(2, -kInf), -kInf);
    EXPECT_NEAR(Struve(1, 1e12), 2 / kPi, 1e-6);
}

TEST(SpecStruve, GivesNaNForNaNInfiniteOrderAndNegativeArgumentsOfBrokenOrders) {
    for (double other : {0.0, 1.0, 0.5, -3.0, 1e300, kInf, -kInf, kNaN}) {
        EXPECT_TRUE(std::isnan(Struve(kNaN, other))) << other;
        EXPECT_TRUE(std::isnan(Struve(other, kNaN))) << other;
    }
    for (double order : {kInf, -kInf}) EXPECT_TRUE(std::isnan(Struve(order, 1))) << order;
    for (double order : {0.5, -0.5, 2.25}) EXPECT_TRUE(std::isnan(Struve(order, -1))) << order;
}

TEST(SpecStruve, IsOddInEvenOrdersAndEvenInOddOnes) {
    for (int n = -6; n < 12; ++n) {
        for (double x : {0.4, 7.0, 29.0, 120.0}) {
            EXPECT_EQ(Struve(n, -x), (n % 2 == 0 ? -1 : 1) * Struve(n, x)) << n << ' ' << x;
        }
    }
}

TEST(SpecStruve, HasTheTrueValueAtHalfOrdersOfBothSigns) {
    for (double x : {0.1, 1.0, 5.0, 17.9, 18.0, 29.0, 31.0, 36.0, 41.0, 200.0}) {
        const double factor = std::sqrt(2 / (kPi * x));
        EXPECT_NEAR(Struve(0.5, x), factor * (1 - std::cos(x)), 40 * kU * factor) << x;
        EXPECT_NEAR(Struve(1.5, x),
                    std::sqrt(x / kTwoPi) * (1 + 2 / (x * x)) - factor * (std::sin(x) + std::cos(x) / x),
                    60 * kU * std::sqrt(x) * (1 + 2 / (x * x)))
            << x;
        EXPECT_NEAR(Struve(-0.5, x), factor * std::sin(x), 40 * kU * factor) << x;
        EXPECT_EQ(Struve(-3.5, x), -J(3.5, x)) << x;
        EXPECT_EQ(Struve(-4.5, x), J(4.5, x)) << x;
    }
}

TEST(SpecStruve, HasNoStepAtItsCuts) {
    for (double order : {0.0, 0.3, 1.0, 4.0, -2.25}) {
        for (double cut : {18.0, 30.0, 40.0}) {
            ExpectNoStep([=](double x) { return Struve(order, x); }, cut, std::fabs(Struve(order, cut)) + 0.2, 60);
        }
    }
}

TEST(SpecStruve, LeavesTheRangeOfDoublesForHugeOrders) {
    EXPECT_EQ(Struve(1e5, 5e4), 0);
    EXPECT_EQ(Struve(1e5, 1e5 - 1), kInf);
    EXPECT_EQ(Struve(1e300, 1), 0);
    EXPECT_EQ(Struve(1e10, 1e9), 0);
    EXPECT_EQ(Struve(1e10, 9e9), kInf);
}

TEST(SpecStruve, FollowsItsRecurrence) {
    // H(v-1) + H(v+1) = (2v/x) H(v) + (x/2)^v / (sqrt pi Gamma(v + 3/2))  (A&S 12.1.9)
    for (double v : {0.0, 0.75, 3.0, 12.5, 60.0}) {
        for (double x : {0.5, 6.0, 17.0, 25.0, 39.0, 42.0, 90.0}) {
            const double below = Struve(v - 1, x), at = Struve(v, x), above = Struve(v + 1, x);
            const double rest = std::exp(v * std::log(x / 2) - std::lgamma(v + 1.5)) / std::sqrt(kPi);
            const double scale = std::fabs(below) + std::fabs(above) + rest + 2 * v / x * std::fabs(at);
            EXPECT_NEAR(below + above, 2 * v / x * at + rest, 1e-13 * scale) << v << ' ' << x;
        }
    }
}

// --- Airy ------------------------------------------------------------------------------------------------------------

TEST(SpecAiry, HasItsValuesAtZero) {
    for (double zero : {0.0, -0.0}) {
        const AiryPair at = Airy(zero);
        EXPECT_NEAR(at.ai, 0.3550280538878172, 2 * kU);
        EXPECT_NEAR(at.bi, 0.6149266274460007, 2 * kU);
    }
}

TEST(SpecAiry, IsZeroAndInfiniteAbove103AndAtInfinity) {
    for (double x : {104.0, Above(103.892), 1e10, kMost, kInf}) {
        EXPECT_EQ(Airy(x).ai, 0) << x;
        EXPECT_EQ(Airy(x).bi, kInf) << x;
    }
    EXPECT_GT(Airy(103.892).ai, 0);
    EXPECT_TRUE(std::isfinite(Airy(103.892).bi));
    EXPECT_EQ(Airy(-kInf).ai, 0);
    EXPECT_EQ(Airy(-kInf).bi, 0);
}

TEST(SpecAiry, GivesNaNInBothForNaN) {
    EXPECT_TRUE(std::isnan(Airy(kNaN).ai));
    EXPECT_TRUE(std::isnan(Airy(kNaN).bi));
}

TEST(SpecAiry, HasNoStepAtItsCuts) {
    for (double cut : {-2.09, 2.09, 8.3203353}) {
        ExpectNoStep([](double x) { return Airy(x).ai; }, cut, std::fabs(Airy(cut).ai), 60);
        ExpectNoStep([](double x) { return Airy(x).bi; }, cut, std::fabs(Airy(cut).bi), cut > 8 ? 60 : 20);
    }
}

TEST(SpecAiry, StaysBelowItsEnvelopeForEveryNegativeArgument) {
    for (double x : {-3.0, -1e3, -1e6, -1e10, -1e50, -1e150, -1e200, -1e250, -kMost}) {
        const double envelope = 1 / std::sqrt(kPi * std::sqrt(-x));
        EXPECT_LE(std::fabs(Airy(x).ai), envelope * 1.01) << x;
        EXPECT_LE(std::fabs(Airy(x).bi), envelope * 1.01) << x;
    }
}

// --- Kelvin ----------------------------------------------------------------------------------------------------------

TEST(SpecKelvinBe, IsOneAtZeroForOrderZeroAndZeroForOthers) {
    for (double zero : {0.0, -0.0}) {
        EXPECT_EQ(Be(zero, 0).re, 1);
        EXPECT_EQ(Be(zero, 0).im, 0);
        for (std::uint32_t n : {1u, 2u, 77u, 4294967295u}) {
            EXPECT_EQ(Be(zero, n).re, 0) << n;
            EXPECT_EQ(Be(zero, n).im, 0) << n;
        }
    }
}

TEST(SpecKelvinBe, TakesNegativeArgumentsByParity) {
    for (std::uint32_t n : {0u, 1u, 2u, 3u, 30u, 161u}) {
        for (double x : {0.5, 9.0, 15.0, 50.0}) {
            const double sign = n % 2 == 0 ? 1 : -1;
            EXPECT_EQ(Be(-x, n).re, sign * Be(x, n).re) << n << ' ' << x;
            EXPECT_EQ(Be(-x, n).im, sign * Be(x, n).im) << n << ' ' << x;
        }
    }
}

TEST(SpecKelvin, GiveNaNInBothPartsForNaNAndWhereNothingIsDefined) {
    for (std::uint32_t n : {0u, 1u, 5u, 200u, 4294967295u}) {
        for (double x : {kNaN, kInf, -kInf}) {
            EXPECT_TRUE(std::isnan(Be(x, n).re) && std::isnan(Be(x, n).im)) << n << ' ' << x;
        }
        for (double x : {kNaN, -1.0, -kLeast, -kInf}) {
            EXPECT_TRUE(std::isnan(Ke(x, n).re) && std::isnan(Ke(x, n).im)) << n << ' ' << x;
        }
        EXPECT_EQ(Ke(kInf, n).re, 0) << n;
        EXPECT_EQ(Ke(kInf, n).im, 0) << n;
    }
}

TEST(SpecKelvinKe, IsInfiniteAtZeroForEveryOrderAndKeiHasItsLimit) {
    for (double zero : {0.0, -0.0}) {
        for (std::uint32_t n : {0u, 1u, 2u, 3u, 4u, 8u}) EXPECT_EQ(Ke(zero, n).re, kInf) << n;
        EXPECT_NEAR(Ke(zero, 0).im, -kPi / 4, kU);
    }
    for (std::uint32_t n : {1u, 2u, 3u, 4u, 5u, 6u, 7u, 8u, 12u}) {
        const double limit = Ke(0, n).im, near = Ke(1e-12, n).im;
        EXPECT_TRUE(std::isinf(limit)) << n;
        EXPECT_GT(near / limit, -1) << n;
        EXPECT_EQ(std::signbit(near), std::signbit(limit)) << n;
    }
}

TEST(SpecKelvinKe, HasItsLeadingTermsForTinyArguments) {
    EXPECT_NEAR(Ke(1e-300, 0).re, std::log(2) + 300 * std::log(10) - 0.5772156649015329, 8 * kU * 700);
    EXPECT_NEAR(Ke(1e-300, 0).im, -kPi / 4, 2 * kU);
    EXPECT_NEAR(Ke(1e-300, 1).re, -std::sqrt(0.5) * 1e300, 8 * kU * 1e300);
    EXPECT_NEAR(Ke(1e-300, 1).im, -std::sqrt(0.5) * 1e300, 8 * kU * 1e300);
    EXPECT_NEAR(Ke(1e-300, 2).re, 0.5, 4 * kU);  // the infinite first term has no real part
    EXPECT_EQ(Ke(1e-300, 2).im, kInf);
    EXPECT_EQ(Ke(kLeast, 3).re, kInf);
    EXPECT_FALSE(std::isnan(Ke(kLeast, 4294967295u).re));
    EXPECT_FALSE(std::isnan(Ke(kLeast, 4294967295u).im));
}

TEST(SpecKelvin, HaveNoStepAtTheirCuts) {
    for (std::uint32_t n : {0u, 1u, 2u, 6u}) {
        for (double cut : {2.0, 10.0, 20.0}) {
            for (auto f : {Be, Ke}) {
                const double scale = std::fabs(f(cut, n).re) + std::fabs(f(cut, n).im);
                ExpectNoStep([=](double x) { return f(x, n).re; }, cut, scale, 60);
                ExpectNoStep([=](double x) { return f(x, n).im; }, cut, scale, 60);
            }
        }
    }
}

TEST(SpecKelvin, GrowBeyondAndFallBelowTheRangeOfDoubles) {
    EXPECT_TRUE(std::isfinite(Be(1003, 0).re));
    EXPECT_EQ(std::fabs(Be(1100, 0).re), kInf);
    EXPECT_EQ(Ke(1100, 0).re, 0);
    EXPECT_FALSE(std::isnan(Be(kMost, 3).re));
    EXPECT_EQ(Ke(kMost, 3).im, 0);
    EXPECT_EQ(Be(1e-200, 5).re, 0);
}

// --- all -------------------------------------------------------------------------------------------------------------

// Any bit pattern whatever: infinities, NaN, denormal numbers, and as many numbers of ordinary size.
double AnyDouble(std::mt19937_64& engine) {
    const double ordinary = std::uniform_real_distribution<double>(-1, 1)(engine);
    switch (engine() % 4) {
        case 0: return std::bit_cast<double>(engine());
        case 1: return ordinary * 50;
        case 2: return std::nearbyint(ordinary * 3000) / 2;
        default: return ordinary * std::exp(20 * std::uniform_real_distribution<double>(-1, 1)(engine));
    }
}

TEST(BesselFamily, EndsForAnyBitPatternAndKeepsNaN) {
    using Clock = std::chrono::steady_clock;
    std::mt19937_64 engine(11);
    std::chrono::duration<double> longest{0};
    for (int i = 0; i < 60000; ++i) {
        const double order = AnyDouble(engine), x = AnyDouble(engine);
        const auto n = static_cast<std::uint32_t>(engine() >> (32 + engine() % 32));
        const auto start = Clock::now();
        const double broken[] = {J(order, x), Y(order, x), I(order, x), Struve(order, x)};
        const double whole[] = {SphericalJ(n, x), SphericalY(n, x), K(n, x), Airy(x).ai, Be(x, n).re, Ke(x, n).im};
        const std::chrono::duration<double> taken = Clock::now() - start;
        longest = std::max(longest, taken);
        if (std::isnan(order) || std::isnan(x)) {
            for (double value : broken) EXPECT_TRUE(std::isnan(value)) << order << ' ' << x;
        }
        if (std::isnan(x)) {
            for (double value : whole) EXPECT_TRUE(std::isnan(value)) << n;
        } else if (x > 0 && std::isfinite(x)) {
            for (const double& value : whole) EXPECT_FALSE(std::isnan(value)) << &value - whole << ' ' << n << ' ' << x;
            if (!std::isnan(order)) {
                EXPECT_EQ(std::isnan(broken[0]), order == -kInf) << order << ' ' << x;
                EXPECT_EQ(std::isnan(broken[1]), order < -200) << order << ' ' << x;
                EXPECT_EQ(std::isnan(broken[2]), order < -200) << order << ' ' << x;
            }
        }
    }
    // Thousands of terms take a fraction of a millisecond; what takes a second does not end by itself.
    EXPECT_LT(longest.count(), 1.0);
}

}  // namespace
}  // namespace quorvan::testing

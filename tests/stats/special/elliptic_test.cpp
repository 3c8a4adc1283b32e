// Elliptic integrals and Jacobian functions: faults, ends, cuts, closed forms and laws.
#include <cmath>
#include <gtest/gtest.h>

#include "quorvan/quorvan.h"
#include "tests/support/guarded.h"

namespace quorvan::testing {
namespace {

constexpr double kU = 0x1p-53;  // half a unit in the last place of 1, relative
constexpr double kHalfPi = 1.5707963267948966;
constexpr double kParameters[] = {0.0, 1e-12, 0.1, 0.5, 0.75, 0.99, 1 - 1e-9, 1.0};

double K(double m) { return ZemFunc318(m, nullptr); }
double E(double m) { return ZemFunc319(m, nullptr); }
double F(double phi, double m) { return ZemFunc318(m, &phi); }
double Einc(double phi, double m) { return ZemFunc319(m, &phi); }

struct Jacobi {
    double sn, cn, dn, phi;
};

Jacobi At(double u, double m) {
    Guarded<double> out(4);
    ZemFunc332(u, m, &out[0], &out[1], &out[2], &out[3]);
    return {out[0], out[1], out[2], out[3]};
}

TEST(SpecEllipticK, IsHalfPiAtZeroAndInfiniteAtOne) {
    EXPECT_NEAR(K(0), kHalfPi, 2 * kU * kHalfPi);
    EXPECT_EQ(K(1), kInf);
}

TEST(SpecEllipticK, TakesTheParameterAndNotTheModulus) {
    EXPECT_NEAR(K(0.5), 1.8540746773013719, 8 * kU);  // Gamma(1/4)^2 / (4 sqrt pi)
    EXPECT_NEAR(E(0.5), 1.3506438810476755, 8 * kU);
}

TEST(SpecEllipticK, IsTheLogarithmBesideOne) {
    // K = ln(4/sqrt(1-m)) + O((1-m) ln(1-m)); the rational form ends at 1 - m = epsilon.
    for (double q : {0x1p-53, 0x1p-52, 0x1p-51, 0x1p-50}) {
        EXPECT_NEAR(K(1 - q), std::log(4) - 0.5 * std::log(q), 16 * 20 * kU) << q;
    }
}

TEST(SpecEllipticE, IsHalfPiAtZeroAndOneAtOne) {
    EXPECT_NEAR(E(0), kHalfPi, 2 * kU * kHalfPi);
    EXPECT_EQ(E(1), 1);
    EXPECT_NEAR(E(1 - 0x1p-53), 1, 32 * kU);
}

TEST(SpecElliptic, RefusesParametersOutsideZeroToOne) {
    for (double m : {-5e-324, -1.0, std::nextafter(1.0, 2.0), 2.0, kInf, -kInf, kNaN}) {
        EXPECT_TRUE(std::isnan(K(m))) << m;
        EXPECT_TRUE(std::isnan(E(m))) << m;
        for (double phi : {0.0, 1.0, kInf}) {
            EXPECT_TRUE(std::isnan(F(phi, m))) << m;
            EXPECT_TRUE(std::isnan(Einc(phi, m))) << m;
        }
        const Jacobi j = At(0.5, m);
        EXPECT_TRUE(std::isnan(j.sn) && std::isnan(j.cn) && std::isnan(j.dn) && std::isnan(j.phi)) << m;
    }
    EXPECT_TRUE(std::isnan(F(kNaN, 0.5)) && std::isnan(Einc(kNaN, 0.5)));
    EXPECT_TRUE(std::isnan(F(kNaN, 0)) && std::isnan(Einc(kNaN, 1)));
}

TEST(SpecElliptic, TheAddressOfZeroIsNotNull) {
    for (double m : kParameters) {
        EXPECT_TRUE(SameBits(F(0.0, m), 0.0)) << m;
        EXPECT_TRUE(SameBits(F(-0.0, m), -0.0)) << m;
        EXPECT_TRUE(SameBits(Einc(0.0, m), 0.0)) << m;
        EXPECT_TRUE(SameBits(Einc(-0.0, m), -0.0)) << m;
    }
}

TEST(SpecElliptic, IncompleteIsTheAngleAtParameterZero) {
    for (double phi : {-100.0, -1.0, 1e-300, 0.3, 2.0, 1e10}) {
        EXPECT_EQ(F(phi, 0), phi);
        EXPECT_EQ(Einc(phi, 0), phi);
    }
}

TEST(SpecElliptic, IncompleteHasElementaryFormsAtParameterOne) {
    for (double phi : {1e-10, 0.1, 1.0, 1.5}) {
        EXPECT_NEAR(F(phi, 1), std::asinh(std::tan(phi)), 4 * kU * F(phi, 1));
        EXPECT_NEAR(Einc(phi, 1), std::sin(phi), 2 * kU);
        EXPECT_NEAR(Einc(phi + kTwoPi, 1), 4 + std::sin(phi), 16 * kU);
    }
    EXPECT_EQ(F(kHalfPi, 1), kInf);
    EXPECT_EQ(F(-kHalfPi, 1), -kInf);
    EXPECT_EQ(F(3, 1), kInf);
    EXPECT_EQ(F(-1e300, 1), -kInf);
}

TEST(SpecElliptic, IncompleteIsOddAndQuasiPeriodic) {
    for (double m : {1e-12, 0.1, 0.5, 0.99, 1 - 1e-9}) {
        for (double phi : {0.01, 0.7, 1.4, 1.57, 2.0, 4.5, 30.0}) {
            EXPECT_EQ(F(-phi, m), -F(phi, m)) << phi << ' ' << m;
            EXPECT_EQ(Einc(-phi, m), -Einc(phi, m)) << phi << ' ' << m;
            // phi + pi rounds by up to half a unit of 32, times the largest slope 1/sqrt(1-m) of F, 1 of E.
            const double moved = 64 * kU;
            EXPECT_NEAR(F(phi + kPi, m), F(phi, m) + 2 * K(m), moved / std::sqrt(1 - m) + 16 * kU * F(phi + kPi, m));
            EXPECT_NEAR(Einc(phi + kPi, m), Einc(phi, m) + 2 * E(m), moved + 16 * kU * Einc(phi + kPi, m));
        }
    }
}

TEST(SpecElliptic, IncompleteMeetsTheCompleteAtHalfPi) {
    for (double m : {1e-12, 0.1, 0.5, 0.99, 1 - 1e-9}) {
        // The double below pi/2 is 6e-17 away from it, where F has its steepest slope.
        EXPECT_NEAR(F(kHalfPi, m), K(m), 8 * kU * K(m) + 7e-17 / std::sqrt(1 - m)) << m;
        EXPECT_NEAR(Einc(kHalfPi, m), E(m), 8 * kU * E(m)) << m;
    }
}

TEST(SpecElliptic, IncompleteHasNoStepAtItsCuts) {
    // Small angle, the change to the other end at tan phi = 10, the reduction at pi/2.
    for (double cut : {0.015, std::atan(10.0), kHalfPi}) {
        for (double m : {0.1, 0.5, 0.9}) {
            const double h = 1e-9, slope = 1 / std::sqrt(1 - m * std::sin(cut) * std::sin(cut));
            EXPECT_NEAR(F(cut + h, m) - F(cut - h, m), 2 * h * slope, 32 * kU) << cut << ' ' << m;
            EXPECT_NEAR(Einc(cut + h, m) - Einc(cut - h, m), 2 * h / slope, 32 * kU) << cut << ' ' << m;
        }
    }
}

TEST(SpecElliptic, IncompleteGrowsLikeTheCompleteForHugeAngles) {
    for (double m : {0.1, 0.5, 0.9}) {
        for (double phi : {1e12, 1e17, 1e200, 5e307}) {
            EXPECT_NEAR(F(phi, m) / phi, K(m) / kHalfPi, 1e-11) << phi;
            EXPECT_NEAR(Einc(phi, m) / phi, E(m) / kHalfPi, 1e-11) << phi;
        }
        EXPECT_EQ(F(kInf, m), kInf);
        EXPECT_EQ(F(-kInf, m), -kInf);
        EXPECT_EQ(Einc(kInf, m), kInf);
        EXPECT_EQ(Einc(-kInf, m), -kInf);
    }
}

TEST(SpecElliptic, SatisfiesLegendresRelation) {
    for (double m : {0.01, 0.3, 0.5, 0.9, 0.999}) {
        const double relation = E(m) * K(1 - m) + E(1 - m) * K(m) - K(m) * K(1 - m);
        EXPECT_NEAR(relation, kHalfPi, 8 * kU * K(m) * K(1 - m)) << m;
    }
}

TEST(SpecJacobiElliptic, IsTheSineAndCosineAtParameterZero) {
    for (double u : {-20.0, -1.0, 0.0, 1e-300, 0.5, 2.0, 1000.0}) {
        const Jacobi j = At(u, 0);
        EXPECT_EQ(j.sn, std::sin(u));
        EXPECT_EQ(j.cn, std::cos(u));
        EXPECT_EQ(j.dn, 1);
        EXPECT_EQ(j.phi, u);
    }
}

TEST(SpecJacobiElliptic, IsHyperbolicAtParameterOne) {
    for (double u : {-20.0, -1.0, 1e-300, 0.5, 2.0, 700.0}) {
        const Jacobi j = At(u, 1);
        EXPECT_EQ(j.sn, std::tanh(u));
        EXPECT_EQ(j.cn, 1 / std::cosh(u));
        EXPECT_EQ(j.dn, j.cn);
        EXPECT_NEAR(j.phi, std::atan(std::sinh(u)), 2 * kU);
    }
    EXPECT_EQ(At(1000, 1).sn, 1);
    EXPECT_EQ(At(kInf, 1).sn, 1);
    EXPECT_EQ(At(-kInf, 1).sn, -1);
    EXPECT_EQ(At(kInf, 1).cn, 0);
    EXPECT_EQ(At(kInf, 1).dn, 0);
}

TEST(SpecJacobiElliptic, IsNaNInEveryOutputForNaNAndInfinity) {
    for (double m : {0.0, 1e-12, 0.5, 1 - 1e-12}) {
        for (double u : {kNaN, kInf, -kInf}) {
            const Jacobi j = At(u, m);
            EXPECT_TRUE(std::isnan(j.sn) && std::isnan(j.cn) && std::isnan(j.dn) && std::isnan(j.phi)) << m;
        }
    }
}

TEST(SpecJacobiElliptic, TakesANullAmplitude) {
    Guarded<double> out(3);
    ZemFunc332(0.5, 0.3, &out[0], &out[1], &out[2], nullptr);
    const Jacobi j = At(0.5, 0.3);
    EXPECT_EQ(out[0], j.sn);
    EXPECT_EQ(out[1], j.cn);
    EXPECT_EQ(out[2], j.dn);
}

TEST(SpecJacobiElliptic, SatisfiesItsTwoIdentities) {
    for (double m : {1e-10, 0.1, 0.5, 0.9, 1 - 1e-6, 1 - 1e-10}) {
        for (double u = -12; u <= 12; u += 0.37) {
            const Jacobi j = At(u, m);
            EXPECT_NEAR(j.sn * j.sn + j.cn * j.cn, 1, 16 * kU) << u << ' ' << m;
            EXPECT_NEAR(m * j.sn * j.sn + j.dn * j.dn, 1, 16 * kU) << u << ' ' << m;
        }
    }
}

TEST(SpecJacobiElliptic, InvertsTheIntegralOfTheFirstKind) {
    for (double m : {1e-10, 0.1, 0.5, 0.9, 0.999}) {
        for (double u = -8; u <= 8; u += 0.31) {
            // The back-substitution loses what the arcsine loses beside 1, 1/sqrt(1-m).
            EXPECT_NEAR(F(At(u, m).phi, m), u, 128 * kU * (1 + 1 / (1 - m))) << u << ' ' << m;
        }
    }
}

TEST(SpecJacobiElliptic, HasTheValuesOfAQuarterPeriod) {
    for (double m : {0.1, 0.5, 0.9}) {
        const Jacobi j = At(K(m), m);
        EXPECT_NEAR(j.sn, 1, 4 * kU);
        EXPECT_NEAR(j.cn, 0, 32 * kU);
        EXPECT_NEAR(j.dn, std::sqrt(1 - m), 8 * kU);
        EXPECT_NEAR(j.phi, kHalfPi, 32 * kU);
    }
}

TEST(SpecJacobiElliptic, HasNoStepWhereTheExpansionsBegin) {
    for (double cut : {1e-9, 0.999999999}) {
        for (double u : {-3.0, -0.5, 0.1, 1.0, 2.0, 4.0, 6.0}) {
            const Jacobi below = At(u, std::nextafter(cut, 0)), at = At(u, cut);
            // The arcsine beside 1 costs the mean some e^|u| roundings near m = 1.
            const double bound = 8 * kU * (cut < 0.5 ? 1 : std::exp(std::fabs(u)));
            EXPECT_NEAR(below.sn, at.sn, bound) << u;
            EXPECT_NEAR(below.cn, at.cn, bound) << u;
            EXPECT_NEAR(below.dn, at.dn, bound) << u;
            EXPECT_NEAR(below.phi, at.phi, bound) << u;
        }
    }
}

TEST(SpecJacobiElliptic, StaysPeriodicWhereTheExpansionsWouldNot) {
    // The expansion in 1 - m knows no period; K(1 - 1e-10) is 12.9.
    const double m = 1 - 1e-10, period = 4 * K(m);
    for (double u : {0.5, 3.0, 12.0}) {
        const Jacobi here = At(u, m), there = At(u + period, m);
        EXPECT_NEAR(there.sn, here.sn, 1e-10);
        EXPECT_NEAR(there.cn, here.cn, 1e-10);
        EXPECT_NEAR(there.phi, here.phi + kTwoPi, 1e-10);
    }
    EXPECT_TRUE(std::isfinite(At(1000, m).cn));
}

}  // namespace
}  // namespace quorvan::testing

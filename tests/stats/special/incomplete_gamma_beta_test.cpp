// The incomplete functions of the gamma family, and every function of the family on random bit patterns.
#include <bit>
#include <cmath>
#include <gtest/gtest.h>
#include <random>

#include "quorvan/quorvan.h"
#include "tests/support/guarded.h"

namespace quorvan::testing {
namespace {

constexpr double kU = 0x1p-53;
constexpr double kLeast = 5e-324;
constexpr double kMost = 1.7976931348623157e308;

double P(double a, double x) { return ZemFunc309(a, &x); }
double Q(double a, double x) { return ZemFunc310(a, x); }
double I(double a, double b, double x) { return ZemFunc307(a, b, &x); }

double Below(double x) { return std::nextafter(x, -kInf); }
double Above(double x) { return std::nextafter(x, kInf); }

TEST(SpecIncompleteGamma, IsChosenByTheAddressAndGammaByNull) {
    const double zero = 0;
    EXPECT_EQ(ZemFunc309(5, nullptr), 24);
    EXPECT_EQ(ZemFunc309(5, &zero), 0);
    const double five = 5;
    EXPECT_NEAR(ZemFunc309(5, &five), 0.5595067149347875, 16 * kU);
}

TEST(SpecIncompleteGamma, IsNaNForAZeroOrNegativeParameterWhateverX) {
    for (double a : {0.0, -0.0, -1.0, -0.5, -kInf}) {
        for (double x : {0.0, 1.0, 10.0, kInf, -1.0}) {
            EXPECT_TRUE(std::isnan(P(a, x))) << a << ' ' << x;
            EXPECT_TRUE(std::isnan(Q(a, x))) << a << ' ' << x;
        }
    }
}

TEST(SpecIncompleteGamma, IsNaNForANegativeLimit) {
    for (double x : {-kLeast, -1.0, -kInf}) {
        EXPECT_TRUE(std::isnan(P(1, x)));
        EXPECT_TRUE(std::isnan(Q(1, x)));
    }
}

TEST(SpecIncompleteGamma, EndsOnNaNInsteadOfCallingItsComplementForEver) {
    for (double other : {0.5, 1.0, 20.0, 1e9}) {
        EXPECT_TRUE(std::isnan(P(kNaN, other)));
        EXPECT_TRUE(std::isnan(P(other, kNaN)));
        EXPECT_TRUE(std::isnan(Q(kNaN, other)));
        EXPECT_TRUE(std::isnan(Q(other, kNaN)));
    }
    EXPECT_TRUE(std::isnan(P(kNaN, kNaN)));
    EXPECT_TRUE(std::isnan(Q(kNaN, kNaN)));
}

TEST(SpecIncompleteGamma, IsZeroAndOneAtItsEnds) {
    for (double a : {1e-300, 0.5, 1.0, 50.0, 1e7, 1e300}) {
        EXPECT_EQ(P(a, 0), 0) << a;
        EXPECT_EQ(P(a, -0.0), 0) << a;
        EXPECT_EQ(Q(a, 0), 1) << a;
        EXPECT_EQ(P(a, kInf), 1) << a;
        EXPECT_EQ(Q(a, kInf), 0) << a;
    }
    EXPECT_EQ(P(kInf, 1), 0);
    EXPECT_EQ(Q(kInf, 1), 1);
}

TEST(SpecIncompleteGamma, IsTheExponentialDistributionForOrderOne) {
    for (double x : {1e-10, 0.3, Below(1), 1.0, Above(1), 2.5, 40.0}) {
        EXPECT_NEAR(P(1, x), -std::expm1(-x), 8 * kU * -std::expm1(-x)) << x;
        EXPECT_NEAR(Q(1, x), std::exp(-x), 32 * kU * std::exp(-x)) << x;
    }
}

TEST(SpecIncompleteGamma, AndItsComplementAddToOneOnBothSidesOfTheirCuts) {
    for (double a : {0.2, 1.0, 7.0, 12.999, 13.0, 200.0, 1e4, Below(1e5), 1e5, 3e6, 1e12}) {
        for (double x : {0.5 * a, Below(a), a, Above(a), Below(1), 1.0, Above(1), 1.1 * a}) {
            EXPECT_NEAR(P(a, x) + Q(a, x), 1, 1e-13) << a << ' ' << x;
        }
    }
}

TEST(SpecIncompleteGamma, HasNoStepWhereTheUniformExpansionBegins) {
    for (double deviations : {-6.0, -2.0, -0.1, 0.0, 0.1, 2.0, 6.0}) {
        const double x = 1e5 + deviations * std::sqrt(1e5);
        // The step in a itself is below 2^-36 / sqrt(a) standard deviations; times the hazard, at most 7.
        EXPECT_NEAR(P(Below(1e5), x) / P(1e5, x), 1, 1e-12) << deviations;
        EXPECT_NEAR(Q(Below(1e5), x) / Q(1e5, x), 1, 1e-12) << deviations;
    }
}

TEST(SpecIncompleteGamma, EndsForHugeOrdersAtTheMedian) {
    // P(a, a) = 1/2 + 1/(3 sqrt(2 pi a)) + O(a^-3/2), which a sum of a^(1/2) terms would never reach.
    for (double a : {1e6, 1e10, 1e16, 1e100, 1e300, kMost}) {
        EXPECT_NEAR(P(a, a), 0.5 + 1 / (3 * std::sqrt(kTwoPi) * std::sqrt(a)), 1e-11) << a;
        EXPECT_NEAR(Q(a, a), 0.5 - 1 / (3 * std::sqrt(kTwoPi) * std::sqrt(a)), 1e-11) << a;
    }
    EXPECT_EQ(P(1e300, 1e299), 0);
    EXPECT_EQ(P(1e300, 1e301), 1);
    EXPECT_EQ(P(5, kMost), 1);
    EXPECT_EQ(Q(5, kMost), 0);
}

TEST(SpecIncompleteGamma, CountsAFactorBelowTheReciprocalOfTheLargestDoubleAsZero) {
    EXPECT_GT(Q(1, 716.3), 0);  // the factor is x e^-x
    EXPECT_EQ(Q(1, 716.4), 0);
    EXPECT_GT(P(1, 1e-308), 0);
    EXPECT_EQ(P(1, 5e-309), 0);
}

TEST(SpecIncompleteGamma, TendsToOneForTheLeastOrders) {
    EXPECT_NEAR(P(1e-310, 0.5), 1, 8 * kU);
    EXPECT_NEAR(P(kLeast, 1e-5), 1, 8 * kU);
    EXPECT_NEAR(Q(1e-310, 0.5), 0, 8 * kU);
}

TEST(SpecIncompleteBeta, IsChosenByTheAddressAndBetaByNull) {
    const double zero = 0;
    EXPECT_NEAR(ZemFunc307(2, 3, nullptr), 1.0 / 12, 4 * kU);
    EXPECT_EQ(ZemFunc307(2, 3, &zero), 0);
}

TEST(SpecIncompleteBeta, IsZeroAtZeroAndOneAtOne) {
    for (double a : {1e-300, 0.5, 3.0, 1e5, 1e12}) {
        for (double b : {1e-300, 0.5, 3.0, 1e5, 1e12}) {
            EXPECT_EQ(I(a, b, 0), 0);
            EXPECT_EQ(I(a, b, -0.0), 0);
            EXPECT_EQ(I(a, b, 1), 1);
        }
    }
}

TEST(SpecIncompleteBeta, IsNaNForParametersOfZeroAndBelowAlsoAtTheEnds) {
    for (double bad : {0.0, -0.0, -1.0, -kInf}) {
        for (double x : {0.0, 0.5, 1.0}) {
            EXPECT_TRUE(std::isnan(I(bad, 1, x)));
            EXPECT_TRUE(std::isnan(I(1, bad, x)));
        }
    }
}

TEST(SpecIncompleteBeta, IsNaNOutsideZeroToOneAndForNaN) {
    for (double x : {-kLeast, -1.0, Above(1), 2.0, kInf, -kInf, kNaN}) EXPECT_TRUE(std::isnan(I(2, 3, x))) << x;
    EXPECT_TRUE(std::isnan(I(kNaN, 3, 0.5)));
    EXPECT_TRUE(std::isnan(I(2, kNaN, 0.5)));
}

TEST(SpecIncompleteBeta, HasItsClosedForms) {
    for (double x : {1e-12, 0.1, 0.5, 0.9, 0.949, 0.951, 0.999, 1 - 1e-12}) {
        EXPECT_NEAR(I(1, 1, x), x, 16 * kU * x) << x;
        for (double a : {0.01, 0.5, 3.0, 30.0, 500.0}) {
            EXPECT_NEAR(I(a, 1, x), std::pow(x, a), 64 * kU) << a << ' ' << x;
            EXPECT_NEAR(I(1, a, x), -std::expm1(a * std::log1p(-x)), 64 * kU) << a << ' ' << x;
        }
        EXPECT_NEAR(I(0.5, 0.5, x), 2 / kPi * std::atan2(std::sqrt(x), std::sqrt(1 - x)), 64 * kU) << x;
    }
}

TEST(SpecIncompleteBeta, ReflectsIntoItsComplement) {
    std::mt19937_64 engine(5);
    std::uniform_real_distribution<double> exponent(-2, 4);
    for (int i = 0; i < 3000; ++i) {
        const double a = std::pow(10, exponent(engine)), b = std::pow(10, exponent(engine));
        const double x = std::ldexp(static_cast<double>(engine() % 1048575 + 1), -20);  // 1 - x is exact
        EXPECT_NEAR(I(a, b, x) + I(b, a, 1 - x), 1, 1e-12) << a << ' ' << b << ' ' << x;
    }
}

TEST(SpecIncompleteBeta, IsOneHalfAtTheMiddleOfEqualParametersOfAnySize) {
    for (double a : {1e-300, 1e-5, 0.5, 7.0, 100.0, 1e4, 1e6, 9e9, 1e10, 1e11, 1e100, 1e300}) {
        EXPECT_NEAR(I(a, a, 0.5), 0.5, 1e-10) << a;
    }
}

TEST(SpecIncompleteBeta, TendsToItsLimitsForParametersOfExtremeSize) {
    EXPECT_EQ(I(1e-310, 2, 0.5), 1);
    EXPECT_EQ(I(kInf, 2, 0.5), 0);
    EXPECT_EQ(I(2, kInf, 0.5), 1);
    EXPECT_EQ(I(1e300, 2, 0.5), 0);
    EXPECT_EQ(I(2, 1e300, 0.5), 1);
    EXPECT_EQ(I(1e200, 1e200, 0.49), 0);
    EXPECT_EQ(I(1e200, 1e200, 0.51), 1);
}

TEST(SpecIncompleteBeta, CountsAComplementAtOrBelowEpsilonAsEpsilon) {
    EXPECT_EQ(I(20, 20, 0.999), 1 - kEpsilon);
    EXPECT_EQ(I(2, 1e25, 0.5), 1 - kEpsilon);
}

TEST(SpecIncompleteBeta, MeetsItsLimitTheIncompleteGammaFunction) {
    for (double b : {1e30, Below(1e40), 1e40, 1e200}) {
        for (double a : {0.5, 3.0, 1e4}) {
            for (double t : {0.9, 1.0, 1.1}) {
                EXPECT_NEAR(I(a, b, a * t / b) / P(a, a * t), 1, 1e-11) << a << ' ' << b << ' ' << t;
            }
        }
    }
}

// Doubles of every kind: any bit pattern, ordinary magnitudes, whole numbers and the special values.
class AnyDouble {
public:
    double operator()() {
        static constexpr double kSpecial[] = {0.0,   -0.0, 1.0,   -1.0, 0.5,   2.0,    10.0, 33.0,
                                              -33.0, kInf, -kInf, kNaN, kMost, kLeast, 1e5,  1e10};
        const std::uint64_t bits = engine_();
        switch (bits % 4) {
            case 0: return std::bit_cast<double>(engine_());
            case 1: return std::pow(10, 24 * unit_(engine_) - 12) * (bits & 16 ? 1 : -1);
            case 2: return std::floor(400 * unit_(engine_) - 200);
            default: return kSpecial[bits / 4 % 16];
        }
    }
    double Unit() { return unit_(engine_); }

private:
    std::mt19937_64 engine_{20};
    std::uniform_real_distribution<double> unit_{0, 1};
};

TEST(GammaFamily, EndsOnEveryBitPatternAndHandsNaNOn) {
    AnyDouble any;
    for (int i = 0; i < 200000; ++i) {
        const double x = any();
        const double values[] = {ZemFunc309(x, nullptr), ZemFunc312(x), ZemFunc313(x),
                                 ZemFunc314(x),          ZemFunc326(x), ZemFunc329(x)};
        if (std::isnan(x)) {
            for (double value : values) EXPECT_TRUE(std::isnan(value));
        } else {
            EXPECT_FALSE(std::isnan(values[1])) << x;  // ln|Gamma| has a value or a pole everywhere
            EXPECT_EQ(std::isnan(values[0]), x <= 0 && x == std::floor(x)) << x;
            EXPECT_EQ(std::isnan(values[2]), x <= 0 && x == std::floor(x)) << x;
            EXPECT_EQ(std::isnan(values[4]), x < 0) << x;
            EXPECT_EQ(std::isnan(values[5]), x < -30.8148) << x;
        }
    }
}

TEST(GammaFamily, EndsOnEveryPairOfBitPatterns) {
    AnyDouble any;
    for (int i = 0; i < 100000; ++i) {
        const double a = any(), x = i % 3 == 0 ? a * (0.9 + 0.2 * any.Unit()) : any();
        const double p = P(a, x), q = Q(a, x), beta = ZemFunc307(a, x, nullptr);
        if (std::isnan(a) || std::isnan(x)) {
            EXPECT_TRUE(std::isnan(p) && std::isnan(q) && std::isnan(beta));
        }
        const bool defined = a > 0 && x >= 0 && !(std::isinf(a) && std::isinf(x));
        EXPECT_EQ(!std::isnan(p), defined || (a == kInf && x == 0)) << a << ' ' << x;
        EXPECT_EQ(std::isnan(p), std::isnan(q)) << a << ' ' << x;
        if (!defined) continue;
        EXPECT_TRUE(p >= 0 && p <= 1 + 1e-13) << a << ' ' << x << ' ' << p;
        EXPECT_TRUE(q >= -1e-13 && q <= 1 + 1e-13) << a << ' ' << x << ' ' << q;
        EXPECT_NEAR(p + q, 1, 1e-12) << a << ' ' << x;
    }
}

TEST(GammaFamily, EndsOnEveryTripleOfBitPatterns) {
    AnyDouble any;
    for (int i = 0; i < 60000; ++i) {
        const double a = any(), b = any();
        const double x = i % 3 == 0 ? any() : i % 3 == 1 ? any.Unit() : a / (a + b) * (1 + 1e-3 * (any.Unit() - 0.5));
        const double value = I(a, b, x);
        const bool defined =
            a > 0 && b > 0 && x >= 0 && x <= 1 && !(std::isinf(a) && std::isinf(b) && x != 0 && x != 1);
        EXPECT_EQ(!std::isnan(value), defined) << a << ' ' << b << ' ' << x;
        if (!defined) continue;
        EXPECT_TRUE(value >= -1e-10 && value <= 1 + 1e-10) << a << ' ' << b << ' ' << x << ' ' << value;
    }
}

}  // namespace
}  // namespace quorvan::testing

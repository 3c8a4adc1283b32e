// Confluent and Gaussian hypergeometric functions: faults, ends, closed forms, laws; and no argument hangs any of the
// scalar functions.
#include <bit>
#include <chrono>
#include <cmath>
#include <gtest/gtest.h>
#include <random>

#include "quorvan/quorvan.h"
#include "tests/support/guarded.h"

namespace quorvan::testing {
namespace {

constexpr double kU = 0x1p-53;  // half a unit in the last place of 1, relative
constexpr double kLargest = 1.7976931348623157e308;

double M(double a, double b, double x) { return ZemFunc316(x, a, b); }
double U(double a, double b, double x) { return ZemFunc317(x, a, b); }
double G(double a, double b, double c, double x) { return ZemFunc386(x, a, b, c); }
double T(double a, double b, double c, double x) { return ZemFunc315(x, a, b, c); }

void ExpectClose(double value, double exact, double roundings) {
    EXPECT_NEAR(value, exact, roundings * kU * std::fabs(exact));
}

TEST(SpecHyperg1F1, HasItsElementaryForms) {
    for (double x : {-600.0, -30.0, -2.0, -1e-9, 0.0, 1e-9, 0.5, 5.0, 30.0, 600.0}) {
        EXPECT_EQ(M(0, 2.5, x), 1) << x;
        EXPECT_EQ(M(1.5, 1.5, x), std::exp(x)) << x;
        if (x != 0) ExpectClose(M(1, 2, x), std::expm1(x) / x, 32 + 2 * std::fabs(x));
        ExpectClose(M(-1, 2, x), 1 - x / 2, 8);
    }
}

TEST(SpecHyperg1F1, FindsTheZerosOfPolynomials) {
    EXPECT_EQ(M(-1, 2, 2), 0);
    EXPECT_NE(M(-2, 1, 2 + std::sqrt(2.0)), 0);  // the zero is no double
    EXPECT_NEAR(M(-2, 1, 2 + std::sqrt(2.0)), 0, 8 * kU);
}

TEST(SpecHyperg1F1, SatisfiesKummersTransformation) {
    // Both sides take different forms; the exponential adds a rounding for each unit of x.
    for (double a : {-2.5, 0.3, 1.0, 7.5}) {
        for (double b : {0.5, 2.25, 9.0}) {
            for (double x : {0.1, 1.0, 7.0, 25.0, 39.0, 41.0, 100.0}) {
                SCOPED_TRACE(::testing::Message() << a << ' ' << b << ' ' << x);
                ExpectClose(M(a, b, -x), std::exp(-x) * M(b - a, b, x), 128 + 4 * x);
            }
        }
    }
}

TEST(SpecHyperg1F1, IsInfiniteAtThePolesOfItsLowerParameter) {
    for (double b : {0.0, -0.0, -1.0, -7.0, -1e300}) {
        EXPECT_EQ(M(0.5, b, 1), kInf) << b;
        EXPECT_EQ(M(3, b, -2), kInf) << b;
    }
    EXPECT_EQ(M(-3, -2, 1), kInf);  // the pole comes before the end
}

TEST(SpecHyperg1F1, EndsBeforeAPoleWhereItsUpperParameterLetsIt) {
    EXPECT_NEAR(M(-1, -2, 3), 1 + 0.5 * 3, 4 * kU);
    EXPECT_NEAR(M(-2, -5, 3), 1 + 2.0 / 5 * 3 + 2.0 / 20 * 9 / 2, 8 * kU);
    EXPECT_EQ(M(-3, -3, 2), std::exp(2));
}

TEST(SpecHyperg1F1, HasItsLimitsAtInfinity) {
    EXPECT_EQ(M(1, 2, kInf), kInf);
    EXPECT_EQ(M(-0.5, 2, kInf), -kInf);
    EXPECT_EQ(M(1, 2, -kInf), 0);
    EXPECT_EQ(M(-0.5, 2, -kInf), kInf);
    EXPECT_EQ(M(-1, 2, kInf), -kInf);
    EXPECT_EQ(M(-1, 2, -kInf), kInf);
    EXPECT_EQ(M(-2, 2, kInf), kInf);
    EXPECT_EQ(M(-3, -3.5, kInf), kInf);
    EXPECT_EQ(M(-3, -3.5, -kInf), -kInf);
    EXPECT_EQ(M(0, 2, kInf), 1);
    EXPECT_EQ(M(1, kInf, 3), 1);
    EXPECT_EQ(M(1, 2, 1e300), kInf);
    ExpectClose(M(1, 2, -1e300), 1e-300, 8);
}

TEST(SpecHyperg1F1, IsInfiniteWhereAPositiveSumOverflows) {
    EXPECT_EQ(M(1000, 1, 500), kInf);
    EXPECT_EQ(M(1, 2, 800), kInf);
}

TEST(SpecHyperg1F1, IsNaNForNaNAndInfiniteParameters) {
    for (double bad : {kNaN, kInf, -kInf}) {
        EXPECT_TRUE(std::isnan(M(bad, 2, 1)));
    }
    EXPECT_TRUE(std::isnan(M(1, kNaN, 1)));
    EXPECT_TRUE(std::isnan(M(1, -kInf, 1)));
    EXPECT_TRUE(std::isnan(M(1, kInf, kInf)));
    EXPECT_TRUE(std::isnan(M(1, 2, kNaN)));
    EXPECT_TRUE(std::isnan(M(0, 2, kNaN)));
    EXPECT_TRUE(std::isnan(M(1, 0, kNaN)));
}

TEST(SpecHyperg1F1, KeepsItsAccuracyWhereThePlainSeriesCancelsToNothing) {
    // 1F1(1/2; 3/2; -x^2) = sqrt(pi)/(2 x) erf(x): the alternating series would lose 2 x^2/ln 10 digits.
    for (double x = 0.5; x < 12; x += 0.25) {
        ExpectClose(M(0.5, 1.5, -x * x), std::sqrt(kPi) / (2 * x) * std::erf(x), 64);
    }
}

// b - a rounds, and beside 0, -1, ... what it loses counts over the small distance (values of mpmath at 60 digits).
TEST(SpecHyperg1F1, KeepsItsAccuracyWhereTheDifferenceOfItsParametersLiesBesideAPole) {
    ExpectClose(M(2, -2.0000000000115903, -196.44815766841634), 0.000327536129662853471, 64);
    ExpectClose(M(30, -24.99999700356427, -268.7675185780084), 2.33894626161907521e-22, 64);
}

TEST(SpecHyperg1F1, SaysNaNWhereNoDigitIsLeft) { EXPECT_TRUE(std::isnan(M(194, 0.6, -193))); }

TEST(SpecHypergU, HasItsElementaryForms) {
    for (double x : {1e-10, 0.1, 1.0, 3.0, 10.0, 50.0, 1e10}) {
        EXPECT_EQ(U(0, 2.5, x), 1);
        ExpectClose(U(1, 2, x), 1 / x, 16);  // U(a, a+1, x) = x^-a
        ExpectClose(U(2.5, 3.5, x), std::pow(x, -2.5), 64);
        ExpectClose(U(-1, 2, x), x - 2, 16);
        ExpectClose(U(-2, 0.5, x), x * x - 3 * x + 0.75, 64);
    }
}

TEST(SpecHypergU, IsTheExponentialIntegralForUnitParameters) {
    // U(1, 1, x) = e^x E_1(x): whole b, by the limit, by the integral and by the asymptotic series.
    for (double x : {1e-8, 0.1, 1.0, 2.0, 5.0, 10.0, 20.0, 40.0, 100.0, 600.0}) {
        ExpectClose(U(1, 1, x), std::exp(x) * ZemFunc321(x, 1), 64 + 2 * x);
    }
}

TEST(SpecHypergU, SatisfiesItsOwnTransformation) {
    for (double a : {0.3, 1.5, 6.0}) {
        for (double b : {-3.5, -1.0, 0.25, 0.999}) {
            for (double x : {0.05, 0.7, 3.0, 9.0, 30.0}) {
                ExpectClose(U(a, b, x), std::pow(x, 1 - b) * U(a - b + 1, 2 - b, x), 512);
            }
        }
    }
}

// The same of a - b + 1.
TEST(SpecHypergU, KeepsItsAccuracyWhereTheDifferenceOfItsParametersLiesBesideAPole) {
    ExpectClose(U(-12.00000000000002, 16, 2), 1532398502027530.63, 256);
}

// The recurrence in a passes its own zero factor there: U(-12) is of the size of b + 11, U(-11) of 11!.
TEST(SpecHypergU, SumsItsPowersWhereTheRecurrenceForNegativeBIsNotStable) {
    ExpectClose(U(-17, -11.00000000000054, 0.072040179878623), -0.00289195183488186433, 64);
    // x^2 - 2 (b+1) x + b (b+1), in closed form.
    for (double b : {-0.25, -0.999999, -2.5, -40.0}) {
        for (double x : {-2.0, 0.125, 3.0}) {
            const double exact = x * x - 2 * (b + 1) * x + b * (b + 1);
            EXPECT_NEAR(U(-2, b, x), exact, 16 * kU * (x * x + std::fabs(2 * (b + 1) * x) + std::fabs(b * (b + 1))));
        }
    }
}

TEST(SpecHypergU, SatisfiesItsRecurrenceAcrossAllMethods) {
    for (double b : {-2.0, 0.4, 1.0, 3.0, 4.5}) {
        for (double x : {0.2, 2.0, 7.9, 8.1, 25.0, 60.0}) {
            for (double a : {-3.3, 0.7, 1.7, 4.2}) {
                const double left = U(a - 1, b, x), middle = (x - b + 2 * a) * U(a, b, x);
                const double right = a * (a - b + 1) * U(a + 1, b, x);
                EXPECT_NEAR(left, middle - right, 512 * kU * (std::fabs(left) + std::fabs(middle) + std::fabs(right)))
                    << a << ' ' << b << ' ' << x;
            }
        }
    }
}

TEST(SpecHypergU, HasItsLimitsAtZeroAndInfinity) {
    ExpectClose(U(1.5, 0.5, 0), std::tgamma(0.5) / std::tgamma(2), 16);
    EXPECT_EQ(U(1, 1, 0), kInf);
    EXPECT_EQ(U(2, 3.5, 0), kInf);
    EXPECT_EQ(U(-0.5, 1.5, 0), -kInf);
    EXPECT_EQ(U(-2, 1.5, 0), 1.5 * 2.5);
    EXPECT_EQ(U(1, 2, kInf), 0);
    EXPECT_EQ(U(-1.5, 2, kInf), kInf);
    EXPECT_EQ(U(0, 2, kInf), 1);
}

TEST(SpecHypergU, IsComplexAndNaNBelowZeroButForPolynomials) {
    EXPECT_TRUE(std::isnan(U(0.5, 1.5, -1)));
    EXPECT_TRUE(std::isnan(U(1, 1, -5e-324)));
    EXPECT_TRUE(std::isnan(U(1, 1, -kInf)));
    EXPECT_EQ(U(-1, 2, -3), -5);
    ExpectClose(U(1, 2, -4), -0.25, 8);        // x^-1
    EXPECT_TRUE(std::isnan(U(1.5, 2.5, -4)));  // x^-1.5
}

TEST(SpecHypergU, IsNaNForNaNAndInfiniteParameters) {
    for (double bad : {kNaN, kInf, -kInf}) {
        EXPECT_TRUE(std::isnan(U(bad, 1, 1)));
        EXPECT_TRUE(std::isnan(U(1, bad, 1)));
        EXPECT_TRUE(std::isnan(U(0, bad, 1)));
    }
    EXPECT_TRUE(std::isnan(U(1, 1, kNaN)));
    EXPECT_TRUE(std::isnan(U(0, 1, kNaN)));
}

using Gauss = double (*)(double, double, double, double);

class SpecHyperg2F1 : public ::testing::TestWithParam<Gauss> {};

TEST_P(SpecHyperg2F1, HasItsElementaryForms) {
    const Gauss f = GetParam();
    for (double x : {-1e10, -100.0, -3.0, -1.0, -0.7, -0.5, -0.3, -0.2, -0.1, 1e-9, 0.3, 0.6, 0.89, 0.91, 0.999}) {
        ExpectClose(f(1, 1, 2, x), -std::log1p(-x) / x, 64);
        ExpectClose(f(1.25, 2.5, 2.5, x), std::pow(1 - x, -1.25), 4);
        ExpectClose(f(2.5, 1.25, 2.5, x), std::pow(1 - x, -1.25), 4);
        ExpectClose(f(-1, 3, 2, x), 1 - 1.5 * x, 8);
        EXPECT_EQ(f(0, 3, 2, x), 1);
        EXPECT_EQ(f(3, 0, 2, x), 1);
        if (x < 0) {
            const double z = std::sqrt(-x);
            ExpectClose(f(0.5, 1, 1.5, x), std::atan(z) / z, 64);
            ExpectClose(f(0.5, 0.5, 1.5, x), std::asinh(z) / z, 64);
        } else {
            const double z = std::sqrt(x);
            ExpectClose(f(0.5, 1, 1.5, x), std::atanh(z) / z, 64 + 16 / (1 - x));
            ExpectClose(f(0.5, 0.5, 1.5, x), std::asin(z) / z, 64);
        }
    }
}

TEST_P(SpecHyperg2F1, IsTheCompleteEllipticIntegral) {
    for (double m : {0.1, 0.5, 0.89, 0.91, 0.99, 1 - 1e-9}) {
        ExpectClose(0.5 * kPi * GetParam()(0.5, 0.5, 1, m), ZemFunc318(m, nullptr), 64);
        ExpectClose(0.5 * kPi * GetParam()(-0.5, 0.5, 1, m), ZemFunc319(m, nullptr), 64);
    }
}

TEST_P(SpecHyperg2F1, IsSymmetricInItsUpperParameters) {
    for (double x : {-5.0, -0.4, 0.3, 0.95})
        ExpectClose(GetParam()(0.3, 1.7, 2.2, x), GetParam()(1.7, 0.3, 2.2, x), 64);
}

TEST_P(SpecHyperg2F1, HasGausssValueAtOne) {
    const Gauss f = GetParam();
    ExpectClose(f(0.5, 0.5, 2, 1), std::tgamma(2) * std::tgamma(1) / std::pow(std::tgamma(1.5), 2), 16);
    EXPECT_EQ(f(1, 1, 2, 1), kInf);
    EXPECT_EQ(f(1, 2, 2.5, 1), kInf);
    EXPECT_EQ(f(-0.5, 2, 1.25, 1), -kInf);
    ExpectClose(f(-2, 3, 4, 1), 1 - 1.5 + 0.6, 64);
}

TEST_P(SpecHyperg2F1, IsInfiniteAtThePolesOfItsLowerParameter) {
    for (double c : {0.0, -1.0, -5.0}) EXPECT_EQ(GetParam()(0.5, 1.5, c, 0.3), kInf) << c;
    EXPECT_EQ(GetParam()(-3, 1.5, -2, 0.3), kInf);
    ExpectClose(GetParam()(-1, 1.5, -2, 0.3), 1 + 0.75 * 0.3, 8);
    ExpectClose(GetParam()(1.5, -1, -2, 0.3), 1 + 0.75 * 0.3, 8);
}

TEST_P(SpecHyperg2F1, IsNaNAboveOneButForPolynomials) {
    const Gauss f = GetParam();
    for (double x : {std::nextafter(1.0, 2.0), 1.5, 1e300, kInf}) {
        EXPECT_TRUE(std::isnan(f(0.5, 1, 1.5, x))) << x;
        EXPECT_TRUE(std::isnan(f(0.5, 1, 1, x))) << x;  // (1 - x)^-1/2
    }
    ExpectClose(f(-2, 1, 2, 5), 1 - 5 + 25.0 / 3, 16);
    ExpectClose(f(1.5, 2, 2, -3), 0.125, 4);
    ExpectClose(f(2, 2.5, 2.5, 3), 0.25, 4);                     // (1 - x)^-2
    ExpectClose(f(3.5, 2, 2.5, 3), -0.125 * (1 - 0.2 * 3), 16);  // (1 - x)^-3 (1 + x/5 ...)
}

TEST_P(SpecHyperg2F1, IsNaNForNaNAndInfiniteParameters) {
    const Gauss f = GetParam();
    for (double bad : {kNaN, kInf, -kInf}) {
        EXPECT_TRUE(std::isnan(f(bad, 1, 2, 0.5)));
        EXPECT_TRUE(std::isnan(f(1, bad, 2, 0.5)));
        EXPECT_TRUE(std::isnan(f(1, 1, bad, 0.5)));
    }
    EXPECT_TRUE(std::isnan(f(1, 1, 2, kNaN)));
    EXPECT_TRUE(std::isnan(f(0, 1, 2, kNaN)));
    EXPECT_TRUE(std::isnan(f(1, 1, 1, kNaN)));
}

TEST_P(SpecHyperg2F1, KeepsItsAccuracyWhereTheDifferenceOfItsParametersLiesBesideAPole) {
    ExpectClose(GetParam()(-16.999999397858872, 3, 4.622264741986563e-06, 0.9983387004722749), -0.00179738757971915715,
                256);
}

TEST_P(SpecHyperg2F1, HasNoStepAtItsCuts) {
    for (double cut : {-1.0, -0.5, -0.2, 0.9}) {
        for (double c : {1.3, 2.7, 3.2}) {  // c - a - b: fractions and, at 2.7, a whole number
            const double at = GetParam()(0.4, 1.3, c, cut);
            ExpectClose(GetParam()(0.4, 1.3, c, std::nextafter(cut, -2)), at, 128);
            ExpectClose(GetParam()(0.4, 1.3, c, std::nextafter(cut, 2)), at, 128);
        }
    }
}

TEST_P(SpecHyperg2F1, SatisfiesAContiguousRelation) {
    // (c - a) F(a-1) + (2a - c + (b - a) x) F + a (x - 1) F(a+1) = 0, Abramowitz and Stegun 15.2.10.
    for (double a : {-1.5, 0.7, 2.25}) {
        for (double b : {0.3, 1.7}) {
            for (double x : {-20.0, -0.8, -0.3, 0.5, 0.95}) {
                const double c = 2.4, one = (c - a) * GetParam()(a - 1, b, c, x);
                const double two = (2 * a - c + (b - a) * x) * GetParam()(a, b, c, x);
                const double three = a * (x - 1) * GetParam()(a + 1, b, c, x);
                EXPECT_NEAR(one + two + three, 0, 256 * kU * (std::fabs(one) + std::fabs(two) + std::fabs(three)))
                    << a << ' ' << b << ' ' << x;
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(BothExports, SpecHyperg2F1, ::testing::Values(G, T));

// Doubles of any bit pattern, and in turn those that sit on borders: small integers, halves, powers of ten.
class AnyDouble {
public:
    double operator()() {
        switch (engine_() % 4) {
            case 0: return std::bit_cast<double>(engine_());
            case 1: return static_cast<double>(static_cast<std::int64_t>(engine_() % 81) - 40);
            case 2: return (static_cast<double>(engine_() % 400) - 200) / 8;
            default:
                return std::ldexp(static_cast<double>(engine_() >> 11), -40 - static_cast<int>(engine_() % 60)) *
                       (engine_() % 2 ? 1 : -1);
        }
    }
    std::int32_t Order() { return static_cast<std::int32_t>(engine_()) >> (engine_() % 32); }

private:
    std::mt19937_64 engine_{12345};
};

TEST(ScalarFunctions, EndForAnyBitsAndAnswerNaNWithNaN) {
    AnyDouble any;
    for (int i = 0; i < 3000; ++i) {
        const double x = any(), a = any(), b = any(), c = any();
        const std::int32_t n = any.Order();
        Guarded<double> out(4);
        const bool nan1 = std::isnan(x), nan2 = nan1 || std::isnan(a), nan3 = nan2 || std::isnan(b);
        const bool nan4 = nan3 || std::isnan(c);
        const auto begin = std::chrono::steady_clock::now();
        // A function may answer NaN for other reasons, but must with a NaN argument.
        EXPECT_GE(std::isnan(ZemFunc315(x, a, b, c)), nan4);
        EXPECT_GE(std::isnan(ZemFunc386(x, a, b, c)), nan4);
        EXPECT_GE(std::isnan(ZemFunc316(x, a, b)), nan3);
        EXPECT_GE(std::isnan(ZemFunc317(x, a, b)), nan3);
        EXPECT_GE(std::isnan(ZemFunc318(a, &x)), nan2);
        EXPECT_GE(std::isnan(ZemFunc319(a, &x)), nan2);
        EXPECT_GE(std::isnan(ZemFunc318(x, nullptr)), nan1);
        EXPECT_GE(std::isnan(ZemFunc319(x, nullptr)), nan1);
        EXPECT_EQ(std::isnan(ZemFunc320(x)), nan1);
        EXPECT_EQ(std::isnan(ZemFunc321(x, n)), nan1 || n < 0 || x < 0);
        EXPECT_EQ(std::isnan(ZemFunc322(x)), nan1);
        EXPECT_EQ(std::isnan(ZemFunc323(x)), nan1);
        EXPECT_EQ(std::isnan(ZemFunc324(x)), nan1);
        EXPECT_EQ(std::isnan(ZemFunc325(x)), nan1);
        EXPECT_GE(std::isnan(ZemFunc327(x, a)), nan2);
        ZemFunc331(x, &out[0], &out[1]);
        EXPECT_EQ(std::isnan(out[0]), nan1);
        EXPECT_EQ(std::isnan(out[1]), nan1);
        ZemFunc332(x, a, &out[0], &out[1], &out[2], &out[3]);
        for (double value : out) EXPECT_GE(std::isnan(value), nan2);
        const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - begin;
        // Not a measure of speed: a loop without end, or over 2^31 terms, would show.
        EXPECT_LT(taken.count(), 5) << x << ' ' << a << ' ' << b << ' ' << c << ' ' << n;
        if (HasFailure()) {
            ADD_FAILURE() << x << ' ' << a << ' ' << b << ' ' << c << ' ' << n;
            break;
        }
    }
}

TEST(ScalarFunctions, ConfluentFunctionsOverflowWithoutNaNForPositiveArguments) {
    for (double x : {800.0, 1e5, kLargest}) EXPECT_EQ(M(2.5, 1.5, x), kInf) << x;
}

}  // namespace
}  // namespace quorvan::testing

// Error function, normal, Student's t, chi-square and F distributions.
#include <cmath>
#include <gtest/gtest.h>

#include "quorvan/quorvan.h"
#include "tests/support/guarded.h"

namespace quorvan::testing {
namespace {

// The value of a call that must succeed.
template <class... Arguments, class... Given>
double Value(Status (*call)(Arguments...), Given... arguments) {
    Reals out = Output(1);
    EXPECT_EQ(call(arguments..., out.data()), 0);
    return out[0];
}

// The status of a call that must leave its output.
template <class... Arguments, class... Given>
Status Refused(Status (*call)(Arguments...), Given... arguments) {
    Reals out = Output(1);
    const Status status = call(arguments..., out.data());
    EXPECT_TRUE(Untouched(out));
    return status;
}

// The error function

TEST(DistErf, PassesNanAndKnowsItsEnds) {
    EXPECT_TRUE(std::isnan(Value(ZemFunc70, kNaN)));
    EXPECT_TRUE(std::isnan(Value(ZemFunc71, kNaN)));
    EXPECT_EQ(Value(ZemFunc70, kInf), 1);
    EXPECT_EQ(Value(ZemFunc70, -kInf), -1);
    EXPECT_EQ(Value(ZemFunc71, kInf), 0);
    EXPECT_EQ(Value(ZemFunc71, -kInf), 2);
    EXPECT_TRUE(SameBits(Value(ZemFunc70, 0.0), 0.0));
    EXPECT_TRUE(SameBits(Value(ZemFunc70, -0.0), -0.0));
    EXPECT_EQ(Value(ZemFunc71, 0.0), 1);
}

TEST(DistErf, IsOddToTheLastBit) {
    for (double x : {1e-300, 0.1, 1.0, 1.5, 5.0, 9.0}) EXPECT_EQ(Value(ZemFunc70, -x), -Value(ZemFunc70, x)) << x;
}

TEST(DistErf, TakesOneFromTheInnerFormAndItsComplementFromTheOuterForm) {
    const double next = std::nextafter(1.0, 2.0);
    EXPECT_EQ(Value(ZemFunc70, next), 1 - Value(ZemFunc71, next));
    EXPECT_EQ(Value(ZemFunc71, std::nextafter(1.0, 0.0)), 1 - Value(ZemFunc70, std::nextafter(1.0, 0.0)));
    // erfc(1) = 0.15729920705028513: 1 - erf(1) has lost three bits of it.
    EXPECT_NEAR(Value(ZemFunc71, 1.0), 0.15729920705028513, 4 * 0.1573 * kEpsilon);
    EXPECT_NEAR(Value(ZemFunc70, 1.0), 0.8427007929497149, 2 * kEpsilon);
}

TEST(DistErfc, OfThirtyIsZeroByTheUnderflowLimitAndOfMinusThirtyIsTwo) {
    EXPECT_EQ(Value(ZemFunc71, 30.0), 0);
    EXPECT_EQ(Value(ZemFunc71, -30.0), 2);
    // The limit is e^-709.78, far above where the value itself would underflow.
    EXPECT_GT(Value(ZemFunc71, 26.64), 0);
    EXPECT_EQ(Value(ZemFunc71, 26.65), 0);
}

TEST(DistErf, TakesTheLargestArguments) {
    EXPECT_EQ(Value(ZemFunc70, 1e300), 1);
    EXPECT_EQ(Value(ZemFunc70, -1e300), -1);
    EXPECT_EQ(Value(ZemFunc71, 1e300), 0);
    EXPECT_EQ(Value(ZemFunc71, -1e300), 2);
}

// The normal distribution

TEST(DistNormalCdf, OfZeroIsTheSumOfThePrintedCoefficients) {
    const double expected = 1 - 0.3989422 * ((0.937298 - 0.1201676) + 0.4361836);
    EXPECT_NEAR(Value(ZemFunc134, 0.0), expected, kEpsilon);
    EXPECT_NEAR(Value(ZemFunc134, 0.0), 0.5, 1e-6);
    EXPECT_NE(Value(ZemFunc134, 0.0), 0.5);
    EXPECT_EQ(Value(ZemFunc134, -0.0), Value(ZemFunc134, 0.0));
}

TEST(DistNormalCdf, MirrorsAndReachesItsEnds) {
    for (double x : {0.25, 1.0, 1.96, 4.0}) EXPECT_EQ(1 - Value(ZemFunc134, -x), Value(ZemFunc134, x)) << x;
    EXPECT_EQ(Value(ZemFunc134, kInf), 1);
    EXPECT_EQ(Value(ZemFunc134, -kInf), 0);
    EXPECT_EQ(Value(ZemFunc134, 1e200), 1);
    EXPECT_TRUE(std::isnan(Value(ZemFunc134, kNaN)));
}

TEST(DistNormalInverse, OfOneHalfIsNearZeroButNotZero) {
    const double t = std::sqrt(2 * std::log(2.0));
    const double r = (2.515517 + t * (0.802853 + t * 0.010328)) / (1 + t * (1.432788 + t * (0.189269 + t * 0.001308)));
    EXPECT_NEAR(Value(ZemFunc106, 0.5), t - r, 8 * kEpsilon);
    EXPECT_NE(Value(ZemFunc106, 0.5), 0);
    EXPECT_LT(std::fabs(Value(ZemFunc106, 0.5)), 4.5e-4);
}

TEST(DistNormalInverse, HasInfiniteEndsAndMirrors) {
    EXPECT_EQ(Value(ZemFunc106, 0.0), -kInf);
    EXPECT_EQ(Value(ZemFunc106, -0.0), -kInf);
    EXPECT_EQ(Value(ZemFunc106, 1.0), kInf);
    for (double p : {0.25, 0.125, 0x1p-30}) EXPECT_EQ(Value(ZemFunc106, p), -Value(ZemFunc106, 1 - p)) << p;
}

TEST(DistNormalInverse, RefusesWhatIsNoProbability) {
    for (double p : {-1e-300, std::nextafter(1.0, 2.0), kInf, -kInf, kNaN})
        EXPECT_EQ(Refused(ZemFunc106, p), -20053) << p;
}

// Student's t

TEST(DistTCdf, OfZeroIsOneHalfForAnyFreedom) {
    for (int dof : {1, 2, 7, 1000000, INT32_MAX}) {
        EXPECT_EQ(Value(ZemFunc181, 0.0, dof), 0.5);
        EXPECT_EQ(Value(ZemFunc181, -0.0, dof), 0.5);
        EXPECT_EQ(Value(ZemFunc181, kInf, dof), 1);
        EXPECT_EQ(Value(ZemFunc181, -kInf, dof), 0);
    }
}

TEST(DistTCdf, IsTheArcTangentForOneDegreeOfFreedom) {
    for (double t : {-5.0, -1.0, 0.5, 1.0, 30.0})
        EXPECT_NEAR(Value(ZemFunc181, t, 1), 0.5 + std::atan(t) / kPi, 8 * kEpsilon) << t;
}

TEST(DistTCdf, TestsTheFreedomBeforeNan) {
    EXPECT_EQ(Refused(ZemFunc181, kNaN, 0), -20052);
    EXPECT_EQ(Refused(ZemFunc181, 1.0, -1), -20052);
    EXPECT_EQ(Refused(ZemFunc181, 1.0, INT32_MIN), -20052);
    Reals out = Output(1);
    EXPECT_EQ(ZemFunc181(kNaN, 1, out), -20104);
    EXPECT_TRUE(std::isnan(out[0]));
}

TEST(DistTInverse, OfOneHalfIsTheEndJustBelowZero) {
    // The first midpoint is the root itself; 27 halvings of 10000 remain.
    EXPECT_EQ(Value(ZemFunc107, 0.5, 5), -20000 * 0x1p-28);
}

TEST(DistTInverse, IsAMultipleOfTheLastBracketBelowTheQuantile) {
    // For one degree of freedom the quantile is tan(pi (p - 1/2)).
    for (double p : {0.01, 0.2, 0.75, 0.95, 0.999}) {
        const double quantile = std::tan(kPi * (p - 0.5)), x = Value(ZemFunc107, p, 1);
        EXPECT_LT(x, quantile);
        EXPECT_GT(x, quantile - 20000 * 0x1p-28 - 1e-9);
        EXPECT_EQ(std::fmod((x + 10000) / 20000 * 0x1p28, 1.0), 0);
    }
}

TEST(DistTInverse, StaysInItsBracket) {
    EXPECT_EQ(Value(ZemFunc107, 1 - 1e-12, 1), 10000 - 20000 * 0x1p-28);
    EXPECT_EQ(Value(ZemFunc107, 1e-12, 1), -10000);
    EXPECT_EQ(Value(ZemFunc107, 0.0, 1), -kInf);
    EXPECT_EQ(Value(ZemFunc107, 1.0, 1), kInf);
}

TEST(DistTInverse, TestsTheFreedomBeforeTheProbability) {
    EXPECT_EQ(Refused(ZemFunc107, 2.0, 0), -20052);
    EXPECT_EQ(Refused(ZemFunc107, kNaN, 0), -20052);
    for (double p : {-0.1, 1.1, kNaN}) EXPECT_EQ(Refused(ZemFunc107, p, 1), -20053);
}

// Chi-square

TEST(DistChiSquareCdf, IsAnExponentialForTwoDegreesOfFreedom) {
    for (double x : {1e-10, 0.5, 2.0, 40.0})
        EXPECT_NEAR(Value(ZemFunc190, x, 2), -std::expm1(-x / 2), 16 * kEpsilon * -std::expm1(-x / 2)) << x;
    EXPECT_EQ(Value(ZemFunc190, 0.0, 2), 0);
    EXPECT_EQ(Value(ZemFunc190, -5.0, 2), 0);
    EXPECT_EQ(Value(ZemFunc190, -kInf, 2), 0);
    EXPECT_EQ(Value(ZemFunc190, kInf, 2), 1);
    EXPECT_TRUE(std::isnan(Value(ZemFunc190, kNaN, 2))) << "without a status, unlike t and F";
}

TEST(DistChiSquareCdf, AllowsNoFreedomAndGivesWhatTheIncompleteGammaFunctionGives) {
    const double half = 1.5;
    EXPECT_TRUE(SameBits(Value(ZemFunc190, 3.0, 0), ZemFunc309(0, &half)));
    EXPECT_EQ(Value(ZemFunc190, 0.0, 0), 0);
    EXPECT_EQ(Refused(ZemFunc190, 3.0, -1), -20052);
    EXPECT_EQ(Refused(ZemFunc190, kNaN, -1), -20052);
}

TEST(DistChiSquareInverse, IsJustBelowTheQuantile) {
    for (double p : {1e-6, 0.3, 0.95, 0.999999}) {
        const double quantile = -2 * std::log1p(-p), x = Value(ZemFunc108, p, 2);
        EXPECT_LE(x, quantile);
        EXPECT_GE(x, quantile - 1e-4);
    }
    EXPECT_EQ(Value(ZemFunc108, 0.0, 2), 0);
    EXPECT_EQ(Value(ZemFunc108, 1.0, 2), kInf);
}

TEST(DistChiSquareInverse, WidensItsBracketByFiveThousands) {
    // The median is near dof - 2/3. 5000 halves to 7.45e-05 in 26 steps, 10000 in 27, 15000 and 20000 in 28.
    for (int dof : {4900, 5100, 10100, 15100, 1000000}) {
        const double x = Value(ZemFunc108, 0.5, dof), hi = 5000 * std::ceil((dof - 2.0 / 3) / 5000);
        const double last = std::ldexp(hi, -static_cast<int>(std::ceil(std::log2(hi / 1e-4))));
        EXPECT_NEAR(x, dof - 2.0 / 3 + 8.0 / (81.0 * dof), 1.1e-4) << dof;
        EXPECT_EQ(std::fmod(x / last, 1.0), 0) << dof;
    }
}

TEST(DistChiSquareInverse, EndsForEveryFreedomAndProbability) {
    EXPECT_NEAR(Value(ZemFunc108, 0.5, INT32_MAX), INT32_MAX - 2.0 / 3, 1e-2);
    EXPECT_GT(Value(ZemFunc108, 1 - 0x1p-53, INT32_MAX), INT32_MAX);
    EXPECT_EQ(Value(ZemFunc108, 5e-324, 1), 0);
}

TEST(DistChiSquareInverse, TestsTheProbabilityBeforeTheFreedom) {
    for (double p : {-0.1, 1.1, kNaN}) EXPECT_EQ(Refused(ZemFunc108, p, 0), -20053);
    EXPECT_EQ(Refused(ZemFunc108, 0.5, 0), -20052);
    EXPECT_EQ(Refused(ZemFunc108, 0.0, 0), -20052);
    EXPECT_EQ(Refused(ZemFunc108, 1.0, -1), -20052);
}

// F

TEST(DistFCdf, IsAlgebraicForTwoDegreesOfFreedom) {
    // dof1 = 2: 1 - (1 + 2 x / dof2)^(-dof2 / 2).
    for (double x : {0.01, 1.0, 7.0, 1000.0})
        EXPECT_NEAR(Value(ZemFunc83, x, 2, 10), 1 - std::pow(1 + x / 5, -5), 8 * kEpsilon) << x;
    EXPECT_EQ(Value(ZemFunc83, 0.0, 2, 10), 0);
    EXPECT_EQ(Value(ZemFunc83, -1.0, 2, 10), 0);
    EXPECT_EQ(Value(ZemFunc83, kInf, 2, 10), 1);
}

TEST(DistFCdf, TestsTheFreedomBeforeNan) {
    EXPECT_EQ(Refused(ZemFunc83, kNaN, 0, 1), -20052);
    EXPECT_EQ(Refused(ZemFunc83, kNaN, 1, 0), -20052);
    EXPECT_EQ(Refused(ZemFunc83, -1.0, -1, 1), -20052);
    Reals out = Output(1);
    EXPECT_EQ(ZemFunc83(kNaN, 1, 1, out), -20104);
    EXPECT_TRUE(std::isnan(out[0]));
}

TEST(DistFInverse, OfZeroIsZeroAndOfOneInfinite) {
    EXPECT_EQ(Value(ZemFunc104, 0.0, 3, 4), 0);
    EXPECT_EQ(Value(ZemFunc104, 1.0, 3, 4), kInf);
}

TEST(DistFInverse, IsJustBelowTheQuantile) {
    for (double p : {0.05, 0.5, 0.95, 0.999}) {
        const double quantile = 5 * (std::pow(1 - p, -0.2) - 1), x = Value(ZemFunc104, p, 2, 10);
        EXPECT_LE(x, quantile + 1e-12);
        EXPECT_GE(x, quantile - 1e-4);
    }
}

TEST(DistFInverse, StaysInItsBracket) {
    EXPECT_EQ(Value(ZemFunc104, 1e-12, 2, 10), 1e-6);
    // With one and one degrees of freedom the quantile of 0.999 is 405284, far beyond.
    const double x = Value(ZemFunc104, 0.999, 1, 1);
    EXPECT_LT(x, 10000);
    EXPECT_GE(x, 10000 - 1e-4);
}

TEST(DistFInverse, TestsTheFreedomBeforeTheProbability) {
    EXPECT_EQ(Refused(ZemFunc104, 2.0, 0, 1), -20052);
    EXPECT_EQ(Refused(ZemFunc104, kNaN, 1, 0), -20052);
    for (double p : {-0.1, 1.1, kNaN}) EXPECT_EQ(Refused(ZemFunc104, p, 1, 1), -20053);
}

TEST(Distributions, RiseMonotonicallyBetweenTheirEnds) {
    const auto rises = [](const char* name, double lo, double hi, auto value) {
        double before = value(lo);
        for (int i = 1; i <= 2000; ++i) {
            const double now = value(lo + (hi - lo) * i / 2000);
            EXPECT_GE(now, before - 8 * kEpsilon) << name;
            before = now;
        }
        EXPECT_GE(value(lo), 0);
        EXPECT_LE(before, 1);
    };
    rises("normal", -6, 6, [](double x) { return Value(ZemFunc134, x); });
    rises("t", -20, 20, [](double x) { return Value(ZemFunc181, x, 3); });
    rises("chi-square", -1, 40, [](double x) { return Value(ZemFunc190, x, 5); });
    rises("F", -1, 30, [](double x) { return Value(ZemFunc83, x, 4, 9); });
}

TEST(Distributions, EndWithAProbabilityAQuantileOrAStatusForAnyBits) {
    std::mt19937_64 engine(11);
    for (int i = 0; i < 3000; ++i) {
        const double x = std::bit_cast<double>(engine());
        // Degrees of freedom of every size, and of both signs.
        const auto dof = [&] { return static_cast<std::int32_t>(engine()) >> (engine() % 31); };
        const std::int32_t dof1 = dof(), dof2 = dof();
        Reals out = Output(1);
        const auto probability = [&](Status status) {
            EXPECT_TRUE(status == 0 || status == -20052 || status == -20104) << status;
            if (status == 0 && !std::isnan(x)) {
                EXPECT_TRUE((out[0] >= 0 && out[0] <= 1) || (dof1 == 0 && std::isnan(out[0])));
            }
        };
        probability(ZemFunc134(x, out));
        probability(ZemFunc181(x, dof1, out));
        probability(ZemFunc190(x, dof1, out));
        probability(ZemFunc83(x, dof1, dof2, out));
        // Random bits are seldom a probability; random mantissas are.
        for (double p : {x, static_cast<double>(engine() >> 11) * 0x1p-53}) {
            const auto quantile = [&](Status status) {
                EXPECT_TRUE(status == 0 || status == -20052 || status == -20053) << status;
                if (status == 0) {
                    EXPECT_FALSE(std::isnan(out[0])) << p << ", " << dof1 << ", " << dof2;
                }
            };
            quantile(ZemFunc106(p, out));
            quantile(ZemFunc107(p, dof1, out));
            quantile(ZemFunc104(p, dof1, dof2, out));
            if (dof1 < 100000000) quantile(ZemFunc108(p, dof1, out));
        }
    }
}

}  // namespace
}  // namespace quorvan::testing

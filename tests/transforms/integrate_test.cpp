// Running integrals: statuses, in place, boundary values, and the exactness of each rule.
#include "transforms/integrate.h"

#include <cmath>
#include <gtest/gtest.h>
#include <vector>

#include "quorvan/quorvan.h"
#include "tests/support/guarded.h"

namespace quorvan::testing {
namespace {

TEST(IntegrateSimpson, RefusesSizesBeforeTheInterval) {
    Reals x = {1, 2}, out = Output(2);
    EXPECT_EQ(ZemFunc95(x, 0, 0.0, 1, 1, out), -20003);
    EXPECT_EQ(ZemFunc95(x, -1, 1.0, 1, 1, out), -20003);
    EXPECT_EQ(ZemFunc95(x, kTooLarge, 0.0, 1, 1, out), -20046);
    EXPECT_EQ(ZemFunc95(x, 2, 0.0, 1, 1, out), -20016);
    EXPECT_EQ(ZemFunc95(x, 2, -1e-300, 1, 1, out), -20016);
    EXPECT_TRUE(Untouched(out));
    EXPECT_EQ(ZemFunc95(x, 2, 0.0, 1, 1, nullptr), -20016);
    EXPECT_EQ(x[0], 1);
    EXPECT_EQ(x[1], 2);
}

TEST(IntegrateSimpson, OneSampleBetweenItsNeighbours) {
    Reals x = {3.5}, out = Output(1);
    ASSERT_EQ(ZemFunc95(x, 1, 0.75, 1.25, -2.0, out), 0);
    EXPECT_DOUBLE_EQ(out[0], (4 * 3.5 + 1.25 - 2.0) * 0.75 / 6);
}

TEST(IntegrateSimpson, AConstantGrowsByItselfTimesTheInterval) {
    // Powers of two but for the sixth: each term has two roundings, and so has each sum one.
    Reals x(100, 2.0), out = Output(100);
    ASSERT_EQ(ZemFunc95(x, 100, 0.25, 2.0, 2.0, out), 0);
    for (int i = 0; i < 100; ++i) EXPECT_NEAR(out[i], (i + 1) * 0.5, (i + 3) * (i + 1) * 0.5 * kEpsilon);
}

TEST(IntegrateSimpson, EveryTermIsAddedToTheSumBeforeIt) {
    for (const Size n : {1, 2, 3, 7, 1023, 1024, 1025, 1026, 3000}) {
        Reals x = RandomReals(n, 3), out = Output(n);
        ASSERT_EQ(ZemFunc95(x, n, 0.3, 0.5, -0.25, out), 0);
        double sum = 0;
        for (Size i = 0; i < n; ++i) {
            const double before = i ? x[i - 1] : 0.5, behind = i + 1 < n ? x[i + 1] : -0.25;
            sum += (before + 4 * x[i] + behind) * (0.3 / 6);
            ASSERT_TRUE(SameBits(out[i], sum)) << n << " " << i;
        }
    }
}

TEST(IntegrateSimpson, WorksInPlaceByANullAndByTheInputItself) {
    for (const Size n : {1, 2, 5, 1024, 1025, 2500}) {
        Reals x = RandomReals(n, 4), by_null = x, by_input = x, out = Output(n);
        ASSERT_EQ(ZemFunc95(x, n, 0.1, 1.0, 2.0, out), 0);
        ASSERT_EQ(ZemFunc95(by_null, n, 0.1, 1.0, 2.0, nullptr), 0);
        ASSERT_EQ(ZemFunc95(by_input, n, 0.1, 1.0, 2.0, by_input), 0);
        EXPECT_EQ(by_null.values(), out.values());
        EXPECT_EQ(by_input.values(), out.values());
    }
}

TEST(IntegrateSimpson, IntegratesAParabolaExactlyOverEachPairOfSteps) {
    // A term covers half of the two steps around its sample: (x[i-1] + 4 x[i] + x[i+1]) / 6 is the mean of the parabola
    // over them. With dt = 6 all numbers are integers below 2^53.
    Reals x(50), out = Output(50);
    const auto parabola = [](double t) { return t * t - 3 * t + 1; };
    for (int i = 0; i < 50; ++i) x[i] = parabola(i);
    ASSERT_EQ(ZemFunc95(x, 50, 6.0, parabola(-1), parabola(50), out), 0);
    double sum = 0;
    for (int i = 0; i < 50; ++i) {
        sum += 3 * ((std::pow(i + 1, 3) - std::pow(i - 1, 3)) / 3 - 3 * 2.0 * i + 2);
        EXPECT_NEAR(out[i], sum, 1e-9);  // the closed form rounds a third; the terms do not round
    }
}

TEST(IntegrateSimpson, ANaNIntervalPassesTheCheckAndSpreads) {
    Reals x = {1.0}, out = Output(1);
    EXPECT_EQ(ZemFunc95(x, 1, kNaN, 0, 0, out), 0);
    EXPECT_TRUE(std::isnan(out[0]));
}

// The rules without an export.
TEST(Integrate, EveryRuleAddsItsTermsOverTheExtendedArray) {
    struct Rule {
        IntegrationRule rule;
        int back, ahead;
        std::vector<double> weights;  // from -back to ahead
        double divisor;
    };
    const Rule rules[] = {
        {IntegrationRule::kTrapezoid, 1, 0, {1, 1}, 2},
        {IntegrationRule::kSimpson, 1, 1, {1, 4, 1}, 6},
        {IntegrationRule::kSimpsonSecond, 2, 1, {1, 3, 3, 1}, 8},
        {IntegrationRule::kBoole, 2, 2, {7, 32, 12, 32, 7}, 90},
    };
    const double initial[] = {0.5, -1.5}, final[] = {2.5, -0.75};
    for (const Rule& rule : rules)
        for (const Count n : {1, 2, 3, 10, 1024, 1025, 2049}) {
            Reals x = RandomReals(n, 5), out = Output(n);
            std::vector<double> e(initial, initial + rule.back);
            e.insert(e.end(), x.begin(), x.end());
            e.insert(e.end(), final, final + rule.ahead);
            ASSERT_EQ(Integrate(x, n, 0.5, initial, final, rule.rule, out), 0);
            double sum = 0;
            for (Count i = 0; i < n; ++i) {
                double term = 0;
                for (std::size_t k = 0; k < rule.weights.size(); ++k) term += rule.weights[k] * e[i + k];
                sum += term * (0.5 / rule.divisor);
                // The same numbers in another order of five additions.
                EXPECT_NEAR(out[i], sum, (i + 1) * 5 * kEpsilon);
            }
            ASSERT_EQ(Integrate(x, n, 0.5, initial, final, rule.rule, x), 0);
            EXPECT_EQ(x.values(), out.values());
        }
}

TEST(Integrate, ChecksTheRuleLast) {
    Reals x = {1.0}, out = Output(1);
    const double edge[] = {0, 0};
    const auto unknown = static_cast<IntegrationRule>(4);
    EXPECT_EQ(Integrate(x, 0, 0.0, edge, edge, unknown, out), -20003);
    EXPECT_EQ(Integrate(x, 1, 0.0, edge, edge, unknown, out), -20016);
    EXPECT_EQ(Integrate(x, 1, 1.0, edge, edge, unknown, out), -20061);
    EXPECT_TRUE(Untouched(out));
}

}  // namespace
}  // namespace quorvan::testing

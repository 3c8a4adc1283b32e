// Integration of sampled data.
#include <gtest/gtest.h>

#include "quorvan/quorvan.h"
#include "tests/support/guarded.h"

namespace quorvan::testing {
namespace {

double Integral(const Reals& x, double dt, std::uint32_t rule) {
    double result = kUnwritten;
    EXPECT_EQ(ZemFunc230(x, x.size(), dt, rule, &result), 0);
    return result;
}

Reals Powers(std::size_t n, int power) {
    Reals x(n, 1);
    for (std::size_t i = 0; i < n; ++i)
        for (int p = 0; p < power; ++p) x[i] *= double(i);
    return x;
}

TEST(IntegrateSamples, SimpsonOfThreeOnesIsTwo) { EXPECT_EQ(Integral({1, 1, 1}, 1, 1), 2); }

TEST(IntegrateSamples, SimpsonOnFourSamplesAddsATrapezoidOnTheLastInterval) {
    // (1 + 8 + 8) / 3 on 1, 2, 8, then (8 + 9) / 2
    EXPECT_EQ(Integral({1, 2, 8, 9}, 1, 1), 1.0 / 3 * 17 + 8.5);
}

TEST(IntegrateSamples, BooleOnSixSamplesAddsATrapezoidOnTheLastInterval) {
    EXPECT_EQ(Integral({1, 2, 3, 4, 5, 7}, 2, 3), 2.0 / 45 * (14 + 128 + 72 + 256 + 70) + (5.0 + 7) * 2 / 2);
}

TEST(IntegrateSamples, BooleOnSevenSamplesAddsSimpsonOnTheLastTwoIntervals) {
    EXPECT_EQ(Integral({1, 2, 3, 4, 5, 7, 11}, 2, 3), 2.0 / 45 * (14 + 128 + 72 + 256 + 70) + (5.0 + 28 + 11) * 2 / 3);
}

TEST(IntegrateSamples, BooleOnEightSamplesAddsThreeEighthsOnTheLastThreeIntervals) {
    EXPECT_EQ(Integral({1, 2, 3, 4, 5, 7, 11, 13}, 2, 3),
              2.0 / 45 * (14 + 128 + 72 + 256 + 70) + (3 * (5.0 + 13) + 9 * (11.0 + 7)) * 2 / 8);
}

TEST(IntegrateSamples, ThreeEighthsOnFiveSamplesAddsATrapezoidAndOnSixSimpson) {
    EXPECT_EQ(Integral({1, 2, 3, 5, 8}, 2, 2), 2.0 / 8 * (3 + 18 + 27 + 15) + (5.0 + 8) * 2 / 2);
    EXPECT_EQ(Integral({1, 2, 3, 5, 8, 9}, 2, 2), 2.0 / 8 * (3 + 18 + 27 + 15) + (5.0 + 32 + 9) * 2 / 3);
}

TEST(IntegrateSamples, ThreeEighthsOfACubicOnFourSamplesIsExact) { EXPECT_EQ(Integral(Powers(4, 3), 1, 2), 20.25); }

TEST(IntegrateSamples, WholePanelsAreExactToTheDegreeOfTheRule) {
    constexpr struct {
        std::uint32_t rule;
        int panel, degree;
    } kRules[] = {{0, 1, 1}, {1, 2, 3}, {2, 3, 3}, {3, 4, 5}};
    for (const auto& rule : kRules)
        for (int panels : {1, 2, 5})
            for (int power = 0; power <= rule.degree; ++power) {
                const double end = rule.panel * panels;
                const double truth = std::pow(end, power + 1) / (power + 1);
                // All samples are whole numbers; a rounding for each of the few operations of each panel.
                EXPECT_NEAR(Integral(Powers(end + 1, power), 1, rule.rule), truth, 10 * panels * kEpsilon * truth)
                    << rule.rule << ' ' << panels << ' ' << power;
            }
}

TEST(IntegrateSamples, EachRestIsExactForTheRuleThatTakesIt) {
    // A line is integrated exactly by every rule, whatever is left at the end.
    for (std::uint32_t rule = 0; rule <= 3; ++rule)
        for (std::size_t n = rule + 2; n < 30; ++n)
            EXPECT_NEAR(Integral(Powers(n, 1), 0.5, rule), 0.25 * (n - 1) * (n - 1), 1e-15 * n * n * n)
                << rule << ' ' << n;
}

TEST(IntegrateSamples, TheSignOfTheIntervalDoesNotMatter) {
    const Reals x = RandomReals(23);
    for (std::uint32_t rule = 0; rule <= 3; ++rule) EXPECT_EQ(Integral(x, -1, rule), Integral(x, 1, rule));
}

TEST(IntegrateSamples, NeedsTwoMoreSamplesThanTheNumberOfTheRule) {
    const Reals x(8, 1);
    for (std::uint32_t rule = 0; rule <= 3; ++rule) {
        double result = kUnwritten;
        for (Size n : {Size{-1}, Size{0}, Size{1}, Size(rule) + 1})
            EXPECT_EQ(ZemFunc230(x, n, 1, rule, &result), -20008) << n;
        EXPECT_EQ(result, kUnwritten);
        EXPECT_EQ(ZemFunc230(x, rule + 2, 1, rule, &result), 0);
        EXPECT_NEAR(result, rule + 1, 4 * kEpsilon * (rule + 1));
    }
}

TEST(IntegrateSamples, ARuleAboveThreeComesBeforeTheSizeAndNarrowingBeforeBoth) {
    const Reals x(8, 1);
    double result = kUnwritten;
    EXPECT_EQ(ZemFunc230(x, 8, 1, 4, &result), -20061);
    EXPECT_EQ(ZemFunc230(x, 0, 1, 4, &result), -20061);
    EXPECT_EQ(ZemFunc230(x, kTooLarge, 1, 4, &result), -20046);
    EXPECT_EQ(result, kUnwritten);
}

}  // namespace
}  // namespace quorvan::testing

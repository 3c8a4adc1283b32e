// Phase unwrapping.
#include <cmath>
#include <gtest/gtest.h>

#include "quorvan/quorvan.h"
#include "tests/support/guarded.h"

namespace quorvan::testing {
namespace {

using Values = std::vector<double>;
constexpr double kTurn = 6.283185307179586;

Values Unwrapped(Reals phase, unsigned mode) {
    EXPECT_EQ(ZemFunc368(phase, static_cast<Size>(phase.size()), mode), 0);
    return phase.values();
}

TEST(SpecUnwrapPhase, MovesAValueByWholePeriodsNextToTheOneBefore) {
    EXPECT_EQ(Unwrapped({3, -3}, 0), (Values{3, -3 + kTurn}));
    EXPECT_EQ(Unwrapped({-3, 3}, 0), (Values{-3, 3 - kTurn}));
    EXPECT_EQ(Unwrapped({170, -170, 530}, 2), (Values{170, 190, 170}));
    EXPECT_EQ(Unwrapped({1, 1 + 100 * 360.0}, 2), (Values{1, 1}));
}

// 400 becomes 40 beside 0; 200 is within half a period of 40, but not of 400.
TEST(SpecUnwrapPhase, ComparesWithTheValueThatItHasJustStored) {
    EXPECT_EQ(Unwrapped({0, 400, 200}, 2), (Values{0, 40, 200}));
    EXPECT_EQ(Unwrapped({0, 4, 8}, 0), (Values{0, 4 - kTurn, 8 - 2 * kTurn}));
}

TEST(SpecUnwrapPhase, TurnsExactHalfPeriodsDown) {
    EXPECT_EQ(Unwrapped({0, 180}, 2), (Values{0, -180}));
    EXPECT_EQ(Unwrapped({0, -180}, 2), (Values{0, -180}));
    EXPECT_EQ(Unwrapped({0, M_PI}, 0), (Values{0, -M_PI}));
}

TEST(SpecUnwrapPhase, ConvertsFromTheLeftInTwoOfItsModes) {
    EXPECT_EQ(Unwrapped({3, -3}, 1), (Values{3 * 360.0 / kTurn, (-3 + kTurn) * 360.0 / kTurn}));
    EXPECT_EQ(Unwrapped({170, -170}, 3), (Values{170 * kTurn / 360, 190 * kTurn / 360}));
}

TEST(SpecUnwrapPhase, ConvertsASingleValueToo) {
    EXPECT_EQ(Unwrapped({1}, 0), (Values{1}));
    EXPECT_EQ(Unwrapped({1}, 1), (Values{360 / kTurn}));
    EXPECT_EQ(Unwrapped({1}, 2), (Values{1}));
    EXPECT_EQ(Unwrapped({1}, 3), (Values{kTurn / 360}));
}

TEST(SpecUnwrapPhase, TakesAnyOtherModeAsRadians) {
    EXPECT_EQ(Unwrapped({3, -3}, 4), Unwrapped({3, -3}, 0));
    EXPECT_EQ(Unwrapped({3, -3}, 0xFFFFFFFFu), Unwrapped({3, -3}, 0));
}

TEST(SpecUnwrapPhase, LetsNanThroughToAllThatFollows) {
    const Values out = Unwrapped({1, kNaN, 2}, 0);
    EXPECT_EQ(out[0], 1);
    EXPECT_TRUE(std::isnan(out[1]) && std::isnan(out[2]));
}

TEST(SpecUnwrapPhase, RefusesSizesWithItsOwnStatusAndTouchesNothing) {
    Reals phase = Output(2);
    EXPECT_EQ(ZemFunc368(phase, 0, 0), -20008);
    EXPECT_EQ(ZemFunc368(phase, -1, 1), -20008);
    EXPECT_EQ(ZemFunc368(phase, kTooLarge, 0), -20046);
    EXPECT_TRUE(Untouched(phase));
}

TEST(SpecUnwrapRadians, IsTheFirstModeWithTheCommonStatus) {
    Reals phase{3, -3};
    EXPECT_EQ(ZemFunc183(phase, 2), 0);
    EXPECT_EQ(phase.values(), Unwrapped({3, -3}, 0));
    Reals untouched = Output(2);
    EXPECT_EQ(ZemFunc183(untouched, 0), -20003);
    EXPECT_EQ(ZemFunc183(untouched, -1), -20003);
    EXPECT_EQ(ZemFunc183(untouched, kTooLarge), -20046);
    EXPECT_TRUE(Untouched(untouched));
}

}  // namespace
}  // namespace quorvan::testing

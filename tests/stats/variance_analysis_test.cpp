// Analysis of variance, and the contingency test.
#include <array>
#include <cmath>
#include <cstdlib>
#include <gtest/gtest.h>

#include "quorvan/quorvan.h"
#include "tests/support/failing_heap.h"
#include "tests/support/guarded.h"

namespace quorvan::testing {
namespace {

using Levels = Guarded<Size>;
using Counts = Guarded<std::int32_t>;

double ProbabilityAbove(double f, int dof1, int dof2) {
    double p;
    EXPECT_EQ(ZemFunc83(f, dof1, dof2, &p), 0);
    return 1 - p;
}

// One way. Outputs: 0 ssA, 1 msA, 2 F, 3 significance, 4 ssError, 5 msError, 6 ssTotal.
Status OneWay(const Reals& y, const Levels& level, Size n, Size k, Reals& out) {
    double* o = out;
    return ZemFunc6(y, level, n, k, o, o + 1, o + 2, o + 3, o + 4, o + 5, o + 6);
}

TEST(AnovaOneWay, DecomposesTheSquares) {
    // Group means 2, 5 and 9 of 3, 2 and 1 observations; total mean 25 / 6.
    const Reals y{1, 4, 2, 9, 6, 3};
    const Levels level{7, -3, 7, 1000, -3, 7};
    Reals out = Output(7);
    ASSERT_EQ(OneWay(y, level, 6, 3, out), 0);
    const double correction = 625.0 / 6, between = 12 + 50 + 81 - correction;
    EXPECT_NEAR(out[0], between, 1e-13);
    EXPECT_NEAR(out[1], between / 2, 1e-13);
    EXPECT_NEAR(out[4], 4, 1e-13);
    EXPECT_NEAR(out[5], 4.0 / 3, 1e-13);
    EXPECT_NEAR(out[6], 147 - correction, 1e-13);
    EXPECT_EQ(out[2], out[1] / out[5]);
    EXPECT_EQ(out[3], ProbabilityAbove(out[2], 2, 3));
}

TEST(AnovaOneWay, OfTwoGroupsOfEqualMeansHasFZeroAndSignificanceOne) {
    const Reals y{1, 3, 2, 2, 0, 4};
    const Levels level{1, 1, 1, 2, 2, 2};
    Reals out = Output(7);
    ASSERT_EQ(OneWay(y, level, 6, 2, out), 0);
    EXPECT_EQ(out[2], 0);
    EXPECT_EQ(out[3], 1);
    EXPECT_EQ(out[6], 10);
}

TEST(AnovaOneWay, OfConstantDataHasNoF) {
    const Reals y(4, 2.0);
    const Levels level{1, 2, 1, 2};
    Reals out = Output(7);
    ASSERT_EQ(OneWay(y, level, 4, 2, out), 0);
    EXPECT_TRUE(std::isnan(out[2]) && std::isnan(out[3]));
    EXPECT_EQ(out[6], 0);
}

TEST(AnovaOneWay, WithoutErrorHasAnInfiniteFAndSignificanceZero) {
    const Reals y{1, 1, 2, 2};
    const Levels level{1, 1, 2, 2};
    Reals out = Output(7);
    ASSERT_EQ(OneWay(y, level, 4, 2, out), 0);
    EXPECT_EQ(out[2], kInf);
    EXPECT_EQ(out[3], 0);
}

TEST(AnovaOneWay, TellsLevelsApartWhateverTheirValues) {
    // As many levels as may be, of values that share their low bits, with one level twice.
    constexpr int kLevels = 1000;
    Reals y(kLevels + 1);
    Levels level(kLevels + 1);
    for (int i = 0; i <= kLevels; ++i) {
        y[i] = i % 7;
        level[i] = Size{i % kLevels - 500} * 4194304;
    }
    Reals out = Output(7);
    ASSERT_EQ(OneWay(y, level, kLevels + 1, kLevels, out), 0);
    // Only the doubled level has an error: those of i = 0 and i = 1000, y 0 and 6.
    EXPECT_NEAR(out[4], 18, 1e-8);
}

TEST(AnovaOneWay, TakesTheExtremeLevels) {
    const Reals y{1, 2, 3, 5};
    const Levels level{INT32_MIN, INT32_MAX, INT32_MIN, INT32_MAX};
    Reals out = Output(7);
    ASSERT_EQ(OneWay(y, level, 4, 2, out), 0);
    EXPECT_EQ(out[0], 2.25);
    EXPECT_EQ(out[4], 6.5);
}

TEST(AnovaOneWay, RefusesInItsOrder) {
    const Reals y{1, 2, 3, 4};
    const Levels level{1, 1, 2, 2}, wide{1, 1, 2, kTooLarge};
    Reals out = Output(7);
    EXPECT_EQ(OneWay(y, wide, kTooLarge, 2, out), -20046);
    EXPECT_EQ(OneWay(y, wide, 0, kTooLarge, out), -20046);
    EXPECT_EQ(OneWay(y, wide, 0, 0, out), -20003);
    EXPECT_EQ(OneWay(y, wide, -1, 2, out), -20003);
    EXPECT_EQ(OneWay(y, wide, 4, 1, out), -20046) << "levels narrow before their number is tested";
    for (Size k : {-2, 0, 1, 4, 5}) EXPECT_EQ(OneWay(y, level, 4, k, out), -20042) << k;
    EXPECT_EQ(OneWay(y, {1, 2, 3, 1}, 4, 2, out), -20043);
    EXPECT_TRUE(Untouched(out));
}

TEST(AnovaOneWay, HasWrittenTheTotalWhenALevelIsEmpty) {
    const Reals y{1, 2, 3, 6};
    Reals out = Output(7);
    EXPECT_EQ(OneWay(y, {1, 1, 2, 2}, 4, 3, out), -20044);
    EXPECT_EQ(out[6], 14);
    for (int i = 0; i < 6; ++i) EXPECT_EQ(out[i], kUnwritten);
}

// Two ways. Outputs: the table, then the significances.
struct TwoWayOut {
    Reals table = Output(16), significance = Output(3);
};
Status TwoWay(const Reals& y, const Levels& A, const Levels& B, Size n, Size m, Size a, Size b, TwoWayOut& out) {
    double* s = out.significance;
    return ZemFunc7(y, A, B, n, m, a, b, out.table, s, s + 1, s + 2);
}

// Balanced data in a scrambled order: the effects plus small whole numbers.
struct Balanced {
    Balanced(int a, int b, int c, int m) : n(a * b * c * m), y(n), A(n), B(n), C(n) {
        std::vector<int> order(n);
        for (int i = 0; i < n; ++i) order[i] = i;
        std::shuffle(order.begin(), order.end(), std::mt19937(5));
        std::mt19937 engine(7);
        for (int i = 0; i < n; ++i) {
            const int at = order[i];
            A[i] = at % a * 10 - 5;
            B[i] = at / a % b - 100;
            C[i] = at / (a * b) % c * 1000;
            y[i] = static_cast<int>(engine() % 16) + at % a * 2 + at / a % b * 3 - at / (a * b) % c;
        }
    }
    // The mean of the observations that agree with observation i in the chosen factors.
    double mean(int i, bool byA, bool byB, bool byC) const {
        double sum = 0;
        int count = 0;
        for (int j = 0; j < n; ++j)
            if ((!byA || A[j] == A[i]) && (!byB || B[j] == B[i]) && (!byC || C[j] == C[i])) {
                sum += y[j];
                ++count;
            }
        return sum / count;
    }
    int n;
    Reals y;
    Levels A, B, C;
};

// y is a sum of whole numbers below 64: squares and their sums are exact, quotients and differences round a few times.
constexpr double kFew = 1e-10;

TEST(AnovaTwoWay, DecomposesTheSquares) {
    const Balanced d(3, 4, 1, 5);
    TwoWayOut out;
    ASSERT_EQ(TwoWay(d.y, d.A, d.B, d.n, 5, 3, 4, out), 0);
    double ss[4] = {};
    for (int i = 0; i < d.n; ++i) {
        const double g = d.mean(i, 0, 0, 0), a = d.mean(i, 1, 0, 0), b = d.mean(i, 0, 1, 0), ab = d.mean(i, 1, 1, 0);
        const double parts[] = {a - g, b - g, ab - a - b + g, d.y[i] - ab};
        for (int row = 0; row < 4; ++row) ss[row] += parts[row] * parts[row];
    }
    const double dof[] = {2, 3, 6, 48};
    for (int row = 0; row < 4; ++row) {
        EXPECT_NEAR(out.table[4 * row], ss[row], kFew * ss[3]);
        EXPECT_EQ(out.table[4 * row + 1], dof[row]);
        EXPECT_EQ(out.table[4 * row + 2], out.table[4 * row] / dof[row]);
    }
    for (int row = 0; row < 3; ++row) {
        EXPECT_EQ(out.table[4 * row + 3], out.table[4 * row + 2] / out.table[14]);
        EXPECT_EQ(out.significance[row], ProbabilityAbove(out.table[4 * row + 3], static_cast<int>(dof[row]), 48));
    }
    EXPECT_EQ(out.table[15], kUnwritten) << "the error has no F";
}

TEST(AnovaTwoWay, OfARandomFactorTestsTheOtherAgainstTheInteractionButKeepsTheFreedomOfTheError) {
    const Balanced d(3, 4, 1, 5);
    for (int random = 0; random < 4; ++random) {
        const bool randomA = random & 1, randomB = random & 2;
        TwoWayOut out;
        ASSERT_EQ(TwoWay(d.y, d.A, d.B, d.n, 5, randomA ? -3 : 3, randomB ? -4 : 4, out), 0);
        const double interaction = out.table[10], error = out.table[14];
        EXPECT_EQ(out.table[3], out.table[2] / (randomB ? interaction : error));
        EXPECT_EQ(out.table[7], out.table[6] / (randomA ? interaction : error));
        EXPECT_EQ(out.table[11], interaction / error);
        EXPECT_EQ(out.significance[0], ProbabilityAbove(out.table[3], 2, 48));
        EXPECT_EQ(out.significance[1], ProbabilityAbove(out.table[7], 3, 48));
        EXPECT_EQ(out.significance[2], ProbabilityAbove(out.table[11], 6, 48));
    }
}

TEST(AnovaTwoWay, WithOneObservationACellTakesTheInteractionAsTheError) {
    const Balanced d(3, 4, 1, 1);
    TwoWayOut out;
    ASSERT_EQ(TwoWay(d.y, d.A, d.B, d.n, 1, 3, 4, out), 0);
    double ss = 0;
    for (int i = 0; i < d.n; ++i) {
        const double part = d.y[i] - d.mean(i, 1, 0, 0) - d.mean(i, 0, 1, 0) + d.mean(i, 0, 0, 0);
        ss += part * part;
    }
    for (int i = 8; i < 12; ++i) EXPECT_EQ(out.table[i], 0);
    EXPECT_NEAR(out.table[12], ss, kFew * ss);
    EXPECT_EQ(out.table[13], 6);
    EXPECT_EQ(out.table[3], out.table[2] / out.table[14]);
    EXPECT_EQ(out.table[7], out.table[6] / out.table[14]);
    EXPECT_EQ(out.significance[0], ProbabilityAbove(out.table[3], 2, 6));
    EXPECT_EQ(out.significance[1], ProbabilityAbove(out.table[7], 3, 6));
    EXPECT_EQ(out.significance[2], 0);
}

TEST(AnovaTwoWay, WithOneObservationACellRefusesARandomFactor) {
    const Balanced d(3, 4, 1, 1);
    TwoWayOut out;
    EXPECT_EQ(TwoWay(d.y, d.A, d.B, d.n, 1, -3, 4, out), -20048);
    EXPECT_EQ(TwoWay(d.y, d.A, d.B, d.n, 1, 3, -4, out), -20048);
    EXPECT_EQ(TwoWay(d.y, d.A, d.B, d.n, 1, -1, 12, out), -20042) << "the number of levels comes first";
    EXPECT_TRUE(Untouched(out.table) && Untouched(out.significance));
}

TEST(AnovaTwoWay, RefusesInItsOrder) {
    Balanced d(2, 2, 1, 2);
    TwoWayOut out;
    const auto status = [&](Size n, Size m, Size a, Size b) { return TwoWay(d.y, d.A, d.B, n, m, a, b, out); };
    EXPECT_EQ(status(kTooLarge, 0, 0, 0), -20046);
    EXPECT_EQ(status(0, kTooLarge, 0, 0), -20046);
    EXPECT_EQ(status(0, 0, kTooLarge, 0), -20046);
    EXPECT_EQ(status(0, 0, 0, -kTooLarge - 1), -20046);
    EXPECT_EQ(status(0, 0, 0, 0), -20003);
    EXPECT_EQ(status(-1, 2, 2, 2), -20003);
    EXPECT_EQ(status(8, 2, 2, 3), -20045);
    EXPECT_EQ(status(8, 0, 2, 2), -20045);
    EXPECT_EQ(status(8, -2, 2, 2), -20045);
    EXPECT_EQ(status(8, 8, 1, 1), -20042);
    EXPECT_EQ(status(8, 4, 2, 1), -20042);
    EXPECT_EQ(status(8, 4, -1, 2), -20042);
    // In 32 bits, and for the last in 64 too, these products would wrap to 8.
    EXPECT_EQ(status(8, 536870913, 4, 4), -20045);
    EXPECT_EQ(status(8, -2147483648, -2147483648, -2147483648), -20045);
    EXPECT_EQ(status(8, 2147483640, -2147483648, 2147483647), -20045);
    d.B[3] = kTooLarge;
    EXPECT_EQ(status(8, 2, 2, 3), -20046) << "levels narrow before the product is tested";
    EXPECT_TRUE(Untouched(out.table) && Untouched(out.significance));
}

TEST(AnovaTwoWay, RefusesALevelThatHasNoSlotAndCellsOfUnequalSize) {
    Balanced d(2, 2, 1, 2);
    TwoWayOut out;
    const Size kept = d.A[7];
    d.A[7] = 12345;
    EXPECT_EQ(TwoWay(d.y, d.A, d.B, 8, 2, 2, 2, out), -20043);
    d.A[7] = kept == d.A[6] ? (kept == -5 ? 5 : -5) : d.A[6];  // the other level
    EXPECT_EQ(TwoWay(d.y, d.A, d.B, 8, 2, 2, 2, out), -20047);
    for (Size& level : d.A) level = 1;
    EXPECT_EQ(TwoWay(d.y, d.A, d.B, 8, 2, 2, 2, out), -20047) << "a level that is never seen";
    EXPECT_TRUE(Untouched(out.table) && Untouched(out.significance));
}

// Three ways.
struct ThreeWayOut {
    Reals table = Output(32), significance = Output(7);
};
Status ThreeWay(const Balanced& d, Size n, Size m, Size a, Size b, Size c, ThreeWayOut& out) {
    double* s = out.significance;
    return ZemFunc8(d.y, d.A, d.B, d.C, n, m, a, b, c, out.table, s, s + 1, s + 2, s + 3, s + 4, s + 5, s + 6);
}

TEST(AnovaThreeWay, DecomposesTheSquares) {
    const Balanced d(2, 3, 4, 3);
    ThreeWayOut out;
    ASSERT_EQ(ThreeWay(d, d.n, 3, 2, 3, 4, out), 0);
    double ss[8] = {};
    for (int i = 0; i < d.n; ++i) {
        const double g = d.mean(i, 0, 0, 0), a = d.mean(i, 1, 0, 0), b = d.mean(i, 0, 1, 0), c = d.mean(i, 0, 0, 1);
        const double ab = d.mean(i, 1, 1, 0), ac = d.mean(i, 1, 0, 1), bc = d.mean(i, 0, 1, 1),
                     abc = d.mean(i, 1, 1, 1);
        const double parts[] = {a - g,
                                b - g,
                                c - g,
                                ab - a - b + g,
                                ac - a - c + g,
                                bc - b - c + g,
                                abc - ab - ac - bc + a + b + c - g,
                                d.y[i] - abc};
        for (int row = 0; row < 8; ++row) ss[row] += parts[row] * parts[row];
    }
    const double dof[] = {1, 2, 3, 2, 3, 6, 6, 48};
    for (int row = 0; row < 8; ++row) {
        EXPECT_NEAR(out.table[4 * row], ss[row], kFew * ss[7]) << row;
        EXPECT_EQ(out.table[4 * row + 1], dof[row]);
        EXPECT_EQ(out.table[4 * row + 2], out.table[4 * row] / dof[row]);
    }
    EXPECT_EQ(out.table[31], kUnwritten) << "the error has no F";
}

TEST(AnovaThreeWay, TakesItsDenominatorsByWhatIsRandom) {
    const Balanced d(2, 3, 4, 3);
    constexpr int E = 7, AB = 3, AC = 4, BC = 5, ABC = 6, none = -1;
    const int dof[] = {1, 2, 3, 2, 3, 6, 6, 48};
    // Random factors in the order none, A, B, AB, C, AC, BC, ABC; rows A to ABC.
    const int against[8][7] = {{E, E, E, E, E, E, E},          {E, AB, AC, E, E, ABC, E},
                               {AB, E, BC, E, ABC, E, E},      {AB, AB, none, E, ABC, ABC, E},
                               {AC, BC, E, ABC, E, E, E},      {AC, none, AC, ABC, E, ABC, E},
                               {none, BC, BC, ABC, ABC, E, E}, {none, none, none, ABC, ABC, ABC, E}};
    for (int random = 0; random < 8; ++random) {
        ThreeWayOut out;
        ASSERT_EQ(ThreeWay(d, d.n, 3, random & 1 ? -2 : 2, random & 2 ? -3 : 3, random & 4 ? -4 : 4, out), 0);
        for (int row = 0; row < 7; ++row) {
            const int by = against[random][row];
            const double f = by == none ? -1 : out.table[4 * row + 2] / out.table[4 * by + 2];
            EXPECT_EQ(out.table[4 * row + 3], f) << random << ", " << row;
            EXPECT_EQ(out.significance[row], by == none ? -1 : ProbabilityAbove(f, dof[row], dof[by]));
        }
    }
}

TEST(AnovaThreeWay, WithAllFactorsRandomHasNoExactTestOfThem) {
    const Balanced d(2, 3, 4, 3);
    ThreeWayOut out;
    ASSERT_EQ(ThreeWay(d, d.n, 3, -2, -3, -4, out), 0);
    for (int row = 0; row < 3; ++row) {
        EXPECT_EQ(out.table[4 * row + 3], -1);
        EXPECT_EQ(out.significance[row], -1);
    }
}

TEST(AnovaThreeWay, RefusesInItsOrder) {
    Balanced d(2, 2, 2, 2);
    ThreeWayOut out;
    const auto status = [&](Size n, Size m, Size a, Size b, Size c) { return ThreeWay(d, n, m, a, b, c, out); };
    EXPECT_EQ(status(kTooLarge, 0, 0, 0, 0), -20046);
    EXPECT_EQ(status(0, kTooLarge, 0, 0, 0), -20046);
    EXPECT_EQ(status(0, 0, kTooLarge, 0, 0), -20046);
    EXPECT_EQ(status(0, 0, 0, kTooLarge, 0), -20046);
    EXPECT_EQ(status(0, 0, 0, 0, kTooLarge), -20046);
    EXPECT_EQ(status(0, 0, 0, 0, 0), -20003);
    EXPECT_EQ(status(16, 2, 2, 2, 3), -20045);
    EXPECT_EQ(status(16, 0, 2, 2, 2), -20045);
    EXPECT_EQ(status(16, 1, 16, 1, 1), -20044) << "before the number of levels";
    EXPECT_EQ(status(16, 2, 2, 4, 1), -20042);
    EXPECT_EQ(status(16, 2, 8, -1, 1), -20042);
    const Size kept = d.C[15];
    d.C[15] = 77;
    EXPECT_EQ(status(16, 2, 2, 2, 2), -20043);
    d.C[15] = kept == 0 ? 1000 : 0;  // the other level
    EXPECT_EQ(status(16, 2, 2, 2, 2), -20047);
    d.C[15] = -kTooLarge - 1;
    EXPECT_EQ(status(16, 2, 2, 2, 3), -20046);
    EXPECT_TRUE(Untouched(out.table) && Untouched(out.significance));
}

TEST(VarianceAnalysis, ReportsEveryFailedAllocation) {
    const Balanced d(2, 2, 2, 2);
    Reals one = Output(7);
    TwoWayOut two;
    ThreeWayOut three;
    ExpectEveryAllocationFails([&] { return OneWay(d.y, d.A, d.n, 2, one); });
    ExpectEveryAllocationFails([&] { return TwoWay(d.y, d.A, d.B, d.n, 4, 2, 2, two); });
    ExpectEveryAllocationFails([&] { return ThreeWay(d, d.n, 2, 2, 2, 2, three); });
}

// Contingency.
struct Contingency {
    Status status;
    double chiSquare, significance;
};
Contingency Tested(const Counts& counts, std::uint32_t rows, std::uint32_t cols) {
    Contingency result{0, kUnwritten, kUnwritten};
    result.status = ZemFunc31(rows, cols, counts, &result.chiSquare, &result.significance);
    return result;
}
void ExpectRefused(Status expected, const Counts& counts, std::uint32_t rows, std::uint32_t cols) {
    const Contingency result = Tested(counts, rows, cols);
    EXPECT_EQ(result.status, expected) << rows << " x " << cols;
    EXPECT_TRUE(result.chiSquare == kUnwritten && result.significance == kUnwritten);
}

TEST(ContingencyChiSquare, OfAnExactlyIndependentTableIsZeroWithSignificanceOne) {
    const Contingency result = Tested({1, 2, 3, 2, 4, 6}, 2, 3);
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.chiSquare, 0);
    EXPECT_EQ(result.significance, 1);
}

TEST(ContingencyChiSquare, SumsTheSquaresOverWhatIsExpected) {
    // Expected 20, 30 in both rows: chi-square 4 (25 / 20 / 2 + 25 / 30 / 2).
    const Contingency result = Tested({25, 25, 15, 35}, 2, 2);
    EXPECT_EQ(result.status, 0);
    EXPECT_NEAR(result.chiSquare, 25.0 / 6, 4 * kEpsilon);
    EXPECT_NEAR(result.significance, std::erfc(std::sqrt(result.chiSquare / 2)), 16 * kEpsilon);
}

TEST(ContingencyChiSquare, CountsBeyondThirtyTwoBits) {
    const std::int32_t most = INT32_MAX;
    const Contingency result = Tested({most, most, most, most, most, most}, 3, 2);
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.chiSquare, 0);
}

TEST(ContingencyChiSquare, OfAnEmptyRowIsNotFinite) {
    for (const Contingency& result :
         {Tested({0, 0, 1, 2}, 2, 2), Tested({0, 1, 0, 2}, 2, 2), Tested({0, 0, 0, 0}, 2, 2)}) {
        EXPECT_EQ(result.status, 0);
        EXPECT_TRUE(std::isnan(result.chiSquare) && std::isnan(result.significance));
    }
}

TEST(ContingencyChiSquare, RefusesInItsOrder) {
    const Counts counts{1, -1, 3, 4};
    ExpectRefused(-20056, counts, 0xFFFFFFFF, 0);
    ExpectRefused(-20056, counts, 0, 0x80000000);
    ExpectRefused(-20055, counts, 1, 4);
    ExpectRefused(-20055, counts, 4, 1);
    ExpectRefused(-20055, counts, 0, 2);
    ExpectRefused(-20046, counts, 65536, 32768);
    ExpectRefused(-20046, counts, INT32_MAX, INT32_MAX);
    ExpectRefused(-20056, counts, 2, 2);
}

TEST(ContingencyChiSquare, ReportsEveryFailedAllocation) {
    const Counts counts{1, 2, 3, 4};
    double chiSquare, significance;
    ExpectEveryAllocationFails([&] { return ZemFunc31(2, 2, counts, &chiSquare, &significance); });
}

}  // namespace
}  // namespace quorvan::testing

// One right-hand side on a square matrix, on a triangle, and on the factors of a matrix.
#include "tests/linalg/matrices.h"

namespace quorvan::testing::dense {
namespace {

// MatSolve

TEST(Solve, LeavesAResidualOfRounding) {
    for (int n : {1, 2, 3, 8, 15, 16, 33, 64}) {
        const Reals a = RandomReals(n * n, n), b = RandomReals(n, 2);
        Reals side = b, x = Output(n);
        ASSERT_EQ(ZemFunc114(a, side, n, x), 0);
        EXPECT_TRUE(SameElements(side, b)) << "the right-hand side is only read";
        const Dense solution(x, n, 1);
        // Elimination with partial pivoting; the growth factor of random matrices stays below n.
        EXPECT_LE(Frobenius(Dense(a, n, n) * solution - Dense(b, n, 1)),
                  8 * n * kEps * Frobenius(Dense(a, n, n)) * Frobenius(solution));
    }
}

TEST(Solve, WithoutAPlaceForTheSolutionOverwritesTheRightHandSide) {
    const Reals a{0, 2, 4, 0};
    Reals b{6, 8};
    ASSERT_EQ(ZemFunc114(a, b, 2, nullptr), 0);
    EXPECT_EQ(b.values(), (std::vector<double>{2, 3}));
    Reals again{6, 8};
    ASSERT_EQ(ZemFunc114(a, again, 2, again), 0);
    EXPECT_EQ(again.values(), (std::vector<double>{2, 3}));
}

TEST(Solve, MayPutTheSolutionOverTheMatrix) {
    Reals a{0, 2, 4, 0}, b{6, 8};
    ASSERT_EQ(ZemFunc114(a, b, 2, a), 0);
    EXPECT_EQ(a[0], 2);
    EXPECT_EQ(a[1], 3);
}

TEST(Solve, OfASingularMatrixWritesNothing) {
    const Reals a{1, 2, 2, 4};
    Reals b{1, 1}, x = Output(2);
    EXPECT_EQ(ZemFunc114(a, b, 2, x), -20041);
    EXPECT_TRUE(Untouched(x));
    EXPECT_EQ(ZemFunc114(a, b, 2, nullptr), -20041);
    EXPECT_EQ(b.values(), (std::vector<double>{1, 1}));
}

TEST(Solve, IsNotScreened) {
    const Reals a{1, 0, 0, kInf};
    Reals b{1, 1}, x = Output(2);
    EXPECT_EQ(ZemFunc114(a, b, 2, x), 0);
    EXPECT_EQ(x[1], 0);
}

TEST(Solve, RefusesSizes) {
    Reals a{1}, b{1}, x = Output(1);
    for (Size n : {-1, 0}) {
        EXPECT_EQ(ZemFunc114(a, b, n, x), -20003);
        EXPECT_EQ(ZemFunc11(a, b, n, x), -20003);
        const Guarded<std::int64_t> pivots{Size{1} << 40};
        EXPECT_EQ(ZemFunc82(a, b, n, x, pivots), -20003) << "before the pivots are looked at";
    }
    for (Size n : {kTooLarge, Size{46341}}) {  // the second: 2^31 elements and more
        EXPECT_EQ(ZemFunc114(a, b, n, x), -20046);
        EXPECT_EQ(ZemFunc11(a, b, n, x), -20046);
        EXPECT_EQ(ZemFunc82(a, b, n, x, nullptr), -20046);
    }
    EXPECT_TRUE(Untouched(x));
}

TEST(Solve, WithoutMemoryFailsAndKeepsNothing) {
    const Reals a = RandomReals(16);
    Reals b = RandomReals(4), x = Output(4);
    ExpectEveryAllocationFails([&] { return ZemFunc114(a, b, 4, x); });
    const Guarded<std::int64_t> pivots{0, 1, 2, 3};
    ExpectEveryAllocationFails([&] { return ZemFunc82(a, b, 4, x, pivots); });
}

// MatSolveUpperTriangular

TEST(SolveUpperTriangular, SubstitutesFromTheLastRowUpAndReadsTheTriangleOnly) {
    const Reals r{2, 1, 4, kNaN, 4, 2, kNaN, kNaN, 8}, expected{-1, 2, 3};
    Reals b{12, 14, 24}, x = Output(3);
    ASSERT_EQ(ZemFunc11(r, b, 3, x), 0);
    EXPECT_EQ(x.values(), (std::vector<double>{-1, 2, 3}));
    EXPECT_EQ(b.values(), (std::vector<double>{12, 14, 24}));
    ASSERT_EQ(ZemFunc11(r, b, 3, nullptr), 0);
    EXPECT_TRUE(SameElements(b, expected));
}

TEST(SolveUpperTriangular, AgreesWithTheTriangle) {
    for (int n : {1, 2, 9, 50}) {
        const Reals r = OfKind<double>(3, n, n);
        Reals b = RandomReals(n, 2), x = Output(n);
        ASSERT_EQ(ZemFunc11(r, b, n, x), 0);
        // Substitution is componentwise backward stable with n eps.
        EXPECT_LE(Frobenius(Dense(r, n, n) * Dense(x, n, 1) - Dense(b, n, 1)),
                  2 * n * kEps * Frobenius(Dense(r, n, n)) * Frobenius(Dense(x, n, 1)));
    }
}

TEST(SolveUpperTriangular, StopsAtAnExactZeroWithTheRowsBelowSolved) {
    const Reals r{1, 1, 1, 0, 0, 1, 0, 0, 2};
    Reals b{1, 1, 4}, x = Output(3);
    EXPECT_EQ(ZemFunc11(r, b, 3, x), -20041);
    EXPECT_EQ(x[2], 2);
    EXPECT_EQ(x[1], kUnwritten);
    EXPECT_EQ(x[0], kUnwritten);
    const Reals negative{-0.0};
    EXPECT_EQ(ZemFunc11(negative, b, 1, x), -20041);
    const Reals tiny{5e-324};
    EXPECT_EQ(ZemFunc11(tiny, b, 1, x), 0) << "only an exact zero is singular";
}

// MatSolveUnitLower

TEST(SolveUnitLower, InterchangesInOrderThenSubstitutes) {
    // P b: 0 with 2, then 1 with 2: {30, 10, 20}.
    const Reals l{kNaN, kNaN, kNaN, 2, kNaN, kNaN, 1, -1, kNaN};
    const Guarded<std::int64_t> pivots{2, 2, 2};
    Reals b{10, 20, 30}, x = Output(3);
    ASSERT_EQ(ZemFunc82(l, b, 3, x, pivots), 0);
    EXPECT_EQ(x.values(), (std::vector<double>{30, -50, -60}));
    EXPECT_EQ(b.values(), (std::vector<double>{10, 20, 30}));
    ASSERT_EQ(ZemFunc82(l, b, 3, nullptr, pivots), 0);
    EXPECT_TRUE(SameElements(b, x));
}

TEST(SolveUnitLower, WithoutPivotsInterchangesNothing) {
    const Reals l{1, 0, 3, 1};
    Reals b{1, 5}, x = Output(2);
    ASSERT_EQ(ZemFunc82(l, b, 2, x, nullptr), 0);
    EXPECT_EQ(x.values(), (std::vector<double>{1, 2}));
}

TEST(SolveUnitLower, RefusesPivotsThatDoNotNarrowOrPointOutside) {
    const Reals l{1, 0, 3, 1};
    Reals b{1, 5}, x = Output(2);
    EXPECT_EQ(ZemFunc82(l, b, 2, x, Guarded<std::int64_t>{0, kTooLarge}), -20046);
    EXPECT_EQ(ZemFunc82(l, b, 2, x, Guarded<std::int64_t>{0, 2}), -20017);
    EXPECT_EQ(ZemFunc82(l, b, 2, x, Guarded<std::int64_t>{-1, 1}), -20017);
    EXPECT_TRUE(Untouched(x));
    EXPECT_EQ(ZemFunc82(l, b, 2, nullptr, Guarded<std::int64_t>{0, 2}), -20017);
    EXPECT_EQ(b.values(), (std::vector<double>{1, 5}));
}

TEST(SolveUnitLower, WithSolveUpperTriangularSolvesByTheFactorsOfAMatrix) {
    const int n = 20;
    const Reals a = RandomReals(n * n, 3), b = RandomReals(n, 4);
    Reals factors = a, side = b;
    Guarded<std::int64_t> pivots(n);
    for (int k = 0; k < n; ++k) {  // elimination with partial pivoting, L below and U on and above the diagonal
        int largest = k;
        for (int i = k; i < n; ++i)
            if (std::abs(factors[i * n + k]) > std::abs(factors[largest * n + k])) largest = i;
        pivots[k] = largest;
        std::swap_ranges(factors.begin() + k * n, factors.begin() + (k + 1) * n, factors.begin() + largest * n);
        for (int i = k + 1; i < n; ++i) {
            factors[i * n + k] /= factors[k * n + k];
            for (int j = k + 1; j < n; ++j) factors[i * n + j] -= factors[i * n + k] * factors[k * n + j];
        }
    }
    ASSERT_EQ(ZemFunc82(factors, side, n, nullptr, pivots), 0);
    ASSERT_EQ(ZemFunc11(factors, side, n, nullptr), 0);
    EXPECT_LE(Frobenius(Dense(a, n, n) * Dense(side, n, 1) - Dense(b, n, 1)),
              8 * n * kEps * Frobenius(Dense(a, n, n)) * Frobenius(Dense(side, n, 1)));
}

}  // namespace
}  // namespace quorvan::testing::dense

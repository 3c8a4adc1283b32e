// Systems of a named kind.
#include "tests/linalg/matrices.h"

namespace quorvan::testing::dense {
namespace {

template <class T>
struct SolveManyTest : ::testing::Test {};
TYPED_TEST_SUITE(SolveManyTest, ElementTypes, ElementNames);

// Backward stable factorisations leave |A x - b| <= c n eps |A| |x| with a small c; least squares make the residual
// orthogonal to the columns: |A^H (A x - b)| <= c n eps |A|^2 (|x| + |r| / |A|).
template <class T>
void ExpectSolves(const Guarded<T>& a, int m, int n, const Guarded<T>& b, int r, const Guarded<T>& x) {
    const Dense matrix(a, m, n), solution(x, n, r);
    const Dense residual = matrix * solution - Dense(b, m, r);
    const double scale = Frobenius(matrix), bound = 20.0 * std::max(m, n) * kEps;
    EXPECT_LE(Frobenius(Adjoint(matrix) * residual),
              bound * scale * (scale * Frobenius(solution) + Frobenius(residual) + Frobenius(Dense(b, m, r))))
        << m << " by " << n;
}

TYPED_TEST(SolveManyTest, SolvesEveryKindForSeveralRightHandSides) {
    using T = TypeParam;
    for (int kind = 0; kind <= 3; ++kind)
        for (int n : {1, 2, 3, 8, 9, 17, 40})
            for (int r : {1, 2, 9}) {
                const auto a = OfKind<T>(kind, n, 10 * n + kind), b = Random<T>(n * r, n);
                auto x = Unwritten<T>(n * r);
                ASSERT_EQ(SolveMany<T>(a, n, n, kind, b, r, x), 0) << kind << " " << n;
                const Dense residual = Dense(a, n, n) * Dense(x, n, r) - Dense(b, n, r);
                EXPECT_LE(Frobenius(residual), 8 * n * kEps * Frobenius(Dense(a, n, n)) * Frobenius(Dense(x, n, r)))
                    << "kind " << kind << ", order " << n;
            }
}

TYPED_TEST(SolveManyTest, OfKindZeroTakesTallAndWideMatrices) {
    using T = TypeParam;
    const int shapes[][2] = {{1, 1}, {1, 5}, {5, 1}, {7, 3}, {3, 7}, {20, 12}, {12, 20}};
    for (const auto& [m, n] : shapes)
        for (int r : {1, 3}) {
            const auto a = Random<T>(m * n, m), b = Random<T>(m * r, n);
            auto x = Unwritten<T>(n * r);
            ASSERT_EQ(SolveMany<T>(a, m, n, 0, b, r, x), 0);
            ExpectSolves(a, m, n, b, r, x);
        }
}

TYPED_TEST(SolveManyTest, UnderDeterminedGivesTheMinimumNormWithoutWarningIfTheRowsAreIndependent) {
    using T = TypeParam;
    const auto a = Elements<T>({1, 1, 0, 0, 0, 1}), b = Elements<T>({2, 3});
    auto x = Unwritten<T>(3);
    ASSERT_EQ(SolveKind<T>(a, 2, 3, b, 0, x), 0);
    const double expected[] = {1, 1, 3};
    for (int i = 0; i < 3; ++i) EXPECT_NEAR(std::abs(Wide(x[i]) - Long(expected[i])), 0, 20 * kEps);
}

TYPED_TEST(SolveManyTest, UnderDeterminedWithDependentRowsWarnsOfRankAndSolvesAllTheSame) {
    using T = TypeParam;
    const auto a = Elements<T>({1, 1, 0, 2, 2, 0}), b = Elements<T>({2, 4});
    auto x = Unwritten<T>(3);
    ASSERT_EQ(SolveKind<T>(a, 2, 3, b, 0, x), 20001);
    const double expected[] = {1, 1, 0};
    for (int i = 0; i < 3; ++i) EXPECT_NEAR(std::abs(Wide(x[i]) - Long(expected[i])), 0, 40 * kEps);
}

TYPED_TEST(SolveManyTest, OfAZeroMatrixIsZeroWithTheWarning) {
    using T = TypeParam;
    const auto a = Elements<T>({0, 0, 0, 0, 0, 0}), b = Elements<T>({1, 2, 3});
    auto x = Unwritten<T>(2);
    ASSERT_EQ(SolveKind<T>(a, 3, 2, b, 0, x), 20001);
    EXPECT_EQ(Wide(x[0]), Long(0));
    EXPECT_EQ(Wide(x[1]), Long(0));
}

TYPED_TEST(SolveManyTest, CountsASingularValueAsZeroBelowItsShareOfTheLargest) {
    using T = TypeParam;
    // The share is max(m, n) eps = 2 eps; the values on both sides are a factor of 2 away from it.
    const auto b = Elements<T>({1, 1});
    auto x = Unwritten<T>(2);
    EXPECT_EQ(SolveKind<T>(Elements<T>({1, 0, 0, 4 * kEps}), 2, 2, b, 0, x), 0);
    EXPECT_NEAR(std::abs(Wide(x[1])) * 4 * kEps, 1, 1e-12);
    EXPECT_EQ(SolveKind<T>(Elements<T>({1, 0, 0, kEps}), 2, 2, b, 0, x), 20001);
    EXPECT_EQ(Wide(x[1]), Long(0));
}

TYPED_TEST(SolveManyTest, VeryWideSystemsHaveTheMinimumNorm) {
    using T = TypeParam;
    const int m = 2, n = 803, r = 2;
    const auto a = Random<T>(m * n, 3), b = Random<T>(m * r, 4);
    auto x = Unwritten<T>(n * r);
    ASSERT_EQ(SolveMany<T>(a, m, n, 0, b, r, x), 0);
    ExpectSolves(a, m, n, b, r, x);
    // In the row space: x = A^H (A A^H)^-1 b, of which the part outside is what the projector leaves.
    const Dense rows(a, m, n), x1(x, n, r);
    const Dense gram = rows * Adjoint(rows);
    const Long det = gram(0, 0) * gram(1, 1) - gram(0, 1) * gram(1, 0);
    Dense inverse(2, 2);
    inverse(0, 0) = gram(1, 1) / det, inverse(1, 1) = gram(0, 0) / det;
    inverse(0, 1) = -gram(0, 1) / det, inverse(1, 0) = -gram(1, 0) / det;
    EXPECT_LE(Frobenius(x1 - Adjoint(rows) * (inverse * (rows * x1))), 100 * kEps * Frobenius(x1));
    auto dependent = a;
    std::copy(a.begin(), a.begin() + n, dependent.begin() + n);
    EXPECT_EQ(SolveMany<T>(dependent, m, n, 0, b, r, x), 20001);
}

TYPED_TEST(SolveManyTest, OfKindOneReadsTheLowerTriangleOnly) {
    using T = TypeParam;
    const int n = 6;
    const auto a = OfKind<T>(1, n, 5), b = Random<T>(n, 6);
    auto lower = a;
    for (int i = 0; i < n; ++i)
        for (int j = i + 1; j < n; ++j) lower[i * n + j] = Element<T>(1e9, 1e9);
    auto x = Unwritten<T>(n), y = Unwritten<T>(n);
    ASSERT_EQ(SolveKind<T>(a, n, n, b, 1, x), 0);
    ASSERT_EQ(SolveKind<T>(lower, n, n, b, 1, y), 0);
    EXPECT_TRUE(SameElements(x, y));
}

TYPED_TEST(SolveManyTest, OfTriangularKindsReadsItsTriangleOnly) {
    using T = TypeParam;
    const int n = 11;
    for (int kind : {2, 3}) {
        const auto b = Random<T>(n, 6);
        auto x = Unwritten<T>(n), y = Unwritten<T>(n);
        ASSERT_EQ(SolveKind<T>(OfKind<T>(kind, n, 5), n, n, b, kind, x), 0);
        ASSERT_EQ(SolveKind<T>(OfKind<T>(kind, n, 5, kNaN), n, n, b, kind, y), 0);
        EXPECT_TRUE(SameElements(x, y));
    }
}

TYPED_TEST(SolveManyTest, OfTriangularKindsRefusesADiagonalThatIsTinyBesideTheTriangle) {
    using T = TypeParam;
    const auto b = Elements<T>({1, 1});
    for (int kind : {2, 3}) {
        const auto with = [&](double diagonal, double largest) {
            auto a = Elements<T>({1, 0, 0, diagonal});
            a[kind == 2 ? 2 : 1] = Element<T>(largest);
            auto x = Unwritten<T>(2);
            const Status status = SolveKind<T>(a, 2, 2, b, kind, x);
            EXPECT_TRUE(status == 0 || Untouched(x));
            return status;
        };
        EXPECT_EQ(with(4 * kEps, 4), -20041) << "equality counts";
        EXPECT_EQ(with(4.0001 * kEps, 4), 0);
        EXPECT_EQ(with(1, 5e15), -20041) << "the provider itself would solve this";
        EXPECT_EQ(with(1, 4e15), 0);
    }
    // The other triangle has no say.
    auto x = Unwritten<T>(2);
    EXPECT_EQ(SolveKind<T>(Elements<T>({1, 1e300, 0, 1}), 2, 2, b, 2, x), 0);
    EXPECT_EQ(SolveKind<T>(Elements<T>({1, 0, 1e300, 1}), 2, 2, b, 3, x), 0);
    EXPECT_EQ(SolveKind<T>(Elements<T>({0, 0, 0, 0}), 2, 2, b, 2, x), -20041) << "0 is at or below 0";
}

TEST(SolveMany, OfComplexTrianglesComparesSquaredModuli) {
    // |3 + 4i| = 5; both squares are exact, and equality counts.
    Records a{{3 * kEps, 4 * kEps}, {0, 0}, {3, 4}, {1, 0}}, b{{1, 0}, {1, 0}};
    Records x = RecordOutput(2);
    EXPECT_EQ(ZemFunc218(a, 2, 2, b, 2, x), -20041);
    a[0].im = 4.001 * kEps;
    EXPECT_EQ(ZemFunc218(a, 2, 2, b, 2, x), 0);
    // Below 1e-162 the squares vanish, and with them the difference between a good triangle and a singular one.
    Records small{{1e-170, 0}};
    EXPECT_EQ(ZemFunc218(small, 1, 1, b, 2, x), -20041);
    Reals real{1e-170}, one{1}, y = Output(1);
    EXPECT_EQ(ZemFunc197(real, 1, 1, one, 2, y), 0);
}

TYPED_TEST(SolveManyTest, ChecksSquarenessThenSizesThenKindThenElements) {
    using T = TypeParam;
    const auto a = Elements<T>({1, 0, 0, 1}), b = Elements<T>({1, 1});
    const auto bad = Elements<T>({kNaN, 0, 0, 1});
    auto x = Unwritten<T>(2);
    for (int kind : {1, 2, 3}) {
        EXPECT_EQ(SolveMany<T>(a, 2, 1, kind, b, 1, x), -20040);
        EXPECT_EQ(SolveMany<T>(a, 0, 1, kind, b, 1, x), -20040) << "before the sizes";
        EXPECT_EQ(SolveMany<T>(a, 0, 0, kind, b, 1, x), -20003);
        EXPECT_EQ(SolveMany<T>(a, -1, -1, kind, b, 1, x), -20003);
        EXPECT_EQ(SolveMany<T>(a, 2, 2, kind, b, 0, x), -20003);
    }
    for (Size size : {-1, 0}) {
        EXPECT_EQ(SolveMany<T>(a, size, 2, 0, b, 1, x), -20003);
        EXPECT_EQ(SolveMany<T>(a, 2, size, 0, b, 1, x), -20003);
        EXPECT_EQ(SolveMany<T>(a, 2, 2, 0, b, size, x), -20003);
        EXPECT_EQ(SolveKind<T>(a, size, 2, b, 0, x), -20003);
        EXPECT_EQ(SolveMany<T>(a, 2, size, 4, b, 1, x), -20003) << "before the kind";
    }
    EXPECT_EQ(SolveMany<T>(a, 1, 2, 4, b, 1, x), -20061) << "an unknown kind asks for no shape";
    EXPECT_EQ(SolveMany<T>(bad, 2, 2, 4, b, 1, x), -20061);
    EXPECT_EQ(SolveKind<T>(a, 2, 2, b, UINT32_MAX, x), -20061);
    EXPECT_EQ(SolveKind<T>(bad, 2, 2, b, 0, x), -20068);
    EXPECT_EQ(SolveKind<T>(bad, 2, 2, b, 1, x), -20068);
    EXPECT_TRUE(Untouched(x));
}

TYPED_TEST(SolveManyTest, NarrowsEverySizeAndEveryElementCountFirst) {
    using T = TypeParam;
    const auto a = Elements<T>({1}), b = Elements<T>({1});
    auto x = Unwritten<T>(1);
    EXPECT_EQ(SolveMany<T>(a, kTooLarge, 1, 4, b, 1, x), -20046);
    EXPECT_EQ(SolveMany<T>(a, 1, kTooLarge, 2, b, 1, x), -20046);
    EXPECT_EQ(SolveMany<T>(a, 0, 1, 0, b, -kTooLarge - 1, x), -20046);
    EXPECT_EQ(SolveKind<T>(a, kTooLarge, 1, b, 0, x), -20046);
    EXPECT_EQ(SolveKind<T>(a, 1, kTooLarge, b, 0, x), -20046);
    EXPECT_EQ(SolveMany<T>(a, 65536, 32768, 0, b, 1, x), -20046) << "2^31 elements";
    EXPECT_EQ(SolveMany<T>(a, 65536, 1, 0, b, 32768, x), -20046);
    EXPECT_EQ(SolveMany<T>(a, 1, 65536, 0, b, 32768, x), -20046);
    EXPECT_TRUE(Untouched(x));
}

TYPED_TEST(SolveManyTest, ScreensBothSidesOfKindZeroAndTheMatrixOfKindOne) {
    using T = TypeParam;
    const auto good = Elements<T>({2, 0, 0, 2}), b = Elements<T>({1, 1});
    for (double refused : kRefused) {
        auto bad = good;
        bad[3] = Element<T>(refused, 0);
        auto badSide = b;
        badSide[1] = Element<T>(0, refused);
        if (std::is_same_v<T, double>) badSide[1] = Element<T>(refused);
        auto x = Unwritten<T>(2);
        EXPECT_EQ(SolveKind<T>(bad, 2, 2, b, 0, x), -20068) << refused;
        EXPECT_EQ(SolveKind<T>(bad, 2, 2, b, 1, x), -20068) << refused;
        EXPECT_EQ(SolveKind<T>(good, 2, 2, badSide, 0, x), -20068) << refused;
        EXPECT_TRUE(Untouched(x));
        EXPECT_EQ(SolveKind<T>(good, 2, 2, badSide, 1, x), 0) << "only the matrix is handed to a factorisation";
        EXPECT_EQ(SolveKind<T>(good, 2, 2, badSide, 2, x), 0);
    }
}

TYPED_TEST(SolveManyTest, OfAnIndefiniteMatrixOfKindOneFailsWithNothingWritten) {
    using T = TypeParam;
    const auto a = Elements<T>({1, 2, 2, 1}), b = Elements<T>({1, 1});
    auto x = Unwritten<T>(2);
    EXPECT_EQ(SolveKind<T>(a, 2, 2, b, 1, x), -20071);
    EXPECT_TRUE(Untouched(x));
}

TYPED_TEST(SolveManyTest, WorksWhereTheSolutionTakesThePlaceOfAnInput) {
    using T = TypeParam;
    const int n = 5;
    for (int kind = 0; kind <= 3; ++kind) {
        const auto a = OfKind<T>(kind, n, 7), b = Random<T>(n * n, 8);
        auto x = Unwritten<T>(n * n), overA = a, overB = b;
        ASSERT_EQ(SolveMany<T>(a, n, n, kind, b, n, x), 0);
        ASSERT_EQ(SolveMany<T>(overA, n, n, kind, b, n, overA), 0);
        ASSERT_EQ(SolveMany<T>(a, n, n, kind, overB, n, overB), 0);
        EXPECT_TRUE(SameElements(x, overA)) << kind;
        EXPECT_TRUE(SameElements(x, overB)) << kind;
    }
}

TYPED_TEST(SolveManyTest, LeavesItsInputsAlone) {
    using T = TypeParam;
    for (int kind = 0; kind <= 3; ++kind) {
        const auto a = OfKind<T>(kind, 9, 7), b = Random<T>(9, 8);
        const auto keptA = a, keptB = b;
        auto x = Unwritten<T>(9);
        ASSERT_EQ(SolveKind<T>(a, 9, 9, b, kind, x), 0);
        EXPECT_TRUE(SameElements(a, keptA));
        EXPECT_TRUE(SameElements(b, keptB));
    }
}

TYPED_TEST(SolveManyTest, WithoutMemoryFailsAndKeepsNothing) {
    using T = TypeParam;
    for (int kind = 0; kind <= 3; ++kind) {
        const auto a = OfKind<T>(kind, 4, 7), b = Random<T>(8, 8);
        auto x = Unwritten<T>(8);
        ExpectEveryAllocationFails([&] { return SolveMany<T>(a, 4, 4, kind, b, 2, x); });
        ExpectEveryAllocationFails([&] { return SolveKind<T>(a, 4, 4, b, kind, x); });
    }
    const auto a = Random<T>(740, 1), b = Random<T>(1, 1);
    auto x = Unwritten<T>(740);
    ExpectEveryAllocationFails([&] { return SolveKind<T>(a, 1, 740, b, 0, x); });
    auto side = b;
    ExpectEveryAllocationFails([&] {
        side = b;
        return SolveKind<T>(a, 1, 1, side, 0, side);
    });
}

}  // namespace
}  // namespace quorvan::testing::dense

// Inverses and pseudo-inverses.
#include "tests/linalg/matrices.h"

namespace quorvan::testing::dense {
namespace {

template <class T>
struct InverseKindTest : ::testing::Test {};
TYPED_TEST_SUITE(InverseKindTest, ElementTypes, ElementNames);

// A computed inverse has |X A - I| or |A X - I| <= c n eps |X| |A| (N. J. Higham, Accuracy and Stability of Numerical
// Algorithms, chapter 14).
template <class T>
void ExpectInverse(const Guarded<T>& a, int n, const Guarded<T>& x) {
    const Dense matrix(a, n, n), inverse(x, n, n);
    EXPECT_LE(Frobenius(matrix * inverse - IdentityOf(n)), 8 * n * kEps * Frobenius(matrix) * Frobenius(inverse)) << n;
}

TYPED_TEST(InverseKindTest, TimesTheMatrixIsTheIdentity) {
    using T = TypeParam;
    for (int kind = 0; kind <= 3; ++kind)
        for (int n : {1, 2, 3, 8, 17, 40}) {
            auto a = OfKind<T>(kind, n, n + kind);
            const auto kept = a;
            auto x = Unwritten<T>(n * n);
            ASSERT_EQ(InverseKind<T>(a, n, kind, x), 0);
            EXPECT_TRUE(SameElements(a, kept));
            ExpectInverse(a, n, x);
        }
}

TYPED_TEST(InverseKindTest, WithoutAPlaceForTheResultOverwritesTheMatrix) {
    using T = TypeParam;
    for (int kind = 0; kind <= 3; ++kind) {
        auto a = OfKind<T>(kind, 9, 3), same = a;
        auto x = Unwritten<T>(81);
        ASSERT_EQ(InverseKind<T>(a, 9, kind, x), 0);
        ASSERT_EQ(InverseKind<T>(a, 9, kind, nullptr), 0);
        ASSERT_EQ(InverseKind<T>(same, 9, kind, same), 0);
        EXPECT_TRUE(SameElements(a, x)) << kind;
        EXPECT_TRUE(SameElements(same, x)) << kind;
    }
}

TYPED_TEST(InverseKindTest, OfKindOneReadsTheUpperTriangleAndIsExactlyHermitian) {
    using T = TypeParam;
    const int n = 7;
    auto a = OfKind<T>(1, n, 5), upper = a;
    for (int i = 0; i < n; ++i)
        for (int j = 0; j < i; ++j) upper[i * n + j] = Element<T>(1e9, 1e9);
    auto x = Unwritten<T>(n * n), y = Unwritten<T>(n * n);
    ASSERT_EQ(InverseKind<T>(a, n, 1, x), 0);
    ASSERT_EQ(InverseKind<T>(upper, n, 1, y), 0);
    EXPECT_TRUE(SameElements(x, y));
    for (int i = 0; i < n; ++i)
        for (int j = 0; j < i; ++j) EXPECT_EQ(Wide(x[i * n + j]), std::conj(Wide(x[j * n + i])));
}

TYPED_TEST(InverseKindTest, OfTriangularKindsReadsItsTriangleAndClearsTheOther) {
    using T = TypeParam;
    const int n = 7;
    for (int kind : {2, 3}) {
        auto clean = OfKind<T>(kind, n, 5), rest = OfKind<T>(kind, n, 5, kNaN);
        auto x = Unwritten<T>(n * n);
        ASSERT_EQ(InverseKind<T>(clean, n, kind, x), 0);
        ASSERT_EQ(InverseKind<T>(rest, n, kind, nullptr), 0) << "these kinds are not screened";
        EXPECT_TRUE(SameElements(x, rest)) << kind;
    }
}

TYPED_TEST(InverseKindTest, OfSingularMatricesWritesNothing) {
    using T = TypeParam;
    const auto zeroPivot = Elements<T>({1, 2, 2, 4}), zeroDiagonal = Elements<T>({1, 0, 0, 0});
    for (int kind : {0, 2, 3}) {
        auto a = kind == 0 ? zeroPivot : zeroDiagonal;
        const auto kept = a;
        auto x = Unwritten<T>(4);
        EXPECT_EQ(InverseKind<T>(a, 2, kind, x), -20041);
        EXPECT_TRUE(Untouched(x));
        EXPECT_EQ(InverseKind<T>(a, 2, kind, nullptr), -20041);
        EXPECT_TRUE(SameElements(a, kept));
    }
    auto indefinite = Elements<T>({1, 2, 2, 1});
    auto x = Unwritten<T>(4);
    EXPECT_EQ(InverseKind<T>(indefinite, 2, 1, x), -20071);
    EXPECT_TRUE(Untouched(x));
}

TYPED_TEST(InverseKindTest, ChecksSizesThenKindThenElements) {
    using T = TypeParam;
    auto a = Elements<T>({kNaN});
    auto x = Unwritten<T>(1);
    EXPECT_EQ(InverseKind<T>(a, kTooLarge, 7, x), -20046);
    EXPECT_EQ(InverseKind<T>(a, 46341, 0, x), -20046);
    for (Size n : {-1, 0}) EXPECT_EQ(InverseKind<T>(a, n, 7, x), -20003);
    for (int kind : {-1, 4, INT32_MIN, INT32_MAX}) EXPECT_EQ(InverseKind<T>(a, 1, kind, x), -20061);
    for (double refused : kRefused) {
        a[0] = Element<T>(1, refused);
        if (std::is_same_v<T, double>) a[0] = Element<T>(refused);
        EXPECT_EQ(InverseKind<T>(a, 1, 0, x), -20068);
        EXPECT_EQ(InverseKind<T>(a, 1, 1, x), -20068);
    }
    EXPECT_TRUE(Untouched(x));
    for (double passed : kBarelyPassed) {
        a[0] = Element<T>(passed);
        EXPECT_EQ(InverseKind<T>(a, 1, 0, x), 0) << passed;
    }
}

TYPED_TEST(InverseKindTest, WithoutMemoryFailsAndKeepsNothing) {
    using T = TypeParam;
    for (int kind = 0; kind <= 3; ++kind) {
        auto a = OfKind<T>(kind, 4, 3);
        auto x = Unwritten<T>(16);
        ExpectEveryAllocationFails([&] { return InverseKind<T>(a, 4, kind, x); });
    }
}

// MatInverse

TEST(Inverse, IsThatOfKindZeroWithoutTheScreen) {
    for (int n : {1, 2, 5, 30}) {
        Reals a = RandomReals(n * n, n), x = Output(n * n), y = Output(n * n);
        ASSERT_EQ(ZemFunc105(a, n, x), 0);
        ASSERT_EQ(ZemFunc198(a, n, 0, y), 0);
        EXPECT_TRUE(SameElements(x, y));
        ASSERT_EQ(ZemFunc105(a, n, nullptr), 0);
        EXPECT_TRUE(SameElements(x, a));
    }
    Reals infinite{kInf}, x = Output(1);
    EXPECT_EQ(ZemFunc105(infinite, 1, x), 0);
    EXPECT_EQ(x[0], 0);
}

TEST(Inverse, RefusesSizesAndSingularMatrices) {
    Reals a{1, 2, 2, 4}, x = Output(4);
    for (Size n : {-1, 0}) EXPECT_EQ(ZemFunc105(a, n, x), -20003);
    EXPECT_EQ(ZemFunc105(a, kTooLarge, x), -20046);
    EXPECT_EQ(ZemFunc105(a, 2, x), -20041);
    EXPECT_TRUE(Untouched(x));
    EXPECT_EQ(ZemFunc105(a, 2, nullptr), -20041);
    EXPECT_EQ(a.values(), (std::vector<double>{1, 2, 2, 4}));
    Reals good{1, 2, 3, 4};
    ExpectEveryAllocationFails([&] { return ZemFunc105(good, 2, x); });
}

// MatPseudoInverse

template <class T>
struct PseudoInverseTest : ::testing::Test {};
TYPED_TEST_SUITE(PseudoInverseTest, ElementTypes, ElementNames);

// The four conditions of R. Penrose (1955). A relative error of eps in A moves P by about eps |A| |P|^2.
template <class T>
void ExpectPenrose(const Guarded<T>& a, int m, int n, const Guarded<T>& p) {
    const Dense matrix(a, m, n), inverse(p, n, m);
    const double size = Frobenius(matrix) * Frobenius(inverse), bound = 10 * std::max(m, n) * kEps * size;
    const Dense left = inverse * matrix, right = matrix * inverse;
    EXPECT_LE(Frobenius(matrix * left - matrix), bound * size * Frobenius(matrix));
    EXPECT_LE(Frobenius(left * inverse - inverse), bound * size * Frobenius(inverse));
    EXPECT_LE(Frobenius(left - Adjoint(left)), bound * size);
    EXPECT_LE(Frobenius(right - Adjoint(right)), bound * size);
}

TYPED_TEST(PseudoInverseTest, MeetsThePenroseConditionsOnEveryShape) {
    using T = TypeParam;
    const int shapes[][2] = {{1, 1}, {1, 6}, {6, 1}, {5, 5}, {12, 4}, {4, 12}, {30, 30}};
    for (const auto& [m, n] : shapes) {
        auto a = Random<T>(m * n, m + n);
        const auto kept = a;
        auto p = Unwritten<T>(m * n);
        ASSERT_EQ(PseudoInverse<T>(a, m, n, -1, p), 0);
        EXPECT_TRUE(SameElements(a, kept));
        ExpectPenrose(a, m, n, p);
        ASSERT_EQ(PseudoInverse<T>(a, m, n, -1, nullptr), 0);
        EXPECT_TRUE(SameElements(a, p));
    }
}

TYPED_TEST(PseudoInverseTest, MeetsThemBelowFullRank) {
    using T = TypeParam;
    const int m = 9, n = 7, r = 3;
    auto a = Rounded<T>(Dense(Random<T>(m * r, 1), m, r) * Dense(Random<T>(r * n, 2), r, n));
    auto p = Unwritten<T>(m * n);
    ASSERT_EQ(PseudoInverse<T>(a, m, n, -1, p), 0);
    ExpectPenrose(a, m, n, p);
}

TYPED_TEST(PseudoInverseTest, TakesItsToleranceAbsolutelyAndStrictly) {
    using T = TypeParam;
    const auto inverseOf = [](double tolerance) {
        auto a = Elements<T>({1024, 0, 0, 1});
        auto p = Unwritten<T>(4);
        EXPECT_EQ(PseudoInverse<T>(a, 2, 2, tolerance, p), 0);
        return std::pair(std::abs(Wide(p[0])), std::abs(Wide(p[3])));
    };
    using Pair = std::pair<long double, long double>;
    EXPECT_EQ(inverseOf(0.5), (Pair{1.0 / 1024, 1}));
    EXPECT_EQ(inverseOf(1), (Pair{1.0 / 1024, 0})) << "a value at the tolerance counts as 0";
    EXPECT_EQ(inverseOf(2000), (Pair{0, 0}));
    EXPECT_EQ(inverseOf(0), (Pair{1.0 / 1024, 1}));
    EXPECT_EQ(inverseOf(-0.0), (Pair{1.0 / 1024, 1}));
}

TYPED_TEST(PseudoInverseTest, ToleranceZeroIsNotTheDefault) {
    using T = TypeParam;
    auto a = Elements<T>({1, 0, 0, kEps});  // the default is 2 eps
    auto p = Unwritten<T>(4);
    ASSERT_EQ(PseudoInverse<T>(a, 2, 2, 0, p), 0);
    EXPECT_NEAR(static_cast<double>(std::abs(Wide(p[3]))) * kEps, 1, 1e-12);
    ASSERT_EQ(PseudoInverse<T>(a, 2, 2, -1e-300, p), 0);
    EXPECT_EQ(Wide(p[3]), Long(0));
}

TYPED_TEST(PseudoInverseTest, OfZeroIsZero) {
    using T = TypeParam;
    auto a = Elements<T>({0, 0, 0, 0, 0, 0});
    auto p = Unwritten<T>(6);
    ASSERT_EQ(PseudoInverse<T>(a, 2, 3, -1, p), 0);
    for (const T& v : p) EXPECT_EQ(Wide(v), Long(0));
}

TYPED_TEST(PseudoInverseTest, RefusesSizesAndElementsWithNothingWritten) {
    using T = TypeParam;
    auto a = Elements<T>({1, kInf});
    auto p = Unwritten<T>(2);
    for (Size bad : {-1, 0}) {
        EXPECT_EQ(PseudoInverse<T>(a, bad, 1, -1, p), -20003);
        EXPECT_EQ(PseudoInverse<T>(a, 1, bad, -1, p), -20003);
    }
    EXPECT_EQ(PseudoInverse<T>(a, kTooLarge, 1, -1, p), -20046);
    EXPECT_EQ(PseudoInverse<T>(a, 1, kTooLarge, -1, p), -20046);
    EXPECT_EQ(PseudoInverse<T>(a, 65536, 32768, -1, p), -20046);
    EXPECT_EQ(PseudoInverse<T>(a, 1, 2, -1, p), -20068);
    EXPECT_TRUE(Untouched(p));
    a[1] = Element<T>(1);
    ExpectEveryAllocationFails([&] { return PseudoInverse<T>(a, 1, 2, -1, p); });
}

}  // namespace
}  // namespace quorvan::testing::dense

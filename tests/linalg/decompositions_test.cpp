#include "linalg/decompositions.h"

#include "tests/linalg/matrices.h"

namespace quorvan::testing::dense {
namespace {

using Indices = Guarded<Size>;

Indices UnwrittenIndices(std::size_t n) { return Indices(n, Size{-77}); }
bool Untouched(const Indices& x) {
    return std::all_of(x.begin(), x.end(), [](Size v) { return v == -77; });
}
using testing::Untouched;

// The QR without a choice: method 0 of the real export.
template <class T>
Status Qr(T* a, Size m, Size n, T* q, T* r) {
    if constexpr (std::is_same_v<T, double>)
        return ZemFunc192(a, m, n, 0, q, r);
    else
        return ZemFunc228(a, m, n, q, r);
}

template <class T>
class Twins : public ::testing::Test {};

// Singular values

template <class T>
class SingularValuesOf : public Twins<T> {};
TYPED_TEST_SUITE(SingularValuesOf, ElementTypes, ElementNames);

TYPED_TEST(SingularValuesOf, SizesBelowOneAreRefusedBeforeTheModeAndTheContent) {
    using T = TypeParam;
    Guarded<T> a(4, Element<T>(kNaN));
    Guarded<T> u = Unwritten<T>(4), s = Unwritten<T>(2), v = Unwritten<T>(4);
    for (auto [m, n] : {std::pair<Size, Size>{0, 2}, {2, 0}, {-1, 2}, {2, -1}, {INT64_C(-2147483648), 1}}) {
        EXPECT_EQ(SingularValues<T>(a, m, n, s), -20003);
        EXPECT_EQ(Svd<T>(a, m, n, u, s, v), -20003);
        EXPECT_EQ(SvdMode<T>(a, m, n, 7, u, s, v), -20003);
    }
    EXPECT_EQ(SvdMode<T>(a, 2, 2, 2, u, s, v), -20061);
    EXPECT_EQ(SvdMode<T>(a, 2, 2, -1, u, s, v), -20061);
    for (auto [m, n] : {std::pair<Size, Size>{kTooLarge, 2}, {2, kTooLarge}, {-kTooLarge - 1, 1}}) {
        EXPECT_EQ(SingularValues<T>(a, m, n, s), -20046);
        EXPECT_EQ(Svd<T>(a, m, n, u, s, v), -20046);
        EXPECT_EQ(SvdMode<T>(a, m, n, 7, u, s, v), -20046);
    }
    EXPECT_EQ(Svd<T>(a, kTooManyElements, kTooManyElements, u, s, v), -20046);
    EXPECT_EQ(SvdMode<T>(a, 1, kTooManyElements, 0, u, s, v), -20046);
    EXPECT_TRUE(Untouched(u) && Untouched(s) && Untouched(v));
}

TYPED_TEST(SingularValuesOf, ScreenedMatricesWriteNothing) {
    using T = TypeParam;
    Guarded<T> u = Unwritten<T>(9), s = Unwritten<T>(3), v = Unwritten<T>(9);
    for (double bad : kRefused) {
        Guarded<T> a = Sound<T>(3);
        a[5] = Element<T>(bad);
        EXPECT_EQ(SingularValues<T>(a, 3, 3, s), -20068);
        EXPECT_EQ(Svd<T>(a, 3, 3, u, s, v), -20068);
        EXPECT_EQ(SvdMode<T>(a, 3, 3, 0, u, s, v), -20068);
    }
    EXPECT_TRUE(Untouched(u) && Untouched(s) && Untouched(v));
    ExpectScreened<T>(Sound<T>(3), [&](Guarded<T>& a) { return Svd<T>(a, 3, 3, u, s, v); });
}

TYPED_TEST(SingularValuesOf, ADiagonalAreItsMagnitudesDescending) {
    using T = TypeParam;
    Guarded<T> a(6), s = Unwritten<T>(2);
    a[0] = Element<T>(-3);
    a[4] = Element<T>(4);
    ASSERT_EQ(SingularValues<T>(a, 2, 3, s), 0);
    EXPECT_NEAR(Wide(s[0]).real(), 4, Bound(3, 4));
    EXPECT_NEAR(Wide(s[1]).real(), 3, Bound(3, 4));
    EXPECT_EQ(Wide(s[0]).imag(), 0);
    EXPECT_EQ(Wide(s[1]).imag(), 0);
}

TYPED_TEST(SingularValuesOf, ModeWithANullUIsNoErrorAndGivesSingularValuesOnlyWhateverTheMode) {
    using T = TypeParam;
    const Guarded<T> a = Random<T>(12, 3);
    Guarded<T> s = Unwritten<T>(3), other = Unwritten<T>(12), alone = Unwritten<T>(3);
    ASSERT_EQ(SingularValues<T>(a, 4, 3, alone), 0);
    for (std::int32_t mode : {0, 1, 2, -5}) {
        ASSERT_EQ(SvdMode<T>(a, 4, 3, mode, nullptr, s, other), 0);
        EXPECT_TRUE(SameElements(s, alone));
        ASSERT_EQ(SvdMode<T>(a, 4, 3, mode, other, s, nullptr), 0);
        ASSERT_EQ(SvdMode<T>(a, 4, 3, mode, nullptr, s, nullptr), 0);
    }
    EXPECT_TRUE(Untouched(other));
}

TYPED_TEST(SingularValuesOf, OutputsMayBeTheInput) {
    using T = TypeParam;
    const Guarded<T> a = Sound<T>(4);
    Guarded<T> u = Unwritten<T>(16), s = Unwritten<T>(4), v = Unwritten<T>(16);
    ASSERT_EQ(Svd<T>(a, 4, 4, u, s, v), 0);
    Guarded<T> in_u = a, in_v = a, s2 = s, other = Unwritten<T>(16);
    ASSERT_EQ(Svd<T>(in_u, 4, 4, in_u, s2, other), 0);
    EXPECT_TRUE(SameElements(in_u, u) && SameElements(other, v) && SameElements(s2, s));
    ASSERT_EQ(SvdMode<T>(in_v, 4, 4, 0, other, s2, in_v), 0);
    EXPECT_TRUE(SameElements(in_v, v) && SameElements(other, u));
}

TYPED_TEST(SingularValuesOf, EveryAllocationMayFail) {
    using T = TypeParam;
    const Guarded<T> a = Random<T>(12, 3);
    Guarded<T> u(16), s(3), v(9);
    ExpectEveryAllocationFails([&] { return SingularValues<T>(a, 4, 3, s); });
    ExpectEveryAllocationFails([&] { return Svd<T>(a, 4, 3, u, s, v); });
    ExpectEveryAllocationFails([&] { return SvdMode<T>(a, 4, 3, 0, u, s, v); });
}

// LU and Cholesky

template <class T>
class TriangularFactors : public Twins<T> {};
TYPED_TEST_SUITE(TriangularFactors, ElementTypes, ElementNames);

TYPED_TEST(TriangularFactors, RefuseSizesAndContentAndWriteNothing) {
    using T = TypeParam;
    Guarded<T> a = Unwritten<T>(9), out = Unwritten<T>(9);
    Indices pivots = UnwrittenIndices(3);
    std::uint32_t parity = 99;
    for (Size n : {Size{0}, Size{-1}}) {
        EXPECT_EQ(Lu<T>(a, n, pivots, &parity), -20003);
        EXPECT_EQ(Cholesky<T>(a, n, out), -20003);
    }
    for (Size n : {kTooLarge, kTooManyElements}) {
        EXPECT_EQ(Lu<T>(a, n, pivots, &parity), -20046);
        EXPECT_EQ(Cholesky<T>(a, n, out), -20046);
    }
    EXPECT_TRUE(Untouched(a));
    ExpectScreened<T>(Definite<T>(3), [&](Guarded<T>& m) {
        Guarded<T> fresh = Unwritten<T>(9);
        const Status status = Cholesky<T>(m, 3, fresh);
        EXPECT_TRUE(status == 0 || Untouched(fresh));
        return status;
    });
    ExpectScreened<T>(Sound<T>(3), [&](Guarded<T>& m) {
        const Guarded<T> before = m;
        const Status status = Lu<T>(m, 3, pivots, &parity);
        if (status == -20068) {
            EXPECT_TRUE(SameElements(before, m) && Untouched(pivots) && parity == 99);
        }
        return status;
    });
}

TYPED_TEST(TriangularFactors, LuOfASingularMatrixIsAWarningWithUsableFactors) {
    using T = TypeParam;
    // Rows 1 and 2 are twice and half row 0.
    Guarded<T> a(9);
    const double rows[] = {2, 4, 6, 4, 8, 12, 1, 2, 3};
    for (int i = 0; i < 9; ++i) a[i] = Element<T>(rows[i]);
    Indices pivots(3);
    std::uint32_t parity = 99;
    EXPECT_EQ(Lu<T>(a, 3, pivots, &parity), 20003);
    const double factors[] = {4, 8, 12, 0.5, 0, 0, 0.25, 0, 0};
    for (int i = 0; i < 9; ++i) EXPECT_EQ(Wide(a[i]), Wide(factors[i])) << i;
    EXPECT_EQ(pivots[0], 1);
    EXPECT_EQ(parity, 1u);
}

TYPED_TEST(TriangularFactors, LuInterchangesAreZeroBasedAndTogglesParity) {
    using T = TypeParam;
    // A cyclic shift of three rows is two interchanges.
    Guarded<T> a(9);
    a[2] = a[3] = a[7] = Element<T>(1);
    Indices pivots(3);
    std::uint32_t parity = 99;
    ASSERT_EQ(Lu<T>(a, 3, pivots, &parity), 0);
    EXPECT_EQ(pivots.values(), (std::vector<Size>{1, 2, 2}));
    EXPECT_EQ(parity, 0u);
    for (int i = 0; i < 9; ++i) EXPECT_EQ(Wide(a[i]), Wide(i % 4 == 0 ? 1 : 0)) << i;

    Guarded<T> again(9);
    again[2] = again[3] = again[7] = Element<T>(1);
    ASSERT_EQ(Lu<T>(again, 3, nullptr, &parity), 0) << "without pivots";
    EXPECT_TRUE(SameElements(a, again));
}

TYPED_TEST(TriangularFactors, LuOfTallAndWideMatricesFillsThePivots) {
    using T = TypeParam;
    for (auto [m, n] : {std::pair<int, int>{5, 3}, {3, 5}, {17, 2}}) {
        const Guarded<T> a = Random<T>(m * n, 4);
        Guarded<T> factors = a;
        Guarded<Count> pivots(std::max(m, std::min(m, n)), -1);
        std::uint32_t parity = 99;
        ASSERT_EQ(MatLu<T>(factors, m, n, pivots, &parity), 0);
        const int k = std::min(m, n);
        Guarded<T> lower(m * k), upper(k * n), permuted = a;
        std::uint32_t toggles = 0;
        for (int i = 0; i < k; ++i) {
            ASSERT_TRUE(pivots[i] >= i && pivots[i] < m);
            toggles ^= pivots[i] != i;
            for (int j = 0; j < n; ++j) std::swap(permuted[i * n + j], permuted[pivots[i] * n + j]);
        }
        for (int i = k; i < m; ++i) EXPECT_EQ(pivots[i], i);
        for (int i = 0; i < m; ++i)
            for (int j = 0; j < n; ++j) {
                if (j < std::min(i, k)) lower[i * k + j] = factors[i * n + j];
                if (i == j && i < k) lower[i * k + i] = Element<T>(1);
                if (i <= j && i < k) upper[i * n + j] = factors[i * n + j];
            }
        EXPECT_EQ(parity, toggles);
        EXPECT_LE(Misfit(lower, upper, permuted, m, k, n), Bound(std::max(m, n), 2));
    }
}

TYPED_TEST(TriangularFactors, CholeskyOfAKnownMatrixIsExact) {
    using T = TypeParam;
    // R = [2 1; 0 3]
    Guarded<T> a(4), out = Unwritten<T>(4);
    a[0] = Element<T>(4);
    a[1] = Element<T>(2);
    a[2] = Element<T>(-99);  // the lower triangle is not read
    a[3] = Element<T>(10);
    ASSERT_EQ(Cholesky<T>(a, 2, out), 0);
    const double expected[] = {2, 1, 0, 3};
    for (int i = 0; i < 4; ++i) EXPECT_EQ(Wide(out[i]), Wide(expected[i])) << i;
    ASSERT_EQ(Cholesky<T>(a, 2, nullptr), 0);
    EXPECT_TRUE(SameElements(a, out));
}

TYPED_TEST(TriangularFactors, CholeskyRefusesWhatIsNotDefiniteAndWritesNothing) {
    using T = TypeParam;
    for (double corner : {1.0, 0.5, -3.0}) {  // semidefinite, indefinite, negative
        Guarded<T> a(4), out = Unwritten<T>(4);
        a[0] = a[1] = a[2] = Element<T>(1);
        a[3] = Element<T>(corner);
        const Guarded<T> before = a;
        EXPECT_EQ(Cholesky<T>(a, 2, out), -20071);
        EXPECT_EQ(Cholesky<T>(a, 2, nullptr), -20071);
        EXPECT_TRUE(Untouched(out) && SameElements(a, before));
    }
}

TYPED_TEST(TriangularFactors, LowerCholeskyIsTheTwinOfTheUpper) {
    using T = TypeParam;
    const int n = 7;
    Guarded<T> a = Definite<T>(n), lower = Unwritten<T>(n * n), adjoint(n * n);
    ASSERT_EQ((MatCholesky<T>(a, n, false, lower)), 0);
    for (int i = 0; i < n; ++i)
        for (int j = 0; j < n; ++j) {
            adjoint[j * n + i] = lower[i * n + j];
            if constexpr (!std::is_same_v<T, double>) adjoint[j * n + i].im = -lower[i * n + j].im;
            if (j > i) {
                EXPECT_EQ(Wide(lower[i * n + j]), Wide(0));
            }
        }
    EXPECT_LE(Misfit(lower, adjoint, a, n, n, n), Bound(n, n));
}

TYPED_TEST(TriangularFactors, EveryAllocationMayFailAndLeavesTheMatrix) {
    using T = TypeParam;
    const Guarded<T> definite = Definite<T>(5);
    Guarded<T> out(25);
    Indices pivots(5);
    std::uint32_t parity;
    ExpectEveryAllocationFails([&] {
        Guarded<T> a = definite;
        const Status status = Lu<T>(a, 5, pivots, &parity);
        EXPECT_TRUE(status == 0 || SameElements(a, definite));
        return status;
    });
    ExpectEveryAllocationFails([&] {
        Guarded<T> a = definite;
        const Status status = Cholesky<T>(a, 5, nullptr);
        EXPECT_TRUE(status == 0 || SameElements(a, definite));
        return status;
    });
}

// QR

template <class T>
class QrOf : public Twins<T> {};
TYPED_TEST_SUITE(QrOf, ElementTypes, ElementNames);

TYPED_TEST(QrOf, RefusesSizesModesAndContentInThisOrder) {
    using T = TypeParam;
    Guarded<T> a = Unwritten<T>(9), q = Unwritten<T>(9), r = Unwritten<T>(9);
    Indices p = UnwrittenIndices(9);
    for (auto [m, n] : {std::pair<Size, Size>{0, 3}, {3, 0}, {-1, 3}, {3, -1}}) {
        EXPECT_EQ(Qr<T>(a, m, n, q, r), -20003);
        for (std::uint32_t mode : {0u, 1u, 9u}) EXPECT_EQ(QrPivot<T>(a, m, n, mode, 0, p, q, r), -20003);
    }
    for (auto [m, n] : {std::pair<Size, Size>{kTooLarge, 3}, {3, kTooLarge}, {kTooManyElements, kTooManyElements}}) {
        EXPECT_EQ(Qr<T>(a, m, n, q, r), -20046);
        for (std::uint32_t mode : {0u, 1u}) EXPECT_EQ(QrPivot<T>(a, m, n, mode, 1, p, q, r), -20046);
    }
    EXPECT_EQ(Qr<T>(a, kTooManyElements, 1, q, r), -20046) << "Q has too many elements";
    a[0] = Element<T>(kNaN);
    for (std::uint32_t mode : {3u, 0xFFFFFFFFu}) EXPECT_EQ(QrPivot<T>(a, 3, 3, mode, 0, p, q, r), -20061);
    EXPECT_TRUE(Untouched(q) && Untouched(r) && Untouched(p));
    for (std::uint32_t mode : {0u, 1u, 2u})
        ExpectScreened<T>(Sound<T>(3), [&](Guarded<T>& m) {
            Guarded<T> q2 = Unwritten<T>(9), r2 = Unwritten<T>(9);
            Indices p2 = UnwrittenIndices(9);
            const Status status = QrPivot<T>(m, 3, 3, mode, 0, p2, q2, r2);
            if (status != 0) {
                EXPECT_TRUE(Untouched(q2) && Untouched(r2) && Untouched(p2));
            }
            return status;
        });
    ExpectScreened<T>(Sound<T>(3), [&](Guarded<T>& m) { return Qr<T>(m, 3, 3, q, r); });
}

TYPED_TEST(QrOf, PivotModeTwoOfOneColumnIsOne) {
    using T = TypeParam;
    Guarded<T> a(3, Element<T>(2)), q(9), r(3);
    Indices p = UnwrittenIndices(1);
    ASSERT_EQ(QrPivot<T>(a, 3, 1, 2, 0, p, q, r), 0);
    EXPECT_EQ(p[0], 1);
}

TYPED_TEST(QrOf, PivotingTakesTheLargestColumnFirst) {
    using T = TypeParam;
    Guarded<T> a(6), q(4), r(6);  // columns of lengths 1, 3, 2
    a[0] = Element<T>(1);
    a[4] = Element<T>(3);
    a[2] = Element<T>(2);
    Indices p(3), matrix = UnwrittenIndices(9);
    ASSERT_EQ(QrPivot<T>(a, 2, 3, 1, 0, p, q, r), 0);
    EXPECT_EQ(p.values(), (std::vector<Size>{1, 2, 0}));
    EXPECT_NEAR(std::abs(std::complex<double>(Wide(r[0]))), 3, Bound(3, 3));
    EXPECT_NEAR(std::abs(std::complex<double>(Wide(r[4]))), 2, Bound(3, 3));
    ASSERT_EQ(QrPivot<T>(a, 2, 3, 2, 1, matrix, q, r), 0);
    EXPECT_EQ(matrix.values(), (std::vector<Size>{0, 0, 1, 1, 0, 0, 0, 1, 0}));
    ASSERT_EQ(QrPivot<T>(a, 2, 3, 0, 1, p, q, r), 0) << "no pivoting: the identity order";
    EXPECT_EQ(p.values(), (std::vector<Size>{0, 1, 2}));
}

TYPED_TEST(QrOf, NullOutputsAndAliasedOnes) {
    using T = TypeParam;
    const Guarded<T> a = Sound<T>(4);
    for (std::uint32_t mode : {0u, 1u, 2u}) {
        Guarded<T> q = Unwritten<T>(16), r = Unwritten<T>(16), input = a;
        ASSERT_EQ(QrPivot<T>(input, 4, 4, mode, 0, nullptr, q, r), 0);
        EXPECT_TRUE(SameElements(input, a)) << "with R given, the input stays";
        Guarded<T> over = a, q2 = Unwritten<T>(16);
        ASSERT_EQ(QrPivot<T>(over, 4, 4, mode, 0, nullptr, q2, nullptr), 0);
        EXPECT_TRUE(SameElements(over, r) && SameElements(q2, q));
        Guarded<T> in_q = a, r2 = Unwritten<T>(16);
        ASSERT_EQ(QrPivot<T>(in_q, 4, 4, mode, 0, nullptr, in_q, r2), 0);
        EXPECT_TRUE(SameElements(in_q, q) && SameElements(r2, r));
        Guarded<T> in_r = a;
        ASSERT_EQ(QrPivot<T>(in_r, 4, 4, mode, 0, nullptr, nullptr, in_r), 0);
        EXPECT_TRUE(SameElements(in_r, r));
    }
}

TYPED_TEST(QrOf, EveryAllocationMayFailAndLeavesTheMatrix) {
    using T = TypeParam;
    for (auto [m, n] : {std::pair<int, int>{5, 3}, {3, 5}}) {
        const Guarded<T> a = Random<T>(15, 5);
        Guarded<T> q(25);
        Indices p(25);
        for (std::uint32_t mode : {0u, 1u, 2u})
            ExpectEveryAllocationFails([&, m = m, n = n] {
                Guarded<T> over = a;
                const Status status = QrPivot<T>(over, m, n, mode, 0, p, q, nullptr);
                EXPECT_TRUE(status == 0 || SameElements(over, a));
                return status;
            });
        ExpectEveryAllocationFails([&, m = m, n = n] {
            Guarded<T> over = a, full(25);
            return Qr<T>(over, m, n, full, nullptr);
        });
    }
}

TYPED_TEST(QrOf, ATallMatrixWhoseFullQWouldHaveTooManyElementsHasItsTriangle) {
    using T = TypeParam;
    const int m = static_cast<int>(kTooManyElements);
    const Guarded<T> a(m, Element<T>(1));
    Guarded<T> input = a, r(m);
    ASSERT_EQ(Qr<T>(input, m, 1, nullptr, r), 0);
    EXPECT_NEAR(static_cast<double>(std::abs(Wide(r[0]))), std::sqrt(m), Bound(2, std::sqrt(m)));
    ASSERT_EQ(QrPivot<T>(input, m, 1, 1, 0, nullptr, nullptr, r), 0);
    EXPECT_NEAR(static_cast<double>(std::abs(Wide(r[0]))), std::sqrt(m), Bound(2, std::sqrt(m)));
    if constexpr (std::is_same_v<T, double>)
        for (std::uint32_t method : {1u, 2u}) {
            ASSERT_EQ(ZemFunc192(input, m, 1, method, nullptr, r), 0);
            // Each rotation of the chain rounds, in the same direction at worst.
            EXPECT_NEAR(std::fabs(r[0]), std::sqrt(m), 4 * m * DBL_EPSILON * std::sqrt(m));
        }
}

// Rotations

TEST(GivensQr, RefusesSizesMethodsAndContentInThisOrder) {
    Reals a(4, kNaN), q = Output(4), r = Output(4);
    for (std::uint32_t method : {0u, 1u, 2u, 3u}) {
        EXPECT_EQ(ZemFunc192(a, 0, 2, method, q, r), -20003);
        EXPECT_EQ(ZemFunc192(a, 2, -1, method, q, r), -20003);
        EXPECT_EQ(ZemFunc192(a, kTooLarge, 2, method, q, r), -20046);
        EXPECT_EQ(ZemFunc192(a, 2, 2, method, q, r), method == 3 ? -20061 : -20068);
    }
    for (std::uint32_t method : {1u, 2u}) {
        EXPECT_EQ(ZemFunc192(a, kTooManyElements, 1, method, q, r), -20046);
        ExpectScreened<double>(Sound<double>(2), [&](Reals& m) {
            Reals q2 = Output(4), r2 = Output(4);
            const Status status = ZemFunc192(m, 2, 2, method, q2, r2);
            EXPECT_TRUE(status == 0 || (Untouched(q2) && Untouched(r2)));
            return status;
        });
    }
    EXPECT_TRUE(Untouched(q) && Untouched(r));
}

TEST(GivensQr, OfThreeAndFourIsFive) {
    for (std::uint32_t method : {1u, 2u}) {
        const double larger_below[] = {3, 4}, larger_above[] = {4, 3};
        for (const double* column : {larger_below, larger_above}) {
            Reals a{column[0], column[1]}, q = Output(4), r = Output(2);
            ASSERT_EQ(ZemFunc192(a, 2, 1, method, q, r), 0);
            // A quotient by 3, a root and two products round.
            EXPECT_NEAR(r[0], 5, 8 * DBL_EPSILON * 5);
            EXPECT_NEAR(r[1], 0, 8 * DBL_EPSILON * 5);
            EXPECT_NEAR(q[0], column[0] / 5, 8 * DBL_EPSILON);
            EXPECT_NEAR(q[2], column[1] / 5, 8 * DBL_EPSILON);
            EXPECT_NEAR(std::fabs(q[1]), column[1] / 5, 8 * DBL_EPSILON);
            EXPECT_NEAR(std::fabs(q[3]), column[0] / 5, 8 * DBL_EPSILON);
        }
    }
}

TEST(GivensQr, PlainRotationsWithThreeQuartersAreExact) {
    Reals a{3, 4}, q = Output(4), r = Output(2);
    ASSERT_EQ(ZemFunc192(a, 2, 1, 1, q, r), 0);
    // u = 3/4, s = 1 / sqrt(25/16) = fl(0.8), c = fl(0.6)
    EXPECT_EQ(q.values(), (std::vector<double>{0.75 * 0.8, -0.8, 0.8, 0.75 * 0.8}));
    EXPECT_EQ(r[0], 0.75 * 0.8 * 3 + 0.8 * 4);
    EXPECT_EQ(r[1], 0.75 * 0.8 * 4 - 0.8 * 3) << "what rounding leaves stays";
}

TEST(GivensQr, AZeroColumnIsSkippedAndTheRowCountDoesNotAdvance) {
    for (std::uint32_t method : {1u, 2u}) {
        Reals a{0, 3, 1, 0, 4, 1, 0, 0, 1}, q = Output(9), r = Output(9);
        ASSERT_EQ(ZemFunc192(a, 3, 3, method, q, r), 0);
        for (int i : {0, 3, 6}) EXPECT_EQ(r[i], 0);
        EXPECT_NEAR(std::fabs(r[1]), 5, Bound(3, 5)) << "the second column has its pivot in the first row";
        EXPECT_NEAR(r[4], 0, Bound(3, 5));
        EXPECT_NEAR(r[7], 0, Bound(3, 5));
        EXPECT_GT(std::fabs(r[5]), 0.1) << "and the third in the second";
        EXPECT_NEAR(r[8], 0, Bound(3, 5));
        EXPECT_LE(Misfit(q, r, a, 3, 3, 3), Bound(3, 5));
    }
}

TEST(GivensQr, AZeroMatrixKeepsTheIdentity) {
    for (std::uint32_t method : {1u, 2u}) {
        Reals a(6), q = Output(9), r = Output(6);
        ASSERT_EQ(ZemFunc192(a, 3, 2, method, q, r), 0);
        EXPECT_EQ(r.values(), std::vector<double>(6, 0.0));
        EXPECT_EQ(q.values(), (std::vector<double>{1, 0, 0, 0, 1, 0, 0, 0, 1}));
    }
}

TEST(GivensQr, TheFirstColumnCountsNothingAsZero) {
    for (std::uint32_t method : {1u, 2u}) {
        // All its rotations are made, that of the tiny element too.
        Reals a{1, 1e-200}, q = Output(4), r = Output(2);
        ASSERT_EQ(ZemFunc192(a, 2, 1, method, q, r), 0);
        EXPECT_EQ(r[1], 0);
        EXPECT_NEAR(q[2], 1e-200, 1e-215);
        EXPECT_NEAR(q[1], -1e-200, 1e-215);
    }
}

TEST(GivensQr, LaterColumnsLeaveWhatIsBelowTheirLimit) {
    for (std::uint32_t method : {1u, 2u}) {
        // Column 1 has norm 1 and 4 rows left: the limit is epsilon / sqrt(4).
        for (auto [element, rotated] :
             {std::pair<double, bool>{0.47 * DBL_EPSILON, false}, {0.53 * DBL_EPSILON, true}}) {
            Reals a(10), q = Output(25), r = Output(10);
            a[0] = a[3] = 1;
            a[9] = element;
            ASSERT_EQ(ZemFunc192(a, 5, 2, method, q, r), 0);
            if (rotated) {
                EXPECT_NE(r[9], element);
                EXPECT_NE(q[4 * 5 + 1], 0);
            } else {
                EXPECT_EQ(r[9], element) << "neither rotated nor cleared";
                EXPECT_EQ(q[4 * 5 + 1], 0);
            }
        }
    }
}

TEST(GivensQr, AColumnWithNothingAboveItsLimitIsClearedBelowThePivots) {
    for (std::uint32_t method : {1u, 2u}) {
        Reals a{1, 1, 1, 0, 1e-20, 1, 0, -1e-20, 0}, q = Output(9), r = Output(9);
        ASSERT_EQ(ZemFunc192(a, 3, 3, method, q, r), 0);
        EXPECT_EQ(r[4], 0);
        EXPECT_EQ(r[7], 0);
        EXPECT_NEAR(std::fabs(r[5]), 1, Bound(3)) << "the row count stayed: the next column has its pivot here";
    }
}

TEST(GivensQr, NullOutputsAndAliasedOnes) {
    const Reals a = Sound<double>(5);
    for (std::uint32_t method : {0u, 1u, 2u}) {
        Reals q = Output(25), r = Output(25), input = a;
        ASSERT_EQ(ZemFunc192(input, 5, 5, method, q, r), 0);
        EXPECT_TRUE(SameElements(input, a));
        Reals over = a, q2 = Output(25);
        ASSERT_EQ(ZemFunc192(over, 5, 5, method, q2, nullptr), 0);
        EXPECT_TRUE(SameElements(over, r) && SameElements(q2, q));
        Reals in_q = a, r2 = Output(25);
        ASSERT_EQ(ZemFunc192(in_q, 5, 5, method, in_q, r2), 0);
        EXPECT_TRUE(SameElements(in_q, q) && SameElements(r2, r));
        Reals alone = a;
        ASSERT_EQ(ZemFunc192(alone, 5, 5, method, nullptr, alone), 0);
        EXPECT_TRUE(SameElements(alone, r));
    }
}

TEST(GivensQr, EveryAllocationMayFailAndLeavesTheMatrix) {
    const Reals a = Sound<double>(4);
    for (std::uint32_t method : {0u, 1u, 2u})
        ExpectEveryAllocationFails([&] {
            Reals over = a, q(16);
            const Status status = ZemFunc192(over, 4, 4, method, q, nullptr);
            EXPECT_TRUE(status == 0 || SameElements(over, a));
            return status;
        });
}

// Hessenberg form

template <class T>
class HessenbergOf : public Twins<T> {};
TYPED_TEST_SUITE(HessenbergOf, ElementTypes, ElementNames);

TYPED_TEST(HessenbergOf, RefusesSizesLimitsAndContentInThisOrder) {
    using T = TypeParam;
    Guarded<T> a = Unwritten<T>(9), h = Unwritten<T>(9), q = Unwritten<T>(9);
    for (Size n : {Size{0}, Size{-4}}) EXPECT_EQ(Hessenberg<T>(a, n, h, q), -20003);
    for (Size n : {kTooLarge, kTooManyElements}) EXPECT_EQ(Hessenberg<T>(a, n, h, q), -20046);
    a[4] = Element<T>(kNaN);
    EXPECT_EQ(MatHessenberg<T>(a, 0, 0, 0, h, q), -20003);
    for (auto [low, high] : {std::pair<Count, Count>{-1, 2}, {2, 1}, {0, 3}, {3, 3}})
        EXPECT_EQ((MatHessenberg<T>(a, 3, low, high, h, q)), -20017);
    EXPECT_EQ(MatHessenberg<T>(a, 3, 1, 1, h, q), -20068);
    EXPECT_TRUE(Untouched(h) && Untouched(q));
    ExpectScreened<T>(Sound<T>(3), [&](Guarded<T>& m) { return Hessenberg<T>(m, 3, h, q); });
}

TYPED_TEST(HessenbergOf, WhatHasTheFormStays) {
    using T = TypeParam;
    for (int n : {1, 2}) {
        const Guarded<T> a = Random<T>(n * n, 6);
        Guarded<T> input = a, h = Unwritten<T>(n * n), q = Unwritten<T>(n * n);
        ASSERT_EQ(Hessenberg<T>(input, n, h, q), 0);
        if constexpr (std::is_same_v<T, double>) {
            EXPECT_TRUE(SameElements(h, a));
            for (int i = 0; i < n * n; ++i) EXPECT_EQ(q[i], i % (n + 1) == 0 ? 1 : 0);
        }
        EXPECT_TRUE(SameElements(input, a));
    }
}

TYPED_TEST(HessenbergOf, TrianglesOutsideTheLimitsStay) {
    using T = TypeParam;
    const int n = 6, low = 1, high = 4;
    Guarded<T> a = Random<T>(n * n, 7), h = Unwritten<T>(n * n), q = Unwritten<T>(n * n);
    for (int i = 1; i < n; ++i) a[i * n] = Element<T>(0);
    for (int j = 0; j < n - 1; ++j) a[(n - 1) * n + j] = Element<T>(0);
    ASSERT_EQ((MatHessenberg<T>(a, n, low, high, h, q)), 0);
    Guarded<T> left(n * n), right(n * n);
    EXPECT_EQ(Wide(h[0]), Wide(a[0]));
    EXPECT_EQ(Wide(h[n * n - 1]), Wide(a[n * n - 1]));
    EXPECT_EQ(Wide(q[0]), Wide(1));
    // A Q = Q H
    for (int i = 0; i < n; ++i)
        for (int j = 0; j < n; ++j) {
            Long difference = 0;
            for (int k = 0; k < n; ++k)
                difference += Wide(a[i * n + k]) * Wide(q[k * n + j]) - Wide(q[i * n + k]) * Wide(h[k * n + j]);
            EXPECT_LE(std::abs(difference), Bound(n, 2));
            if (i > j + 1) {
                EXPECT_EQ(Wide(h[i * n + j]), Wide(0));
            }
        }
}

TYPED_TEST(HessenbergOf, NullAndAliasedOutputsAndEveryFailingAllocation) {
    using T = TypeParam;
    const Guarded<T> a = Sound<T>(5);
    Guarded<T> input = a, h = Unwritten<T>(25), q = Unwritten<T>(25);
    ASSERT_EQ(Hessenberg<T>(input, 5, h, q), 0);
    Guarded<T> over = a, q2(25);
    ASSERT_EQ(Hessenberg<T>(over, 5, nullptr, q2), 0);
    EXPECT_TRUE(SameElements(over, h) && SameElements(q2, q) && SameElements(input, a));
    Guarded<T> in_h = a, in_q = a, h2(25);
    ASSERT_EQ(Hessenberg<T>(in_h, 5, in_h, q2), 0);
    ASSERT_EQ(Hessenberg<T>(in_q, 5, h2, in_q), 0);
    EXPECT_TRUE(SameElements(in_h, h) && SameElements(in_q, q) && SameElements(h2, h));
    ExpectEveryAllocationFails([&] {
        Guarded<T> m = a;
        const Status status = Hessenberg<T>(m, 5, nullptr, q2);
        EXPECT_TRUE(status == 0 || SameElements(m, a));
        return status;
    });
}

// Balancing

template <class T>
class BalanceOf : public Twins<T> {};
TYPED_TEST_SUITE(BalanceOf, ElementTypes, ElementNames);

TYPED_TEST(BalanceOf, RefusesSizesJobsAndContentInThisOrder) {
    using T = TypeParam;
    Guarded<T> a = Unwritten<T>(9), out = Unwritten<T>(9);
    Reals scale = Output(3);
    Size low = -77, high = -77;
    for (Size n : {Size{0}, Size{-4}}) EXPECT_EQ(Balance<T>(a, n, 4, &low, &high, scale, out), -20003);
    for (Size n : {kTooLarge, kTooManyElements}) EXPECT_EQ(Balance<T>(a, n, 3, &low, &high, scale, out), -20046);
    a[4] = Element<T>(kNaN);
    for (std::uint32_t job : {4u, 0xFFFFFFFFu}) EXPECT_EQ(Balance<T>(a, 3, job, &low, &high, scale, out), -20061);
    for (std::uint32_t job : {0u, 1u, 2u, 3u}) EXPECT_EQ(Balance<T>(a, 3, job, &low, &high, scale, out), -20068);
    EXPECT_TRUE(Untouched(out) && Untouched(scale));
    EXPECT_EQ(low, -77);
    EXPECT_EQ(high, -77);
    ExpectScreened<T>(Sound<T>(3), [&](Guarded<T>& m) { return Balance<T>(m, 3, 3, &low, &high, scale, out); });
}

TYPED_TEST(BalanceOf, WhatIsBalancedStaysWithScalesOfOne) {
    using T = TypeParam;
    for (std::uint32_t job : {0u, 1u, 2u, 3u}) {
        Guarded<T> a(9, Element<T>(1)), out = Unwritten<T>(9);
        Reals scale = Output(3);
        Size low = -77, high = -77;
        ASSERT_EQ(Balance<T>(a, 3, job, &low, &high, scale, out), 0);
        EXPECT_TRUE(SameElements(a, out));
        EXPECT_EQ(scale.values(), std::vector<double>(3, 1.0));
        EXPECT_EQ(low, 0);
        EXPECT_EQ(high, 2);
    }
}

TYPED_TEST(BalanceOf, ScalesByPowersOfTwo) {
    using T = TypeParam;
    Guarded<T> a(4, Element<T>(1));
    a[1] = Element<T>(0x1p+20);
    a[2] = Element<T>(0x1p-20);
    Reals scale = Output(2);
    Size low, high;
    ASSERT_EQ(Balance<T>(a, 2, 2, &low, &high, scale, nullptr), 0);
    // Over the input, exactly: the products of the off-diagonal elements and the diagonal stay, the rest comes near.
    EXPECT_EQ(Wide(a[0]), Wide(1));
    EXPECT_EQ(Wide(a[3]), Wide(1));
    EXPECT_EQ(Wide(a[1]) * Wide(a[2]), Wide(1));
    EXPECT_EQ(Wide(a[1]).real(), 0x1p+20 * scale[1] / scale[0]);
    EXPECT_LE(std::fabs(std::log2(scale[1] / scale[0]) + 20), 2);
}

TYPED_TEST(BalanceOf, BackRefusesWhatLeavesTheMatrix) {
    using T = TypeParam;
    Guarded<T> v = Sound<T>(3), out = Unwritten<T>(9);
    Reals scale{1, 1, 1};
    const auto back = [&](Size n, std::uint32_t job, std::uint32_t side, Size low, Size high) {
        return BalanceBack<T>(v, n, job, side, low, high, scale, out);
    };
    EXPECT_EQ(back(0, 9, 9, 0, 0), -20003);
    EXPECT_EQ(back(-1, 0, 0, 0, 0), -20003);
    EXPECT_EQ(back(kTooLarge, 0, 0, 0, 0), -20046);
    EXPECT_EQ(back(3, 0, 0, kTooLarge, 0), -20046);
    EXPECT_EQ(back(3, 0, 0, 0, kTooLarge), -20046);
    EXPECT_EQ(back(3, 4, 0, 0, 9), -20061);
    EXPECT_EQ(back(3, 0, 2, 0, 9), -20061);
    for (auto [low, high] : {std::pair<Size, Size>{-1, 2}, {0, 3}, {2, 1}}) EXPECT_EQ(back(3, 0, 0, low, high), -20017);
    for (double wrong : {0.0, -1.0, 4.0, 1e300, kNaN, kInf}) {
        scale[0] = wrong;
        EXPECT_EQ(back(3, 1, 0, 1, 2), -20017) << wrong;
        EXPECT_EQ(back(3, 3, 0, 1, 2), -20017) << wrong;
    }
    EXPECT_TRUE(Untouched(out));
    scale[0] = 3.0;
    EXPECT_EQ(back(3, 1, 0, 1, 2), 0);
}

TYPED_TEST(BalanceOf, BackScalesRightVectorsAndDividesLeftOnes) {
    using T = TypeParam;
    const Reals scale{3, 2, 8, 4};  // rows 0 and 2 were interchanged, then 1 and 2 scaled
    const double right[] = {8, 2, 1, 1}, left[] = {1.0 / 8, 0.5, 1, 1};
    for (std::uint32_t side : {0u, 1u}) {
        // A pointer: under the sanitizers GCC 12 reads the other array from a choice between arrays.
        const double* expected = side == 0 ? right : left;
        Guarded<T> v(16, Element<T>(1)), out = Unwritten<T>(16);
        ASSERT_EQ(BalanceBack<T>(v, 4, 3, side, 1, 2, scale, out), 0);
        for (int i = 0; i < 16; ++i) EXPECT_EQ(Wide(out[i]), Wide(expected[i / 4])) << i;
        ASSERT_EQ(BalanceBack<T>(v, 4, 3, side, 1, 2, scale, nullptr), 0);
        EXPECT_TRUE(SameElements(v, out));
    }
}

TYPED_TEST(BalanceOf, EveryAllocationMayFail) {
    using T = TypeParam;
    const Guarded<T> a = Sound<T>(4);
    Reals scale(4, 1.0);
    Size low, high;
    ExpectEveryAllocationFails([&] {
        Guarded<T> m = a;
        const Status status = Balance<T>(m, 4, 3, &low, &high, scale, nullptr);
        EXPECT_TRUE(status == 0 || SameElements(m, a));
        return status;
    });
    ExpectEveryAllocationFails([&] {
        Guarded<T> m = a;
        const Status status = BalanceBack<T>(m, 4, 2, 0, 0, 3, scale, nullptr);
        EXPECT_TRUE(status == 0 || SameElements(m, a));
        return status;
    });
}

}  // namespace
}  // namespace quorvan::testing::dense

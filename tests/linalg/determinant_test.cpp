// Determinant and trace.
#include "tests/linalg/matrices.h"

namespace quorvan::testing::dense {
namespace {

template <class T>
struct DeterminantTest : ::testing::Test {};
TYPED_TEST_SUITE(DeterminantTest, ElementTypes, ElementNames);

template <class T>
Long Determinant(const Guarded<T>& a, int n, int kind, Status expected = 0) {
    auto out = Unwritten<T>(1);
    EXPECT_EQ(DeterminantKind<T>(a, n, kind, out), expected);
    return Wide(out[0]);
}

// By expansion along the first row.
Long Expansion(const Dense& a) {
    if (a.rows == 1) return a(0, 0);
    Long sum = 0;
    for (int column = 0; column < a.cols; ++column) {
        Dense minor(a.rows - 1, a.cols - 1);
        for (int i = 1; i < a.rows; ++i)
            for (int j = 0; j < a.cols; ++j)
                if (j != column) minor(i - 1, j - (j > column)) = a(i, j);
        sum += (column % 2 ? -1.0L : 1.0L) * a(0, column) * Expansion(minor);
    }
    return sum;
}

TYPED_TEST(DeterminantTest, AgreesWithTheExpansionForEveryKind) {
    using T = TypeParam;
    for (int kind = 0; kind <= 3; ++kind)
        for (int n = 1; n <= 7; ++n)
            for (unsigned seed = 1; seed <= 4; ++seed) {
                const auto a = OfKind<T>(kind, n, seed);
                const Dense matrix(a, n, n);
                // The determinant of A + E with |E| <= c n eps |A|: by its rows, at most n |E| |A|^(n-1).
                EXPECT_LE(std::abs(Determinant(a, n, kind) - Expansion(matrix)),
                          8 * n * n * kEps * std::pow(Frobenius(matrix), n));
            }
}

TYPED_TEST(DeterminantTest, OfPermutationsIsTheirSign) {
    using T = TypeParam;
    EXPECT_EQ(Determinant(Elements<T>({0, 1, 0, 0, 0, 1, 1, 0, 0}), 3, 0), Long(1));
    EXPECT_EQ(Determinant(Elements<T>({0, 1, 0, 1, 0, 0, 0, 0, 1}), 3, 0), Long(-1));
    EXPECT_EQ(Determinant(Elements<T>({0, 0, 0, 2, 0, 0, 2, 0, 0, 2, 0, 0, 2, 0, 0, 0}), 4, 0), Long(16));
}

TYPED_TEST(DeterminantTest, OfASingularMatrixIsZeroAndNoError) {
    using T = TypeParam;
    EXPECT_EQ(Determinant(Elements<T>({1, 2, 4, 2, 4, 8, 1, 1, 1}), 3, 0), Long(0));
    EXPECT_EQ(Determinant(Elements<T>({0}), 1, 0), Long(0));
    EXPECT_EQ(Determinant(Elements<T>({0, 0, 0, 0, 0, 0, 0, 0, 0}), 3, 0), Long(0));
    EXPECT_EQ(Determinant(Elements<T>({1, 0, 0, 5, 0, 0, 7, 8, 2}), 3, 2), Long(0));
}

TYPED_TEST(DeterminantTest, OfOrderTwoIsTheClosedFormForEveryKind) {
    using T = TypeParam;
    const auto a = Elements<T>({1, 2, 3, 4}), singular = Elements<T>({3, 0.1, 0.3, 0.01});
    for (int kind = 0; kind <= 3; ++kind) {
        EXPECT_EQ(Determinant(a, 2, kind), Long(-2)) << "also of what is neither definite nor triangular";
        EXPECT_EQ(Determinant(singular, 2, kind), Long(3 * 0.01 - 0.1 * 0.3));
    }
}

TYPED_TEST(DeterminantTest, OfAMatrixWithoutCholeskyFactorsIsZeroWithTheError) {
    using T = TypeParam;
    EXPECT_EQ(Determinant(Elements<T>({1, 0, 0, 0, -1, 0, 0, 0, 1}), 3, 1, -20071), Long(0));
    EXPECT_EQ(Determinant(Elements<T>({-4}), 1, 1, -20071), Long(0));
}

TYPED_TEST(DeterminantTest, OfKindOneReadsTheUpperTriangle) {
    using T = TypeParam;
    EXPECT_EQ(Determinant(Elements<T>({4, 0, 0, 9, 1, 0, 9, 9, 16}), 3, 1), Long(64));
    EXPECT_EQ(Determinant(Elements<T>({4, 9, 0, 0, 1, 0, 0, 0, 16}), 3, 1, -20071), Long(0));
}

TYPED_TEST(DeterminantTest, OfTriangularKindsReadsTheDiagonalOnly) {
    using T = TypeParam;
    const auto a = Elements<T>({2, 9, 9, 9, 3, 9, 9, 9, -5});
    EXPECT_EQ(Determinant(a, 3, 2), Long(-30));
    EXPECT_EQ(Determinant(a, 3, 3), Long(-30));
}

TYPED_TEST(DeterminantTest, WritesNaNFirstAndChecksSizesKindAndElements) {
    using T = TypeParam;
    auto a = Elements<T>({1, 0, 0, kNaN});
    const auto isNaN = [](Long v) {
        return std::isnan(v.real()) && (std::is_same_v<T, double> || std::isnan(v.imag()));
    };
    EXPECT_TRUE(isNaN(Determinant(a, 0, 9, -20003)));
    EXPECT_TRUE(isNaN(Determinant(a, -1, 0, -20003)));
    EXPECT_TRUE(isNaN(Determinant(a, 2, 4, -20061)));
    for (int kind = 0; kind <= 3; ++kind) EXPECT_TRUE(isNaN(Determinant(a, 2, kind, -20068)));
    auto out = Unwritten<T>(1);
    EXPECT_EQ(DeterminantKind<T>(a, kTooLarge, 0, out), -20046);
    EXPECT_EQ(DeterminantKind<T>(a, 46341, 0, out), -20046);
    EXPECT_TRUE(Untouched(out)) << "a size that does not fit touches nothing";
}

TYPED_TEST(DeterminantTest, WithoutMemoryFailsAndKeepsNothing) {
    using T = TypeParam;
    auto out = Unwritten<T>(1);
    for (int kind : {0, 1}) {
        const auto a = OfKind<T>(kind, 3, 1);
        ExpectEveryAllocationFails([&] { return DeterminantKind<T>(a, 3, kind, out); });
    }
    const auto small = OfKind<T>(0, 2, 1), triangle = OfKind<T>(2, 3, 1);
    FailAllocation(0);
    EXPECT_EQ(DeterminantKind<T>(small, 2, 0, out), 0) << "order 2 takes no memory";
    EXPECT_EQ(DeterminantKind<T>(triangle, 3, 2, out), 0) << "nor do triangles";
    FailAllocation(-1);
}

TEST(Determinant, WithoutAKindIsThatOfAGeneralMatrix) {
    for (int n : {1, 2, 3, 10}) {
        const Reals a = RandomReals(n * n, n);
        Reals out = Output(1), kind = Output(1);
        ASSERT_EQ(ZemFunc55(a, n, out), 0);
        ASSERT_EQ(ZemFunc204(a, n, 0, kind), 0);
        EXPECT_TRUE(SameBits(out[0], kind[0]));
    }
    const Reals bad{kNaN};
    Reals out = Output(1);
    EXPECT_EQ(ZemFunc55(bad, 1, out), -20068);
    EXPECT_TRUE(std::isnan(out[0]));
    out[0] = 1;
    EXPECT_EQ(ZemFunc55(bad, 0, out), -20003);
    EXPECT_TRUE(std::isnan(out[0]));
    const Reals a = RandomReals(9);
    ExpectEveryAllocationFails([&] { return ZemFunc55(a, 3, out); });
}

TYPED_TEST(DeterminantTest, TraceAddsTheDiagonalInOrder) {
    using T = TypeParam;
    const auto a = Elements<T>({1e16, kNaN, kNaN, kNaN, 1, kNaN, kNaN, kNaN, -1e16});
    auto out = Unwritten<T>(1);
    ASSERT_EQ(Trace<T>(a, 3, out), 0);
    EXPECT_EQ(Wide(out[0]), Long((1e16 + 1) - 1e16));
    ASSERT_EQ(Trace<T>(a, 1, out), 0);
    EXPECT_EQ(Wide(out[0]), Long(1e16));
    auto untouched = Unwritten<T>(1);
    for (Size n : {-1, 0}) EXPECT_EQ(Trace<T>(a, n, untouched), -20003);
    EXPECT_EQ(Trace<T>(a, kTooLarge, untouched), -20046);
    EXPECT_TRUE(Untouched(untouched));
}

}  // namespace
}  // namespace quorvan::testing::dense

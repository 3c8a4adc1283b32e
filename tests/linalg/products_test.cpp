// Products of matrices and vectors, and transposition.
#include "tests/linalg/matrices.h"

namespace quorvan::testing::dense {
namespace {

template <class T>
struct ProductsTest : ::testing::Test {};
TYPED_TEST_SUITE(ProductsTest, ElementTypes, ElementNames);

// An inner product of k terms errs by at most (k + 2) eps times the sum of the magnitudes of its terms, in any order.
template <class T>
void ExpectProduct(const Dense& a, const Dense& b, const Guarded<T>& out) {
    const Dense product(out, a.rows, b.cols);
    Dense sizeA = a, sizeB = b;
    for (Long& v : sizeA.at) v = std::abs(v);
    for (Long& v : sizeB.at) v = std::abs(v);
    const Dense bound = sizeA * sizeB, difference = product - a * b;
    for (std::size_t i = 0; i < difference.at.size(); ++i)
        EXPECT_LE(std::abs(difference.at[i]), 2 * (a.cols + 2) * kEps * bound.at[i].real()) << i;
}

TYPED_TEST(ProductsTest, MultiplyAgreesWithTheSums) {
    using T = TypeParam;
    const int shapes[][3] = {{1, 1, 1}, {2, 3, 4}, {7, 1, 5}, {1, 9, 1}, {17, 16, 15}, {33, 40, 8}};
    for (const auto& [m, k, n] : shapes) {
        const auto a = Random<T>(m * k, m), b = Random<T>(k * n, n);
        auto out = Unwritten<T>(m * n);
        ASSERT_EQ(Multiply<T>(a, b, m, k, n, out), 0);
        ExpectProduct(Dense(a, m, k), Dense(b, k, n), out);
    }
}

TYPED_TEST(ProductsTest, MultiplyOverWhatItFindsDoesNotReadIt) {
    using T = TypeParam;
    const auto a = Elements<T>({1, 2, 3, 4});
    Guarded<T> out(4, Element<T>(kNaN, kNaN));
    ASSERT_EQ(Multiply<T>(a, a, 2, 2, 2, out), 0);
    EXPECT_EQ(Wide(out[0]), Long(7));
    EXPECT_EQ(Wide(out[3]), Long(22));
}

TYPED_TEST(ProductsTest, MultiplyWithoutAnInnerSizeClearsAndWithoutRowsOrColumnsDoesNothing) {
    using T = TypeParam;
    const auto a = Elements<T>({1});
    auto out = Unwritten<T>(6);
    EXPECT_EQ(Multiply<T>(a, a, 0, 5, 3, out), 0);
    EXPECT_EQ(Multiply<T>(a, a, 2, 5, 0, out), 0);
    EXPECT_EQ(Multiply<T>(a, a, 0, 0, 0, out), 0);
    EXPECT_TRUE(Untouched(out));
    EXPECT_EQ(Multiply<T>(a, a, 2, 0, 3, out), 0);
    EXPECT_TRUE(SameElements(out, Elements<T>({0, 0, 0, 0, 0, 0})));
}

TYPED_TEST(ProductsTest, MultiplyRefusesNegativeSizesAndCountsThatDoNotFit) {
    using T = TypeParam;
    const auto a = Elements<T>({1});
    auto out = Unwritten<T>(1);
    EXPECT_EQ(Multiply<T>(a, a, -1, 0, 0, out), -20004);
    EXPECT_EQ(Multiply<T>(a, a, 0, -1, 0, out), -20004);
    EXPECT_EQ(Multiply<T>(a, a, 0, 0, -1, out), -20004);
    EXPECT_EQ(Multiply<T>(a, a, -1, kTooLarge, 0, out), -20046);
    EXPECT_EQ(Multiply<T>(a, a, kTooLarge, 0, 0, out), -20046);
    EXPECT_EQ(Multiply<T>(a, a, 0, 0, kTooLarge, out), -20046);
    EXPECT_EQ(Multiply<T>(a, a, 65536, 1, 32768, out), -20046);
    EXPECT_TRUE(Untouched(out));
}

TYPED_TEST(ProductsTest, MultiplyWorksOverAnInput) {
    using T = TypeParam;
    const int n = 9;
    const auto a = Random<T>(n * n, 1), b = Random<T>(n * n, 2);
    auto out = Unwritten<T>(n * n), overA = a, overB = b, square = a, squared = Unwritten<T>(n * n);
    ASSERT_EQ(Multiply<T>(a, b, n, n, n, out), 0);
    ASSERT_EQ(Multiply<T>(overA, b, n, n, n, overA), 0);
    ASSERT_EQ(Multiply<T>(a, overB, n, n, n, overB), 0);
    EXPECT_TRUE(SameElements(out, overA));
    EXPECT_TRUE(SameElements(out, overB));
    ASSERT_EQ(Multiply<T>(a, a, n, n, n, squared), 0);
    ASSERT_EQ(Multiply<T>(square, square, n, n, n, square), 0);
    EXPECT_TRUE(SameElements(squared, square));
    EXPECT_EQ(Multiply<T>(square, b, -1, n, n, square), -20004);
    ExpectEveryAllocationFails([&] { return Multiply<T>(overA, b, n, n, n, overA); });
}

TYPED_TEST(ProductsTest, VectorMultiplyAgreesWithTheSumsAlsoOverItsInputs) {
    using T = TypeParam;
    const int shapes[][2] = {{1, 1}, {3, 5}, {5, 3}, {40, 17}, {16, 16}};
    for (const auto& [m, n] : shapes) {
        const auto a = Random<T>(m * n, m), x = Random<T>(n, n);
        Guarded<T> y(m, Element<T>(kNaN, kNaN));
        ASSERT_EQ(VectorMultiply<T>(a, x, m, n, y), 0);
        ExpectProduct(Dense(a, m, n), Dense(x, n, 1), y);
        auto overA = a;
        ASSERT_EQ(VectorMultiply<T>(overA, x, m, n, overA), 0);
        EXPECT_EQ(std::memcmp(overA.data(), y.data(), m * sizeof(T)), 0);
        if (m != n) continue;
        auto overX = x;
        ASSERT_EQ(VectorMultiply<T>(a, overX, m, n, overX), 0);
        EXPECT_TRUE(SameElements(overX, y));
        ExpectEveryAllocationFails([&] { return VectorMultiply<T>(a, overX, m, n, overX); });
    }
}

TYPED_TEST(ProductsTest, VectorOperationsRefuseSizes) {
    using T = TypeParam;
    const auto a = Elements<T>({1});
    auto out = Unwritten<T>(1);
    for (Size bad : {-1, 0}) {
        EXPECT_EQ(VectorMultiply<T>(a, a, bad, 1, out), -20003);
        EXPECT_EQ(VectorMultiply<T>(a, a, 1, bad, out), -20003);
        EXPECT_EQ(Dot<T>(a, a, bad, out), -20003);
        EXPECT_EQ(OuterProduct<T>(a, bad, a, 1, out), -20003);
        EXPECT_EQ(OuterProduct<T>(a, 1, a, bad, out), -20003);
        EXPECT_EQ(Turned<T>(out, bad, 1, nullptr), -20003);
        EXPECT_EQ(Turned<T>(out, 1, bad, nullptr), -20003);
        EXPECT_EQ(Kronecker<T>(a, a, bad, 1, 1, 1, out), -20003);
        EXPECT_EQ(Kronecker<T>(a, a, 1, bad, 1, 1, out), -20003);
        EXPECT_EQ(Kronecker<T>(a, a, 1, 1, bad, 1, out), -20003);
        EXPECT_EQ(Kronecker<T>(a, a, 1, 1, 1, bad, out), -20003);
    }
    EXPECT_EQ(VectorMultiply<T>(a, a, kTooLarge, 1, out), -20046);
    EXPECT_EQ(VectorMultiply<T>(a, a, 65536, 32768, out), -20046);
    EXPECT_EQ(Dot<T>(a, a, kTooLarge, out), -20046);
    EXPECT_EQ(OuterProduct<T>(a, kTooLarge, a, 1, out), -20046);
    EXPECT_EQ(OuterProduct<T>(a, 65536, a, 32768, out), -20046);
    EXPECT_EQ(Turned<T>(out, kTooLarge, 1, nullptr), -20046);
    EXPECT_EQ(Turned<T>(out, 65536, 32768, nullptr), -20046);
    EXPECT_EQ(Kronecker<T>(a, a, 1, 1, 1, kTooLarge, out), -20046);
    EXPECT_EQ(Kronecker<T>(a, a, 65536, 1, 32768, 1, out), -20046);
    EXPECT_EQ(Kronecker<T>(a, a, 32768, 65535, 32768, 65535, out), -20046) << "the product wraps in 64 bits";
    EXPECT_TRUE(Untouched(out));
}

TYPED_TEST(ProductsTest, DotConjugatesNothing) {
    using T = TypeParam;
    for (int n : {1, 2, 3, 100}) {
        const auto x = Random<T>(n, n), y = Random<T>(n, 7);
        auto out = Unwritten<T>(1);
        ASSERT_EQ(Dot<T>(x, y, n, out), 0);
        ExpectProduct(Dense(x, 1, n), Dense(y, n, 1), out);
    }
}

TEST(Dot, OfIWithItselfIsMinusOne) {
    const Records i{{0, 1}};
    Records out = RecordOutput(1);
    ASSERT_EQ(ZemFunc221(i, i, 1, out), 0);
    EXPECT_EQ(out[0].re, -1);
    EXPECT_EQ(out[0].im, 0);
    ASSERT_EQ(ZemFunc224(i, 1, i, 1, out), 0);
    EXPECT_EQ(out[0].re, -1);
    EXPECT_EQ(out[0].im, 0);
}

TYPED_TEST(ProductsTest, OuterProductIsAColumnTimesARowAlsoOverItsInputs) {
    using T = TypeParam;
    const auto x = Elements<T>({1, -2, 4}), y = Elements<T>({3, 5}), expected = Elements<T>({3, 5, -6, -10, 12, 20});
    auto out = Unwritten<T>(6);
    ASSERT_EQ(OuterProduct<T>(x, 3, y, 2, out), 0);
    EXPECT_TRUE(SameElements(out, expected));
    for (int which : {0, 1}) {
        Guarded<T> over(6);
        if (which == 0) {
            std::copy(x.begin(), x.end(), over.begin());
            ASSERT_EQ(OuterProduct<T>(over, 3, y, 2, over), 0);
        } else {
            std::copy(y.begin(), y.end(), over.begin());
            ASSERT_EQ(OuterProduct<T>(x, 3, over, 2, over), 0);
        }
        EXPECT_TRUE(SameElements(over, expected));
    }
    ExpectEveryAllocationFails([&] { return OuterProduct<T>(out, 3, y, 2, out); });
}

TYPED_TEST(ProductsTest, KroneckerIsTheBlockMatrixAlsoOverItsInputs) {
    using T = TypeParam;
    const int p = 2, q = 3, r = 4, s = 2;
    const auto a = Random<T>(p * q, 1), b = Random<T>(r * s, 2);
    auto out = Unwritten<T>(p * q * r * s);
    ASSERT_EQ(Kronecker<T>(a, b, p, q, r, s, out), 0);
    for (int i = 0; i < p; ++i)
        for (int j = 0; j < q; ++j)
            for (int k = 0; k < r; ++k)
                for (int l = 0; l < s; ++l)
                    EXPECT_LE(
                        std::abs(Wide(out[(i * r + k) * q * s + j * s + l]) - Wide(a[i * q + j]) * Wide(b[k * s + l])),
                        2 * kEps);
    Guarded<T> overA(out.size()), overB(out.size());
    std::copy(a.begin(), a.end(), overA.begin());
    std::copy(b.begin(), b.end(), overB.begin());
    ASSERT_EQ(Kronecker<T>(overA, b, p, q, r, s, overA), 0);
    ASSERT_EQ(Kronecker<T>(a, overB, p, q, r, s, overB), 0);
    EXPECT_TRUE(SameElements(overA, out));
    EXPECT_TRUE(SameElements(overB, out));
    ExpectEveryAllocationFails([&] { return Kronecker<T>(overA, b, p, q, r, s, overA); });
}

TYPED_TEST(ProductsTest, TransposeTurnsEveryShapeOutOfPlaceAndInPlace) {
    using T = TypeParam;
    for (int m : {1, 2, 7, 8, 9, 16, 33, 70})
        for (int n : {1, 2, 7, 8, 9, 31, 32, 33, 41}) {
            auto a = Random<T>(m * n, m);
            const auto kept = a;
            auto out = Unwritten<T>(m * n), same = a;
            ASSERT_EQ(Turned<T>(a, m, n, out), 0);
            EXPECT_TRUE(SameElements(a, kept));
            const auto expected = Rounded<T>(Adjoint(Dense(a, m, n)));
            ASSERT_TRUE(SameElements(out, expected)) << m << " by " << n;
            ASSERT_EQ(Turned<T>(a, m, n, nullptr), 0);
            EXPECT_TRUE(SameElements(a, expected));
            ASSERT_EQ(Turned<T>(same, m, n, same), 0);
            EXPECT_TRUE(SameElements(same, expected));
        }
    auto a = Random<T>(6);
    ExpectEveryAllocationFails([&] { return Turned<T>(a, 2, 3, nullptr); });
}

}  // namespace
}  // namespace quorvan::testing::dense

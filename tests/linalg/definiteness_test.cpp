// The test for positive definiteness.
#include "tests/linalg/matrices.h"

namespace quorvan::testing::dense {
namespace {

template <class T>
struct DefinitenessTest : ::testing::Test {};
TYPED_TEST_SUITE(DefinitenessTest, ElementTypes, ElementNames);

template <class T>
std::uint32_t FlagOf(const Guarded<T>& a, Size n, Status expected = 0) {
    Guarded<std::uint32_t> flag(1, 77u);
    EXPECT_EQ(IsPositiveDefinite<T>(a, n, flag), expected);
    return flag[0];
}

TYPED_TEST(DefinitenessTest, HoldsForProductsAndNotForTheirNegatives) {
    using T = TypeParam;
    for (int n : {1, 2, 5, 16, 17, 40}) {
        auto a = OfKind<T>(1, n, n);
        EXPECT_EQ(FlagOf(a, n), 1u) << n;
        for (T& v : a) Narrow(-Wide(v), v);
        EXPECT_EQ(FlagOf(a, n), 0u) << n;
    }
}

TYPED_TEST(DefinitenessTest, FailsOfAMatrixThatIsSymmetricButForOneBit) {
    using T = TypeParam;
    const int n = 35;
    const auto a = OfKind<T>(1, n, 3);
    ASSERT_EQ(FlagOf(a, n), 1u);
    const int places[][2] = {{1, 0}, {0, 34}, {34, 33}, {16, 15}, {20, 3}, {3, 20}};
    for (const auto& [i, j] : places) {
        auto bent = a;
        double& part = reinterpret_cast<double&>(bent[i * n + j]);
        part = std::nextafter(part, 9.0);
        EXPECT_EQ(FlagOf(bent, n), 0u) << i << ", " << j;
    }
}

TYPED_TEST(DefinitenessTest, OfAnUnsymmetricMatrixOrANaNIsZeroAndNoError) {
    using T = TypeParam;
    EXPECT_EQ(FlagOf(Elements<T>({2, 1, 0, 2}), 2), 0u);
    EXPECT_EQ(FlagOf(Elements<T>({2, kNaN, kNaN, 2}), 2), 0u);
    EXPECT_EQ(FlagOf(Elements<T>({kNaN, 0, 0, 2}), 2), 0u) << "a NaN differs from itself";
    EXPECT_EQ(FlagOf(Elements<T>({kInf, 1, 0, 2}), 2), 0u) << "the comparison comes before the screen";
}

TYPED_TEST(DefinitenessTest, OfASymmetricMatrixScreensTheElements) {
    using T = TypeParam;
    for (double refused : {kInf, 1.7976931348623157e308, -1.7976931348623e308})
        EXPECT_EQ(FlagOf(Elements<T>({refused, 0, 0, 2}), 2, -20068), 0u);
}

TYPED_TEST(DefinitenessTest, WantsEveryEigenvalueAboveRoundingOfTheLargest) {
    using T = TypeParam;
    EXPECT_EQ(FlagOf(Elements<T>({1, 0, 0, 2 * kEps}), 2), 1u);
    EXPECT_EQ(FlagOf(Elements<T>({1, 0, 0, kEps}), 2), 0u) << "strictly";
    EXPECT_EQ(FlagOf(Elements<T>({0, 0, 0, 0}), 2), 0u);
    EXPECT_EQ(FlagOf(Elements<T>({1, 2, 2, 1}), 2), 0u);
    EXPECT_EQ(FlagOf(Elements<T>({5e-324}), 1), 1u);
}

TEST(Definiteness, OfComplexMatricesComparesWithTheConjugate) {
    EXPECT_EQ(FlagOf(Records{{2, 0}, {0, 1}, {0, -1}, {2, 0}}, 2), 1u);
    EXPECT_EQ(FlagOf(Records{{2, 0}, {0, 1}, {0, 1}, {2, 0}}, 2), 0u) << "symmetric, not Hermitian";
    EXPECT_EQ(FlagOf(Records{{2, 1e-300}, {0, 0}, {0, 0}, {2, 0}}, 2), 0u) << "a diagonal that is not real";
}

TYPED_TEST(DefinitenessTest, RefusesSizesWithTheFlagUntouched) {
    using T = TypeParam;
    const auto a = Elements<T>({1});
    for (Size n : {-1, 0}) EXPECT_EQ(FlagOf(a, n, -20003), 77u);
    EXPECT_EQ(FlagOf(a, kTooLarge, -20046), 77u);
    EXPECT_EQ(FlagOf(a, 46341, -20046), 77u);
}

TYPED_TEST(DefinitenessTest, WithoutMemoryFailsAndKeepsNothing) {
    using T = TypeParam;
    const auto a = OfKind<T>(1, 4, 1);
    Guarded<std::uint32_t> flag(1);
    ExpectEveryAllocationFails([&] { return IsPositiveDefinite<T>(a, 4, flag); });
}

}  // namespace
}  // namespace quorvan::testing::dense

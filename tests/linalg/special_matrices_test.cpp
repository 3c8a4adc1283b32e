// Matrices built from vectors.
#include "tests/linalg/matrices.h"

namespace quorvan::testing::dense {
namespace {

template <class T>
struct BuildSpecialTest : ::testing::Test {};
TYPED_TEST_SUITE(BuildSpecialTest, ElementTypes, ElementNames);

enum : unsigned { kIdentity, kDiagonal, kToeplitz, kVandermonde, kCompanion };

TYPED_TEST(BuildSpecialTest, IdentityTakesItsOrderOnly) {
    using T = TypeParam;
    auto out = Unwritten<T>(9);
    ASSERT_EQ(BuildSpecial<T>(kIdentity, 3, nullptr, -5, nullptr, 0, out), 0);
    EXPECT_TRUE(SameElements(out, Elements<T>({1, 0, 0, 0, 1, 0, 0, 0, 1})));
}

TYPED_TEST(BuildSpecialTest, DiagonalTakesTheFirstVector) {
    using T = TypeParam;
    const auto v = Elements<T>({2, -3});
    auto out = Unwritten<T>(4);
    ASSERT_EQ(BuildSpecial<T>(kDiagonal, -1, v, 2, nullptr, -1, out), 0);
    EXPECT_TRUE(SameElements(out, Elements<T>({2, 0, 0, -3})));
}

TYPED_TEST(BuildSpecialTest, ToeplitzTakesItsDiagonalFromTheFirstVector) {
    using T = TypeParam;
    const auto column = Elements<T>({1, 2, 3}), row = Elements<T>({9, 5});
    auto out = Unwritten<T>(6);
    ASSERT_EQ(BuildSpecial<T>(kToeplitz, 0, column, 3, row, 2, out), 0);
    EXPECT_TRUE(SameElements(out, Elements<T>({1, 5, 2, 1, 3, 2})));
    auto wide = Unwritten<T>(6);
    ASSERT_EQ(BuildSpecial<T>(kToeplitz, 0, row, 2, column, 3, wide), 0);
    EXPECT_TRUE(SameElements(wide, Elements<T>({9, 2, 3, 5, 9, 2})));
}

TEST(BuildSpecial, ComplexToeplitzConjugatesNothing) {
    const Records column{{1, 2}, {3, 4}}, row{{0, 0}, {5, 6}};
    Records out = RecordOutput(4);
    ASSERT_EQ(ZemFunc227(kToeplitz, 0, column, 2, row, 2, out), 0);
    EXPECT_TRUE(SameElements(out, Records{{1, 2}, {5, 6}, {3, 4}, {1, 2}}));
}

TYPED_TEST(BuildSpecialTest, VandermondeEndsItsRowsWithOne) {
    using T = TypeParam;
    const auto v = Elements<T>({2, 0, -3});
    auto out = Unwritten<T>(9);
    ASSERT_EQ(BuildSpecial<T>(kVandermonde, 0, v, 3, nullptr, 0, out), 0);
    const double expected[] = {4, 2, 1, 0, 0, 1, 9, -3, 1};
    for (int i = 0; i < 9; ++i) EXPECT_EQ(Wide(out[i]), Long(expected[i])) << i;
}

TYPED_TEST(BuildSpecialTest, CompanionDividesByTheFirstCoefficient) {
    using T = TypeParam;
    const auto c = Elements<T>({2, -12, 22, -12});
    auto out = Unwritten<T>(9);
    ASSERT_EQ(BuildSpecial<T>(kCompanion, 0, c, 4, nullptr, 0, out), 0);
    const double expected[] = {6, -11, 6, 1, 0, 0, 0, 1, 0};
    for (int i = 0; i < 9; ++i) EXPECT_EQ(Wide(out[i]), Long(expected[i])) << i;
    auto one = Unwritten<T>(1);
    ASSERT_EQ(BuildSpecial<T>(kCompanion, 0, c, 2, nullptr, 0, one), 0);
    EXPECT_EQ(Wide(one[0]), Long(6));
}

TEST(BuildSpecial, ComplexCompanionDividesAsComplexNumbers) {
    const Records c{{0, 2}, {4, 0}};
    Records out = RecordOutput(1);
    ASSERT_EQ(ZemFunc227(kCompanion, 0, c, 2, nullptr, 0, out), 0);
    EXPECT_EQ(Wide(out[0]), Long(0, 2));
}

TYPED_TEST(BuildSpecialTest, LooksOnlyAtTheSizesItsTypeUses) {
    using T = TypeParam;
    const auto v = Elements<T>({1, 2});
    auto out = Unwritten<T>(4);
    for (Size bad : {-1, 0}) {
        EXPECT_EQ(BuildSpecial<T>(kIdentity, bad, v, 2, v, 2, out), -20003);
        EXPECT_EQ(BuildSpecial<T>(kDiagonal, 2, v, bad, v, 2, out), -20003);
        EXPECT_EQ(BuildSpecial<T>(kToeplitz, 2, v, bad, v, 2, out), -20003);
        EXPECT_EQ(BuildSpecial<T>(kToeplitz, 2, v, 2, v, bad, out), -20003);
        EXPECT_EQ(BuildSpecial<T>(kVandermonde, 2, v, bad, v, 2, out), -20003);
        EXPECT_EQ(BuildSpecial<T>(kCompanion, 2, v, bad, v, 2, out), -20006);
        EXPECT_EQ(BuildSpecial<T>(5, bad, v, bad, v, bad, out), -20061);
    }
    EXPECT_EQ(BuildSpecial<T>(kCompanion, 2, v, 1, v, 2, out), -20006);
    EXPECT_EQ(BuildSpecial<T>(UINT32_MAX, 2, v, 2, v, 2, out), -20061);
    EXPECT_TRUE(Untouched(out));
}

TYPED_TEST(BuildSpecialTest, NarrowsEverySizeUsedOrNot) {
    using T = TypeParam;
    const auto v = Elements<T>({1, 2});
    auto out = Unwritten<T>(4);
    for (unsigned type = 0; type <= 5; ++type) {
        EXPECT_EQ(BuildSpecial<T>(type, kTooLarge, v, 2, v, 2, out), -20046);
        EXPECT_EQ(BuildSpecial<T>(type, 2, v, kTooLarge, v, 2, out), -20046);
        EXPECT_EQ(BuildSpecial<T>(type, 2, v, 2, v, kTooLarge, out), -20046);
    }
    EXPECT_EQ(BuildSpecial<T>(kIdentity, 46341, v, 2, v, 2, out), -20046) << "more than 2^31 - 1 elements";
    EXPECT_EQ(BuildSpecial<T>(kDiagonal, 2, v, 46341, v, 2, out), -20046);
    EXPECT_EQ(BuildSpecial<T>(kToeplitz, 2, v, 65536, v, 32768, out), -20046);
    EXPECT_EQ(BuildSpecial<T>(kVandermonde, 2, v, 46341, v, 2, out), -20046);
    EXPECT_EQ(BuildSpecial<T>(kCompanion, 2, v, 46342, v, 2, out), -20046);
    EXPECT_TRUE(Untouched(out));
}

TYPED_TEST(BuildSpecialTest, WorksOverItsVectors) {
    using T = TypeParam;
    for (unsigned type : {kDiagonal, kToeplitz, kVandermonde, kCompanion}) {
        const auto first = Elements<T>({2, 5, 7, 1}), second = Elements<T>({3, 4, 6, 8});
        const std::size_t n = type == kCompanion ? 9 : 16;
        auto out = Unwritten<T>(n);
        ASSERT_EQ(BuildSpecial<T>(type, 0, first, 4, second, 4, out), 0);
        Guarded<T> over(n);
        std::copy(first.begin(), first.end(), over.begin());
        ASSERT_EQ(BuildSpecial<T>(type, 0, over, 4, second, 4, over), 0);
        EXPECT_TRUE(SameElements(over, out)) << type;
        if (type == kToeplitz) {
            std::copy(second.begin(), second.end(), over.begin());
            ASSERT_EQ(BuildSpecial<T>(type, 0, first, 4, over, 4, over), 0);
            EXPECT_TRUE(SameElements(over, out));
        }
        ExpectEveryAllocationFails([&] { return BuildSpecial<T>(type, 0, over, 4, second, 4, over); });
    }
}

}  // namespace
}  // namespace quorvan::testing::dense

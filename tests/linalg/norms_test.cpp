// Norms, condition numbers and ranks of matrices, norms of vectors.
#include "tests/linalg/matrices.h"

namespace quorvan::testing::dense {
namespace {

template <class T>
struct NormTest : ::testing::Test {};
TYPED_TEST_SUITE(NormTest, ElementTypes, ElementNames);

template <class T>
double NormOf(const Guarded<T>& a, Size m, Size n, unsigned selector, Status expected = 0) {
    Reals out = Output(1);
    EXPECT_EQ(Norm<T>(a, m, n, selector, out), expected);
    return out[0];
}
template <class T>
double ConditionOf(const Guarded<T>& a, Size m, Size n, unsigned selector, Status expected = 0) {
    Reals out = Output(1);
    EXPECT_EQ(ConditionNumber<T>(a, m, n, selector, out), expected);
    return out[0];
}

TYPED_TEST(NormTest, OfASmallMatrixIsWhatTheDefinitionsSay) {
    using T = TypeParam;
    const auto a = Elements<T>({3, 0, 0, 0, 4, -12});  // singular values 3 and sqrt(160)
    EXPECT_NEAR(NormOf(a, 2, 3, 0), std::sqrt(160.0), 10 * kEps * 12);
    EXPECT_EQ(NormOf(a, 2, 3, 1), 12);
    EXPECT_NEAR(NormOf(a, 2, 3, 2), 13, 4 * kEps * 13);
    EXPECT_EQ(NormOf(a, 2, 3, 3), 16);
}

TEST(Norm, OfComplexElementsTakesTheirModuli) {
    const Records a{{3, 4}, {0, -1}, {5, 12}, {0, 0}};
    EXPECT_EQ(NormOf(a, 2, 2, 1), 18);
    EXPECT_EQ(NormOf(a, 2, 2, 3), 13);
    EXPECT_NEAR(NormOf(a, 2, 2, 2), std::sqrt(195.0), 4 * kEps * 14);
}

TYPED_TEST(NormTest, OfLongRowsAndColumnsIsTheSumInOrder) {
    using T = TypeParam;
    const int shapes[][2] = {{1, 1}, {3, 300}, {300, 3}, {130, 129}, {2, 128}};
    for (const auto& [m, n] : shapes) {
        const auto a = Random<T>(m * n, m);
        double columns = 0, rows = 0;
        const auto magnitude = [&](int i, int j) {
            const T v = a[i * n + j];
            if constexpr (std::is_same_v<T, double>)
                return std::fabs(v);
            else
                return std::sqrt(v.re * v.re + v.im * v.im);
        };
        for (int j = 0; j < n; ++j) {
            double sum = 0;
            for (int i = 0; i < m; ++i) sum += magnitude(i, j);
            columns = std::max(columns, sum);
        }
        for (int i = 0; i < m; ++i) {
            double sum = 0;
            for (int j = 0; j < n; ++j) sum += magnitude(i, j);
            rows = std::max(rows, sum);
        }
        EXPECT_EQ(NormOf(a, m, n, 1), columns);
        EXPECT_EQ(NormOf(a, m, n, 3), rows);
        const double exact = Frobenius(Dense(a, m, n));
        EXPECT_NEAR(NormOf(a, m, n, 2), exact, m * n * kEps * exact);
        EXPECT_LE(NormOf(a, m, n, 0), exact * (1 + 10 * kEps * std::max(m, n)));
    }
}

TYPED_TEST(NormTest, OfFrobeniusDoesNotOverflow) {
    using T = TypeParam;
    EXPECT_NEAR(NormOf(Elements<T>({3e200, 4e200}), 1, 2, 2) / 5e200, 1, 8 * kEps);
}

TYPED_TEST(NormTest, WritesNaNFirstAndChecksSizesSelectorAndElements) {
    using T = TypeParam;
    const auto bad = Elements<T>({1, kNaN});
    for (auto call : {&NormOf<T>, &ConditionOf<T>}) {
        EXPECT_TRUE(std::isnan(call(bad, 0, 2, 9, -20003)));
        EXPECT_TRUE(std::isnan(call(bad, 1, -1, 9, -20003)));
        EXPECT_TRUE(std::isnan(call(bad, 1, 2, 4, -20061)));
        for (unsigned selector = 0; selector <= 3; ++selector)
            EXPECT_TRUE(std::isnan(call(bad, 1, 2, selector, -20068))) << "before the shape";
        EXPECT_EQ(call(bad, kTooLarge, 1, 0, -20046), kUnwritten);
        EXPECT_EQ(call(bad, 1, kTooLarge, 0, -20046), kUnwritten);
        EXPECT_EQ(call(bad, 65536, 32768, 0, -20046), kUnwritten);
    }
}

// MatConditionNumber

TYPED_TEST(NormTest, ConditionOfADiagonalMatrixIsTheRatioInEveryNorm) {
    using T = TypeParam;
    const auto a = Elements<T>({8, 0, 0, 2});
    for (unsigned selector : {0, 1, 3}) EXPECT_NEAR(ConditionOf(a, 2, 2, selector), 4, 20 * kEps);
    EXPECT_NEAR(ConditionOf(a, 2, 2, 2), std::sqrt(68.0) * std::sqrt(1 / 64.0 + 1 / 4.0), 20 * kEps);
}

TYPED_TEST(NormTest, ConditionOfASingularMatrixIsInfiniteAndNoError) {
    using T = TypeParam;
    const auto singular = Elements<T>({1, 2, 2, 4});
    for (unsigned selector : {1, 2, 3}) EXPECT_EQ(ConditionOf(singular, 2, 2, selector), kInf);
    const auto zeroColumn = Elements<T>({1, 0, 0, 0});
    for (unsigned selector : {0, 1, 2, 3}) EXPECT_EQ(ConditionOf(zeroColumn, 2, 2, selector), kInf);
    EXPECT_EQ(ConditionOf(Elements<T>({0, 0, 0}), 1, 3, 0), kInf);
}

TYPED_TEST(NormTest, ConditionInTheTwoNormTakesAnyShapeAndTheOthersASquare) {
    using T = TypeParam;
    const auto a = Elements<T>({3, 0, 0, 0, 4, 0});
    EXPECT_NEAR(ConditionOf(a, 2, 3, 0), 4.0 / 3, 10 * kEps);
    EXPECT_NEAR(ConditionOf(Elements<T>({3, 0, 0, 4, 0, 0}), 3, 2, 0), 4.0 / 3, 10 * kEps);
    for (unsigned selector : {1, 2, 3}) EXPECT_TRUE(std::isnan(ConditionOf(a, 2, 3, selector, -20040)));
}

TYPED_TEST(NormTest, WithoutMemoryNormsAndConditionsFailAndKeepNothing) {
    using T = TypeParam;
    const auto a = OfKind<T>(0, 4, 2);
    Reals out = Output(1);
    Guarded<std::int64_t> rank(1);
    ExpectEveryAllocationFails([&] { return Norm<T>(a, 4, 4, 0, out); });
    for (unsigned selector = 0; selector <= 3; ++selector)
        ExpectEveryAllocationFails([&] { return ConditionNumber<T>(a, 4, 4, selector, out); });
    ExpectEveryAllocationFails([&] { return Rank<T>(a, 4, 4, -1, rank); });
}

// MatRank

template <class T>
std::int64_t RankOf(const Guarded<T>& a, Size m, Size n, double tolerance, Status expected = 0) {
    Guarded<std::int64_t> rank(1, 77);
    EXPECT_EQ(Rank<T>(a, m, n, tolerance, rank), expected);
    return rank[0];
}

TYPED_TEST(NormTest, RankCountsTheSingularValuesStrictlyAboveAnAbsoluteTolerance) {
    using T = TypeParam;
    const auto a = Elements<T>({1024, 0, 0, 0, 1, 0});
    EXPECT_EQ(RankOf(a, 2, 3, 0.5), 2);
    EXPECT_EQ(RankOf(a, 2, 3, 1), 1);
    EXPECT_EQ(RankOf(a, 2, 3, 1024), 0);
    EXPECT_EQ(RankOf(Elements<T>({1024, 0, 0, 1, 0, 0}), 3, 2, 1), 1);
    EXPECT_EQ(RankOf(a, 2, 3, 0), 2);
    EXPECT_EQ(RankOf(a, 2, 3, kNaN), 0);
}

TYPED_TEST(NormTest, RankByDefaultForgivesRounding) {
    using T = TypeParam;
    const auto a = Rounded<T>(Dense(Random<T>(27, 1), 9, 3) * Dense(Random<T>(21, 2), 3, 7));
    EXPECT_EQ(RankOf(a, 9, 7, -1), 3);
    EXPECT_EQ(RankOf(Elements<T>({1, 0, 0, kEps}), 2, 2, -1), 1) << "the limit is 2 eps";
    EXPECT_EQ(RankOf(Elements<T>({1, 0, 0, kEps}), 2, 2, 0), 2) << "0 is not the default";
    EXPECT_EQ(RankOf(Elements<T>({1, 0, 0, 4 * kEps}), 2, 2, -1), 2);
}

TYPED_TEST(NormTest, RankOfAZeroMatrixIsZeroByDefaultToo) {
    using T = TypeParam;
    EXPECT_EQ(RankOf(Elements<T>({0, 0, 0, 0, 0, 0}), 3, 2, -1), 0);
    EXPECT_EQ(RankOf(Elements<T>({0}), 1, 1, 0), 0);
}

TYPED_TEST(NormTest, RankIsMinusOneOnAnError) {
    using T = TypeParam;
    const auto bad = Elements<T>({kInf, 1});
    EXPECT_EQ(RankOf(bad, 0, 1, -1, -20003), -1);
    EXPECT_EQ(RankOf(bad, 1, -1, -1, -20003), -1);
    EXPECT_EQ(RankOf(bad, 1, 2, -1, -20068), -1);
    EXPECT_EQ(RankOf(bad, kTooLarge, 1, -1, -20046), 77) << "nothing is touched";
    EXPECT_EQ(RankOf(bad, 65536, 65536, -1, -20046), 77);
}

// VecNorm

template <class T>
double VectorNormOf(const Guarded<T>& x, unsigned selector, double p = kNaN, Status expected = 0) {
    Reals out = Output(1);
    EXPECT_EQ(VectorNorm<T>(x, x.size(), selector, p, out), expected);
    return out[0];
}

TYPED_TEST(NormTest, OfVectorsFollowsTheSelector) {
    using T = TypeParam;
    const auto x = Elements<T>({3, -4, 0});
    EXPECT_EQ(VectorNormOf(x, 0), 7) << "the argument p is not looked at";
    EXPECT_NEAR(VectorNormOf(x, 1), 5, 5 * kEps);
    EXPECT_EQ(VectorNormOf(x, 2), 4);
    EXPECT_EQ(VectorNormOf(x, 3), 0);
    EXPECT_EQ(VectorNormOf(x, 4, 1), 7);
    EXPECT_NEAR(VectorNormOf(x, 4, 2), 5, 5 * kEps);
    EXPECT_EQ(VectorNormOf(x, 4, kInf), 4);
    EXPECT_EQ(VectorNormOf(x, 4, -kInf), 0);
    EXPECT_NEAR(VectorNormOf(x, 4, 3), std::cbrt(91.0), 10 * kEps * 4.5);
    EXPECT_NEAR(VectorNormOf(x, 4, 0.5), std::pow(2 + std::sqrt(3.0), 2), 20 * kEps * 14);
    EXPECT_EQ(VectorNormOf(x, 4, -1), 0) << "1/0 among the terms";
    EXPECT_EQ(VectorNormOf(Elements<T>({2, 2}), 4, -1), 1);
}

TEST(VectorNorm, OfComplexElementsTakesTheirModuli) {
    const Records x{{3, 4}, {0, -2}};
    EXPECT_EQ(VectorNormOf(x, 0), 7);
    EXPECT_EQ(VectorNormOf(x, 2), 5);
    EXPECT_EQ(VectorNormOf(x, 3), 2);
    EXPECT_NEAR(VectorNormOf(x, 1), std::sqrt(29.0), 6 * kEps * 6);
}

TYPED_TEST(NormTest, OfVectorsPropagatesNaNExceptInTheSearches) {
    using T = TypeParam;
    const auto x = Elements<T>({kNaN, -2, 1, kNaN});
    EXPECT_TRUE(std::isnan(VectorNormOf(x, 0)));
    EXPECT_TRUE(std::isnan(VectorNormOf(x, 1)));
    EXPECT_TRUE(std::isnan(VectorNormOf(x, 4, 3)));
    EXPECT_EQ(VectorNormOf(x, 2), 2);
    EXPECT_EQ(VectorNormOf(x, 3), 1);
    EXPECT_TRUE(std::isnan(VectorNormOf(Elements<T>({kNaN}), 2)));
}

TYPED_TEST(NormTest, OfTwoDoesNotOverflow) {
    using T = TypeParam;
    EXPECT_NEAR(VectorNormOf(Elements<T>({3e200, 4e200}), 1) / 5e200, 1, 8 * kEps);
}

TYPED_TEST(NormTest, OfVectorsChecksSelectorThenSizeThenP) {
    using T = TypeParam;
    const auto x = Elements<T>({1});
    Reals out = Output(1);
    EXPECT_EQ(VectorNorm<T>(x, kTooLarge, 5, 0, out), -20046);
    EXPECT_EQ(VectorNorm<T>(x, 0, 5, 0, out), -20061);
    EXPECT_EQ(VectorNorm<T>(x, 1, UINT32_MAX, 1, out), -20061);
    EXPECT_EQ(VectorNorm<T>(x, 0, 4, kNaN, out), -20003);
    EXPECT_EQ(VectorNorm<T>(x, -1, 0, 1, out), -20003);
    EXPECT_EQ(VectorNorm<T>(x, 1, 4, kNaN, out), -20068);
    EXPECT_EQ(VectorNorm<T>(x, 1, 4, 0, out), -20141);
    EXPECT_EQ(VectorNorm<T>(x, 1, 4, -0.0, out), -20141);
    EXPECT_TRUE(Untouched(out));
}

}  // namespace
}  // namespace quorvan::testing::dense

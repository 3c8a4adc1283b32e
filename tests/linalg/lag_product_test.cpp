// The normal matrices of linear prediction.
#include "tests/linalg/matrices.h"

namespace quorvan::testing::dense {
namespace {

template <class T>
struct LagProductTest : ::testing::Test {};
TYPED_TEST_SUITE(LagProductTest, ElementTypes, ElementNames);

// The data matrix, row by row, as the methods define it.
template <class T>
Dense DataMatrix(const Guarded<T>& x, int p, int method) {
    const int n = static_cast<int>(x.size());
    const int first = method <= 1 ? 0 : p, end = method == 0 || method == 2 ? n + p : n, forward = end - first;
    Dense data(method == 4 ? 2 * forward : forward, p + 1);
    for (int t = first; t < end; ++t)
        for (int k = 0; k <= p; ++k) {
            const Long v = t - k >= 0 && t - k < n ? Wide(x[t - k]) : Long(0);
            data(t - first, k) = v;
            if (method == 4) data(forward + t - first, p - k) = std::conj(v);
        }
    return data;
}

TYPED_TEST(LagProductTest, IsTheProductOfTheDataMatrixForEveryMethod) {
    using T = TypeParam;
    for (unsigned method = 0; method <= 4; ++method)
        for (int n : {1, 2, 5, 30, 300})
            for (int p : {0, 1, 2, 7, 40}) {
                if (method >= 3 && p >= n) continue;
                const auto x = Random<T>(n, n + p);
                auto out = Unwritten<T>((p + 1) * (p + 1));
                ASSERT_EQ(LagProduct<T>(x, n, p, method, out), 0);
                const Dense data = DataMatrix(x, p, method);
                const Dense difference = Dense(out, p + 1, p + 1) - Adjoint(data) * data;
                // Sums of at most 2 (n + p) products, each below 2.
                for (Long v : difference.at)
                    EXPECT_LE(std::abs(v), 4.0 * (n + p + 2) * (n + p + 2) * kEps) << method << " " << n << " " << p;
            }
}

TYPED_TEST(LagProductTest, OfThreeSamplesShowsWhichEndIsExtended) {
    using T = TypeParam;
    const auto x = Elements<T>({1, 2, 3});
    const double expected[5][4] = {{14, 8, 8, 14}, {14, 8, 8, 5}, {13, 8, 8, 14}, {13, 8, 8, 5}, {18, 16, 16, 18}};
    for (unsigned method = 0; method <= 4; ++method) {
        auto out = Unwritten<T>(4);
        ASSERT_EQ(LagProduct<T>(x, 3, 1, method, out), 0);
        for (int i = 0; i < 4; ++i) EXPECT_EQ(Wide(out[i]), Long(expected[method][i])) << method << ", " << i;
    }
}

TYPED_TEST(LagProductTest, HasTheRowsOfTheDataMatrix) {
    using T = TypeParam;
    // All ones without lags: the product counts the rows that see a sample.
    const Guarded<T> ones(10, Element<T>(1));
    const double counts[] = {10, 10, 7, 7, 14};
    for (unsigned method = 0; method <= 4; ++method) {
        auto out = Unwritten<T>(16);
        ASSERT_EQ(LagProduct<T>(ones, 10, 3, method, out), 0);
        EXPECT_EQ(Wide(out[0]), Long(counts[method])) << method;
    }
}

TEST(LagProduct, ConjugatesTheLeftFactorAndTheBackwardRows) {
    const Records x{{0, 1}, {1, 0}};
    Records out = RecordOutput(4);
    ASSERT_EQ(ZemFunc416(x, 2, 1, 3, out), 0);  // the row {1, i}
    EXPECT_TRUE(SameElements(out, Records{{1, 0}, {0, 1}, {0, -1}, {1, 0}}));
    ASSERT_EQ(ZemFunc416(x, 2, 1, 4, out), 0);  // and {-i, 1}
    EXPECT_TRUE(SameElements(out, Records{{2, 0}, {0, 2}, {0, -2}, {2, 0}}));
}

TYPED_TEST(LagProductTest, OfManySamplesAddsTheSlicesOfItsRows) {
    using T = TypeParam;
    const int n = 5000, p = 15;  // several slices
    for (unsigned method = 0; method <= 4; ++method) {
        const Guarded<T> ones(n, Element<T>(1));
        auto out = Unwritten<T>((p + 1) * (p + 1));
        ASSERT_EQ(LagProduct<T>(ones, n, p, method, out), 0);
        const Dense data = DataMatrix(ones, p, method), expected = Adjoint(data) * data;
        for (std::size_t i = 0; i < out.size(); ++i) ASSERT_EQ(Wide(out[i]), expected.at[i]) << method;
    }
}

TYPED_TEST(LagProductTest, ChecksCountThenLagThenItsBoundThenTheMethod) {
    using T = TypeParam;
    const auto x = Elements<T>({1, 2, 3});
    auto out = Unwritten<T>(1);
    EXPECT_EQ(LagProduct<T>(x, kTooLarge, 1, 9, out), -20046);
    EXPECT_EQ(LagProduct<T>(x, 1, kTooLarge, 9, out), -20046);
    for (Size n : {-1, 0}) EXPECT_EQ(LagProduct<T>(x, n, -1, 9, out), -20003);
    EXPECT_EQ(LagProduct<T>(x, 3, -1, 9, out), -20059);
    for (unsigned method : {3u, 4u}) {
        EXPECT_EQ(LagProduct<T>(x, 3, 3, method, out), -20037);
        EXPECT_EQ(LagProduct<T>(x, 3, INT32_MAX, method, out), -20037);
    }
    EXPECT_EQ(LagProduct<T>(x, 3, 3, 5, out), -20061);
    EXPECT_EQ(LagProduct<T>(x, 3, 0, UINT32_MAX, out), -20061);
    EXPECT_EQ(LagProduct<T>(x, 3, 46340, 0, out), -20046) << "46341 squared elements do not fit";
    EXPECT_EQ(LagProduct<T>(x, 3, INT32_MAX, 0, out), -20046);
    EXPECT_TRUE(Untouched(out));
}

TYPED_TEST(LagProductTest, IsNotScreened) {
    using T = TypeParam;
    const auto x = Elements<T>({1, kInf});
    auto out = Unwritten<T>(1);
    ASSERT_EQ(LagProduct<T>(x, 2, 0, 0, out), 0);
    EXPECT_FALSE(std::isfinite(Wide(out[0]).real()));
}

TYPED_TEST(LagProductTest, WorksOverItsSamplesAndWithoutMemoryFails) {
    using T = TypeParam;
    const auto x = Random<T>(9);
    auto out = Unwritten<T>(9), over = x;
    ASSERT_EQ(LagProduct<T>(x, 9, 2, 0, out), 0);
    ASSERT_EQ(LagProduct<T>(over, 9, 2, 0, over), 0);
    EXPECT_TRUE(SameElements(out, over));
    ExpectEveryAllocationFails([&] { return LagProduct<T>(over, 9, 2, 0, over); });
}

}  // namespace
}  // namespace quorvan::testing::dense

// The rules of size that decide how the provider is called: its routines are replaced by ones that count and pass on.
#include "linalg/provider.h"
#include "tests/linalg/matrices.h"
#include "tests/support/replaced_routines.h"

namespace {

struct Calls {
    int gemm = 0, zgemm = 0, gelsd = 0;
    std::vector<int> rows;
};
Calls calls;

}  // namespace

namespace quorvan::provider {

extern "C" {

QV_REPLACEMENT void cblas_dgemm(Order order, Transposition transa, Transposition transb, Int m, Int n, Int k,
                                Real alpha, const Real* a, Int lda, const Real* b, Int ldb, Real beta, Real* c,
                                Int ldc) {
    ++calls.gemm;
    calls.rows.push_back(m);
    QV_REPLACED(cblas_dgemm)(order, transa, transb, m, n, k, alpha, a, lda, b, ldb, beta, c, ldc);
}

QV_REPLACEMENT void cblas_zgemm(Order order, Transposition transa, Transposition transb, Int m, Int n, Int k,
                                const void* alpha, const void* a, Int lda, const void* b, Int ldb, const void* beta,
                                void* c, Int ldc) {
    ++calls.zgemm;
    calls.rows.push_back(m);
    QV_REPLACED(cblas_zgemm)(order, transa, transb, m, n, k, alpha, a, lda, b, ldb, beta, c, ldc);
}

QV_REPLACEMENT void QV_LAPACK(dgelsd)(const Int* m, const Int* n, const Int* nrhs, Real* a, const Int* lda, Real* b,
                                      const Int* ldb, Real* s, const Real* rcond, Int* rank, Real* work,
                                      const Int* lwork, Int* iwork, Int* info) {
    ++calls.gelsd;
    QV_REPLACED(QV_LAPACK(dgelsd))(m, n, nrhs, a, lda, b, ldb, s, rcond, rank, work, lwork, iwork, info);
}

}  // extern "C"

}  // namespace quorvan::provider

namespace quorvan::testing::dense {
namespace {

template <class T>
std::vector<int> RowsOfCalls(int m, int k, int n) {
    const auto a = Random<T>(static_cast<std::size_t>(m) * k, 1), b = Random<T>(static_cast<std::size_t>(k) * n, 2);
    auto out = Unwritten<T>(static_cast<std::size_t>(m) * n);
    calls = {};
    EXPECT_EQ(Multiply<T>(a, b, m, k, n, out), 0);
    EXPECT_EQ(calls.gemm + calls.zgemm, static_cast<int>(calls.rows.size()));
    // The first and last rows of each slab, against sums; rounding grows with the k terms.
    for (int row : {0, std::min(m, 1530) - 1, std::min(m - 1, 1530), m - 1}) {
        Dense left(1, k);
        for (int j = 0; j < k; ++j) left(0, j) = Wide(a[static_cast<std::size_t>(row) * k + j]);
        const Dense expected = left * Dense(b, k, n);
        for (int j = 0; j < n; ++j)
            EXPECT_LE(std::abs(Wide(out[static_cast<std::size_t>(row) * n + j]) - expected(0, j)), 2 * k * kEps)
                << row << ", " << j;
    }
    return calls.rows;
}

using Slabs = std::vector<int>;

TEST(Multiply, Of1531RowsBy257By3RunsInTwoSlabsAndOf1530InOne) {
    EXPECT_EQ(RowsOfCalls<double>(1531, 257, 3), (Slabs{1530, 1}));
    EXPECT_EQ(RowsOfCalls<double>(1530, 257, 3), (Slabs{1530}));
    EXPECT_EQ(RowsOfCalls<ComplexRecord>(1531, 257, 3), (Slabs{1530, 1}));
    EXPECT_EQ(RowsOfCalls<ComplexRecord>(1530, 257, 3), (Slabs{1530}));
}

TEST(Multiply, RunsInSlabsOnlyIfAllThreeSizesAreLarge) {
    EXPECT_EQ(RowsOfCalls<double>(1531, 256, 3), (Slabs{1531}));
    EXPECT_EQ(RowsOfCalls<double>(1531, 257, 2), (Slabs{1531}));
    EXPECT_EQ(RowsOfCalls<double>(3060, 257, 3), (Slabs{1530, 1530})) << "no empty slab behind";
    EXPECT_EQ(RowsOfCalls<double>(3061, 257, 3), (Slabs{1530, 1530, 1}));
}

// Whether the least squares of m by n go to the provider's routine: asked for its work area, and run.
bool ByProvider(int m, int n) {
    const Reals a = RandomReals(static_cast<std::size_t>(m) * n, 1), b = RandomReals(m, 2);
    Reals x = Output(n);
    calls = {};
    EXPECT_EQ(ZemFunc197(a, m, n, b, 0, x), 0);
    EXPECT_TRUE(calls.gelsd == 0 || calls.gelsd == 2) << calls.gelsd;
    // Both routes solve a system with independent rows.
    EXPECT_LE(Frobenius(Dense(a, m, n) * Dense(x, n, 1) - Dense(b, m, 1)),
              20 * n * kEps * Frobenius(Dense(a, m, n)) * Frobenius(Dense(x, n, 1)));
    return calls.gelsd > 0;
}

TEST(LeastSquares, OfOneRowTakeTheirOwnRouteBeyond739Columns) {
    EXPECT_TRUE(ByProvider(1, 739));
    EXPECT_FALSE(ByProvider(1, 740));
}

TEST(LeastSquares, OfMoreRowsTakeTheirOwnRouteBeyondTheQuadraticRule) {
    for (int r : {2, 3, 4, 10}) {
        const int border = (r - 3) * (r - 2) + 66 * r + 670;
        EXPECT_TRUE(ByProvider(r, border)) << r;
        EXPECT_FALSE(ByProvider(r, border + 1)) << r;
    }
}

TEST(LeastSquares, OfTallSystemsGoToTheProvider) { EXPECT_TRUE(ByProvider(40, 40)); }

TEST(LeastSquares, OfComplexSystemsNeverGoToTheProvider) {
    const Records a = RandomRecords(6), b = RandomRecords(3);
    Records x = RecordOutput(2);
    calls = {};
    EXPECT_EQ(ZemFunc218(a, 3, 2, b, 0, x), 0);
    EXPECT_EQ(calls.gelsd, 0);
}

}  // namespace
}  // namespace quorvan::testing::dense

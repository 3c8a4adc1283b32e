// QR with column pivoting: the orientation matters here, so the provider gets a transposed copy.
#include <algorithm>
#include <cstring>

#include "linalg/decompositions.h"
#include "linalg/lapack_eigen.h"
#include "linalg/matrix.h"

namespace quorvan {
namespace {

template <class T>
Status Pivoted(T* a, Count m, Count n, bool economy, Count* pivots, T* q, T* r) noexcept {
    const Count k = std::min(m, n);
    const Count vectors = economy ? k : m;
    const ProviderBlock<T> factors(Room<T>(m, q ? std::max(n, vectors) : n)), tau(static_cast<std::size_t>(k));
    const Block<double> rwork = RealWork<T>(2 * static_cast<std::size_t>(n));
    if (!factors || !tau || !rwork) return status::kOutOfMemory;
    const auto factor = [&](T* work, Count lwork) {
        return Geqp3(m, n, factors.get(), m, pivots, tau.get(), work, lwork, rwork.get());
    };
    const auto form = [&](T* work, Count lwork) {
        return Orgqr(m, vectors, k, factors.get(), m, tau.get(), work, lwork);
    };
    // One area for both, so that nothing can fail between R and Q.
    const Count lwork = std::max(WorkspaceSize<T>(factor), q ? WorkspaceSize<T>(form) : 0);
    const ProviderBlock<T> work(static_cast<std::size_t>(lwork));
    if (!work) return status::kOutOfMemory;

    TransposeTo(a, m, n, factors.get());
    std::fill(pivots, pivots + n, 0);  // every column may move
    factor(work, lwork);               // fails on illegal arguments only, like the next
    for (Count j = 0; j < n; ++j) --pivots[j];

    T* triangle = r ? r : a;
    TransposeTo(factors.get(), n, vectors, m, triangle, n);
    for (std::size_t i = 0; i < static_cast<std::size_t>(vectors); ++i) {
        T* row = triangle + i * static_cast<std::size_t>(n);
        std::fill(row, row + std::min(i, static_cast<std::size_t>(n)), T{});
    }
    if (!q) return status::kSuccess;
    form(work, lwork);
    TransposeTo(factors.get(), vectors, m, q);
    return status::kSuccess;
}

}  // namespace

template <class T>
Status MatQrPivot(T* a, Count m, Count n, std::uint32_t pivotMode, bool economy, Count* pivots, T* q, T* r) noexcept {
    if (m < 1 || n < 1) return status::kSamplesNotPositive;
    if (pivotMode > 2) return status::kInvalidSelection;
    if (pivotMode == 0) {
        const Status status = MatQr(a, m, n, economy, q, r);
        if (status == status::kSuccess)
            for (Count j = 0; j < n; ++j) pivots[j] = j;
        return status;
    }
    if (!ElementsFit(m, n) || (q && !economy && !ElementsFit(m, m))) return status::kOverflow;
    if (MatScreen(a, Elements(m, n))) return status::kNonFiniteInput;
    return Pivoted(a, m, n, economy, pivots, q, r);
}

template Status MatQrPivot(double*, Count, Count, std::uint32_t, bool, Count*, double*, double*) noexcept;
template Status MatQrPivot(ComplexRecord*, Count, Count, std::uint32_t, bool, Count*, ComplexRecord*,
                           ComplexRecord*) noexcept;

}  // namespace quorvan

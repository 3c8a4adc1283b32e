// QR without pivoting, as the LQ factorisation of the transpose: row-major memory as it stands.
//
// A^T = L·P gives A = P^T·L^T. Read row by row, the provider's L is R and its P is Q.
#include <algorithm>
#include <cstring>

#include "linalg/decompositions.h"
#include "linalg/lapack_eigen.h"
#include "linalg/matrix.h"

namespace quorvan {
namespace {

// Rows of `width` elements from a block whose rows are `stride` apart, without the gaps.
template <class T>
void CopyRows(const T* from, std::size_t rows, std::size_t width, std::size_t stride, T* to) noexcept {
    if (width == stride) {
        std::memcpy(to, from, rows * width * sizeof(T));
        return;
    }
    for (std::size_t i = 0; i < rows; ++i) std::memcpy(to + i * width, from + i * stride, width * sizeof(T));
}

}  // namespace

template <class T>
Status MatQr(T* a, Count m, Count n, bool economy, T* q, T* r) noexcept {
    if (m < 1 || n < 1) return status::kSamplesNotPositive;
    if (!ElementsFit(m, n) || (q && !economy && !ElementsFit(m, m))) return status::kOverflow;
    if (MatScreen(a, Elements(m, n))) return status::kNonFiniteInput;
    const Count k = std::min(m, n);
    const Count vectors = economy ? k : m;
    const Count stride = q && !economy ? std::max(m, n) : n;  // a full Q needs room for m vectors
    const auto rows = static_cast<std::size_t>(m), cols = static_cast<std::size_t>(n);

    const ProviderBlock<T> factors(Room<T>(stride, m)), tau(static_cast<std::size_t>(k));
    if (!factors || !tau) return status::kOutOfMemory;
    const auto factor = [&](T* work, Count lwork) {
        return Gelqf(n, m, factors.get(), stride, tau.get(), work, lwork);
    };
    const auto form = [&](T* work, Count lwork) {
        return Orglq(vectors, m, k, factors.get(), stride, tau.get(), work, lwork);
    };
    // One area for both, so that nothing can fail between R and Q.
    const Count lwork = std::max(WorkspaceSize<T>(factor), q ? WorkspaceSize<T>(form) : 0);
    const ProviderBlock<T> work(static_cast<std::size_t>(lwork));
    if (!work) return status::kOutOfMemory;

    for (std::size_t i = 0; i < rows; ++i)
        std::memcpy(factors.get() + i * static_cast<std::size_t>(stride), a + i * cols, cols * sizeof(T));
    factor(work, lwork);  // fails on illegal arguments only, like the next

    T* triangle = r ? r : a;
    for (std::size_t i = 0; i < static_cast<std::size_t>(vectors); ++i) {
        T* row = triangle + i * cols;
        const std::size_t diagonal = std::min(i, cols);
        std::fill(row, row + diagonal, T{});
        std::memcpy(row + diagonal, factors.get() + i * static_cast<std::size_t>(stride) + diagonal,
                    (cols - diagonal) * sizeof(T));
    }
    if (!q) return status::kSuccess;
    form(work, lwork);
    CopyRows(factors.get(), rows, static_cast<std::size_t>(vectors), static_cast<std::size_t>(stride), q);
    return status::kSuccess;
}

template Status MatQr(double*, Count, Count, bool, double*, double*) noexcept;
template Status MatQr(ComplexRecord*, Count, Count, bool, ComplexRecord*, ComplexRecord*) noexcept;

}  // namespace quorvan

// LU with partial pivoting and Cholesky factors.
#include <algorithm>
#include <cstring>

#include "linalg/decompositions.h"
#include "linalg/info.h"
#include "linalg/lapack_eigen.h"
#include "linalg/matrix.h"

namespace quorvan {
namespace {

// The next multiple of 16: each column then starts on a cache line for the provider.
constexpr Count PaddedRows(Count m) noexcept { return m > INT32_MAX - 15 ? m : (m + 15) / 16 * 16; }

}  // namespace

template <class T>
Status MatLu(T* a, Count m, Count n, Count* pivots, std::uint32_t* parity) noexcept {
    if (m < 1 || n < 1) return status::kSamplesNotPositive;
    if (!ElementsFit(m, n)) return status::kOverflow;
    if (MatScreen(a, Elements(m, n))) return status::kNonFiniteInput;
    *parity = 0;
    const Count lda = PaddedRows(m);
    const ProviderBlock<T> factors(Room<T>(lda, n));
    if (!factors) return status::kOutOfMemory;
    TransposeTo(a, m, n, n, factors.get(), lda);
    const Count info = Getrf(m, n, factors.get(), lda, pivots);
    TransposeTo(factors.get(), n, m, lda, a, n);

    const Count interchanges = std::min(m, n);
    for (Count i = 0; i < interchanges; ++i) {
        --pivots[i];
        if (pivots[i] != i) *parity ^= 1;
    }
    for (Count i = interchanges; i < m; ++i) pivots[i] = i;
    return StatusOf(info, info::kExposedLu);
}

template <class T>
Status MatCholesky(T* a, Count n, bool upper, T* out) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    if (!ElementsFit(n, n)) return status::kOverflow;
    if (MatScreen(a, Elements(n, n))) return status::kNonFiniteInput;
    const ProviderBlock<T> factor = Copied(a, n, n);
    if (!factor) return status::kOutOfMemory;
    const Count info = Potrf(upper ? 'L' : 'U', n, factor.get(), n);
    if (info != 0) return StatusOf(info, info::kCholesky);

    T* target = out ? out : a;
    const auto order = static_cast<std::size_t>(n);
    for (std::size_t i = 0; i < order; ++i) {
        const T* from = factor.get() + i * order;
        T* to = target + i * order;
        const std::size_t first = upper ? i : 0, last = upper ? order : i + 1;
        std::fill(to, to + first, T{});
        std::memcpy(to + first, from + first, (last - first) * sizeof(T));
        std::fill(to + last, to + order, T{});
    }
    return status::kSuccess;
}

template Status MatLu(double*, Count, Count, Count*, std::uint32_t*) noexcept;
template Status MatLu(ComplexRecord*, Count, Count, Count*, std::uint32_t*) noexcept;
template Status MatCholesky(double*, Count, bool, double*) noexcept;
template Status MatCholesky(ComplexRecord*, Count, bool, ComplexRecord*) noexcept;

}  // namespace quorvan

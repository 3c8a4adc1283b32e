// Reduction to Hessenberg form, A = Q·H·Q^H.
#include <algorithm>

#include "linalg/decompositions.h"
#include "linalg/lapack_eigen.h"
#include "linalg/matrix.h"

namespace quorvan {

template <class T>
Status MatHessenberg(T* a, Count n, Count low, Count high, T* h, T* q) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    if (!(0 <= low && low <= high && high < n)) return status::kIndexOutOfRange;
    if (!ElementsFit(n, n)) return status::kOverflow;
    if (MatScreen(a, Elements(n, n))) return status::kNonFiniteInput;
    const ProviderBlock<T> factors = Transposed(a, n, n), tau(static_cast<std::size_t>(n));
    if (!factors || !tau) return status::kOutOfMemory;
    const auto reduce = [&](T* work, Count lwork) {
        return Gehrd(n, low + 1, high + 1, factors.get(), n, tau.get(), work, lwork);
    };
    const auto form = [&](T* work, Count lwork) {
        return Orghr(n, low + 1, high + 1, factors.get(), n, tau.get(), work, lwork);
    };
    // One area for both, so that nothing can fail between H and Q.
    const Count lwork = std::max(WorkspaceSize<T>(reduce), WorkspaceSize<T>(form));
    const ProviderBlock<T> work(static_cast<std::size_t>(lwork));
    if (!work) return status::kOutOfMemory;

    reduce(work, lwork);  // fails on illegal arguments only, like the next
    T* form_out = h ? h : a;
    TransposeTo(factors.get(), n, n, form_out);
    const auto order = static_cast<std::size_t>(n);
    for (std::size_t i = 2; i < order; ++i) std::fill(form_out + i * order, form_out + i * order + i - 1, T{});
    form(work, lwork);
    TransposeTo(factors.get(), n, n, q);
    return status::kSuccess;
}

template Status MatHessenberg(double*, Count, Count, Count, double*, double*) noexcept;
template Status MatHessenberg(ComplexRecord*, Count, Count, Count, ComplexRecord*, ComplexRecord*) noexcept;

}  // namespace quorvan

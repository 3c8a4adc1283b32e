#include "linalg/pseudo_inverse.h"

#include "frame/memory.h"
#include "frame/status.h"
#include "linalg/decompositions.h"
#include "linalg/element.h"
#include "linalg/lapack.h"
#include "linalg/matrix.h"
#include "linalg/solve.h"

namespace quorvan {

template <class T>
Status PseudoInverse(const T* a, Count m, Count n, Cutoff cutoff, T* out, Count* rank) noexcept {
    if (m < 1 || n < 1) return status::kSamplesNotPositive;
    const Count k = m < n ? m : n;
    ProviderBlock<T> u(Elements(m, k)), v(Elements(n, k));
    Block<double> values(static_cast<std::size_t>(k));
    if (!u || !v || !values) return status::kOutOfMemory;
    if (Status failed = MatSvd<T>(a, m, n, u, values, v)) return failed;

    const double limit = cutoff.limit(m, n, values[0]);
    *rank = 0;
    for (Count j = 0; j < k; ++j) {
        const bool counts = values[j] > limit;
        *rank += counts;
        values[j] = counts ? 1 / values[j] : 0;
    }
    T* row = v;
    for (Count i = 0; i < n; ++i, row += k)
        for (Count j = 0; j < k; ++j) row[j] = values[j] == 0 ? T{} : element::Scaled(row[j], values[j]);
    Gemm(provider::Transposition::kNone, provider::Transposition::kConjugated, n, m, k, v, k, u, k, out, m);
    return status::kSuccess;
}

template Status PseudoInverse(const double*, Count, Count, Cutoff, double*, Count*) noexcept;
template Status PseudoInverse(const ComplexRecord*, Count, Count, Cutoff, ComplexRecord*, Count*) noexcept;

template <class T>
Status MatPseudoInverse(T* a, Count m, Count n, double tolerance, T* out) noexcept {
    Count rank = 0;
    return PseudoInverse<T>(a, m, n, CutoffOf(tolerance), out ? out : a, &rank);
}

template Status MatPseudoInverse(double*, Count, Count, double, double*) noexcept;
template Status MatPseudoInverse(ComplexRecord*, Count, Count, double, ComplexRecord*) noexcept;

}  // namespace quorvan

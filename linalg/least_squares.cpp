// Minimum-norm least squares: by divide and conquer in the provider, or through the singular values here.
#include <bit>
#include <cstring>

#include "frame/memory.h"
#include "frame/status.h"
#include "linalg/info.h"
#include "linalg/lapack.h"
#include "linalg/matrix.h"
#include "linalg/products.h"
#include "linalg/pseudo_inverse.h"
#include "linalg/solve.h"

namespace quorvan {
namespace {

// Whether a real system is so wide that its singular values are taken here.
constexpr bool IsVeryWide(Count m, Count n) noexcept {
    const std::int64_t rows = m;
    if (m == 1) return n > 739;
    return n > m && n > (rows - 3) * (rows - 2) + 66 * rows + 670;
}

// X = (V·S⁻¹·U^H)·B with the singular values above max(m, n)·s(0)·tolerance.
template <class T>
Status ByPseudoInverse(const T* a, Count m, Count n, const T* b, Count nrhs, double tolerance, T* x) noexcept {
    ProviderBlock<T> inverse(Elements(n, m));
    if (!inverse) return status::kOutOfMemory;
    Count rank = 0;
    const Cutoff cutoff{tolerance > 0 ? tolerance : kEpsilon, Cutoff::kRelative};
    if (Status failed = PseudoInverse(a, m, n, cutoff, inverse.get(), &rank)) return failed;
    const auto multiply = x == b ? MatMultiplyCopied<T> : MatMultiply<T>;
    if (Status failed = multiply(inverse, b, n, m, nrhs, x)) return failed;
    return rank < (m < n ? m : n) ? status::kWarnRankDeficient : status::kSuccess;
}

Status ByDivideAndConquer(const double* a, Count m, Count n, const double* b, Count nrhs, double tolerance,
                          double* x) noexcept {
    const Count least = m < n ? m : n, most = m < n ? n : m;
    ProviderBlock<double> factors = Transposed(a, m, n), columns(Elements(most, nrhs));
    const Count levels = static_cast<Count>(std::bit_width(static_cast<std::uint32_t>(least))) - 1;
    Block<double> values(static_cast<std::size_t>(least));
    Block<Count> iwork((3 * static_cast<std::size_t>(levels) + 14) * static_cast<std::size_t>(least));
    if (!factors || !columns || !values || !iwork) return status::kOutOfMemory;
    TransposeTo(b, m, nrhs, nrhs, columns, most);

    const double rcond = most * (tolerance < 0 ? kEpsilon : tolerance);
    Count info = 0, rank = 0;
    const Status failed = Queried<double>(&info, [&](double* work, Count lwork) {
        return Gelsd(m, n, nrhs, factors, m, columns, most, values, rcond, &rank, work, lwork, iwork);
    });
    if (failed) return failed;
    if (Status notConverged = StatusOf(info, info::kSingularValues)) return notConverged;
    TransposeTo(columns, nrhs, n, most, x, nrhs);
    return rank < least ? status::kWarnRankDeficient : status::kSuccess;
}

}  // namespace

template <>
Status SolveLeastSquares(const double* a, Count m, Count n, const double* b, Count nrhs, double tolerance,
                         double* x) noexcept {
    if (m < 1 || n < 1 || nrhs < 1) return status::kSamplesNotPositive;
    // The provider takes NaN for an illegal argument, and the reference one ends the program on those.
    if (MatScreen(a, Elements(m, n)) || MatScreen(b, Elements(m, nrhs))) return status::kNonFiniteInput;
    const auto solve = IsVeryWide(m, n) ? ByPseudoInverse<double> : ByDivideAndConquer;
    return solve(a, m, n, b, nrhs, tolerance, x);
}

template <>
Status SolveLeastSquares(const ComplexRecord* a, Count m, Count n, const ComplexRecord* b, Count nrhs, double tolerance,
                         ComplexRecord* x) noexcept {
    if (m < 1 || n < 1 || nrhs < 1) return status::kSamplesNotPositive;
    if (MatScreen(a, Elements(m, n)) || MatScreen(b, Elements(m, nrhs))) return status::kNonFiniteInput;
    return ByPseudoInverse(a, m, n, b, nrhs, tolerance, x);
}

}  // namespace quorvan

// Balancing of a matrix before its eigenvalues are sought, and the way back for their vectors.
#include <iterator>

#include "linalg/decompositions.h"
#include "linalg/info.h"
#include "linalg/lapack_eigen.h"
#include "linalg/matrix.h"

namespace quorvan {
namespace {

constexpr char kJobs[] = {'N', 'P', 'S', 'B'};
constexpr char kSides[] = {'R', 'L'};
constexpr std::uint32_t kPermute = 1, kBoth = 3;

// Outside low to high `scale` names the rows that were interchanged; the provider takes them unseen.
bool InterchangesStayInside(Count n, Count low, Count high, const double* scale) noexcept {
    for (Count i = 0; i < n; ++i) {
        if (i == low) i = high + 1;
        if (i < n && !(scale[i] >= 1 && scale[i] < n + 1.0)) return false;
    }
    return true;
}

}  // namespace

template <class T>
Status MatBalance(T* a, Count n, std::uint32_t job, Count* low, Count* high, double* scale, T* balanced) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    if (job >= std::size(kJobs)) return status::kInvalidSelection;
    if (!ElementsFit(n, n)) return status::kOverflow;
    if (MatScreen(a, Elements(n, n))) return status::kNonFiniteInput;
    const ProviderBlock<T> copy = Transposed(a, n, n);
    if (!copy) return status::kOutOfMemory;
    Count ilo = 0, ihi = 0;
    const Count info = Gebal(kJobs[job], n, copy.get(), n, &ilo, &ihi, scale);
    if (info != 0) return StatusOf(info, info::kBalance);
    *low = ilo - 1;
    *high = ihi - 1;
    TransposeTo(copy.get(), n, n, balanced ? balanced : a);
    return status::kSuccess;
}

template <class T>
Status MatBalanceBack(T* v, Count n, std::uint32_t job, std::uint32_t side, Count low, Count high, const double* scale,
                      T* out) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    if (job >= std::size(kJobs) || side >= std::size(kSides)) return status::kInvalidSelection;
    if (!(0 <= low && low <= high && high < n)) return status::kIndexOutOfRange;
    if ((job == kPermute || job == kBoth) && !InterchangesStayInside(n, low, high, scale))
        return status::kIndexOutOfRange;
    if (!ElementsFit(n, n)) return status::kOverflow;
    const ProviderBlock<T> copy = Transposed(v, n, n);
    if (!copy) return status::kOutOfMemory;
    const Count info = Gebak(kJobs[job], kSides[side], n, low + 1, high + 1, scale, n, copy.get(), n);
    if (info != 0) return StatusOf(info, info::kBalance);
    TransposeTo(copy.get(), n, n, out ? out : v);
    return status::kSuccess;
}

template Status MatBalance(double*, Count, std::uint32_t, Count*, Count*, double*, double*) noexcept;
template Status MatBalance(ComplexRecord*, Count, std::uint32_t, Count*, Count*, double*, ComplexRecord*) noexcept;
template Status MatBalanceBack(double*, Count, std::uint32_t, std::uint32_t, Count, Count, const double*,
                               double*) noexcept;
template Status MatBalanceBack(ComplexRecord*, Count, std::uint32_t, std::uint32_t, Count, Count, const double*,
                               ComplexRecord*) noexcept;

}  // namespace quorvan

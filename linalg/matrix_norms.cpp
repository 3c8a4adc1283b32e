// Norms, condition numbers and ranks of matrices.
#include <limits>

#include "frame/memory.h"
#include "frame/status.h"
#include "linalg/decompositions.h"
#include "linalg/element.h"
#include "linalg/general_inverse.h"
#include "linalg/matrix.h"
#include "linalg/norms.h"
#include "linalg/pseudo_inverse.h"

namespace quorvan {
namespace {

enum Selector : std::uint32_t { kTwoNorm, kOneNorm, kFrobenius, kInfinityNorm };

using element::Magnitude;

double Larger(double a, double b) noexcept { return a > b ? a : b; }

// Columns are summed in strips, so that the rows are read along and the sums need no memory.
template <class T>
double LargestColumnSum(const T* a, Count m, Count n) noexcept {
    constexpr Count kStrip = 128;
    double largest = 0;
    for (Count strip = 0; strip < n; strip += kStrip) {
        const Count width = n - strip < kStrip ? n - strip : kStrip;
        double sums[kStrip] = {};
        const T* row = a + strip;
        for (Count i = 0; i < m; ++i, row += n)
            for (Count j = 0; j < width; ++j) sums[j] += Magnitude(row[j]);
        for (Count j = 0; j < width; ++j) largest = Larger(sums[j], largest);
    }
    return largest;
}

template <class T>
double LargestRowSum(const T* a, Count m, Count n) noexcept {
    double largest = 0;
    for (Count i = 0; i < m; ++i, a += n) {
        double sum = 0;
        for (Count j = 0; j < n; ++j) sum += Magnitude(a[j]);
        largest = Larger(sum, largest);
    }
    return largest;
}

// Any norm but the two-norm.
template <class T>
double NormByElements(const T* a, Count m, Count n, std::uint32_t selector) noexcept {
    switch (selector) {
        case kOneNorm: return LargestColumnSum(a, m, n);
        case kFrobenius: return Nrm2(static_cast<Count>(Elements(m, n)), a);
        default: return LargestRowSum(a, m, n);
    }
}

struct SingularValues {
    Block<double> values;
    Count count;
    Status status;

    double largest() const noexcept { return values[0]; }
    double smallest() const noexcept { return values[count - 1]; }
};

template <class T>
SingularValues SingularValuesOf(const T* a, Count m, Count n) noexcept {
    const Count count = m < n ? m : n;
    SingularValues s{Block<double>(static_cast<std::size_t>(count)), count, status::kOutOfMemory};
    if (s.values) s.status = MatSingularValues<T>(a, m, n, s.values);
    return s;
}

template <class T>
Status Check(const T* a, Count m, Count n, std::uint32_t selector) noexcept {
    if (m < 1 || n < 1) return status::kSamplesNotPositive;
    if (selector > kInfinityNorm) return status::kInvalidSelection;
    if (MatScreen(a, Elements(m, n))) return status::kNonFiniteInput;
    return status::kSuccess;
}

template <class T>
Status ConditionByInverse(const T* a, Count n, std::uint32_t selector, double* out) noexcept {
    const double norm = NormByElements(a, n, n, selector);
    ProviderBlock<T> inverse = Copied(a, n, n);
    if (!inverse) return status::kOutOfMemory;
    const Status failed = InvertGeneral<T>(inverse, n);
    if (failed == status::kSingularMatrix) {
        *out = std::numeric_limits<double>::infinity();
        return status::kSuccess;
    }
    if (failed) return failed;
    *out = norm * NormByElements<T>(inverse, n, n, selector);
    return status::kSuccess;
}

}  // namespace

template <class T>
Status MatNorm(const T* a, Count m, Count n, std::uint32_t selector, double* out) noexcept {
    *out = std::numeric_limits<double>::quiet_NaN();
    if (Status failed = Check(a, m, n, selector)) return failed;
    if (selector != kTwoNorm) {
        *out = NormByElements(a, m, n, selector);
        return status::kSuccess;
    }
    const SingularValues s = SingularValuesOf(a, m, n);
    if (s.status == status::kSuccess) *out = s.largest();
    return s.status;
}

template <class T>
Status MatConditionNumber(const T* a, Count m, Count n, std::uint32_t selector, double* out) noexcept {
    *out = std::numeric_limits<double>::quiet_NaN();
    if (Status failed = Check(a, m, n, selector)) return failed;
    if (selector != kTwoNorm) return m == n ? ConditionByInverse(a, n, selector, out) : status::kNotSquare;
    const SingularValues s = SingularValuesOf(a, m, n);
    if (s.status != status::kSuccess) return s.status;
    *out = s.smallest() == 0 ? std::numeric_limits<double>::infinity() : s.largest() / s.smallest();
    return status::kSuccess;
}

template <class T>
Status MatRank(const T* a, Count m, Count n, double tolerance, Count* rank) noexcept {
    *rank = -1;
    if (m < 1 || n < 1) return status::kSamplesNotPositive;
    const SingularValues s = SingularValuesOf(a, m, n);
    if (s.status != status::kSuccess) return s.status;
    const double limit = CutoffOf(tolerance).limit(m, n, s.largest());
    *rank = 0;
    for (Count i = 0; i < s.count; ++i) *rank += s.values[i] > limit;
    return status::kSuccess;
}

#define QV_INSTANTIATE(T)                                                                        \
    template Status MatNorm(const T*, Count, Count, std::uint32_t, double*) noexcept;            \
    template Status MatConditionNumber(const T*, Count, Count, std::uint32_t, double*) noexcept; \
    template Status MatRank(const T*, Count, Count, double, Count*) noexcept;
QV_INSTANTIATE(double)
QV_INSTANTIATE(ComplexRecord)
#undef QV_INSTANTIATE

}  // namespace quorvan

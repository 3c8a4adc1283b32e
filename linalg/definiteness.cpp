#include "linalg/definiteness.h"

#include <cmath>

#include "frame/memory.h"
#include "frame/status.h"
#include "linalg/eigenvalues.h"
#include "linalg/element.h"
#include "linalg/lapack.h"

namespace quorvan {
namespace {

// Exactly, element by element; NaN differs from itself. Square tiles, so that neither side strides through memory.
template <class T>
bool IsHermitian(const T* a, Count n) noexcept {
    constexpr Count kTile = 16;
    const std::size_t width = static_cast<std::size_t>(n);
    for (Count top = 0; top < n; top += kTile)
        for (Count left = 0; left <= top; left += kTile)
            for (Count i = top; i < n && i < top + kTile; ++i)
                for (Count j = left; j <= i && j < left + kTile; ++j)
                    if (!element::Equal(a[i * width + j], element::Conjugate(a[j * width + i]))) return false;
    return true;
}

constexpr std::uint32_t kValuesOnly = 0;
constexpr Count kHermitian = 1;

Status Eigenvalues(const double* a, Count n, double* values) noexcept {
    return MatEigenSymmetric(a, n, kValuesOnly, values, nullptr);
}
Status Eigenvalues(const ComplexRecord* a, Count n, ComplexRecord* values) noexcept {
    return MatEigenComplex(a, n, kHermitian, kValuesOnly, values, nullptr);
}

}  // namespace

template <class T>
Status MatIsPositiveDefinite(const T* a, Count n, std::uint32_t* flag) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    *flag = 0;
    if (!IsHermitian(a, n)) return status::kSuccess;
    Block<T> values(static_cast<std::size_t>(n));
    if (!values) return status::kOutOfMemory;
    if (Status failed = Eigenvalues(a, n, values)) return failed;
    const double first = std::fabs(RealPart(values[0])), last = std::fabs(RealPart(values[n - 1]));
    const double limit = (first > last ? first : last) * kEpsilon;
    bool above = true;
    for (Count i = 0; i < n; ++i) above = above && RealPart(values[i]) > limit;
    *flag = above;
    return status::kSuccess;
}

template Status MatIsPositiveDefinite(const double*, Count, std::uint32_t*) noexcept;
template Status MatIsPositiveDefinite(const ComplexRecord*, Count, std::uint32_t*) noexcept;

}  // namespace quorvan

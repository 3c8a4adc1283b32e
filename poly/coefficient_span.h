// The part of a coefficient array between its zeros, and the checks that come with finding it. T is double or
// ComplexRecord; ascending powers.
#pragma once

#include "frame/status.h"
#include "frame/types.h"
#include "linalg/element.h"
#include "linalg/matrix.h"

namespace quorvan {

// What the searches for multiple roots take for a tolerance when none is given.
inline constexpr double kRootTolerance = 1e-10;

template <class T>
struct CoefficientSpan {
    const T* first;
    Count count;
    Count zeros;  // in front of it: the multiplicity of the root 0
};

// -20003 for n below 1, -20063 for a coefficient that does not pass MatScreen, -20111 for zeros alone, -20021 for a
// constant.
template <class T>
Status FindSpan(const T* c, Count n, CoefficientSpan<T>* span) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    if (MatScreen(c, static_cast<std::size_t>(n))) return status::kInvalidPolynomial;
    Count high = n;
    while (high > 0 && element::Equal(c[high - 1], T{})) --high;
    if (high == 0) return status::kZeroPolynomial;
    if (high == 1) return status::kOrderNotPositive;
    Count zeros = 0;
    while (element::Equal(c[zeros], T{})) ++zeros;
    *span = {c + zeros, high - zeros, zeros};
    return status::kSuccess;
}

// Closes a list of distinct roots by the root 0.
inline void AddZeroRoot(Count zeros, ComplexRecord* roots, Count* multiplicities, Count* count) noexcept {
    if (zeros == 0) return;
    roots[*count] = {0, 0};
    multiplicities[(*count)++] = zeros;
}

}  // namespace quorvan

// The zeros of a polynomial with complex coefficients, one after the other, after K. Madsen, A root-finding algorithm
// based on Newton's method (BIT 13, 1973).
#pragma once

#include "frame/types.h"

namespace quorvan {

// `a` has m coefficients in ascending powers; z takes the m - 1 zeros in the order in which they are found, those at 0
// first, and may be `a` itself. `limit` is the number of failed trials that a search may make at one point. -20003 for
// m below 1; -20063 for a NaN, or when the polynomial has no zero; -20062; -20116 when a derivative becomes NaN. After
// an error the zeros found so far stand in z.
Status PolyZerosComplex(const ComplexRecord* a, Count m, Count limit, ComplexRecord* z) noexcept;

// The same for real coefficients, the highest power first.
Status PolyZeros(const double* c, Count m, ComplexRecord* z) noexcept;

}  // namespace quorvan

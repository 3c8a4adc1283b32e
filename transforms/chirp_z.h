// The chirp-Z transform: samples of the z-transform on a spiral, X[j] = sum over k of x[k] a^-k w^(j k); and its
// inverse.
//
// Checks, in this order: -20003 for n below 1; then, forward, -20061 for a bad method, -20068 for a non-finite and
// -20141 for a zero a, the same for w; inverse, -20068 for a or w, -20141 for a or w, -20008 for m above n. "Zero" is a
// squared magnitude of zero. m below 1 stands for n. -20001 for exhausted memory.
#pragma once

#include "frame/types.h"

namespace quorvan {

enum ChirpZMethod : std::uint32_t { kChirpZDirect = 0, kChirpZBluestein = 1 };

Status TransformChirpZReal(const double* x, Count n, ComplexRecord a, ComplexRecord w, std::uint32_t method, Count m,
                           ComplexRecord* out) noexcept;
Status TransformChirpZComplex(const ComplexRecord* x, Count n, ComplexRecord a, ComplexRecord w, std::uint32_t method,
                              Count m, ComplexRecord* out) noexcept;

// m records from n samples of their transform, into `out`, or over the first m of X where out is null. -20116 where two
// of the nodes w^0 to w^(m-1) coincide: then no output is written.
Status TransformInverseChirpZ(ComplexRecord* X, Count n, ComplexRecord a, ComplexRecord w, ComplexRecord* out,
                              Count m) noexcept;

}  // namespace quorvan

// Direct-form filters on plain coefficient arrays, with the state in the caller's hands.
//
//     a[0] y[t] = b[0] x[t] + b[1] x[t-1] + ... - a[1] y[t-1] - ...
//
// The states hold the last nb - 1 inputs and the last na - 1 outputs, the oldest first; zeros start from rest. y may be
// x. Statuses: -20003 for n, nb or na below 1.
#pragma once

#include "frame/types.h"

namespace quorvan {

// Without feedback, and without a flush of denormals.
Status FilterFir(const double* x, Count n, const double* b, double* inputState, Count nb, double* y) noexcept;
Status FilterFirComplex(const ComplexRecord* x, Count n, const double* b, ComplexRecord* inputState, Count nb,
                        ComplexRecord* y) noexcept;

// With feedback; outputs of the size of the least normal number and below become 0. Without a, without an output state
// or with na below 1 it is the filter without feedback.
Status FilterDirect(const double* x, Count n, const double* a, double* outputState, Count na, const double* b,
                    double* inputState, Count nb, double* y) noexcept;
Status FilterDirectComplex(const ComplexRecord* x, Count n, const double* a, ComplexRecord* outputState, Count na,
                           const double* b, ComplexRecord* inputState, Count nb, ComplexRecord* y) noexcept;

// Forwards and backwards over x between max(na, nb) zeros on both sides: no phase, the square of the amplitude
// response.
Status FilterZeroPhase(const double* x, Count n, const double* a, Count na, const double* b, Count nb,
                       double* y) noexcept;

}  // namespace quorvan

// Smoothing by local polynomials: A. Savitzky and M. J. E. Golay (Anal. Chem. 36, 1964).
#pragma once

#include "frame/types.h"

namespace quorvan {

// For frames of N = 2·side + 1 samples and polynomials of the given order: smoother[N·N], whose row i is the filter for
// the sample at position i of a frame; and, when wanted, derivatives[(order + 1)·N], whose row k gives the coefficient
// of the k-th power of the position, counted from the middle. Weights count by magnitude and may be null. -20063 for an
// order below 1, -20037 for N not above the order, -20046, -20068 for weights that are not finite, -20041 for weights
// that leave the polynomial undetermined, -20001; nothing is written then.
Status SavitzkyGolayDesign(Count order, Count side, const double* weights, Count wantDerivatives, double* smoother,
                           double* derivatives) noexcept;

// The samples at the ends come from the first and the last frame: there is no padding. -20008 for n below N.
Status SavitzkyGolayFilter(const double* x, Count n, Count order, Count side, const double* weights,
                           double* y) noexcept;
Status SavitzkyGolayFilterComplex(const ComplexRecord* x, Count n, Count order, Count side, const double* weights,
                                  ComplexRecord* y) noexcept;

}  // namespace quorvan

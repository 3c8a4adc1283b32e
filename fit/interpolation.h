// Interpolation at one point through all samples, by a polynomial and by a rational function.
#pragma once

#include "frame/types.h"

namespace quorvan {

// The value at `point` of the polynomial of degree n - 1 through the samples, by Neville's scheme; *error is the last
// correction. -20003 for n below 1, -20049 for equal abscissas, -20001; nothing is written then.
Status InterpPolynomial(const double* x, const double* y, Count n, double point, double* result,
                        double* error) noexcept;

// The same with the diagonal rational function of Bulirsch and Stoer; -20050 for a pole at the point.
Status InterpRational(const double* x, const double* y, Count n, double point, double* result, double* error) noexcept;

}  // namespace quorvan

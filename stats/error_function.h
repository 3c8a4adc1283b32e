// The error function and its complement.
#pragma once

#include "frame/types.h"

namespace quorvan {

// erf(x) = 2 / sqrt(pi) * integral from 0 to x of e^(-t^2) dt, and erfc(x) = 1 - erf(x). NaN gives NaN. Always succeed.
//   |x| <= 1      erf = x T(x^2) / U(x^2), erfc = 1 - erf below 1       peak 3.8e-16 (erf), 1.7e-15 (erfc)
//   1 <= |x| < 8  erfc = e^(-x^2) P(|x|) / Q(|x|), erf = 1 - erfc       peak 1.5e-16 (erf), 9.1e-15 (erfc)
//   8 <= |x|      erfc = e^(-x^2) R(|x|) / S(|x|)                       peak 6.6e-14 (erfc): the rounding of x^2
// For x < 0 what stands here for erfc is 2 minus it. From 26.642 on, where e^(-x^2) falls below e^-709.78, erfc is 0.
// Cephes Math Library, S. L. Moshier: erf and erfc.
Status DistErf(double x, double* out) noexcept;
Status DistErfc(double x, double* out) noexcept;

}  // namespace quorvan

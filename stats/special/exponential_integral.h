// The exponential integrals of whole order.
#pragma once

#include <cstdint>

namespace quorvan {

// E_n(x), the integral of e^(-x t) t^-n from 1 to infinity. n < 0, x < 0 and NaN give NaN.
//   x > 709.7827128933   0
//   x = 0                1/(n-1), +Inf for n < 2
//   n = 0                e^-x / x
//   n > 5000             W. Gautschi's asymptotic form in 1/(x+n)                      peak 4.0e-16
//   x > 1                continued fraction, Abramowitz and Stegun 5.1.22, even part   peak 2.6e-15
//   x <= 1               power series, 5.1.12                                          peak 1.5e-15
// Cephes Math Library, S. L. Moshier: expn (Methods and Programs for Mathematical Functions, 1989).
double SpecExpIntegralN(double x, std::int32_t n) noexcept;

}  // namespace quorvan

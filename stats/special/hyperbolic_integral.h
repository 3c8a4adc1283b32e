// The hyperbolic sine and cosine integrals.
#pragma once

namespace quorvan {

// Shi(x), the integral of sinh(t)/t from 0 to x, odd; Chi(x), gamma + ln x + the integral of (cosh(t) - 1)/t from 0 to
// x; at negative x its real part, the value at |x|; -Inf at 0.
//   |x| < 8     power series in x^2                                              peak @H1@
//   |x| < 18    e^x/x times a Chebyshev sum in 1/x (+ gamma + ln x for Chi)      peak @H2@
//   |x| <= 88   the same with its own coefficients                               peak @H3@
//   above       Shi +-Inf, Chi +Inf, deliberately long before they leave the range of a double
// Cephes Math Library, S. L. Moshier: shichi (Methods and Programs for Mathematical Functions, 1989).
double SpecHyperbolicSineIntegral(double x) noexcept;
double SpecHyperbolicCosineIntegral(double x) noexcept;

}  // namespace quorvan

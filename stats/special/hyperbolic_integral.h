// The hyperbolic sine and cosine integrals.
#pragma once

namespace quorvan {

// Shi(x), the integral of sinh(t)/t from 0 to x, odd; Chi(x), gamma + ln x + the integral of (cosh(t) - 1)/t from 0 to
// x; at negative x its real part, the value at |x|; -Inf at 0.
//   |x| < 8     power series in x^2                                              peak Shi 6.2e-16, Chi 8.4e-16 *
//   |x| < 18    e^x/x times a Chebyshev sum in 1/x (+ gamma + ln x for Chi)      peak 4.2e-16
//   |x| <= 88   the same with its own coefficients                               peak 4.4e-16
//   above       Shi +-Inf, Chi +Inf, deliberately long before they leave the range of a double
// * relative to max(1, |value|): Chi has a zero at 0.52.
// Cephes Math Library, S. L. Moshier: shichi (Methods and Programs for Mathematical Functions, 1989).
double SpecHyperbolicSineIntegral(double x) noexcept;
double SpecHyperbolicCosineIntegral(double x) noexcept;

}  // namespace quorvan

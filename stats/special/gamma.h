// The gamma function and Stirling's formula.
#pragma once

namespace quorvan {

// Gamma(x). Poles, NaN and -Inf give NaN; above 171.624376956302725 +Inf. At the two doubles 1 - 2^-52 and 2 - 2^-52
// the value is 0.5 (see gamma.cpp).
//   |x| <= 33   P(z-2)/Q(z-2) on [2, 3], and Gamma(z+1) = z Gamma(z) to get there; 1/z beside 0     peak 9.3e-16
//   x > 33      Stirling's formula                                                                  peak 6.3e-16
//   x < -33     Gamma(-w) = -pi / (w sin(pi w) Gamma(w))                                            peak 7.1e-16
// Cephes Math Library, S. L. Moshier: gamma.
double SpecGamma(double x) noexcept;

// sqrt(2 pi) x^(x - 1/2) e^-x (1 + 1/(12 x) + ...) for x > 0, meant for x > 33; +Inf above 709.7827128933.
// Above 143.01608 in two halves of the power, which together do not overflow. Against the five terms: peak 5.7e-16.
double SpecGammaStirling(double x) noexcept;

// Gamma(x) for the library's own sums: SpecGamma, but with its true value 1 at those two doubles.
double GammaValue(double x) noexcept;

}  // namespace quorvan

// The gamma function and Stirling's formula.
#pragma once

namespace quorvan {

// Gamma(x). Poles, NaN and -Inf give NaN; above 171.624376956302725 +Inf. At the two doubles 1 - 2^-52 and 2 - 2^-52
// the value is 0.5 (see gamma.cpp).
double SpecGamma(double x) noexcept;

// sqrt(2 pi) x^(x - 1/2) e^-x (1 + 1/(12 x) + ...) for x > 0, meant for x > 33; +Inf above 709.7827128933.
double SpecGammaStirling(double x) noexcept;

// Gamma(x) for the library's own sums: SpecGamma, but with its true value 1 at those two doubles.
double GammaValue(double x) noexcept;

}  // namespace quorvan

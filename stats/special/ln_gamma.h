// The logarithm of the gamma function.
#pragma once

namespace quorvan {

// ln|Gamma(x)|; +Inf at the poles and above 2.556348e305.
double SpecLnGamma(double x) noexcept;

// The same with the sign of Gamma(x), 1 or -1 (1 at the poles and for NaN).
double SpecLnGamma(double x, int* sign) noexcept;

// What Stirling's formula lacks: ln Gamma(x) - ((x - 1/2) ln x - x + ln sqrt(2 pi)), for x >= 13.
double LnGammaCorrection(double x) noexcept;

}  // namespace quorvan

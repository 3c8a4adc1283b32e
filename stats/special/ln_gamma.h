// The logarithm of the gamma function.
#pragma once

namespace quorvan {

// ln|Gamma(x)|; +Inf at the poles and above 2.556348e305.
//   -33 <= x < 13   t B(t)/C(t) for Gamma(2 + t), t in [-0.1, 1], and the recurrence to get there
//                   peak 3.5e-16 relative to max(1, |value|); 5.0e-15 relative, right up to the zeros 1 and 2
//   13 <= x         Stirling's formula, the correction to three terms from 1000 on, none above 10^8     peak 4.1e-16
//   x < -33         ln pi - ln(q sin(pi q)) - ln Gamma(q), q = -x, relative to max(1, |value|)          peak 5.2e-16
// Cephes Math Library, S. L. Moshier: lgam.
double SpecLnGamma(double x) noexcept;

// The same with the sign of Gamma(x), 1 or -1 (1 at the poles and for NaN).
double SpecLnGamma(double x, int* sign) noexcept;

// What Stirling's formula lacks: ln Gamma(x) - ((x - 1/2) ln x - x + ln sqrt(2 pi)), for x >= 13.
double LnGammaCorrection(double x) noexcept;

}  // namespace quorvan

// The beta function, and the density that the incomplete beta function is made of.
#pragma once

namespace quorvan {

// B(a, b) = Gamma(a) Gamma(b) / Gamma(a + b); at poles +Inf or NaN, as the Gammas give.
//   |a|, |b|, |a+b| <= 170   Gammas, with the rounding of a + b put back through psi             peak 1.1e-15
//   a, b > 0 beyond          exp of the logarithms of the Gammas taken together                  peak 1.3e-13
//   negative beyond          exp of ln|Gamma| one by one, times the signs                        peak 2.6e-12
double SpecBeta(double a, double b) noexcept;

// x^a (1 - x)^b / B(a, b) for a, b > 0 and 0 < x < 1. Neither power nor Gamma is formed where it would overflow, and no
// large logarithms cancel.
double BetaDensity(double a, double b, double x) noexcept;

// b x - a (1 - x) to full precision, whatever cancels: positive above the mean a/(a + b).
double BetaAboveMean(double a, double b, double x) noexcept;

// The exponent of x^a (1 - x)^b beside its peak at a/(a + b): a ln(x (a+b)/a) + b ln((1-x) (a+b)/b), at most 0.
double BetaBesidePeak(double a, double b, double x) noexcept;

}  // namespace quorvan

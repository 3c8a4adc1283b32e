// The ascending series of Bessel's kind: its leading term and its sum.
#pragma once

namespace quorvan {

// (x/2)^v / Gamma(v + 1) for x > 0 and any v; 0 at the poles of the Gamma function, +-Inf on overflow.
// From v = 13 on as (e x / (2 v))^v / sqrt(2 pi v) with Stirling's correction, the rounding of the base put back, so
// that no large logarithms cancel.
double PowerOverGamma(double x, double v) noexcept;

// The same at v + shift, what the sum rounds put back to first order.
double PowerOverGammaShifted(double x, double v, double shift) noexcept;

// 1 + z/(v+1) + z^2/(2! (v+1)(v+2)) + ...: with z = -x^2/4 and x^2/4 what J and I are over PowerOverGamma(x, v). For
// v > -1; a negative z only as far as little cancels.
double BesselSum(double v, double z) noexcept;

}  // namespace quorvan

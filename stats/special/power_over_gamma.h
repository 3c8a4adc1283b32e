// The leading term of the series of Bessel's kind.
#pragma once

namespace quorvan {

// (x/2)^v / Gamma(v + 1) for x > 0 and any v; 0 at the poles of the Gamma function, +-Inf on overflow.
// From v = 13 on as (e x / (2 v))^v / sqrt(2 pi v) with Stirling's correction, the rounding of the base put back, so
// that no large logarithms cancel.
double PowerOverGamma(double x, double v) noexcept;

// The same at v + shift, what the sum rounds put back to first order.
double PowerOverGammaShifted(double x, double v, double shift) noexcept;

}  // namespace quorvan

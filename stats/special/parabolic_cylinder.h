// The parabolic cylinder function.
#pragma once

namespace quorvan {

// D_v(x) from two reciprocal Gammas and Kummer's series (Abramowitz and Stegun 19.3.1 and 19.12.3), the exponential's
// own terms subtracted one by one. NaN where a sum leaves the range; the accuracy is that of the short Gamma series,
// 2e-9.
double SpecParabolicCylinder(double v, double x) noexcept;

}  // namespace quorvan

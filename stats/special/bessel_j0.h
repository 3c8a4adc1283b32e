// Bessel functions of order 0.
#pragma once

namespace quorvan {

// J0(x); even. +-Inf gives 0.
//   |x| <= 5   (z - j1^2)(z - j2^2) R(z)/S(z), z = x^2, with the squares of the first two zeros      peak 3.9e-16
//   |x| > 5    sqrt(2/(pi x)) (P cos t - Q sin t), t = x - pi/4, P and Q rational in 25/x^2          peak 3.2e-16
// Peaks here and below are relative to the larger of value and envelope sqrt(2/(pi x)).
// Cephes Math Library, S. L. Moshier: j0.
double SpecBesselJ0(double x) noexcept;

// Y0(x). x = 0 gives -Inf, x < 0 NaN, +Inf 0.
//   x <= 5   R(z)/S(z) + (2/pi) ln x J0(x)             peak 2.7e-15, from two terms that cancel above 4
//   x > 5    sqrt(2/(pi x)) (P sin t + Q cos t)        peak 3.8e-16
// Cephes Math Library, S. L. Moshier: j0 (y0).
double SpecBesselY0(double x) noexcept;

}  // namespace quorvan

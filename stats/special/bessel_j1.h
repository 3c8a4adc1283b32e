// Bessel functions of order 1.
#pragma once

namespace quorvan {

// J1(x); odd. +-Inf gives 0.
//   |x| <= 5   x (z - j1^2)(z - j2^2) R(z)/S(z), z = x^2, with the squares of the first two zeros    peak 3.3e-16
//   |x| > 5    sqrt(2/(pi x)) (P cos t - Q sin t), t = x - 3 pi/4, P and Q rational in 25/x^2       peak 3.4e-16
// Peaks here and below are relative to the larger of value and envelope sqrt(2/(pi x)).
// Cephes Math Library, S. L. Moshier: j1.
double SpecBesselJ1(double x) noexcept;

// Y1(x). x = 0 gives -Inf, x < 0 NaN, +Inf 0.
//   x <= 5   x R(z)/S(z) + (2/pi) (ln x J1(x) - 1/x)      peak 1.6e-15, from two terms that cancel above 4
//   x > 5    sqrt(2/(pi x)) (P sin t + Q cos t)           peak 3.8e-16
// Cephes Math Library, S. L. Moshier: j1 (y1).
double SpecBesselY1(double x) noexcept;

}  // namespace quorvan

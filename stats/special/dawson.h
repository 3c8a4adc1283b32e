// Dawson's integral.
#pragma once

namespace quorvan {

// e^(-x^2) times the integral of e^(t^2) from 0 to x; odd.
//   |x| < 3.25   x AN(z)/AD(z), z = x^2                                            peak 4.6e-16
//   |x| < 6.25   (1/x + z BN(z)/(x BD(z)))/2, z = 1/x^2                            peak 5.0e-16
//   |x| <= 1e9   the same with CN, CD; above 1/(2x)                                peak 1.9e-16
// Cephes Math Library, S. L. Moshier: dawsn (Methods and Programs for Mathematical Functions, 1989).
double SpecDawson(double x) noexcept;

}  // namespace quorvan

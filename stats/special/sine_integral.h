// The sine and cosine integrals.
#pragma once

namespace quorvan {

// Si(x), the integral of sin(t)/t from 0 to x, odd; Ci(x), gamma + ln x + the integral of (cos(t) - 1)/t from 0 to x;
// at negative x its real part, the value at |x|; -Inf at 0.
//   |x| <= 4     x SN(z)/SD(z); gamma + ln x + z CN(z)/CD(z), z = x^2                     peak Si 3.6e-16, Ci 6.6e-16 *
//   |x| <= 1e9   pi/2 - f cos x - g sin x; f sin x - g cos x; f and g rational in 1/x^2, apart below 8 and from 8 on
//                                                                                         peak Si 2.2e-16, Ci 1.1e-16 *
//   above        pi/2 - cos(x)/x; sin(x)/x; pi/2 and 0 at infinity
// * relative to max(1, |value|): Ci has zeros.
// Cephes Math Library, S. L. Moshier: sici (Methods and Programs for Mathematical Functions, 1989).
double SpecSineIntegral(double x) noexcept;
double SpecCosineIntegral(double x) noexcept;

}  // namespace quorvan

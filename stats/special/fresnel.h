// The Fresnel integrals.
#pragma once

namespace quorvan {

// S(x) and C(x), the integrals of sin(pi t^2/2) and cos(pi t^2/2) from 0 to x; odd.
//   x^2 < 2.5625   x^3 sn(x^4)/sd(x^4), x cn(x^4)/cd(x^4)                            peak 6.2e-16
//   |x| <= 36974   1/2 + (f sin - g cos)/(pi x), 1/2 - (f cos + g sin)/(pi x) with the auxiliary functions
//                  f = 1 - u fn(u)/fd(u), g = gn(u)/(t gd(u)), t = pi x^2, u = 1/t^2   peak 2.1e-16
//   above          1/2, though what is left out is still 1/(pi x)
// The angle pi x^2/2 is reduced by whole turns without loss.
// Cephes Math Library, S. L. Moshier: fresnl (Methods and Programs for Mathematical Functions, 1989).
void SpecFresnel(double x, double* s, double* c) noexcept;

}  // namespace quorvan

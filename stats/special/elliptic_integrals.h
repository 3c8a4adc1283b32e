// Legendre's elliptic integrals of the first and second kind. The parameter is m = k^2, not the modulus k.
#pragma once

namespace quorvan {

// K(m), the integral of (1 - m sin^2 t)^(-1/2) from 0 to pi/2, and E(m), that of (1 - m sin^2 t)^(1/2), with q = 1 - m:
//   K = P(q) - ln(q) Q(q); for q <= epsilon ln 4 - ln(q)/2; +Inf at m = 1                            peak 2.5e-16
//   E = P(q) - ln(q) q Q(q); 1 at m = 1                                                              peak 2.1e-16
// m outside [0, 1] gives NaN.
// Cephes Math Library, S. L. Moshier: ellpk, ellpe (Methods and Programs for Mathematical Functions, 1989).
double SpecEllipticK(double m) noexcept;
double SpecEllipticE(double m) noexcept;

// The same integrals from 0 to phi, odd in phi. m outside [0, 1] gives NaN, phi = +-Inf the same infinity.
//   reduction      phi = n pi/2 + r, n even, |r| <= pi/2: n K + F(r), n E + E(r)
//   |tan r| > 10   from the other end: with tan e = 1/(sqrt(1-m) tan r), F(r) = K - F(e),
//                  E(r) = E + m sin r sin e - E(e), where |tan e| < 10
//   else           descending Landen transformation by the arithmetic-geometric mean of 1 and sqrt(1-m)
//   |phi| <= 0.015 three terms beyond phi
//   m = 1          F = asinh(tan phi), infinite from pi/2 on; E = sin r + n
// Peak error F 7.5e-16, E 1.8e-15.
// Cephes Math Library, S. L. Moshier: ellik, ellie.
double SpecEllipticF(double phi, double m) noexcept;
double SpecEllipticEIncomplete(double phi, double m) noexcept;

}  // namespace quorvan

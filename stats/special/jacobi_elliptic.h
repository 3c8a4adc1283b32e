// The Jacobian elliptic functions.
#pragma once

namespace quorvan {

// sn(u|m), cn(u|m), dn(u|m), and the amplitude phi with F(phi, m) = u unless `phi` is null. The parameter is m = k^2.
// m outside [0, 1], u = +-Inf (but for m = 1) and NaN give NaN everywhere.
//   m < 1e-9            Abramowitz and Stegun 16.13: sin and cos with a term in m
//   m >= 0.999999999    16.15: tanh and sech with a term in 1 - m; both only while the next term is below the rounding
//   else                arithmetic-geometric mean of 1 and sqrt(1-m), 16.4, with at most nine steps
// Peak error for |u| <= 10: 2.5e-15 up to m = 0.9, 4.6e-15 up to 1 - m = 1e-9, where the arcsine loses 1/sqrt(1 - m);
// in the expansions 1.0e-16 and 1.8e-15; for u up to 30 beside m = 1 1.3e-13. Absolute errors, the values being at
// most 1. Cephes Math Library, S. L. Moshier: ellpj (Methods and Programs for Mathematical Functions, 1989).
void SpecJacobiElliptic(double u, double m, double* sn, double* cn, double* dn, double* phi) noexcept;

}  // namespace quorvan

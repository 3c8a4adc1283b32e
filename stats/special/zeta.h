// The Riemann zeta function minus 1.
#pragma once

namespace quorvan {

// zeta(x) - 1. x = 1 gives +Inf, 127 and above 0, below -30.8148 NaN.
//   x < 0           sin(pi x/2) (2 pi)^x Gamma(1-x) zeta(1-x) / pi - 1    peak 3.0e-15 relative to max(1, |value|)
//   0, 2, ..., 30   a table
//   0 <= x < 1      R(x) / ((1-x) S(x))                                   peak 3.8e-16
//   1 < x <= 10     x P(1/x) / (2^x (x-1) Q(1/x))                         peak 1.1e-15
//   10 < x <= 50    e^(A(x)/B(x)) + 2^-x                                  peak 2.1e-16
//   50 < x < 127    s the sum of odd^-x from 3 on, (s + 2^-x)/(1 - 2^-x)   peak 3.4e-16
// Cephes Math Library, S. L. Moshier: zetac.
double SpecZeta(double x) noexcept;

}  // namespace quorvan

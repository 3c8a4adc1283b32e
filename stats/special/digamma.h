// The digamma function.
#pragma once

namespace quorvan {

// psi(x) = d ln Gamma(x) / dx. 0, negative integers, -Inf and NaN give NaN.
//   n = 1 to 10   -gamma + 1 + 1/2 + ... + 1/(n-1)
//   x > 0         psi(x) = psi(x + 1) - 1/x up to 10, then ln s - 1/(2 s) - sum of B(2k)/(2k s^2k)
//                 peak 9.9e-16 relative to max(1, |value|) below 10, 1.7e-16 above
//   x < 0         psi(1 - x) - pi / tan(pi x)                     peak 1.1e-15 relative to max(1, |value|)
// Cephes Math Library, S. L. Moshier: psi.
double SpecDigamma(double x) noexcept;

}  // namespace quorvan

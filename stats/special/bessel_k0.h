// Modified Bessel functions of the second kind of orders 0 and 1.
#pragma once

namespace quorvan {

// e^x K0(x) and e^x K1(x) for x > 0.
//   x <= 2   a Chebyshev sum in x^2 - 2, and ln(x/2) I0(x) or ln(x/2) I1(x)      peak 1.4e-15 (K0), 7.6e-16 (K1)
//   x > 2    a Chebyshev sum in 8/x - 2, over sqrt x                             peak 2.8e-16
// Cephes Math Library, S. L. Moshier: k0, k1.
double ScaledBesselK0(double x) noexcept;
double ScaledBesselK1(double x) noexcept;

}  // namespace quorvan

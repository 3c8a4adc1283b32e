// Modified Bessel functions of the first kind of orders 0 and 1.
#pragma once

namespace quorvan {

// e^-|x| I0(x) and e^-|x| I1(x), which neither overflow nor underflow to 0.
// Peaks of I0 and I1 themselves: 3.5e-16 and 1.3e-15 to 20, 4.4e-16 beyond.
//   |x| <= 8   a Chebyshev sum in |x|/2 - 2 (times x in order 1)
//   |x| > 8    a Chebyshev sum in 32/|x| - 2, over sqrt|x|
// Cephes Math Library, S. L. Moshier: i0, i1.
double ScaledBesselI0(double x) noexcept;
double ScaledBesselI1(double x) noexcept;

}  // namespace quorvan

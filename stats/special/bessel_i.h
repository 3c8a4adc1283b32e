// The modified Bessel function of the first kind.
#pragma once

namespace quorvan {

// I of real order. Whole orders: I(-n) = I(n), negative x by parity. Other orders: NaN for x < 0. Orders below -200
// give NaN. At 0: 1 for order 0, else 0 (also for broken orders below 0, deliberately). I(v, Inf) = Inf.
//   whole v = 0, 1              Chebyshev sums
//   x^2 <= 4 (v + 1), or a broken order and x < 20
//                               e^-x 1F1(v + 1/2; 2v + 1; 2x) = 1 + (x^2/4)/(v + 1) + ..., which ends for no order
//   x >= 20, x >= v^2/2         Hankel's expansion (A&S 9.7.1)
//   v >= 500                    Debye's expansion (A&S 9.7.7)
//   else                        downward recurrence from order 100 or more (J. C. P. Miller), normalised at order 0, or
//   at the
//                               fraction of the order
//   broken v < 0                I(-v) - (2/pi) sin(pi v) K(-v)
// Peaks: 1.3e-15 for |v| <= 64, 2.2e-15 to 500; above, the rounding of Debye's exponent, 6e-13 to v = 2000. For broken
// orders below 0 relative to the larger of I(v) and I(-v).
// After the Cephes Math Library, S. L. Moshier: iv, i0, i1.
double SpecBesselI(double order, double x) noexcept;

}  // namespace quorvan

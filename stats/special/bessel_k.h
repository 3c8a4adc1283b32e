// The modified Bessel function of the second kind.
#pragma once

#include <cstdint>

namespace quorvan {

// K of whole order. +Inf at 0, NaN below; 0 at infinity.
//   n = 0, 1    Chebyshev sums, cut at x = 2     peak 1.4e-15
//   n <= 1000   upward recurrence                peak 3.9e-15 to n = 100, 4.8e-15 to 999
//   n > 1000    Debye's expansion                peak 9.6e-13 to n = 3000, from the rounding of its exponent
// Cephes Math Library, S. L. Moshier: k0, k1, kn.
double SpecBesselK(std::uint32_t n, double x) noexcept;

// K of real order v >= 0 for 0 < x < Inf. Broken orders come by the same recurrence from the orders beside 0: N. M.
// Temme's series (1975) to 2, the continued fraction of Temme and of I. J. Thompson and A. R. Barnett (1987) to 20,
// Hankel's expansion above.
double PositiveBesselK(double v, double x) noexcept;

}  // namespace quorvan

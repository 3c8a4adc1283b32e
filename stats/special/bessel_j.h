// Bessel functions of the first kind.
#pragma once

namespace quorvan {

// J of real order at real x. Whole orders: negative order and negative x by parity. Other orders: NaN for x < 0.
// At 0: 1 for order 0, 0 for other orders above 0 and whole ones, an infinity for the rest; at infinity 0.
//   x^2 <= 2 (v + 1)           the ascending series
//   x >= 20, x >= v^2/2        Hankel's expansion
//   v >= 2000                  the expansions for large orders
//   whole v                    recurrence, upward from J0 and J1 to v <= x, downward from a continued fraction above
//   other v                    the same from and to the orders beside 0
//   v < 0                      cos(pi v) J(-v) + sin(pi v) Y(-v)
// Peaks, relative to the larger of value and envelope sqrt(2/(pi x)) beyond x = |v|, to the value below: 2.4e-15 for
// |v| <= 100, 7e-15 to 500, 2e-14 to 2000 (recurrences); above, 5e-14 within 0.7 v^(1/3) of the order, elsewhere what
// an exponent or a phase of up to 2 v rounds: 8e-13 to v = 4000, 4e-16 from x = 2 v on. After the Cephes Math Library,
// S. L. Moshier: jv, jn; recurrences as W. Gautschi (1967).
double SpecBesselJ(double order, double x) noexcept;

// The same for order >= 0 and 0 < x < Inf.
double PositiveBesselJ(double v, double x) noexcept;

}  // namespace quorvan

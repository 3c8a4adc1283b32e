// Bessel functions of the second kind.
#pragma once

namespace quorvan {

// Y of real order, for x > 0. Orders below -200 and x < 0 give NaN; x = 0 gives -Inf, +Inf 0. Orders within 1e-8 of a
// whole number count as whole.
//   x >= 20, x >= v^2/2   Hankel's expansion
//   v >= 2000             the expansions for large orders
//   whole v               upward recurrence from Y0 and Y1
//   other v               upward recurrence from the orders beside 0
//   v < 0                 cos(pi v) Y(-v) - sin(pi v) J(-v), with SpecBesselJ the form of (cos(pi v) J(v) - J(-v)) /
//   sin(pi v)
//                         that does not cancel
// Peaks as of SpecBesselJ; 2.8e-15 for |v| <= 100.
// After the Cephes Math Library, S. L. Moshier: yv, yn.
double SpecBesselY(double order, double x) noexcept;

// The same for order >= 0 and 0 < x < Inf, and no rounding to whole orders.
double PositiveBesselY(double v, double x) noexcept;

// The same for any order.
double BesselYOfRealOrder(double v, double x) noexcept;

// Y(v) and Y(v + 1) for v >= 0.
void PositiveBesselYPair(double v, double x, double* at, double* above) noexcept;

}  // namespace quorvan

// Spence's integral.
#pragma once

namespace quorvan {

// -integral from 1 to x of ln t / (t - 1) dt, which is Li2(1 - x). x < 0 and NaN give NaN.
//   0.5 <= x <= 1.5   -w A(w)/B(w), w = x - 1                                  peak 3.3e-15 (beside 1: 2.2e-16)
//   x < 0.5           pi^2/6 - ln x ln(1 - x) - the value at 1 - x             peak 3.3e-15 (below 0.1: 1.2e-16)
//   x > 1.5           -ln^2 x / 2 - the value at 1/x                           peak 3.3e-15 (from 2 on: 2.1e-16)
// Cephes Math Library, S. L. Moshier: spence.
double SpecDilogarithm(double x) noexcept;

}  // namespace quorvan

// Spence's integral.
#pragma once

namespace quorvan {

// -integral from 1 to x of ln t / (t - 1) dt, which is Li2(1 - x). x < 0 and NaN give NaN.
double SpecDilogarithm(double x) noexcept;

}  // namespace quorvan

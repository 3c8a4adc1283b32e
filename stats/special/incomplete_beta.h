// The regularised incomplete beta function.
#pragma once

namespace quorvan {

// I_x(a, b) = integral from 0 to x of t^(a-1) (1-t)^(b-1) dt / B(a, b). a <= 0, b <= 0 or x outside [0, 1] gives NaN.
double SpecIncompleteBeta(double a, double b, double x) noexcept;

}  // namespace quorvan

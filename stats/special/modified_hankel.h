// Hankel's expansion of the modified Bessel functions for large arguments.
#pragma once

namespace quorvan {

// e^-x I(v, x) (kind 1) or e^x K(v, x) (kind -1) for x >= 20 and v^2 <= 2 x:
// 1 - kind (4v^2 - 1)/(8x) + (4v^2 - 1)(4v^2 - 9)/(2! (8x)^2) - kind ..., over sqrt(2 pi x) or times sqrt(pi/(2x)),
// down to the least term (A&S 9.7.1, 9.7.2).
double ScaledModifiedHankel(double v, double x, int kind) noexcept;

}  // namespace quorvan

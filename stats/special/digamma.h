// The digamma function.
#pragma once

namespace quorvan {

// psi(x) = d ln Gamma(x) / dx. 0, negative integers, -Inf and NaN give NaN.
double SpecDigamma(double x) noexcept;

}  // namespace quorvan

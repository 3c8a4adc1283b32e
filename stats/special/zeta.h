// The Riemann zeta function minus 1.
#pragma once

namespace quorvan {

// zeta(x) - 1. x = 1 gives +Inf, 127 and above 0, below -30.8148 NaN.
double SpecZeta(double x) noexcept;

}  // namespace quorvan

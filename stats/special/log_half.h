// ln(x/2), which the second solutions of Bessel's kind carry.
#pragma once

#include <cmath>

namespace quorvan {

// Also where x/2 would lose digits or be 0.
inline double LogHalf(double x) noexcept { return x < 1e-300 ? std::log(x) - 0.69314718055994531 : std::log(0.5 * x); }

}  // namespace quorvan

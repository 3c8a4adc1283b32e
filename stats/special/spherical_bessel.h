// Spherical Bessel functions.
#pragma once

#include <cstdint>

namespace quorvan {

// sqrt(pi/(2x)) J(n + 1/2, x); (-1)^n the same for x < 0. At 0: 1 for n = 0, else 0; at infinity 0. For n <= x and n
// below 100 by the upward recurrence of the products themselves, which begins with sin(x)/x.
double SpecSphericalJ(std::uint32_t n, double x) noexcept;

// sqrt(pi/(2x)) Y(n + 1/2, x). -Inf at 0, NaN below, 0 at infinity. For x >= 1 and n
// below 100 by the same recurrence, which begins with -cos(x)/x.
double SpecSphericalY(std::uint32_t n, double x) noexcept;

}  // namespace quorvan

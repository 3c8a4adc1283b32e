// The Kelvin functions.
#pragma once

#include <cstdint>

#include "frame/types.h"

namespace quorvan {

// ber(n, x) + i bei(n, x) = J(n, x e^(3 pi i/4)) = e^(n pi i/2) I(n, w), w = x e^(pi i/4); (-1)^n the same for x < 0.
//   x <= 10 or x^2 <= 4 (n + 1)   the ascending series (A&S 9.9.9)
//   x >= 20, x >= n^2/2           Hankel's expansion of I, both exponentials (A&S 9.10.1)
//   n >= 160                      Debye's expansion (A&S 9.7.7 for complex z)
//   else                          downward recurrence, normalised by e^w = I(0) + 2 (I(1) + I(2) + ...)
// Peaks, relative to the modulus: 1e-15 for n <= 5, 4.7e-15 to 60, 7e-15 to 159; above, the rounding of Debye's
// exponent, 1.1e-13 to n = 400. At infinity NaN: growing oscillations have no limit.
void SpecKelvinBe(double x, std::uint32_t n, ComplexRecord* out) noexcept;

// ker(n, x) + i kei(n, x) = e^(-n pi i/2) K(n, w). At 0 ker is +Inf for every n, deliberately, and kei has its limit; x
// < 0 gives NaN; at infinity both are 0.
// Peaks: 1.4e-15 for n <= 5, 6.4e-15 to 60, 8e-15 to 159, 7e-14 to 400.
//   x <= 2              the ascending series (A&S 9.9.11, 9.9.12)
//   x >= 20, x >= n^2/2 Hankel's expansion of K (A&S 9.10.3)
//   n <= 1              the continued fraction of K (Temme, 1975; Thompson and Barnett, 1987)
//   1 < n < 160         upward recurrence
//   n >= 160            Debye's expansion (A&S 9.7.8 for complex z)
void SpecKelvinKe(double x, std::uint32_t n, ComplexRecord* out) noexcept;

}  // namespace quorvan

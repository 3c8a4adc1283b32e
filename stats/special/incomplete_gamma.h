// The regularised incomplete gamma functions.
#pragma once

namespace quorvan {

// P(a, x) = integral from 0 to x of t^(a-1) e^-t dt / Gamma(a). a <= 0 or x < 0 gives NaN; x = 0 gives 0, +Inf 1.
double SpecIncompleteGamma(double a, double x) noexcept;

// Q(a, x) = 1 - P(a, x). a <= 0 or x < 0 gives NaN; x = 0 gives 1, +Inf 0.
double SpecIncompleteGammaComplement(double a, double x) noexcept;

}  // namespace quorvan

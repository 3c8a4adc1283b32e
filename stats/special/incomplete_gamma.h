// The regularised incomplete gamma functions.
#pragma once

namespace quorvan {

// P(a, x) = integral from 0 to x of t^(a-1) e^-t dt / Gamma(a). a <= 0 or x < 0 gives NaN; x = 0 gives 0, +Inf 1.
//   x <= 1 or x <= a   the series in x/(a+1), x^2/((a+1)(a+2)), ...            peak 2.2e-15 for a <= 13
//   otherwise          1 - Q                                                   peak 2.1e-15 for a <= 13
//   a >= 10^5          Temme's uniform expansion                               peak 3.3e-15 within 6 deviations of a
// Between 13 and 10^5: peak 8.2e-15 within 6 deviations, growing to 1.4e-13 where the value falls to 1e-150.
// Cephes Math Library, S. L. Moshier: igam; the factor x^a e^-x / Gamma(a) beside its peak as in A. R. DiDonato and
// A. H. Morris (1986).
double SpecIncompleteGamma(double a, double x) noexcept;

// Q(a, x) = 1 - P(a, x). a <= 0 or x < 0 gives NaN; x = 0 gives 1, +Inf 0.
//   x >= 1 and x >= a   Legendre's continued fraction                          peak 8.1e-15 for a <= 13
//   otherwise           1 - P                                                  peak 5.3e-16 relative to 1
//   a >= 10^5           Temme's uniform expansion                              peak 2.5e-15 within 6 deviations of a
// Between 13 and 10^5: peak 4.9e-15 within 6 deviations, growing to 1.1e-13 where the value falls to 1e-150.
// Cephes Math Library, S. L. Moshier: igamc.
double SpecIncompleteGammaComplement(double a, double x) noexcept;

}  // namespace quorvan

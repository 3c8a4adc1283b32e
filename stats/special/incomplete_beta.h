// The regularised incomplete beta function.
#pragma once

namespace quorvan {

// I_x(a, b) = integral from 0 to x of t^(a-1) (1-t)^(b-1) dt / B(a, b). a <= 0, b <= 0 or x outside [0, 1] gives NaN.
//   b x <= 1, x <= 0.95      a power series
//   a, b <= 64               one of two continued fractions, in x below (a-1)/(a+b-2), else in x/(1-x)
//   a or b above 64          the contracted fraction
//   above the mean a/(a+b)   1 - I_(1-x)(b, a); a complement at or below epsilon counts as epsilon
//   a, b >= 10^10            the uniform expansion; one of them huge: the incomplete gamma function
// Peaks: 2.9e-15 for a, b <= 13; 6.1e-14 for a, b <= 64 over all x, 4.2e-15 within 6 deviations of the mean; 4.3e-15
// within 6 deviations up to 10^7; 2.8e-15 for one parameter <= 13 and the other up to 10^6.
// Cephes Math Library, S. L. Moshier: incbet; A. R. DiDonato and A. H. Morris (1992); N. M. Temme (1982).
double SpecIncompleteBeta(double a, double b, double x) noexcept;

}  // namespace quorvan

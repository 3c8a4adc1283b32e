// The hypergeometric function of C. F. Gauss. The argument x stands before the parameters.
#pragma once

namespace quorvan {

// 2F1(a, b; c; x) = 1 + a b/c x + a(a+1) b(b+1)/(c(c+1)) x^2/2! + ..., continued to x <= 1. With d = c - a - b:
//   b = c, a = c                 (1-x)^-a, (1-x)^-b
//   c = 0, -1, ...               +Inf, unless a or b ends the series before
//   a or b = 0, -1, ...          a polynomial, for any x
//   c - a or c - b = 0, -1, ...  (1-x)^d times a polynomial
//   x = 1                        Gamma(c) Gamma(d)/(Gamma(c-a) Gamma(c-b)), infinite for d <= 0
//   x > 1                        NaN, but for polynomials (times a whole power of 1-x)
//   x < cut                      (1-x)^-a 2F1(a, c-b; c; x/(x-1)) or the same with a and b exchanged
//   x > 0.9                      in powers of 1 - x: two terms (Abramowitz and Stegun 15.3.6), or for d within
//                                3.7252902984619132e-09 of a whole number the limit with psi (15.3.10 to 15.3.12)
//   else                         the power series, up to 10,000 terms
// Each sum comes with an estimate of its error; above 4 epsilon (1-x)^d 2F1(c-a, c-b; c; x) and the other forms are
// tried, and the power series in pairs of doubles, and the best is taken. NaN where no digit holds.
// Peak error for |x| < 1 2.3e-14 with |a|, |b|, |c| <= 10 and 7.3e-13 with 40; 6.2e-14 down to x = -1000. Weak beside x
// = 1 where d is near but not at a whole number: 7.7e-9. Cephes Math Library, S. L. Moshier: hyp2f1 (Methods and
// Programs for Mathematical Functions, 1989).
double SpecHyperg2F1(double x, double a, double b, double c) noexcept;  // cut at -0.2

// The same function by the same rules with the cut at -0.5.
double SpecHyperg2F1Transformed(double x, double a, double b, double c) noexcept;

}  // namespace quorvan

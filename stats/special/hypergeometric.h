// The confluent hypergeometric functions of E. E. Kummer and F. G. Tricomi. The argument x stands before the
// parameters.
#pragma once

namespace quorvan {

// 1F1(a; b; x) = 1 + a/b x + a(a+1)/(b(b+1)) x^2/2! + ... (Abramowitz and Stegun 13.1.2).
// b = 0, -1, -2, ... gives +Inf unless a ends the series before the pole, or a = b < 0: e^x. NaN gives NaN.
//   |b - a| < |a|/1000   e^x 1F1(b - a; b; -x) first (13.1.27); also where that is a polynomial
//   |x| >= 40            the asymptotic form first (13.5.1), its estimate of the error taken 30 times
//   else                 the power series
// Each comes with an estimate of its error. Above 4 epsilon (120 epsilon for the asymptotic form) the other forms are
// tried and the best is taken; where cancellation spoils them all, the series is summed again in pairs of doubles.
// Where even that leaves no digit (large parameters, as a = 194, b = 0.6 at x = -193), NaN.
// Peak error 1.4e-14 for |x| <= 40 and |a|, b <= 20 and 1.5e-13 for |x| <= 700; 1.3e-7 for |x|, |a|, |b| <= 50, where
// parameters of opposite signs are weak.
// Cephes Math Library, S. L. Moshier: hyperg (Methods and Programs for Mathematical Functions, 1989).
double SpecHyperg1F1(double x, double a, double b) noexcept;

}  // namespace quorvan

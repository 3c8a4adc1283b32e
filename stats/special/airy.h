// The Airy functions.
#pragma once

namespace quorvan {

struct AiryValues {
    double ai, bi, ai_slope, bi_slope;
};

// Ai(x), Bi(x) and, where the two further addresses are not null, Ai'(x) and Bi'(x). NaN makes all of them NaN.
// Above 103.892: Ai = 0, Bi = +Inf; at -Inf all are 0.
//   x < -2.09       sines and cosines of zeta + pi/4, zeta = (2/3) |x|^(3/2), with rational amplitudes in 1/zeta^2
//                   peak 3.4e-16 of the envelope
//   |x| <= 2.09     Ai = c1 f - c2 g, Bi = sqrt 3 (c1 f + c2 g), the Maclaurin series (A&S 10.4.2 to 10.4.5)
//                   peak 1.3e-15 below 0; above, Bi 4.1e-16, and Ai 4.9e-16, from 0.5 on in
//                   double-doubles, as c1 f and c2 g cancel by up to 35
//   x > 2.09        Ai = e^-zeta / (2 sqrt pi x^(1/4)) times a rational function of 1/zeta; Bi by the series to
//                   8.3203353, by e^zeta / (sqrt pi x^(1/4)) from there
//                   peak 4.7e-16, of Bi's series 1.3e-15
// zeta is carried with its rounding error, so that neither phase nor exponent loses digits as |x| grows.
// Cephes Math Library, S. L. Moshier: airy.
void SpecAiry(double x, double* ai, double* bi, double* ai_slope, double* bi_slope) noexcept;

// The same at x = +-(3 zeta / 2)^(2/3), for callers that know zeta better than x.
AiryValues AiryOfZeta(double x, double zeta, double zeta_rest) noexcept;

}  // namespace quorvan

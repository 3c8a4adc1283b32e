// The Struve function.
#pragma once

namespace quorvan {

// H of real order. Whole orders: negative x by parity, (-1)^(v+1). Other orders: NaN for x < 0. At 0 and infinity the
// limit (from above): 0 above order -1, 2/pi at -1, an infinity or 0 below; at infinity 0 below order 1, 2/pi at 1.
//   v = -n - 1/2    (-1)^n J(n + 1/2, x)
//   power           (x/2)^(v+1) / (Gamma(3/2) Gamma(v+3/2)) 1F2(1; 3/2, v + 3/2; -x^2/4), summed in double-doubles
//   asymptotic      Y(v, x) + (x/2)^(v-1) / (sqrt pi Gamma(v+1/2)) 3F0(1, 1/2, 1/2 - v; -4/x^2), to its least term
//   Bessel series   sqrt(x/(2 pi)) sum of (x/2)^k / (k! (k + 1/2)) J(v + k + 1/2, x) (DLMF 11.4.19)
// The power series serves where its estimate of the error is below 1e-15; beyond, from x = 18 on, the smaller estimate
// decides, and the asymptotic form alone where x > 40 and x > 1.5 |v|. Where both fail, below the order, the third
// serves. Peaks, relative to the larger of value and sqrt(2/(pi x)): 8e-16 for |v| <= 150; 3.3e-14 for v to 1000 at x <
// v. After the Cephes Math Library, S. L. Moshier: struve.
double SpecStruve(double order, double x) noexcept;

}  // namespace quorvan

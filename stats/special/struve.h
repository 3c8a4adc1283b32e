// The Struve function.
#pragma once

namespace quorvan {

// H of real order. Whole orders: negative x by parity, (-1)^(v+1). Other orders: NaN for x < 0. At 0 and infinity the
// limit (from above): 0 above order -1, 2/pi at -1, an infinity or 0 below; at infinity 0 below order 1, 2/pi at 1.
//   v = -n - 1/2    (-1)^n J(n + 1/2, x)
//   power           (x/2)^(v+1) / (Gamma(3/2) Gamma(v+3/2)) 1F2(1; 3/2, v + 3/2; -x^2/4), summed in double-doubles
//   asymptotic      Y(v, x) + (x/2)^(v-1) / (sqrt pi Gamma(v+1/2)) 3F0(1, 1/2, 1/2 - v; -4/x^2), to its least term
//   Bessel series   sqrt(x/(2 pi)) sum of (x/2)^k / (k! (k + 1/2)) J(v + k + 1/2, x) (DLMF 11.4.19)
// The first serves below x = 18, the second where x > 30 and x > 1.5 |v|; elsewhere the smaller estimate of the error
// decides. Where both fail, below the order, the third serves.
// After the Cephes Math Library, S. L. Moshier: struve.
double SpecStruve(double order, double x) noexcept;

}  // namespace quorvan

#include "stats/special/ln_gamma.h"

#include <cmath>
#include <limits>

#include "frame/types.h"
#include "stats/special/polynomial.h"

namespace quorvan {
namespace {

constexpr double kInf = std::numeric_limits<double>::infinity();
constexpr double kLnPi = 1.1447298858494002;
constexpr double kLnSqrtTwoPi = 0.9189385332046728;

// Gamma(u) with u = x + shift in [2, 3): u (u+1) ... below 2, u-1, u-2, ... from 3 up. The product of the divisors is
// kept apart, so that the logarithm of a tiny x is taken of x itself, and is exact near 1.
double ShiftedLnGamma(double x, int* sign) noexcept {
    // ln Gamma(2 + t) = t B(t)/C(t) on [0, 1]. Cephes Math Library, S. L. Moshier: lgam.
    static constexpr double kB[] = {-1.37825152569120859100E3, -3.88016315134637840924E4, -3.31612992738871184744E5,
                                    -1.16237097492762307383E6, -1.72173700820839662146E6, -8.53555664245765465627E5};
    static constexpr double kC[] = {-3.51815701436523470549E2, -1.70642106651881159223E4, -2.20528590553854454839E5,
                                    -1.13933444367982507207E6, -2.53252307177582951285E6, -2.01889141433532773231E6};
    double product = 1, divisor = 1, shift = 0, u = x;
    while (u >= 3) {
        shift -= 1;
        u = x + shift;
        product *= u;
    }
    while (u < 1.9) {
        if (u == 0) return kInf;
        divisor *= u;
        shift += 1;
        u = x + shift;
    }
    if (divisor < 0) *sign = -1;
    const double logarithm = shift > 0 ? 0 - std::log(std::fabs(divisor)) : std::log(product);
    const double t = x + (shift - 2);
    return logarithm + t * Polynomial(t, kB) / MonicPolynomial(t, kC);
}

double AsymptoticLnGamma(double x) noexcept {
    if (x > 2.556348e305) return kInf;
    const double stirling = (x - 0.5) * std::log(x) - x + kLnSqrtTwoPi;
    return x > 1e8 ? stirling : stirling + LnGammaCorrection(x);
}

}  // namespace

double LnGammaCorrection(double x) noexcept {
    // Cephes Math Library, S. L. Moshier: lgam, table A; from 1000 on Stirling's own coefficients.
    static constexpr double kA[] = {8.11614167470508450300E-4, -5.95061904284301438324E-4, 7.93650340457716943945E-4,
                                    -2.77777777730099687205E-3, 8.33333333333331927722E-2};
    static constexpr double kShort[] = {7.9365079365079365e-4, -2.7777777777777778e-3, 1.0 / 12};
    const double w = 1 / x, p = w * w;
    return w * (x >= 1000 ? Polynomial(p, kShort) : Polynomial(p, kA));
}

double SpecLnGamma(double x, int* sign) noexcept {
    *sign = 1;
    if (std::isnan(x)) return x;
    if (x >= 13) return AsymptoticLnGamma(x);
    if (x >= -33) return ShiftedLnGamma(x, sign);

    // Gamma(-q) = -pi / (q sin(pi q) Gamma(q)), the sine taken at the distance to the nearest integer.
    const double q = -x, whole = std::floor(q);
    if (whole == q) return kInf;
    if (std::fmod(whole, 2) == 0) *sign = -1;
    double z = q - whole;
    if (z > 0.5) z = whole + 1 - q;
    z = q * std::sin(kPi * z);
    if (z == 0) return kInf;
    return kLnPi - std::log(z) - AsymptoticLnGamma(q);
}

double SpecLnGamma(double x) noexcept {
    int sign;
    return SpecLnGamma(x, &sign);
}

}  // namespace quorvan

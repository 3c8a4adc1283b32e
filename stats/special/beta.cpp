#include "stats/special/beta.h"

#include <cmath>

#include "frame/types.h"
#include "stats/special/digamma.h"
#include "stats/special/double_double.h"
#include "stats/special/gamma.h"
#include "stats/special/ln_gamma.h"
#include "stats/special/log_remainder.h"

namespace quorvan {
namespace {

// Stirling's formula with its correction serves from here on.
constexpr double kStirling = 13;

// Gammas that are neither infinite nor flushed to 0. 0 itself belongs here: its Gamma is the NaN of the pole.
bool Moderate(double x) noexcept { return std::fabs(x) <= 170 && (std::fabs(x) > 1e-300 || x == 0); }

// ln(Gamma(p + q) / Gamma(q)) for p >= 0, q >= 13, short of p ln(p + q):
// (q - 1/2) ln(1 + p/q) - p, and the difference of the corrections.
double LnGammaRatio(double p, double q) noexcept {
    const double ratio = p / q;
    return q * LogRemainder(ratio) - 0.5 * std::log1p(ratio) + LnGammaCorrection(p + q) - LnGammaCorrection(q);
}

// ln(1 + mu) - mu with 1 + mu = x (1 + ratio); far below the peak of x itself, as little is left of 1 + mu.
double PartBesidePeak(double mu, double x, double ratio) noexcept {
    return mu > -0.7 ? LogRemainder(mu) : std::log(x * (1 + ratio)) - mu;
}

double PeakCorrection(double a, double b) noexcept {
    return LnGammaCorrection(a) + LnGammaCorrection(b) - LnGammaCorrection(a + b);
}

// What ln Gamma(a + b) lacks because the sum was rounded, to first order; 0 where first order is not enough.
double LnGammaSlip(double a, double b) noexcept {
    const DoubleDouble sum = ExactSum(a, b);
    if (!(sum.low != 0 && std::fabs(sum.low) < 1e-10)) return 0;
    const double slip = sum.low * SpecDigamma(sum.high);
    return std::fabs(slip) < 1e-3 ? slip : 0;
}

// 0 < p <= q, q >= 13: the logarithms of the Gammas taken together, where the large ones cancel.
double PositiveBeta(double p, double q) noexcept {
    if (std::isinf(q)) return 0;
    const double sum = p + q;
    if (p < kStirling) return GammaValue(p) * std::exp(-(p * std::log(sum) + LnGammaRatio(p, q)));
    const double exponent = -p * std::log1p(q / p) - q * std::log1p(p / q) + PeakCorrection(p, q);
    return std::exp(exponent) * std::sqrt(kTwoPi / p) * std::sqrt(1 + p / q);
}

}  // namespace

double SpecBeta(double a, double b) noexcept {
    const double sum = a + b;
    if (std::isnan(a) || std::isnan(b)) return sum;
    const double large = a > b ? a : b, small = a > b ? b : a;
    const bool moderate = Moderate(a) && Moderate(b) && Moderate(sum);
    if (!moderate && small > 0 && large >= kStirling) return PositiveBeta(small, large);
    const double slip = LnGammaSlip(large, small);
    if (moderate) return GammaValue(large) / GammaValue(sum) * GammaValue(small) * (1 - slip);
    int sign_sum, sign_large, sign_small;
    const double ln_sum = SpecLnGamma(sum, &sign_sum);
    const double ln_large = SpecLnGamma(large, &sign_large);
    const double ln_small = SpecLnGamma(small, &sign_small);
    return sign_sum * sign_large * sign_small * std::exp(ln_small + (ln_large - ln_sum) - slip);
}

double BetaAboveMean(double a, double b, double x) noexcept {
    // What rounding took from the products and from 1 - x goes back.
    const double y = 1 - x, lost = (1 - y) - x;
    const double bx = b * x, ay = a * y;
    return (bx - ay) + (std::fma(b, x, -bx) - std::fma(a, y, -ay) - a * lost);
}

double BetaBesidePeak(double a, double b, double x) noexcept {
    // With d = b x - a (1-x): x (a+b)/a = 1 + d/a and (1-x) (a+b)/b = 1 - d/b, and the linear terms of the two
    // logarithms cancel.
    const double d = BetaAboveMean(a, b, x);
    return a * PartBesidePeak(d / a, x, b / a) + b * PartBesidePeak(-d / b, 1 - x, a / b);
}

double BetaDensity(double a, double b, double x) noexcept {
    const double sum = a + b;
    if (a >= kStirling && b >= kStirling) {
        // sqrt(a b / (2 pi (a + b))) at the peak.
        const double least = a < b ? a : b, most = a < b ? b : a;
        return std::exp(BetaBesidePeak(a, b, x) - PeakCorrection(a, b)) *
               std::sqrt(least / kTwoPi / (1 + least / most));
    }
    const double y = 1 - x, lost = (1 - y) - x;
    if (a < kStirling && b < kStirling) {
        return std::pow(x, a) * std::pow(y, b) * (1 + b * lost / y) / SpecBeta(a, b);
    }
    // p the small parameter with its variable u, q the large one with ln v.
    const bool a_small = a < b;
    const double p = a_small ? a : b, q = a_small ? b : a;
    const double u = a_small ? x : y;
    const double ln_v = a_small ? std::log1p(-x) : std::log(x);
    if (u * sum > 1e5) return 0;  // v^q is below e^-100000
    return std::pow(u * sum, p) * std::exp(q * ln_v + LnGammaRatio(p, q)) * p / GammaValue(p + 1);
}

}  // namespace quorvan

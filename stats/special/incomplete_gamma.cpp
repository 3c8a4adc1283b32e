#include "stats/special/incomplete_gamma.h"

#include <cmath>
#include <limits>

#include "frame/types.h"
#include "stats/special/gamma.h"
#include "stats/special/ln_gamma.h"
#include "stats/special/log_remainder.h"
#include "stats/special/polynomial.h"

namespace quorvan {
namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kBig = 144115188075855872.0;  // 2^57

// Where x^a e^-x / Gamma(a) falls below 1 / (largest double) it counts as 0.
constexpr double kLeastFactor = 5.562684646268003e-309;

// From here on, near x = a, sum and fraction would take more than a thousand terms, without end for a huge a.
constexpr double kLargeOrder = 1e5;

// a (ln(x/a) - (x - a)/a): the exponent of x^a e^-x beside its peak a^a e^-a.
double BesidePeak(double a, double x) noexcept {
    const double mu = (x - a) / a;
    return a * (mu < -0.7 ? std::log(x / a) - mu : LogRemainder(mu));
}

// x^a e^-x / Gamma(a + 1). From a = 13 on against the peak, so that no large logarithms cancel.
double CommonFactor(double a, double x) noexcept {
    if (a >= 13) return std::exp(BesidePeak(a, x) - LnGammaCorrection(a)) / std::sqrt(kTwoPi * a);
    if (x > 2000) return 0;
    const double half = std::exp(-0.5 * x);
    return std::pow(x, a) * half * half / GammaValue(a + 1);
}

// P: x^a e^-x / Gamma(a+1) (1 + x/(a+1) + x^2/((a+1)(a+2)) + ...), for x <= 1 or x <= a.
double Series(double a, double x) noexcept {
    const double factor = CommonFactor(a, x);
    if (factor < kLeastFactor) return 0;
    double r = a, term = 1, sum = 1;
    do {
        r += 1;
        term *= x / r;
        sum += term;
    } while (term > kEpsilon * sum);
    return factor * sum;
}

// Q: x^a e^-x / Gamma(a) times Legendre's continued fraction, for x >= 1 and x >= a.
double Fraction(double a, double x) noexcept {
    const double factor = a * CommonFactor(a, x);
    if (factor < kLeastFactor) return 0;
    double y = 1 - a, z = x + y + 1, c = 0;
    double p2 = 1, q2 = x, p1 = x + 1, q1 = z * x;
    double value = p1 / q1;
    bool settled = false;
    do {
        c += 1;
        y += 1;
        z += 2;
        const double yc = y * c;
        const double p = p1 * z - p2 * yc, q = q1 * z - q2 * yc;
        if (q != 0) {
            const double r = p / q;
            settled = !(std::fabs(value - r) > kEpsilon * std::fabs(r));  // NaN too
            value = r;
        }
        p2 = p1;
        p1 = p;
        q2 = q1;
        q1 = q;
        if (std::fabs(p) > kBig) {
            p2 /= kBig;
            p1 /= kBig;
            q2 /= kBig;
            q1 /= kBig;
        }
    } while (!settled);
    return factor * value;
}

// Temme's expansion, uniform in x, for large a (N. M. Temme, 1979; coefficients by the recurrence of DLMF 8.12.12).
// With eta^2/2 = x/a - 1 - ln(x/a): Q = erfc(eta sqrt(a/2))/2 + R, P = erfc(-eta sqrt(a/2))/2 - R, R = e^(-a eta^2/2) /
// sqrt(2 pi a) (c0(eta) + c1(eta)/a + c2(eta)/a^2 + ...). From a = 10^5 on, |eta| is below 0.12 wherever R is not 0.
// `side` is 1 for Q, -1 for P.
double Uniform(double a, double x, double side) noexcept {
    static constexpr double kC0[] = {-281.0 / 151559100, -571.0 / 261273600, 1.0 / 25515, -139.0 / 777600, 1.0 / 2835,
                                     1.0 / 864,          -2.0 / 135,         1.0 / 12,    -1.0 / 3};
    static constexpr double kC1[] = {1.0 / 4860, -77.0 / 77760, 1.0 / 378, -1.0 / 288, -1.0 / 540};
    static constexpr double kC2[] = {1.0 / 1296, -139.0 / 51840, 25.0 / 6048};
    const double exponent = -BesidePeak(a, x);
    if (exponent > 800) return (x > a) == (side > 0) ? 0 : 1;
    const double eta = std::copysign(std::sqrt(2 * exponent / a), x - a);
    const double c = Polynomial(eta, kC0) + (Polynomial(eta, kC1) + Polynomial(eta, kC2) / a) / a;
    const double rest = std::exp(-exponent) / std::sqrt(kTwoPi) / std::sqrt(a) * c;
    return 0.5 * std::erfc(side * std::copysign(std::sqrt(exponent), eta)) + side * rest;
}

// A fault, an end or a NaN: what both functions answer before any sum. True when `value` holds the answer for P.
bool Settled(double a, double x, double* value) noexcept {
    if (!(a > 0 && x >= 0)) {  // NaN too
        *value = kNaN;
    } else if (x == 0) {
        *value = 0;
    } else if (std::isinf(x)) {
        *value = std::isinf(a) ? kNaN : 1;
    } else if (std::isinf(a)) {
        *value = 0;
    } else {
        return false;
    }
    return true;
}

}  // namespace

double SpecIncompleteGamma(double a, double x) noexcept {
    double end;
    if (Settled(a, x, &end)) return end;
    if (a >= kLargeOrder) return Uniform(a, x, -1);
    return x <= 1 || x <= a ? Series(a, x) : 1 - Fraction(a, x);
}

double SpecIncompleteGammaComplement(double a, double x) noexcept {
    double end;
    if (Settled(a, x, &end)) return 1 - end;
    if (a >= kLargeOrder) return Uniform(a, x, 1);
    return x >= 1 && x >= a ? Fraction(a, x) : 1 - Series(a, x);
}

}  // namespace quorvan

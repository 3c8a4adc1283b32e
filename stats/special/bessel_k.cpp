#include "stats/special/bessel_k.h"

#include <cmath>
#include <limits>

#include "frame/types.h"
#include "stats/special/bessel_k0.h"
#include "stats/special/debye.h"
#include "stats/special/log_half.h"
#include "stats/special/modified_hankel.h"
#include "stats/special/temme.h"
#include "stats/special/times_exp.h"

namespace quorvan {
namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInf = std::numeric_limits<double>::infinity();
constexpr double kLargeOrder = 1000;

// Temme (1975): K(mu) = sum c_k f_k, K(mu+1) = (2/x) sum c_k (p_k - k f_k), c_k = (x^2/4)^k / k!.
void Series(double mu, double x, double* at, double* beyond) noexcept {
    const TemmeGamma gamma = TemmeGammaOf(mu);
    const double logarithm = -LogHalf(x), sigma = mu * logarithm, angle = kPi * mu;
    const double reflect = std::fabs(angle) < 1e-8 ? 1 : angle / std::sin(angle);
    const double power = std::pow(0.5 * x, -mu);
    const Hyperbolic hyperbolic = HyperbolicOf(sigma, power);
    double f = reflect * (hyperbolic.cosine * gamma.gamma1 + hyperbolic.sine_ratio * logarithm * gamma.gamma2);
    double p = 0.5 * power * gamma.plus, q = 0.5 * gamma.minus / power;
    const double z = 0.25 * x * x;
    double c = 1, sum = f, above = p;
    for (int k = 1; k < 60; ++k) {
        f = (k * f + p + q) / (k * k - mu * mu);
        p /= k - mu;
        q /= k + mu;
        c *= z / k;
        sum += c * f;
        above += c * (p - k * f);
        if (c * f <= 0.25 * kEpsilon * sum) break;
    }
    *at = sum;
    *beyond = 2 / x * above;
}

// The continued fraction of K'/K (A&S 9.6.1 in the form of a minimal solution of U's recurrence), its normalising sum
// gathered on the way: Temme (1975), Thompson and Barnett (1987).
void Fraction(double mu, double x, double* at, double* above) noexcept {
    const double a1 = 0.25 - mu * mu;
    double b = 2 * (1 + x), d = 1 / b, h = d, step = d, q1 = 0, q2 = 1, q = a1, c = a1, a = -a1, s = 1 + q * step;
    for (int k = 2; k < 500; ++k) {
        a -= 2 * (k - 1);
        c = -a * c / k;
        const double next = (q1 - b * q2) / a;
        q1 = q2;
        q2 = next;
        q += c * next;
        b += 2;
        d = 1 / (b + a * d);
        step *= b * d - 1;
        h += step;
        const double change = q * step;
        s += change;
        if (std::fabs(change) <= 0.25 * kEpsilon * std::fabs(s)) break;
    }
    *at = std::sqrt(kPi / (2 * x)) / s;
    *above = *at * (mu + x + 0.5 - a1 * h) / x;
}

// e^x K(mu, x) and e^x K(mu + 1, x) for |mu| <= 1/2.
void ScaledLowOrderK(double mu, double x, double* at, double* above) noexcept {
    if (mu == 0) {
        *at = ScaledBesselK0(x);
        *above = ScaledBesselK1(x);
    } else if (x <= 2) {
        Series(mu, x, at, above);
        const double e = std::exp(x);
        *at *= e;
        *above *= e;
    } else if (x < 20) {
        Fraction(mu, x, at, above);
    } else {
        *at = ScaledModifiedHankel(mu, x, -1);
        *above = ScaledModifiedHankel(mu + 1, x, -1);
    }
}

}  // namespace

double PositiveBesselK(double v, double x) noexcept {
    if (v > kLargeOrder) return DebyeModified(v, x, -1);
    const double steps = std::floor(v + 0.5), mu = v - steps;
    double at, above;
    ScaledLowOrderK(mu, x, &at, &above);
    int exponent = 0;
    for (int k = 1; k <= steps; ++k) {
        const double next = 2 * (mu + k) / x * above + at;
        at = above;
        above = next;
        if (above > 0x1p500) {
            if (std::isinf(above) && k < steps) return kInf;
            if (std::isinf(above)) break;
            at *= 0x1p-500;
            above *= 0x1p-500;
            exponent += 500;
        }
    }
    return TimesExp(at, -x, exponent);
}

double SpecBesselK(std::uint32_t n, double x) noexcept {
    if (std::isnan(x) || x < 0) return kNaN;
    if (x == 0) return kInf;
    if (x == kInf) return 0;
    if (n <= 1) return TimesExp(n == 0 ? ScaledBesselK0(x) : ScaledBesselK1(x), -x);
    return PositiveBesselK(n, x);
}

}  // namespace quorvan

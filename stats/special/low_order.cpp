// J and Y for orders in [-1/2, 1/2] and one above.
#include <cmath>

#include "frame/complex.h"
#include "frame/types.h"
#include "stats/special/bessel_pair.h"
#include "stats/special/log_half.h"
#include "stats/special/power_over_gamma.h"
#include "stats/special/temme.h"

namespace quorvan {
namespace {

constexpr double kTwoOverPi = 0.63661977236758134308;

// Temme (1976): Y(mu) = -sum c_k g_k, Y(mu+1) = -(2/x) sum c_k h_k, c_k = (-x^2/4)^k / k!.
BesselPairs Series(double mu, double x) noexcept {
    const TemmeGamma gamma = TemmeGammaOf(mu);
    const double logarithm = -LogHalf(x), sigma = mu * logarithm;
    const double angle = kPi * mu, half_sine = std::sin(0.5 * angle);
    const double reflect = std::fabs(angle) < 1e-8 ? 1 : angle / std::sin(angle);
    const double turn = std::fabs(mu) < 1e-150 ? 0 : 2 / mu * half_sine * half_sine;
    const double power = std::pow(0.5 * x, -mu);
    const Hyperbolic hyperbolic = HyperbolicOf(sigma, power);  // (x/2)^-mu
    double f =
        kTwoOverPi * reflect * (hyperbolic.cosine * gamma.gamma1 + hyperbolic.sine_ratio * logarithm * gamma.gamma2);
    double p = power * gamma.plus / kPi, q = gamma.minus / (power * kPi);
    const double z = -0.25 * x * x;
    double c = 1, y = f + turn * q, above = p;
    for (int k = 1; k < 60; ++k) {
        f = (k * f + p + q) / (k * k - mu * mu);
        p /= k - mu;
        q /= k + mu;
        c *= z / k;
        const double term = c * (f + turn * q), term_above = c * (p - k * (f + turn * q));
        y += term;
        above += term_above;
        if (std::fabs(term) <= 0.5 * kEpsilon * std::fabs(y) &&
            std::fabs(term_above) <= 0.5 * kEpsilon * std::fabs(above))
            break;
    }
    const double j = BesselSum(mu, z) / (power * gamma.plus);
    const double j_above = BesselSum(mu + 1, z) * 0.5 * x / (power * gamma.plus * (1 + mu));
    return {{j, -y}, {j_above, -2 / x * above}};
}

// J'/J and Y'/Y come together in p + iq = (J' + iY')/(J + iY) = -1/(2x) + i + (i/x) (1/4 - mu^2)/(2(x + i) +
// (9/4 - mu^2)/(2(x + 2i) + ...)), taken from its tail.
ComplexRecord SteedFraction(double mu, double x) noexcept {
    const int levels = 12 + static_cast<int>(130 / x);
    ComplexRecord tail{0, 0};
    for (int k = levels; k >= 1; --k) {
        const double a = (k - 0.5 - mu) * (k - 0.5 + mu);
        const double re = 2 * x + tail.re, im = 2 * k + tail.im, scale = a / (re * re + im * im);
        tail = {re * scale, -im * scale};
    }
    return {-0.5 / x - tail.im / x, 1 + tail.re / x};
}

// 2 <= x < 20. The downward recurrence gives J up to a factor c; Y = ((p - mu/x) J(mu) + J(mu+1)) / q has the same
// one, and q (J^2 + Y^2) = 2/(pi x) tells it.
BesselPairs Middle(double mu, double x) noexcept {
    double above = 0, at = 1e-200;
    for (int k = static_cast<int>(x) + 44; k >= 1; --k) {
        const double below = 2 * (mu + k) / x * at - above;
        above = at;
        at = below;
    }
    const ComplexRecord pq = SteedFraction(mu, x);
    double y = ((pq.re - mu / x) * at + above) / pq.im;
    // at stays far below the root of the largest double, but its square may not.
    const double size = std::fmax(std::fabs(at), std::fabs(y)), a = at / size, b = y / size;
    const double c = std::sqrt(kTwoOverPi / (x * pq.im * (a * a + b * b))) / size;
    at *= c;
    y *= c;
    return {{at, y}, {above * c, (mu / x - pq.re) * y - pq.im * at}};
}

}  // namespace

BesselPairs LowOrderPairs(double mu, double x) noexcept {
    if (mu == -0.5) {  // in closed form
        const double factor = std::sqrt(kTwoOverPi) / std::sqrt(x), s = factor * std::sin(x), c = factor * std::cos(x);
        return {{c, s}, {s, -c}};
    }
    if (x < 2) return Series(mu, x);
    if (x < 20) return Middle(mu, x);
    return {HankelPair(mu, x), HankelPair(mu + 1, x)};
}

}  // namespace quorvan

#include "stats/special/jacobi_elliptic.h"

#include <cmath>
#include <limits>

#include "frame/types.h"

namespace quorvan {
namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
// The expansions keep the first term in their small quantity; its square has to stay below the rounding.
constexpr double kNegligibleSquare = 1e-8;

struct Jacobi {
    double sn, cn, dn, phi;
};

Jacobi NearCircular(double s, double c, double m, double u, double shift) noexcept {
    return {s - shift * c, c + shift * s, 1 - 0.5 * m * s * s, u - shift};
}

Jacobi NearHyperbolic(double u, double q) noexcept {
    const double cosh = std::cosh(u), sinh = std::sinh(u), t = std::tanh(u), quarter = 0.25 * q;
    if (q == 0) return {t, 1 / cosh, 1 / cosh, std::atan(sinh)};
    const double w = cosh * sinh;
    return {t + quarter * (w - u) / (cosh * cosh), 1 / cosh - quarter * t / cosh * (w - u),
            1 / cosh + quarter * t / cosh * (w + u), std::atan(sinh) + quarter * (w - u) / cosh};
}

// phi_n = 2^n a_n u, then sin(2 phi_(k-1) - phi_k) = (c_k/a_k) sin phi_k down to phi_0.
Jacobi ByMean(double u, double m) noexcept {
    constexpr int kMost = 9;
    double a[kMost + 1], c[kMost + 1];
    double b = std::sqrt(1 - m), power = 1;
    a[0] = 1;
    c[0] = std::sqrt(m);
    int n = 0;
    while (n < kMost && std::fabs(c[n] / a[n]) > kEpsilon) {
        c[n + 1] = 0.5 * (a[n] - b);
        a[n + 1] = 0.5 * (a[n] + b);
        b = std::sqrt(a[n] * b);
        power += power;
        ++n;
    }
    double phi = power * a[n] * u;
    for (; n > 0; --n) phi = 0.5 * (std::asin(c[n] * std::sin(phi) / a[n]) + phi);
    const double cn = std::cos(phi);
    // dn^2 = 1 - m sn^2, in two terms of one sign.
    return {std::sin(phi), cn, std::sqrt((1 - m) + m * cn * cn), phi};
}

Jacobi Evaluate(double u, double m) noexcept {
    if (std::isnan(u) || !(m >= 0 && m <= 1)) return {kNaN, kNaN, kNaN, kNaN};
    if (m == 1 && std::isinf(u)) return {std::copysign(1, u), 0, 0, std::copysign(0.5 * kPi, u)};
    if (std::isinf(u)) return {kNaN, kNaN, kNaN, kNaN};
    if (m < 1e-9) {
        const double s = std::sin(u), c = std::cos(u), shift = 0.25 * m * (u - s * c);
        if (std::fabs(shift) <= kNegligibleSquare) return NearCircular(s, c, m, u, shift);
    }
    if (m >= 0.999999999) {
        const double cosh = std::cosh(u);
        if (m == 1 || (1 - m) * cosh * cosh <= kNegligibleSquare) return NearHyperbolic(u, 1 - m);
    }
    return ByMean(u, m);
}

}  // namespace

void SpecJacobiElliptic(double u, double m, double* sn, double* cn, double* dn, double* phi) noexcept {
    const Jacobi value = Evaluate(u, m);
    *sn = value.sn;
    *cn = value.cn;
    *dn = value.dn;
    if (phi) *phi = value.phi;
}

}  // namespace quorvan

// J and Y of orders 0 and 1 beyond 5, which differ in their tables and in a quarter turn of the phase.
#pragma once

#include <cmath>
#include <cstddef>

#include "frame/targets.h"
#include "stats/special/bessel_pair.h"
#include "stats/special/polynomial.h"

namespace quorvan {

// sqrt(2/(pi x)) (P cos t - Q sin t) and (P sin t + Q cos t), t = x - (order/2 + 1/4) pi, with P = PP(q)/PQ(q),
// Q = (5/x) QP(q)/QQ(q), q = 25/x^2. Cosine and sine of the phase come from those of x itself, so that a large x loses
// nothing by a subtraction; the factor sqrt(1/2) of the eighth turn is in the constant.
template <int kOrder, std::size_t N, std::size_t M, std::size_t K>
QV_INLINE BesselPair PhasePair(double x, const double (&pp)[N], const double (&pq)[N], const double (&qp)[M],
                               const double (&qq)[K]) noexcept {
    static_assert(kOrder == 0 || kOrder == 1);
    constexpr double kOneOverFivePi = 0.063661977236758134308;
    const double w = 5 / x, q = w * w;
    // P = p/d and Q = r/d over their common denominator.
    const double p_below = Polynomial(q, pq), r_below = MonicPolynomial(q, qq);
    const double p = Polynomial(q, pp) * r_below, r = w * Polynomial(q, qp) * p_below;
    const double sine = std::sin(x), cosine = std::cos(x), sum = sine + cosine, difference = sine - cosine;
    const double c = kOrder == 0 ? sum : difference, s = kOrder == 0 ? difference : -sum;
    const double factor = std::sqrt(w * kOneOverFivePi) / (p_below * r_below);  // sqrt(1/(pi x))
    return {(p * c - r * s) * factor, (p * s + r * c) * factor};
}

}  // namespace quorvan

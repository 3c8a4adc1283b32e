// J and Y of orders 0 and 1 beyond 5, which differ in their tables and in a quarter turn of the phase.
#pragma once

#include <cmath>
#include <cstddef>

#include "frame/targets.h"
#include "stats/special/bessel_pair.h"
#include "stats/special/eighth_turns.h"
#include "stats/special/polynomial_pair.h"

namespace quorvan {

// sqrt(2/(pi x)) (P cos t - Q sin t) and (P sin t + Q cos t), t = x - (order/2 + 1/4) pi, with P = PP(q)/PQ(q),
// Q = (5/x) QP(q)/QQ(q), q = 25/x^2.
template <int kOrder, std::size_t N, std::size_t M, std::size_t K>
QV_INLINE BesselPair PhasePair(double x, const double (&pp)[N], const double (&pq)[N], const double (&qp)[M],
                               const double (&qq)[K]) noexcept {
    static_assert(kOrder == 0 || kOrder == 1);
    constexpr double kTwoOverFivePi = 0.12732395447351626862;
    const double w = 5 / x, q = w * w;
    // P = p/d and Q = r/d over their common denominator.
    const PolynomialPair ps = Polynomials(q, pp, pq), qs = Polynomials<true>(q, qp, qq);
    const double p = ps.first * qs.second, r = w * qs.first * ps.second;
    const SineCosine t = SinCosLessEighths<2 * kOrder + 1>(x);
    const double factor = std::sqrt(w * kTwoOverFivePi) / (ps.second * qs.second);
    return {(p * t.cosine - r * t.sine) * factor, (p * t.sine + r * t.cosine) * factor};
}

}  // namespace quorvan

// J and Y of orders 0 and 1 beyond 5, which differ in their tables and in a quarter turn of the phase.
#pragma once

#include <cmath>
#include <cstddef>

#include "frame/targets.h"
#include "stats/special/bessel_pair.h"
#include "stats/special/eighth_turns.h"
#include "stats/special/polynomial_pair.h"
#include "stats/special/two_lanes.h"

namespace quorvan {

// The tables of one order. PP/PQ is near 1, and P - 1 = (PP - PQ)/PQ keeps what a sum near 1 would round away.
template <std::size_t N, std::size_t M, std::size_t K>
struct PhaseTables {
    constexpr PhaseTables(const double (&pp)[N], const double (&pq)[N], const double (&qp)[M],
                          const double (&qq)[K]) noexcept {
        for (std::size_t i = 0; i < N; ++i) {
            p_rest[i] = pp[i] - pq[i];
            p_below[i] = pq[i];
        }
        for (std::size_t i = 0; i < M; ++i) q_above[i] = qp[i];
        for (std::size_t i = 0; i < K; ++i) q_below[i] = qq[i];
    }
    double p_rest[N] = {}, p_below[N] = {}, q_above[M] = {}, q_below[K] = {};
};

// sqrt(2/(pi x)) (P cos t - Q sin t) and (P sin t + Q cos t), t = x - (order/2 + 1/4) pi, with P = PP(z)/PQ(z),
// Q = (5/x) QP(z)/QQ(z), z = 25/x^2.
template <int kOrder, std::size_t N, std::size_t M, std::size_t K>
QV_INLINE BesselPair PhasePair(double x, const PhaseTables<N, M, K>& tables) noexcept {
    static_assert(kOrder == 0 || kOrder == 1);
    constexpr double kTwoOverFivePi = 0.12732395447351626862;
    const double w = 5 / x, z = w * w;
    const PolynomialPair above = Polynomials(z, tables.p_rest, tables.q_above);
    const PolynomialPair below = Polynomials<true>(z, tables.p_below, tables.q_below);
    const TwoLanes quotients = TwoLanes{above.first, w * above.second} / TwoLanes{below.first, below.second};
    const double p_rest = quotients[0], q = quotients[1];
    const SineCosine t = SinCosLessEighths<2 * kOrder + 1>(x);
    const double factor = std::sqrt(w * kTwoOverFivePi);
    return {factor * (t.cosine + (p_rest * t.cosine - q * t.sine)),
            factor * (t.sine + (p_rest * t.sine + q * t.cosine))};
}

}  // namespace quorvan

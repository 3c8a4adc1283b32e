// Hankel's expansion of J and Y for large arguments.
#include <cmath>

#include "frame/types.h"
#include "stats/special/bessel_pair.h"
#include "stats/special/eighth_turns.h"
#include "stats/special/sin_cos_pi.h"

namespace quorvan {
namespace {

constexpr double kTwoOverPi = 0.63661977236758134308;

}  // namespace

bool HankelHolds(double v, double x) noexcept { return x >= 20 && 0.5 * v * v <= x; }

BesselPair HankelPair(double v, double x) noexcept {
    const double scale = 1 / (8 * x);
    double p = 1, q = 0, term = 1, magnitude = 1;
    for (int k = 1; k < 200; ++k) {
        const double odd = 2 * k - 1, next = term * ((2 * v - odd) * (2 * v + odd)) * scale / k;
        const double size = std::fabs(next);
        // Past the order the terms only fall until they rise for good.
        if (size > magnitude && odd > 2 * v) break;
        term = next;
        magnitude = size;
        switch (k & 3) {
            case 0: p += term; break;
            case 1: q += term; break;
            case 2: p -= term; break;
            default: q -= term; break;
        }
        if (size <= 0.25 * kEpsilon * std::fabs(p) && odd > 2 * v) break;
    }
    const SineCosine turn = SinCosPi(std::fmod(0.5 * v, 2) + 0.25);
    const SineCosine t = SinCosLessEighths<0>(x);
    const double sine = t.sine * turn.cosine - t.cosine * turn.sine;
    const double cosine = t.cosine * turn.cosine + t.sine * turn.sine;
    const double factor = std::sqrt(kTwoOverPi / x);
    return {factor * (p * cosine - q * sine), factor * (p * sine + q * cosine)};
}

}  // namespace quorvan

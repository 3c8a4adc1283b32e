#include "stats/special/bessel_j.h"

#include <cmath>
#include <limits>

#include "frame/types.h"
#include "stats/special/bessel_j0.h"
#include "stats/special/bessel_j1.h"
#include "stats/special/bessel_pair.h"
#include "stats/special/bessel_y.h"
#include "stats/special/power_over_gamma.h"
#include "stats/special/sin_cos_pi.h"

namespace quorvan {
namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInf = std::numeric_limits<double>::infinity();
constexpr double kTwoOverPi = 0.63661977236758134308;

// J(v+1)/J(v) for x < v: 1/(2(v+1)/x - 1/(2(v+2)/x - ...)) from a tail that has no influence any more. The levels that
// takes grow as v^(1/3) where x is near v, and shrink beyond.
double RatioAbove(double v, double x) noexcept {
    const int levels = 24 + static_cast<int>(6 * std::cbrt(v));
    double ratio = 0;
    for (int k = levels; k >= 1; --k) ratio = x / (2 * (v + k) - x * ratio);
    return ratio;
}

double Upward(double v, int steps, double x, double at, double above) noexcept {
    for (int k = 1; k <= steps; ++k) {
        const double next = 2 * (v + k) / x * above - at;
        at = above;
        above = next;
    }
    return at;
}

// x < n: down from J(n), in units of J(n), to the larger of J0 and J1.
double DownwardWhole(int n, double x) noexcept {
    constexpr double kLarge = 0x1p600;
    double above = RatioAbove(n, x), at = 1, scale = 1;
    for (int k = n; k > 0; --k) {
        const double below = 2 * k / x * at - above;
        above = at;
        at = below;
        if (std::fabs(at) > kLarge) {
            at /= kLarge;
            above /= kLarge;
            scale /= kLarge;
        }
    }
    return std::fabs(at) > std::fabs(above) ? SpecBesselJ0(x) / at * scale : SpecBesselJ1(x) / above * scale;
}

double WholeOrder(int n, double x) noexcept {
    if (n == 0) return SpecBesselJ0(x);
    if (n == 1) return SpecBesselJ1(x);
    return n <= x ? Upward(0, n, x, SpecBesselJ0(x), SpecBesselJ1(x)) : DownwardWhole(n, x);
}

double BrokenOrder(double v, double x) noexcept {
    const double steps = std::floor(v + 0.5);
    if (v <= x || steps == 0) {
        const BesselPairs low = LowOrderPairs(v - steps, x);
        return Upward(v - steps, static_cast<int>(steps), x, low.at.j, low.above.j);
    }
    // Wronski's determinant: J(v+1) Y(v) - J(v) Y(v+1) = 2/(pi x).
    double y, y_above;
    PositiveBesselYPair(v, x, &y, &y_above);
    if (std::isinf(y_above)) return 0;
    return kTwoOverPi / x / (RatioAbove(v, x) * y - y_above);
}

double AtZero(double order) noexcept {
    if (order == 0) return 1;
    if (order > 0 || order == std::floor(order)) return 0;
    // (x/2)^v / Gamma(v+1), whose sign for v < 0 alternates with floor(v).
    return std::fmod(std::floor(order), 2) != 0 ? kInf : -kInf;
}

}  // namespace

double PositiveBesselJ(double v, double x) noexcept {
    const bool whole = v == std::floor(v);
    if (whole && v <= 1) return v == 0 ? SpecBesselJ0(x) : SpecBesselJ1(x);
    if (v < kLargeBesselOrder && x * x <= 2 * (v + 1)) return PowerOverGamma(x, v) * BesselSum(v, -0.25 * x * x);
    if (HankelHolds(v, x)) return HankelPair(v, x).j;
    if (v >= kLargeBesselOrder) return LargeOrderPair(v, x).j;
    return whole ? WholeOrder(static_cast<int>(v), x) : BrokenOrder(v, x);
}

double SpecBesselJ(double order, double x) noexcept {
    if (order == 0) return SpecBesselJ0(x);
    if (order == 1) return SpecBesselJ1(x);
    if (std::isnan(order) || std::isnan(x)) return kNaN;
    if (std::isinf(order)) return order > 0 && std::isfinite(x) && x >= 0 ? 0 : kNaN;
    const bool whole = order == std::floor(order);
    if (x < 0 && !whole) return kNaN;
    if (std::isinf(x)) return 0;
    if (x == 0) return AtZero(order);
    const double v = std::fabs(order), z = std::fabs(x);
    if (order >= 0 && x > 0) return PositiveBesselJ(v, z);
    if (whole) {
        const bool flipped = ((order < 0) != (x < 0)) && std::fmod(v, 2) != 0;
        const double value = PositiveBesselJ(v, z);
        return flipped ? -value : value;
    }
    const SineCosine turn = SinCosPi(v);
    const double y = turn.sine * PositiveBesselY(v, z);
    return turn.cosine == 0 ? -y : turn.cosine * PositiveBesselJ(v, z) - y;
}

}  // namespace quorvan

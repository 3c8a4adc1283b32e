#include "stats/special/bessel_y.h"

#include <cmath>
#include <limits>

#include "frame/types.h"
#include "stats/special/bessel_j.h"
#include "stats/special/bessel_j0.h"
#include "stats/special/bessel_j1.h"
#include "stats/special/bessel_pair.h"
#include "stats/special/sin_cos_pi.h"

namespace quorvan {
namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInf = std::numeric_limits<double>::infinity();
constexpr double kWhole = 1e-8;  // as near to an integer an order counts as one
constexpr double kLeastOrder = -200;

}  // namespace

void PositiveBesselYPair(double v, double x, double* at, double* above) noexcept {
    const double steps = std::floor(v + 0.5), mu = v - steps;
    if (mu == 0) {
        *at = SpecBesselY0(x);
        *above = SpecBesselY1(x);
    } else {
        const BesselPairs low = LowOrderPairs(mu, x);
        *at = low.at.y;
        *above = low.above.y;
    }
    for (int k = 1; k <= steps; ++k) {
        const double next = 2 * (mu + k) / x * *above - *at;
        *at = *above;
        *above = next;
        if (next == -kInf) {  // and so it stays
            if (k < steps) *at = next;
            return;
        }
    }
}

double PositiveBesselY(double v, double x) noexcept {
    if (v == 0) return SpecBesselY0(x);
    if (v == 1) return SpecBesselY1(x);
    if (HankelHolds(v, x)) return HankelPair(v, x).y;
    if (v >= kLargeBesselOrder) return LargeOrderPair(v, x).y;
    double at, above;
    PositiveBesselYPair(v, x, &at, &above);
    return at;
}

double BesselYOfRealOrder(double v, double x) noexcept {
    if (v >= 0) return PositiveBesselY(v, x);
    const SineCosine turn = SinCosPi(-v);
    if (turn.sine == 0) return turn.cosine * PositiveBesselY(-v, x);
    const double j = turn.sine * PositiveBesselJ(-v, x);
    return turn.cosine == 0 ? j : j + turn.cosine * PositiveBesselY(-v, x);
}

double SpecBesselY(double order, double x) noexcept {
    if (order == 0) return SpecBesselY0(x);
    if (order == 1) return SpecBesselY1(x);
    if (std::isnan(order) || std::isnan(x)) return kNaN;
    if (order < kLeastOrder || x < 0) return kNaN;
    if (std::isinf(order)) return std::isinf(x) ? kNaN : -kInf;
    if (x == 0) return -kInf;
    if (std::isinf(x)) return 0;
    // Deliberate: the order itself is rounded.
    const double nearest = std::nearbyint(order);
    if (std::fabs(order - nearest) <= kWhole) order = nearest;
    return BesselYOfRealOrder(order, x);
}

}  // namespace quorvan

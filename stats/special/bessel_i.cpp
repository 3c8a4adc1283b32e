#include "stats/special/bessel_i.h"

#include <cmath>
#include <limits>

#include "frame/types.h"
#include "stats/special/bessel_i0.h"
#include "stats/special/bessel_k.h"
#include "stats/special/debye.h"
#include "stats/special/modified_hankel.h"
#include "stats/special/power_over_gamma.h"
#include "stats/special/sin_cos_pi.h"
#include "stats/special/times_exp.h"

namespace quorvan {
namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInf = std::numeric_limits<double>::infinity();
constexpr double kTwoOverPi = 0.63661977236758134308;
constexpr double kLeastOrder = -200;
constexpr double kDebyeOrder = 500;  // below, the recurrence is nearer, and not yet long

// From almost nothing down to the fraction of the order, where e^-x I is known.
double Downward(double v, double x) noexcept {
    constexpr double kStart = 1e-10, kLarge = 1e10;
    constexpr int kStep = 33;  // 2^33 is nearly 1e10, and divides without rounding
    const double whole = std::floor(v), mu = v - whole, least = whole + 20 + std::sqrt(100 * x);
    double above = 0, at = kStart, wanted = 0;
    int exponent = 0;  // of wanted against at
    for (int k = least < 100 ? 100 : static_cast<int>(least); k > 0; --k) {
        const double below = at * (2 * (mu + k) / x) + above;
        above = at;
        at = below;
        if (k - 1 == whole) {
            wanted = at;
            exponent = 0;
        }
        if (at > kLarge) {
            at = std::ldexp(at, -kStep);
            above = std::ldexp(above, -kStep);
            exponent -= kStep;
        }
    }
    const double base = mu == 0 ? ScaledBesselI0(x) : ScaledModifiedHankel(mu, x, 1);
    return TimesExp(wanted / at * base, x, exponent);
}

// v >= 0, 0 < x < Inf.
double PositiveBesselI(double v, double x) noexcept {
    const bool whole = v == std::floor(v);
    if (whole && v <= 1) return TimesExp(v == 0 ? ScaledBesselI0(x) : ScaledBesselI1(x), x);
    if (x * x <= 4 * (v + 1) || (!whole && x < 20)) return PowerOverGamma(x, v) * BesselSum(v, 0.25 * x * x);
    if (x >= 20 && 0.5 * v * v <= x) return TimesExp(ScaledModifiedHankel(v, x, 1), x);
    return v >= kDebyeOrder ? DebyeModified(v, x, 1) : Downward(v, x);
}

}  // namespace

double SpecBesselI(double order, double x) noexcept {
    if (order == 0 && std::isfinite(x)) return TimesExp(ScaledBesselI0(x), std::fabs(x));
    if (std::isnan(order) || std::isnan(x)) return kNaN;
    if (order < kLeastOrder) return kNaN;
    if (std::isinf(order)) return std::isinf(x) || x < 0 ? kNaN : 0;
    const double v = std::fabs(order), z = std::fabs(x);
    const bool whole = v == std::floor(v);
    if (x < 0 && !whole) return kNaN;
    if (x == 0) return v == 0 ? 1 : 0;
    const double sign = x < 0 && std::fmod(v, 2) != 0 ? -1 : 1;
    if (std::isinf(x)) return sign * kInf;
    if (whole || order > 0) return sign * PositiveBesselI(v, z);
    const double i = PositiveBesselI(v, z);
    return i == kInf ? i : i + kTwoOverPi * SinCosPi(v).sine * PositiveBesselK(v, z);
}

}  // namespace quorvan

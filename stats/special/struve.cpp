#include "stats/special/struve.h"

#include <cmath>
#include <limits>

#include "frame/types.h"
#include "stats/special/bessel_j.h"
#include "stats/special/bessel_y.h"
#include "stats/special/double_double.h"
#include "stats/special/estimate.h"
#include "stats/special/power_over_gamma.h"

namespace quorvan {
namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInf = std::numeric_limits<double>::infinity();
constexpr double kTwoOverPi = 0.63661977236758134308;
constexpr double kOneOverSqrtPi = 0.5641895835477563;
constexpr double kGood = 1e-15;      // an estimate below this needs no second opinion
constexpr double kPoor = 1e-13;      // above this a third method is worth its time
constexpr double kAbandoned = 1e38;  // the error of what was not computed

Estimate Power(double v, double x) noexcept {
    const DoubleDouble square = ExactProduct(0.5 * x, 0.5 * x);
    DoubleDouble sum{1, 0}, term{1, 0};
    double largest = 1;
    int k = 0;
    for (; k < 500; ++k) {
        const DoubleDouble shifted = ExactSum(v, k + 1.5);
        term = term * square / (shifted * DoubleDouble{-(k + 1.5), 0});
        sum = sum + term;
        const double size = std::fabs(term.high);
        if (size > 1e34) return {0, kAbandoned};
        largest = std::fmax(largest, size);
        if (size <= 1.37e-17 * std::fabs(sum.high) && std::fabs(shifted.high) * (k + 1.5) > square.high) break;
    }
    if (k == 500) return {0, kAbandoned};
    const double factor = 2 * kOneOverSqrtPi * std::sqrt(0.5 * x) * PowerOverGammaShifted(x, v, 0.5);
    return {sum.high * factor, 0x1p-102 * largest / std::fabs(sum.high)};
}

Estimate Asymptotic(double v, double x) noexcept {
    // Below the order the terms, after a deceptive fall, grow to the size of Y.
    if (x < v) return {0, kAbandoned};
    const double z = 4 / x / x;
    double sum = 1, term = 1, largest = 1, last = kInf;
    for (int k = 0; k < 200; ++k) {
        const double next = -term * (k + 0.5) * (k + 0.5 - v) * z;
        // Past the order the terms that begin to grow do so for good.
        if (std::fabs(next) > std::fabs(term) && k > v) break;
        if (std::fabs(next) > 1e34) return {0, kAbandoned};
        term = next;
        sum += term;
        largest = std::fmax(largest, std::fabs(term));
        last = std::fabs(term);
        if (last <= 1.37e-17 * std::fabs(sum)) break;
    }
    const double factor = kOneOverSqrtPi / std::sqrt(0.5 * x) * PowerOverGammaShifted(x, v, -0.5);
    const double y = BesselYOfRealOrder(v, x), value = factor == 0 ? y : y + factor * sum;
    if (!std::isfinite(value)) return {value, std::isfinite(y) ? 0 : kAbandoned};
    const double error = std::fabs(factor) * (last + kEpsilon * largest) + kEpsilon * std::fabs(y);
    return {value, error / std::fabs(value)};
}

// Downward over the orders, as no other way is stable; every sum in the unit of the last term until the end.
double BesselSeries(double v, double x) noexcept {
    constexpr double kLarge = 0x1p500;
    const double reach = 20 + 0.5 * (std::sqrt(v * v + 10 * x * x) - v);
    if (reach > 20000) {  // then almost every value is out of the range of doubles
        const double leading = PowerOverGamma(x, v + 0.5);
        if (leading == 0 || std::isinf(leading)) return leading;
        if (!(reach < 1e6)) return kNaN;
    }
    double above = 0, at = 1, weight = 1, sum = 0;
    for (int k = static_cast<int>(reach); k > 0; --k) {
        sum += weight * at / (k + 0.5);
        const double below = 2 * (v + 0.5 + k) / x * at - above;
        above = at;
        at = below;
        weight *= 2 * k / x;
        if (std::fabs(at) > kLarge) {
            at /= kLarge;
            above /= kLarge;
            sum /= kLarge;
        }
        if (weight > kLarge) {
            weight /= kLarge;
            sum /= kLarge;
        }
    }
    sum += 2 * weight * at;
    return std::sqrt(x / kTwoPi) * (sum / weight / at) * PositiveBesselJ(v + 0.5, x);
}

double AtZero(double v) noexcept {
    if (v > -1) return 0;
    if (v == -1) return kTwoOverPi;
    const double below = std::floor(v + 1.5);
    if (below == v + 1.5) return 0;                  // a Bessel function of positive order
    return std::fmod(below, 2) == 0 ? kInf : -kInf;  // the sign of Gamma(v + 3/2)
}

double AtInfinity(double v) noexcept {
    if (v < 1) return 0;
    return v == 1 ? kTwoOverPi : kInf;
}

double Positive(double v, double x) noexcept {
    if (v < 0 && v - std::floor(v) == 0.5) {
        const double value = PositiveBesselJ(-v, x);
        return std::fmod(-v - 0.5, 2) != 0 ? -value : value;
    }
    const double magnitude = std::fabs(v);
    Estimate power{0, kAbandoned}, asymptotic{0, kAbandoned};
    if (x <= 40 || x <= 1.5 * magnitude) {
        power = Power(v, x);
        if (power.error <= kGood) return power.value;
    }
    if (x >= 18) asymptotic = Asymptotic(v, x);
    const Estimate best = Better(power, asymptotic);
    if (v > 0 && x < 1.1 * v && best.error > kPoor) return BesselSeries(v, x);
    return best.value;
}

}  // namespace

double SpecStruve(double order, double x) noexcept {
    if (std::isnan(order) || std::isnan(x) || std::isinf(order)) return kNaN;
    const bool whole = order == std::floor(order);
    if (x < 0 && !whole) return kNaN;
    const double sign = x < 0 && std::fmod(order, 2) == 0 ? -1 : 1, z = std::fabs(x);
    if (z == 0) return AtZero(order);
    return sign * (z == kInf ? AtInfinity(order) : Positive(order, z));
}

}  // namespace quorvan

#include "stats/special/power_over_gamma.h"

#include <cmath>

#include "frame/types.h"
#include "stats/special/digamma.h"
#include "stats/special/double_double.h"
#include "stats/special/gamma.h"
#include "stats/special/ln_gamma.h"

namespace quorvan {
namespace {

constexpr double kStirling = 13;

// (e a / v)^v
double StirlingPower(double a, double v) noexcept {
    constexpr double kE = 2.718281828459045, kERest = 1.4456468917292502e-16;
    const double numerator = kE * a, base = numerator / v;
    if (base == 0 || std::isinf(base)) return base;
    // e a exactly is numerator + (rounding) + kERest a.
    const double slip = std::fma(kE, a, -numerator) + kERest * a - std::fma(base, v, -numerator);
    const double power = std::pow(base, v);
    return power == 0 || std::isinf(power) ? power : power * std::exp(slip / numerator * v);
}

}  // namespace

double PowerOverGamma(double x, double v) noexcept {
    const double half = 0.5 * x;
    if (v >= kStirling) {
        return StirlingPower(half, v) * std::exp(-LnGammaCorrection(v)) / std::sqrt(kTwoPi * v);
    }
    if (v < 0 && v == std::floor(v)) return 0;
    if (v > -150) {
        const double power = std::pow(half, v);
        if (power != 0 && !std::isinf(power))
            return v < 1 ? power / GammaValue(v + 1) : power / GammaValue(v) / v;  // v + 1 would be rounded
    }
    int sign;
    const double logarithm = SpecLnGamma(v + 1, &sign);
    return sign * std::exp(v * std::log(half) - logarithm);
}

double PowerOverGammaShifted(double x, double v, double shift) noexcept {
    const DoubleDouble order = ExactSum(v, shift);
    const double value = PowerOverGamma(x, order.high);
    if (order.low == 0 || !(std::fabs(value) > 0) || std::isinf(value)) return value;
    return value * (1 + order.low * (std::log(0.5 * x) - SpecDigamma(order.high + 1)));
}

double BesselSum(double v, double z) noexcept {
    double sum = 1, term = 1;
    for (int k = 1; k < 1000; ++k) {
        term *= z / (k * (v + k));
        sum += term;
        if (std::fabs(term) <= 0.5 * kEpsilon * std::fabs(sum)) break;
    }
    return sum;
}

}  // namespace quorvan

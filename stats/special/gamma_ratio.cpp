#include "stats/special/gamma_ratio.h"

#include <cmath>

#include "stats/special/gamma.h"
#include "stats/special/ln_gamma.h"

namespace quorvan {

bool IsPole(double x) noexcept { return x <= 0 && x == std::floor(x); }

double ReciprocalGamma(double x) noexcept { return IsPole(x) ? 0 : 1 / GammaValue(x); }

BelowGamma BesidePole(DoubleDouble z) noexcept {
    const double pole = std::nearbyint(z.high);
    if (z.low == 0 || pole > 0 || std::fabs(z.high - pole) > 0.25) return {z.high, 1};
    // 1/Gamma is linear there to the last place.
    const double argument = z.high != pole ? z.high : std::nextafter(pole, z.low > 0 ? HUGE_VAL : -HUGE_VAL);
    return {argument, ((z.high - pole) + z.low) / (argument - pole)};
}

double GammaWeight(double exponent, double base, double power, double above0, double above1, double below0,
                   double below1) noexcept {
    if (IsPole(below0) || IsPole(below1)) return 0;
    const double e = std::exp(exponent), p = std::pow(base, power);
    const double direct = e * p * (GammaValue(above0) / GammaValue(below0)) * (GammaValue(above1) / GammaValue(below1));
    constexpr double kLeast = 1e-305;  // short of the subnormal numbers, where digits are lost
    if (std::isfinite(direct) && e > kLeast && p > kLeast && std::fabs(direct) > kLeast) return direct;
    int signs[4];
    const double over = SpecLnGamma(above0, &signs[0]) + SpecLnGamma(above1, &signs[1]);
    const double under = SpecLnGamma(below0, &signs[2]) + SpecLnGamma(below1, &signs[3]);
    const double powers = power == 0 ? exponent : exponent + power * std::log(base);
    return signs[0] * signs[1] * signs[2] * signs[3] * std::exp(powers + (over - under));
}

}  // namespace quorvan

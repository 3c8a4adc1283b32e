#include "stats/special/spherical_bessel.h"

#include <cmath>
#include <limits>

#include "frame/types.h"
#include "stats/special/bessel_j.h"
#include "stats/special/bessel_y.h"

namespace quorvan {
namespace {

constexpr double kSqrtHalfPi = 1.2533141373155003;
constexpr double kSimpleEnd = 1e300;  // where reciprocals are still normal numbers

// Below this order recurrence is the shortest way from orders 0 and 1.
constexpr std::uint32_t kRecurrenceEnd = 100;

double Upward(std::uint32_t n, double x, double at, double above) noexcept {
    const double reciprocal = 1 / x;
    for (std::uint32_t k = 1; k <= n; ++k) {
        const double next = (2 * k + 1) * reciprocal * above - at;
        at = above;
        above = next;
    }
    return at;
}

double PositiveJ(std::uint32_t n, double x) noexcept {
    if (n < kRecurrenceEnd && n <= x && x <= kSimpleEnd) {
        const double s = std::sin(x) / x;
        return n == 0 ? s : Upward(n, x, s, (s - std::cos(x)) / x);
    }
    if (x < 1e-8) {  // x^n / (2n + 1)!!, while J may have underflowed
        double value = 1;
        for (std::uint32_t k = 1; k <= n && value != 0; ++k) value *= x / (2 * k + 1.0);
        return value;
    }
    return kSqrtHalfPi / std::sqrt(x) * SpecBesselJ(n + 0.5, x);
}

}  // namespace

double SpecSphericalJ(std::uint32_t n, double x) noexcept {
    if (x == 0) return n == 0 ? 1 : 0;
    const double value = PositiveJ(n, std::fabs(x));
    return x < 0 && (n & 1) != 0 ? -value : value;
}

double SpecSphericalY(std::uint32_t n, double x) noexcept {
    if (x == 0) return -std::numeric_limits<double>::infinity();
    if (n < kRecurrenceEnd && x >= 1 && x <= kSimpleEnd) {
        const double c = -std::cos(x) / x;
        return n == 0 ? c : Upward(n, x, c, (c - std::sin(x)) / x);
    }
    return kSqrtHalfPi / std::sqrt(x) * SpecBesselY(n + 0.5, x);
}

}  // namespace quorvan

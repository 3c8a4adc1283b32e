#include "stats/special/spherical_bessel.h"

#include <cmath>
#include <limits>

#include "frame/types.h"
#include "stats/special/bessel_j.h"
#include "stats/special/bessel_y.h"

namespace quorvan {
namespace {

constexpr double kHalfPi = 1.5707963267948966;

}  // namespace

double SpecSphericalJ(std::uint32_t n, double x) noexcept {
    if (x == 0) return n == 0 ? 1 : 0;
    const double z = std::fabs(x);
    if (n == 0 && z < 1e-8) return 1;  // where the square root would leave the range of doubles
    const double value = std::sqrt(kHalfPi / z) * SpecBesselJ(n + 0.5, z);
    return x < 0 && (n & 1) != 0 ? -value : value;
}

double SpecSphericalY(std::uint32_t n, double x) noexcept {
    if (x == 0) return -std::numeric_limits<double>::infinity();
    return std::sqrt(kHalfPi / x) * SpecBesselY(n + 0.5, x);
}

}  // namespace quorvan

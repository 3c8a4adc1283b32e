#include "stats/special/spherical_bessel.h"

#include <cmath>
#include <limits>

#include "frame/types.h"
#include "stats/special/bessel_j.h"
#include "stats/special/bessel_y.h"

namespace quorvan {
namespace {

constexpr double kSqrtHalfPi = 1.2533141373155003;

}  // namespace

double SpecSphericalJ(std::uint32_t n, double x) noexcept {
    if (x == 0) return n == 0 ? 1 : 0;
    const double z = std::fabs(x);
    double value;
    if (z < 1e-8) {  // z^n / (2n + 1)!!, while J may have underflowed
        value = 1;
        for (std::uint32_t k = 1; k <= n && value != 0; ++k) value *= z / (2 * k + 1.0);
    } else {
        value = kSqrtHalfPi / std::sqrt(z) * SpecBesselJ(n + 0.5, z);
    }
    return x < 0 && (n & 1) != 0 ? -value : value;
}

double SpecSphericalY(std::uint32_t n, double x) noexcept {
    if (x == 0) return -std::numeric_limits<double>::infinity();
    return kSqrtHalfPi / std::sqrt(x) * SpecBesselY(n + 0.5, x);
}

}  // namespace quorvan

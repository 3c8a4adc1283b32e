#include "stats/special/parabolic_cylinder.h"

#include <cmath>
#include <limits>

#include "frame/types.h"

namespace quorvan {
namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInf = std::numeric_limits<double>::infinity();

double AtMinusInfinity(double v) noexcept {
    if (v == kInf) return kNaN;
    if (v < 0) return kInf;
    const double whole = std::trunc(v);
    if (v == whole) return 0;
    return std::fmod(whole, 2) != 0 ? kInf : -kInf;
}

// sqrt(pi) / Gamma(z): a product up to z > 3, then Stirling's formula,
// with 1 - 1/(30 z^2) + 1/(105 z^4) in the correction.
double ReciprocalGammaTimesSqrtPi(double z) noexcept {
    double p = 1;
    while (!(z > 3)) {
        if (z == 0) return 0;
        // Once p is infinite, only the question is left whether the steps of 1 would meet 0.
        if (std::isinf(p) && z < 0 && z == std::floor(z)) return 0;
        if (std::isinf(p)) return p;
        p = p * z;
        z = z + 1;
    }
    const double s = 2 / (z * z);
    const double u = (((s / 3 - 1) * (s / 7) + 1) * s) / 60 - 1;
    return p * std::sqrt(z / 2) * std::exp(u / (12 * z) - (std::log(z) - 1) * z);
}

}  // namespace

double SpecParabolicCylinder(double v, double x) noexcept {
    if (std::isnan(x) || std::isnan(v)) return kNaN;
    if (x == kInf) return 0;
    if (x == -kInf) return AtMinusInfinity(v);
    if (v == kInf) return kNaN;

    const double g1 = ReciprocalGammaTimesSqrtPi((1 - v) / 2), g0 = ReciprocalGammaTimesSqrtPi((0 - v) / 2);
    const double w = x * x / 2;
    const double limit = std::fabs((2 - v) * (x + 2) * 0.2) + 6 * std::fabs(x) + 3 + w;
    const double e = std::exp(0.34657359027997264 * v - w / 2);
    const double a = g1 * e, b = -1.4142135623730951 * x * g0 * e;
    double sum = std::exp(w) * (a + b);
    if (!(std::isfinite(a) && std::isfinite(b) && std::isfinite(sum))) return kNaN;

    const double m = (v + 1) / 2;
    double t1 = a, c1 = a, t2 = b, c2 = b;
    for (double k = 1; k <= limit; k += 1) {
        t1 = t1 * (k - 0.5 - m) * w / ((k - 0.5) * k);
        c1 = c1 * w / k;
        c2 = c2 * w / k;
        t2 = t2 * (k - m) * w / ((k + 0.5) * k);
        sum = sum + ((t1 - c1) + t2 - c2);
        if (!std::isfinite(sum)) return kNaN;
        // Zeros stay zeros, however far the limit is.
        if (t1 == 0 && c1 == 0 && t2 == 0 && c2 == 0) break;
    }
    return sum;
}

}  // namespace quorvan

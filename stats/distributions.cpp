#include "stats/distributions.h"

#include <cmath>
#include <limits>

#include "frame/status.h"
#include "stats/special/incomplete_beta.h"
#include "stats/special/incomplete_gamma.h"

namespace quorvan {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

// Not for NaN.
bool IsProbability(double p) { return p >= 0 && p <= 1; }

// The lower end of the last bracket, deliberately not its middle: a root above `hi` reads hi - 1e-4 at most.
template <class Cdf>
double Bisect(double p, double lo, double hi, Cdf cdf) {
    while (hi - lo > 0.0001) {
        const double middle = (lo + hi) * 0.5;
        (p > cdf(middle) ? lo : hi) = middle;
    }
    return lo;
}

double TCdf(double t, double dof) {
    if (t == 0) return 0.5;
    const double w = SpecIncompleteBeta(dof / 2, 0.5, dof / (t * t + dof)) * 0.5;
    return t < 0 ? w : 1 - w;
}

double ChiSquareCdf(double x, double dof) { return x <= 0 ? 0.0 : SpecIncompleteGamma(dof * 0.5, x * 0.5); }

double FCdf(double x, double dof1, double dof2) {
    return x <= 0 ? 0.0 : 1 - SpecIncompleteBeta(dof2 / 2, dof1 / 2, dof2 / (dof1 * x + dof2));
}

}  // namespace

// Abramowitz and Stegun (1964), 26.2.16.
Status DistNormalCdf(double x, double* out) noexcept {
    const double a = std::fabs(x), t = 1 / (a * 0.33267 + 1);
    const double q = std::exp(a * a * -0.5) * 0.3989422 * t * ((t * 0.937298 - 0.1201676) * t + 0.4361836);
    *out = x >= 0 ? 1 - q : q;
    return status::kSuccess;
}

// Abramowitz and Stegun (1964), 26.2.23.
Status DistNormalInverse(double p, double* out) noexcept {
    if (!IsProbability(p)) return status::kProbabilityOutOfRange;
    const auto ratio = [](double t) {
        return ((t * 0.010328 + 0.802853) * t + 2.515517) / (((t * 0.001308 + 0.189269) * t + 1.432788) * t + 1);
    };
    if (p == 0 || p == 1) {
        *out = p == 0 ? -kInfinity : kInfinity;
    } else if (p >= 0.5) {
        const double t = std::sqrt(std::log(1 - p) * -2);
        *out = t - ratio(t);
    } else {
        const double t = std::sqrt(std::log(p) * -2);
        *out = ratio(t) - t;
    }
    return status::kSuccess;
}

Status DistTCdf(double t, std::int32_t dof, double* out) noexcept {
    if (dof < 1) return status::kFreedomOutOfRange;
    *out = std::isnan(t) ? t : TCdf(t, dof);
    return std::isnan(t) ? status::kNanInput : status::kSuccess;
}

Status DistTInverse(double p, std::int32_t dof, double* out) noexcept {
    if (dof < 1) return status::kFreedomOutOfRange;
    if (!IsProbability(p)) return status::kProbabilityOutOfRange;
    if (p == 0 || p == 1)
        *out = p == 0 ? -kInfinity : kInfinity;
    else
        *out = Bisect(p, -10000, 10000, [=](double t) { return TCdf(t, dof); });
    return status::kSuccess;
}

Status DistChiSquareCdf(double x, std::int32_t dof, double* out) noexcept {
    if (dof < 0) return status::kFreedomOutOfRange;
    *out = ChiSquareCdf(x, dof);
    return status::kSuccess;
}

Status DistChiSquareInverse(double p, std::int32_t dof, double* out) noexcept {
    if (!IsProbability(p)) return status::kProbabilityOutOfRange;  // before the degrees of freedom, unlike the others
    if (dof < 1) return status::kFreedomOutOfRange;
    if (p == 0 || p == 1) {
        *out = p == 0 ? 0 : kInfinity;
        return status::kSuccess;
    }
    double hi = 5000;
    while (ChiSquareCdf(hi, dof) < p) hi += 5000;
    *out = Bisect(p, 0, hi, [=](double x) { return ChiSquareCdf(x, dof); });
    return status::kSuccess;
}

Status DistFCdf(double x, std::int32_t dof1, std::int32_t dof2, double* out) noexcept {
    if (dof1 < 1 || dof2 < 1) return status::kFreedomOutOfRange;
    *out = std::isnan(x) ? x : FCdf(x, dof1, dof2);
    return std::isnan(x) ? status::kNanInput : status::kSuccess;
}

Status DistFInverse(double p, std::int32_t dof1, std::int32_t dof2, double* out) noexcept {
    if (dof1 < 1 || dof2 < 1) return status::kFreedomOutOfRange;
    if (!IsProbability(p)) return status::kProbabilityOutOfRange;
    if (p == 0 || p == 1)
        *out = p == 0 ? 0 : kInfinity;
    else
        *out = Bisect(p, 1e-6, 10000, [=](double x) { return FCdf(x, dof1, dof2); });
    return status::kSuccess;
}

}  // namespace quorvan

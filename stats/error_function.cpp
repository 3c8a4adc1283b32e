#include "stats/error_function.h"

#include <cmath>

#include "frame/status.h"
#include "stats/special/polynomial.h"

namespace quorvan {
namespace {

// Highest power first; U, Q and S have the leading coefficient 1 besides.
constexpr double kT[] = {9.604973739870516, 90.02601972038427, 2232.005345946843, 7003.325141128051, 55592.30130103949};
constexpr double kU[] = {33.56171416475031, 521.3579497801527, 4594.323829709801, 22629.000061389095,
                         49267.39426086359};
constexpr double kP[] = {2.461949814735305e-10, 0.5641895648310689, 7.463210564422699,
                         48.63719709856814,     196.5208329560771,  526.4451949954773,
                         934.5285271719576,     1027.5518868951572, 557.5353353693994};
constexpr double kQ[] = {13.228195115474499, 86.70721408859897,  354.9377788878199,  975.7085017432055,
                         1823.9091668790973, 2246.3376081871097, 1656.6630919416134, 557.5353408177277};
constexpr double kR[] = {0.5641895835477551, 1.275366707599781,  5.019050422511805,
                         6.160210979930536,  7.4097426995044895, 2.9788666537210022};
constexpr double kS[] = {2.2605286322011726, 9.396035249380015, 12.048953980809666,
                         17.08144507475659,  9.608968090632859, 3.369076451000815};

constexpr double kLeastExponent = -709.782712893384;

// For |x| <= 1.
double InnerErf(double x) {
    const double square = x * x;
    return x * Polynomial(square, kT) / MonicPolynomial(square, kU);
}

// For |x| >= 1.
double OuterErfc(double x) {
    const double a = std::fabs(x), exponent = -(x * x);
    if (exponent < kLeastExponent) return x > 0 ? 0.0 : 2.0;
    const double e = std::exp(exponent);
    const double y =
        a < 8 ? e * Polynomial(a, kP) / MonicPolynomial(a, kQ) : e * Polynomial(a, kR) / MonicPolynomial(a, kS);
    return x < 0 ? 2.0 - y : y;
}

}  // namespace

Status DistErf(double x, double* out) noexcept {
    *out = std::isnan(x) ? x : std::fabs(x) <= 1 ? InnerErf(x) : 1.0 - OuterErfc(x);
    return status::kSuccess;
}

Status DistErfc(double x, double* out) noexcept {
    *out = std::isnan(x) ? x : std::fabs(x) < 1 ? 1.0 - InnerErf(x) : OuterErfc(x);
    return status::kSuccess;
}

}  // namespace quorvan

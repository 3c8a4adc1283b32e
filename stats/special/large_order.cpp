// J and Y for large orders.
#include <cmath>
#include <limits>

#include "frame/types.h"
#include "stats/special/airy.h"
#include "stats/special/bessel_pair.h"
#include "stats/special/debye.h"
#include "stats/special/double_double.h"
#include "stats/special/polynomial.h"

namespace quorvan {
namespace {

constexpr double kInf = std::numeric_limits<double>::infinity();
constexpr double kCbrt2 = 1.259921049894873, kCbrt4 = 1.587401051968199;  // 2^(1/3), 2^(2/3)

// Cephes Math Library, S. L. Moshier: jv. Coefficients of A&S 9.3.40, then of 9.3.25 and 9.3.26.
constexpr double kLambda[] = {1.0,
                              1.041666666666666666666667E-1,
                              8.355034722222222222222222E-2,
                              1.282265745563271604938272E-1,
                              2.918490264641404642489712E-1,
                              8.816272674437576524187671E-1,
                              3.321408281862767544702647E+0,
                              1.499576298686255465867237E+1,
                              7.892301301158651813848139E+1,
                              4.744515388682643231611949E+2,
                              3.207490090890661934704328E+3};
constexpr double kMu[] = {1.0,
                          -1.458333333333333333333333E-1,
                          -9.874131944444444444444444E-2,
                          -1.433120539158950617283951E-1,
                          -3.172272026784135480967078E-1,
                          -9.424291479571202491373028E-1,
                          -3.511203040826354261542798E+0,
                          -1.572726362036804512982712E+1,
                          -8.228143909718594444224656E+1,
                          -4.923553705236705240352022E+2,
                          -3.316218568547972508762102E+3};
constexpr double kPF2[] = {-9.0000000000000000000e-2, 8.5714285714285714286e-2};
constexpr double kPF3[] = {1.3671428571428571429e-1, -5.4920634920634920635e-2, -4.4444444444444444444e-3};
constexpr double kPF4[] = {1.3500000000000000000e-3, -1.6036054421768707483e-1, 4.2590187590187590188e-2,
                           2.7330447330447330447e-3};
constexpr double kPG1[] = {-2.4285714285714285714e-1, 1.4285714285714285714e-2};
constexpr double kPG2[] = {-9.0000000000000000000e-3, 1.9396825396825396825e-1, -1.1746031746031746032e-2};
constexpr double kPG3[] = {1.9607142857142857143e-2, -1.5983694083694083694e-1, 6.3838383838383838384e-3};

// |x - v| <= 0.7 v^(1/3), with z = (x - v) / v^(1/3):
// J = 2^(1/3) Ai(-2^(1/3) z) F / v^(1/3) + 2^(2/3) Ai'(-2^(1/3) z) G / v, Y the same of -Bi.
BesselPair Transition(double v, double x) noexcept {
    const double c = std::cbrt(v), z = (x - v) / c, zz = z * z, zzz = zz * z;
    const double f[] = {zz * Polynomial(zzz, kPF2), Polynomial(zzz, kPF3), z * Polynomial(zzz, kPF4)};
    const double g[] = {0.3 * zz, Polynomial(zzz, kPG1), z * Polynomial(zzz, kPG2), zz * Polynomial(zzz, kPG3)};
    const double power = 1 / (c * c);  // v^(-2/3)
    const double sum_f = 1 + power * (-z / 5 + power * (f[0] + power * (f[1] + power * f[2])));
    const double sum_g = g[0] + power * (g[1] + power * (g[2] + power * g[3]));
    AiryValues airy;
    SpecAiry(-kCbrt2 * z, &airy.ai, &airy.bi, &airy.ai_slope, &airy.bi_slope);
    const double a = kCbrt2 * sum_f / c, b = kCbrt4 * sum_g / v;
    return {a * airy.ai + b * airy.ai_slope, -(a * airy.bi + b * airy.bi_slope)};
}

// artanh(s) - s (sign 1) or s - arctan(s) (sign -1), without cancellation for small s.
double CubicRemainder(double s, double sign, double whole) noexcept {
    if (s > 0.6) return sign * (whole - s);
    const double ss = sign * s * s;
    double term = s * s * s, sum = term / 3;
    for (int k = 5; k < 100; k += 2) {
        term *= ss;
        sum += term / k;
        if (std::fabs(term) <= kEpsilon * sum) break;
    }
    return sum;
}

// The phase sqrt(x^2 - v^2) - v arccos(v/x) = sqrt(x^2 - v^2) + v arcsin u - v pi/2, u = v/x <= 1/2, whose large parts
// are sums of two doubles: in one it would lose as many digits as it has before the point.
DoubleDouble LongPhase(double v, double x) noexcept {
    constexpr DoubleDouble kHalfPi{1.5707963267948966, 6.123233995736766e-17};
    const DoubleDouble square = ExactSum(x, -v) * ExactSum(x, v);
    const double root = std::sqrt(square.high);
    const double root_rest = (std::fma(-root, root, square.high) + square.low) / (2 * root);
    const DoubleDouble linear = ExactProduct(v, v) / DoubleDouble{x, 0};
    const double u = v / x;
    double power = u * u * u, sum = power / 6;  // arcsin u - u
    for (int k = 3; k < 100; k += 2) {
        power *= u * u * k / (k + 1.0);
        const double term = 0.5 * power / (k + 2);
        sum += term;
        if (term <= kEpsilon * sum) break;
    }
    const DoubleDouble turns = kHalfPi * DoubleDouble{-v, 0};
    return (DoubleDouble{root, root_rest} + linear) + (turns + DoubleDouble{v * sum, 0});
}

BesselPair Uniform(double v, double x) noexcept {
    const double z = x / v, zz = (v - x) / v * ((v + x) / v);  // 1 - z^2
    const double sign = zz > 0 ? 1 : -1, s = std::sqrt(std::fabs(zz));
    // (2/3) |zeta|^(3/2)
    const double exponent =
        zz > 0 ? CubicRemainder(s, 1, std::log((1 + s) / z)) : CubicRemainder(s, -1, std::acos(1 / z));
    if (zz > 0 && exponent * v > 750) return {0, -kInf};  // beyond the range of doubles
    const double t = 1.5 * exponent, cbrt_t = std::cbrt(t), zeta = cbrt_t * cbrt_t;

    double ratio[kDebyeTerms];  // u_k over a power of i, which the signs below bring back
    for (int k = 0; k < kDebyeTerms; ++k) {
        double sum = kDebye[k][0];
        for (int i = 1; i <= k; ++i) sum = sum / zz + kDebye[k][i];
        ratio[k] = k == 0 ? 1 : sum / std::pow(s, k);
    }
    // A_k = sum of mu_i zeta^(-3i/2) u_(2k-i), B_k = -zeta^(-1/2) sum of lambda_i zeta^(-3i/2) u_(2k+1-i); for zeta < 0
    // the powers of i leave the sign (-1)^(k+i). The terms fall as 1/v^2 until the expansion starts to diverge.
    double sum_a = 0, sum_b = 0, power = 1, last_a = kInf, last_b = kInf;
    bool more_a = true, more_b = true;
    for (int k = 0; k < 4; ++k) {
        double a = 0, b = 0, reciprocal = 1;
        for (int i = 0; i <= 2 * k + 1; ++i) {
            const double turned = sign > 0 || ((k + i) & 1) == 0 ? 1 : -1;
            if (i <= 2 * k) a += turned * kMu[i] * reciprocal * ratio[2 * k - i];
            b += turned * kLambda[i] * reciprocal * ratio[2 * k + 1 - i];
            reciprocal /= t;
        }
        a *= power;
        b *= power;
        more_a = more_a && std::fabs(a) < last_a;
        more_b = more_b && std::fabs(b) < last_b;
        if (more_a) sum_a += a;
        if (more_b) sum_b += b;
        last_a = std::fabs(a);
        last_b = std::fabs(b);
        power /= v * v;
    }
    sum_b *= -sign / cbrt_t;
    const double c = std::cbrt(v);
    const DoubleDouble phase = z >= 2 && x < 1e150 ? LongPhase(v, x) : DoubleDouble{exponent * v, 0};
    const AiryValues airy = AiryOfZeta(sign * zeta * c * c, phase.high, phase.low);
    const double factor = std::sqrt(2 * std::sqrt(zeta) / s);
    const double p = sum_a / c, q = sum_b / (c * c) / v;
    return {factor * (airy.ai * p + airy.ai_slope * q), -factor * (airy.bi * p + airy.bi_slope * q)};
}

}  // namespace

BesselPair LargeOrderPair(double v, double x) noexcept {
    if (x > 0.3 * v * v) return HankelPair(v, x);
    return std::fabs(x - v) <= 0.7 * std::cbrt(v) ? Transition(v, x) : Uniform(v, x);
}

}  // namespace quorvan

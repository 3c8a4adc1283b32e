#include "stats/special/elliptic_integrals.h"

#include <cmath>
#include <limits>

#include "frame/types.h"
#include "stats/special/polynomial_pair.h"

namespace quorvan {
namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInf = std::numeric_limits<double>::infinity();
constexpr double kHalfPi = 1.5707963267948966;
constexpr double kHalfPiRest = 6.123233995736766e-17;  // pi/2 - kHalfPi

bool InRange(double m) noexcept { return m >= 0 && m <= 1; }

// phi = n pi/2 + rest with n even. Beyond 2^52 nothing of the rest is known, and it is 0.
struct Reduced {
    double quarters, rest;
};

Reduced Reduce(double phi) noexcept {
    const double n = 2 * std::nearbyint(phi / kPi);
    if (std::fabs(n) > 0x1p52) return {phi / kHalfPi, 0};
    const double head = n * kHalfPi;
    return {n, (phi - head) - (std::fma(n, kHalfPi, -head) + n * kHalfPiRest)};
}

// The descending Landen transformation (J. Landen, 1775) of both integrals: with a_0 = 1, b_0 = sqrt(1-m), c_0 = sqrt
// m,
//   tan(phi_(k+1) - phi_k) = (b_k/a_k) tan phi_k, a, b the arithmetic and geometric means, c_(k+1) = (a_k - b_k)/2,
//   F = phi_n / (2^n a_n), E(phi) = E/K F + sum of c_k sin phi_k.
// phi_k is kept as t = tan phi_k and the number of half turns to the nearest multiple of pi: phi_(k+1) lies less than a
// quarter turn from twice that multiple, unless its tangent passes the pole on the way.
struct Landen {
    double f, sum;  // sum only where wanted
};

template <bool kWithSum>
Landen Descend(double t, double m, double b) noexcept {
    constexpr double kLeastDivisor = 1e-100;  // a pole of the tangent, with a square in range
    double a = 1, c = std::sqrt(m), power = 1, half_turns = 0, sum = 0;
    while (c > kEpsilon * a) {
        const double r = b / a;
        double divisor = 1 - r * t * t;
        half_turns += half_turns;
        if (divisor < 0) half_turns += t < 0 ? -1 : 1;
        if (divisor == 0) divisor = kLeastDivisor;
        t = t * (1 + r) / divisor;
        c = 0.5 * (a - b);
        b = std::sqrt(a * b);
        a = a - c;
        power += power;
        if constexpr (kWithSum) {
            const double sine = t / std::sqrt(1 + t * t);
            sum += std::fmod(half_turns, 2) != 0 ? -c * sine : c * sine;
        }
    }
    return {(std::atan(t) + half_turns * kPi) / (power * a), sum};
}

// F, or E, of 0 <= phi <= pi/2 and 0 < m < 1.
template <bool kSecond>
double FirstQuarter(double phi, double m) noexcept {
    const double t = std::tan(phi), b = std::sqrt(1 - m), from_end = 1 / (b * t);
    const bool other_end = t > 10 && from_end < 10;
    const Landen landen = Descend<kSecond>(other_end ? from_end : t, m, b);
    if constexpr (!kSecond) return other_end ? SpecEllipticK(m) - landen.f : landen.f;
    const double whole = SpecEllipticE(m), part = whole / SpecEllipticK(m) * landen.f + landen.sum;
    // sin(phi) sin(e) from the tangents.
    const double sines = t / std::sqrt(1 + t * t) * (from_end / std::sqrt(1 + from_end * from_end));
    return other_end ? whole + m * sines - part : part;
}

// The first terms of both in powers of phi, for |phi| <= kSmallAngle, where the transformation would round more.
constexpr double kSmallAngle = 0.015;

template <bool kSecond>
double SmallAngle(double phi, double m) noexcept {
    const double z = phi * phi;
    const double c7 = kSecond ? -m * (16 + m * (-60 + m * 45)) : m * (16 + m * (-180 + m * 225));
    const double c5 = kSecond ? m * (4 - 3 * m) : m * (9 * m - 4);
    const double c3 = kSecond ? -m : m;
    return phi + phi * (z * (c3 / 6 + z * (c5 / 120 + z * (c7 / 5040))));
}

template <bool kSecond>
double Incomplete(double phi, double m) noexcept {
    if (std::fabs(phi) <= kSmallAngle) return SmallAngle<kSecond>(phi, m);
    const Reduced reduced = Reduce(phi);
    const double part = std::copysign(FirstQuarter<kSecond>(std::fabs(reduced.rest), m), reduced.rest);
    if (reduced.quarters == 0) return part;
    return part + reduced.quarters * (kSecond ? SpecEllipticE(m) : SpecEllipticK(m));
}

}  // namespace

double SpecEllipticK(double m) noexcept {
    static constexpr double kP[] = {1.37982864606273237150E-4, 2.28025724005875567385E-3, 7.97404013220415179367E-3,
                                    9.85821379021226008714E-3, 6.87489687449949877925E-3, 6.18901033637687613229E-3,
                                    8.79078273952743772254E-3, 1.49380448916805252718E-2, 3.08851465246711995998E-2,
                                    9.65735902811690126535E-2, 1.38629436111989062502E0};
    static constexpr double kQ[] = {2.94078955048598507511E-5, 9.14184723865917226571E-4, 5.94058303753167793257E-3,
                                    1.54850516649762399335E-2, 2.39089602715924892727E-2, 3.01204715227604046988E-2,
                                    3.73774314173823228969E-2, 4.88280347570998239232E-2, 7.03124996963957469739E-2,
                                    1.24999999999870820058E-1, 4.99999999999999999821E-1};
    constexpr double kLn4 = 1.3862943611198906;
    if (!InRange(m)) return kNaN;
    const double q = 1 - m;
    if (q == 0) return kInf;
    if (q <= kEpsilon) return kLn4 - 0.5 * std::log(q);
    const PolynomialPair p = Polynomials(q, kP, kQ);
    return p.first - std::log(q) * p.second;
}

double SpecEllipticE(double m) noexcept {
    static constexpr double kP[] = {1.53552577301013293365E-4, 2.50888492163602060990E-3, 8.68786816565889628429E-3,
                                    1.07350949056076193403E-2, 7.77395492516787092951E-3, 7.58395289413514708519E-3,
                                    1.15688436810574127319E-2, 2.18317996015557253103E-2, 5.68051945617860553470E-2,
                                    4.43147180560990850618E-1, 1.00000000000000000299E0};
    // With the factor q as a last coefficient 0.
    static constexpr double kQ[] = {3.27954898576485872656E-5,
                                    1.00962792679356715133E-3,
                                    6.50609489976927491433E-3,
                                    1.68862163993311317300E-2,
                                    2.61769742454493659583E-2,
                                    3.34833904888224918614E-2,
                                    4.27180926518931511717E-2,
                                    5.85936634471101055642E-2,
                                    9.37499997197644278445E-2,
                                    2.49999999999888314361E-1,
                                    0};
    if (!InRange(m)) return kNaN;
    const double q = 1 - m;
    if (q == 0) return 1;
    const PolynomialPair p = Polynomials(q, kP, kQ);
    return p.first - std::log(q) * p.second;
}

double SpecEllipticF(double phi, double m) noexcept {
    if (std::isnan(phi) || !InRange(m)) return kNaN;
    if (std::isinf(phi) || phi == 0 || m == 0) return phi;
    if (m == 1) return std::fabs(phi) >= kHalfPi ? std::copysign(kInf, phi) : std::asinh(std::tan(phi));
    return Incomplete<false>(phi, m);
}

double SpecEllipticEIncomplete(double phi, double m) noexcept {
    if (std::isnan(phi) || !InRange(m)) return kNaN;
    if (std::isinf(phi) || phi == 0 || m == 0) return phi;
    if (m == 1) {
        const Reduced reduced = Reduce(phi);
        return std::sin(reduced.rest) + reduced.quarters;
    }
    return Incomplete<true>(phi, m);
}

}  // namespace quorvan

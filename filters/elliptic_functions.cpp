#include "filters/elliptic_functions.h"

#include <cmath>

#include "frame/types.h"

namespace quorvan {
namespace {

constexpr int kMostSteps = 25;
constexpr double kTolerance = 1e-15;

}  // namespace

// pi / (2 agm(1, kc)): Abramowitz and Stegun (1964), 17.6.3.
double EllipticK(double kc) noexcept {
    double a = kc, b = 1, mean = 0;
    for (int step = 0; step < kMostSteps; ++step) {
        mean = (a + b) / 2;
        const double geometric = std::sqrt(a * b);
        if ((mean - geometric) / mean < kTolerance) break;
        a = mean;
        b = geometric;
    }
    return kPi / (2 * mean);
}

// Descending Landen transformation, R. Bulirsch, Numerical calculation of elliptic integrals and elliptic functions,
// Numerische Mathematik 7 (1965): down to circular functions, and up again through cn / sn.
JacobiFunctions JacobiSnCnDn(double u, double kc) noexcept {
    if (u == 0) return {0, 1, 1};
    double arithmetic[kMostSteps], geometric[kMostSteps];
    double a = 1, e = kc, mean = 0;
    int levels = 0;
    while (levels < kMostSteps) {
        arithmetic[levels] = a;
        geometric[levels] = e;
        ++levels;
        mean = (a + e) / 2;
        e = std::sqrt(a * e);
        if ((mean - e) / mean < kTolerance) break;
        a = mean;
    }
    double c = mean / std::tan(mean * u), d = 1;
    a = mean;
    for (int level = levels - 1; level >= 0; --level) {
        const double t = c * c / a;
        c = c * d;
        a = arithmetic[level];
        d = (t + geometric[level]) / (t + a);
    }
    const double sn = 1 / std::sqrt(c * c + 1);
    return {sn, c * sn, d};
}

// The integral of the first kind by the same author's recurrence for el1.
double EllipticArcSc(double x, double kc) noexcept {
    constexpr double kSingle = 1.2e-7;  // single precision, deliberate: the tolerance of this function alone
    double a = 1, c = kc, y = 1 / x;
    Count turns = 0;
    for (int step = 0; step < kMostSteps; ++step) {
        double p = c * a;
        a = a + c;
        const double root = std::sqrt(p);
        p = p / y;
        c = 2 * root;
        y = y - p;
        if (y == 0) y = root * 1e-15;
        const bool near = std::fabs(a - c) < a * kSingle;
        if (!near) turns *= 2;
        if (y < 0) ++turns;
        if (near) break;
    }
    return (std::atan(a / y) + turns * kPi) / a;
}

// k = (theta2 / theta3)² of the nome exp(-pi v): Abramowitz and Stegun (1964), 16.27 and 16.38.
double EllipticNomeModulus(double v) noexcept {
    const double nome = std::exp(-kPi * v);
    double theta2 = 1, theta3 = 1, term = 1, power = nome;
    for (int step = 0; step < kMostSteps; ++step) {
        theta3 = theta3 + 2 * term * power;
        term = term * (power * power);
        power = power * nome;
        theta2 = theta2 + term;
        if (term < kTolerance) break;
    }
    const double modulus = 4 * std::sqrt(nome) * (theta2 * theta2) / (theta3 * theta3);
    return modulus >= 1 ? 0.99999999999999 : modulus;
}

}  // namespace quorvan

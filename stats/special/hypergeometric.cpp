#include "stats/special/hypergeometric.h"

#include <cmath>
#include <limits>

#include "frame/types.h"
#include "stats/special/divergent_series.h"
#include "stats/special/double_double.h"
#include "stats/special/estimate.h"
#include "stats/special/gamma_ratio.h"

namespace quorvan {
namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInf = std::numeric_limits<double>::infinity();
constexpr double kAsymptoticFactor = 30;  // on the error estimate of the asymptotic form
constexpr double kAsymptoticGood = kAsymptoticFactor * 8.881784197001252e-16;
constexpr double kLargestExponent = 700;  // of the exponential in Kummer's transformation
constexpr double kLongest = 20000;        // terms of a series

double TermLimit(double a, double b, double x) noexcept {
    const double wanted = 200 + 2 * (std::fabs(a) + std::fabs(b) + std::fabs(x));
    return wanted < kLongest ? wanted : kLongest;
}

// The terms fall for good once a + n and b + n are positive and the quotient is below 1.
bool Settled(double an, double bn, double quotient) noexcept { return an > 0 && bn > 0 && std::fabs(quotient) < 0.5; }

Estimate PowerSeries(double a, double b, double x) noexcept {
    const double limit = TermLimit(a, b, x);
    double sum = 1, term = 1, largest = 1;
    for (double n = 0; n < limit; n += 1) {
        const double an = a + n, bn = b + n;
        if (an == 0) return Judged(sum, largest, 0);
        const double quotient = x * an / (bn * (n + 1));
        term *= quotient;
        sum += term;
        const double size = std::fabs(term);
        if (std::isinf(size)) {
            if (x > 0 && a > 0 && b > 0) return {kInf, 0};
            break;
        }
        if (size > largest) largest = size;
        if (size <= kEpsilon * std::fabs(sum) && Settled(an, bn, quotient)) return Judged(sum, largest, 0);
        if (term == 0 && an > 0) return Judged(sum, largest, 0);
    }
    return {sum, kInf};
}

// The power series of 1F1(a_hi + a_lo; b; x) in pairs of doubles.
Estimate LongSeries(DoubleDouble a, double b, double x) noexcept {
    const double limit = TermLimit(a.high, b, x);
    DoubleDouble sum{1, 0}, term{1, 0};
    double largest = 1;
    for (double n = 0; n < limit; n += 1) {
        const DoubleDouble an = a + DoubleDouble{n, 0}, bn = ExactSum(b, n), xn{x, 0}, factorial{n + 1, 0};
        if (an.high == 0) break;
        term = term * ((an * xn) / (bn * factorial));
        sum = sum + term;
        const double size = std::fabs(term.high);
        if (size > largest) largest = size;
        if (!(largest < 1e300)) return {sum.high, kInf};
        const bool settled = Settled(an.high, bn.high, x * an.high / (bn.high * (n + 1)));
        if (size <= 0x1p-60 * std::fabs(sum.high) && settled) break;
        if (n + 1 >= limit) return {sum.high, kInf};
    }
    return JudgedPair(sum.high, largest);
}

// e^x 1F1(b - a; b; -x). `long_sum` in pairs of doubles, b - a without loss.
Estimate Transformed(double a, double b, double x, bool long_sum) noexcept {
    if (std::fabs(x) > kLargestExponent) return {kNaN, kInf};
    const DoubleDouble difference = ExactSum(b, -a);
    Estimate sum = long_sum ? LongSeries(difference, b, -x) : PowerSeries(difference.high, b, -x);
    sum.value *= std::exp(x);
    if (!long_sum && difference.low != 0) {
        // d ln 1F1 / d ln(b - a) is at most about |x|; but beside 0, -1, ... the rounding counts over the distance.
        const double whole = std::nearbyint(difference.high), x1 = std::fmin(std::fabs(x), 1);
        const double distance = whole <= 0 ? std::fabs(difference.high - whole) : difference.high;
        sum.error += std::fabs(difference.low / distance) * x1;
    }
    return sum;
}

// Abramowitz and Stegun 13.5.1: of
//   Gamma(b)/Gamma(a)   e^x |x|^(a-b) 2F0(b-a, 1-a; 1/x)
//   Gamma(b)/Gamma(b-a) |x|^-a        2F0(a, a-b+1; -1/x)
// the first for x > 0, the second for x < 0; the other counts as error. A series that ends takes the second.
Estimate Asymptotic(double a, double b, double x) noexcept {
    const double size = std::fabs(x);
    const BelowGamma difference = BesidePole(ExactSum(b, -a));
    if (IsPole(a)) {
        const Estimate sum = DivergentSeries(a, a - b + 1, -1 / x);
        const double sign = x > 0 && std::fmod(a, 2) != 0 ? -1 : 1;
        const double weight = GammaWeight(0, size, -a, b, 1, difference.argument, 1) * (sign * difference.factor);
        return Judged(weight * sum.value, 0, kAsymptoticFactor * std::fabs(weight) * sum.error);
    }
    const double growing = GammaWeight(x, size, a - b, b, 1, a, 1);
    const double algebraic = GammaWeight(0, size, -a, b, 1, difference.argument, 1) * difference.factor;
    const Estimate sum = x > 0 ? DivergentSeries(b - a, 1 - a, 1 / x) : DivergentSeries(a, a - b + 1, -1 / x);
    const double weight = x > 0 ? growing : algebraic, other = x > 0 ? algebraic : growing;
    if (std::isinf(weight) && x > 0 && std::isfinite(other) && sum.error < 0.1) return {weight * sum.value, 0};
    return Judged(weight * sum.value, 0, kAsymptoticFactor * (std::fabs(weight) * sum.error + std::fabs(other)));
}

double AtInfinity(double x, double a, double b) noexcept {
    if (a == 0) return 1;
    if (x < 0 && !IsPole(a)) {
        if (a > 0 || IsPole(b - a)) return 0;
        return ReciprocalGamma(b - a) / ReciprocalGamma(b) < 0 ? -kInf : kInf;
    }
    if (!IsPole(a)) return (ReciprocalGamma(a) < 0) != (ReciprocalGamma(b) < 0) ? -kInf : kInf;
    // A polynomial of degree -a: the sign of the last coefficient, (a)_n / (b)_n with n = -a, times that of x^n.
    const double negative_factors = b >= 0 ? 0 : std::fmin(-a, std::ceil(-b));
    const bool negative = (x > 0 && std::fmod(a, 2) != 0) != (std::fmod(negative_factors, 2) != 0);
    return negative ? -kInf : kInf;
}

// Finite x, a and b, neither at a pole that the series meets.
Estimate BestForm(double x, double a, double b) noexcept {
    const bool pole = IsPole(b);
    Estimate best{kNaN, kInf};
    const bool transform_first = !pole && (std::fabs(b - a) < 0.001 * std::fabs(a) || IsPole(b - a));
    if (transform_first) {
        best = Transformed(a, b, x, false);
        if (best.Good()) return best;
    }
    const bool asymptotic_first = !pole && std::fabs(x) >= 40;
    if (asymptotic_first) {
        best = Better(best, Asymptotic(a, b, x));
        if (best.error <= kAsymptoticGood) return best;
    }
    best = Better(best, PowerSeries(a, b, x));
    if (best.Good()) return best;
    if (pole) return Better(best, LongSeries({a, 0}, b, x));
    if (!transform_first) best = Better(best, Transformed(a, b, x, false));
    if (best.Good()) return best;
    if (!asymptotic_first) best = Better(best, Asymptotic(a, b, x));
    if (best.error <= kAsymptoticGood) return best;
    best =
        Better(best, x > 0 || std::fabs(x) > kLargestExponent ? LongSeries({a, 0}, b, x) : Transformed(a, b, x, true));
    if (best.error <= kAsymptoticGood) return best;
    return Better(best, x > 0 ? Transformed(a, b, x, true) : LongSeries({a, 0}, b, x));
}

}  // namespace

double SpecHyperg1F1(double x, double a, double b) noexcept {
    if (std::isnan(x) || std::isnan(a) || std::isnan(b) || std::isinf(a) || b == -kInf) return kNaN;
    if (b == kInf) return std::isinf(x) ? kNaN : 1;
    if (IsPole(b) && !(IsPole(a) && (a > b || (a == b && b < 0)))) return kInf;
    if (x == 0 || a == 0) return 1;
    if (a == b) return std::exp(x);
    if (std::isinf(x)) return AtInfinity(x, a, b);
    const Estimate best = BestForm(x, a, b);
    return best.Usable();
}

}  // namespace quorvan

#include "stats/special/gauss_hypergeometric.h"

#include <cmath>
#include <limits>

#include "frame/types.h"
#include "stats/special/digamma.h"
#include "stats/special/double_double.h"
#include "stats/special/estimate.h"
#include "stats/special/gamma_ratio.h"
#include "stats/special/two_lanes.h"

namespace quorvan {
namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInf = std::numeric_limits<double>::infinity();
constexpr double kWholeTolerance = 3.7252902984619132e-09;
constexpr double kNearOne = 0.9;
constexpr int kLongest = 10000;
constexpr double kAccepted = 48 * kEpsilon;  // estimate with which no slow form is tried

// a, b, c with the differences c - a, c - b and c - a - b, which the transformations exchange without rounding anew;
// and what rounding took from the first two, which then may stand for a or b.
struct Parameters {
    double a, b, c, ca, cb, d;
    double a_rest = 0, b_rest = 0, ca_rest = 0, cb_rest = 0;

    Parameters Euler() const noexcept { return {ca, cb, c, a, b, -d, ca_rest, cb_rest, a_rest, b_rest}; }
    // 2F1 = (1-x)^-a times that of a, c-b, c at x/(x-1).
    Parameters Pfaff() const noexcept { return {a, cb, c, ca, b, b - a, a_rest, cb_rest, ca_rest, b_rest}; }
    Parameters Exchanged() const noexcept { return {b, a, c, cb, ca, d, b_rest, a_rest, cb_rest, ca_rest}; }
};

// x with 1 - x, which is known better than by subtraction.
struct Argument {
    double x, rest;
};

Estimate PowerSeries(const Parameters& p, double x) noexcept {
    const bool ends = IsPole(p.a) || IsPole(p.b);
    double sum = 1, term = 1, largest = 1;
    for (TwoLanes n = {0, 1}; n[0] < kLongest; n += 2) {
        // Two quotients for the price of one division.
        const TwoLanes an = p.a + n, bn = p.b + n, cn = p.c + n, quotients = an * bn * x / (cn * (n + 1));
#pragma GCC unroll 2
        for (int lane = 0; lane < 2; ++lane) {
            if (ends && (an[lane] == 0 || bn[lane] == 0)) return Judged(sum, largest, 0);
            const double quotient = quotients[lane];
            term *= quotient;
            sum += term;
            const double size = std::fabs(term);
            if (size > largest) {
                largest = size;
                if (std::isinf(size)) return {sum, kInf};
            }
            if (size <= kEpsilon * std::fabs(sum) && an[lane] > 0 && bn[lane] > 0 && cn[lane] > 0) {
                // The quotients tend to x one-sidedly: the rest is below a geometric series.
                const double ratio = std::fmax(std::fabs(quotient), std::fabs(x));
                const double rest = size * ratio / (1 - ratio);
                if (ratio < 1 && rest <= 0.5 * kEpsilon * std::fabs(sum)) return Judged(sum, largest, rest);
            }
        }
    }
    return {sum, kInf};
}

// The same in pairs of doubles.
Estimate LongSeries(DoubleDouble a, DoubleDouble b, double c, DoubleDouble x) noexcept {
    DoubleDouble sum{1, 0}, term{1, 0};
    double largest = 1;
    for (int i = 0; i < kLongest; ++i) {
        const double n = i;
        const DoubleDouble shift{n, 0}, an = a + shift, bn = b + shift, cn = ExactSum(c, n);
        if (an.high == 0 || bn.high == 0) return JudgedPair(sum.high, largest);
        term = term * ((an * bn * x) / (cn * DoubleDouble{n + 1, 0}));
        sum = sum + term;
        const double size = std::fabs(term.high);
        if (size > largest) largest = size;
        if (!(size < 1e300)) break;
        const double ratio = std::fmax(std::fabs(an.high * bn.high * x.high / (cn.high * (n + 1))), std::fabs(x.high));
        if (size <= 0x1p-60 * std::fabs(sum.high) * (1 - ratio) && an.high > 0 && bn.high > 0 && cn.high > 0) {
            return JudgedPair(sum.high, largest);
        }
    }
    return {sum.high, kInf};
}

// Gamma(c) Gamma(d)/(Gamma(c-a) Gamma(c-b)) 2F1(a, b; 1-d; 1-x)
//   + (1-x)^d Gamma(c) Gamma(-d)/(Gamma(a) Gamma(b)) 2F1(c-a, c-b; 1+d; 1-x).
Estimate TwoTerms(const Parameters& p, Argument at) noexcept {
    if (p.d == std::floor(p.d)) return {kNaN, kInf};
    const Estimate first = PowerSeries({p.a, p.b, 1 - p.d, 0, 0, 0}, at.rest);
    const Estimate second = PowerSeries({p.ca, p.cb, 1 + p.d, 0, 0, 0}, at.rest);
    const BelowGamma a = BesidePole({p.a, p.a_rest}), b = BesidePole({p.b, p.b_rest});
    const BelowGamma ca = BesidePole({p.ca, p.ca_rest}), cb = BesidePole({p.cb, p.cb_rest});
    const double one = GammaWeight(0, 1, 0, p.c, p.d, ca.argument, cb.argument) * ca.factor * cb.factor * first.value;
    const double two =
        GammaWeight(0, at.rest, p.d, p.c, -p.d, a.argument, b.argument) * a.factor * b.factor * second.value;
    const double sum = one + two;
    if (std::isinf(sum) && !std::isinf(one) != !std::isinf(two)) return {sum, first.error + second.error};
    const double rest = std::fabs(one) * first.error + std::fabs(two) * second.error;
    return Judged(sum, 4 * (std::fabs(one) + std::fabs(two)), rest);
}

// d = m = 0, 1, ...:
//   Gamma(c)/(Gamma(a+m) Gamma(b+m)) sum of (a)_k (b)_k (m-k-1)!/k! (x-1)^k, k below m
//   - Gamma(c) (x-1)^m/(Gamma(a) Gamma(b)) sum of (a+m)_k (b+m)_k/(k! (k+m)!) (1-x)^k
//       (ln(1-x) - psi(k+1) - psi(k+m+1) + psi(a+k+m) + psi(b+k+m)), k from 0 on.
Estimate PositiveLimit(const Parameters& p, Argument at, double m) noexcept {
    if (m > 100) return {kNaN, kInf};
    double finite = 0, largest_finite = 0, finite_weight = 0;
    if (m > 0) {
        finite_weight = GammaWeight(0, 1, 0, p.c, m, p.ca, p.cb);
        double term = 1;
        for (double k = 0; k < m; k += 1) {
            finite += term;
            if (std::fabs(term) > largest_finite) largest_finite = std::fabs(term);
            if (k + 1 < m) term *= -(p.a + k) * (p.b + k) * at.rest / ((k + 1) * (m - k - 1));
        }
    }
    const double weight = GammaWeight(0, at.rest, m, p.c, 1, p.a, p.b) * (std::fmod(m, 2) != 0 ? 1 : -1);
    double psi = std::log(at.rest) - SpecDigamma(1) - SpecDigamma(m + 1) + SpecDigamma(p.ca) + SpecDigamma(p.cb);
    double factor = ReciprocalGamma(m + 1), sum = 0, largest = 0;
    for (double k = 0; k < kLongest; k += 1) {
        // psi is a sum itself, and its rounding is the same in all terms.
        const double term = factor * psi, size = std::fabs(factor) * (std::fabs(psi) + 8);
        sum += term;
        if (size > largest) largest = size;
        if (size <= 0.25 * kEpsilon * std::fabs(sum) && k > -p.ca && k > -p.cb) break;
        psi += 1 / (p.ca + k) + 1 / (p.cb + k) - 1 / (k + 1) - 1 / (m + 1 + k);
        factor *= (p.ca + k) * (p.cb + k) * at.rest / ((k + 1) * (m + 1 + k));
    }
    const double first = finite_weight * finite, second = weight * sum;
    // Off the whole number the limit is wrong by about the distance times the logarithm.
    const double off = std::fabs(p.d - m) * (1 - std::log(at.rest)) * (std::fabs(first) + std::fabs(second));
    return Judged(first + second, 2 * (std::fabs(finite_weight) * largest_finite + std::fabs(weight) * largest), off);
}

Estimate Limit(const Parameters& p, Argument at, double m) noexcept {
    if (m >= 0) return PositiveLimit(p, at, m);
    return PositiveLimit(p.Euler(), at, -m).Times(std::pow(at.rest, p.d));
}

Estimate NearOne(const Parameters& p, Argument at) noexcept {
    const double m = std::nearbyint(p.d), distance = std::fabs(p.d - m);
    if (distance == 0) return Limit(p, at, m);
    const Estimate two = TwoTerms(p, at);
    return distance <= kWholeTolerance ? Better(two, Limit(p, at, m)) : two;
}

// 0 <= x < 1, or a little below 0; none of a, b, c-a, c-b at 0, -1, ...
Estimate Inside(const Parameters& p, Argument at) noexcept {
    const bool near_one = at.x > kNearOne;
    Estimate best = near_one ? NearOne(p, at) : PowerSeries(p, at.x);
    if (best.Good() || (near_one && best.error <= kAccepted)) return best;
    if (near_one && at.x < 0.998) best = Better(best, PowerSeries(p, at.x));
    if (best.Good()) return best;
    if (at.x < 0.998) best = Better(best, PowerSeries(p.Euler(), at.x).Times(std::pow(at.rest, p.d)));
    if (best.error <= kAccepted) return best;
    if (at.x < 0.5) {
        const double moved = -at.x / at.rest;
        best = Better(best, PowerSeries(p.Pfaff(), moved).Times(std::pow(at.rest, -p.a)));
        best = Better(best, PowerSeries(p.Exchanged().Pfaff(), moved).Times(std::pow(at.rest, -p.b)));
    }
    return best;
}

// x < 0, by x/(x-1). The larger of a and b goes first: then c - a - b of the new parameters is not negative, and the
// power in front carries all growth.
Estimate Negative(const Parameters& p, double x) noexcept {
    const double rest = 1 / (1 - x);
    const Argument moved{-x * rest, rest};
    const Parameters first = p.b > p.a ? p : p.Exchanged();
    Estimate best = Inside(first.Pfaff(), moved).Times(std::pow(rest, first.a));
    if (best.error <= kAccepted) return best;
    best = Better(best, Inside(first.Exchanged().Pfaff(), moved).Times(std::pow(rest, first.b)));
    if (best.error > kAccepted && x > -0.998) best = Better(best, PowerSeries(p, x));
    return best;
}

Estimate Terminating(const Parameters& p, double x) noexcept {
    const Estimate sum = PowerSeries(p, x);
    return sum.error <= kAccepted ? sum : Better(sum, LongSeries({p.a, 0}, {p.b, 0}, p.c, {x, 0}));
}

// The sums in pairs of doubles, with c - a, c - b and x/(x-1) without loss.
Estimate Long(const Parameters& p, double x) noexcept {
    constexpr double kMost = 0.99;  // beyond, a series would be too long
    const DoubleDouble a{p.a, 0}, b{p.b, 0}, ca = ExactSum(p.c, -p.a), cb = ExactSum(p.c, -p.b), at{x, 0};
    Estimate best{kNaN, kInf};
    if (std::fabs(x) < kMost) {
        best = LongSeries(a, b, p.c, at);
        if (best.error <= kAccepted) return best;
        best = Better(best, LongSeries(ca, cb, p.c, at).Times(std::pow(1 - x, p.d)));
        if (best.error <= kAccepted) return best;
    }
    const DoubleDouble moved = at / ExactSum(x, -1);
    if (x >= 0 || std::fabs(moved.high) > kMost) return best;
    best = Better(best, LongSeries(a, cb, p.c, moved).Times(std::pow(1 - x, -p.a)));
    if (best.error <= kAccepted) return best;
    return Better(best, LongSeries(ca, b, p.c, moved).Times(std::pow(1 - x, -p.b)));
}

double AtOne(const Parameters& p) noexcept {
    if (p.d > 0) return GammaWeight(0, 1, 0, p.c, p.d, p.ca, p.cb);
    const double sign = p.d < 0 ? ReciprocalGamma(-p.d) : 1;
    return std::copysign(kInf, ReciprocalGamma(p.c) * ReciprocalGamma(p.a) * ReciprocalGamma(p.b) * sign);
}

double Evaluate(double x, double a, double b, double c, double cut) noexcept {
    if (std::isnan(x) || std::isnan(a) || std::isnan(b) || std::isnan(c)) return kNaN;
    if (std::isinf(a) || std::isinf(b) || std::isinf(c)) return kNaN;
    if (x == 0 || ((a == 0 || b == 0) && c != 0)) return 1;
    if (x < 1 && (b == c || a == c) && std::isfinite(x)) return std::pow(1 - x, b == c ? -a : -b);
    const DoubleDouble ca = ExactSum(c, -a), cb = ExactSum(c, -b), difference = ca + DoubleDouble{-b, 0};
    const Parameters p{a, b, c, ca.high, cb.high, difference.high, 0, 0, ca.low, cb.low};

    const bool a_ends = IsPole(a), b_ends = IsPole(b);
    if (IsPole(c) && !(a_ends && a > c) && !(b_ends && b > c)) return kInf;
    if (std::isinf(x)) return x < 0 && a > 0 && b > 0 ? 0 : kNaN;
    if (a_ends || b_ends) return Terminating(p, x).Usable();
    if (IsPole(p.ca) || IsPole(p.cb)) {
        if (x == 1) return p.d > 0 ? 0 : AtOne(p);
        if (x > 1 && p.d != std::floor(p.d)) return kNaN;
        return Terminating(p.Euler(), x).Times(std::pow(1 - x, p.d)).Usable();
    }
    if (x == 1) return AtOne(p);
    if (x > 1) return kNaN;

    Estimate best = x < cut ? Negative(p, x) : Inside(p, {x, 1 - x});
    if (best.error > 1e-13) best = Better(best, Long(p, x));
    return best.Usable();
}

}  // namespace

double SpecHyperg2F1(double x, double a, double b, double c) noexcept { return Evaluate(x, a, b, c, -0.2); }

double SpecHyperg2F1Transformed(double x, double a, double b, double c) noexcept { return Evaluate(x, a, b, c, -0.5); }

}  // namespace quorvan

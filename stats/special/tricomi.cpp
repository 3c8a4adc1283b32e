#include "stats/special/tricomi.h"

#include <cmath>
#include <limits>

#include "frame/types.h"
#include "stats/special/digamma.h"
#include "stats/special/divergent_series.h"
#include "stats/special/double_double.h"
#include "stats/special/estimate.h"
#include "stats/special/gamma_ratio.h"
#include "stats/special/hypergeometric.h"

namespace quorvan {
namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInf = std::numeric_limits<double>::infinity();
constexpr double kAccepted = 48 * kEpsilon;    // estimate with which a closed form is taken
constexpr double kAsymptotic = 12 * kEpsilon;  // the same of the asymptotic series
constexpr double kMostSteps = 1e6;             // of the recurrence

// U(a - steps) from U(a) and U(a + 1) by U(a-1) = (x - b + 2a) U(a) - a (a-b+1) U(a+1). Downwards U is not the minimal
// solution for x > 0, and the recurrence is stable. Scaled, so that the sign of what overflows is right.
double StepDown(double a, double u, double above, double steps, double x, double b) noexcept {
    int removed = 0;  // powers of 2
    for (double k = 0; k < steps; k += 1, a -= 1) {
        const double next = (x - b + 2 * a) * u - a * (a - b + 1) * above;
        above = u;
        u = next;
        if (std::fabs(u) > 0x1p500) {
            u *= 0x1p-500;
            above *= 0x1p-500;
            removed += 500;
        }
    }
    return std::ldexp(u, removed);
}

// a = -n, n = 0, 1, ...: sum of C(n, k) (-b-n+1)(-b-n+2)...(-b-k) x^k, k from n down to 0, in pairs of doubles.
Estimate Polynomial(double x, double n, double b) noexcept {
    DoubleDouble sum{1, 0}, term{1, 0};  // over x^n
    double largest = 1;
    for (double k = n - 1; k >= 0; k -= 1) {
        const DoubleDouble factor{-(k + 1), 0}, divisor = ExactProduct(n - k, x);
        term = term * (ExactSum(b, k) * factor / divisor);
        sum = sum + term;
        largest = std::fmax(largest, std::fabs(term.high));
        if (!(largest < 1e300)) return {kNaN, kInf};
    }
    const double power = std::pow(x, n);
    if (!(std::fabs(power) > 1e-290)) return {kNaN, kInf};
    return JudgedPair(sum.high, largest).Times(power);
}

// a = 0, -1, -2, ... For b below 0 the recurrence is not stable all the way, and the powers of x are summed instead.
double Terminating(double x, double a, double b) noexcept {
    constexpr double kLongestSum = 200;
    if (-a > kMostSteps) return kNaN;
    if (b < 0 && x != 0 && -a <= kLongestSum) {
        const Estimate sum = Polynomial(x, -a, b);
        if (sum.error <= kAccepted) return sum.value;
    }
    return StepDown(0, 1, 0, -a, x, b);
}

Estimate Asymptotic(double x, double a, double b) noexcept {
    const Estimate sum = DivergentSeries(a, a - b + 1, -1 / x);
    return Judged(std::pow(x, -a) * sum.value, 0, std::pow(x, -a) * sum.error);
}

// a - b + 1, the first parameter of x^(b-1) U(a, b, x) = U(a-b+1, 2-b, x), A&S 13.1.29.
DoubleDouble Mirrored(double a, double b) noexcept { return ExactSum(a, -b) + DoubleDouble{1, 0}; }

// Gamma(1-b)/Gamma(a-b+1) 1F1(a; b; x) + Gamma(b-1)/Gamma(a) x^(1-b) 1F1(a-b+1; 2-b; x). Beside whole b both Gammas are
// near poles, where what their arguments lose by rounding counts over the distance.
Estimate FromTwo(double x, double a, double b) noexcept {
    const DoubleDouble a1 = Mirrored(a, b);
    const BelowGamma below = BesidePole(a1);
    const double first = GammaWeight(0, 1, 0, 1 - b, 1, below.argument, 1) * below.factor * SpecHyperg1F1(x, a, b);
    const double second = GammaWeight(0, x, 1 - b, b - 1, 1, a, 1) * SpecHyperg1F1(x, a1.high, 2 - b);
    const double lost = std::fabs(ExactSum(1, -b).low) + std::fabs(ExactSum(2, -b).low);
    const double roundings = 4 + lost / (kEpsilon * std::fabs(b - std::nearbyint(b)));
    return Judged(first + second, roundings * (std::fabs(first) + std::fabs(second)), 0);
}

// b = n + 1, n = 0, 1, ...: with (a)_k = a (a+1) ... (a+k-1),
//   (-1)^(n+1)/(n! Gamma(a-n)) sum of (a)_k/((n+1)_k k!) x^k (ln x + psi(a+k) - psi(1+k) - psi(n+1+k)), k from 0 on
//   + 1/Gamma(a) sum of (k-1)! (1-a+k)_(n-k)/(n-k)! x^-k, k = 1 to n.
// `difference` is a - n, which may lie beside a pole.
Estimate Limit(double x, double a, double b, DoubleDouble difference) noexcept {
    const double n = b - 1;
    if (n > 100) return {kNaN, kInf};
    double weight = std::fmod(n, 2) != 0 ? 1 : -1, factor = 1;
    double psi = std::log(x) + SpecDigamma(a) - SpecDigamma(1) - SpecDigamma(n + 1);
    const BelowGamma below = BesidePole(difference);
    weight *= GammaWeight(0, 1, 0, 1, 1, below.argument, n + 1) * below.factor;
    double sum = 0, largest = 0, term;
    for (double k = 0; k < 500; k += 1) {
        term = factor * psi;
        sum += term;
        // psi is a sum itself, and its rounding is the same in all terms.
        const double size = std::fabs(factor) * (std::fabs(psi) + 8);
        if (size > largest) largest = size;
        if (size <= 0.25 * kEpsilon * std::fabs(sum) && k > -a) break;
        psi += 1 / (a + k) - 1 / (k + 1) - 1 / (n + 1 + k);
        factor *= (a + k) * x / ((n + 1 + k) * (k + 1));
    }
    // From k = n, (n-1)! x^-n, down to k = 1: times (1-a+k-1) x / ((k-1) (n-k+1)).
    double finite = 0, largest_finite = 0, finite_weight = 0;
    if (n > 0) {
        finite_weight = GammaWeight(0, x, -n, n, 1, a, 1);
        term = 1;
        for (double k = n; k >= 1; k -= 1) {
            finite += term;
            if (std::fabs(term) > largest_finite) largest_finite = std::fabs(term);
            if (k > 1) term *= (k - a) * x / ((k - 1) * (n - k + 1));
        }
    }
    const double first = weight * sum, second = finite_weight * finite;
    return Judged(first + second, 2 * (std::fabs(weight) * largest + std::fabs(finite_weight) * largest_finite), 0);
}

struct Neighbours {
    double at, above;  // U(a, b, x) and U(a+1, b, x)
};

// The integral for a > 0 and x > 0, with t = t0 e^s from the peak t0 of the integrand outwards. The strip in which the
// integrand is analytic is pi/2 wide on either side, and its Gaussian peak narrows as a and b grow: the step h follows.
// The integrand of U(a+1) is that of U(a) times t/((1+t) a).
Neighbours Integral(double x, double a, double b) noexcept {
    // x t^2 + (x - b + 1) t - a = 0 at the peak.
    const double p = x - b + 1, root = std::sqrt(p * p + 4 * a * x);
    const double t0 = p > 0 ? 2 * a / (p + root) : (root - p) / (2 * x);
    const double power = b - a - 1;
    const double h = std::fmin(0.2, 0.6 / std::sqrt(a + std::fabs(b) + 1));
    double sum = 1, sum_above = t0 / (1 + t0);
    // The summands on one side of the peak, over that at the peak, up to where they vanish.
    const auto add_side = [&](double step) noexcept {
        const double factor = std::exp(step);
        double grown = 1;
        for (double k = 1; k < 5000; k += 1) {
            grown *= factor;
            const double t = t0 * grown, beyond = t - t0;
            const double relative = beyond / (1 + t0);  // ln((1+t)/(1+t0)) without loss beside the peak and far from it
            const double logarithm = relative > -0.5 ? std::log1p(relative) : std::log((1 + t) / (1 + t0));
            const double value = std::exp(a * step * k + power * logarithm - x * beyond);
            sum += value;
            sum_above += value * (t / (1 + t));
            if (value < 0x1p-60) break;
        }
    };
    add_side(-h);
    add_side(h);
    double weight = GammaWeight(-x * t0, t0, a, 1, 1, a, 1) * std::pow(1 + t0, power);
    if (!(std::isfinite(weight) && weight > 1e-290)) {
        weight = GammaWeight(power * std::log1p(t0) - x * t0, t0, a, 1, 1, a, 1);
    }
    return {h * sum * weight, h * sum_above * weight / a};
}

// The summands fall like e^(a s) below the peak, so a is raised to 4 at least; but where a - b + 1 is far below 0
// the terms of the recurrence have opposite signs, and only a below kLeastDirect is raised, to 1/2 at least.
double FromIntegral(double x, double a, double b) noexcept {
    constexpr double kLeastDirect = 0.05;
    const double least = a - b + 1 >= -2 ? 4 : a >= kLeastDirect ? kLeastDirect : 0.5;
    if (a >= least) return Integral(x, a, b).at;
    const double steps = std::ceil(least - a);
    if (steps > kMostSteps) return kNaN;
    const Neighbours top = Integral(x, a + steps, b);
    return StepDown(a + steps, top.at, top.above, steps, x, b);
}

double Positive(double x, double a, double b) noexcept {
    if (x >= 8) {
        const Estimate asymptotic = Asymptotic(x, a, b);
        if (asymptotic.error <= kAsymptotic) return asymptotic.value;
    }
    const bool whole = b == std::floor(b), mirrored = whole && b < 1;
    const DoubleDouble shifted = Mirrored(a, b);
    const double mirror = std::pow(x, 1 - b), a1 = shifted.high, b1 = 2 - b;
    if (x < 8) {
        Estimate closed{kNaN, kInf};
        if (!whole) {
            closed = FromTwo(x, a, b);
        } else if (!mirrored) {
            closed = Limit(x, a, b, shifted);
        } else {
            closed = Limit(x, a1, b1, {a, 0}).Times(mirror);
            // psi(a1) grows as the distance to a pole falls.
            if (a1 < 0.5) closed.error += std::fabs(shifted.low / (a1 - std::nearbyint(a1)));
        }
        if (closed.error <= kAccepted) return closed.value;
    }
    if (a < 0 && a1 > 0) {
        const double mirrored_value = mirror * FromIntegral(x, a1, b1);
        if (std::isfinite(mirror) && mirror > 0 && mirrored_value > 1e-290) return mirrored_value;
    }
    return FromIntegral(x, a, b);
}

double AtZero(double a, double b) noexcept {
    if (b < 1) {
        const BelowGamma below = BesidePole(Mirrored(a, b));
        return GammaWeight(0, 1, 0, 1 - b, 1, below.argument, 1) * below.factor;
    }
    return std::copysign(kInf, ReciprocalGamma(a));
}

}  // namespace

double SpecHypergU(double x, double a, double b) noexcept {
    if (std::isnan(x) || std::isinf(a) || !(std::fabs(b) < kInf) || std::isnan(a)) return kNaN;
    if (a == 0) return 1;
    if (std::isinf(x)) return x < 0 ? kNaN : a > 0 ? 0 : kInf;
    if (IsPole(a)) return Terminating(x, a, b);
    if (x == 0) return AtZero(a, b);
    if (IsPole(a - b + 1)) {
        if (x < 0 && b != std::floor(b)) return kNaN;
        return std::pow(x, 1 - b) * Terminating(x, a - b + 1, 2 - b);
    }
    return x < 0 ? kNaN : Positive(x, a, b);
}

}  // namespace quorvan

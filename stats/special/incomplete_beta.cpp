#include "stats/special/incomplete_beta.h"

#include <cmath>
#include <limits>

#include "frame/types.h"
#include "stats/special/beta.h"
#include "stats/special/incomplete_gamma.h"
#include "stats/special/two_lanes.h"

namespace quorvan {
namespace {

constexpr double kBig = 144115188075855872.0;          // 2^57
constexpr double kBigInverse = 6.938893903907228e-18;  // 2^-57

// A fraction has 300 rounds to settle to 3 epsilons. Beyond, it may also end within the fine tolerance, once rounding
// keeps its change from shrinking.
constexpr int kRounds = 300;
constexpr int kMostRounds = 1000000;
constexpr double kFineTolerance = 3.637978807091712e-13;

// From here on, in one parameter, the contracted fraction serves.
constexpr double kContractedOrder = 64;

// Below, in both parameters, power and Gammas are formed as they stand.
constexpr double kDirectEnd = 13;

// From here on, in both parameters, a fraction might outlast even kMostRounds.
constexpr double kLargeOrder = 1e10;

// From here on in one parameter, with the other below 10^-9 of its root, the incomplete gamma function is the value to
// the last bit: I_x(a, b) = P(a, -b ln(1-x)) (1 + O(a^2/b)). Fractions and uniform expansion would overflow.
constexpr double kHugeOrder = 1e40;

// I_x(a, b) / (x^a / B(a, b)) = 1/a + sum over n of (1-b)(2-b)...(n-b)/n! x^n/(a+n), for b x <= 1 and x <= 0.95.
double Series(double a, double b, double x) noexcept {
    const double stop = kEpsilon / a, product = (1 - b) * x, x2 = x * x;
    // The terms n and n + 1, none larger than the one before, and from them those two further on.
    TwoLanes n = {1, 2};
    TwoLanes term = {product / (a + 1), product * (2 - b) * x / (2 * (a + 2))}, sum = {0, term[1]};
    const double first = term[0];
    while (std::fabs(term[0]) > stop) {
        const TwoLanes one = n + 1, two = n + 2;
        term *= ((one - b) * (two - b) * x2 * (a + n)) / (one * two * (a + two));
        sum += term;
        n = two;
    }
    return (sum[0] + sum[1]) + first + 1 / a;
}

// 1/(1 + d1/(1 + d2/(1 + ...))) with d(odd) = -z k1 k2/(k3 k4), d(even) = z k5 k6/(k7 k8), by the three-term
// recurrence. The two fractions differ in z, in which of a + b and b - 1 stands in k2 and which in k6, and in their
// direction. The lanes hold k1 and k5, k2 and k6, k3 and k7, k4 and k8; and numerator and denominator.
double Fraction(double a, double k2, double step2, double k6, double step6, double z) noexcept {
    const TwoLanes signed_z = {-z, z}, step = {step2, step6};
    TwoLanes above0 = {a, 1}, above1 = {k2, k6}, below0 = {a, a + 1}, below1 = {a + 1, a + 2};
    TwoLanes last = {0, 1}, at = {1, 1};
    double value = 1, last_change = 1;
    const auto advance = [&](double d) {
        const TwoLanes next = at + last * d;
        last = at;
        at = next;
    };
    for (int round = 0; round < kMostRounds; ++round) {
        const TwoLanes d = (signed_z * above0 * above1) / (below0 * below1);
        advance(d[0]);
        advance(d[1]);
        const double p = at[0], q = at[1], r = q != 0 ? p / q : 0;
        if (r != 0) {
            const double change = std::fabs(value - r), size = std::fabs(r);
            value = r;
            if (change <= 3 * kEpsilon * size) break;
            if (round >= kRounds) {
                if (change <= kFineTolerance * size && change >= last_change * size) break;
                last_change = change / size;
            }
        }
        above0 += 1;
        above1 += step;
        below0 += 2;
        below1 += 2;
        double scale = 1;
        if (std::fabs(q) + std::fabs(p) > kBig) scale = kBigInverse;
        if (std::fabs(q) < kBigInverse || std::fabs(p) < kBigInverse) scale = kBig;
        if (scale != 1) {
            last *= scale;
            at *= scale;
        }
    }
    return value;
}

// The contracted fraction of DiDonato and Morris (1992), for a large parameter, where the two above lose digits by
// cancellation of 1 against the first partial numerators: I_x(a, b) = density / (b1 + a2/(b2 + a3/(b3 + ...))),
// a(n+1) = (a+n-1)(a+b+n-1)/(a+2n-1)^2 n (b-n) x^2,
// b(n+1) = n + n (b-n) x/(a+2n-1) + (a+n)/(a+2n+1) (lambda + 1 + n (2-x)), lambda = a - (a+b) x at or above 0.
double ContractedFraction(double a, double b, double x, double y, double lambda) noexcept {
    double p2 = 0, q2 = 1, p1 = 1, q1 = a / (a + 1) * (lambda + 1), value = p1 / q1, last = 1;
    for (int round = 1; round < kMostRounds; ++round) {
        const double n = round, w = n * (b - n) * x, m = a + 2 * n - 1;
        const double numerator = ((a + n - 1) / m) * ((a + b + n - 1) / m) * w * x;
        const double denominator = n + w / m + (a + n) / (m + 2) * (lambda + 1 + n * (1 + y));
        const double p = denominator * p1 + numerator * p2, q = denominator * q1 + numerator * q2;
        const double r = p / q, change = std::fabs((value - r) / r);
        value = r;
        if (change <= kEpsilon || (round >= kRounds && change <= kFineTolerance && change >= last)) break;
        last = change;
        p2 = p1 / q;
        q2 = q1 / q;
        p1 = r;
        q1 = 1;
    }
    return value;
}

// Both parameters large: the uniform expansion with its first correction (N. M. Temme, 1982; DLMF 8.18.9). With
// x0 = a/(a+b), s^2 = x0 (1-x0), d = x - x0 and the exponent E of the density beside its peak:
// I = erfc(-+sqrt(-E))/2 + e^E / sqrt(2 pi (a+b)) c0, c0 = (1 - 2 x0)/(3 s) - d (1 - s^2)/(12 s^3) + O(d^2).
double Uniform(double a, double b, double x) noexcept {
    const double sum = a + b, x0 = a / sum, y0 = b / sum;
    const double exponent = -BetaBesidePeak(a, b, x);
    const double d = x * y0 - (1 - x) * x0;
    if (exponent > 800) return d < 0 ? 0 : 1;
    const double s2 = x0 * y0, s = std::sqrt(s2);
    const double c0 = (y0 - x0) / (3 * s) - d * (1 - s2) / (12 * s2 * s);
    const double root = std::sqrt(exponent > 0 ? exponent : 0);
    return 0.5 * std::erfc(d < 0 ? root : -root) + std::exp(-exponent) / std::sqrt(kTwoPi * sum) * c0;
}

bool SeriesServes(double b, double x) noexcept { return b * x <= 1 && x <= 0.95; }

// x in the direction in which it is taken: y = 1 - x, what rounding took from x, and the distance |b x - a y| from the
// mean.
struct Directed {
    double a, b, x, y, lost, from_mean;
};

// I_x(a, b) from below, without a complement. density() gives x^a y^b / B(a, b).
template <class Density>
double Direct(Directed to, Density density) noexcept {
    const auto [a, b, x, y, lost, from_mean] = to;
    if (SeriesServes(b, x)) {
        // x^a / B(a, b) is the density short of y^b, here at least e^-2 or so.
        const double power = a < kDirectEnd && b < kDirectEnd ? std::pow(x, a) * (1 + a * lost / x) / SpecBeta(a, b)
                                                              : density() * std::exp(-b * std::log1p(-x));
        return power * Series(a, b, x);
    }
    const double factor = density();
    if (factor == 0) return 0;
    if ((a > b ? a : b) > kContractedOrder) return factor * ContractedFraction(a, b, x, y, from_mean);
    if (x * (a + b - 2) - (a - 1) < 0) return factor / a * Fraction(a, a + b, 1, b - 1, -1, x);
    return factor / a * Fraction(a, b - 1, -1, a + b, 1, x / y) / y;
}

}  // namespace

double SpecIncompleteBeta(double a, double b, double x) noexcept {
    if (!(a > 0 && b > 0 && x >= 0 && x <= 1)) return std::numeric_limits<double>::quiet_NaN();  // NaN too
    if (x == 0 || x == 1) return x;
    if (std::isinf(a) || std::isinf(b)) {
        return std::isinf(a) && std::isinf(b) ? std::numeric_limits<double>::quiet_NaN() : std::isinf(a) ? 0 : 1;
    }
    if (b >= kHugeOrder && a <= 1e-9 * std::sqrt(b)) return SpecIncompleteGamma(a, -b * std::log1p(-x));
    if (a >= kHugeOrder && b <= 1e-9 * std::sqrt(a)) return SpecIncompleteGammaComplement(b, -a * std::log(x));
    if (a >= kLargeOrder && b >= kLargeOrder) return Uniform(a, b, x);
    if (a < 1e-290) return b / (a + b);  // the limit; the Gammas of such an a overflow

    const bool short_series = SeriesServes(b, x);
    const double y = 1 - x, lost = (1 - y) - x, above_mean = short_series ? 0 : BetaAboveMean(a, b, x);
    // Of the arguments as they came, since an exchange rounds x.
    const auto density = [=]() noexcept { return BetaDensity(a, b, x); };
    // Below the mean too, where b < 1 would make the contracted fraction's terms cancel and the complement has a short
    // series.
    const bool exchanged =
        !short_series && (above_mean > 0 || (a > kContractedOrder && b < 1 && b > kEpsilon && a * y <= 1));
    if (!exchanged) return Direct({a, b, x, y, 0, -above_mean}, density);
    const double value = Direct({b, a, y, x, lost, std::fabs(above_mean)}, density);
    return value <= kEpsilon ? 1 - kEpsilon : 1 - value;
}

}  // namespace quorvan

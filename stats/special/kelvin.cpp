#include "stats/special/kelvin.h"

#include <cmath>
#include <limits>

#include "frame/complex.h"
#include "stats/special/debye.h"
#include "stats/special/digamma.h"
#include "stats/special/double_double.h"
#include "stats/special/log_half.h"
#include "stats/special/power_over_gamma.h"
#include "stats/special/times_exp.h"

namespace quorvan {
namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInf = std::numeric_limits<double>::infinity();
constexpr double kSqrtHalf = 0.70710678118654757, kSqrtHalfRest = -4.833646656726457e-17;
constexpr double kQuarterPi = 0.7853981633974483;
constexpr double kSeriesEnd = 10, kHankelStart = 20, kFractionStart = 2;
constexpr std::uint32_t kDebyeOrder = 160;

// e^(i pi eighths / 4), zeros and ones exact.
ComplexRecord EighthTurns(std::uint64_t eighths) noexcept {
    static constexpr double kCosines[] = {1, kSqrtHalf, 0, -kSqrtHalf, -1, -kSqrtHalf, 0, kSqrtHalf};
    return {kCosines[eighths & 7], kCosines[(eighths + 6) & 7]};
}

// A zero part of a turn makes a zero, also of what has overflowed.
ComplexRecord Turned(ComplexRecord z, std::uint64_t eighths) noexcept {
    switch (eighths & 7) {
        case 0: return z;
        case 2: return {-z.im, z.re};
        case 4: return CxNegate(z);
        case 6: return {z.im, -z.re};
        default: return CxMultiply(z, EighthTurns(eighths));
    }
}

ComplexRecord Divided(ComplexRecord z, double by) noexcept { return {z.re / by, z.im / by}; }

double Size(ComplexRecord z) noexcept { return std::fabs(z.re) + std::fabs(z.im); }

// z e^(sign w) 2^exponent, w = (x + ix)/sqrt 2, the rounding of x/sqrt 2 put back.
ComplexRecord TimesExpW(ComplexRecord z, double x, int sign, int exponent = 0) noexcept {
    const double a = x * kSqrtHalf;
    const double rest = a > 1e8 ? 0 : std::fma(x, kSqrtHalf, -a) + x * kSqrtHalfRest;
    const double s = std::sin(a), c = std::cos(a);
    const ComplexRecord turned = CxMultiply(z, {c - rest * s, sign * (s + rest * c)});
    const double slip = 1 + sign * rest;
    return {TimesExp(turned.re * slip, sign * a, exponent), TimesExp(turned.im * slip, sign * a, exponent)};
}

// --- ascending series
// --------------------------------------------------------------------------------------------------

// (x/2)^n / n! e^(3 pi i n/4) times the sum of i^k (x^2/4)^k / (k! (n+1)...(n+k)). The value is smaller than the
// largest terms by a factor of up to e^(0.3 x).
ComplexRecord BeSeries(double x, std::uint32_t n) noexcept {
    const double square = 0.25 * x * x;
    ComplexRecord sum{1, 0};
    double term = 1;
    for (int k = 1; k < 200; ++k) {
        term *= square / (static_cast<double>(k) * (static_cast<double>(n) + k));
        (k & 1 ? sum.im : sum.re) += k & 2 ? -term : term;
        if (term < 0.25 * kEpsilon) break;
    }
    return Turned(CxScale(sum, PowerOverGamma(x, n)), 3ull * n);
}

// The part of ker and kei that grows as x falls: (1/2) (x/2)^-n sum over k < n of (n-k-1)!/k! (x^2/4)^k e^(-i pi (3n +
// 2k)/4). The first term alone may overflow.
ComplexRecord KeFiniteSum(double x, std::uint32_t n) noexcept {
    const double square = 0.25 * x * x;
    ComplexRecord sum{0, 0};
    double term = 0.5 / (n * PowerOverGamma(x, n));
    for (std::uint32_t k = 0; k < n; ++k) {
        if (k == 1) term = 0.5 / PowerOverGamma(x, n - 2.0);
        if (k > 1) term *= square / (static_cast<double>(k) * (n - k));
        const ComplexRecord turn = EighthTurns(3ull * n + 2ull * k);
        if (turn.re != 0 && !std::isinf(sum.re)) sum.re += turn.re * term;
        if (turn.im != 0 && !std::isinf(sum.im)) sum.im -= turn.im * term;
        if (k >= 1 && (std::isinf(term) || term <= 0.25 * kEpsilon * std::fmin(std::fabs(sum.re), std::fabs(sum.im))))
            break;
    }
    return sum;
}

ComplexRecord KeSeries(double x, std::uint32_t n) noexcept {
    const double factor = PowerOverGamma(x, n), square = 0.25 * x * x, logarithm = LogHalf(x);
    ComplexRecord sum = n > 0 ? KeFiniteSum(x, n) : ComplexRecord{0, 0};
    if (factor == 0) return sum;
    const ComplexRecord be = BeSeries(x, n);
    // (1/2) (x/2)^n sum of (psi(k+1) + psi(n+k+1)) / (k! (n+k)!) (x^2/4)^k e^(i pi (3n + 2k)/4)
    double psi = SpecDigamma(1) + SpecDigamma(n + 1.0), term = 0.5;
    ComplexRecord rest{0, 0};
    for (int k = 0; k < 60; ++k) {
        if (k > 0) {
            term *= square / (static_cast<double>(k) * (static_cast<double>(n) + k));
            psi += 1.0 / k + 1.0 / (static_cast<double>(n) + k);
        }
        (k & 1 ? rest.im : rest.re) += k & 2 ? -term * psi : term * psi;
        if (term < 1e-19) break;
    }
    rest = Turned(CxScale(rest, factor), 3ull * n);
    return {sum.re + (rest.re - logarithm * be.re + kQuarterPi * be.im),
            sum.im + (rest.im - logarithm * be.im - kQuarterPi * be.re)};
}

// --- expansions
// --------------------------------------------------------------------------------------------------------

// Hankel's sums at w = x e^(i pi/4), over sqrt w: of all terms, and with alternating signs.
struct HankelSums {
    ComplexRecord plain, alternating;
};

HankelSums Hankel(double x, std::uint32_t n) noexcept {
    static constexpr ComplexRecord kRootTurn{0.92387953251128674, -0.38268343236508978};  // e^(-i pi/8)
    const double v = n;
    ComplexRecord part[2] = {{1, 0}, {0, 0}}, term{1, 0};
    double size = 1;
    for (int k = 1; k < 200; ++k) {
        const double odd = 2 * k - 1, ratio = (2 * v - odd) * (2 * v + odd) / (8 * x * k);
        if (std::fabs(ratio) > 1 && odd > 2 * v) break;
        term = CxMultiply(CxScale(term, ratio), {kSqrtHalf, -kSqrtHalf});
        part[k & 1] = CxAdd(part[k & 1], term);
        size *= std::fabs(ratio);
        if (size <= 0.1 * kEpsilon && odd > 2 * v) break;
    }
    const ComplexRecord root = Divided(kRootTurn, std::sqrt(x));
    return {CxMultiply(CxAdd(part[0], part[1]), root), CxMultiply(CxSubtract(part[0], part[1]), root)};
}

ComplexRecord IHankel(double x, std::uint32_t n) noexcept {
    const double one_over_root = 1 / std::sqrt(kTwoPi);
    const HankelSums sums = Hankel(x, n);
    const ComplexRecord growing = TimesExpW(sums.alternating, x, 1);
    const ComplexRecord decaying = Turned(TimesExpW(sums.plain, x, -1), (n & 1) != 0 ? 6 : 2);
    return CxScale(CxAdd(growing, decaying), one_over_root);
}

ComplexRecord KHankel(double x, std::uint32_t n) noexcept {
    return TimesExpW(CxScale(Hankel(x, n).plain, std::sqrt(kPi / 2)), x, -1);
}

// I (kind 1) or K (kind -1) by Debye's expansion at z = w/n; with y = (x/n)^2 the root of 1 + z^2 is that of 1 + iy.
ComplexRecord Debye(double x, std::uint32_t n, int kind) noexcept {
    const double v = n, y = (x / v) * (x / v);
    ComplexRecord root;
    root.re = std::sqrt(0.5 * (1 + std::sqrt(1 + y * y)));
    root.im = 0.5 * y / root.re;
    const ComplexRecord t = CxDivide({1, 0}, root), square = CxMultiply(t, t);
    ComplexRecord sum{1, 0}, power{1, 0};
    for (int k = 1; k < kDebyeTerms; ++k) {
        ComplexRecord u{kDebye[k][0], 0};
        for (int i = 1; i <= k; ++i) u = CxAdd(CxMultiply(u, square), {kDebye[k][i], 0});
        power = CxScale(CxMultiply(power, t), kind / v);
        sum = CxAdd(sum, CxMultiply(power, u));
    }
    ComplexRecord root_t;
    root_t.re = std::sqrt(0.5 * (CxMagnitude(t) + t.re));
    root_t.im = 0.5 * t.im / root_t.re;
    const ComplexRecord one_root{1 + root.re, root.im};
    const double growth = v * (root.re + std::log(x / v) - 0.5 * std::log(CxSquaredMagnitude(one_root)));
    const double angle = v * (root.im + kQuarterPi - CxPhase(one_root));
    const double factor = kind > 0 ? 1 / std::sqrt(kTwoPi * v) : std::sqrt(kPi / (2 * v));
    const ComplexRecord turned =
        CxMultiply(CxScale(CxMultiply(sum, root_t), factor), {std::cos(angle), kind * std::sin(angle)});
    return {TimesExp(turned.re, kind * growth), TimesExp(turned.im, kind * growth)};
}

// --- recurrences
// -------------------------------------------------------------------------------------------------------

// (2k/w) z
ComplexRecord OverW(ComplexRecord z, double k, double x) noexcept {
    const double factor = 2 * k * kSqrtHalf / x;
    return {(z.re + z.im) * factor, (z.im - z.re) * factor};
}

ComplexRecord IDownward(double x, std::uint32_t n) noexcept {
    constexpr double kLarge = 0x1p300;
    ComplexRecord above{0, 0}, at{1, 0}, sum{0, 0}, wanted{0, 0};
    for (int k = static_cast<int>(n) + 20 + static_cast<int>(std::sqrt(110 * x)); k > 0; --k) {
        if (static_cast<std::uint32_t>(k) == n) wanted = at;
        sum = CxAdd(sum, at);
        const ComplexRecord below = CxAdd(OverW(at, k, x), above);
        above = at;
        at = below;
        if (Size(at) > kLarge) {
            at = Divided(at, kLarge);
            above = Divided(above, kLarge);
            sum = Divided(sum, kLarge);
            wanted = Divided(wanted, kLarge);
        }
    }
    if (n == 0) wanted = at;
    return TimesExpW(CxDivide(wanted, CxAdd(at, CxScale(sum, 2))), x, 1);
}

struct KPair {
    ComplexRecord k0, k1;  // times e^w
};

// The continued fraction of K of order 0, as in bessel_k.cpp, at w.
KPair KFraction(double x) noexcept {
    const ComplexRecord w{x * kSqrtHalf, x * kSqrtHalf};
    const double a1 = 0.25;
    ComplexRecord b{2 * (1 + w.re), 2 * w.im}, d = CxDivide({1, 0}, b), h = d, step = d, q1{0, 0}, q2{1, 0}, q{a1, 0};
    ComplexRecord s = CxAdd({1, 0}, CxMultiply(q, step));
    double a = -a1, c = a1;
    for (int k = 2; k < 500; ++k) {
        a -= 2 * (k - 1);
        c = -a * c / k;
        const ComplexRecord next = Divided(CxSubtract(q1, CxMultiply(b, q2)), a);
        q1 = q2;
        q2 = next;
        q = CxAdd(q, CxScale(next, c));
        b.re += 2;
        d = CxDivide({1, 0}, CxAdd(b, CxScale(d, a)));
        step = CxMultiply(step, CxSubtract(CxMultiply(b, d), {1, 0}));
        h = CxAdd(h, step);
        const ComplexRecord change = CxMultiply(q, step);
        s = CxAdd(s, change);
        if (Size(change) <= 0.25 * kEpsilon * Size(s)) break;
    }
    static constexpr ComplexRecord kRootTurn{0.92387953251128674, -0.38268343236508978};
    const ComplexRecord k0 = CxDivide(CxScale(kRootTurn, std::sqrt(kPi / (2 * x))), s);
    const ComplexRecord ratio = CxDivide({w.re + 0.5 - a1 * h.re, w.im - a1 * h.im}, w);
    return {k0, CxMultiply(k0, ratio)};
}

ComplexRecord KUpward(double x, std::uint32_t n) noexcept {
    int exponent = 0;
    KPair pair;
    if (x >= kHankelStart) {
        const double factor = std::sqrt(kPi / 2);
        pair = {CxScale(Hankel(x, 0).plain, factor), CxScale(Hankel(x, 1).plain, factor)};
    } else {
        pair = KFraction(x);
    }
    for (std::uint32_t k = 1; k <= n; ++k) {
        const ComplexRecord next = CxAdd(OverW(pair.k1, k, x), pair.k0);
        pair.k0 = pair.k1;
        pair.k1 = next;
        if (Size(next) > 0x1p500) {
            pair.k0 = CxScale(pair.k0, 0x1p-500);
            pair.k1 = CxScale(pair.k1, 0x1p-500);
            exponent += 500;
        }
    }
    return TimesExpW(pair.k0, x, -1, exponent);
}

bool HankelSuffices(double x, std::uint32_t n) noexcept {
    return x >= kHankelStart && 0.5 * static_cast<double>(n) * n <= x;
}

ComplexRecord PositiveBe(double x, std::uint32_t n) noexcept {
    if (x <= kSeriesEnd || x * x <= 4 * (n + 1.0)) return BeSeries(x, n);
    ComplexRecord i;
    if (HankelSuffices(x, n)) {
        i = IHankel(x, n);
    } else {
        i = n >= kDebyeOrder ? Debye(x, n, 1) : IDownward(x, n);
    }
    return Turned(i, 2ull * n);
}

ComplexRecord PositiveK(double x, std::uint32_t n) noexcept {
    if (HankelSuffices(x, n)) return KHankel(x, n);
    return n >= kDebyeOrder ? Debye(x, n, -1) : KUpward(x, n);
}

double KeiAtZero(std::uint32_t n) noexcept {
    if (n == 0) return -kQuarterPi;
    // The first term of the finite sum whose sine is not 0.
    const double sine = EighthTurns(3ull * n + (n % 4 == 0 ? 2 : 0)).im;
    return sine > 0 ? -kInf : kInf;
}

}  // namespace

void SpecKelvinBe(double x, std::uint32_t n, ComplexRecord* out) noexcept {
    if (!std::isfinite(x)) {
        *out = {kNaN, kNaN};
    } else if (x == 0) {
        *out = {n == 0 ? 1.0 : 0.0, 0};
    } else {
        *out = PositiveBe(std::fabs(x), n);
        if (x < 0 && (n & 1) != 0) *out = CxNegate(*out);
    }
}

void SpecKelvinKe(double x, std::uint32_t n, ComplexRecord* out) noexcept {
    if (std::isnan(x) || x < 0) {
        *out = {kNaN, kNaN};
    } else if (x == 0) {
        *out = {kInf, KeiAtZero(n)};
    } else if (x == kInf) {
        *out = {0, 0};
    } else if (x <= kFractionStart) {
        *out = KeSeries(x, n);
    } else {
        *out = Turned(PositiveK(x, n), 8 - 2 * (n & 3));
    }
}

}  // namespace quorvan

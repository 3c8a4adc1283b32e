// Complex scalar arithmetic, as the plain formulas that are written here: no scaling against overflow and underflow
// beyond what a formula itself brings. Each operation has its own convention for a zero argument; callers rely on them.
//
// The four arithmetic operations work on any record with the members re and im, so that the array loops run the same
// text on whole registers.
#pragma once

#include <cmath>

#include "frame/status.h"
#include "frame/targets.h"
#include "frame/types.h"

namespace quorvan {

template <class Record = ComplexRecord>
QV_INLINE constexpr Record CxAdd(Record z, Record w) noexcept {
    return {z.re + w.re, z.im + w.im};
}

template <class Record = ComplexRecord>
QV_INLINE constexpr Record CxSubtract(Record z, Record w) noexcept {
    return {z.re - w.re, z.im - w.im};
}

// (a + ib)(c + id) = (ac - bd) + i(bc + ad)
template <class Record = ComplexRecord>
QV_INLINE constexpr Record CxMultiply(Record z, Record w) noexcept {
    return {z.re * w.re - z.im * w.im, z.im * w.re + z.re * w.im};
}

// z / w after R. L. Smith, Algorithm 116 (Comm. ACM 5, 1962): with r the smaller over the larger part of w.
// There is no test for zero, deliberately unlike CxReciprocal: 0 / 0 makes both parts NaN.
template <class Record = ComplexRecord>
QV_INLINE constexpr Record CxDivide(Record z, Record w) noexcept {
    const auto real_is_larger = (w.re < 0 ? -w.re : w.re) >= (w.im < 0 ? -w.im : w.im);
    const auto larger = real_is_larger ? w.re : w.im;
    const auto smaller = real_is_larger ? w.im : w.re;
    const auto r = smaller / larger;
    const auto denominator = r * smaller + larger;
    const auto re = real_is_larger ? r * z.im + z.re : r * z.re + z.im;
    const auto im = real_is_larger ? z.im - r * z.re : r * z.im - z.re;
    return {re / denominator, im / denominator};
}

QV_INLINE constexpr ComplexRecord CxNegate(ComplexRecord z) noexcept { return {-z.re, -z.im}; }
QV_INLINE constexpr ComplexRecord CxConj(ComplexRecord z) noexcept { return {z.re, -z.im}; }
QV_INLINE constexpr ComplexRecord CxScale(ComplexRecord z, double factor) noexcept {
    return {z.re * factor, z.im * factor};
}

// re² + im²; overflows and underflows where the squares do.
QV_INLINE constexpr double CxSquaredMagnitude(ComplexRecord z) noexcept { return z.re * z.re + z.im * z.im; }
QV_INLINE double CxMagnitude(ComplexRecord z) noexcept { return std::sqrt(CxSquaredMagnitude(z)); }
QV_INLINE double CxPhase(ComplexRecord z) noexcept { return std::atan2(z.im, z.re); }

struct Polar {
    double magnitude;
    double phase;  // radians, in [-pi, pi]
};

// Zero of any sign has magnitude 0 and phase 0.
QV_INLINE Polar CxToPolar(ComplexRecord z) noexcept {
    if (z.re == 0 && z.im == 0) return {0, 0};
    return {CxMagnitude(z), CxPhase(z)};
}

QV_INLINE ComplexRecord CxFromPolar(double magnitude, double phase) noexcept {
    return {magnitude * std::cos(phase), magnitude * std::sin(phase)};
}

// A real argument has a real result, its imaginary part an exact zero.
QV_INLINE ComplexRecord CxExp(ComplexRecord z) noexcept {
    const double e = std::exp(z.re);
    if (z.im == 0) return {e, 0};
    return {std::cos(z.im) * e, std::sin(z.im) * e};
}

// The principal root, through its polar form.
QV_INLINE ComplexRecord CxSqrt(ComplexRecord z) noexcept {
    const double squared = CxSquaredMagnitude(z);
    if (squared == 0) return {0, 0};
    return CxFromPolar(std::sqrt(std::sqrt(squared)), 0.5 * CxPhase(z));
}

// The rest can fail, and then write nothing. "Zero" is the argument itself here, and a squared magnitude of zero, which
// also a denormal-sized argument has, in the logarithms and the power.

// 1 / z by the plain formula, not by Smith's.
inline Status CxReciprocal(ComplexRecord z, ComplexRecord* out) noexcept {
    if (z.re == 0 && z.im == 0) return status::kDivideByZero;
    const double squared = CxSquaredMagnitude(z);
    *out = {z.re / squared, -(z.im / squared)};
    return status::kSuccess;
}

inline Status CxLog(ComplexRecord z, ComplexRecord* out) noexcept {
    const double squared = CxSquaredMagnitude(z);
    if (squared == 0) return status::kDivideByZero;
    *out = {0.5 * std::log(squared), CxPhase(z)};
    return status::kSuccess;
}

inline Status CxLog10(ComplexRecord z, ComplexRecord* out) noexcept {
    constexpr double kLog10OfE = 0.434294481903252;  // fifteen digits, deliberately
    const double squared = CxSquaredMagnitude(z);
    if (squared == 0) return status::kDivideByZero;
    *out = {0.5 * std::log10(squared), CxPhase(z) * kLog10OfE};
    return status::kSuccess;
}

// z to a real power. Zero to any power but 0 is 0, deliberately also to a negative one.
inline Status CxPow(ComplexRecord z, double p, ComplexRecord* out) noexcept {
    const double squared = CxSquaredMagnitude(z);
    if (squared == 0) {
        if (p == 0) return status::kDivideByZero;
        *out = {0, 0};
        return status::kSuccess;
    }
    *out = CxFromPolar(std::pow(squared, p * 0.5), CxPhase(z) * p);
    return status::kSuccess;
}

}  // namespace quorvan

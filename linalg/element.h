// The arithmetic of matrix elements, under one name for reals and records.
#pragma once

#include <cmath>
#include <limits>

#include "frame/complex.h"

namespace quorvan::element {

inline double Sum(double a, double b) noexcept { return a + b; }
inline ComplexRecord Sum(ComplexRecord a, ComplexRecord b) noexcept { return CxAdd(a, b); }

inline double Difference(double a, double b) noexcept { return a - b; }
inline ComplexRecord Difference(ComplexRecord a, ComplexRecord b) noexcept { return CxSubtract(a, b); }

inline double Product(double a, double b) noexcept { return a * b; }
inline ComplexRecord Product(ComplexRecord a, ComplexRecord b) noexcept { return CxMultiply(a, b); }

inline double Scaled(double a, double factor) noexcept { return a * factor; }
inline ComplexRecord Scaled(ComplexRecord a, double factor) noexcept { return CxScale(a, factor); }

inline double Quotient(double a, double b) noexcept { return a / b; }
inline ComplexRecord Quotient(ComplexRecord a, ComplexRecord b) noexcept { return CxDivide(a, b); }
inline ComplexRecord Quotient(ComplexRecord a, double b) noexcept { return {a.re / b, a.im / b}; }

inline double Negative(double a) noexcept { return -a; }
inline ComplexRecord Negative(ComplexRecord a) noexcept { return CxNegate(a); }

inline double Conjugate(double a) noexcept { return a; }
inline ComplexRecord Conjugate(ComplexRecord a) noexcept { return CxConj(a); }

inline double Magnitude(double a) noexcept { return std::fabs(a); }
inline double Magnitude(ComplexRecord a) noexcept { return CxMagnitude(a); }

// NaN equals nothing.
inline bool Equal(double a, double b) noexcept { return a == b; }
inline bool Equal(ComplexRecord a, ComplexRecord b) noexcept { return a.re == b.re && a.im == b.im; }

template <class T>
constexpr T One() noexcept;
template <>
constexpr double One<double>() noexcept {
    return 1;
}
template <>
constexpr ComplexRecord One<ComplexRecord>() noexcept {
    return {1, 0};
}

// NaN in every part.
template <class T>
T NotANumber() noexcept;
template <>
inline double NotANumber<double>() noexcept {
    return std::numeric_limits<double>::quiet_NaN();
}
template <>
inline ComplexRecord NotANumber<ComplexRecord>() noexcept {
    return {NotANumber<double>(), NotANumber<double>()};
}

}  // namespace quorvan::element

// Auto and cross power of single bins of unscaled spectra.
#pragma once

#include "frame/complex.h"

namespace quorvan {

// n^2 in floating point: from 46341 on it is no 32-bit number.
inline double SquaredLength(Count n) noexcept { return static_cast<double>(n) * n; }

// |X|^2 / n^2.
inline double BinAutoPower(ComplexRecord x, Count n) noexcept { return CxSquaredMagnitude(x) / SquaredLength(n); }

// conj(X) Y / n^2, with scale = 1 / n^2.
inline ComplexRecord BinCrossPower(ComplexRecord x, ComplexRecord y, double scale) noexcept {
    return CxScale(CxMultiply(CxConj(x), y), scale);
}

// The same of bins that are real by nature. It keeps the sign of a zero, which decides the phase.
inline double BinCrossPower(double x, double y, double scale) noexcept { return x * y * scale; }

}  // namespace quorvan

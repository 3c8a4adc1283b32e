// Operations on split complex arrays: one array of real parts, one of imaginary parts.
//
// An output may be any of the inputs, also crosswise: every element is read whole before it is written.
#pragma once

#include "frame/types.h"

namespace quorvan {

Status CxArrAdd(const double* aRe, const double* aIm, const double* bRe, const double* bIm, Count n, double* outRe,
                double* outIm) noexcept;
Status CxArrSubtract(const double* aRe, const double* aIm, const double* bRe, const double* bIm, Count n, double* outRe,
                     double* outIm) noexcept;
Status CxArrMultiply(const double* aRe, const double* aIm, const double* bRe, const double* bIm, Count n, double* outRe,
                     double* outIm) noexcept;
Status CxArrDivide(const double* aRe, const double* aIm, const double* bRe, const double* bIm, Count n, double* outRe,
                   double* outIm) noexcept;

// Below, each null output is replaced by the matching input.
Status CxArrToPolar(double* re, double* im, Count n, double* outMagnitude, double* outPhase) noexcept;
Status CxArrFromPolar(double* magnitude, double* phase, Count n, double* outRe, double* outIm) noexcept;
// out = a z + b
Status CxArrLinearEval(double* re, double* im, Count n, ComplexRecord a, ComplexRecord b, double* outRe,
                       double* outIm) noexcept;

// Whether a part of a record is NaN, infinite, the largest double, or -1.7976931348623e308 or below.
bool CxHasNonFinite(const ComplexRecord* x, Count n) noexcept;

}  // namespace quorvan

// Operations on real arrays. All but the screens give kSamplesNotPositive for a count below 1.
//
// Where x is not const, a null `out` stands for x. `out` may be x, and in arithmetic y, everywhere; no other overlap is
// meant to work, except where an operation only moves elements.
#pragma once

#include "frame/types.h"

namespace quorvan {

// What `out` stands for where it may be null.
inline double* InPlaceIfNull(double* out, double* x) noexcept { return out ? out : x; }

Status ArrClear(double* x, Count n) noexcept;
Status ArrFill(double* x, Count n, double value) noexcept;
Status ArrCopy(const double* x, Count n, double* out) noexcept;
Status ArrSubset(const double* x, Count n, Count index, Count length, double* out) noexcept;
Status ArrReverse(double* x, Count n, double* out) noexcept;
Status ArrShift(double* x, Count n, Count shift, double* out) noexcept;
// NaN first; then ascending for direction 0, descending for any other.
Status ArrSort(double* x, Count n, std::uint32_t direction, double* out) noexcept;

Status ArrAdd(const double* x, const double* y, Count n, double* out) noexcept;
Status ArrSubtract(const double* x, const double* y, Count n, double* out) noexcept;
Status ArrMultiply(const double* x, const double* y, Count n, double* out) noexcept;
// Stops at the first zero of y.
Status ArrDivide(const double* x, const double* y, Count n, double* out) noexcept;
Status ArrNegate(double* x, Count n, double* out) noexcept;
Status ArrAbs(double* x, Count n, double* out) noexcept;
Status ArrLinearEval(double* x, Count n, double a, double b, double* out) noexcept;
// coef[0] + coef[1] x + coef[2] x² + ..., by powers, not by Horner's rule.
Status ArrPolyEval(double* x, Count n, const double* coef, Count count, double* out) noexcept;
Status ArrClip(double* x, Count n, double upper, double lower, double* out) noexcept;

// In index order.
Status ArrSum(const double* x, Count n, double* sum) noexcept;
Status ArrProduct(const double* x, Count n, double* product) noexcept;

// The first of the largest and of the smallest elements that are not NaN; NaN and -1 where all are.
Status ArrMaxMin(const double* x, Count n, double* max, Count* maxIndex, double* min, Count* minIndex) noexcept;
Status ArrMaxMin2D(const double* x, Count rows, Count cols, double* max, Count* maxRow, Count* maxCol, double* min,
                   Count* minRow, Count* minCol) noexcept;

// To the range from -1 to 1; to a peak magnitude of 1; to mean 0 and deviation 1.
Status ArrScale(double* x, Count n, double* out, double* offset, double* scale) noexcept;
Status ArrQuickScale(double* x, Count n, double* out, double* peak) noexcept;
Status ArrNormalize(double* x, Count n, double* out, double* mean, double* stdDev) noexcept;

// Whether an element is NaN, infinite, the largest double, or -1.7976931348623e308 or below. Not for a count below 1.
bool ArrHasNonFinite(const double* x, Count n) noexcept;

}  // namespace quorvan

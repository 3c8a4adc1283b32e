// Cubic splines: the second derivatives at the samples, and the value between them.
#pragma once

#include "frame/types.h"

namespace quorvan {

// A boundary derivative strictly above this limit stands for a natural end: second derivative 0.
inline constexpr double kNaturalEnd = 9.9e29;

// The second derivatives of the interpolating cubic spline with the given first derivatives at its ends. -20003 for n
// below 1; -20049 when two of three consecutive abscissas are equal (`second` holds partial values then); -20001. For n
// of 1 the one value is 0.
Status InterpSplineSecondDerivatives(const double* x, const double* y, Count n, double first, double last,
                                     double* second) noexcept;

// The same with n doubles of the caller's for the sweep.
Status SplineSweep(const double* x, const double* y, Count n, double first, double last, double* second,
                   double* work) noexcept;

// The spline at `point`; beyond the ends the end interval goes on. x ascends or descends. -20003 for n below 1, -20049
// for an interval of width 0.
Status InterpSplineEvaluate(const double* x, const double* y, const double* second, Count n, double point,
                            double* result) noexcept;

}  // namespace quorvan

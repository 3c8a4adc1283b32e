// The cubic smoothing spline.
#pragma once

#include "frame/types.h"

namespace quorvan {

// Minimises balance·(weighted sum of squared residuals) + (1 - balance)·(integral of the squared second derivative). A
// balance of exactly 1 interpolates, 0 gives the least-squares line, one outside [0, 1] is chosen from the mean
// interval. Weights (n) and smoothness weights (n - 1, one an interval) may be null and count by magnitude; out null:
// over y. -20006 for n below 2, -20002 for a null x, -20049 for x not strictly ascending, -20141 for a weight of 0,
// -20001, or the status of the solver; nothing is written then, but on the path of balance 1. Two samples: nothing is
// done.
Status InterpSmoothingSpline(const double* x, double* y, const double* weights, Count n, double balance,
                             const double* smoothness, double* out) noexcept;

}  // namespace quorvan

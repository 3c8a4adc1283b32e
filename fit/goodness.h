// How well a curve fits.
#pragma once

#include "frame/types.h"

namespace quorvan {

// sse = sum of w (y - f)², rmse = sqrt(sse / freedom), rSquare = 1 - sse / sum of w (y - mean)²; of a constant y 1 for
// sse = 0 and +Inf otherwise. The mean is unweighted and weights count with their sign, deliberately; null: all 1. A
// freedom below 1 means n - 2. -20006 for n below 2, -20052 for a freedom at or above n.
Status FitGoodness(const double* y, const double* fitted, const double* weights, Count n, Count freedom, double* sse,
                   double* rSquare, double* rmse) noexcept;

}  // namespace quorvan

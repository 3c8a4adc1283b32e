// The two errors that every fit reports. Weights count by magnitude, null: all 1. -20003 for n below 1.
#pragma once

#include "frame/types.h"

namespace quorvan {

// sum of |w| ((f - 2y) f + y²) / n.
Status FitMeanSquaredError(const double* y, const double* fit, const double* weights, Count n, double* result) noexcept;

// sum of |(y - f) w| / n.
Status FitMeanAbsoluteError(const double* fit, const double* y, const double* weights, Count n,
                            double* result) noexcept;

// The relative change at which a fit that iterates ends.
inline double ToleranceOrDefault(double tolerance) noexcept { return tolerance <= 0 ? 0.0001 : tolerance; }

}  // namespace quorvan

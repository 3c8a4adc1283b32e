// Mean and population standard deviation of an array, in two passes that add in index order.
#pragma once

#include "frame/types.h"

namespace quorvan {

struct MeanDeviation {
    double mean;       // sum of x / n
    double deviation;  // sqrt(sum of (x - mean)² / n)
};

// For n of at least 1.
double MeanOf(const double* x, Count n) noexcept;
MeanDeviation MeanDeviationOf(const double* x, Count n) noexcept;

}  // namespace quorvan

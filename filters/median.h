// The running median.
#pragma once

#include "frame/types.h"

namespace quorvan {

// y[t] is the median of x[t - left .. t + right], zeros beyond both ends; the mean of the two middle values for an even
// window. A negative right rank stands for the left one. y may be x. -20003 for n below 0, -20032 for a negative left
// rank, -20008 for 0 < n <= right, -20046, -20001.
Status FilterMedian(const double* x, Count n, Count left, Count right, double* y) noexcept;

}  // namespace quorvan

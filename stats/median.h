// The median.
#pragma once

#include "frame/types.h"

namespace quorvan {

// The middle of the sorted data, or the mean of the two middle elements. NaN when the data hold one.
Status StatMedian(const double* x, Count n, double* median) noexcept;

}  // namespace quorvan

// All modes of the data.
#pragma once

#include "frame/types.h"

namespace quorvan {

// The values that occur most often, exactly (intervals below 1) or by bins of a histogram over the data's range.
// `count` gets the number found, of which the first `capacity` are written; it is 0 after an error.
Status StatModes(const double* x, Count n, Count intervals, double* modes, Count capacity, Count* count) noexcept;

}  // namespace quorvan

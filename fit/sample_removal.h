// Removal of samples before a fit, in place: what is kept moves to the front of x, y and, where given, the weights.
#pragma once

#include "frame/types.h"

namespace quorvan {

struct SampleArrays {
    double* x;
    double* y;
    double* weights;  // may be null
};

struct Removal {
    Status status;
    Count kept;
};

// Removes samples that are not strictly between two limits, given in either order: mode 0 of y, 1 of x, 2 of x (the
// first two limits) or of y (the next two). `removed` gets their indices, ascending. -20003 for n or the number of
// limits below 1, -20061 for another mode, -20006 (-20069 in mode 2) for too few limits, -20068 for a limit of NaN:
// `kept` is 0 then. -20010 for more than `capacity` to remove, and -20003 for none: the arrays stay, `kept` is what
// would be.
Removal FitRemoveOutOfRange(const SampleArrays& samples, Count n, std::uint32_t mode, const double* limits,
                            Count limitCount, Size* removed, Count capacity) noexcept;

// Removes samples by index; one may be named more than once. -20003 for n or count below 1, -20017 for an index outside
// 0 to n - 1, -20001.
Removal FitRemoveByIndex(const SampleArrays& samples, Count n, const Size* indices, Count count) noexcept;

}  // namespace quorvan

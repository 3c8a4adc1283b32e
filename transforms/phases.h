// Equally spaced points of the unit circle, for the transforms that twist their bins.
#pragma once

#include "frame/types.h"

namespace quorvan {

// cosines[k] = scale cos(k step) and sines[k] = scale sin(k step), k = 0 to count - 1.
void FillPhases(double step, double scale, Count count, double* cosines, double* sines) noexcept;

}  // namespace quorvan

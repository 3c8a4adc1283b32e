// Least-squares parabolas c0 + c1 t + c2 t² over windows of w samples, with t = -(w - 1)/2 to (w - 1)/2.
#pragma once

#include "frame/targets.h"
#include "frame/types.h"

namespace quorvan {

// The parabolas of adjacent windows, the first one at x. `matrix` has the rows of the three coefficients, w each.
struct PeakFitLoops {
    void (*fit)(const double* matrix, Count w, const double* x, Count windows, double* c0, double* c1, double* c2);
};
QV_DECLARE_TARGETS(PeakFitLoops, kPeakFitLoops)

// The rows for windows of w samples, at least 3, into 3 w doubles. What the pseudo-inverse refuses; -20001.
Status PeakFitMatrix(Count w, double* matrix) noexcept;

}  // namespace quorvan

// Least-squares parabolas c0 + c1 t + c2 t² over windows of w samples, with t = -(w - 1)/2 to (w - 1)/2.
#pragma once

#include "frame/targets.h"
#include "frame/types.h"

namespace quorvan {

// Slopes and second derivatives below this count as none.
inline constexpr double kFlat = 1e-10;

// Where an apex can be: the trend turns, or the curvature has the wanted sign; and the vertex of the window's parabola,
// or of the one before where that lies ahead, is at most `reach` from the middle.
struct ApexRule {
    bool byTrend;
    double curvature;  // 1 or -1
    double reach;
};

struct PeakFitLoops {
    // The parabolas of adjacent windows, the first one at x. `matrix` has the rows of the coefficients, w each.
    void (*fit)(const double* matrix, Count w, const double* x, Count windows, double* c0, double* c1, double* c2);
    // The places k of windows that fulfil the rule, ascending; c1[-1] and c2[-1] are of the window before. `places` has
    // room for all windows and one more.
    Count (*apexes)(const double* c1, const double* c2, Count windows, ApexRule rule, Count* places);
};
QV_DECLARE_TARGETS(PeakFitLoops, kPeakFitLoops)

// The rows for windows of w samples, at least 3, into 3 w doubles. What the pseudo-inverse refuses; -20001.
Status PeakFitMatrix(Count w, double* matrix) noexcept;

}  // namespace quorvan

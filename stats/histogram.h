// Histograms and what is read from them: the fullest bin and all modes.
#pragma once

#include "frame/types.h"

namespace quorvan {

// What StatHistogram refuses, for a caller that has to allocate the counts first.
Status StatHistogramCheck(Count n, double base, double top, Count intervals) noexcept;

// Counts over `intervals` equal bins between base and top: closed below and open above, the last closed at top.
Status StatHistogram(const double* x, Count n, double base, double top, Count* counts, double* centres,
                     Count intervals) noexcept;

// The centre of the fullest bin, the first of equally full ones.
Status StatModeOfHistogram(const double* x, Count n, double base, double top, Count intervals, double* mode) noexcept;

}  // namespace quorvan

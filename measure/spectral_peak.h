// Power and frequency of a peak in a power spectrum.
#pragma once

#include "frame/types.h"

namespace quorvan {

// Searches around `search`, or around the largest bin when that is negative or outside the spectrum.
Status SpecPeakPowerFrequency(const double* power, Count n, double search, const WinProperties& window, double df,
                              Count span, double* frequency, double* peakPower) noexcept;

}  // namespace quorvan

// The harmonics of a fundamental in a given power spectrum.
#pragma once

#include "frame/types.h"

namespace quorvan {

// Reads n bins of a one-sided power spectrum that was taken through the window with this code, 0 to 8, at fftSize
// points (2n if below 1). Gives rms amplitude and frequency of the harmonics, 0 for those that the spectrum does not
// reach, and the distortion in percent, 1e9 where it would divide by zero. With n not above the lobe's half-width,
// rounded up, and no usable fundamental, there is nothing to search: -20003.
Status SpecHarmonicAnalyzer(const double* power, Count n, Count fftSize, std::int32_t harmonics, std::uint32_t window,
                            double fs, double fundamental, double* amp, double* freq, double* thd,
                            double* thdPlusNoise) noexcept;

}  // namespace quorvan

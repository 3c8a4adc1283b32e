// A fundamental and its harmonics in a time record.
#pragma once

#include "frame/types.h"

namespace quorvan {

// The tone near `fundamental`, within 5 percent of fs above or below, and its harmonics: peak amplitude and frequency
// of each, distortion by harmonics in percent of the fundamental, and what is left without the fundamental in percent
// of the whole. Below 1, or above the number M of harmonics up to fs / 2, `harmonics` means M, at most n.
Status SpecToneHarmonics(const double* x, Count n, std::int32_t harmonics, double fs, double fundamental, double* amp,
                         double* freq, double* thd, double* thdPlusNoise) noexcept;

}  // namespace quorvan

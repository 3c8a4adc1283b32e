// The frequency, amplitude and phase of one tone from two or three bins around it.
#pragma once

#include "frame/types.h"
#include "measure/hanning_kernel.h"

namespace quorvan {

// Consecutive bins of a spectrum under a Hanning window of n samples.
struct ToneBins {
    double base;  // frequency of the first, in cycles per sample
    double step;  // 1 / n
    double peak;  // the largest squared magnitude; with several tones the largest magnitude
    Count count;  // 3, or 2 at the end of the spectrum
    ComplexRecord bins[3];
};

struct Tone {
    double frequency;  // cycles per sample
    double amplitude;  // rms of a real tone
    double phase;      // degrees, of a cosine
};

// Where two estimates of the amplitude, from all bins and from all but the last, agree (Newton's method). Both
// are least squares fits of the window's kernel at the frequency and, for a tone of a real record, at its negative.
Tone ToneNewton(const ToneBins& record, const HanningKernel& kernel, bool real) noexcept;

}  // namespace quorvan

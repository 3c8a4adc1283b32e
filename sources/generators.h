// Waveform generators: periodic waves whose phase goes in and comes out, patterns over the whole array, and pulses in
// the time t = i dt - delay.
//
// Frequencies are in cycles per sample, phases in degrees. Each checks before it writes; n < 1 gives -20003 where
// nothing else is told.
#pragma once

#include "frame/types.h"

namespace quorvan {

// Periodic waves. The phase of the sample behind the last comes out, in [0, 360).
Status GenSineWave(Count n, double amp, double freq, double* phase, double* out) noexcept;
Status GenTriangleWave(Count n, double amp, double freq, double* phase, double* out) noexcept;
Status GenSawtoothWave(Count n, double amp, double freq, double* phase, double* out) noexcept;
Status GenSquareWave(Count n, double amp, double freq, double* phase, double duty, double* out) noexcept;
// One period stored in a table. A phase or frequency that is not finite gives -20068.
Status GenArbitraryWave(Count n, double amp, double freq, double* phase, const double* table, Count tableSize,
                        std::int32_t interpolation, double* out) noexcept;

// Patterns.
Status GenSinePattern(Count n, double amp, double phase, double cycles, double* out) noexcept;
Status GenChirp(Count n, double amp, double f1, double f2, double* out) noexcept;
Status GenPulsePattern(Count n, double amp, Count delay, Count width, double* out) noexcept;
Status GenImpulsePattern(Count n, double amp, Count index, double* out) noexcept;
Status GenRampPattern(Count n, double first, double last, double* out) noexcept;
Status GenTrianglePattern(Count n, double amp, double* out) noexcept;

// Pulses. dt <= 0 gives -20016, a shape parameter that must be positive and is not -20140.
Status GenSincPattern(Count n, double amp, double delay, double dt, double* out) noexcept;
Status GenPeriodicSincPattern(Count n, double amp, double delay, double dt, std::int32_t order, double* out) noexcept;
Status GenGaussianModulatedSine(Count n, double amp, double delay, double dt, double centre, double bandwidth,
                                double attenuation, double* out) noexcept;
Status GenGaussianMonopulse(Count n, double amp, double delay, double dt, double centre, double* out) noexcept;
Status GenSkewedTrianglePulse(Count n, double amp, double delay, double dt, double width, double skew,
                              double* out) noexcept;

}  // namespace quorvan

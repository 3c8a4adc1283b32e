// One-sided spectra of real records: bins 0 to n/2 - 1, never the Nyquist bin. Bin 0 is there also for n = 1.
#pragma once

#include "frame/types.h"

namespace quorvan {

// Amplitudes (rms of the sine components, the mean in bin 0) and phases in radians.
Status SpecAmplitudePhase(const double* x, Count n, std::int32_t unwrap, double dt, double* amplitude, double* phase,
                          double* df) noexcept;

Status SpecPowerSpectrum(const double* x, Count n, double dt, double* power, double* df) noexcept;

Status SpecCrossPowerPolar(const double* x, const double* y, Count n, double dt, double* magnitude, double* phase,
                           double* df) noexcept;

}  // namespace quorvan

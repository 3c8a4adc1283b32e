#include "measure/one_sided.h"

#include <cmath>

#include "frame/complex.h"
#include "frame/memory.h"
#include "frame/status.h"
#include "measure/bin_power.h"
#include "measure/half_spectrum.h"
#include "measure/unwrap.h"

namespace quorvan {

Status SpecAmplitudePhase(const double* x, Count n, std::int32_t unwrap, double dt, double* amplitude, double* phase,
                          double* df) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    const HalfSpectra spectrum(n, x);
    if (spectrum.status < 0) return spectrum.status;

    amplitude[0] = std::fabs(spectrum.x[0]) / n;
    phase[0] = spectrum.x[0] >= 0 ? 0 : kPi;
    const double scale = std::sqrt(2.0) / n;
    for (Count k = 1; k < n / 2; ++k) {
        const ComplexRecord bin = InnerBin(spectrum.x, n, k);
        amplitude[k] = CxMagnitude(bin) * scale;
        phase[k] = CxPhase(bin);
    }
    // A record of one sample has its phase written and nothing to unwrap.
    if (unwrap && n > 1) SpecUnwrapPhase(phase, n / 2, 0);
    *df = FrequencyStep(n, dt);
    return status::kSuccess;
}

Status SpecPowerSpectrum(const double* x, Count n, double dt, double* power, double* df) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    const HalfSpectra spectrum(n, x);
    if (spectrum.status < 0) return spectrum.status;

    power[0] = BinAutoPower({spectrum.x[0], 0}, n);
    for (Count k = 1; k < n / 2; ++k) power[k] = 2 * BinAutoPower(InnerBin(spectrum.x, n, k), n);
    *df = FrequencyStep(n, dt);
    return status::kSuccess;
}

Status SpecCrossPowerPolar(const double* x, const double* y, Count n, double dt, double* magnitude, double* phase,
                           double* df) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    const HalfSpectra spectra(n, x, y);
    if (spectra.status < 0) return spectra.status;

    const double scale = 1.0 / SquaredLength(n);
    const double mean = BinCrossPower(spectra.x[0], spectra.y[0], scale);
    magnitude[0] = std::fabs(mean);
    phase[0] = std::atan2(0.0, mean);
    for (Count k = 1; k < n / 2; ++k) {
        const ComplexRecord power = BinCrossPower(InnerBin(spectra.x, n, k), InnerBin(spectra.y, n, k), scale);
        magnitude[k] = 2 * CxMagnitude(power);
        phase[k] = CxPhase(power);
    }
    *df = FrequencyStep(n, dt);
    return status::kSuccess;
}

}  // namespace quorvan

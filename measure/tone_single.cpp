// Extraction of one tone.
#include <cmath>

#include "measure/sine_crest.h"
#include "measure/tone_signal.h"
#include "measure/tones.h"

namespace quorvan {
namespace {

struct Range {
    Count first, last;
};

// The bins inside the band search[0] +- search[1] percent of the rate, or the one nearest to a band between two bins.
// All bins when there is no band: a null, a width of 0, or nothing of it in the spectrum.
template <class T>
Range SearchRange(const ToneSpectrum<T>& spectrum, Count n, double dt, const double* search) {
    const Range all{0, spectrum.size() - 1};
    if (!search || search[1] == 0) return all;
    const double fs = 1 / dt, width = std::fabs(search[1]) * 0.01 * fs, bottom = spectrum.kReal ? 0 : -fs / 2;
    const double lower = std::fmax(search[0] - width, bottom), upper = std::fmin(search[0] + width, fs / 2);
    if (!(lower <= upper)) return all;
    const double binsPerHertz = n * dt;
    double first = std::ceil(lower * binsPerHertz) + spectrum.zero();
    double last = std::floor(upper * binsPerHertz) + spectrum.zero();
    if (first > last) first = last = std::nearbyint((lower + upper) * 0.5 * binsPerHertz) + spectrum.zero();
    if (std::isnan(first) || std::isnan(last)) return all;
    const auto inside = [&](double k) { return static_cast<Count>(std::fmin(std::fmax(k, 0), all.last)); };
    return {inside(first), inside(last)};
}

template <class T>
ToneBins ToneFindPeak(const ToneSpectrum<T>& spectrum, Range range) {
    Count peak = range.first;
    double largest = 0;
    for (Count k = range.first; k <= range.last; ++k) {
        const double squared = spectrum.squaredMagnitude(k);
        if (squared > largest) {
            largest = squared;
            peak = k;
        }
    }
    // Half the rate and what lies above it in the spectrum of a real record tell nothing that its image does not.
    return spectrum.around(peak > 0 ? peak - 1 : 0, largest);
}

template <class T>
Status Extract(const T* x, Count n, double dt, const double* search, std::uint32_t mode, const ToneResult& tone,
               const ToneSignal<T>* signal) {
    if (n < 3) return status::kSamplesBelowThree;
    if (dt < 0) return status::kTimeStepNotPositive;
    if (mode > 3) return status::kInvalidSelection;
    ToneSpectrum<T> spectrum(n);
    if (!spectrum) return status::kOutOfMemory;
    if (const Status failure = spectrum.take(x)) return failure;
    const ToneBins bins = ToneFindPeak(spectrum, SearchRange(spectrum, n, dt, search));
    const Tone found = ToneNewton(bins, HanningKernel(n), spectrum.kReal);
    *tone.frequency = found.frequency / dt;
    *tone.amplitude = found.amplitude * kSineCrest;
    *tone.phase = spectrum.kReal ? found.phase + 90 : found.phase;
    return signal ? GiveToneSignal(x, n, dt, mode, tone, 1, spectrum, *signal) : status::kSuccess;
}

}  // namespace

template <class T>
Status ToneSingle(const T* x, Count n, double dt, const double* search, std::uint32_t mode, const ToneResult& tone,
                  const ToneSignal<T>* signal) noexcept {
    const Status done = Extract(x, n, dt, search, mode, tone, signal);
    if (done < 0) {
        *tone.frequency = *tone.amplitude = *tone.phase = 0;
        if (signal) ClearToneSignal(n, *signal);
    }
    return done;
}
template Status ToneSingle(const double*, Count, double, const double*, std::uint32_t, const ToneResult&,
                           const ToneSignal<double>*) noexcept;
template Status ToneSingle(const ComplexRecord*, Count, double, const double*, std::uint32_t, const ToneResult&,
                           const ToneSignal<ComplexRecord>*) noexcept;

}  // namespace quorvan

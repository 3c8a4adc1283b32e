// What the extended forms of tone extraction give besides the tones.
#pragma once

#include <algorithm>

#include "measure/tone_spectrum.h"
#include "measure/tones.h"
#include "sources/generators.h"

namespace quorvan {

// A tone as it was extracted, sampled n times: amp sin(2 pi f t + phase), or amp/2 e^(i(2 pi f t + phase)).
inline void SynthesiseTone(Count n, double amplitude, double phase, double cycles, double* out) noexcept {
    GenSinePattern(n, amplitude, phase, cycles, out);
}
inline void SynthesiseTone(Count n, double amplitude, double phase, double cycles, ComplexRecord* out) noexcept {
    const double frequency = cycles / n, start = phase * (kPi / 180);
    for (Count i = 0; i < n; ++i) {
        const double turns = i * frequency;
        out[i] = CxFromPolar(0.5 * amplitude, (turns - std::floor(turns)) * kTwoPi + start);
    }
}

inline void Add(double& sample, double other) noexcept { sample += other; }
inline void Add(ComplexRecord& sample, ComplexRecord other) noexcept { sample = CxAdd(sample, other); }
inline void SubtractFrom(double whole, double& sample) noexcept { sample = whole - sample; }
inline void SubtractFrom(ComplexRecord whole, ComplexRecord& sample) noexcept { sample = CxSubtract(whole, sample); }

// After the tones have been found, with `spectrum` still that of x.
template <class T>
Status GiveToneSignal(const T* x, Count n, double dt, std::uint32_t mode, const ToneResult& tones, Count count,
                      ToneSpectrum<T>& spectrum, const ToneSignal<T>& signal) noexcept {
    *signal.outDt = dt;
    *signal.df = FrequencyStep(n, dt);
    *signal.f0 = spectrum.kReal ? 0 : -spectrum.zero() * *signal.df;
    if (mode == 0) return status::kSuccess;
    if (mode == 1) {
        if (signal.out) std::copy(x, x + n, signal.out);
        if (signal.spectrum) spectrum.decibels(signal.spectrum);
        return status::kSuccess;
    }

    Block<T> own;
    if (!signal.out) {
        own = Block<T>(static_cast<std::size_t>(n));
        if (!own) return status::kOutOfMemory;
    }
    T* const out = signal.out ? signal.out : own.get();
    std::fill(out, out + n, T{});
    for (Count k = 0; k < count; ++k) {
        T* const sine = count == 1 ? out : spectrum.room();
        SynthesiseTone(n, tones.amplitude[k], tones.phase[k], n * dt * tones.frequency[k], sine);
        if (count > 1)
            for (Count i = 0; i < n; ++i) Add(out[i], sine[i]);
    }
    if (mode == 3)
        for (Count i = 0; i < n; ++i) SubtractFrom(x[i], out[i]);
    if (!signal.spectrum) return status::kSuccess;
    if (const Status failure = spectrum.take(out)) return failure;
    spectrum.decibels(signal.spectrum);
    return status::kSuccess;
}

// What a failure leaves: nothing but zeros.
template <class T>
void ClearToneSignal(Count n, const ToneSignal<T>& signal) noexcept {
    *signal.outDt = *signal.f0 = *signal.df = 0;
    if (n < 1) return;
    if (signal.out) std::fill(signal.out, signal.out + n, T{});
    const Count bins = std::is_same_v<T, double> ? n - n / 2 : n;
    if (signal.spectrum) std::fill(signal.spectrum, signal.spectrum + bins, 0.0);
}

}  // namespace quorvan

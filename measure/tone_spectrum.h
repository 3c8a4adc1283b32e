// The spectrum in which tones are looked for: under a Hanning window, scaled to the rms amplitudes of real tones.
#pragma once

#include <cmath>
#include <type_traits>

#include "frame/complex.h"
#include "frame/memory.h"
#include "frame/status.h"
#include "measure/half_spectrum.h"
#include "measure/sine_crest.h"
#include "measure/tone_newton.h"
#include "sources/windows.h"
#include "transforms/spectrum_layout.h"

namespace quorvan {

// Bins of a record of T in rising frequency: for doubles from 0 to below half the rate, for ComplexRecord from
// -(n/2)/n on, all of them. Test it before use.
template <class T>
class ToneSpectrum {
public:
    static constexpr bool kReal = std::is_same_v<T, double>;

    explicit ToneSpectrum(Count n) noexcept : n_(n), plan_(n), work_(2 * static_cast<std::size_t>(n)) {}
    explicit operator bool() const noexcept { return plan_ && work_; }

    Status take(const T* x) noexcept {
        T *const windowed = work_, *const spectrum = windowed + n_;
        const double scale = 2 * kSineCrest / n_;
        for (Count i = 0; i < n_; ++i) {
            if constexpr (kReal)
                windowed[i] = x[i] * scale;
            else
                windowed[i] = CxScale(x[i], scale);
        }
        if (const Status failure = WinHanning(windowed, n_)) return failure;
        if constexpr (kReal)
            return FftReal(plan_, windowed, spectrum, 1, 1, n_);
        else
            return RecordsThrough(FftComplex, plan_, windowed, spectrum, n_);
    }

    Count size() const noexcept { return kReal ? n_ - n_ / 2 : n_; }
    // The index of frequency 0.
    Count zero() const noexcept { return kReal ? 0 : n_ / 2; }

    ComplexRecord bin(Count k) const noexcept {
        const T* spectrum = work_ + n_;
        if constexpr (kReal) {
            return k == 0 ? ComplexRecord{spectrum[0], 0} : InnerBin(spectrum, n_, k);
        } else {
            const Count natural = k - n_ / 2;
            return spectrum[natural < 0 ? natural + n_ : natural];
        }
    }
    double squaredMagnitude(Count k) const noexcept { return CxSquaredMagnitude(bin(k)); }

    // Three bins from `first` on, or the last two.
    ToneBins around(Count first, double peak) const noexcept {
        const double n = n_;
        ToneBins out{first / n - zero() / n, 1 / n, peak, first + 2 < size() ? 3 : 2, {}};
        for (Count j = 0; j < out.count; ++j) out.bins[j] = bin(first + j);
        return out;
    }

    // ToneSpectrumDb: 10 log10(re^2 + im^2) of every bin.
    void decibels(double* out) const noexcept {
        for (Count k = 0; k < size(); ++k) out[k] = 10 * std::log10(squaredMagnitude(k));
    }

    // n elements that the next spectrum overwrites.
    T* room() noexcept { return work_; }

private:
    Count n_;
    HeldPlan plan_;
    Block<T> work_;
};

}  // namespace quorvan

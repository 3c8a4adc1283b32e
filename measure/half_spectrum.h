// The spectrum of a real record in the HalfComplex layout: Re X[k] at k up to n/2, Im X[k] at n - k.
#pragma once

#include "frame/memory.h"
#include "frame/status.h"
#include "frame/types.h"
#include "transforms/fft.h"

namespace quorvan {

// x and the spectrum must not overlap. A record of one sample is its own spectrum and needs no plan.
inline Status HalfSpectrum(const FftPlan* plan, const double* x, Count n, double* spectrum) noexcept {
    if (n == 1) {
        spectrum[0] = x[0];
        return status::kSuccess;
    }
    if (!plan) return status::kOutOfMemory;
    return FftReal(plan, x, spectrum, 1, 1, n);
}

// The spectra of one record, or of two under one plan, held for the length of a call. Test the status before use.
struct HalfSpectra {
    explicit HalfSpectra(Count n, const double* recordX, const double* recordY = nullptr) noexcept
        : plan(n),
          memory(static_cast<std::size_t>(n) * (recordY ? 2 : 1)),
          x(memory),
          y(x && recordY ? x + n : nullptr) {
        status = memory ? HalfSpectrum(plan, recordX, n, x) : status::kOutOfMemory;
        if (y && status >= 0) status = HalfSpectrum(plan, recordY, n, y);
    }

    HeldPlan plan;
    Block<double> memory;
    double* x;
    double* y;
    Status status;
};

// Bin k between zero frequency and n/2, both of which are real and stand at their index.
inline ComplexRecord InnerBin(const double* spectrum, Count n, Count k) noexcept {
    return {spectrum[k], spectrum[n - k]};
}

// The step between bins in the unit of 1/dt.
inline double FrequencyStep(Count n, double dt) noexcept { return 1.0 / (n * dt); }

}  // namespace quorvan

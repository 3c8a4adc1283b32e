// Filtering by a FIR design that is made for the call: the full convolution of n + taps - 1 samples, with its
// transients and its delay. Real taps filter both parts of complex data.
//
// Statuses, besides those of the design: -20046 for a result that an int32 does not count, -20001 for exhausted memory.
// y is written after a successful design alone, and must not overlap x.
#pragma once

#include "filters/fir_window.h"
#include "frame/memory.h"
#include "frame/status.h"
#include "transforms/convolution.h"

namespace quorvan {

inline Status FirConvolve(const double* x, Count n, const double* h, Count taps, double* y) noexcept {
    return ConvolveReal(x, n, h, taps, kConvolveByFft, y);
}

inline Status FirConvolve(const ComplexRecord* x, Count n, const double* h, Count taps, ComplexRecord* y) noexcept {
    const Block<ComplexRecord> records(static_cast<std::size_t>(taps));
    if (!records) return status::kOutOfMemory;
    for (Count i = 0; i < taps; ++i) records[i] = {h[i], 0.0};
    return ConvolveComplex(x, n, records, taps, kConvolveByFft, y);
}

// design(h) makes the taps and returns its status.
template <class T, class Design>
Status FirFilterDesigned(const T* x, Count n, Count taps, T* y, const Design& design) noexcept {
    if (ConvolvedLength(n, taps) > INT32_MAX) return status::kOverflow;
    const Block<double> h(static_cast<std::size_t>(taps));
    if (!h) return status::kOutOfMemory;
    if (const Status failure = design(h.get()); failure < 0) return failure;
    return FirConvolve(x, n, h, taps, y);
}

// By FirDesignWindow; -20003 for n below 1, then -20021 for taps below 1, then the design's statuses.
template <class T>
Status FirFilterWindow(const T* x, Count n, Count taps, std::uint32_t kind, double fs, double fl, double fh,
                       std::int32_t window, double parameter, T* y) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    if (taps < 1) return status::kOrderNotPositive;
    return FirFilterDesigned(x, n, taps, y,
                             [&](double* h) { return FirDesignWindow(kind, fs, fl, fh, taps, window, parameter, h); });
}

}  // namespace quorvan

// The layouts that a spectrum travels in: packed, full, shifted; and the transforms of one row in each.
//
// HalfComplex of N points: Re X[k] at k up to N / 2, Im X[k] at N - k for k = 1 to (N - 1) / 2.
#pragma once

#include <algorithm>

#include "frame/types.h"
#include "transforms/fft.h"
#include "transforms/spectrum_loops.h"

namespace quorvan {

// Copies the samples that the length has room for, and zeros behind them.
template <class T>
void CopyPadded(const T* x, Count n, Count length, T* out) {
    const Count used = std::min(n, length);
    std::copy(x, x + used, out);
    std::fill(out + used, out + length, T{});
}

// Natural to shifted order, through room for length - length / 2 records.
inline void RotateToShifted(ComplexRecord* spectrum, Count length, ComplexRecord* room) {
    const Count lower = length - length / 2;
    std::copy(spectrum, spectrum + lower, room);
    std::copy(spectrum + lower, spectrum + length, spectrum);
    std::copy(room, room + lower, spectrum + length / 2);
}

// Shifted to natural order. For odd lengths this is another rotation than the one above.
inline void RotateFromShifted(const ComplexRecord* shifted, Count length, ComplexRecord* out) {
    std::copy(shifted + length / 2, shifted + length, out);
    std::copy(shifted, shifted + length / 2, out + length - length / 2);
}

// The full spectrum of `length` reals from n samples, by a plan that is made for spectra. Padded samples lie in the
// second half of the output.
inline Status SpectrumOfReals(const FftPlan* plan, const double* x, Count n, Count length, bool shift,
                              ComplexRecord* out) noexcept {
    double* packed = &out->re;
    if (length > n) {
        CopyPadded(x, n, length, packed + length);
        x = packed + length;
    }
    return FftSpectrum(plan, x, shift, packed);
}

// An interleaved array through a complex core.
inline Status RecordsThrough(decltype(FftComplex) core, const FftPlan* plan, const ComplexRecord* in,
                             ComplexRecord* out, Count n) noexcept {
    return core(plan, &in->re, &in->im, &out->re, &out->im, 2, 2, n);
}

}  // namespace quorvan

// Tone extraction: frequency, amplitude and phase of one or of several sinusoids, much closer than one bin.
//
// Checked in this order: n < 3 gives -20007, dt < 0 -20016, a mode above 3 -20061, maxTones < 1 -20140; exhausted
// memory -20001. After a failure all scalar outputs are 0, and so are out and spectrum.
//
// T is double or ComplexRecord. A complex exponential of modulus A reads the amplitude 2A, deliberately: the scale is
// that of real records, where half of it stands at the negative frequency.
#pragma once

#include "frame/types.h"

namespace quorvan {

// What the extended forms give besides. mode: 0 nothing, 1 the input, 2 the synthesised tones, 3 the input without
// them.
template <class T>
struct ToneSignal {
    T* out;            // n samples, or null
    double* outDt;     // dt
    double* spectrum;  // of out in decibels, (n + 1) / 2 bins or, for complex records, n; or null
    double *f0, *df;   // its first frequency and step
};

struct ToneResult {
    double *frequency, *amplitude,
        *phase;  // unit of 1/dt, peak, degrees (real: of a sine, complex: of the exponential)
};

// The strongest tone, or that of the band search[0] +- search[1] percent of the rate. Null: no band; `signal` null: the
// plain form.
template <class T>
Status ToneSingle(const T* x, Count n, double dt, const double* search, std::uint32_t mode, const ToneResult& tone,
                  const ToneSignal<T>* signal) noexcept;

// Up to maxTones tones of at least the threshold, a peak amplitude. sort: 1 by falling amplitude, else by rising
// frequency.
template <class T>
Status ToneMulti(const T* x, Count n, double dt, std::uint32_t sort, std::uint32_t mode, double threshold,
                 std::int32_t maxTones, std::int32_t* count, const ToneResult& tones,
                 const ToneSignal<T>* signal) noexcept;

}  // namespace quorvan

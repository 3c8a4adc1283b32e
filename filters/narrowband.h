// Narrow transitions with few multiplications: a model filter whose taps stand `factor` samples apart, in cascade with
// an image suppressor (Y. Neuvo, Dong C.-Y. and S. K. Mitra, IEEE Trans. Acoust. Speech Signal Process. 32, 1984).
// Bands beyond fs/4 are mirrored or complemented first, so that the narrow case is always what is designed.
#pragma once

#include "frame/types.h"

namespace quorvan {

using FirNarrowband = ::QvFirNarrowband;

enum FirNarrowbandMode : std::int32_t {
    kNarrowLowpass,
    kNarrowHighpass,  // the mirror image of a lowpass
    kNarrowBandpass,
    kComplementBandpass,  // a bandstop: from here on the output is added to the delayed input
    kComplementHighpass,  // a lowpass with edges above fs/4
    kComplementLowpass,   // a highpass with mirrored edges above fs/4
};

// All fields zero; null when memory is exhausted.
FirNarrowband* FirNarrowbandCreate() noexcept;
// Null does nothing.
void FirNarrowbandRelease(FirNarrowband* filter) noexcept;

// Lowpass and highpass: f1 is the edge of the passband, f2 of the stopband. Bandpass and bandstop: the full widths of
// passband and stopband about the centre. The ripple is linear, the attenuation in decibels. -20031 for arguments that
// no band has, -20001; the statuses of the exchange pass. The record changes on success alone, and what it held is not
// freed.
Status FirNarrowbandDesign(double fs, double f1, double f2, double center, double ripple, double attenuation,
                           std::uint32_t kind, FirNarrowband* filter) noexcept;

// y has (model_count - 1) factor + n + suppressor_count - 1 samples, n + model_count - 1 for a factor of 1, and must
// not overlap x. -20003 for n or a count below 1, -20046, -20001. Other modes than the six have no complement.
Status FirNarrowbandFilter(const double* x, Count n, const FirNarrowband* filter, double* y) noexcept;
Status FirNarrowbandFilterComplex(const ComplexRecord* x, Count n, const FirNarrowband* filter,
                                  ComplexRecord* y) noexcept;

}  // namespace quorvan

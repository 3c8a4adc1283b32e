// FIR design by windows: the ideal impulse response of a lowpass, highpass, bandpass or bandstop, cut and windowed.
//
// Frequencies are in the unit of fs; lowpass and highpass take their edge from fl and ignore fh. h holds `taps`
// coefficients, symmetric about the middle, and is undefined after an error. Statuses, in this order: -20061 for a kind
// above 3, -20021 for taps below 1, -20020 for an edge above fs/2, -20023 for one that is not positive, for fl >= fh
// and for fs <= 0, -20033 for an even highpass or bandstop; then those of the window.
#pragma once

#include "filters/iir_kind.h"
#include "frame/types.h"

namespace quorvan {

Status FirIdealResponse(std::uint32_t kind, double fs, double fl, double fh, Count taps, double* h) noexcept;

// The symmetric window of a QV_WINDOW_... code; one tap is left as it is.
Status FirDesignWindow(std::uint32_t kind, double fs, double fl, double fh, Count taps, std::int32_t window,
                       double parameter, double* h) noexcept;

// The short codes: 1 rectangular, 2 triangle, 3 Hanning, 4 Hamming, 5 Blackman, any other Hamming.
Status FirDesignChoice(std::uint32_t kind, double fs, double fl, double fh, Count taps, std::int32_t choice,
                       double* h) noexcept;

// A negative beta stands for 4.5.
Status FirDesignKaiser(std::uint32_t kind, double fs, double fl, double fh, Count taps, double beta,
                       double* h) noexcept;

}  // namespace quorvan

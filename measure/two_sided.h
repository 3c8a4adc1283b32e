// Two-sided spectra in split real arrays of n bins each, and their inverses.
//
// Forward transforms are unscaled, the inverses carry 1/n, and power spectra carry 1/n^2.
#pragma once

#include "frame/types.h"
#include "transforms/fft_plan.h"

namespace quorvan {

// x becomes the real part of its spectrum.
Status SpecRealFft(double* x, double* im, Count n) noexcept;

// The inverse: re becomes the record. Only the bins up to n/2 of re and the ones above it of im are read.
Status SpecRealInverseFft(double* re, double* im, Count n) noexcept;

Status SpecComplexInverseFft(double* re, double* im, Count n) noexcept;
// The same with a plan that the caller holds, and with 2n doubles of work.
Status ComplexInverseWith(const FftPlan* plan, double* re, double* im, Count n, double* work) noexcept;

// x[k] = |X[k]|^2 / n^2, in place.
Status SpecAutoPower(double* x, Count n) noexcept;

// conj(X[k]) Y[k] / n^2.
Status SpecCrossPower(const double* x, const double* y, Count n, double* re, double* im) noexcept;

}  // namespace quorvan

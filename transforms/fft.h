// The transform cores. All work from a plan, take no lock and change nothing but output and workspace.
//
// Forward: X[k] = sum over j of x[j] exp(-2 pi i j k / n), unscaled; the inverses carry 1/n. Strides count doubles:
// an interleaved array p of records is (p, p + 1) with stride 2. The real result is HalfComplex: Re X[k] at k up to
// n/2, Im X[k] at n - k.
//
// Statuses: -20001 when the workspace of a prime factor cannot be had; a plan of another size gives -1 from the
// complex cores and -20999 from the real ones, which no export lets happen.
#pragma once

#include "frame/types.h"
#include "transforms/fft_plan.h"

namespace quorvan {

// Input and output must not overlap.
Status FftComplex(const FftPlan* plan, const double* inRe, const double* inIm, double* outRe, double* outIm,
                  Count inStride, Count outStride, Count n) noexcept;
Status FftComplexInverse(const FftPlan* plan, const double* inRe, const double* inIm, double* outRe, double* outIm,
                         Count inStride, Count outStride, Count n) noexcept;

// n reals into HalfComplex. Input and output must not overlap.
Status FftReal(const FftPlan* plan, const double* in, double* out, Count inStride, Count outStride, Count n) noexcept;

// n reals into all n bins as records, or in shifted order with X[0] at n / 2, by a plan that is made for spectra; of
// even n for half the work of a complex transform. The input may be the second half of the output.
Status FftSpectrum(const FftPlan* plan, const double* x, bool shift, double* out) noexcept;

// HalfComplex into n reals. The input is destroyed.
Status FftRealInverse(const FftPlan* plan, double* in, double* out, Count inStride, Count outStride, Count n) noexcept;

}  // namespace quorvan

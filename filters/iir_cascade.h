// The sample loops of a cascade of recursive stages, each with one delay line (direct form II), and what stands before
// them: the check of the filter's record and the pending reset.
//
// Statuses, in this order: -20066 for counts that do not fit together, -20003 for n below 1. y may be x.
#pragma once

#include "filters/iir_filter.h"

namespace quorvan {

// A pending reset is done, and its mark cleared, before n is tested. The kind plays no part: the counts tell the width.
Status IirCascadePrepare(IirFilter& filter, const double* x, Count n, double* y) noexcept;
Status IirCascadePrepareComplex(IirFilter& filter, const IirStateComplex& state, const ComplexRecord* x, Count n,
                                ComplexRecord* y) noexcept;

// Of each stage, with its delay line d and the sample v:
//
//     t = v - a[0] d[0] - a[1] d[1] - ...,    v = t b[0] + b[1] d[0] + b[2] d[1] + ...,
//
// from the left; then t enters the delay line. What enters a delay line or leaves the last stage becomes 0 where its
// magnitude is DBL_MIN or less, so that a decaying response ends in zeros and never runs on denormals. The real and the
// imaginary part of complex samples are filtered and tested one by one.
Status IirCascadeRun(Count width, Count stages, const double* x, Count n, const double* a, Count aCount,
                     const double* b, Count bCount, double* state, double* y) noexcept;
Status IirCascadeRunComplex(Count width, Count stages, const ComplexRecord* x, Count n, const double* a, Count aCount,
                            const double* b, Count bCount, ComplexRecord* state, ComplexRecord* y) noexcept;

// IirCascadePrepare on a copy of the record, from which the mark of the reset comes back.
Status IirCascadeApply(const double* x, Count n, IirFilter* filter, double* y) noexcept;
Status IirCascadeApplyComplex(const ComplexRecord* x, Count n, IirFilter* filter, const IirStateComplex* state,
                              ComplexRecord* y) noexcept;

}  // namespace quorvan

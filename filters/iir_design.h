// Design of recursive filters: into a filter object, or into the two polynomials of a transfer function.
#pragma once

#include "filters/iir_filter.h"
#include "filters/iir_prototypes.h"

namespace quorvan {

// What is asked of a filter. The lowpass and highpass have their cutoff in fl.
struct IirSpecification {
    double fs, fl, fh;
    double ripple = 0, attenuation = 0;  // in dB, where the family has them
};

// -20024, -20025, -20028: the levels of the families that have them.
Status IirCheckLevels(IirFamily family, const IirSpecification& wanted) noexcept;

// Kind and order are those of the filter; its coefficients are written, and nothing else. After a failure nothing is.
// In this order: -20021 order, -20023 frequencies, -20025 attenuation of the inverse Chebyshev family, -20020
// frequencies above fs/2, -20024, -20025, -20028 levels, -20061 kind, -20066 too few coefficients; then the failures of
// IirPrototypeSections.
Status IirDesign(IirFamily family, IirSpecification wanted, IirFilter& filter) noexcept;

// The design as b(z) / a(z), with a[0] = 1: see IirToDirectForm, whose statuses follow those of the design. -20001 for
// a kind or an order that no filter has.
Status IirCoefficients(IirFamily family, Count kind, Count order, const IirSpecification& wanted, double* a,
                       Count aSize, double* b, Count bSize) noexcept;

// The stages of a filter multiplied up: order + 1 coefficients each, 2 order + 1 of a band kind; what lies behind them
// is not written. -20066 for a null filter, counts that do not fit or arrays that are too short, -20021, -20061,
// -20001.
Status IirToDirectForm(const IirFilter* filter, double* a, Count aSize, double* b, Count bSize) noexcept;

}  // namespace quorvan

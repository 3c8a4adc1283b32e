// Filtering of one array from a state of rest, design and all. A null y stands for x; otherwise x stays as it is.
//
// The two forms differ in their checks, in their arithmetic and in what they need, deliberately.
#pragma once

#include "filters/iir_design.h"

namespace quorvan {

// All families but Bessel: the sections of the prototype follow one another over the whole array, each in direct form
// I, without a flush of denormals and without memory. Statuses, in this order: -20003, -20021, -20023, then the levels,
// and -20020 at last. A cutoff of fs/2 passes.
Status IirFilterSections(IirFamily family, std::uint32_t kind, double* x, Count n, const IirSpecification& wanted,
                         Count order, double* y) noexcept;

// A filter object is created, designed and applied: -20021, -20001, the statuses of IirDesign, and those of the
// cascade.
Status IirFilterObject(IirFamily family, std::uint32_t kind, double* x, Count n, const IirSpecification& wanted,
                       Count order, double* y) noexcept;
Status IirFilterObjectComplex(IirFamily family, std::uint32_t kind, ComplexRecord* x, Count n,
                              const IirSpecification& wanted, Count order, ComplexRecord* y) noexcept;

}  // namespace quorvan

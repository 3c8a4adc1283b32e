// The roots of a real polynomial, with multiple roots kept together.
#pragma once

#include "frame/types.h"

namespace quorvan {

// `c` has n coefficients in ascending powers; the distinct roots and their multiplicities have room for n - 1. Zero
// roots come last. -20003 for n below 1, -20063 for coefficients that do not pass MatScreen, -20111 for zeros alone,
// -20021 for a constant, -20062, -20001.
Status PolyRootsCore(const double* c, Count n, ComplexRecord* roots, Count* multiplicities, Count* count) noexcept;

// The same, each root as often as its multiplicity says.
Status PolyRootsReal(const double* c, Count n, ComplexRecord* roots) noexcept;

}  // namespace quorvan

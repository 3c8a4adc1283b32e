// The roots of a complex polynomial with their multiplicities.
#pragma once

#include "frame/types.h"

namespace quorvan {

// `c` has n coefficients in ascending powers. Each root comes as often as its multiplicity says, the root 0 last.
// -20003 for n below 1, -20063 for coefficients that do not pass MatScreen, -20111 for zeros alone, -20021 for a
// constant, -20062 when the refinement does not converge, -20001.
Status PolyRootsMultiple(const ComplexRecord* c, Count n, ComplexRecord* roots) noexcept;

}  // namespace quorvan

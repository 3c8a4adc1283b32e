// Removal of the jumps by whole periods from a phase.
#pragma once

#include "frame/types.h"

namespace quorvan {

// Mode 0 works in radians, 2 in degrees; 1 takes radians and gives degrees, 3 the reverse; any other mode is mode 0.
// n below 1 gives -20003.
Status SpecUnwrapPhase(double* phase, Count n, std::uint32_t mode) noexcept;

}  // namespace quorvan

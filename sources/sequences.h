// Deterministic sequences that fill [0, 1) evenly. Their parameter is taken at the first call of a thread and at a
// reset; other calls go on with the one they have, whatever is given.
#pragma once

#include "frame/types.h"

namespace quorvan {

// The van der Corput radical inverse of consecutive integers.
Status GenHaltonSequence(Count n, std::int32_t base, std::int32_t reset, double* out) noexcept;

// The multiples of a step modulo 1, accumulated.
Status GenWeylSequence(Count n, double step, std::int32_t reset, double* out) noexcept;

}  // namespace quorvan

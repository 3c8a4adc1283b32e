// Integration of sampled data.
#pragma once

#include <cstdint>

#include "frame/status.h"
#include "frame/types.h"

namespace quorvan {

// The integral of n samples at distance |dt| by a closed rule of R. Cotes (1722): 0 trapezoid, 1 Simpson, 2 Simpson's
// 3/8, 3 Boole. As many whole panels as fit; the intervals left over at the end go through the next lower rule.
Status IntegrateSamples(const double* x, Count n, double dt, std::uint32_t rule, double* result) noexcept;

}  // namespace quorvan

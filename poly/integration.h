// The integral of equally spaced samples.
#pragma once

#include "frame/types.h"

namespace quorvan {

// Closed Newton-Cotes rules over as many whole panels as fit; what is left goes through the next lower rule that fits.
// Rules: 0 trapezoid, 1 Simpson, 2 Simpson's 3/8, 3 Boole; others -20061. The step is |dt|. -20008 for fewer than
// rule + 2 samples; nothing is written then.
Status IntegrateSamples(const double* x, Count n, double dt, std::uint32_t rule, double* result) noexcept;

}  // namespace quorvan

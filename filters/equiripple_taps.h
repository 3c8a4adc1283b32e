// From the extremal points of a finished exchange to the coefficients of the filter.
#pragma once

#include "filters/equiripple_exchange.h"

namespace quorvan {

// -20001 for exhausted memory; h is written on success alone.
Status RemezTaps(const RemezRequest& request, const RemezGrid& grid, const RemezInterpolant& form, double* h) noexcept;

}  // namespace quorvan

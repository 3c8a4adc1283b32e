// Operations on real arrays. Null outputs and aliasing are as each export's documentation tells.
#pragma once

#include "frame/types.h"

namespace quorvan {

Status ArrAdd(const double* x, const double* y, Count n, double* out) noexcept;

}  // namespace quorvan

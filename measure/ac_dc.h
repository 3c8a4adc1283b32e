// The alternating and the direct part of a signal.
#pragma once

#include "frame/types.h"

namespace quorvan {

// Root mean square of what varies, and mean, estimated under a Hanning window so that broken periods do little harm.
Status SpecAcDcEstimate(const double* x, Count n, double* ac, double* dc) noexcept;

}  // namespace quorvan

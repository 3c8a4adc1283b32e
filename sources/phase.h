// The phase of a periodic wave.
#pragma once

#include <cmath>

#include "frame/targets.h"

namespace quorvan {

// The phase in [0, 360).
QV_INLINE double NormalizedPhase(double phase) noexcept {
    double x = phase - std::floor(phase / 360.0) * 360.0;
    x = x < 0.0 ? x + 360.0 : x;
    return x == 360.0 ? 0.0 : x;
}

}  // namespace quorvan

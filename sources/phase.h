// The phase of a periodic wave.
#pragma once

#include <cmath>

namespace quorvan {

// The phase in [0, 360). Internal linkage, because units for several instruction sets include it.
static inline double NormalizedPhase(double phase) noexcept {
    double x = phase - std::floor(phase / 360.0) * 360.0;
    x = x < 0.0 ? x + 360.0 : x;
    return x == 360.0 ? 0.0 : x;
}

}  // namespace quorvan

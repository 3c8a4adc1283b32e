// Sine and cosine of multiples of pi.
#pragma once

#include <cmath>

#include "frame/types.h"

namespace quorvan {

struct SineCosine {
    double sine, cosine;
};

// sin(pi v) and cos(pi v), reduced before the product: exact zeros and ones where the true values are.
inline SineCosine SinCosPi(double v) noexcept {
    const double r = std::fmod(v, 2), quarters = std::nearbyint(2 * r), f = kPi * (r - 0.5 * quarters);
    const double s = f == 0 ? 0 : std::sin(f), c = f == 0 ? 1 : std::cos(f);
    switch (static_cast<int>(quarters) & 3) {
        case 0: return {s, c};
        case 1: return {c, 0 - s};
        case 2: return {0 - s, -c};
        default: return {-c, s};
    }
}

}  // namespace quorvan

// The product of samples and a window's factors, for both kinds of sample.
#pragma once

#include "frame/types.h"

namespace quorvan {

inline void Scale(double& sample, double factor) noexcept { sample *= factor; }
inline void Scale(ComplexRecord& sample, double factor) noexcept {
    sample.re *= factor;
    sample.im *= factor;
}

// The inner pairs of a periodic window: x[k] and x[n - k] by factor(k), k = 1 to (n - 1) / 2. x[0] and, for even n,
// x[n / 2] stand alone and are left to the caller.
template <class T, class Factor>
void ScalePairs(T* x, Count n, Factor factor) noexcept {
    for (Count k = 1; k <= (n - 1) / 2; ++k) {
        const double w = factor(k);
        Scale(x[k], w);
        Scale(x[n - k], w);
    }
}

}  // namespace quorvan

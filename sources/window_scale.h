// The product of a sample and a window's factor, for both kinds of sample.
#pragma once

#include "frame/types.h"

namespace quorvan {

inline void Scale(double& sample, double factor) noexcept { sample *= factor; }
inline void Scale(ComplexRecord& sample, double factor) noexcept {
    sample.re *= factor;
    sample.im *= factor;
}

inline void Multiply(double* x, const double* w, Count n) noexcept {
    for (Count i = 0; i < n; ++i) Scale(x[i], w[i]);
}

}  // namespace quorvan

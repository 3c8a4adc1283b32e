// Derivatives of sampled data by differences.
#pragma once

#include "frame/types.h"

namespace quorvan {

// Methods: 0 central of second order, 1 central of fourth order, 2 forward, 3 backward. In front of the array stand 1,
// 2, 0, 1 initial values, behind it 1, 2, 1, 0 final ones. A null out means x.
Status DifferentiateMethod(double* x, Count n, double dt, const double* initial, Count nInitial, const double* final,
                           Count nFinal, std::uint32_t method, double* out) noexcept;

// Method 0 with one value at either end.
Status Differentiate(double* x, Count n, double dt, double initial, double final, double* out) noexcept;

}  // namespace quorvan

// Hartley and Hilbert transforms of reals, in place. -20003 for n below 1, -20001 for exhausted memory.
#pragma once

#include "frame/types.h"

namespace quorvan {

// X[k] = sum over j of x[j] (cos + sin)(2 pi j k / n); the inverse is the same times 1/n.
Status TransformHartley(double* x, Count n) noexcept;
Status TransformInverseHartley(double* x, Count n) noexcept;

// Multiplies the positive frequencies by -i: a cosine becomes a sine. The mean and the component at n / 2 vanish.
Status TransformHilbert(double* x, Count n) noexcept;
Status TransformInverseHilbert(double* x, Count n) noexcept;

}  // namespace quorvan

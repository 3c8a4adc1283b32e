// The element-wise loops of the array primitives, compiled for each instruction set.
#pragma once

#include "frame/targets.h"
#include "frame/types.h"

namespace quorvan {

struct ArrayLoops {
    void (*add)(const double* x, const double* y, Count n, double* out);
};
QV_DECLARE_TARGETS(ArrayLoops, kArrayLoops)

}  // namespace quorvan

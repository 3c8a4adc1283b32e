// The sort of doubles without NaN, compiled for each instruction set.
#pragma once

#include "frame/targets.h"
#include "frame/types.h"

namespace quorvan {

struct ArraySort {
    void (*ascending)(double* x, Count n);
};
QV_DECLARE_TARGETS(ArraySort, kArraySort)

}  // namespace quorvan

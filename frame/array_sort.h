// The sort of doubles without NaN, compiled for each instruction set.
#pragma once

#include "frame/targets.h"
#include "frame/types.h"

namespace quorvan {

struct ArraySort {
    // `levels` bounds the depth of division; what is still long then is left to heapsort.
    void (*ascending)(double* x, Count n, int levels);
};
QV_DECLARE_TARGETS(ArraySort, kArraySort)

}  // namespace quorvan

// The weighted sums over past inputs that every direct-form filter makes, compiled for each instruction set.
#pragma once

#include "frame/targets.h"
#include "frame/types.h"

namespace quorvan {

// So many doubles in front of a block repeat the end of the history, so that a register may reach across the seam.
inline constexpr Count kFirPrefix = 32;

struct FirLoops {
    // out[d] = b[0] recent[d] + b[1] recent[d - stride] + ..., the terms added in this order, for 0 <= d < doubles.
    // recent[-1], recent[-2], ... continue as the end of history[stride (nb - 1)], which is read directly beyond
    // kFirPrefix. Stride 1 is real data, 2 interleaved complex. `out` does not overlap the inputs.
    void (*run)(const double* recent, const double* history, const double* b, Count nb, Count stride, Count doubles,
                double* out);
};
QV_DECLARE_TARGETS(FirLoops, kFirLoops)

}  // namespace quorvan

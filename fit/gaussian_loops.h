// The passes of the Gaussian fit over its samples, compiled for each instruction set.
#pragma once

#include "frame/targets.h"
#include "frame/types.h"

namespace quorvan {

struct GaussianLoops {
    // exp(-((x - c1) / c2)² / 2), to one unit in the last place.
    void (*shape)(const double* x, Count n, const double* c, double* shape);
    // The sums of r dy/dc over the samples, each eighth to one partial sum, with r = (y - c0·shape) |w| and dy/dc0 =
    // shape, dy/dc1 = c0 (x - c1) shape / c2², dy/dc2 = dy/dc1 (x - c1) / c2. weights may be null.
    void (*gradient)(const double* x, const double* y, const double* weights, const double* shape, Count n,
                     const double* c, double* gradient);
};
QV_DECLARE_TARGETS(GaussianLoops, kGaussianLoops)

}  // namespace quorvan

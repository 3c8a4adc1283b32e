// The passes of the Gaussian fit over its samples, compiled for each instruction set.
#pragma once

#include "frame/targets.h"
#include "frame/types.h"

namespace quorvan {

struct GaussianSamples {
    const double* x;
    const double* y;
    const double* weights;  // by magnitude; null: all 1
    double* shape;          // exp(-((x - c1) / c2)² / 2), to one unit in the last place
    Count n;
};

// Sums take each eighth term to one of eight partial sums.
struct GaussianLoops {
    // Makes the shape, and adds up |w| ((f - 2y) f + y²) with f = c0·shape. Soon after the sum exceeds `enough` it is
    // left as it is, and the shape unfinished.
    double (*error)(const GaussianSamples& samples, const double* c, double enough);
    // The sums of r dy/dc over the samples, with r = (y - c0·shape) |w| and dy/dc0 = shape, dy/dc1 = c0 (x - c1) shape
    // / c2², dy/dc2 = dy/dc1 (x - c1) / c2.
    void (*gradient)(const GaussianSamples& samples, const double* c, double* gradient);
};
QV_DECLARE_TARGETS(GaussianLoops, kGaussianLoops)

}  // namespace quorvan

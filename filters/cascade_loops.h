// The loop over the samples of a cascade of recursive stages, compiled for each instruction set.
#pragma once

#include "frame/targets.h"
#include "frame/types.h"

namespace quorvan {

// Stage s has the feedback coefficients a[s width ...] and the feedforward coefficients b[s (width + 1) ...].
struct CascadeStages {
    Count width, stages;  // width 2 or 4
    const double* a;
    const double* b;
};

// As IirCascadeRun tells it, bit for bit on every instruction set. n is at least 1; y may be x.
struct CascadeLoops {
    void (*reals)(CascadeStages cascade, const double* x, Count n, double* state, double* y);
    void (*records)(CascadeStages cascade, const ComplexRecord* x, Count n, ComplexRecord* state, ComplexRecord* y);
};
QV_DECLARE_TARGETS(CascadeLoops, kCascadeLoops)

}  // namespace quorvan

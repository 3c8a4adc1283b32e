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

// Bit for bit the same on every instruction set. n is at least 1; y may be x.
struct CascadeLoops {
    // As IirCascadeRun tells it.
    void (*reals)(CascadeStages cascade, const double* x, Count n, double* state, double* y);
    void (*records)(CascadeStages cascade, const ComplexRecord* x, Count n, ComplexRecord* state, ComplexRecord* y);
    // Direct form I from rest and without a flush: each stage turns v into y[t] = b0 v[t] + b1 v[t-1] + ... - a1 y[t-1]
    // - a2 y[t-2] - ..., from the left.
    void (*from_rest)(CascadeStages cascade, const double* x, Count n, double* y);
};
QV_DECLARE_TARGETS(CascadeLoops, kCascadeLoops)

}  // namespace quorvan

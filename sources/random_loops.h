// The sample loops of the random core and of the Weyl sequence, compiled for each instruction set.
#pragma once

#include "frame/targets.h"
#include "frame/thread_state.h"
#include "frame/types.h"

namespace quorvan {

struct RandomLoops {
    // out[i] = RngUniform.
    void (*uniform)(RngStream* stream, Count n, double* out);
    // out[i] = (RngUniform - 0.5) gain.
    void (*white)(RngStream* stream, Count n, double gain, double* out);
    // out[i] = the fraction of value + i step, accumulated; returns the value behind the last.
    double (*weyl)(double value, double step, Count n, double* out);
};
QV_DECLARE_TARGETS(RandomLoops, kRandomLoops)

}  // namespace quorvan

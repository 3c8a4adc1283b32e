// The sample loops of the waves with straight edges, compiled for each instruction set.
#pragma once

#include "frame/targets.h"
#include "frame/types.h"

namespace quorvan {

// Sample 0 has the phase itself; sample i has i * 360 * freq + phase, a fresh product, so that rounding does not pile
// up.
struct WaveLoops {
    void (*triangle)(Count n, double amp, double freq, double phase, double* out);
    void (*sawtooth)(Count n, double amp, double freq, double phase, double* out);
    // `edge` in degrees: amp before it, -amp from there on.
    void (*square)(Count n, double amp, double freq, double phase, double edge, double* out);
};
QV_DECLARE_TARGETS(WaveLoops, kWaveLoops)

}  // namespace quorvan

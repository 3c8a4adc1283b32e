// The shape of a single pulse: levels, delay, width, rise and fall.
#pragma once

#include "frame/types.h"

namespace quorvan {

struct PulseShape {
    double amplitude, level90, level50, level10, top, base, overshoot, undershoot;
    double delay, width, rise, fall;  // samples, interpolated
    double slew;                      // unit of x per sample
};

// -20003 for n below 1. Times that cannot be found are whatever the formulas give, NaN for a constant signal.
Status PulseParameters(const double* x, Count n, PulseShape* shape) noexcept;

}  // namespace quorvan

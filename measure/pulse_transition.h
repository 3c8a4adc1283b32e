// One edge of a pulse train: its timing and slew rate, and the ringing before and behind it.
#pragma once

#include "measure/pulse_levels.h"

namespace quorvan {

// In percent of the distance between the modes; 0 for what stays within the bin of the mode.
struct Excursion {
    double undershoot, overshoot;
};

struct EdgeMeasurement {
    double slew, duration;         // unit of x per sample; samples
    double firstTime, secondTime;  // samples
    Excursion before, after;
};

// The edge number `edge`, from 1, of that slope. With `percent` the references are converted in place. What has been
// measured stays when a later step fails. -20323 for a number below 1, what the levels give, -20313 for references that
// do not descend, -20309 without a range, -20311 for exhausted memory, -20310 for too few edges, -20312 for a region
// without samples, -20326 for an edge without duration.
Status PulseTransition(const double* x, Count n, std::int32_t polarity, Count edge, ReferenceLevels* references,
                       bool percent, std::uint32_t method, HistogramRoom room, EdgeMeasurement* measured) noexcept;

}  // namespace quorvan

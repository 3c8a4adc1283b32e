// How far an interpolated filter is stretched: the factor with the least sum of the orders of its two stages.
#pragma once

#include "frame/types.h"

namespace quorvan {

// What is designed: a lowpass with edges e1 < e2, or a bandpass of these half widths about a centre. delta1 is the
// deviation of the passband, delta2 of the stopband.
struct NarrowbandRequest {
    double fs, e1, e2, center, delta1, delta2;
};

// Where the suppressor of a bandpass stands among the images of the model: its passband may be the lowest image (1),
// the highest (the factor), or one between.
struct NarrowbandPlan {
    double factor = 1;
    double model_order = 0, suppressor_order = 0;  // truncated; not yet known to fit an int32
    double center = 0;                             // of the model's band
    double image = 1;
    double transition = 0;  // width that the suppressor may use
};

NarrowbandPlan FirNarrowbandFactor(const NarrowbandRequest& request) noexcept;
NarrowbandPlan FirNarrowbandFactorBand(const NarrowbandRequest& request) noexcept;

}  // namespace quorvan

// Level crossings with hysteresis, in blocks of an endless signal.
//
// A channel must first be armed by a sample beyond level -+ |hysteresis| on the side it comes from; a later sample at
// the level or beyond then fires. Slope 1 rises, 0 falls, any other never fires. Each block is searched up to its first
// crossing; what stands behind is not looked at.
#pragma once

#include "frame/types.h"

namespace quorvan {

// One channel. `index` is -1 and `found` 0 where nothing fired.
Status DetectLevelCrossing(const double* x, Count n, double level, double hysteresis, std::int32_t slope,
                           std::int32_t reset, Count* index, std::int32_t* found) noexcept;

// Each channel is a row of n samples.
Status DetectLevelCrossings(const double* x, Count channels, Count n, const double* levels, const double* hysteresis,
                            const std::int32_t* slopes, std::int32_t reset, Count* indices,
                            std::int32_t* found) noexcept;

}  // namespace quorvan

// Crossings of one level, with hysteresis.
#pragma once

#include "frame/types.h"

namespace quorvan {

enum Slope : std::int32_t { kFalling = 0, kRising = 1 };

struct CrossingRecord {
    double time;  // in samples, interpolated
    std::int32_t slope;
    Count index;  // of the sample just after the crossing
};

// Where the line from sample i to sample i + 1 meets the level, in samples. A level line is met at its start.
inline double CrossingTime(const double* x, Count i, double level) noexcept {
    const double fall = x[i] - x[i + 1];
    return (x[i] - level) / (fall == 0 ? 1.0 : fall) + i;
}

inline bool Crosses(const double* x, Count i, double level) noexcept {
    return (x[i + 1] - level) * (x[i] - level) <= 0;
}

// The first `limit` crossings of mid. Each must be armed by a move to the other side of mid - hysteresis to
// mid + hysteresis, limits included. -20308 for fewer.
Status CrossingFind(const double* x, Count n, double mid, double hysteresis, CrossingRecord* records,
                    Count limit) noexcept;

}  // namespace quorvan

#include "measure/transitions.h"

#include "frame/status.h"

namespace quorvan {

Status TransitionFind(const double* x, Count n, double low, double high, TransitionRecord* records, Count limit,
                      Count* found) noexcept {
    *found = 0;
    if (low >= high) return status::kReferenceLevelsNotDescending;
    enum : unsigned { kStarted = 1, kLowCrossed = 2, kHighCrossed = 4, kComplete = 7 };
    enum { kUnknown, kLow, kHigh } state = kUnknown;
    unsigned progress = 0;
    TransitionRecord edge{};
    for (Count i = 0; i < n - 1 && *found < limit; ++i) {
        if (x[i] >= high && state != kHigh) {
            state = kHigh;
            progress |= kStarted;
        } else if (x[i] <= low && state != kLow) {
            state = kLow;
            progress |= kStarted;
        }
        if (!(progress & kStarted)) continue;
        // Of several crossings of a level the last one before the edge is complete counts.
        if (Crosses(x, i, low)) {
            edge.lowIndex = i + 1;
            edge.lowTime = CrossingTime(x, i, low);
            progress |= kLowCrossed;
        }
        if (Crosses(x, i, high)) {
            edge.highIndex = i + 1;
            edge.highTime = CrossingTime(x, i, high);
            progress |= kHighCrossed;
        }
        if (progress != kComplete) continue;
        const bool rises = state == kLow;
        edge.firstIndex = rises ? edge.lowIndex : edge.highIndex;
        edge.secondIndex = rises ? edge.highIndex : edge.lowIndex;
        edge.firstTime = rises ? edge.lowTime : edge.highTime;
        edge.secondTime = rises ? edge.highTime : edge.lowTime;
        edge.slope = rises ? kRising : kFalling;
        records[(*found)++] = edge;
        progress = 0;
    }
    return status::kSuccess;
}

}  // namespace quorvan

#include "measure/crossings.h"

#include "frame/status.h"

namespace quorvan {

Status CrossingFind(const double* x, Count n, double mid, double hysteresis, CrossingRecord* records,
                    Count limit) noexcept {
    const double upper = mid + hysteresis, lower = mid - hysteresis;
    enum { kUnknown, kLow, kHigh } state = kUnknown;
    bool armed = false;
    Count found = 0;
    for (Count i = 0; i < n - 1 && found < limit; ++i) {
        if (x[i] >= upper && state != kHigh) {
            state = kHigh;
            armed = true;
        } else if (x[i] <= lower && state != kLow) {
            state = kLow;
            armed = true;
        } else if (!armed) {
            continue;
        }
        if (!Crosses(x, i, mid)) continue;
        records[found++] = {CrossingTime(x, i, mid), state == kLow ? kRising : kFalling, i + 1};
        armed = false;
    }
    return found < limit ? status::kTooFewCrossings : status::kSuccess;
}

}  // namespace quorvan

#include "measure/pulse_parameters.h"

#include <utility>

#include "frame/arrays.h"
#include "frame/status.h"
#include "stats/histogram.h"

namespace quorvan {
namespace {

constexpr Count kBins = 101;

// Base and top are the centres of the fullest bins, looked for from both ends; of equally full ones the outermost.
// The bin in the middle, where the walks meet, counts for the top only.
void FindBaseAndTop(const double* x, Count n, double min, double max, PulseShape* shape) {
    Count counts[kBins];
    double centres[kBins];
    StatHistogram(x, n, min, max, counts, centres, kBins);
    Count base = 0, top = kBins - 1;
    for (Count low = 1, high = kBins - 2; low <= high; ++low, --high) {
        if (low < high && counts[low] > counts[base]) base = low;
        if (counts[high] > counts[top]) top = high;
    }
    shape->base = centres[base];
    shape->top = centres[top];
    shape->amplitude = shape->top - shape->base;
    shape->overshoot = max - shape->top;
    shape->undershoot = shape->base - min;
}

// The record, upside down for a pulse that goes down.
struct Pulse {
    const double* x;
    double sign;

    double operator[](Count i) const { return sign * x[i]; }
    // Where the line that ends at sample i meets the level. No line ends at the first sample.
    double cross(Count i, double level) const {
        if (i == 0) return 0;
        return i - ((*this)[i] - level) / ((*this)[i] - (*this)[i - 1]);
    }
};

void FindTimes(Pulse pulse, Count n, double low, double mid, double high, PulseShape* shape) {
    // The last sample ends every walk and is never taken as a crossing.
    const Count last = n - 1;
    Count i = 0, lastLow = 0, lastHigh = 0;
    for (; i < last && pulse[i] < mid; ++i)
        if (pulse[i] < low) lastLow = i;
    shape->delay = i < last ? pulse.cross(i, mid) : last;

    while (i < last && pulse[i] < high) ++i;
    shape->rise = i < last ? pulse.cross(i, high) - pulse.cross(lastLow + 1, low) : last - lastLow + 1;

    for (; i < last && pulse[i] > mid; ++i)
        if (pulse[i] > high) lastHigh = i;
    shape->width = (i < last ? pulse.cross(i, mid) : last) - shape->delay;

    while (i < last && pulse[i] > low) ++i;
    shape->fall = i < last ? pulse.cross(i, low) - pulse.cross(lastHigh + 1, high) : last - lastHigh + 1;
}

}  // namespace

Status PulseParameters(const double* x, Count n, PulseShape* shape) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    double max = x[0], min = x[0];
    Count at;
    // NaN is passed over, unless the record begins with it.
    if (x[0] == x[0]) ArrMaxMin(x, n, &max, &at, &min, &at);
    const bool constant = max == min;
    if (constant) {
        shape->amplitude = shape->overshoot = shape->undershoot = 0;
        shape->top = shape->base = x[0];
    } else {
        FindBaseAndTop(x, n, min, max, shape);
    }
    shape->level10 = shape->base + 0.1 * shape->amplitude;
    shape->level50 = shape->base + 0.5 * shape->amplitude;
    shape->level90 = shape->base + 0.9 * shape->amplitude;

    if (constant) {
        shape->delay = shape->width = shape->rise = shape->fall = __builtin_nan("");
    } else if (x[0] > shape->level50) {
        shape->amplitude = -shape->amplitude;
        std::swap(shape->top, shape->base);
        FindTimes({x, -1}, n, -shape->level90, -shape->level50, -shape->level10, shape);
    } else {
        FindTimes({x, 1}, n, shape->level10, shape->level50, shape->level90, shape);
    }
    shape->slew = shape->rise == 0 ? 1e+30 : 0.8 * shape->amplitude / shape->rise;
    return status::kSuccess;
}

}  // namespace quorvan

#include "stats/histogram.h"

#include <cstring>

#include "frame/memory.h"
#include "frame/status.h"

namespace quorvan {

Status StatHistogramCheck(Count n, double base, double top, Count intervals) noexcept {
    if (base > top) return status::kTopNotAboveBase;
    if (n < 1) return status::kSamplesNotPositive;
    if (intervals < 1) return status::kSamplesNotPositive;
    return status::kSuccess;
}

Status StatHistogram(const double* x, Count n, double base, double top, Count* counts, double* centres,
                     Count intervals) noexcept {
    const Status refused = StatHistogramCheck(n, base, top, intervals);
    if (refused < 0) return refused;

    std::memset(counts, 0, sizeof(Count) * static_cast<std::size_t>(intervals));
    if (base == top) {
        for (Count k = 0; k < intervals; ++k) centres[k] = base;
        // Deliberate: an empty range holds all samples, even those that differ from it.
        counts[intervals - 1] = n;
        return status::kSuccess;
    }

    const double width = (top - base) / intervals;
    double centre = width * 0.5 + base;
    for (Count k = 0; k < intervals; ++k, centre += width) centres[k] = centre;

    const double binsPerUnit = intervals / (top - base);
    for (Count i = 0; i < n; ++i) {
        // In [0, intervals) the bin number, its floor, is the truncated value; NaN fails both tests.
        const double bin = (x[i] - base) * binsPerUnit;
        if (bin >= 0 && bin < intervals)
            ++counts[static_cast<Count>(bin)];
        else if (x[i] == top)
            ++counts[intervals - 1];
    }
    return status::kSuccess;
}

Status StatModeOfHistogram(const double* x, Count n, double base, double top, Count intervals, double* mode) noexcept {
    if (intervals < 1) return status::kSamplesNotPositive;
    Block<Count> counts(intervals);
    Block<double> centres(intervals);
    if (!counts || !centres) return status::kOutOfMemory;
    const Status counted = StatHistogram(x, n, base, top, counts, centres, intervals);
    if (counted < 0) return counted;

    Count fullest = 0;
    for (Count k = 1; k < intervals; ++k)
        if (counts[k] > counts[fullest]) fullest = k;
    *mode = centres[fullest];
    return status::kSuccess;
}

}  // namespace quorvan

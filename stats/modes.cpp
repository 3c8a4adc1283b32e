#include "stats/modes.h"

#include <cmath>
#include <cstring>

#include "frame/arrays.h"
#include "frame/memory.h"
#include "frame/status.h"
#include "stats/histogram.h"

namespace quorvan {
namespace {

// The limit is relative to the first of the two, which is the start of a run or the maximum.
bool NearlyEqual(double reference, double value) noexcept {
    return std::fabs(reference - value) <= std::fabs(reference) * kEpsilon;
}

// The caller's list: counts every mode and stores those that fit.
class ModeList {
public:
    ModeList(double* modes, Count capacity, Count* found) noexcept
        : modes_(modes), capacity_(capacity), found_(found) {}
    void add(double mode) noexcept {
        if (*found_ < capacity_) modes_[*found_] = mode;
        ++*found_;
    }

private:
    double* modes_;
    Count capacity_;
    Count* found_;
};

// The end of the run of values that nearly equal the one at its start; not their neighbours: a slow drift ends a run.
Count RunEnd(const double* sorted, Count n, Count start) noexcept {
    Count end = start + 1;
    while (end < n && NearlyEqual(sorted[start], sorted[end])) ++end;
    return end;
}

Status ExactModes(const double* x, Count n, ModeList& list) noexcept {
    Block<double> sorted(n);
    if (!sorted) return status::kOutOfMemory;
    std::memcpy(sorted, x, sizeof(double) * static_cast<std::size_t>(n));
    ArrSort(sorted, n, 0, nullptr);
    if (NearlyEqual(sorted[0], sorted[n - 1])) {
        list.add(sorted[0]);
        return status::kSuccess;
    }
    Count longest = 0;
    for (Count start = 0, end; start < n; start = end) {
        end = RunEnd(sorted, n, start);
        if (end - start > longest) longest = end - start;
    }
    if (longest < 2) return status::kSuccess;
    for (Count start = 0, end; start < n; start = end) {
        end = RunEnd(sorted, n, start);
        if (end - start == longest) list.add(sorted[start]);
    }
    return status::kSuccess;
}

Status BinnedModes(const double* x, Count n, Count intervals, ModeList& list) noexcept {
    double max, min;
    Count maxIndex, minIndex;
    ArrMaxMin(x, n, &max, &maxIndex, &min, &minIndex);
    if (NearlyEqual(max, min)) {
        list.add(max);
        return status::kSuccess;
    }
    Block<Count> counts(intervals);
    Block<double> centres(intervals);
    if (!counts || !centres) return status::kOutOfMemory;
    const Status counted = StatHistogram(x, n, min, max, counts, centres, intervals);
    if (counted < 0) return counted;
    Count largest = 0;
    for (Count k = 0; k < intervals; ++k)
        if (counts[k] > largest) largest = counts[k];
    if (largest < 2) return status::kSuccess;
    for (Count k = 0; k < intervals; ++k)
        if (counts[k] == largest) list.add(centres[k]);
    return status::kSuccess;
}

}  // namespace

Status StatModes(const double* x, Count n, Count intervals, double* modes, Count capacity, Count* count) noexcept {
    *count = 0;
    if (n < 1) return status::kSamplesNotPositive;
    if (n == 1) return status::kSuccess;
    ModeList list(modes, capacity, count);
    return intervals < 1 ? ExactModes(x, n, list) : BinnedModes(x, n, intervals, list);
}

}  // namespace quorvan

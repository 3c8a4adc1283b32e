#include "fit/sample_removal.h"

#include <algorithm>

#include "frame/memory.h"
#include "frame/status.h"

namespace quorvan {
namespace {

enum Mode : std::uint32_t { kByY, kByX, kByBoth };

// Outside of an open interval; the limits themselves are.
struct Interval {
    double low, high;

    explicit Interval(const double* limits)
        : low(std::min(limits[0], limits[1])), high(std::max(limits[0], limits[1])) {}
    bool leavesOut(double v) const { return v >= high || v <= low; }
};

// Calls `drop` for the index of each sample that goes; returns how many stay.
template <class Goes, class Drop>
Count Compact(const SampleArrays& samples, Count n, const Goes& goes, const Drop& drop) {
    Count kept = 0;
    for (Count i = 0; i < n; ++i) {
        if (goes(i)) {
            drop(i);
            continue;
        }
        samples.x[kept] = samples.x[i];
        samples.y[kept] = samples.y[i];
        if (samples.weights) samples.weights[kept] = samples.weights[i];
        ++kept;
    }
    return kept;
}

template <class Goes>
Removal RemoveWhere(const SampleArrays& samples, Count n, const Goes& goes, Size* removed, Count capacity) {
    Count going = 0;
    for (Count i = 0; i < n; ++i) going += goes(i);
    if (going > capacity) return {status::kTransformTooLarge, n - going};
    if (going == 0) return {status::kSamplesNotPositive, n};  // nothing to remove is an error: deliberate
    return {status::kSuccess, Compact(samples, n, goes, [&](Count i) { *removed++ = i; })};
}

Status CheckLimits(const double* limits, Count given, Count needed, Status too_few) {
    if (given < needed) return too_few;
    return std::any_of(limits, limits + needed, [](double v) { return v != v; }) ? status::kNonFiniteInput
                                                                                 : status::kSuccess;
}

}  // namespace

Removal FitRemoveOutOfRange(const SampleArrays& samples, Count n, std::uint32_t mode, const double* limits,
                            Count limitCount, Size* removed, Count capacity) noexcept {
    if (n < 1 || limitCount < 1) return {status::kSamplesNotPositive, 0};
    if (mode > kByBoth) return {status::kInvalidSelection, 0};
    if (mode == kByBoth) {
        if (Status failed = CheckLimits(limits, limitCount, 4, status::kSamplesBelowFour)) return {failed, 0};
        const Interval of_x(limits), of_y(limits + 2);
        const auto goes = [&](Count i) { return of_x.leavesOut(samples.x[i]) || of_y.leavesOut(samples.y[i]); };
        return RemoveWhere(samples, n, goes, removed, capacity);
    }
    if (Status failed = CheckLimits(limits, limitCount, 2, status::kSamplesBelowTwo)) return {failed, 0};
    const Interval interval(limits);
    const double* values = mode == kByY ? samples.y : samples.x;
    return RemoveWhere(
        samples, n, [&](Count i) { return interval.leavesOut(values[i]); }, removed, capacity);
}

Removal FitRemoveByIndex(const SampleArrays& samples, Count n, const Size* indices, Count count) noexcept {
    if (n < 1 || count < 1) return {status::kSamplesNotPositive, 0};
    for (Count k = 0; k < count; ++k)
        if (indices[k] < 0 || indices[k] >= n) return {status::kIndexOutOfRange, 0};
    Block<bool> goes(static_cast<std::size_t>(n));
    if (!goes) return {status::kOutOfMemory, 0};
    std::fill_n(goes.get(), n, false);
    for (Count k = 0; k < count; ++k) goes[indices[k]] = true;
    return {status::kSuccess, Compact(
                                  samples, n, [&](Count i) { return goes[i]; }, [](Count) {})};
}

}  // namespace quorvan

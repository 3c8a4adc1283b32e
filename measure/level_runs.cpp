#include "measure/level_runs.h"

#include "frame/status.h"

namespace quorvan {
namespace {

// The end of the run from sample i on. NaN is below every level.
Count RunEnd(const double* x, Count i, Count n, double threshold) {
    while (i < n && x[i] >= threshold) ++i;
    return i;
}

// Calls found(start, end) for each run.
template <class Found>
void WalkRuns(const double* x, Count from, Count n, double threshold, const Found& found) {
    for (Count i = from; i < n; ++i) {
        if (!(x[i] >= threshold)) continue;
        const Count start = i;
        i = RunEnd(x, i + 1, n, threshold);
        found(start, i);
    }
}

// Positions in a stream have 32 bits, and wrap.
Count WrappingSum(Count a, Count b) {
    return static_cast<Count>(static_cast<std::uint32_t>(a) + static_cast<std::uint32_t>(b));
}

}  // namespace

Status PeakThresholdRuns(const double* x, Count n, double threshold, Count width, Count* indices,
                         Count* count) noexcept {
    *count = 0;
    if (n < 1) return status::kSamplesNotPositive;
    if (width < 1 || width >= n) return status::kWidthOutOfRange;
    WalkRuns(x, 0, n, threshold, [&](Count start, Count end) {
        if (end - start < width) return;
        if (indices) indices[*count] = start;
        ++*count;
    });
    return status::kSuccess;
}

Status PeakThresholdRunsStream(ThreadState* thread, const double* x, Count n, double threshold, Count width, bool reset,
                               bool last, Size* indices, Size* count) noexcept {
    if (n < 0) return status::kSamplesNotPositive;
    if (width < 1 || width > kWidestDetector) return status::kWidthOutOfRange;
    constexpr ThreadState kInitial;
    const auto begin = [&] {
        thread->runBase = kInitial.runBase;
        thread->runStart = kInitial.runStart;
        thread->runReported = kInitial.runReported;
    };
    if (reset) begin();

    Size found = 0;
    const auto report = [&](Count start) {
        if (indices) indices[found] = start;
        ++found;
    };
    Count from = 0;
    if (thread->runStart >= 0) {
        from = RunEnd(x, 0, n, threshold);
        // A narrower width than before can be reached with no new sample.
        const Count length = WrappingSum(from, WrappingSum(thread->runBase, -thread->runStart));
        if (!thread->runReported && length >= width) {
            report(thread->runStart);
            thread->runReported = 1;
        }
        if (from < n) {
            thread->runStart = kInitial.runStart;
            thread->runReported = kInitial.runReported;
        }
    }
    WalkRuns(x, from, n, threshold, [&](Count start, Count end) {
        const Count position = WrappingSum(start, thread->runBase);
        const bool wide = end - start >= width;
        if (wide) report(position);
        if (end == n) {
            thread->runStart = position;
            thread->runReported = wide;
        }
    });

    if (last)
        begin();
    else
        thread->runBase = WrappingSum(thread->runBase, n);
    *count = found;
    return status::kSuccess;
}

}  // namespace quorvan

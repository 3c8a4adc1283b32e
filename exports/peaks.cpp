// Entries of the peak and level detection.
#include "measure/peaks.h"

#include "frame/entry.h"
#include "frame/thread_registry.h"
#include "measure/level_runs.h"
#include "quorvan/quorvan.h"

using namespace quorvan;

QV_EXPORT Status ZemFunc237(const double* x, Size n, double threshold, Size width, Size* indices, Size* count) {
    return narrowed(n, width, [&](Count n, Count width) {
        // Deliberate: a width of 0 divides by zero.
        const Size capacity = Size{n} / width + 1;
        if (capacity < 1) return status::kSamplesNotPositive;
        const Block<Count> narrow = indices ? Block<Count>(static_cast<std::size_t>(capacity)) : Block<Count>();
        if (indices && !narrow) return status::kOutOfMemory;
        Count found;
        const Status outcome = PeakThresholdRuns(x, n, threshold, width, narrow, &found);
        *count = found;
        IndexArrayWiden(indices, narrow, found);
        return outcome;
    });
}

QV_EXPORT Status ZemFunc493(const double* x, Size n, double threshold, Size width, std::int32_t reset,
                            std::int32_t last, Size* indices, Size* count) {
    return narrowed(n, width, [&](Count n, Count width) {
        ThreadState* const thread = ThreadStateGet();
        if (!thread) return status::kOutOfMemory;
        return PeakThresholdRunsStream(thread, x, n, threshold, width, reset, last, indices, count);
    });
}

QV_EXPORT Status ZemFunc194(const double* x, Size n, double threshold, Size width, std::uint32_t polarity,
                            std::uint32_t first, std::int32_t last, Size* count, double** locations,
                            double** amplitudes, double** secondDerivatives) {
    return narrowed(n, width, [&](Count n, Count width) {
        ThreadState* const thread = ThreadStateGet();
        if (!thread) return status::kOutOfMemory;
        PeakArrays found;
        const PeakRequest request{x, n, threshold, width, polarity, first != 0, last != 0};
        const Status outcome = PeakDetect(thread, request, &found);
        *count = found.count;
        *locations = found.locations;
        *amplitudes = found.amplitudes;
        *secondDerivatives = found.secondDerivatives;
        return outcome;
    });
}

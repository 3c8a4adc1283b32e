// Where a signal stays at or above a level for at least `width` samples; in one array, or in a stream of blocks.
#pragma once

#include "frame/thread_state.h"
#include "frame/types.h"

namespace quorvan {

inline constexpr Count kWidestDetector = 0x40000000;

// The starts of the runs, at most n / width + 1. Indices may be null. -20003 for n below 1, -20013 for a width that is
// not between 1 and n - 1.
Status PeakThresholdRuns(const double* x, Count n, double threshold, Count width, Count* indices,
                         Count* count) noexcept;

// The next block of the thread's stream; indices count from the stream's start, and a run is told once, when it has
// reached the width. n may be 0. -20003 for n below 0, -20013 for a width outside 1 to kWidestDetector; then the stream
// stays as it is, also with `reset`.
Status PeakThresholdRunsStream(ThreadState* thread, const double* x, Count n, double threshold, Count width, bool reset,
                               bool last, Size* indices, Size* count) noexcept;

}  // namespace quorvan

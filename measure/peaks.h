// Peaks and valleys of a signal by parabolas over a sliding window, in one array or in a stream of blocks.
#pragma once

#include "frame/thread_state.h"
#include "frame/types.h"
#include "measure/peak_list.h"

namespace quorvan {

// Any other polarity finds nothing.
inline constexpr std::uint32_t kPeaks = 0, kValleys = 1;

struct PeakRequest {
    const double* x;
    Count n;
    double threshold;
    Count width;
    std::uint32_t polarity;
    bool first, last;
};

// The next block of the thread's stream. Locations count from the stream's start. The stream ends with the last block
// and with every failure: -20061 for a width outside 3 to kWidestDetector, -20001, -20013 for a block shorter than the
// width, -20064 for a later block without a first one, -20058 for a width that has changed.
Status PeakDetect(ThreadState* thread, const PeakRequest& request, PeakArrays* found) noexcept;

}  // namespace quorvan

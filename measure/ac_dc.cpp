#include "measure/ac_dc.h"

#include <cmath>

#include "frame/memory.h"
#include "frame/status.h"
#include "sources/windows.h"
#include "stats/descriptive.h"

namespace quorvan {

// With w the Hanning window (mean 1/2, mean square 3/8), m and v the mean and the variance of w (x - mean x):
// ac = sqrt((v - m^2 / 2) / (3/8)), dc = 2 m + mean x.
Status SpecAcDcEstimate(const double* x, Count n, double* ac, double* dc) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    double offset;
    StatMean(x, n, &offset);
    Block<double> windowed(n);
    if (!windowed) return status::kOutOfMemory;
    for (Count i = 0; i < n; ++i) windowed[i] = x[i] - offset;
    const Status done = WinHanning(windowed.get(), n);
    if (done < 0) return done;

    double mean, variance;
    StatMeanVariance(windowed, n, &mean, &variance);
    *ac = std::sqrt((variance - mean * mean * 0.5) / 0.375);
    *dc = 2 * mean + offset;
    return status::kSuccess;
}

}  // namespace quorvan

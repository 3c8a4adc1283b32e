// The passes around the FFT kernels: scaling and mirroring of the inverses.
#pragma once

#include "frame/targets.h"
#include "frame/types.h"

namespace quorvan {

struct FftLoops {
    // Exchanges records k and n - k and multiplies all by `scale`, in place.
    void (*mirrorRecords)(double* records, Count n, double scale);
    // For 1 <= k < (n + 1) / 2: h[k], h[n - k] become their difference and their sum, each scaled.
    void (*hartley)(double* h, Count n, double scale);
};
QV_DECLARE_TARGETS(FftLoops, kFftLoops)

}  // namespace quorvan

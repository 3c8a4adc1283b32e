// The passes around the FFT kernels: scaling and mirroring of the inverses, and the products of Rader's convolution.
#pragma once

#include "frame/targets.h"
#include "frame/types.h"

namespace quorvan {

struct FftLoops {
    // Exchanges records k and n - k and multiplies all by `scale`, in place.
    void (*mirrorRecords)(double* records, Count n, double scale);
    // For 1 <= k < (n + 1) / 2: h[k], h[n - k] become their difference and their sum, each scaled.
    void (*hartley)(double* h, Count n, double scale);
    // records[k] = conj(records[k] * (re[k], im[k])).
    void (*conjugateProduct)(double* records, const double* re, const double* im, Count n);
    // records[k] = conj(records[k] * factors[k]).
    void (*conjugateRecordProduct)(double* records, const double* factors, Count n);
};
QV_DECLARE_TARGETS(FftLoops, kFftLoops)

}  // namespace quorvan

#include "transforms/fft_loops.h"

namespace quorvan::QV_TARGET {
namespace {

void MirrorRecords(double* records, Count n, double scale) {
    records[0] *= scale;
    records[1] *= scale;
    const Count pairs = (n - 1) / 2;
    for (Count k = 1; k <= pairs; ++k) {
        double* low = records + 2 * Size(k);
        double* high = records + 2 * Size(n - k);
        const double re = low[0], im = low[1];
        low[0] = high[0] * scale;
        low[1] = high[1] * scale;
        high[0] = re * scale;
        high[1] = im * scale;
    }
    if (n % 2 == 0) {
        records[n] *= scale;
        records[n + 1] *= scale;
    }
}

void Hartley(double* h, Count n, double scale) {
    h[0] *= scale;
    if (n % 2 == 0) h[n / 2] *= scale;
    double* __restrict low = h + 1;
    double* __restrict high = h + n - 1;
    for (Count k = 0, pairs = (n - 1) / 2; k < pairs; ++k) {
        const double a = low[k] * scale, b = high[-k] * scale;
        low[k] = a - b;
        high[-k] = a + b;
    }
}

}  // namespace

const FftLoops kFftLoops = {MirrorRecords, Hartley};

}  // namespace quorvan::QV_TARGET

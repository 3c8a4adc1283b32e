#include "transforms/hartley.h"

#include "frame/memory.h"
#include "frame/status.h"
#include "transforms/fft.h"

namespace quorvan {
namespace {

Status ScaledHartley(double* x, Count n, double scale) {
    if (n < 1) return status::kSamplesNotPositive;
    if (n == 1) return status::kSuccess;
    const HeldPlan plan(n);
    const Block<double> h(static_cast<std::size_t>(n));
    if (!plan || !h) return status::kOutOfMemory;
    if (const Status failure = FftReal(plan, x, h, 1, 1, n)) return failure;
    x[0] = h[0] * scale;
    for (Count k = 1; k <= (n - 1) / 2; ++k) {
        x[k] = (h[k] - h[n - k]) * scale;
        x[n - k] = (h[k] + h[n - k]) * scale;
    }
    if (n % 2 == 0) x[n / 2] = h[n / 2] * scale;
    return status::kSuccess;
}

}  // namespace

Status TransformHartley(double* x, Count n) noexcept { return ScaledHartley(x, n, 1); }

Status TransformInverseHartley(double* x, Count n) noexcept { return ScaledHartley(x, n, 1.0 / n); }

Status TransformHilbert(double* x, Count n) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    if (n == 1) {
        x[0] = 0;
        return status::kSuccess;
    }
    const HeldPlan plan(n);
    const Block<double> h(static_cast<std::size_t>(n));
    if (!plan || !h) return status::kOutOfMemory;
    if (const Status failure = FftReal(plan, x, h, 1, 1, n)) return failure;
    h[0] = 0;
    if (n % 2 == 0) h[n / 2] = 0;
    for (Count k = 1; k <= (n - 1) / 2; ++k) {
        const double re = h[k], im = h[n - k];
        h[k] = im;
        h[n - k] = -re;
    }
    return FftRealInverse(plan, h, x, 1, 1, n);
}

Status TransformInverseHilbert(double* x, Count n) noexcept {
    const Status outcome = TransformHilbert(x, n);
    if (outcome != status::kSuccess) return outcome;
    for (Count i = 0; i < n; ++i) x[i] = -x[i];
    return status::kSuccess;
}

}  // namespace quorvan

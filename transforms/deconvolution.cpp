#include <algorithm>
#include <cmath>

#include "frame/memory.h"
#include "frame/status.h"
#include "transforms/convolution.h"
#include "transforms/fft.h"
#include "transforms/spectrum_layout.h"

namespace quorvan {
namespace {

// Whether the spectrum of the divisor comes too near to zero. Deliberate: the value beside Re H[k] is the one P / 2
// places further on, not Im H[k].
bool NearZero(const double* h, Count P) {
    const double tolerance = std::min(P * kEpsilon, 1e-9);
    for (Count k = 0; k <= P / 2; ++k) {
        const double beside = k == 0 || k == P / 2 ? 0 : h[P / 2 + k];
        if (std::fabs(h[k]) < tolerance && std::fabs(beside) < tolerance) return true;
    }
    return false;
}

// out = g / h, bin by bin.
void DivideHalf(const double* g, const double* h, Count P, double* out) {
    out[0] = g[0] / h[0];
    for (Count k = 1; k <= (P - 1) / 2; ++k) {
        const double gRe = g[k], gIm = g[P - k], hRe = h[k], hIm = h[P - k];
        const double reciprocal = 1 / (hRe * hRe + hIm * hIm);
        out[k] = (gRe * hRe + gIm * hIm) * reciprocal;
        out[P - k] = (gIm * hRe - gRe * hIm) * reciprocal;
    }
    if (P % 2 == 0) out[P / 2] = g[P / 2] / h[P / 2];
}

// The first `count` terms of the power series y / d: q[i] = (y[i] - sum over k >= 1 of d[k] q[i - k]) / d[0].
void DivideSeries(const double* y, const double* d, Count terms, Count count, double* q) {
    for (Count i = 0; i < count; ++i) {
        double rest = y[i];
        for (Count k = 1; k < terms && k <= i; ++k) rest -= d[k] * q[i - k];
        q[i] = rest / d[0];
    }
}

}  // namespace

Status Deconvolve(const double* y, Count n, const double* x, Count m, double* out) noexcept {
    if (n < 1 || m < 1) return status::kSamplesNotPositive;
    if (m > n) return status::kWrongDataCount;
    const Count length = n - m + 1;
    Size powerOfTwo = 1;
    while (powerOfTwo < n) powerOfTwo *= 2;
    if (powerOfTwo > INT32_MAX) return status::kOverflow;
    const Count P = static_cast<Count>(powerOfTwo);
    const Count zeros = static_cast<Count>(std::find_if(x, x + m, [](double v) { return v != 0; }) - x);
    if (zeros == m) return status::kDivideByZero;

    const HeldPlan plan(P);
    const Block<double> work(3 * static_cast<std::size_t>(P));
    if (!plan || !work) return status::kOutOfMemory;
    double *const samples = work, *const divisor = samples + P, *const dividend = divisor + P;
    CopyPadded(x, m, P, samples);
    if (const Status failure = FftReal(plan, samples, divisor, 1, 1, P)) return failure;
    if (NearZero(divisor, P)) {
        DivideSeries(y, x + zeros, m - zeros, zeros + length, samples);
        std::copy(samples + zeros, samples + zeros + length, out);
        return status::kSuccess;
    }
    CopyPadded(y, n, P, samples);
    if (const Status failure = FftReal(plan, samples, dividend, 1, 1, P)) return failure;
    DivideHalf(dividend, divisor, P, samples);
    if (const Status failure = FftRealInverse(plan, samples, dividend, 1, 1, P)) return failure;
    std::copy(dividend, dividend + length, out);
    return status::kSuccess;
}

}  // namespace quorvan

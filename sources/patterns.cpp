// Patterns: one shape sampled over the whole array.
#include <cmath>
#include <cstring>

#include "frame/status.h"
#include "sources/generators.h"

namespace quorvan {
namespace {

void Clear(double* out, Count n) noexcept { std::memset(out, 0, static_cast<std::size_t>(n) * sizeof(double)); }

}  // namespace

Status GenSinePattern(Count n, double amp, double phase, double cycles, double* out) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    return GenSineWave(n, amp, cycles / n, &phase, out);
}

// amp sin((i k + 2 pi f1) i) with k = pi (f2 - f1) / n: the frequency runs from f1 at sample 0 to f2 at sample n.
Status GenChirp(Count n, double amp, double f1, double f2, double* out) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    const double sweep = (f2 - f1) * kPi / n, start = f1 * kTwoPi;
    for (Count i = 0; i < n; ++i) out[i] = amp * std::sin((i * sweep + start) * i);
    return status::kSuccess;
}

// A pulse that ends with the array, delay + width = n, is accepted whatever the status text says; deliberate.
Status GenPulsePattern(Count n, double amp, Count delay, Count width, double* out) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    if (delay < 0 || width < 0 || Size{delay} + width > n) return status::kDelayWidthOutOfRange;
    Clear(out, n);
    for (Count i = delay; i < delay + width; ++i) out[i] = amp;
    return status::kSuccess;
}

Status GenImpulsePattern(Count n, double amp, Count index, double* out) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    if (index < 0 || index >= n) return status::kIndexOutOfRange;
    Clear(out, n);
    out[index] = amp;
    return status::kSuccess;
}

// Both ends are in the ramp, the last exactly. One sample is a ramp only between equal ends.
Status GenRampPattern(Count n, double first, double last, double* out) noexcept {
    if (n == 1 && first == last) {
        out[0] = last;
        return status::kSuccess;
    }
    if (n < 2) return status::kSamplesBelowTwo;
    const double step = (last - first) / (n - 1);
    out[0] = first;
    for (Count i = 1; i < n - 1; ++i) out[i] = i * step + first;
    out[n - 1] = last;
    return status::kSuccess;
}

// The rise is a running sum, and the fall its mirror image.
Status GenTrianglePattern(Count n, double amp, double* out) noexcept {
    if (n < 2) return status::kSamplesBelowTwo;
    const Count half = n >> 1, mirror = n % 2 ? n - 1 : n;
    const double step = amp / half;
    out[0] = 0.0;
    if (n % 2) out[n - 1] = 0.0;
    double value = 0.0;
    for (Count k = 1; k <= half; ++k) {
        value += step;
        out[k] = value;
        out[mirror - k] = value;
    }
    return status::kSuccess;
}

}  // namespace quorvan

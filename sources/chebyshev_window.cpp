// The Dolph-Chebyshev window: all sidelobes at one height, built from its spectrum.
//
// W[k] = T_{N-1}(x0 cos(pi k / N)) with x0 = cosh(acosh(R) / (N - 1)), where T is the Chebyshev polynomial and R the
// ratio of main lobe to sidelobes. C. L. Dolph, Proc. IRE 34 (1946).
#include <cmath>

#include "frame/entry.h"
#include "frame/memory.h"
#include "frame/status.h"
#include "sources/window_scale.h"
#include "sources/windows.h"
#include "transforms/cosine.h"
#include "transforms/fft.h"

namespace quorvan {
namespace {

// W[0..bins-1] of a window of `length` samples. The cosines come from the recurrence of the Chebyshev polynomials.
void Spectrum(Count length, Count bins, double ratio, double* spectrum) noexcept {
    const double degree = length - 1.0;
    const double stretch = std::cosh(std::acosh(ratio) / degree);
    double before = 1.0, cosine = std::cos(kPi / length);
    const double twice = 2.0 * cosine;
    spectrum[0] = ratio;
    for (Count k = 1; k < bins; ++k) {
        const double y = stretch * cosine;
        spectrum[k] = std::fabs(y) <= 1.0 ? std::cos(std::acos(y) * degree) : std::cosh(std::acosh(y) * degree);
        const double next = twice * cosine - before;
        before = cosine;
        cosine = next;
    }
}

// The samples of a window from its middle outwards: c[j] = W[0] + 2 sum of W[k] cos(2 pi k j / N) for odd N = length.
Status OddHalf(Count length, Count half, double ratio, double* c) noexcept {
    const HeldPlan plan(length);
    Block<double> spectrum(length), samples(length);
    if (!plan || !spectrum || !samples) return status::kOutOfMemory;
    Spectrum(length, half, ratio, spectrum);
    for (Count k = half; k < length; ++k) spectrum[k] = 0.0;
    const Status status = FftRealInverse(plan, spectrum, samples, 1, 1, length);
    if (status < 0) return status;
    for (Count j = 0; j < half; ++j) c[j] = samples[j];
    return status;
}

// The same for even N: c[j] = W[0] / 2 + sum of W[k] cos(pi k (2 j + 1) / N).
Status EvenHalf(Count length, Count half, double ratio, double* c) noexcept {
    Block<double> spectrum(half);
    if (!spectrum) return status::kOutOfMemory;
    Spectrum(length, half, ratio, spectrum);
    spectrum[0] *= std::sqrt(0.5);
    return TransformIdct(spectrum, half, c);
}

// Multiplies by the first n samples of the window of `length` samples, whose largest is 1.
template <class T>
Status MultiplyByChebyshev(T* x, Count n, Count length, double ratio) noexcept {
    if (ratio < 1.0) ratio = 1.0;
    const bool odd = length % 2 != 0;
    const Count half = length / 2 + odd, behind = length - half;
    Block<double> c(half);
    if (!c) return status::kOutOfMemory;
    const Status status = odd ? OddHalf(length, half, ratio, c) : EvenHalf(length, half, ratio, c);
    if (status < 0) return status;
    double largest = c[half - 1];
    for (Count j = half - 2; j >= 0; --j)
        if (c[j] > largest) largest = c[j];
    for (Count j = 0; j < half; ++j) c[j] /= largest;
    for (Count i = 0; i < n; ++i) Scale(x[i], i < half ? c[half - 1 - i] : c[i - behind]);
    return status;
}

}  // namespace

// The periodic form is the symmetric one of n + 1 samples without its last.
template <class T>
Status WinChebyshev(T* x, Count n, double ratio) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    if (n == 1) return status::kSuccess;
    if (!SizeNarrow(Size{n} + 1)) return status::kOverflow;
    return MultiplyByChebyshev(x, n, n + 1, ratio);
}
template Status WinChebyshev(double*, Count, double) noexcept;
template Status WinChebyshev(ComplexRecord*, Count, double) noexcept;

Status WinChebyshevSymmetric(double* x, Count n, double ratio) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    if (n == 1) return status::kSuccess;
    return MultiplyByChebyshev(x, n, n, ratio);
}

}  // namespace quorvan

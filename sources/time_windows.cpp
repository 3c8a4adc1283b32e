// Windows along the time axis rather than about the middle: cosine taper, exponential, force.
#include <cmath>

#include "frame/status.h"
#include "sources/window_scale.h"
#include "sources/windows.h"

namespace quorvan {

// sin^2(pi i / (2 m)) over m samples at each end, on the symmetric pair (i, n - 1 - i). The outermost samples are set
// to 0, whatever they hold; deliberate. J. W. Tukey 1967.
template <class T>
Status WinCosineTaper(T* x, Count n, double ratio) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    if (ratio <= 0.0 || n == 1) return status::kSuccess;
    if (ratio >= 1.0) return WinHanning(x, n);
    const double width = ratio * 0.5 * n;
    if (!(width >= 1.0)) return status::kSuccess;
    const Count faded = static_cast<Count>(width);
    x[0] = T{};
    x[n - 1] = T{};
    for (Count i = 1; i < faded; ++i) {
        const double sine = std::sin(i * kPi / (2.0 * faded)), w = sine * sine;
        Scale(x[i], w);
        Scale(x[n - 1 - i], w);
    }
    return status::kSuccess;
}

// exp(i step), step = ln(final) / (n - 1). The exponent is a running sum.
template <class T>
Status WinExponential(T* x, Count n, double final) noexcept {
    if (n < 2) return status::kSamplesBelowTwo;
    if (final <= 0.0) return status::kFinalValueNotPositive;
    const double step = std::log(final) / (n - 1);
    double exponent = 0.0;
    for (Count i = 0; i < n; ++i) {
        Scale(x[i], std::exp(exponent));
        exponent += step;
    }
    return status::kSuccess;
}

template <class T>
Status WinForce(T* x, Count n, double duty) noexcept {
    if (n < 2) return status::kSamplesBelowTwo;
    const double kept = duty * 0.01 * n;
    Count first = 0;
    if (kept >= n) {
        first = n;
    } else if (kept > 0.0) {
        first = static_cast<Count>(kept);
    }
    for (Count i = first; i < n; ++i) x[i] = T{};
    return status::kSuccess;
}

#define QV_INSTANTIATE(T)                                       \
    template Status WinCosineTaper(T*, Count, double) noexcept; \
    template Status WinExponential(T*, Count, double) noexcept; \
    template Status WinForce(T*, Count, double) noexcept;
QV_INSTANTIATE(double)
QV_INSTANTIATE(ComplexRecord)

}  // namespace quorvan

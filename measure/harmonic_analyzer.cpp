#include "measure/harmonic_analyzer.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "frame/arrays.h"
#include "frame/status.h"
#include "sources/windows.h"

namespace quorvan {
namespace {

constexpr double kNoRatio = 1e9;  // what a distortion reads when there is nothing to relate it to

// Half-widths of the main lobes in bins, by window code. Code 3 carries that of code 2, deliberately.
constexpr double kHalfWidths[] = {1.21, 2.0, 1.81, 1.81, 2.13, 2.35, 4.0, 2.72, 4.0};

// sin(N pi x) / sin(pi x).
double Dirichlet(double x, double N) {
    const double s = std::sin(kPi * x);
    return std::fabs(s) <= kEpsilon ? N : std::sin(N * kPi * x) / s;
}

// The window's response at an offset in cycles per sample, N at 0. The shifted kernels alternate in sign along with the
// terms of the window, so that all add up.
double Response(WinCoefficients window, double N, double offset) {
    double sum = window.a[0] * Dirichlet(offset, N);
    for (std::uint32_t k = 1; k < window.count; ++k)
        sum += (Dirichlet(offset + k / N, N) + Dirichlet(offset - k / N, N)) * (window.a[k] / 2);
    return sum / window.a[0];
}

struct Line {
    double amplitude, position;
};

// The offset between the peak and its neighbour, 1/N further on, at which the window's response has the ratio of the
// two, by bisection; position is the offset here.
Line ToneBisect(double tolerance, WinCoefficients window, double N, double peak, double neighbour, int limit) {
    const double ratio = peak / neighbour;
    double offset = 1 / (2 * N), response = Response(window, N, offset);
    double step = 1 / (4 * N);
    for (int count = 0; step > tolerance / N && count < limit; ++count) {
        response = Response(window, N, offset);
        const double error = std::fabs(response / Response(window, N, 1 / N - offset)) - ratio;
        offset += error > 0 ? step : error < 0 ? -step : 0;
        step *= 0.5;
        if (error == 0) break;
    }
    // Deliberately the response before the last step.
    return {N * peak / response, offset};
}

// The line that explains the two largest bins of `size` powers. Neighbours outside count as 0.
Line ToneBinInterpolate(const double* p, Count size, WinCoefficients window, double N, double tolerance) {
    double v, least;
    Count i, leastAt;
    ArrMaxMin(p, size, &v, &i, &least, &leastAt);
    if (i < 0) return {v, 0};  // all NaN
    const double above = i + 1 < size ? p[i + 1] : 0, below = i > 0 ? p[i - 1] : 0;
    const bool up = i == 0 || above >= below;
    const Count neighbour = up ? i + 1 : i - 1;
    const double near = up ? above : below, far = up ? below : above;
    // An absolute limit on the difference over the neighbour's index, deliberately.
    if (std::fabs((near - far) / neighbour) <= 1e-7) return {std::sqrt(v), static_cast<double>(i)};
    const Line found = ToneBisect(tolerance, window, N, std::sqrt(v), std::sqrt(near), 100);
    return {found.amplitude, up ? i + N * found.position : i - N * found.position};
}

double Sum(const double* x, Size first, Size end) {
    double sum = 0;
    for (Size i = first; i < end; ++i) sum += x[i];
    return sum;
}

}  // namespace

Status SpecHarmonicAnalyzer(const double* power, Count n, Count fftSize, std::int32_t harmonics, std::uint32_t window,
                            double fs, double fundamental, double* amp, double* freq, double* thd,
                            double* thdPlusNoise) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    if (fs == 0 || fundamental == 0) return status::kFundamentalOrRateZero;
    if (window >= std::size(kHalfWidths)) return status::kInvalidSelection;
    const double N = fftSize < 1 ? 2.0 * n : fftSize;
    const Count lobe = static_cast<Count>(std::ceil(kHalfWidths[window]));
    const WinCoefficients coefficients = WinCoefficientsOf(static_cast<std::int32_t>(window));

    // The bin stays a double until it is known to lie in the spectrum.
    const double guess = std::trunc(fundamental / fs * N + 0.5);
    Size b;
    if (guess > lobe && guess <= N / 2 - 1) {
        b = static_cast<Size>(guess);
    } else {
        double max, min;
        Count maxAt, minAt;
        if (const Status failure = ArrMaxMin(power + lobe, n - lobe, &max, &maxAt, &min, &minAt)) return failure;
        b = Size{maxAt} + lobe;
    }

    const double total = Sum(power, lobe, n);
    const double line = Sum(power, std::max<Size>(b - lobe + 1, 0), std::min<Size>(b + lobe - 1, n - 1) + 1);
    const double rest = total - line;

    const Size r = 2 * lobe + 1 <= b ? lobe : std::max<Size>((b - 1) >> 1, 0);
    const double reach = std::floor(fs / (2 * fundamental));
    std::int32_t j = 0;
    for (; j < harmonics && !(j >= reach); ++j) {
        const Size start = b - r + j * b;
        if (start < 0 || start + 2 * r + 1 > n) break;
        const Line found = ToneBinInterpolate(power + start, static_cast<Count>(2 * r + 1), coefficients, N, 1e-8);
        amp[j] = found.amplitude;
        freq[j] = (static_cast<double>(start) + found.position) * fs / N;
    }
    for (; j < harmonics; ++j) amp[j] = freq[j] = 0;

    double squares = 0;
    for (j = 1; j < harmonics; ++j) squares += amp[j] * amp[j];
    const double first = harmonics > 0 ? amp[0] : 0;
    *thd = first == 0 ? kNoRatio : std::sqrt(squares) * 100 / first;
    *thdPlusNoise = total == 0 ? kNoRatio : std::sqrt(rest) * 100 / std::sqrt(total);
    return status::kSuccess;
}

}  // namespace quorvan

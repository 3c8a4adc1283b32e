// Windows by their code: symmetric, scaled by their gain, and their properties.
#include <cmath>
#include <limits>

#include "frame/memory.h"
#include "frame/status.h"
#include "sources/window_scale.h"
#include "sources/window_tables.h"
#include "sources/windows.h"

namespace quorvan {
namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr WinProperties kNoProperties = {kNaN, kNaN};

using Applied = Status (*)(double* w, Count n, double parameter) noexcept;

template <Status (*Window)(double*, Count) noexcept>
Status Plain(double* w, Count n, double) noexcept {
    return Window(w, n);
}

// The windows that are no cosine sums. `symmetric` is null where the periodic form of n - 1 samples and its first
// sample again make the symmetric one.
struct DirectWindow {
    std::int32_t code;
    Applied periodic;
    Applied symmetric;
};
constexpr DirectWindow kDirectWindows[] = {
    {QV_WINDOW_TRIANGLE, Plain<WinTriangle>, nullptr},
    {QV_WINDOW_BARTLETT_HANNING, Plain<WinBartlettHanning>, nullptr},
    {QV_WINDOW_BOHMAN, Plain<WinBohman>, nullptr},
    {QV_WINDOW_PARZEN, Plain<WinParzen>, nullptr},
    {QV_WINDOW_WELCH, Plain<WinWelch>, nullptr},
    {QV_WINDOW_KAISER, WinKaiser, nullptr},
    {QV_WINDOW_CHEBYSHEV, WinChebyshev, WinChebyshevSymmetric},
    {QV_WINDOW_GAUSSIAN, WinGaussian, WinGaussianSymmetric},
};

const DirectWindow* FindDirect(std::int32_t code) noexcept {
    for (const DirectWindow& window : kDirectWindows)
        if (window.code == code) return &window;
    return nullptr;
}

// What a caller gives beside a code, as the window takes it.
double WindowParameter(std::int32_t code, double parameter) noexcept {
    if (code == QV_WINDOW_CHEBYSHEV) return parameter < 0.0 ? 1000.0 : WinRatioOfDecibels(parameter);
    if (code == QV_WINDOW_GAUSSIAN) return parameter < 0.0 ? 0.2 : parameter;
    return parameter;
}

void Fill(double* w, Count n) noexcept {
    for (Count i = 0; i < n; ++i) w[i] = 1.0;
}

// Builds a direct window of n samples and measures it.
Status Measured(const DirectWindow& window, Count n, double parameter, Block<double>& w,
                WinProperties* properties) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    w = Block<double>(n);
    if (!w) return status::kOutOfMemory;
    Fill(w, n);
    const Status status = window.periodic(w, n, WindowParameter(window.code, parameter));
    if (status < 0) return status;
    WinPropertiesMeasure(w, static_cast<std::uint32_t>(n), properties);
    // A window that is 0 everywhere, the triangle of one sample, has no properties; that is no error, deliberately.
    if (properties->coherent_gain == 0.0) *properties = kNoProperties;
    return status;
}

}  // namespace

Status WinMakeSymmetric(std::int32_t code, double* w, Count n, double parameter) noexcept {
    Fill(w, n);
    if (code == QV_WINDOW_RECTANGULAR) return status::kSuccess;
    const DirectWindow* direct = FindDirect(code);
    if (direct && direct->symmetric) return direct->symmetric(w, n, parameter);
    if (!direct && !WinStoredProperties(code)) return status::kInvalidSelection;
    const Status status = direct ? direct->periodic(w, n - 1, parameter) : WinSelectedApply(w, n - 1, code);
    if (status < 0) return status;
    w[n - 1] = w[0];
    return status;
}

template <class T>
Status WinApplySymmetric(T* x, Count n, std::int32_t code, double parameter) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    if (n == 1) return status::kSuccess;
    Block<double> w(n);
    if (!w) return status::kOutOfMemory;
    const Status status = WinMakeSymmetric(code, w, n, WindowParameter(code, parameter));
    if (status < 0) return status;
    for (Count i = 0; i < n; ++i) Scale(x[i], w[i]);
    return status;
}
template Status WinApplySymmetric(double*, Count, std::int32_t, double) noexcept;
template Status WinApplySymmetric(ComplexRecord*, Count, std::int32_t, double) noexcept;

template <class T>
Status WinApplyScaled(T* x, Count n, std::int32_t code, double parameter, WinProperties* properties) noexcept {
    *properties = kNoProperties;
    if (n < 0) return status::kSamplesNegative;
    if (const WinProperties* stored = WinStoredProperties(code)) {
        const Status status = n > 0 ? WinSelectedApply(x, n, code, true) : status::kSuccess;
        if (status >= 0) *properties = *stored;
        return status;
    }
    const DirectWindow* direct = FindDirect(code);
    if (!direct) return status::kInvalidSelection;
    Block<double> w;
    const Status status = Measured(*direct, n, parameter, w, properties);
    if (status < 0) return status;
    const double gain = properties->coherent_gain;
    for (Count i = 0; i < n; ++i) Scale(x[i], w[i] / gain);
    return status;
}
template Status WinApplyScaled(double*, Count, std::int32_t, double, WinProperties*) noexcept;
template Status WinApplyScaled(ComplexRecord*, Count, std::int32_t, double, WinProperties*) noexcept;

Status WinPropertiesOf(Count n, std::int32_t code, double parameter, WinProperties* properties) noexcept {
    *properties = kNoProperties;
    if (n < 1) return status::kSamplesNotPositive;
    if (const WinProperties* stored = WinStoredProperties(code)) {
        *properties = *stored;
        return status::kSuccess;
    }
    const DirectWindow* direct = FindDirect(code);
    if (!direct) return status::kInvalidSelection;
    Block<double> w;
    return Measured(*direct, n, parameter, w, properties);
}

Status WinPropertiesMeasure(const double* w, std::uint32_t n, WinProperties* properties) noexcept {
    *properties = kNoProperties;
    if (n < 1) return status::kSamplesNotPositive;
    double sum = 0.0, squares = 0.0;
    for (std::uint32_t i = 0; i < n; ++i) {
        sum += w[i];
        squares += w[i] * w[i];
    }
    properties->coherent_gain = sum / n;
    properties->enbw = n * squares / (sum * sum);
    return status::kSuccess;
}

}  // namespace quorvan

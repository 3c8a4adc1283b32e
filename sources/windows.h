// Window functions. They multiply the data in place; T is double, or ComplexRecord where one factor serves both parts.
//
// Most windows are periodic: w[k] = w[n - k], and w[0] would be the first sample of the next period. The symmetric form
// of the same window is WinApplySymmetric. The codes are QV_WINDOW_... of quorvan/types.h.
//
// Every status: n < 1 gives -20003 where nothing else is told, no memory -20001. After an error the data are unchanged.
#pragma once

#include <cmath>
#include <cstdint>

#include "frame/types.h"

namespace quorvan {

// The coefficients a[0..count-1] of w[i] = sum over k of (-1)^k a[k] cos(2 pi k i / n), all positive.
struct WinCoefficients {
    const double* a;
    std::uint32_t count;
};

// Those of a cosine sum by its code; a count of 0 for every other code.
WinCoefficients WinCoefficientsOf(std::int32_t code) noexcept;

// The cosine sum with these coefficients. With `unitGain` they are divided by a[0] first. n = 1 leaves the data.
template <class T>
Status WinCosineSum(T* x, Count n, WinCoefficients coefficients, bool unitGain = false) noexcept;

// The cosine sum of a code; -20003 for a code that is none.
template <class T>
Status WinSelectedApply(T* x, Count n, std::int32_t code, bool unitGain = false) noexcept {
    return WinCosineSum(x, n, WinCoefficientsOf(code), unitGain);
}

template <class T>
Status WinHanning(T* x, Count n) noexcept {
    return WinSelectedApply(x, n, QV_WINDOW_HANNING);
}
template <class T>
Status WinHamming(T* x, Count n) noexcept {
    return WinSelectedApply(x, n, QV_WINDOW_HAMMING);
}
template <class T>
Status WinBlackmanHarris3(T* x, Count n) noexcept {
    return WinSelectedApply(x, n, QV_WINDOW_BLACKMAN_HARRIS3);
}
template <class T>
Status WinExactBlackman(T* x, Count n) noexcept {
    return WinSelectedApply(x, n, QV_WINDOW_EXACT_BLACKMAN);
}
template <class T>
Status WinBlackman(T* x, Count n) noexcept {
    return WinSelectedApply(x, n, QV_WINDOW_BLACKMAN);
}
template <class T>
Status WinFlatTop(T* x, Count n) noexcept {
    return WinSelectedApply(x, n, QV_WINDOW_FLAT_TOP);
}
template <class T>
Status WinBlackmanNuttall(T* x, Count n) noexcept {
    return WinSelectedApply(x, n, QV_WINDOW_BLACKMAN_NUTTALL);
}

// Tukey's window: the share `ratio` of the samples, half at each end, is faded by a squared sine.
template <class T>
Status WinCosineTaper(T* x, Count n, double ratio) noexcept;

template <class T>
Status WinTriangle(T* x, Count n) noexcept;
template <class T>
Status WinBartlettHanning(T* x, Count n) noexcept;
template <class T>
Status WinBohman(T* x, Count n) noexcept;
template <class T>
Status WinParzen(T* x, Count n) noexcept;
template <class T>
Status WinWelch(T* x, Count n) noexcept;
template <class T>
Status WinKaiser(T* x, Count n, double beta) noexcept;

// `sigma` is a share of the length; one that is not positive means 0.2.
template <class T>
Status WinGaussian(T* x, Count n, double sigma) noexcept;
Status WinGaussianSymmetric(double* x, Count n, double sigma) noexcept;

// What an attenuation in decibels means as a ratio of amplitudes.
inline double WinRatioOfDecibels(double decibels) noexcept { return std::pow(10.0, decibels / 20.0); }

// Dolph-Chebyshev with sidelobes at 1/ratio of the main lobe; a ratio below 1 means 1.
template <class T>
Status WinChebyshev(T* x, Count n, double ratio) noexcept;
Status WinChebyshevSymmetric(double* x, Count n, double ratio) noexcept;

// The factor falls from 1 to `final` by equal ratios. n < 2 gives -20006, then final <= 0 gives -20027.
template <class T>
Status WinExponential(T* x, Count n, double final) noexcept;

// Keeps the first `duty` percent of the samples and clears the rest. n < 2 gives -20006.
template <class T>
Status WinForce(T* x, Count n, double duty) noexcept;

// The symmetric window of a code into w. The parameter is already a ratio for Chebyshev. An unknown code gives -20061.
Status WinMakeSymmetric(std::int32_t code, double* w, Count n, double parameter) noexcept;

// Multiplies by the symmetric window of a code, with the parameter as a caller gives it (decibels for Chebyshev;
// negative ones replaced). n = 1 returns 0 whatever the code.
template <class T>
Status WinApplySymmetric(T* x, Count n, std::int32_t code, double parameter) noexcept;

// Multiplies by the periodic window divided by its coherent gain and tells its properties, NaN after an error. n < 0
// gives -20004; n = 0 is allowed for the rectangle and the cosine sums.
template <class T>
Status WinApplyScaled(T* x, Count n, std::int32_t code, double parameter, WinProperties* properties) noexcept;

// The properties that WinApplyScaled would tell, NaN after an error.
Status WinPropertiesOf(Count n, std::int32_t code, double parameter, WinProperties* properties) noexcept;

// The printed properties of the windows that have some; -20061 without touching them for every other code.
Status WinPropertiesFixed(std::uint32_t code, WinProperties* properties) noexcept;

// enbw = n * sum of w^2 / (sum of w)^2 and the mean of w; both NaN for n = 0. The sums run in index order.
Status WinPropertiesMeasure(const double* w, std::uint32_t n, WinProperties* properties) noexcept;

}  // namespace quorvan

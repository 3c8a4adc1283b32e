#include "filters/fir_window.h"

#include <cmath>

#include "frame/status.h"
#include "sources/windows.h"

namespace quorvan {
namespace {

// One of a highpass or bandstop response, whose even lengths are forced to zero at fs/2.
bool PassesNyquist(std::uint32_t kind) { return kind == kHighpass || kind == kBandstop; }

Status CheckDesign(std::uint32_t kind, double fs, double fl, double fh, Count taps) {
    if (taps < 1) return status::kOrderNotPositive;
    if (fs <= 0 || fl <= 0) return status::kBandOutOfRange;
    if (IsBand(kind) && (fh <= 0 || fl >= fh)) return status::kBandOutOfRange;
    if (PassesNyquist(kind) && taps % 2 == 0) return status::kCoefficientsNotOdd;
    return status::kSuccess;
}

// An angle w t that starts at the first tap, t = -M/2, and grows by w from tap to tap.
struct Angle {
    double value, step;

    Angle(double w, double M) : value(-M * w / 2), step(w) {}
    void advance() { value += step; }
};

// h(t) = sin(w t) / (pi t) for t = i - M/2, M = taps - 1: the inverse Fourier transform of a rectangle. A bandpass is
// the difference of two of them; highpass and bandstop are a unit pulse less the lowpass and the bandpass.
void Lowpass(double w, double sign, Count taps, double* h) {
    const double M = taps - 1.0;
    Angle x(w, M), pi(kPi, M);
    for (Count i = 0; i < taps / 2; ++i, x.advance(), pi.advance())
        h[i] = h[taps - 1 - i] = sign * std::sin(x.value) / pi.value;
}

void Bandpass(double plus, double minus, Count taps, double* h) {
    const double M = taps - 1.0;
    Angle x(plus, M), y(minus, M), pi(kPi, M);
    for (Count i = 0; i < taps / 2; ++i, x.advance(), y.advance(), pi.advance())
        h[i] = h[taps - 1 - i] = (std::sin(x.value) - std::sin(y.value)) / pi.value;
}

std::int32_t WindowOf(std::int32_t choice) {
    switch (choice) {
        case 1: return QV_WINDOW_RECTANGULAR;
        case 2: return QV_WINDOW_TRIANGLE;
        case 3: return QV_WINDOW_HANNING;
        case 5: return QV_WINDOW_BLACKMAN;
        default: return QV_WINDOW_HAMMING;  // deliberate: an unknown choice is no error
    }
}

}  // namespace

Status FirIdealResponse(std::uint32_t kind, double fs, double fl, double fh, Count taps, double* h) noexcept {
    if (kind > kBandstop) return status::kInvalidSelection;
    if (!IsBand(kind)) fh = (fs / 2 + fl) / 2;
    if (taps < 1) return status::kOrderNotPositive;
    if (fl > fs / 2 || fh > fs / 2) return status::kCutoffOutOfRange;
    if (const Status failure = CheckDesign(kind, fs, fl, fh, taps)) return failure;

    const double w1 = kTwoPi * fl / fs, w2 = kTwoPi * fh / fs;
    double middle = 0;
    switch (kind) {
        case kLowpass:
            Lowpass(w1, 1, taps, h);
            middle = w1 / kPi;
            break;
        case kHighpass:
            Lowpass(w1, -1, taps, h);
            middle = 1 - w1 / kPi;
            break;
        case kBandpass:
            Bandpass(w2, w1, taps, h);
            middle = (w2 - w1) / kPi;
            break;
        default: Bandpass(w1, w2, taps, h); middle = 1 - (w2 - w1) / kPi;
    }
    if (taps % 2) h[taps / 2] = middle;
    return status::kSuccess;
}

Status FirDesignWindow(std::uint32_t kind, double fs, double fl, double fh, Count taps, std::int32_t window,
                       double parameter, double* h) noexcept {
    const Status ideal = FirIdealResponse(kind, fs, fl, fh, taps, h);
    return ideal < 0 ? ideal : WinApplySymmetric(h, taps, window, parameter);
}

Status FirDesignChoice(std::uint32_t kind, double fs, double fl, double fh, Count taps, std::int32_t choice,
                       double* h) noexcept {
    return FirDesignWindow(kind, fs, fl, fh, taps, WindowOf(choice), 0.0, h);
}

Status FirDesignKaiser(std::uint32_t kind, double fs, double fl, double fh, Count taps, double beta,
                       double* h) noexcept {
    return FirDesignWindow(kind, fs, fl, fh, taps, QV_WINDOW_KAISER, beta < 0 ? 4.5 : beta, h);
}

}  // namespace quorvan

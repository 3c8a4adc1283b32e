// Entries of the spectrum measurements.
#include "frame/entry.h"
#include "measure/ac_dc.h"
#include "measure/one_sided.h"
#include "measure/spectral_peak.h"
#include "measure/transfer.h"
#include "measure/two_sided.h"
#include "measure/units.h"
#include "measure/unwrap.h"
#include "quorvan/quorvan.h"

using namespace quorvan;

QV_EXPORT Status ZemFunc147(double* x, double* im, Size n) {
    return narrowed(n, [&](Count n) { return SpecRealFft(x, im, n); });
}

QV_EXPORT Status ZemFunc148(double* re, double* im, Size n) {
    return narrowed(n, [&](Count n) { return SpecRealInverseFft(re, im, n); });
}

QV_EXPORT Status ZemFunc102(double* re, double* im, Size n) {
    return narrowed(n, [&](Count n) { return SpecComplexInverseFft(re, im, n); });
}

QV_EXPORT Status ZemFunc161(double* x, Size n) {
    return narrowed(n, [&](Count n) { return SpecAutoPower(x, n); });
}

QV_EXPORT Status ZemFunc36(const double* x, const double* y, Size n, double* re, double* im) {
    return narrowed(n, [&](Count n) { return SpecCrossPower(x, y, n, re, im); });
}

QV_EXPORT Status ZemFunc5(const double* x, Size n, std::int32_t unwrap, double dt, double* amp, double* phase,
                          double* df) {
    return narrowed(n, [&](Count n) { return SpecAmplitudePhase(x, n, unwrap, dt, amp, phase, df); });
}

QV_EXPORT Status ZemFunc10(const double* x, Size n, double dt, double* power, double* df) {
    return narrowed(n, [&](Count n) { return SpecPowerSpectrum(x, n, dt, power, df); });
}

QV_EXPORT Status ZemFunc37(const double* x, const double* y, Size n, double dt, double* mag, double* phase,
                           double* df) {
    return narrowed(n, [&](Count n) { return SpecCrossPowerPolar(x, y, n, dt, mag, phase, df); });
}

QV_EXPORT Status ZemFunc176(const double* stimulus, const double* response, Size n, double dt, double* mag,
                            double* phase, double* df) {
    return narrowed(n, [&](Count n) { return SpecTransferFunction(stimulus, response, n, dt, mag, phase, df); });
}

QV_EXPORT Status ZemFunc94(const double* divisor, const double* signal, Size n, double* out) {
    return narrowed(n, [&](Count n) { return SpecDeconvolve(divisor, signal, n, out); });
}

QV_EXPORT Status ZemFunc129(const double* stimulus, const double* response, Size n, Size frames, double dt,
                            double* crossMag, double* crossPhase, double* transferMag, double* transferPhase,
                            double* coherence, double* impulse, double* df) {
    return narrowed(n, frames, [&](Count n, Count frames) {
        return SpecNetworkAnalysis(stimulus, response, n, frames, dt,
                                   {crossMag, crossPhase, transferMag, transferPhase, coherence, impulse, df});
    });
}

QV_EXPORT Status ZemFunc162(const double* spectrum, Size n, std::uint32_t kind, std::uint32_t display,
                            std::int32_t flags, double df, const WinProperties* window, double* out, char* unit) {
    return narrowed(
        n, [&](Count n) { return SpecUnitConvert(spectrum, n, kind, display, flags, df, *window, out, unit); });
}

QV_EXPORT Status ZemFunc368(double* phase, Size n, std::uint32_t mode) {
    return narrowed(n, [&](Count n) {
        if (n < 1) return status::kWrongDataCount;
        return SpecUnwrapPhase(phase, n, mode);
    });
}

QV_EXPORT Status ZemFunc183(double* phase, Size n) {
    return narrowed(n, [&](Count n) { return SpecUnwrapPhase(phase, n, 0); });
}

QV_EXPORT Status ZemFunc139(const double* power, Size n, double search, const WinProperties* window, double df,
                            Size span, double* frequency, double* peakPower) {
    return narrowed(n, span, [&](Count n, Count span) {
        return SpecPeakPowerFrequency(power, n, search, *window, df, span, frequency, peakPower);
    });
}

QV_EXPORT Status ZemFunc2(const double* x, Size n, double* ac, double* dc) {
    return narrowed(n, [&](Count n) { return SpecAcDcEstimate(x, n, ac, dc); });
}

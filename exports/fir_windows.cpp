// Entries of FIR design by windows.
#include "filters/fir_filter.h"
#include "filters/fir_window.h"
#include "frame/entry.h"
#include "quorvan/quorvan.h"

using namespace quorvan;

namespace {

template <class T>
Status Filter(const T* x, Size n, std::int32_t taps, std::uint32_t kind, double fs, double fl, double fh,
              std::int32_t window, double parameter, T* y) {
    return narrowed(n, [&](Count n) { return FirFilterWindow(x, n, taps, kind, fs, fl, fh, window, parameter, y); });
}

}  // namespace

QV_EXPORT Status ZemFunc79(std::uint32_t kind, double fs, double fl, double fh, std::int32_t taps, double* h) {
    return FirIdealResponse(kind, fs, fl, fh, taps, h);
}

QV_EXPORT Status ZemFunc335(std::uint32_t kind, double fs, double fl, double fh, std::int32_t taps, std::int32_t window,
                            double parameter, double* h) {
    return FirDesignWindow(kind, fs, fl, fh, taps, window, parameter, h);
}

QV_EXPORT Status ZemFunc189(double fs, double fc, std::int32_t taps, double* h, std::int32_t window) {
    return FirDesignChoice(kLowpass, fs, fc, fs, taps, window, h);
}

QV_EXPORT Status ZemFunc188(double fs, double fc, std::int32_t taps, double* h, std::int32_t window) {
    return FirDesignChoice(kHighpass, fs, fc, fs, taps, window, h);
}

QV_EXPORT Status ZemFunc186(double fs, double fl, double fh, std::int32_t taps, double* h, std::int32_t window) {
    return FirDesignChoice(kBandpass, fs, fl, fh, taps, window, h);
}

QV_EXPORT Status ZemFunc187(double fs, double fl, double fh, std::int32_t taps, double* h, std::int32_t window) {
    return FirDesignChoice(kBandstop, fs, fl, fh, taps, window, h);
}

QV_EXPORT Status ZemFunc112(double fs, double fc, std::int32_t taps, double* h, double beta) {
    return FirDesignKaiser(kLowpass, fs, fc, fs, taps, beta, h);
}

QV_EXPORT Status ZemFunc111(double fs, double fc, std::int32_t taps, double* h, double beta) {
    return FirDesignKaiser(kHighpass, fs, fc, fs, taps, beta, h);
}

QV_EXPORT Status ZemFunc109(double fs, double fl, double fh, std::int32_t taps, double* h, double beta) {
    return FirDesignKaiser(kBandpass, fs, fl, fh, taps, beta, h);
}

QV_EXPORT Status ZemFunc110(double fs, double fl, double fh, std::int32_t taps, double* h, double beta) {
    return FirDesignKaiser(kBandstop, fs, fl, fh, taps, beta, h);
}

// Real samples

QV_EXPORT Status ZemFunc480(const double* x, Size n, std::int32_t taps, std::uint32_t kind, double fs, double fl,
                            double fh, std::int32_t window, double parameter, double* y) {
    return Filter(x, n, taps, kind, fs, fl, fh, window, parameter, y);
}

QV_EXPORT Status ZemFunc481(const double* x, Size n, std::int32_t taps, double fs, double fc, std::int32_t window,
                            double parameter, double* y) {
    return Filter(x, n, taps, kLowpass, fs, fc, fs, window, parameter, y);
}

QV_EXPORT Status ZemFunc482(const double* x, Size n, std::int32_t taps, double fs, double fc, std::int32_t window,
                            double parameter, double* y) {
    return Filter(x, n, taps, kHighpass, fs, fc, fs, window, parameter, y);
}

QV_EXPORT Status ZemFunc483(const double* x, Size n, std::int32_t taps, double fs, double fl, double fh,
                            std::int32_t window, double parameter, double* y) {
    return Filter(x, n, taps, kBandpass, fs, fl, fh, window, parameter, y);
}

QV_EXPORT Status ZemFunc484(const double* x, Size n, std::int32_t taps, double fs, double fl, double fh,
                            std::int32_t window, double parameter, double* y) {
    return Filter(x, n, taps, kBandstop, fs, fl, fh, window, parameter, y);
}

// Complex samples

QV_EXPORT Status ZemFunc485(const ComplexRecord* x, Size n, std::int32_t taps, std::uint32_t kind, double fs, double fl,
                            double fh, std::int32_t window, double parameter, ComplexRecord* y) {
    return Filter(x, n, taps, kind, fs, fl, fh, window, parameter, y);
}

QV_EXPORT Status ZemFunc486(const ComplexRecord* x, Size n, std::int32_t taps, double fs, double fc,
                            std::int32_t window, double parameter, ComplexRecord* y) {
    return Filter(x, n, taps, kLowpass, fs, fc, fs, window, parameter, y);
}

QV_EXPORT Status ZemFunc487(const ComplexRecord* x, Size n, std::int32_t taps, double fs, double fc,
                            std::int32_t window, double parameter, ComplexRecord* y) {
    return Filter(x, n, taps, kHighpass, fs, fc, fs, window, parameter, y);
}

QV_EXPORT Status ZemFunc488(const ComplexRecord* x, Size n, std::int32_t taps, double fs, double fl, double fh,
                            std::int32_t window, double parameter, ComplexRecord* y) {
    return Filter(x, n, taps, kBandpass, fs, fl, fh, window, parameter, y);
}

QV_EXPORT Status ZemFunc489(const ComplexRecord* x, Size n, std::int32_t taps, double fs, double fl, double fh,
                            std::int32_t window, double parameter, ComplexRecord* y) {
    return Filter(x, n, taps, kBandstop, fs, fl, fh, window, parameter, y);
}

// Entries of equiripple FIR design.
#include "filters/equiripple.h"
#include "filters/fir_filter.h"
#include "frame/entry.h"
#include "quorvan/quorvan.h"

using namespace quorvan;

namespace {

template <int kEdges>
constexpr RemezNamed<kEdges> Passing(double edge, auto... edges) {
    return {1, {edge, edges...}};
}
template <int kEdges>
constexpr RemezNamed<kEdges> Stopping(double edge, auto... edges) {
    return {0, {edge, edges...}};
}

// Designs and filters. An even length that cannot pass fs/2 is raised by one, where the designs refuse it: deliberate.
template <class T, int kEdges>
Status Filter(const T* x, Size n, Count taps, double fs, const RemezNamed<kEdges>& bands, T* y) {
    return narrowed(n, [&](Count n) {
        if (n < 1) return status::kSamplesNotPositive;
        if (taps < 3) return status::kFilterNotDesignable;
        const Count count = PassesNyquist(bands) && taps % 2 == 0 ? taps + 1 : taps;
        return FirFilterDesigned(x, n, count, y, [&](double* h) {
            double delta;
            return FirRemezNamed(fs, bands, count, h, &delta);
        });
    });
}

}  // namespace

QV_EXPORT Status ZemFunc65(std::int32_t bands, const double* desired, const double* weights, double fs,
                           const double* edges, std::int32_t kind, std::int32_t taps, double* h, double* delta) {
    return FirRemezCore({bands, desired, weights, fs, edges, kind, taps}, h, delta, kRemezIterations);
}

QV_EXPORT Status ZemFunc408(std::int32_t taps, double fs, const QvBand* bands, Size count, std::int32_t kind, double* h,
                            double* delta) {
    return narrowed(count, [&](Count count) { return FirRemezBands(taps, fs, bands, count, kind, h, delta); });
}

QV_EXPORT Status ZemFunc69(double fs, double fpass, double fstop, std::int32_t taps, double* h, double* delta) {
    return FirRemezNamed(fs, Passing<2>(fpass, fstop), taps, h, delta);
}

QV_EXPORT Status ZemFunc68(double fs, double fstop, double fpass, std::int32_t taps, double* h, double* delta) {
    return FirRemezNamed(fs, Stopping<2>(fstop, fpass), taps, h, delta);
}

QV_EXPORT Status ZemFunc66(double fs, double f1, double f2, double f3, double f4, std::int32_t taps, double* h,
                           double* delta) {
    return FirRemezNamed(fs, Stopping<4>(f1, f2, f3, f4), taps, h, delta);
}

QV_EXPORT Status ZemFunc67(double fs, double f1, double f2, double f3, double f4, std::int32_t taps, double* h,
                           double* delta) {
    return FirRemezNamed(fs, Passing<4>(f1, f2, f3, f4), taps, h, delta);
}

// Real samples

QV_EXPORT Status ZemFunc472(const double* x, Size n, std::int32_t taps, double fs, double fpass, double fstop,
                            double* y) {
    return Filter(x, n, taps, fs, Passing<2>(fpass, fstop), y);
}

QV_EXPORT Status ZemFunc473(const double* x, Size n, std::int32_t taps, double fs, double fstop, double fpass,
                            double* y) {
    return Filter(x, n, taps, fs, Stopping<2>(fstop, fpass), y);
}

QV_EXPORT Status ZemFunc474(const double* x, Size n, std::int32_t taps, double fs, double f1, double f2, double f3,
                            double f4, double* y) {
    return Filter(x, n, taps, fs, Stopping<4>(f1, f2, f3, f4), y);
}

QV_EXPORT Status ZemFunc475(const double* x, Size n, std::int32_t taps, double fs, double f1, double f2, double f3,
                            double f4, double* y) {
    return Filter(x, n, taps, fs, Passing<4>(f1, f2, f3, f4), y);
}

// Complex samples

QV_EXPORT Status ZemFunc476(const ComplexRecord* x, Size n, std::int32_t taps, double fs, double fpass, double fstop,
                            ComplexRecord* y) {
    return Filter(x, n, taps, fs, Passing<2>(fpass, fstop), y);
}

QV_EXPORT Status ZemFunc477(const ComplexRecord* x, Size n, std::int32_t taps, double fs, double fstop, double fpass,
                            ComplexRecord* y) {
    return Filter(x, n, taps, fs, Stopping<2>(fstop, fpass), y);
}

QV_EXPORT Status ZemFunc478(const ComplexRecord* x, Size n, std::int32_t taps, double fs, double f1, double f2,
                            double f3, double f4, ComplexRecord* y) {
    return Filter(x, n, taps, fs, Stopping<4>(f1, f2, f3, f4), y);
}

QV_EXPORT Status ZemFunc479(const ComplexRecord* x, Size n, std::int32_t taps, double fs, double f1, double f2,
                            double f3, double f4, ComplexRecord* y) {
    return Filter(x, n, taps, fs, Passing<4>(f1, f2, f3, f4), y);
}

// Entries of convolution, correlation and deconvolution.
#include "transforms/convolution.h"

#include "frame/entry.h"
#include "quorvan/quorvan.h"
#include "transforms/convolution_2d.h"

using namespace quorvan;

namespace {

constexpr std::uint32_t kRaw = 0;  // no normalisation

}  // namespace

// Sequences

QV_EXPORT Status ZemFunc32(const double* x, Size n, const double* y, Size m, double* out) {
    return narrowed(n, m, [&](Count n, Count m) { return ConvolveReal(x, n, y, m, kConvolveByFft, out); });
}

QV_EXPORT Status ZemFunc372(const double* x, Size n, const double* y, Size m, std::int32_t method, double* out) {
    return narrowed(n, m, [&](Count n, Count m) { return ConvolveReal(x, n, y, m, method, out); });
}

QV_EXPORT Status ZemFunc391(const ComplexRecord* x, Size n, const ComplexRecord* y, Size m, std::uint32_t method,
                            ComplexRecord* out) {
    return narrowed(n, m, [&](Count n, Count m) { return ConvolveComplex(x, n, y, m, method, out); });
}

QV_EXPORT Status ZemFunc33(const double* x, Size n, const double* y, Size m, double* out) {
    return narrowed(n, m, [&](Count n, Count m) { return CorrelateReal(x, n, y, m, kConvolveByFft, kRaw, out); });
}

QV_EXPORT Status ZemFunc373(const double* x, Size n, const double* y, Size m, std::int32_t method, double* out) {
    return narrowed(n, m, [&](Count n, Count m) { return CorrelateReal(x, n, y, m, method, kRaw, out); });
}

QV_EXPORT Status ZemFunc376(const double* x, Size n, const double* y, Size m, std::int32_t method,
                            std::uint32_t normalisation, double* out) {
    return narrowed(n, m, [&](Count n, Count m) { return CorrelateReal(x, n, y, m, method, normalisation, out); });
}

QV_EXPORT Status ZemFunc424(const double* x, Size n, std::int32_t normalisation, double* out) {
    return narrowed(n, [&](Count n) { return CorrelateReal(x, n, x, n, kConvolveByFft, normalisation, out); });
}

QV_EXPORT Status ZemFunc421(const ComplexRecord* x, Size n, const ComplexRecord* y, Size m, std::uint32_t method,
                            ComplexRecord* out) {
    return narrowed(n, m, [&](Count n, Count m) { return CorrelateComplex(x, n, y, m, method, kRaw, out); });
}

QV_EXPORT Status ZemFunc490(const ComplexRecord* x, Size n, const ComplexRecord* y, Size m, std::uint32_t method,
                            std::uint32_t normalisation, ComplexRecord* out) {
    return narrowed(n, m, [&](Count n, Count m) { return CorrelateComplex(x, n, y, m, method, normalisation, out); });
}

QV_EXPORT Status ZemFunc425(const ComplexRecord* x, Size n, std::int32_t normalisation, ComplexRecord* out) {
    return narrowed(n, [&](Count n) { return AutoCorrelateComplex(x, n, normalisation, out); });
}

QV_EXPORT Status ZemFunc54(const double* y, Size n, const double* x, Size m, double* out) {
    return narrowed(n, m, [&](Count n, Count m) { return Deconvolve(y, n, x, m, out); });
}

// Arrays

QV_EXPORT Status ZemFunc392(const double* x, Size rows1, Size cols1, const double* y, Size rows2, Size cols2,
                            std::uint32_t shape, std::uint32_t method, double* out) {
    return narrowed(rows1, cols1, rows2, cols2, [&](Count rows1, Count cols1, Count rows2, Count cols2) {
        return Convolve2D(x, rows1, cols1, y, rows2, cols2, shape, method, out);
    });
}

QV_EXPORT Status ZemFunc393(const ComplexRecord* x, Size rows1, Size cols1, const ComplexRecord* y, Size rows2,
                            Size cols2, std::uint32_t shape, std::uint32_t method, ComplexRecord* out) {
    return narrowed(rows1, cols1, rows2, cols2, [&](Count rows1, Count cols1, Count rows2, Count cols2) {
        return Convolve2D(x, rows1, cols1, y, rows2, cols2, shape, method, out);
    });
}

QV_EXPORT Status ZemFunc422(const double* x, Size rows1, Size cols1, const double* y, Size rows2, Size cols2,
                            std::uint32_t method, double* out) {
    return narrowed(rows1, cols1, rows2, cols2, [&](Count rows1, Count cols1, Count rows2, Count cols2) {
        return Correlate2D(x, rows1, cols1, y, rows2, cols2, method, out);
    });
}

QV_EXPORT Status ZemFunc423(const ComplexRecord* x, Size rows1, Size cols1, const ComplexRecord* y, Size rows2,
                            Size cols2, std::uint32_t method, ComplexRecord* out) {
    return narrowed(rows1, cols1, rows2, cols2, [&](Count rows1, Count cols1, Count rows2, Count cols2) {
        return Correlate2D(x, rows1, cols1, y, rows2, cols2, method, out);
    });
}

QV_EXPORT Status ZemFunc426(const double* x, Size rows, Size cols, double* out) {
    return narrowed(rows, cols, [&](Count rows, Count cols) {
        return Correlate2D(x, rows, cols, x, rows, cols, kConvolveByFft, out);
    });
}

QV_EXPORT Status ZemFunc427(const ComplexRecord* x, Size rows, Size cols, ComplexRecord* out) {
    return narrowed(rows, cols, [&](Count rows, Count cols) {
        return Correlate2D(x, rows, cols, x, rows, cols, kConvolveByFft, out);
    });
}

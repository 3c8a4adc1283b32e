// Entries of the transforms.
#include "frame/entry.h"
#include "quorvan/quorvan.h"
#include "transforms/chirp_z.h"
#include "transforms/cosine.h"
#include "transforms/fourier.h"
#include "transforms/fourier_2d.h"
#include "transforms/hartley.h"

using namespace quorvan;

namespace {

const FftPlan* Given(const QvFftPlan* plan) { return reinterpret_cast<const FftPlan*>(plan); }

// The cosine and sine transforms of a length L work on 2 L or 2 L + 2 points: a size like any other, so it must fit
// before anything else is looked at.
constexpr Size kCosinePoints = 0;
constexpr Size kSinePoints = 2;

template <Size kMore, class Body>
Status WithTwice(Count length, const Body& body) {
    return narrowed(2 * Size{length} + kMore, [&](Count) { return body(); });
}

template <Size kMore, class Body>
Status WithTwice(Count rows, Count cols, const Body& body) {
    return WithTwice<kMore>(rows, [&] { return WithTwice<kMore>(cols, body); });
}

}  // namespace

// Fourier transforms

QV_EXPORT Status ZemFunc262(const double* x, Size n, Size fftSize, QvFftPlan* plan, std::int32_t shift,
                            ComplexRecord* out) {
    return narrowed(n, fftSize, [&](Count n, Count fftSize) {
        return TransformRealFft(x, n, fftSize, Given(plan), shift != 0, out);
    });
}

QV_EXPORT Status ZemFunc263(const ComplexRecord* x, Size n, Size fftSize, QvFftPlan* plan, std::int32_t shift,
                            ComplexRecord* out) {
    return narrowed(n, fftSize, [&](Count n, Count fftSize) {
        return TransformComplexFft(x, n, fftSize, Given(plan), shift != 0, out);
    });
}

QV_EXPORT Status ZemFunc264(const ComplexRecord* X, Size n, QvFftPlan* plan, std::int32_t shift, double* out) {
    return narrowed(n, [&](Count n) { return TransformRealIfft(X, n, Given(plan), shift != 0, out); });
}

QV_EXPORT Status ZemFunc265(const ComplexRecord* X, Size n, QvFftPlan* plan, std::int32_t shift, ComplexRecord* out) {
    return narrowed(n, [&](Count n) { return TransformComplexIfft(X, n, Given(plan), shift != 0, out); });
}

QV_EXPORT Status ZemFunc77(double* re, double* im, Size n) {
    return narrowed(n, [&](Count n) { return TransformSplitFft(re, im, n); });
}

QV_EXPORT Status ZemFunc467(const ComplexRecord* x, Size n, double* out) {
    return narrowed(n, [&](Count n) { return PowerSpectrumComplex(x, n, out); });
}

QV_EXPORT Status ZemFunc468(const ComplexRecord* x, const ComplexRecord* y, Size n, ComplexRecord* out) {
    return narrowed(n, [&](Count n) { return CrossPowerComplex(x, y, n, out); });
}

// Fourier transforms in two dimensions

QV_EXPORT Status ZemFunc266(const double* x, Size rows, Size cols, Size fftRows, Size fftCols, std::int32_t shift,
                            ComplexRecord* out) {
    return narrowed(rows, cols, fftRows, fftCols, [&](Count rows, Count cols, Count fftRows, Count fftCols) {
        return TransformRealFft2D(x, rows, cols, fftRows, fftCols, shift != 0, out);
    });
}

QV_EXPORT Status ZemFunc267(const ComplexRecord* x, Size rows, Size cols, Size fftRows, Size fftCols,
                            std::int32_t shift, ComplexRecord* out) {
    return narrowed(rows, cols, fftRows, fftCols, [&](Count rows, Count cols, Count fftRows, Count fftCols) {
        return TransformComplexFft2D(x, rows, cols, fftRows, fftCols, shift != 0, out);
    });
}

QV_EXPORT Status ZemFunc268(const ComplexRecord* X, Size rows, Size cols, std::int32_t shift, double* out) {
    return narrowed(rows, cols,
                    [&](Count rows, Count cols) { return TransformRealIfft2D(X, rows, cols, shift != 0, out); });
}

QV_EXPORT Status ZemFunc269(const ComplexRecord* X, Size rows, Size cols, std::int32_t shift, ComplexRecord* out) {
    return narrowed(rows, cols,
                    [&](Count rows, Count cols) { return TransformComplexIfft2D(X, rows, cols, shift != 0, out); });
}

// Cosine and sine transforms

QV_EXPORT Status ZemFunc270(const double* x, Size n, Size fftSize, double* out) {
    return narrowed(n, fftSize, [&](Count n, Count fftSize) {
        const Count length = TransformLength(n, fftSize);
        return WithTwice<kCosinePoints>(length, [&] { return TransformDct(x, n, length, out); });
    });
}

QV_EXPORT Status ZemFunc271(const double* x, Size n, double* out) {
    return narrowed(n, [&](Count n) { return WithTwice<kCosinePoints>(n, [&] { return TransformIdct(x, n, out); }); });
}

QV_EXPORT Status ZemFunc272(const double* x, Size n, Size fftSize, double* out) {
    return narrowed(n, fftSize, [&](Count n, Count fftSize) {
        const Count length = TransformLength(n, fftSize);
        return WithTwice<kSinePoints>(length, [&] { return TransformDst(x, n, length, out); });
    });
}

QV_EXPORT Status ZemFunc273(const double* x, Size n, double* out) {
    return narrowed(n, [&](Count n) { return WithTwice<kSinePoints>(n, [&] { return TransformIdst(x, n, out); }); });
}

QV_EXPORT Status ZemFunc274(const double* x, Size rows, Size cols, double* out) {
    return narrowed(rows, cols, [&](Count rows, Count cols) {
        return WithTwice<kCosinePoints>(rows, cols, [&] { return TransformDct2D(x, rows, cols, out); });
    });
}

QV_EXPORT Status ZemFunc275(const double* x, Size rows, Size cols, double* out) {
    return narrowed(rows, cols, [&](Count rows, Count cols) {
        return WithTwice<kCosinePoints>(rows, cols, [&] { return TransformIdct2D(x, rows, cols, out); });
    });
}

QV_EXPORT Status ZemFunc276(const double* x, Size rows, Size cols, double* out) {
    return narrowed(rows, cols, [&](Count rows, Count cols) {
        return WithTwice<kSinePoints>(rows, cols, [&] { return TransformDst2D(x, rows, cols, out); });
    });
}

QV_EXPORT Status ZemFunc277(const double* x, Size rows, Size cols, double* out) {
    return narrowed(rows, cols, [&](Count rows, Count cols) {
        return WithTwice<kSinePoints>(rows, cols, [&] { return TransformIdst2D(x, rows, cols, out); });
    });
}

// Hartley and Hilbert transforms

QV_EXPORT Status ZemFunc78(double* x, Size n) {
    return narrowed(n, [&](Count n) { return TransformHartley(x, n); });
}

QV_EXPORT Status ZemFunc103(double* x, Size n) {
    return narrowed(n, [&](Count n) { return TransformInverseHartley(x, n); });
}

QV_EXPORT Status ZemFunc75(double* x, Size n) {
    return narrowed(n, [&](Count n) { return TransformHilbert(x, n); });
}

QV_EXPORT Status ZemFunc76(double* x, Size n) {
    return narrowed(n, [&](Count n) { return TransformInverseHilbert(x, n); });
}

// Chirp-Z transforms

QV_EXPORT Status ZemFunc341(const double* x, Size n, ComplexRecord a, ComplexRecord w, std::uint32_t method, Size m,
                            ComplexRecord* out) {
    return narrowed(n, m, [&](Count n, Count m) { return TransformChirpZReal(x, n, a, w, method, m, out); });
}

QV_EXPORT Status ZemFunc342(const ComplexRecord* x, Size n, ComplexRecord a, ComplexRecord w, std::uint32_t method,
                            Size m, ComplexRecord* out) {
    return narrowed(n, m, [&](Count n, Count m) { return TransformChirpZComplex(x, n, a, w, method, m, out); });
}

QV_EXPORT Status ZemFunc351(ComplexRecord* X, Size n, ComplexRecord a, ComplexRecord w, ComplexRecord* out, Size m) {
    return narrowed(n, m, [&](Count n, Count m) { return TransformInverseChirpZ(X, n, a, w, out, m); });
}

#include "transforms/convolution.h"

#include <algorithm>

#include "frame/memory.h"
#include "frame/status.h"
#include "transforms/direct_convolution.h"
#include "transforms/fft.h"
#include "transforms/spectrum_layout.h"

namespace quorvan {
namespace {

Status CheckSizes(Count n, Count m) {
    if (n < 1 || m < 1) return status::kSamplesNotPositive;
    return ConvolvedLength(n, m) > INT32_MAX ? status::kOverflow : status::kSuccess;
}

Status ByFft(const ComplexRecord* x, Count n, const ComplexRecord* y, Count m, ComplexRecord* out) {
    const Count length = static_cast<Count>(ConvolvedLength(n, m)), S = FftFastSize(length);
    const HeldPlan plan(S);
    const Block<ComplexRecord> work(3 * static_cast<std::size_t>(S));
    if (!plan || !work) return status::kOutOfMemory;
    ComplexRecord *const padded = work, *const xSpectrum = padded + S, *const ySpectrum = xSpectrum + S;
    CopyPadded(x, n, S, padded);
    if (const Status failure = RecordsThrough(FftComplex, plan, padded, xSpectrum, S)) return failure;
    CopyPadded(y, m, S, padded);
    if (const Status failure = RecordsThrough(FftComplex, plan, padded, ySpectrum, S)) return failure;
    kSpectrumLoops().multiply(xSpectrum, ySpectrum, S);
    if (S == length) return RecordsThrough(FftComplexInverse, plan, xSpectrum, out, S);
    if (const Status failure = RecordsThrough(FftComplexInverse, plan, xSpectrum, padded, S)) return failure;
    std::copy(padded, padded + length, out);
    return status::kSuccess;
}

// x as it stands, or from its end.
Status ByFft(const double* x, Count n, bool reversed, const double* y, Count m, double* out) {
    const Count length = static_cast<Count>(ConvolvedLength(n, m)), S = FftFastSize(length);
    const HeldPlan plan(S);
    const Block<double> work(3 * static_cast<std::size_t>(S));
    if (!plan || !work) return status::kOutOfMemory;
    double *const padded = work, *const xSpectrum = padded + S, *const ySpectrum = xSpectrum + S;
    CopyPadded(x, n, S, padded);
    if (reversed) std::reverse(padded, padded + n);
    if (const Status failure = FftReal(plan, padded, xSpectrum, 1, 1, S)) return failure;
    CopyPadded(y, m, S, padded);
    if (const Status failure = FftReal(plan, padded, ySpectrum, 1, 1, S)) return failure;
    kSpectrumLoops().multiplyHalf(xSpectrum, ySpectrum, S, padded);
    if (S == length) return FftRealInverse(plan, padded, out, 1, 1, S);
    if (const Status failure = FftRealInverse(plan, padded, xSpectrum, 1, 1, S)) return failure;
    std::copy(xSpectrum, xSpectrum + length, out);
    return status::kSuccess;
}

// One transform there and one back; negative lags come from the end of the circular result.
Status AutocorrelateByFft(const double* x, Count n, double* out) {
    const Count S = FftFastSize(static_cast<Count>(ConvolvedLength(n, n)));
    const HeldPlan plan(S);
    const Block<double> work(2 * static_cast<std::size_t>(S));
    if (!plan || !work) return status::kOutOfMemory;
    double *const lags = work, *const spectrum = lags + S;
    CopyPadded(x, n, S, lags);
    if (const Status failure = FftReal(plan, lags, spectrum, 1, 1, S)) return failure;
    kSpectrumLoops().powerHalf(spectrum, S, lags);
    if (const Status failure = FftRealInverse(plan, lags, spectrum, 1, 1, S)) return failure;
    std::copy(spectrum, spectrum + n, out + n - 1);
    std::copy(spectrum + S - n + 1, spectrum + S, out);
    return status::kSuccess;
}

void Divide(double& element, double divisor) { element /= divisor; }
void Divide(ComplexRecord& element, double divisor) {
    element.re /= divisor;
    element.im /= divisor;
}

template <class T>
Status Normalise(T* out, Count n, Count m, std::uint32_t normalisation) {
    const Count shorter = std::min(n, m), longer = std::max(n, m);
    switch (normalisation) {
        case 0: return status::kSuccess;
        case 1:
            for (Count i = 0; i < shorter - 1; ++i) {
                Divide(out[i], i + 1);
                Divide(out[Size{longer} + i], shorter - 1 - i);
            }
            for (Count i = shorter - 1; i < longer; ++i) Divide(out[i], shorter);
            return status::kSuccess;
        case 2:
            for (Size i = 0; i < ConvolvedLength(n, m); ++i) Divide(out[i], longer);
            return status::kSuccess;
        default: return status::kInvalidSelection;
    }
}

}  // namespace

Status ConvolveReal(const double* x, Count n, const double* y, Count m, std::uint32_t method, double* out) noexcept {
    if (const Status failure = CheckSizes(n, m)) return failure;
    if (method == kConvolveByFft) return ByFft(x, n, false, y, m, out);
    if (method == kConvolveDirect) {
        std::fill(out, out + ConvolvedLength(n, m), 0.0);
        kDirectConvolution().reals(x, n, y, m, out);
    }
    return status::kSuccess;  // deliberate for unknown methods too
}

Status ConvolveComplex(const ComplexRecord* x, Count n, const ComplexRecord* y, Count m, std::uint32_t method,
                       ComplexRecord* out) noexcept {
    if (const Status failure = CheckSizes(n, m)) return failure;
    if (method > kConvolveByFft) return status::kInvalidSelection;
    if (method == kConvolveByFft) return ByFft(x, n, y, m, out);
    // Each output is a dot product along the longer sequence.
    std::fill(out, out + ConvolvedLength(n, m), ComplexRecord{});
    if (n >= m)
        kDirectConvolution().records(x, n, y, m, out);
    else
        kDirectConvolution().records(y, m, x, n, out);
    return status::kSuccess;
}

Status CorrelateReal(const double* x, Count n, const double* y, Count m, std::uint32_t method,
                     std::uint32_t normalisation, double* out) noexcept {
    if (const Status failure = CheckSizes(n, m)) return failure;
    Status outcome = status::kSuccess;
    if (method == kConvolveDirect) {
        std::fill(out, out + ConvolvedLength(n, m), 0.0);
        kDirectConvolution().realsReversed(y, m, x, n, out);
    } else if (method == kConvolveByFft && x == y) {  // deliberate: the pointers alone decide, and m plays no part
        if (const Status failure = CheckSizes(n, n)) return failure;
        outcome = AutocorrelateByFft(x, n, out);
    } else if (method == kConvolveByFft) {
        outcome = ByFft(x, n, true, y, m, out);
    }
    // Deliberate: also after a failure, and of what an unknown method has left in the array.
    return Later(outcome, Normalise(out, n, m, normalisation));
}

Status CorrelateComplex(const ComplexRecord* x, Count n, const ComplexRecord* y, Count m, std::uint32_t method,
                        std::uint32_t normalisation, ComplexRecord* out) noexcept {
    if (const Status failure = CheckSizes(n, m)) return failure;
    const Block<ComplexRecord> reversed(static_cast<std::size_t>(n));
    if (!reversed) return status::kOutOfMemory;
    for (Count i = 0; i < n; ++i) reversed[i] = {x[n - 1 - i].re, -x[n - 1 - i].im};
    if (const Status failure = ConvolveComplex(reversed, n, y, m, method, out)) return failure;
    return Normalise(out, n, m, normalisation);
}

}  // namespace quorvan

#include "transforms/convolution.h"

#include <algorithm>

#include "frame/complex.h"
#include "frame/memory.h"
#include "frame/status.h"
#include "transforms/block_convolution.h"
#include "transforms/direct_convolution.h"
#include "transforms/fft.h"
#include "transforms/spectrum_layout.h"

namespace quorvan {
namespace {

Status CheckSizes(Count n, Count m) {
    if (n < 1 || m < 1) return status::kSamplesNotPositive;
    return ConvolvedLength(n, m) > INT32_MAX ? status::kOverflow : status::kSuccess;
}

// What both kinds of sequences need of spectra, HalfComplex or full. No two arrays overlap.
Status Forward(const FftPlan* plan, const double* x, Count n, double* spectrum) {
    return FftReal(plan, x, spectrum, 1, 1, n);
}
Status Forward(const FftPlan* plan, const ComplexRecord* x, Count n, ComplexRecord* spectrum) {
    return RecordsThrough(FftComplex, plan, x, spectrum, n);
}
Status Back(const FftPlan* plan, double* spectrum, Count n, double* out) {
    return FftRealInverse(plan, spectrum, out, 1, 1, n);
}
Status Back(const FftPlan* plan, const ComplexRecord* spectrum, Count n, ComplexRecord* out) {
    return RecordsThrough(FftComplexInverse, plan, spectrum, out, n);
}
void Multiply(const double* a, const double* b, Count n, double* out) { kSpectrumLoops().multiplyHalf(a, b, n, out); }
void Multiply(const ComplexRecord* a, const ComplexRecord* b, Count n, ComplexRecord* out) {
    kSpectrumLoops().multiply(a, b, n, out);
}
void Power(const double* a, Count n, double* out) { kSpectrumLoops().powerHalf(a, n, out); }
void Power(const ComplexRecord* a, Count n, ComplexRecord* out) {
    for (Count k = 0; k < n; ++k) out[k] = {CxSquaredMagnitude(a[k]), 0};
}

// x as it stands, or from its end. In blocks when one sequence is much longer than the other.
template <class T>
Status ByFft(const T* x, Count n, bool reversed, const T* y, Count m, T* out) {
    const Count length = static_cast<Count>(ConvolvedLength(n, m)), S = FftFastSize(length);
    if (const Count block = BlockLength<T>(std::max(n, m), std::min(n, m), S)) {
        const Sequence<T> first{x, n, reversed}, second{y, m, false};
        return n < m ? ConvolveInBlocks(second, first, block, out) : ConvolveInBlocks(first, second, block, out);
    }
    const HeldPlan plan(S);
    const Block<T> work(3 * static_cast<std::size_t>(S));
    if (!plan || !work) return status::kOutOfMemory;
    T *const padded = work, *const xSpectrum = padded + S, *const ySpectrum = xSpectrum + S;
    CopyPadded(x, n, S, padded);
    if (reversed) std::reverse(padded, padded + n);
    if (const Status failure = Forward(plan, padded, S, xSpectrum)) return failure;
    CopyPadded(y, m, S, padded);
    if (const Status failure = Forward(plan, padded, S, ySpectrum)) return failure;
    Multiply(xSpectrum, ySpectrum, S, padded);
    if (S == length) return Back(plan, padded, S, out);
    if (const Status failure = Back(plan, padded, S, xSpectrum)) return failure;
    std::copy(xSpectrum, xSpectrum + length, out);
    return status::kSuccess;
}

// One transform there and one back; negative lags come from the end of the circular result.
template <class T>
Status AutocorrelateByFft(const T* x, Count n, T* out) {
    const Count S = FftFastSize(static_cast<Count>(ConvolvedLength(n, n)));
    const HeldPlan plan(S);
    const Block<T> work(2 * static_cast<std::size_t>(S));
    if (!plan || !work) return status::kOutOfMemory;
    T *const lags = work, *const spectrum = lags + S;
    CopyPadded(x, n, S, lags);
    if (const Status failure = Forward(plan, lags, S, spectrum)) return failure;
    Power(spectrum, S, lags);
    if (const Status failure = Back(plan, lags, S, spectrum)) return failure;
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
    if (method == kConvolveByFft) return ByFft(x, n, false, y, m, out);
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
    for (Count i = 0; i < n; ++i) reversed[i] = CxConj(x[n - 1 - i]);
    if (const Status failure = ConvolveComplex(reversed, n, y, m, method, out)) return failure;
    return Normalise(out, n, m, normalisation);
}

Status AutoCorrelateComplex(const ComplexRecord* x, Count n, std::uint32_t normalisation, ComplexRecord* out) noexcept {
    if (const Status failure = CheckSizes(n, n)) return failure;
    if (const Status failure = AutocorrelateByFft(x, n, out)) return failure;
    return Normalise(out, n, n, normalisation);
}

}  // namespace quorvan

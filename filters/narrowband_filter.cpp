#include <algorithm>

#include "filters/narrowband.h"
#include "frame/memory.h"
#include "frame/status.h"
#include "transforms/convolution.h"
#include "transforms/direct_convolution.h"

namespace quorvan {
namespace {

bool AddsInput(const FirNarrowband& filter) {
    return filter.mode >= kComplementBandpass && filter.mode <= kComplementLowpass;
}

// The taps of both stages as one filter of this many, 64 bits wide so that the length can be tested.
Size Span(const FirNarrowband& f) {
    if (f.factor <= 1) return f.model_count;
    return (Size{f.model_count} - 1) * f.factor + f.suppressor_count;
}

Status CheckSizes(Count n, const FirNarrowband& f) {
    if (n < 1 || f.model_count < 1 || (f.factor > 1 && f.suppressor_count < 1)) return status::kSamplesNotPositive;
    return n + Span(f) - 1 > INT32_MAX ? status::kOverflow : status::kSuccess;
}

// y = t convolved with the model whose taps stand L apart. The samples of one phase, every L-th, meet one another only:
// each phase is a plain convolution, whose sums run over the taps in ascending order.
Status Stretched(const double* t, Count count, const FirNarrowband& f, double* y) {
    const Count L = f.factor, m = f.model_count, longest = (count - 1) / L + 1;
    const Block<double> work(2 * static_cast<std::size_t>(longest) + static_cast<std::size_t>(m));
    if (!work) return status::kOutOfMemory;
    double *const samples = work, *const sums = work + longest;
    if (count < L) std::fill_n(y, (Size{m} - 1) * L + count, 0.0);  // some phases have no sample
    for (Count phase = 0; phase < L && phase < count; ++phase) {
        const Count size = (count - 1 - phase) / L + 1;
        for (Count i = 0; i < size; ++i) samples[i] = t[phase + Size{i} * L];
        std::fill_n(sums, ConvolvedLength(size, m), 0.0);
        kDirectConvolution().reals(f.model, m, samples, size, sums);
        for (Size i = 0; i < ConvolvedLength(size, m); ++i) y[phase + i * L] = sums[i];
    }
    return status::kSuccess;
}

Status TwoStages(const double* x, Count n, const FirNarrowband& f, double* y) {
    const Count count = static_cast<Count>(ConvolvedLength(n, f.suppressor_count));
    const Block<double> t(static_cast<std::size_t>(count));
    if (!t) return status::kOutOfMemory;
    if (const Status failure = ConvolveReal(x, n, f.suppressor, f.suppressor_count, kConvolveDirect, t)) return failure;
    return Stretched(t, count, f, y);
}

}  // namespace

Status FirNarrowbandFilter(const double* x, Count n, const FirNarrowband* filter, double* y) noexcept {
    if (const Status failure = CheckSizes(n, *filter)) return failure;
    const Status outcome = filter->factor > 1
                               ? TwoStages(x, n, *filter, y)
                               : ConvolveReal(x, n, filter->model, filter->model_count, kConvolveDirect, y);
    if (outcome < 0 || !AddsInput(*filter)) return outcome;
    double* const delayed = y + (Span(*filter) - 1) / 2;
    for (Count i = 0; i < n; ++i) delayed[i] += x[i];
    return outcome;
}

Status FirNarrowbandFilterComplex(const ComplexRecord* x, Count n, const FirNarrowband* filter,
                                  ComplexRecord* y) noexcept {
    if (const Status failure = CheckSizes(n, *filter)) return failure;
    const Size length = n + Span(*filter) - 1;
    const Block<double> work(static_cast<std::size_t>(n) + 2 * static_cast<std::size_t>(length));
    if (!work) return status::kOutOfMemory;
    double *const part = work, *const re = work + n, *const im = re + length;
    for (Count i = 0; i < n; ++i) part[i] = x[i].re;
    if (const Status failure = FirNarrowbandFilter(part, n, filter, re); failure < 0) return failure;
    for (Count i = 0; i < n; ++i) part[i] = x[i].im;
    if (const Status failure = FirNarrowbandFilter(part, n, filter, im); failure < 0) return failure;
    for (Size i = 0; i < length; ++i) y[i] = {re[i], im[i]};
    return status::kSuccess;
}

}  // namespace quorvan

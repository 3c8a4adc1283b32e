#include "transforms/rader_cyclic.h"

#include "frame/status.h"
#include "transforms/fft.h"
#include "transforms/rader_loops.h"

namespace quorvan {
namespace {

// From the spectrum of the gathered inputs to their cyclic convolution with the roots, conjugated. The spectrum is
// written over.
Status FinishConvolution(const FftStage& stage, Count n, double* spectrum, double* sequence) noexcept {
    kRaderLoops().conjugateProduct(spectrum, stage.raderSpectrumRe, stage.raderSpectrumIm, n);
    return FftComplex(stage.raderPlan, spectrum, spectrum + 1, sequence, sequence + 1, 2, 2, n);
}

}  // namespace

Status CyclicTransform(const ComplexInput& in, const ComplexOutput& out, const FftStage& stage, Count p,
                       double* work) noexcept {
    const Count n = p - 1;
    double *sequence = work, *spectrum = work + WholeLines(2 * Size(n));
    const Record first = in[0];
    WithLayout(in, [=, gather = stage.raderGather + 1](auto x) {
        for (Count q = 0; q < n; ++q) StoreRecord(sequence + 2 * Size(q), x[gather[q]]);
    });
    if (const Status status = FftComplex(stage.raderPlan, sequence, sequence + 1, spectrum, spectrum + 1, 2, 2, n);
        status < 0)
        return status;
    const Record total = first + LoadRecord(spectrum);
    if (const Status status = FinishConvolution(stage, n, spectrum, sequence); status < 0) return status;
    out.Set(0, total);
    WithLayout(out, [=, scatter = stage.raderScatter + 1](auto X) {
        for (Count q = 0; q < n; ++q) X.Set(scatter[q], first + LoadRecord(sequence + 2 * Size(q)) * Record{1, -1});
    });
    return status::kSuccess;
}

// The first transform of the convolution is real too.
Status CyclicTransformReal(const double* in, Size inStride, double* out, Size outStride, const FftStage& stage, Count p,
                           double* work) noexcept {
    const Count n = p - 1;
    double *sequence = work, *spectrum = work + WholeLines(2 * Size(n));
    const double first = in[0];
    for (Count q = 0; q < n; ++q) sequence[q] = in[stage.raderGather[q + 1] * inStride];
    double* h = sequence + n;
    if (const Status status = FftReal(stage.raderPlan, sequence, h, 1, 1, n); status < 0) return status;
    spectrum[0] = h[0], spectrum[1] = 0;
    for (Size k = 1; 2 * k <= n; ++k) {
        const Size mirror = n - k;
        spectrum[2 * k] = spectrum[2 * mirror] = h[k];
        spectrum[2 * k + 1] = k < mirror ? h[mirror] : 0;
        spectrum[2 * mirror + 1] = -spectrum[2 * k + 1];
    }
    out[0] = first + h[0];
    if (const Status status = FinishConvolution(stage, n, spectrum, sequence); status < 0) return status;
    for (Count q = 0; q < n; ++q) {
        const Count t = stage.raderScatter[q + 1];
        if (t > p / 2) continue;
        out[t * outStride] = first + sequence[2 * Size(q)];
        out[(p - t) * outStride] = -sequence[2 * Size(q) + 1];
    }
    return status::kSuccess;
}

}  // namespace quorvan

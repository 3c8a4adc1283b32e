#include "transforms/rader.h"

#include <cstring>

#include "frame/memory.h"
#include "frame/status.h"
#include "transforms/fft.h"
#include "transforms/fft_loops.h"

namespace quorvan {
namespace {

// The plan that the convolution of a stage runs on.
const FftPlan* ConvolutionPlan(const FftStage& stage) noexcept {
    return stage.paddedPlan ? stage.paddedPlan : stage.raderPlan;
}

// The workspace of one prime: two record arrays as long as the convolution, and the column that a stage gathers.
class Workspace {
public:
    Workspace(const FftStage& stage, Count p, bool withColumn) noexcept
        : length_(ConvolutionPlan(stage)->size),
          block_(4 * static_cast<std::size_t>(length_) + (withColumn ? 2 * static_cast<std::size_t>(p) : 0)) {}
    explicit operator bool() const noexcept { return static_cast<bool>(block_); }
    double* sequence() const noexcept { return block_; }
    double* spectrum() const noexcept { return block_ + 2 * Size(length_); }
    double* column() const noexcept { return block_ + 4 * Size(length_); }

private:
    Count length_;
    Block<double> block_;
};

// From the spectrum of the gathered inputs in work.spectrum() to their cyclic convolution with the roots, conjugated,
// in work.sequence().
Status FinishConvolution(const FftStage& stage, const Workspace& work) noexcept {
    double *sequence = work.sequence(), *spectrum = work.spectrum();
    const FftPlan* plan = ConvolutionPlan(stage);
    const Count length = plan->size;
    if (stage.paddedPlan) {
        kFftLoops().conjugateRecordProduct(spectrum, stage.paddedSpectrum, length);
    } else {
        kFftLoops().conjugateProduct(spectrum, stage.raderSpectrumRe, stage.raderSpectrumIm, length);
    }
    return FftComplex(plan, spectrum, spectrum + 1, sequence, sequence + 1, 2, 2, length);
}

// From the n gathered records in work.sequence() to their cyclic convolution, conjugated, in the same place, and to
// their sum, which is the spectrum at 0.
Status Convolve(const FftStage& stage, Count n, const Workspace& work, ComplexRecord& sum) noexcept {
    double *sequence = work.sequence(), *spectrum = work.spectrum();
    const FftPlan* plan = ConvolutionPlan(stage);
    const Count length = plan->size;
    if (length > n) std::memset(sequence + 2 * Size(n), 0, 2 * sizeof(double) * static_cast<std::size_t>(length - n));
    if (const Status status = FftComplex(plan, sequence, sequence + 1, spectrum, spectrum + 1, 2, 2, length);
        status < 0)
        return status;
    sum = {spectrum[0], spectrum[1]};
    return FinishConvolution(stage, work);
}

// A record in one register, where real and imaginary parts are neighbours.
typedef double Record __attribute__((vector_size(2 * sizeof(double))));

Record Load(const double* re, const double* im) noexcept { return Record{*re, *im}; }
void Store(double* re, double* im, Record value) noexcept {
    *re = value[0];
    *im = value[1];
}

// sequence[q] = in[gather[q + 1]], and out[scatter[q + 1]] = first + conj sequence[q].
template <bool kRecords>
void Gather(const double* inRe, const double* inIm, Size stride, const FftStage& stage, Count n,
            double* sequence) noexcept {
    for (Count q = 0; q < n; ++q) {
        const Size from = stage.raderGather[q + 1] * stride;
        double* to = sequence + 2 * Size(q);
        Store(to, to + 1, Load(inRe + from, kRecords ? inRe + from + 1 : inIm + from));
    }
}
template <bool kRecords>
void Scatter(const double* sequence, Record first, double* outRe, double* outIm, Size stride, const FftStage& stage,
             Count n) noexcept {
    for (Count q = 0; q < n; ++q) {
        const Size to = stage.raderScatter[q + 1] * stride;
        const double* from = sequence + 2 * Size(q);
        const Record result = first + Load(from, from + 1) * Record{1, -1};
        Store(outRe + to, kRecords ? outRe + to + 1 : outIm + to, result);
    }
}

// One complex DFT of length p. The input may be the output.
Status Transform(const double* inRe, const double* inIm, double* outRe, double* outIm, Size inStride, Size outStride,
                 const FftStage& stage, Count p, const Workspace& work) noexcept {
    const Count n = p - 1;
    const Record first = Load(inRe, inIm);
    double* sequence = work.sequence();
    (inIm == inRe + 1 ? Gather<true> : Gather<false>)(inRe, inIm, inStride, stage, n, sequence);
    ComplexRecord sum;
    if (const Status status = Convolve(stage, n, work, sum); status < 0) return status;
    Store(outRe, outIm, first + Record{sum.re, sum.im});
    (outIm == outRe + 1 ? Scatter<true> : Scatter<false>)(sequence, first, outRe, outIm, outStride, stage, n);
    return status::kSuccess;
}

// One real DFT of length p into HalfComplex: the first transform of the convolution is real too.
Status TransformReal(const double* in, double* out, Size inStride, Size outStride, const FftStage& stage, Count p,
                     const Workspace& work) noexcept {
    const Count n = p - 1;
    const FftPlan* plan = ConvolutionPlan(stage);
    const Count length = plan->size;
    const double first = in[0];
    double *sequence = work.sequence(), *spectrum = work.spectrum();
    for (Count q = 0; q < n; ++q) sequence[q] = in[stage.raderGather[q + 1] * inStride];
    for (Count q = n; q < length; ++q) sequence[q] = 0;
    double* h = sequence + length;
    if (const Status status = FftReal(plan, sequence, h, 1, 1, length); status < 0) return status;
    spectrum[0] = h[0], spectrum[1] = 0;
    for (Size k = 1; 2 * k <= length; ++k) {
        const Size mirror = length - k;
        spectrum[2 * k] = spectrum[2 * mirror] = h[k];
        spectrum[2 * k + 1] = k < mirror ? h[mirror] : 0;
        spectrum[2 * mirror + 1] = -spectrum[2 * k + 1];
    }
    out[0] = first + h[0];
    if (const Status status = FinishConvolution(stage, work); status < 0) return status;
    for (Count q = 0; q < n; ++q) {
        const Count t = stage.raderScatter[q + 1];
        if (t > p / 2) continue;
        out[t * outStride] = first + sequence[2 * Size(q)];
        out[(p - t) * outStride] = -sequence[2 * Size(q) + 1];
    }
    return status::kSuccess;
}

// Column j of p blocks, twiddled, as records.
void TurnColumn(double* column, const FftStage& stage, Size j, Count p) noexcept {
    if (j == 0) return;
    const double* c = stage.twiddleCos + (j - 1) * (p - 1);
    const double* s = stage.twiddleSin + (j - 1) * (p - 1);
    for (Count r = 1; r < p; ++r) {
        const double re = column[2 * Size(r)], im = column[2 * Size(r) + 1];
        column[2 * Size(r)] = re * c[r - 1] - im * s[r - 1];
        column[2 * Size(r) + 1] = re * s[r - 1] + im * c[r - 1];
    }
}

}  // namespace

Status RaderComplexLeaf(const double* inRe, const double* inIm, double* outRe, double* outIm, Size inStride,
                        Size outStride, Count count, Size elementStride, const Count* positions, const FftStage& stage,
                        Count p) noexcept {
    const Workspace work(stage, p, false);
    if (!work) return status::kOutOfMemory;
    for (Count t = 0; t < count; ++t) {
        const Size out = positions[t] * outStride;
        if (const Status status = Transform(inRe + t * inStride, inIm + t * inStride, outRe + out, outIm + out,
                                            elementStride, outStride, stage, p, work);
            status < 0)
            return status;
    }
    return status::kSuccess;
}

Status RaderRealLeaf(const double* in, double* out, Size inStride, Size outStride, Count count, Size elementStride,
                     const Count* positions, const FftStage& stage, Count p) noexcept {
    const Workspace work(stage, p, false);
    if (!work) return status::kOutOfMemory;
    for (Count t = 0; t < count; ++t)
        if (const Status status = TransformReal(in + t * inStride, out + positions[t] * outStride, elementStride,
                                                outStride, stage, p, work);
            status < 0)
            return status;
    return status::kSuccess;
}

Status RaderComplexStage(double* re, double* im, Size stride, Count m, const FftStage& stage, Count p) noexcept {
    const Workspace work(stage, p, true);
    if (!work) return status::kOutOfMemory;
    double* column = work.column();
    for (Size j = 0; j < m; ++j) {
        for (Size t = 0; t < p; ++t) {
            column[2 * t] = re[(t * m + j) * stride];
            column[2 * t + 1] = im[(t * m + j) * stride];
        }
        TurnColumn(column, stage, j, p);
        if (const Status status =
                Transform(column, column + 1, re + j * stride, im + j * stride, 2, m * stride, stage, p, work);
            status < 0)
            return status;
    }
    return status::kSuccess;
}

Status RaderRealStage(double* data, Size stride, Count m, const FftStage& stage, Count p) noexcept {
    const Workspace work(stage, p, true);
    if (!work) return status::kOutOfMemory;
    double* column = work.column();
    const Size length = Size(p) * m;
    for (Size j = 0; 2 * j <= m; ++j) {
        const bool real = j == 0 || 2 * j == m;  // no imaginary part is stored for these
        for (Size t = 0; t < p; ++t) {
            column[2 * t] = data[(t * m + j) * stride];
            column[2 * t + 1] = real ? 0 : data[(t * m + m - j) * stride];
        }
        TurnColumn(column, stage, j, p);
        if (const Status status = Transform(column, column + 1, column, column + 1, 2, 2, stage, p, work); status < 0)
            return status;
        for (Size k = 0; k < p; ++k) {
            const Size q = j + k * m;  // the bin; the upper half is stored as the conjugate of its mirror
            const bool upper = 2 * q > length;
            if (upper && real) continue;
            const Size low = upper ? length - q : q;
            data[low * stride] = column[2 * k];
            if (low > 0 && 2 * low < length)
                data[(length - low) * stride] = upper ? -column[2 * k + 1] : column[2 * k + 1];
        }
    }
    return status::kSuccess;
}

}  // namespace quorvan

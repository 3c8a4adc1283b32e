#include "transforms/rader.h"

#include "frame/memory.h"
#include "frame/status.h"
#include "transforms/fft.h"
#include "transforms/fft_loops.h"

namespace quorvan {
namespace {

// The workspace of one prime: two record arrays of n = p - 1, and the column that a stage gathers.
class Workspace {
public:
    Workspace(Count p, bool withColumn) noexcept
        : n_(p - 1), block_((withColumn ? 6 : 4) * static_cast<std::size_t>(p)) {}
    explicit operator bool() const noexcept { return static_cast<bool>(block_); }
    double* sequence() const noexcept { return block_; }
    double* spectrum() const noexcept { return block_ + 2 * Size(n_); }
    double* column() const noexcept { return block_ + 4 * Size(n_ + 1); }

private:
    Count n_;
    Block<double> block_;
};

// From the gathered records in work.sequence() to the cyclic convolution, conjugated, in work.spectrum().
Status Convolve(const FftStage& stage, Count n, const Workspace& work) noexcept {
    double *sequence = work.sequence(), *spectrum = work.spectrum();
    if (const Status status = FftComplex(stage.raderPlan, sequence, sequence + 1, spectrum, spectrum + 1, 2, 2, n);
        status < 0)
        return status;
    kFftLoops().conjugateProduct(spectrum, stage.raderSpectrumRe, stage.raderSpectrumIm, n);
    if (const Status status = FftComplex(stage.raderPlan, spectrum, spectrum + 1, sequence, sequence + 1, 2, 2, n);
        status < 0)
        return status;
    return status::kSuccess;
}

// One complex DFT of length p. The input may be the output.
Status Transform(const double* inRe, const double* inIm, double* outRe, double* outIm, Size inStride, Size outStride,
                 const FftStage& stage, Count p, const Workspace& work) noexcept {
    const Count n = p - 1;
    const double firstRe = inRe[0], firstIm = inIm[0];
    double totalRe = firstRe, totalIm = firstIm;
    double* sequence = work.sequence();
    for (Count q = 0; q < n; ++q) {
        const Size from = stage.raderGather[q + 1] * inStride;
        totalRe += sequence[2 * Size(q)] = inRe[from];
        totalIm += sequence[2 * Size(q) + 1] = inIm[from];
    }
    if (const Status status = Convolve(stage, n, work); status < 0) return status;
    outRe[0] = totalRe;
    outIm[0] = totalIm;
    for (Count q = 0; q < n; ++q) {
        const Size to = stage.raderScatter[q + 1] * outStride;
        outRe[to] = firstRe + sequence[2 * Size(q)];
        outIm[to] = firstIm - sequence[2 * Size(q) + 1];
    }
    return status::kSuccess;
}

// One real DFT of length p into HalfComplex: the first transform of the convolution is real too.
Status TransformReal(const double* in, double* out, Size inStride, Size outStride, const FftStage& stage, Count p,
                     const Workspace& work) noexcept {
    const Count n = p - 1, half = n / 2;  // n is even
    const double first = in[0];
    double total = first;
    double *sequence = work.sequence(), *spectrum = work.spectrum();
    for (Count q = 0; q < n; ++q) total += sequence[q] = in[stage.raderGather[q + 1] * inStride];
    if (const Status status = FftReal(stage.raderPlan, sequence, sequence + n, 1, 1, n); status < 0) return status;
    const double* h = sequence + n;
    spectrum[0] = h[0], spectrum[1] = 0;
    spectrum[n] = h[half], spectrum[n + 1] = 0;
    for (Count k = 1; k < half; ++k) {
        spectrum[2 * Size(k)] = spectrum[2 * Size(n - k)] = h[k];
        spectrum[2 * Size(k) + 1] = h[n - k];
        spectrum[2 * Size(n - k) + 1] = -h[n - k];
    }
    kFftLoops().conjugateProduct(spectrum, stage.raderSpectrumRe, stage.raderSpectrumIm, n);
    if (const Status status = FftComplex(stage.raderPlan, spectrum, spectrum + 1, sequence, sequence + 1, 2, 2, n);
        status < 0)
        return status;
    out[0] = total;
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
    const Workspace work(p, false);
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
    const Workspace work(p, false);
    if (!work) return status::kOutOfMemory;
    for (Count t = 0; t < count; ++t)
        if (const Status status = TransformReal(in + t * inStride, out + positions[t] * outStride, elementStride,
                                                outStride, stage, p, work);
            status < 0)
            return status;
    return status::kSuccess;
}

Status RaderComplexStage(double* re, double* im, Size stride, Count m, const FftStage& stage, Count p) noexcept {
    const Workspace work(p, true);
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
    const Workspace work(p, true);
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

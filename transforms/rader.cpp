#include "transforms/rader.h"

#include "frame/memory.h"
#include "frame/status.h"
#include "transforms/cache_lines.h"
#include "transforms/kernels/direct_primes.h"
#include "transforms/rader_cyclic.h"
#include "transforms/rader_padded.h"

namespace quorvan {
namespace {

Status DirectTransform(const ComplexInput& in, const ComplexOutput& out, const FftStage& stage, Count p,
                       double* work) noexcept {
    kDirectPrimes().complex(in, out, p, stage.raderGather + 1, stage.raderScatter + 1, stage.directTable, work);
    return status::kSuccess;
}

Status DirectTransformReal(const double* in, Size inStride, double* out, Size outStride, const FftStage& stage, Count p,
                           double* work) noexcept {
    kDirectPrimes().real(in, inStride, out, outStride, p, stage.raderGather + 1, stage.raderScatter + 1,
                         stage.directTable, work);
    return status::kSuccess;
}

// A way to one DFT of length p, and the doubles of workspace that it takes.
struct Way {
    decltype(&DirectTransform) complex;
    decltype(&DirectTransformReal) real;
    Size workLength;
};

// The way that the plan holds tables for.
Way WayOf(const FftStage& stage, Count p) noexcept {
    if (stage.directTable) return {DirectTransform, DirectTransformReal, DirectWorkLength(p)};
    if (stage.paddedPlan) return {PaddedTransform, PaddedTransformReal, kCacheLine + PaddedWorkLength(stage)};
    return {CyclicTransform, CyclicTransformReal, kCacheLine + CyclicWorkLength(p)};
}

// The transforms of one prime, one at a time, with their workspace. It starts with a cache line where vectors read it;
// that of the defining sums is rather kept as small as the allocator is fast with. In front of it, a column of records.
class LargePrime {
public:
    LargePrime(const FftStage& stage, Count p, bool withColumn) noexcept
        : stage_(stage),
          p_(p),
          way_(WayOf(stage, p)),
          columnLength_(withColumn ? 2 * Size(p) : 0),
          block_(static_cast<std::size_t>(columnLength_ + way_.workLength)) {}
    explicit operator bool() const noexcept { return static_cast<bool>(block_); }
    double* column() const noexcept { return block_; }

    // One complex DFT. The input may be the output.
    Status Transform(const ComplexInput& in, const ComplexOutput& out) const noexcept {
        return way_.complex(in, out, stage_, p_, work());
    }
    // One real DFT into HalfComplex.
    Status TransformReal(const double* in, Size inStride, double* out, Size outStride) const noexcept {
        return way_.real(in, inStride, out, outStride, stage_, p_, work());
    }

private:
    double* work() const noexcept {
        return stage_.directTable ? block_ + columnLength_ : LineStart(block_ + columnLength_);
    }

    const FftStage& stage_;
    Count p_;
    Way way_;
    Size columnLength_;
    Block<double> block_;
};

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
    const LargePrime prime(stage, p, false);
    if (!prime) return status::kOutOfMemory;
    for (Count t = 0; t < count; ++t) {
        const Size out = positions[t] * outStride;
        if (const Status status = prime.Transform({inRe + t * inStride, inIm + t * inStride, elementStride},
                                                  {outRe + out, outIm + out, outStride});
            status < 0)
            return status;
    }
    return status::kSuccess;
}

Status RaderRealLeaf(const double* in, double* out, Size inStride, Size outStride, Count count, Size elementStride,
                     const Count* positions, const FftStage& stage, Count p) noexcept {
    const LargePrime prime(stage, p, false);
    if (!prime) return status::kOutOfMemory;
    for (Count t = 0; t < count; ++t)
        if (const Status status =
                prime.TransformReal(in + t * inStride, elementStride, out + positions[t] * outStride, outStride);
            status < 0)
            return status;
    return status::kSuccess;
}

Status RaderComplexStage(double* re, double* im, Size stride, Count m, const FftStage& stage, Count p) noexcept {
    const LargePrime prime(stage, p, true);
    if (!prime) return status::kOutOfMemory;
    double* column = prime.column();
    for (Size j = 0; j < m; ++j) {
        for (Size t = 0; t < p; ++t) {
            column[2 * t] = re[(t * m + j) * stride];
            column[2 * t + 1] = im[(t * m + j) * stride];
        }
        TurnColumn(column, stage, j, p);
        if (const Status status =
                prime.Transform({column, column + 1, 2}, {re + j * stride, im + j * stride, m * stride});
            status < 0)
            return status;
    }
    return status::kSuccess;
}

Status RaderRealStage(double* data, Size stride, Count m, const FftStage& stage, Count p) noexcept {
    const LargePrime prime(stage, p, true);
    if (!prime) return status::kOutOfMemory;
    double* column = prime.column();
    const Size length = Size(p) * m;
    for (Size j = 0; 2 * j <= m; ++j) {
        const bool real = j == 0 || 2 * j == m;  // no imaginary part is stored for these
        for (Size t = 0; t < p; ++t) {
            column[2 * t] = data[(t * m + j) * stride];
            column[2 * t + 1] = real ? 0 : data[(t * m + m - j) * stride];
        }
        TurnColumn(column, stage, j, p);
        if (const Status status = prime.Transform({column, column + 1, 2}, {column, column + 1, 2}); status < 0)
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

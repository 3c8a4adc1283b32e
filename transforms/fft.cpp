#include "transforms/fft.h"

#include "frame/status.h"
#include "transforms/fft_loops.h"
#include "transforms/fft_plan_record.h"
#include "transforms/rader.h"
#include "transforms/spectrum_loops.h"

namespace quorvan {
namespace {

struct ComplexRun {
    const FftPlan& plan;
    const double *inRe, *inIm;
    double *outRe, *outIm;
    Size inStride, outStride;

    Status Leaves(const FftSchedule& schedule, Count first, Count count) const noexcept {
        const Count last = plan.factorCount - 1;
        const FftStage& stage = *plan.stages[last];
        const Count* positions = schedule.leafPositions + first;
        const double *re = inRe + first * inStride, *im = inIm + first * inStride;
        if (plan.kinds[last] == kLargePrime)
            return RaderComplexLeaf(re, im, outRe, outIm, inStride, outStride, count, schedule.leaves * inStride,
                                    positions, stage, plan.factors[last]);
        const ComplexLeafKernel leaf = schedule.loneLeaf ? schedule.loneLeaf : plan.leafKernels[last];
        leaf(re, im, outRe, outIm, inStride, outStride, count, schedule.leaves * inStride, positions, stage);
        return status::kSuccess;
    }
    Status Stage(Count level, Size position, Count m) const noexcept {
        double *re = outRe + position * outStride, *im = outIm + position * outStride;
        if (plan.kinds[level] == kLargePrime)
            return RaderComplexStage(re, im, outStride, m, *plan.stages[level], plan.factors[level]);
        plan.stageKernels[level](re, im, outStride, m, *plan.stages[level]);
        return status::kSuccess;
    }
};

struct RealRun {
    const FftPlan& plan;
    const double* in;
    double* out;
    Size inStride, outStride;

    Status Leaves(const FftSchedule& schedule, Count first, Count count) const noexcept {
        const Count last = plan.factorCount - 1;
        const FftStage& stage = *plan.stages[last];
        const Count* positions = schedule.leafPositions + first;
        if (plan.kinds[last] == kLargePrime)
            return RaderRealLeaf(in + first * inStride, out, inStride, outStride, count, schedule.leaves * inStride,
                                 positions, stage, plan.factors[last]);
        plan.realLeafKernels[last](in + first * inStride, out, inStride, outStride, count, schedule.leaves * inStride,
                                   positions, stage);
        return status::kSuccess;
    }
    Status Stage(Count level, Size position, Count m) const noexcept {
        double* data = out + position * outStride;
        if (plan.kinds[level] == kLargePrime)
            return RaderRealStage(data, outStride, m, *plan.stages[level], plan.factors[level]);
        plan.realStageKernels[level](data, outStride, m, *plan.stages[level]);
        return status::kSuccess;
    }
};

// The decimation in time of one plan. A sub-transform is known by the input `first` at which it begins; at a level
// above which the factors multiply to `stride`, its input stands at first + stride * k.
template <class Run>
class Decimation {
public:
    Decimation(const Run& run, const FftSchedule& schedule) noexcept
        : run_(run), plan_(run.plan), schedule_(schedule) {}

    // The first levels are taken breadth first, until they part the input into enough adjacent sub-transforms to fill
    // vectors; below them a group of adjacent ones goes depth first, so that its data stays in the cache.
    Status Transform() const noexcept {
        const Count stride = schedule_.groupStride;
        const Count group = schedule_.groupLevel == plan_.factorCount - 1 ? stride : kFftGroup;
        for (Count first = 0; first < stride; first += group) {
            const Count count = stride - first < group ? stride - first : group;
            if (const Status status = Descend(schedule_.groupLevel, first, count, stride); status < 0) return status;
        }
        for (Count level = schedule_.groupLevel; level-- > schedule_.lastStage;) {
            const Count m = plan_.columns[level];
            for (Size position = 0; position < schedule_.size; position += Size(m) * plan_.factors[level])
                if (const Status status = run_.Stage(level, position, m); status < 0) return status;
        }
        return status::kSuccess;
    }

private:
    Status Descend(Count level, Count first, Count count, Count stride) const noexcept {
        if (level == plan_.factorCount - 1) return run_.Leaves(schedule_, first, count);
        for (Count t = 0; t < plan_.factors[level]; ++t)
            if (const Status status = Descend(level + 1, first + stride * t, count, stride * plan_.factors[level]);
                status < 0)
                return status;
        for (Count c = first; c < first + count; ++c)
            if (const Status status = run_.Stage(level, schedule_.leafPositions[c], plan_.columns[level]); status < 0)
                return status;
        return status::kSuccess;
    }

    const Run& run_;
    const FftPlan& plan_;
    const FftSchedule& schedule_;
};

// Apart from FftSpectrum, whose other ways need no such frame.
__attribute__((noinline)) Status InTwoPasses(const FftSpectrumSplit& split, const double* x, double* low,
                                             double* high) noexcept {
    alignas(64) double rows[kSpectrumRowsRoom];
    split.rows(x, split.factor, rows, split.turns);
    split.stage(rows, low, high, split.columns, split.turns);
    return status::kSuccess;
}

}  // namespace

Status FftComplex(const FftPlan* plan, const double* inRe, const double* inIm, double* outRe, double* outIm,
                  Count inStride, Count outStride, Count n) noexcept {
    if (n != plan->size) return -1;
    if (n == 1) {
        *outRe = *inRe;
        *outIm = *inIm;
        return status::kSuccess;
    }
    return Decimation<ComplexRun>(ComplexRun{*plan, inRe, inIm, outRe, outIm, inStride, outStride}, plan->whole)
        .Transform();
}

Status FftComplexInverse(const FftPlan* plan, const double* inRe, const double* inIm, double* outRe, double* outIm,
                         Count inStride, Count outStride, Count n) noexcept {
    if (const Status status = FftComplex(plan, inRe, inIm, outRe, outIm, inStride, outStride, n); status < 0)
        return status;
    const double scale = 1.0 / n;
    if (outIm == outRe + 1 && outStride == 2) {
        kFftLoops().mirrorRecords(outRe, n, scale);
        return status::kSuccess;
    }
    const auto mirror = [n, scale, stride = Size(outStride)](double* part) {
        part[0] *= scale;
        if (n % 2 == 0) part[n / 2 * stride] *= scale;
        for (Size k = 1; k <= (n - 1) / 2; ++k) {
            const double low = part[k * stride];
            part[k * stride] = part[(n - k) * stride] * scale;
            part[(n - k) * stride] = low * scale;
        }
    };
    mirror(outRe);
    mirror(outIm);
    return status::kSuccess;
}

Status FftReal(const FftPlan* plan, const double* in, double* out, Count inStride, Count outStride, Count n) noexcept {
    if (n != plan->size) return status::kAlgorithmFailure;
    if (n == 1) {
        *out = *in;
        return status::kSuccess;
    }
    return Decimation<RealRun>(RealRun{*plan, in, out, inStride, outStride}, plan->whole).Transform();
}

// The output is the workspace: what is made before the last stage stands in its first half.
Status FftSpectrum(const FftPlan* plan, const double* x, bool shift, double* out) noexcept {
    const Count n = plan->size;
    double *const low = shift ? out + n : out, *const high = shift ? out : out + n;
    if (plan->split.rows) return InTwoPasses(plan->split, x, low, high);
    if (n % 2) {
        if (const Status failure = FftReal(plan, x, out, 1, 1, n)) return failure;
        const SpectrumLoops& loops = kSpectrumLoops();
        (shift ? loops.expandShifted : loops.expand)(reinterpret_cast<ComplexRecord*>(out), n);
    } else if (plan->factorCount == 1) {
        plan->spectrumLeaf(x, low, high, *plan->stages[0]);
    } else if (plan->recordsPlan) {
        if (const Status failure = FftComplex(plan->recordsPlan, x, x + 1, out, out + 1, 2, 2, n / 2)) return failure;
        plan->spectrumStage(out, low, high, n / 2, plan->recordsTurns);
    } else {
        const ComplexRun records{*plan, x, x + 1, out, out + 1, 2, 2};
        if (const Status failure = Decimation<ComplexRun>(records, plan->half).Transform()) return failure;
        plan->spectrumStage(out, low, high, plan->columns[0], *plan->stages[0]);
    }
    return status::kSuccess;
}

// By the Hartley transform, which is its own inverse: only forward kernels exist.
Status FftRealInverse(const FftPlan* plan, double* in, double* out, Count inStride, Count outStride, Count n) noexcept {
    if (n != plan->size) return status::kAlgorithmFailure;
    const auto hartley = [n](double* h, Size stride, double scale) {
        if (stride == 1) return kFftLoops().hartley(h, n, scale);
        h[0] *= scale;
        if (n % 2 == 0) h[n / 2 * stride] *= scale;
        for (Size k = 1; k < (Size(n) + 1) / 2; ++k) {
            const double a = h[k * stride] * scale, b = h[(n - k) * stride] * scale;
            h[k * stride] = a - b;
            h[(n - k) * stride] = a + b;
        }
    };
    hartley(in, inStride, 1.0 / n);
    if (const Status status = FftReal(plan, in, out, inStride, outStride, n); status < 0) return status;
    hartley(out, outStride, 1);
    return status::kSuccess;
}

}  // namespace quorvan

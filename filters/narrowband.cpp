#include "filters/narrowband.h"

#include <algorithm>
#include <cmath>

#include "filters/equiripple.h"
#include "filters/iir_kind.h"
#include "filters/narrowband_factor.h"
#include "frame/memory.h"
#include "frame/status.h"

namespace quorvan {
namespace {

constexpr Count kMostTaps = 4091;  // longer designs are refused before a tap is written

struct Stage {
    Count count = 0;
    Block<double> taps;

    void negate() {
        for (Count i = 0; i < count; ++i) taps[i] = -taps[i];
    }
    // Multiplies by (-1)^k with the middle tap kept: the mirror image of the response about fs/4.
    void modulate() {
        for (Count i = (count - 1) / 2 % 2 == 0 ? 1 : 0; i < count; i += 2) taps[i] = -taps[i];
    }
};

struct Work {
    std::int32_t mode;
    NarrowbandRequest request;
    double deviation, weight;  // what each stage must reach, and the weight of the stopband
    Stage model, suppressor;
};

// Bands of alternating gains with the last band up to fs/2.
template <int kEdges>
using Bands = RemezNamed<kEdges>;

// Lengthens the design by a twentieth until its error is small enough.
template <int kEdges>
Status DesignStage(const Work& work, double order, const Bands<kEdges>& bands, Stage& stage) {
    constexpr int kBands = kEdges / 2 + 1;
    double gains[kBands], weights[kBands], edges[2 * kBands];
    edges[0] = 0;
    std::copy_n(bands.edges, kEdges, edges + 1);
    edges[2 * kBands - 1] = work.request.fs / 2;
    for (int j = 0; j < kBands; ++j) {
        gains[j] = j % 2 ? 1 - bands.first : bands.first;
        weights[j] = gains[j] != 0 ? 1 : work.weight;
    }
    double next = order;
    for (;;) {
        Count count = static_cast<Count>(next);
        if (work.mode != kNarrowLowpass && count % 2 == 0) ++count;
        stage.count = count;
        stage.taps = Block<double>(static_cast<std::size_t>(std::min(count, kMostTaps)));
        if (!stage.taps) return status::kOutOfMemory;
        double delta = 0;
        const RemezRequest request{kBands, gains, weights, work.request.fs, edges, kRemezMultiband, count};
        const Status failure = FirRemezCore(request, stage.taps, &delta, kRemezIterations);
        if (failure < 0) return failure;
        if (!(delta > work.deviation)) return status::kSuccess;
        next = std::ceil(count * 1.05);
    }
}

// The estimate is short for long filters. False for an order that no design has.
bool FirstCount(double& order) {
    if (order > 100) order = std::trunc(order * 1.1);
    return order >= 0 && order < INT32_MAX;
}

Status DesignStages(Work& work, NarrowbandPlan plan, bool band) {
    const NarrowbandRequest& q = work.request;
    const double L = plan.factor;
    if (!FirstCount(plan.model_order) || !FirstCount(plan.suppressor_order) || !(L <= INT32_MAX))
        return status::kFilterNotDesignable;
    const double c = plan.center, C = q.center, d = plan.transition;
    const Status failure =
        band ? DesignStage<4>(work, plan.model_order, {0, {c - L * q.e2, c - L * q.e1, c + L * q.e1, c + L * q.e2}},
                              work.model)
             : DesignStage<2>(work, plan.model_order, {1, {L * q.e1, L * q.e2}}, work.model);
    if (failure || L == 1) return failure;
    const double order = plan.suppressor_order;
    if (!band) return DesignStage<2>(work, order, {1, {q.e1, q.fs / L - q.e2}}, work.suppressor);
    if (plan.image == 1) return DesignStage<2>(work, order, {1, {q.e1 + C, q.e1 + C + d}}, work.suppressor);
    if (plan.image == L) return DesignStage<2>(work, order, {0, {C - q.e1 - d, C - q.e1}}, work.suppressor);
    return DesignStage<4>(work, order, {0, {C - q.e1 - d, C - q.e1, C + q.e1, C + q.e1 + d}}, work.suppressor);
}

// Mirrors and complements what was designed. Stretched by an even factor the model is its own mirror image.
void Finish(Work& work, Count factor) {
    const bool mirrored = work.mode == kNarrowHighpass || work.mode == kComplementHighpass;
    Stage& last = factor > 1 ? work.suppressor : work.model;
    if (mirrored) last.modulate();
    if (mirrored && factor > 1 && factor % 2) work.model.modulate();
    if (work.mode >= kComplementBandpass) last.negate();
}

// Which lowpass or bandpass stands for the request, and which deviation belongs to its passband.
bool Prepare(double fs, double f1, double f2, double center, double ripple, double attenuation, std::uint32_t kind,
             Work& work) {
    const double stop = std::pow(10.0, -attenuation / 20), half = fs / 2;
    NarrowbandRequest& q = work.request;
    q = {fs, 0, 0, center, ripple, stop};
    switch (kind) {
        case kLowpass:
            work.mode = f1 <= fs / 4 ? kNarrowLowpass : kComplementHighpass;
            q.e1 = work.mode == kNarrowLowpass ? f1 : half - f2;
            q.e2 = work.mode == kNarrowLowpass ? f2 : half - f1;
            break;
        case kHighpass:
            work.mode = half - f1 <= fs / 4 ? kNarrowHighpass : kComplementLowpass;
            q.e1 = work.mode == kNarrowHighpass ? half - f1 : f2;
            q.e2 = work.mode == kNarrowHighpass ? half - f2 : f1;
            break;
        case kBandpass:
            work.mode = kNarrowBandpass;
            q.e1 = f1 / 2;
            q.e2 = f2 / 2;
            break;
        case kBandstop:
            work.mode = kComplementBandpass;
            q.e1 = f2 / 2;
            q.e2 = f1 / 2;
            break;
        default: return false;
    }
    if (work.mode >= kComplementBandpass) std::swap(q.delta1, q.delta2);
    work.deviation = q.delta1 / 2;
    work.weight = work.deviation / q.delta2;
    if (q.e1 <= 0 || q.e2 <= q.e1 || q.e2 >= half || q.delta2 <= 0 || q.delta1 <= 0) return false;
    return !IsBand(kind) || (center > 0 && center < half);
}

}  // namespace

FirNarrowband* FirNarrowbandCreate() noexcept {
    Block<FirNarrowband> filter(1);
    if (filter) *filter = {};
    return filter.release();
}

void FirNarrowbandRelease(FirNarrowband* filter) noexcept {
    if (!filter) return;
    HeapFree(filter->model);
    HeapFree(filter->suppressor);
    HeapFree(filter);
}

Status FirNarrowbandDesign(double fs, double f1, double f2, double center, double ripple, double attenuation,
                           std::uint32_t kind, FirNarrowband* filter) noexcept {
    Work work{};
    if (!Prepare(fs, f1, f2, center, ripple, attenuation, kind, work)) return status::kFilterNotDesignable;
    const bool band = IsBand(kind);
    const NarrowbandPlan plan = band ? FirNarrowbandFactorBand(work.request) : FirNarrowbandFactor(work.request);
    const Status failure = DesignStages(work, plan, band);
    if (failure < 0) return failure;
    const Count factor = static_cast<Count>(plan.factor);
    Finish(work, factor);
    *filter = {work.mode,
               factor,
               work.model.count,
               work.model.taps.release(),
               work.suppressor.count,
               work.suppressor.taps.release()};
    return status::kSuccess;
}

}  // namespace quorvan

#include "measure/peak_fit.h"

#include "frame/wide.h"

namespace quorvan::QV_TARGET {
namespace {

// One lane a window, so that each sum runs in index order whatever the number of lanes. Two registers of windows at a
// time hide the latency of the additions.
void Fit(const double* matrix, Count w, const double* x, Count windows, double* c0, double* c1, double* c2) {
    const std::ptrdiff_t width = w, end = windows;
    const double *const values = matrix, *const slopes = values + width, *const curvatures = slopes + width;
    std::ptrdiff_t k = 0;
    for (; k + 2 * kLanes <= end; k += 2 * kLanes) {
        Wide value[2] = {}, slope[2] = {}, curvature[2] = {};
        for (std::ptrdiff_t i = 0; i < width; ++i)
            for (int t = 0; t < 2; ++t) {
                const Wide sample = Load(x + k + i + t * kLanes);
                value[t] += values[i] * sample;
                slope[t] += slopes[i] * sample;
                curvature[t] += curvatures[i] * sample;
            }
        for (int t = 0; t < 2; ++t) {
            Store(c0 + k + t * kLanes, value[t]);
            Store(c1 + k + t * kLanes, slope[t]);
            Store(c2 + k + t * kLanes, curvature[t]);
        }
    }
    for (; k < end; ++k) {
        double value = 0, slope = 0, curvature = 0;
        for (std::ptrdiff_t i = 0; i < width; ++i) {
            value += values[i] * x[k + i];
            slope += slopes[i] * x[k + i];
            curvature += curvatures[i] * x[k + i];
        }
        c0[k] = value;
        c1[k] = slope;
        c2[k] = curvature;
    }
}

// What is told of one lane or of one window, as all bits or none.
QV_INLINE WideBits Mask(WideBits mask) { return mask; }
QV_INLINE std::int64_t Mask(bool holds) { return -static_cast<std::int64_t>(holds); }

// |c1| above kFlat decides by the slope, below by the curvature.
template <class Real>
QV_INLINE auto Rises(Real c1, Real c2) {
    const auto sloped = Mask(Abs(c1) > kFlat);
    return (sloped & Mask(c1 > 0.0)) | (~sloped & Mask(c2 > 0.0));
}

template <class Real>
QV_INLINE auto HoldsApex(Real c1, Real c2, Real before1, Real before2, const ApexRule& rule) {
    const Real vertex = -c1 / (2.0 * c2), vertexBefore = -before1 / (2.0 * before2);
    const auto near = Mask(Abs(vertex) <= rule.reach);
    const auto nearBefore = Mask(vertex < -0.5) & Mask(Abs(vertexBefore) <= rule.reach);
    const auto wanted = rule.byTrend ? Rises(c1, c2) ^ Rises(before1, before2) : Mask(c2 * rule.curvature > 0.0);
    return wanted & (near | nearBefore);
}

// Every place is written, and the next one over it unless it counts: whether one does is as good as random.
Count Apexes(const double* c1, const double* c2, Count windows, ApexRule rule, Count* places) {
    Count found = 0, k = 0;
    for (; k + kLanes <= windows; k += kLanes) {
        const WideBits holds = HoldsApex(Load(c1 + k), Load(c2 + k), Load(c1 + k - 1), Load(c2 + k - 1), rule);
        if (!Any(holds)) continue;
        for (int lane = 0; lane < kLanes; ++lane) {
            places[found] = k + lane;
            found -= static_cast<Count>(holds[lane]);
        }
    }
    for (; k < windows; ++k) {
        places[found] = k;
        found -= static_cast<Count>(HoldsApex(c1[k], c2[k], c1[k - 1], c2[k - 1], rule));
    }
    return found;
}

}  // namespace

const PeakFitLoops kPeakFitLoops = {Fit, Apexes};

}  // namespace quorvan::QV_TARGET

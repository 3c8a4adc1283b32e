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

}  // namespace

const PeakFitLoops kPeakFitLoops = {Fit};

}  // namespace quorvan::QV_TARGET

#include "filters/equiripple.h"

#include <cmath>

#include "filters/equiripple_exchange.h"
#include "filters/equiripple_taps.h"
#include "frame/status.h"

namespace quorvan {

Status FirRemezCore(const RemezRequest& request, double* h, double* delta, std::int32_t limit) noexcept {
    if (limit < 1) limit = kRemezIterations;
    if (const Status failure = RemezCheck(request)) return failure;
    RemezGrid grid;
    if (const Status failure = RemezMakeGrid(request, grid)) return failure;
    RemezInterpolant form;
    if (const Status failure = RemezExchange(grid, request.functions(), limit, form, delta)) return failure;
    return RemezTaps(request, grid, form, h);
}

Status FirRemezBands(Count taps, double fs, const ::QvBand* bands, Count count, std::int32_t kind, double* h,
                     double* delta) noexcept {
    if (taps < 3 || count < 1) return status::kFilterNotDesignable;
    for (Count j = 0; j < count; ++j) {
        const double values[] = {bands[j].desired, bands[j].lower, bands[j].upper, bands[j].weight};
        for (const double value : values)
            if (std::isinf(value)) return status::kFilterNotDesignable;  // NaN comes later, behind fs
    }
    const auto size = static_cast<std::size_t>(count);
    const Block<double> work(4 * size);
    if (!work) return status::kOutOfMemory;
    double *const desired = work, *const weights = desired + size, *const edges = weights + size;
    for (std::size_t j = 0; j < size; ++j) {
        desired[j] = bands[j].desired;
        weights[j] = bands[j].weight;
        edges[2 * j] = bands[j].lower;
        edges[2 * j + 1] = bands[j].upper;
    }
    // Kinds count from 0 here; the sum may wrap to another unknown one.
    const auto core_kind = static_cast<std::int32_t>(static_cast<std::uint32_t>(kind) + 1);
    return FirRemezCore({count, desired, weights, fs, edges, core_kind, taps}, h, delta, kRemezIterations);
}

}  // namespace quorvan

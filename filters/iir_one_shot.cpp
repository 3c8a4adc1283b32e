#include "filters/iir_one_shot.h"

#include <algorithm>
#include <utility>

#include "filters/iir_cascade.h"
#include "filters/iir_stages.h"
#include "frame/arrays.h"
#include "frame/status.h"

namespace quorvan {
namespace {

Status CheckSections(IirFamily family, std::uint32_t kind, Count n, const IirSpecification& wanted, Count order) {
    const auto [fs, fl, fh, ripple, attenuation] = wanted;
    if (n < 1) return status::kSamplesNotPositive;
    if (order < 1) return status::kOrderNotPositive;
    if (fl <= 0 || fs <= 0) return status::kBandOutOfRange;
    if (IsBand(kind) && (fh <= 0 || fl >= fh)) return status::kBandOutOfRange;
    if (const Status failure = IirCheckLevels(family, wanted)) return failure;
    return (IsBand(kind) ? fh : fl) > fs / 2 ? status::kCutoffOutOfRange : status::kSuccess;
}

// Direct form I from rest, y[t] = b0 v[t] + b1 v[t-1] + ... - a1 y[t-1] - ..., from the left.
template <int kWidth>
void Pass(const IirStage& stage, double* y, Count n) {
    double in[kWidth] = {}, out[kWidth] = {};
    for (Count t = 0; t < n; ++t) {
        const double v = y[t];
        double sum = stage.b[0] * v;
        for (int j = 0; j < kWidth; ++j) sum += stage.b[j + 1] * in[j];
        for (int j = 0; j < kWidth; ++j) sum -= stage.a[j] * out[j];
        for (int j = kWidth - 1; j > 0; --j) {
            in[j] = in[j - 1];
            out[j] = out[j - 1];
        }
        in[0] = v;
        out[0] = y[t] = sum;
    }
}

}  // namespace

Status IirFilterSections(IirFamily family, std::uint32_t kind, double* x, Count n, const IirSpecification& wanted,
                         Count order, double* y) noexcept {
    if (const Status failure = CheckSections(family, kind, n, wanted, order)) return failure;
    y = InPlaceIfNull(y, x);
    if (y != x) std::copy_n(x, n, y);
    const bool band = IsBand(kind);
    const IirWarp warp = IirPrewarp(kind, wanted.fs, wanted.fl, wanted.fh);
    double closing = 1;
    const auto pass = [&](PrototypeSection section) {
        // Chebyshev bands take the gain off at the end of all.
        if (band && family == IirFamily::kChebyshev) closing *= std::exchange(section.h, 1);
        const IirStage stage = IirStageOf(kind, warp, section);
        band ? Pass<4>(stage, y, n) : Pass<2>(stage, y, n);
    };
    const Status outcome = IirPrototypeSections({family, order, band, wanted.ripple, wanted.attenuation}, pass);
    if (closing != 1)
        for (Count t = 0; t < n; ++t) y[t] *= closing;
    return outcome;
}

Status IirFilterObject(IirFamily family, std::uint32_t kind, double* x, Count n, const IirSpecification& wanted,
                       Count order, double* y) noexcept {
    if (order < 1) return status::kOrderNotPositive;
    const Held<IirFilter> filter(IirFilterCreate(kind, order));
    if (!filter) return status::kOutOfMemory;
    if (const Status failure = IirDesign(family, wanted, *filter)) return failure;
    return IirCascadePrepare(*filter, x, n, InPlaceIfNull(y, x));
}

Status IirFilterObjectComplex(IirFamily family, std::uint32_t kind, ComplexRecord* x, Count n,
                              const IirSpecification& wanted, Count order, ComplexRecord* y) noexcept {
    if (order < 1) return status::kOrderNotPositive;
    const Held<IirFilter> filter(IirFilterCreate(kind, order));
    const Held<IirStateComplex> state(IirStateComplexCreate(kind, order));
    if (!filter || !state) return status::kOutOfMemory;
    if (const Status failure = IirDesign(family, wanted, *filter)) return failure;
    return IirCascadePrepareComplex(*filter, *state, x, n, y ? y : x);
}

}  // namespace quorvan

#include "filters/iir_one_shot.h"

#include <algorithm>
#include <utility>

#include "filters/cascade_loops.h"
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

// Runs sections over an array in their order, as many at a time as there is room for: where they run side by side, the
// array is gone through once.
class Sections {
public:
    Sections(std::uint32_t kind, double* y, Count n) : width_(StageWidth(kind)), y_(y), n_(n) {}

    void Add(const IirStage& stage) {
        std::copy_n(stage.a, width_, a_ + stages_ * width_);
        std::copy_n(stage.b, width_ + 1, b_ + stages_ * (width_ + 1));
        if (++stages_ == kRoom) Run();
    }
    void Run() {
        if (stages_ > 0) kCascadeLoops().from_rest({width_, stages_, a_, b_}, y_, n_, y_);
        stages_ = 0;
    }

private:
    static constexpr Count kRoom = 24;
    const Count width_;
    double* const y_;
    const Count n_;
    Count stages_ = 0;
    double a_[kRoom * 4], b_[kRoom * 5];
};

}  // namespace

Status IirFilterSections(IirFamily family, std::uint32_t kind, double* x, Count n, const IirSpecification& wanted,
                         Count order, double* y) noexcept {
    if (const Status failure = CheckSections(family, kind, n, wanted, order)) return failure;
    y = InPlaceIfNull(y, x);
    if (y != x) std::copy_n(x, n, y);
    Sections sections(kind, y, n);
    const bool band = IsBand(kind);
    const IirWarp warp = IirPrewarp(kind, wanted.fs, wanted.fl, wanted.fh);
    double closing = 1;
    const auto pass = [&](PrototypeSection section) {
        // Chebyshev bands take the gain off at the end of all.
        if (band && family == IirFamily::kChebyshev) closing *= std::exchange(section.h, 1);
        sections.Add(IirStageOf(kind, warp, section));
    };
    const Status outcome = IirPrototypeSections({family, order, band, wanted.ripple, wanted.attenuation}, pass);
    sections.Run();
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

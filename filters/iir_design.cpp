#include "filters/iir_design.h"

#include <algorithm>
#include <utility>

#include "filters/iir_stages.h"
#include "frame/status.h"
#include "transforms/convolution.h"

namespace quorvan {
namespace {

Status Check(IirFamily family, const IirSpecification& wanted, const IirFilter& filter) {
    const auto [fs, fl, given, ripple, attenuation] = wanted;
    const std::uint32_t kind = static_cast<std::uint32_t>(filter.type);
    if (filter.order < 1) return status::kOrderNotPositive;
    // Deliberate: a cutoff at fs/2 or above is not below this stand-in, so that it gives the status of the band.
    const double fh = kind == kLowpass || kind == kHighpass ? (fs / 2 + fl) / 2 : given;
    if (fl <= 0 || fh <= 0 || fl >= fh || fs <= 0) return status::kBandOutOfRange;
    if (family == IirFamily::kInverseChebyshev && attenuation <= 0) return status::kAttenuationNotPositive;
    if (fh > fs / 2 || fl > fs / 2) return status::kCutoffOutOfRange;
    if (const Status failure = IirCheckLevels(family, wanted)) return failure;
    if (kind > kBandstop) return status::kInvalidSelection;
    const Size stages = StageCount(filter.order), width = StageWidth(kind);
    const bool roomy = filter.a_count >= stages * width && filter.b_count >= stages * (width + 1);
    return roomy ? status::kSuccess : status::kInvalidFilter;
}

// Multiplies the polynomials of all stages, in their order; `factor(s, to)` gives that of one stage. The first `length`
// coefficients are the result.
template <class Factor>
Status MultiplyUp(Count stages, Count width, Factor factor, double* work, Count length, double* out) {
    const std::size_t room = static_cast<std::size_t>(stages) * width + 1;
    double *product = work, *next = work + room;
    factor(0, product);
    Count count = width + 1;
    for (Count s = 1; s < stages; ++s, count += width) {
        double stage[5];
        factor(s, stage);
        if (const Status failure = ConvolveReal(product, count, stage, width + 1, kConvolveDirect, next))
            return failure;
        std::swap(product, next);
    }
    std::copy_n(product, length, out);
    return status::kSuccess;
}

}  // namespace

Status IirCheckLevels(IirFamily family, const IirSpecification& wanted) noexcept {
    const bool elliptic = family == IirFamily::kElliptic;
    if ((elliptic || family == IirFamily::kChebyshev) && wanted.ripple <= 0) return status::kRippleNotPositive;
    if ((elliptic || family == IirFamily::kInverseChebyshev) && wanted.attenuation <= 0)
        return status::kAttenuationNotPositive;
    return elliptic && wanted.ripple >= wanted.attenuation ? status::kAttenuationBelowRipple : status::kSuccess;
}

Status IirDesign(IirFamily family, IirSpecification wanted, IirFilter& filter) noexcept {
    if (const Status failure = Check(family, wanted, filter)) return failure;
    const std::uint32_t kind = static_cast<std::uint32_t>(filter.type);
    const IirWarp warp = IirPrewarp(kind, wanted.fs, wanted.fl, wanted.fh);
    const Count width = StageWidth(kind);
    double *a = filter.a, *b = filter.b;
    const auto write = [&](const PrototypeSection& section) {
        const IirStage stage = IirStageOf(kind, warp, section);
        a = std::copy_n(stage.a, width, a);
        b = std::copy_n(stage.b, width + 1, b);
    };
    return IirPrototypeSections({family, filter.order, IsBand(kind), wanted.ripple, wanted.attenuation}, write);
}

Status IirCoefficients(IirFamily family, Count kind, Count order, const IirSpecification& wanted, double* a,
                       Count aSize, double* b, Count bSize) noexcept {
    const Held<IirFilter> filter(IirFilterCreate(static_cast<std::uint32_t>(kind), order));
    if (!filter) return status::kOutOfMemory;
    if (const Status failure = IirDesign(family, wanted, *filter)) return failure;
    return IirToDirectForm(&*filter, a, aSize, b, bSize);
}

Status IirToDirectForm(const IirFilter* filter, double* a, Count aSize, double* b, Count bSize) noexcept {
    if (!filter) return status::kInvalidFilter;
    if (filter->order < 1) return status::kOrderNotPositive;
    const std::uint32_t kind = static_cast<std::uint32_t>(filter->type);
    if (kind > kBandstop) return status::kInvalidSelection;
    const Size stages = StageCount(filter->order), width = StageWidth(kind);
    if (filter->a_count != stages * width || filter->b_count != stages * (width + 1)) return status::kInvalidFilter;
    // The zero with which an odd order is padded is cut off.
    const Size length = IsBand(kind) ? 2 * Size{filter->order} + 1 : Size{filter->order} + 1;
    if (aSize < length || bSize < length) return status::kInvalidFilter;

    const Block<double> work(2 * (static_cast<std::size_t>(filter->a_count) + 1));
    if (!work) return status::kOutOfMemory;
    const Count S = static_cast<Count>(stages), w = static_cast<Count>(width), L = static_cast<Count>(length);
    const auto feedback = [&](Count s, double* to) {
        to[0] = 1;
        std::copy_n(filter->a + Size{s} * w, w, to + 1);
    };
    const auto forward = [&](Count s, double* to) { std::copy_n(filter->b + Size{s} * (w + 1), w + 1, to); };
    if (const Status failure = MultiplyUp(S, w, feedback, work, L, a)) return failure;
    return MultiplyUp(S, w, forward, work, L, b);
}

}  // namespace quorvan

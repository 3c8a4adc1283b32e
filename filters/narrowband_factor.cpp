#include "filters/narrowband_factor.h"

#include <cmath>
#include <cstdint>

namespace quorvan {
namespace {

// J. F. Kaiser's estimate (IEEE ISCAS 1974): (-20 log10 sqrt(p q) - 13) / (14.6 width/fs) for the deviations p and q.
double Order(const NarrowbandRequest& q, double p, double width) {
    return std::trunc((-20 * std::log10(std::sqrt(p * q.delta2)) - 13) / (14.6 * width / q.fs));
}

double SingleOrder(const NarrowbandRequest& q, double width) { return Order(q, q.delta1, width); }

// Each of two stages may spend half of the deviation.
double StageOrder(const NarrowbandRequest& q, double width) { return Order(q, q.delta1 / 2, width); }

struct Folded {
    double center, image;
};

// Where the band at `center` comes to lie in the model, whose frequencies are L times as high and repeat with fs. The
// image is 0 where the stretched band would touch 0 or fs/2.
Folded FirNarrowbandFold(const NarrowbandRequest& q, double L) {
    const double v = L * q.center;
    double k = v > q.fs ? std::ceil(v / q.fs) - 1 : 0;
    if (v - k * q.fs > q.fs) ++k;  // the quotient was rounded
    Folded folded{v - k * q.fs, 2 * k + 1};
    if (folded.center > q.fs / 2) {
        folded.center = q.fs - folded.center;
        ++folded.image;
    }
    if (folded.center + L * q.e2 >= q.fs / 2 || folded.center - L * q.e2 <= 0) folded.image = 0;
    return folded;
}

// From the band to the nearest image of the model.
double SuppressorWidth(const NarrowbandRequest& q, double L, Folded folded) {
    const double below = 2 * folded.center / L - q.e2 - q.e1;
    const double above = (q.fs - 2 * folded.center) / L - q.e2 - q.e1;
    if (folded.image == 1) return above;
    if (folded.image == L) return std::fmod(L, 2) == 0 ? above : below;
    return folded.center > q.fs / 4 ? above : below;
}

}  // namespace

NarrowbandPlan FirNarrowbandFactor(const NarrowbandRequest& q) noexcept {
    NarrowbandPlan plan;
    double L = std::floor(q.fs / (std::sqrt((q.e2 - q.e1) * q.fs) + q.e1 + q.e2) + 0.5);
    while (L > 1 && L <= INT32_MAX && L * q.e2 >= q.fs / 2) --L;  // beyond it no filter comes, and 1 may be lost in L
    const double single = SingleOrder(q, q.e2 - q.e1);
    plan.suppressor_order = L == 1 ? 0 : StageOrder(q, q.fs / L - q.e2 - q.e1);
    plan.model_order = StageOrder(q, L * q.e2 - L * q.e1);
    plan.factor = L;
    if (single <= plan.model_order + plan.suppressor_order) {
        plan.factor = 1;
        plan.model_order = single;
        plan.suppressor_order = 0;
    }
    return plan;
}

NarrowbandPlan FirNarrowbandFactorBand(const NarrowbandRequest& q) noexcept {
    NarrowbandPlan plan;
    plan.center = q.center;
    plan.transition = q.e2 - q.e1;
    plan.model_order = SingleOrder(q, plan.transition);
    double best = plan.model_order;
    const double last = std::trunc(q.fs / (4 * q.e2));
    if (!(best >= 0 && best <= INT32_MAX))
        return plan;  // no design has it; a negative order would not grow by a factor
    for (double L = 2; L <= last; ++L) {
        // Images stand less than fs/L apart: from here on the suppressor alone costs more.
        if (StageOrder(q, q.fs / L) >= best) break;
        const Folded folded = FirNarrowbandFold(q, L);
        if (folded.image == 0) continue;
        const double width = SuppressorWidth(q, L, folded);
        if (!(width > 0)) continue;
        const double model = StageOrder(q, L * (q.e2 - q.e1)), suppressor = StageOrder(q, width);
        if (model + suppressor < best) {
            best = model + suppressor;
            plan = {L, model, suppressor, folded.center, folded.image, width};
        }
    }
    return plan;
}

}  // namespace quorvan

// Entries of the FFT plans.
#include "frame/entry.h"
#include "quorvan/quorvan.h"
#include "transforms/fft_plan.h"

using namespace quorvan;

QV_EXPORT QvFftPlan* ZemFunc260(Size size) {
    return SizeNarrow(size) ? reinterpret_cast<QvFftPlan*>(FftPlanCreate(static_cast<Count>(size), FftPlanUse::kCallers)) : nullptr;
}

QV_EXPORT void ZemFunc261(QvFftPlan* plan) { FftPlanRelease(reinterpret_cast<FftPlan*>(plan)); }

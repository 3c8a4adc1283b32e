// FFT plans: everything that a transform of one size needs, shared between all who hold that size.
#pragma once

#include "frame/types.h"

namespace quorvan {

struct FftPlan;

// What a plan is made for: transforms; all bins of reals too (FftSpectrum); or a caller, who holds it for both and may
// read the twiddles in their plain order, which no transform does.
enum class FftPlanUse { kTransforms, kSpectra, kCallers };

// The plan of this size with one more reference, or null when the size is below 1 or memory ran out. Locks. A plan that
// lives already gets what it lacks: other threads may be transforming by it, but they do not look there.
FftPlan* FftPlanCreate(Count size, FftPlanUse use = FftPlanUse::kTransforms) noexcept;
// Drops a reference; the last one frees the plan. Null is ignored. Locks.
void FftPlanRelease(FftPlan* plan) noexcept;

// The length that a plan transforms.
Count FftPlanSize(const FftPlan* plan) noexcept;

// The smallest size >= n that runs on kernels alone; a value below 2 as it stands.
Count FftFastSize(Count n) noexcept;

// A held reference, dropped at the end of the scope.
class HeldPlan {
public:
    explicit HeldPlan(Count size, FftPlanUse use = FftPlanUse::kTransforms) noexcept
        : plan_(FftPlanCreate(size, use)) {}
    HeldPlan(const HeldPlan&) = delete;
    HeldPlan& operator=(const HeldPlan&) = delete;
    ~HeldPlan() { FftPlanRelease(plan_); }

    explicit operator bool() const noexcept { return plan_ != nullptr; }
    operator const FftPlan*() const noexcept { return plan_; }

private:
    FftPlan* plan_;
};

}  // namespace quorvan

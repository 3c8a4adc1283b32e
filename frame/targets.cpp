#include "frame/targets.h"

#include <atomic>

namespace quorvan {
namespace {

Target Widest() noexcept {
    if (TargetAvailable(Target::kAvx512)) return Target::kAvx512;
    if (TargetAvailable(Target::kAvx2)) return Target::kAvx2;
    return Target::kBaseline;
}

// Chosen at the first use, without a guard: all who choose at the same time choose the same.
constexpr int kUnchosen = -1;
constinit std::atomic<int> active{kUnchosen};

}  // namespace

bool TargetAvailable(Target target) noexcept {
#if defined(QUORVAN_WIDE_TARGETS)
    switch (target) {
        case Target::kAvx512:
            return __builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512dq") &&
                   __builtin_cpu_supports("avx512vl") && TargetAvailable(Target::kAvx2);
        case Target::kAvx2: return __builtin_cpu_supports("avx2") && __builtin_cpu_supports("fma");
        default: return true;
    }
#else
    return target == Target::kBaseline;
#endif
}

Target ActiveTarget() noexcept {
    const int chosen = active.load(std::memory_order_relaxed);
    if (chosen != kUnchosen) [[likely]]
        return static_cast<Target>(chosen);
    const Target widest = Widest();
    ForceTarget(widest);
    return widest;
}

void ForceTarget(Target target) noexcept { active.store(static_cast<int>(target), std::memory_order_relaxed); }

}  // namespace quorvan

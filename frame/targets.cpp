#include "frame/targets.h"

#include <atomic>

namespace quorvan {
namespace {

Target Widest() noexcept {
    if (TargetAvailable(Target::kAvx512)) return Target::kAvx512;
    if (TargetAvailable(Target::kAvx2)) return Target::kAvx2;
    return Target::kBaseline;
}

std::atomic<Target>& Active() noexcept {
    static std::atomic<Target> active{Widest()};
    return active;
}

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

Target ActiveTarget() noexcept { return Active().load(std::memory_order_relaxed); }

void ForceTarget(Target target) noexcept { Active().store(target, std::memory_order_relaxed); }

}  // namespace quorvan

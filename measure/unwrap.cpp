#include "measure/unwrap.h"

#include <cmath>

#include "frame/status.h"

namespace quorvan {
namespace {

constexpr double kTurnInDegrees = 360.0;

}  // namespace

Status SpecUnwrapPhase(double* phase, Count n, std::uint32_t mode) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    const double period = mode == 2 || mode == 3 ? kTurnInDegrees : kTwoPi;
    // The reference is the value just stored, not the one that was there: an exact half period goes down.
    double previous = phase[0];
    for (Count i = 1; i < n; ++i) {
        const double turns = std::floor((phase[i] - previous) / period + 0.5) * period;
        previous = phase[i] - turns;
        phase[i] = previous;
    }
    if (mode == 1)
        for (Count i = 0; i < n; ++i) phase[i] = phase[i] * kTurnInDegrees / kTwoPi;
    if (mode == 3)
        for (Count i = 0; i < n; ++i) phase[i] = phase[i] * kTwoPi / kTurnInDegrees;
    return status::kSuccess;
}

}  // namespace quorvan

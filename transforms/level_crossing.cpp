#include "transforms/level_crossing.h"

#include <cmath>
#include <cstddef>

#include "frame/memory.h"
#include "frame/status.h"
#include "frame/thread_registry.h"

namespace quorvan {
namespace {

template <class Test>
Count Seek(const double* x, Count i, Count n, Test test) noexcept {
    while (i < n && !test(x[i])) ++i;
    return i;
}

// The index of the crossing, or -1. `armed` is the channel's state: 0 not armed, 1 armed.
template <class Arms, class Fires>
Count Search(const double* x, Count n, std::int32_t* armed, Arms arms, Fires fires) noexcept {
    Count i = 0;
    if (!*armed) {
        i = Seek(x, 0, n, arms);
        if (i == n) return -1;
        *armed = 1;
        ++i;  // the sample that arms does not fire
    }
    i = Seek(x, i, n, fires);
    if (i == n) return -1;
    *armed = 0;
    return i;
}

Count FirstCrossing(const double* x, Count n, double level, double hysteresis, std::int32_t slope,
                    std::int32_t* armed) noexcept {
    const double h = std::fabs(hysteresis), below = level - h, above = level + h;
    if (slope == 1)
        return Search(
            x, n, armed, [=](double v) { return v < below; }, [=](double v) { return v >= level; });
    if (slope == 0)
        return Search(
            x, n, armed, [=](double v) { return v > above; }, [=](double v) { return v <= level; });
    return -1;
}

}  // namespace

Status DetectLevelCrossing(const double* x, Count n, double level, double hysteresis, std::int32_t slope,
                           std::int32_t reset, Count* index, std::int32_t* found) noexcept {
    ThreadState* state = ThreadStateGet();
    if (!state) return status::kOutOfMemory;
    if (state->crossingFirst || reset) state->crossingState = 0;
    state->crossingFirst = 0;
    if (n < 0) return status::kSamplesNegative;
    *index = FirstCrossing(x, n, level, hysteresis, slope, &state->crossingState);
    *found = *index >= 0;
    return status::kSuccess;
}

Status DetectLevelCrossings(const double* x, Count channels, Count n, const double* levels, const double* hysteresis,
                            const std::int32_t* slopes, std::int32_t reset, Count* indices,
                            std::int32_t* found) noexcept {
    if (channels < 1 || n < 1) return status::kSamplesNotPositive;
    ThreadState* state = ThreadStateGet();
    if (!state) return status::kOutOfMemory;
    if (state->crossingStatesFirst || reset) {
        HeapFree(state->crossingStates);
        Block<std::int32_t> states(static_cast<std::size_t>(channels));
        for (Count c = 0; states && c < channels; ++c) states[c] = 0;
        state->crossingStates = states.release();
        state->crossingChannels = channels;
        state->crossingStatesFirst = 0;
    }
    if (channels != state->crossingChannels) return status::kInvalidDimensions;
    if (!state->crossingStates) return status::kOutOfMemory;
    for (Count c = 0; c < channels; ++c) {
        indices[c] =
            FirstCrossing(x + std::ptrdiff_t{c} * n, n, levels[c], hysteresis[c], slopes[c], &state->crossingStates[c]);
        found[c] = indices[c] >= 0;
    }
    return status::kSuccess;
}

}  // namespace quorvan

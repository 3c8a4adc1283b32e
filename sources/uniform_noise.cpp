// Noise whose samples are draws themselves: uniform, white, Bernoulli; and the periodic noise of flat magnitude.
#include <cmath>

#include "frame/memory.h"
#include "frame/status.h"
#include "frame/thread_registry.h"
#include "sources/noise.h"
#include "sources/random_loops.h"
#include "sources/random_stream.h"
#include "transforms/fft.h"
#include "transforms/fft_plan.h"

namespace quorvan {
namespace {

Status Uniform(Count n, std::int32_t seed, RngStream* stream, double* out) noexcept {
    if (seed >= 0) RngSeed(seed, stream);
    if (n < 1) return status::kSamplesNotPositive;
    kRandomLoops().uniform(stream, n, out);
    return status::kSuccess;
}

Status White(Count n, double amplitude, std::int32_t seed, RngStream* stream, double* out) noexcept {
    if (seed >= 0) RngSeed(seed, stream);
    if (n < 1) return status::kSamplesNotPositive;
    kRandomLoops().white(stream, n, amplitude * 2.0, out);
    return status::kSuccess;
}

// The spectrum of bins k and n - k is A (cos phi, +-sin phi), A = n amplitude / 2, with phi the 15-bit integer taken as
// a number of radians: deliberate, no scaling to the circle. The mean and, for even n, the Nyquist line are 0.
Status Periodic(Count n, double amplitude, std::int32_t seed, RngStream* stream, double* out) noexcept {
    if (seed >= 0) RngSeed(seed, stream);
    if (n < 1) return status::kSamplesNotPositive;
    Block<double> half(static_cast<std::size_t>(n));
    if (!half) return status::kOutOfMemory;
    half[0] = 0.0;
    if (n % 2 == 0) half[n / 2] = 0.0;
    const double magnitude = n * amplitude * 0.5;
    for (Count k = 1; k <= (n - 1) / 2; ++k) {
        const double phase = RngPhase15(stream);
        half[k] = magnitude * std::cos(phase);
        half[n - k] = magnitude * std::sin(phase);
    }
    if (n == 1) {
        out[0] = 0.0;
        return status::kSuccess;
    }
    const HeldPlan plan(n);
    if (!plan) return status::kOutOfMemory;
    return FftRealInverse(plan, half, out, 1, 1, n);
}

}  // namespace

Status GenUniformNoise(Count n, std::int32_t seed, double* out) noexcept {
    ThreadState* state = ThreadStateGet();
    if (!state) return status::kOutOfMemory;
    RngBegin(seed, &state->uniformStream);
    return Uniform(n, seed, &state->uniformStream, out);
}

Status GenWhiteNoise(Count n, double amplitude, std::int32_t seed, double* out) noexcept {
    ThreadState* state = ThreadStateGet();
    if (!state) return status::kOutOfMemory;
    RngBegin(seed, &state->whiteStream);
    return White(n, amplitude, seed, &state->whiteStream, out);
}

Status GenPeriodicRandomNoise(Count n, double amplitude, std::int32_t seed, double* out) noexcept {
    ThreadState* state = ThreadStateGet();
    if (!state) return status::kOutOfMemory;
    RngBegin(seed, &state->periodicStream);
    return Periodic(n, amplitude, seed, &state->periodicStream, out);
}

Status GenBernoulliNoise(Count n, double probability, std::int32_t seed, std::int32_t reset,
                         std::int32_t* out) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    if (probability < 0.0 || probability > 1.0) return status::kProbabilityOutOfRange;
    if (std::isnan(probability)) return status::kInvalidSelection;
    ThreadState* state = ThreadStateGet();
    if (!state) return status::kOutOfMemory;
    RngBeginWithReset(&seed, reset, &state->bernoulliStream);
    Block<double> draws(static_cast<std::size_t>(n));
    if (!draws) return status::kOutOfMemory;
    const Status drawn = White(n, 0.5, seed, &state->bernoulliStream, draws);
    if (drawn < 0) return drawn;
    const double threshold = probability - 0.5;
    for (Count i = 0; i < n; ++i) out[i] = threshold > draws[i];
    return status::kSuccess;
}

}  // namespace quorvan

// Normal deviates by the polar method: a point drawn uniformly inside the unit circle gives two of them.
// G. Marsaglia and T. A. Bray, A convenient method for generating normal variables, SIAM Review 6 (1964).
#include <cmath>

#include "frame/status.h"
#include "frame/thread_registry.h"
#include "sources/noise.h"
#include "sources/random_draws.h"
#include "sources/random_stream.h"

namespace quorvan {
namespace {

struct Deviates {
    double now, spare;
};

// (u1, u2) uniform in the circle, s = u1² + u2²: u sqrt(-2 ln(s) / s).
Deviates PolarDeviates(RandomDraws& draws) noexcept {
    double u1, u2, s;
    do {
        u1 = 2.0 * draws.Next() - 1.0;
        u2 = 2.0 * draws.Next() - 1.0;
        s = u2 * u2 + u1 * u1;
    } while (s >= 1.0 || s == 0.0);
    const double f = std::sqrt(-2.0 * std::log(s) / s);
    return {f * u2, f * u1};
}

}  // namespace

// The second deviate of a point waits for the next output, also of a later call; only a seed above 0 drops it.
Status GenGaussianNoise(Count n, double deviation, std::int32_t seed, double* out) noexcept {
    ThreadState* state = ThreadStateGet();
    if (!state) return status::kOutOfMemory;
    RngStream stream = {state->gaussX, state->gaussY, state->gaussZ, state->gaussFirst};
    RngBegin(seed, &stream);
    bool have_spare = state->gaussHaveSpare;
    double spare = state->gaussSpare;
    if (seed > 0) {
        RngSeed(seed, &stream);
        have_spare = false;
        spare = 0.0;
    }
    Status done = status::kSuccess;
    if (n < 1) {
        done = status::kSamplesNotPositive;
    } else if (RngIsStuck(stream)) {
        done = status::kInvalidSelection;
    } else {
        RandomDraws draws(&stream, n);
        for (Count i = 0; i < n; ++i) {
            double value = spare;
            if (!have_spare) {
                const Deviates drawn = PolarDeviates(draws);
                value = drawn.now;
                spare = drawn.spare;
            }
            have_spare = !have_spare;
            out[i] = value * deviation;
        }
    }
    state->gaussX = stream.x;
    state->gaussY = stream.y;
    state->gaussZ = stream.z;
    state->gaussFirst = stream.first;
    state->gaussHaveSpare = have_spare;
    state->gaussSpare = spare;
    return done;
}

}  // namespace quorvan

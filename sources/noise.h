// Noise generators. Each draws from a stream of its own in the state of the calling thread, so that kinds called in
// turn do not disturb each other.
//
// Where a seed stands alone, the stream is seeded before n is tested: a refused call has consumed the first call of the
// stream. Where a reset stands beside it, n and the parameter are tested before the stream is touched.
#pragma once

#include "frame/types.h"

namespace quorvan {

// With a seed alone.
Status GenUniformNoise(Count n, std::int32_t seed, double* out) noexcept;
Status GenWhiteNoise(Count n, double amplitude, std::int32_t seed, double* out) noexcept;
Status GenGaussianNoise(Count n, double deviation, std::int32_t seed, double* out) noexcept;
Status GenPeriodicRandomNoise(Count n, double amplitude, std::int32_t seed, double* out) noexcept;

// With a seed and a reset.
Status GenGammaNoise(Count n, std::int32_t order, std::int32_t seed, std::int32_t reset, double* out) noexcept;
Status GenPoissonNoise(Count n, double mean, std::int32_t seed, std::int32_t reset, double* out) noexcept;
Status GenBinomialNoise(Count n, std::int32_t trials, double probability, std::int32_t seed, std::int32_t reset,
                        std::int32_t* out) noexcept;
Status GenBernoulliNoise(Count n, double probability, std::int32_t seed, std::int32_t reset,
                         std::int32_t* out) noexcept;

}  // namespace quorvan

// Gamma, Poisson and binomial variates: by their definition for small parameters, else by rejection under a Lorentzian,
// a multiple of 1 / (1 + y²) with y = tan(pi u) or the ratio of the coordinates of a point in the circle.
// J. H. Ahrens and U. Dieter, Computer methods for sampling from gamma, beta, Poisson and binomial distributions,
// Computing 12 (1974); L. Devroye, Non-Uniform Random Variate Generation (1986), chapter X.
#include <algorithm>
#include <cmath>

#include "frame/status.h"
#include "frame/thread_registry.h"
#include "sources/noise.h"
#include "sources/random_draws.h"
#include "sources/random_stream.h"
#include "stats/special/ln_gamma.h"

namespace quorvan {
namespace {

double SmallGamma(std::int32_t order, RandomDraws& draws) noexcept {
    double product = 1.0;
    for (std::int32_t i = 0; i < order; ++i) product *= draws.Next();
    return -std::log(product);
}

// Comparisons that NaN must fail stand as the acceptance, so that a ratio 0/0 draws again.
double LargeGamma(std::int32_t order, RandomDraws& draws) noexcept {
    const double am = order - 1.0, s = std::sqrt(2.0 * am + 1.0);
    for (;;) {
        double v1, v2;
        do {
            v1 = 2.0 * draws.Next() - 1.0;
            v2 = 2.0 * draws.Next() - 1.0;
        } while (v1 * v1 + v2 * v2 > 1.0);
        const double y = v2 / v1, em = s * y + am;
        if (em <= 0.0) continue;
        const double w = draws.Next();
        if (w <= std::exp(std::log(em / am) * am - s * y) * (y * y + 1.0)) return em;
    }
}

double SmallPoisson(double limit, RandomDraws& draws) noexcept {
    double k = -1.0, product = 1.0;
    do {
        k += 1.0;
        product *= draws.Next();
    } while (product > limit);
    return k;
}

struct LargePoisson {
    double mean, width, ln_mean, ln_peak;

    explicit LargePoisson(double mean) noexcept
        : mean(mean),
          width(std::sqrt(2.0 * mean)),
          ln_mean(std::log(mean)),
          ln_peak(ln_mean * mean - SpecLnGamma(mean + 1.0)) {}

    double Draw(RandomDraws& draws) const noexcept {
        for (;;) {
            double y;
            do y = std::tan(kPi * draws.Next());
            while (y * width + mean < 0.0);
            const double em = std::floor(y * width + mean);
            const double t = std::exp(ln_mean * em - SpecLnGamma(em + 1.0) - ln_peak);
            if (draws.Next() <= t * (y * y + 1.0) * 0.9) return em;
        }
    }
};

// The generator draws with the probability p of at most 1/2.
double CountedBinomial(std::int32_t trials, double p, RandomDraws& draws) noexcept {
    double count = 0.0;
    for (std::int32_t i = 0; i < trials; ++i) count += draws.Next() < p ? 1.0 : 0.0;
    return count;
}

// A mean below 1: the Poisson variate of the same mean, cut at the number of trials.
double RareBinomial(std::int32_t trials, double limit, RandomDraws& draws) noexcept {
    double product = 1.0;
    std::int64_t j = 0;
    do {
        product *= draws.Next();
        if (product < limit) break;
        ++j;
    } while (j <= trials);
    return static_cast<double>(std::min<std::int64_t>(trials, j));
}

double LargeBinomial(const RngBinomialCache& kept, double mean, double width, RandomDraws& draws) noexcept {
    for (;;) {
        double y, em;
        do {
            y = std::tan(kPi * draws.Next());
            em = y * width + mean;
        } while (em < 0.0 || em >= kept.trialsReal + 1.0);
        em = std::floor(em);
        const double ln_mass = kept.lnGammaTrials - SpecLnGamma(em + 1.0) - SpecLnGamma(kept.trialsReal - em + 1.0) +
                               em * kept.lnP + (kept.trialsReal - em) * kept.lnQ;
        if (draws.Next() <= std::exp(ln_mass) * ((y * y + 1.0) * (width * 1.2))) return em;
    }
}

// What a run of draws with one number of trials and one probability needs only once.
void Refresh(RngBinomialCache* kept, std::int32_t trials, double p) noexcept {
    if (trials != kept->trials) {
        kept->trialsReal = trials;
        kept->lnGammaTrials = SpecLnGamma(kept->trialsReal + 1.0);
        kept->trials = trials;
    }
    if (p != kept->p) {
        kept->q = 1.0 - p;
        kept->lnP = std::log(p);
        kept->lnQ = std::log(1.0 - p);
        kept->p = p;
    }
}

}  // namespace

Status GenGammaNoise(Count n, std::int32_t order, std::int32_t seed, std::int32_t reset, double* out) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    if (order < 1) return status::kNotPositive;
    ThreadState* state = ThreadStateGet();
    if (!state) return status::kOutOfMemory;
    RngBeginWithReset(&seed, reset, &state->gammaStream);
    if (seed >= 0) RngSeed(seed, &state->gammaStream);
    const bool small = order < 6;
    if (!small && RngIsStuck(state->gammaStream)) return status::kInvalidSelection;
    RandomDraws draws(&state->gammaStream, n);
    for (Count i = 0; i < n; ++i) out[i] = small ? SmallGamma(order, draws) : LargeGamma(order, draws);
    return status::kSuccess;
}

Status GenPoissonNoise(Count n, double mean, std::int32_t seed, std::int32_t reset, double* out) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    if (!(mean >= 0.0) || std::isinf(mean)) return status::kInvalidSelection;
    const bool small = mean < 12.0;
    const LargePoisson large(mean);
    // A mean beyond the range of ln Gamma would never be accepted.
    if (!small && !std::isfinite(large.ln_peak)) return status::kInvalidSelection;
    ThreadState* state = ThreadStateGet();
    if (!state) return status::kOutOfMemory;
    RngBeginWithReset(&seed, reset, &state->poissonStream);
    if (seed >= 0) RngSeed(seed, &state->poissonStream);
    RandomDraws draws(&state->poissonStream, n);
    if (small) {
        const double limit = std::exp(-mean);
        for (Count i = 0; i < n; ++i) out[i] = SmallPoisson(limit, draws);
    } else {
        for (Count i = 0; i < n; ++i) out[i] = large.Draw(draws);
    }
    return status::kSuccess;
}

Status GenBinomialNoise(Count n, std::int32_t trials, double probability, std::int32_t seed, std::int32_t reset,
                        std::int32_t* out) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    if (trials < 0) return status::kNegativeNumber;
    if (probability < 0.0 || probability > 1.0) return status::kProbabilityOutOfRange;
    if (std::isnan(probability)) return status::kInvalidSelection;
    ThreadState* state = ThreadStateGet();
    if (!state) return status::kOutOfMemory;
    if (RngBeginWithReset(&seed, reset, &state->binomialStream)) state->binomialCache = RngBinomialCache{};
    if (seed >= 0) RngSeed(seed, &state->binomialStream);
    RandomDraws draws(&state->binomialStream, n);

    const bool mirrored = !(probability <= 0.5);
    const double p = mirrored ? 1.0 - probability : probability, mean = trials * p;
    const auto fill = [&](auto draw) {
        for (Count i = 0; i < n; ++i) {
            const double value = draw();
            out[i] = static_cast<std::int32_t>(mirrored ? trials - value : value);
        }
    };
    if (trials < 25) {
        fill([&] { return CountedBinomial(trials, p, draws); });
    } else if (mean < 1.0) {
        const double limit = std::exp(-mean);
        fill([&] { return RareBinomial(trials, limit, draws); });
    } else {
        Refresh(&state->binomialCache, trials, p);
        const RngBinomialCache& kept = state->binomialCache;
        const double width = std::sqrt(2.0 * mean * kept.q);
        fill([&] { return LargeBinomial(kept, mean, width, draws); });
    }
    return status::kSuccess;
}

}  // namespace quorvan

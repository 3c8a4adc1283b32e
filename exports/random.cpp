// Entries of the noise generators, the low-discrepancy sequences and the shuffles.
#include "frame/entry.h"
#include "quorvan/quorvan.h"
#include "sources/noise.h"
#include "sources/sequences.h"
#include "sources/shuffles.h"

using namespace quorvan;

namespace {

// The permutation is made in 32 bits and widened; a null one is not made at all.
template <class T>
Status Shuffled(T* data, Size n, std::int32_t seed, std::int64_t* perm,
                Status (*shuffle)(T*, Count, std::int32_t, Count*) noexcept) {
    return narrowed(n, [&](Count n) -> Status {
        if (n < 1) return status::kSamplesNotPositive;
        Block<Count> order;
        if (perm) {
            order = Block<Count>(static_cast<std::size_t>(n));
            if (!order) return status::kOutOfMemory;
        }
        const Status done = shuffle(data, n, seed, order);
        if (done < 0) return done;
        return IndexArrayWiden(perm, order, n);
    });
}

}  // namespace

QV_EXPORT Status ZemFunc182(Size n, std::int32_t seed, double* out) {
    return narrowed(n, [&](Count n) { return GenUniformNoise(n, seed, out); });
}

QV_EXPORT Status ZemFunc185(Size n, double amplitude, std::int32_t seed, double* out) {
    return narrowed(n, [&](Count n) { return GenWhiteNoise(n, amplitude, seed, out); });
}

QV_EXPORT Status ZemFunc84(Size n, double deviation, std::int32_t seed, double* out) {
    return narrowed(n, [&](Count n) { return GenGaussianNoise(n, deviation, seed, out); });
}

QV_EXPORT Status ZemFunc387(Size n, double amplitude, std::int32_t seed, double* out) {
    return narrowed(n, [&](Count n) { return GenPeriodicRandomNoise(n, amplitude, seed, out); });
}

QV_EXPORT Status ZemFunc396(double* data, Size n, std::int32_t seed, std::int64_t* perm) {
    return Shuffled(data, n, seed, perm, RngShuffleReal);
}

QV_EXPORT Status ZemFunc397(ComplexRecord* data, Size n, std::int32_t seed, std::int64_t* perm) {
    return Shuffled(data, n, seed, perm, RngShuffleComplex);
}

QV_EXPORT Status ZemFunc398(std::int32_t* data, Size n, std::int32_t seed, std::int64_t* perm) {
    return Shuffled(data, n, seed, perm, RngShuffleInt);
}

QV_EXPORT Status ZemFunc388(Size n, std::int32_t order, std::int32_t seed, std::int32_t reset, double* out) {
    return narrowed(n, [&](Count n) { return GenGammaNoise(n, order, seed, reset, out); });
}

QV_EXPORT Status ZemFunc389(Size n, double mean, std::int32_t seed, std::int32_t reset, double* out) {
    return narrowed(n, [&](Count n) { return GenPoissonNoise(n, mean, seed, reset, out); });
}

QV_EXPORT Status ZemFunc390(Size n, std::int32_t trials, double probability, std::int32_t seed, std::int32_t reset,
                            std::int32_t* out) {
    return narrowed(n, [&](Count n) { return GenBinomialNoise(n, trials, probability, seed, reset, out); });
}

QV_EXPORT Status ZemFunc414(Size n, double probability, std::int32_t seed, std::int32_t reset, std::int32_t* out) {
    return narrowed(n, [&](Count n) { return GenBernoulliNoise(n, probability, seed, reset, out); });
}

QV_EXPORT Status ZemFunc412(Size n, std::int32_t base, std::int32_t reset, double* out) {
    return narrowed(n, [&](Count n) { return GenHaltonSequence(n, base, reset, out); });
}

QV_EXPORT Status ZemFunc413(Size n, double step, std::int32_t reset, double* out) {
    return narrowed(n, [&](Count n) { return GenWeylSequence(n, step, reset, out); });
}

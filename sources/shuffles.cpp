#include "sources/shuffles.h"

#include <utility>

#include "frame/status.h"
#include "frame/thread_registry.h"
#include "sources/random_draws.h"
#include "sources/random_stream.h"

namespace quorvan {
namespace {

// R. A. Fisher and F. Yates (1938), in the order of R. Durstenfeld, Algorithm 235, CACM 7 (1964): place i takes one of
// the elements up to it, from the last place down.
template <class T>
Status Shuffle(T* data, Count n, std::int32_t seed, RngStream ThreadState::*owned, Count* perm) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    ThreadState* state = ThreadStateGet();
    if (!state) return status::kOutOfMemory;
    RngStream& stream = state->*owned;
    RngBegin(seed, &stream);
    if (seed >= 0) RngSeed(seed, &stream);
    if (perm)
        for (Count i = 0; i < n; ++i) perm[i] = i;
    RandomDraws draws(&stream, n - 1);
    for (Count i = n - 1; i >= 1; --i) {
        const Count j = static_cast<Count>(draws.Next() * (i + 1));
        std::swap(data[i], data[j]);
        if (perm) std::swap(perm[i], perm[j]);
    }
    return status::kSuccess;
}

}  // namespace

Status RngShuffleReal(double* data, Count n, std::int32_t seed, Count* perm) noexcept {
    return Shuffle(data, n, seed, &ThreadState::shuffleRealStream, perm);
}

Status RngShuffleComplex(ComplexRecord* data, Count n, std::int32_t seed, Count* perm) noexcept {
    return Shuffle(data, n, seed, &ThreadState::shuffleComplexStream, perm);
}

Status RngShuffleInt(std::int32_t* data, Count n, std::int32_t seed, Count* perm) noexcept {
    return Shuffle(data, n, seed, &ThreadState::shuffleIntStream, perm);
}

}  // namespace quorvan

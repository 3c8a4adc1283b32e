#include "sources/random_stream.h"

#include <cstdlib>
#include <ctime>

namespace quorvan {
namespace {

// value factor^count, remainder by the modulus with the sign of the value, which is below the modulus.
std::int32_t Jumped(std::int32_t value, std::int32_t factor, std::int32_t modulus, std::int32_t count) noexcept {
    for (; count > 0; count /= 2) {
        if (count % 2) value = value * factor % modulus;
        factor = factor * factor % modulus;
    }
    return value;
}

}  // namespace

void RngSkip(std::int32_t count, RngStream* stream) noexcept {
    if (count < 1) return;
    RngAdvance(stream);  // single: a seed in x may still have any size
    stream->x = Jumped(stream->x, kFactorX, kModulusX, count - 1);
    stream->y = Jumped(stream->y, kFactorY, kModulusY, count - 1);
    stream->z = Jumped(stream->z, kFactorZ, kModulusZ, count - 1);
}

void RngSeed(std::int32_t seed, RngStream* stream) noexcept {
    if (seed == 0) return;
    stream->x = seed;
    stream->y = static_cast<std::int32_t>(static_cast<std::uint32_t>(seed) * 8191u & 0x3FFFu);
    stream->z = stream->y * 8191 & 0x3FFF;
}

void RngClockSeed(std::int32_t seed, RngStream* stream) noexcept {
    std::srand(static_cast<std::uint32_t>(seed) + static_cast<std::uint32_t>(std::time(nullptr)));
    RngSeed(std::rand() & 0x3FFF, stream);
}

bool RngIsStuck(const RngStream& stream) noexcept {
    RngStream next = stream;
    RngAdvance(&next);
    return next.x == 0 && next.y == 0 && next.z == 0;
}

void RngBegin(std::int32_t seed, RngStream* stream) noexcept {
    if (stream->first && seed < 0) RngClockSeed(seed, stream);
    stream->first = 0;
}

bool RngBeginWithReset(std::int32_t* seed, std::int32_t reset, RngStream* stream) noexcept {
    const bool start = stream->first || reset;
    if (start) {
        // The clock's seed is replaced at once: deliberate. A negative seed with a reset gives the default stream.
        if (*seed < 0) RngClockSeed(*seed, stream);
        *stream = RngStream{};
    } else {
        *seed = -1;
    }
    stream->first = 0;
    return start;
}

}  // namespace quorvan

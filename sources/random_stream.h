// The one random core of the library: three multiplicative congruential generators whose quotients are added modulo 1.
// B. A. Wichmann and I. D. Hill, Algorithm AS 183, Applied Statistics 31 (1982).
//
// A component is below its modulus after its first step, except that a seed of any size and sign may stand in x: then
// 171 x wraps in 32 bits, the remainder truncates towards zero, and x keeps a negative sign for good.
#pragma once

#include <cstdint>

#include "frame/targets.h"
#include "frame/thread_state.h"

namespace quorvan {

inline constexpr std::int32_t kModulusX = 30269, kModulusY = 30307, kModulusZ = 30323;
inline constexpr std::int32_t kFactorX = 171, kFactorY = 172, kFactorZ = 170;

QV_INLINE std::int32_t CongruentialStep(std::int32_t value, std::int32_t factor, std::int32_t modulus) noexcept {
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(factor) * static_cast<std::uint32_t>(value)) % modulus;
}

// y, x, z, in this order of additions; the factors are the reciprocals of the moduli. In (-1, 3).
QV_INLINE double CombinedQuotients(std::int32_t x, std::int32_t y, std::int32_t z) noexcept {
    return y * 3.2995677566238825e-5 + x * 3.3037100664045725e-5 + z * 3.297826732183491e-5;
}

// v - floor(v) for |v| below 2^31: truncation and a comparison, where the baseline has no instruction for the floor.
QV_INLINE double FractionAboveFloor(double v) noexcept {
    const double whole = static_cast<std::int32_t>(v), below = whole - 1.0;
    return v - (v < whole ? below : whole);
}

QV_INLINE double RngAdvance(RngStream* stream) noexcept {
    stream->x = CongruentialStep(stream->x, kFactorX, kModulusX);
    stream->y = CongruentialStep(stream->y, kFactorY, kModulusY);
    stream->z = CongruentialStep(stream->z, kFactorZ, kModulusZ);
    return CombinedQuotients(stream->x, stream->y, stream->z);
}

// The next double in [0, 1).
QV_INLINE double RngUniform(RngStream* stream) noexcept { return FractionAboveFloor(RngAdvance(stream)); }

// The next integer in 0..32767; in -32767..0 as well while x is negative.
QV_INLINE std::int32_t RngPhase15(RngStream* stream) noexcept {
    const double v = RngAdvance(stream);
    return static_cast<std::int32_t>((v - static_cast<std::int32_t>(v)) * 32768.0);
}

// Leaves out the next `count` draws.
void RngSkip(std::int32_t count, RngStream* stream) noexcept;

// Sets the components from a seed; 0 leaves them as they stand. y and z take 14 bits, x the whole seed.
void RngSeed(std::int32_t seed, RngStream* stream) noexcept;

// Seeds from the clock, through srand and rand of the C library.
void RngClockSeed(std::int32_t seed, RngStream* stream) noexcept;

// Whether all components are 0 from the next step on, as four multiples of 16384 make them: every draw is then 0, and
// a rejection that refuses 0 would never end.
bool RngIsStuck(const RngStream& stream) noexcept;

// The begin of a call with a seed alone: a negative seed takes the clock on the first call of the stream and goes on
// later. The generator then applies a seed above 0 at every call.
void RngBegin(std::int32_t seed, RngStream* stream) noexcept;

// The begin of a call with a seed and a reset. The first call and a reset start the stream anew, from the seed if it is
// above 0; any other call goes on, whatever its seed. True at a start; the seed is then applied by the generator, and
// becomes -1 otherwise.
bool RngBeginWithReset(std::int32_t* seed, std::int32_t reset, RngStream* stream) noexcept;

}  // namespace quorvan

// A congruential generator jumps by k steps when its factor is raised to the power k, so kLanes neighbours of one
// stream advance side by side. Below its modulus a component times any factor below it stays in 31 bits, and the
// truncating remainder keeps the sign of x: the lanes hold to the last bit what single steps give.
#include "sources/random_loops.h"

#include <cmath>

#include "sources/random_stream.h"

namespace quorvan::QV_TARGET {
namespace {

constexpr int kLanes = 16;

constexpr std::int32_t Power(std::int32_t factor, int exponent, std::int32_t modulus) {
    std::int64_t product = 1;
    for (int i = 0; i < exponent; ++i) product = product * factor % modulus;
    return static_cast<std::int32_t>(product);
}

constexpr std::int32_t kJumpX = Power(kFactorX, kLanes, kModulusX), kJumpY = Power(kFactorY, kLanes, kModulusY),
                       kJumpZ = Power(kFactorZ, kLanes, kModulusZ);

template <class Map>
QV_INLINE void Draws(RngStream* state, Count n, double* out, Map map) {
    RngStream stream = *state;
    Count i = 0;
    if (n >= 4 * kLanes) {
        // The first steps are single: a seed in x may still have any size.
        std::int32_t x[kLanes], y[kLanes], z[kLanes];
        for (int lane = 0; lane < kLanes; ++lane) {
            out[i + lane] = map(RngUniform(&stream));
            x[lane] = stream.x;
            y[lane] = stream.y;
            z[lane] = stream.z;
        }
        for (i = kLanes; i + kLanes <= n; i += kLanes) {
            for (int lane = 0; lane < kLanes; ++lane) {
                x[lane] = kJumpX * x[lane] % kModulusX;
                y[lane] = kJumpY * y[lane] % kModulusY;
                z[lane] = kJumpZ * z[lane] % kModulusZ;
            }
            for (int lane = 0; lane < kLanes; ++lane)
                out[i + lane] = map(FractionAboveFloor(CombinedQuotients(x[lane], y[lane], z[lane])));
        }
        stream.x = x[kLanes - 1];
        stream.y = y[kLanes - 1];
        stream.z = z[kLanes - 1];
    }
    for (; i < n; ++i) out[i] = map(RngUniform(&stream));
    *state = stream;
}

void Uniform(RngStream* stream, Count n, double* out) {
    Draws(stream, n, out, [](double u) { return u; });
}

void White(RngStream* stream, Count n, double gain, double* out) {
    Draws(stream, n, out, [gain](double u) { return (u - 0.5) * gain; });
}

double Weyl(double value, double step, Count n, double* out) {
    for (Count i = 0; i < n; ++i) {
        value -= std::floor(value);
        out[i] = value;
        value += step;
    }
    return value - std::floor(value);
}

}  // namespace

const RandomLoops kRandomLoops = {Uniform, White, Weyl};

}  // namespace quorvan::QV_TARGET

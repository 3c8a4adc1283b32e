#include "transforms/twiddles.h"

#include <cmath>

namespace quorvan {

Rotation::Rotation(double angle) noexcept {
    const double s = std::sin(angle / 2);
    versine = s * (2 * s);
    sine = std::sin(angle);
}

void UnitCircle(double angle, bool startTurned, Count count, double* cosines, double* sines) noexcept {
    const Rotation turn(angle);
    const double d = turn.versine, t = turn.sine;
    double c = startTurned ? 1 - d : 1, w = startTurned ? -t : 0;
    for (Count k = 0; k < count; ++k) {
        cosines[k] = c;
        sines[k] = w;
        const double next = c - (c * d + (-t) * w);
        w = w - (w * d - (-t) * c);
        c = next;
    }
}

namespace {

// The rotations of r = 1 to f - 1, and any that fill the last register.
struct Rotations {
    alignas(64) double versine[kTwiddleRoom] = {}, sine[kTwiddleRoom] = {};
    Rotations(double theta, Count f) noexcept {
        for (Count r = 1; r < f; ++r) {
            const Rotation turn(r * theta);
            versine[r - 1] = turn.versine;
            sine[r - 1] = turn.sine;
        }
    }
};

}  // namespace

void StageTwiddles(double theta, Count f, Count m, double* cosines, double* sines) noexcept {
    if (f <= kMaxBlockedFactor) {
        const Rotations turns(theta, f);
        return kTwiddleLoops().rows(turns.versine, turns.sine, f - 1, m, cosines, sines);
    }
    const Count width = f - 1;
    for (Count r = 1; r <= width; ++r) {
        const Rotation turn(r * theta);
        const double d = turn.versine, t = turn.sine;
        double c = 1 - d, w = -t;
        for (Size j = 0; j < m - 1; ++j) {
            cosines[j * width + r - 1] = c;
            sines[j * width + r - 1] = w;
            const double next = c - (c * d + (-t) * w);
            w = w - (w * d - (-t) * c);
            c = next;
        }
    }
}

void BlockedTwiddles(double theta, Count f, Count m, double* out) noexcept {
    const Rotations turns(theta, f);
    kTwiddleLoops().blocked(turns.versine, turns.sine, f - 1, m, out);
}

}  // namespace quorvan

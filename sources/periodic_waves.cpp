// Periodic waves: their phase goes in and comes out, so that successive calls join.
#include <cmath>

#include "frame/status.h"
#include "sources/generators.h"
#include "sources/phase.h"
#include "sources/wave_loops.h"

namespace quorvan {
namespace {

// The value of a table of one period at a position in cells, which may lie in any period.
double GenTableLookup(double position, const double* table, Count size, std::int32_t interpolation) noexcept {
    if (size < 1) return 0.0;
    double v = position - std::floor(position / size) * size;
    if (v < 0.0) v += size;
    if (v == size) v = 0.0;
    // Beyond 2^53 periods the remainder is noise, and may lie outside the table.
    if (!(v < size)) v = size - 1.0;
    if (v < 0.0) v = 0.0;
    const Count cell = static_cast<Count>(v);
    if (interpolation != 1) return table[cell];
    const Count next = cell + 1 == size ? 0 : cell + 1;
    return (v - std::floor(v)) * (table[next] - table[cell]) + table[cell];
}

double PhaseBehind(Count n, double freq, double phase) noexcept { return NormalizedPhase(n * 360.0 * freq + phase); }

}  // namespace

// sin and cos of angle + w from two samples back: sin(a + w) = sin(a - w) + 2 sin(w) cos(a), and the like for cos. The
// sines are held within the amplitude, the cosines are not; deliberate.
Status GenSineWave(Count n, double amp, double freq, double* phase, double* out) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    const double step = kTwoPi * freq, doubleSine = 2.0 * std::sin(step);
    const double angle = *phase * 0.017453292519943295;
    out[0] = amp * std::sin(angle);
    if (n > 1) {
        const double limit = std::fabs(amp);
        double cosineBefore = amp * std::cos(angle);
        out[1] = amp * std::sin(angle + step);
        double cosine = amp * std::cos(angle + step);
        double sineBefore = out[0], sine = out[1];
        for (Count i = 2; i < n; ++i) {
            double next = sineBefore + cosine * doubleSine;
            if (next > limit) [[unlikely]]
                next = limit;
            if (next < -limit) [[unlikely]]
                next = -limit;
            const double nextCosine = cosineBefore - doubleSine * sine;
            out[i] = next;
            sineBefore = sine;
            sine = next;
            cosineBefore = cosine;
            cosine = nextCosine;
        }
    }
    *phase = NormalizedPhase(freq * 360.0 * n + *phase);
    return status::kSuccess;
}

Status GenTriangleWave(Count n, double amp, double freq, double* phase, double* out) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    kWaveLoops().triangle(n, amp, freq, *phase, out);
    *phase = PhaseBehind(n, freq, *phase);
    return status::kSuccess;
}

Status GenSawtoothWave(Count n, double amp, double freq, double* phase, double* out) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    kWaveLoops().sawtooth(n, amp, freq, *phase, out);
    *phase = PhaseBehind(n, freq, *phase);
    return status::kSuccess;
}

// A duty outside [0, 100] is clamped and never refused; deliberate.
Status GenSquareWave(Count n, double amp, double freq, double* phase, double duty, double* out) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    if (duty < 0.0) duty = 0.0;
    if (duty > 100.0) duty = 100.0;
    kWaveLoops().square(n, amp, freq, *phase, duty * 3.6, out);
    *phase = PhaseBehind(n, freq, *phase);
    return status::kSuccess;
}

// Here the phase accumulates from sample to sample, unlike the waves above; deliberate.
Status GenArbitraryWave(Count n, double amp, double freq, double* phase, const double* table, Count tableSize,
                        std::int32_t interpolation, double* out) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    if (!std::isfinite(*phase) || !std::isfinite(freq)) return status::kNonFiniteInput;
    const double size = tableSize, step = size * freq;
    double position = *phase * (size / 360.0);
    for (Count i = 0; i < n; ++i) {
        out[i] = GenTableLookup(position, table, tableSize, interpolation) * amp;
        position += step;
    }
    *phase = tableSize >= 1 ? NormalizedPhase(360.0 / size * position) : 0.0;
    return status::kSuccess;
}

}  // namespace quorvan

#include "sources/wave_loops.h"

#include "sources/phase.h"

namespace quorvan::QV_TARGET {
namespace {

// Every branch of a shape is computed and one is selected, so that the loops fill wide registers.
template <class Shape>
void Periodic(Count n, double amp, double freq, double phase, double* out, Shape shape) {
    out[0] = shape(NormalizedPhase(phase)) * amp;
    for (Count i = 1; i < n; ++i) out[i] = shape(NormalizedPhase(i * 360.0 * freq + phase)) * amp;
}

void Triangle(Count n, double amp, double freq, double phase, double* out) {
    Periodic(n, amp, freq, phase, out, [](double x) {
        const double h = x * 0.005555555555555556;
        const double rise = 2.0 * h, fall = (1.0 - h) * 2.0, back = (h - 2.0) * 2.0;
        const double later = h < 1.5 ? fall : back;
        return h < 0.5 ? rise : later;
    });
}

void Sawtooth(Count n, double amp, double freq, double phase, double* out) {
    Periodic(n, amp, freq, phase, out, [](double x) {
        const double h = x * 0.005555555555555556, behind = h - 2.0;
        return x < 180.0 ? h : behind;
    });
}

void Square(Count n, double amp, double freq, double phase, double edge, double* out) {
    Periodic(n, amp, freq, phase, out, [edge](double x) { return edge > x ? 1.0 : -1.0; });
}

}  // namespace

const WaveLoops kWaveLoops = {Triangle, Sawtooth, Square};

}  // namespace quorvan::QV_TARGET

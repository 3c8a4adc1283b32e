// Entries of the waveform generators.
#include "sources/generators.h"

#include "frame/entry.h"
#include "quorvan/quorvan.h"

using namespace quorvan;

QV_EXPORT Status ZemFunc159(Size n, double amp, double freq, double* phase, double* out) {
    return narrowed(n, [&](Count n) { return GenSineWave(n, amp, freq, phase, out); });
}

QV_EXPORT Status ZemFunc158(Size n, double amp, double phase, double cycles, double* out) {
    return narrowed(n, [&](Count n) { return GenSinePattern(n, amp, phase, cycles, out); });
}

QV_EXPORT Status ZemFunc165(Size n, double amp, double freq, double* phase, double duty, double* out) {
    return narrowed(n, [&](Count n) { return GenSquareWave(n, amp, freq, phase, duty, out); });
}

QV_EXPORT Status ZemFunc179(Size n, double amp, double freq, double* phase, double* out) {
    return narrowed(n, [&](Count n) { return GenTriangleWave(n, amp, freq, phase, out); });
}

QV_EXPORT Status ZemFunc151(Size n, double amp, double freq, double* phase, double* out) {
    return narrowed(n, [&](Count n) { return GenSawtoothWave(n, amp, freq, phase, out); });
}

QV_EXPORT Status ZemFunc9(Size n, double amp, double freq, double* phase, const double* table, Size size,
                          std::int32_t interpolation, double* out) {
    return narrowed(n, size, [&](Count n, Count size) {
        return GenArbitraryWave(n, amp, freq, phase, table, size, interpolation, out);
    });
}

QV_EXPORT Status ZemFunc28(Size n, double amp, double f1, double f2, double* out) {
    return narrowed(n, [&](Count n) { return GenChirp(n, amp, f1, f2, out); });
}

QV_EXPORT Status ZemFunc141(Size n, double amp, Size delay, Size width, double* out) {
    return narrowed(n, delay, width,
                    [&](Count n, Count delay, Count width) { return GenPulsePattern(n, amp, delay, width, out); });
}

QV_EXPORT Status ZemFunc93(Size n, double amp, Size index, double* out) {
    return narrowed(n, index, [&](Count n, Count index) { return GenImpulsePattern(n, amp, index, out); });
}

QV_EXPORT Status ZemFunc145(Size n, double first, double last, double* out) {
    return narrowed(n, [&](Count n) { return GenRampPattern(n, first, last, out); });
}

QV_EXPORT Status ZemFunc178(Size n, double amp, double* out) {
    return narrowed(n, [&](Count n) { return GenTrianglePattern(n, amp, out); });
}

QV_EXPORT Status ZemFunc157(Size n, double amp, double delay, double dt, double* out) {
    return narrowed(n, [&](Count n) { return GenSincPattern(n, amp, delay, dt, out); });
}

QV_EXPORT Status ZemFunc349(Size n, double amp, double delay, double dt, std::int32_t order, double* out) {
    return narrowed(n, [&](Count n) { return GenPeriodicSincPattern(n, amp, delay, dt, order, out); });
}

QV_EXPORT Status ZemFunc348(Size n, double amp, double delay, double dt, double centre, double bandwidth,
                            double attenuation, double* out) {
    return narrowed(
        n, [&](Count n) { return GenGaussianModulatedSine(n, amp, delay, dt, centre, bandwidth, attenuation, out); });
}

QV_EXPORT Status ZemFunc347(Size n, double amp, double delay, double dt, double centre, double* out) {
    return narrowed(n, [&](Count n) { return GenGaussianMonopulse(n, amp, delay, dt, centre, out); });
}

QV_EXPORT Status ZemFunc350(Size n, double amp, double delay, double dt, double width, double skew, double* out) {
    return narrowed(n, [&](Count n) { return GenSkewedTrianglePulse(n, amp, delay, dt, width, skew, out); });
}

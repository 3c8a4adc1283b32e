// Entries of harmonic analysis and tone extraction.
#include "measure/tones.h"

#include "frame/entry.h"
#include "measure/harmonic_analyzer.h"
#include "measure/tone_harmonics.h"
#include "quorvan/quorvan.h"

using namespace quorvan;

QV_EXPORT Status ZemFunc87(const double* power, Size n, Size fftSize, std::int32_t harmonics, std::uint32_t window,
                           double fs, double fundamental, double* amp, double* freq, double* thd,
                           double* thdPlusNoise) {
    return narrowed(n, fftSize, [&](Count n, Count fftSize) {
        return SpecHarmonicAnalyzer(power, n, fftSize, harmonics, window, fs, fundamental, amp, freq, thd,
                                    thdPlusNoise);
    });
}

QV_EXPORT Status ZemFunc362(const double* x, Size n, std::int32_t harmonics, double fs, double fundamental, double* amp,
                            double* freq, double* thd, double* thdPlusNoise) {
    return narrowed(
        n, [&](Count n) { return SpecToneHarmonics(x, n, harmonics, fs, fundamental, amp, freq, thd, thdPlusNoise); });
}

// Single tones

QV_EXPORT Status ZemFunc377(const double* x, Size n, double dt, const double* search, double* freq, double* amp,
                            double* phase) {
    return narrowed(n, [&](Count n) { return ToneSingle<double>(x, n, dt, search, 0, {freq, amp, phase}, nullptr); });
}

QV_EXPORT Status ZemFunc378(const double* x, Size n, double dt, const double* search, std::uint32_t mode, double* freq,
                            double* amp, double* phase, double* out, double* outDt, double* spectrum, double* f0,
                            double* df) {
    return narrowed(n, [&](Count n) {
        const ToneSignal<double> signal{out, outDt, spectrum, f0, df};
        return ToneSingle(x, n, dt, search, mode, {freq, amp, phase}, &signal);
    });
}

QV_EXPORT Status ZemFunc381(const ComplexRecord* x, Size n, double dt, const double* search, double* freq, double* amp,
                            double* phase) {
    return narrowed(n, [&](Count n) {
        return ToneSingle<ComplexRecord>(x, n, dt, search, 0, {freq, amp, phase}, nullptr);
    });
}

QV_EXPORT Status ZemFunc382(const ComplexRecord* x, Size n, double dt, const double* search, std::uint32_t mode,
                            double* freq, double* amp, double* phase, ComplexRecord* out, double* outDt,
                            double* spectrum, double* f0, double* df) {
    return narrowed(n, [&](Count n) {
        const ToneSignal<ComplexRecord> signal{out, outDt, spectrum, f0, df};
        return ToneSingle(x, n, dt, search, mode, {freq, amp, phase}, &signal);
    });
}

// Several tones

QV_EXPORT Status ZemFunc379(const double* x, Size n, double dt, std::uint32_t sort, double threshold,
                            std::int32_t maxTones, std::int32_t* count, double* freq, double* amp, double* phase) {
    return narrowed(n, [&](Count n) {
        return ToneMulti<double>(x, n, dt, sort, 0, threshold, maxTones, count, {freq, amp, phase}, nullptr);
    });
}

QV_EXPORT Status ZemFunc380(const double* x, Size n, double dt, std::uint32_t sort, std::uint32_t mode,
                            double threshold, std::int32_t maxTones, std::int32_t* count, double* freq, double* amp,
                            double* phase, double* out, double* outDt, double* spectrum, double* f0, double* df) {
    return narrowed(n, [&](Count n) {
        const ToneSignal<double> signal{out, outDt, spectrum, f0, df};
        return ToneMulti(x, n, dt, sort, mode, threshold, maxTones, count, {freq, amp, phase}, &signal);
    });
}

QV_EXPORT Status ZemFunc383(const ComplexRecord* x, Size n, double dt, std::uint32_t sort, double threshold,
                            std::int32_t maxTones, std::int32_t* count, double* freq, double* amp, double* phase) {
    return narrowed(n, [&](Count n) {
        return ToneMulti<ComplexRecord>(x, n, dt, sort, 0, threshold, maxTones, count, {freq, amp, phase}, nullptr);
    });
}

QV_EXPORT Status ZemFunc384(const ComplexRecord* x, Size n, double dt, std::uint32_t sort, std::uint32_t mode,
                            double threshold, std::int32_t maxTones, std::int32_t* count, double* freq, double* amp,
                            double* phase, ComplexRecord* out, double* outDt, double* spectrum, double* f0,
                            double* df) {
    return narrowed(n, [&](Count n) {
        const ToneSignal<ComplexRecord> signal{out, outDt, spectrum, f0, df};
        return ToneMulti(x, n, dt, sort, mode, threshold, maxTones, count, {freq, amp, phase}, &signal);
    });
}

// Extraction of several tones, which are refined together.
#include <algorithm>
#include <cmath>

#include "measure/sine_crest.h"
#include "measure/tone_signal.h"
#include "measure/tones.h"

namespace quorvan {
namespace {

struct HeldTone {
    ToneBins bins;
    Tone tone;
    Tone before;           // one pass ago
    ComplexRecord phasor;  // amplitude and phase as one number
    Count order;           // of discovery
    bool settled;
};

// The peaks of the magnitude spectrum, with a zero behind its end. Gives their number, at most `room`; the largest ones
// are kept.
template <class T>
Count ToneFindPeaks(const ToneSpectrum<T>& spectrum, double threshold, HeldTone* held, Count room) {
    const Count size = spectrum.size();
    const auto magnitude = [&](Count k) { return k < size ? std::sqrt(spectrum.squaredMagnitude(k)) : 0.0; };
    const double least = threshold / 2.2627416997969525;
    Count count = 0, smallest = -1;
    double m0 = magnitude(0), m1 = magnitude(1);
    for (Count i = 0; i < size - 1;) {
        const double m2 = magnitude(i + 2);
        const bool faint = m0 < least && m1 < least && m2 < least;
        const bool peak = !faint && ((m1 >= m0 && m1 >= m2) || (i == 0 && m0 >= m1 && m0 > m2));
        const double value = std::max({m0, m1, m2});
        Count slot = -1;
        if (peak && count < room) {
            slot = count++;
        } else if (peak) {
            if (smallest < 0)
                smallest = static_cast<Count>(
                    std::min_element(held, held + count,
                                     [](const HeldTone& a, const HeldTone& b) { return a.bins.peak < b.bins.peak; }) -
                    held);
            if (held[smallest].bins.peak < value) slot = smallest;
        }
        if (slot < 0) {
            m0 = m1;
            m1 = m2;
            ++i;
            continue;
        }
        held[slot] = {spectrum.around(i, value), {}, {}, {}, 0, false};
        smallest = -1;
        m0 = m2;
        m1 = magnitude(i + 3);
        i += 2;
    }
    return count;
}

// Whether two values agree to a thousandth of the larger one.
bool Agree(double a, double b) {
    const double larger = std::max(std::fabs(a), std::fabs(b));
    return std::fabs(a - b) / (larger < 1e-12 ? 1.0 : larger) <= 0.001;
}

// The bins of one tone without what all others leak into them.
ToneBins Alone(const HeldTone& tone, const HeldTone* held, Count count, const HanningKernel& kernel, bool real) {
    ToneBins out = tone.bins;
    for (Count k = 0; k < count; ++k) {
        const HeldTone& other = held[k];
        if (!(other.tone.amplitude / other.bins.peak >= 0.0001)) continue;  // not yet known, or this one itself
        for (Count j = 0; j < out.count; ++j) {
            const double g = out.base + j * out.step;
            ComplexRecord leaked = CxMultiply(kernel(g - other.tone.frequency).record(), other.phasor);
            if (real)
                leaked = CxAdd(CxMultiply(kernel(g + other.tone.frequency).record(), CxConj(other.phasor)), leaked);
            out.bins[j] = CxSubtract(out.bins[j], leaked);
        }
    }
    return out;
}

void Refine(HeldTone* held, Count count, const HanningKernel& kernel, bool real) {
    for (int pass = 0; pass < 10; ++pass) {
        for (Count k = 0; k < count; ++k) {
            HeldTone& own = held[k];
            if (own.settled) continue;
            own.before = own.tone;
            own.tone = {0, 0, 0};
            own.tone = ToneNewton(Alone(own, held, count, kernel, real), kernel, real);
            own.phasor = CxFromPolar(own.tone.amplitude, own.tone.phase * (kPi / 180));
        }
        bool settled = true;
        for (Count k = 0; k < count; ++k) {
            HeldTone& own = held[k];
            own.settled = own.settled ||
                          (Agree(own.tone.frequency, own.before.frequency) &&
                           Agree(own.tone.amplitude, own.before.amplitude) && Agree(own.tone.phase, own.before.phase));
            settled = settled && own.settled;
        }
        if (settled) return;
    }
}

template <class T>
Status Extract(const T* x, Count n, double dt, std::uint32_t sort, std::uint32_t mode, double threshold,
               std::int32_t maxTones, std::int32_t* count, const ToneResult& tones, const ToneSignal<T>* signal) {
    if (n < 3) return status::kSamplesBelowThree;
    if (dt < 0) return status::kTimeStepNotPositive;
    if (mode > 3) return status::kInvalidSelection;
    if (maxTones < 1) return status::kNotPositive;
    ToneSpectrum<T> spectrum(n);
    // Two bins at least lie between peaks.
    const Count room = std::min(maxTones, spectrum.size() / 2 + 1);
    const Block<HeldTone> held(static_cast<std::size_t>(room));
    if (!spectrum || !held) return status::kOutOfMemory;
    if (const Status failure = spectrum.take(x)) return failure;
    const Count found = ToneFindPeaks(spectrum, threshold, held, room);
    Refine(held, found, HanningKernel(n), spectrum.kReal);

    Count kept = 0;
    for (Count k = 0; k < found; ++k)
        if (held[k].tone.amplitude * kSineCrest >= threshold) {
            held[kept] = held[k];
            held[kept].order = kept;
            ++kept;
        }
    const bool byAmplitude = sort == 1;
    std::sort(held.get(), held + kept, [byAmplitude](const HeldTone& a, const HeldTone& b) {
        const double first = byAmplitude ? -a.tone.amplitude : a.tone.frequency;
        const double second = byAmplitude ? -b.tone.amplitude : b.tone.frequency;
        return first != second ? first < second : a.order < b.order;
    });
    for (Count k = 0; k < kept; ++k) {
        tones.frequency[k] = held[k].tone.frequency / dt;
        tones.amplitude[k] = held[k].tone.amplitude * kSineCrest;
        tones.phase[k] = spectrum.kReal ? held[k].tone.phase + 90 : held[k].tone.phase;
    }
    *count = kept;
    return signal ? GiveToneSignal(x, n, dt, mode, tones, kept, spectrum, *signal) : status::kSuccess;
}

}  // namespace

template <class T>
Status ToneMulti(const T* x, Count n, double dt, std::uint32_t sort, std::uint32_t mode, double threshold,
                 std::int32_t maxTones, std::int32_t* count, const ToneResult& tones,
                 const ToneSignal<T>* signal) noexcept {
    const Status done = Extract(x, n, dt, sort, mode, threshold, maxTones, count, tones, signal);
    if (done < 0) {
        *count = 0;
        if (signal) ClearToneSignal(n, *signal);
    }
    return done;
}
template Status ToneMulti(const double*, Count, double, std::uint32_t, std::uint32_t, double, std::int32_t,
                          std::int32_t*, const ToneResult&, const ToneSignal<double>*) noexcept;
template Status ToneMulti(const ComplexRecord*, Count, double, std::uint32_t, std::uint32_t, double, std::int32_t,
                          std::int32_t*, const ToneResult&, const ToneSignal<ComplexRecord>*) noexcept;

}  // namespace quorvan

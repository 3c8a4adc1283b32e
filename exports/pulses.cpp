// Entries of the pulse and transition measurements.
#include "measure/pulses.h"

#include "frame/entry.h"
#include "measure/pulse_transition.h"
#include "quorvan/quorvan.h"

using namespace quorvan;

namespace {

template <class Body>
Status withHistogram(Count bins, const Body& body) {
    if (bins < 1) return status::kHistogramSizeNotPositive;
    const Block<Count> counts(static_cast<std::size_t>(bins));
    if (!counts) return status::kOutOfMemory;
    return body(HistogramRoom{counts, bins});
}

// The reference levels, which come in from high to low and are told again from low to high, whatever the status.
struct ReferenceArguments {
    double *high, *mid, *low, *lowOut, *midOut, *highOut;
};

// `number` counts pulses or edges; twice as many crossings and one more are looked for, which must fit too.
template <class Body>
Status withReferences(Count number, Count bins, const ReferenceArguments& arguments, const Body& body) {
    if (!SizeNarrow(2 * Size{number} + 1)) return status::kOverflow;
    return withHistogram(bins, [&](HistogramRoom room) {
        ReferenceLevels levels{*arguments.high, *arguments.mid, *arguments.low};
        const Status outcome = body(&levels, room);
        *arguments.high = *arguments.highOut = levels.high;
        *arguments.mid = *arguments.midOut = levels.mid;
        *arguments.low = *arguments.lowOut = levels.low;
        return outcome;
    });
}

}  // namespace

QV_EXPORT Status ZemFunc363(const double* x, Size n, std::uint32_t method, Size bins, double* high, double* low,
                            double* amplitude) {
    return narrowed(n, bins, [&](Count n, Count bins) {
        return withHistogram(bins, [&](HistogramRoom room) {
            StateLevels levels;
            const Status outcome = PulseStateLevels(x, n, method, room, &levels);
            *high = levels.high;
            *low = levels.low;
            *amplitude = levels.amplitude;
            return outcome;
        });
    });
}

QV_EXPORT Status ZemFunc364(const double* x, Size n, std::int32_t polarity, Size cycle, double* high, double* mid,
                            double* low, std::int32_t percent, std::uint32_t method, Size bins, double* period,
                            double* duration, double* duty, double* centre, double* lowOut, double* midOut,
                            double* highOut) {
    return narrowed(n, cycle, bins, [&](Count n, Count cycle, Count bins) {
        const ReferenceArguments arguments{high, mid, low, lowOut, midOut, highOut};
        return withReferences(cycle, bins, arguments, [&](ReferenceLevels* levels, HistogramRoom room) {
            CycleTiming timing;
            const Status outcome = PulseCycleTiming(x, n, polarity, cycle, levels, percent, method, room, &timing);
            *period = timing.period;
            *duration = timing.duration;
            *duty = timing.duty;
            *centre = timing.centre;
            return outcome;
        });
    });
}

QV_EXPORT Status ZemFunc365(const double* x, Size n, Size cycle, double* high, double* mid, double* low,
                            std::int32_t percent, std::uint32_t method, Size bins, double* mean, double* rms,
                            double* start, double* end, double* lowOut, double* midOut, double* highOut) {
    return narrowed(n, cycle, bins, [&](Count n, Count cycle, Count bins) {
        const ReferenceArguments arguments{high, mid, low, lowOut, midOut, highOut};
        return withReferences(cycle, bins, arguments, [&](ReferenceLevels* levels, HistogramRoom room) {
            CycleAverage average;
            const Status outcome = PulseCycleAverage(x, n, cycle, levels, percent, method, room, &average);
            *mean = average.mean;
            *rms = average.rms;
            *start = average.start;
            *end = average.end;
            return outcome;
        });
    });
}

QV_EXPORT Status ZemFunc366(const double* x, Size n, std::int32_t polarity, Size edge, double* high, double* mid,
                            double* low, std::int32_t percent, std::uint32_t method, Size bins, double* slew,
                            double* duration, double* firstTime, double* secondTime, double* lowOut, double* midOut,
                            double* highOut, double* preUndershoot, double* preOvershoot, double* postUndershoot,
                            double* postOvershoot) {
    return narrowed(n, edge, bins, [&](Count n, Count edge, Count bins) {
        const ReferenceArguments arguments{high, mid, low, lowOut, midOut, highOut};
        return withReferences(edge, bins, arguments, [&](ReferenceLevels* levels, HistogramRoom room) {
            EdgeMeasurement measured;
            const Status outcome = PulseTransition(x, n, polarity, edge, levels, percent, method, room, &measured);
            *slew = measured.slew;
            *duration = measured.duration;
            *firstTime = measured.firstTime;
            *secondTime = measured.secondTime;
            *preUndershoot = measured.before.undershoot;
            *preOvershoot = measured.before.overshoot;
            *postUndershoot = measured.after.undershoot;
            *postOvershoot = measured.after.overshoot;
            return outcome;
        });
    });
}

// Entries of the descriptive statistics.
#include "frame/entry.h"
#include "quorvan/quorvan.h"
#include "stats/descriptive.h"
#include "stats/histogram.h"
#include "stats/median.h"
#include "stats/modes.h"

using namespace quorvan;

QV_EXPORT Status ZemFunc122(const double* x, Size n, double* mean) {
    return narrowed(n, [&](Count n) { return StatMean(x, n, mean); });
}

QV_EXPORT Status ZemFunc150(const double* x, Size n, double* rms) {
    return narrowed(n, [&](Count n) { return StatRms(x, n, rms); });
}

QV_EXPORT Status ZemFunc369(const ComplexRecord* x, Size n, double* rms) {
    return narrowed(n, [&](Count n) { return StatRmsComplex(x, n, rms); });
}

QV_EXPORT Status ZemFunc184(const double* x, Size n, double* mean, double* variance) {
    return narrowed(n, [&](Count n) { return StatMeanVariance(x, n, mean, variance); });
}

QV_EXPORT Status ZemFunc166(const double* x, Size n, double* mean, double* deviation) {
    return narrowed(n, [&](Count n) { return StatMeanStdDev(x, n, mean, deviation); });
}

QV_EXPORT Status ZemFunc125(const double* x, Size n, std::uint32_t order, double* moment) {
    return narrowed(n, [&](Count n) { return StatMoment(x, n, order, moment); });
}

QV_EXPORT Status ZemFunc123(const double* x, Size n, double* median) {
    return narrowed(n, [&](Count n) { return StatMedian(x, n, median); });
}

QV_EXPORT Status ZemFunc90(const double* x, Size n, double base, double top, Size* counts, double* centres,
                           Size intervals) {
    return narrowed(n, intervals, [&](Count n, Count intervals) {
        const Status refused = StatHistogramCheck(n, base, top, intervals);
        if (refused < 0) return refused;
        Block<Count> narrow(intervals);
        if (!narrow) return status::kOutOfMemory;
        StatHistogram(x, n, base, top, narrow, centres, intervals);
        return IndexArrayWiden(counts, narrow, intervals);
    });
}

QV_EXPORT Status ZemFunc124(const double* x, Size n, double base, double top, Size intervals, double* mode) {
    return narrowed(n, intervals,
                    [&](Count n, Count intervals) { return StatModeOfHistogram(x, n, base, top, intervals, mode); });
}

QV_EXPORT Status ZemFunc340(const double* x, Size n, Size intervals, double* modes, Size* count) {
    return narrowed(n, intervals, *count, [&](Count n, Count intervals, Count capacity) {
        Count found;
        const Status done = StatModes(x, n, intervals, modes, capacity, &found);
        *count = found;
        return done;
    });
}

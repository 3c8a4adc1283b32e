#include "measure/pulses.h"

#include <algorithm>
#include <cmath>

#include "frame/memory.h"
#include "frame/status.h"
#include "measure/crossings.h"

namespace quorvan {
namespace {

// The place of the crossing number `number`, from 1, with that slope; count where there is none.
Count FindSlope(const CrossingRecord* records, Count count, std::int32_t slope, Count number) {
    for (Count k = 0; k < count; ++k)
        if (records[k].slope == slope && --number == 0) return k;
    return count;
}

}  // namespace

Status PulseCycleTiming(const double* x, Count n, std::int32_t polarity, Count cycle, ReferenceLevels* references,
                        bool percent, std::uint32_t method, HistogramRoom room, CycleTiming* timing) noexcept {
    *timing = {};
    if (cycle < 1) return status::kInvalidEdgeCount;
    if (n < 1 || !x) return status::kNoWaveform;
    Status outcome = status::kSuccess;
    if (percent) {
        StateLevels levels;
        outcome = PulseStateLevels(x, n, method, room, &levels);
        if (outcome < 0) return outcome;
        MakeAbsolute(levels, references);
    }
    const double hysteresis = std::min(references->high - references->mid, references->mid - references->low);
    if (hysteresis < 0) return status::kReferenceLevelsNotDescending;

    // Between n samples lie fewer than n crossings: no more room than that is ever filled.
    const Count limit = 2 * cycle + 1;
    const Block<CrossingRecord> records(std::min(limit, n));
    if (!records) return status::kNoSpaceLeft;
    if (limit > n) return status::kTooFewCrossings;
    if (const Status failure = CrossingFind(x, n, references->mid, hysteresis, records, limit)) return failure;

    const Count first = polarity == kAnyPolarity ? limit - 3 : FindSlope(records, limit, polarity, cycle);
    if (first >= limit - 1) return status::kTooFewCrossings;
    const double start = records[first].time, end = records[first + 1].time;
    timing->duration = end - start;
    timing->centre = (start + end) / 2;
    // Deliberate: the period is taken between these two crossings, whichever pulse the polarity has chosen.
    timing->period = records[limit - 1].time - records[limit - 3].time;
    timing->duty = timing->duration / timing->period;
    return outcome;
}

Status PulseCycleAverage(const double* x, Count n, Count cycle, ReferenceLevels* references, bool percent,
                         std::uint32_t method, HistogramRoom room, CycleAverage* average) noexcept {
    *average = {};
    CycleTiming timing;
    const Status outcome = PulseCycleTiming(x, n, kAnyPolarity, cycle, references, percent, method, room, &timing);
    if (outcome < 0) return outcome;
    average->start = timing.centre - timing.duration / 2;
    average->end = average->start + timing.period;

    // Doubles until they are known to be places in the record: samples that overflow or underflow when they are
    // compared with a level can put a crossing anywhere.
    const double period = std::trunc(timing.period + 0.5);
    if (!(period >= 1)) return status::kPeriodTooShort;
    const Count length = period < n ? static_cast<Count>(period) : n;
    const double start = std::trunc(average->start + 0.5);
    // A period that runs beyond the record is moved back to its end.
    const Count first = start < 0 ? 0 : start <= n - length ? static_cast<Count>(start) : n - length;

    double sum = 0, squares = 0;
    for (const double *sample = x + first, *end = sample + length; sample != end; ++sample) {
        sum += *sample;
        squares += *sample * *sample;
    }
    average->mean = sum / length;
    average->rms = std::sqrt(squares / length);
    return outcome;
}

}  // namespace quorvan

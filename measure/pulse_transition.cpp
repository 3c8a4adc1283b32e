#include "measure/pulse_transition.h"

#include <algorithm>

#include "frame/arrays.h"
#include "frame/memory.h"
#include "frame/status.h"
#include "measure/transitions.h"

namespace quorvan {
namespace {

// Ringing is looked for within so many edge durations.
constexpr Size kReach = 3;

// The samples from start to end - 1.
struct Region {
    Count start, end;
};

// The level that a signal rests at, and the bin of the histogram around it.
struct Baseline {
    double level, bottom, top;
};

struct Edges {
    const TransitionRecord* records;
    Count count;

    bool has(Count k, std::int32_t slope) const { return k < count && records[k].slope == slope; }
};

Baseline BaselineAt(double level, double binWidth) {
    const double bottom = level - binWidth / 2;
    return {level, bottom, bottom + binWidth};
}

Count Midpoint(Count a, Count b) { return static_cast<Count>((Size{a} + b) / 2); }

Size Reach(const TransitionRecord& edge) {
    const Count duration = edge.secondIndex - edge.firstIndex;
    return kReach * (duration == 0 ? 1 : duration);
}

// From half way behind the edge before, or the start of the record, to where this edge begins to move.
Region RegionBefore(const double* x, Edges edges, Count k, double lowLevel, double highLevel) {
    const TransitionRecord& edge = edges.records[k];
    const Count middle = k < 1 ? 0 : Midpoint(edges.records[k - 1].secondIndex, edge.firstIndex);
    const Size reached = std::max(edge.firstIndex - Reach(edge), Size{0});
    const Count start = static_cast<Count>(std::max(Size{middle}, reached));
    const auto moving = [&](double v) { return edge.slope == kRising ? v > lowLevel : v < highLevel; };
    Count end = edge.firstIndex;
    while (end > start + 1 && moving(x[end])) --end;
    return {start, end};
}

// From where this edge has arrived to half way to the next one, or the last sample.
Region RegionAfter(const double* x, Count n, Edges edges, Count k, double lowLevel, double highLevel) {
    const TransitionRecord& edge = edges.records[k];
    const Count middle = k + 1 < edges.count ? Midpoint(edge.secondIndex, edges.records[k + 1].firstIndex) : n - 1;
    const Count end = static_cast<Count>(std::min(Size{middle}, edge.secondIndex + Reach(edge)));
    const auto moving = [&](double v) { return edge.slope == kRising ? v < highLevel : v > lowLevel; };
    Count start = edge.secondIndex;
    while (start < end && moving(x[start])) ++start;
    return {start, end};
}

Status MeasureExcursion(const double* x, Region region, const Baseline& baseline, double amplitude,
                        Excursion* excursion) {
    if (region.end <= region.start) return status::kNoWaveform;
    double maximum, minimum;
    Count at;
    ArrMaxMin(x + region.start, region.end - region.start, &maximum, &at, &minimum, &at);
    excursion->overshoot = maximum <= baseline.top ? 0 : (maximum - baseline.level) * 100 / amplitude;
    excursion->undershoot = minimum >= baseline.bottom ? 0 : (baseline.level - minimum) * 100 / amplitude;
    return status::kSuccess;
}

}  // namespace

Status PulseTransition(const double* x, Count n, std::int32_t polarity, Count edge, ReferenceLevels* references,
                       bool percent, std::uint32_t method, HistogramRoom room, EdgeMeasurement* measured) noexcept {
    *measured = {};
    if (edge < 1) return status::kInvalidEdgeCount;
    StateLevels levels;
    const Status failure = PulseStateLevels(x, n, method, room, &levels);
    if (failure < 0) return failure;
    if (percent) MakeAbsolute(levels, references);
    if (references->low > references->mid || references->mid > references->high)
        return status::kReferenceLevelsNotDescending;

    // Excursions are measured from the modes, also where the levels are the extremes.
    if (method == kLevelsByPeak) {
        if (levels.range <= 0) return status::kZeroAmplitude;
        levels.modes = PulseLevelModes(x, n, levels.minimum, levels.range, room);
    }
    const LevelModes& modes = levels.modes;
    const double amplitude = modes.high - modes.low, binWidth = levels.range / room.size;
    const Baseline low = BaselineAt(modes.low, binWidth), high = BaselineAt(modes.high, binWidth);

    // Between n samples lie fewer than n edges: no more room than that is ever filled.
    const Count limit = 2 * edge + 1;
    const Block<TransitionRecord> records(std::min(limit, n));
    if (!records) return status::kNoSpaceLeft;
    Edges edges{records, 0};
    const Status found =
        TransitionFind(x, n, references->low, references->high, records, std::min(limit, n), &edges.count);
    if (found < 0) return found;

    Count chosen = 0, number = 0;
    while (chosen < edges.count && (number += edges.records[chosen].slope == polarity) < edge) ++chosen;
    if (chosen == edges.count) return status::kTooFewEdges;
    measured->firstTime = edges.records[chosen].firstTime;
    measured->secondTime = edges.records[chosen].secondTime;

    // Edges alternate, so this one is at 2 edge - 2 or the one behind.
    const Count at = edges.has(limit - 3, polarity) ? limit - 3 : limit - 2;
    if (at >= edges.count) return status::kTooFewEdges;
    const bool rises = edges.records[at].slope == kRising;
    const Region before = RegionBefore(x, edges, at, low.level, high.level);
    if (const Status empty = MeasureExcursion(x, before, rises ? low : high, amplitude, &measured->before))
        return empty;
    const Region after = RegionAfter(x, n, edges, at, low.level, high.level);
    if (const Status empty = MeasureExcursion(x, after, rises ? high : low, amplitude, &measured->after)) return empty;

    measured->duration = measured->secondTime - measured->firstTime;
    if (measured->duration <= 0) return status::kInfiniteSlope;
    measured->slew = (references->high - references->low) / measured->duration;
    return ModesAreThin(modes, n) ? status::kWarnPulseLevels : status::kSuccess;
}

}  // namespace quorvan

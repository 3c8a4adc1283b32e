#include "measure/pulse_levels.h"

#include <cstring>

#include "frame/arrays.h"
#include "frame/status.h"

namespace quorvan {
namespace {

constexpr double kThinShare = 0.05;

// Bin trunc((x - minimum) / width), cut to the bins there are.
void CountBins(const double* x, Count n, double minimum, double width, HistogramRoom room) {
    std::memset(room.counts, 0, sizeof(Count) * static_cast<std::size_t>(room.size));
    const double last = room.size - 1;
    for (Count i = 0; i < n; ++i) {
        // Cut before the conversion, which knows no NaN and no infinity.
        double bin = (x[i] - minimum) / width;
        bin = bin > 0 ? bin : 0;
        bin = bin < last ? bin : last;
        ++room.counts[static_cast<Count>(bin)];
    }
}

}  // namespace

LevelModes PulseLevelModes(const double* x, Count n, double minimum, double range, HistogramRoom room) noexcept {
    const double width = range / room.size;
    CountBins(x, n, minimum, width, room);
    // Outwards, and the later of equal counts: the outermost.
    Count lowBin = static_cast<Count>(room.size * 0.4), highBin = static_cast<Count>(room.size * 0.6);
    for (Count bin = lowBin; bin >= 0; --bin)
        if (room.counts[bin] >= room.counts[lowBin]) lowBin = bin;
    for (Count bin = highBin; bin < room.size; ++bin)
        if (room.counts[bin] >= room.counts[highBin]) highBin = bin;
    const double firstCentre = minimum + width / 2;
    return {firstCentre + lowBin * width, firstCentre + highBin * width, room.counts[lowBin], room.counts[highBin]};
}

bool ModesAreThin(const LevelModes& modes, Count n) noexcept {
    return modes.lowCount < kThinShare * n || modes.highCount < kThinShare * n;
}

Status PulseStateLevels(const double* x, Count n, std::uint32_t method, HistogramRoom room,
                        StateLevels* levels) noexcept {
    *levels = {};
    if (n < 1 || !x) return status::kNoWaveform;
    if (method > kLevelsByAutoselect) return status::kInvalidLevelMethod;

    double maximum, minimum;
    Count at;
    ArrMaxMin(x, n, &maximum, &at, &minimum, &at);
    levels->minimum = minimum;
    levels->range = maximum - minimum;
    if (method != kLevelsByPeak) {
        if (levels->range <= 0) return status::kZeroAmplitude;
        levels->modes = PulseLevelModes(x, n, minimum, levels->range, room);
    }

    const LevelModes& modes = levels->modes;
    const bool populated = modes.lowCount > kThinShare * n && modes.highCount > kThinShare * n;
    const bool byModes = method == kLevelsByHistogram || (method == kLevelsByAutoselect && populated);
    levels->high = byModes ? modes.high : maximum;
    levels->low = byModes ? modes.low : minimum;
    levels->amplitude = levels->high - levels->low;
    // Autoselect gives up thin modes without a warning.
    return method == kLevelsByHistogram && ModesAreThin(modes, n) ? status::kWarnPulseLevels : status::kSuccess;
}

void MakeAbsolute(const StateLevels& levels, ReferenceLevels* references) noexcept {
    const auto absolute = [&](double percent) { return levels.amplitude * percent / 100 + levels.low; };
    *references = {absolute(references->high), absolute(references->mid), absolute(references->low)};
}

}  // namespace quorvan

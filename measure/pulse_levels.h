// The two state levels of a waveform, and the reference levels between them.
#pragma once

#include "frame/types.h"

namespace quorvan {

// Histogram: the modes of the lower and of the upper part. Peak: the extremes. Autoselect: the modes where both are
// well populated, the extremes otherwise.
inline constexpr std::uint32_t kLevelsByHistogram = 0, kLevelsByPeak = 1, kLevelsByAutoselect = 2;

// Room for a histogram, the caller's; size is at least 1.
struct HistogramRoom {
    Count* counts;
    Count size;
};

// The fullest bins near both ends of the range.
struct LevelModes {
    double low, high;
    Count lowCount, highCount;
};

struct StateLevels {
    double high = 0, low = 0, amplitude = 0;  // amplitude = high - low
    double minimum = 0, range = 0;            // of the samples
    LevelModes modes = {};                    // set by every method but kLevelsByPeak
};

struct ReferenceLevels {
    double high, mid, low;
};

// A mode that holds less than 5 percent of the samples gives the warning kWarnPulseLevels with method 0. -20312 without
// samples, -20316 for an unknown method, and -20309 where a histogram would have no range.
Status PulseStateLevels(const double* x, Count n, std::uint32_t method, HistogramRoom room,
                        StateLevels* levels) noexcept;

// The modes of samples with this minimum and a range above 0.
LevelModes PulseLevelModes(const double* x, Count n, double minimum, double range, HistogramRoom room) noexcept;

// Whether one of the modes holds less than 5 percent of the samples.
bool ModesAreThin(const LevelModes& modes, Count n) noexcept;

// From percent of the amplitude above the low level to absolute values.
void MakeAbsolute(const StateLevels& levels, ReferenceLevels* references) noexcept;

}  // namespace quorvan

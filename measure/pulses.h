// Timing of one pulse of a train, and the averages over one of its periods. Times are in samples.
#pragma once

#include "measure/pulse_levels.h"

namespace quorvan {

inline constexpr std::int32_t kAnyPolarity = -1;

struct CycleTiming {
    double period, duration, duty, centre;
};

// The pulse number `cycle`, from 1, of the polarity: the first of rising or falling start, or the first of all. With
// `percent` the references are converted in place. -20323 for a number below 1, -20312 without samples, what the levels
// give, -20313 for a middle reference outside the others, -20311 for exhausted memory, -20308 for too few crossings.
Status PulseCycleTiming(const double* x, Count n, std::int32_t polarity, Count cycle, ReferenceLevels* references,
                        bool percent, std::uint32_t method, HistogramRoom room, CycleTiming* timing) noexcept;

struct CycleAverage {
    double mean, rms, start, end;
};

// Over one period from the start of the pulse number `cycle`. -20319 for a period that rounds to no sample.
Status PulseCycleAverage(const double* x, Count n, Count cycle, ReferenceLevels* references, bool percent,
                         std::uint32_t method, HistogramRoom room, CycleAverage* average) noexcept;

}  // namespace quorvan

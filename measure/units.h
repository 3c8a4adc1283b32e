// Conversion of a spectrum into the unit in which it is shown.
#pragma once

#include "frame/types.h"

namespace quorvan {

// kind: 0 power spectrum, 1 amplitude spectrum, 2 plain magnitude. display: 0 linear, 1 dB, 2 dB to 0.6084 ("dBm").
// flags: bit 0 peak scale, bit 1 power units, bit 2 density per hertz. `unit` is the base unit, then the full one; its
// room is not known here. All selections are tested before anything is written.
Status SpecUnitConvert(const double* spectrum, Count n, std::uint32_t kind, std::uint32_t display, std::int32_t flags,
                       double df, const WinProperties& window, double* out, char* unit) noexcept;

}  // namespace quorvan

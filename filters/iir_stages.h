// From a section of an analog prototype to a digital stage: the bilinear transform with prewarped edges, in closed
// form.
#pragma once

#include "filters/iir_filter.h"
#include "filters/iir_prototypes.h"

namespace quorvan {

// Edges after prewarping, tan(pi f / fs).
struct IirWarp {
    double w;     // of a lowpass or highpass
    double B, P;  // th - tl and th tl of a band
};
IirWarp IirPrewarp(std::uint32_t kind, double fs, double fl, double fh) noexcept;

// (b[0] + b[1] z^-1 + ...) / (1 + a[0] z^-1 + ...); elements behind the width of the kind are 0.
struct IirStage {
    double a[4], b[5];
};
IirStage IirStageOf(std::uint32_t kind, const IirWarp& warp, const PrototypeSection& section) noexcept;

}  // namespace quorvan

// The amplitude of a sine over its root mean square, in which the spectra of the tone measurements are scaled.
#pragma once

namespace quorvan {

inline constexpr double kSineCrest = 1.4142135623730951;

}  // namespace quorvan

// Coefficients and printed properties of the windows that have them.
#pragma once

#include <cstdint>

#include "frame/types.h"

namespace quorvan {

// The printed properties of the rectangle or of a cosine sum; null for every other code.
const WinProperties* WinStoredProperties(std::int32_t code) noexcept;

}  // namespace quorvan

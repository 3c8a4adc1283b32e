// The four kinds of filter, for recursive designs and for those without feedback alike.
#pragma once

#include <cstdint>

namespace quorvan {

enum IirKind : std::uint32_t { kLowpass, kHighpass, kBandpass, kBandstop };

}  // namespace quorvan

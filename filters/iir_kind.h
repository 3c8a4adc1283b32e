// The four kinds of filter, for recursive designs and for those without feedback alike.
#pragma once

#include <cstdint>

namespace quorvan {

enum IirKind : std::uint32_t { kLowpass, kHighpass, kBandpass, kBandstop };

constexpr bool IsBand(std::uint32_t kind) noexcept { return kind >= kBandpass; }

}  // namespace quorvan

// Memory behind which there is none: what reads or writes past its end ends the process.
#pragma once

#include <cstddef>

namespace quorvan::testing {

// A multiple of this many bytes is asked for and given back.
inline constexpr std::size_t kFencePage = 4096;

void* FencedAllocate(std::size_t bytes);
void FencedFree(void* start, std::size_t bytes);

}  // namespace quorvan::testing

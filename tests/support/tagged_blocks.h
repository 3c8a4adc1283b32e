// The blocks of the failing heap: each knows its allocator.
#pragma once

#include <cstddef>
#include <cstdint>

namespace quorvan::testing {

enum class Allocator : std::uint64_t { kGeneral = 0x6745230189ABCDEF, kProvider = 0xFEDCBA9876543210 };

// Null when it is this one's turn to fail.
void* AllocateTagged(std::size_t bytes, Allocator allocator);
// Ends the program when the block is not of this allocator.
void ReleaseTagged(void* block, Allocator allocator);

}  // namespace quorvan::testing

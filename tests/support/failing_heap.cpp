#include "tests/support/failing_heap.h"

#include <atomic>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "frame/platform.h"
#include "linalg/provider_memory.h"
#include "tests/support/tagged_blocks.h"

namespace quorvan::testing {
namespace {

std::atomic<long> fail_at{-1};
std::atomic<long> allocations{0};
std::atomic<long> live_blocks{0};

// Every block stands behind a tag of its allocator, so that a block that is released by the other one is seen at once.
// Blocks of the general heap are aligned to 16 bytes only, deliberately: a provider block among them shows.
struct alignas(kProviderAlignment) Tag {
    std::uint64_t allocator;
    std::uint64_t unused[3];
};

std::size_t Lead(Allocator allocator) { return allocator == Allocator::kProvider ? sizeof(Tag) : sizeof(Tag) + 16; }

}  // namespace

void* AllocateTagged(std::size_t bytes, Allocator allocator) {
    if (allocations++ == fail_at) return nullptr;
    const std::size_t lead = Lead(allocator);
    if (bytes > SIZE_MAX / 2) return nullptr;
    void* start = AlignedAllocate(lead + bytes, alignof(Tag));
    if (!start) return nullptr;
    ++live_blocks;
    auto* block = static_cast<unsigned char*>(start) + lead;
    reinterpret_cast<std::uint64_t*>(block)[-1] = static_cast<std::uint64_t>(allocator);
    return block;
}

void ReleaseTagged(void* block, Allocator allocator) {
    if (!block) return;
    std::uint64_t& tag = static_cast<std::uint64_t*>(block)[-1];
    if (tag != static_cast<std::uint64_t>(allocator)) {
        std::fprintf(stderr,
                     "a block was released by an allocator that did not make it, or written before its start\n");
        std::abort();
    }
    tag = 0;
    --live_blocks;
    AlignedFree(static_cast<unsigned char*>(block) - Lead(allocator));
}

void FailAllocation(long k) {
    allocations = 0;
    fail_at = k;
}
long AllocationCount() { return allocations; }
long LiveBlocks() { return live_blocks; }

}  // namespace quorvan::testing

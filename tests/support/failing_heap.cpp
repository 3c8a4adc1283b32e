#include "tests/support/failing_heap.h"

#include <atomic>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "frame/platform.h"
#include "linalg/provider_memory.h"
#include "tests/support/fence.h"
#include "tests/support/tagged_blocks.h"

namespace quorvan::testing {
namespace {

std::atomic<long> fail_at{-1};
std::atomic<long> allocations{0};
std::atomic<long> live_blocks{0};

// Every block stands behind a tag of its allocator, so that a block that is released by the other one is seen at once.
// Blocks of the general heap are aligned to 16 bytes only, deliberately: a provider block among them shows. Blocks of
// the provider end where memory ends, to the next 32 bytes, so that a provider that reads on behind a matrix shows too.
struct Tag {
    std::uint64_t unused;
    std::uint64_t bytes;  // from the start on
    unsigned char* start;
    Allocator allocator;
};
static_assert(sizeof(Tag) % kProviderAlignment == 0);

Tag& TagOf(void* block) { return static_cast<Tag*>(block)[-1]; }

std::size_t RoundedUp(std::size_t bytes, std::size_t unit) { return (bytes + unit - 1) / unit * unit; }

// A block that begins `lead` bytes behind the start of its room.
void* Tagged(void* start, std::size_t lead, std::size_t bytes, Allocator allocator) {
    if (!start) return nullptr;
    ++live_blocks;
    unsigned char* block = static_cast<unsigned char*>(start) + lead;
    TagOf(block) = {0, bytes, static_cast<unsigned char*>(start), allocator};
    return block;
}

}  // namespace

void* AllocateTagged(std::size_t bytes, Allocator allocator) {
    if (allocations++ == fail_at || bytes > SIZE_MAX / 2) return nullptr;
    if (allocator == Allocator::kProvider) {
        const std::size_t room = RoundedUp(bytes, kProviderAlignment);
        const std::size_t pages = RoundedUp(sizeof(Tag) + room, kFencePage);
        return Tagged(FencedAllocate(pages), pages - room, pages, allocator);
    }
    constexpr std::size_t kLead = sizeof(Tag) + 16;
    return Tagged(AlignedAllocate(kLead + bytes, kProviderAlignment), kLead, kLead + bytes, allocator);
}

void ReleaseTagged(void* block, Allocator allocator) {
    if (!block) return;
    const Tag tag = TagOf(block);
    if (tag.allocator != allocator) {
        std::fprintf(stderr,
                     "a block was released by an allocator that did not make it, or written before its start\n");
        std::abort();
    }
    TagOf(block).allocator = {};
    --live_blocks;
    if (allocator == Allocator::kProvider)
        FencedFree(tag.start, tag.bytes);
    else
        AlignedFree(tag.start);
}

void FailAllocation(long k) {
    allocations = 0;
    fail_at = k;
}
long AllocationCount() { return allocations; }
long LiveBlocks() { return live_blocks; }

}  // namespace quorvan::testing

#include "tests/support/failing_heap.h"

#include <atomic>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "frame/memory.h"
#include "frame/platform.h"
#include "linalg/provider_memory.h"
#include "tests/support/fence.h"

namespace quorvan {
namespace {

std::atomic<long> fail_at{-1};
std::atomic<long> allocations{0};
std::atomic<long> live_blocks{0};

// Every block stands behind a tag of its allocator, so that a block that is released by the other one is seen at once.
// Blocks of the general heap are aligned to 16 bytes only, deliberately: a provider block among them shows. Blocks of
// the provider end where memory ends, to the next 32 bytes, so that a provider that reads on behind a matrix shows too.
struct Tag {
    std::uint64_t unused;
    std::uint64_t bytes;  // of the pages of a provider block
    unsigned char* start;
    std::uint64_t allocator;
};
static_assert(sizeof(Tag) % kProviderAlignment == 0);
constexpr std::uint64_t kGeneral = 0x6745230189ABCDEF;
constexpr std::uint64_t kProvider = 0xFEDCBA9876543210;

Tag& TagOf(void* block) { return static_cast<Tag*>(block)[-1]; }

std::size_t RoundedUp(std::size_t bytes, std::size_t unit) { return (bytes + unit - 1) / unit * unit; }

bool Refused(std::size_t bytes) { return allocations++ == fail_at || bytes > SIZE_MAX / 2; }

// Counts a block that begins `lead` bytes behind `start`.
void* Tagged(unsigned char* start, std::size_t lead, std::size_t bytes, std::uint64_t allocator) {
    ++live_blocks;
    TagOf(start + lead) = {0, bytes, start, allocator};
    return start + lead;
}

Tag Untagged(void* block, std::uint64_t allocator) {
    const Tag tag = TagOf(block);
    if (tag.allocator != allocator) {
        std::fprintf(stderr,
                     "a block was released by an allocator that did not make it, or written before its start\n");
        std::abort();
    }
    TagOf(block).allocator = 0;
    --live_blocks;
    return tag;
}

}  // namespace

void* HeapAllocate(std::size_t bytes) noexcept {
    if (Refused(bytes)) return nullptr;
    constexpr std::size_t kLead = sizeof(Tag) + 16;
    void* start = AlignedAllocate(kLead + bytes, kProviderAlignment);
    return start ? Tagged(static_cast<unsigned char*>(start), kLead, bytes, kGeneral) : nullptr;
}

void HeapFree(void* block) noexcept {
    if (block) AlignedFree(Untagged(block, kGeneral).start);
}

void* ProviderAllocate(std::size_t bytes) noexcept {
    if (Refused(bytes)) return nullptr;
    const std::size_t room = RoundedUp(bytes, kProviderAlignment);
    const std::size_t pages = RoundedUp(sizeof(Tag) + room, testing::kFencePage);
    void* start = testing::FencedAllocate(pages);
    return start ? Tagged(static_cast<unsigned char*>(start), pages - room, pages, kProvider) : nullptr;
}

void ProviderFree(void* block) noexcept {
    if (!block) return;
    const Tag tag = Untagged(block, kProvider);
    testing::FencedFree(tag.start, tag.bytes);
}

namespace testing {

void FailAllocation(long k) {
    allocations = 0;
    fail_at = k;
}
long AllocationCount() { return allocations; }
long LiveBlocks() { return live_blocks; }

}  // namespace testing
}  // namespace quorvan

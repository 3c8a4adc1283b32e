#include "tests/support/failing_heap.h"

#include <atomic>
#include <cstdlib>

#include "frame/memory.h"

namespace quorvan {
namespace {

std::atomic<long> fail_at{-1};
std::atomic<long> allocations{0};
std::atomic<long> live_blocks{0};

}  // namespace

void* HeapAllocate(std::size_t bytes) noexcept {
    if (allocations++ == fail_at) return nullptr;
    void* block = std::malloc(bytes ? bytes : 1);
    if (block) ++live_blocks;
    return block;
}

void HeapFree(void* block) noexcept {
    if (block) --live_blocks;
    std::free(block);
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

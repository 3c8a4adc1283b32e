#include "frame/memory.h"

#include <cstdlib>

#include "frame/platform.h"

namespace quorvan {

// Blocks of this size come fresh from the system each time, glibc keeps none. By pages of the usual size their first
// use takes longer than most of what is done with them.
constexpr std::size_t kFreshEachTime = std::size_t{32} << 20;

void* HeapAllocate(std::size_t bytes) noexcept {
    void* block = std::malloc(bytes ? bytes : 1);
    if (block && bytes >= kFreshEachTime) PreferLargePages(block, bytes);
    return block;
}

void HeapFree(void* block) noexcept { std::free(block); }

}  // namespace quorvan

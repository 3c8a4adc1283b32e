#include <sys/mman.h>

#include "tests/support/fence.h"

namespace quorvan::testing {

void* FencedAllocate(std::size_t bytes) {
    void* start = mmap(nullptr, bytes + kFencePage, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (start == MAP_FAILED) return nullptr;
    mprotect(static_cast<char*>(start) + bytes, kFencePage, PROT_NONE);
    return start;
}

void FencedFree(void* start, std::size_t bytes) { munmap(start, bytes + kFencePage); }

}  // namespace quorvan::testing

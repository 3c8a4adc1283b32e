#include <windows.h>

#include "tests/support/fence.h"

namespace quorvan::testing {

void* FencedAllocate(std::size_t bytes) {
    void* start = VirtualAlloc(nullptr, bytes + kFencePage, MEM_RESERVE, PAGE_NOACCESS);
    return start ? VirtualAlloc(start, bytes, MEM_COMMIT, PAGE_READWRITE) : nullptr;
}

void FencedFree(void* start, std::size_t) { VirtualFree(start, 0, MEM_RELEASE); }

}  // namespace quorvan::testing

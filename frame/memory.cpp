#include "frame/memory.h"

#include <cstdlib>

namespace quorvan {

void* HeapAllocate(std::size_t bytes) noexcept { return std::malloc(bytes ? bytes : 1); }

void HeapFree(void* block) noexcept { std::free(block); }

}  // namespace quorvan

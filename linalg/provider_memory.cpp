#include "linalg/provider_memory.h"

#include <cstdlib>

namespace quorvan {

void* ProviderAllocate(std::size_t bytes) noexcept {
    const std::size_t blocks = bytes / kProviderAlignment + 1;  // std::aligned_alloc takes whole multiples
    if (blocks > SIZE_MAX / kProviderAlignment) return nullptr;
    return std::aligned_alloc(kProviderAlignment, blocks * kProviderAlignment);
}

void ProviderFree(void* block) noexcept { std::free(block); }

}  // namespace quorvan

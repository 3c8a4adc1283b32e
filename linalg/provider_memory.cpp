#include "linalg/provider_memory.h"

#include "frame/platform.h"

namespace quorvan {

void* ProviderAllocate(std::size_t bytes) noexcept { return AlignedAllocate(bytes ? bytes : 1, kProviderAlignment); }

void ProviderFree(void* block) noexcept { AlignedFree(block); }

}  // namespace quorvan

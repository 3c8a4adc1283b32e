// The allocators of a program that has the library's objects inside itself.
#include "frame/memory.h"
#include "linalg/provider_memory.h"
#include "tests/support/tagged_blocks.h"

namespace quorvan {

using testing::AllocateTagged;
using testing::Allocator;
using testing::ReleaseTagged;

void* HeapAllocate(std::size_t bytes) noexcept { return AllocateTagged(bytes ? bytes : 1, Allocator::kGeneral); }
void HeapFree(void* block) noexcept { ReleaseTagged(block, Allocator::kGeneral); }
void* ProviderAllocate(std::size_t bytes) noexcept { return AllocateTagged(bytes ? bytes : 1, Allocator::kProvider); }
void ProviderFree(void* block) noexcept { ReleaseTagged(block, Allocator::kProvider); }

}  // namespace quorvan

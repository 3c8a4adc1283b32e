// What a suite reaches inside the shipped module: the allocators that quorvan.dll and its provider import, which fail
// on request here, and the names that it binds, of which a suite may replace some by its own.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <malloc.h>

#include "frame/platform.h"
#include "frame/targets.h"
#include "tests/support/tagged_blocks.h"
#include "tests/windows/import_slot.h"

namespace quorvan {

void* AlignedAllocate(std::size_t bytes, std::size_t alignment) noexcept { return _aligned_malloc(bytes, alignment); }
void AlignedFree(void* block) noexcept { _aligned_free(block); }

// The module chooses its instruction set itself: what runs once for each of them runs once.
Target ActiveTarget() noexcept { return Target::kBaseline; }
bool TargetAvailable(Target target) noexcept { return target == Target::kBaseline; }
void ForceTarget(Target) noexcept {}

namespace testing {
namespace {

// At the end of the program the module frees what was its own before the allocators were replaced.
bool leaving = false;

void* Malloc(std::size_t bytes) { return AllocateTagged(bytes, Allocator::kGeneral); }
void Free(void* block) {
    if (!leaving) ReleaseTagged(block, Allocator::kGeneral);
}
void* AlignedMalloc(std::size_t bytes, std::size_t) { return AllocateTagged(bytes, Allocator::kProvider); }
void AlignedRelease(void* block) {
    if (!leaving) ReleaseTagged(block, Allocator::kProvider);
}

// A function that this program exports comes before the provider's of that name.
FARPROC WINAPI Bind(HMODULE module, const char* name) {
    const FARPROC own = GetProcAddress(GetModuleHandleA(nullptr), name);
    return own ? own : GetProcAddress(module, name);
}

struct Replacements {
    Replacements() {
        Replace("quorvan.dll", "malloc", reinterpret_cast<void*>(&Malloc));
        Replace("quorvan.dll", "free", reinterpret_cast<void*>(&Free));
        Replace("quorvan.dll", "GetProcAddress", reinterpret_cast<void*>(&Bind));
        Replace("ZR150000_BLASLAPACK.dll", "_aligned_malloc", reinterpret_cast<void*>(&AlignedMalloc));
        Replace("ZR150000_BLASLAPACK.dll", "_aligned_free", reinterpret_cast<void*>(&AlignedRelease));
    }
    ~Replacements() { leaving = true; }

private:
    static void Replace(const char* file, const char* name, void* function) {
        const HMODULE module = GetModuleHandleA(file);
        if (module && ReplaceImport(module, name, function)) return;
        std::fprintf(stderr, "%s imports no %s\n", file, name);
        std::abort();
    }
} replacements;

}  // namespace
}  // namespace testing
}  // namespace quorvan

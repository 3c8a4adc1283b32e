/* A provider that loads and has the allocator alone. */
#include <malloc.h>
#include <stddef.h>

void* MKL_malloc(size_t bytes, int alignment);
void MKL_free(void* block);
__declspec(dllexport) void* MKL_malloc(size_t bytes, int alignment) {
    return _aligned_malloc(bytes, (size_t)alignment);
}
__declspec(dllexport) void MKL_free(void* block) { _aligned_free(block); }

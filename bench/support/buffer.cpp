#include "support/buffer.h"

#include <cstdlib>
#include <cstring>

#include "support/runner.h"

#if defined(__linux__)
#include <sys/mman.h>
#endif

namespace bench {
namespace {

constexpr std::size_t kLine = 64, kPage = 4096, kHugePage = std::size_t{1} << 21;

std::size_t RoundedUp(std::size_t bytes, std::size_t unit) { return (bytes + unit - 1) / unit * unit; }

}  // namespace

void* AlignedBytes(std::size_t bytes) {
    // Short arrays lie one behind the other. Long ones share their place in a page: loads that run just ahead of a
    // store in the low twelve bits of the address would wait for it, by chance of placement.
    const std::size_t unit = bytes >= 2 * kHugePage ? kHugePage : bytes >= kPage ? kPage : kLine;
    const std::size_t whole = RoundedUp(bytes, unit);
    void* block = std::aligned_alloc(unit, whole);
    if (block == nullptr) Refuse("not enough memory");
#if defined(__linux__)
    if (unit == kHugePage) madvise(block, whole, MADV_HUGEPAGE);
#endif
    std::memset(block, 0, whole);
    return block;
}

void ReleaseBytes(void* bytes) { std::free(bytes); }

}  // namespace bench

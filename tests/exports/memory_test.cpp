// The release of blocks that the library handed out.
#include "frame/memory.h"

#include <cstdint>
#include <gtest/gtest.h>

#include "quorvan/quorvan.h"
#include "tests/support/failing_heap.h"

namespace quorvan::testing {
namespace {

using Release = void (*)(void*);
const Release kNames[] = {ZemFunc234, ZemFunc238, ZemFunc470};

TEST(MemoryRelease, HasOneAddressUnderThreeNumbers) {
    // As numbers and through memory: a compiler may take two functions to differ.
    volatile std::uintptr_t addresses[3];
    for (int i = 0; i < 3; ++i) addresses[i] = reinterpret_cast<std::uintptr_t>(kNames[i]);
    EXPECT_EQ(addresses[0], addresses[1]);
    EXPECT_EQ(addresses[0], addresses[2]);
}

TEST(MemoryRelease, IgnoresANullPointer) {
    const long live = LiveBlocks();
    for (Release release : kNames) release(nullptr);
    EXPECT_EQ(LiveBlocks(), live);
}

TEST(MemoryRelease, FreesABlockThatTheLibraryHandedOut) {
    for (Release release : kNames) {
        const long live = LiveBlocks();
        void* handed = Block<double>(12).release();
        ASSERT_NE(handed, nullptr);
        EXPECT_EQ(LiveBlocks(), live + 1);
        release(handed);
        EXPECT_EQ(LiveBlocks(), live);
    }
}

}  // namespace
}  // namespace quorvan::testing

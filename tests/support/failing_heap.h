// The heap of the test build, general and provider blocks alike: counts blocks, fails the k-th allocation from now on
// request, and ends the program when a block is released by the other allocator.
#pragma once

#include <functional>
#include <gtest/gtest.h>

#include "frame/status.h"
#include "frame/types.h"

namespace quorvan::testing {

// The k-th allocation from now (from 0) fails, once; a negative k fails none.
void FailAllocation(long k);
// Allocations since the last FailAllocation, and blocks that live now.
long AllocationCount();
long LiveBlocks();

// Runs the call once in peace, then once for each allocation that it made, with that one failing. Every failed run
// must give `expected` and keep no block; a last run must work again. `call` returns its status and keeps nothing.
inline void ExpectEveryAllocationFails(const std::function<Status()>& call, Status expected = status::kOutOfMemory) {
    FailAllocation(-1);
    const long live = LiveBlocks();
    const Status peaceful = call();
    const long count = AllocationCount();
    ASSERT_GT(count, 0) << "the call allocates nothing, so nothing was tested";
    EXPECT_EQ(LiveBlocks(), live);
    for (long k = 0; k < count; ++k) {
        FailAllocation(k);
        EXPECT_EQ(call(), expected) << "allocation " << k << " of " << count;
        FailAllocation(-1);
        EXPECT_EQ(LiveBlocks(), live) << "leak after failing allocation " << k << " of " << count;
    }
    EXPECT_EQ(call(), peaceful);
}

}  // namespace quorvan::testing

// Runs a test body on a thread that the library has not seen: all its streams and states are at their begin.
#pragma once

#include <functional>
#include <gtest/gtest.h>
#include <thread>

#include "frame/status.h"
#include "tests/support/failing_heap.h"

namespace quorvan::testing {

template <class Body>
void OnFreshThread(const Body& body) {
    std::thread(body).join();
}

// A record of the thread's state is two allocations. When either fails the call must give -20001 and keep nothing, and
// the same thread must be able to go on. `call` returns its status.
inline void ExpectStateAllocationFails(const std::function<Status()>& call) {
    for (const long failing : {0L, 1L})
        OnFreshThread([&] {
            const long live = LiveBlocks();
            FailAllocation(failing);
            EXPECT_EQ(call(), status::kOutOfMemory);
            FailAllocation(-1);
            EXPECT_EQ(LiveBlocks(), live);
            EXPECT_EQ(call(), status::kSuccess);
        });
}

}  // namespace quorvan::testing

// The registry among threads: ends of threads, exhausted memory with the mutex held. The suite under ThreadSanitizer
// runs these.
#include <atomic>
#include <chrono>
#include <gtest/gtest.h>
#include <thread>
#include <vector>

#include "frame/thread_registry.h"
#include "tests/support/failing_heap.h"

namespace quorvan {
namespace {

using testing::AllocationCount;
using testing::FailAllocation;
using testing::LiveBlocks;

TEST(ThreadRegistryThreads, AThousandShortThreadsLeaveNoEntryBehind) {
    const long live = LiveBlocks();
    std::atomic<int> fresh{0};
    for (int round = 0; round < 250; ++round) {
        std::vector<std::thread> threads;
        for (int t = 0; t < 4; ++t)
            threads.emplace_back([&] {
                ThreadState* state = ThreadStateGet();
                // A new thread gets defaults even where the system reuses an identifier.
                if (state && state->haltonIndex++ == 0) ++fresh;
            });
        for (std::thread& thread : threads) thread.join();
    }
    EXPECT_EQ(fresh.load(), 1000);
    EXPECT_EQ(LiveBlocks(), live);
}

TEST(ThreadRegistryThreads, ThreadsThatLiveAtOnceHaveRecordsOfTheirOwn) {
    constexpr int kThreads = 8;
    ThreadState* states[kThreads] = {};
    std::atomic<int> waiting{kThreads};
    std::vector<std::thread> threads;
    for (int t = 0; t < kThreads; ++t)
        threads.emplace_back([&, t] {
            states[t] = ThreadStateGet();
            --waiting;
            while (waiting.load() > 0) std::this_thread::yield();
            for (int i = 0; i < 1000; ++i)
                if (ThreadStateGet() != states[t]) states[t] = nullptr;
        });
    for (std::thread& thread : threads) thread.join();
    for (int i = 0; i < kThreads; ++i) {
        EXPECT_NE(states[i], nullptr);
        for (int k = 0; k < i; ++k) EXPECT_NE(states[i], states[k]);
    }
}

TEST(ThreadRegistryThreads, AThreadThatNeverAsksHasNoEntry) {
    const long live = LiveBlocks();
    FailAllocation(-1);
    std::thread([] {}).join();
    EXPECT_EQ(AllocationCount(), 0);
    EXPECT_EQ(LiveBlocks(), live);
}

// A record and its entry are two allocations: whichever fails, the thread keeps the mutex and can go on, and the others
// wait until it ends.
TEST(ThreadRegistryThreads, ExhaustedMemoryLeavesTheMutexWithTheThreadUntilItEnds) {
    const long live = LiveBlocks();
    for (const long failing : {0L, 1L}) {
        std::atomic<bool> failed{false}, end{false}, other_started{false}, other_done{false};
        std::thread holder([&] {
            FailAllocation(failing);
            EXPECT_EQ(ThreadStateGet(), nullptr);
            FailAllocation(-1);
            EXPECT_EQ(LiveBlocks(), live);
            // Its owner takes the mutex again, and now there is memory.
            ThreadState* state = ThreadStateGet();
            EXPECT_NE(state, nullptr);
            EXPECT_EQ(ThreadStateGet(), state);
            failed = true;
            while (!end) std::this_thread::yield();
        });
        while (!failed) std::this_thread::yield();
        std::thread other([&] {
            other_started = true;
            EXPECT_NE(ThreadStateGet(), nullptr);
            other_done = true;
        });
        while (!other_started) std::this_thread::yield();
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
        EXPECT_FALSE(other_done) << "the mutex was released";
        end = true;
        holder.join();
        other.join();
        EXPECT_TRUE(other_done);
        EXPECT_EQ(LiveBlocks(), live);
    }
}

TEST(ThreadRegistryThreads, AThreadThatNeverGotMemoryStillGivesTheMutexBackAtItsEnd) {
    const long live = LiveBlocks();
    std::thread([] {
        FailAllocation(0);
        EXPECT_EQ(ThreadStateGet(), nullptr);
        FailAllocation(-1);
    }).join();
    std::thread([] { EXPECT_NE(ThreadStateGet(), nullptr); }).join();
    EXPECT_EQ(LiveBlocks(), live);
}

}  // namespace
}  // namespace quorvan

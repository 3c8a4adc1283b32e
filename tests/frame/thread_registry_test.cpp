// The record that a thread starts with, and the begin and end of a registry: no export shows them.
#include "frame/thread_registry.h"

#include <cstddef>
#include <gtest/gtest.h>
#include <thread>
#include <type_traits>
#include <vector>

#include "frame/memory.h"
#include "tests/support/failing_heap.h"

namespace quorvan {
namespace {

using testing::LiveBlocks;

// A registry of the test's own: nothing but the test fills it.
struct OwnRegistry : ThreadRegistry {
    OwnRegistry() { ThreadRegistryStart(*this); }
    ~OwnRegistry() { ThreadRegistryStop(*this); }
};

void ExpectDefault(const RngStream& stream) {
    EXPECT_EQ(stream.x, 1234);
    EXPECT_EQ(stream.y, 2345);
    EXPECT_EQ(stream.z, 3456);
    EXPECT_EQ(stream.first, 1);
}

TEST(ThreadState, AFreshRecordHasItsInitialValuesWhateverTheStorageHeld) {
    alignas(ThreadState) unsigned char storage[sizeof(ThreadState)];
    for (unsigned char& byte : storage) byte = 0xA5;
    const ThreadState* s = ThreadStateCreate(storage);
    EXPECT_EQ(static_cast<const void*>(s), storage);
    EXPECT_EQ(s->gaussX, 1234);
    EXPECT_EQ(s->gaussY, 2345);
    EXPECT_EQ(s->gaussZ, 3456);
    EXPECT_EQ(s->gaussHaveSpare, 0);
    EXPECT_EQ(s->gaussFirst, 1);
    EXPECT_EQ(s->gaussSpare, 0);
    for (const RngStream* stream : {&s->uniformStream, &s->whiteStream, &s->periodicStream, &s->gammaStream,
                                    &s->poissonStream, &s->binomialStream, &s->bernoulliStream, &s->shuffleRealStream,
                                    &s->shuffleComplexStream, &s->shuffleIntStream})
        ExpectDefault(*stream);
    EXPECT_EQ(s->binomialCache.p, -1.0);
    EXPECT_EQ(s->binomialCache.trials, -1);
    for (const double rest : {s->binomialCache.q, s->binomialCache.lnP, s->binomialCache.lnQ,
                              s->binomialCache.trialsReal, s->binomialCache.lnGammaTrials})
        EXPECT_EQ(rest, 0);
    EXPECT_EQ(s->haltonBase, 0);
    EXPECT_EQ(s->haltonIndex, 0);
    EXPECT_EQ(s->weylStep, 0);
    EXPECT_EQ(s->weylValue, 0);
    for (const std::int32_t first :
         {s->haltonFirst, s->weylFirst, s->decimFirst, s->cxDecimFirst, s->crossingFirst, s->crossingStatesFirst})
        EXPECT_EQ(first, 1);
    for (const std::int32_t zero :
         {s->decimPending, s->decimFactor, s->decimOffset, s->cxDecimPending, s->cxDecimFactor, s->cxDecimOffset,
          s->crossingState, s->crossingChannels, s->runBase, s->runReported})
        EXPECT_EQ(zero, 0);
    for (const double zero : {s->decimSum, s->cxDecimSum[0], s->cxDecimSum[1]}) EXPECT_EQ(zero, 0);
    EXPECT_EQ(s->crossingStates, nullptr);
    EXPECT_EQ(s->peakState, nullptr);
    EXPECT_EQ(s->peakBuffer, nullptr);
    EXPECT_EQ(s->runStart, -1);
}

TEST(ThreadState, FieldsStandInOrder) {
    static_assert(std::is_standard_layout_v<ThreadState>);
    const std::vector<std::size_t> offsets = {offsetof(ThreadState, gaussX),
                                              offsetof(ThreadState, gaussY),
                                              offsetof(ThreadState, gaussZ),
                                              offsetof(ThreadState, gaussHaveSpare),
                                              offsetof(ThreadState, gaussFirst),
                                              offsetof(ThreadState, gaussSpare),
                                              offsetof(ThreadState, uniformStream),
                                              offsetof(ThreadState, whiteStream),
                                              offsetof(ThreadState, periodicStream),
                                              offsetof(ThreadState, gammaStream),
                                              offsetof(ThreadState, poissonStream),
                                              offsetof(ThreadState, binomialStream),
                                              offsetof(ThreadState, binomialCache),
                                              offsetof(ThreadState, bernoulliStream),
                                              offsetof(ThreadState, haltonBase),
                                              offsetof(ThreadState, haltonIndex),
                                              offsetof(ThreadState, haltonFirst),
                                              offsetof(ThreadState, weylStep),
                                              offsetof(ThreadState, weylValue),
                                              offsetof(ThreadState, weylFirst),
                                              offsetof(ThreadState, shuffleRealStream),
                                              offsetof(ThreadState, shuffleComplexStream),
                                              offsetof(ThreadState, shuffleIntStream),
                                              offsetof(ThreadState, decimPending),
                                              offsetof(ThreadState, decimFactor),
                                              offsetof(ThreadState, decimSum),
                                              offsetof(ThreadState, decimOffset),
                                              offsetof(ThreadState, decimFirst),
                                              offsetof(ThreadState, cxDecimPending),
                                              offsetof(ThreadState, cxDecimFactor),
                                              offsetof(ThreadState, cxDecimSum),
                                              offsetof(ThreadState, cxDecimOffset),
                                              offsetof(ThreadState, cxDecimFirst),
                                              offsetof(ThreadState, crossingState),
                                              offsetof(ThreadState, crossingFirst),
                                              offsetof(ThreadState, crossingChannels),
                                              offsetof(ThreadState, crossingStates),
                                              offsetof(ThreadState, crossingStatesFirst),
                                              offsetof(ThreadState, peakState),
                                              offsetof(ThreadState, peakBuffer),
                                              offsetof(ThreadState, runBase),
                                              offsetof(ThreadState, runStart),
                                              offsetof(ThreadState, runReported)};
    for (std::size_t i = 1; i < offsets.size(); ++i) EXPECT_LT(offsets[i - 1], offsets[i]) << "field " << i;
}

TEST(ThreadRegistry, ASecondCallReturnsTheRecordOfTheFirst) {
    OwnRegistry registry;
    EXPECT_EQ(registry.map.Any(), nullptr);
    ThreadState* state = ThreadStateGet(registry);
    ASSERT_NE(state, nullptr);
    state->haltonIndex = 77;
    EXPECT_EQ(ThreadStateGet(registry), state);
    EXPECT_EQ(state->haltonIndex, 77);
}

TEST(ThreadRegistry, RemovalFreesTheRecordAndTheCrossingStatesAndTheNextCallStartsAnew) {
    OwnRegistry registry;
    const long live = LiveBlocks();
    ThreadStateRemove(registry);  // nothing there yet
    ThreadState* state = ThreadStateGet(registry);
    ASSERT_NE(state, nullptr);
    state->haltonIndex = 77;
    state->crossingStates = static_cast<std::int32_t*>(HeapAllocate(16));
    EXPECT_EQ(LiveBlocks(), live + 3);
    ThreadStateRemove(registry);
    EXPECT_EQ(LiveBlocks(), live);
    EXPECT_EQ(registry.map.Any(), nullptr);
    EXPECT_EQ(ThreadStateGet(registry)->haltonIndex, 0);
}

TEST(ThreadRegistry, RemovalLeavesWhatThePeakDetectorOwns) {
    OwnRegistry registry;
    double* buffer = static_cast<double*>(HeapAllocate(sizeof(double)));
    const long live = LiveBlocks();
    ThreadStateGet(registry)->peakBuffer = buffer;
    ThreadStateRemove(registry);
    EXPECT_EQ(LiveBlocks(), live);
    *buffer = 1;
    HeapFree(buffer);
}

TEST(ThreadRegistry, TheEndFreesTheStatesOfAllThreadsThatWereNotRemoved) {
    const long live = LiveBlocks();
    {
        OwnRegistry registry;
        // The registry of the process alone hears of the ends of threads, so these leave their entries here.
        for (int i = 0; i < 40; ++i) std::thread([&] { ThreadStateGet(registry); }).join();
        ThreadStateGet(registry)->crossingStates = static_cast<std::int32_t*>(HeapAllocate(16));
        EXPECT_GT(LiveBlocks(), live + 2);
    }
    EXPECT_EQ(LiveBlocks(), live);
}

TEST(ThreadRegistry, AThreadThatEndsUnnoticedWithTheMutexStillGivesItBack) {
    OwnRegistry registry;
    std::thread([&] {
        testing::FailAllocation(0);
        EXPECT_EQ(ThreadStateGet(registry), nullptr);
        testing::FailAllocation(-1);
    }).join();
    EXPECT_NE(ThreadStateGet(registry), nullptr);
    // And it is a whole lock again: taken and released by threads in turn.
    std::thread([&] { EXPECT_NE(ThreadStateGet(registry), nullptr); }).join();
    EXPECT_NE(ThreadStateGet(registry), nullptr);
}

TEST(ThreadRegistry, BehindItsEndARegistryServesWithoutALock) {
    const long live = LiveBlocks();
    ThreadRegistry registry;
    ThreadRegistryStart(registry);
    ThreadRegistryStop(registry);
    ThreadState* state = ThreadStateGet(registry);
    EXPECT_NE(state, nullptr);
    EXPECT_EQ(ThreadStateGet(registry), state);
    ThreadStateRemove(registry);
    EXPECT_EQ(LiveBlocks(), live);
}

}  // namespace
}  // namespace quorvan

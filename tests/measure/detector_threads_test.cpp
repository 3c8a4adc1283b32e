// The streams of the detectors belong to their threads.
#include <barrier>
#include <gtest/gtest.h>
#include <thread>
#include <vector>

#include "quorvan/quorvan.h"
#include "tests/support/failing_heap.h"

namespace quorvan::testing {
namespace {

constexpr int kThreads = 4, kBlocks = 50;

// Thread t feeds blocks of t + 3 samples with one peak and one run each, in step with the others.
void FeedBlocks(int t, std::barrier<>* step, std::vector<double>* locations, std::vector<std::int64_t>* starts) {
    const std::int64_t n = t + 3;
    std::vector<double> block(static_cast<std::size_t>(n), 0.0);
    block[1] = 1;
    for (int k = 0; k < kBlocks; ++k) {
        const bool first = k == 0, last = k == kBlocks - 1;
        std::int64_t count = 0;
        double *found, *amplitudes, *seconds;
        step->arrive_and_wait();
        ASSERT_EQ(ZemFunc194(block.data(), n, 0.5, 3, 0, first, last, &count, &found, &amplitudes, &seconds), 0);
        locations->insert(locations->end(), found, found + count);
        for (double* array : {found, amplitudes, seconds}) ZemFunc234(array);
        step->arrive_and_wait();
        std::int64_t indices[8];
        ASSERT_EQ(ZemFunc493(block.data(), n, 0.5, 1, first, last, indices, &count), 0);
        starts->insert(starts->end(), indices, indices + count);
    }
}

TEST(DetectorThreads, FeedOneStreamEach) {
    std::barrier<> step(kThreads);
    std::vector<double> locations[kThreads];
    std::vector<std::int64_t> starts[kThreads];
    std::vector<std::thread> threads;
    for (int t = 0; t < kThreads; ++t)
        threads.emplace_back([&, t] { FeedBlocks(t, &step, &locations[t], &starts[t]); });
    for (std::thread& thread : threads) thread.join();
    for (int t = 0; t < kThreads; ++t) {
        ASSERT_EQ(locations[t].size(), static_cast<std::size_t>(kBlocks));
        ASSERT_EQ(starts[t].size(), static_cast<std::size_t>(kBlocks));
        for (int k = 0; k < kBlocks; ++k) {
            EXPECT_EQ(locations[t][static_cast<std::size_t>(k)], k * (t + 3) + 1);
            EXPECT_EQ(starts[t][static_cast<std::size_t>(k)], k * (t + 3) + 1);
        }
    }
}

TEST(DetectorThreads, FindNoStreamOfAnotherThread) {
    const double x[] = {0, 1, 0};
    std::int64_t count;
    double* arrays[3];
    ASSERT_EQ(ZemFunc194(x, 3, 0, 3, 0, 1, 0, &count, arrays, arrays + 1, arrays + 2), 0);
    std::thread([&x] {
        std::int64_t count;
        double* arrays[3];
        EXPECT_EQ(ZemFunc194(x, 3, 0, 3, 0, 0, 0, &count, arrays, arrays + 1, arrays + 2), -20064);
    }).join();
    ASSERT_EQ(ZemFunc194(x, 3, 0, 3, 0, 0, 1, &count, arrays, arrays + 1, arrays + 2), 0);
    EXPECT_EQ(count, 2);
    for (double* array : arrays) ZemFunc234(array);
}

TEST(DetectorThreads, TellWhenTheirStateCannotBeMade) {
    const double x[] = {0, 1, 0};
    std::thread([&x] {
        std::int64_t count = -77, index = -77;
        double mark = 0, *arrays[3] = {&mark, &mark, &mark};
        FailAllocation(0);
        EXPECT_EQ(ZemFunc493(x, 3, 0.5, 0, 1, 1, &index, &count), -20001) << "before the width is tested";
        FailAllocation(0);
        EXPECT_EQ(ZemFunc194(x, 3, 0.5, 2, 0, 1, 1, &count, arrays, arrays + 1, arrays + 2), -20001);
        FailAllocation(-1);
        EXPECT_EQ(count, -77);
        EXPECT_EQ(index, -77);
        for (const double* array : arrays) EXPECT_EQ(array, &mark);
        EXPECT_EQ(ZemFunc493(x, 3, 0.5, 1, 1, 1, &index, &count), 0) << "the thread goes on";
        EXPECT_EQ(index, 1);
    }).join();
}

}  // namespace
}  // namespace quorvan::testing

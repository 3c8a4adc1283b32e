// Streams belong to threads: what one draws, no other sees. The suite under ThreadSanitizer runs these.
#include <atomic>
#include <gtest/gtest.h>
#include <thread>
#include <vector>

#include "quorvan/quorvan.h"

namespace quorvan {
namespace {

constexpr int kThreads = 4;
constexpr std::int64_t kBlock = 100, kRounds = 50;

// The concatenation of many calls, so that a shared stream would show.
std::vector<double> Drawn() {
    std::vector<double> all(4 * kBlock * kRounds);
    double* out = all.data();
    for (int round = 0; round < kRounds; ++round) {
        const std::int32_t seed = round == 0 ? 7 : 0;
        EXPECT_EQ(ZemFunc182(kBlock, seed, out), 0);
        EXPECT_EQ(ZemFunc84(kBlock, 1.0, seed, out + kBlock), 0);
        EXPECT_EQ(ZemFunc389(kBlock, 30.0, 7, round == 0, out + 2 * kBlock), 0);
        EXPECT_EQ(ZemFunc412(kBlock, 3, round == 0, out + 3 * kBlock), 0);
        out += 4 * kBlock;
    }
    return all;
}

TEST(NoiseThreads, ThreadsWithOneSeedGetOneSequence) {
    const std::vector<double> alone = Drawn();
    std::vector<double> drawn[kThreads];
    std::atomic<int> waiting{kThreads};
    std::vector<std::thread> threads;
    for (int t = 0; t < kThreads; ++t)
        threads.emplace_back([&, t] {
            --waiting;
            while (waiting.load() > 0) std::this_thread::yield();
            drawn[t] = Drawn();
        });
    for (std::thread& thread : threads) thread.join();
    for (const std::vector<double>& all : drawn) EXPECT_EQ(all, alone);
}

TEST(NoiseThreads, ANewThreadStartsAtTheDefaultsWhateverEndedThreadsDrew) {
    std::vector<double> first;
    for (int round = 0; round < 20; ++round)
        std::thread([&] {
            std::vector<double> out(10);
            EXPECT_EQ(ZemFunc182(10, 0, out.data()), 0);
            if (round == 0) first = out;
            EXPECT_EQ(out, first);
        }).join();
}

}  // namespace
}  // namespace quorvan

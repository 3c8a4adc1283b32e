// The ordered map of the registry, which no export shows: against std::map over many orders of insertion and removal.
#include "frame/thread_map.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <map>
#include <numeric>
#include <random>
#include <vector>

#include "tests/support/failing_heap.h"

namespace quorvan {
namespace {

using testing::FailAllocation;
using testing::LiveBlocks;
using Entry = ThreadMap::Entry;

// Depth of the tree; every entry must stand between its bounds, on a level that its children allow.
int Depth(const Entry* entry, std::int64_t low, std::int64_t high) {
    if (!entry) return 0;
    EXPECT_LE(low, entry->thread);
    EXPECT_LE(entry->thread, high);
    const auto level = [](const Entry* e) { return e ? e->level : 0; };
    EXPECT_EQ(level(entry->left), entry->level - 1);
    EXPECT_TRUE(level(entry->right) == entry->level || level(entry->right) == entry->level - 1);
    EXPECT_LT(entry->right ? level(entry->right->right) : 0, entry->level);
    return 1 + std::max(Depth(entry->left, low, std::int64_t{entry->thread} - 1),
                        Depth(entry->right, std::int64_t{entry->thread} + 1, high));
}

void ExpectSame(const ThreadMap& map, const std::map<std::uint32_t, ThreadState*>& model) {
    const int depth = Depth(map.Any(), 0, std::numeric_limits<std::uint32_t>::max());
    // A level holds at most two entries of a path, and level k needs 2^k - 1 entries.
    EXPECT_LE(depth, 2 * std::log2(double(model.size() + 1)) + 1e-9);
    for (const auto& [thread, state] : model) {
        const Entry* entry = map.Find(thread);
        ASSERT_NE(entry, nullptr);
        EXPECT_EQ(entry->state, state);
    }
}

void Clear(ThreadMap& map) {
    while (const Entry* entry = map.Any()) map.Erase(entry->thread);
}

TEST(ThreadMap, EveryOrderOfInsertionAndRemovalOfSixKeepsTheTreeBalanced) {
    std::vector<std::uint32_t> in = {10, 20, 30, 40, 50, 60};
    const long live = LiveBlocks();
    std::vector<ThreadState> states(6);
    do {
        for (int shift = 0; shift < 6; ++shift) {
            ThreadMap map;
            std::map<std::uint32_t, ThreadState*> model;
            for (const std::uint32_t thread : in) {
                ASSERT_TRUE(map.Insert(thread, &states[thread / 10 - 1]));
                model[thread] = &states[thread / 10 - 1];
            }
            ExpectSame(map, model);
            for (int i = 0; i < 6; ++i) {
                const std::uint32_t gone = (i + shift) % 6 * 10 + 10;
                map.Erase(gone);
                model.erase(gone);
                EXPECT_EQ(map.Find(gone), nullptr);
                ExpectSame(map, model);
            }
            EXPECT_EQ(map.Any(), nullptr);
        }
    } while (std::next_permutation(in.begin(), in.end()));
    EXPECT_EQ(LiveBlocks(), live);
}

TEST(ThreadMap, LongRandomUseEqualsStdMap) {
    std::mt19937 random(3);
    std::vector<ThreadState> states(256);
    ThreadMap map;
    std::map<std::uint32_t, ThreadState*> model;
    for (int step = 0; step < 20000; ++step) {
        // Identifiers over the whole unsigned range, so that a signed comparison would show.
        const std::uint32_t slot = random() % 256;
        const std::uint32_t thread = slot * 0x01010101u;
        if (model.count(thread)) {
            map.Erase(thread);
            model.erase(thread);
        } else {
            ASSERT_TRUE(map.Insert(thread, &states[slot]));
            model[thread] = &states[slot];
        }
        if (step % 100 == 0) ExpectSame(map, model);
    }
    Clear(map);
}

TEST(ThreadMap, LowerBoundIsTheFirstThatIsNotBelow) {
    ThreadMap map;
    ThreadState state;
    for (const std::uint32_t thread : {5u, 9u, 0xFFFFFFFFu}) ASSERT_TRUE(map.Insert(thread, &state));
    EXPECT_EQ(map.LowerBound(0)->thread, 5u);
    EXPECT_EQ(map.LowerBound(5)->thread, 5u);
    EXPECT_EQ(map.LowerBound(6)->thread, 9u);
    EXPECT_EQ(map.LowerBound(10)->thread, 0xFFFFFFFFu);
    map.Erase(0xFFFFFFFFu);
    EXPECT_EQ(map.LowerBound(10), nullptr);
    Clear(map);
}

TEST(ThreadMap, ErasingWhatIsNotThereChangesNothing) {
    ThreadMap map;
    map.Erase(1);
    ThreadState state;
    ASSERT_TRUE(map.Insert(2, &state));
    map.Erase(1);
    map.Erase(3);
    EXPECT_NE(map.Find(2), nullptr);
    Clear(map);
}

TEST(ThreadMap, AFailedInsertionChangesNothing) {
    ThreadMap map;
    ThreadState state;
    ASSERT_TRUE(map.Insert(2, &state));
    FailAllocation(0);
    EXPECT_FALSE(map.Insert(1, &state));
    FailAllocation(-1);
    EXPECT_EQ(map.Find(1), nullptr);
    EXPECT_NE(map.Find(2), nullptr);
    Clear(map);
}

}  // namespace
}  // namespace quorvan

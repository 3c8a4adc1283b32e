// The shuffles: permutations of what went in, the order of the draws, what perm tells.
#include <algorithm>
#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <numeric>
#include <utility>
#include <vector>

#include "frame/thread_registry.h"
#include "quorvan/quorvan.h"
#include "tests/support/failing_heap.h"
#include "tests/support/fresh_thread.h"
#include "tests/support/guarded.h"

namespace quorvan::testing {
namespace {

using Perm = Guarded<std::int64_t>;

// One shuffle behind one signature: the places 0..n-1 go in as the data of each type.
struct Shuffle {
    const char* name;
    std::function<Status(std::vector<int>& data, Size n, std::int32_t seed, std::int64_t* perm)> run;
    RngStream ThreadState::*stream;
};

template <class T, class Pack, class Unpack>
auto Runner(Status (*entry)(T*, std::int64_t, std::int32_t, std::int64_t*), Pack pack, Unpack unpack) {
    return [=](std::vector<int>& data, Size n, std::int32_t seed, std::int64_t* perm) {
        Guarded<T> packed(data.size());
        std::transform(data.begin(), data.end(), packed.begin(), pack);
        const Status done = entry(packed, n, seed, perm);
        std::transform(packed.begin(), packed.end(), data.begin(), unpack);
        return done;
    };
}

const Shuffle kShuffles[] = {
    {"real",
     Runner<double>(
         ZemFunc396, [](int v) { return v + 0.5; }, [](double v) { return int(v - 0.5); }),
     &ThreadState::shuffleRealStream},
    {"complex",
     Runner<QvComplex>(
         ZemFunc397,
         [](int v) {
             return QvComplex{double(v), -double(v)};
         },
         [](const QvComplex& v) { return v.re == -v.im ? int(v.re) : -1; }),
     &ThreadState::shuffleComplexStream},
    {"int",
     Runner<std::int32_t>(
         ZemFunc398, [](int v) { return v; }, [](std::int32_t v) { return int(v); }),
     &ThreadState::shuffleIntStream},
};

std::vector<int> Places(Size n) {
    std::vector<int> places(n);
    std::iota(places.begin(), places.end(), 0);
    return places;
}

// From the last place down, with the draws of the uniform generator: all streams are alike.
std::vector<int> Expected(Size n, std::int32_t seed) {
    std::vector<int> data = Places(n);
    for (Size i = n - 1; i >= 1; --i) {
        double u = 0;
        EXPECT_EQ(ZemFunc182(1, i == n - 1 ? seed : 0, &u), 0);
        std::swap(data[i], data[Size(std::floor(u * double(i + 1)))]);
    }
    return data;
}

TEST(Shuffles, TakeTheDrawsFromTheLastPlaceDownAndPermNamesTheInputElement) {
    for (const Shuffle& shuffle : kShuffles)
        for (const Size n : {1, 2, 3, 17, 100})
            for (const std::int32_t seed : {1, 7, 12558213, 0x7FFFFFFF}) {
                SCOPED_TRACE(shuffle.name);
                std::vector<int> data = Places(n);
                Perm perm(n, -1);
                ASSERT_EQ(shuffle.run(data, n, seed, perm), 0);
                EXPECT_EQ(data, Expected(n, seed));
                for (Size i = 0; i < n; ++i) EXPECT_EQ(perm[i], data[i]);
            }
}

TEST(Shuffles, ANullPermDrawsTheSame) {
    for (const Shuffle& shuffle : kShuffles) {
        SCOPED_TRACE(shuffle.name);
        std::vector<int> with = Places(30), without = Places(30), next = Places(30);
        Perm perm(30);
        ASSERT_EQ(shuffle.run(with, 30, 5, perm), 0);
        const RngStream end = ThreadStateGet()->*shuffle.stream;
        ASSERT_EQ(shuffle.run(without, 30, 5, nullptr), 0);
        EXPECT_EQ(with, without);
        EXPECT_EQ((ThreadStateGet()->*shuffle.stream).x, end.x);
        ASSERT_EQ(shuffle.run(next, 30, 0, nullptr), 0);
        EXPECT_NE(next, with);
    }
}

TEST(Shuffles, OneElementStaysAndDrawsNothing) {
    for (const Shuffle& shuffle : kShuffles) {
        SCOPED_TRACE(shuffle.name);
        OnFreshThread([&] {
            std::vector<int> data = {4};
            Perm perm(1, -1);
            ASSERT_EQ(shuffle.run(data, 1, 0, perm), 0);
            EXPECT_EQ(data[0], 4);
            EXPECT_EQ(perm[0], 0);
            const RngStream& stream = ThreadStateGet()->*shuffle.stream;
            EXPECT_EQ(stream.x, 1234);
            EXPECT_EQ(stream.y, 2345);
            EXPECT_EQ(stream.z, 3456);
            EXPECT_EQ(stream.first, 0);
        });
    }
}

TEST(Shuffles, RefusedCountsLeaveDataPermAndStream) {
    for (const Shuffle& shuffle : kShuffles) {
        SCOPED_TRACE(shuffle.name);
        OnFreshThread([&] {
            std::vector<int> data = Places(4);
            Perm perm(4, -1);
            EXPECT_EQ(shuffle.run(data, 0, 7, perm), -20003);
            EXPECT_EQ(shuffle.run(data, -1, 7, perm), -20003);
            EXPECT_EQ(shuffle.run(data, -1, 7, nullptr), -20003);
            EXPECT_EQ(shuffle.run(data, kTooLarge, 7, perm), -20046);
            EXPECT_EQ(data, Places(4));
            EXPECT_EQ(perm.values(), std::vector<std::int64_t>(4, -1));
            EXPECT_EQ((ThreadStateGet()->*shuffle.stream).first, 1);
            EXPECT_EQ((ThreadStateGet()->*shuffle.stream).x, 1234);
        });
    }
}

TEST(Shuffles, ExhaustedMemory) {
    for (const Shuffle& shuffle : kShuffles) {
        SCOPED_TRACE(shuffle.name);
        ASSERT_NE(ThreadStateGet(), nullptr);
        Perm perm(8, -1);
        std::vector<int> data = Places(8);
        FailAllocation(0);
        EXPECT_EQ(shuffle.run(data, 8, 3, perm), -20001);
        FailAllocation(-1);
        EXPECT_EQ(data, Places(8));
        EXPECT_EQ(perm[0], -1);
        ExpectEveryAllocationFails([&] { return shuffle.run(data, 8, 3, perm); });
        ExpectStateAllocationFails([&] { return shuffle.run(data, 8, 3, nullptr); });
    }
}

}  // namespace
}  // namespace quorvan::testing

// Level crossings with hysteresis, one channel and many.
#include <cmath>
#include <gtest/gtest.h>
#include <random>
#include <vector>

#include "frame/thread_registry.h"
#include "quorvan/quorvan.h"
#include "tests/support/failing_heap.h"
#include "tests/support/fresh_thread.h"
#include "tests/support/guarded.h"

namespace quorvan::testing {
namespace {

using Ints = Guarded<std::int32_t>;
using Indices = Guarded<std::int64_t>;

struct Crossing {
    std::int64_t index;
    std::int32_t found;
    bool operator==(const Crossing&) const = default;
};

Crossing Detect(const std::vector<double>& x, double level, double hysteresis, std::int32_t slope, std::int32_t reset) {
    Crossing c = {-99, -99};
    EXPECT_EQ(ZemFunc419(Reals(x), Size(x.size()), level, hysteresis, slope, reset, &c.index, &c.found), 0);
    return c;
}

// All crossings of a signal that is looked at sample by sample.
std::vector<Size> AllCrossings(const std::vector<double>& x, double level, double hysteresis, std::int32_t slope) {
    std::vector<Size> all;
    const double sign = slope == 1 ? 1 : -1, h = std::fabs(hysteresis);
    bool armed = false;
    for (std::size_t i = 0; i < x.size(); ++i) {
        const double v = sign * x[i];
        if (armed && v >= sign * level) {
            all.push_back(Size(i));
            armed = false;
        } else if (!armed && v < sign * level - h) {
            armed = true;
        }
    }
    return all;
}

const Crossing kNone = {-1, 0};

TEST(DetectLevelCrossing, RisingThroughAHysteresisOfOneHalf) {
    EXPECT_EQ(Detect({1, -1, 1}, 0, 0.5, 1, 1), (Crossing{2, 1})) << "the high begin has not been armed";
}

TEST(DetectLevelCrossing, FallingIsTheMirrorImage) {
    EXPECT_EQ(Detect({-1, 1, -1}, 0, 0.5, 0, 1), (Crossing{2, 1}));
    EXPECT_EQ(Detect({5, 4, 3, 2, 1}, 3, 0.5, 0, 1), (Crossing{2, 1}));
}

TEST(DetectLevelCrossing, ArmingIsStrictAndFiringInclusive) {
    EXPECT_EQ(Detect({-0.5, 0}, 0, 0.5, 1, 1), kNone);
    EXPECT_EQ(Detect({-0.5000001, 0}, 0, 0.5, 1, 1), (Crossing{1, 1}));
    EXPECT_EQ(Detect({0.5, 0}, 0, 0.5, 0, 1), kNone);
    EXPECT_EQ(Detect({0.5000001, 0}, 0, 0.5, 0, 1), (Crossing{1, 1}));
}

TEST(DetectLevelCrossing, TheSignOfTheHysteresisDoesNotCount) {
    EXPECT_EQ(Detect({-0.4, 1, -1, 1}, 0, -0.5, 1, 1), (Crossing{3, 1}));
}

TEST(DetectLevelCrossing, OtherSlopesFindNothingAndDoNotArm) {
    for (const std::int32_t slope : {-1, 2, 100}) {
        EXPECT_EQ(Detect({-1, 1, -1, 1}, 0, 0, slope, 1), kNone);
        EXPECT_EQ(Detect({1, 1}, 0, 0, 1, 0), kNone);
    }
}

TEST(DetectLevelCrossing, TheStateOutlivesTheCallAndAResetForgetsIt) {
    EXPECT_EQ(Detect({-1}, 0, 0.5, 1, 1), kNone);
    EXPECT_EQ(Detect({}, 0, 0.5, 1, 0), kNone);
    EXPECT_EQ(Detect({-0.1, 1}, 0, 0.5, 1, 0), (Crossing{1, 1})) << "armed in an earlier block";
    EXPECT_EQ(Detect({1}, 0, 0.5, 1, 0), kNone) << "fired: not armed any more";
    EXPECT_EQ(Detect({-1}, 0, 0.5, 1, 1), kNone);
    EXPECT_EQ(Detect({1}, 0, 0.5, 1, 1), kNone);
}

TEST(DetectLevelCrossing, TheRestOfABlockBehindItsCrossingIsNotLookedAt) {
    EXPECT_EQ(Detect({-1, 1, -1}, 0, 0.5, 1, 1), (Crossing{1, 1}));
    EXPECT_EQ(Detect({1}, 0, 0.5, 1, 0), kNone) << "the last -1 has not armed";
}

TEST(DetectLevelCrossing, NaNNeitherArmsNorFires) {
    EXPECT_EQ(Detect({-1, kNaN, 1}, 0, 0.5, 1, 1), (Crossing{2, 1}));
    EXPECT_EQ(Detect({kNaN, 1}, 0, 0.5, 1, 1), kNone);
}

TEST(DetectLevelCrossing, ANegativeSizeIsRefusedBehindTheReset) {
    OnFreshThread([] {
        std::int64_t index = 0;
        std::int32_t found = 0;
        EXPECT_EQ(ZemFunc419(nullptr, kTooLarge, 0, 0, 1, 0, &index, &found), -20046);
        EXPECT_EQ(ThreadStateGet()->crossingFirst, 1);
        EXPECT_EQ(ZemFunc419(nullptr, -1, 0, 0, 1, 0, &index, &found), -20004);
        EXPECT_EQ(ThreadStateGet()->crossingFirst, 0);
        EXPECT_EQ(Detect({-1}, 0, 0, 1, 0), kNone);
        EXPECT_EQ(ThreadStateGet()->crossingState, 1);
        EXPECT_EQ(ZemFunc419(nullptr, -1, 0, 0, 1, 0, &index, &found), -20004);
        EXPECT_EQ(ThreadStateGet()->crossingState, 1);
        EXPECT_EQ(ZemFunc419(nullptr, -1, 0, 0, 1, 1, &index, &found), -20004);
        EXPECT_EQ(ThreadStateGet()->crossingState, 0);
        EXPECT_EQ(ZemFunc419(nullptr, 0, 0, 0, 1, 1, &index, &found), 0);
        EXPECT_EQ(index, -1);
        EXPECT_EQ(found, 0);
    });
}

TEST(DetectLevelCrossing, EveryCutOfAShortSignalFindsTheSameFirstCrossing) {
    constexpr unsigned n = 9;
    std::mt19937 random(2);
    for (int round = 0; round < 20; ++round)
        for (const std::int32_t slope : {0, 1}) {
            std::vector<double> x(n);
            for (double& v : x) v = int(random() % 7) - 3;
            const Crossing whole = Detect(x, 0.5, 1, slope, 1);
            const std::vector<Size> all = AllCrossings(x, 0.5, 1, slope);
            EXPECT_EQ(whole, (all.empty() ? kNone : Crossing{all[0], 1}));
            for (unsigned cuts = 0; cuts < (1u << (n - 1)); ++cuts) {
                Size begin = 0, first = -1;
                for (unsigned i = 0; i < n && first < 0; ++i)
                    if (i == n - 1 || cuts >> i & 1) {
                        const std::vector<double> block(x.begin() + begin, x.begin() + i + 1);
                        const Crossing found = Detect(block, 0.5, 1, slope, begin == 0);
                        if (found.found) first = begin + found.index;
                        begin = i + 1;
                    }
                ASSERT_EQ(first, whole.index) << "cuts " << cuts;
            }
        }
}

TEST(DetectLevelCrossing, SampleBySampleItFindsAllCrossingsOfALongSignal) {
    const std::vector<double> x = RandomReals(5000, 8).values();
    for (const std::int32_t slope : {0, 1}) {
        std::vector<Size> found;
        for (Size i = 0; i < Size(x.size()); ++i)
            if (Detect({x[i]}, 0.1, 0.4, slope, i == 0).found) found.push_back(i);
        EXPECT_GT(found.size(), 500u);
        EXPECT_EQ(found, AllCrossings(x, 0.1, 0.4, slope));
    }
}

TEST(DetectLevelCrossings, EachChannelIsDetectedAsAlone) {
    constexpr Size channels = 5, n = 40;
    const Reals x = RandomReals(channels * n * 3, 6);
    const Reals levels = {0, 0.3, -0.2, 5, 0}, hysteresis = {0.1, -0.4, 0, 0.1, 0.2};
    const Ints slopes = {1, 0, 1, 0, 7};
    std::vector<std::vector<Crossing>> together(channels), alone(channels);
    for (Size block = 0; block < 3; ++block) {
        Indices indices(channels, -99);
        Ints found(channels, -99);
        ASSERT_EQ(
            ZemFunc420(x + block * channels * n, channels, n, levels, hysteresis, slopes, block == 0, indices, found),
            0);
        for (Size c = 0; c < channels; ++c) together[c].push_back({indices[c], found[c]});
    }
    for (Size c = 0; c < channels; ++c)
        for (Size block = 0; block < 3; ++block) {
            const double* row = x + block * channels * n + c * n;
            alone[c].push_back(
                Detect(std::vector<double>(row, row + n), levels[c], hysteresis[c], slopes[c], block == 0));
        }
    EXPECT_EQ(together, alone);
    EXPECT_EQ(together[3][0], kNone);
    EXPECT_EQ(together[4][0], kNone);
}

TEST(DetectLevelCrossings, RefusesSizesBeforeTheStateIsTouched) {
    OnFreshThread([] {
        Reals x = {1}, levels = {0}, hysteresis = {0};
        Ints slopes = {1}, found(1, -9);
        Indices indices(1, -9);
        EXPECT_EQ(ZemFunc420(x, 0, 1, levels, hysteresis, slopes, 1, indices, found), -20003);
        EXPECT_EQ(ZemFunc420(x, 1, 0, levels, hysteresis, slopes, 1, indices, found), -20003);
        EXPECT_EQ(ZemFunc420(x, -1, 1, levels, hysteresis, slopes, 1, indices, found), -20003);
        EXPECT_EQ(ZemFunc420(x, 1, -1, levels, hysteresis, slopes, 1, indices, found), -20003);
        EXPECT_EQ(ZemFunc420(x, kTooLarge, 0, levels, hysteresis, slopes, 1, indices, found), -20046);
        EXPECT_EQ(ZemFunc420(x, 0, kTooLarge, levels, hysteresis, slopes, 1, indices, found), -20046);
        EXPECT_EQ(found[0], -9);
        EXPECT_EQ(indices[0], -9);
        EXPECT_EQ(ThreadStateGet()->crossingStatesFirst, 1);
        EXPECT_EQ(ThreadStateGet()->crossingStates, nullptr);
    });
}

TEST(DetectLevelCrossings, AnotherCountOfChannelsNeedsAReset) {
    Reals x = {-1, -1}, up = {1, 1}, levels = {0, 0}, hysteresis = {0, 0};
    Ints slopes = {1, 1}, found(2, -9);
    Indices indices(2, -9);
    ASSERT_EQ(ZemFunc420(x, 2, 1, levels, hysteresis, slopes, 1, indices, found), 0);
    found = Ints(2, -9);
    EXPECT_EQ(ZemFunc420(up, 1, 2, levels, hysteresis, slopes, 0, indices, found), -20058);
    EXPECT_EQ(found[0], -9);
    ASSERT_EQ(ZemFunc420(up, 2, 1, levels, hysteresis, slopes, 0, indices, found), 0);
    EXPECT_EQ(found[0] + found[1], 2) << "the refused call has changed nothing";
    ASSERT_EQ(ZemFunc420(up, 1, 2, levels, hysteresis, slopes, 1, indices, found), 0);
    EXPECT_EQ(found[0], 0) << "a reset clears the states";
}

TEST(DetectLevelCrossings, ExhaustedMemoryAtAResetLeavesNoStatesUntilTheNext) {
    Reals x = {-1, -1}, levels = {0, 0}, hysteresis = {0, 0};
    Ints slopes = {1, 1}, found(2);
    Indices indices(2);
    const auto call = [&](Size channels, std::int32_t reset) {
        return ZemFunc420(x, channels, 1, levels, hysteresis, slopes, reset, indices, found);
    };
    ASSERT_EQ(call(2, 1), 0);
    const long live = LiveBlocks();
    FailAllocation(0);  // the indices: the stream goes on as it was
    EXPECT_EQ(call(2, 1), -20001);
    FailAllocation(-1);
    EXPECT_EQ(LiveBlocks(), live);
    EXPECT_EQ(call(2, 0), 0);
    FailAllocation(1);  // the states
    EXPECT_EQ(call(2, 1), -20001);
    FailAllocation(-1);
    EXPECT_EQ(LiveBlocks(), live - 1);
    EXPECT_EQ(call(2, 0), -20001);
    EXPECT_EQ(call(1, 0), -20058);
    EXPECT_EQ(call(2, 1), 0);
    EXPECT_EQ(LiveBlocks(), live);
}

TEST(LevelCrossings, ExhaustedMemoryForTheStateOfTheThread) {
    Reals x = {1, 2};
    std::int64_t index = 0;
    std::int32_t found = 0;
    ExpectStateAllocationFails([&] { return ZemFunc419(x, 2, 0, 0, 1, 0, &index, &found); });
    // The many-channel form allocates its indices first, and its states with the thread's record.
    Reals levels = {0}, hysteresis = {0};
    Ints slopes = {1};
    for (const long failing : {0L, 1L, 2L, 3L})
        OnFreshThread([&] {
            FailAllocation(failing);
            EXPECT_EQ(ZemFunc420(x, 1, 2, levels, hysteresis, slopes, 0, &index, &found), -20001);
            FailAllocation(-1);
            EXPECT_EQ(ZemFunc420(x, 1, 2, levels, hysteresis, slopes, 1, &index, &found), 0);
        });
}

TEST(LevelCrossings, TheStatesGoWithTheirThread) {
    const long live = LiveBlocks();
    OnFreshThread([&] {
        Reals x = {1, 2}, levels = {0}, hysteresis = {0};
        Ints slopes = {1};
        std::int64_t index = 0;
        std::int32_t found = 0;
        EXPECT_EQ(ZemFunc420(x, 1, 2, levels, hysteresis, slopes, 0, &index, &found), 0);
        EXPECT_EQ(LiveBlocks(), live + 3);
    });
    EXPECT_EQ(LiveBlocks(), live);
}

}  // namespace
}  // namespace quorvan::testing

// Removal of samples.
#include <gtest/gtest.h>
#include <vector>

#include "quorvan/quorvan.h"
#include "tests/support/failing_heap.h"
#include "tests/support/guarded.h"

namespace quorvan::testing {
namespace {

using Values = std::vector<double>;
using Sizes = Guarded<Size>;

struct Call {
    Reals x{1, 2, 3, 4, 5}, y{10, -20, 30, 40, 7}, weights{0.1, 0.2, 0.3, 0.4, 0.5};
    Size n = 5, capacity = 5, count = -77;
    Sizes removed{-7, -7, -7, -7, -7};
    bool weighted = true;

    Status ByRange(std::uint32_t mode, const Reals& limits) {
        return ByRange(mode, limits, static_cast<std::int32_t>(limits.size()));
    }
    Status ByRange(std::uint32_t mode, const Reals& limits, std::int32_t limit_count) {
        return ZemFunc297(x, y, weighted ? weights.data() : nullptr, &n, mode, limits, limit_count, removed, &capacity,
                          &count);
    }
    Status ByIndex(const Sizes& indices) {
        return ZemFunc296(x, y, weighted ? weights.data() : nullptr, &n, indices, static_cast<Size>(indices.size()));
    }
    void ExpectArraysUntouched() const {
        EXPECT_EQ(x.values(), (Values{1, 2, 3, 4, 5}));
        EXPECT_EQ(y.values(), (Values{10, -20, 30, 40, 7}));
        EXPECT_EQ(weights.values(), (Values{0.1, 0.2, 0.3, 0.4, 0.5}));
        EXPECT_EQ(removed.values(), std::vector<Size>(5, -7));
    }
    void ExpectCounts(Size kept, Size gone) const {
        EXPECT_EQ(n, kept);
        EXPECT_EQ(capacity, gone);
        EXPECT_EQ(count, gone);
    }
};

TEST(FitRemoveOutOfRange, CompactsInPlaceAndTellsWhichWent) {
    Call call;
    EXPECT_EQ(call.ByRange(0, Reals{0, 35}), 0);
    call.ExpectCounts(3, 2);
    EXPECT_EQ(call.x.values(), (Values{1, 3, 5, 4, 5}));
    EXPECT_EQ(call.y.values(), (Values{10, 30, 7, 40, 7}));
    EXPECT_EQ(call.weights.values(), (Values{0.1, 0.3, 0.5, 0.4, 0.5}));
    EXPECT_EQ(call.removed.values(), (std::vector<Size>{1, 3, -7, -7, -7}));
}

TEST(FitRemoveOutOfRange, LimitsMayBeGivenInReverseOrderAndCountAsOutside) {
    Call call, reversed;
    EXPECT_EQ(call.ByRange(1, Reals{1, 4}), 0);
    EXPECT_EQ(reversed.ByRange(1, Reals{4, 1}), 0);
    EXPECT_EQ(call.x.values(), reversed.x.values());
    EXPECT_EQ(call.removed.values(), (std::vector<Size>{0, 3, 4, -7, -7}));
    EXPECT_EQ(reversed.removed.values(), call.removed.values());
    call.ExpectCounts(2, 3);
}

TEST(FitRemoveOutOfRange, Mode2TestsXAndY) {
    Call call;
    call.weighted = false;
    EXPECT_EQ(call.ByRange(2, Reals{5, 0, 0, 35}), 0);
    EXPECT_EQ(call.removed.values(), (std::vector<Size>{1, 3, 4, -7, -7}));
    call.ExpectCounts(2, 3);
    EXPECT_EQ(call.weights.values(), (Values{0.1, 0.2, 0.3, 0.4, 0.5}));
}

TEST(FitRemoveOutOfRange, WithAllSamplesInsideIsAnErrorThatLeavesTheArrays) {
    Call call;
    EXPECT_EQ(call.ByRange(1, Reals{0, 6}), -20003);
    call.ExpectArraysUntouched();
    call.ExpectCounts(5, 0);
}

TEST(FitRemoveOutOfRange, MoreThanTheCapacityLeavesTheArraysAndTellsTheCounts) {
    Call call;
    call.capacity = 1;
    EXPECT_EQ(call.ByRange(0, Reals{0, 35}), -20010);
    call.ExpectArraysUntouched();
    call.ExpectCounts(3, 2);
    Call negative;
    negative.capacity = -1;
    EXPECT_EQ(negative.ByRange(1, Reals{0, 6}), -20010) << "none is more than -1";
    negative.ExpectCounts(5, 0);
}

TEST(FitRemoveOutOfRange, AllMayGo) {
    Call call;
    EXPECT_EQ(call.ByRange(1, Reals{7, 9}), 0);
    call.ExpectCounts(0, 5);
    EXPECT_EQ(call.removed.values(), (std::vector<Size>{0, 1, 2, 3, 4}));
}

TEST(FitRemoveOutOfRange, ASampleOfNaNStays) {
    Call call;
    call.y[0] = kNaN;
    EXPECT_EQ(call.ByRange(0, Reals{0, 35}), 0);
    call.ExpectCounts(3, 2);
    EXPECT_EQ(call.x[0], 1);
}

TEST(FitRemoveOutOfRange, ChecksStandInOrderAndKeepNothing) {
    const auto expect = [](Status expected, Size n, std::uint32_t mode, const Reals& limits, std::int32_t count) {
        Call call;
        call.n = n;
        EXPECT_EQ(call.ByRange(mode, limits, count), expected);
        call.ExpectArraysUntouched();
        call.ExpectCounts(0, n);
    };
    expect(-20003, 0, 3, Reals{kNaN}, 1);
    expect(-20003, -4, 3, Reals{kNaN}, 1);
    expect(-20003, 5, 3, Reals{kNaN}, 0);
    expect(-20003, 5, 3, Reals{kNaN}, -1);
    expect(-20061, 5, 3, Reals{kNaN}, 1);
    expect(-20061, 5, 0xFFFFFFFF, Reals{kNaN}, 1);
    expect(-20006, 5, 0, Reals{kNaN}, 1);
    expect(-20006, 5, 1, Reals{kNaN}, 1);
    expect(-20069, 5, 2, Reals{kNaN, 1, 2}, 3);
    expect(-20068, 5, 0, Reals{0, kNaN}, 2);
    expect(-20068, 5, 1, Reals{kNaN, 0}, 2);
    for (int at = 0; at < 4; ++at) {
        Reals limits{0, 1, 0, 1};
        limits[at] = kNaN;
        expect(-20068, 5, 2, limits, 4);
    }
    // A limit that is not used is not looked at.
    Call call;
    EXPECT_EQ(call.ByRange(1, Reals{0, 3, kNaN}, 3), 0);
}

TEST(FitRemoveOutOfRange, ASizeThatDoesNotNarrowTouchesNothing) {
    for (bool of_n : {true, false}) {
        Call call;
        (of_n ? call.n : call.capacity) = kTooLarge;
        EXPECT_EQ(call.ByRange(3, Reals{0}), -20046);
        call.ExpectArraysUntouched();
        EXPECT_EQ(call.n, of_n ? kTooLarge : 5);
        EXPECT_EQ(call.capacity, of_n ? 5 : kTooLarge);
        EXPECT_EQ(call.count, -77);
    }
}

TEST(FitRemoveByIndex, RemovesEachNamedSampleOnce) {
    Call call;
    EXPECT_EQ(call.ByIndex(Sizes{3, 1, 3, 3}), 0);
    EXPECT_EQ(call.n, 3);
    EXPECT_EQ(call.x.values(), (Values{1, 3, 5, 4, 5}));
    EXPECT_EQ(call.y.values(), (Values{10, 30, 7, 40, 7}));
    EXPECT_EQ(call.weights.values(), (Values{0.1, 0.3, 0.5, 0.4, 0.5}));
    Call all;
    all.weighted = false;
    EXPECT_EQ(all.ByIndex(Sizes{0, 1, 2, 3, 4}), 0);
    EXPECT_EQ(all.n, 0);
}

TEST(FitRemoveByIndex, FailuresLeaveEverything) {
    const auto expect = [](Status expected, Size n, const Sizes& indices, Size count) {
        Call call;
        call.n = n;
        EXPECT_EQ(ZemFunc296(call.x, call.y, call.weights, &call.n, indices, count), expected);
        call.ExpectArraysUntouched();
        EXPECT_EQ(call.n, n);
    };
    expect(-20003, 0, Sizes{9}, 1);
    expect(-20003, -1, Sizes{9}, 1);
    expect(-20003, 5, Sizes{9}, 0);
    expect(-20003, 5, Sizes{9}, -3);
    expect(-20017, 5, Sizes{0, 5}, 2);
    expect(-20017, 5, Sizes{-1, 0}, 2);
    expect(-20046, 5, Sizes{-1, kTooLarge}, 2);
    expect(-20046, 0, Sizes{0, -kTooLarge - 1}, 2);
    expect(-20046, kTooLarge, Sizes{0}, 1);
    expect(-20046, 5, Sizes{0}, kTooLarge);
}

TEST(FitRemoveByIndex, EveryAllocationFails) {
    ExpectEveryAllocationFails([] {
        Call call;
        return call.ByIndex(Sizes{1});
    });
}

}  // namespace
}  // namespace quorvan::testing

// The Halton and the Weyl sequence.
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

#include "frame/thread_registry.h"
#include "quorvan/quorvan.h"
#include "tests/support/fresh_thread.h"
#include "tests/support/guarded.h"
#include "tests/support/targets.h"

namespace quorvan::testing {
namespace {

constexpr std::int32_t kMin = std::numeric_limits<std::int32_t>::min(), kMax = std::numeric_limits<std::int32_t>::max();

// The documented sum, digit by digit.
double RadicalInverse(std::int64_t m, std::int64_t base) {
    const double r = 1.0 / double(base);
    double sum = 0.0, w = r;
    do {
        sum += double(m % base) * w;
        w *= r;
        m /= base;
    } while (m != 0);
    return sum;
}

TEST(HaltonSequence, Base2FromItsBegin) {
    Reals out = Output(5), next = Output(3);
    ASSERT_EQ(ZemFunc412(5, 2, 1, out), 0);
    const double expected[] = {0, 0.5, 0.25, 0.75, 0.125, 0.625, 0.375, 0.875};
    for (int i = 0; i < 5; ++i) EXPECT_EQ(out[i], expected[i]);
    ASSERT_EQ(ZemFunc412(3, 17, 0, next), 0);  // another base means nothing without a reset
    for (int i = 0; i < 3; ++i) EXPECT_EQ(next[i], expected[5 + i]);
}

TEST(HaltonSequence, ANegativeBaseActsAsItsAbsoluteValue) {
    for (const std::int32_t base : {2, 3, 10, kMax}) {
        Reals plus(50), minus(50);
        ASSERT_EQ(ZemFunc412(50, base, 1, plus), 0);
        ASSERT_EQ(ZemFunc412(50, -base, 1, minus), 0);
        EXPECT_EQ(plus.values(), minus.values());
    }
    Reals out(3);
    ASSERT_EQ(ZemFunc412(3, kMin, 1, out), 0);
    for (int i = 0; i < 3; ++i) EXPECT_EQ(out[i], i * 4.656612873077393e-10);  // i / 2^31
}

TEST(HaltonSequence, CountingUpDigitsGivesTheDocumentedSumToTheLastBit) {
    for (const std::int32_t base : {2, 3, 5, 7, 10, 29, 1000}) {
        constexpr Size n = 3000;
        Reals out(n);
        ASSERT_EQ(ZemFunc412(n, base, 1, out), 0);
        for (Size i = 0; i < n; ++i) ASSERT_TRUE(SameBits(out[i], RadicalInverse(i, base))) << base << " " << i;
    }
}

TEST(HaltonSequence, EveryCutIntoTwoCallsGivesTheSameAsOne) {
    constexpr Size n = 60;
    Reals whole(n), joined(n);
    ASSERT_EQ(ZemFunc412(n, 3, 1, whole), 0);
    for (Size cut = 1; cut < n; ++cut) {
        ASSERT_EQ(ZemFunc412(cut, 3, 1, joined), 0);
        ASSERT_EQ(ZemFunc412(n - cut, 0, 0, joined + cut), 0);
        EXPECT_EQ(whole.values(), joined.values());
    }
}

TEST(HaltonSequence, BasesThatWouldNeverEndAreRefusedAndChangeNothing) {
    OnFreshThread([] {
        Reals out = Output(4);
        for (const std::int32_t base : {0, 1, -1}) EXPECT_EQ(ZemFunc412(4, base, 0, out), -20061);
        EXPECT_EQ(ThreadStateGet()->haltonFirst, 1);
        ASSERT_EQ(ZemFunc412(2, 2, 0, out), 0);
        for (const std::int32_t base : {0, 1, -1}) EXPECT_EQ(ZemFunc412(4, base, 1, out), -20061);
        ASSERT_EQ(ZemFunc412(1, 0, 0, out), 0);
        EXPECT_EQ(out[0], 0.25);
    });
}

TEST(HaltonSequence, BehindTheLastIndexItWrapsAndThenNeedsAReset) {
    for (const std::int32_t base : {2, 3, 10}) {
        Reals out = Output(6);
        ASSERT_EQ(ZemFunc412(1, base, 1, out), 0);
        ThreadStateGet()->haltonIndex = kMax - 3;
        ASSERT_EQ(ZemFunc412(6, base, 0, out), 0);
        for (int i = 0; i < 6; ++i) {
            const std::int64_t m = std::int64_t{kMax} - 3 + i;
            EXPECT_EQ(out[i], i < 4 ? RadicalInverse(m, base) : RadicalInverse(m - (std::int64_t{1} << 32), base));
        }
        EXPECT_EQ(ZemFunc412(1, base, 0, out), -20059);
        EXPECT_EQ(ZemFunc412(1, base, 1, out), 0);
        EXPECT_EQ(out[0], 0.0);
    }
}

TEST(HaltonSequence, CountsAreCheckedFirst) {
    Reals out = Output(1);
    EXPECT_EQ(ZemFunc412(0, 0, 1, out), -20003);
    EXPECT_EQ(ZemFunc412(-1, 2, 1, out), -20003);
    EXPECT_EQ(ZemFunc412(kTooLarge, 2, 1, out), -20046);
    EXPECT_TRUE(Untouched(out));
}

TEST(WeylSequence, MultiplesOfAStepFromItsBegin) {
    ForEachTarget([] {
        Reals out = Output(5), minus(5);
        ASSERT_EQ(ZemFunc413(5, 0.3, 1, out), 0);
        EXPECT_EQ(out[0], 0.0);
        EXPECT_EQ(out[1], 0.3);
        EXPECT_EQ(out[2], 0.6);
        EXPECT_EQ(out[3], 0.3 + 0.6);
        EXPECT_EQ(out[4], 0.3 + 0.6 + 0.3 - 1.0);
        ASSERT_EQ(ZemFunc413(5, -0.3, 1, minus), 0);
        EXPECT_EQ(out.values(), minus.values());
    });
}

TEST(WeylSequence, EveryCutIntoTwoCallsGivesTheSameAsOne) {
    // At a cut the value is brought below 1 as it is before each output: once more changes nothing.
    for (const double step : {0.3, 1.75, 0.6180339887498949, 123456.789}) {
        constexpr Size n = 40;
        Reals whole(n), joined(n);
        ASSERT_EQ(ZemFunc413(n, step, 1, whole), 0);
        for (Size cut = 1; cut < n; ++cut) {
            ASSERT_EQ(ZemFunc413(cut, step, 1, joined), 0);
            ASSERT_EQ(ZemFunc413(n - cut, 0.9, 0, joined + cut), 0);  // another step means nothing without a reset
            EXPECT_EQ(whole.values(), joined.values());
        }
    }
}

TEST(WeylSequence, StepsOfAnySizeStayBelow1) {
    for (const double step : {1.0, 2.5, 1e15 + 0.125, 1e300}) {
        Reals out(100);
        ASSERT_EQ(ZemFunc413(100, step, 1, out), 0);
        for (const double v : out) {
            EXPECT_LE(0.0, v);
            EXPECT_LT(v, 1.0);
        }
    }
    Reals out(3);
    ASSERT_EQ(ZemFunc413(3, kInf, 1, out), 0);
    EXPECT_EQ(out[0], 0.0);
    EXPECT_TRUE(std::isnan(out[1]));
}

TEST(WeylSequence, ANegativeStoredValueIsRefused) {
    Reals out = Output(2);
    ThreadStateGet()->weylFirst = 0;
    ThreadStateGet()->weylValue = -0.25;
    EXPECT_EQ(ZemFunc413(2, 0.3, 0, out), -20059);
    EXPECT_TRUE(Untouched(out));
    EXPECT_EQ(ZemFunc413(2, 0.3, 1, out), 0);
}

TEST(WeylSequence, CountsAreCheckedFirst) {
    Reals out = Output(1);
    EXPECT_EQ(ZemFunc413(0, 0.3, 1, out), -20003);
    EXPECT_EQ(ZemFunc413(-1, 0.3, 1, out), -20003);
    EXPECT_EQ(ZemFunc413(kTooLarge, 0.3, 1, out), -20046);
    EXPECT_TRUE(Untouched(out));
}

TEST(Sequences, ExhaustedMemoryForTheStateOfTheThread) {
    Reals out(2);
    ExpectStateAllocationFails([&] { return ZemFunc412(2, 2, 0, out); });
    ExpectStateAllocationFails([&] { return ZemFunc413(2, 0.3, 0, out); });
}

}  // namespace
}  // namespace quorvan::testing

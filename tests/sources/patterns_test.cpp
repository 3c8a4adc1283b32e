// Patterns and pulses.
#include <cmath>
#include <functional>
#include <gtest/gtest.h>

#include "quorvan/quorvan.h"
#include "tests/support/guarded.h"

namespace quorvan::testing {
namespace {

TEST(GenPulsePattern, MayEndWithTheArray) {
    Reals out = Output(5);
    ASSERT_EQ(ZemFunc141(5, 2.0, 3, 2, out), 0);
    EXPECT_EQ(out.values(), (std::vector<double>{0, 0, 0, 2, 2}));
    ASSERT_EQ(ZemFunc141(5, 2.0, 0, 5, out), 0);
    EXPECT_EQ(out.values(), (std::vector<double>{2, 2, 2, 2, 2}));
}

TEST(GenPulsePattern, OfWidth0LeavesZeros) {
    for (Size delay : {0, 3, 5}) {
        Reals out = Output(5);
        ASSERT_EQ(ZemFunc141(5, 2.0, delay, 0, out), 0);
        for (double v : out) EXPECT_TRUE(SameBits(v, 0.0));
    }
}

TEST(GenPulsePattern, RefusesPulsesThatLeaveTheArrayAndTouchesNothing) {
    Reals out = Output(5);
    EXPECT_EQ(ZemFunc141(5, 2.0, -1, 2, out), -20014);
    EXPECT_EQ(ZemFunc141(5, 2.0, 2, -1, out), -20014);
    EXPECT_EQ(ZemFunc141(5, 2.0, 3, 3, out), -20014);
    EXPECT_EQ(ZemFunc141(5, 2.0, 6, 0, out), -20014);
    EXPECT_EQ(ZemFunc141(5, 2.0, 0, 6, out), -20014);
    EXPECT_EQ(ZemFunc141(5, 2.0, 2147483647, 2147483647, out), -20014) << "the sum exceeds 32 bits";
    EXPECT_EQ(ZemFunc141(0, 2.0, -1, 2, out), -20003) << "the size is checked first";
    EXPECT_EQ(ZemFunc141(kTooLarge, 2.0, 0, 1, out), -20046);
    EXPECT_EQ(ZemFunc141(0, 2.0, kTooLarge, 1, out), -20046) << "all sizes narrow before any check";
    EXPECT_EQ(ZemFunc141(5, 2.0, 0, kTooLarge, out), -20046);
    EXPECT_TRUE(Untouched(out));
}

TEST(GenImpulsePattern, SetsOneSample) {
    for (int index : {0, 2, 4}) {
        Reals out = Output(5);
        ASSERT_EQ(ZemFunc93(5, -3.0, index, out), 0);
        for (int i = 0; i < 5; ++i) EXPECT_EQ(out[i], i == index ? -3.0 : 0.0);
    }
}

TEST(GenImpulsePattern, RefusesAnIndexOutsideTheArrayAndTouchesNothing) {
    Reals out = Output(5);
    EXPECT_EQ(ZemFunc93(5, 1.0, -1, out), -20017);
    EXPECT_EQ(ZemFunc93(5, 1.0, 5, out), -20017);
    EXPECT_EQ(ZemFunc93(0, 1.0, 0, out), -20003);
    EXPECT_EQ(ZemFunc93(-1, 1.0, -1, out), -20003) << "the size is checked first";
    EXPECT_EQ(ZemFunc93(kTooLarge, 1.0, 0, out), -20046);
    EXPECT_EQ(ZemFunc93(5, 1.0, kTooLarge, out), -20046);
    EXPECT_TRUE(Untouched(out));
}

TEST(GenRampPattern, IncludesBothEnds) {
    Reals out = Output(3);
    ASSERT_EQ(ZemFunc145(3, 1.0, 2.0, out), 0);
    EXPECT_EQ(out.values(), (std::vector<double>{1.0, 1.5, 2.0}));
    Reals tenths = Output(11);
    ASSERT_EQ(ZemFunc145(11, 0.1, 0.3, tenths), 0);
    EXPECT_EQ(tenths[0], 0.1);
    EXPECT_EQ(tenths[10], 0.3);
    EXPECT_NE(10 * ((0.3 - 0.1) / 10) + 0.1, 0.3) << "so the last sample is the given one, not the computed one";
}

TEST(GenRampPattern, OfOneSampleNeedsEqualEnds) {
    Reals out = Output(1);
    EXPECT_EQ(ZemFunc145(1, 1.0, 2.0, out), -20006);
    EXPECT_EQ(ZemFunc145(1, kNaN, kNaN, out), -20006);
    EXPECT_TRUE(Untouched(out));
    EXPECT_EQ(ZemFunc145(1, 0.0, -0.0, out), 0);
    EXPECT_TRUE(SameBits(out[0], -0.0));
}

TEST(GenRampPattern, GivesTheSameStatusForNoSamplesAsForTooFew) {
    Reals out = Output(1);
    EXPECT_EQ(ZemFunc145(0, 1.0, 1.0, out), -20006);
    EXPECT_EQ(ZemFunc145(-1, 1.0, 1.0, out), -20006);
    EXPECT_EQ(ZemFunc145(kTooLarge, 1.0, 1.0, out), -20046);
    EXPECT_TRUE(Untouched(out));
}

TEST(GenTrianglePattern, HasItsPeakInTheMiddle) {
    Reals four = Output(4), five = Output(5), two = Output(2), three = Output(3);
    ASSERT_EQ(ZemFunc178(4, 2.0, four), 0);
    EXPECT_EQ(four.values(), (std::vector<double>{0, 1, 2, 1}));
    ASSERT_EQ(ZemFunc178(5, 2.0, five), 0);
    EXPECT_EQ(five.values(), (std::vector<double>{0, 1, 2, 1, 0}));
    ASSERT_EQ(ZemFunc178(2, 2.0, two), 0);
    EXPECT_EQ(two.values(), (std::vector<double>{0, 2}));
    ASSERT_EQ(ZemFunc178(3, 2.0, three), 0);
    EXPECT_EQ(three.values(), (std::vector<double>{0, 2, 0}));
}

TEST(GenTrianglePattern, NeedsTwoSamples) {
    Reals out = Output(1);
    for (Size n : {1, 0, -1}) EXPECT_EQ(ZemFunc178(n, 1.0, out), -20006);
    EXPECT_EQ(ZemFunc178(kTooLarge, 1.0, out), -20046);
    EXPECT_TRUE(Untouched(out));
}

struct Pulse {
    const char* name;
    std::function<Status(Size n, double dt, double* out)> generate;
};

const Pulse kPulses[] = {
    {"sinc", [](Size n, double dt, double* out) { return ZemFunc157(n, 1.0, 0.0, dt, out); }},
    {"periodic sinc", [](Size n, double dt, double* out) { return ZemFunc349(n, 1.0, 0.0, dt, 3, out); }},
    {"modulated sine", [](Size n, double dt, double* out) { return ZemFunc348(n, 1.0, 0.0, dt, 1.0, 0.5, 6.0, out); }},
    {"monopulse", [](Size n, double dt, double* out) { return ZemFunc347(n, 1.0, 0.0, dt, 1.0, out); }},
    {"skewed triangle", [](Size n, double dt, double* out) { return ZemFunc350(n, 1.0, 0.0, dt, 1.0, 0.5, out); }},
};

TEST(Pulses, RefuseSizesThenTimeStepsAndTouchNothing) {
    for (const Pulse& pulse : kPulses) {
        SCOPED_TRACE(pulse.name);
        Reals out = Output(2);
        EXPECT_EQ(pulse.generate(0, 1.0, out), -20003);
        EXPECT_EQ(pulse.generate(-1, 0.0, out), -20003);
        EXPECT_EQ(pulse.generate(kTooLarge, 0.0, out), -20046);
        EXPECT_EQ(pulse.generate(2, 0.0, out), -20016);
        EXPECT_EQ(pulse.generate(2, -1.0, out), -20016);
        EXPECT_TRUE(Untouched(out));
    }
}

TEST(Pulses, PassATimeStepOfNanOn) {
    for (const Pulse& pulse : kPulses) {
        SCOPED_TRACE(pulse.name);
        Reals out = Output(2);
        EXPECT_EQ(pulse.generate(2, kNaN, out), 0);
        for (double v : out) EXPECT_TRUE(std::isnan(v));
    }
}

TEST(GenSincPattern, IsItsAmplitudeAtTheDelay) {
    Reals out = Output(3);
    ASSERT_EQ(ZemFunc157(3, 5.0, 1.0, 1.0, out), 0);
    EXPECT_EQ(out[1], 5.0);
    EXPECT_NEAR(out[0], 0.0, 5 * kEpsilon);
    EXPECT_NEAR(out[2], 0.0, 5 * kEpsilon);
}

TEST(GenPeriodicSincPattern, ChecksItsOrderBeforeTheSize) {
    Reals out = Output(2);
    EXPECT_EQ(ZemFunc349(0, 1.0, 0.0, 0.0, 0, out), -20140);
    EXPECT_EQ(ZemFunc349(2, 1.0, 0.0, 1.0, -1, out), -20140);
    EXPECT_EQ(ZemFunc349(kTooLarge, 1.0, 0.0, 1.0, 0, out), -20046);
    EXPECT_TRUE(Untouched(out));
}

TEST(GenPeriodicSincPattern, IsPlusTheAmplitudeAtEveryZeroOfTheSineWhateverTheLimit) {
    // One turn later the limit of an even order is -amp; the sine of pi is 1.2e-16 there and counts as zero.
    Reals out = Output(2);
    ASSERT_EQ(ZemFunc349(2, 3.0, 0.0, kTwoPi, 4, out), 0);
    EXPECT_EQ(out.values(), (std::vector<double>{3.0, 3.0}));
}

TEST(GenGaussianModulatedSine, ChecksItsShapeBeforeTheSize) {
    Reals out = Output(2);
    EXPECT_EQ(ZemFunc348(0, 1.0, 0.0, 0.0, 0.0, 0.5, 6.0, out), -20140);
    EXPECT_EQ(ZemFunc348(0, 1.0, 0.0, 0.0, 1.0, 0.0, 6.0, out), -20140);
    EXPECT_EQ(ZemFunc348(0, 1.0, 0.0, 0.0, 1.0, 0.5, -1.0, out), -20140);
    EXPECT_EQ(ZemFunc348(kTooLarge, 1.0, 0.0, 0.0, 1.0, 0.5, -1.0, out), -20046);
    EXPECT_TRUE(Untouched(out));
}

TEST(GenGaussianMonopulse, ChecksItsFrequencyBeforeTheSize) {
    Reals out = Output(2);
    EXPECT_EQ(ZemFunc347(0, 1.0, 0.0, 0.0, 0.0, out), -20140);
    EXPECT_EQ(ZemFunc347(2, 1.0, 0.0, 1.0, -2.0, out), -20140);
    EXPECT_EQ(ZemFunc347(kTooLarge, 1.0, 0.0, 1.0, -2.0, out), -20046);
    EXPECT_TRUE(Untouched(out));
}

TEST(GenSkewedTrianglePulse, ChecksSizeThenWidthThenTimeStepThenSkew) {
    Reals out = Output(2);
    EXPECT_EQ(ZemFunc350(0, 1.0, 0.0, 0.0, 0.0, 2.0, out), -20003);
    EXPECT_EQ(ZemFunc350(2, 1.0, 0.0, 0.0, 0.0, 2.0, out), -20140);
    EXPECT_EQ(ZemFunc350(2, 1.0, 0.0, 0.0, 1.0, 2.0, out), -20016);
    EXPECT_EQ(ZemFunc350(2, 1.0, 0.0, 1.0, 1.0, 2.0, out), -20053);
    EXPECT_EQ(ZemFunc350(2, 1.0, 0.0, 1.0, 1.0, -0.1, out), -20053);
    EXPECT_TRUE(Untouched(out));
}

TEST(GenSkewedTrianglePulse, HasItsApexInTheMiddleAndIs0AtItsEnd) {
    Reals out = Output(6);
    ASSERT_EQ(ZemFunc350(6, 3.0, 0.0, 1.0, 4.0, 0.5, out), 0);
    EXPECT_EQ(out.values(), (std::vector<double>{0, 1.5, 3, 1.5, 0, 0}));
    ASSERT_EQ(ZemFunc350(6, 3.0, 1.0, 1.0, 4.0, 0.5, out), 0);
    EXPECT_EQ(out.values(), (std::vector<double>{0, 0, 1.5, 3, 1.5, 0}));
}

TEST(GenSkewedTrianglePulse, WithASkewOf0Or1IsOneEdge) {
    Reals out = Output(4);
    ASSERT_EQ(ZemFunc350(4, 2.0, 0.0, 1.0, 2.0, 0.0, out), 0);
    EXPECT_EQ(out.values(), (std::vector<double>{2, 1, 0, 0}));
    ASSERT_EQ(ZemFunc350(4, 2.0, 0.0, 1.0, 2.0, 1.0, out), 0);
    EXPECT_EQ(out.values(), (std::vector<double>{0, 1, 2, 0}));
}

}  // namespace
}  // namespace quorvan::testing

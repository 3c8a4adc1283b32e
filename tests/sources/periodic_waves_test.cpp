// Periodic waves, the sine pattern and the chirp.
#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <string>

#include "quorvan/quorvan.h"
#include "tests/support/guarded.h"
#include "tests/support/targets.h"

namespace quorvan::testing {
namespace {

struct Wave {
    const char* name;
    std::function<Status(Size n, double amp, double freq, double* phase, double* out)> generate;
};

double kRampTable[] = {0.0, 1.0, 2.0, 3.0};

const Wave kWaves[] = {
    {"sine", ZemFunc159},
    {"triangle", ZemFunc179},
    {"sawtooth", ZemFunc151},
    {"square", [](Size n, double amp, double freq, double* phase,
                  double* out) { return ZemFunc165(n, amp, freq, phase, 50.0, out); }},
    {"arbitrary", [](Size n, double amp, double freq, double* phase,
                     double* out) { return ZemFunc9(n, amp, freq, phase, kRampTable, 4, 1, out); }},
};

double Normalized(double phase) {
    double x = phase - std::floor(phase / 360.0) * 360.0;
    if (x < 0) x += 360.0;
    return x == 360.0 ? 0.0 : x;
}

TEST(PeriodicWaves, RefuseSizesAndTouchNeitherOutputNorPhase) {
    for (const Wave& wave : kWaves) {
        SCOPED_TRACE(wave.name);
        Reals out = Output(2);
        double phase = 725.0;
        EXPECT_EQ(wave.generate(0, 1.0, 0.1, &phase, out), -20003);
        EXPECT_EQ(wave.generate(-1, 1.0, 0.1, &phase, out), -20003);
        EXPECT_EQ(wave.generate(kTooLarge, 1.0, 0.1, &phase, out), -20046);
        EXPECT_TRUE(Untouched(out));
        EXPECT_EQ(phase, 725.0);
    }
}

TEST(PeriodicWaves, LeaveThePhaseOfTheNextSampleBetween0And360) {
    for (const Wave& wave : kWaves) {
        SCOPED_TRACE(wave.name);
        for (double freq : {0.25, -0.25, 1.75})
            for (double start : {0.0, -90.0, 270.0, 3690.0}) {
                Reals out = Output(3);
                double phase = start;
                ASSERT_EQ(wave.generate(3, 1.0, freq, &phase, out), 0);
                EXPECT_EQ(phase, Normalized(start + 3 * 360.0 * freq));
            }
    }
}

TEST(PeriodicWaves, JoinAcrossCallsLikeOneLongCall) {
    for (const Wave& wave : kWaves) {
        SCOPED_TRACE(wave.name);
        // A frequency of 1/64 keeps every phase exact; only the sine recurrence rounds, by a few bits a sample.
        const double freq = 1.0 / 64, tolerance = std::string("sine") == wave.name ? 300 * 300 * kEpsilon : 0.0;
        Reals whole = Output(300);
        double phase = 45.0;
        ASSERT_EQ(wave.generate(300, 2.0, freq, &phase, whole), 0);
        Reals blocks = Output(300);
        double carried = 45.0;
        for (int done = 0, size = 1; done < 300; done += size, size = std::min(size * 2, 300 - done))
            ASSERT_EQ(wave.generate(size, 2.0, freq, &carried, blocks + done), 0);
        for (int i = 0; i < 300; ++i) EXPECT_NEAR(blocks[i], whole[i], tolerance) << i;
        EXPECT_EQ(carried, phase);
    }
}

TEST(PeriodicWaves, TakeTheirStatedShapesOnEveryInstructionSet) {
    const auto triangle = [](double x) {
        const double h = x * 0.005555555555555556;
        if (h < 0.5) return 2 * h;
        if (h < 1.5) return (1 - h) * 2;
        return (h - 2) * 2;
    };
    const auto sawtooth = [](double x) {
        const double h = x * 0.005555555555555556;
        if (x < 180) return h;
        return h - 2;
    };
    const auto square = [](double x) { return 30.0 * 3.6 > x ? 1.0 : -1.0; };
    ForEachTarget([&] {
        for (int n = 1; n < 70; ++n)
            for (double start : {0.0, -77.7, 12345.6, 359.99999999999994}) {
                const double freq = 0.0371 * (n % 5 - 2);
                Reals outTriangle = Output(n), outSawtooth = Output(n), outSquare = Output(n);
                double phases[] = {start, start, start};
                ASSERT_EQ(ZemFunc179(n, -1.5, freq, &phases[0], outTriangle), 0);
                ASSERT_EQ(ZemFunc151(n, -1.5, freq, &phases[1], outSawtooth), 0);
                ASSERT_EQ(ZemFunc165(n, -1.5, freq, &phases[2], 30.0, outSquare), 0);
                double phase = start;
                for (int i = 0; i < n; ++i) {
                    const double x = Normalized(phase);
                    EXPECT_TRUE(SameBits(outTriangle[i], triangle(x) * -1.5)) << n << ' ' << i;
                    EXPECT_TRUE(SameBits(outSawtooth[i], sawtooth(x) * -1.5)) << n << ' ' << i;
                    EXPECT_TRUE(SameBits(outSquare[i], square(x) * -1.5)) << n << ' ' << i;
                    phase = (i + 1) * 360.0 * freq + start;
                }
                for (double end : phases) EXPECT_TRUE(SameBits(end, Normalized(phase)));
            }
    });
}

TEST(GenSineWave, WithANegativeAmplitudeIsTheNegatedWave) {
    Reals plus = Output(500), minus = Output(500);
    double phase = 90.0, other = 90.0;
    ASSERT_EQ(ZemFunc159(500, 1.0, 0.2, &phase, plus), 0);
    ASSERT_EQ(ZemFunc159(500, -1.0, 0.2, &other, minus), 0);
    for (int i = 0; i < 500; ++i) EXPECT_EQ(minus[i], -plus[i]);
    EXPECT_EQ(minus[0], -1.0);
}

TEST(GenSineWave, WithFrequency0RepeatsItsFirstTwoSamplesAndKeepsThePhase) {
    Reals out = Output(9);
    double phase = 33.0;
    ASSERT_EQ(ZemFunc159(9, 2.0, 0.0, &phase, out), 0);
    const double value = 2.0 * std::sin(33.0 * 0.017453292519943295);
    for (double v : out) EXPECT_EQ(v, value);
    EXPECT_EQ(phase, 33.0);
}

TEST(GenSineWave, OfOneSampleIsOneSine) {
    Reals out = Output(1);
    double phase = 30.0;
    ASSERT_EQ(ZemFunc159(1, 4.0, 0.25, &phase, out), 0);
    EXPECT_EQ(out[0], 4.0 * std::sin(30.0 * 0.017453292519943295));
    EXPECT_EQ(phase, 120.0);
}

TEST(GenSineWave, LetsNanAndInfinityPropagate) {
    Reals out = Output(4);
    double phase = kNaN;
    ASSERT_EQ(ZemFunc159(4, 1.0, 0.1, &phase, out), 0);
    for (double v : out) EXPECT_TRUE(std::isnan(v));
    EXPECT_TRUE(std::isnan(phase));
    phase = 0.0;
    ASSERT_EQ(ZemFunc159(4, kInf, 0.1, &phase, out), 0);
    EXPECT_TRUE(std::isnan(out[0]));
    EXPECT_EQ(out[1], kInf);
}

TEST(GenSinePattern, RefusesSizesBeforeItDividesByThem) {
    Reals out = Output(2);
    EXPECT_EQ(ZemFunc158(0, 1.0, 0.0, 1.0, out), -20003);
    EXPECT_EQ(ZemFunc158(-1, 1.0, 0.0, 1.0, out), -20003);
    EXPECT_EQ(ZemFunc158(kTooLarge, 1.0, 0.0, 1.0, out), -20046);
    EXPECT_TRUE(Untouched(out));
}

TEST(GenSinePattern, TakesAnyNumberOfCycles) {
    for (double cycles : {-3.0, 0.0, 0.5, 100.0}) {
        Reals out = Output(8);
        EXPECT_EQ(ZemFunc158(8, 1.0, 90.0, cycles, out), 0);
        EXPECT_EQ(out[0], 1.0);
    }
}

TEST(GenTriangleWave, OfTwoCallsJoinsExactlyAsOneBecauseThePhaseBetweenIs0) {
    Reals once = Output(200), twice = Output(200);
    double phase = 0.0, between = 0.0;
    ASSERT_EQ(ZemFunc179(200, 1.0, 0.01, &phase, once), 0);
    ASSERT_EQ(ZemFunc179(100, 1.0, 0.01, &between, twice), 0);
    EXPECT_TRUE(SameBits(between, 0.0));
    ASSERT_EQ(ZemFunc179(100, 1.0, 0.01, &between, twice + 100), 0);
    for (int i = 0; i < 100; ++i) EXPECT_TRUE(SameBits(twice[i], once[i]));
    // In the second hundred one long call works with phases beyond 360: they differ from the short one's by rounding.
    for (int i = 100; i < 200; ++i) EXPECT_NEAR(twice[i], once[i], 720 * kEpsilon / 90);
}

TEST(GenTriangleWave, Is0At0AndReachesItsAmplitudeAt90And270Degrees) {
    Reals out = Output(4);
    double phase = 0.0;
    ASSERT_EQ(ZemFunc179(4, 3.0, 0.25, &phase, out), 0);
    EXPECT_EQ(out.values(), (std::vector<double>{0.0, 3.0, 0.0, -3.0}));
    EXPECT_EQ(phase, 0.0);
}

TEST(GenSawtoothWave, JumpsToMinusItsAmplitudeAt180Degrees) {
    Reals out = Output(8);
    double phase = 0.0;
    ASSERT_EQ(ZemFunc151(8, 4.0, 0.125, &phase, out), 0);
    const double expected[] = {0, 1, 2, 3, -4, -3, -2, -1};
    // The factor 1/180 is rounded, and so is each of these.
    for (int i = 0; i < 8; ++i) EXPECT_NEAR(out[i], expected[i], 4 * kEpsilon);
    EXPECT_EQ(out[4], -4.0);
}

TEST(GenSquareWave, ClampsItsDutyAndNeverRefusesIt) {
    for (double duty : {150.0, 100.0, 1e300}) {
        Reals out = Output(100);
        double phase = 359.99999999999994;
        ASSERT_EQ(ZemFunc165(100, 2.0, 0.013, &phase, duty, out), 0);
        for (double v : out) EXPECT_EQ(v, 2.0);
    }
    for (double duty : {-5.0, 0.0, -1e300}) {
        Reals out = Output(100);
        double phase = 0.0;
        ASSERT_EQ(ZemFunc165(100, 2.0, 0.013, &phase, duty, out), 0);
        for (double v : out) EXPECT_EQ(v, -2.0);
    }
}

TEST(GenSquareWave, FallsAtTheSampleOnTheEdge) {
    Reals out = Output(4);
    double phase = 0.0;
    ASSERT_EQ(ZemFunc165(4, 1.0, 0.25, &phase, 50.0, out), 0);
    EXPECT_EQ(out.values(), (std::vector<double>{1, 1, -1, -1}));
}

TEST(GenArbitraryWave, OfAnEmptyTableIsZerosAndPhase0) {
    for (Size size : {0, -3}) {
        Reals out = Output(5);
        double phase = 77.0;
        EXPECT_EQ(ZemFunc9(5, 2.0, 0.1, &phase, nullptr, size, 1, out), 0);
        for (double v : out) EXPECT_EQ(v, 0.0);
        EXPECT_TRUE(SameBits(phase, 0.0));
    }
}

TEST(GenArbitraryWave, InterpolatesInItsLastCellTowardsTheFirst) {
    const Reals table{10, 20, 30, 40};
    Reals out = Output(3);
    double phase = 3.5 * 90;
    ASSERT_EQ(ZemFunc9(3, 1.0, 0.0625, &phase, table, 4, 1, out), 0);
    EXPECT_EQ(out.values(), (std::vector<double>{25.0, 17.5, 10.0}));
    phase = 3.5 * 90;
    ASSERT_EQ(ZemFunc9(3, 1.0, 0.0625, &phase, table, 4, 0, out), 0);
    EXPECT_EQ(out.values(), (std::vector<double>{40.0, 40.0, 10.0}));
}

TEST(GenArbitraryWave, InterpolatesForTheSelection1Only) {
    const Reals table{10, 20};
    for (std::int32_t selection : {-1, 0, 2, 3}) {
        Reals out = Output(1);
        double phase = 90.0;
        ASSERT_EQ(ZemFunc9(1, 1.0, 0.0, &phase, table, 2, selection, out), 0);
        EXPECT_EQ(out[0], 10.0);
    }
}

TEST(GenArbitraryWave, RefusesNonFinitePhasesAndFrequenciesAndTouchesNothing) {
    const Reals table{1, 2};
    for (double bad : {kNaN, kInf, -kInf}) {
        Reals out = Output(3);
        double phase = bad;
        EXPECT_EQ(ZemFunc9(3, 1.0, 0.1, &phase, table, 2, 0, out), -20068);
        EXPECT_TRUE(SameBits(phase, bad));
        EXPECT_EQ(ZemFunc9(0, 1.0, 0.1, &phase, table, 2, 0, out), -20003) << "the size is checked first";
        phase = 12.0;
        EXPECT_EQ(ZemFunc9(3, 1.0, bad, &phase, table, 2, 0, out), -20068);
        EXPECT_EQ(ZemFunc9(3, 1.0, bad, &phase, table, 0, 0, out), -20068) << "also beside an empty table";
        EXPECT_EQ(phase, 12.0);
        EXPECT_TRUE(Untouched(out));
    }
}

TEST(GenArbitraryWave, NarrowsTheSizeOfItsTable) {
    const Reals table{1, 2};
    Reals out = Output(3);
    double phase = 12.0;
    EXPECT_EQ(ZemFunc9(3, 1.0, 0.1, &phase, table, kTooLarge, 0, out), -20046);
    EXPECT_EQ(ZemFunc9(-1, 1.0, 0.1, &phase, table, kTooLarge, 0, out), -20046) << "all sizes narrow before any check";
    EXPECT_EQ(phase, 12.0);
    EXPECT_TRUE(Untouched(out));
}

TEST(GenArbitraryWave, StaysWithinItsTableAtPositionsThatNoRemainderReaches) {
    const Reals table{5, 6, 7};
    for (double start : {1e17, -1e17, 1e300, -1e300, 1.7e308, -1.7e308})
        for (double freq : {0.0, 0.3, 1e300, -1e300, 1.7e308})
            for (std::int32_t interpolation : {0, 1}) {
                Reals out = Output(20);
                double phase = start;
                ASSERT_EQ(ZemFunc9(20, 1.0, freq, &phase, table, 3, interpolation, out), 0);
                for (double v : out) EXPECT_TRUE(v >= 5.0 && v <= 7.0) << start << ' ' << freq;
            }
}

TEST(GenChirp, RefusesSizesAndTouchesNothing) {
    Reals out = Output(2);
    EXPECT_EQ(ZemFunc28(0, 1.0, 0.1, 0.2, out), -20003);
    EXPECT_EQ(ZemFunc28(-1, 1.0, 0.1, 0.2, out), -20003);
    EXPECT_EQ(ZemFunc28(kTooLarge, 1.0, 0.1, 0.2, out), -20046);
    EXPECT_TRUE(Untouched(out));
}

TEST(GenChirp, BetweenEqualFrequenciesIsASine) {
    Reals chirp = Output(200);
    ASSERT_EQ(ZemFunc28(200, 1.0, 0.05, 0.05, chirp), 0);
    for (int i = 0; i < 200; ++i) EXPECT_NEAR(chirp[i], std::sin(kTwoPi * 0.05 * i), 64 * 2 * kEpsilon);
}

}  // namespace
}  // namespace quorvan::testing

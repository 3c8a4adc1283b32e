// Transfer functions, deconvolution and network analysis.
#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

#include "quorvan/quorvan.h"
#include "tests/support/failing_heap.h"
#include "tests/support/guarded.h"

namespace quorvan::testing {
namespace {

const int kSizes[] = {1, 2, 3, 4, 5, 6, 7, 8, 15, 16, 23, 36, 53, 64};

std::size_t Bins(int n) { return std::max(n / 2, 1); }

// A stimulus without small bins: a unit sample and a little noise, so that quotients are conditioned like 1.
Reals Stimulus(int n, unsigned seed) {
    Reals x = RandomReals(n, seed);
    for (double& v : x) v *= 0.25 / n;
    x[0] += 1;
    return x;
}

Reals CircularConvolution(const Reals& x, const Reals& h) {
    const std::size_t n = x.size();
    Reals out(n);
    for (std::size_t i = 0; i < n; ++i)
        for (std::size_t j = 0; j < n; ++j) out[(i + j) % n] += x[i] * h[j];
    return out;
}

double Tolerance(int n) { return 32 * 2.3e-16 * n; }

TEST(SpecTransferFunction, IsTheSpectrumOfTheImpulseResponse) {
    for (int n : kSizes) {
        const Reals stimulus = Stimulus(n, n), impulse = RandomReals(n, 5);
        const Reals response = CircularConvolution(stimulus, impulse);
        Reals mag = Output(Bins(n)), phase = Output(Bins(n)), df = Output(1), re = impulse, im = Output(n);
        ASSERT_EQ(ZemFunc176(stimulus, response, n, 0.25, mag, phase, df), 0);
        ASSERT_EQ(ZemFunc147(re, im, n), 0);
        for (std::size_t k = 0; k < Bins(n); ++k) {
            EXPECT_NEAR(mag[k] * std::cos(phase[k]), re[k], Tolerance(n));
            EXPECT_NEAR(mag[k] * std::sin(phase[k]), im[k], Tolerance(n));
        }
        EXPECT_EQ(df[0], 1 / (n * 0.25));
    }
}

TEST(SpecTransferFunction, OfASingleSampleIsTheQuotient) {
    Reals mag = Output(1), phase = Output(1), df = Output(1);
    EXPECT_EQ(ZemFunc176(Reals{2}, Reals{-5}, 1, 1, mag, phase, df), 0);
    EXPECT_EQ(mag[0], 2.5);
    EXPECT_EQ(phase[0], M_PI);
}

TEST(SpecTransferFunction, GivesInfinityAndNanForAStimulusOfNothingWithoutAStatus) {
    Reals mag = Output(2), phase = Output(2), df = Output(1);
    EXPECT_EQ(ZemFunc176(Reals{0, 0, 0, 0}, Reals{1, 0, 0, 0}, 4, 1, mag, phase, df), 0);
    EXPECT_EQ(mag[0], kInf);
    EXPECT_EQ(phase[0], 0);
    EXPECT_TRUE(std::isnan(mag[1]));  // 1 * 0 * infinity
    EXPECT_EQ(ZemFunc176(Reals{0}, Reals{0}, 1, 1, mag, phase, df), 0);
    EXPECT_TRUE(std::isnan(mag[0]) && std::isnan(phase[0]));
}

TEST(SpecDeconvolve, UndoesACircularConvolution) {
    for (int n : kSizes) {
        const Reals divisor = Stimulus(n, n), wanted = RandomReals(n, 5);
        const Reals signal = CircularConvolution(divisor, wanted);
        Reals out = Output(n);
        ASSERT_EQ(ZemFunc94(divisor, signal, n, out), 0);
        for (int i = 0; i < n; ++i) EXPECT_NEAR(out[i], wanted[i], Tolerance(n));
    }
}

TEST(SpecDeconvolve, DividesSingleSamplesAndPropagatesZeroBins) {
    Reals out = Output(1);
    EXPECT_EQ(ZemFunc94(Reals{4}, Reals{-6}, 1, out), 0);
    EXPECT_EQ(out[0], -1.5);
    Reals four = Output(4);
    EXPECT_EQ(ZemFunc94(Reals(4, 0.0), Reals(4, 1.0), 4, four), 0);
    for (double v : four) EXPECT_FALSE(std::isfinite(v));
}

TEST(SpecDeconvolve, MayWriteOverItsInputs) {
    Reals divisor = Stimulus(15, 3), signal = RandomReals(15, 4), out = Output(15);
    ASSERT_EQ(ZemFunc94(divisor, signal, 15, out), 0);
    ASSERT_EQ(ZemFunc94(divisor, signal, 15, signal), 0);
    EXPECT_EQ(signal.values(), out.values());
}

struct Network {
    explicit Network(int n)
        : crossMag(Output(Bins(n))),
          crossPhase(Output(Bins(n))),
          transferMag(Output(Bins(n))),
          transferPhase(Output(Bins(n))),
          coherence(Output(Bins(n))),
          impulse(Output(n)),
          df(Output(1)) {}

    Status operator()(const Reals& stimulus, const Reals& response, Size n, Size frames, double dt) {
        return ZemFunc129(stimulus, response, n, frames, dt, crossMag, crossPhase, transferMag, transferPhase,
                          coherence, impulse, df);
    }
    bool untouched() const {
        return Untouched(crossMag) && Untouched(crossPhase) && Untouched(transferMag) && Untouched(transferPhase) &&
               Untouched(coherence) && Untouched(impulse) && Untouched(df);
    }

    Reals crossMag, crossPhase, transferMag, transferPhase, coherence, impulse, df;
};

TEST(SpecNetworkAnalysis, OfEqualRecordsIsTransparent) {
    for (int n : kSizes)
        for (int frames : {1, 3}) {
            const Reals x = RandomReals(n * frames, n);
            Network network(n);
            ASSERT_EQ(network(x, x, n, frames, 0.25), 0);
            for (std::size_t k = 0; k < Bins(n); ++k) {
                EXPECT_NEAR(network.transferMag[k], 1, 1e-14);
                EXPECT_NEAR(network.transferPhase[k], 0, 1e-14);
                EXPECT_NEAR(network.coherence[k], 1, 1e-14);
                EXPECT_NEAR(network.crossPhase[k], 0, 1e-14);
            }
            for (int i = 0; i < n; ++i) EXPECT_NEAR(network.impulse[i], i == 0, Tolerance(n));
            EXPECT_EQ(network.df[0], 1 / (n * 0.25));
        }
}

TEST(SpecNetworkAnalysis, WithOneFrameHasACoherenceOfOneByConstruction) {
    for (int n : kSizes) {
        Network network(n);
        ASSERT_EQ(network(RandomReals(n, 1), RandomReals(n, 2), n, 1, 1), 0);
        for (double v : network.coherence) EXPECT_NEAR(v, 1, 1e-14);
    }
}

TEST(SpecNetworkAnalysis, WithUnrelatedFramesHasACoherenceBelowOne) {
    const int n = 16, frames = 200;
    Network network(n);
    ASSERT_EQ(network(RandomReals(n * frames, 1), RandomReals(n * frames, 2), n, frames, 1), 0);
    // Its mean is 1 / frames for independent noise, and it hardly ever gets to ten times that.
    for (double v : network.coherence) {
        EXPECT_GE(v, 0);
        EXPECT_LT(v, 0.1);
    }
}

TEST(SpecNetworkAnalysis, FindsTheImpulseResponseFrameByFrame) {
    for (int n : kSizes) {
        const int frames = 3;
        const Reals impulse = RandomReals(n, 9);
        Reals stimulus(n * frames), response(n * frames);
        for (int f = 0; f < frames; ++f) {
            const Reals x = Stimulus(n, f + 1), y = CircularConvolution(x, impulse);
            std::copy(x.begin(), x.end(), stimulus.begin() + f * n);
            std::copy(y.begin(), y.end(), response.begin() + f * n);
        }
        Network network(n);
        ASSERT_EQ(network(stimulus, response, n, frames, 1), 0);
        for (int i = 0; i < n; ++i) EXPECT_NEAR(network.impulse[i], impulse[i], Tolerance(n));
        Reals mag = Output(Bins(n)), phase = Output(Bins(n)), df = Output(1);
        ASSERT_EQ(ZemFunc176(stimulus, response, n, 1, mag, phase, df), 0);
        for (std::size_t k = 0; k < Bins(n); ++k) {
            EXPECT_NEAR(network.transferMag[k], mag[k], Tolerance(n));
            EXPECT_NEAR(network.coherence[k], 1, Tolerance(n));
        }
    }
}

// The same frame many times: sums grow with the frames, the cross power must not.
TEST(SpecNetworkAnalysis, AveragesTheCrossPower) {
    const int n = 10, frames = 4;
    const Reals x = RandomReals(n, 1), y = RandomReals(n, 2);
    Reals xs(n * frames), ys(n * frames), mag = Output(5), phase = Output(5), df = Output(1);
    for (int i = 0; i < n * frames; ++i) {
        xs[i] = x[i % n];
        ys[i] = y[i % n];
    }
    Network network(n);
    ASSERT_EQ(network(xs, ys, n, frames, 1), 0);
    ASSERT_EQ(ZemFunc37(x, y, n, 1, mag, phase, df), 0);
    for (int k = 0; k < 5; ++k) {
        EXPECT_NEAR(network.crossMag[k], mag[k], Tolerance(1));
        EXPECT_NEAR(network.crossPhase[k], phase[k], Tolerance(n));
    }
}

// Each part of Sxy is divided by Sxx, over all bins: a bin without stimulus makes the whole impulse response NaN.
TEST(SpecNetworkAnalysis, DividesZeroByZeroWithoutAStatus) {
    Network network(4);
    ASSERT_EQ(network(Reals(4, 0.0), Reals(4, 1.0), 4, 1, 1), 0);
    EXPECT_TRUE(std::isnan(network.transferMag[0]));
    EXPECT_TRUE(std::isnan(network.coherence[0]));
    EXPECT_EQ(network.crossMag[0], 0);
    for (double v : network.impulse) EXPECT_TRUE(std::isnan(v));
}

TEST(SpecNetworkAnalysis, WritesBinZeroOfASingleSample) {
    Network network(1);
    ASSERT_EQ(network({2, 2}, {-3, -5}, 1, 2, 0.5), 0);
    EXPECT_EQ(network.crossMag[0], 8);  // (6 + 10) / 2
    EXPECT_EQ(network.crossPhase[0], M_PI);
    EXPECT_EQ(network.transferMag[0], 2);  // 16 / 8
    EXPECT_EQ(network.transferPhase[0], M_PI);
    EXPECT_EQ(network.coherence[0], 256.0 / (8 * 34));
    EXPECT_EQ(network.impulse[0], -2);
    EXPECT_EQ(network.df[0], 2);
}

TEST(SpecNetworkAnalysis, RefusesSizesAndTouchesNothing) {
    const Reals x{1, 2};
    Network network(2);
    EXPECT_EQ(network(x, x, kTooLarge, 0, 1), -20046);
    EXPECT_EQ(network(x, x, 0, kTooLarge, 1), -20046);
    EXPECT_EQ(network(x, x, 0, 1, 1), -20003);
    EXPECT_EQ(network(x, x, 2, 0, 1), -20003);
    EXPECT_EQ(network(x, x, -1, 2147483647, 1), -20003);
    EXPECT_EQ(network(x, x, 65536, 32768, 1), -20046);
    EXPECT_EQ(network(x, x, 2147483647, 2147483647, 1), -20046);
    EXPECT_TRUE(network.untouched());
}

TEST(TransferMeasurements, RefuseSizesAndTouchNothing) {
    Reals a = Output(2), b = Output(2), df = Output(1);
    const Reals x{1, 2};
    for (Size n : {Size{0}, Size{-1}, kTooLarge, -kTooLarge - 1}) {
        const Status expected = n == 0 || n == -1 ? -20003 : -20046;
        EXPECT_EQ(ZemFunc176(x, x, n, 1, a, b, df), expected);
        EXPECT_EQ(ZemFunc94(x, x, n, a), expected);
    }
    EXPECT_TRUE(Untouched(a) && Untouched(b) && Untouched(df));
}

TEST(TransferMeasurements, TellExhaustedMemory) {
    for (int n : {12, 53}) {
        const Reals x = RandomReals(2 * n, 1), y = RandomReals(2 * n, 2);
        Reals a(n / 2), b(n / 2), out(n), df(1);
        Network network(n);
        ExpectEveryAllocationFails([&] { return ZemFunc176(x, y, n, 1, a, b, df); });
        ExpectEveryAllocationFails([&] { return ZemFunc94(x, y, n, out); });
        ExpectEveryAllocationFails([&] { return network(x, y, n, 2, 1); });
    }
}

}  // namespace
}  // namespace quorvan::testing

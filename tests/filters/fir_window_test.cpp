// FIR designs by windows and the filters that design for the call.
#include <cmath>
#include <functional>
#include <gtest/gtest.h>

#include "quorvan/quorvan.h"
#include "tests/support/failing_heap.h"
#include "tests/support/guarded.h"

namespace quorvan::testing {
namespace {

constexpr std::uint32_t kLow = 0, kHigh = 1, kBand = 2, kStop = 3;
constexpr long double kPiLong = 3.14159265358979323846264338327950288L;

// The ideal response from its formula in long double.
std::vector<double> Ideal(std::uint32_t kind, double fs, double fl, double fh, int taps) {
    const auto lowpass = [&](long double f, long double t) {
        const long double w = 2 * kPiLong * f / fs;
        return t == 0 ? w / kPiLong : std::sin(w * t) / (kPiLong * t);
    };
    std::vector<double> h;
    for (int i = 0; i < taps; ++i) {
        const long double t = i - (taps - 1) / 2.0L, pulse = t == 0 ? 1 : 0;
        const long double low = lowpass(fl, t), band = lowpass(fh, t) - low;
        h.push_back(double(kind == kLow ? low : kind == kHigh ? pulse - low : kind == kBand ? band : pulse - band));
    }
    return h;
}

// The angles are sums of up to M/2 steps that stay below M pi/2: an error of eps M^2 pi/8 in numerator and denominator,
// which is at least pi/2.
double IdealTolerance(int taps) { return 2.3e-16 * (1.0 * taps * taps + 4); }

TEST(FirIdealResponse, IsTheInverseTransformOfTheRectangle) {
    for (std::uint32_t kind : {kLow, kHigh, kBand, kStop})
        for (int taps : {1, 2, 3, 4, 5, 21, 64, 101, 500, 501}) {
            if ((kind == kHigh || kind == kStop) && taps % 2 == 0) continue;
            Reals h = Output(taps);
            ASSERT_EQ(ZemFunc79(kind, 1000, 130, 310, taps, h), 0);
            const auto expected = Ideal(kind, 1000, 130, 310, taps);
            for (int i = 0; i < taps; ++i) EXPECT_NEAR(h[i], expected[i], IdealTolerance(taps)) << kind << ' ' << i;
        }
}

TEST(FirIdealResponse, OfOneTapIsTheShareOfTheBand) {
    Reals h = Output(1);
    ASSERT_EQ(ZemFunc79(kLow, 8, 1, 0, 1, h), 0);
    EXPECT_DOUBLE_EQ(h[0], 2 * 1.0 / 8);
    ASSERT_EQ(ZemFunc79(kHigh, 8, 1, 0, 1, h), 0);
    EXPECT_DOUBLE_EQ(h[0], 1 - 2 * 1.0 / 8);
    ASSERT_EQ(ZemFunc79(kBand, 8, 1, 3, 1, h), 0);
    EXPECT_DOUBLE_EQ(h[0], 0.5);
    ASSERT_EQ(ZemFunc79(kStop, 8, 1, 3, 1, h), 0);
    EXPECT_DOUBLE_EQ(h[0], 0.5);
}

TEST(FirIdealResponse, EvenLowpassAndBandpassHaveTwoEqualMiddleTaps) {
    for (std::uint32_t kind : {kLow, kBand}) {
        Reals h = Output(10);
        ASSERT_EQ(ZemFunc79(kind, 1, 0.1, 0.3, 10, h), 0);
        EXPECT_EQ(h[4], h[5]);
        EXPECT_NE(h[4], h[3]);
    }
}

TEST(FirIdealResponse, IsSymmetricToTheBit) {
    for (std::uint32_t kind : {kLow, kHigh, kBand, kStop}) {
        Reals h = Output(77);
        ASSERT_EQ(ZemFunc79(kind, 44100, 3000, 9000, 77, h), 0);
        for (int i = 0; i < 77; ++i) EXPECT_TRUE(SameBits(h[i], h[76 - i]));
    }
}

TEST(FirIdealResponse, AccumulatesItsAngles) {
    const int taps = 41;
    Reals h = Output(taps);
    ASSERT_EQ(ZemFunc79(kStop, 7, 1.3, 2.9, taps, h), 0);
    const double w1 = 6.283185307179586 * 1.3 / 7, w2 = 6.283185307179586 * 2.9 / 7;
    double x1 = -40 * w1 / 2, x2 = -40 * w2 / 2, pi = -40 * 3.141592653589793 / 2;
    for (int i = 0; i < 20; ++i, x1 += w1, x2 += w2, pi += 3.141592653589793)
        EXPECT_TRUE(SameBits(h[i], (std::sin(x1) - std::sin(x2)) / pi)) << i;
    EXPECT_TRUE(SameBits(h[20], 1 - (w2 - w1) / 3.141592653589793));
}

TEST(FirIdealResponse, IgnoresTheUpperEdgeOfLowpassAndHighpassEvenIfNaN) {
    for (std::uint32_t kind : {kLow, kHigh}) {
        Reals h = Output(11), other = Output(11);
        ASSERT_EQ(ZemFunc79(kind, 10, 2, kNaN, 11, h), 0);
        ASSERT_EQ(ZemFunc79(kind, 10, 2, 1e9, 11, other), 0);
        EXPECT_EQ(h.values(), other.values());
    }
}

TEST(FirIdealResponse, TestsKindThenTapsThenNyquistThenTheBandThenTheParity) {
    Reals h = Output(4);
    EXPECT_EQ(ZemFunc79(4, -1, 9, 9, 0, h), -20061);
    EXPECT_EQ(ZemFunc79(0xFFFFFFFFu, -1, 9, 9, 0, h), -20061);
    EXPECT_EQ(ZemFunc79(kLow, 1, 9, 9, 0, h), -20021);
    EXPECT_EQ(ZemFunc79(kHigh, 1, 9, 9, -5, h), -20021);
    EXPECT_EQ(ZemFunc79(kLow, -1, 0.1, 9, 4, h), -20020) << "fs/2 is below every positive edge";
    EXPECT_EQ(ZemFunc79(kHigh, 1, 0.51, 0, 4, h), -20020);
    EXPECT_EQ(ZemFunc79(kBand, 1, -0.1, 0.51, 4, h), -20020);
    EXPECT_EQ(ZemFunc79(kStop, 1, 0.51, 0.4, 4, h), -20020);
    EXPECT_EQ(ZemFunc79(kLow, 0, 0, 0, 4, h), -20023);
    EXPECT_EQ(ZemFunc79(kHigh, 1, 0, 0, 4, h), -20023);
    EXPECT_EQ(ZemFunc79(kHigh, 1, -0.2, 0, 4, h), -20023);
    EXPECT_EQ(ZemFunc79(kBand, 1, 0.2, 0.2, 4, h), -20023) << "equal edges";
    EXPECT_EQ(ZemFunc79(kStop, 1, 0.3, 0.2, 4, h), -20023);
    EXPECT_EQ(ZemFunc79(kStop, 1, 0, 0.2, 4, h), -20023);
    EXPECT_EQ(ZemFunc79(kStop, 1, -0.2, -0.1, 4, h), -20023);
    EXPECT_EQ(ZemFunc79(kHigh, 1, 0.2, 0, 4, h), -20033);
    EXPECT_EQ(ZemFunc79(kStop, 1, 0.1, 0.2, 4, h), -20033);
    EXPECT_TRUE(Untouched(h));
}

TEST(FirIdealResponse, AnEdgeMayLieAtHalfTheSamplingRate) {
    Reals h = Output(5);
    EXPECT_EQ(ZemFunc79(kLow, 2, 1, 0, 5, h), 0);
    EXPECT_NEAR(h[2], 1, 1e-15);
    EXPECT_EQ(ZemFunc79(kBand, 2, 0.5, 1, 5, h), 0);
}

TEST(FirDesignWindow, MultipliesTheIdealResponseByTheSymmetricWindow) {
    struct {
        int code;
        double parameter;
    } const windows[] = {{0, 0},    {1, 0},   {5, 0},   {6, 0},   {30, 0},   {34, 0},
                         {60, 5.5}, {61, 80}, {61, -1}, {62, -1}, {62, 0.15}};
    for (const auto& window : windows)
        for (int taps : {2, 3, 31}) {
            Reals h = Output(taps), expected = Output(taps);
            ASSERT_EQ(ZemFunc79(kBand, 1, 0.1, 0.2, taps, expected), 0);
            ASSERT_EQ(ZemFunc281(expected, taps, window.code, window.parameter), 0);
            ASSERT_EQ(ZemFunc335(kBand, 1, 0.1, 0.2, taps, window.code, window.parameter, h), 0);
            EXPECT_EQ(h.values(), expected.values()) << window.code;
        }
}

TEST(FirDesignWindow, RefusesTheDesignBeforeTheWindow) {
    Reals h = Output(4);
    EXPECT_EQ(ZemFunc335(4, 1, 0.1, 0.2, 4, 999, 0, h), -20061);
    EXPECT_EQ(ZemFunc335(kHigh, 1, 0.1, 0.2, 4, 999, 0, h), -20033);
    EXPECT_EQ(ZemFunc335(kBand, 1, 0.1, 0.2, 4, 999, 0, h), -20061);
}

TEST(FirDesignWindow, LeavesOneTapWhateverTheWindow) {
    for (int code : {0, 1, 60, 999}) {
        Reals h = Output(1);
        EXPECT_EQ(ZemFunc335(kLow, 8, 1, 0, 1, code, 3, h), 0);
        EXPECT_DOUBLE_EQ(h[0], 0.25);
    }
}

// The named designs over one signature.
struct Named {
    std::uint32_t kind;
    std::function<Status(double fs, double fl, double fh, int taps, double* h, double choice)> call;
};
const Named kChoices[] = {
    {kLow, [](auto fs, auto fl, auto, auto n, auto h, auto w) { return ZemFunc189(fs, fl, n, h, int(w)); }},
    {kHigh, [](auto fs, auto fl, auto, auto n, auto h, auto w) { return ZemFunc188(fs, fl, n, h, int(w)); }},
    {kBand, [](auto fs, auto fl, auto fh, auto n, auto h, auto w) { return ZemFunc186(fs, fl, fh, n, h, int(w)); }},
    {kStop, [](auto fs, auto fl, auto fh, auto n, auto h, auto w) { return ZemFunc187(fs, fl, fh, n, h, int(w)); }},
};
const Named kKaisers[] = {
    {kLow, [](auto fs, auto fl, auto, auto n, auto h, auto beta) { return ZemFunc112(fs, fl, n, h, beta); }},
    {kHigh, [](auto fs, auto fl, auto, auto n, auto h, auto beta) { return ZemFunc111(fs, fl, n, h, beta); }},
    {kBand, [](auto fs, auto fl, auto fh, auto n, auto h, auto beta) { return ZemFunc109(fs, fl, fh, n, h, beta); }},
    {kStop, [](auto fs, auto fl, auto fh, auto n, auto h, auto beta) { return ZemFunc110(fs, fl, fh, n, h, beta); }},
};

TEST(FirDesignChoices, TranslateTheirShortCodes) {
    const struct {
        int choice, code;
    } pairs[] = {{1, 0}, {2, 30}, {3, 1}, {4, 2}, {5, 5}, {0, 2}, {6, 2}, {99, 2}, {-1, 2}};
    for (const Named& design : kChoices)
        for (const auto& pair : pairs) {
            Reals h = Output(31), expected = Output(31);
            ASSERT_EQ(design.call(100, 11, 27, 31, h, pair.choice), 0);
            ASSERT_EQ(ZemFunc335(design.kind, 100, 11, 27, 31, pair.code, 0, expected), 0);
            EXPECT_EQ(h.values(), expected.values()) << design.kind << ' ' << pair.choice;
        }
}

TEST(FirDesignChoices, AnUnknownChoiceIsHamming) {
    Reals h = Output(20), hamming = Output(20);
    ASSERT_EQ(ZemFunc189(1, 0.2, 20, h, 99), 0);
    ASSERT_EQ(ZemFunc189(1, 0.2, 20, hamming, 4), 0);
    EXPECT_EQ(h.values(), hamming.values());
}

TEST(FirDesignKaisers, AreTheKaiserWindowOfBeta) {
    for (const Named& design : kKaisers)
        for (double beta : {0.0, 1.0, 8.6}) {
            Reals h = Output(31), expected = Output(31);
            ASSERT_EQ(design.call(100, 11, 27, 31, h, beta), 0);
            ASSERT_EQ(ZemFunc335(design.kind, 100, 11, 27, 31, 60, beta, expected), 0);
            EXPECT_EQ(h.values(), expected.values()) << design.kind << ' ' << beta;
        }
}

TEST(FirDesignKaisers, ANegativeBetaStandsForFourAndAHalfAndZeroDoesNot) {
    for (const Named& design : kKaisers) {
        Reals negative = Output(31), usual = Output(31), zero = Output(31), ideal = Output(31);
        ASSERT_EQ(design.call(100, 11, 27, 31, negative, -1), 0);
        ASSERT_EQ(design.call(100, 11, 27, 31, usual, 4.5), 0);
        ASSERT_EQ(design.call(100, 11, 27, 31, zero, 0), 0);
        ASSERT_EQ(ZemFunc79(design.kind, 100, 11, 27, 31, ideal), 0);
        EXPECT_EQ(negative.values(), usual.values());
        EXPECT_EQ(zero.values(), ideal.values()) << "beta 0 is the rectangle";
    }
}

TEST(FirDesignNamed, RefuseInTheOrderOfTheIdealResponse) {
    for (const auto* designs : {kChoices, kKaisers})
        for (int i = 0; i < 4; ++i) {
            const Named& design = designs[i];
            Reals h = Output(4);
            const bool band = i > 1, parity = i % 2;
            EXPECT_EQ(design.call(1, 9, 9, 0, h, 1), -20021);
            EXPECT_EQ(design.call(1, 0.6, 0.7, 4, h, 1), -20020);
            EXPECT_EQ(design.call(1, 0, 0.4, 4, h, 1), -20023);
            EXPECT_EQ(design.call(1, 0.3, 0.3, 4, h, 1), band ? -20023 : parity ? -20033 : 0);
            h = Output(4);
            EXPECT_EQ(design.call(1, 0.2, 0.3, 4, h, 1), parity ? -20033 : 0);
            EXPECT_EQ(Untouched(h), parity);
        }
}

TEST(FirDesignNamed, EveryAllocationFails) {
    for (const auto* designs : {kChoices, kKaisers})
        for (int i = 0; i < 4; ++i)
            ExpectEveryAllocationFails([&] {
                Reals h = Output(31);
                return designs[i].call(100, 11, 27, 31, h, 3);
            });
    ExpectEveryAllocationFails([] {
        Reals h = Output(31);
        return ZemFunc335(kLow, 100, 11, 0, 31, 61, 60, h);
    });
}

// The filters over one signature, for both kinds of samples.
template <class T>
struct Filters {
    using Call = std::function<Status(const T* x, Size n, int taps, double fs, double fl, double fh, int window, T* y)>;
    static const Call calls[5];  // the general form as a bandpass, then the four kinds
};
template <>
const Filters<double>::Call Filters<double>::calls[] = {
    [](auto x, auto n, auto t, auto fs, auto fl, auto fh, auto w, auto y) {
        return ZemFunc480(x, n, t, 2, fs, fl, fh, w, 0, y);
    },
    [](auto x, auto n, auto t, auto fs, auto fl, auto, auto w, auto y) { return ZemFunc481(x, n, t, fs, fl, w, 0, y); },
    [](auto x, auto n, auto t, auto fs, auto fl, auto, auto w, auto y) { return ZemFunc482(x, n, t, fs, fl, w, 0, y); },
    [](auto x, auto n, auto t, auto fs, auto fl, auto fh, auto w, auto y) {
        return ZemFunc483(x, n, t, fs, fl, fh, w, 0, y);
    },
    [](auto x, auto n, auto t, auto fs, auto fl, auto fh, auto w, auto y) {
        return ZemFunc484(x, n, t, fs, fl, fh, w, 0, y);
    },
};
template <>
const Filters<ComplexRecord>::Call Filters<ComplexRecord>::calls[] = {
    [](auto x, auto n, auto t, auto fs, auto fl, auto fh, auto w, auto y) {
        return ZemFunc485(x, n, t, 2, fs, fl, fh, w, 0, y);
    },
    [](auto x, auto n, auto t, auto fs, auto fl, auto, auto w, auto y) { return ZemFunc486(x, n, t, fs, fl, w, 0, y); },
    [](auto x, auto n, auto t, auto fs, auto fl, auto, auto w, auto y) { return ZemFunc487(x, n, t, fs, fl, w, 0, y); },
    [](auto x, auto n, auto t, auto fs, auto fl, auto fh, auto w, auto y) {
        return ZemFunc488(x, n, t, fs, fl, fh, w, 0, y);
    },
    [](auto x, auto n, auto t, auto fs, auto fl, auto fh, auto w, auto y) {
        return ZemFunc489(x, n, t, fs, fl, fh, w, 0, y);
    },
};
constexpr std::uint32_t kKindOfCall[] = {kBand, kLow, kHigh, kBand, kStop};

// Sums of at most 63 products below 1: rounding of the transforms, a few eps of the norms.
constexpr double kConvolutionTolerance = 1e-14;

TEST(FirFilterWindow, ConvolvesWithTheDesignedTaps) {
    const int n = 150, taps = 63;
    const Reals x = RandomReals(n);
    for (int i = 0; i < 5; ++i) {
        Reals h = Output(taps), y = Output(n + taps - 1);
        ASSERT_EQ(ZemFunc335(kKindOfCall[i], 1, 0.1, 0.3, taps, 5, 0, h), 0);
        ASSERT_EQ(Filters<double>::calls[i](x, n, taps, 1, 0.1, 0.3, 5, y), 0);
        for (int l = 0; l < n + taps - 1; ++l) {
            long double sum = 0;
            for (int k = std::max(0, l - n + 1); k < taps && k <= l; ++k) sum += (long double)h[k] * x[l - k];
            EXPECT_NEAR(y[l], double(sum), kConvolutionTolerance) << i << ' ' << l;
        }
    }
}

TEST(FirFilterWindow, OfTenSamplesAndFiveTapsWritesFourteen) {
    const Reals x = RandomReals(10);
    Reals y = Output(14);  // guarded on both sides
    EXPECT_EQ(ZemFunc480(x, 10, 5, kLow, 1, 0.2, 0, 0, 0, y), 0);
    for (double v : y) EXPECT_NE(v, kUnwritten);
}

TEST(FirFilterWindow, ComplexSamplesAreTwoRealSignals) {
    const int n = 90, taps = 31;
    const Records x = RandomRecords(n);
    for (int i = 0; i < 5; ++i) {
        Records y = RecordOutput(n + taps - 1);
        ASSERT_EQ(Filters<ComplexRecord>::calls[i](x, n, taps, 1, 0.1, 0.3, 1, y), 0);
        for (double ComplexRecord::*part : {&ComplexRecord::re, &ComplexRecord::im}) {
            Reals samples(n), real = Output(n + taps - 1);
            for (int t = 0; t < n; ++t) samples[t] = x[t].*part;
            ASSERT_EQ(Filters<double>::calls[i](samples, n, taps, 1, 0.1, 0.3, 1, real), 0);
            for (int t = 0; t < n + taps - 1; ++t) EXPECT_NEAR(y[t].*part, real[t], kConvolutionTolerance);
        }
    }
}

TEST(FirFilterWindow, BlocksAddedWithTheirOverlapAreTheWhole) {
    const int n = 100, taps = 21;
    const Reals x = RandomReals(n);
    Reals whole = Output(n + taps - 1);
    ASSERT_EQ(ZemFunc481(x, n, taps, 1, 0.2, 2, 0, whole), 0);
    for (int cut : {1, 20, 50, 99}) {
        Reals sum(n + taps - 1), first = Output(cut + taps - 1), second = Output(n - cut + taps - 1);
        ASSERT_EQ(ZemFunc481(x, cut, taps, 1, 0.2, 2, 0, first), 0);
        ASSERT_EQ(ZemFunc481(x + cut, n - cut, taps, 1, 0.2, 2, 0, second), 0);
        for (int i = 0; i < cut + taps - 1; ++i) sum[i] += first[i];
        for (int i = 0; i < n - cut + taps - 1; ++i) sum[cut + i] += second[i];
        for (int i = 0; i < n + taps - 1; ++i) EXPECT_NEAR(sum[i], whole[i], kConvolutionTolerance);
    }
}

template <class T>
void ExpectFilterStatuses(Guarded<T> y, const Guarded<T>& x) {
    for (int i = 0; i < 5; ++i) {
        const auto& call = Filters<T>::calls[i];
        const bool parity = kKindOfCall[i] % 2;
        EXPECT_EQ(call(x, kTooLarge, 0, -1, 9, 9, 999, y), -20046);
        EXPECT_EQ(call(x, 0, 0, -1, 9, 9, 999, y), -20003);
        EXPECT_EQ(call(x, -1, 0, -1, 9, 9, 999, y), -20003);
        EXPECT_EQ(call(x, 4, 0, -1, 9, 9, 999, y), -20021);
        EXPECT_EQ(call(x, 4, -1, -1, 9, 9, 999, y), -20021);
        EXPECT_EQ(call(x, kTooLarge - 1, 2, -1, 9, 9, 999, y), -20046) << "the result has 2^31 samples";
        EXPECT_EQ(call(x, 4, 4, 1, 9, 9, 999, y), -20020);
        EXPECT_EQ(call(x, 4, 4, 1, 0, 0.3, 999, y), -20023);
        EXPECT_EQ(call(x, 4, 4, 1, 0.1, 0.3, 999, y), parity ? -20033 : -20061);
        EXPECT_EQ(call(x, 4, 5, 1, 0.1, 0.3, 999, y), -20061);
    }
    EXPECT_TRUE(Untouched(y));
}

TEST(FirFilterWindow, TestsSizesThenTapsThenTheDesignAndWritesNothingAfterAFailure) {
    ExpectFilterStatuses<double>(Output(8), RandomReals(4));
    ExpectFilterStatuses<ComplexRecord>(RecordOutput(8), RandomRecords(4));
    Reals y = Output(8);
    EXPECT_EQ(ZemFunc480(y, 4, 0, 4, 1, 0.1, 0.2, 0, 0, y), -20021) << "here the taps come before the kind";
    EXPECT_EQ(ZemFunc480(y, 4, 3, 4, 1, 0.1, 0.2, 0, 0, y), -20061);
    Records z = RecordOutput(8);
    EXPECT_EQ(ZemFunc485(z, 4, 0, 4, 1, 0.1, 0.2, 0, 0, z), -20021);
    EXPECT_EQ(ZemFunc485(z, 4, 3, 4, 1, 0.1, 0.2, 0, 0, z), -20061);
}

TEST(FirFilterWindow, EveryAllocationFails) {
    const Reals x = RandomReals(40);
    const Records z = RandomRecords(40);
    for (int i = 0; i < 5; ++i) {
        ExpectEveryAllocationFails([&] {
            Reals y = Output(50);
            return Filters<double>::calls[i](x, 40, 11, 1, 0.1, 0.3, 60, y);
        });
        ExpectEveryAllocationFails([&] {
            Records y = RecordOutput(50);
            return Filters<ComplexRecord>::calls[i](z, 40, 11, 1, 0.1, 0.3, 60, y);
        });
    }
}

}  // namespace
}  // namespace quorvan::testing

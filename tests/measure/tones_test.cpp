// Tone extraction.
#include <array>
#include <cmath>
#include <gtest/gtest.h>

#include "quorvan/quorvan.h"
#include "tests/support/failing_heap.h"
#include "tests/support/guarded.h"
#include "tests/support/targets.h"

namespace quorvan::testing {
namespace {

struct Sine {
    double f, a, phase;  // cycles per sample, amplitude, degrees
};

Reals Real(int n, std::initializer_list<Sine> sines) {
    Reals x(n);
    for (const Sine& s : sines)
        for (int i = 0; i < n; ++i) x[i] += s.a * std::sin(kTwoPi * s.f * i + s.phase * kPi / 180);
    return x;
}
Records Exponential(int n, std::initializer_list<Sine> sines) {
    Records x(n);
    for (const Sine& s : sines)
        for (int i = 0; i < n; ++i) {
            x[i].re += s.a * std::cos(kTwoPi * s.f * i + s.phase * kPi / 180);
            x[i].im += s.a * std::sin(kTwoPi * s.f * i + s.phase * kPi / 180);
        }
    return x;
}

// What all forms write. Arrays hold `room` tones; unextended forms leave the signal alone.
template <class T>
struct Found {
    Found(int n, int room)
        : freq(Output(room)),
          amp(Output(room)),
          phase(Output(room)),
          out(n > 0 ? n : 0, T{}),
          spectrum(Output(n > 0 ? (std::is_same_v<T, double> ? (n + 1) / 2 : n) : 0)) {}
    std::int32_t count = -7;
    Reals freq, amp, phase;
    Guarded<T> out;
    Reals spectrum, scalars = Output(3);  // outDt, f0, df
};

Status Single(const Reals& x, double dt, const double* search, Found<double>& f) {
    return ZemFunc377(x, static_cast<Size>(x.size()), dt, search, f.freq, f.amp, f.phase);
}
Status Single(const Records& x, double dt, const double* search, Found<ComplexRecord>& f) {
    return ZemFunc381(x, static_cast<Size>(x.size()), dt, search, f.freq, f.amp, f.phase);
}
Status SingleEx(const Reals& x, Size n, double dt, const double* search, std::uint32_t mode, Found<double>& f) {
    double* s = f.scalars;
    return ZemFunc378(x, n, dt, search, mode, f.freq, f.amp, f.phase, f.out, s, f.spectrum, s + 1, s + 2);
}
Status SingleEx(const Records& x, Size n, double dt, const double* search, std::uint32_t mode,
                Found<ComplexRecord>& f) {
    double* s = f.scalars;
    return ZemFunc382(x, n, dt, search, mode, f.freq, f.amp, f.phase, f.out, s, f.spectrum, s + 1, s + 2);
}
Status Multi(const Reals& x, double dt, std::uint32_t sort, double threshold, int most, Found<double>& f) {
    return ZemFunc379(x, static_cast<Size>(x.size()), dt, sort, threshold, most, &f.count, f.freq, f.amp, f.phase);
}
Status Multi(const Records& x, double dt, std::uint32_t sort, double threshold, int most, Found<ComplexRecord>& f) {
    return ZemFunc383(x, static_cast<Size>(x.size()), dt, sort, threshold, most, &f.count, f.freq, f.amp, f.phase);
}
Status MultiEx(const Reals& x, Size n, double dt, std::uint32_t sort, std::uint32_t mode, double threshold, int most,
               Found<double>& f) {
    double* s = f.scalars;
    return ZemFunc380(x, n, dt, sort, mode, threshold, most, &f.count, f.freq, f.amp, f.phase, f.out, s, f.spectrum,
                      s + 1, s + 2);
}
Status MultiEx(const Records& x, Size n, double dt, std::uint32_t sort, std::uint32_t mode, double threshold, int most,
               Found<ComplexRecord>& f) {
    double* s = f.scalars;
    return ZemFunc384(x, n, dt, sort, mode, threshold, most, &f.count, f.freq, f.amp, f.phase, f.out, s, f.spectrum,
                      s + 1, s + 2);
}

double PhaseDifference(double a, double b) { return std::remainder(a - b, 360); }

// Newton's last step is at most 1e-8 cycles per sample. It squares the error, in bins: (1e-8 n)^2 / n in cycles per
// sample, 1e-13 here; rounding of the spectrum adds 1e-16. A phase at sample 0 moves by 180 n degrees a cycle per
// sample.
constexpr double kExact = 1e-12;

template <class T>
void ExpectTone(const Found<T>& found, int k, const Sine& s, double dt, double n, double bound = kExact) {
    EXPECT_NEAR(found.freq[k] * dt, s.f, bound);
    EXPECT_NEAR(found.amp[k], s.a, 100 * n * bound * s.a);
    EXPECT_NEAR(PhaseDifference(found.phase[k], s.phase), 0, 400 * n * bound);
}

// One tone

TEST(ToneSingleReal, FindsATonePreciselyOnABinWithItsTrueAmplitude) {
    for (int n : {64, 100, 101})
        for (int bin : {1, 2, 10, n / 2 - 1}) {
            const Sine s{static_cast<double>(bin) / n, 3, 25};
            Found<double> found(n, 1);
            ASSERT_EQ(Single(Real(n, {s}), 0.5, nullptr, found), 0);
            ExpectTone(found, 0, s, 0.5, n);
        }
}

TEST(ToneSingleReal, FindsTonesBetweenBinsOnEveryInstructionSet) {
    ForEachTarget([] {
        for (int n : {16, 65, 300})
            for (double bin : {0.8, 1.25, 2.5, 5.01, n / 2 - 1.3})
                for (double phase : {-170.0, 0.0, 90.0}) {
                    const Sine s{bin / n, 0.01, phase};
                    Found<double> found(n, 1);
                    ASSERT_EQ(Single(Real(n, {s}), 1, nullptr, found), 0);
                    ExpectTone(found, 0, s, 1, n);
                }
    });
}

TEST(ToneSingleReal, ReadsAConstantAsFrequencyZeroWithItsAmplitude) {
    Found<double> found(64, 1);
    ASSERT_EQ(Single(Reals(64, 2.0), 1, nullptr, found), 0);
    // Tone and image coincide there, so the root is a double one: Newton halves its distance until a step is 1e-8.
    EXPECT_NEAR(found.freq[0], 0, 1e-7);
    EXPECT_NEAR(found.amp[0], 2, 1e-6);
    EXPECT_NEAR(found.phase[0], 90, 1e-4);
}

TEST(ToneSingleReal, DoesNotNormaliseThePhase) {
    const int n = 64;
    for (double phase : {-170.0, -100.0, 0.0, 179.0}) {
        Found<double> found(n, 1);
        ASSERT_EQ(Single(Real(n, {{10.2 / n, 1, phase}}), 1, nullptr, found), 0);
        // 90 more than an angle from -180 to 180.
        EXPECT_NEAR(found.phase[0], phase < -90 ? phase + 360 : phase, 1e-6);
    }
}

TEST(Tone, ScalesExactlyWithPowersOfTwo) {
    const int n = 100;
    Reals x = RandomReals(n, 3), larger = x;
    Records z = RandomRecords(n, 3), largerZ = z;
    for (double& v : larger) v *= 1024;
    for (ComplexRecord& v : largerZ) v = {v.re * 1024, v.im * 1024};
    Found<double> a(n, 9), b(n, 9);
    Found<ComplexRecord> c(n, 9), d(n, 9);
    const auto same = [](const auto& small, const auto& large, int count) {
        for (int k = 0; k < count; ++k) {
            EXPECT_EQ(small.freq[k], large.freq[k]);
            EXPECT_EQ(small.amp[k] * 1024, large.amp[k]);
            EXPECT_EQ(small.phase[k], large.phase[k]);
        }
    };
    ASSERT_EQ(Single(x, 1, nullptr, a), 0);
    ASSERT_EQ(Single(larger, 1, nullptr, b), 0);
    same(a, b, 1);
    ASSERT_EQ(Single(z, 1, nullptr, c), 0);
    ASSERT_EQ(Single(largerZ, 1, nullptr, d), 0);
    same(c, d, 1);
    ASSERT_EQ(Multi(x, 1, 1, 0.1, 9, a), 0);
    ASSERT_EQ(Multi(larger, 1, 1, 102.4, 9, b), 0);
    ASSERT_EQ(a.count, b.count);
    EXPECT_EQ(a.count, 9);
    same(a, b, a.count);
    ASSERT_EQ(Multi(z, 1, 0, 0.1, 9, c), 0);
    ASSERT_EQ(Multi(largerZ, 1, 0, 102.4, 9, d), 0);
    ASSERT_EQ(c.count, d.count);
    EXPECT_EQ(c.count, 9);
    same(c, d, c.count);
}

TEST(ToneSingleReal, HalvesTheAmplitudeAtTheEndsOfItsBins) {
    // A search that ends one bin below the tone sees 0, -1/2 and 1 of it on its three bins. Its frequency comes to lie
    // on the first of them, where the kernel is 1, -1/2 and 0: a fit of 1/4 over 5/4, which is halved.
    const int n = 64;
    const Reals x = Real(n, {{12.0 / n, 1, 0}});
    const double search[] = {10.5 / n, 0.5 / n * 100};  // bins 10 to 11
    Found<double> found(n, 1);
    ASSERT_EQ(Single(x, 1, search, found), 0);
    EXPECT_NEAR(found.freq[0] * n, 10, 1e-9);
    EXPECT_NEAR(found.amp[0], 0.1, 1e-9);
}

TEST(ToneSingleReal, SearchesInABand) {
    const int n = 500;
    const Reals x = Real(n, {{0.1, 1, 0}, {0.3, 0.1, 0}});
    const auto freq = [&](double centre, double percent) {
        const double search[] = {centre, percent};
        Found<double> found(n, 1);
        EXPECT_EQ(Single(x, 1e-3, search, found), 0);
        return found.freq[0];
    };
    EXPECT_NEAR(freq(290, 2), 300, 0.05);
    EXPECT_NEAR(freq(290, -2), 300, 0.05) << "the width is a magnitude";
    EXPECT_NEAR(freq(290, 25), 100, 0.05) << "the stronger tone is inside";
    EXPECT_NEAR(freq(300, 0), 100, 0.05) << "a width of 0 is no band";
    EXPECT_NEAR(freq(2000, 10), 100, 0.05) << "nor is one above half the rate";
    EXPECT_NEAR(freq(-500, 10), 100, 0.05) << "nor one below 0";
    EXPECT_NEAR(freq(kNaN, kNaN), 100, 0.05);
    EXPECT_NEAR(freq(300.3, 0.001), 300, 0.05) << "a band between two bins takes the nearest";
    EXPECT_NEAR(freq(550, 26), 300, 0.05) << "what is outside the spectrum is cut off";
}

TEST(ToneSingleReal, OfSilenceHasNoAmplitude) {
    Found<double> found(10, 1);
    ASSERT_EQ(Single(Reals(10), 1, nullptr, found), 0);
    EXPECT_EQ(found.amp[0], 0);
    EXPECT_TRUE(found.freq[0] >= 0 && found.freq[0] <= 0.5);
}

TEST(ToneSingleReal, PassesNan) {
    Found<double> found(10, 1);
    ASSERT_EQ(Single(Reals(10, kNaN), 1, nullptr, found), 0);
    EXPECT_TRUE(std::isnan(found.amp[0]));
}

TEST(ToneSingle, AllowsATimeStepOfZero) {
    Found<double> found(20, 1);
    EXPECT_EQ(Single(Real(20, {{0.2, 1, 0}}), 0, nullptr, found), 0);
    EXPECT_EQ(found.freq[0], kInf);
    EXPECT_NEAR(found.amp[0], 1, 1e-9);
    const double search[] = {1, 1};
    EXPECT_EQ(Single(Real(20, {{0.2, 1, 0}}), 0, search, found), 0);
    EXPECT_NEAR(found.amp[0], 1, 1e-9);
}

TEST(ToneSingleComplex, ReadsTwiceTheModulusAtPositiveAndNegativeFrequencies) {
    for (int n : {16, 65, 300})
        for (double bin : {-n / 2 + 0.9, -3.3, -0.4, 0.0, 0.25, 2.0, n / 2 - 1.6})
            for (double phase : {-170.0, 0.0, 90.0}) {
                const Sine s{bin / n, 0.75, phase};
                Found<ComplexRecord> found(n, 1);
                ASSERT_EQ(Single(Exponential(n, {s}), 0.25, nullptr, found), 0);
                found.amp[0] /= 2;
                ExpectTone(found, 0, s, 0.25, n);
            }
}

TEST(ToneSingleComplex, SearchesInABand) {
    const int n = 500;
    const Records x = Exponential(n, {{0.1, 1, 0}, {-0.3, 0.1, 0}});
    const auto freq = [&](double centre, double percent) {
        const double search[] = {centre, percent};
        Found<ComplexRecord> found(n, 1);
        EXPECT_EQ(Single(x, 1e-3, search, found), 0);
        return found.freq[0];
    };
    EXPECT_NEAR(freq(-290, 2), -300, 0.05);
    EXPECT_NEAR(freq(-290, 45), 100, 0.05);
    EXPECT_NEAR(freq(-700, 50), -300, 0.05) << "the band reaches down to half the rate";
    EXPECT_NEAR(freq(-700, 10), 100, 0.05);
}

// Several tones

TEST(ToneMultiReal, FindsTonesWithTheirParametersInEitherOrder) {
    const int n = 1000;
    const std::initializer_list<Sine> sines = {{0.0513, 1, 30}, {0.1005, 0.5, -60}, {0.2, 0.02, 100}, {0.41234, 2, 10}};
    const Reals x = Real(n, sines);
    Found<double> byFrequency(n, 8), byAmplitude(n, 8);
    ASSERT_EQ(Multi(x, 1, 0, 0.01, 8, byFrequency), 0);
    ASSERT_EQ(Multi(x, 1, 1, 0.01, 8, byAmplitude), 0);
    ASSERT_EQ(byFrequency.count, 4);
    ASSERT_EQ(byAmplitude.count, 4);
    // Refinement ends when nothing moves by more than a thousandth; leakage over 50 bins is 1e-5 of that.
    const Sine* s = sines.begin();
    for (int k : {0, 1, 2, 3}) ExpectTone(byFrequency, k, s[k], 1, n, 1e-9);
    for (int k : {0, 1, 2, 3}) ExpectTone(byAmplitude, k, s[std::array{3, 0, 1, 2}[k]], 1, n, 1e-9);
    for (int k = 4; k < 8; ++k) EXPECT_EQ(byFrequency.freq[k], kUnwritten);
    Found<double> other(n, 8);
    ASSERT_EQ(Multi(x, 1, 2, 0.01, 8, other), 0);
    EXPECT_EQ(other.freq.values(), byFrequency.freq.values()) << "only 1 sorts by amplitude";
}

TEST(ToneMultiReal, SeparatesCloseTones) {
    const int n = 1000;
    const Sine low{0.1, 1, 30}, high{0.1041, 0.4, -60};  // 4.1 bins apart: both lobes overlap
    Found<double> found(n, 4);
    ASSERT_EQ(Multi(Real(n, {low, high}), 1, 0, 0.05, 4, found), 0);
    ASSERT_EQ(found.count, 2);
    ExpectTone(found, 0, low, 1, n, 1e-7);
    ExpectTone(found, 1, high, 1, n, 1e-7);
}

TEST(ToneMultiReal, OfSilenceFindsNothing) {
    for (int mode = 0; mode < 4; ++mode) {
        Found<double> found(50, 3);
        EXPECT_EQ(MultiEx(Reals(50), 50, 1, 0, static_cast<std::uint32_t>(mode), 1e-9, 3, found), 0);
        EXPECT_EQ(found.count, 0);
        EXPECT_TRUE(Untouched(found.freq) && Untouched(found.amp) && Untouched(found.phase));
        for (double v : found.out) EXPECT_EQ(v, 0);
        for (double v : found.spectrum) EXPECT_EQ(v, mode == 0 ? kUnwritten : -kInf);
    }
}

TEST(ToneMultiReal, DropsTheSmallestOfMorePeaksThanAreWanted) {
    const int n = 400;
    const Reals x = Real(n, {{0.05, 0.3, 0}, {0.1, 1, 0}, {0.15, 0.5, 0}, {0.2, 0.1, 0}, {0.25, 2, 0}, {0.3, 0.2, 0}});
    Found<double> found(n, 3);
    ASSERT_EQ(Multi(x, 1, 0, 0.01, 3, found), 0);
    ASSERT_EQ(found.count, 3);
    // The tones that were dropped still leak: 20 bins away by 1e-4 of their size.
    EXPECT_NEAR(found.freq[0], 0.1, 1e-5);
    EXPECT_NEAR(found.freq[1], 0.15, 1e-5);
    EXPECT_NEAR(found.freq[2], 0.25, 1e-5);
}

TEST(ToneMultiReal, KeepsTonesFromTheThresholdOn) {
    const int n = 400;
    const Reals x = Real(n, {{0.1, 1, 0}, {0.3, 0.5, 0}});
    const auto count = [&](double threshold) {
        Found<double> found(n, 9);
        EXPECT_EQ(Multi(x, 1, 0, threshold, 9, found), 0);
        return found.count;
    };
    EXPECT_EQ(count(0.49), 2);
    EXPECT_EQ(count(0.51), 1);
    EXPECT_EQ(count(1.01), 0);
    EXPECT_EQ(count(kInf), 0);
}

TEST(ToneMultiReal, SeesPeaksAtBothEndsOfTheSpectrum) {
    const int n = 64;
    Found<double> found(n, 4);
    Reals x = Real(n, {{31.0 / n, 1, 20}});
    for (double& v : x) v += 0.5;
    ASSERT_EQ(Multi(x, 1, 0, 0.01, 4, found), 0);
    ASSERT_EQ(found.count, 2);
    EXPECT_NEAR(found.freq[0], 0, 1e-5);
    EXPECT_NEAR(found.amp[0], 0.5, 1e-3);
    EXPECT_NEAR(found.freq[1] * n, 31, 1e-6);
    EXPECT_NEAR(found.amp[1], 1, 1e-5);
}

TEST(ToneMultiComplex, FindsTonesOfBothSigns) {
    const int n = 1000;
    const std::initializer_list<Sine> sines = {{-0.4, 0.1, 5}, {-0.0513, 1, 30}, {0.1005, 0.5, -60}};
    Found<ComplexRecord> found(n, 5);
    ASSERT_EQ(Multi(Exponential(n, sines), 2, 0, 0.01, 5, found), 0);
    ASSERT_EQ(found.count, 3);
    for (int k : {0, 1, 2}) {
        found.amp[k] /= 2;
        ExpectTone(found, k, sines.begin()[k], 2, n, 1e-9);
    }
}

TEST(ToneMulti, StaysInItsArraysForEveryShortRecord) {
    for (int n = 3; n <= 40; ++n)
        for (int most : {1, 2, 5, 40}) {
            Found<double> real(n, most);
            Found<ComplexRecord> complex(n, most);
            ASSERT_EQ(Multi(RandomReals(n, n), 1, 1, 0, most, real), 0);
            ASSERT_EQ(Multi(RandomRecords(n, n), 1, 1, 0, most, complex), 0);
            EXPECT_LE(real.count, std::min(most, (n + 1) / 4 + 1));
            EXPECT_LE(complex.count, std::min(most, n / 2 + 1));
            for (int k = 1; k < real.count; ++k) EXPECT_GE(real.amp[k - 1], real.amp[k]);
            for (int k = 1; k < complex.count; ++k) EXPECT_GE(complex.amp[k - 1], complex.amp[k]);
            ASSERT_EQ(Single(RandomReals(n, n), 1, nullptr, real), 0);
            ASSERT_EQ(Single(RandomRecords(n, n), 1, nullptr, complex), 0);
        }
}

TEST(ToneMulti, AllowsRoomBeyondEveryPeak) {
    Found<double> found(20, 10);
    EXPECT_EQ(Multi(Real(20, {{0.2, 1, 0}}), 1, 0, 0.1, INT32_MAX, found), 0);
    EXPECT_EQ(found.count, 1);
}

TEST(Tone, EndsForAnyBits) {
    std::mt19937_64 engine(12);
    const auto bits = [&] { return std::bit_cast<double>(engine()); };
    for (int i = 0; i < 300; ++i) {
        const int n = 3 + static_cast<int>(engine() % 30);
        Reals x = RandomReals(n, i);
        Records z = RandomRecords(n, i);
        if (i % 3 == 0)
            for (double& v : x) v = bits();
        x[engine() % n] = bits();
        z[engine() % n].im = bits();
        const double dt = i % 2 ? std::fabs(bits()) : 1, search[] = {i % 5 ? bits() : 0.2, i % 7 ? bits() : 1.0};
        Found<double> f(n, 5);
        Found<ComplexRecord> c(n, 5);
        for (std::uint32_t mode : {0u, 1u, 2u, 3u}) {
            EXPECT_EQ(SingleEx(x, n, dt, search, mode, f), 0);
            EXPECT_EQ(SingleEx(z, n, dt, search, mode, c), 0);
            EXPECT_EQ(MultiEx(x, n, dt, i % 3, mode, bits(), 5, f), 0);
            EXPECT_EQ(MultiEx(z, n, dt, i % 3, mode, bits(), 5, c), 0);
        }
        EXPECT_LE(f.count, 5);
        EXPECT_LE(c.count, 5);
    }
}

// The extended forms

TEST(ToneSingleEx, TellsTheStepsInEveryMode) {
    for (std::uint32_t mode = 0; mode < 4; ++mode)
        for (int n : {20, 21}) {
            Found<double> real(n, 1);
            Found<ComplexRecord> complex(n, 1);
            ASSERT_EQ(SingleEx(Real(n, {{0.2, 1, 0}}), n, 0.125, nullptr, mode, real), 0);
            ASSERT_EQ(SingleEx(Exponential(n, {{0.2, 1, 0}}), n, 0.125, nullptr, mode, complex), 0);
            const double df = 1 / (n * 0.125);
            EXPECT_EQ(real.scalars.values(), (std::vector<double>{0.125, 0, df}));
            EXPECT_EQ(complex.scalars.values(), (std::vector<double>{0.125, -(n / 2) * df, df}));
        }
}

TEST(ToneSingleEx, WithModeZeroLeavesTheSignalUnwritten) {
    Found<double> found(20, 1);
    std::fill(found.out.begin(), found.out.end(), kUnwritten);
    ASSERT_EQ(SingleEx(Real(20, {{0.2, 1, 0}}), 20, 1, nullptr, 0, found), 0);
    EXPECT_TRUE(Untouched(found.out) && Untouched(found.spectrum));
}

TEST(ToneSingleEx, GivesTheInputTheToneOrWhatRemains) {
    const int n = 200;
    const Sine strong{0.1037, 2, 40}, weak{0.37, 0.01, 0};
    const Reals x = Real(n, {strong, weak}), only = Real(n, {weak});
    Found<double> input(n, 1), tone(n, 1), rest(n, 1);
    ASSERT_EQ(SingleEx(x, n, 1, nullptr, 1, input), 0);
    ASSERT_EQ(SingleEx(x, n, 1, nullptr, 2, tone), 0);
    ASSERT_EQ(SingleEx(x, n, 1, nullptr, 3, rest), 0);
    EXPECT_EQ(input.out.values(), x.values());
    for (int i = 0; i < n; ++i) {
        EXPECT_EQ(rest.out[i], x[i] - tone.out[i]);
        EXPECT_NEAR(rest.out[i], only[i], 1e-4) << "the weak tone leaks 1e-3 of itself into the strong one";
    }
    // The tone's own bins stand 40 dB below the weak tone's in what remains, and 40 dB above in the input.
    EXPECT_GT(input.spectrum[21], input.spectrum[74] + 40);
    EXPECT_LT(rest.spectrum[21], rest.spectrum[74] - 30);
    EXPECT_NEAR(rest.spectrum[74], input.spectrum[74], 0.1);
}

TEST(ToneSingleEx, GivesDecibelsOfTheSquaredRmsAmplitude) {
    const int n = 64;
    Found<double> real(n, 1);
    Found<ComplexRecord> complex(n, 1);
    ASSERT_EQ(SingleEx(Real(n, {{8.0 / n, 3, 0}}), n, 1, nullptr, 1, real), 0);
    ASSERT_EQ(SingleEx(Exponential(n, {{-8.0 / n, 3, 0}}), n, 1, nullptr, 1, complex), 0);
    EXPECT_NEAR(real.spectrum[8], 10 * std::log10(4.5), 1e-9);
    EXPECT_NEAR(real.spectrum[9], 10 * std::log10(4.5 / 4), 1e-9);
    EXPECT_NEAR(complex.spectrum[24], 10 * std::log10(18), 1e-9) << "frequency -8 stands at 32 - 8";
    EXPECT_NEAR(complex.spectrum[25], 10 * std::log10(18.0 / 4), 1e-9);
}

TEST(ToneSingleEx, LeavesNothingOfAPureTone) {
    const int n = 500;
    Found<double> real(n, 1);
    Found<ComplexRecord> complex(n, 1);
    ASSERT_EQ(SingleEx(Real(n, {{0.1037, 2, 40}}), n, 1e-3, nullptr, 3, real), 0);
    ASSERT_EQ(SingleEx(Exponential(n, {{-0.1037, 2, 40}}), n, 1e-3, nullptr, 3, complex), 0);
    for (double v : real.out) EXPECT_NEAR(v, 0, 2 * 10 * n * kExact);
    for (ComplexRecord v : complex.out) EXPECT_NEAR(std::fabs(v.re) + std::fabs(v.im), 0, 2 * 20 * n * kExact);
}

TEST(ToneMultiEx, GivesTheSumOfTheTonesOrWhatRemains) {
    const int n = 500;
    const std::initializer_list<Sine> sines = {{0.1037, 2, 40}, {0.3011, 1, -100}};
    const Reals x = Real(n, sines);
    const Records z = Exponential(n, sines);
    Found<double> tones(n, 4), rest(n, 4);
    Found<ComplexRecord> complexTones(n, 4), complexRest(n, 4);
    ASSERT_EQ(MultiEx(x, n, 1, 0, 2, 0.1, 4, tones), 0);
    ASSERT_EQ(MultiEx(x, n, 1, 0, 3, 0.1, 4, rest), 0);
    ASSERT_EQ(MultiEx(z, n, 1, 0, 2, 0.1, 4, complexTones), 0);
    ASSERT_EQ(MultiEx(z, n, 1, 0, 3, 0.1, 4, complexRest), 0);
    ASSERT_EQ(rest.count, 2);
    ASSERT_EQ(complexRest.count, 2);
    for (int i = 0; i < n; ++i) {
        EXPECT_EQ(rest.out[i], x[i] - tones.out[i]);
        EXPECT_NEAR(rest.out[i], 0, 1e-5);
        EXPECT_EQ(complexRest.out[i].re, z[i].re - complexTones.out[i].re);
        EXPECT_NEAR(complexRest.out[i].re, 0, 1e-5);
        EXPECT_NEAR(complexRest.out[i].im, 0, 1e-5);
    }
    for (double level : rest.spectrum) EXPECT_LT(level, -100);
}

TEST(ToneEx, WorksWithoutTheSignalOrItsSpectrum) {
    const int n = 50;
    const Reals x = Real(n, {{0.2, 1, 0}});
    for (std::uint32_t mode = 0; mode < 4; ++mode) {
        Found<double> whole(n, 1), found(n, 1);
        ASSERT_EQ(SingleEx(x, n, 1, nullptr, mode, whole), 0);
        double* s = found.scalars;
        ASSERT_EQ(ZemFunc378(x, n, 1, nullptr, mode, found.freq, found.amp, found.phase, nullptr, s, found.spectrum,
                             s + 1, s + 2),
                  0);
        EXPECT_EQ(found.spectrum.values(), whole.spectrum.values());
        ASSERT_EQ(
            ZemFunc378(x, n, 1, nullptr, mode, found.freq, found.amp, found.phase, found.out, s, nullptr, s + 1, s + 2),
            0);
        EXPECT_EQ(found.out.values(), whole.out.values());
        EXPECT_EQ(
            ZemFunc378(x, 2, 1, nullptr, mode, found.freq, found.amp, found.phase, nullptr, s, nullptr, s + 1, s + 2),
            -20007);
    }
}

// Refusals

template <class T>
void ExpectCleared(const Found<T>& found, int n, bool multi) {
    EXPECT_EQ(found.scalars.values(), std::vector<double>(3, 0.0));
    for (const T& v : found.out) EXPECT_EQ(std::memcmp(&v, std::vector<T>(1).data(), sizeof(T)), 0);
    for (double v : found.spectrum) EXPECT_EQ(v, 0);
    if (multi)
        EXPECT_EQ(found.count, 0);
    else
        EXPECT_TRUE(found.freq[0] == 0 && found.amp[0] == 0 && found.phase[0] == 0);
    EXPECT_EQ(found.out.size(), static_cast<std::size_t>(n));
}

// The outputs of an extended form before a call that fails.
template <class T>
Found<T> Dirty(int n) {
    Found<T> found(n, 2);
    for (T& v : found.out) std::memset(&v, 0x41, sizeof v);
    return found;
}

template <class T>
void ExpectRefusals(const Guarded<T>& x) {
    const auto single = [&](Status expected, int n, double dt, std::uint32_t mode) {
        Found<T> found = Dirty<T>(n);
        EXPECT_EQ(SingleEx(x, n, dt, nullptr, mode, found), expected) << n << ", " << dt << ", " << mode;
        ExpectCleared(found, n < 0 ? 0 : n, false);
    };
    const auto multi = [&](Status expected, int n, double dt, std::uint32_t mode, int most) {
        Found<T> found = Dirty<T>(n);
        EXPECT_EQ(MultiEx(x, n, dt, 0, mode, 0.1, most, found), expected) << n << ", " << dt << ", " << mode;
        ExpectCleared(found, n < 0 ? 0 : n, true);
    };
    for (int n : {-1, 0, 1, 2}) {
        single(-20007, n, -1, 4);
        multi(-20007, n, -1, 4, 0);
    }
    single(-20016, 10, -1e-300, 4);
    multi(-20016, 10, -1e-300, 4, 0);
    for (std::uint32_t mode : {4u, 0xFFFFFFFFu}) {
        single(-20061, 10, 1, mode);
        multi(-20061, 10, 1, mode, 0);
    }
    for (int most : {0, -1, INT32_MIN}) multi(-20140, 10, 1, 0, most);
}

TEST(ToneReal, RefusesInItsOrderAndClearsAllOutputs) { ExpectRefusals(RandomReals(10)); }
TEST(ToneComplex, RefusesInItsOrderAndClearsAllOutputs) { ExpectRefusals(RandomRecords(10)); }

TEST(Tone, RefusesInThePlainFormsToo) {
    const Reals x = RandomReals(2);
    const Records z = RandomRecords(2);
    Found<double> real(2, 1);
    Found<ComplexRecord> complex(2, 1);
    EXPECT_EQ(Single(x, 1, nullptr, real), -20007);
    EXPECT_EQ(Single(z, 1, nullptr, complex), -20007);
    EXPECT_TRUE(real.freq[0] == 0 && real.amp[0] == 0 && real.phase[0] == 0);
    EXPECT_TRUE(complex.freq[0] == 0 && complex.amp[0] == 0 && complex.phase[0] == 0);
    EXPECT_EQ(Multi(x, 1, 0, 0.1, 1, real), -20007);
    EXPECT_EQ(Multi(z, 1, 0, 0.1, 1, complex), -20007);
    EXPECT_TRUE(real.count == 0 && complex.count == 0);
    const Reals ten = RandomReals(10);
    EXPECT_EQ(Multi(ten, -1, 0, 0.1, 0, real), -20016);
    EXPECT_EQ(Multi(ten, 1, 0, 0.1, 0, real), -20140);
    EXPECT_EQ(Single(ten, -1, nullptr, real), -20016);
}

TEST(Tone, TouchesNothingWithASizeThatDoesNotFit) {
    const Reals x = RandomReals(3);
    const Records z = RandomRecords(3);
    Found<double> f(3, 1);
    Found<ComplexRecord> c(3, 1);
    std::fill(f.out.begin(), f.out.end(), kUnwritten);
    std::fill(c.out.begin(), c.out.end(), ComplexRecord{kUnwritten, kUnwritten});
    EXPECT_EQ(SingleEx(x, kTooLarge, -1, nullptr, 9, f), -20046);
    EXPECT_EQ(MultiEx(x, kTooLarge, -1, 0, 9, 0, 0, f), -20046);
    EXPECT_EQ(SingleEx(z, kTooLarge, -1, nullptr, 9, c), -20046);
    EXPECT_EQ(MultiEx(z, kTooLarge, -1, 0, 9, 0, 0, c), -20046);
    EXPECT_EQ(ZemFunc377(x, kTooLarge, 1, nullptr, f.freq, f.amp, f.phase), -20046);
    EXPECT_EQ(ZemFunc379(x, kTooLarge, 1, 0, 0, 1, &f.count, f.freq, f.amp, f.phase), -20046);
    EXPECT_EQ(ZemFunc381(z, kTooLarge, 1, nullptr, c.freq, c.amp, c.phase), -20046);
    EXPECT_EQ(ZemFunc383(z, kTooLarge, 1, 0, 0, 1, &c.count, c.freq, c.amp, c.phase), -20046);
    EXPECT_TRUE(Untouched(f.freq) && Untouched(f.scalars) && Untouched(f.out) && Untouched(f.spectrum));
    EXPECT_TRUE(Untouched(c.freq) && Untouched(c.scalars) && Untouched(c.out) && Untouched(c.spectrum));
    EXPECT_TRUE(f.count == -7 && c.count == -7);
}

TEST(Tone, ReportsEveryFailedAllocationAndClearsItsOutputs) {
    const int n = 60;
    const Reals x = Real(n, {{0.2, 1, 0}, {0.35, 0.5, 0}});
    const Records z = Exponential(n, {{0.2, 1, 0}, {-0.35, 0.5, 0}});
    Found<double> f(n, 4);
    Found<ComplexRecord> c(n, 4);
    ExpectEveryAllocationFails([&] { return Single(x, 1, nullptr, f); });
    ExpectEveryAllocationFails([&] { return Single(z, 1, nullptr, c); });
    ExpectEveryAllocationFails([&] { return Multi(x, 1, 0, 0.1, 4, f); });
    ExpectEveryAllocationFails([&] { return Multi(z, 1, 0, 0.1, 4, c); });
    for (std::uint32_t mode : {0u, 1u, 2u, 3u}) {
        const auto cleared = [&](Status done, const auto& found, bool multi) {
            if (done < 0) ExpectCleared(found, n, multi);
            return done;
        };
        ExpectEveryAllocationFails([&] { return cleared(SingleEx(x, n, 1, nullptr, mode, f), f, false); });
        ExpectEveryAllocationFails([&] { return cleared(SingleEx(z, n, 1, nullptr, mode, c), c, false); });
        ExpectEveryAllocationFails([&] { return cleared(MultiEx(x, n, 1, 0, mode, 0.1, 4, f), f, true); });
        ExpectEveryAllocationFails([&] { return cleared(MultiEx(z, n, 1, 0, mode, 0.1, 4, c), c, true); });
        double* s = f.scalars;
        ExpectEveryAllocationFails([&] {
            return ZemFunc378(x, n, 1, nullptr, mode, f.freq, f.amp, f.phase, nullptr, s, f.spectrum, s + 1, s + 2);
        });
    }
}

}  // namespace
}  // namespace quorvan::testing

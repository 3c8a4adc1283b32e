// Direct-form filters with the caller's state, and the zero-phase filter.
#include <cfloat>
#include <cmath>
#include <gtest/gtest.h>

#include "quorvan/quorvan.h"
#include "tests/support/failing_heap.h"
#include "tests/support/guarded.h"
#include "tests/support/targets.h"

namespace quorvan::testing {
namespace {

// The difference equation sample by sample over signals that go back before the first sample, in the stated order.
Reals Reference(const Reals& x, const Reals& a, const Reals& b, const Reals& inputs, const Reals& outputs,
                bool feedback) {
    std::vector<double> in = inputs.values(), out = outputs.values();
    Reals y(x.size());
    for (std::size_t t = 0; t < x.size(); ++t) {
        in.push_back(x[t]);
        double s = b[0] * x[t];
        for (std::size_t k = 1; k < b.size(); ++k) s = s + b[k] * in[in.size() - 1 - k];
        if (feedback) {
            for (std::size_t k = 1; k < a.size(); ++k) s = s - a[k] * out[out.size() - k];
            s = s / a[0];
            if (std::fabs(s) <= 2.2250738585072014e-308) s = 0.0;
            out.push_back(s);
        }
        y[t] = s;
    }
    return y;
}

// What a state holds after x: its last values of (before, x).
std::vector<double> Moved(const Reals& before, const Reals& x) {
    std::vector<double> all = before.values();
    all.insert(all.end(), x.begin(), x.end());
    return {all.end() - before.size(), all.end()};
}

Reals StableDenominator(int na) {
    Reals a = RandomReals(na, 3);
    for (double& v : a) v *= 0.5 / na;
    a[0] = 2;
    return a;
}

TEST(FilterFir, GivesTheBitsOfTheStatedSum) {
    ForEachTarget([] {
        for (int nb : {1, 2, 3, 8, 31, 32, 33, 34, 100, 600})
            for (int n : {1, 2, 7, 33, 511, 512, 513, 1500}) {
                const Reals x = RandomReals(n, 1), b = RandomReals(nb, 2), before = RandomReals(nb - 1, 4);
                Reals state = before, y = Output(n);
                ASSERT_EQ(ZemFunc352(x, n, b, state, nb, y), 0);
                EXPECT_EQ(y.values(), Reference(x, {}, b, before, {}, false).values()) << nb << ' ' << n;
                EXPECT_EQ(state.values(), Moved(before, x));
            }
    });
}

TEST(FilterDirect, GivesTheBitsOfTheStatedSum) {
    for (int na : {1, 2, 3, 9, 40, 700})
        for (int nb : {1, 3, 50})
            for (int n : {1, 2, 40, 512, 1100}) {
                const Reals x = RandomReals(n, 1), a = StableDenominator(na), b = RandomReals(nb, 2);
                const Reals inputs = RandomReals(nb - 1, 4), outputs = RandomReals(na - 1, 5);
                Reals inputState = inputs, outputState = outputs, y = Output(n);
                ASSERT_EQ(ZemFunc92(x, n, a, outputState, na, b, inputState, nb, y), 0);
                EXPECT_EQ(y.values(), Reference(x, a, b, inputs, outputs, true).values())
                    << na << ' ' << nb << ' ' << n;
                EXPECT_EQ(inputState.values(), Moved(inputs, x));
                EXPECT_EQ(outputState.values(), Moved(outputs, y));
            }
}

TEST(FilterDirect, WithALeadingTwoOverTwoReturnsTheInput) {
    const Reals x = RandomReals(20);
    Reals y = Output(20), none(0);
    EXPECT_EQ(ZemFunc92(x, 20, Reals{2}, none, 1, Reals{2}, none, 1, y), 0);
    EXPECT_EQ(y.values(), x.values());
}

TEST(FilterFirComplex, FiltersItsPartsAsRealStreams) {
    for (int nb : {1, 2, 5, 40, 90})
        for (int n : {1, 3, 40, 300, 900}) {
            const Records x = RandomRecords(n, 1), before = RandomRecords(nb - 1, 3);
            const Reals b = RandomReals(nb, 2);
            Records state = before, y = RecordOutput(n);
            ASSERT_EQ(ZemFunc353(x, n, b, state, nb, y), 0);
            for (double ComplexRecord::*part : {&ComplexRecord::re, &ComplexRecord::im}) {
                Reals part_x(n), part_state(nb - 1), part_y(n);
                for (int t = 0; t < n; ++t) part_x[t] = x[t].*part;
                for (int t = 0; t < nb - 1; ++t) part_state[t] = before[t].*part;
                ASSERT_EQ(ZemFunc352(part_x, n, b, part_state, nb, part_y), 0);
                for (int t = 0; t < n; ++t) EXPECT_EQ(y[t].*part, part_y[t]);
                for (int t = 0; t < nb - 1; ++t) EXPECT_EQ(state[t].*part, part_state[t]);
            }
        }
}

TEST(FilterDirectComplex, FiltersItsPartsAsRealStreams) {
    const int n = 700, na = 5, nb = 4;
    const Records x = RandomRecords(n, 1);
    const Reals a = StableDenominator(na), b = RandomReals(nb, 2);
    Records inputState = RandomRecords(nb - 1, 3), outputState = RandomRecords(na - 1, 4), y = RecordOutput(n);
    const Records inputs = inputState, outputs = outputState;
    ASSERT_EQ(ZemFunc354(x, n, a, outputState, na, b, inputState, nb, y), 0);
    for (double ComplexRecord::*part : {&ComplexRecord::re, &ComplexRecord::im}) {
        Reals part_x(n), part_in(nb - 1), part_out(na - 1), part_y(n);
        for (int t = 0; t < n; ++t) part_x[t] = x[t].*part;
        for (int t = 0; t < nb - 1; ++t) part_in[t] = inputs[t].*part;
        for (int t = 0; t < na - 1; ++t) part_out[t] = outputs[t].*part;
        ASSERT_EQ(ZemFunc92(part_x, n, a, part_out, na, b, part_in, nb, part_y), 0);
        for (int t = 0; t < n; ++t) EXPECT_EQ(y[t].*part, part_y[t]);
        for (int t = 0; t < na - 1; ++t) EXPECT_EQ(outputState[t].*part, part_out[t]);
    }
}

TEST(FilterFir, EveryCutIntoTwoBlocksEqualsOneCall) {
    const int n = 9;
    const Reals x = RandomReals(n), a{1.5, -0.4, 0.3}, b{0.3, -0.2, 0.5, 0.1};
    Reals whole(n), in(3), out(2);
    ZemFunc92(x, n, a, out, 3, b, in, 4, whole);
    Reals whole_fir(n), state(3);
    ZemFunc352(x, n, b, state, 4, whole_fir);
    for (int cut = 1; cut < n; ++cut) {
        Reals y(n), in2(3), out2(2);
        ZemFunc92(x, cut, a, out2, 3, b, in2, 4, y);
        ZemFunc92(x + cut, n - cut, a, out2, 3, b, in2, 4, y + cut);
        EXPECT_EQ(y.values(), whole.values());
        Reals state2(3);
        ZemFunc352(x, cut, b, state2, 4, y);
        ZemFunc352(x + cut, n - cut, b, state2, 4, y + cut);
        EXPECT_EQ(y.values(), whole_fir.values());
        EXPECT_EQ(state2.values(), state.values());
    }
}

TEST(FilterFir, WorksInPlace) {
    const int n = 1300;
    const Reals b = RandomReals(70, 2), a = StableDenominator(4);
    Reals y(n), x = RandomReals(n), state(69);
    ZemFunc352(x, n, b, state, 70, y);
    Reals again(69);
    ZemFunc352(x, n, b, again, 70, x);
    EXPECT_EQ(x.values(), y.values());
    EXPECT_EQ(again.values(), state.values());

    Reals x2 = RandomReals(n), y2(n), in(69), out(3), in2(69), out2(3);
    ZemFunc92(x2, n, a, out, 4, b, in, 70, y2);
    ZemFunc92(x2, n, a, out2, 4, b, in2, 70, x2);
    EXPECT_EQ(x2.values(), y2.values());

    Records z = RandomRecords(n), w(n), cs(69), cs2(69);
    ZemFunc353(z, n, b, cs, 70, w);
    ZemFunc353(z, n, b, cs2, 70, z);
    EXPECT_EQ(std::memcmp(z.data(), w.data(), n * sizeof(ComplexRecord)), 0);
}

TEST(FilterDirect, FlushesTheLeastNormalNumberAndBelowToZero) {
    Reals none(0), y = Output(4), x{DBL_MIN, -DBL_MIN, DBL_MIN / 4, std::nextafter(DBL_MIN, 1)};
    EXPECT_EQ(ZemFunc92(x, 4, Reals{1}, none, 1, Reals{1}, none, 1, y), 0);
    EXPECT_TRUE(SameBits(y[0], 0.0) && SameBits(y[1], 0.0) && SameBits(y[2], 0.0));
    EXPECT_EQ(y[3], x[3]);
    Records z{{DBL_MIN, 1}, {1, -DBL_MIN}}, w = RecordOutput(2), no(0);
    EXPECT_EQ(ZemFunc354(z, 2, Reals{1}, no, 1, Reals{1}, no, 1, w), 0);
    EXPECT_TRUE(SameBits(w[0].re, 0.0) && SameBits(w[1].im, 0.0));
    EXPECT_EQ(w[0].im, 1);
}

TEST(FilterFir, DoesNotFlush) {
    Reals none(0), y = Output(2), x{DBL_MIN, DBL_MIN / 4};
    EXPECT_EQ(ZemFunc352(x, 2, Reals{1}, none, 1, y), 0);
    EXPECT_EQ(y.values(), x.values());
}

TEST(FilterDirect, WithoutADenominatorOrItsStateFallsToTheFilterWithoutFeedbackAndFlush) {
    const Reals x{DBL_MIN, 4, 5}, b{1, 2}, a{2, 1};
    Reals expected(3), state(1);
    ZemFunc352(x, 3, b, state, 2, expected);
    Reals out = Output(1);
    for (int which = 0; which < 4; ++which) {
        Reals y(3), in(1);
        const Status status = which == 0   ? ZemFunc92(x, 3, nullptr, out, 2, b, in, 2, y)
                              : which == 1 ? ZemFunc92(x, 3, a, nullptr, 2, b, in, 2, y)
                              : which == 2 ? ZemFunc92(x, 3, a, out, 0, b, in, 2, y)
                                           : ZemFunc92(x, 3, a, out, -5, b, in, 2, y);
        EXPECT_EQ(status, 0);
        EXPECT_EQ(y.values(), expected.values()) << which;
        EXPECT_TRUE(Untouched(out));
    }
}

TEST(FilterFir, AllRefuseSizesBelowOneAndSizesThatDoNotNarrow) {
    const Reals x(4, 1), a{1, 1}, b{1, 1};
    const Records z(4);
    Reals y = Output(4), in = Output(1), out = Output(1);
    Records w = RecordOutput(4), cin = RecordOutput(1), cout = RecordOutput(1);
    for (Size n : {Size{0}, Size{-1}, kTooLarge}) {
        const Status expected = n == kTooLarge ? -20046 : -20003;
        EXPECT_EQ(ZemFunc352(x, n, b, in, 2, y), expected);
        EXPECT_EQ(ZemFunc92(x, n, a, out, 2, b, in, 2, y), expected);
        EXPECT_EQ(ZemFunc353(z, n, b, cin, 2, w), expected);
        EXPECT_EQ(ZemFunc354(z, n, a, cout, 2, b, cin, 2, w), expected);
        EXPECT_EQ(ZemFunc385(x, n, a, 2, b, 2, y), expected);
    }
    for (int nb : {0, -1}) {
        EXPECT_EQ(ZemFunc352(x, 4, b, in, nb, y), -20003);
        EXPECT_EQ(ZemFunc92(x, 4, a, out, 2, b, in, nb, y), -20003);
        EXPECT_EQ(ZemFunc353(z, 4, b, cin, nb, w), -20003);
        EXPECT_EQ(ZemFunc354(z, 4, a, cout, 2, b, cin, nb, w), -20003);
        EXPECT_EQ(ZemFunc385(x, 4, a, 2, b, nb, y), -20003);
        EXPECT_EQ(ZemFunc385(x, 4, a, nb, b, 2, y), -20003);
    }
    EXPECT_TRUE(Untouched(y) && Untouched(in) && Untouched(out) && Untouched(w) && Untouched(cin) && Untouched(cout));
}

// Zero phase

TEST(FilterZeroPhase, OfAPulseInTheMiddleIsSymmetric) {
    const int n = 41;
    Reals x(n), y = Output(n);
    x[20] = 1;
    // A pole of radius 0.5: what the padding of 3 zeros cuts off behind 20 samples is below 2^-20.
    EXPECT_EQ(ZemFunc385(x, n, Reals{1, -0.5}, 2, Reals{0.2, 0.3, 0.1}, 3, y), 0);
    for (int i = 1; i <= 20; ++i) EXPECT_NEAR(y[20 - i], y[20 + i], 1e-6);
    EXPECT_GT(y[20], y[21]);
}

TEST(FilterZeroPhase, IsTwoPassesFromRestOverThePaddedSignal) {
    const int n = 30, margin = 3;
    const Reals x = RandomReals(n), a{2, -0.3}, b{0.2, 0.3, 0.1};
    std::vector<double> padded(n + 2 * margin);
    std::copy(x.begin(), x.end(), padded.begin() + margin);
    for (int pass = 0; pass < 2; ++pass) {
        Reals signal(padded), in(2), out(1);
        ZemFunc92(signal, n + 2 * margin, a, out, 2, b, in, 3, signal);
        padded = signal.values();
        std::reverse(padded.begin(), padded.end());
    }
    Reals y = Output(n), in_place = x;
    EXPECT_EQ(ZemFunc385(x, n, a, 2, b, 3, y), 0);
    EXPECT_EQ(y.values(), std::vector<double>(padded.begin() + margin, padded.end() - margin));
    EXPECT_EQ(ZemFunc385(in_place, n, a, 2, b, 3, in_place), 0);
    EXPECT_EQ(in_place.values(), y.values());
}

TEST(FilterZeroPhase, APaddedLengthBeyondTheCountsOverflows) {
    const Reals x(1);
    Reals y = Output(1);
    EXPECT_EQ(ZemFunc385(x, 1, x, 1 << 30, x, 1, y), -20046);
    EXPECT_TRUE(Untouched(y));
}

TEST(FilterZeroPhase, EveryAllocationFails) {
    const Reals x(10, 1);
    Reals y(10);
    ExpectEveryAllocationFails([&] { return ZemFunc385(x, 10, Reals{1, 0.5}, 2, Reals{1}, 1, y); });
}

}  // namespace
}  // namespace quorvan::testing

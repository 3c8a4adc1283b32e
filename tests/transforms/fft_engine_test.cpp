// The transform engine over the whole range of sizes, through the one-dimensional exports.
#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <vector>

#include "quorvan/quorvan.h"
#include "tests/support/failing_heap.h"
#include "tests/support/targets.h"
#include "tests/transforms/reference.h"
#include "transforms/fft.h"

namespace quorvan::testing {
namespace {

// exp(-2 pi i k / n) for all k, right to the last bits of a double.
std::vector<Wide> Roots(int n) {
    std::vector<Wide> roots(n);
    for (int k = 0; k < n; ++k) roots[k] = std::conj(Root(k, n));
    return roots;
}

// The defining sum, with the roots at hand.
std::vector<Wide> Dft(const Records& x) {
    const int n = static_cast<int>(x.size());
    const std::vector<Wide> roots = Roots(n);
    std::vector<Wide> out(n);
    for (int k = 0; k < n; ++k) {
        long double re = 0, im = 0;
        for (int j = 0, q = 0; j < n; ++j) {
            re += x[j].re * roots[q].real() - x[j].im * roots[q].imag();
            im += x[j].re * roots[q].imag() + x[j].im * roots[q].real();
            q += k;
            if (q >= n) q -= n;
        }
        out[k] = {re, im};
    }
    return out;
}

// What the forward and inverse exports give for one size, against the defining sums of complex data and of its real
// parts.
void ExpectAllTransforms(const Records& x, const std::vector<Wide>& spectrum) {
    const int n = static_cast<int>(x.size());
    Reals real(n);
    for (int j = 0; j < n; ++j) real[j] = x[j].re;
    const double tolerance = Rounding(n, Norm(x));
    Records out = RecordOutput(n), back = RecordOutput(n);
    ASSERT_EQ(ZemFunc263(x, n, 0, nullptr, 0, out), 0);
    double worst = 0;
    for (int k = 0; k < n; ++k) worst = std::max(worst, Distance(spectrum[k], out[k]));
    EXPECT_LE(worst, tolerance) << "complex forward, n = " << n;
    ASSERT_EQ(ZemFunc265(out, n, nullptr, 0, back), 0);
    worst = 0;
    for (int j = 0; j < n; ++j) worst = std::max(worst, Distance(Widen(x[j]), back[j]));
    EXPECT_LE(worst, 2 * tolerance / std::sqrt(n)) << "complex round trip, n = " << n;

    ASSERT_EQ(ZemFunc262(real, n, 0, nullptr, 0, out), 0);
    worst = 0;
    for (int k = 0; k < n; ++k) {
        const Wide expected = (spectrum[k] + std::conj(spectrum[(n - k) % n])) * 0.5L;
        worst = std::max(worst, Distance(expected, out[k]));
    }
    EXPECT_LE(worst, tolerance) << "real forward, n = " << n;
    Reals returned = Output(n);
    ASSERT_EQ(ZemFunc264(out, n, nullptr, 0, returned), 0);
    worst = 0;
    for (int j = 0; j < n; ++j) worst = std::max(worst, std::abs(real[j] - returned[j]));
    EXPECT_LE(worst, 2 * tolerance / std::sqrt(n)) << "real round trip, n = " << n;
}

// The sizes 1 to 2100 in seven tests, so that they run side by side.
class EverySize : public ::testing::TestWithParam<int> {};

TEST_P(EverySize, IsTheDefiningSumOnEveryInstructionSet) {
    for (int n = GetParam() + 1; n <= 2100; n += 7) {
        const Records x = RandomRecords(n, n);
        const std::vector<Wide> spectrum = Dft(x);
        ForEachTarget([&] { ExpectAllTransforms(x, spectrum); });
    }
}
INSTANTIATE_TEST_SUITE_P(FftEngine, EverySize, ::testing::Range(0, 7));

TEST(FftEngine, LargePrimesAndTheirProductsAreTheDefiningSum) {
    // Rader at the leaf, at a stage and at both; predecessors that are smooth, rough, and rough twice over.
    for (int n : {2809, 53 * 64, 2 * 1367, 3 * 1009, 4093, 4099, 59 * 61, 23 * 47 * 3, 23 * 53, 47 * 59}) {
        const Records x = RandomRecords(n, n);
        const std::vector<Wide> spectrum = Dft(x);
        ForEachTarget([&] { ExpectAllTransforms(x, spectrum); });
    }
}

// A few bins of a large size, by the defining sum.
Wide Bin(const Records& x, long long k) {
    const long long n = static_cast<long long>(x.size());
    long double re = 0, im = 0;
    for (long long j = 0; j < n; ++j) {
        const Wide w = std::conj(Root(j * k % n, n));
        re += x[j].re * w.real() - x[j].im * w.imag();
        im += x[j].re * w.imag() + x[j].im * w.real();
    }
    return {re, im};
}

TEST(FftEngine, LargeSizesHaveTheBinsOfTheDefiningSumAndReturn) {
    for (int n : {16384, 65536, 100000, 262144, 10007, 99991, 1000003, 1048576, 46 * 21613}) {
        const Records x = RandomRecords(n, n);
        ForEachTarget([&] {
            Records out = RecordOutput(n), back = RecordOutput(n);
            ASSERT_EQ(ZemFunc263(x, n, 0, nullptr, 0, out), 0);
            for (int k : {1, n / 3, n - 2})
                EXPECT_LE(Distance(Bin(x, k), out[k]), Rounding(n, Norm(x))) << n << " bin " << k;
            EXPECT_NEAR(Norm(out) / (std::sqrt(n) * Norm(x)), 1, 1e-12) << n;
            ASSERT_EQ(ZemFunc265(out, n, nullptr, 0, back), 0);
            double worst = 0;
            for (int j = 0; j < n; ++j) worst = std::max(worst, Distance(Widen(x[j]), back[j]));
            EXPECT_LE(worst, 2 * Rounding(n, Norm(x)) / std::sqrt(n)) << n;
        });
    }
}

TEST(FftEngine, TensOfMillionsOfPointsReturn) {
    const int n = 20'000'000;
    std::vector<double> x(n), back(n);
    for (int j = 0; j < n; ++j) x[j] = std::sin(0.001 * j) + (j % 17 == 0);
    std::vector<ComplexRecord> spectrum(n);
    ASSERT_EQ(ZemFunc262(x.data(), n, 0, nullptr, 0, spectrum.data()), 0);
    double sum = 0;
    for (double v : x) sum += v;
    EXPECT_NEAR(spectrum[0].re, sum, 1e-6);
    ASSERT_EQ(ZemFunc264(spectrum.data(), n, nullptr, 0, back.data()), 0);
    double worst = 0;
    for (int j = 0; j < n; ++j) worst = std::max(worst, std::abs(x[j] - back[j]));
    EXPECT_LE(worst, 2 * Rounding(n, 0.8 * std::sqrt(n)) / std::sqrt(n));
}

TEST(FftEngine, AnImpulseAtZeroIsAllOnesAndAtOneTheTwiddleSequence) {
    for (int n : {2, 3, 10, 23, 32, 46, 47, 53, 60, 106, 1009, 1024}) {
        Records x(n), out = RecordOutput(n);
        x[0].re = 1;
        ASSERT_EQ(ZemFunc263(x, n, 0, nullptr, 0, out), 0);
        for (int k = 0; k < n; ++k) EXPECT_LE(Distance(1, out[k]), Rounding(n, 1)) << n;
        x[0].re = 0;
        x[1].re = 1;
        ASSERT_EQ(ZemFunc263(x, n, 0, nullptr, 0, out), 0);
        for (int k = 0; k < n; ++k) EXPECT_LE(Distance(std::conj(Root(k, n)), out[k]), Rounding(n, 1)) << n;
    }
}

TEST(FftEngine, HalfComplexOfTwoAndOfThree) {
    const Reals two{3, 5}, three{1, 2, 4};
    Reals h = Output(3);
    const HeldPlan plan2(2), plan3(3);
    ASSERT_EQ(FftReal(plan2, two, h, 1, 1, 2), 0);
    EXPECT_EQ(h[0], 8);
    EXPECT_EQ(h[1], -2);
    ASSERT_EQ(FftReal(plan3, three, h, 1, 1, 3), 0);
    EXPECT_EQ(h[0], 7);
    EXPECT_EQ(h[1], 1 - (2.0 + 4.0) / 2);
    EXPECT_EQ(h[2], (4 - 2.0) * 0.8660254037844386);
}

TEST(FftEngine, OfOnePointGivesThePointInAllFourOperations) {
    const HeldPlan plan(1);
    double re = 2, im = -3, outRe = 0, outIm = 0;
    ASSERT_EQ(FftComplex(plan, &re, &im, &outRe, &outIm, 1, 1, 1), 0);
    EXPECT_TRUE(outRe == 2 && outIm == -3);
    ASSERT_EQ(FftComplexInverse(plan, &re, &im, &outRe, &outIm, 1, 1, 1), 0);
    EXPECT_TRUE(outRe == 2 && outIm == -3);
    ASSERT_EQ(FftReal(plan, &im, &outRe, 1, 1, 1), 0);
    EXPECT_EQ(outRe, -3);
    ASSERT_EQ(FftRealInverse(plan, &re, &outRe, 1, 1, 1), 0);
    EXPECT_EQ(outRe, 2);
}

TEST(FftEngine, APlanOfAnotherSizeIsRefusedByTheCores) {
    const HeldPlan plan(8);
    Reals in(32), out = Output(32);
    EXPECT_EQ(FftComplex(plan, in, in + 16, out, out + 16, 1, 1, 16), -1);
    EXPECT_EQ(FftComplexInverse(plan, in, in + 16, out, out + 16, 1, 1, 16), -1);
    EXPECT_EQ(FftReal(plan, in, out, 1, 1, 16), -20999);
    EXPECT_EQ(FftRealInverse(plan, in, out, 1, 1, 16), -20999);
    EXPECT_TRUE(Untouched(out));
}

TEST(FftEngine, EveryLayoutOfInputAndOutputGivesTheSameTransform) {
    for (int n : {7, 16, 23, 32, 46, 53, 60, 64, 96, 106, 109, 227, 360, 1000}) {
        const Records x = RandomRecords(n, n);
        const HeldPlan plan(n);
        const std::vector<Wide> spectrum = Dft(x);
        const double tolerance = Rounding(n, Norm(x));
        ForEachTarget([&] {
            for (int inStride : {1, 2, 3})
                for (int outStride : {1, 2, 5}) {
                    // Stride 2 is an array of records, the others are split arrays.
                    Reals in(2 * n * inStride), out = Output(2 * n * outStride);
                    double* inIm = in.data() + (inStride == 2 ? 1 : n * inStride);
                    double* outIm = out.data() + (outStride == 2 ? 1 : n * outStride);
                    for (int j = 0; j < n; ++j) in[j * inStride] = x[j].re, inIm[j * inStride] = x[j].im;
                    ASSERT_EQ(FftComplex(plan, in, inIm, out, outIm, inStride, outStride, n), 0);
                    for (int k = 0; k < n; ++k)
                        ASSERT_LE(Distance(spectrum[k], ComplexRecord{out[k * outStride], outIm[k * outStride]}),
                                  tolerance)
                            << n << " strides " << inStride << " " << outStride;
                    if (outStride > 2) {
                        for (int k = 1; k < n * outStride; ++k)
                            ASSERT_TRUE(k % outStride == 0 || out[k] == kUnwritten) << "written between the elements";
                    }
                    ASSERT_EQ(FftReal(plan, in, out, inStride, outStride, n), 0);
                    for (int k = 0; k <= n / 2; ++k) {
                        const Wide expected = (spectrum[k] + std::conj(spectrum[(n - k) % n])) * 0.5L;
                        const double im = k > 0 && 2 * k < n ? out[(n - k) * outStride] : 0;
                        ASSERT_LE(Distance(expected, ComplexRecord{out[k * outStride], im}), tolerance)
                            << n << " strides " << inStride << " " << outStride;
                    }
                }
        });
    }
}

TEST(FftEngine, WorkspaceOfLargePrimesThatCannotBeHadIsReported) {
    for (int n : {53, 106, 109, 53 * 53, 4099}) {
        QvFftPlan* plan = ZemFunc260(n);
        const Records x = RandomRecords(n);
        const Reals real = RandomReals(n);
        Records out = RecordOutput(n);
        Reals returned = Output(n);
        ExpectEveryAllocationFails([&] { return ZemFunc263(x, n, 0, plan, 0, out); });
        ExpectEveryAllocationFails([&] { return ZemFunc262(real, n, 0, plan, 0, out); });
        ExpectEveryAllocationFails([&] { return ZemFunc265(x, n, plan, 0, out); });
        ExpectEveryAllocationFails([&] { return ZemFunc264(x, n, plan, 0, returned); });
        ZemFunc261(plan);
    }
}

}  // namespace
}  // namespace quorvan::testing

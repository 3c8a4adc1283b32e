// Deconvolution.
#include <gtest/gtest.h>

#include "quorvan/quorvan.h"
#include "tests/support/failing_heap.h"
#include "tests/transforms/reference.h"

namespace quorvan::testing {
namespace {

Reals Convolved(const Reals& a, const Reals& b) {
    Reals out(a.size() + b.size() - 1);
    for (std::size_t i = 0; i < a.size(); ++i)
        for (std::size_t j = 0; j < b.size(); ++j) out[i + j] += a[i] * b[j];
    return out;
}

// The smallest |H| that the divisor has in the transform of the dividend's length, which divides all errors.
double SmallestBin(const Reals& x, int n) {
    int P = 1;
    while (P < n) P *= 2;
    double smallest = kInf;
    for (const Wide& bin : ReferenceDft(x, P)) smallest = std::min(smallest, static_cast<double>(std::abs(bin)));
    return smallest;
}

TEST(Deconvolve, ReturnsTheOtherFactor) {
    for (int m : {1, 2, 3, 8, 20})
        for (int length : {1, 2, 5, 16, 40}) {
            Reals q = RandomReals(length, 1), x = RandomReals(m, m + 1);
            x[0] += 3 * m;  // keeps the spectrum of x away from zero
            const Reals y = Convolved(q, x);
            Reals out = Output(length);
            ASSERT_EQ(ZemFunc54(y, y.size(), x, m, out), 0);
            const double smallest = SmallestBin(x, y.size());
            ExpectNear(q, out, 3 * Rounding(2 * y.size(), Norm(y) + Norm(q) * Norm(x)) / smallest);
        }
}

TEST(Deconvolve, OfADelayIsDoneByTransforms) {
    const Reals q{3, -1, 4, 1}, x{0, 1};
    const Reals y = Convolved(q, x);
    Reals out = Output(4);
    ASSERT_EQ(ZemFunc54(y, 5, x, 2, out), 0);
    ExpectNear(q, out, 3 * Rounding(16, Norm(y)));
}

TEST(Deconvolve, GoesToLongDivisionWhereTheSpectrumHasAZero) {
    // H[0] = 0, and integers divide exactly.
    const Reals q{3, -1, 4, 1, -5}, x{1, -1};
    const Reals y = Convolved(q, x);
    Reals out = Output(5);
    ASSERT_EQ(ZemFunc54(y, 6, x, 2, out), 0);
    for (int i = 0; i < 5; ++i) EXPECT_EQ(out[i], q[i]);
}

TEST(Deconvolve, SkipsLeadingZerosInLongDivision) {
    const Reals q{3, -1, 4, 1, -5}, x{0, 0, 2, -2};
    const Reals y = Convolved(q, x);
    Reals out = Output(5);
    ASSERT_EQ(ZemFunc54(y, 8, x, 4, out), 0);
    for (int i = 0; i < 5; ++i) EXPECT_EQ(out[i], q[i]);
}

TEST(Deconvolve, LongDivisionHasTermsFromTheLowOrderOn) {
    // y is no product of x: the quotient is the power series of y / x from index 0 on, here 1 / (1 - t).
    const Reals y{1, 0, 0, 0, 7}, x{1, -1};
    Reals out = Output(4);
    ASSERT_EQ(ZemFunc54(y, 5, x, 2, out), 0);
    for (double v : out) EXPECT_EQ(v, 1);
}

// Of P = 4 points, x = {1, 0, 1} has H[1] = 0 = (h[1], h[3]). Beside h[1] the test looks at h[1 + 2] = h[3]: a hit.
TEST(Deconvolve, FindsAZeroBinWhoseNeighbourHalfTheLengthOnIsZeroToo) {
    const Reals x{1, 0, 1}, y{1, 2, 1, 2};  // (1 + t^2)(1 + 2 t)
    Reals out = Output(2);
    ASSERT_EQ(ZemFunc54(y, 4, x, 3, out), 0);
    EXPECT_EQ(out[0], 1);
    EXPECT_EQ(out[1], 2);
}

TEST(Deconvolve, LooksAtTheElementHalfTheLengthOnAndNotAtTheImaginaryPart) {
    // P = 8, and no bin of H is zero. But Re H[1] = h[1] = 0, and so is the element beside it, h[5] = Im H[3]; the
    // imaginary part of the bin is h[7] = -1.
    Reals x(8);
    const Wide H[8] = {1, {0, -1}, 1, 1, 1, 1, 1, {0, 1}};
    for (int j = 0; j < 8; ++j) {
        Wide sum = 0;
        for (int k = 0; k < 8; ++k) sum += H[k] * Root(j * k, 8);
        x[j] = static_cast<double>(sum.real() / 8);
    }
    // Long division of {1, 0, ...} by x gives 1 / x[0]; the quotient of the spectra is 1 / H, with the mean 6 / 8.
    const Reals y{1, 0, 0, 0, 0, 0, 0, 0};
    Reals out = Output(1);
    ASSERT_EQ(ZemFunc54(y, 8, x, 8, out), 0);
    EXPECT_EQ(out[0], 1 / x[0]);
    EXPECT_GT(std::fabs(1 / x[0] - 6.0 / 8), 0.1);
}

TEST(Deconvolve, TakesZeroForTheElementBesideTheFirstAndTheMiddleBin) {
    // P = 2 and 4: H[P/2] = 0 of {1, 1}, whose neighbours are not zero.
    const Reals q2{5}, x{1, 1}, y2{5, 5}, y4{5, 7, 2};
    Reals out = Output(2);
    ASSERT_EQ(ZemFunc54(y4, 3, x, 2, out), 0);
    EXPECT_EQ(out[0], 5);
    EXPECT_EQ(out[1], 2);
    Reals one = Output(1);
    ASSERT_EQ(ZemFunc54(y2, 2, x, 2, one), 0);
    EXPECT_EQ(one[0], q2[0]);
}

TEST(Deconvolve, OfSingleElementsDivides) {
    const Reals y{6}, x{3}, tiny{1e-17};
    Reals out = Output(1);
    ASSERT_EQ(ZemFunc54(y, 1, x, 1, out), 0);
    EXPECT_EQ(out[0], 2);
    ASSERT_EQ(ZemFunc54(y, 1, tiny, 1, out), 0);  // below the tolerance of 1 eps: long division, the same
    EXPECT_EQ(out[0], 6 / 1e-17);
}

TEST(Deconvolve, RefusesADivisorOfZerosAndWritesNothing) {
    const Reals y{1, 2, 3}, x{0, -0.0};
    Reals out = Output(2);
    EXPECT_EQ(ZemFunc54(y, 3, x, 2, out), -20060);
    EXPECT_TRUE(Untouched(out));
}

TEST(Deconvolve, ChecksSizesInOrder) {
    const Reals y(3), x(3);
    Reals out = Output(3);
    EXPECT_EQ(ZemFunc54(y, kTooLarge, x, 0, out), -20046);
    EXPECT_EQ(ZemFunc54(y, 0, x, kTooLarge, out), -20046);
    EXPECT_EQ(ZemFunc54(y, 0, x, 3, out), -20003);
    EXPECT_EQ(ZemFunc54(y, -1, x, 3, out), -20003);
    EXPECT_EQ(ZemFunc54(y, 3, x, 0, out), -20003);
    EXPECT_EQ(ZemFunc54(y, 2, x, 3, out), -20008);
    EXPECT_EQ(ZemFunc54(y, (Size{1} << 30) + 1, x, 3, out), -20046);  // no power of two
    EXPECT_TRUE(Untouched(out));
}

TEST(Deconvolve, ReportsEveryFailedAllocation) {
    const Reals y = RandomReals(20);
    const Reals delay{0, 1}, difference{1, -1};
    Reals out = Output(19);
    ExpectEveryAllocationFails([&] { return ZemFunc54(y, 20, delay, 2, out); });
    ExpectEveryAllocationFails([&] { return ZemFunc54(y, 20, difference, 2, out); });
}

}  // namespace
}  // namespace quorvan::testing

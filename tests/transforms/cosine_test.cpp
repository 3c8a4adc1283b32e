// Cosine and sine transforms.
#include "transforms/cosine.h"

#include <gtest/gtest.h>

#include "quorvan/quorvan.h"
#include "tests/support/failing_heap.h"
#include "tests/transforms/reference.h"

namespace quorvan::testing {
namespace {

constexpr long double kWidePi = std::numbers::pi_v<long double>;

// The angle pi turns / half, reduced in integers.
long double Angle(long long turns, long long half) {
    return kWidePi * static_cast<long double>(turns % (2 * half)) / half;
}

Reals ReferenceDct(const Reals& x, int length) {
    Reals out(length);
    for (long long k = 0; k < length; ++k) {
        long double sum = 0;
        for (long long j = 0; j < std::min<int>(length, x.size()); ++j)
            sum += x[j] * std::cos(Angle(k * (2 * j + 1), 2 * length));
        out[k] = static_cast<double>(sum * std::sqrt((k == 0 ? 1.0L : 2.0L) / length));
    }
    return out;
}

Reals ReferenceDst(const Reals& x, int length) {
    Reals out(length);
    for (long long k = 1; k <= length; ++k) {
        long double sum = 0;
        for (long long j = 0; j < std::min<int>(length, x.size()); ++j)
            sum += x[j] * std::sin(Angle(k * (j + 1), length + 1));
        out[k - 1] = static_cast<double>(sum);
    }
    return out;
}

TEST(Dct, IsTheOrthonormalTypeTwoOfEveryLength) {
    for (int n = 1; n < 60; ++n) {
        const Reals x = RandomReals(n, n);
        Reals out = Output(n);
        ASSERT_EQ(ZemFunc270(x, n, 0, out), 0);
        ExpectNear(ReferenceDct(x, n), out, Rounding(n, Norm(x)));
    }
}

TEST(Dct, KeepsTheNorm) {
    for (int n : {1, 2, 30, 31, 128}) {
        const Reals x = RandomReals(n, 1);
        Reals out = Output(n);
        ASSERT_EQ(ZemFunc270(x, n, 0, out), 0);
        EXPECT_NEAR(Norm(out), Norm(x), Rounding(n, Norm(x)) * std::sqrt(n));
    }
}

TEST(Dct, OfOneSampleIsTheSampleItself) {
    for (double v : {1.0, -0.1, 1e300, 3e-308}) {
        const Reals x{v};
        Reals out = Output(1), back = Output(1);
        ASSERT_EQ(ZemFunc270(x, 1, 0, out), 0);
        EXPECT_EQ(out[0], v);
        ASSERT_EQ(ZemFunc271(out, 1, back), 0);
        EXPECT_EQ(back[0], v);
    }
}

TEST(Dst, IsTheUnnormalisedTypeOneOfEveryLength) {
    for (int n = 1; n < 60; ++n) {
        const Reals x = RandomReals(n, n);
        Reals out = Output(n);
        ASSERT_EQ(ZemFunc272(x, n, 0, out), 0);
        ExpectNear(ReferenceDst(x, n), out, Rounding(2 * n + 2, Norm(x)));
    }
}

TEST(DctAndDst, PadWithZerosAndCut) {
    const Reals x = RandomReals(7, 2);
    for (int length : {1, 2, 3, 6, 7, 8, 9, 14, 15}) {
        Reals out = Output(length);
        ASSERT_EQ(ZemFunc270(x, 7, length, out), 0);
        ExpectNear(ReferenceDct(x, length), out, Rounding(length, Norm(x)));
        ASSERT_EQ(ZemFunc272(x, 7, length, out), 0);
        ExpectNear(ReferenceDst(x, length), out, Rounding(2 * length + 2, Norm(x)));
    }
}

TEST(DctAndDst, LengthBelowOneMeansTheInputsLengthAndNeverGivesTheStatusOfIt) {
    const Reals x = RandomReals(5, 3);
    for (Size length : {Size{0}, Size{-1}, Size{INT32_MIN}}) {
        Reals out = Output(5);
        EXPECT_EQ(ZemFunc270(x, 5, length, out), 0);
        EXPECT_EQ(ZemFunc272(x, 5, length, out), 0);
        EXPECT_EQ(ZemFunc270(x, 0, length, out), -20003);
        EXPECT_EQ(ZemFunc272(x, 0, length, out), -20003);
    }
}

TEST(Idct, UndoesDctForEvenAndOddLengthsAlsoInPlace) {
    for (int n = 1; n < 60; ++n) {
        const Reals x = RandomReals(n, 4);
        Reals out = Output(n), back = Output(n), same = x;
        ASSERT_EQ(ZemFunc270(x, n, 0, out), 0);
        ASSERT_EQ(ZemFunc271(out, n, back), 0);
        ExpectNear(x, back, 2 * Rounding(n, Norm(x)));
        ASSERT_EQ(ZemFunc270(same, n, 0, same), 0);
        ASSERT_EQ(ZemFunc271(same, n, same), 0);
        for (int i = 0; i < n; ++i) EXPECT_EQ(same[i], back[i]);
    }
}

TEST(Idst, UndoesDstAndCarriesTheWholeFactor) {
    for (int n = 1; n < 60; ++n) {
        const Reals x = RandomReals(n, 5);
        Reals forward = Output(n), inverse = Output(n), back = Output(n);
        ASSERT_EQ(ZemFunc272(x, n, 0, forward), 0);
        ASSERT_EQ(ZemFunc273(forward, n, back), 0);
        ExpectNear(x, back, 2 * Rounding(2 * n + 2, Norm(x)));
        // The same sums, times 2/(n + 1).
        ASSERT_EQ(ZemFunc273(x, n, inverse), 0);
        for (int i = 0; i < n; ++i)
            EXPECT_NEAR(inverse[i], forward[i] * 2 / (n + 1), 4 * kEpsilon * std::fabs(inverse[i]));
    }
}

// Both orders of the passes agree up to rounding, so that only the bound can be tested.
template <class Line>
Reals BothDimensions(const Reals& x, int rows, int cols, const Line& line) {
    Reals out = x;
    for (int r = 0; r < rows; ++r) {
        Reals row(cols);
        for (int c = 0; c < cols; ++c) row[c] = out[r * cols + c];
        row = line(row);
        for (int c = 0; c < cols; ++c) out[r * cols + c] = row[c];
    }
    for (int c = 0; c < cols; ++c) {
        Reals column(rows);
        for (int r = 0; r < rows; ++r) column[r] = out[r * cols + c];
        column = line(column);
        for (int r = 0; r < rows; ++r) out[r * cols + c] = column[r];
    }
    return out;
}

constexpr struct {
    int rows, cols;
} kSizes[] = {{1, 1}, {1, 5}, {6, 1}, {2, 3}, {3, 2}, {4, 4}, {5, 5}, {7, 12}, {10, 19}};

TEST(Dct2DAndDst2D, TransformRowsAndColumns) {
    for (auto [rows, cols] : kSizes) {
        const int n = rows * cols;
        const Reals x = RandomReals(n, 6);
        Reals out = Output(n);
        ASSERT_EQ(ZemFunc274(x, rows, cols, out), 0);
        ExpectNear(BothDimensions(x, rows, cols, [](const Reals& v) { return ReferenceDct(v, v.size()); }), out,
                   2 * Rounding(n, Norm(x)));
        ASSERT_EQ(ZemFunc276(x, rows, cols, out), 0);
        ExpectNear(BothDimensions(x, rows, cols, [](const Reals& v) { return ReferenceDst(v, v.size()); }), out,
                   2 * Rounding(4 * (rows + 1) * (cols + 1), Norm(x)));
    }
}

TEST(Idct2DAndIdst2D, UndoTheForwardTransformsAlsoInPlace) {
    for (auto [rows, cols] : kSizes) {
        const int n = rows * cols;
        const Reals x = RandomReals(n, 7);
        Reals out = Output(n), same = x;
        ASSERT_EQ(ZemFunc274(x, rows, cols, out), 0);
        ASSERT_EQ(ZemFunc275(out, rows, cols, same), 0);
        ExpectNear(x, same, 4 * Rounding(n, Norm(x)));
        ASSERT_EQ(ZemFunc276(same, rows, cols, same), 0);
        ASSERT_EQ(ZemFunc277(same, rows, cols, same), 0);
        ExpectNear(x, same, 8 * Rounding(4 * (rows + 1) * (cols + 1), Norm(x)));
    }
}

TEST(CosineAndSine, RefuseSizesAndTouchNothing) {
    const Reals x(4);
    Reals out = Output(4);
    const auto refused = [&](Size n, Status expected) {
        EXPECT_EQ(ZemFunc270(x, n, 0, out), expected);
        EXPECT_EQ(ZemFunc271(x, n, out), expected);
        EXPECT_EQ(ZemFunc272(x, n, 0, out), expected);
        EXPECT_EQ(ZemFunc273(x, n, out), expected);
        for (auto call : {ZemFunc274, ZemFunc275, ZemFunc276, ZemFunc277}) {
            EXPECT_EQ(call(x, n, 2, out), expected);
            EXPECT_EQ(call(x, 2, n, out), expected);
        }
    };
    refused(0, -20003);
    refused(-1, -20003);
    refused(kTooLarge, -20046);
    refused(INT64_MAX, -20046);
    EXPECT_EQ(ZemFunc270(x, 0, kTooLarge, out), -20046);
    EXPECT_EQ(ZemFunc272(x, 0, kTooLarge, out), -20046);
    EXPECT_TRUE(Untouched(out));
}

// No export lets this happen; the operations themselves say so.
TEST(CosineAndSine, OfALengthBelowOneHaveAStatusOfTheirOwnBehindTheBoundary) {
    const Reals x(4);
    Reals out = Output(4);
    for (auto operation : {TransformDct, TransformDst}) {
        EXPECT_EQ(operation(x, 4, 0, out), -20115);
        EXPECT_EQ(operation(x, 4, -1, out), -20115);
        EXPECT_EQ(operation(x, 0, 0, out), -20003);
    }
    EXPECT_TRUE(Untouched(out));
}

// Twice the length (and 2 more for the sine) is a size of its own, and narrows with the others before any is tested.
TEST(CosineAndSine, RefuseDerivedSizesThatDoNotFit) {
    const Reals x(4);
    Reals out = Output(4);
    const Size half = Size{1} << 30;
    for (Size n : {half, half + 1}) {
        EXPECT_EQ(ZemFunc270(x, 4, n, out), -20046);
        EXPECT_EQ(ZemFunc270(x, 0, n, out), -20046);
        EXPECT_EQ(ZemFunc270(x, n, 0, out), -20046);
        EXPECT_EQ(ZemFunc271(x, n, out), -20046);
        EXPECT_EQ(ZemFunc274(x, n, 0, out), -20046);
        EXPECT_EQ(ZemFunc275(x, 0, n, out), -20046);
    }
    for (Size n : {half - 1, half}) {
        EXPECT_EQ(ZemFunc272(x, 4, n, out), -20046);
        EXPECT_EQ(ZemFunc272(x, 0, n, out), -20046);
        EXPECT_EQ(ZemFunc273(x, n, out), -20046);
        EXPECT_EQ(ZemFunc276(x, n, 0, out), -20046);
        EXPECT_EQ(ZemFunc277(x, 0, n, out), -20046);
    }
    EXPECT_EQ(ZemFunc273(x, -half - 2, out), -20046);
    EXPECT_EQ(ZemFunc273(x, -half - 1, out), -20003);
    for (auto call : {ZemFunc274, ZemFunc275, ZemFunc276, ZemFunc277}) EXPECT_EQ(call(x, 65536, 65536, out), -20046);
    EXPECT_TRUE(Untouched(out));
}

TEST(CosineAndSine, ReportEveryFailedAllocation) {
    for (int n : {8, 9, kLargePrime, kLargePrime - 1}) {
        const Reals x = RandomReals(2 * n);
        Reals out = Output(2 * n);
        ExpectEveryAllocationFails([&] { return ZemFunc270(x, n, 0, out); });
        ExpectEveryAllocationFails([&] { return ZemFunc271(x, n, out); });
        ExpectEveryAllocationFails([&] { return ZemFunc272(x, n, 0, out); });
        ExpectEveryAllocationFails([&] { return ZemFunc273(x, n, out); });
        for (auto call : {ZemFunc274, ZemFunc275, ZemFunc276, ZemFunc277}) {
            ExpectEveryAllocationFails([&] { return call(x, 2, n, out); });
            ExpectEveryAllocationFails([&] { return call(x, n, 2, out); });
        }
    }
}

}  // namespace
}  // namespace quorvan::testing

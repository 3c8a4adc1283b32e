// Fourier transforms of row-major arrays.
#include <gtest/gtest.h>

#include "quorvan/quorvan.h"
#include "tests/support/failing_heap.h"
#include "tests/transforms/reference.h"

namespace quorvan::testing {
namespace {

// The defining double sum, natural order, of x padded or cut to R x C.
template <class T>
std::vector<Wide> ReferenceDft2D(const Guarded<T>& x, int rows, int cols, int R, int C) {
    std::vector<Wide> out(static_cast<std::size_t>(R) * C);
    for (int k = 0; k < R; ++k)
        for (int l = 0; l < C; ++l)
            for (int r = 0; r < std::min(rows, R); ++r)
                for (int c = 0; c < std::min(cols, C); ++c)
                    out[k * C + l] += Widen(x[r * cols + c]) * std::conj(Root(r * k % R, R) * Root(c * l % C, C));
    return out;
}

std::size_t Place(int k, int l, int R, int C, bool shift) {
    return shift ? std::size_t(ShiftedIndex(k, R)) * C + ShiftedIndex(l, C) : std::size_t(k) * C + l;
}

void ExpectPlane(const std::vector<Wide>& expected, const Records& got, int R, int C, bool shift, double tolerance) {
    for (int k = 0; k < R; ++k)
        for (int l = 0; l < C; ++l)
            EXPECT_LE(Distance(expected[k * C + l], got[Place(k, l, R, C, shift)]), tolerance)
                << "bin " << k << ", " << l << " of " << R << " x " << C;
}

constexpr struct {
    int rows, cols;
} kSizes[] = {{1, 1}, {1, 2}, {2, 1}, {1, 7}, {8, 1}, {2, 2}, {3, 3},  {2, 3},
              {3, 2}, {4, 4}, {4, 5}, {5, 4}, {5, 5}, {6, 9}, {9, 17}, {10, 20}};

TEST(Fft2D, IsTheDefiningSumInBothOrders) {
    for (auto [rows, cols] : kSizes) {
        const int n = rows * cols;
        const Reals x = RandomReals(n, n);
        const Records z = RandomRecords(n, n);
        for (int shift : {0, 1}) {
            Records out = RecordOutput(n);
            ASSERT_EQ(ZemFunc266(x, rows, cols, 0, -1, shift, out), 0);
            ExpectPlane(ReferenceDft2D(x, rows, cols, rows, cols), out, rows, cols, shift, Rounding(n, Norm(x)));
            ASSERT_EQ(ZemFunc267(z, rows, cols, 0, -1, shift, out), 0);
            ExpectPlane(ReferenceDft2D(z, rows, cols, rows, cols), out, rows, cols, shift, Rounding(n, Norm(z)));
        }
    }
}

TEST(Fft2D, PadsAndCutsEachDimension) {
    const int rows = 4, cols = 5;
    const Reals x = RandomReals(rows * cols, 1);
    const Records z = RandomRecords(rows * cols, 2);
    for (int R : {1, 2, 3, 4, 6, 7})
        for (int C : {1, 2, 3, 5, 8, 9})
            for (int shift : {0, 1}) {
                Records out = RecordOutput(R * C);
                ASSERT_EQ(ZemFunc266(x, rows, cols, R, C, shift, out), 0);
                ExpectPlane(ReferenceDft2D(x, rows, cols, R, C), out, R, C, shift, Rounding(R * C, Norm(x)));
                ASSERT_EQ(ZemFunc267(z, rows, cols, R, C, shift, out), 0);
                ExpectPlane(ReferenceDft2D(z, rows, cols, R, C), out, R, C, shift, Rounding(R * C, Norm(z)));
            }
}

TEST(RealFft2D, IsHermitianToTheLastBitInTheFilledHalf) {
    for (auto [rows, cols] : kSizes) {
        const Reals x = RandomReals(rows * cols, 3);
        for (int shift : {0, 1}) {
            Records out = RecordOutput(rows * cols);
            ASSERT_EQ(ZemFunc266(x, rows, cols, 0, 0, shift, out), 0);
            for (int k = 0; k < rows; ++k)
                for (int l = cols / 2 + 1; l < cols; ++l) {
                    const ComplexRecord bin = out[Place(k, l, rows, cols, shift)];
                    const ComplexRecord mirror = out[Place((rows - k) % rows, cols - l, rows, cols, shift)];
                    EXPECT_EQ(bin.re, mirror.re);
                    EXPECT_EQ(bin.im, -mirror.im);
                }
        }
    }
}

TEST(Fft2D, OfOneElementIsTheElementAndTakesNoMemory) {
    const Reals x{2.5, 7, 8, 9};
    const Records z{{2.5, -1}, {7, 7}};
    FailAllocation(0);
    for (int shift : {0, 1}) {
        Records out = RecordOutput(1);
        ASSERT_EQ(ZemFunc266(x, 2, 2, 1, 1, shift, out), 0);
        EXPECT_EQ(out[0].re, 2.5);
        EXPECT_EQ(out[0].im, 0);
        ASSERT_EQ(ZemFunc267(z, 1, 2, 1, 1, shift, out), 0);
        EXPECT_EQ(out[0].re, 2.5);
        EXPECT_EQ(out[0].im, -1);
    }
    FailAllocation(-1);
}

TEST(Ifft2D, UndoesTheForwardTransformWithMatchingOrder) {
    for (auto [rows, cols] : kSizes) {
        const int n = rows * cols;
        const Reals x = RandomReals(n, 4);
        const Records z = RandomRecords(n, 5);
        for (int shift : {0, 1}) {
            Records spectrum = RecordOutput(n), records = RecordOutput(n);
            Reals reals = Output(n);
            ASSERT_EQ(ZemFunc266(x, rows, cols, 0, 0, shift, spectrum), 0);
            ASSERT_EQ(ZemFunc268(spectrum, rows, cols, shift, reals), 0);
            ExpectNear(x, reals, 2 * Rounding(n, Norm(x)));
            ASSERT_EQ(ZemFunc267(z, rows, cols, 0, 0, shift, spectrum), 0);
            ASSERT_EQ(ZemFunc269(spectrum, rows, cols, shift, records), 0);
            ExpectNear(z, records, 2 * Rounding(n, Norm(z)));
        }
    }
}

TEST(RealIfft2D, DoesNotReadTheRowsOfNegativeFrequency) {
    for (auto [rows, cols] : kSizes) {
        const int n = rows * cols;
        const Reals x = RandomReals(n, 6);
        for (int shift : {0, 1}) {
            Records spectrum = RecordOutput(n);
            Reals expected = Output(n), got = Output(n);
            ASSERT_EQ(ZemFunc266(x, rows, cols, 0, 0, shift, spectrum), 0);
            ASSERT_EQ(ZemFunc268(spectrum, rows, cols, shift, expected), 0);
            for (int k = rows / 2 + 1; k < rows; ++k)
                for (int l = 0; l < cols; ++l) spectrum[Place(k, l, rows, cols, shift)] = {kNaN, kNaN};
            ASSERT_EQ(ZemFunc268(spectrum, rows, cols, shift, got), 0);
            for (int i = 0; i < n; ++i) EXPECT_TRUE(SameBits(expected[i], got[i])) << rows << " x " << cols;
        }
    }
}

TEST(Fft2D, RefusesSizesAndTouchesNothing) {
    const Reals x(4);
    const Records z(4);
    Records records = RecordOutput(4);
    Reals reals = Output(4);
    const auto forward = [&](Size rows, Size cols, Size fftRows, Size fftCols, Status expected) {
        EXPECT_EQ(ZemFunc266(x, rows, cols, fftRows, fftCols, 0, records), expected);
        EXPECT_EQ(ZemFunc267(z, rows, cols, fftRows, fftCols, 1, records), expected);
    };
    const auto inverse = [&](Size rows, Size cols, Status expected) {
        EXPECT_EQ(ZemFunc268(z, rows, cols, 1, reals), expected);
        EXPECT_EQ(ZemFunc269(z, rows, cols, 0, records), expected);
    };
    for (Size bad : {Size{0}, Size{-1}}) {
        forward(bad, 2, 2, 2, -20003);
        forward(2, bad, 2, 2, -20003);
        forward(bad, 2, 65536, 65536, -20003);
        inverse(bad, 2, -20003);
        inverse(2, bad, -20003);
    }
    forward(kTooLarge, 0, 0, 0, -20046);
    forward(0, kTooLarge, 0, 0, -20046);
    forward(0, 0, kTooLarge, 0, -20046);
    forward(0, 0, 0, kTooLarge, -20046);
    inverse(kTooLarge, 0, -20046);
    inverse(0, kTooLarge, -20046);
    // 2^32 elements are no count.
    forward(2, 2, 65536, 65536, -20046);
    inverse(65536, 65536, -20046);
    EXPECT_TRUE(Untouched(records));
    EXPECT_TRUE(Untouched(reals));
}

TEST(Fft2D, ReportsEveryFailedAllocation) {
    constexpr struct { int rows, cols; } sizes[] = {{3, kLargePrime}, {kLargePrime, 2}, {4, 4}};
    for (auto [rows, cols] : sizes) {
        const int n = rows * cols;
        const Reals x = RandomReals(n);
        const Records z = RandomRecords(n);
        Records records = RecordOutput(n);
        Reals reals = Output(n);
        for (int shift : {0, 1}) {
            ExpectEveryAllocationFails([&] { return ZemFunc266(x, rows, cols, 0, 0, shift, records); });
            ExpectEveryAllocationFails([&] { return ZemFunc267(z, rows, cols, 0, 0, shift, records); });
            ExpectEveryAllocationFails([&] { return ZemFunc268(z, rows, cols, shift, reals); });
            ExpectEveryAllocationFails([&] { return ZemFunc269(z, rows, cols, shift, records); });
        }
    }
}

}  // namespace
}  // namespace quorvan::testing

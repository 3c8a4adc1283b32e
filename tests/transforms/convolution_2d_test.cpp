// Convolution and correlation of row-major arrays.
#include <gtest/gtest.h>

#include "quorvan/quorvan.h"
#include "tests/support/failing_heap.h"
#include "tests/support/targets.h"
#include "tests/transforms/reference.h"

namespace quorvan::testing {
namespace {

template <class T>
struct Plane {
    int rows, cols;
    Guarded<T> data;

    const T& at(int r, int c) const { return data[std::size_t(r) * cols + c]; }
};

Plane<double> RandomPlane(int rows, int cols, unsigned seed, double) {
    return {rows, cols, RandomReals(rows * cols, seed)};
}
Plane<ComplexRecord> RandomPlane(int rows, int cols, unsigned seed, ComplexRecord) {
    return {rows, cols, RandomRecords(rows * cols, seed)};
}

double Conjugate(double v) { return v; }
ComplexRecord Conjugate(ComplexRecord v) { return {v.re, -v.im}; }
void AddProduct(double& sum, double a, double b) { sum += a * b; }
void AddProduct(ComplexRecord& sum, ComplexRecord a, ComplexRecord b) {
    sum = {sum.re + (a.re * b.re - a.im * b.im), sum.im + (a.im * b.re + a.re * b.im)};
}

// The full convolution: each output a double loop over the array with the fewer elements, the second if they are equal.
template <class T>
Guarded<T> Full(const Plane<T>& x, const Plane<T>& y) {
    const Plane<T>&few = x.data.size() < y.data.size() ? x : y, &many = x.data.size() < y.data.size() ? y : x;
    const int R = x.rows + y.rows - 1, C = x.cols + y.cols - 1;
    Guarded<T> out(std::size_t(R) * C);
    for (int r = 0; r < R; ++r)
        for (int c = 0; c < C; ++c)
            for (int i = 0; i < few.rows; ++i)
                for (int j = 0; j < few.cols; ++j)
                    if (r - i >= 0 && r - i < many.rows && c - j >= 0 && c - j < many.cols)
                        AddProduct(out[r * C + c], few.at(i, j), many.at(r - i, c - j));
    return out;
}

template <class T>
Guarded<T> Crop(const Guarded<T>& full, int C, int top, int left, int rows, int cols) {
    Guarded<T> out(std::size_t(rows) * cols);
    for (int r = 0; r < rows; ++r)
        for (int c = 0; c < cols; ++c) out[r * cols + c] = full[std::size_t(top + r) * C + left + c];
    return out;
}

template <class T>
Guarded<T> Shaped(const Plane<T>& x, const Plane<T>& y, int shape) {
    const int C = x.cols + y.cols - 1;
    if (shape == 1) return Crop(Full(x, y), C, y.rows / 2, y.cols / 2, x.rows, x.cols);
    if (shape == 2) return Crop(Full(x, y), C, y.rows - 1, y.cols - 1, x.rows - y.rows + 1, x.cols - y.cols + 1);
    return Full(x, y);
}

template <class T>
Plane<T> Reversed(const Plane<T>& x) {
    Plane<T> out = x;
    std::reverse(out.data.begin(), out.data.end());
    for (T& v : out.data) v = Conjugate(v);
    return out;
}

template <class T>
double FftBound(const Plane<T>& x, const Plane<T>& y) {
    const double count = double(x.rows + y.rows) * (x.cols + y.cols);
    return 3 * Rounding(count, Norm(x.data) * Norm(y.data));
}

Status Convolve(const Plane<double>& x, const Plane<double>& y, std::uint32_t shape, std::uint32_t method, Reals& out) {
    return ZemFunc392(x.data, x.rows, x.cols, y.data, y.rows, y.cols, shape, method, out);
}
Status Convolve(const Plane<ComplexRecord>& x, const Plane<ComplexRecord>& y, std::uint32_t shape, std::uint32_t method,
                Records& out) {
    return ZemFunc393(x.data, x.rows, x.cols, y.data, y.rows, y.cols, shape, method, out);
}
Status Correlate(const Plane<double>& x, const Plane<double>& y, std::uint32_t method, Reals& out) {
    return ZemFunc422(x.data, x.rows, x.cols, y.data, y.rows, y.cols, method, out);
}
Status Correlate(const Plane<ComplexRecord>& x, const Plane<ComplexRecord>& y, std::uint32_t method, Records& out) {
    return ZemFunc423(x.data, x.rows, x.cols, y.data, y.rows, y.cols, method, out);
}
Status AutoCorrelate(const Plane<double>& x, Reals& out) { return ZemFunc426(x.data, x.rows, x.cols, out); }
Status AutoCorrelate(const Plane<ComplexRecord>& x, Records& out) { return ZemFunc427(x.data, x.rows, x.cols, out); }

constexpr struct {
    int rows1, cols1, rows2, cols2;
} kSizes[] = {{1, 1, 1, 1}, {1, 5, 1, 3}, {5, 1, 3, 1},   {3, 3, 3, 3}, {4, 6, 3, 2},  {6, 4, 2, 3},
              {2, 3, 5, 7}, {5, 5, 1, 5}, {1, 20, 21, 1}, {8, 9, 4, 4}, {7, 12, 6, 5}, {12, 7, 6, 6}};

template <class T>
class Arrays2D : public ::testing::Test {};
using Kinds = ::testing::Types<double, ComplexRecord>;
TYPED_TEST_SUITE(Arrays2D, Kinds);

TYPED_TEST(Arrays2D, DirectConvolutionAddsAlongTheArrayWithFewerElements) {
    ForEachTarget([] {
        for (auto [rows1, cols1, rows2, cols2] : kSizes) {
            const auto x = RandomPlane(rows1, cols1, 1, TypeParam{}), y = RandomPlane(rows2, cols2, 2, TypeParam{});
            for (int shape : {0, 1, 2}) {
                if (shape == 2 && (rows1 < rows2 || cols1 < cols2)) continue;
                const auto expected = Shaped(x, y, shape);
                Guarded<TypeParam> out(expected.size());
                ASSERT_EQ(Convolve(x, y, shape, 0, out), 0);
                EXPECT_EQ(std::memcmp(expected.data(), out.data(), out.size() * sizeof(TypeParam)), 0)
                    << rows1 << " x " << cols1 << ", " << rows2 << " x " << cols2 << ", shape " << shape;
            }
        }
    });
}

TYPED_TEST(Arrays2D, ConvolutionByTransformsAgreesWithTheSum) {
    for (auto [rows1, cols1, rows2, cols2] : kSizes) {
        const auto x = RandomPlane(rows1, cols1, 3, TypeParam{}), y = RandomPlane(rows2, cols2, 4, TypeParam{});
        for (int shape : {0, 1, 2}) {
            if (shape == 2 && (rows1 < rows2 || cols1 < cols2)) continue;
            const auto expected = Shaped(x, y, shape);
            Guarded<TypeParam> out(expected.size());
            ASSERT_EQ(Convolve(x, y, shape, 1, out), 0);
            ExpectNear(expected, out, FftBound(x, y));
        }
    }
}

TYPED_TEST(Arrays2D, TheInsideOfEqualSizesIsOneElement) {
    const auto x = RandomPlane(3, 4, 5, TypeParam{}), y = RandomPlane(3, 4, 6, TypeParam{});
    const auto expected = Shaped(x, y, 2);
    ASSERT_EQ(expected.size(), 1u);
    for (int method : {0, 1}) {
        Guarded<TypeParam> out(1);
        ASSERT_EQ(Convolve(x, y, 2, method, out), 0);
        ExpectNear(expected, out, FftBound(x, y));
    }
}

TYPED_TEST(Arrays2D, CorrelationReversesAndConjugatesTheFirstArray) {
    for (auto [rows1, cols1, rows2, cols2] : kSizes) {
        const auto x = RandomPlane(rows1, cols1, 7, TypeParam{}), y = RandomPlane(rows2, cols2, 8, TypeParam{});
        const auto expected = Full(Reversed(x), y);
        for (int method : {0, 1}) {
            Guarded<TypeParam> out(expected.size());
            ASSERT_EQ(Correlate(x, y, method, out), 0);
            ExpectNear(expected, out, FftBound(x, y));
        }
    }
}

TYPED_TEST(Arrays2D, AutocorrelationHasItsEnergyAtLagZero) {
    for (auto [rows, cols] : {std::pair{1, 1}, {1, 6}, {6, 1}, {4, 5}, {7, 7}}) {
        const auto x = RandomPlane(rows, cols, 9, TypeParam{});
        Guarded<TypeParam> out(std::size_t(2 * rows - 1) * (2 * cols - 1));
        ASSERT_EQ(AutoCorrelate(x, out), 0);
        ExpectNear(Full(Reversed(x), x), out, FftBound(x, x));
        const double energy = Norm(x.data) * Norm(x.data);
        EXPECT_LE(Distance(energy, out[std::size_t(rows - 1) * (2 * cols - 1) + cols - 1]),
                  FftBound(x, x) + 4 * kEpsilon * energy);
    }
}

TYPED_TEST(Arrays2D, ReportEveryFailedAllocation) {
    const auto x = RandomPlane(6, 7, 1, TypeParam{}), y = RandomPlane(3, 2, 2, TypeParam{});
    Guarded<TypeParam> out(11 * 13);
    for (int shape : {0, 1, 2}) ExpectEveryAllocationFails([&] { return Convolve(x, y, shape, 1, out); });
    for (int shape : {1, 2}) ExpectEveryAllocationFails([&] { return Convolve(x, y, shape, 0, out); });
    for (int method : {0, 1}) ExpectEveryAllocationFails([&] { return Correlate(x, y, method, out); });
    ExpectEveryAllocationFails([&] { return AutoCorrelate(x, out); });
}

// A sum of 54 rows and 54 columns is a size with a prime that no kernel has: the transforms have exactly that size.
TYPED_TEST(Arrays2D, ReportFailuresInsideTheTransformsToo) {
    const auto x = RandomPlane(kLargePrime - 1, 2, 1, TypeParam{}), y = RandomPlane(2, kLargePrime - 1, 2, TypeParam{});
    Guarded<TypeParam> out(kLargePrime * kLargePrime);
    ExpectEveryAllocationFails([&] { return Convolve(x, y, 0, 1, out); });
}

TEST(Convolve2D, CropsTheSameShapeFromHalfTheSecondSize) {
    // A one at (r, c) of a 3 x 3 second array shifts the first by r - 1 and c - 1; of a 2 x 2 one by r - 1 and c - 1
    // too.
    const Reals x{1, 2, 3, 4};
    for (int method : {0, 1}) {
        Reals out = Output(4);
        const Reals middle{0, 0, 0, 0, 1, 0, 0, 0, 0}, last{0, 0, 0, 1};
        ASSERT_EQ(ZemFunc392(x, 2, 2, middle, 3, 3, 1, method, out), 0);
        ExpectNear(x, out, Rounding(16, 6));
        ASSERT_EQ(ZemFunc392(x, 2, 2, last, 2, 2, 1, method, out), 0);
        ExpectNear(x, out, Rounding(16, 6));
    }
}

TEST(Convolve2D, ChecksInTheStatedOrder) {
    const Reals x(4);
    const Records z(4);
    Reals reals = Output(9);
    Records records = RecordOutput(9);
    const auto gives = [&](Size rows1, Size cols1, Size rows2, Size cols2, std::uint32_t shape, std::uint32_t method,
                           Status expected) {
        EXPECT_EQ(ZemFunc392(x, rows1, cols1, x, rows2, cols2, shape, method, reals), expected);
        EXPECT_EQ(ZemFunc393(z, rows1, cols1, z, rows2, cols2, shape, method, records), expected);
    };
    const Size bad[] = {0, -1};
    gives(kTooLarge, 0, 0, 0, 3, 2, -20046);
    gives(0, kTooLarge, 0, 0, 3, 2, -20046);
    gives(0, 0, kTooLarge, 0, 3, 2, -20046);
    gives(0, 0, 0, kTooLarge, 3, 2, -20046);
    for (Size size : bad) {
        gives(size, 2, 2, 2, 3, 2, -20003);
        gives(2, size, 2, 2, 3, 2, -20003);
        gives(2, 2, size, 2, 3, 2, -20003);
        gives(2, 2, 2, size, 3, 2, -20003);
    }
    gives(1, 2, 2, 2, 3, 0, -20061);
    gives(1, 2, 2, 2, 2, 2, -20061);
    gives(1, 2, 2, 2, 0xFFFFFFFF, 1, -20061);
    gives(2, 2, 2, 2, 0, 0xFFFFFFFF, -20061);
    gives(1, 2, 2, 2, 2, 0, -20008);
    gives(2, 1, 2, 2, 2, 1, -20008);
    gives(65536, 1, 1, 65536, 0, 1, -20046);
    gives(INT32_MAX, INT32_MAX, INT32_MAX, INT32_MAX, 0, 1, -20046);
    EXPECT_TRUE(Untouched(reals));
    EXPECT_TRUE(Untouched(records));
}

TEST(Correlate2D, ChecksInTheStatedOrder) {
    const Reals x(4);
    const Records z(4);
    Reals reals = Output(9);
    Records records = RecordOutput(9);
    const auto gives = [&](Size rows1, Size cols1, Size rows2, Size cols2, std::uint32_t method, Status expected) {
        EXPECT_EQ(ZemFunc422(x, rows1, cols1, x, rows2, cols2, method, reals), expected);
        EXPECT_EQ(ZemFunc423(z, rows1, cols1, z, rows2, cols2, method, records), expected);
    };
    const auto givesAuto = [&](Size rows, Size cols, Status expected) {
        EXPECT_EQ(ZemFunc426(x, rows, cols, reals), expected);
        EXPECT_EQ(ZemFunc427(z, rows, cols, records), expected);
    };
    for (int place = 0; place < 4; ++place) {
        for (Size bad : {Size{0}, Size{-1}, kTooLarge}) {
            Size sizes[4] = {2, 2, 2, 2};
            sizes[place] = bad;
            gives(sizes[0], sizes[1], sizes[2], sizes[3], 2, bad == kTooLarge ? -20046 : -20003);
            if (place < 2) givesAuto(sizes[0], sizes[1], bad == kTooLarge ? -20046 : -20003);
        }
    }
    gives(2, 2, 2, 2, 2, -20061);
    gives(65536, 65536, 1, 1, 1, -20046);
    givesAuto(65536, 65536, -20046);
    EXPECT_TRUE(Untouched(reals));
    EXPECT_TRUE(Untouched(records));
}

}  // namespace
}  // namespace quorvan::testing

// Extremes, the three scalings, and the screens for values that are not finite.
#include <cmath>
#include <gtest/gtest.h>

#include "frame/arrays.h"
#include "frame/complex_arrays.h"
#include "quorvan/quorvan.h"
#include "tests/support/guarded.h"
#include "tests/support/targets.h"

namespace quorvan::testing {
namespace {

struct Found {
    double max = kUnwritten, min = kUnwritten;
    Size max_index = -77, min_index = -77;
};

Found Extremes(const Reals& x) {
    Found found;
    EXPECT_EQ(ZemFunc120(x, Size(x.size()), &found.max, &found.max_index, &found.min, &found.min_index), 0);
    return found;
}

// The search as a reader would do it by hand.
Found Searched(const Reals& x) {
    Found found{kNaN, kNaN, -1, -1};
    for (std::size_t i = 0; i < x.size(); ++i) {
        if (std::isnan(x[i])) continue;
        if (found.max_index < 0 || x[i] > found.max) found.max = x[i], found.max_index = Size(i);
        if (found.min_index < 0 || x[i] < found.min) found.min = x[i], found.min_index = Size(i);
    }
    return found;
}

TEST(ArrMaxMin, IgnoresNaNAndKeepsTheFirstOfEqualValues) {
    const Found found = Extremes({kNaN, 2, kNaN, 2, 1});
    EXPECT_EQ(found.max, 2);
    EXPECT_EQ(found.max_index, 1);
    EXPECT_EQ(found.min, 1);
    EXPECT_EQ(found.min_index, 4);
}

TEST(ArrMaxMin, OfNothingButNaNIsNaNAtMinusOne) {
    for (std::size_t n : {1, 3, 100}) {
        const Found found = Extremes(Reals(n, kNaN));
        EXPECT_TRUE(std::isnan(found.max) && std::isnan(found.min));
        EXPECT_EQ(found.max_index, -1);
        EXPECT_EQ(found.min_index, -1);
    }
}

TEST(ArrMaxMin, TakesInfinitiesAsValuesAndASingleElementTwice) {
    Found found = Extremes({1, -kInf, kInf, -kInf});
    EXPECT_EQ(found.max_index, 2);
    EXPECT_EQ(found.min_index, 1);
    found = Extremes({-3});
    EXPECT_EQ(found.max, -3);
    EXPECT_EQ(found.min, -3);
    EXPECT_EQ(found.max_index, 0);
    EXPECT_EQ(found.min_index, 0);
}

TEST(ArrMaxMin, TakesZerosOfBothSignsAsEqualAndGivesTheFirst) {
    ForEachTarget([] {
        for (std::size_t n : {2, 9, 700, 5000})
            for (double first : {0.0, -0.0}) {
                Reals x(n, -first);
                x[0] = first;
                const Found found = Extremes(x);
                EXPECT_TRUE(SameBits(found.max, first) && SameBits(found.min, first));
                EXPECT_EQ(found.max_index, 0);
                EXPECT_EQ(found.min_index, 0);
            }
    });
}

TEST(ArrMaxMin, FindsWhatASearchByHandFinds) {
    ForEachTarget([] {
        std::mt19937_64 engine(7);
        for (int round = 0; round < 3000; ++round) {
            const std::size_t n = 1 + engine() % (round % 10 == 0 ? 5000 : 90);
            const std::uint64_t levels = round % 3 == 0 ? 4 : 1000000;  // few levels: many equal values
            const std::uint64_t nan_one_in = 1 + round % 5;
            Reals x(n);
            for (double& v : x)
                v = engine() % 5 < nan_one_in % 5 ? kNaN : double(engine() % levels) - double(levels / 2);
            const Found found = Extremes(x), expected = Searched(x);
            ASSERT_EQ(found.max_index, expected.max_index);
            ASSERT_EQ(found.min_index, expected.min_index);
            if (expected.max_index < 0) continue;
            ASSERT_EQ(found.max, expected.max);
            ASSERT_EQ(found.min, expected.min);
        }
    });
}

TEST(ArrMaxMin, FindsAPeakAtEveryPlaceOfALongArray) {
    ForEachTarget([] {
        constexpr int n = 2500;
        Reals x(n, 1.0);
        for (int place = 0; place < n; ++place) {
            x[place] = 2;
            if (place > 0) x[place - 1] = 0;
            const Found found = Extremes(x);
            ASSERT_EQ(found.max_index, place);
            ASSERT_EQ(found.min_index, place > 0 ? 0 : 1);
        }
    });
}

TEST(ArrMaxMin, RefusesSizesAndWritesNothing) {
    const Reals x{1};
    Found found;
    for (Size n : {Size{0}, Size{-1}})
        EXPECT_EQ(ZemFunc120(x, n, &found.max, &found.max_index, &found.min, &found.min_index), -20003);
    EXPECT_EQ(ZemFunc120(x, kTooLarge, &found.max, &found.max_index, &found.min, &found.min_index), -20046);
    EXPECT_EQ(found.max, kUnwritten);
    EXPECT_EQ(found.min, kUnwritten);
    EXPECT_EQ(found.max_index, -77);
    EXPECT_EQ(found.min_index, -77);
}

struct Found2D {
    double max = kUnwritten, min = kUnwritten;
    Size max_row = -77, max_col = -77, min_row = -77, min_col = -77;
    Status status = 1;
};

Found2D Extremes2D(const Reals& x, Size rows, Size cols) {
    Found2D f;
    f.status = ZemFunc121(x, rows, cols, &f.max, &f.max_row, &f.max_col, &f.min, &f.min_row, &f.min_col);
    return f;
}

TEST(ArrMaxMin2D, GivesRowsAndColumns) {
    const Found2D found = Extremes2D({3, 1, 2, 0, 9, 4}, 2, 3);
    EXPECT_EQ(found.status, 0);
    EXPECT_EQ(found.max, 9);
    EXPECT_EQ(found.max_row, 1);
    EXPECT_EQ(found.max_col, 1);
    EXPECT_EQ(found.min, 0);
    EXPECT_EQ(found.min_row, 1);
    EXPECT_EQ(found.min_col, 0);
}

TEST(ArrMaxMin2D, OfNothingButNaNIsNaNAtMinusOne) {
    const Found2D found = Extremes2D(Reals(6, kNaN), 2, 3);
    EXPECT_EQ(found.status, 0);
    EXPECT_TRUE(std::isnan(found.max) && std::isnan(found.min));
    for (Size place : {found.max_row, found.max_col, found.min_row, found.min_col}) EXPECT_EQ(place, -1);
}

TEST(ArrMaxMin2D, TestsEachSizeAfterNarrowing) {
    const Reals x(6, 1.0);
    for (auto [rows, cols] : {std::pair<Size, Size>{0, 3}, {3, 0}, {-2, -3}, {65536, 32768}}) {
        const Found2D found = Extremes2D(x, rows, cols);
        EXPECT_EQ(found.status, -20003) << rows << " x " << cols;
        EXPECT_EQ(found.max, kUnwritten);
        EXPECT_EQ(found.min, kUnwritten);
    }
    EXPECT_EQ(Extremes2D(x, 0, kTooLarge).status, -20046);
    EXPECT_EQ(Extremes2D(x, kTooLarge, 0).status, -20046);
}

TEST(ArrMaxMin2D, FormsTheElementCountIn32Bits) {
    Reals x(65536, 1.0);
    x[65535] = 2;
    const Found2D found = Extremes2D(x, 65536, 65537);
    EXPECT_EQ(found.status, 0);
    EXPECT_EQ(found.max_row, 0);
    EXPECT_EQ(found.max_col, 65535);
}

struct Scaled {
    Reals out;
    double offset = kUnwritten, scale = kUnwritten;
    Status status = 1;
};

// Apart, on x itself and with a null output: all three must agree. The result is the one apart.
Scaled Scale(const Reals& x) {
    const Size n = Size(x.size());
    Scaled apart{Output(x.size())}, same{x}, null{x};
    Reals source = x;
    apart.status = ZemFunc153(source, n, apart.out, &apart.offset, &apart.scale);
    same.status = ZemFunc153(same.out, n, same.out, &same.offset, &same.scale);
    null.status = ZemFunc154(null.out, 1, n, nullptr, &null.offset, &null.scale);
    for (const Scaled* other : {&same, &null}) {
        EXPECT_EQ(other->status, apart.status);
        EXPECT_TRUE(SameBits(other->offset, apart.offset) && SameBits(other->scale, apart.scale));
        for (Size i = 0; i < n; ++i) {
            if (apart.out[i] == kUnwritten || std::isnan(apart.out[i])) continue;
            EXPECT_EQ(other->out[i], apart.out[i]);
        }
    }
    return apart;
}

TEST(ArrScale, OfAFlatSignalGivesZerosWithScaleOne) {
    const Scaled scaled = Scale({5, 5, 5});
    EXPECT_EQ(scaled.status, 0);
    EXPECT_EQ(scaled.offset, 5);
    EXPECT_EQ(scaled.scale, 1);
    EXPECT_EQ(scaled.out.values(), (std::vector<double>{0, 0, 0}));
}

TEST(ArrScale, MapsTheExtremesToMinusOneAndOne) {
    const Scaled scaled = Scale({1, 3});
    EXPECT_EQ(scaled.scale, 1);
    EXPECT_EQ(scaled.offset, 2);
    EXPECT_EQ(scaled.out.values(), (std::vector<double>{-1, 1}));
}

TEST(ArrScale, OfNothingButNaNGivesNaNAndLeavesTheOutputUntouched) {
    const Scaled scaled = Scale({kNaN, kNaN});
    EXPECT_EQ(scaled.status, 0);
    EXPECT_TRUE(std::isnan(scaled.offset) && std::isnan(scaled.scale));
    EXPECT_TRUE(Untouched(scaled.out));
}

TEST(ArrScale, MultipliesByTheReciprocalAndKeepsNaN) {
    ForEachTarget([] {
        Reals x = RandomReals(200, 3);
        x[17] = kNaN;
        const Scaled scaled = Scale(x);
        const Found found = Extremes(x);
        const double scale = (found.max - found.min) * 0.5, offset = scale + found.min, reciprocal = 1 / scale;
        EXPECT_TRUE(SameBits(scaled.scale, scale) && SameBits(scaled.offset, offset));
        for (int i = 0; i < 200; ++i) {
            if (i == 17)
                EXPECT_TRUE(std::isnan(scaled.out[i]));
            else
                EXPECT_TRUE(SameBits(scaled.out[i], (x[i] - offset) * reciprocal));
        }
    });
}

TEST(ArrScale, TakesAScaleWithoutAFiniteReciprocalAsFlat) {
    const double denormal = 1e-310;  // its reciprocal overflows
    Scaled scaled = Scale({0, 2 * denormal});
    EXPECT_EQ(scaled.scale, 1);
    EXPECT_EQ(scaled.offset, 2 * denormal);
    EXPECT_EQ(scaled.out.values(), (std::vector<double>{-2 * denormal, 0}));

    scaled = Scale({kInf, kInf, kNaN});  // inf - inf: the scale is NaN
    EXPECT_EQ(scaled.status, 0);
    EXPECT_EQ(scaled.scale, 1);
    EXPECT_EQ(scaled.offset, kInf);
    for (double v : scaled.out) EXPECT_TRUE(std::isnan(v));
}

TEST(ArrScale, OfOneInfinityHasAnInfiniteScaleAndAZeroReciprocal) {
    const Scaled scaled = Scale({0, kInf});
    EXPECT_EQ(scaled.scale, kInf);
    EXPECT_EQ(scaled.offset, kInf);
    EXPECT_TRUE(std::isnan(scaled.out[0])) << "-inf times 0";
    EXPECT_TRUE(std::isnan(scaled.out[1]));
}

TEST(ArrScale, IsUndoneByItsScaleAndOffset) {
    const Reals x = RandomReals(500, 9);
    const Scaled scaled = Scale(x);
    // Two roundings of values of at most 1 on the way there, two back, and that of the reciprocal.
    for (int i = 0; i < 500; ++i) EXPECT_NEAR(scaled.out[i] * scaled.scale + scaled.offset, x[i], 5 * kEpsilon);
}

TEST(ArrScale, RefusesSizesAndTouchesNothing) {
    Reals x{1, 2}, out = Output(2);
    double offset = kUnwritten, scale = kUnwritten;
    EXPECT_EQ(ZemFunc153(x, 0, out, &offset, &scale), -20003);
    EXPECT_EQ(ZemFunc153(x, kTooLarge, out, &offset, &scale), -20046);
    EXPECT_EQ(ZemFunc154(x, 65536, 32768, out, &offset, &scale), -20003);
    EXPECT_EQ(ZemFunc154(x, 0, kTooLarge, out, &offset, &scale), -20046);
    EXPECT_TRUE(Untouched(out) && offset == kUnwritten && scale == kUnwritten);
}

TEST(ArrQuickScale, OfZerosCopiesTheInput) {
    for (const Reals& x : {Reals{0, 0}, Reals{-0.0, kNaN, 0.0}}) {
        Reals source = x, out = Output(x.size());
        double peak = kUnwritten;
        EXPECT_EQ(ZemFunc143(source, Size(x.size()), out, &peak), 0);
        EXPECT_TRUE(SameBits(peak, 0.0));
        for (std::size_t i = 0; i < x.size(); ++i) EXPECT_TRUE(SameBits(out[i], x[i]));
    }
}

TEST(ArrQuickScale, MultipliesByTheReciprocalOfThePeakMagnitude) {
    ForEachTarget([] {
        for (std::size_t n : {1, 5, 33, 64, 300}) {
            Reals x = RandomReals(n, 8);
            if (n > 4) x[n / 2] = kNaN;
            double expected = 0;
            for (double v : x) expected = std::fmax(expected, std::fabs(v));
            const double reciprocal = 1 / expected;
            Reals out = Output(n), null = x, source = x;
            double peak = kUnwritten, peak2 = kUnwritten;
            EXPECT_EQ(ZemFunc143(source, Size(n), out, &peak), 0);
            EXPECT_EQ(ZemFunc144(null, Size(n), 1, nullptr, &peak2), 0);
            EXPECT_EQ(peak, expected);
            EXPECT_EQ(peak2, expected);
            for (std::size_t i = 0; i < n; ++i) {
                if (std::isnan(x[i])) {
                    EXPECT_TRUE(std::isnan(out[i]) && std::isnan(null[i]));
                    continue;
                }
                EXPECT_TRUE(SameBits(out[i], x[i] * reciprocal));
                EXPECT_TRUE(SameBits(null[i], x[i] * reciprocal));
            }
        }
    });
}

TEST(ArrQuickScale, WithAnInfinitePeakGivesZerosAndNaN) {
    Reals x{1, -kInf, 2}, out = Output(3);
    double peak = kUnwritten;
    EXPECT_EQ(ZemFunc143(x, 3, out, &peak), 0);
    EXPECT_EQ(peak, kInf);
    EXPECT_EQ(out[0], 0);
    EXPECT_TRUE(std::isnan(out[1]));
    EXPECT_EQ(out[2], 0);
}

TEST(ArrQuickScale, RefusesSizesAndTouchesNothing) {
    Reals x{1, 2}, out = Output(2);
    double peak = kUnwritten;
    EXPECT_EQ(ZemFunc143(x, -1, out, &peak), -20003);
    EXPECT_EQ(ZemFunc143(x, kTooLarge, out, &peak), -20046);
    EXPECT_EQ(ZemFunc144(x, 65536, 32768, out, &peak), -20003);
    EXPECT_EQ(ZemFunc144(x, 0, kTooLarge, out, &peak), -20046);
    EXPECT_TRUE(Untouched(out) && peak == kUnwritten);
}

TEST(ArrNormalize, OfAFlatSignalIsNaNWithSuccess) {
    Reals x{2, 2}, out = Output(2);
    double mean = kUnwritten, deviation = kUnwritten;
    EXPECT_EQ(ZemFunc132(x, 2, out, &mean, &deviation), 0);
    EXPECT_EQ(mean, 2);
    EXPECT_EQ(deviation, 0);
    EXPECT_TRUE(std::isnan(out[0]) && std::isnan(out[1]));
}

TEST(ArrNormalize, TakesTwoPassesInIndexOrderAndMultipliesByTheReciprocal) {
    ForEachTarget([] {
        constexpr int n = 333;
        const Reals x = RandomReals(n, 12);
        double sum = 0, squares = 0;
        for (double v : x) sum += v;
        const double mean = sum / n;
        for (double v : x) squares += (v - mean) * (v - mean);
        const double deviation = std::sqrt(squares / n), reciprocal = 1 / deviation;
        Reals source = x, null = x, out = Output(n);
        double got_mean = kUnwritten, got_deviation = kUnwritten;
        EXPECT_EQ(ZemFunc132(source, n, out, &got_mean, &got_deviation), 0);
        EXPECT_TRUE(SameBits(got_mean, mean) && SameBits(got_deviation, deviation));
        EXPECT_EQ(ZemFunc133(null, 3, 111, nullptr, &got_mean, &got_deviation), 0);
        EXPECT_TRUE(SameBits(got_mean, mean) && SameBits(got_deviation, deviation));
        for (int i = 0; i < n; ++i) {
            EXPECT_TRUE(SameBits(out[i], (x[i] - mean) * reciprocal));
            EXPECT_TRUE(SameBits(null[i], out[i]));
        }
    });
}

TEST(ArrNormalize, KeepsADeviationThatASinglePassWouldLose) {
    Reals x{1e9 + 4, 1e9 + 7, 1e9 + 13, 1e9 + 16}, out = Output(4);  // mean 1e9 + 10, squares 36, 9, 9, 36
    double mean = kUnwritten, deviation = kUnwritten;
    EXPECT_EQ(ZemFunc132(x, 4, out, &mean, &deviation), 0);
    EXPECT_EQ(mean, 1e9 + 10);
    EXPECT_EQ(deviation, std::sqrt(22.5));
}

TEST(ArrNormalize2D, RefusesEachSizeBelowOneAfterNarrowing) {
    Reals x(6, 1.0), out = Output(6);
    double mean = kUnwritten, deviation = kUnwritten;
    EXPECT_EQ(ZemFunc132(x, 0, out, &mean, &deviation), -20003);
    EXPECT_EQ(ZemFunc132(x, kTooLarge, out, &mean, &deviation), -20046);
    EXPECT_EQ(ZemFunc133(x, -2, -3, out, &mean, &deviation), -20003);
    EXPECT_EQ(ZemFunc133(x, 0, 3, out, &mean, &deviation), -20003);
    EXPECT_EQ(ZemFunc133(x, 3, 0, out, &mean, &deviation), -20003);
    EXPECT_EQ(ZemFunc133(x, 65536, 32768, out, &mean, &deviation), -20003);
    EXPECT_EQ(ZemFunc133(x, 0, kTooLarge, out, &mean, &deviation), -20046);
    EXPECT_TRUE(Untouched(out) && mean == kUnwritten && deviation == kUnwritten);
}

// The screens have no export of their own.

constexpr double kLargest = std::numeric_limits<double>::max();

TEST(ArrHasNonFinite, RefusesNaNInfinitiesTheLargestDoubleAndALittleMoreBelow) {
    ForEachTarget([] {
        const double bound = -1.7976931348623e308;
        for (double bad : {kNaN, kInf, -kInf, kLargest, -kLargest, bound, std::nextafter(bound, -kInf)})
            for (int n : {1, 2, 40})
                for (int place = 0; place < n; ++place) {
                    Reals x(n, 1.0);
                    x[place] = bad;
                    EXPECT_TRUE(ArrHasNonFinite(x, n)) << bad << " at " << place << " of " << n;
                }
        for (double good : {0.0, -0.0, 4.9406564584124654e-324, std::numeric_limits<double>::min(),
                            std::nextafter(kLargest, 0.0), std::nextafter(bound, 0.0)})
            for (int n : {1, 40}) EXPECT_FALSE(ArrHasNonFinite(Reals(n, good), n)) << good;
    });
}

TEST(ArrHasNonFinite, IsFalseForACountBelowOne) {
    const Reals x{kNaN};
    EXPECT_FALSE(ArrHasNonFinite(x, 0));
    EXPECT_FALSE(ArrHasNonFinite(x, -1));
    EXPECT_FALSE(CxHasNonFinite(Records{{kNaN, kNaN}}, 0));
    EXPECT_FALSE(CxHasNonFinite(Records{{kNaN, kNaN}}, -1));
}

TEST(CxHasNonFinite, LooksAtBothParts) {
    ForEachTarget([] {
        for (double bad : {kNaN, kInf, -kInf, kLargest, -kLargest, -1.7976931348623e308})
            for (int n : {1, 3, 20})
                for (int place = 0; place < n; ++place) {
                    Records re(n, {1, 1}), im(n, {1, 1});
                    re[place].re = bad;
                    im[place].im = bad;
                    EXPECT_TRUE(CxHasNonFinite(re, n));
                    EXPECT_TRUE(CxHasNonFinite(im, n));
                    EXPECT_FALSE(CxHasNonFinite(im, place));
                }
    });
}

}  // namespace
}  // namespace quorvan::testing

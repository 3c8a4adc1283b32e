// Array primitives: filling, moving and element-wise arithmetic.
#include <cmath>
#include <functional>
#include <gtest/gtest.h>

#include "quorvan/quorvan.h"
#include "tests/support/guarded.h"
#include "tests/support/targets.h"

namespace quorvan::testing {
namespace {

using Values = std::vector<double>;

::testing::AssertionResult SameArrays(const Reals& got, const Values& expected) {
    if (got.size() != expected.size()) return ::testing::AssertionFailure() << "sizes differ";
    for (std::size_t i = 0; i < expected.size(); ++i)
        if (!SameBits(got[i], expected[i]))
            return ::testing::AssertionFailure() << "element " << i << " is " << got[i] << ", not " << expected[i];
    return ::testing::AssertionSuccess();
}

// Every element-wise operation as out = f(x), with y fixed: the exports differ only in their other arguments.
constexpr double kCoefficients[] = {0.5, -1.25, 3, 0.75};
constexpr double kUpper = 0.5, kLower = -0.25, kFactor = 1.7, kTerm = -0.3;

struct ElementWise {
    const char* name;
    std::function<Status(double* x, const double* y, Size n, double* out)> call;
    std::function<Status(double* x, const double* y, Size rows, Size cols, double* out)> call2D;  // may be empty
    std::function<double(double x, double y)> formula;
    bool in_place;       // a null output replaces x
    bool sizes_each_2D;  // the 2-D form looks at rows and cols before their product, and before they are narrowed
};

std::vector<ElementWise> ElementWiseOperations() {
    return {
        {"add", [](auto x, auto y, auto n, auto out) { return ZemFunc3(x, y, n, out); },
         [](auto x, auto y, auto r, auto c, auto out) { return ZemFunc4(x, y, r, c, out); },
         [](double x, double y) { return x + y; }, false, false},
        {"subtract", [](auto x, auto y, auto n, auto out) { return ZemFunc167(x, y, n, out); },
         [](auto x, auto y, auto r, auto c, auto out) { return ZemFunc168(x, y, r, c, out); },
         [](double x, double y) { return x - y; }, false, false},
        {"multiply", [](auto x, auto y, auto n, auto out) { return ZemFunc126(x, y, n, out); },
         [](auto x, auto y, auto r, auto c, auto out) { return ZemFunc127(x, y, r, c, out); },
         [](double x, double y) { return x * y; }, false, false},
        {"divide", [](auto x, auto y, auto n, auto out) { return ZemFunc57(x, y, n, out); },
         [](auto x, auto y, auto r, auto c, auto out) { return ZemFunc58(x, y, r, c, out); },
         [](double x, double y) { return x / y; }, false, true},
        {"negate", [](auto x, auto, auto n, auto out) { return ZemFunc128(x, n, out); }, nullptr,
         [](double x, double) { return -x; }, true, false},
        {"abs", [](auto x, auto, auto n, auto out) { return ZemFunc1(x, n, out); }, nullptr,
         [](double x, double) { return std::fabs(x); }, true, false},
        {"linear", [](auto x, auto, auto n, auto out) { return ZemFunc115(x, n, kFactor, kTerm, out); },
         [](auto x, auto, auto r, auto c, auto out) { return ZemFunc116(x, r, c, kFactor, kTerm, out); },
         [](double x, double) { return kFactor * x + kTerm; }, true, false},
        {"polynomial", [](auto x, auto, auto n, auto out) { return ZemFunc135(x, n, kCoefficients, 4, out); },
         [](auto x, auto, auto r, auto c, auto out) { return ZemFunc136(x, r, c, kCoefficients, 4, out); },
         [](double x, double) {
             const double square = x * x, cube = square * x;
             return ((kCoefficients[0] + kCoefficients[1] * x) + kCoefficients[2] * square) + kCoefficients[3] * cube;
         },
         true, false},
        {"clip", [](auto x, auto, auto n, auto out) { return ZemFunc30(x, n, kUpper, kLower, out); }, nullptr,
         [](double x, double) { return x > kUpper   ? kUpper
                                       : kLower > x ? kLower
                                                    : x; }, true, false},
        {"reverse twice",
         [](auto x, auto, auto n, auto out) {
             const Status status = ZemFunc149(x, n, out);
             return status < 0 ? status : ZemFunc149(out ? out : x, n, nullptr);
         },
         nullptr, [](double x, double) { return x; }, true, false},
    };
}

TEST(ElementWise, FollowsItsFormulaToTheLastBitOnEveryInstructionSetAtEveryLengthAndPlace) {
    for (const ElementWise& operation : ElementWiseOperations()) {
        SCOPED_TRACE(operation.name);
        ForEachTarget([&] {
            for (std::size_t n : {1, 2, 3, 7, 8, 9, 15, 16, 17, 31, 64, 65, 100, 511, 513, 1500})
                for (std::size_t place = 0; place < 3; ++place) {
                    Reals x = RandomReals(n + place, 1), y = RandomReals(n + place, 2), out = Output(n + place);
                    ASSERT_EQ(operation.call(x + place, y + place, Size(n), out + place), 0);
                    for (std::size_t i = 0; i < place; ++i) ASSERT_EQ(out[i], kUnwritten);
                    for (std::size_t i = place; i < n + place; ++i)
                        ASSERT_TRUE(SameBits(out[i], operation.formula(x[i], y[i]))) << "element " << i << " of " << n;
                }
        });
    }
}

TEST(ElementWise, WritesOverXWhenTheOutputIsNullOrX) {
    for (const ElementWise& operation : ElementWiseOperations()) {
        SCOPED_TRACE(operation.name);
        ForEachTarget([&] {
            for (bool null : {true, false}) {
                if (null && !operation.in_place) continue;
                Reals x = RandomReals(77, 3), y = RandomReals(77, 4);
                const Reals before = x;
                ASSERT_EQ(operation.call(x, y, 77, null ? nullptr : x.data()), 0);
                for (int i = 0; i < 77; ++i) ASSERT_TRUE(SameBits(x[i], operation.formula(before[i], y[i]))) << i;
            }
        });
    }
}

TEST(ElementWise, OfTwoArraysMayWriteOverTheSecond) {
    for (const ElementWise& operation : ElementWiseOperations()) {
        if (operation.in_place) continue;
        SCOPED_TRACE(operation.name);
        ForEachTarget([&] {
            Reals x = RandomReals(77, 3), y = RandomReals(77, 4);
            const Reals before = y;
            ASSERT_EQ(operation.call(x, y, 77, y), 0);
            for (int i = 0; i < 77; ++i) ASSERT_TRUE(SameBits(y[i], operation.formula(x[i], before[i]))) << i;
        });
    }
}

// Arrays far beyond the caches take another way to memory: it must write every element too.
TEST(ElementWise, CoversArraysBeyondTheCaches) {
    constexpr std::size_t n = (std::size_t{1} << 22) + 5;
    const Reals ordinary = RandomReals(n, 5), second = RandomReals(n, 6);
    for (const ElementWise& operation : ElementWiseOperations()) {
        SCOPED_TRACE(operation.name);
        ForEachTarget([&] {
            Reals x = ordinary, out = Output(n);
            ASSERT_EQ(operation.call(x, second, n, out), 0);
            std::size_t wrong = 0;
            for (std::size_t i = 0; i < n; ++i) wrong += !SameBits(out[i], operation.formula(ordinary[i], second[i]));
            EXPECT_EQ(wrong, 0u);
        });
    }
}

TEST(ElementWise, RefusesSizesAndTouchesNothing) {
    for (const ElementWise& operation : ElementWiseOperations()) {
        SCOPED_TRACE(operation.name);
        Reals x{1, 2}, y{3, 4}, out = Output(2);
        EXPECT_EQ(operation.call(x, y, 0, out), -20003);
        EXPECT_EQ(operation.call(x, y, -1, out), -20003);
        EXPECT_EQ(operation.call(x, y, INT32_MIN, out), -20003);
        EXPECT_EQ(operation.call(x, y, kTooLarge, out), -20046);
        EXPECT_EQ(operation.call(x, y, -kTooLarge - 1, out), -20046);
        EXPECT_EQ(operation.call(x, y, (Size{1} << 32) + 2, out), -20046);
        EXPECT_TRUE(Untouched(out));
        EXPECT_TRUE(SameArrays(x, {1, 2}));
    }
}

TEST(ElementWise, Forms2DCountsIn32Bits) {
    Reals x(65536, 1.0), y(65536, 2.0);
    for (const ElementWise& operation : ElementWiseOperations()) {
        if (!operation.call2D) continue;
        SCOPED_TRACE(operation.name);
        Reals out = Output(65536);
        EXPECT_EQ(operation.call2D(x, y, 65536, 32768, out), -20003) << "a product of 2^31 is negative";
        EXPECT_EQ(operation.call2D(x, y, 65536, 65536, out), -20003) << "a product of 2^32 is zero";
        EXPECT_EQ(operation.call2D(x, y, 0, 5, out), -20003);
        EXPECT_EQ(operation.call2D(x, y, -2, 5, out), -20003);
        EXPECT_TRUE(Untouched(out));
        EXPECT_EQ(operation.call2D(x, y, 65536, 65537, out), 0);
        for (double v : out) ASSERT_EQ(v, operation.formula(1, 2));
    }
}

TEST(ElementWise, Of2DArraysRunsOnTheProductOfTwoNegativeSizesWhereOnlyTheProductIsTested) {
    for (const ElementWise& operation : ElementWiseOperations()) {
        if (!operation.call2D) continue;
        SCOPED_TRACE(operation.name);
        Reals x(6, 1.0), y(6, 2.0), out = Output(6);
        EXPECT_EQ(operation.call2D(x, y, -2, -3, out), operation.sizes_each_2D ? -20003 : 0);
        EXPECT_EQ(Untouched(out), operation.sizes_each_2D);
    }
}

TEST(ElementWise, Of2DArraysNarrowsBeforeItLooksForSmallSizesExceptInDivision) {
    for (const ElementWise& operation : ElementWiseOperations()) {
        if (!operation.call2D) continue;
        SCOPED_TRACE(operation.name);
        Reals x(6, 1.0), y(6, 2.0), out = Output(6);
        const Status both = operation.sizes_each_2D ? -20003 : -20046;
        EXPECT_EQ(operation.call2D(x, y, -kTooLarge - 1, 1, out), both);
        EXPECT_EQ(operation.call2D(x, y, kTooLarge, 0, out), both);
        EXPECT_EQ(operation.call2D(x, y, 0, kTooLarge, out), both);
        EXPECT_EQ(operation.call2D(x, y, kTooLarge, 1, out), -20046);
        EXPECT_EQ(operation.call2D(x, y, 1, kTooLarge, out), -20046);
        EXPECT_TRUE(Untouched(out));
    }
}

TEST(ArrDivide, StopsAtAZeroOfEitherSignWithEarlierQuotientsWritten) {
    for (double zero : {0.0, -0.0}) {
        const Reals x{1, 2, 3}, y{1, zero, 1};
        Reals out = Output(3);
        EXPECT_EQ(ZemFunc57(x, y, 3, out), -20060);
        EXPECT_TRUE(SameArrays(out, {1, kUnwritten, kUnwritten}));
    }
}

TEST(ArrDivide, StopsAtTheFirstZeroWhereverItStands) {
    ForEachTarget([] {
        constexpr int n = 1100;
        const Reals x = RandomReals(n, 1), ordinary = RandomReals(n, 2);
        for (int zero = 0; zero < n; ++zero) {
            Reals y = ordinary, out = Output(n);
            y[zero] = 0;
            if (zero + 3 < n) y[zero + 3] = 0;
            ASSERT_EQ(ZemFunc57(x, y, n, out), -20060);
            for (int i = 0; i < zero; ++i) ASSERT_TRUE(SameBits(out[i], x[i] / y[i])) << i << " before " << zero;
            for (int i = zero; i < n; ++i) ASSERT_EQ(out[i], kUnwritten) << i << " after " << zero;
        }
    });
}

TEST(ArrDivide, DividesByNaNAndByDenormals) {
    const double denormal = 4.9406564584124654e-324;
    const Reals x{1, 1, denormal}, y{kNaN, kInf, denormal};
    Reals out = Output(3);
    EXPECT_EQ(ZemFunc57(x, y, 3, out), 0);
    EXPECT_TRUE(std::isnan(out[0]));
    EXPECT_EQ(out[1], 0);
    EXPECT_EQ(out[2], 1);
}

// NaN with a sign and a payload of its own.
double MarkedNaN(bool negative) {
    return std::bit_cast<double>(std::uint64_t{negative ? 0xFFF8000000001234u : 0x7FF8000000001234u});
}

TEST(ArrNegate, FlipsTheSignBitAlsoOfNaNAndZero) {
    ForEachTarget([] {
        for (std::size_t n : {5, 21}) {
            Reals x(n), out = Output(n);
            const Values pattern{0.0, -0.0, MarkedNaN(false), MarkedNaN(true), -kInf};
            const Values flipped{-0.0, 0.0, MarkedNaN(true), MarkedNaN(false), kInf};
            for (std::size_t i = 0; i < n; ++i) x[i] = pattern[i % 5];
            EXPECT_EQ(ZemFunc128(x, Size(n), out), 0);
            for (std::size_t i = 0; i < n; ++i) EXPECT_TRUE(SameBits(out[i], flipped[i % 5])) << i;
        }
    });
}

TEST(ArrAbs, ClearsTheSignBitAlsoOfNaNAndZero) {
    ForEachTarget([] {
        for (std::size_t n : {5, 21}) {
            Reals x(n), out = Output(n);
            const Values pattern{0.0, -0.0, MarkedNaN(false), MarkedNaN(true), -kInf};
            const Values cleared{0.0, 0.0, MarkedNaN(false), MarkedNaN(false), kInf};
            for (std::size_t i = 0; i < n; ++i) x[i] = pattern[i % 5];
            EXPECT_EQ(ZemFunc1(x, Size(n), out), 0);
            for (std::size_t i = 0; i < n; ++i) EXPECT_TRUE(SameBits(out[i], cleared[i % 5])) << i;
        }
    });
}

TEST(ArrClear, WritesPositiveZeros) {
    Reals x{-1, kNaN, -0.0};
    EXPECT_EQ(ZemFunc29(x, 3), 0);
    EXPECT_TRUE(SameArrays(x, {0.0, 0.0, 0.0}));
    EXPECT_EQ(ZemFunc29(x, 0), -20003);
    EXPECT_EQ(ZemFunc29(x, kTooLarge), -20046);
}

TEST(ArrFill, WritesTheValueItselfNaNAndNegativeZeroIncluded) {
    ForEachTarget([] {
        for (double value : {2.5, -0.0, MarkedNaN(true)})
            for (std::size_t n = 1; n < 40; ++n) {
                Reals x = Output(n);
                ASSERT_EQ(ZemFunc155(x, Size(n), value), 0);
                EXPECT_TRUE(SameArrays(x, Values(n, value)));
            }
    });
    Reals x = Output(2);
    EXPECT_EQ(ZemFunc155(x, -1, 1), -20003);
    EXPECT_EQ(ZemFunc155(x, kTooLarge, 1), -20046);
    EXPECT_TRUE(Untouched(x));
}

TEST(ArrFill, CoversArraysBeyondTheCaches) {
    constexpr std::size_t n = (std::size_t{1} << 22) + 3;
    ForEachTarget([] {
        Reals x = Output(n);
        ASSERT_EQ(ZemFunc155(x, n, 4.0), 0);
        EXPECT_TRUE(std::all_of(x.begin(), x.end(), [](double v) { return v == 4.0; }));
    });
}

TEST(ArrCopy, CopiesBytes) {
    const Reals x{1, MarkedNaN(true), -0.0};
    Reals out = Output(3);
    EXPECT_EQ(ZemFunc34(x, 3, out), 0);
    EXPECT_TRUE(SameArrays(out, x.values()));
    EXPECT_EQ(ZemFunc34(x, 0, out), -20003);
    EXPECT_EQ(ZemFunc34(x, kTooLarge, out), -20046);
}

TEST(ArrSubset, CopiesAPartAlsoUpToTheEnd) {
    const Reals x{0, 1, 2, 3, 4};
    Reals out = Output(2);
    EXPECT_EQ(ZemFunc169(x, 5, 1, 2, out), 0);
    EXPECT_TRUE(SameArrays(out, {1, 2}));
    EXPECT_EQ(ZemFunc169(x, 5, 3, 2, out), 0);
    EXPECT_TRUE(SameArrays(out, {3, 4}));
}

TEST(ArrSubset, TestsCountThenIndexThenLengthThenTheirSum) {
    const Reals x{0, 1, 2, 3, 4};
    Reals out = Output(5);
    EXPECT_EQ(ZemFunc169(x, 0, -1, 0, out), -20003);
    EXPECT_EQ(ZemFunc169(x, 5, -1, 0, out), -20017);
    EXPECT_EQ(ZemFunc169(x, 5, 5, 0, out), -20017);
    EXPECT_EQ(ZemFunc169(x, 5, 4, 0, out), -20003);
    EXPECT_EQ(ZemFunc169(x, 5, 4, -7, out), -20003);
    EXPECT_EQ(ZemFunc169(x, 5, 4, 2, out), -20018);
    EXPECT_EQ(ZemFunc169(x, 5, 0, 6, out), -20018);
    EXPECT_EQ(ZemFunc169(x, 5, 4, INT32_MAX, out), -20018) << "a sum beyond 32 bits is no small one";
    EXPECT_EQ(ZemFunc169(x, kTooLarge, -1, 0, out), -20046);
    EXPECT_EQ(ZemFunc169(x, 0, kTooLarge, 0, out), -20046);
    EXPECT_EQ(ZemFunc169(x, 0, -1, kTooLarge, out), -20046);
    EXPECT_TRUE(Untouched(out));
}

TEST(ArrReverse, TurnsTheOrderInPlaceAndApart) {
    for (std::size_t n : {1, 2, 3, 8, 17, 64, 101}) {
        const Reals x = RandomReals(n);
        Values reversed(x.begin(), x.end());
        std::reverse(reversed.begin(), reversed.end());
        ForEachTarget([&] {
            Reals apart = Output(n), same = x, null = x, source = x;
            EXPECT_EQ(ZemFunc149(source, Size(n), apart), 0);
            EXPECT_EQ(ZemFunc149(same, Size(n), same), 0);
            EXPECT_EQ(ZemFunc149(null, Size(n), nullptr), 0);
            EXPECT_TRUE(SameArrays(apart, reversed));
            EXPECT_TRUE(SameArrays(same, reversed));
            EXPECT_TRUE(SameArrays(null, reversed));
            EXPECT_TRUE(SameArrays(source, x.values()));
        });
    }
}

TEST(ArrShift, MovesUpForPositiveAndDownForNegativeShifts) {
    constexpr int n = 9;
    for (int shift = -n; shift <= n; ++shift) {
        const Reals x = RandomReals(n);
        Values expected(n, 0.0);
        for (int i = 0; i < n; ++i)
            if (i - shift >= 0 && i - shift < n) expected[i] = x[i - shift];
        Reals apart = Output(n), same = x, null = x, source = x;
        EXPECT_EQ(ZemFunc156(source, n, shift, apart), 0);
        EXPECT_EQ(ZemFunc156(same, n, shift, same), 0);
        EXPECT_EQ(ZemFunc156(null, n, shift, nullptr), 0);
        EXPECT_TRUE(SameArrays(apart, expected)) << shift;
        EXPECT_TRUE(SameArrays(same, expected)) << shift;
        EXPECT_TRUE(SameArrays(null, expected)) << shift;
    }
}

TEST(ArrShift, ByTheCountLeavesZerosAndByOneMoreIsRefused) {
    Reals x{1, 2, 3}, out = Output(3);
    EXPECT_EQ(ZemFunc156(x, 3, 4, out), -20102);
    EXPECT_EQ(ZemFunc156(x, 3, -4, out), -20102);
    EXPECT_EQ(ZemFunc156(x, 3, INT32_MIN, out), -20102);
    EXPECT_EQ(ZemFunc156(x, 0, 4, out), -20003);
    EXPECT_EQ(ZemFunc156(x, 0, kTooLarge, out), -20046);
    EXPECT_EQ(ZemFunc156(x, kTooLarge, 0, out), -20046);
    EXPECT_TRUE(Untouched(out));
    EXPECT_EQ(ZemFunc156(x, 3, 3, out), 0);
    EXPECT_TRUE(SameArrays(out, {0, 0, 0}));
    EXPECT_EQ(ZemFunc156(x, 3, -3, nullptr), 0);
    EXPECT_TRUE(SameArrays(x, {0, 0, 0}));
}

TEST(ArrSum, AddsInIndexOrder) {
    const Reals x{1e16, 1, 1, -1e16};  // from the left, each 1 is lost
    double sum = kUnwritten;
    EXPECT_EQ(ZemFunc170(x, 4, &sum), 0);
    EXPECT_EQ(sum, 0);
    EXPECT_EQ(ZemFunc171(x, 2, 2, &sum), 0);
    EXPECT_EQ(sum, 0);
    const Reals random = RandomReals(1000);
    double expected = 0;
    for (double v : random) expected += v;
    EXPECT_EQ(ZemFunc170(random, 1000, &sum), 0);
    EXPECT_TRUE(SameBits(sum, expected));
}

TEST(ArrSum, StartsAtPositiveZeroAndRefusesSizes) {
    const Reals x{-0.0};
    double sum = kUnwritten;
    EXPECT_EQ(ZemFunc170(x, 0, &sum), -20003);
    EXPECT_EQ(ZemFunc170(x, kTooLarge, &sum), -20046);
    EXPECT_EQ(ZemFunc171(x, 65536, 32768, &sum), -20003);
    EXPECT_EQ(ZemFunc171(x, 0, kTooLarge, &sum), -20046);
    EXPECT_EQ(sum, kUnwritten);
    EXPECT_EQ(ZemFunc170(x, 1, &sum), 0);
    EXPECT_TRUE(SameBits(sum, 0.0));
    const Reals ones(65536, 1.0);
    EXPECT_EQ(ZemFunc171(ones, 65536, 65537, &sum), 0);
    EXPECT_EQ(sum, 65536);
}

TEST(ArrProduct, MultipliesInIndexOrder) {
    const Reals x{1e300, 1e300, 1e-300};  // from the left, this overflows
    double product = kUnwritten;
    EXPECT_EQ(ZemFunc140(x, 0, &product), -20003);
    EXPECT_EQ(ZemFunc140(x, kTooLarge, &product), -20046);
    EXPECT_EQ(product, kUnwritten);
    EXPECT_EQ(ZemFunc140(x, 3, &product), 0);
    EXPECT_EQ(product, kInf);
    EXPECT_EQ(ZemFunc140(x + 2, 1, &product), 0);
    EXPECT_EQ(product, 1e-300);
}

TEST(ArrPolyEval, AddsPowersRatherThanNesting) {
    // By powers 1e200² overflows and inf - inf is NaN; nested, (1e200 - 1e200)·1e200 is 0.
    Reals x{1e200}, out = Output(1);
    const Reals coef{0, -1e200, 1};
    EXPECT_EQ(ZemFunc135(x, 1, coef, 3, out), 0);
    EXPECT_TRUE(std::isnan(out[0]));
}

TEST(ArrPolyEval, RefusesACountOfCoefficientsBelowOneAndTakesOne) {
    Reals x{3, kNaN}, out = Output(2);
    const Reals coef{2.5};
    EXPECT_EQ(ZemFunc135(x, 2, coef, 0, out), -20003);
    EXPECT_EQ(ZemFunc135(x, 2, coef, -1, out), -20003);
    EXPECT_EQ(ZemFunc136(x, 2, 1, coef, 0, out), -20003);
    EXPECT_EQ(ZemFunc135(x, kTooLarge, coef, 0, out), -20046);
    EXPECT_TRUE(Untouched(out));
    EXPECT_EQ(ZemFunc135(x, 2, coef, 1, out), 0);
    EXPECT_TRUE(SameArrays(out, {2.5, 2.5})) << "without a power of x, NaN has no way in";
}

TEST(ArrClip, RefusesALowerLimitAboveTheUpper) {
    Reals x{1, 2}, out = Output(2);
    EXPECT_EQ(ZemFunc30(x, 2, 1, 2, out), -20019);
    EXPECT_EQ(ZemFunc30(x, 0, 1, 2, out), -20003) << "the count is tested first";
    EXPECT_EQ(ZemFunc30(x, kTooLarge, 1, 2, out), -20046);
    EXPECT_TRUE(Untouched(out));
}

TEST(ArrClip, WithEqualLimitsMakesEveryNumberThatValueAndKeepsNaN) {
    ForEachTarget([] {
        Reals x{-1, 5, MarkedNaN(true), 2, kInf, -kInf, 0, 9, MarkedNaN(false)}, out = Output(9);
        EXPECT_EQ(ZemFunc30(x, 9, 2, 2, out), 0);
        EXPECT_TRUE(SameArrays(out, {2, 2, MarkedNaN(true), 2, 2, 2, 2, 2, MarkedNaN(false)}));
    });
}

TEST(ArrClip, WithALimitOfNaNLeavesThatSideOpen) {
    ForEachTarget([] {
        Reals x{-5, -1, 0, 1, 5, -5, -1, 0, 1}, out = Output(9);
        EXPECT_EQ(ZemFunc30(x, 9, kNaN, -1, out), 0);
        EXPECT_TRUE(SameArrays(out, {-1, -1, 0, 1, 5, -1, -1, 0, 1}));
        EXPECT_EQ(ZemFunc30(x, 9, 1, kNaN, out), 0);
        EXPECT_TRUE(SameArrays(out, {-5, -1, 0, 1, 1, -5, -1, 0, 1}));
    });
}

}  // namespace
}  // namespace quorvan::testing

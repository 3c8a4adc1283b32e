// Convolution and correlation of sequences.
#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <string>

#include "quorvan/quorvan.h"
#include "tests/support/failing_heap.h"
#include "tests/support/targets.h"
#include "tests/transforms/reference.h"
#include "transforms/block_convolution.h"
#include "transforms/fft_plan.h"

namespace quorvan::testing {
namespace {

ComplexRecord operator*(ComplexRecord a, ComplexRecord b) {
    return {a.re * b.re - a.im * b.im, a.im * b.re + a.re * b.im};
}
ComplexRecord& operator+=(ComplexRecord& a, ComplexRecord b) {
    a = {a.re + b.re, a.im + b.im};
    return a;
}

Reals Reversed(const Reals& x) {
    return Reals(std::vector<double>(std::reverse_iterator(x.end()), std::reverse_iterator(x.begin())));
}
Records ReversedConjugate(const Records& x) {
    Records out(std::vector<ComplexRecord>(std::reverse_iterator(x.end()), std::reverse_iterator(x.begin())));
    for (ComplexRecord& v : out) v.im = -v.im;
    return out;
}

// The sum over i of a[i] b[l - i], i ascending, in plain doubles.
template <class T>
Guarded<T> Convolved(const Guarded<T>& a, const Guarded<T>& b) {
    Guarded<T> out(a.size() + b.size() - 1);
    for (std::size_t i = 0; i < a.size(); ++i)
        for (std::size_t j = 0; j < b.size(); ++j) out[i + j] += a[i] * b[j];
    return out;
}

template <class T>
void ExpectSame(const Guarded<T>& expected, const Guarded<T>& got) {
    ASSERT_EQ(expected.size(), got.size());
    EXPECT_EQ(std::memcmp(expected.data(), got.data(), expected.size() * sizeof(T)), 0)
        << "of " << expected.size() << " elements";
}

// Two transforms there, one back: the spectra are bounded by the norms of the inputs.
template <class T>
double FftBound(const Guarded<T>& x, const Guarded<T>& y) {
    const double length = x.size() + y.size();
    return 3 * Rounding(2 * length, Norm(x) * Norm(y));
}

constexpr struct {
    int n, m;
} kSizes[] = {{1, 1}, {1, 2},  {2, 1},  {3, 3},   {4, 4},   {3, 5},   {5, 3},   {4, 9},
              {9, 4}, {7, 30}, {30, 7}, {33, 33}, {17, 64}, {64, 17}, {5, 100}, {100, 6}};

// ConvolveReal

TEST(ConvolveReal, OfOneTwoAndOneThreeIsOneFiveSix) {
    const Reals x{1, 2}, y{1, 3}, expected{1, 5, 6};
    Reals out = Output(3);
    ASSERT_EQ(ZemFunc372(x, 2, y, 2, 0, out), 0);
    ExpectSame(expected, out);
    ASSERT_EQ(ZemFunc372(x, 2, y, 2, 1, out), 0);
    ExpectNear(expected, out, FftBound(x, y));
    ASSERT_EQ(ZemFunc32(x, 2, y, 2, out), 0);
    ExpectNear(expected, out, FftBound(x, y));
}

TEST(ConvolveReal, DirectAddsInTheOrderOfXOnEveryInstructionSet) {
    ForEachTarget([] {
        for (auto [n, m] : kSizes) {
            const Reals x = RandomReals(n, 1), y = RandomReals(m, 2);
            Reals out = Output(n + m - 1);
            ASSERT_EQ(ZemFunc372(x, n, y, m, 0, out), 0);
            ExpectSame(Convolved(x, y), out);
        }
    });
}

TEST(ConvolveReal, ByTransformsAgreesWithTheSumOnEveryInstructionSet) {
    ForEachTarget([] {
        for (auto [n, m] : kSizes) {
            const Reals x = RandomReals(n, 3), y = RandomReals(m, 4);
            Reals out = Output(n + m - 1);
            ASSERT_EQ(ZemFunc32(x, n, y, m, out), 0);
            ExpectNear(Convolved(x, y), out, FftBound(x, y));
        }
    });
}

TEST(ConvolveReal, OfAnArrayWithItselfIsAnOrdinaryProduct) {
    const Reals x{1, 2, -1}, expected{1, 4, 2, -4, 1};
    Reals out = Output(5);
    ASSERT_EQ(ZemFunc32(x, 3, x, 3, out), 0);
    ExpectNear(expected, out, FftBound(x, x));
}

TEST(ConvolveReal, WithAnUnknownMethodDoesNothingAndSucceeds) {
    const Reals x{1, 2}, y{1, 3};
    for (int method : {2, -1, INT32_MAX}) {
        Reals out = Output(3);
        EXPECT_EQ(ZemFunc372(x, 2, y, 2, method, out), 0);
        EXPECT_TRUE(Untouched(out));
        EXPECT_EQ(ZemFunc372(x, 0, y, 2, method, out), -20003);
    }
}

// ConvolveComplex

TEST(ConvolveComplex, DirectAddsAlongTheLongerSequence) {
    ForEachTarget([] {
        for (auto [n, m] : kSizes) {
            const Records x = RandomRecords(n, 5), y = RandomRecords(m, 6);
            Records out = RecordOutput(n + m - 1);
            ASSERT_EQ(ZemFunc391(x, n, y, m, 0, out), 0);
            ExpectSame(n >= m ? Convolved(x, y) : Convolved(y, x), out);
        }
    });
}

TEST(ConvolveComplex, ByTransformsAgreesWithTheSum) {
    ForEachTarget([] {
        for (auto [n, m] : kSizes) {
            const Records x = RandomRecords(n, 7), y = RandomRecords(m, 8);
            Records out = RecordOutput(n + m - 1);
            ASSERT_EQ(ZemFunc391(x, n, y, m, 1, out), 0);
            ExpectNear(Convolved(x, y), out, FftBound(x, y));
        }
    });
}

TEST(ConvolveComplex, RefusesAnUnknownMethod) {
    const Records x{{1, 2}}, y{{3, 4}};
    Records out = RecordOutput(1);
    EXPECT_EQ(ZemFunc391(x, 1, y, 1, 2, out), -20061);
    EXPECT_EQ(ZemFunc391(x, 1, y, 1, 0xFFFFFFFF, out), -20061);
    EXPECT_EQ(ZemFunc391(x, 0, y, 1, 2, out), -20003);
    EXPECT_EQ(ZemFunc391(x, 1, y, -1, 2, out), -20003);
    EXPECT_TRUE(Untouched(out));
}

// CorrelateReal

TEST(CorrelateReal, OfOneTwoWithOneThreeIsTwoSevenThree) {
    const Reals x{1, 2}, y{1, 3}, expected{2, 7, 3};
    Reals out = Output(3);
    ASSERT_EQ(ZemFunc373(x, 2, y, 2, 0, out), 0);
    ExpectSame(expected, out);
    ASSERT_EQ(ZemFunc373(x, 2, y, 2, 1, out), 0);
    ExpectNear(expected, out, FftBound(x, y));
    ASSERT_EQ(ZemFunc33(x, 2, y, 2, out), 0);
    ExpectNear(expected, out, FftBound(x, y));
}

TEST(CorrelateReal, DirectAddsInTheOrderOfYOnEveryInstructionSet) {
    ForEachTarget([] {
        for (auto [n, m] : kSizes) {
            const Reals x = RandomReals(n, 9), y = RandomReals(m, 10);
            Reals out = Output(n + m - 1);
            ASSERT_EQ(ZemFunc373(x, n, y, m, 0, out), 0);
            ExpectSame(Convolved(y, Reversed(x)), out);
        }
    });
}

TEST(CorrelateReal, ByTransformsAgreesWithTheSum) {
    for (auto [n, m] : kSizes) {
        const Reals x = RandomReals(n, 11), y = RandomReals(m, 12);
        Reals out = Output(n + m - 1);
        ASSERT_EQ(ZemFunc33(x, n, y, m, out), 0);
        ExpectNear(Convolved(Reversed(x), y), out, FftBound(x, y));
    }
}

TEST(CorrelateReal, TakesTheAutocorrelationPathForOnePointerAndUsesOnlyN) {
    const Reals x{1, 2, 3, 4, 5};
    const Reals first{1, 2, 3};
    const Reals expected = Convolved(Reversed(first), first);  // 5 elements
    Reals out = Output(3 + 5 - 1);
    ASSERT_EQ(ZemFunc33(x, 3, x, 5, out), 0);
    for (int i = 0; i < 5; ++i) EXPECT_NEAR(out[i], expected[i], FftBound(first, first));
    for (int i = 5; i < 7; ++i) EXPECT_EQ(out[i], kUnwritten);
    // Normalisation covers n + m - 1 elements all the same.
    ASSERT_EQ(ZemFunc376(x, 3, x, 5, 1, 2, out), 0);
    for (int i = 0; i < 5; ++i) EXPECT_NEAR(out[i], expected[i] / 5, FftBound(first, first));
    for (int i = 5; i < 7; ++i) EXPECT_EQ(out[i], kUnwritten / 5);
    // A copy at another address goes the ordinary way, as does the direct method.
    const Reals copy = x;
    ASSERT_EQ(ZemFunc33(x, 3, copy, 5, out), 0);
    ExpectNear(Convolved(Reversed(first), x), out, FftBound(x, x));
    ASSERT_EQ(ZemFunc373(x, 3, x, 5, 0, out), 0);
    ExpectSame(Convolved(x, Reversed(first)), out);
}

template <class T>
Guarded<T> Normalised(Guarded<T> out, int n, int m, int normalisation) {
    for (int i = 0; i < n + m - 1; ++i) {
        const int overlap = std::min({i + 1, n, m, n + m - 1 - i});
        const double divisor = normalisation == 0 ? 1 : normalisation == 1 ? overlap : std::max(n, m);
        if constexpr (std::is_same_v<T, double>)
            out[i] /= divisor;
        else
            out[i] = {out[i].re / divisor, out[i].im / divisor};
    }
    return out;
}

TEST(Correlate, DividesByTheOverlapOrByTheLongerLength) {
    for (auto [n, m] : kSizes) {
        const Reals x = RandomReals(n, 13), y = RandomReals(m, 14);
        const Records z = RandomRecords(n, 13), v = RandomRecords(m, 14);
        for (int normalisation : {0, 1, 2}) {
            Reals reals = Output(n + m - 1);
            Records records = RecordOutput(n + m - 1);
            ASSERT_EQ(ZemFunc376(x, n, y, m, 0, normalisation, reals), 0);
            ExpectSame(Normalised(Convolved(y, Reversed(x)), n, m, normalisation), reals);
            ASSERT_EQ(ZemFunc490(z, n, v, m, 0, normalisation, records), 0);
            ExpectSame(Normalised(n >= m ? Convolved(ReversedConjugate(z), v) : Convolved(v, ReversedConjugate(z)), n,
                                  m, normalisation),
                       records);
        }
    }
}

TEST(CorrelateReal, WithAnUnknownNormalisationWritesTheRawResult) {
    const Reals x{1, 2}, y{1, 3}, expected{2, 7, 3};
    for (std::uint32_t normalisation : {3u, 0xFFFFFFFFu}) {
        Reals out = Output(3);
        EXPECT_EQ(ZemFunc376(x, 2, y, 2, 0, normalisation, out), -20061);
        ExpectSame(expected, out);
        out = Output(3);
        EXPECT_EQ(ZemFunc376(x, 2, y, 2, 1, normalisation, out), -20061);
        ExpectNear(expected, out, FftBound(x, y));
    }
}

TEST(CorrelateReal, WithAnUnknownMethodStillNormalisesTheUntouchedOutput) {
    const Reals x{1, 2}, y{1, 3};
    Reals out{8, 8, 8};
    EXPECT_EQ(ZemFunc376(x, 2, y, 2, 2, 0, out), 0);
    ExpectSame(Reals{8, 8, 8}, out);
    EXPECT_EQ(ZemFunc376(x, 2, y, 2, 2, 1, out), 0);
    ExpectSame(Reals{8, 4, 8}, out);
    EXPECT_EQ(ZemFunc376(x, 2, y, 2, -1, 2, out), 0);
    ExpectSame(Reals{4, 2, 4}, out);
    EXPECT_EQ(ZemFunc376(x, 2, y, 2, 2, 3, out), -20061);
    ExpectSame(Reals{4, 2, 4}, out);
    EXPECT_EQ(ZemFunc373(x, 2, y, 2, 7, out), 0);
    ExpectSame(Reals{4, 2, 4}, out);
}

TEST(CorrelateReal, NormalisesAlsoAfterAFailureAndKeepsItsStatus) {
    const Reals x{1, 2}, y{1, 3};
    for (const double* second : {static_cast<const double*>(y), static_cast<const double*>(x)}) {
        Reals out{8, 8, 8};
        FailAllocation(0);
        EXPECT_EQ(ZemFunc376(x, 2, second, 2, 1, 2, out), -20001);
        ExpectSame(Reals{4, 4, 4}, out);
        FailAllocation(0);
        EXPECT_EQ(ZemFunc376(x, 2, second, 2, 1, 3, out), -20001);
        ExpectSame(Reals{4, 4, 4}, out);
        FailAllocation(-1);
    }
}

TEST(AutoCorrelateReal, IsTheCorrelationWithItself) {
    for (int n : {1, 2, 3, 10, 27, 64}) {
        const Reals x = RandomReals(n, 15);
        for (int normalisation : {0, 1, 2}) {
            Reals out = Output(2 * n - 1);
            ASSERT_EQ(ZemFunc424(x, n, normalisation, out), 0);
            ExpectNear(Normalised(Convolved(Reversed(x), x), n, n, normalisation), out, FftBound(x, x));
        }
        Reals out = Output(2 * n - 1);
        EXPECT_EQ(ZemFunc424(x, n, 3, out), -20061);
        ExpectNear(Convolved(Reversed(x), x), out, FftBound(x, x));
        EXPECT_EQ(ZemFunc424(x, n, -1, out), -20061);
    }
}

TEST(AutoCorrelateReal, OfOneElementIsItsSquare) {
    const Reals x{-3};
    for (int normalisation : {0, 1, 2}) {
        Reals out = Output(1);
        ASSERT_EQ(ZemFunc424(x, 1, normalisation, out), 0);
        EXPECT_EQ(out[0], 9);
    }
}

// CorrelateComplex

TEST(CorrelateComplex, ConjugatesTheFirstSequence) {
    const Records x{{0, 1}}, y{{0, 1}, {2, 0}};
    for (std::uint32_t method : {0u, 1u}) {
        Records out = RecordOutput(2);
        ASSERT_EQ(ZemFunc421(x, 1, y, 2, method, out), 0);
        ExpectNear(Records{{1, 0}, {0, -2}}, out, FftBound(x, y));
    }
}

TEST(CorrelateComplex, AgreesWithTheSumWithBothMethods) {
    for (auto [n, m] : kSizes) {
        const Records x = RandomRecords(n, 16), y = RandomRecords(m, 17);
        for (std::uint32_t method : {0u, 1u}) {
            Records out = RecordOutput(n + m - 1);
            ASSERT_EQ(ZemFunc421(x, n, y, m, method, out), 0);
            ExpectNear(Convolved(ReversedConjugate(x), y), out, FftBound(x, y));
        }
    }
}

TEST(CorrelateComplex, EndsAtAnErrorWithoutNormalisation) {
    const Records x{{1, 0}, {2, 0}};
    Records out(3, ComplexRecord{8, 8});
    EXPECT_EQ(ZemFunc490(x, 2, x, 2, 2, 2, out), -20061);
    EXPECT_EQ(ZemFunc421(x, 2, x, 2, 2, out), -20061);
    FailAllocation(0);
    EXPECT_EQ(ZemFunc490(x, 2, x, 2, 1, 2, out), -20001);
    FailAllocation(-1);
    for (ComplexRecord v : out) EXPECT_TRUE(v.re == 8 && v.im == 8);
}

TEST(CorrelateComplex, WithAnUnknownNormalisationWritesTheRawResult) {
    const Records x{{1, 0}, {2, 0}}, y{{1, 0}, {3, 0}};
    Records out = RecordOutput(3);
    EXPECT_EQ(ZemFunc490(x, 2, y, 2, 0, 3, out), -20061);
    ExpectNear(Records{{2, 0}, {7, 0}, {3, 0}}, out, 0);
}

TEST(AutoCorrelateComplex, IsTheCorrelationWithItself) {
    for (int n : {1, 2, 3, 10, 27}) {
        const Records x = RandomRecords(n, 18);
        for (int normalisation : {0, 1, 2}) {
            Records out = RecordOutput(2 * n - 1);
            ASSERT_EQ(ZemFunc425(x, n, normalisation, out), 0);
            ExpectNear(Normalised(Convolved(ReversedConjugate(x), x), n, n, normalisation), out, FftBound(x, x));
        }
        Records out = RecordOutput(2 * n - 1);
        EXPECT_EQ(ZemFunc425(x, n, 3, out), -20061);
        ExpectNear(Convolved(ReversedConjugate(x), x), out, FftBound(x, x));
    }
}

// By blocks, when one sequence is much longer than the other. The direct sum, tested above, is the truth; its own
// error, of m products an element, is a small part of the bound.

template <class T>
Guarded<T> Noise(int n, int seed) {
    if constexpr (std::is_same_v<T, double>)
        return RandomReals(n, seed);
    else
        return RandomRecords(n, seed);
}

// Calls check(x, y) with the longer sequence first and second.
template <class T, class Check>
void InBothOrders(int n, int m, Check check) {
    const Guarded<T> x = Noise<T>(n, 21), y = Noise<T>(m, 22);
    check(x, y);
    check(y, x);
}

void ExpectBlocksAgree(int n, int m) {
    SCOPED_TRACE(std::to_string(n) + " and " + std::to_string(m));
    InBothOrders<double>(n, m, [](const Reals& x, const Reals& y) {
        const Size n = x.size(), m = y.size();
        Reals expected = Output(n + m - 1), out = Output(n + m - 1);
        ASSERT_EQ(ZemFunc372(x, n, y, m, 0, expected), 0);
        ASSERT_EQ(ZemFunc32(x, n, y, m, out), 0);
        ExpectNear(expected, out, FftBound(x, y));
        ASSERT_EQ(ZemFunc373(x, n, y, m, 0, expected), 0);
        ASSERT_EQ(ZemFunc33(x, n, y, m, out), 0);
        ExpectNear(expected, out, FftBound(x, y));
    });
    InBothOrders<ComplexRecord>(n, m, [](const Records& x, const Records& y) {
        const Size n = x.size(), m = y.size();
        Records expected = RecordOutput(n + m - 1), out = RecordOutput(n + m - 1);
        ASSERT_EQ(ZemFunc391(x, n, y, m, 0, expected), 0);
        ASSERT_EQ(ZemFunc391(x, n, y, m, 1, out), 0);
        ExpectNear(expected, out, FftBound(x, y));
        ASSERT_EQ(ZemFunc421(x, n, y, m, 0, expected), 0);
        ASSERT_EQ(ZemFunc421(x, n, y, m, 1, out), 0);
        ExpectNear(expected, out, FftBound(x, y));
    });
}

// Whether transforms of n and m elements go by blocks, of reals and of records.
bool GoesByBlocks(Count n, Count m) {
    const Count S = FftFastSize(n + m - 1);
    return BlockLength<double>(n, m, S) > 0 && BlockLength<ComplexRecord>(n, m, S) > 0;
}

template <class T>
int BlockStep(Count n, Count m) {
    return BlockLength<T>(n, m, FftFastSize(n + m - 1)) - m + 1;
}

TEST(Convolution, ByBlocksAgreesWithTheSumForEveryRestOfTheLastBlock) {
    const int shortest = 1100, taps = 31;
    ASSERT_TRUE(GoesByBlocks(shortest, taps));
    // Two blocks of reals at once: from one result in the first of them to all of both.
    const int rests = std::max(2 * BlockStep<double>(shortest, taps), BlockStep<ComplexRecord>(shortest, taps));
    for (int n = shortest; n <= shortest + rests; ++n) ExpectBlocksAgree(n, taps);
}

TEST(Convolution, ByBlocksAgreesWithTheSumAroundTheLengthsWhereItBegins) {
    // From one element to more than a third of the longer sequence.
    for (int m : {1, 2, 3, 10, 100, 400})
        for (int n : {1020, 1024, 1025, 1100, 2048, 3333}) ExpectBlocksAgree(n, m);
    EXPECT_FALSE(GoesByBlocks(900, 31)) << "too short";
    EXPECT_FALSE(GoesByBlocks(3333, 400)) << "too near to each other";
    EXPECT_TRUE(GoesByBlocks(3333, 10));
}

TEST(Convolution, ByBlocksAgreesWithTheSumOnEveryInstructionSet) {
    ASSERT_TRUE(GoesByBlocks(20000, 101));
    ASSERT_TRUE(GoesByBlocks(30011, 500));
    ForEachTarget([] {
        ExpectBlocksAgree(20000, 101);
        ExpectBlocksAgree(30011, 500);
    });
}

TEST(Convolution, ByBlocksOfZerosIsZeroWithoutASign) {
    const Reals x(2000), y(20);
    Reals out = Output(2019);
    ASSERT_TRUE(GoesByBlocks(2000, 20));
    ASSERT_EQ(ZemFunc32(x, 2000, y, 20, out), 0);
    for (double v : out) ASSERT_TRUE(v == 0 && !std::signbit(v));
}

TEST(Convolution, ByBlocksKeepsWhatIsNotFiniteNearItsPlace) {
    const Reals y = RandomReals(31, 24);
    for (double bad : {std::nan(""), HUGE_VAL}) {
        Reals x = RandomReals(20000, 23);
        x[10000] = bad;
        Reals out = Output(20030);
        ASSERT_EQ(ZemFunc32(x, 20000, y, 31, out), 0);
        for (int i = 0; i < 31; ++i) EXPECT_FALSE(std::isfinite(out[10000 + i]));
        for (int i = 0; i < 5000; ++i) ASSERT_TRUE(std::isfinite(out[i]) && std::isfinite(out[15000 + i]));
    }
}

TEST(Convolution, BlocksAreAPowerOfTwoBetweenTwiceTheShorterAndTheWhole) {
    for (Count longer : {1000, 1024, 5000, 100000, 1 << 24, (1 << 30) + 5, INT32_MAX - 1, INT32_MAX})
        for (Count shorter : {1, 2, 31, 301, 4096, 1 << 20, 1 << 27, INT32_MAX / 2}) {
            if (shorter > longer || Size{longer} + shorter - 1 > INT32_MAX) continue;
            const Count S = FftFastSize(longer + (shorter - 1));
            for (Count block :
                 {BlockLength<double>(longer, shorter, S), BlockLength<ComplexRecord>(longer, shorter, S)}) {
                if (block == 0) continue;
                EXPECT_EQ(block & (block - 1), 0);
                EXPECT_GE(block / 2, shorter);
                EXPECT_LT(block, S);
            }
        }
    EXPECT_GT(BlockLength<double>(INT32_MAX, 1, INT32_MAX), 0);
    EXPECT_GT(BlockLength<ComplexRecord>(INT32_MAX - 5000, 5001, INT32_MAX), 0);
}

TEST(Convolution, ByBlocksReportsEveryFailedAllocationAndWritesNothing) {
    const Reals x = RandomReals(2000), y = RandomReals(31);
    const Records z = RandomRecords(2000), v = RandomRecords(31);
    Reals reals = Output(2030);
    Records records = RecordOutput(2030);
    ASSERT_TRUE(GoesByBlocks(2000, 31));
    const auto failsUnwritten = [&](const std::function<Status()>& call) {
        ExpectEveryAllocationFails([&] {
            reals = Output(2030);
            records = RecordOutput(2030);
            const Status status = call();
            EXPECT_TRUE(status == 0 || (Untouched(reals) && Untouched(records)));
            return status;
        });
    };
    failsUnwritten([&] { return ZemFunc32(x, 2000, y, 31, reals); });
    failsUnwritten([&] { return ZemFunc372(y, 31, x, 2000, 1, reals); });
    failsUnwritten([&] { return ZemFunc33(x, 2000, y, 31, reals); });
    failsUnwritten([&] { return ZemFunc373(y, 31, x, 2000, 1, reals); });
    failsUnwritten([&] { return ZemFunc391(z, 2000, v, 31, 1, records); });
    failsUnwritten([&] { return ZemFunc421(z, 2000, v, 31, 1, records); });
    failsUnwritten([&] { return ZemFunc490(v, 31, z, 2000, 1, 1, records); });
    ExpectEveryAllocationFails([&] { return ZemFunc376(x, 2000, y, 31, 1, 1, reals); });
}

// All of them

// Calls every export of two sequences with these sizes.
template <class Check>
void EveryPair(const Reals& x, const Records& z, Size n, Size m, Reals& reals, Records& records, const Check& check) {
    check(ZemFunc32(x, n, x, m, reals));
    check(ZemFunc33(x, n, x, m, reals));
    for (int method : {0, 1, 2}) {
        check(ZemFunc372(x, n, x, m, method, reals));
        check(ZemFunc373(x, n, x, m, method, reals));
        check(ZemFunc376(x, n, x, m, method, 3, reals));
        check(ZemFunc391(z, n, z, m, method, records));
        check(ZemFunc421(z, n, z, m, method, records));
        check(ZemFunc490(z, n, z, m, method, 3, records));
    }
}

TEST(Convolution, RefusesSizesBeforeMethodsAndNormalisations) {
    const Reals x(2);
    const Records z(2);
    Reals reals = Output(3);
    Records records = RecordOutput(3);
    const auto gives = [&](Size n, Size m, Status expected) {
        EveryPair(x, z, n, m, reals, records, [&](Status status) { EXPECT_EQ(status, expected) << n << ", " << m; });
    };
    gives(0, 2, -20003);
    gives(2, 0, -20003);
    gives(-1, 2, -20003);
    gives(2, -1, -20003);
    gives(kTooLarge, 0, -20046);
    gives(0, kTooLarge, -20046);
    gives(kTooLarge, kTooLarge, -20046);
    EXPECT_EQ(ZemFunc424(x, 0, 3, reals), -20003);
    EXPECT_EQ(ZemFunc424(x, kTooLarge, 3, reals), -20046);
    EXPECT_EQ(ZemFunc425(z, 0, 3, records), -20003);
    EXPECT_EQ(ZemFunc425(z, kTooLarge, 3, records), -20046);
    EXPECT_TRUE(Untouched(reals));
    EXPECT_TRUE(Untouched(records));
}

TEST(Convolution, RefusesAResultThatNoCountHolds) {
    const Reals x(2);
    const Records z(2);
    Reals reals = Output(3);
    Records records = RecordOutput(3);
    EveryPair(x, z, INT32_MAX, 2, reals, records, [](Status status) { EXPECT_EQ(status, -20046); });
    EveryPair(x, z, 2, INT32_MAX, reals, records, [](Status status) { EXPECT_EQ(status, -20046); });
    const Size half = Size{1} << 30;
    EXPECT_EQ(ZemFunc424(x, half + 1, 0, reals), -20046);
    EXPECT_EQ(ZemFunc425(z, half + 1, 0, records), -20046);
    // One pointer, and n alone too long for its autocorrelation.
    EXPECT_EQ(ZemFunc376(x, half + 1, x, 1, 1, 2, reals), -20046);
    EXPECT_TRUE(Untouched(reals));
    EXPECT_TRUE(Untouched(records));
}

TEST(Convolution, ReportsEveryFailedAllocation) {
    const Reals x = RandomReals(20), y = RandomReals(7);
    const Records z = RandomRecords(20), v = RandomRecords(7);
    Reals reals = Output(39);
    Records records = RecordOutput(39);
    ExpectEveryAllocationFails([&] { return ZemFunc32(x, 20, y, 7, reals); });
    ExpectEveryAllocationFails([&] { return ZemFunc372(x, 20, y, 7, 1, reals); });
    ExpectEveryAllocationFails([&] { return ZemFunc33(x, 20, y, 7, reals); });
    ExpectEveryAllocationFails([&] { return ZemFunc373(x, 20, y, 7, 1, reals); });
    ExpectEveryAllocationFails([&] { return ZemFunc376(x, 20, y, 7, 1, 1, reals); });
    ExpectEveryAllocationFails([&] { return ZemFunc33(x, 20, x, 20, reals); });
    ExpectEveryAllocationFails([&] { return ZemFunc424(x, 20, 2, reals); });
    ExpectEveryAllocationFails([&] { return ZemFunc391(z, 20, v, 7, 1, records); });
    ExpectEveryAllocationFails([&] { return ZemFunc425(z, 20, 2, records); });
    for (std::uint32_t method : {0u, 1u}) {
        ExpectEveryAllocationFails([&] { return ZemFunc421(z, 20, v, 7, method, records); });
        ExpectEveryAllocationFails([&] { return ZemFunc490(z, 20, v, 7, method, 1, records); });
    }
}

TEST(Convolution, DirectOfRealsTakesNoMemory) {
    const Reals x = RandomReals(20), y = RandomReals(7);
    Reals out = Output(26);
    FailAllocation(0);
    EXPECT_EQ(ZemFunc372(x, 20, y, 7, 0, out), 0);
    EXPECT_EQ(ZemFunc373(x, 20, y, 7, 0, out), 0);
    FailAllocation(-1);
}

}  // namespace
}  // namespace quorvan::testing

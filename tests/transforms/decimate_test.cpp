// Decimation of whole arrays and of signals in blocks.
#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <vector>

#include "frame/thread_registry.h"
#include "quorvan/quorvan.h"
#include "tests/support/failing_heap.h"
#include "tests/support/fresh_thread.h"
#include "tests/support/guarded.h"

namespace quorvan::testing {
namespace {

constexpr std::int32_t kMin = std::numeric_limits<std::int32_t>::min();

// A complex array whose parts tell each other's samples apart.
std::vector<ComplexRecord> Records(const std::vector<double>& x) {
    std::vector<ComplexRecord> out;
    for (const double v : x) out.push_back({v, 1000 - 3 * v});
    return out;
}

std::vector<double> Samples(Size n, unsigned seed = 1) { return RandomReals(n, seed).values(); }

// The documented result on the whole signal behind its first `offset` samples.
std::vector<double> Expected(const std::vector<double>& x, Size factor, bool average, Size offset = 0) {
    std::vector<double> out;
    for (Size i = offset; i < Size(x.size()); i += factor) {
        if (!average) {
            out.push_back(x[i]);
        } else if (i + factor <= Size(x.size())) {
            double sum = 0;
            for (Size k = 0; k < factor; ++k) sum += x[i + k];
            out.push_back(sum / double(factor));
        }
    }
    return out;
}

// Feeds the blocks between the cuts and joins what comes out; counts go to `counts` if it is given.
std::vector<double> InBlocks(const std::vector<double>& x, const std::vector<Size>& lengths, Size factor, bool average,
                             std::int32_t offset, std::vector<Size>* counts = nullptr) {
    std::vector<double> joined;
    Size begin = 0;
    for (const Size length : lengths) {
        const bool reset = begin == 0;
        Reals block(std::vector<double>(x.begin() + begin, x.begin() + begin + length));
        std::int64_t count = -99;
        // Behind the first block factor and offset mean nothing.
        EXPECT_EQ(ZemFunc417(block, length, reset ? factor : -5, average, reset ? offset : -7, reset, &count), 0);
        Guarded<ComplexRecord> records(Records(std::vector<double>(x.begin() + begin, x.begin() + begin + length)));
        std::int64_t complex_count = -99;
        EXPECT_EQ(ZemFunc418(records, length, reset ? factor : 0, average, reset ? offset : 8, reset, &complex_count),
                  0);
        EXPECT_EQ(complex_count, count);
        for (Size i = 0; i < count; ++i) {
            joined.push_back(block[i]);
            EXPECT_TRUE(SameBits(records[i].re, block[i]));
            EXPECT_NEAR(records[i].im, 1000 - 3 * block[i], 2000 * kEpsilon * double(factor + 2));
        }
        if (counts) counts->push_back(count);
        begin += length;
    }
    return joined;
}

TEST(Decimate, RefusesSizesAndFactors) {
    Reals x = {1, 2, 3}, out = Output(3);
    Guarded<ComplexRecord> records(Records({1, 2, 3}));
    for (const unsigned average : {0u, 1u}) {
        EXPECT_EQ(ZemFunc53(x, 0, 0, average, out), -20003);
        EXPECT_EQ(ZemFunc53(x, -1, 1, average, out), -20003);
        EXPECT_EQ(ZemFunc53(x, 3, 0, average, out), -20022);
        EXPECT_EQ(ZemFunc53(x, 3, -2, average, out), -20022);
        EXPECT_EQ(ZemFunc53(x, 3, 4, average, out), -20022);
        EXPECT_EQ(ZemFunc53(x, kTooLarge, 0, average, out), -20046);
        EXPECT_EQ(ZemFunc53(x, 3, kTooLarge, average, out), -20046);
        EXPECT_EQ(ZemFunc360(records, 0, 0, average, nullptr), -20003);
        EXPECT_EQ(ZemFunc360(records, 3, 0, average, nullptr), -20022);
        EXPECT_EQ(ZemFunc360(records, 3, 4, average, nullptr), -20022);
        EXPECT_EQ(ZemFunc360(records, kTooLarge, 0, average, nullptr), -20046);
        EXPECT_EQ(ZemFunc360(records, 3, kTooLarge, average, nullptr), -20046);
    }
    EXPECT_TRUE(Untouched(out));
    EXPECT_EQ(records[2].re, 3);
}

TEST(Decimate, SevenSamplesByTwoGiveThreeAndDropTheTail) {
    Reals x = {1, 2, 3, 4, 5, 6, 7}, out = Output(3);
    ASSERT_EQ(ZemFunc53(x, 7, 2, 0, out), 0);
    EXPECT_EQ(out.values(), (std::vector<double>{1, 3, 5}));
    ASSERT_EQ(ZemFunc53(x, 7, 2, 1, out), 0);
    EXPECT_EQ(out.values(), (std::vector<double>{1.5, 3.5, 5.5}));
}

TEST(Decimate, BlocksAreAddedInOrderAndDivided) {
    for (const Size n : {1, 2, 5, 17, 100, 1000})
        for (Size factor = 1; factor <= n; factor = factor < 12 ? factor + 1 : factor * 3)
            for (const unsigned average : {0u, 1u, 0x80000000u}) {
                const std::vector<double> x = Samples(n);
                std::vector<double> expected = Expected(x, factor, average);
                expected.resize(n / factor);
                Reals in(x), out = Output(n / factor);
                ASSERT_EQ(ZemFunc53(in, n, factor, average, out), 0);
                EXPECT_EQ(out.values(), expected) << n << " " << factor << " " << average;

                Guarded<ComplexRecord> records(Records(x)), apart = RecordOutput(n / factor);
                ASSERT_EQ(ZemFunc360(records, n, factor, average, apart), 0);
                ASSERT_EQ(ZemFunc360(records, n, factor, average, nullptr), 0);
                const std::vector<ComplexRecord> source = Records(x);
                std::vector<double> imaginary;
                for (const ComplexRecord& record : source) imaginary.push_back(record.im);
                const std::vector<double> expected_im = Expected(imaginary, factor, average);
                for (Size i = 0; i < n / factor; ++i) {
                    EXPECT_EQ(apart[i].re, expected[i]);
                    EXPECT_EQ(apart[i].im, expected_im[i]);
                    EXPECT_EQ(records[i].re, expected[i]);
                    EXPECT_EQ(records[i].im, expected_im[i]);
                }
            }
}

TEST(DecimateContinuous, ThreeInBlocksOfTwoGivesTheCounts1101) {
    std::vector<Size> counts;
    const std::vector<double> x = {0, 1, 2, 3, 4, 5, 6, 7};
    EXPECT_EQ(InBlocks(x, {2, 2, 2, 2}, 3, false, 0, &counts), (std::vector<double>{0, 3, 6}));
    EXPECT_EQ(counts, (std::vector<Size>{1, 1, 0, 1}));
}

TEST(DecimateContinuous, EveryCutOfAShortSignalGivesTheSameAsDecimateOnTheJoinedSignal) {
    constexpr Size n = 10;
    const std::vector<double> x = Samples(n);
    for (unsigned cuts = 0; cuts < (1u << (n - 1)); ++cuts) {
        std::vector<Size> lengths;
        Size length = 1;
        for (Size i = 0; i < n - 1; ++i, ++length)
            if (cuts >> i & 1) lengths.push_back(length), length = 0;
        lengths.push_back(length);
        for (Size factor = 1; factor <= 5; ++factor)
            for (std::int32_t offset = 0; offset <= 11; offset = offset < 4 ? offset + 1 : offset + 7)
                for (const bool average : {false, true})
                    ASSERT_EQ(InBlocks(x, lengths, factor, average, offset), Expected(x, factor, average, offset))
                        << "cuts " << cuts << " factor " << factor << " offset " << offset << " average " << average;
    }
}

TEST(DecimateContinuous, RandomCutsOfALongSignalGiveTheSameToTheLastBit) {
    std::mt19937 random(5);
    for (int round = 0; round < 60; ++round) {
        const std::vector<double> x = Samples(3000, round + 1);
        std::vector<Size> lengths;
        for (Size left = 3000; left > 0; left -= lengths.back())
            lengths.push_back(std::min<Size>(left, 1 + random() % 200));
        const Size factor = 1 + random() % 150;
        const std::int32_t offset = random() % 300;
        for (const bool average : {false, true})
            EXPECT_EQ(InBlocks(x, lengths, factor, average, offset), Expected(x, factor, average, offset));
    }
}

TEST(DecimateContinuous, TheFirstCallOfAThreadStartsASignalWithoutAReset) {
    OnFreshThread([] {
        Reals x = {1, 2, 3, 4, 5};
        std::int64_t count = 0;
        ASSERT_EQ(ZemFunc417(x, 5, 2, 1, 1, 0, &count), 0);
        EXPECT_EQ(count, 2);
        EXPECT_EQ(x[0], 2.5);
        EXPECT_EQ(x[1], 4.5);
    });
}

TEST(DecimateContinuous, RealAndComplexStreamsDoNotDisturbEachOther) {
    Reals a = {1, 2, 3};
    Guarded<ComplexRecord> b(Records({10, 20, 30}));
    std::int64_t count = 0;
    ASSERT_EQ(ZemFunc417(a, 3, 2, 1, 0, 1, &count), 0);
    ASSERT_EQ(ZemFunc418(b, 3, 3, 1, 1, 1, &count), 0);
    EXPECT_EQ(count, 0);
    Reals next = {5};
    ASSERT_EQ(ZemFunc417(next, 1, 9, 1, 9, 0, &count), 0);
    EXPECT_EQ(count, 1);
    EXPECT_EQ(next[0], 4);
}

TEST(DecimateContinuous, ASizeBelow1IsRefusedBeforeTheStateIsTouched) {
    OnFreshThread([] {
        Reals x = {1};
        Guarded<ComplexRecord> z(Records({1}));
        std::int64_t count = 5;
        for (const Size n : {Size{0}, Size{-1}}) {
            EXPECT_EQ(ZemFunc417(x, n, 0, 1, -1, 1, &count), -20003);
            EXPECT_EQ(ZemFunc418(z, n, 0, 1, -1, 1, &count), -20003);
        }
        EXPECT_EQ(ZemFunc417(x, kTooLarge, 2, 1, 0, 1, &count), -20046);
        EXPECT_EQ(ZemFunc417(x, 1, kTooLarge, 1, 0, 1, &count), -20046);
        EXPECT_EQ(ZemFunc418(z, kTooLarge, 2, 1, 0, 1, &count), -20046);
        EXPECT_EQ(ZemFunc418(z, 1, kTooLarge, 1, 0, 1, &count), -20046);
        EXPECT_EQ(count, 5);
        EXPECT_EQ(ThreadStateGet()->decimFirst, 1);
        EXPECT_EQ(ThreadStateGet()->cxDecimFirst, 1);
    });
}

TEST(DecimateContinuous, ABadFactorComesBeforeABadOffsetAndTheStateKeepsBoth) {
    for (const unsigned average : {0u, 1u}) {
        Reals x = {1, 2};
        std::int64_t count = 5;
        for (const Size factor : {0, -3}) {
            EXPECT_EQ(ZemFunc417(x, 2, factor, average, -1, 1, &count), -20140);
            EXPECT_EQ(count, 0);
            count = 5;
            EXPECT_EQ(ZemFunc417(x, 2, 1, average, 0, 0, &count), -20140) << "the stored factor is in force";
            EXPECT_EQ(count, 0);
        }
        EXPECT_EQ(ZemFunc417(x, 2, 2, average, -1, 1, &count), -20059);
        EXPECT_EQ(ZemFunc417(x, 2, 2, average, kMin, 1, &count), -20059);
        EXPECT_EQ(ZemFunc417(x, 2, 2, average, 0, 0, &count), -20059) << "the stored offset is in force";
        EXPECT_EQ(x[0], 1);
        EXPECT_EQ(x[1], 2);
        EXPECT_EQ(ZemFunc417(x, 2, 2, average, 0, 1, &count), 0);
        EXPECT_EQ(count, 1);
    }
}

TEST(DecimateContinuous, TheCountFormulaIsTakenLiterallyInFrontOfTheOffset) {
    Reals x = {1, 2, 3};
    std::int64_t count = 0;
    ASSERT_EQ(ZemFunc417(x, 3, 2, 1, 20, 1, &count), 0);
    EXPECT_EQ(count, (3 - 20) / 2);
    EXPECT_EQ(ThreadStateGet()->decimOffset, 17);
    ASSERT_EQ(ZemFunc417(x, 3, 2, 0, 20, 1, &count), 0);
    EXPECT_EQ(count, 0);
    EXPECT_EQ(ThreadStateGet()->decimOffset, 17);
}

TEST(DecimateContinuous, AStreamThatChangesBetweenPickingAndAveragingStaysInsideItsBlocks) {
    // There is no documented result, but every access must stay within the block: the guards and sanitizers watch.
    std::mt19937 random(9);
    for (int round = 0; round < 3000; ++round) {
        Size factor = 1 + random() % 6;
        std::int64_t count = 0;
        for (int call = 0; call < 8; ++call) {
            const Size n = 1 + random() % 9;
            Reals x = RandomReals(n);
            const bool reset = call == 0;
            const Status done = ZemFunc417(x, n, factor, random() % 2, random() % 8, reset, &count);
            EXPECT_TRUE(done == 0 || done == -20059);
        }
    }
}

TEST(DecimateContinuous, ExhaustedMemoryForTheStateOfTheThread) {
    Reals x = {1, 2};
    Guarded<ComplexRecord> z(Records({1, 2}));
    std::int64_t count = 0;
    ExpectStateAllocationFails([&] { return ZemFunc417(x, 2, 2, 1, 0, 0, &count); });
    ExpectStateAllocationFails([&] { return ZemFunc418(z, 2, 2, 1, 0, 0, &count); });
}

}  // namespace
}  // namespace quorvan::testing

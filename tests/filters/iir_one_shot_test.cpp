// Filtering of one array: the statuses of both forms and their order, in place and beside, and the agreement with a
// designed object.
#include <functional>
#include <string>

#include "tests/filters/filters.h"
#include "tests/support/failing_heap.h"
#include "tests/support/targets.h"

namespace quorvan::testing {
namespace {

struct Asked {
    double fs = 1000, fl = 100, fh = 200, ripple = 1, attenuation = 60;
    int order = 4;
};

enum Family { kButterworth, kChebyshev, kInverseChebyshev, kElliptic, kBessel };

template <class T>
struct OneShot {
    Family family;
    int kind;
    std::function<Status(T* x, Size n, const Asked&, T* y)> run;

    std::string name() const { return "family " + std::to_string(family) + ", kind " + std::to_string(kind); }
};

#define LOW(T, family, kind, number, ...)                                                    \
    OneShot<T> {                                                                             \
        family, kind, [](T* x, Size n, [[maybe_unused]] const Asked& w, T* y) {              \
            return ZemFunc##number(x, n, w.fs, w.fl __VA_OPT__(, ) __VA_ARGS__, w.order, y); \
        }                                                                                    \
    }
#define BAND(T, family, kind, number, ...)                                                         \
    OneShot<T> {                                                                                   \
        family, kind, [](T* x, Size n, [[maybe_unused]] const Asked& w, T* y) {                    \
            return ZemFunc##number(x, n, w.fs, w.fl, w.fh __VA_OPT__(, ) __VA_ARGS__, w.order, y); \
        }                                                                                          \
    }
#define FAMILY(T, family, low, high, pass, stop, ...)                                                                 \
    LOW(T, family, 0, low, __VA_ARGS__), LOW(T, family, 1, high, __VA_ARGS__), BAND(T, family, 2, pass, __VA_ARGS__), \
        BAND(T, family, 3, stop, __VA_ARGS__)

// Section by section: these neither build an object nor take memory.
const OneShot<double> kSections[] = {
    FAMILY(double, kButterworth, 21, 20, 16, 17),
    FAMILY(double, kChebyshev, 27, 26, 22, 23, w.ripple),
    FAMILY(double, kInverseChebyshev, 101, 100, 96, 97, w.attenuation),
    FAMILY(double, kElliptic, 64, 63, 59, 60, w.ripple, w.attenuation),
};
const OneShot<double> kBesselObjects[] = {FAMILY(double, kBessel, 399, 400, 401, 402)};
const OneShot<ComplexRecord> kObjects[] = {
    FAMILY(ComplexRecord, kButterworth, 450, 451, 452, 453),
    FAMILY(ComplexRecord, kChebyshev, 454, 455, 456, 457, w.ripple),
    FAMILY(ComplexRecord, kInverseChebyshev, 458, 459, 460, 461, w.attenuation),
    FAMILY(ComplexRecord, kElliptic, 462, 463, 464, 465, w.ripple, w.attenuation),
    FAMILY(ComplexRecord, kBessel, 403, 404, 405, 406),
};

Status DesignLike(Family family, const Asked& w, QvIirFilter* filter) {
    switch (family) {
        case kButterworth: return ZemFunc18(w.fs, w.fl, w.fh, filter);
        case kChebyshev: return ZemFunc24(w.fs, w.fl, w.fh, w.ripple, filter);
        case kInverseChebyshev: return ZemFunc98(w.fs, w.fl, w.fh, w.attenuation, filter);
        case kElliptic: return ZemFunc61(w.fs, w.fl, w.fh, w.ripple, w.attenuation, filter);
        case kBessel: return ZemFunc471(w.fs, w.fl, w.fh, filter);
    }
    return -1;
}

Asked With(Asked asked, int order) {
    asked.order = order;
    return asked;
}

constexpr Asked kGood;
constexpr int kCount = 200;

TEST(IirOneShot, OfRealsIsTheDesignedObjectAppliedFromRestToWithinRounding) {
    for (const auto& filter : kSections)
        for (int order : {1, 2, 3, 4, 7, 8}) {
            SCOPED_TRACE(filter.name());
            const Filter object(filter.kind, order);
            const Asked asked = With(kGood, order);
            ASSERT_EQ(DesignLike(filter.family, asked, object), 0);
            Reals x = RandomReals(kCount, 1), y = Output(kCount), z = Output(kCount);
            ASSERT_EQ(filter.run(x, kCount, asked, y), 0);
            ASSERT_EQ(ZemFunc91(x, kCount, object, z), 0);
            // Direct forms I and II round differently in each sample; poles at a distance of 1e-2 from the circle or
            // more hold a rounding error for a few hundred samples.
            for (int i = 0; i < kCount; ++i) ASSERT_NEAR(y[i], z[i], 1e-11) << order << ", sample " << i;
        }
}

// The sections are those of the object, in its order.
TEST(IirOneShot, OfRealsRunsOneSectionAfterTheOtherInDirectFormOneOnEveryInstructionSet) {
    ForEachTarget([] {
        for (const auto& filter : kSections)
            for (int order : {1, 2, 3, 5, 8, 20, 25, 49, 60}) {
                if (filter.family == kChebyshev && filter.kind >= 2 && order % 2 == 0) continue;  // see below
                SCOPED_TRACE(filter.name() + ", order " + std::to_string(order));
                const Filter object(filter.kind, order);
                ASSERT_EQ(DesignLike(filter.family, kGood, object), 0);
                const int w = object.width();
                for (int n : {1, 3, 50}) {
                    Reals x = RandomReals(n, 2), y = Output(n);
                    std::vector<double> expected = x.values();
                    for (int s = 0; s < object.stages(); ++s) {
                        const std::vector<double> v = expected;
                        for (int t = 0; t < n; ++t) {
                            double sum = object.b(s, 0) * v[t];
                            for (int k = 1; k <= w; ++k) sum += object.b(s, k) * (t >= k ? v[t - k] : 0);
                            for (int k = 1; k <= w; ++k) sum -= object.a(s, k - 1) * (t >= k ? expected[t - k] : 0);
                            expected[t] = sum;
                        }
                    }
                    ASSERT_EQ(filter.run(x, n, With(kGood, order), y), 0);
                    for (int t = 0; t < n; ++t) ASSERT_TRUE(SameBits(y[t], expected[t])) << t << " of " << n;
                }
            }
    });
}

// The gain of an even Chebyshev band is taken off in a pass of its own, which only rounding tells.
TEST(IirOneShot, OfAnEvenChebyshevBandHasTheGainOfTheDesign) {
    for (const auto& filter : kSections) {
        if (filter.family != kChebyshev || filter.kind < 2) continue;
        const Filter object(filter.kind, 2);
        ASSERT_EQ(DesignLike(filter.family, kGood, object), 0);
        Reals x = RandomReals(50, 3), y = Output(50), z = Output(50);
        ASSERT_EQ(filter.run(x, 50, With(kGood, 2), y), 0);
        ASSERT_EQ(ZemFunc91(x, 50, object, z), 0);
        for (int t = 0; t < 50; ++t) EXPECT_NEAR(y[t], z[t], 1e-13);
    }
}

TEST(IirOneShot, LeavesTheInputOrReplacesIt) {
    for (const auto& filter : kSections) {
        SCOPED_TRACE(filter.name());
        const Reals before = RandomReals(kCount, 4);
        Reals x = before, y = Output(kCount);
        ASSERT_EQ(filter.run(x, kCount, kGood, y), 0);
        EXPECT_EQ(x.values(), before.values());
        ASSERT_EQ(filter.run(x, kCount, kGood, x), 0);
        EXPECT_EQ(x.values(), y.values());
        x = before;
        ASSERT_EQ(filter.run(x, kCount, kGood, nullptr), 0);
        EXPECT_EQ(x.values(), y.values());
    }
    for (const auto& filter : kBesselObjects) {
        const Reals before = RandomReals(kCount, 4);
        Reals x = before, y = Output(kCount);
        ASSERT_EQ(filter.run(x, kCount, kGood, y), 0);
        EXPECT_EQ(x.values(), before.values());
        ASSERT_EQ(filter.run(x, kCount, kGood, nullptr), 0);
        EXPECT_EQ(x.values(), y.values());
    }
    for (const auto& filter : kObjects) {
        SCOPED_TRACE(filter.name());
        const Records before = RandomRecords(kCount, 5);
        Records x = before, y = RecordOutput(kCount);
        const auto same = [&](const Records& a, const Records& b) {
            return std::memcmp(a.data(), b.data(), kCount * sizeof(ComplexRecord)) == 0;
        };
        ASSERT_EQ(filter.run(x, kCount, kGood, y), 0);
        EXPECT_TRUE(same(x, before));
        ASSERT_EQ(filter.run(x, kCount, kGood, nullptr), 0);
        EXPECT_TRUE(same(x, y));
        x = before;
        ASSERT_EQ(filter.run(x, kCount, kGood, x), 0);
        EXPECT_TRUE(same(x, y));
    }
}

TEST(IirOneShot, OfBesselAndOfComplexDataIsTheObjectToTheLastBit) {
    for (const auto& filter : kBesselObjects)
        for (int order : {1, 2, 5, 10}) {
            const Filter object(filter.kind, order);
            ASSERT_EQ(DesignLike(kBessel, kGood, object), 0);
            Reals x = RandomReals(kCount, 6), y = Output(kCount), z = Output(kCount);
            ASSERT_EQ(filter.run(x, kCount, With(kGood, order), y), 0);
            ASSERT_EQ(ZemFunc91(x, kCount, object, z), 0);
            EXPECT_EQ(y.values(), z.values());
        }
    for (const auto& filter : kObjects)
        for (int order : {1, 4, 9}) {
            const Filter object(filter.kind, order);
            const ComplexState state(filter.kind, order);
            ASSERT_EQ(DesignLike(filter.family, kGood, object), 0);
            Records x = RandomRecords(kCount, 7), y = RecordOutput(kCount), z = RecordOutput(kCount);
            ASSERT_EQ(filter.run(x, kCount, With(kGood, order), y), 0);
            ASSERT_EQ(ZemFunc466(x, kCount, object, state, z), 0);
            EXPECT_EQ(std::memcmp(y.data(), z.data(), kCount * sizeof(ComplexRecord)), 0) << filter.name();
        }
}

TEST(IirOneShot, OfAComplexArrayThatIsRealHasTheRealResultAndZeroImaginaryParts) {
    for (std::size_t i = 0; i < std::size(kObjects); ++i) {
        const auto& filter = kObjects[i];
        const auto& real = filter.family == kBessel ? kBesselObjects[i - std::size(kSections)] : kSections[i];
        SCOPED_TRACE(filter.name());
        ASSERT_EQ(real.family, filter.family);
        ASSERT_EQ(real.kind, filter.kind);
        Reals x = RandomReals(kCount, 8), y = Output(kCount);
        Records z(kCount), v = RecordOutput(kCount);
        for (int k = 0; k < kCount; ++k) z[k] = {x[k], 0};
        ASSERT_EQ(real.run(x, kCount, kGood, y), 0);
        ASSERT_EQ(filter.run(z, kCount, kGood, v), 0);
        for (int k = 0; k < kCount; ++k) {
            EXPECT_NEAR(v[k].re, y[k], 1e-11);  // as in the comparison with the object
            EXPECT_TRUE(SameBits(v[k].im, 0));
        }
    }
}

TEST(IirOneShot, OfRealsAcceptsACutoffAtHalfTheRateWhichTheDesignRefuses) {
    for (const auto& filter : kSections) {
        if (filter.kind >= 2) continue;
        Reals x{1, 2}, y = Output(2);
        Asked asked = kGood;
        asked.fl = 500;
        EXPECT_EQ(filter.run(x, 2, asked, y), 0) << filter.name();
        EXPECT_NE(y[0], kUnwritten);
        EXPECT_TRUE(std::isfinite(y[1])) << filter.name();
        asked.fl = std::nextafter(500, 501);
        EXPECT_EQ(filter.run(x, 2, asked, y), -20020) << filter.name();
    }
    for (const auto& filter : kObjects) {
        if (filter.kind >= 2) continue;
        Records x(2), y = RecordOutput(2);
        Asked asked = kGood;
        asked.fl = 500;
        EXPECT_EQ(filter.run(x, 2, asked, y), -20023) << filter.name();
        EXPECT_TRUE(Untouched(y));
    }
    // A lowpass with its cutoff at fs/2, where w is about 1.6e16, passes what it is given.
    Reals x = RandomReals(40, 9), y = Output(40);
    ASSERT_EQ(ZemFunc21(x, 40, 1000, 500, 4, y), 0);
    for (int i = 0; i < 40; ++i) EXPECT_NEAR(y[i], x[i], 1e-10);
}

TEST(IirOneShot, OfRealsChecksSizeOrderFrequenciesLevelsAndTheRateAtLast) {
    for (const auto& filter : kSections) {
        SCOPED_TRACE(filter.name());
        Reals x(2, 3.5), y = Output(2);
        Asked w = {.fs = 0, .fl = -1, .fh = -2, .ripple = 0, .attenuation = 0, .order = 0};
        const auto gives = [&](Size n, Status expected) { EXPECT_EQ(filter.run(x, n, w, y), expected); };
        gives(kTooLarge, -20046);
        gives(0, -20003);
        gives(-1, -20003);
        gives(2, -20021);
        w.order = 2;
        gives(2, -20023);
        w.fs = 1000;
        gives(2, -20023);
        w.fl = 600;
        if (filter.kind >= 2) {
            gives(2, -20023);
            w.fh = 600;
            gives(2, -20023);
            w.fh = 700;
        }
        const bool ripple = filter.family == kChebyshev || filter.family == kElliptic;
        if (ripple) {
            gives(2, -20024);
            w.ripple = 40;
        }
        if (filter.family == kInverseChebyshev || filter.family == kElliptic) {
            gives(2, -20025);
            w.attenuation = 40;
        }
        if (filter.family == kElliptic) {
            gives(2, -20028);
            w.attenuation = 41;
        }
        gives(2, -20020);
        w.fl = 100;
        if (filter.kind >= 2) gives(2, -20020);
        w.fs = -1000;
        gives(2, -20023);
        EXPECT_TRUE(Untouched(y));
        w.fs = 1000;
        w.fh = 500;  // the upper edge may be fs/2
        gives(2, 0);
    }
}

// The statuses of the design come before that of the size, and the size to narrow before all.
template <class T>
void ExpectObjectOrder(const OneShot<T>& filter, T* x, T* y) {
    SCOPED_TRACE(filter.name());
    Asked w = {.fs = 0, .fl = 600, .fh = 550, .ripple = 0, .attenuation = 0, .order = 0};
    const auto gives = [&](Size n, Status expected) { EXPECT_EQ(filter.run(x, n, w, y), expected); };
    gives(kTooLarge, -20046);
    gives(0, -20021);
    w.order = 3;
    gives(0, -20023);
    w.fs = 1000;
    gives(0, -20023);
    w.fh = 700;
    if (filter.family == kInverseChebyshev && filter.kind >= 2) {
        gives(0, -20025);
        w.attenuation = 60;
    }
    gives(0, filter.kind >= 2 ? -20020 : -20023);
    w.fl = 100;
    if (filter.kind >= 2) gives(0, -20020);
    w.fh = 200;
    if (filter.family == kChebyshev || filter.family == kElliptic) {
        gives(0, -20024);
        w.ripple = 40;
    }
    if (filter.family == kInverseChebyshev && filter.kind < 2) gives(0, -20025);
    if (filter.family == kElliptic) {
        gives(0, -20025);
        w.attenuation = 40;
        gives(0, -20028);
    }
    w.attenuation = 60;
    gives(0, -20003);
    gives(-1, -20003);
    gives(2, 0);
}

TEST(IirOneShot, ThatBuildsAnObjectChecksTheDesignBeforeTheSize) {
    for (const auto& filter : kBesselObjects) {
        Reals x(2), y = Output(2);
        ExpectObjectOrder<double>(filter, x, y);
    }
    for (const auto& filter : kObjects) {
        Records x(2), y = RecordOutput(2);
        ExpectObjectOrder<ComplexRecord>(filter, x, y);
    }
}

TEST(IirOneShot, ThatFailsLeavesBothArrays) {
    Asked bad = kGood;
    bad.fl = -1;
    for (const auto& filter : kBesselObjects) {
        Reals x{1, 2}, y = Output(2);
        EXPECT_EQ(filter.run(x, 2, bad, y), -20023);
        EXPECT_EQ(filter.run(x, 2, bad, nullptr), -20023);
        EXPECT_TRUE(Untouched(y));
        EXPECT_TRUE(x[0] == 1 && x[1] == 2);
    }
    for (const auto& filter : kObjects) {
        Records x{{1, 2}}, y = RecordOutput(1);
        EXPECT_EQ(filter.run(x, 1, bad, y), -20023);
        EXPECT_EQ(filter.run(x, 1, bad, nullptr), -20023);
        EXPECT_TRUE(Untouched(y));
        EXPECT_TRUE(x[0].re == 1 && x[0].im == 2);
    }
}

TEST(IirOneShot, OfRealsTakesNoMemory) {
    for (const auto& filter : kSections) {
        Reals x(4);
        FailAllocation(0);
        EXPECT_EQ(filter.run(x, 4, With(kGood, 9), nullptr), 0) << filter.name();
        FailAllocation(-1);
    }
}

TEST(IirOneShot, ThatBuildsAnObjectReportsEveryFailedAllocation) {
    Reals x(4);
    Records z(4);
    for (const auto& filter : kBesselObjects)
        ExpectEveryAllocationFails([&] { return filter.run(x, 4, kGood, nullptr); });
    for (const auto& filter : kObjects) ExpectEveryAllocationFails([&] { return filter.run(z, 4, kGood, nullptr); });
}

TEST(IirOneShot, OfRealsLetsDenormalsLiveAndTheOthersDoNot) {
    // A denormal pulse alone: first results of b0 times it.
    Reals x{1e-310, 0}, y = Output(2);
    ASSERT_EQ(ZemFunc20(x, 2, 1000, 1, 2, y), 0);
    EXPECT_NE(y[0], 0);
    ASSERT_EQ(ZemFunc400(x, 2, 1000, 1, 2, y), 0);
    EXPECT_TRUE(SameBits(y[0], 0));
    Records z{{1e-310, 1}, {0, 0}};
    ASSERT_EQ(ZemFunc451(z, 2, 1000, 1, 2, nullptr), 0);
    EXPECT_TRUE(SameBits(z[0].re, 0));
    EXPECT_NE(z[0].im, 0);
}

}  // namespace
}  // namespace quorvan::testing

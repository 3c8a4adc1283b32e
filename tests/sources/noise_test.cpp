// Noise generators: seeds, resets, order of checks, what a refused call leaves behind. The Python half checks the
// values.
#include <cmath>
#include <cstdlib>
#include <ctime>
#include <functional>
#include <gtest/gtest.h>
#include <limits>
#include <vector>

#include "frame/thread_registry.h"
#include "quorvan/quorvan.h"
#include "tests/support/failing_heap.h"
#include "tests/support/fresh_thread.h"
#include "tests/support/guarded.h"
#include "tests/support/targets.h"

namespace quorvan::testing {
namespace {

using Ints = Guarded<std::int32_t>;

// Each generator with a seed alone, and its stream.
struct Seeded {
    const char* name;
    std::function<Status(Size n, std::int32_t seed, double* out)> generate;
    std::int32_t ThreadState::*gauss_first;
    RngStream ThreadState::*stream;
    bool joins;  // two calls in turn give what one call gives
};

const Seeded kSeeded[] = {
    {"uniform", ZemFunc182, nullptr, &ThreadState::uniformStream, true},
    {"white", [](Size n, std::int32_t seed, double* out) { return ZemFunc185(n, -2.5, seed, out); }, nullptr,
     &ThreadState::whiteStream, true},
    {"gaussian", [](Size n, std::int32_t seed, double* out) { return ZemFunc84(n, 3.0, seed, out); },
     &ThreadState::gaussFirst, nullptr, true},
    {"periodic", [](Size n, std::int32_t seed, double* out) { return ZemFunc387(n, 1.0, seed, out); }, nullptr,
     &ThreadState::periodicStream, false},
};

std::int32_t First(const Seeded& kind) {
    const ThreadState* state = ThreadStateGet();
    return kind.stream ? (state->*kind.stream).first : state->*kind.gauss_first;
}

// Each generator with a seed and a reset; integer results are turned into doubles.
struct Resettable {
    const char* name;
    std::function<Status(Size n, std::int32_t seed, std::int32_t reset, double* out)> generate;
    RngStream ThreadState::*stream;
};

template <class Generate>
Status AsReals(Size n, double* out, Generate generate) {
    std::vector<std::int32_t> whole(n > 0 && n < 100000 ? n : 1);
    const Status done = generate(whole.data());
    for (Size i = 0; done == 0 && i < n; ++i) out[i] = whole[i];
    return done;
}

template <int order>
Status Gamma(Size n, std::int32_t seed, std::int32_t reset, double* out) {
    return ZemFunc388(n, order, seed, reset, out);
}
template <int mean>
Status Poisson(Size n, std::int32_t seed, std::int32_t reset, double* out) {
    return ZemFunc389(n, mean, seed, reset, out);
}
// Percent stands for the probability.
template <int trials, int percent>
Status Binomial(Size n, std::int32_t seed, std::int32_t reset, double* out) {
    return AsReals(n, out,
                   [&](std::int32_t* whole) { return ZemFunc390(n, trials, percent / 100.0, seed, reset, whole); });
}
Status Bernoulli(Size n, std::int32_t seed, std::int32_t reset, double* out) {
    return AsReals(n, out, [&](std::int32_t* whole) { return ZemFunc414(n, 0.4, seed, reset, whole); });
}

const Resettable kResettable[] = {
    {"gamma, product", Gamma<3>, &ThreadState::gammaStream},
    {"gamma, rejection", Gamma<9>, &ThreadState::gammaStream},
    {"poisson, product", Poisson<4>, &ThreadState::poissonStream},
    {"poisson, rejection", Poisson<40>, &ThreadState::poissonStream},
    {"binomial, single trials", Binomial<24, 60>, &ThreadState::binomialStream},
    {"binomial, rare", Binomial<30, 1>, &ThreadState::binomialStream},
    {"binomial, rejection", Binomial<100, 30>, &ThreadState::binomialStream},
    {"bernoulli", Bernoulli, &ThreadState::bernoulliStream},
};

void ExpectSame(const Reals& a, const Reals& b) {
    ASSERT_EQ(a.size(), b.size());
    for (std::size_t i = 0; i < a.size(); ++i) EXPECT_TRUE(SameBits(a[i], b[i])) << i << ": " << a[i] << " " << b[i];
}

// Multiples of 16384 leave only x, which the first step can make 0.
std::vector<std::int32_t> StuckSeeds() {
    std::vector<std::int32_t> seeds;
    for (std::int64_t seed = 16384; seed < (std::int64_t{1} << 31); seed += 16384)
        if (static_cast<std::int32_t>(static_cast<std::uint32_t>(171 * seed)) % 30269 == 0)
            seeds.push_back(static_cast<std::int32_t>(seed));
    return seeds;
}

TEST(NoiseSeed, FirstUniformCallWithSeed0TakesTheDefaults) {
    OnFreshThread([] {
        double out = 0;
        ASSERT_EQ(ZemFunc182(1, 0, &out), 0);
        const RngStream& stream = ThreadStateGet()->uniformStream;
        EXPECT_EQ(stream.x, 29400);
        EXPECT_EQ(stream.y, 9349);
        EXPECT_EQ(stream.z, 11383);
        EXPECT_NEAR(out, 0.6551589660, 5e-11);  // half a unit of the tenth decimal
    });
}

TEST(NoiseSeed, APositiveSeedRestartsAtEveryCallAnd0GoesOn) {
    for (const Seeded& kind : kSeeded) {
        SCOPED_TRACE(kind.name);
        Reals a(12), b(12), next(12);
        ASSERT_EQ(kind.generate(12, 7, a), 0);
        ASSERT_EQ(kind.generate(12, 7, b), 0);
        ExpectSame(a, b);
        ASSERT_EQ(kind.generate(12, 0, next), 0);
        EXPECT_NE(a[1], next[1]);
        if (!kind.joins) continue;
        Reals whole(24);
        ASSERT_EQ(kind.generate(24, 7, whole), 0);
        ExpectSame(Reals(std::vector<double>(whole.begin(), whole.begin() + 12)), a);
        ExpectSame(Reals(std::vector<double>(whole.begin() + 12, whole.end())), next);
    }
}

TEST(NoiseSeed, EveryCutIntoTwoOrThreeCallsGivesTheSameAsOne) {
    constexpr Size n = 40;
    // Draws are made ahead and what was not taken is given back: also of seeds that wrap and turn x negative.
    for (const std::int32_t seed : {123, 12558213, 0x7FFFFFFF}) {
        for (const Seeded& kind : kSeeded) {
            if (!kind.joins) continue;
            SCOPED_TRACE(kind.name);
            Reals whole(n), joined(n);
            ASSERT_EQ(kind.generate(n, seed, whole), 0);
            for (Size first = 1; first < n; ++first)
                for (Size second = first; second < n; ++second) {
                    ASSERT_EQ(kind.generate(first, seed, joined), 0);
                    if (second > first) {
                        ASSERT_EQ(kind.generate(second - first, 0, joined + first), 0);
                    }
                    ASSERT_EQ(kind.generate(n - second, -5, joined + second), 0);  // goes on like 0
                    ExpectSame(whole, joined);
                }
        }
        for (const Resettable& kind : kResettable) {
            SCOPED_TRACE(kind.name);
            Reals whole(n), joined(n);
            ASSERT_EQ(kind.generate(n, seed, 1, whole), 0);
            for (Size cut = 1; cut < n; ++cut) {
                ASSERT_EQ(kind.generate(cut, seed, 1, joined), 0);
                ASSERT_EQ(kind.generate(n - cut, 99, 0, joined + cut), 0);  // without a reset the seed means nothing
                ExpectSame(whole, joined);
            }
        }
    }
}

TEST(NoiseSeed, TheStreamStandsBehindTheDrawsThatWereTaken) {
    // The shuffle of n takes n - 1 draws: as many single ones leave the same components.
    for (const std::int32_t seed : {7, 12558213, 0x7FFFFFFF})
        for (const Size n : {2, 3, 5, 6, 13, 257, 258, 700}) {
            std::vector<double> data(n), out(n - 1);
            ASSERT_EQ(ZemFunc396(data.data(), n, seed, nullptr), 0);
            for (Size i = 0; i < n - 1; ++i) ASSERT_EQ(ZemFunc182(1, i == 0 ? seed : 0, &out[i]), 0);
            const RngStream &ahead = ThreadStateGet()->shuffleRealStream, &single = ThreadStateGet()->uniformStream;
            EXPECT_EQ(ahead.x, single.x);
            EXPECT_EQ(ahead.y, single.y);
            EXPECT_EQ(ahead.z, single.z);
        }
}

TEST(NoiseSeed, LongCallsStepSideBySideAsSingleDrawsDo) {
    // Seeds of all sizes: from 2^31 / 171 on the first product wraps, and x may turn negative for good.
    for (const std::int32_t seed : {1, 7, 30269, 12558212, 12558213, 16384, 0x7FFFFFFF, 1 << 30, 987654321}) {
        constexpr Size n = 600;
        Reals single(n);
        for (Size i = 0; i < n; ++i) ASSERT_EQ(ZemFunc182(1, i == 0 ? seed : 0, single + i), 0);
        const RngStream end = ThreadStateGet()->uniformStream;
        for (const double u : single) {
            EXPECT_LE(0.0, u);
            EXPECT_LT(u, 1.0);
        }
        ForEachTarget([&] {
            for (const Size length : {Size{63}, Size{64}, Size{65}, Size{79}, Size{80}, n}) {
                Reals out(length), white(length);
                ASSERT_EQ(ZemFunc182(length, seed, out), 0);
                ASSERT_EQ(ZemFunc185(length, 1.5, seed, white), 0);
                for (Size i = 0; i < length; ++i) {
                    EXPECT_EQ(out[i], single[i]);
                    EXPECT_EQ(white[i], (single[i] - 0.5) * 3.0);
                }
            }
            const RngStream& stream = ThreadStateGet()->uniformStream;
            EXPECT_EQ(stream.x, end.x);
            EXPECT_EQ(stream.y, end.y);
            EXPECT_EQ(stream.z, end.z);
        });
    }
}

TEST(NoiseSeed, ANegativeSeedTakesTheClockOnTheFirstCallAlone) {
    for (const Seeded& kind : kSeeded) {
        SCOPED_TRACE(kind.name);
        OnFreshThread([&] {
            constexpr std::int32_t seed = -3;
            Reals clock(16), next(16), expected(16), expected_next(16);
            const std::time_t before = std::time(nullptr);
            ASSERT_EQ(kind.generate(16, seed, clock), 0);
            ASSERT_EQ(kind.generate(16, seed, next), 0);
            const std::time_t after = std::time(nullptr);
            bool found = false;
            for (std::time_t t = before; t <= after && !found; ++t) {
                std::srand(static_cast<unsigned>(seed) + static_cast<unsigned>(t));
                const int drawn = std::rand() & 0x3FFF;
                ASSERT_NE(drawn, 0) << "this second's seed says nothing: run again";
                ASSERT_EQ(kind.generate(16, drawn, expected), 0);
                ASSERT_EQ(kind.generate(16, 0, expected_next), 0);
                found = expected.values() == clock.values() && expected_next.values() == next.values();
            }
            EXPECT_TRUE(found);
        });
    }
}

TEST(NoiseSeed, ARefusedCountHasConsumedTheFirstCallAndAppliedTheSeed) {
    for (const Seeded& kind : kSeeded)
        for (const Size n : {Size{0}, Size{-1}}) {
            SCOPED_TRACE(kind.name);
            OnFreshThread([&] {
                Reals out = Output(4), seeded(4), next(4);
                EXPECT_EQ(First(kind), 1);
                EXPECT_EQ(kind.generate(n, 7, out), -20003);
                EXPECT_TRUE(Untouched(out));
                EXPECT_EQ(First(kind), 0);
                ASSERT_EQ(kind.generate(4, 0, next), 0);
                ASSERT_EQ(kind.generate(4, 7, seeded), 0);
                ExpectSame(next, seeded);
            });
        }
}

TEST(NoiseSeed, ACountThatDoesNotFitTouchesNothing) {
    for (const Seeded& kind : kSeeded) {
        SCOPED_TRACE(kind.name);
        OnFreshThread([&] {
            Reals out = Output(1);
            EXPECT_EQ(kind.generate(kTooLarge, 7, out), -20046);
            EXPECT_TRUE(Untouched(out));
            EXPECT_EQ(First(kind), 1);
        });
    }
    for (const Resettable& kind : kResettable) {
        SCOPED_TRACE(kind.name);
        OnFreshThread([&] {
            Reals out = Output(1);
            EXPECT_EQ(kind.generate(kTooLarge, 7, 1, out), -20046);
            EXPECT_EQ((ThreadStateGet()->*kind.stream).first, 1);
        });
    }
}

TEST(NoiseSeed, KindsCalledInTurnDoNotDisturbEachOther) {
    Reals alone(8);
    for (const Seeded& kind : kSeeded) {
        SCOPED_TRACE(kind.name);
        ASSERT_EQ(kind.generate(8, 9, alone), 0);
        Reals first(8), other(8), second(8), in_turn(8);
        ASSERT_EQ(kind.generate(8, 0, second), 0);
        ASSERT_EQ(kind.generate(8, 9, first), 0);
        for (const Seeded& disturbing : kSeeded)
            if (&disturbing != &kind) {
                ASSERT_EQ(disturbing.generate(8, 4, other), 0);
            }
        for (const Resettable& disturbing : kResettable) ASSERT_EQ(disturbing.generate(8, 4, 1, other), 0);
        ASSERT_EQ(kind.generate(8, 0, in_turn), 0);
        ExpectSame(first, alone);
        ExpectSame(second, in_turn);
    }
}

TEST(NoiseReset, ANegativeSeedWithAResetGivesTheDefaultStream) {
    for (const Resettable& kind : kResettable) {
        SCOPED_TRACE(kind.name);
        Reals a(50), b(50), zero(50), fresh(50);
        ASSERT_EQ(kind.generate(50, -1, 1, a), 0);
        ASSERT_EQ(kind.generate(50, -77, 1, b), 0);
        ASSERT_EQ(kind.generate(50, 0, 2, zero), 0);  // any number but 0 resets
        OnFreshThread([&] { ASSERT_EQ(kind.generate(50, -1, 0, fresh), 0); });
        ExpectSame(a, b);
        ExpectSame(a, zero);
        ExpectSame(a, fresh);
    }
}

TEST(NoiseReset, TheSeedCountsOnTheFirstCallAndWithAReset) {
    for (const Resettable& kind : kResettable) {
        SCOPED_TRACE(kind.name);
        Reals reset(50), fresh(50), next(50), ignored(50), defaults(50);
        ASSERT_EQ(kind.generate(50, 5, 1, reset), 0);
        ASSERT_EQ(kind.generate(50, 0, 0, next), 0);
        OnFreshThread([&] {
            ASSERT_EQ(kind.generate(50, 5, 0, fresh), 0);
            ASSERT_EQ(kind.generate(50, 5, 0, ignored), 0);
        });
        ExpectSame(reset, fresh);
        ExpectSame(next, ignored);
        ASSERT_EQ(kind.generate(50, 0, 1, defaults), 0);
        EXPECT_NE(reset.values(), defaults.values());
    }
}

TEST(NoiseReset, CountAndParameterAreTestedBeforeTheStreamIsTouched) {
    const std::function<Status()> refused[] = {
        [] { return ZemFunc388(0, 3, 7, 1, nullptr); },       [] { return ZemFunc388(4, 0, 7, 1, nullptr); },
        [] { return ZemFunc389(-1, 3.0, 7, 1, nullptr); },    [] { return ZemFunc389(4, -0.5, 7, 1, nullptr); },
        [] { return ZemFunc389(4, kNaN, 7, 1, nullptr); },    [] { return ZemFunc390(0, 3, 0.5, 7, 1, nullptr); },
        [] { return ZemFunc390(4, -1, 0.5, 7, 1, nullptr); }, [] { return ZemFunc390(4, 3, 1.5, 7, 1, nullptr); },
        [] { return ZemFunc390(4, 3, kNaN, 7, 1, nullptr); }, [] { return ZemFunc414(0, 0.5, 7, 1, nullptr); },
        [] { return ZemFunc414(4, -0.001, 7, 1, nullptr); },  [] { return ZemFunc414(4, kNaN, 7, 1, nullptr); },
        [] { return ZemFunc412(0, 2, 1, nullptr); },          [] { return ZemFunc413(0, 0.1, 1, nullptr); },
    };
    OnFreshThread([&] {
        for (const auto& call : refused) EXPECT_LT(call(), 0);
        const ThreadState* state = ThreadStateGet();
        for (const Resettable& kind : kResettable) {
            EXPECT_EQ((state->*kind.stream).first, 1);
            EXPECT_EQ((state->*kind.stream).x, 1234);
        }
        EXPECT_EQ(state->haltonFirst, 1);
        EXPECT_EQ(state->weylFirst, 1);
    });
}

TEST(NoiseReset, EachParameterHasItsStatusAndTheCountComesFirst) {
    Reals out = Output(1);
    Ints whole(1, -9);
    EXPECT_EQ(ZemFunc388(0, 0, 1, 1, out), -20003);
    EXPECT_EQ(ZemFunc388(1, 0, 1, 1, out), -20140);
    EXPECT_EQ(ZemFunc388(1, -4, 1, 1, out), -20140);
    EXPECT_EQ(ZemFunc389(0, -1.0, 1, 1, out), -20003);
    EXPECT_EQ(ZemFunc389(1, -1e-300, 1, 1, out), -20061);
    EXPECT_EQ(ZemFunc389(1, kInf, 1, 1, out), -20061);
    EXPECT_EQ(ZemFunc389(1, -kInf, 1, 1, out), -20061);
    EXPECT_EQ(ZemFunc389(1, kNaN, 1, 1, out), -20061);
    EXPECT_EQ(ZemFunc389(1, std::numeric_limits<double>::max(), 1, 1, out), -20061) << "ln Gamma overflows";
    EXPECT_EQ(ZemFunc390(0, -1, 2.0, 1, 1, whole), -20003);
    EXPECT_EQ(ZemFunc390(1, -1, 2.0, 1, 1, whole), -20059);
    EXPECT_EQ(ZemFunc390(1, 5, 1.0000001, 1, 1, whole), -20053);
    EXPECT_EQ(ZemFunc390(1, 5, -1e-300, 1, 1, whole), -20053);
    EXPECT_EQ(ZemFunc390(1, 5, kInf, 1, 1, whole), -20053);
    EXPECT_EQ(ZemFunc390(1, 5, kNaN, 1, 1, whole), -20061);
    EXPECT_EQ(ZemFunc414(0, 2.0, 1, 1, whole), -20003);
    EXPECT_EQ(ZemFunc414(1, 2.0, 1, 1, whole), -20053);
    EXPECT_EQ(ZemFunc414(1, -0.1, 1, 1, whole), -20053);
    EXPECT_EQ(ZemFunc414(1, kNaN, 1, 1, whole), -20061);
    EXPECT_TRUE(Untouched(out));
    EXPECT_EQ(whole[0], -9);
}

TEST(NoiseSeed, SeedsThatMakeEveryDraw0AreRefusedWhereTheyWouldNeverEnd) {
    const std::vector<std::int32_t> seeds = StuckSeeds();
    ASSERT_FALSE(seeds.empty());
    for (const std::int32_t seed : seeds) {
        Reals out = Output(1);
        EXPECT_EQ(ZemFunc84(1, 1.0, seed, out), -20061);
        EXPECT_EQ(ZemFunc84(1, 1.0, 0, out), -20061) << "the stream stays where it is";
        EXPECT_EQ(ZemFunc388(1, 6, seed, 1, out), -20061);
        EXPECT_EQ(ZemFunc388(1, 6, 0, 0, out), -20061);
        EXPECT_TRUE(Untouched(out));
        EXPECT_EQ(ZemFunc388(1, 5, seed, 1, out), 0);
        EXPECT_EQ(out[0], kInf);  // -ln 0
        EXPECT_EQ(ZemFunc182(1, seed, out), 0);
        EXPECT_EQ(out[0], 0.0);
        EXPECT_EQ(ZemFunc389(1, 3.0, seed, 1, out), 0);
        EXPECT_EQ(out[0], 0.0);
        EXPECT_EQ(ZemFunc389(1, 30.5, seed, 1, out), 0);
        EXPECT_EQ(out[0], 30.0);  // tan 0, accepted at once
        Ints whole(1);
        for (const std::int32_t trials : {10, 30, 100}) EXPECT_EQ(ZemFunc390(1, trials, 0.02, seed, 1, whole), 0);
        EXPECT_EQ(ZemFunc84(1, 1.0, 1, out), 0);
    }
}

TEST(GaussianNoise, ThePairOfOneDrawAndThenTheSpareDropped) {
    Reals pair(2), first(1), second(1), dropped(1), fresh(1);
    ASSERT_EQ(ZemFunc84(2, 1.0, 11, pair), 0);
    ASSERT_EQ(ZemFunc84(1, 1.0, 11, first), 0);
    EXPECT_EQ(ThreadStateGet()->gaussHaveSpare, 1);
    ASSERT_EQ(ZemFunc84(1, 1.0, 0, second), 0);
    EXPECT_EQ(first[0], pair[0]);
    EXPECT_EQ(second[0], pair[1]);
    ASSERT_EQ(ZemFunc84(1, 1.0, 11, first), 0);
    ASSERT_EQ(ZemFunc84(1, 1.0, 12, dropped), 0);  // a seed above 0 drops the spare
    ASSERT_EQ(ZemFunc84(2, 1.0, 12, pair), 0);
    EXPECT_EQ(dropped[0], pair[0]);
    EXPECT_NE(dropped[0], second[0]);
}

TEST(GaussianNoise, ARefusedCountWithAPositiveSeedDropsTheSpareAndWithANegativeOneKeepsIt) {
    Reals first(1), spare(1), pair(2);
    ASSERT_EQ(ZemFunc84(2, 1.0, 11, pair), 0);
    ASSERT_EQ(ZemFunc84(1, 1.0, 11, first), 0);
    EXPECT_EQ(ZemFunc84(0, 1.0, -1, first), -20003);
    ASSERT_EQ(ZemFunc84(1, 1.0, -1, spare), 0);
    EXPECT_EQ(spare[0], pair[1]);
    ASSERT_EQ(ZemFunc84(1, 1.0, 11, first), 0);
    EXPECT_EQ(ZemFunc84(0, 1.0, 11, first), -20003);
    EXPECT_EQ(ThreadStateGet()->gaussHaveSpare, 0);
    EXPECT_EQ(ThreadStateGet()->gaussSpare, 0.0);
    ASSERT_EQ(ZemFunc84(1, 1.0, 0, spare), 0);
    EXPECT_EQ(spare[0], pair[0]);
}

TEST(GaussianNoise, TheSpareIsKeptUnscaled) {
    Reals pair(2), first(1), second(1);
    ASSERT_EQ(ZemFunc84(2, 1.0, 11, pair), 0);
    ASSERT_EQ(ZemFunc84(1, 2.0, 11, first), 0);
    ASSERT_EQ(ZemFunc84(1, -3.0, 0, second), 0);
    EXPECT_EQ(first[0], pair[0] * 2.0);
    EXPECT_EQ(second[0], pair[1] * -3.0);
}

TEST(WhiteNoise, TheSignOfTheAmplitudeIsKept) {
    Reals plus(10), minus(10);
    ASSERT_EQ(ZemFunc185(10, 2.0, 3, plus), 0);
    ASSERT_EQ(ZemFunc185(10, -2.0, 3, minus), 0);
    for (int i = 0; i < 10; ++i) {
        EXPECT_EQ(plus[i], -minus[i]);
        EXPECT_LE(-2.0, plus[i]);
        EXPECT_LT(plus[i], 2.0);
    }
}

TEST(WhiteNoise, TheAmplitudeIsDoubledFirst) {
    // 2 a overflows although (u - 0.5) 2 a would not.
    Reals out(1);
    ASSERT_EQ(ZemFunc185(1, 1.5e308, 3, out), 0);
    EXPECT_TRUE(std::isinf(out[0]));
}

TEST(PoissonNoise, Mean0GivesZeros) {
    Reals out = Output(20);
    ASSERT_EQ(ZemFunc389(20, 0.0, 3, 1, out), 0);
    for (const double k : out) EXPECT_TRUE(SameBits(k, 0.0));
}

TEST(BinomialNoise, Probability1GivesAllTrialsAnd0GivesNone) {
    for (const std::int32_t trials : {0, 1, 24, 25, 1000, std::numeric_limits<std::int32_t>::max()}) {
        // Single trials of the largest count would take hours; from 25 on the mean decides.
        Ints all(5, -1), none(5, -1);
        ASSERT_EQ(ZemFunc390(5, trials, 1.0, 3, 1, all), 0);
        ASSERT_EQ(ZemFunc390(5, trials, 0.0, 3, 1, none), 0);
        for (int i = 0; i < 5; ++i) {
            EXPECT_EQ(all[i], trials);
            EXPECT_EQ(none[i], 0);
        }
    }
}

TEST(BinomialNoise, AProbabilityAboveOneHalfMirrorsItsComplementAndOneHalfDoesNot) {
    for (const std::int32_t trials : {20, 200}) {
        Ints above(30), below(30), half(30), nearly(30);
        ASSERT_EQ(ZemFunc390(30, trials, 0.75, 3, 1, above), 0);
        ASSERT_EQ(ZemFunc390(30, trials, 0.25, 3, 1, below), 0);
        for (int i = 0; i < 30; ++i) EXPECT_EQ(above[i], trials - below[i]);
        // The next double below draws the same; only a mirrored 0.5 would differ.
        ASSERT_EQ(ZemFunc390(30, trials, 0.5, 3, 1, half), 0);
        ASSERT_EQ(ZemFunc390(30, trials, std::nextafter(0.5, 0.0), 3, 1, nearly), 0);
        EXPECT_EQ(half.values(), nearly.values());
    }
}

TEST(BinomialNoise, TheCacheFollowsTheParametersAndAResetEmptiesIt) {
    Ints out(10), again(10);
    ASSERT_EQ(ZemFunc390(10, 100, 0.3, 3, 1, out), 0);
    const RngBinomialCache& kept = ThreadStateGet()->binomialCache;
    EXPECT_EQ(kept.trials, 100);
    EXPECT_EQ(kept.trialsReal, 100.0);
    EXPECT_NEAR(kept.lnGammaTrials, std::lgamma(101.0), 1e-12 * 364);
    EXPECT_EQ(kept.p, 0.3);
    EXPECT_EQ(kept.q, 1.0 - 0.3);
    EXPECT_EQ(kept.lnP, std::log(0.3));
    EXPECT_EQ(kept.lnQ, std::log(1.0 - 0.3));
    ASSERT_EQ(ZemFunc390(10, 50, 0.8, 3, 0, out), 0);
    EXPECT_EQ(kept.trials, 50);
    EXPECT_EQ(kept.p, 1.0 - 0.8);
    ASSERT_EQ(ZemFunc390(10, 10, 0.3, 3, 0, out), 0);  // single trials need no cache
    EXPECT_EQ(kept.trials, 50);
    ASSERT_EQ(ZemFunc390(10, 10, 0.3, 3, 1, out), 0);
    EXPECT_EQ(kept.trials, -1);
    EXPECT_EQ(kept.p, -1.0);
    EXPECT_EQ(kept.lnGammaTrials, 0.0);
    // Alternating parameters give the same as the cache made anew.
    ASSERT_EQ(ZemFunc390(10, 100, 0.3, 3, 1, out), 0);
    ASSERT_EQ(ZemFunc390(10, 100, 0.2, 3, 1, again), 0);
    ASSERT_EQ(ZemFunc390(10, 60, 0.2, 3, 0, again), 0);
    ASSERT_EQ(ZemFunc390(10, 100, 0.3, 3, 1, again), 0);
    EXPECT_EQ(out.values(), again.values());
}

TEST(BernoulliNoise, Probability1GivesOnesAnd0GivesZeros) {
    Ints ones(100, -1), zeros(100, -1);
    ASSERT_EQ(ZemFunc414(100, 1.0, 3, 1, ones), 0);
    ASSERT_EQ(ZemFunc414(100, 0.0, 3, 1, zeros), 0);
    for (int i = 0; i < 100; ++i) {
        EXPECT_EQ(ones[i], 1);
        EXPECT_EQ(zeros[i], 0);
    }
}

TEST(PeriodicNoise, OneSampleAndTwoAre0) {
    for (const Size n : {1, 2}) {
        Reals out = Output(n);
        ASSERT_EQ(ZemFunc387(n, 5.0, 3, out), 0);
        for (const double v : out) EXPECT_EQ(v, 0.0);
    }
}

TEST(NoiseFaults, ExhaustedMemoryForTheStateOfTheThread) {
    for (const Seeded& kind : kSeeded) {
        SCOPED_TRACE(kind.name);
        Reals out(4);
        ExpectStateAllocationFails([&] { return kind.generate(4, 3, out); });
    }
    for (const Resettable& kind : kResettable) {
        SCOPED_TRACE(kind.name);
        Reals out(4);
        ExpectStateAllocationFails([&] { return kind.generate(4, 3, 0, out); });
    }
}

TEST(NoiseFaults, ExhaustedMemoryForTheTemporaries) {
    ASSERT_NE(ThreadStateGet(), nullptr);  // the record stays with the thread
    for (const Size n : {12, 53}) {
        Reals out(n);
        ASSERT_EQ(ZemFunc387(n, 1.0, 3, out), 0);
        ExpectEveryAllocationFails([&] { return ZemFunc387(n, 1.0, 3, out); });
    }
    Ints whole(10);
    ExpectEveryAllocationFails([&] { return ZemFunc414(10, 0.5, 3, 1, whole); });
}

TEST(NoiseFaults, WhatWasWrittenToTheStateBeforeAFailureStays) {
    OnFreshThread([] {
        ThreadState* state = ThreadStateGet();
        Reals out = Output(12);
        FailAllocation(0);
        EXPECT_EQ(ZemFunc387(12, 1.0, 5, out), -20001);
        FailAllocation(-1);
        EXPECT_TRUE(Untouched(out));
        EXPECT_EQ(state->periodicStream.first, 0);
        EXPECT_EQ(state->periodicStream.x, 5);  // seeded, nothing drawn
        Ints whole(12, -9);
        FailAllocation(0);
        EXPECT_EQ(ZemFunc414(12, 0.5, 5, 0, whole), -20001);
        FailAllocation(-1);
        EXPECT_EQ(whole[0], -9);
        EXPECT_EQ(state->bernoulliStream.first, 0);
    });
}

}  // namespace
}  // namespace quorvan::testing

// One plan list for all threads: made, shared, used and dropped at once. The suite under ThreadSanitizer runs these.
#include <atomic>
#include <cstring>
#include <gtest/gtest.h>
#include <thread>
#include <vector>

#include "frame/types.h"
#include "quorvan/quorvan.h"

namespace quorvan {
namespace {

constexpr int kThreads = 4;
constexpr int kRounds = 50;
// Sizes with small factors, a prime with a kernel of its own or none, and 1; the reals of 132 go through the plan
// of 66.
constexpr std::int64_t kSizes[] = {1, 12, 64, 97, 132, 360, 1009};

std::vector<double> Samples(std::int64_t n) {
    std::vector<double> x(n);
    for (std::int64_t i = 0; i < n; ++i) x[i] = double((i * 7919) % 101) - 50.0;
    return x;
}

std::vector<ComplexRecord> SpectrumAlone(std::int64_t n) {
    std::vector<ComplexRecord> out(n);
    EXPECT_EQ(ZemFunc262(Samples(n).data(), n, 0, nullptr, 0, out.data()), 0);
    return out;
}

bool SameBits(const std::vector<ComplexRecord>& a, const std::vector<ComplexRecord>& b) {
    return a.size() == b.size() && std::memcmp(a.data(), b.data(), a.size() * sizeof a[0]) == 0;
}

// Starts all threads at one gate, so that they meet in the library, and returns when all are done.
template <class Body>
void Together(Body body) {
    std::atomic<int> waiting{kThreads};
    std::vector<std::thread> threads;
    for (int t = 0; t < kThreads; ++t)
        threads.emplace_back([&, t] {
            --waiting;
            while (waiting.load() > 0) std::this_thread::yield();
            body(t);
        });
    for (std::thread& thread : threads) thread.join();
}

TEST(PlanSharingThreads, PlansMadeAndDroppedAtOnceTransformAsAlone) {
    std::vector<std::vector<ComplexRecord>> alone;
    for (const std::int64_t n : kSizes) alone.push_back(SpectrumAlone(n));
    std::atomic<int> wrong{0};
    Together([&](int thread) {
        for (int round = 0; round < kRounds; ++round) {
            const std::size_t k = (round + thread) % std::size(kSizes);
            std::vector<ComplexRecord> out(kSizes[k]);
            const QvStatus status = ZemFunc262(Samples(kSizes[k]).data(), kSizes[k], 0, nullptr, 0, out.data());
            if (status != 0 || !SameBits(out, alone[k])) ++wrong;
        }
    });
    EXPECT_EQ(wrong.load(), 0);
}

TEST(PlanSharingThreads, RealAndComplexTransformsOfOneLengthMeetInOnePlan) {
    for (const std::int64_t n : {std::int64_t{66}, std::int64_t{132}}) {
        std::vector<ComplexRecord> z(n), both(n);
        for (std::int64_t i = 0; i < n; ++i) z[i] = {Samples(n)[i], double(i % 7)};
        ASSERT_EQ(ZemFunc263(z.data(), n, 0, nullptr, 0, both.data()), 0);
        const std::vector<ComplexRecord> alone = SpectrumAlone(n);
        std::atomic<int> wrong{0};
        Together([&](int thread) {
            const std::vector<double> x = Samples(n);
            std::vector<ComplexRecord> out(n);
            for (int round = 0; round < kRounds; ++round) {
                const QvStatus status = thread % 2 ? ZemFunc262(x.data(), n, 0, nullptr, 0, out.data())
                                                   : ZemFunc263(z.data(), n, 0, nullptr, 0, out.data());
                if (status != 0 || !SameBits(out, thread % 2 ? alone : both)) ++wrong;
            }
        });
        EXPECT_EQ(wrong.load(), 0);
    }
}

TEST(PlanSharingThreads, ThreadsThatAskForOneLengthGetOnePlan) {
    for (const std::int64_t n : kSizes) {
        QvFftPlan* plans[kThreads] = {};
        Together([&](int thread) { plans[thread] = ZemFunc260(n); });
        for (QvFftPlan* plan : plans) {
            EXPECT_NE(plan, nullptr);
            EXPECT_EQ(plan, plans[0]);
        }
        Together([&](int thread) { ZemFunc261(plans[thread]); });
    }
}

TEST(PlanSharingThreads, OneHeldPlanServesAllThreadsAtOnce) {
    const std::int64_t n = 1009;
    const std::vector<ComplexRecord> alone = SpectrumAlone(n);
    QvFftPlan* plan = ZemFunc260(n);
    ASSERT_NE(plan, nullptr);
    std::atomic<int> wrong{0};
    Together([&](int) {
        const std::vector<double> x = Samples(n);
        for (int round = 0; round < kRounds; ++round) {
            std::vector<ComplexRecord> out(n);
            if (ZemFunc262(x.data(), n, n, plan, 0, out.data()) != 0 || !SameBits(out, alone)) ++wrong;
        }
    });
    EXPECT_EQ(wrong.load(), 0);
    ZemFunc261(plan);
}

TEST(PlanSharingThreads, APlanIsHeldWhileOtherThreadsTransformByIt) {
    const std::int64_t n = 360;
    const std::vector<ComplexRecord> alone = SpectrumAlone(n);
    std::atomic<int> wrong{0};
    Together([&](int thread) {
        const std::vector<double> x = Samples(n);
        for (int round = 0; round < kRounds; ++round) {
            QvFftPlan* plan = thread % 2 ? ZemFunc260(n) : nullptr;
            std::vector<ComplexRecord> out(n);
            if (ZemFunc262(x.data(), n, n, plan, 0, out.data()) != 0 || !SameBits(out, alone)) ++wrong;
            ZemFunc261(plan);
        }
    });
    EXPECT_EQ(wrong.load(), 0);
}

}  // namespace
}  // namespace quorvan

// Windows by their code: symmetric, scaled, and properties.
#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <set>

#include "quorvan/quorvan.h"
#include "tests/support/failing_heap.h"
#include "tests/support/guarded.h"

namespace quorvan::testing {
namespace {

const std::set<std::int32_t> kCosineSums = {1, 2, 3, 4, 5, 6, 7, 8, 9, 11};
const std::set<std::int32_t> kDirect = {30, 31, 32, 33, 34, 60, 61, 62};
constexpr std::int32_t kInvalid[] = {-2147483647 - 1, -1, 10, 12, 20, 29, 35, 59, 63, 64, 2147483647};

constexpr WinProperties kUntouched = {kUnwritten, kUnwritten};
bool operator==(const WinProperties& a, const WinProperties& b) {
    return a.enbw == b.enbw && a.coherent_gain == b.coherent_gain;
}
bool BothNan(const WinProperties& p) { return std::isnan(p.enbw) && std::isnan(p.coherent_gain); }
bool Same(const Reals& a, const Reals& b) { return std::equal(a.begin(), a.end(), b.begin(), b.end(), SameBits); }
bool AllOneTwo(const Records& z) {
    return std::all_of(z.begin(), z.end(), [](const ComplexRecord& v) { return v.re == 1 && v.im == 2; });
}

TEST(WinApplySymmetric, RefusesSizesAndTouchesNothing) {
    Reals x = Output(2);
    Records z = RecordOutput(2);
    for (std::int32_t code : {1, 60, 10}) {
        for (Size n : {0, -1}) {
            EXPECT_EQ(ZemFunc281(x, n, code, 0.0), -20003) << "also before the code";
            EXPECT_EQ(ZemFunc429(z, n, code, 0.0), -20003);
        }
        EXPECT_EQ(ZemFunc281(x, kTooLarge, code, 0.0), -20046);
        EXPECT_EQ(ZemFunc429(z, kTooLarge, code, 0.0), -20046);
    }
    EXPECT_TRUE(Untouched(x));
    EXPECT_TRUE(Untouched(z));
}

TEST(WinApplySymmetric, RefusesUnknownCodesAndLeavesTheData) {
    for (std::int32_t code : kInvalid) {
        Reals x = Output(3);
        Records z = RecordOutput(3);
        EXPECT_EQ(ZemFunc281(x, 3, code, 1.0), -20061) << code;
        EXPECT_EQ(ZemFunc429(z, 3, code, 1.0), -20061) << code;
        EXPECT_TRUE(Untouched(x));
        EXPECT_TRUE(Untouched(z));
    }
}

TEST(WinApplySymmetric, LeavesASingleSampleWhateverTheCode) {
    for (std::int32_t code = -1; code < 70; ++code) {
        Reals x = Output(1);
        Records z = RecordOutput(1);
        EXPECT_EQ(ZemFunc281(x, 1, code, 5.0), 0);
        EXPECT_EQ(ZemFunc429(z, 1, code, 5.0), 0);
        EXPECT_TRUE(Untouched(x));
        EXPECT_TRUE(Untouched(z));
    }
}

TEST(WinApplySymmetric, HanningOfFiveOnes) {
    Reals x(5, 1.0);
    ASSERT_EQ(ZemFunc281(x, 5, QV_WINDOW_HANNING, 0.0), 0);
    const double expected[] = {0, 0.5, 1, 0.5, 0};
    for (int i = 0; i < 5; ++i) EXPECT_NEAR(x[i], expected[i], kEpsilon);
    EXPECT_TRUE(SameBits(x[4], x[0]));
}

TEST(WinApplySymmetric, IsSymmetricToTheLastBit) {
    for (std::int32_t code = 0; code < 63; ++code) {
        if (!kCosineSums.count(code) && !kDirect.count(code)) continue;
        for (int n = 2; n < 50; ++n) {
            Reals x(n, 1.0);
            ASSERT_EQ(ZemFunc281(x, n, code, code == QV_WINDOW_GAUSSIAN ? 0.3 : 50.0), 0) << code;
            for (int i = 0; i < n; ++i) EXPECT_TRUE(SameBits(x[i], x[n - 1 - i])) << code << ' ' << n << ' ' << i;
        }
    }
}

TEST(WinApplySymmetric, ReplacesNegativeParameters) {
    const struct {
        std::int32_t code;
        double given, meant;
    } cases[] = {{QV_WINDOW_CHEBYSHEV, -1.0, 60.0},
                 {QV_WINDOW_CHEBYSHEV, -kInf, 60.0},
                 {QV_WINDOW_GAUSSIAN, -1.0, 0.2},
                 {QV_WINDOW_GAUSSIAN, 0.0, 0.2},
                 {QV_WINDOW_KAISER, -4.0, 4.0}};
    for (const auto& c : cases) {
        Reals x(20, 1.0), expected(20, 1.0);
        ASSERT_EQ(ZemFunc281(x, 20, c.code, c.given), 0);
        ASSERT_EQ(ZemFunc281(expected, 20, c.code, c.meant), 0);
        EXPECT_TRUE(Same(x, expected)) << c.code;
        WinProperties properties, meant;
        ASSERT_EQ(ZemFunc337(x, 20, c.code, c.given, &properties), 0);
        ASSERT_EQ(ZemFunc445(20, c.code, c.meant, &meant), 0);
        EXPECT_TRUE(properties == meant) << c.code;
        ASSERT_EQ(ZemFunc445(20, c.code, c.given, &properties), 0);
        EXPECT_TRUE(properties == meant) << c.code;
    }
}

TEST(WinApplySymmetric, GivesTheStatusOfExhaustedMemoryAndLeavesTheData) {
    for (std::int32_t code : {0, 1, 8, 30, 31, 32, 33, 34, 60, 61, 62})
        for (int n : {2, 9, 10}) {
            SCOPED_TRACE(::testing::Message() << "code " << code << ", n " << n);
            const Reals data = RandomReals(n);
            ExpectEveryAllocationFails([&] {
                Reals x = data;
                const Status status = ZemFunc281(x, n, code, 40.0);
                if (status < 0) {
                    EXPECT_TRUE(Same(x, data));
                }
                return status;
            });
            ExpectEveryAllocationFails([&] {
                Records z(n, ComplexRecord{1.0, 2.0});
                const Status status = ZemFunc429(z, n, code, 40.0);
                EXPECT_TRUE(status == 0 || AllOneTwo(z));
                return status;
            });
        }
}

TEST(WinApplyScaled, RefusesSizesAndCodesWithNanProperties) {
    Reals x = Output(3);
    Records z = RecordOutput(3);
    const std::function<Status(Size, std::int32_t, WinProperties*)> exports[] = {
        [&](Size n, std::int32_t code, WinProperties* p) { return ZemFunc337(x, n, code, 0.0, p); },
        [&](Size n, std::int32_t code, WinProperties* p) { return ZemFunc428(z, n, code, 0.0, p); },
        [&](Size n, std::int32_t code, WinProperties* p) { return ZemFunc152(x, n, code, p); }};
    for (const auto& apply : exports) {
        const auto expect = [&](Size n, std::int32_t code, Status expected) {
            WinProperties properties = kUntouched;
            EXPECT_EQ(apply(n, code, &properties), expected) << n << ' ' << code;
            EXPECT_TRUE(BothNan(properties)) << n << ' ' << code;
        };
        for (std::int32_t code : {0, 1, 60, 10}) expect(-1, code, -20004);
        for (std::int32_t code : kInvalid) {
            expect(3, code, -20061);
            expect(0, code, -20061);
        }
        for (std::int32_t code : kDirect) expect(0, code, -20003);
        for (std::int32_t code : {0, 1, 60, 10}) {
            WinProperties properties = kUntouched;
            EXPECT_EQ(apply(kTooLarge, code, &properties), -20046);
            EXPECT_TRUE(properties == kUntouched);
        }
    }
    EXPECT_TRUE(Untouched(x));
    EXPECT_TRUE(Untouched(z));
}

TEST(WinApplyScaled, OfNoSamplesTellsTheStoredProperties) {
    for (std::int32_t code = 0; code < 12; ++code) {
        if (code == 10) continue;
        WinProperties properties = kUntouched, fixed = kUntouched;
        EXPECT_EQ(ZemFunc337(nullptr, 0, code, 0.0, &properties), 0);
        ASSERT_EQ(ZemFunc282(code, &fixed), 0);
        EXPECT_TRUE(properties == fixed) << code;
    }
}

TEST(WinApplyScaled, WithTheRectangleLeavesTheDataAndTells1And1) {
    Reals x{1.0, kNaN, -kInf};
    const Reals data = x;
    WinProperties properties = kUntouched;
    FailAllocation(0);
    EXPECT_EQ(ZemFunc337(x, 3, 0, 0.0, &properties), 0);
    FailAllocation(-1);
    EXPECT_TRUE(Same(x, data));
    EXPECT_TRUE((properties == WinProperties{1.0, 1.0}));
}

TEST(WinApplyScaled, DividesCosineSumsByTheirFirstCoefficientNotByTheStoredGain) {
    // Exact Blackman: the printed gain has eleven digits, a[0] sixteen, so that the mean of the scaled window tells
    // them apart.
    const int n = 64;
    Reals x(n, 1.0);
    WinProperties properties = kUntouched;
    ASSERT_EQ(ZemFunc337(x, n, QV_WINDOW_EXACT_BLACKMAN, 0.0, &properties), 0);
    EXPECT_EQ(properties.coherent_gain, 0.42659071367);
    double sum = 0;
    for (double v : x) sum += v;
    EXPECT_NEAR(sum / n, 1.0, n * kEpsilon);
    EXPECT_GT(std::fabs(0.4265907136715391 / properties.coherent_gain - 1.0), 100 * n * kEpsilon);
}

TEST(WinApplyScaled, GivesEveryWindowAMeanOf1) {
    for (int n : {2, 3, 8, 50, 101})
        for (std::int32_t code = 0; code < 63; ++code) {
            if (code && !kCosineSums.count(code) && !kDirect.count(code)) continue;
            Reals x(n, 1.0);
            WinProperties properties = kUntouched;
            ASSERT_EQ(ZemFunc337(x, n, code, code == QV_WINDOW_GAUSSIAN ? 0.3 : 40.0, &properties), 0) << code;
            double sum = 0;
            for (double v : x) sum += v;
            // Cosines of too few samples for their order do not sum to 0: two samples alias the second term onto the
            // mean.
            if (n < 8 && kCosineSums.count(code)) continue;
            EXPECT_NEAR(sum / n, 1.0, 4 * n * kEpsilon) << code << ' ' << n;
        }
}

TEST(WinApplyScaled, WithATriangleOfOneSampleHasNoPropertiesAndNoError) {
    Reals x(1, 1.0);
    WinProperties properties = kUntouched;
    EXPECT_EQ(ZemFunc337(x, 1, QV_WINDOW_TRIANGLE, 0.0, &properties), 0);
    EXPECT_TRUE(BothNan(properties));
    EXPECT_TRUE(std::isnan(x[0]));
    properties = kUntouched;
    EXPECT_EQ(ZemFunc445(1, QV_WINDOW_TRIANGLE, 0.0, &properties), 0);
    EXPECT_TRUE(BothNan(properties));
}

TEST(WinApplyScaled, GivesTheStatusOfExhaustedMemoryWithNanPropertiesAndLeavesTheData) {
    for (std::int32_t code : {1, 8, 30, 31, 32, 33, 34, 60, 61, 62})
        for (int n : {2, 9, 10}) {
            SCOPED_TRACE(::testing::Message() << "code " << code << ", n " << n);
            const Reals data = RandomReals(n);
            ExpectEveryAllocationFails([&] {
                Reals x = data;
                WinProperties properties = kUntouched;
                const Status status = ZemFunc337(x, n, code, 40.0, &properties);
                EXPECT_EQ(BothNan(properties), status < 0);
                if (status < 0) {
                    EXPECT_TRUE(Same(x, data));
                }
                return status;
            });
            ExpectEveryAllocationFails([&] {
                Records z(n, ComplexRecord{1.0, 2.0});
                WinProperties properties = kUntouched;
                const Status status = ZemFunc428(z, n, code, 40.0, &properties);
                EXPECT_EQ(BothNan(properties), status < 0);
                EXPECT_TRUE(status == 0 || AllOneTwo(z));
                return status;
            });
        }
}

TEST(WinPropertiesOf, RefusesSizesBeforeCodesWithNanProperties) {
    const auto expect = [](Size n, std::int32_t code, Status expected) {
        WinProperties properties = kUntouched;
        EXPECT_EQ(ZemFunc445(n, code, 0.0, &properties), expected) << n << ' ' << code;
        EXPECT_TRUE(BothNan(properties)) << n << ' ' << code;
    };
    for (std::int32_t code : {0, 1, 34, 60, 10})
        for (Size n : {0, -1}) expect(n, code, -20003);
    for (std::int32_t code : kInvalid) expect(5, code, -20061);
    WinProperties properties = kUntouched;
    EXPECT_EQ(ZemFunc445(kTooLarge, 1, 0.0, &properties), -20046);
    EXPECT_TRUE(properties == kUntouched);
}

TEST(WinPropertiesOf, HanningIsStoredAndWelchIsMeasured) {
    for (Size n : {1, 2, 7, 1000, 2147483647}) {
        WinProperties properties = kUntouched;
        ASSERT_EQ(ZemFunc445(n, QV_WINDOW_HANNING, 0.0, &properties), 0);
        EXPECT_TRUE((properties == WinProperties{1.5, 0.5}));
    }
    // Four samples: 0, 0.75, 1, 0.75.
    WinProperties properties = kUntouched;
    ASSERT_EQ(ZemFunc445(4, QV_WINDOW_WELCH, 0.0, &properties), 0);
    EXPECT_EQ(properties.coherent_gain, 2.5 / 4);
    EXPECT_EQ(properties.enbw, 4 * (1 + 2 * 0.5625) / (2.5 * 2.5));
}

TEST(WinPropertiesOf, GivesTheStatusOfExhaustedMemoryWithNanProperties) {
    for (std::int32_t code : kDirect)
        for (int n : {2, 9, 10}) {
            SCOPED_TRACE(::testing::Message() << "code " << code << ", n " << n);
            ExpectEveryAllocationFails([&] {
                WinProperties properties = kUntouched;
                const Status status = ZemFunc445(n, code, 40.0, &properties);
                EXPECT_EQ(BothNan(properties), status < 0);
                return status;
            });
        }
}

TEST(WinPropertiesFixed, LeavesItsOutputForCodesWithoutARow) {
    for (std::uint32_t code : {10u, 12u, 29u, 30u, 35u, 60u, 61u, 62u, 63u, 0x80000000u, 0xffffffffu}) {
        WinProperties properties = kUntouched;
        EXPECT_EQ(ZemFunc282(code, &properties), -20061) << code;
        EXPECT_TRUE(properties == kUntouched);
    }
}

TEST(WinPropertiesMeasure, OfNoSamplesIsNan) {
    WinProperties properties = kUntouched;
    EXPECT_EQ(ZemFunc283(nullptr, 0, &properties), -20003);
    EXPECT_TRUE(BothNan(properties));
}

TEST(WinPropertiesMeasure, TakesAnyArrayAlsoOneWithoutMean) {
    const Reals w{1.0, -1.0};
    WinProperties properties = kUntouched;
    ASSERT_EQ(ZemFunc283(w, 2, &properties), 0);
    EXPECT_EQ(properties.coherent_gain, 0.0);
    EXPECT_EQ(properties.enbw, kInf);
    const Reals ones(1000, 1.0);
    ASSERT_EQ(ZemFunc283(ones, 1000, &properties), 0);
    EXPECT_TRUE((properties == WinProperties{1.0, 1.0}));
}

}  // namespace
}  // namespace quorvan::testing

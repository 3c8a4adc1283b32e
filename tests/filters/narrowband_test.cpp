// Interpolated FIR filters: designs, their record, and both ways of filtering.
#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <memory>

#include "quorvan/quorvan.h"
#include "tests/support/failing_heap.h"
#include "tests/support/guarded.h"
#include "tests/support/targets.h"

namespace quorvan::testing {
namespace {

constexpr std::uint32_t kLow = 0, kHigh = 1, kBand = 2, kStop = 3;

struct Release {
    void operator()(QvFirNarrowband* filter) const { ZemFunc492(filter); }
};
using Filter = std::unique_ptr<QvFirNarrowband, Release>;

struct Request {
    double fs, f1, f2, center, ripple, attenuation;
    std::uint32_t kind;

    bool passes(double f) const {
        const double d = std::fabs(f - center);
        return kind == kLow ? f <= f1 : kind == kHigh ? f >= f1 : kind == kBand ? d <= f1 / 2 : d >= f1 / 2;
    }
    bool stops(double f) const {
        const double d = std::fabs(f - center);
        return kind == kLow ? f >= f2 : kind == kHigh ? f <= f2 : kind == kBand ? d >= f2 / 2 : d <= f2 / 2;
    }
};

Filter Made(const Request& q) {
    Filter filter(ZemFunc491());
    EXPECT_EQ(ZemFunc409(q.fs, q.f1, q.f2, q.center, q.ripple, q.attenuation, q.kind, filter.get()), 0);
    return filter;
}

Status StatusOf(const Request& q) {
    const Filter filter(ZemFunc491());
    const Status status = ZemFunc409(q.fs, q.f1, q.f2, q.center, q.ripple, q.attenuation, q.kind, filter.get());
    EXPECT_EQ(filter->model != nullptr, status == 0);
    EXPECT_EQ(filter->factor != 0, status == 0) << "the record is unchanged after a failure";
    return status;
}

Size Span(const QvFirNarrowband& f) {
    return f.factor == 1 ? f.model_count : (Size{f.model_count} - 1) * f.factor + f.suppressor_count;
}

Reals Filtered(const Reals& x, QvFirNarrowband* filter) {
    Reals y = Output(x.size() + Span(*filter) - 1);
    EXPECT_EQ(ZemFunc410(x, Size(x.size()), filter, y), 0);
    return y;
}

Reals ImpulseResponse(QvFirNarrowband* filter) { return Filtered(Reals{1}, filter); }

// The response of symmetric taps but for the delay.
double Amplitude(const double* h, Size count, double f) {
    double sum = 0;
    const double middle = (count - 1) / 2.0;
    for (Size i = 0; i < count; ++i) sum += h[i] * std::cos(2 * kPi * f * (i - middle));
    return sum;
}

const struct {
    Request request;
    int mode;
    bool single;
} kDesigns[] = {
    {{1, 0.02, 0.03, 0, 0.01, 50, kLow}, 0, false},     {{1, 0.02, 0.2, 0, 0.01, 60, kLow}, 0, true},
    {{100, 11, 12, 0, 0.02, 45, kLow}, 0, false},       {{1, 0.3, 0.31, 0, 0.01, 50, kLow}, 4, false},
    {{1, 0.44, 0.46, 0, 0.01, 50, kLow}, 4, false},     {{1, 0.28, 0.45, 0, 0.05, 40, kLow}, 4, true},
    {{1, 0.48, 0.47, 0, 0.01, 50, kHigh}, 1, false},    {{1, 0.4, 0.39, 0, 0.02, 50, kHigh}, 1, false},
    {{1, 0.4, 0.2, 0, 0.02, 50, kHigh}, 1, true},       {{1, 0.1, 0.09, 0, 0.05, 40, kHigh}, 5, false},
    {{1, 0.22, 0.05, 0, 0.05, 40, kHigh}, 5, true},     {{1, 0.02, 0.03, 0.1, 0.02, 40, kBand}, 2, false},
    {{1, 0.02, 0.03, 0.25, 0.02, 40, kBand}, 2, false}, {{1, 0.02, 0.03, 0.04, 0.02, 40, kBand}, 2, false},
    {{1, 0.02, 0.03, 0.46, 0.02, 40, kBand}, 2, false}, {{8, 0.16, 0.22, 3.1, 0.02, 40, kBand}, 2, false},
    {{1, 0.2, 0.4, 0.25, 0.01, 40, kBand}, 2, true},    {{1, 0.03, 0.02, 0.2, 0.02, 40, kStop}, 3, false},
    {{1, 0.03, 0.02, 0.43, 0.02, 40, kStop}, 3, false}, {{1, 0.4, 0.15, 0.25, 0.02, 40, kStop}, 3, true},
};

TEST(FirNarrowbandDesign, CascadesStayWithinRippleAndAttenuation) {
    for (const auto& design : kDesigns) {
        const Request& q = design.request;
        SCOPED_TRACE(::testing::Message() << "kind " << q.kind << " f1 " << q.f1 << " center " << q.center);
        const Filter filter = Made(q);
        EXPECT_EQ(filter->mode, design.mode);
        EXPECT_EQ(filter->factor == 1, design.single);
        const Reals h = ImpulseResponse(filter.get());
        const double stop = std::pow(10, -q.attenuation / 20);
        double pass_error = 0, stop_error = 0;
        for (int i = 0; i <= 1500; ++i) {
            const double f = q.fs / 2 * i / 1500, a = Amplitude(h, Size(h.size()), f / q.fs);
            if (q.passes(f)) pass_error = std::max(pass_error, std::fabs(a - 1));
            if (q.stops(f)) stop_error = std::max(stop_error, std::fabs(a));
        }
        // Between points of the design's grid the error of a stage can be 1/cos(pi/16) as large; two stages meet in the
        // other band with a gain of at most 1 + delta each.
        EXPECT_LT(pass_error, 1.02 * q.ripple * (1 + q.ripple));
        EXPECT_LT(stop_error, 1.02 * stop * (1 + q.ripple));
    }
}

TEST(FirNarrowbandDesign, WidthsOfATransitionThatIsWideNeedOneStage) {
    const Filter filter = Made({1, 0.02, 0.2, 0, 0.01, 60, kLow});
    EXPECT_EQ(filter->factor, 1);
    EXPECT_EQ(filter->suppressor_count, 0);
    EXPECT_EQ(filter->suppressor, nullptr);
    const Reals x = RandomReals(50);
    Reals y = Output(50 + filter->model_count - 1), direct = Output(y.size());
    ASSERT_EQ(ZemFunc410(x, 50, filter.get(), y), 0);
    ASSERT_EQ(ZemFunc372(x, 50, filter->model, filter->model_count, 0, direct), 0);
    EXPECT_EQ(y.values(), direct.values());
}

// N(p, q, width), and from it the plan of a lowpass.
int Order(double p, double q, double width) { return int((-20 * std::log10(std::sqrt(p * q)) - 13) / (14.6 * width)); }

TEST(FirNarrowbandDesign, FactorOfALowpassIsTheStatedOne) {
    for (double e1 : {0.005, 0.01, 0.03, 0.1, 0.2})
        for (double width : {0.002, 0.005, 0.02}) {
            const double e2 = e1 + width, ripple = 0.02, stop = std::pow(10.0, -40 / 20.0);
            const Filter filter = Made({1, e1, e2, 0, ripple, 40, kLow});
            int L = int(std::floor(1 / (std::sqrt(e2 - e1) + e1 + e2) + 0.5));
            while (L * e2 >= 0.5) --L;
            const int suppressor = L == 1 ? 0 : Order(ripple / 2, stop, 1.0 / L - e2 - e1);
            if (Order(ripple, stop, e2 - e1) <= Order(ripple / 2, stop, L * e2 - L * e1) + suppressor) L = 1;
            EXPECT_EQ(filter->factor, L) << e1 << ' ' << width;
        }
}

TEST(FirNarrowbandDesign, EachStageReachesHalfTheDeviation) {
    const Request q{1, 0.02, 0.03, 0, 0.01, 50, kLow};
    const Filter filter = Made(q);
    ASSERT_GT(filter->factor, 1);
    const auto worst = [](const double* h, Count count, double to, double gain, double from) {
        double error = 0;
        for (int i = 0; i <= 400; ++i)
            error = std::max(error, std::fabs(Amplitude(h, count, from + (to - from) * i / 400) - gain));
        return error;
    };
    const double L = filter->factor, stop = std::pow(10.0, -2.5);
    // 1/cos(pi/16) between points of the grid.
    EXPECT_LT(worst(filter->model, filter->model_count, L * q.f1, 1, 0), 1.02 * 0.005);
    EXPECT_LT(worst(filter->model, filter->model_count, 0.5, 0, L * q.f2), 1.02 * stop);
    EXPECT_LT(worst(filter->suppressor, filter->suppressor_count, q.f1, 1, 0), 1.02 * 0.005);
    EXPECT_LT(worst(filter->suppressor, filter->suppressor_count, 0.5, 0, 1 / L - q.f2), 1.02 * stop);
}

TEST(FirNarrowbandDesign, CountsAreOddInEveryModeButZero) {
    for (const auto& design : kDesigns) {
        if (design.mode == 0) continue;
        const Filter filter = Made(design.request);
        EXPECT_EQ(filter->model_count % 2, 1);
        EXPECT_TRUE(design.single || filter->suppressor_count % 2 == 1);
    }
    const Filter even = Made({1, 0.1, 0.105, 0, 0.01, 60, kLow});
    EXPECT_EQ(even->model_count % 2, 0) << "a lowpass may have an even model";
}

// Which taps of a stage have changed sign against the stage of the request that stands behind it.
void ExpectSigns(const double* h, const double* plain, Count count, bool modulated, bool negated) {
    const Count middle = (count - 1) / 2;
    for (Count i = 0; i < count; ++i) {
        const bool flip = (modulated && (i - middle) % 2 != 0) != negated;
        EXPECT_EQ(h[i], flip ? -plain[i] : plain[i]) << i;
    }
}

// The lowpass stage that the exchange gives for edges and deviations of these.
std::vector<double> Exchanged(Count taps, double e1, double e2, double weight) {
    Reals h = Output(taps);
    double delta;
    EXPECT_EQ(ZemFunc65(2, Reals{1, 0}, Reals{1, weight}, 1, Reals{0, e1, e2, 0.5}, 1, taps, h, &delta), 0);
    return h.values();
}

TEST(FirNarrowbandDesign, MirroredModelsAreModulatedOnlyForOddFactors) {
    const double ripple = 0.02, stop = std::pow(10, -2.0);
    bool odd = false, even = false;
    for (double edge : {0.02, 0.03, 0.04, 0.05, 0.07, 0.1}) {
        const double passed = 0.5 - edge, stopped = passed - 0.01;  // a highpass, mirrored about fs/4
        const Filter filter = Made({1, passed, stopped, 0, ripple, 40, kHigh});
        const double e1 = 0.5 - passed, e2 = 0.5 - stopped, L = filter->factor, g = ripple / 2 / stop;
        ASSERT_EQ(filter->mode, 1);
        ASSERT_GT(L, 1);
        const bool modulated = filter->factor % 2;
        (modulated ? odd : even) = true;
        const auto model = Exchanged(filter->model_count, L * e1, L * e2, g);
        const auto suppressor = Exchanged(filter->suppressor_count, e1, 1 / L - e2, g);
        ExpectSigns(filter->model, model.data(), filter->model_count, modulated, false);
        ExpectSigns(filter->suppressor, suppressor.data(), filter->suppressor_count, true, false);
    }
    for (double edge : {0.02, 0.03, 0.04, 0.05, 0.07, 0.1}) {
        const double passed = 0.5 - edge - 0.01, stopped = 0.5 - edge;  // the complement of that highpass
        const Filter filter = Made({1, passed, stopped, 0, ripple, 40, kLow});
        const double e1 = 0.5 - stopped, e2 = 0.5 - passed, L = filter->factor, g = stop / 2 / ripple;
        ASSERT_EQ(filter->mode, 4);
        ASSERT_GT(L, 1);
        const bool modulated = filter->factor % 2;
        (modulated ? odd : even) = true;
        const auto model = Exchanged(filter->model_count, L * e1, L * e2, g);
        const auto suppressor = Exchanged(filter->suppressor_count, e1, 1 / L - e2, g);
        ExpectSigns(filter->model, model.data(), filter->model_count, modulated, false);
        ExpectSigns(filter->suppressor, suppressor.data(), filter->suppressor_count, true, true);
    }
    EXPECT_TRUE(odd && even);
}

TEST(FirNarrowbandDesign, SingleFiltersAreMirroredAndNegatedThemselves) {
    const Filter mirrored = Made({1, 0.4, 0.2, 0, 0.02, 50, kHigh});
    const double stop = std::pow(10, -50.0 / 20);
    ASSERT_EQ(mirrored->factor, 1);
    const auto plain = Exchanged(mirrored->model_count, 0.5 - 0.4, 0.5 - 0.2, 0.02 / 2 / stop);
    ExpectSigns(mirrored->model, plain.data(), mirrored->model_count, true, false);
    const Filter both = Made({1, 0.28, 0.45, 0, 0.05, 40, kLow});
    ASSERT_EQ(both->factor, 1);
    const auto low = Exchanged(both->model_count, 0.5 - 0.45, 0.5 - 0.28, std::pow(10, -40.0 / 20) / 2 / 0.05);
    ExpectSigns(both->model, low.data(), both->model_count, true, true);
}

TEST(FirNarrowbandDesign, ComplementsAreTheNegatedStages) {
    // A bandstop is the complement of the bandpass with ripple and attenuation exchanged.
    const double ripple = 0.01, attenuation = 40;  // 40 dB is a deviation of 0.01 too
    const Filter band = Made({1, 0.02, 0.03, 0.2, ripple, attenuation, kBand});
    const Filter stop = Made({1, 0.03, 0.02, 0.2, ripple, attenuation, kStop});
    ASSERT_EQ(stop->factor, band->factor);
    ASSERT_EQ(stop->model_count, band->model_count);
    ASSERT_EQ(stop->suppressor_count, band->suppressor_count);
    ExpectSigns(stop->model, band->model, band->model_count, false, false);
    ExpectSigns(stop->suppressor, band->suppressor, band->suppressor_count, false, true);
    // x delayed plus the output: the sum of both impulse responses is a unit pulse at the delay.
    const Reals h = ImpulseResponse(stop.get()), g = ImpulseResponse(band.get());
    for (int i = 0; i < int(h.size()); ++i) EXPECT_EQ(h[i] + g[i], i == (int(h.size()) - 1) / 2 ? 1 : 0) << i;
}

TEST(FirNarrowbandDesign, ALowpassAboveAQuarterOfTheSamplingRateIsModeFour) {
    const Filter filter = Made({1, 0.3, 0.31, 0, 0.01, 50, kLow});
    EXPECT_EQ(filter->mode, 4);
    const Reals x = RandomReals(40);
    const Reals y = Filtered(x, filter.get());
    QvFirNarrowband bent = *filter;
    bent.mode = 0;
    Reals without = Output(y.size());
    ASSERT_EQ(ZemFunc410(x, 40, &bent, without), 0);
    const int delay = int(Span(*filter) - 1) / 2;
    for (int i = 0; i < int(y.size()); ++i) {
        const int t = i - delay;
        EXPECT_EQ(y[i], t >= 0 && t < 40 ? without[i] + x[t] : without[i]);
    }
}

TEST(FirNarrowbandDesign, TheQuarterItselfBelongsToTheDirectModes) {
    EXPECT_EQ(Made({1, 0.25, 0.35, 0, 0.02, 40, kLow})->mode, 0);
    EXPECT_EQ(Made({1, 0.25, 0.15, 0, 0.02, 40, kHigh})->mode, 1);
}

TEST(FirNarrowbandDesign, RefusesBandsThatAreNone) {
    EXPECT_EQ(StatusOf({1, 0.1, 0.1, 0, 0.01, 60, kLow}), -20031) << "f1 = f2";
    EXPECT_EQ(StatusOf({1, 0.2, 0.1, 0, 0.01, 60, kLow}), -20031);
    EXPECT_EQ(StatusOf({1, 0.4, 0.3, 0, 0.01, 60, kLow}), -20031);
    EXPECT_EQ(StatusOf({1, 0.3, 0.5, 0, 0.01, 60, kLow}), -20031) << "nothing is left of the mirrored band";
    EXPECT_EQ(StatusOf({1, 0, 0.1, 0, 0.01, 60, kLow}), -20031);
    EXPECT_EQ(StatusOf({1, 0.1, 0.5, 0, 0.01, 60, kLow}), -20031);
    EXPECT_EQ(StatusOf({1, 0.1, 0.2, 0, 0.01, 60, kHigh}), -20031);
    EXPECT_EQ(StatusOf({1, 0.4, 0, 0, 0.01, 60, kHigh}), -20031);
    EXPECT_EQ(StatusOf({1, 0.03, 0.02, 0.2, 0.01, 60, kBand}), -20031);
    EXPECT_EQ(StatusOf({1, 0.02, 0.03, 0.2, 0.01, 60, kStop}), -20031);
    EXPECT_EQ(StatusOf({1, 0.02, 1, 0.2, 0.01, 60, kBand}), -20031);
    EXPECT_EQ(StatusOf({1, 0.1, 0.2, 0, 0, 60, kLow}), -20031);
    EXPECT_EQ(StatusOf({1, 0.1, 0.2, 0, -1, 60, kLow}), -20031);
    EXPECT_EQ(StatusOf({1, 0.1, 0.2, 0, 0.01, kInf, kLow}), -20031) << "no deviation of the stopband";
    EXPECT_EQ(StatusOf({1, 0.1, 0.2, 0, 0.01, 60, 4}), -20031);
    EXPECT_EQ(StatusOf({0, 0.1, 0.2, 0, 0.01, 60, kLow}), -20031);
    EXPECT_EQ(StatusOf({-1, 0.1, 0.2, 0, 0.01, 60, kLow}), -20031);
}

TEST(FirNarrowbandDesign, CentresMustLieInsideTheHalfBand) {
    for (double center : {0.0, 0.5, -0.1, 0.7, kInf, -kInf, kNaN})
        for (std::uint32_t kind : {kBand, kStop})
            EXPECT_EQ(StatusOf({1, kind == kBand ? 0.02 : 0.03, kind == kBand ? 0.03 : 0.02, center, 0.01, 60, kind}),
                      -20031)
                << center;
    EXPECT_EQ(StatusOf({1, 0.02, 0.03, kNaN, 0.01, 60, kLow}), 0) << "lowpasses have none";
    EXPECT_EQ(StatusOf({1, 0.2, 0.3, 0.1, 0.01, 60, kBand}), -20023) << "the band reaches below 0";
    EXPECT_EQ(StatusOf({1, 0.2, 0.3, 0.4, 0.01, 60, kBand}), -20023) << "the band reaches above fs/2";
}

TEST(FirNarrowbandDesign, RefusesOrdersThatAreNegativeOrNoNumbers) {
    EXPECT_EQ(StatusOf({1, 0.1, 0.11, 0, 0.9, 1, kLow}), -20031) << "deviations so large that the estimate is negative";
    EXPECT_EQ(StatusOf({1, 0.02, 0.021, 0.2, 0.9, 1, kBand}), -20031);
    for (std::uint32_t kind : {kLow, kHigh, kBand, kStop}) {
        EXPECT_EQ(StatusOf({kNaN, 0.1, 0.2, 0.2, 0.01, 60, kind}), -20031);
        EXPECT_EQ(StatusOf({kInf, 0.1, 0.2, 0.2, 0.01, 60, kind}), -20031);
        EXPECT_EQ(StatusOf({1, kNaN, 0.2, 0.2, 0.01, 60, kind}), -20031);
        EXPECT_EQ(StatusOf({1, 0.1, kNaN, 0.2, 0.01, 60, kind}), -20031);
        const bool rising = kind == kLow || kind == kBand;
        EXPECT_EQ(StatusOf({1, rising ? 0.1 : 0.2, rising ? 0.2 : 0.1, 0.2, kNaN, 60, kind}), -20031);
        EXPECT_EQ(StatusOf({1, rising ? 0.1 : 0.2, rising ? 0.2 : 0.1, 0.2, 0.01, kNaN, kind}), -20031);
    }
    EXPECT_EQ(StatusOf({1, 1e-300, 2e-300, 0.2, 0.01, 60, kBand}), -20031) << "an order beyond every design";
    EXPECT_EQ(StatusOf({1, 1e-300, 2e-300, 0, 0.01, 60, kLow}), -20031);
}

TEST(FirNarrowbandDesign, EndsForAFactorThatLosesItsUnits) {
    // The product of width and rate underflows, so that the factor is fs / (e1 + e2), far above 2^53.
    EXPECT_LT(StatusOf({kInf, 1e300, 0.2, 0.25, 0.6, 0.25, kStop}), 0) << "without an end of the factors";
    EXPECT_LT(StatusOf({1e-200, 1e-300, std::nextafter(1e-300, 1), 0, 0.01, 60, kLow}), 0);
}

TEST(FirNarrowbandDesign, MoreFunctionsThanTheExchangeTakesGiveItsStatus) {
    EXPECT_EQ(StatusOf({1, 0.2, 0.2000002, 0, 0.001, 100, kLow}), -20001);
}

TEST(FirNarrowbandRecord, IsCreatedEmptyAndReleasedWithItsTaps) {
    const long live = LiveBlocks();
    QvFirNarrowband* filter = ZemFunc491();
    EXPECT_EQ(filter->mode, 0);
    EXPECT_EQ(filter->factor, 0);
    EXPECT_EQ(filter->model_count, 0);
    EXPECT_EQ(filter->model, nullptr);
    EXPECT_EQ(filter->suppressor_count, 0);
    EXPECT_EQ(filter->suppressor, nullptr);
    ASSERT_EQ(ZemFunc409(1, 0.02, 0.03, 0, 0.01, 40, kLow, filter), 0);
    EXPECT_EQ(LiveBlocks(), live + 3);
    ZemFunc492(filter);
    EXPECT_EQ(LiveBlocks(), live);
    ZemFunc492(nullptr);
    FailAllocation(0);
    EXPECT_EQ(ZemFunc491(), nullptr);
    FailAllocation(-1);
}

// Both stages by their sums in the stated order: t = suppressor, then y += t model[j] from position j L on.
std::vector<double> Reference(const Reals& x, const QvFirNarrowband& f) {
    std::vector<double> t(x.size() + f.suppressor_count - 1);
    for (std::size_t i = 0; i < x.size(); ++i)
        for (Count k = 0; k < f.suppressor_count; ++k) t[i + k] += x[i] * f.suppressor[k];
    std::vector<double> y(t.size() + std::size_t(f.model_count - 1) * f.factor);
    for (Count j = 0; j < f.model_count; ++j)
        for (std::size_t i = 0; i < t.size(); ++i) y[j * f.factor + i] += t[i] * f.model[j];
    return y;
}

TEST(FirNarrowbandFilter, GivesTheBitsOfTheStatedSums) {
    Reals model = RandomReals(7, 2), suppressor = RandomReals(5, 3);
    for (int factor : {2, 3, 8, 50})
        for (int n : {1, 2, 3, 40, 200}) {
            QvFirNarrowband filter{0, factor, 7, model, 5, suppressor};
            const Reals x = RandomReals(n);
            ForEachTarget(
                [&] { EXPECT_EQ(Filtered(x, &filter).values(), Reference(x, filter)) << factor << ' ' << n; });
        }
}

TEST(FirNarrowbandFilter, AddsTheInputInModesThreeToFiveAtTheTruncatedDelay) {
    Reals model = RandomReals(4, 2), suppressor = RandomReals(6, 3);
    const Reals x = RandomReals(9);
    for (int factor : {1, 2, 5}) {
        QvFirNarrowband filter{0, factor, 4, model, factor == 1 ? 0 : 6, suppressor};
        const Reals plain = Filtered(x, &filter);
        const int delay = factor == 1 ? 3 / 2 : (3 * factor + 5) / 2;
        for (int mode : {-1, 0, 1, 2, 3, 4, 5, 6, 99}) {
            filter.mode = mode;
            const Reals y = Filtered(x, &filter);
            for (int i = 0; i < int(y.size()); ++i) {
                const bool added = mode >= 3 && mode <= 5 && i >= delay && i < delay + 9;
                EXPECT_EQ(y[i], added ? plain[i] + x[i - delay] : plain[i]) << mode << ' ' << i;
            }
        }
    }
}

TEST(FirNarrowbandFilter, BlocksAddedWithTheirOverlapAreTheWhole) {
    for (const auto& design : {kDesigns[0], kDesigns[3], kDesigns[17]}) {
        const Filter filter = Made(design.request);
        const int n = 60;
        const Size tail = Span(*filter) - 1;
        const Reals x = RandomReals(n), whole = Filtered(x, filter.get());
        for (int cut : {1, 23, 59}) {
            Reals sum(n + tail), first = Output(cut + tail), second = Output(n - cut + tail);
            ASSERT_EQ(ZemFunc410(x, cut, filter.get(), first), 0);
            ASSERT_EQ(ZemFunc410(x + cut, n - cut, filter.get(), second), 0);
            for (Size i = 0; i < cut + tail; ++i) sum[i] += first[i];
            for (Size i = 0; i < n - cut + tail; ++i) sum[cut + i] += second[i];
            // Sums of some hundred products, whose magnitudes add to a few units, split in two.
            for (Size i = 0; i < n + tail; ++i) EXPECT_NEAR(sum[i], whole[i], 1e-14);
        }
    }
}

TEST(FirNarrowbandFilter, ComplexSamplesAreTwoRealSignals) {
    for (const auto& design : {kDesigns[1], kDesigns[4], kDesigns[9]}) {
        const Filter filter = Made(design.request);
        const int n = 33;
        const Records z = RandomRecords(n);
        Records w = RecordOutput(n + Span(*filter) - 1);
        ASSERT_EQ(ZemFunc411(z, n, filter.get(), w), 0);
        for (double ComplexRecord::*part : {&ComplexRecord::re, &ComplexRecord::im}) {
            Reals x(n);
            for (int i = 0; i < n; ++i) x[i] = z[i].*part;
            const Reals y = Filtered(x, filter.get());
            for (std::size_t i = 0; i < y.size(); ++i) EXPECT_TRUE(SameBits(w[i].*part, y[i]));
        }
    }
}

TEST(FirNarrowbandFilter, TestsSizesAndWritesNothingAfterAFailure) {
    Reals taps = RandomReals(5), x = RandomReals(5), y = Output(20);
    Records z = RandomRecords(5), w = RecordOutput(20);
    const auto expect = [&](QvFirNarrowband filter, Size n, Status status) {
        EXPECT_EQ(ZemFunc410(x, n, &filter, y), status);
        EXPECT_EQ(ZemFunc411(z, n, &filter, w), status);
    };
    const QvFirNarrowband single{0, 1, 5, taps, 0, nullptr}, two{0, 2, 5, taps, 5, taps};
    for (const QvFirNarrowband& filter : {single, two}) {
        expect(filter, kTooLarge, -20046);
        expect(filter, 0, -20003);
        expect(filter, -1, -20003);
        expect(filter, kTooLarge - 1, -20046);
    }
    expect({0, 1 << 30, 3, taps, 5, taps}, 5, -20046);
    expect({0, 2147483647, 2147483647, taps, 2147483647, taps}, 5, -20046);
    expect({}, 5, -20003);
    expect({0, 2, 5, taps, 0, nullptr}, 5, -20003);
    expect({0, 2, -1, taps, 5, taps}, 5, -20003);
    EXPECT_TRUE(Untouched(y));
    EXPECT_TRUE(Untouched(w));
}

TEST(FirNarrowband, EveryAllocationFails) {
    for (const auto& design : {kDesigns[0], kDesigns[1], kDesigns[11]}) {
        const Request& q = design.request;
        ExpectEveryAllocationFails([&] {
            QvFirNarrowband record{};
            const Status status = ZemFunc409(q.fs, q.f1, q.f2, q.center, q.ripple, q.attenuation, q.kind, &record);
            if (status == 0) {
                ZemFunc234(record.model);
                ZemFunc234(record.suppressor);
            } else {
                EXPECT_EQ(record.model, nullptr);
            }
            return status;
        });
    }
    Reals taps = RandomReals(5);
    QvFirNarrowband filter{3, 3, 5, taps, 5, taps};
    const Reals x = RandomReals(10);
    const Records z = RandomRecords(10);
    ExpectEveryAllocationFails([&] {
        Reals y = Output(26);
        const Status status = ZemFunc410(x, 10, &filter, y);
        EXPECT_EQ(Untouched(y), status != 0);
        return status;
    });
    ExpectEveryAllocationFails([&] {
        Records y = RecordOutput(26);
        const Status status = ZemFunc411(z, 10, &filter, y);
        EXPECT_EQ(Untouched(y), status != 0) << "neither part";
        return status;
    });
}

}  // namespace
}  // namespace quorvan::testing

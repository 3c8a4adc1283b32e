// Equiripple designs and the filters that design for the call.
#include <algorithm>
#include <cmath>
#include <functional>
#include <gtest/gtest.h>

#include "quorvan/quorvan.h"
#include "tests/support/failing_heap.h"
#include "tests/support/guarded.h"
#include "tests/support/targets.h"

namespace quorvan::testing {
namespace {

constexpr long double kPiLong = 3.14159265358979323846264338327950288L;

struct Request {
    std::vector<double> desired, weights;
    double fs;
    std::vector<double> edges;
    int kind, taps;

    bool odd() const { return taps % 2; }
    int functions() const { return taps / 2 + (odd() && kind == 1); }
};

struct Design {
    Status status;
    Reals h;
    double delta = kUnwritten;
};

Design Made(const Request& q) {
    Design design{0, Output(std::max(q.taps, 0))};
    design.status = ZemFunc65(int(q.desired.size()), Reals(q.desired), Reals(q.weights), q.fs, Reals(q.edges), q.kind,
                              q.taps, design.h, &design.delta);
    return design;
}

Status StatusOf(const Request& q) {
    const Design design = Made(q);
    EXPECT_EQ(Untouched(design.h), design.status != 0);
    return design.status;
}

// The amplitude of a linear-phase filter: the response but for the delay (and 90 degrees).
long double Amplitude(const Reals& h, bool even, long double f) {
    const long double middle = (h.size() - 1) / 2.0L;
    long double sum = 0;
    for (std::size_t i = 0; i < h.size(); ++i) {
        const long double angle = 2 * kPiLong * f * (middle - i);
        sum += h[i] * (even ? std::cos(angle) : std::sin(angle));
    }
    return sum;
}

const Request kRequests[] = {
    {{1, 0}, {1, 1}, 1, {0, 0.1, 0.15, 0.5}, 1, 31},
    {{1, 0}, {1, 10}, 48000, {0, 8000, 11000, 24000}, 1, 32},
    {{0, 1, 0}, {10, 1, 5}, 2, {0, 0.2, 0.3, 0.5, 0.62, 1}, 1, 45},
    {{1, 0, 1}, {1, 3, 2}, 1, {0, 0.1, 0.17, 0.3, 0.36, 0.5}, 1, 41},
    {{0.5, 2, 0, 1}, {1, 1, 1, 1}, 1, {0, 0.08, 0.13, 0.22, 0.27, 0.35, 0.4, 0.5}, 1, 61},
    {{1}, {1}, 1, {0, 0.45}, 2, 21},
    {{1}, {1}, 1, {0, 0.5}, 2, 20},
    {{3, 0}, {1, 2}, 10, {0, 2, 3, 4.5}, 2, 35},
    {{1}, {1}, 1, {0.05, 0.45}, 3, 31},
    {{1}, {1}, 1, {0.05, 0.5}, 3, 30},
    {{1, 0.5}, {1, 1}, 1, {0.06, 0.2, 0.26, 0.43}, 3, 33},
};

// The errors over the grid of the design: 16 points to a function, and the last point of each band its edge.
std::vector<double> Errors(const Request& q, const Reals& h) {
    const double step = 0.5 / (16 * q.functions());
    std::vector<double> errors;
    for (std::size_t band = 0; band < q.desired.size(); ++band) {
        const double low = q.edges[2 * band] / q.fs, high = q.edges[2 * band + 1] / q.fs;
        std::vector<double> points;
        for (double f = q.kind == 1 ? low : std::max(low, step); f <= high; f += step) points.push_back(f);
        points.back() = high;
        for (double f : points) {
            if (q.odd() != (q.kind == 1) && f > 0.5 - step) continue;  // where the response is forced to zero
            const double slope = q.kind == 2 ? f : 1;
            const double weight = q.weights[band] / (q.kind == 2 && q.desired[band] >= 0.0001 ? f : 1);
            errors.push_back(double(Amplitude(h, q.kind == 1, f) - q.desired[band] * slope) * weight);
        }
    }
    return errors;
}

TEST(FirRemezDesign, ErrorsAlternateRPlusOneTimesWithEqualWeightedSize) {
    for (const Request& q : kRequests) {
        SCOPED_TRACE(::testing::Message() << "kind " << q.kind << " taps " << q.taps);
        const Design design = Made(q);
        ASSERT_EQ(design.status, 0);
        // Taps rounded to some eps, under weights up to 32 r, beside a delta of at least 1e-3.
        const double margin = 1e-9 * design.delta;
        int count = 0, sign = 0;
        for (const double e : Errors(q, design.h)) {
            EXPECT_LE(std::fabs(e), design.delta + margin);
            if (std::fabs(e) < design.delta - margin) continue;
            const int side = e > 0 ? 1 : -1;
            EXPECT_NE(side, sign) << "two extremal points in a row on one side";
            sign = side;
            ++count;
        }
        EXPECT_GE(count, q.functions() + 1);
    }
}

TEST(FirRemezDesign, SymmetryHoldsToTheBit) {
    for (const Request& q : kRequests) {
        const Design design = Made(q);
        for (int j = 0; j < q.taps; ++j) {
            const double mirrored = design.h[q.taps - 1 - j];
            if (q.kind != 1 && q.odd() && j == q.taps / 2)
                EXPECT_TRUE(SameBits(design.h[j], 0.0)) << "the middle of an antisymmetric filter";
            else
                EXPECT_TRUE(SameBits(design.h[j], q.kind == 1 ? mirrored : -mirrored));
        }
    }
}

TEST(FirRemezDesign, GivesTheSameBitsOnEveryInstructionSet) {
    for (const Request& q : kRequests) {
        const Design widest = Made(q);
        ForEachTarget([&] {
            const Design design = Made(q);
            EXPECT_EQ(design.h.values(), widest.h.values());
            EXPECT_EQ(design.delta, widest.delta);
        });
    }
}

TEST(FirRemezDesign, TheRatioOfTheErrorsIsTheInverseRatioOfTheWeights) {
    const Request q{{1, 0}, {1, 10}, 1, {0, 0.1, 0.15, 0.5}, 1, 41};
    const Design design = Made(q);
    double pass = 0, stop = 0;
    for (int i = 0; i <= 4000; ++i) {
        pass = std::max(pass, std::fabs(double(Amplitude(design.h, true, 0.1 * i / 4000)) - 1));
        stop = std::max(stop, std::fabs(double(Amplitude(design.h, true, 0.15 + 0.35 * i / 4000))));
    }
    EXPECT_NEAR(pass, design.delta, 0.006 * design.delta);
    EXPECT_NEAR(stop, design.delta / 10, 0.0006 * design.delta);
}

TEST(FirRemezDesign, ChecksInTheStatedOrder) {
    const Request good{{1, 0}, {1, 1}, 1, {0, 0.1, 0.2, 0.5}, 1, 11};
    EXPECT_EQ(StatusOf(good), 0);
    // Each request repairs the fault of the one before and leaves later ones in place.
    Request q{{-1, kNaN}, {0, kInf}, kNaN, {kInf, -1, 0.7, 0.6}, 1, 2};
    EXPECT_EQ(StatusOf(q), -20031) << "taps = 2";
    q.taps = 10;
    double delta = kUnwritten;
    Reals h = Output(10);
    EXPECT_EQ(ZemFunc65(0, Reals(q.desired), Reals(q.weights), q.fs, Reals(q.edges), 1, 10, h, &delta), -20003);
    EXPECT_EQ(ZemFunc65(-1, nullptr, nullptr, 1, nullptr, 1, 10, h, &delta), -20003);
    EXPECT_EQ(ZemFunc65(0, nullptr, nullptr, 1, nullptr, 1, 2, h, &delta), -20031) << "taps before bands";
    EXPECT_EQ(StatusOf(q), -20031) << "fs is NaN";
    q.fs = kInf;
    EXPECT_EQ(StatusOf(q), -20031);
    q.fs = 0;
    EXPECT_EQ(StatusOf(q), -20023);
    q.fs = 1;
    EXPECT_EQ(StatusOf(q), -20031) << "an infinite edge";
    q.edges[0] = 0.1;
    EXPECT_EQ(StatusOf(q), -20023) << "a negative edge";
    q.edges[1] = 0.05;
    EXPECT_EQ(StatusOf(q), -20023) << "weight 0 of the first band";
    q.weights[0] = 1;
    EXPECT_EQ(StatusOf(q), -20023) << "gain -1 of the first band";
    q.desired[0] = 1;
    EXPECT_EQ(StatusOf(q), -20031) << "the weight of the second band";
    q.weights[1] = 1;
    EXPECT_EQ(StatusOf(q), -20031) << "the gain of the second band";
    q.desired[1] = 1;
    EXPECT_EQ(StatusOf(q), -20020) << "the last edge";
    q.edges[3] = 0.4;
    EXPECT_EQ(StatusOf(q), -20023) << "descending edges";
    q.edges = {0.1, 0.2, 0.3, 0.4};
    EXPECT_EQ(StatusOf(q), -20031) << "the first edge is not 0";
    q.edges[0] = 0;
    EXPECT_EQ(StatusOf(q), -20031) << "the last edge is not fs/2";
    q.edges[3] = 0.5;
    EXPECT_EQ(StatusOf(q), -20033);
    q.desired[1] = 0;
    EXPECT_EQ(StatusOf(q), 0);
    q.edges[2] = 0.2;
    EXPECT_EQ(StatusOf(q), -20023) << "equal edges";
}

TEST(FirRemezDesign, ALaterFaultOfAnEarlierKindComesFirst) {
    EXPECT_EQ(StatusOf({{-1, 0}, {1, 1}, 1, {0, 0.1, 0.2, kNaN}, 1, 11}), -20031) << "all edges before the bands";
    EXPECT_EQ(StatusOf({{-1, 0}, {1, kNaN}, 1, {0, 0.1, 0.2, 0.5}, 1, 11}), -20023) << "band by band";
    EXPECT_EQ(StatusOf({{1, 0}, {1, 1}, 1, {0.1, 0, 0.2, 0.6}, 1, 11}), -20020) << "fs/2 before the ascent";
    EXPECT_EQ(StatusOf({{1, 0}, {1, 1}, 1, {0, 0.1, -1, kInf}, 1, 11}), -20023) << "edge by edge";
}

TEST(FirRemezDesign, LastEdgesAreJudgedInTheUnitOfTheSamplingRate) {
    const auto last = [](int kind, int taps, double first, double edge, double fs) {
        return StatusOf({{1}, {1}, fs, {first, edge}, kind, taps});
    };
    EXPECT_EQ(last(2, 21, 0, 500, 1000), -20031) << "a differentiator of odd length up to fs/2";
    EXPECT_EQ(last(2, 21, 0, 499.9, 1000), 0);
    EXPECT_EQ(last(2, 21, 0, 499.995, 1000), -20031);
    EXPECT_EQ(last(2, 21, 0, 0.4995, 1), -20031) << "the same share of a small fs";
    EXPECT_EQ(last(2, 20, 0, 499.9995, 1000), 0);
    EXPECT_EQ(last(2, 20, 0, 499.9, 1000), -20031);
    EXPECT_EQ(last(2, 20, 1, 500, 1000), -20031) << "the first edge is not 0";
    EXPECT_EQ(last(3, 21, 0, 450, 1000), -20031) << "the first edge is 0";
    EXPECT_EQ(last(3, 21, 50, 499.9995, 1000), -20031);
    EXPECT_EQ(last(3, 21, 50, 450, 1000), 0);
    EXPECT_EQ(last(3, 20, 50, 450, 1000), -20031);
    EXPECT_EQ(last(3, 20, 50, 500, 1000), 0);
    const auto lowpass = [](double edge) { return StatusOf({{1, 0}, {1, 1}, 1000, {0, 100, 200, edge}, 1, 21}); };
    EXPECT_EQ(lowpass(499.998), -20031);
    EXPECT_EQ(lowpass(499.9995), 0);
}

TEST(FirRemezDesign, TooFewFunctionsForTheCoefficientsAreRefused) {
    EXPECT_EQ(StatusOf({{1}, {1}, 1, {0, 0.4}, 2, 3}), -20031);
    EXPECT_EQ(StatusOf({{1}, {1}, 1, {0.1, 0.4}, 9, 3}), -20031);
    for (int taps : {3, 4, 5}) EXPECT_EQ(StatusOf({{1}, {1}, 1, {0.1, taps % 2 ? 0.4 : 0.5}, 3, taps}), -20031);
    EXPECT_EQ(StatusOf({{1}, {1}, 1, {0.1, 0.5}, 3, 6}), 0);
    EXPECT_EQ(StatusOf({{1}, {1}, 1, {0.1, 0.4}, 3, 7}), 0);
    EXPECT_EQ(StatusOf({{1}, {1}, 1, {0, 0.5}, 2, 4}), 0);
    EXPECT_EQ(StatusOf({{1}, {1}, 1, {0, 0.4}, 2, 5}), 0);
    EXPECT_EQ(StatusOf({{1, 0}, {1, 1}, 1, {0, 0.1, 0.3, 0.5}, 1, 3}), 0);
    EXPECT_EQ(StatusOf({{1, 0}, {1, 1}, 1, {0, 0.1, 0.3, 0.5}, 1, 4}), 0);
}

TEST(FirRemezDesign, UnknownKindsAreAntisymmetricWithoutChecksOrStretching) {
    const Design hilbert = Made({{1}, {1}, 1, {0.05, 0.45}, 3, 31});
    for (int kind : {0, 4, -7}) {
        const Design design = Made({{1}, {1}, 1, {0.05, 0.45}, kind, 31});
        ASSERT_EQ(design.status, 0);
        EXPECT_EQ(design.delta, hilbert.delta) << "the same exchange";
        // Other points of the same polynomial: it rises to about 20 outside the band of a short design.
        for (int j = 0; j < 31; ++j) EXPECT_NEAR(design.h[j], hilbert.h[j], 1e-12);
    }
    EXPECT_EQ(Made({{1}, {1}, 1, {0.05, 0.44}, 4, 20}).status, 0) << "kind 3 would want fs/2";
}

TEST(FirRemezDesign, HasAtMost2045Functions) {
    const auto lowpass = [](int taps) { return StatusOf({{1, 0}, {1, 1}, 1, {0, 0.1, 0.2, 0.5}, 1, taps}); };
    EXPECT_EQ(lowpass(4095), -20001) << "2048 functions";
    EXPECT_EQ(lowpass(4091), -20001) << "2046 functions";
    EXPECT_EQ(lowpass(2147483647 / 1000), -20001);
    EXPECT_EQ(lowpass(4089), -20031) << "2045 functions: the products of so many distances underflow";
    EXPECT_EQ(lowpass(4090), -20031);
    EXPECT_EQ(StatusOf({{1}, {1}, 1, {0, 0.5}, 1, 4092}), -20033) << "the parity comes before the number";
}

TEST(FirRemezDesign, AFailedExchangeLeavesTheTapsAndTellsTheErrorSoFar) {
    // An error below the rounding of the gain cannot be levelled.
    const Design design = Made({{1, 0}, {1, 1}, 1, {0, 0.05, 0.45, 0.5}, 1, 301});
    EXPECT_EQ(design.status, -20031);
    EXPECT_TRUE(Untouched(design.h));
    EXPECT_GE(design.delta, 0);
    EXPECT_LT(design.delta, 1e-14);
    EXPECT_EQ(Made({{1, 0}, {1, 1}, 1, {0, 0.3, 0.2, 0.5}, 1, 21}).delta, kUnwritten) << "a refused request";
}

TEST(FirRemezDesign, CoincidingPointsOfATinyGridAreRefused) {
    EXPECT_EQ(StatusOf({{1, 0}, {1, 1}, 1, {0, 1e-12, 0.5 - 1e-12, 0.5}, 1, 31}), -20031);
    EXPECT_EQ(StatusOf({{1}, {1}, 1, {1e-12, 2e-12}, 4, 31}), -20031);
    EXPECT_EQ(StatusOf({{1}, {1}, 1, {0.5 - 1e-12, 0.5}, 4, 31}), -20031) << "no point is left at all";
}

TEST(FirRemezDesign, ManyBandsFillTheGridAndNoMore) {
    // More bands than 16 (r + 2): each gets at most one point.
    Request q{{}, {}, 1, {}, 1, 3};
    for (int j = 0; j < 200; ++j) {
        q.desired.push_back(j < 100);
        q.weights.push_back(1);
        q.edges.push_back(0.5 * j / 200);
        q.edges.push_back(j == 199 ? 0.5 : 0.5 * (j + 0.5) / 200);
    }
    const Design design = Made(q);
    ASSERT_EQ(design.status, 0);
    // Three taps for a step at fs/4 with the gap closed: the error of the best a + b cos is near one half.
    EXPECT_NEAR(design.delta, 0.5, 0.02);
}

TEST(FirRemezDesign, EveryAllocationFails) {
    for (const Request& q : {kRequests[0], kRequests[6], kRequests[8]})
        ExpectEveryAllocationFails([&] { return Made(q).status; });
}

// Bands as records

std::vector<QvBand> Bands(const Request& q) {
    std::vector<QvBand> bands;
    for (std::size_t j = 0; j < q.desired.size(); ++j)
        bands.push_back({q.desired[j], q.edges[2 * j], q.edges[2 * j + 1], q.weights[j]});
    return bands;
}

TEST(FirRemezBands, IsTheDesignWithKindsFromZero) {
    for (const Request& q : kRequests) {
        const Design expected = Made(q);
        Guarded<QvBand> bands(Bands(q));
        Reals h = Output(q.taps);
        double delta = 0;
        ASSERT_EQ(ZemFunc408(q.taps, q.fs, bands, Size(bands.size()), q.kind - 1, h, &delta), 0);
        EXPECT_EQ(h.values(), expected.h.values());
        EXPECT_EQ(delta, expected.delta);
    }
    Guarded<QvBand> bands(Bands(kRequests[8]));
    Reals h = Output(31);
    double delta = 0;
    EXPECT_EQ(ZemFunc408(31, 1, bands, 1, 2147483647, h, &delta), 0) << "an unknown kind";
}

TEST(FirRemezBands, InfinitiesComeBeforeTheSamplingRateAndNaNAfterIt) {
    const QvBand good[] = {{1, 0, 0.1, 1}, {0, 0.2, 0.5, 1}};
    Reals h = Output(11);
    double delta = kUnwritten;
    const auto status = [&](int taps, double fs, int band, double QvBand::*field, double value, Size count = 2) {
        Guarded<QvBand> bands(2);
        std::copy_n(good, 2, bands.begin());
        bands[band].*field = value;
        return ZemFunc408(taps, fs, bands, count, 0, h, &delta);
    };
    for (auto field : {&QvBand::desired, &QvBand::lower, &QvBand::upper, &QvBand::weight})
        for (int band : {0, 1}) {
            EXPECT_EQ(status(11, -1, band, field, kInf), -20031);
            EXPECT_EQ(status(11, -1, band, field, -kInf), -20031);
            EXPECT_EQ(status(11, -1, band, field, kNaN), -20023) << "fs first";
            EXPECT_EQ(status(11, 1, band, field, kNaN), -20031);
        }
    EXPECT_EQ(status(2, 1, 0, &QvBand::weight, 1), -20031);
    EXPECT_EQ(status(11, 1, 0, &QvBand::weight, 1, 0), -20031) << "no bands: not -20003";
    EXPECT_EQ(status(11, 1, 0, &QvBand::weight, 1, -1), -20031);
    EXPECT_EQ(status(2, -1, 0, &QvBand::weight, 1, kTooLarge), -20046);
    EXPECT_EQ(status(10, 1, 1, &QvBand::desired, 1), -20033);
    EXPECT_TRUE(Untouched(h));
    EXPECT_EQ(delta, kUnwritten);
}

TEST(FirRemezBands, EveryAllocationFails) {
    Guarded<QvBand> bands(Bands(kRequests[0]));
    ExpectEveryAllocationFails([&] {
        Reals h = Output(31);
        double delta;
        return ZemFunc408(31, 1, bands, 2, 0, h, &delta);
    });
}

// The named designs

struct Named {
    std::vector<double> gains;
    std::function<Status(double fs, const double* f, int taps, double* h, double* delta)> design;
    std::function<Status(const double* x, Size n, int taps, double fs, const double* f, double* y)> filter;
    std::function<Status(const ComplexRecord* x, Size n, int taps, double fs, const double* f, ComplexRecord* y)>
        complex;

    bool refuses_even() const { return gains.back() != 0; }
    Request request(double fs, const double* f, int taps) const {
        Request q{gains, std::vector<double>(gains.size(), 1), fs, {0}, 1, taps};
        q.edges.insert(q.edges.end(), f, f + 2 * gains.size() - 2);
        q.edges.push_back(fs / 2);
        return q;
    }
};
const Named kNamed[] = {
    {{1, 0},
     [](auto fs, auto f, auto n, auto h, auto d) { return ZemFunc69(fs, f[0], f[1], n, h, d); },
     [](auto x, auto n, auto t, auto fs, auto f, auto y) { return ZemFunc472(x, n, t, fs, f[0], f[1], y); },
     [](auto x, auto n, auto t, auto fs, auto f, auto y) { return ZemFunc476(x, n, t, fs, f[0], f[1], y); }},
    {{0, 1},
     [](auto fs, auto f, auto n, auto h, auto d) { return ZemFunc68(fs, f[0], f[1], n, h, d); },
     [](auto x, auto n, auto t, auto fs, auto f, auto y) { return ZemFunc473(x, n, t, fs, f[0], f[1], y); },
     [](auto x, auto n, auto t, auto fs, auto f, auto y) { return ZemFunc477(x, n, t, fs, f[0], f[1], y); }},
    {{0, 1, 0},
     [](auto fs, auto f, auto n, auto h, auto d) { return ZemFunc66(fs, f[0], f[1], f[2], f[3], n, h, d); },
     [](auto x, auto n, auto t, auto fs, auto f, auto y) { return ZemFunc474(x, n, t, fs, f[0], f[1], f[2], f[3], y); },
     [](auto x, auto n, auto t, auto fs, auto f, auto y) {
         return ZemFunc478(x, n, t, fs, f[0], f[1], f[2], f[3], y);
     }},
    {{1, 0, 1},
     [](auto fs, auto f, auto n, auto h, auto d) { return ZemFunc67(fs, f[0], f[1], f[2], f[3], n, h, d); },
     [](auto x, auto n, auto t, auto fs, auto f, auto y) { return ZemFunc475(x, n, t, fs, f[0], f[1], f[2], f[3], y); },
     [](auto x, auto n, auto t, auto fs, auto f, auto y) {
         return ZemFunc479(x, n, t, fs, f[0], f[1], f[2], f[3], y);
     }},
};
const double kEdges[] = {1, 1.6, 2.4, 3};  // of fs = 8

TEST(FirRemezNamed, AreTheGeneralDesignWithWeightsOfOne) {
    for (const Named& named : kNamed)
        for (int taps : {4, 21, 30}) {
            const Design expected = Made(named.request(8, kEdges, taps));
            Reals h = Output(taps);
            double delta = kUnwritten;
            EXPECT_EQ(named.design(8, kEdges, taps, h, &delta), expected.status);
            EXPECT_EQ(expected.status, named.refuses_even() && taps % 2 == 0 ? -20033 : 0);
            EXPECT_EQ(h.values(), expected.h.values());
            EXPECT_EQ(delta, expected.delta);
        }
}

TEST(FirRemezNamed, RefuseInTheOrderOfTheCore) {
    for (const Named& named : kNamed) {
        Reals h = Output(10);
        double delta = kUnwritten;
        const auto status = [&](double fs, std::vector<double> f, int taps) {
            f.resize(4, f.back() + 0.5);
            if (named.gains.size() == 3 && f[1] < f[0]) f = {f[0], f[1], 2.5, 3};
            return named.design(fs, f.data(), taps, h, &delta);
        };
        EXPECT_EQ(status(kNaN, {1, 2, 2.5, 3}, 2), -20031);
        EXPECT_EQ(status(kNaN, {1, 2, 2.5, 3}, 10), -20031);
        EXPECT_EQ(status(-8, {1, 2, 2.5, 3}, 10), -20023);
        EXPECT_EQ(status(8, {kInf, 2, 2.5, 3}, 10), -20031);
        EXPECT_EQ(status(8, {-1, 2, 2.5, 3}, 10), -20023);
        EXPECT_EQ(status(8, {2, 1}, 10), -20023) << "crossed edges, also with an even length";
        EXPECT_EQ(status(8, {2, 2}, 10), -20023);
        EXPECT_EQ(status(8, {1, 5, 6, 7}, 10), -20023) << "beyond fs/2";
        EXPECT_TRUE(Untouched(h));
        EXPECT_EQ(status(8, {1, 1.6, 2.4, 3}, 10), named.refuses_even() ? -20033 : 0);
    }
}

TEST(FirRemezFilter, TheHighpassDesignRefusesTenTapsAndTheFilterUsesEleven) {
    const Reals x = RandomReals(6);
    Reals h = Output(10), y = Output(16), eleven = Output(11);
    double delta;
    EXPECT_EQ(ZemFunc68(8, 1, 2, 10, h, &delta), -20033);
    EXPECT_TRUE(Untouched(h));
    EXPECT_EQ(ZemFunc473(x, 6, 10, 8, 1, 2, y), 0);  // n + taps samples, guarded
    for (double v : y) EXPECT_NE(v, kUnwritten);
    ASSERT_EQ(ZemFunc68(8, 1, 2, 11, eleven, &delta), 0);
    EXPECT_NEAR(y[0], x[0] * eleven[0], 1e-15);
    EXPECT_NEAR(y[15], x[5] * eleven[10], 1e-15);
}

TEST(FirRemezFilter, ConvolvesWithTheDesignedTaps) {
    const int n = 60;
    const Reals x = RandomReals(n);
    const Records z = RandomRecords(n);
    for (const Named& named : kNamed)
        for (int taps : {20, 21}) {
            const int count = named.refuses_even() ? taps | 1 : taps;
            Reals h = Output(count), y = Output(n + count - 1);
            Records w = RecordOutput(n + count - 1);
            double delta;
            ASSERT_EQ(named.design(8, kEdges, count, h, &delta), 0);
            ASSERT_EQ(named.filter(x, n, taps, 8, kEdges, y), 0);
            ASSERT_EQ(named.complex(z, n, taps, 8, kEdges, w), 0);
            for (int l = 0; l < n + count - 1; ++l) {
                long double sum = 0, re = 0, im = 0;
                for (int k = std::max(0, l - n + 1); k < count && k <= l; ++k) {
                    sum += (long double)h[k] * x[l - k];
                    re += (long double)h[k] * z[l - k].re;
                    im += (long double)h[k] * z[l - k].im;
                }
                // Rounding of transforms over some 80 samples below 1.
                EXPECT_NEAR(y[l], double(sum), 1e-14);
                EXPECT_NEAR(w[l].re, double(re), 1e-14);
                EXPECT_NEAR(w[l].im, double(im), 1e-14);
            }
        }
}

TEST(FirRemezFilter, TestsSizesThenTapsThenTheDesignAndWritesNothingAfterAFailure) {
    const Reals x = RandomReals(4);
    const Records z = RandomRecords(4);
    Reals y = Output(8);
    Records w = RecordOutput(8);
    const double crossed[] = {2, 1, 0.5, 0.2};
    const struct {
        Size n;
        int taps;
        Status status;
    } cases[] = {
        {kTooLarge, 2, -20046},     {0, 2, -20003},   {-1, 2, -20003}, {4, 2, -20031}, {4, -1, -20031}, {4, 4, -20023},
        {kTooLarge - 1, 3, -20046}, {4, 4096, -20023}};
    for (const Named& named : kNamed)
        for (const auto& c : cases) {
            EXPECT_EQ(named.filter(x, c.n, c.taps, 8, crossed, y), c.status);
            EXPECT_EQ(named.complex(z, c.n, c.taps, 8, crossed, w), c.status);
        }
    // One sample less than the limit leaves no room for the tap that is added.
    EXPECT_EQ(kNamed[1].filter(x, kTooLarge - 4, 4, 8, crossed, y), -20046);
    EXPECT_EQ(kNamed[0].filter(x, 4, 4096, 8, kEdges, y), -20001) << "too many functions";
    EXPECT_TRUE(Untouched(y));
    EXPECT_TRUE(Untouched(w));
}

TEST(FirRemezFilter, EveryAllocationFails) {
    const Reals x = RandomReals(12);
    const Records z = RandomRecords(12);
    for (const Named& named : kNamed) {
        ExpectEveryAllocationFails([&] {
            Reals y = Output(22);
            return named.filter(x, 12, 10 + named.refuses_even(), 8, kEdges, y);
        });
        ExpectEveryAllocationFails([&] {
            Records y = RecordOutput(22);
            return named.complex(z, 12, 10 + named.refuses_even(), 8, kEdges, y);
        });
    }
}

}  // namespace
}  // namespace quorvan::testing

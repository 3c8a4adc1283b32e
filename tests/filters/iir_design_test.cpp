// Designs into filter objects and into polynomials: statuses and their order, what stays unwritten, the closed forms of
// low orders, and the order of the stages.
#include <functional>
#include <numbers>
#include <string>

#include "tests/filters/filters.h"
#include "tests/support/failing_heap.h"

namespace quorvan::testing {
namespace {

struct Asked {
    double fs = 1000, fl = 100, fh = 200, ripple = 1, attenuation = 60;
};

struct Design {
    const char* name;
    bool ripple, attenuation;
    std::function<Status(const Asked&, QvIirFilter*)> into;
    // Null for the Bessel family.
    std::function<Status(int kind, int order, const Asked&, double* a, int aSize, double* b, int bSize)> polynomials;
};

const Design kEvenPole = {"even pole", false, false,
                          [](const Asked& w, auto* f) { return ZemFunc12(w.fs, w.fl, w.fh, f); },
                          [](int k, int n, const Asked& w, double* a, int as, double* b, int bs) {
                              return ZemFunc13(k, n, w.fs, w.fl, w.fh, a, as, b, bs);
                          }};
const Design kButterworth = {"Butterworth", false, false,
                             [](const Asked& w, auto* f) { return ZemFunc18(w.fs, w.fl, w.fh, f); },
                             [](int k, int n, const Asked& w, double* a, int as, double* b, int bs) {
                                 return ZemFunc19(k, n, w.fs, w.fl, w.fh, a, as, b, bs);
                             }};
const Design kBessel = {"Bessel", false, false, [](const Asked& w, auto* f) { return ZemFunc471(w.fs, w.fl, w.fh, f); },
                        nullptr};
const Design kChebyshev = {"Chebyshev", true, false,
                           [](const Asked& w, auto* f) { return ZemFunc24(w.fs, w.fl, w.fh, w.ripple, f); },
                           [](int k, int n, const Asked& w, double* a, int as, double* b, int bs) {
                               return ZemFunc25(k, n, w.fs, w.fl, w.fh, w.ripple, a, as, b, bs);
                           }};
const Design kInverseChebyshev = {"inverse Chebyshev", false, true,
                                  [](const Asked& w, auto* f) { return ZemFunc98(w.fs, w.fl, w.fh, w.attenuation, f); },
                                  [](int k, int n, const Asked& w, double* a, int as, double* b, int bs) {
                                      return ZemFunc99(k, n, w.fs, w.fl, w.fh, w.attenuation, a, as, b, bs);
                                  }};
const Design kElliptic = {
    "elliptic", true, true,
    [](const Asked& w, auto* f) { return ZemFunc61(w.fs, w.fl, w.fh, w.ripple, w.attenuation, f); },
    [](int k, int n, const Asked& w, double* a, int as, double* b, int bs) {
        return ZemFunc62(k, n, w.fs, w.fl, w.fh, w.ripple, w.attenuation, a, as, b, bs);
    }};
const Design* const kDesigns[] = {&kEvenPole, &kButterworth, &kBessel, &kChebyshev, &kInverseChebyshev, &kElliptic};

// The status of a design, which must have written nothing when it is an error.
Status StatusOf(const Design& design, const Asked& asked, const Filter& filter) {
    const auto a = filter.feedback(), b = filter.forward(), delays = filter.delays();
    const int reset = filter->reset;
    const Status status = design.into(asked, filter);
    EXPECT_EQ(filter.delays(), delays);
    EXPECT_EQ(filter->reset, reset);
    if (status < 0) {
        EXPECT_EQ(filter.feedback(), a);
        EXPECT_EQ(filter.forward(), b);
    }
    return status;
}

Status StatusOf(const Design& design, int kind, const Asked& asked, int order = 3) {
    const Filter filter(kind, order);
    FillStages(filter, 1);
    filter->reset = 9;
    filter->state[0] = 4;
    SCOPED_TRACE(std::string(design.name) + ", kind " + std::to_string(kind));
    return StatusOf(design, asked, filter);
}

constexpr Asked kGood;

TEST(IirDesign, WritesTheCoefficientsAndNothingElse) {
    for (const Design* design : kDesigns)
        for (int kind : kKinds)
            for (int order : {1, 2, 5}) EXPECT_EQ(StatusOf(*design, kind, kGood, order), 0) << design->name;
}

TEST(IirDesign, RefusesFrequenciesThatAreNotPositiveOrNotAscending) {
    for (const Design* design : kDesigns)
        for (int kind : kKinds) {
            for (double fl : {0.0, -1.0, -kInf}) EXPECT_EQ(StatusOf(*design, kind, {.fl = fl}), -20023);
            for (double fs : {0.0, -1000.0}) EXPECT_EQ(StatusOf(*design, kind, {.fs = fs}), -20023);
            const Status band = kind < 2 ? 0 : -20023;  // fh plays no part for lowpass and highpass
            for (double fh : {0.0, -1.0, 100.0, 50.0}) EXPECT_EQ(StatusOf(*design, kind, {.fh = fh}), band);
        }
}

TEST(IirDesign, OfALowpassAtHalfTheRateOrAboveGivesTheStatusOfTheBand) {
    for (const Design* design : kDesigns)
        for (int kind : {0, 1})
            for (double fl : {500.0, 501.0, 1e9, kInf}) EXPECT_EQ(StatusOf(*design, kind, {.fl = fl}), -20023);
}

TEST(IirDesign, OfABandUpToHalfTheRateIsAcceptedAndAboveItIsNot) {
    for (const Design* design : kDesigns)
        for (int kind : {2, 3}) {
            EXPECT_EQ(StatusOf(*design, kind, {.fh = 500}), 0);
            EXPECT_EQ(StatusOf(*design, kind, {.fh = std::nextafter(500, 501)}), -20020);
            EXPECT_EQ(StatusOf(*design, kind, {.fl = 501, .fh = 502}), -20020);
        }
}

TEST(IirDesign, IgnoresTheUpperEdgeOfLowpassAndHighpass) {
    for (const Design* design : kDesigns)
        for (int kind : {0, 1}) {
            const Filter one(kind, 3), other(kind, 3);
            ASSERT_EQ(design->into({.fh = 200}, one), 0);
            for (double fh : {-5.0, 0.0, 1e9, kNaN}) {
                ASSERT_EQ(design->into({.fh = fh}, other), 0);
                EXPECT_EQ(one.feedback(), other.feedback());
                EXPECT_EQ(one.forward(), other.forward());
            }
        }
}

TEST(IirDesign, RefusesLevelsOfTheFamiliesThatHaveThem) {
    for (int kind : kKinds) {
        for (double level : {0.0, -1.0}) {
            EXPECT_EQ(StatusOf(kChebyshev, kind, {.ripple = level}), -20024);
            EXPECT_EQ(StatusOf(kElliptic, kind, {.ripple = level}), -20024);
            EXPECT_EQ(StatusOf(kInverseChebyshev, kind, {.attenuation = level}), -20025);
            EXPECT_EQ(StatusOf(kElliptic, kind, {.attenuation = level}), -20025);
            EXPECT_EQ(StatusOf(kElliptic, kind, {.ripple = level, .attenuation = level}), -20024);
        }
        EXPECT_EQ(StatusOf(kElliptic, kind, {.ripple = 40, .attenuation = 40}), -20028);
        EXPECT_EQ(StatusOf(kElliptic, kind, {.ripple = 41, .attenuation = 40}), -20028);
    }
}

TEST(IirDesign, ChecksOrderThenFrequenciesThenLevelsThenKindThenCounts) {
    for (const Design* design : kDesigns) {
        SCOPED_TRACE(design->name);
        const Filter filter(2, 3);
        FillStages(filter, 2);
        const int room = filter->a_count;
        Asked asked = {.fs = 1000, .fl = 600, .fh = 550, .ripple = 0, .attenuation = 0};
        filter->type = 4;
        filter->a_count = 0;
        filter->order = 0;
        EXPECT_EQ(design->into(asked, filter), -20021);
        filter->order = -1;
        EXPECT_EQ(design->into(asked, filter), -20021);
        filter->order = 3;
        EXPECT_EQ(design->into(asked, filter), -20023);
        asked.fh = 650;
        if (design == &kInverseChebyshev) {  // before the frequencies above fs/2
            EXPECT_EQ(design->into(asked, filter), -20025);
            asked.attenuation = 60;
        }
        EXPECT_EQ(design->into(asked, filter), -20020);
        asked.fl = 100;
        EXPECT_EQ(design->into(asked, filter), -20020);
        asked.fh = 200;
        if (design->ripple) {
            EXPECT_EQ(design->into(asked, filter), -20024);
            asked.ripple = 1;
        }
        if (design == &kElliptic) {
            EXPECT_EQ(design->into(asked, filter), -20025);
            asked.attenuation = 0.5;
            EXPECT_EQ(design->into(asked, filter), -20028);
            asked.attenuation = 60;
        }
        EXPECT_EQ(design->into(asked, filter), -20061);
        filter->type = -1;
        EXPECT_EQ(design->into(asked, filter), -20061);
        filter->type = 3;
        EXPECT_EQ(design->into(asked, filter), -20066);
        filter->a_count = room;
        EXPECT_EQ(design->into(asked, filter), 0);
        filter->type = 2;
    }
}

TEST(IirDesign, RefusesCountsTooSmallForItsOrderAndTakesLargerOnes) {
    for (const Design* design : kDesigns)
        for (int kind : kKinds) {
            const Filter filter(kind, 5);  // 3 stages
            FillStages(filter, 3);
            const int a = filter->a_count, b = filter->b_count;
            filter->a_count = a - 1;
            EXPECT_EQ(StatusOf(*design, kGood, filter), -20066);
            filter->a_count = a;
            filter->b_count = b - 1;
            EXPECT_EQ(StatusOf(*design, kGood, filter), -20066);
            filter->b_count = b;
            filter->order = 7;
            EXPECT_EQ(design->into(kGood, filter), -20066);
            filter->order = INT32_MAX;
            EXPECT_EQ(design->into(kGood, filter), -20066);
            // With room to spare, the stages of the order are written and the rest is left.
            filter->order = 1;
            const double last = filter->a[a - 1] = 77;
            EXPECT_EQ(design->into(kGood, filter), 0);
            EXPECT_EQ(filter->a[a - 1], last);
            filter->order = 5;
        }
}

TEST(IirDesign, LetsNaNThroughItsComparisons) {
    const Filter filter(0, 2);
    EXPECT_EQ(ZemFunc18(1000, kNaN, 0, filter), 0);
    EXPECT_TRUE(std::isnan(filter->a[0]));
    EXPECT_EQ(ZemFunc24(1000, 100, 0, kNaN, filter), 0);
    EXPECT_TRUE(std::isnan(filter->b[0]));
}

// Closed forms

double Warped(double f, double fs) { return std::tan(std::numbers::pi * f / fs); }

// A coefficient is a quotient of a few sums and products of numbers near 1.
constexpr double kFew = 8 * kEpsilon;

TEST(IirPrototype, EvenPoleOfOrderOneIsTheFirstOrderStage) {
    const Filter filter(0, 1);
    ASSERT_EQ(ZemFunc12(1000, 130, 0, filter), 0);
    const double w = Warped(130, 1000);
    EXPECT_NEAR(filter.a(0, 0), -(1 - w) / (1 + w), kFew);
    EXPECT_EQ(filter.a(0, 1), 0);
    EXPECT_NEAR(filter.b(0, 0), w / (1 + w), kFew);
    EXPECT_EQ(filter.b(0, 1), filter.b(0, 0));
    EXPECT_EQ(filter.b(0, 2), 0);
}

TEST(IirPrototype, EvenPoleOfOrderTwoIsNotButterworthButHasTheRootOfThree) {
    const Filter filter(0, 2);
    ASSERT_EQ(ZemFunc12(4, 1, 0, filter), 0);  // w = 1: D = 2 + sqrt 3
    const double D = 2 + std::sqrt(3.0);
    EXPECT_NEAR(filter.a(0, 0), 0, kFew);
    EXPECT_NEAR(filter.a(0, 1), (2 - std::sqrt(3.0)) / D, kFew);
    EXPECT_NEAR(filter.b(0, 0), 1 / D, kFew);
}

TEST(IirPrototype, ButterworthOfOrderTwoAtAQuarterOfTheRate) {
    const Filter filter(0, 2);
    ASSERT_EQ(ZemFunc18(4, 1, 0, filter), 0);  // w = 1: D = 2 + sqrt 2
    const double D = 2 + std::numbers::sqrt2;
    EXPECT_NEAR(1 / filter.b(0, 0), 3.4142136, 1e-7);
    EXPECT_NEAR(filter.a(0, 0), 0, kFew);
    EXPECT_NEAR(filter.a(0, 1), (2 - std::numbers::sqrt2) / D, kFew);
    EXPECT_NEAR(filter.b(0, 0), 0.2928932, 1e-7);
    EXPECT_NEAR(filter.b(0, 1), 2 / D, kFew);
    EXPECT_NEAR(filter.b(0, 2), 1 / D, kFew);
}

TEST(IirPrototype, ChebyshevOfOrderTwoStandsAtItsRippleAtFrequencyZero) {
    const Filter low(0, 2), high(1, 2);
    ASSERT_EQ(ZemFunc24(1000, 100, 0, 1, low), 0);
    ASSERT_EQ(ZemFunc24(1000, 100, 0, 1, high), 0);
    EXPECT_NEAR(low.Gain(0, 1), 0.8912509, 1e-7);
    // The denominator at z = 1 is small: its cancellation is that of a and 1.
    EXPECT_NEAR(low.Gain(0, 1), 1 / std::sqrt(std::pow(10, 0.1)), 100 * kEpsilon);
    EXPECT_NEAR(high.Gain(0, -1), 1 / std::sqrt(std::pow(10, 0.1)), 100 * kEpsilon);
}

TEST(IirPrototype, EllipticOfOrderTwoHasItsGainInTheOnlySection) {
    const Filter filter(0, 2);
    ASSERT_EQ(ZemFunc61(1000, 100, 0, 1, 60, filter), 0);
    EXPECT_NEAR(filter.Gain(0, 1), std::pow(10, -0.05), 100 * kEpsilon);
}

TEST(IirPrototype, BesselOfOrderTwoHasItsPolesAtMinus1Point1016AndPlusMinus0Point6360) {
    const Filter filter(0, 2);
    ASSERT_EQ(ZemFunc471(4, 1, 0, filter), 0);  // w = 1: D = 1 + c + Q
    const double a2 = filter.a(0, 1), a1 = filter.a(0, 0);
    // a1 = -2 (1 - Q) / D and a2 = (1 - c + Q) / D, with c = 2 sigma.
    const double D = 4 / (1 + a2 - a1), c = (1 - a2) * D / 2, Q = D - 1 - c;
    EXPECT_NEAR(c / 2, 1.1016, 5e-5);
    EXPECT_NEAR(std::sqrt(Q - c * c / 4), 0.6360, 5e-5);
    // s² + sqrt(3) s + 1, scaled by the cutoff f with (1 - x²)² + 3x² = 2 at x = 1/f.
    const double f = 1 / std::sqrt((std::sqrt(5.0) - 1) / 2);
    EXPECT_NEAR(c, std::sqrt(3.0) * f, 1e-14);
    EXPECT_NEAR(Q, f * f, 1e-14);
}

TEST(IirPrototype, ChebyshevBandOfOrderOneIsTheSameForEveryRipple) {
    for (int kind : {2, 3}) {
        const Filter one(kind, 1), other(kind, 1);
        ASSERT_EQ(ZemFunc24(1000, 100, 200, 0.01, one), 0);
        ASSERT_EQ(ZemFunc24(1000, 100, 200, 30, other), 0);
        EXPECT_EQ(one.feedback(), other.feedback());
        EXPECT_EQ(one.forward(), other.forward());
    }
    const Filter one(0, 1), other(0, 1);
    ASSERT_EQ(ZemFunc24(1000, 100, 0, 0.01, one), 0);
    ASSERT_EQ(ZemFunc24(1000, 100, 0, 30, other), 0);
    EXPECT_NE(one.a(0, 0), other.a(0, 0));
}

TEST(IirPrototype, EllipticIsDesignedFromAnIntegralOfSinglePrecision) {
    // The pole of order 1 would be at 1/epsilon; it is off by what a relative tolerance of 1.2e-7 leaves, and by more
    // than double precision.
    const double ripple = 0.7, epsilon = std::sqrt(std::pow(10, ripple / 10) - 1);
    const Filter filter(0, 1);
    ASSERT_EQ(ZemFunc61(4, 1, 0, ripple, 53, filter), 0);  // w = 1: a1 = -(1 - rho) / (1 + rho)
    const double rho = (1 + filter.a(0, 0)) / (1 - filter.a(0, 0)), off = std::fabs(rho * epsilon - 1);
    EXPECT_LT(off, 1.2e-7 * 2);
    EXPECT_GT(off, 1e-10);
}

TEST(IirPrototype, OddOrderPutsItsRealPoleFirstPaddedWithZeros) {
    for (const Design* design : kDesigns)
        for (int kind : kKinds)
            for (int order : {1, 3, 7}) {
                const Filter filter(kind, order);
                ASSERT_EQ(design->into(kGood, filter), 0);
                const int half = filter.width() / 2;
                for (int k = half; k < filter.width(); ++k) {
                    EXPECT_EQ(filter.a(0, k), 0) << design->name;
                    EXPECT_EQ(filter.b(0, k + 1), 0) << design->name;
                }
                EXPECT_NE(filter.a(0, 0), 0);
                for (int s = 1; s < filter.stages(); ++s) EXPECT_NE(filter.a(s, filter.width() - 1), 0);
            }
}

TEST(IirPrototype, SectionsGoFromTheImaginaryAxisInwardsAndOfEllipticTheOtherWay) {
    for (const Design* design : kDesigns) {
        if (design == &kBessel) continue;  // by the order of its eigenvalues
        const Filter filter(0, 8);
        ASSERT_EQ(design->into(kGood, filter), 0);
        for (int s = 1; s < 4; ++s) {
            const bool falling = filter.a(s, 1) < filter.a(s - 1, 1);  // the squared radius of the poles
            EXPECT_EQ(falling, design != &kElliptic) << design->name << ", stage " << s;
        }
    }
}

TEST(IirPrototype, InverseChebyshevPairsTheLoudestPoleWithTheFarthestZero) {
    const Filter filter(0, 8);
    ASSERT_EQ(kInverseChebyshev.into(kGood, filter), 0);
    // The angle of a zero on the circle: cos = -b1 / (2 b0). The first is the nearest to fs/2.
    for (int s = 1; s < 4; ++s) EXPECT_GT(-filter.b(s, 1) / filter.b(s, 0), -filter.b(s - 1, 1) / filter.b(s - 1, 0));
    for (int s = 0; s < 4; ++s) EXPECT_NEAR(filter.Gain(s, 1), 1, 1e-13);
}

TEST(IirPrototype, EvenChebyshevLowersTheFirstSectionOfLowAndHighAndTheLastOfBands) {
    const double g = std::sqrt(std::pow(10, 0.1));
    const Filter low(0, 6), high(1, 6);
    ASSERT_EQ(kChebyshev.into(kGood, low), 0);
    ASSERT_EQ(kChebyshev.into(kGood, high), 0);
    for (int s = 0; s < 3; ++s) {
        EXPECT_NEAR(low.Gain(s, 1), s == 0 ? 1 / g : 1, 1e-12);
        EXPECT_NEAR(high.Gain(s, -1), s == 0 ? 1 / g : 1, 1e-12);
    }
    const Filter stop(3, 6);  // a bandstop has its passband at 0
    ASSERT_EQ(kChebyshev.into(kGood, stop), 0);
    for (int s = 0; s < 3; ++s) EXPECT_NEAR(stop.Gain(s, 1), s == 2 ? 1 / g : 1, 1e-12);
    const Filter odd(3, 5);
    ASSERT_EQ(kChebyshev.into(kGood, odd), 0);
    for (int s = 0; s < 3; ++s) EXPECT_NEAR(odd.Gain(s, 1), 1, 1e-12);
}

TEST(IirPrototype, EvenEllipticLowersTheFirstSectionOfAllKinds) {
    for (int kind : {0, 1, 3}) {
        const Filter filter(kind, 6);
        ASSERT_EQ(kElliptic.into(kGood, filter), 0);
        for (int s = 0; s < 3; ++s)
            EXPECT_NEAR(filter.Gain(s, kind == 1 ? -1 : 1), s == 0 ? std::pow(10, -0.05) : 1, 1e-12) << kind;
    }
    // Of a bandpass, whose passband is inside, the leading coefficients tell: b0 = h q / zeta² (1 + Z + P²) / D. A
    // stage of the bandstop with the same h has its gain at 0 from the same factor; the product decides here.
    const Filter band(2, 2);
    ASSERT_EQ(kElliptic.into(kGood, band), 0);
    const double P = Warped(100, 1000) * Warped(200, 1000);
    const double centre = 2 * std::atan(std::sqrt(P));  // where the prototype is at 0
    double re[2] = {0, 1}, im[2] = {0, 0};
    for (int k = 0; k <= 4; ++k) {
        re[0] += band.b(0, k) * std::cos(k * centre);
        im[0] -= band.b(0, k) * std::sin(k * centre);
        if (k == 0) continue;
        re[1] += band.a(0, k - 1) * std::cos(k * centre);
        im[1] -= band.a(0, k - 1) * std::sin(k * centre);
    }
    const double gain = std::sqrt((re[0] * re[0] + im[0] * im[0]) / (re[1] * re[1] + im[1] * im[1]));
    EXPECT_NEAR(gain, std::pow(10, -0.05), 1e-12);
}

TEST(IirPrototype, BesselSharesItsGainAmongTheStages) {
    const Filter filter(0, 5);
    ASSERT_EQ(kBessel.into(kGood, filter), 0);
    double product = 1;
    for (int s = 0; s < 3; ++s) {
        EXPECT_GT(std::fabs(filter.Gain(s, 1) - 1), 1e-3);
        product *= filter.Gain(s, 1);
    }
    EXPECT_NEAR(product, 1, 1e-12);
}

TEST(IirDesign, OfBesselReportsEveryFailedAllocationAndWritesNothingThen) {
    const Filter filter(0, 6);
    FillStages(filter, 5);
    const auto a = filter.feedback(), b = filter.forward();
    ExpectEveryAllocationFails([&] {
        const Status status = ZemFunc471(1000, 100, 0, filter);
        if (status < 0) {
            EXPECT_EQ(filter.feedback(), a);
            EXPECT_EQ(filter.forward(), b);
        }
        std::copy(a.begin(), a.end(), filter->a);
        std::copy(b.begin(), b.end(), filter->b);
        return status;
    });
}

TEST(IirDesign, OfBesselWithAnOrderBeyondItsPolynomialFailsAndWritesNothing) {
    const Filter filter(0, 300);  // 299!! is beyond the doubles
    FillStages(filter, 6);
    EXPECT_LT(StatusOf(kBessel, kGood, filter), 0);
}

TEST(IirDesign, OfTheClosedFormsTakesNoMemory) {
    for (const Design* design : kDesigns) {
        if (design == &kBessel) continue;
        const Filter filter(2, 9);
        FailAllocation(0);
        EXPECT_EQ(design->into(kGood, filter), 0);
        FailAllocation(-1);
    }
}

// IirToDirectForm

TEST(IirToDirectForm, OfOrderThreeLowpassNeedsRoomForFour) {
    const Filter filter(0, 3);
    ASSERT_EQ(kButterworth.into(kGood, filter), 0);
    Reals a = Output(4), b = Output(4);
    EXPECT_EQ(ZemFunc236(filter, a, 3, b, 4), -20066);
    EXPECT_EQ(ZemFunc236(filter, a, 4, b, 3), -20066);
    EXPECT_EQ(ZemFunc236(filter, a, -1, b, 4), -20066);
    EXPECT_TRUE(Untouched(a));
    EXPECT_TRUE(Untouched(b));
    ASSERT_EQ(ZemFunc236(filter, a, 4, b, 4), 0);
    EXPECT_EQ(a[0], 1);
    EXPECT_NE(a[3], 0);
    EXPECT_NE(b[3], 0);
}

TEST(IirToDirectForm, WritesTheLengthOfTheOrderAndNothingBehind) {
    for (int kind : kKinds)
        for (int order = 1; order <= 8; ++order) {
            const Filter filter(kind, order);
            ASSERT_EQ(kElliptic.into(kGood, filter), 0);
            const int length = kind < 2 ? order + 1 : 2 * order + 1;
            Reals a = Output(length + 4), b = Output(length + 4);
            ASSERT_EQ(ZemFunc236(filter, a, length + 4, b, length + 4), 0);
            for (int k = 0; k < length + 4; ++k) {
                EXPECT_EQ(a[k] == kUnwritten, k >= length);
                EXPECT_EQ(b[k] == kUnwritten, k >= length);
            }
        }
}

TEST(IirToDirectForm, MultipliesTheStagesInTheirOrder) {
    const Filter filter(1, 6);
    FillStages(filter, 40);
    Reals a = Output(7), b = Output(7);
    ASSERT_EQ(ZemFunc236(filter, a, 7, b, 7), 0);
    const auto multiplied = [&](bool feedback) {
        std::vector<double> product = {1};
        for (int s = 0; s < 3; ++s) {
            double stage[3];
            for (int k = 0; k < 3; ++k) stage[k] = feedback ? (k ? filter.a(s, k - 1) : 1) : filter.b(s, k);
            std::vector<double> next(product.size() + 2);
            for (std::size_t i = 0; i < product.size(); ++i)
                for (int k = 0; k < 3; ++k) next[i + k] += product[i] * stage[k];
            product = next;
        }
        return product;
    };
    const auto expectedA = multiplied(true), expectedB = multiplied(false);
    for (int k = 0; k < 7; ++k) {
        EXPECT_EQ(a[k], expectedA[k]) << k;
        EXPECT_EQ(b[k], expectedB[k]) << k;
    }
}

TEST(IirToDirectForm, ChecksNullOrderKindCountsAndRoomInThisOrder) {
    Reals a = Output(5), b = Output(5);
    EXPECT_EQ(ZemFunc236(nullptr, a, 5, b, 5), -20066);
    const Filter filter(2, 2);
    ASSERT_EQ(kButterworth.into(kGood, filter), 0);
    const QvIirFilter good = *filter;
    filter->order = 0;
    filter->type = 4;
    filter->a_count = 7;
    EXPECT_EQ(ZemFunc236(filter, a, 1, b, 1), -20021);
    filter->order = 2;
    EXPECT_EQ(ZemFunc236(filter, a, 1, b, 1), -20061);
    filter->type = -1;
    EXPECT_EQ(ZemFunc236(filter, a, 1, b, 1), -20061);
    filter->type = 2;
    EXPECT_EQ(ZemFunc236(filter, a, 5, b, 5), -20066);
    filter->a_count = good.a_count;
    filter->b_count = 6;
    EXPECT_EQ(ZemFunc236(filter, a, 5, b, 5), -20066);
    filter->b_count = good.b_count;
    EXPECT_EQ(ZemFunc236(filter, a, 4, b, 5), -20066);
    EXPECT_TRUE(Untouched(a));
    EXPECT_TRUE(Untouched(b));
    EXPECT_EQ(ZemFunc236(filter, a, 5, b, 5), 0);  // order 2, bandpass: 5
    EXPECT_NE(b[4], kUnwritten);
    ExpectEveryAllocationFails([&] { return ZemFunc236(filter, a, 5, b, 5); });
}

// Array designs

TEST(IirCoefficients, AreTheDirectFormOfTheDesign) {
    for (const Design* design : kDesigns) {
        if (!design->polynomials) continue;
        for (int kind : kKinds)
            for (int order : {1, 2, 3, 6}) {
                const int length = kind < 2 ? order + 1 : 2 * order + 1;
                const Filter filter(kind, order);
                ASSERT_EQ(design->into(kGood, filter), 0);
                Reals a = Output(length), b = Output(length), a2 = Output(length), b2 = Output(length);
                ASSERT_EQ(ZemFunc236(filter, a, length, b, length), 0);
                ASSERT_EQ(design->polynomials(kind, order, kGood, a2, length, b2, length), 0);
                EXPECT_EQ(a.values(), a2.values()) << design->name;
                EXPECT_EQ(b.values(), b2.values()) << design->name;
            }
    }
}

TEST(IirCoefficients, OfNoSuchKindOrOrderGiveTheStatusOfAMissingObject) {
    for (const Design* design : kDesigns) {
        if (!design->polynomials) continue;
        Reals a = Output(9), b = Output(9);
        const Asked bad = {.fs = 0, .fl = 0, .fh = 0, .ripple = 0, .attenuation = 0};
        for (int kind : {4, -1, INT32_MAX}) EXPECT_EQ(design->polynomials(kind, 2, bad, a, 9, b, 9), -20001);
        for (int order : {0, -3}) EXPECT_EQ(design->polynomials(0, order, bad, a, 9, b, 9), -20001);
        EXPECT_EQ(design->polynomials(0, 2, bad, a, 1, b, 1), -20023) << design->name;
        EXPECT_EQ(design->polynomials(2, 2, {.fh = 501}, a, 1, b, 1), -20020) << design->name;
        EXPECT_EQ(design->polynomials(2, 2, kGood, a, 4, b, 5), -20066) << design->name;
        EXPECT_TRUE(Untouched(a));
        EXPECT_TRUE(Untouched(b));
        ExpectEveryAllocationFails([&] { return design->polynomials(3, 4, kGood, a, 9, b, 9); });
    }
}

}  // namespace
}  // namespace quorvan::testing

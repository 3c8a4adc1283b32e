// Conversion of a spectrum into display units.
#include <cmath>
#include <cstring>
#include <gtest/gtest.h>
#include <string>

#include "quorvan/quorvan.h"
#include "tests/support/failing_heap.h"
#include "tests/support/guarded.h"

namespace quorvan::testing {
namespace {

struct Conversion {
    Status status;
    std::vector<double> values;
    std::string unit;
};

// With a guarded text buffer that holds the longest unit and no character more.
Conversion Convert(const Reals& spectrum, unsigned kind, unsigned display, int flags, double df = 1, double enbw = 1,
                   const char* base = "V") {
    Guarded<char> unit(std::strlen(base) + std::strlen("dBrms^2/Hz") + 1);
    std::strcpy(unit, base);
    Reals out = Output(spectrum.size());
    const WinProperties window{enbw, kNaN};
    const Status done =
        ZemFunc162(spectrum, static_cast<Size>(spectrum.size()), kind, display, flags, df, &window, out, unit);
    return {done, out.values(), unit.data()};
}

using Values = std::vector<double>;
const Reals kSpectrum{9, 4, 25};

TEST(SpecUnitConvert, OfPowerToPeakAmplitudeDoublesAllButTheMean) {
    const Conversion c = Convert({9, 8, 18}, 0, 0, 1);
    EXPECT_EQ(c.status, 0);
    EXPECT_EQ(c.values, (Values{3, 4, 6}));
    EXPECT_EQ(c.unit, "Vpk");
    const Conversion exact = Convert({0.3, 0.3}, 0, 0, 1);
    EXPECT_EQ(exact.values, (Values{std::sqrt(0.3), std::sqrt(2 * 0.3)}));
}

TEST(SpecUnitConvert, OfAmplitudeToDecibelsSquaresFirst) {
    const Conversion c = Convert({3, -0.7, 1e3}, 1, 1, 0);
    EXPECT_EQ(c.status, 0);
    EXPECT_EQ(c.values, (Values{10 * std::log10(9.0), 10 * std::log10(0.7 * 0.7), 60}));
    EXPECT_EQ(c.unit, "dBVrms");
}

TEST(SpecUnitConvert, ToTheReferenceIgnoresThePeakFlagAndTheBaseUnit) {
    const Conversion c = Convert({0.6084, 6.084, -60.84}, 0, 2, 1);
    EXPECT_EQ(c.status, 0);
    EXPECT_EQ(c.values[0], 0);
    EXPECT_NEAR(c.values[1], 10, 1e-14);
    EXPECT_NEAR(c.values[2], 20, 1e-14);
    EXPECT_EQ(c.unit, "dBm");
}

TEST(SpecUnitConvert, ToTheReferenceKeepsTheDensity) {
    const Conversion c = Convert({0.6084 * 30, 0.6084 * 300}, 0, 2, 5, 2, 1.5);
    EXPECT_NEAR(c.values[0], 10, 1e-14);
    EXPECT_NEAR(c.values[1], 20, 1e-14);
    EXPECT_EQ(c.unit, "dBm");
}

TEST(SpecUnitConvert, PassesAPlainMagnitudeWithAnEmptyUnit) {
    const Conversion c = Convert({-9, 4, kInf}, 2, 0, 7, 2, 1.5);
    EXPECT_EQ(c.status, 0);
    EXPECT_EQ(c.values, (Values{-9, 4, kInf}));
    EXPECT_EQ(c.unit, "");
}

TEST(SpecUnitConvert, ShowsAPlainMagnitudeInTwentyDecibelsADecade) {
    for (unsigned display : {1u, 2u}) {
        const Conversion c = Convert({-10, 100, 0}, 2, display, 7, 2, 1.5);
        EXPECT_EQ(c.status, 0);
        EXPECT_EQ(c.values, (Values{20, 40, -kInf}));
        EXPECT_EQ(c.unit, "dB");
    }
}

TEST(SpecUnitConvert, DividesADensityByTheStepTimesTheNoiseBandwidth) {
    const double third = 1.0 / (2 * 1.5);
    const Conversion amplitude = Convert(kSpectrum, 0, 0, 4, 2, 1.5);
    const Conversion power = Convert(kSpectrum, 0, 0, 6, 2, 1.5);
    for (int i = 0; i < 3; ++i) {
        EXPECT_TRUE(SameBits(power.values[i], kSpectrum[i] * third));
        EXPECT_TRUE(SameBits(amplitude.values[i], std::sqrt(kSpectrum[i] * third)));
    }
}

TEST(SpecUnitConvert, HasAUnitForEveryCombinationOfFlags) {
    const char* linear[] = {"Vrms", "Vpk", "Vrms^2", "Vpk^2", "Vrms/rtHz", "Vpk/rtHz", "Vrms^2/Hz", "Vpk^2/Hz"};
    const char* decibel[] = {"dBVrms",      "dBVpk",      "dBVrms",      "dBVpk",
                             "dBVrms/rtHz", "dBVpk/rtHz", "dBVrms^2/Hz", "dBVpk^2/Hz"};
    for (int flags = 0; flags < 8; ++flags) {
        const Conversion lin = Convert(kSpectrum, 0, 0, flags, 2, 1.5);
        const Conversion dB = Convert(kSpectrum, 0, 1, flags, 2, 1.5);
        EXPECT_EQ(lin.unit, linear[flags]);
        EXPECT_EQ(dB.unit, decibel[flags]);
        for (int i = 0; i < 3; ++i) {
            double power = kSpectrum[i];
            if (flags & 4) power *= 1.0 / 3;
            if (flags & 1 && i > 0) power *= 2;
            EXPECT_TRUE(SameBits(lin.values[i], flags & 2 ? power : std::sqrt(power)));
            EXPECT_TRUE(SameBits(dB.values[i], 10 * std::log10(power)));
        }
    }
    EXPECT_EQ(Convert(kSpectrum, 0, 0, 0, 1, 1, "").unit, "rms");
    EXPECT_EQ(Convert(kSpectrum, 0, 1, 6, 1, 1, "m/s").unit, "dBm/srms^2/Hz");
}

TEST(SpecUnitConvert, TakesTheMagnitudeBeforeTheRootButNotOfPowers) {
    EXPECT_EQ(Convert({-9, -4}, 0, 0, 0).values, (Values{3, 2}));
    EXPECT_EQ(Convert({-9, -4}, 0, 0, 2).values, (Values{-9, -4}));
}

TEST(SpecUnitConvert, MayWriteOverTheSpectrum) {
    Reals x{9, 8};
    char unit[16] = "V";
    const WinProperties window{1, 1};
    EXPECT_EQ(ZemFunc162(x, 2, 0, 0, 1, 1, &window, x, unit), 0);
    EXPECT_EQ(x.values(), (Values{3, 4}));
}

TEST(SpecUnitConvert, TestsEverySelectionBeforeItWrites) {
    const struct {
        unsigned kind, display;
        int flags;
    } refused[] = {{3, 0, 0}, {0xFFFFFFFFu, 0, 0}, {0, 3, 0}, {0, 0xFFFFFFFFu, 0},
                   {0, 0, 8}, {0, 0, -1},          {2, 0, 8}, {2, 1, -1}};
    for (const auto& r : refused) {
        const Conversion c = Convert(kSpectrum, r.kind, r.display, r.flags);
        EXPECT_EQ(c.status, -20061);
        EXPECT_EQ(c.unit, "V");
        EXPECT_EQ(c.values, Values(3, kUnwritten));
    }
}

TEST(SpecUnitConvert, TestsTheCountBeforeTheSelections) {
    Reals out = Output(1);
    char unit[16] = "V";
    const WinProperties window{1, 1};
    EXPECT_EQ(ZemFunc162(kSpectrum, kTooLarge, 3, 0, 0, 1, &window, out, unit), -20046);
    EXPECT_EQ(ZemFunc162(kSpectrum, 0, 3, 0, 0, 1, &window, out, unit), -20003);
    EXPECT_EQ(ZemFunc162(kSpectrum, -1, 3, 3, 8, 1, &window, out, unit), -20003);
    EXPECT_TRUE(Untouched(out));
    EXPECT_STREQ(unit, "V");
}

TEST(SpecUnitConvert, TellsExhaustedMemory) {
    for (unsigned display : {0u, 1u})
        ExpectEveryAllocationFails([&] { return Convert(kSpectrum, 0, display, 0).status; });
}

}  // namespace
}  // namespace quorvan::testing

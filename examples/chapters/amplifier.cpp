#include <cmath>
#include <cstdio>
#include <numbers>
#include <vector>

#include "analysis.h"
#include "chapters.h"
#include "report.h"

namespace tour {
namespace {

constexpr int kHarmonics = 3;

// An amplifier with a bent characteristic, y = 2 x - 0.02 x^2 - 0.01 x^3, driven by a sine, with a little noise.
constexpr double kLinear = 2.0, kSquare = -0.02, kCubic = -0.01, kNoise = 1e-4;
constexpr double kDrive = 1.2, kFrequency = 997.0, kRate = 48000.0;
constexpr std::size_t kCount = 16384;

Recording Output() {
    Recording output{"amplifier", "V", kRate, std::vector<double>(kCount)};
    std::vector<double> noise(kCount);
    double phase = 0.0;
    Check(QvGenSineWave(kCount, kDrive, kFrequency / kRate, &phase, output.samples.data()));
    Check(QvGenGaussianNoise(kCount, kNoise, 1, noise.data()));
    for (std::size_t i = 0; i < kCount; ++i) {
        const double x = output.samples[i];
        output.samples[i] = x * (kLinear + x * (kSquare + x * kCubic)) + noise[i];
    }
    return output;
}

struct Distortion {
    double amplitude[kHarmonics];  // peak
    double frequency[kHarmonics];
    double harmonics, all;  // percent: harmonics alone, and with the noise
};

// sin^2 = 1/2 - cos(2.)/2 and sin^3 = 3/4 sin - sin(3.)/4.
Distortion Truth() {
    const double a = kDrive;
    const double first = kLinear * a + 0.75 * kCubic * a * a * a;
    const double second = std::abs(kSquare) * a * a / 2, third = std::abs(kCubic) * a * a * a / 4;
    const double squares = second * second + third * third, noise = 2 * kNoise * kNoise;
    return {{first, second, third},
            {kFrequency, 2 * kFrequency, 3 * kFrequency},
            100 * std::sqrt(squares) / first,
            100 * std::sqrt((squares + noise) / (first * first + squares + noise))};
}

Distortion FromSamples(const Recording& output) {
    Distortion d;
    Check(QvSpecToneHarmonics(output.samples.data(), Size(output.samples), kHarmonics, kRate, 1000.0, d.amplitude,
                              d.frequency, &d.harmonics, &d.all));
    return d;
}

Distortion FromSpectrum(const Recording& output) {
    const Spectrum spectrum = PowerSpectrum(output);
    Distortion d;
    Check(QvSpecHarmonicAnalyzer(spectrum.power.data(), Size(spectrum.power), kCount, kHarmonics, QV_WINDOW_HANNING,
                                 kRate, 1000.0, d.amplitude, d.frequency, &d.harmonics, &d.all));
    for (double& amplitude : d.amplitude) amplitude *= std::numbers::sqrt2;  // of the root mean square
    return d;
}

}  // namespace

void Amplifier() {
    Heading("amplifier", "the distortion of an amplifier that is known to the last coefficient");
    const Recording output = Output();
    Title(output);
    const Distortion truth = Truth(), samples = FromSamples(output), spectrum = FromSpectrum(output);

    std::printf("  %-32s %12s %12s %12s\n", "", "samples", "spectrum", "truth");
    const auto row = [](const char* name, double a, double b, double c, const char* unit) {
        std::printf("  %-32s %12.6g %12.6g %12.6g  %s\n", name, a, b, c, unit);
    };
    row("fundamental, frequency", samples.frequency[0], spectrum.frequency[0], truth.frequency[0], "Hz");
    row("fundamental, amplitude", samples.amplitude[0], spectrum.amplitude[0], truth.amplitude[0], "Vpk");
    row("second harmonic, amplitude", samples.amplitude[1], spectrum.amplitude[1], truth.amplitude[1], "Vpk");
    row("third harmonic, amplitude", samples.amplitude[2], spectrum.amplitude[2], truth.amplitude[2], "Vpk");
    row("distortion", samples.harmonics, spectrum.harmonics, truth.harmonics, "%");
    std::printf("  %-32s %12.6g %12s %12.6g  %%\n", "distortion and noise", samples.all, "", truth.all);
    std::printf(
        "\n  The spectrum has no reading of it: the tone lies between two bins, and its leakage would count.\n");
}

}  // namespace tour

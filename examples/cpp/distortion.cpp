// Tone and distortion of an amplifier: a sine through a gently bent characteristic, measured, beside what the bend
// makes by the addition theorems.
#include <cmath>
#include <cstdio>
#include <quorvan/quorvan.hpp>
#include <vector>

int main() try {
    const double rate = 48000, frequency = 997, amplitude = 0.8, second = 0.02, third = 0.01;
    constexpr int harmonics = 5;
    std::vector<double> x(48000), amp(harmonics), freq(harmonics);
    double phase = 0;

    qv::call(QvGenSineWave, x.size(), amplitude, frequency / rate, &phase, x).value();
    for (double& v : x) v += second * v * v + third * v * v * v;
    const auto [distortion, withNoise] =
        qv::call(QvSpecToneHarmonics, x, x.size(), harmonics, rate, frequency, amp, freq, qv::out, qv::out).value();

    // sin² gives half a cosine at twice the frequency, sin³ a quarter of a sine at three times and three at the first.
    const double truth[] = {amplitude + 0.75 * third * std::pow(amplitude, 3), 0.5 * second * std::pow(amplitude, 2),
                            0.25 * third * std::pow(amplitude, 3)};
    std::printf("harmonic   frequency   amplitude       truth\n");
    for (int k = 0; k < 3; ++k) std::printf("%8d %11.3f %11.8f %11.8f\n", k + 1, freq[k], amp[k], truth[k]);
    std::printf("distortion %.6f %%, truth %.6f %%\n", distortion, 100 * std::hypot(truth[1], truth[2]) / truth[0]);
    std::printf("distortion and noise %.6f %%\n", withNoise);
} catch (const qv::Error& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
}

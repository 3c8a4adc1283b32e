/* Tone and distortion of an amplifier: a sine through a gently bent characteristic, measured, beside what the bend
 * makes by the addition theorems.
 */
#include <math.h>
#include <quorvan/quorvan.h>
#include <stdio.h>

#define SAMPLES 48000
#define HARMONICS 5

int main(void) {
    static double x[SAMPLES]; /* one second */
    const double rate = 48000, frequency = 997, amplitude = 0.8, second = 0.02, third = 0.01;
    double amp[HARMONICS], freq[HARMONICS], phase = 0, distortion, withNoise;

    QvStatus status = QvGenSineWave(SAMPLES, amplitude, frequency / rate, &phase, x);
    for (int i = 0; i < SAMPLES; ++i) x[i] += second * x[i] * x[i] + third * x[i] * x[i] * x[i];
    if (status >= 0)
        status = QvSpecToneHarmonics(x, SAMPLES, HARMONICS, rate, frequency, amp, freq, &distortion, &withNoise);
    if (status < 0) return fprintf(stderr, "%s\n", QvStatusMessage(status)), 1;

    /* sin^2 gives half a cosine at twice the frequency, sin^3 a quarter of a sine at three times and three at the
     * first. */
    const double truth[] = {amplitude + 0.75 * third * pow(amplitude, 3), 0.5 * second * pow(amplitude, 2),
                            0.25 * third * pow(amplitude, 3)};
    printf("harmonic   frequency   amplitude       truth\n");
    for (int k = 0; k < 3; ++k) printf("%8d %11.3f %11.8f %11.8f\n", k + 1, freq[k], amp[k], truth[k]);
    printf("distortion %.6f %%, truth %.6f %%\n", distortion,
           100 * sqrt(truth[1] * truth[1] + truth[2] * truth[2]) / truth[0]);
    printf("distortion and noise %.6f %%\n", withNoise);
    return 0;
}

/* The time constant of a discharge: a model function of one's own, fitted to samples with noise. */
#include <math.h>
#include <quorvan/quorvan.h>
#include <stdio.h>

#define SAMPLES 200

static double Discharge(double t, double* a, int32_t count) {
    (void)count;
    return a[0] * exp(-t / a[1]) + a[2];
}

int main(void) {
    double t[SAMPLES], y[SAMPLES], noise[SAMPLES], fitted[SAMPLES], error;
    double truth[3] = {3300, 0.47, 120}, a[3] = {1000, 1, 0}; /* millivolt, second, millivolt; and a guess */

    QvStatus status = QvGenGaussianNoise(SAMPLES, 5.0, 42, noise);
    for (int i = 0; i < SAMPLES; ++i) {
        t[i] = 0.01 * i;
        y[i] = Discharge(t[i], truth, 3) + noise[i];
    }
    if (status >= 0) status = QvFitNonlinear(t, y, fitted, SAMPLES, Discharge, a, 3, &error);
    if (status < 0) return fprintf(stderr, "%s\n", QvStatusMessage(status)), 1;
    printf("amplitude %.2f mV (truth %.0f)\n", a[0], truth[0]);
    printf("time constant %.4f s (truth %.2f)\n", a[1], truth[1]);
    printf("offset %.2f mV (truth %.0f)\n", a[2], truth[2]);
    printf("residue %.2f mV rms (noise 5)\n", sqrt(error));
    return 0;
}
